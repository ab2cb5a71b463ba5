// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTblt_prefPanePref.h"

#include "Notifications.h"
#include "PaneTest.h"
#include "QVMonitorView.h"
#include "QVTabletModels.h"
#include "Wait.h"
#include "rzkBundle.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

using platform::Rect;

namespace {

using News = platform::PreferencePane::News;
using Device = platform::PreferencePane::Device;

class Pane : public PaneTest {
protected:
    void SetUp() override
    {
        PaneTest::SetUp();
        mPane.setNewsHandler([this](News news, const QString& text) {
            mNews.push_back(news);
            mNewsText = text;
        });
    }
    static void post(QLatin1String name) { platform::notifications().post({name, nullptr, {}}); }
    /** The numbers on the displays, each with what a screen reader says about it. */
    QStringList signs() const
    {
        QStringList texts;
        const auto windows = QApplication::topLevelWidgets();
        for (const QWidget* const window : windows) {
            if (window->isVisible() && window != mWindow.get()) {
                const auto* const number = window->findChild<QLabel*>();
                EXPECT_NE(number, nullptr) << qPrintable(window->windowTitle());
                texts.append(number->text() + QStringLiteral(" - ") + window->windowTitle());
            }
        }
        texts.sort();
        return texts;
    }

    std::vector<News> mNews;
    QString mNewsText; ///< of the last one
};

} // namespace

TEST_F(Pane, hasItsOutletsUnderTheirNames)
{
    outlet<QTabWidget>("tabView");
    outlet<QLabel>("NoDevTitle");
    for (const char* const bank : {"mKey1_", "mKey2_"}) {
        for (int key = 1; key <= 8; ++key) {
            outlet<QComboBox>((bank + std::to_string(key)).c_str());
        }
    }
    outlet<QCheckBox>("mKeyLScroll");
    outlet<QCheckBox>("mKeyRScroll");
    outlet<QSlider>("mScrollSpeed");
    outlet<QWidget>("mMonitorSpeed");
    outlet<QComboBox>("penKeyUpper");
    outlet<QComboBox>("penKeyLower");
    outlet<QWidget>("mSoft");
}

TEST_F(Pane, keepsItsBundleForEveryLookUp)
{
    EXPECT_EQ(rzkBundle.folder(), QStringLiteral(QVTBLT_STAGE_RESOURCES));
}

TEST_F(Pane, givesEveryComboBoxItsSlotAsTag)
{
    for (int key = 0; key < 16; ++key) {
        const std::string name =
            "mKey" + std::to_string(key / 8 + 1) + '_' + std::to_string(key % 8 + 1);
        EXPECT_EQ(outlet<QComboBox>(name.c_str()).property("tag").toInt(), key) << name;
    }
    EXPECT_EQ(outlet<QComboBox>("penKeyUpper").property("tag").toInt(), 16);
    EXPECT_EQ(outlet<QComboBox>("penKeyLower").property("tag").toInt(), 17);
}

TEST_F(Pane, showsThePagesAndTheFilesStateWithATablet)
{
    show();
    EXPECT_TRUE(outlet<QTabWidget>("tabView").isVisible());
    EXPECT_FALSE(outlet<QLabel>("NoDevTitle").isVisible());
    EXPECT_TRUE(sameBytes(qvTabletInfo, sampleRecord()));
    // The sample has 26 and 27 there: both strips are off.
    EXPECT_FALSE(outlet<QCheckBox>("mKeyLScroll").isChecked());
    EXPECT_FALSE(outlet<QCheckBox>("mKeyRScroll").isChecked());
    EXPECT_TRUE(pushes().empty()) << "showing the pane must not push";
}

TEST_F(Pane, showsOnlyTheLabelWithoutATablet)
{
    mEvents.sendResult = platform::procNotFound;
    show();
    EXPECT_FALSE(outlet<QTabWidget>("tabView").isVisible());
    const QLabel& label = outlet<QLabel>("NoDevTitle");
    EXPECT_TRUE(label.isVisible());
    EXPECT_EQ(label.text(), QStringLiteral("No tablet was found"));
    EXPECT_TRUE(label.font().bold());
    EXPECT_EQ(label.font().pixelSize(), 20);
    const QColor color = label.palette().color(QPalette::WindowText);
    EXPECT_NEAR(color.redF(), 1.0, 1e-4);
    EXPECT_NEAR(color.greenF(), 0.2, 1e-4);
    EXPECT_NEAR(color.blueF(), 0.2, 1e-4);
    EXPECT_NEAR(color.alphaF(), 0.6, 1e-4);
    EXPECT_FALSE(outlet<QWidget>("mSoft").isVisible());
    EXPECT_TRUE(sameBytes(qvTabletInfo, {})) << "no file may be loaded";
}

TEST_F(Pane, movesTheLabelFurtherAtEachShowingWithoutATablet)
{
    mEvents.answer(0);
    const QLabel& label = outlet<QLabel>("NoDevTitle");
    const Rect first = platform::frame(label);
    show();
    const Rect second = platform::frame(label);
    leave();
    show();
    const Rect third = platform::frame(label);
    EXPECT_EQ(second.x, first.x + 20);
    EXPECT_EQ(second.y, first.y - 150);
    EXPECT_EQ(third.x, second.x + 20);
    EXPECT_EQ(third.y, second.y - 150);
    EXPECT_EQ(third.width, label.sizeHint().width());
    EXPECT_EQ(third.height, label.sizeHint().height());
}

TEST_F(Pane, widensTheLabelFivefoldBeforeItIsMadeToFit)
{
    /** Records the widths of a widget. */
    class Widths final : public QObject {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::Resize) {
                widths.push_back(static_cast<QWidget*>(watched)->width());
            }
            return false;
        }
        std::vector<int> widths;
    };
    mEvents.answer(0);
    show();
    leave();
    auto& label = outlet<QLabel>("NoDevTitle");
    const int fitted = label.width();
    Widths widths;
    label.installEventFilter(&widths);
    mWindow->show(); // a hidden widget gets only its last size
    mPane.willSelect();
    EXPECT_EQ(widths.widths, (std::vector{5 * fitted, fitted}));
}

TEST_F(Pane, comesBackWhenATabletIsThereAgain)
{
    mEvents.answer(0);
    show();
    leave();
    mEvents.answer(7);
    show();
    EXPECT_TRUE(outlet<QTabWidget>("tabView").isVisible());
    EXPECT_TRUE(outlet<QLabel>("mSoft").isVisible());
    EXPECT_FALSE(outlet<QLabel>("NoDevTitle").isVisible());
    EXPECT_FALSE(outlet<QLabel>("NoDevHelp").isVisible());
}

TEST_F(Pane, saysUnderTheLabelWhatToTryAndNeverOutOfSight)
{
    mEvents.answer(0);
    for (int showing = 1; showing <= 6; ++showing) {
        show();
        const QLabel& help = outlet<QLabel>("NoDevHelp");
        EXPECT_TRUE(help.isVisible());
        EXPECT_EQ(mWindow->focusWidget(), &help) << "so that it is read out";
        EXPECT_TRUE(mWindow->rect().contains(help.geometry())) << showing;
        if (showing == 1) {
            EXPECT_GE(help.geometry().top(), outlet<QLabel>("NoDevTitle").geometry().bottom());
        }
        leave();
    }
    mEvents.answer(7);
    show();
    EXPECT_FALSE(outlet<QLabel>("NoDevHelp").isVisible());
}

TEST_F(Pane, growsWithTheTextAlsoWhereItsControlsHaveFixedPlaces)
{
    show();
    const auto size = [this](const char* name) { return outlet<QWidget>(name).minimumSize(); };
    const QSize keys = size("keyCanvas");
    const QSize pressure = size("pressCanvas");
    QFont font = QApplication::font();
    font.setPointSizeF(2 * QFontInfo(font).pointSizeF());
    mWindow->setFont(font);
    EXPECT_GT(size("keyCanvas").width(), keys.width());
    EXPECT_GT(size("pressCanvas").width(), pressure.width());
}

TEST_F(Pane, withoutATabletItsTextsFollowTheWindowsWidthInBothDirections)
{
    mEvents.answer(0);
    const QLabel& title = outlet<QLabel>("NoDevTitle");
    const QLabel& help = outlet<QLabel>("NoDevHelp");
    const int first = title.x();
    for (const bool isMirrored : {false, true}) {
        mWindow->setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
        show();
        for (const int width : {1000, 1200}) {
            mWindow->resize(width, mWindow->height());
            QCoreApplication::processEvents();
            ASSERT_EQ(mWindow->width(), width);
            EXPECT_EQ(isMirrored ? width - title.x() - title.width() : title.x(),
                first + (isMirrored ? 40 : 20));
            EXPECT_EQ(help.x(), width - help.x() - help.width());
            EXPECT_GT(help.x(), 0);
        }
        leave();
    }
}

TEST_F(Pane, itsTextsAreInPlaceWhenTheTabletGoesFromAWindowThatStays)
{
    show();
    mPane.willUnselect();
    mPane.didUnselect();
    mEvents.answer(0);
    mPane.willSelect();
    mPane.didSelect();
    const QLabel& help = outlet<QLabel>("NoDevHelp");
    EXPECT_EQ(help.x(), mWindow->width() - help.x() - help.width());
    EXPECT_GE(help.y(), outlet<QLabel>("NoDevTitle").geometry().bottom());
}

TEST_F(Pane, tellsItsHostWhatBecomesOfWhatItHasAskedFor)
{
    show();
    EXPECT_EQ(mNews, std::vector{News::Loaded});
    post(platform::kEventNotTakenNotification);
    post(platform::kEventTakenNotification);
    post(platform::kSourceChangedNotification);
    EXPECT_EQ(mNews,
        (std::vector{
            News::Loaded, News::ChangeNotTaken, News::ChangeTaken, News::DeviceMayHaveChanged}));
    EXPECT_TRUE(pushes().empty()) << "it repeats nothing by itself";
}

TEST_F(Pane, tellsItsHostWhyTheSettingsAreNotSaved)
{
    show();
    const QString path = mHome.configFile(7);
    ASSERT_TRUE(QFile::rename(path, path + QStringLiteral(".away")));
    mPane.save();
    EXPECT_EQ(mNews.back(), News::NotSaved);
    EXPECT_TRUE(mNewsText.contains(path)) << mNewsText.toStdString();
    ASSERT_TRUE(QFile::rename(path + QStringLiteral(".away"), path));
    mPane.save();
    EXPECT_EQ(mNews.back(), News::Saved);
    EXPECT_EQ(mNewsText, QString());
}

TEST_F(Pane, tellsItsHostWhyTheSettingsAreNotLoaded)
{
    const QString path = mHome.configFile(7);
    writeFile(path, "nonsense");
    show();
    EXPECT_EQ(mNews, std::vector{News::NotLoaded});
    EXPECT_TRUE(mNewsText.contains(path)) << mNewsText.toStdString();
    EXPECT_TRUE(outlet<QTabWidget>("tabView").isVisible()) << "the pages are shown all the same";
}

TEST_F(Pane, hasNoDeviceBeforeItIsShownAndWithoutATablet)
{
    EXPECT_FALSE(mPane.hasDevice());
    show();
    EXPECT_TRUE(mPane.hasDevice());
    EXPECT_EQ(mPane.deviceID(), QStringLiteral("7")) << "as its file is called";
    leave();
    mEvents.answer(0);
    show();
    EXPECT_FALSE(mPane.hasDevice());
    EXPECT_EQ(mPane.deviceID(), QString());
}

TEST_F(Pane, knowsTheSameTabletFromAnother)
{
    show();
    EXPECT_EQ(mPane.checkDevice(), Device::Same);
    mEvents.answer(8);
    EXPECT_EQ(mPane.checkDevice(), Device::Other);
    EXPECT_STREQ(GetPListName(), "7.plist") << "until it is shown anew, the file is the old one";
    mEvents.answer(0);
    EXPECT_EQ(mPane.checkDevice(), Device::Other);
    mEvents.sendResult = platform::procNotFound;
    EXPECT_EQ(mPane.checkDevice(), Device::Unknown);
}

TEST_F(Pane, knowsATabletThatComesFromNone)
{
    mEvents.answer(0);
    show();
    EXPECT_EQ(mPane.checkDevice(), Device::Same);
    mEvents.answer(7);
    EXPECT_EQ(mPane.checkDevice(), Device::Other);
}

TEST_F(Pane, asksTheDriverOnceWhenItIsShownAnewAfterACheck)
{
    mEvents.answer(0);
    show();
    mEvents.answer(7);
    mEvents.sent.clear();
    ASSERT_EQ(mPane.checkDevice(), Device::Other);
    mPane.willUnselect();
    mPane.didUnselect();
    mPane.willSelect();
    mPane.didSelect();
    EXPECT_EQ(mEvents.sent.size(), 1U);
    EXPECT_TRUE(outlet<QTabWidget>("tabView").isVisible());
    EXPECT_TRUE(sameBytes(qvTabletInfo, sampleRecord()));
    leave();
    show();
    EXPECT_EQ(mEvents.sent.size(), 2U) << "an answer is good for one showing";
}

TEST_F(Pane, savesIntoTheFormerTabletsFileAndSendsNothingWhenTheTabletIsAnother)
{
    QByteArray other = sampleConfig();
    other.replace(
        "<key>ProductID</key><integer>2</integer>", "<key>ProductID</key><integer>8</integer>");
    writeFile(mHome.configFile(8), other);
    show();
    qvTabletInfo.Pen.Speed = 99;
    outlet<QPushButton>("mDoCalibrate").setEnabled(true);
    outlet<QComboBox>("mComboBox").setCurrentIndex(1);
    QTest::mouseClick(&outlet<QPushButton>("mDoCalibrate"), Qt::LeftButton);
    ASSERT_EQ(pushes().size(), 1U);
    ASSERT_EQ(+pushes().back().Monitor.disableFlag, 1);
    mEvents.answer(8);
    ASSERT_EQ(mPane.checkDevice(), Device::Other);
    mPane.willUnselect();
    mPane.didUnselect();
    mPane.willSelect();
    EXPECT_EQ(pushes().size(), 1U) << "the new driver must not get the old tablet's settings";
    EXPECT_EQ(+recordInFile().Pen.Speed, 99);
    EXPECT_EQ(+recordInFile().Monitor.disableFlag, 0);
    EXPECT_EQ(+qvTabletInfo.Basic.ProductID, 8);
    EXPECT_EQ(readFile(mHome.configFile(8)), other);
}

TEST_F(Pane, tellsOnceThatTheMappedAreaFollowsTheDisplays)
{
    QByteArray second = sampleConfig();
    second.replace("<key>num</key><integer>14</integer>", "<key>num</key><integer>2</integer>");
    writeFile(mHome.configFile(7), second);
    show();
    showPage("displayPage");
    mWindow->grab();
    mNews.clear();
    mDisplays.change({{0, 0, 100, 100}, {100, 0, 100, 100}});
    EXPECT_EQ(mNews, std::vector{News::DisplaysChanged}) << "the area is the same";
    mNews.clear();
    mDisplays.change({{0, 0, 100, 100}, {100, 0, 300, 200}});
    EXPECT_EQ(mNews, (std::vector{News::ChangedByItself, News::DisplaysChanged}));
    EXPECT_EQ(+qvTabletInfo.Monitor.Width, 300);
    EXPECT_TRUE(pushes().empty()) << "sending is its host's";
    mPane.send();
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_TRUE(sameBytes(pushes().back(), qvTabletInfo));
}

TEST_F(Pane, isMappedToNoDisplayThatItsListDoesNotHave)
{
    show();
    const auto before = qvTabletInfo;
    mEvents.sent.clear();
    for (const int number : {-1, 3, 32767}) {
        mPane.chooseDisplay(number);
    }
    EXPECT_EQ(std::memcmp(&qvTabletInfo, &before, sizeof before), 0);
    EXPECT_EQ(pushes().size(), 0U);
    for (const int number : {2, 0}) {
        mPane.chooseDisplay(number);
        EXPECT_EQ(+qvTabletInfo.Monitor.num, number);
    }
}

TEST_F(Pane, tellsItsHostWhoeverHasChosenTheDisplay)
{
    show();
    showPage("displayPage");
    mNews.clear();
    auto& list = outlet<QComboBox>("mComboBox");
    QTest::keyClick(&list, Qt::Key_Down); // the user
    EXPECT_EQ(mNews, std::vector{News::DisplayChosen});
    EXPECT_EQ(mPane.chosenDisplay(), 1);
    mPane.chooseDisplay(2);
    EXPECT_EQ(mNews, (std::vector{News::DisplayChosen, News::DisplayChosen}));
    EXPECT_EQ(mPane.chosenDisplay(), 2);
}

TEST_F(Pane, tellsItsHostThatTheAreaOfAnEndedCalibrationIsTheUsers)
{
    show();
    mPane.chooseDisplay(1);
    std::vector<bool> areThere;
    mPane.setChangeHandler([&] { areThere.push_back(!mPane.settings().isEmpty()); });
    QTest::mouseClick(&outlet<QPushButton>("mDoCalibrate"), Qt::LeftButton);
    ASSERT_FALSE(areThere.empty());
    EXPECT_FALSE(areThere.back());
    outlet<QVMonitorView>("mMonitorView").endCalibration();
    EXPECT_TRUE(QTest::qWaitFor([&] { return areThere.back(); }, kPatience));
}

TEST_F(Pane, showsOnEachDisplayWhichOneItIsUntilTheButtonIsPressedAgainOrItIsLeft)
{
    mDisplays.sharesScreen = true;
    mDisplays.monitors = {
        {QStringLiteral("Acme"), QStringLiteral("A1"), {}, QStringLiteral("DP-1")},
        {{}, {}, {}, QStringLiteral("DP-2")}, {QStringLiteral("Acme")}};
    mDisplays.sizes = {QSize(1920, 1080), QSize(800, 600)};
    mDisplays.change(std::vector<Rect>(5, {0, 0, 100, 100}));
    show();
    showPage("displayPage");
    auto& button = outlet<QPushButton>("mIdentify");
    button.click();
    EXPECT_EQ(signs(),
        (QStringList{QStringLiteral("1 - Display #1: Acme A1, 1920 × 1080 pixels"),
            QStringLiteral("2 - Display #2: DP-2, 800 × 600 pixels"),
            QStringLiteral("3 - Display #3: Acme"), QStringLiteral("4 - Display #4: ")}))
        << "of the four that it knows";
    button.click();
    EXPECT_EQ(signs(), QStringList());
    button.click();
    EXPECT_EQ(signs().size(), 4);
    leave();
    EXPECT_EQ(signs(), QStringList());
}

TEST_F(Pane, inALowWindowThePictureScrollsFromTheTabletOn)
{
    show();
    showPage("displayPage");
    auto& area = outlet<QScrollArea>("mMonitorScroll");
    const QScrollBar& bar = *area.verticalScrollBar();
    area.setFixedHeight(360);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.maximum(), 0);
    area.setFixedHeight(200);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.maximum(), 160);
    EXPECT_EQ(bar.value(), 160);
}

TEST_F(Pane, besideThePictureIsThePagesOwnGround)
{
    show();
    showPage("displayPage");
    mWindow->resize(1200, 700);
    QCoreApplication::processEvents();
    auto& area = outlet<QScrollArea>("mMonitorScroll");
    QPalette red = area.palette();
    red.setColor(area.viewport()->backgroundRole(), Qt::red);
    area.viewport()->setPalette(red);
    const QImage page = outlet<QWidget>("displayPage").grab().toImage();
    const QPoint beside = area.mapTo(&outlet<QWidget>("displayPage"), QPoint(2, 2));
    EXPECT_FALSE(outlet<QWidget>("mMonitorView").geometry().contains(2, 2));
    EXPECT_NE(page.pixelColor(beside * page.devicePixelRatio()), QColor(Qt::red));
}

TEST_F(Pane, putsTheFocusOnMSoft)
{
    show();
    mWindow->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mWindow.get(), kPatience));
    EXPECT_TRUE(outlet<QWidget>("mSoft").hasFocus());
}

TEST_F(Pane, namesTheTablet)
{
    const auto shown = [this](int product, const char* name) {
        QByteArray config = sampleConfig();
        config.replace("<key>ProductID</key><integer>2</integer>",
            "<key>ProductID</key><integer>" + QByteArray::number(product) + "</integer>" + name);
        writeFile(mHome.configFile(7), config);
        show();
        const QString text = outlet<QLabel>("mSoft").text();
        leave();
        return text;
    };
    EXPECT_EQ(shown(2, ""), QStringLiteral("Unknown tablet, product 0002"));
    EXPECT_EQ(shown(0xABC, ""), QStringLiteral("Unknown tablet, product 0abc"));
    const auto* const name = "<key>Name</key><string>Acme &lt;b&gt;Pen&lt;/b&gt;</string>";
    EXPECT_EQ(shown(2, name), QStringLiteral("Acme <b>Pen</b>"));
    const QLabel& label = outlet<QLabel>("mSoft");
    QLabel plain;
    plain.setTextFormat(Qt::PlainText);
    plain.setFont(label.font());
    plain.setText(label.text());
    EXPECT_EQ(label.sizeHint(), plain.sizeHint()) << "the tags are part of the name";
    const QVTabletModel& model = kQVTabletModels.front();
    EXPECT_EQ(shown(model.productID, name), QString::fromUtf8(model.name));
}

TEST_F(Pane, pushesTheStripsAtOnceWhenABoxIsClicked)
{
    show();
    QTest::mouseClick(&outlet<QCheckBox>("mKeyLScroll"), Qt::LeftButton, {}, QPoint(8, 8));
    ASSERT_EQ(pushes().size(), 1U);
    tagQVTabletInfo expected = sampleRecord();
    expected.Key.Scrollbar0 = 0;
    expected.Key.Scrollbar1 = 1;
    EXPECT_TRUE(sameBytes(pushes().front(), expected));
    EXPECT_TRUE(sameBytes(qvTabletInfo, expected));

    QTest::keyClick(&outlet<QCheckBox>("mKeyRScroll"), Qt::Key_Space);
    ASSERT_EQ(pushes().size(), 2U);
    expected.Key.Scrollbar1 = 0;
    EXPECT_TRUE(sameBytes(pushes().back(), expected));

    QTest::mouseClick(&outlet<QCheckBox>("mKeyLScroll"), Qt::LeftButton, {}, QPoint(8, 8));
    expected.Key.Scrollbar0 = 1;
    EXPECT_TRUE(sameBytes(pushes().back(), expected));
}

TEST_F(Pane, pushesTheStripsWhenAScreenReaderTogglesABox)
{
    show();
    QAccessibleActionInterface* const action =
        QAccessible::queryAccessibleInterface(&outlet<QCheckBox>("mKeyLScroll"))->actionInterface();
    ASSERT_NE(action, nullptr);
    ASSERT_TRUE(action->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    action->doAction(QAccessibleActionInterface::toggleAction());
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_EQ(+pushes().front().Key.Scrollbar0, 0);
    EXPECT_EQ(+qvTabletInfo.Key.Scrollbar0, 0);
}

TEST_F(Pane, pushesNothingWhenItShowsOtherStrips)
{
    show();
    leave();
    qvTabletInfo.Key.Scrollbar0 = 0;
    qvTabletInfo.Key.Scrollbar1 = 0;
    leave(); // into the file
    show();
    EXPECT_TRUE(outlet<QCheckBox>("mKeyLScroll").isChecked());
    EXPECT_TRUE(outlet<QCheckBox>("mKeyRScroll").isChecked());
    EXPECT_TRUE(pushes().empty());
}

TEST_F(Pane, saveStoresZeroForABoxThatIsOnAndOneForABoxThatIsOff)
{
    show();
    {
        const QSignalBlocker left(outlet<QCheckBox>("mKeyLScroll"));
        const QSignalBlocker right(outlet<QCheckBox>("mKeyRScroll"));
        outlet<QCheckBox>("mKeyLScroll").setChecked(true);
        outlet<QCheckBox>("mKeyRScroll").setChecked(false);
    }
    mPane.SaveSet();
    EXPECT_EQ(+qvTabletInfo.Key.Scrollbar0, 0);
    EXPECT_EQ(+qvTabletInfo.Key.Scrollbar1, 1);
    EXPECT_TRUE(sameBytes(recordInFile(), qvTabletInfo));
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_TRUE(sameBytes(pushes().back(), qvTabletInfo));
}

TEST_F(Pane, saveWritesTheFileBeforeItPushes)
{
    show();
    qvTabletInfo.Pen.Speed = 99;
    mEvents.onSend = [this] { EXPECT_EQ(+recordInFile().Pen.Speed, 99); };
    mPane.SaveSet();
    EXPECT_EQ(pushes().size(), 1U);
}

TEST_F(Pane, cancelPushesTheFilesValuesWhileTheBoxKeepsTheChoice)
{
    show();
    QTest::mouseClick(&outlet<QCheckBox>("mKeyLScroll"), Qt::LeftButton, {}, QPoint(8, 8));
    ASSERT_TRUE(outlet<QCheckBox>("mKeyLScroll").isChecked());
    mPane.CancelSet();
    ASSERT_EQ(pushes().size(), 2U);
    EXPECT_TRUE(sameBytes(pushes().back(), sampleRecord()));
    EXPECT_TRUE(outlet<QCheckBox>("mKeyLScroll").isChecked());
    leave();
    show();
    EXPECT_FALSE(outlet<QCheckBox>("mKeyLScroll").isChecked());
}

TEST_F(Pane, leavingSavesWithoutPushing)
{
    show();
    QTest::mouseClick(&outlet<QCheckBox>("mKeyLScroll"), Qt::LeftButton, {}, QPoint(8, 8));
    const std::size_t before = pushes().size();
    leave();
    EXPECT_EQ(pushes().size(), before);
    EXPECT_EQ(+recordInFile().Key.Scrollbar0, 0);
    EXPECT_TRUE(sameBytes(recordInFile(), qvTabletInfo));
}

TEST_F(Pane, leavingSavesIntoTheFormerTabletsFileAfterTheTabletWasUnplugged)
{
    show();
    leave();
    mEvents.sendResult = platform::procNotFound;
    show();
    qvTabletInfo.Pen.Speed = 99;
    leave();
    EXPECT_EQ(+recordInFile().Pen.Speed, 99);
}

TEST_F(Pane, leavingWithoutATabletEverCreatesNothing)
{
    mEvents.sendResult = platform::procNotFound;
    show();
    leave();
    EXPECT_EQ(readFile(mHome.configFile(7)), sampleConfig());
    EXPECT_EQ(mHome.configFolder().entryList(QDir::Files).size(), 1);
}

TEST_F(Pane, putsTheMovedControlsBackWhenItIsLeft)
{
    show();
    const std::vector<QWidget*> controls{&outlet<QComboBox>("mKey1_1"),
        &outlet<QCheckBox>("mKeyLScroll"), &outlet<QCheckBox>("mKeyRScroll")};
    std::vector<QRect> before;
    for (QWidget* const control : controls) {
        before.push_back(control->geometry());
        control->move(control->pos() + QPoint(5, 65));
    }
    leave();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        EXPECT_EQ(controls[i]->geometry(), before[i]) << i;
    }
}

TEST_F(Pane, leavesTheControlsInPlaceWhenItWasNeverShownWithATablet)
{
    const QRect before = outlet<QComboBox>("mKey1_1").geometry();
    mEvents.answer(0);
    show();
    leave();
    EXPECT_EQ(outlet<QComboBox>("mKey1_1").geometry(), before);
}

TEST_F(Pane, loadsItsMainViewOnce)
{
    EXPECT_EQ(mPane.loadMainView(), mWindow.get());
    EXPECT_EQ(mPane.mainView(), mWindow.get());
    mWindow.reset();
    EXPECT_EQ(mPane.mainView(), nullptr);
}

TEST_F(Pane, tellsItsHostOfChangesAndOfSaveAndCancel)
{
    std::vector<bool> told;
    mPane.setChangeHandler([&] { told.push_back(mPane.hasChanges()); });
    show();
    EXPECT_FALSE(mPane.hasChanges());
    outlet<QSlider>("mSlider").setValue(70);
    EXPECT_EQ(told, std::vector{true});
    mPane.save();
    EXPECT_EQ(told, (std::vector{true, false}));
    outlet<QSlider>("mSlider").setValue(20);
    mPane.cancel();
    EXPECT_EQ(told, (std::vector{true, false, true, false}));
}

TEST_F(Pane, hasNoChangesWhereAllItsPagesWereOnlyLookedAt)
{
    QByteArray second = sampleConfig();
    second.replace("<key>num</key><integer>14</integer>", "<key>num</key><integer>2</integer>");
    writeFile(mHome.configFile(7), second);
    show();
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 18);
    auto& pages = outlet<QTabWidget>("tabView");
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentIndex(page);
        mWindow->grab();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 100) << "as the display page has found the second one";
    EXPECT_FALSE(mPane.hasChanges());
}

TEST_F(Pane, cancelAsksForNoRedraw)
{
    show();
    showPage("penPage");
    outlet<QSlider>("mSlider").setValue(700);
    const QImage edited = outlet<QWidget>("mPressView").grab().toImage();
    mPane.CancelSet();
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 12);
    EXPECT_EQ(outlet<QWidget>("mPressView").grab().toImage(), edited);
    EXPECT_EQ(outlet<QSlider>("mSlider").value(), 700);
}

TEST_F(Pane, showsButtonsOfItsOwnWhereAHostAsksForThem)
{
    show();
    EXPECT_FALSE(outlet<QPushButton>("mSave").isVisible());
    EXPECT_FALSE(outlet<QPushButton>("mCancel").isVisible());
    EXPECT_TRUE(outlet<QLabel>("mSoft").isVisible());
    leave();
    mPane.setButtonsShown(true);
    show();
    outlet<QSlider>("mSlider").setValue(700);
    QTest::mouseClick(&outlet<QPushButton>("mSave"), Qt::LeftButton);
    EXPECT_EQ(+recordInFile().Pen.PressureThreshold, 70);
    outlet<QSlider>("mSlider").setValue(800);
    QTest::mouseClick(&outlet<QPushButton>("mCancel"), Qt::LeftButton);
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 70);
    leave();
    mEvents.answer(0);
    show();
    EXPECT_FALSE(outlet<QPushButton>("mSave").isVisible());
    EXPECT_FALSE(outlet<QPushButton>("mCancel").isVisible());
}

TEST_F(Pane, worksOnWithoutItsMainView)
{
    show();
    mWindow.reset();
    qvTabletInfo.Pen.Speed = 99;
    mPane.SaveSet();
    EXPECT_EQ(+recordInFile().Pen.Speed, 99);
    EXPECT_EQ(pushes().size(), 1U);
    qvTabletInfo.Pen.Speed = 98;
    mPane.CancelSet();
    EXPECT_EQ(+qvTabletInfo.Pen.Speed, 99);
    EXPECT_EQ(pushes().size(), 2U);
    qvTabletInfo.Pen.Speed = 97;
    mPane.willUnselect();
    mPane.didUnselect();
    EXPECT_EQ(+recordInFile().Pen.Speed, 97);
    EXPECT_FALSE(mPane.hasDevice());
    mPane.willSelect();
    mPane.didSelect();
}

TEST_F(Pane, worksWithAMainViewThatIsLoadedAgain)
{
    show();
    leave();
    mWindow.reset();
    mWindow.reset(mPane.loadMainView());
    ASSERT_NE(mWindow, nullptr);
    mNews.clear();
    show();
    EXPECT_EQ(mNews, std::vector{News::Loaded}) << "each is told once";
    QTest::mouseClick(&outlet<QCheckBox>("mKeyLScroll"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(pushes().size(), 1U);
    mEvents.answer(8);
    writeFile(mHome.configFile(8),
        QByteArray(sampleConfig())
            .replace("<key>ProductID</key><integer>2</integer>",
                "<key>ProductID</key><integer>9</integer>"));
    leave();
    show();
    EXPECT_TRUE(outlet<QTabWidget>("tabView").isVisible());
}
