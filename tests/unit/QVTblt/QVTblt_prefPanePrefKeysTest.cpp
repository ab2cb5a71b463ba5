// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The key page: every layout, every choice, every slot that a file may contain.

#include "Accessible.h"
#include "LayoutModels.h"
#include "OpenPanel.h"
#include "PaneTest.h"
#include "PointCanvas.h"
#include "QVKeyComboBox.h"
#include "QVKeySetClass.h"
#include "QVTabletModels.h"
#include "WatchedEvents.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <cstring>
#include <functional>
#include <random>

using platform::Rect;

namespace {

/** Returns paths without a dialog. */
class FakeOpenPanel final : public platform::OpenPanel {
public:
    std::optional<QString> chooseApplication(QWidget* parent, const Refusal& wanted) override
    {
        EXPECT_NE(parent, nullptr);
        refusal = wanted;
        ++asked;
        return path;
    }

    std::optional<QString> path;
    Refusal refusal; ///< what the panel says about paths
    int asked = 0;

private:
    platform::ServiceScope<platform::OpenPanel> mScope{*this};
};

// One product of each layout; for F, the one with a one-button pen and one of the others.
constexpr std::uint16_t kProductA = productOf(QVKeyLayout::A);
constexpr std::uint16_t kProductB = productOf(QVKeyLayout::B);
constexpr std::uint16_t kProductC = productOf(QVKeyLayout::C);
constexpr std::uint16_t kProductD = productOf(QVKeyLayout::D);
constexpr std::uint16_t kProductE = productOf(QVKeyLayout::E);
constexpr std::uint16_t kProductFLite = productOf(QVKeyLayout::F, 1);
constexpr std::uint16_t kProductF = productOf(QVKeyLayout::F, 2);
constexpr std::uint16_t kProductG = productOf(QVKeyLayout::G);
constexpr std::uint16_t kProductH = productOf(QVKeyLayout::H);

class KeyPage : public PaneTest {
protected:
    /** The panel in a language. */
    explicit KeyPage(QLocale::Language language = QLocale::English)
    {
        QLocale::setDefault(QLocale(language));
    }
    ~KeyPage() override { QLocale::setDefault(QLocale::c()); }

    void SetUp() override
    {
        PaneTest::SetUp();
        mFirst = frame("mKey1_1");
        mStrip = frame("mKeyLScroll");
        setProduct(kProductA);
    }

    /** Changes the file. */
    void edit(const std::function<void(tagQVTabletInfo&)>& change)
    {
        const tagQVTabletInfo before = qvTabletInfo;
        ASSERT_TRUE(QVConfigStore().loadRecord(mHome.configFile(7).toStdString()));
        change(qvTabletInfo);
        ASSERT_TRUE(QVConfigStore().saveRecord(mHome.configFile(7).toStdString()));
        // The panel never writes the model's own entries.
        QString config = QString::fromUtf8(readFile(mHome.configFile(7)));
        static const QRegularExpression kProduct(
            QStringLiteral("(<key>ProductID</key>\\s*<integer>)[^<]*"));
        config.replace(kProduct, QStringLiteral("\\1%1").arg(+qvTabletInfo.Basic.ProductID));
        writeFile(mHome.configFile(7), config.toUtf8());
        qvTabletInfo = before;
    }
    void setProduct(std::uint16_t productID)
    {
        edit([productID](tagQVTabletInfo& record) {
            record.Basic.ProductID = static_cast<std::int16_t>(productID);
        });
    }
    void showProduct(std::uint16_t productID)
    {
        setProduct(productID);
        show();
    }

    Rect frame(const char* name) { return platform::frame(outlet<QWidget>(name)); }
    Rect frame(const std::string& name) { return frame(name.c_str()); }
    bool hidden(const std::string& name) { return outlet<QWidget>(name.c_str()).isHidden(); }
    bool enabled(const std::string& name) { return outlet<QWidget>(name.c_str()).isEnabled(); }
    QVKeyComboBox& box(int slot)
    {
        if (slot >= 16) {
            return outlet<QVKeyComboBox>(slot == 16 ? "penKeyUpper" : "penKeyLower");
        }
        return outlet<QVKeyComboBox>(name(slot).c_str());
    }
    /**
     * Expects room for the text of every label, check box and item, even at twice the text size.
     */
    void expectTextsFit()
    {
        auto& canvas = outlet<QWidget>("keyCanvas");
        for (const double factor : {1.0, 1.25, 1.5, 2.0}) {
            QFont font = QApplication::font();
            font.setPointSizeF(font.pointSizeF() * factor);
            mWindow->setFont(font);
            for (const QWidget* const control :
                canvas.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
                const bool isText = qobject_cast<const QLabel*>(control) != nullptr
                    || qobject_cast<const QCheckBox*>(control) != nullptr;
                EXPECT_TRUE(!isText
                    || (control->sizeHint().width() <= control->width()
                        && control->sizeHint().height() <= control->height()))
                    << factor << ' ' << qPrintable(control->objectName());
                EXPECT_GE(control->height(), control->fontMetrics().height()) << factor;
            }
            for (int item = 0; item < box(0).count(); ++item) {
                constexpr int kArrowAndFrame = 30;
                EXPECT_LE(box(0).fontMetrics().horizontalAdvance(box(0).itemText(item))
                        + kArrowAndFrame * factor,
                    box(0).width())
                    << factor << ' ' << qPrintable(box(0).itemText(item));
            }
        }
    }
    /** The name of an express key's box; slots from 0. */
    static std::string name(int slot)
    {
        return "mKey" + std::to_string(slot / 8 + 1) + '_' + std::to_string(slot % 8 + 1);
    }

    /** Expects the first n boxes at these distances below the first, with its x and size. */
    void expectColumn(std::initializer_list<double> distances)
    {
        const Rect first = frame("mKey1_1");
        int slot = 1;
        for (const double distance : distances) {
            EXPECT_EQ(
                frame(name(slot)), (Rect{first.x, first.y - distance, first.width, first.height}))
                << slot;
            ++slot;
        }
    }
    /** Expects that many keys of the first bank. */
    void expectShown(int keys)
    {
        for (int slot = 0; slot < 16; ++slot) {
            EXPECT_EQ(hidden(name(slot)), slot >= keys) << slot;
            std::string label = name(slot);
            label.replace(1, 3, "Label");
            EXPECT_EQ(hidden(label), slot >= keys) << label;
        }
        EXPECT_TRUE(hidden("mKeyRScroll"));
    }

    /** Chooses like a user: opens the list, goes to the item, selects it. */
    static void choose(QVKeyComboBox& box, int item)
    {
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Space);
        QTest::keyClick(box.view(), Qt::Key_Home);
        for (int i = 0; i < item; ++i) {
            QTest::keyClick(box.view(), Qt::Key_Down);
        }
        QTest::keyClick(box.view(), Qt::Key_Return);
    }

    /** Chooses the key combination and does something in the dialog once it is open. */
    void chooseKeys(QVKeyComboBox& box, const std::function<void(QVKeySetClass&)>& act)
    {
        bool wasOpen = false;
        QTimer::singleShot(0, mWindow.get(), [&] {
            auto* const dialog = qobject_cast<QVKeySetClass*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            wasOpen = true;
            act(*dialog);
            if (dialog->isVisible()) {
                ADD_FAILURE() << "the dialog is still open";
                dialog->reject();
            }
        });
        choose(box, QVKeyComboBox::KeyCombination);
        EXPECT_TRUE(wasOpen);
    }
    static void click(QVKeySetClass& dialog, std::initializer_list<const char*> buttons)
    {
        for (const char* const button : buttons) {
            auto* const found = dialog.findChild<QAbstractButton*>(QString::fromLatin1(button));
            ASSERT_NE(found, nullptr) << button;
            QTest::mouseClick(found, Qt::LeftButton);
        }
    }

    const tagQVTabletInfoSubKey& slot(int number)
    {
        return qvTabletInfo.Key.SubKey[static_cast<std::size_t>(number)];
    }

    FakeOpenPanel mPanel;
    Rect mFirst; ///< mKey1_1 in the interface file
    Rect mStrip; ///< mKeyLScroll in the interface file
};

} // namespace

// Layouts -----------------------------------------------------------------------------------------

TEST_F(KeyPage, layoutALeavesTheInterfaceFilesPlaces)
{
    showProduct(kProductA);
    expectShown(8);
    EXPECT_EQ(frame("mKey1_1"), mFirst);
    EXPECT_EQ(frame("mKeyLScroll"), mStrip);
    EXPECT_FALSE(hidden("mKeyLScroll"));
    for (const char* const name : {"mKey1_1", "mKeyLScroll", "penKeyLower", "mScrollSpeed"}) {
        EXPECT_TRUE(enabled(name)) << name;
    }
    EXPECT_EQ(outlet<QSlider>("mScrollSpeed").value(), 1) << "only layout G sets it";
}

TEST_F(KeyPage, anUnknownProductGetsLayoutAAndAllSixteenSlots)
{
    edit([](tagQVTabletInfo& record) {
        record.Basic.ProductID = -1;
        for (int i = 0; i < 16; ++i) {
            record.Key.SubKey[static_cast<std::size_t>(i)].Valid = kQVPauseTablet;
        }
    });
    show();
    expectShown(8);
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(box(i).currentIndex(), 9) << i;
    }
}

TEST_F(KeyPage, layoutBDisablesEverythingButTheUpperPenButton)
{
    showProduct(kProductB);
    expectShown(8);
    for (int i = 0; i < 8; ++i) {
        EXPECT_FALSE(box(i).isEnabled()) << i;
    }
    for (const char* const name : {"mKeyLScroll", "penKeyLower", "mScrollSpeed"}) {
        EXPECT_FALSE(enabled(name)) << name;
    }
    EXPECT_TRUE(enabled("penKeyUpper"));
    EXPECT_FALSE(hidden("mKeyLScroll"));
    EXPECT_EQ(frame("mKey1_1"), mFirst);
}

TEST_F(KeyPage, layoutCShowsFourKeysAndDisablesTheReportSpeed)
{
    outlet<QWidget>("mMonitorSpeed").setEnabled(true);
    showProduct(kProductC);
    expectShown(4);
    EXPECT_TRUE(hidden("mKeyLScroll"));
    EXPECT_EQ(frame("mKey1_1"), (Rect{mFirst.x + 5, mFirst.y - 65, mFirst.width, mFirst.height}));
    expectColumn({45, 90, 135});
    for (const char* const name : {"penKeyLower", "mScrollSpeed", "mMonitorSpeed"}) {
        EXPECT_FALSE(enabled(name)) << name;
    }
    EXPECT_TRUE(enabled("mKey1_1"));
}

TEST_F(KeyPage, layoutDIsLikeCButKeepsTheReportSpeed)
{
    outlet<QWidget>("mMonitorSpeed").setEnabled(true);
    showProduct(kProductD);
    expectShown(4);
    EXPECT_TRUE(hidden("mKeyLScroll"));
    EXPECT_EQ(frame("mKey1_1"), (Rect{mFirst.x + 5, mFirst.y - 65, mFirst.width, mFirst.height}));
    expectColumn({45, 90, 135});
    EXPECT_FALSE(enabled("penKeyLower"));
    EXPECT_FALSE(enabled("mScrollSpeed"));
    EXPECT_TRUE(enabled("mMonitorSpeed"));
}

TEST_F(KeyPage, layoutEShowsFiveKeysAndDisablesTheHiddenOnes)
{
    showProduct(kProductE);
    expectShown(5);
    EXPECT_TRUE(hidden("mKeyLScroll"));
    EXPECT_EQ(frame("mKey1_1"), (Rect{mFirst.x + 45, mFirst.y - 50, mFirst.width, mFirst.height}));
    expectColumn({45, 90, 135, 180});
    for (const char* const name :
        {"mKey1_6", "mKey1_7", "mKey1_8", "penKeyLower", "mScrollSpeed"}) {
        EXPECT_FALSE(enabled(name)) << name;
    }
}

TEST_F(KeyPage, layoutFShowsSevenKeysWithWiderGapsAroundTheFourth)
{
    showProduct(kProductF);
    expectShown(7);
    EXPECT_TRUE(hidden("mKeyLScroll"));
    EXPECT_EQ(frame("mKey1_1"), (Rect{mFirst.x + 45, mFirst.y - 40, mFirst.width, mFirst.height}));
    expectColumn({30, 60, 100, 140, 170, 200});
    EXPECT_FALSE(enabled("mScrollSpeed"));
    EXPECT_TRUE(enabled("penKeyLower"));
}

TEST_F(KeyPage, oneModelOfLayoutFHasNoLowerPenButton)
{
    showProduct(kProductFLite);
    expectShown(7);
    EXPECT_FALSE(enabled("penKeyLower"));
    EXPECT_FALSE(enabled("mScrollSpeed"));
}

TEST_F(KeyPage, layoutGGroupsTheKeysAroundTheStripAndTintsThem)
{
    const Rect fifth = frame("mKey1_5");
    showProduct(kProductG);
    expectShown(8);
    EXPECT_EQ(frame("mKey1_1"), (Rect{mFirst.x, mFirst.y - 25, mFirst.width, mFirst.height}));
    expectColumn({25, 50, 75});
    EXPECT_EQ(frame("mKeyLScroll"), (Rect{mStrip.x + 15, mStrip.y, mStrip.width, mStrip.height}));
    EXPECT_EQ(frame("mKey1_5"), fifth);
    for (int i = 1; i < 4; ++i) {
        EXPECT_EQ(frame(name(4 + i)), (Rect{fifth.x, fifth.y - 25 * i, fifth.width, fifth.height}));
    }
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(box(i).palette().color(QPalette::Button), QColor(170, 170, 170)) << i;
    }
    EXPECT_NE(
        outlet<QWidget>("penKeyUpper").palette().color(QPalette::Button), QColor(170, 170, 170));
}

TEST_F(KeyPage, layoutGLeavesTheListsUntinted)
{
    showProduct(kProductG);
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Text, QPalette::Window}) {
        EXPECT_EQ(box(0).view()->palette().color(role), box(17).view()->palette().color(role))
            << role;
    }
}

TEST_F(KeyPage, layoutGShowsTheScrollSpeedWithoutPushingIt)
{
    edit([](tagQVTabletInfo& record) {
        record.Basic.ProductID = kProductG;
        record.Key.ScrollSpeed = 7;
    });
    show();
    EXPECT_EQ(outlet<QSlider>("mScrollSpeed").value(), 7);
    EXPECT_TRUE(pushes().empty());
}

TEST_F(KeyPage, aScrollSpeedBeyondTheSliderIsKeptInTheRecord)
{
    edit([](tagQVTabletInfo& record) {
        record.Basic.ProductID = kProductG;
        record.Key.ScrollSpeed = 28;
    });
    show();
    EXPECT_EQ(outlet<QSlider>("mScrollSpeed").value(), 10);
    EXPECT_EQ(+qvTabletInfo.Key.ScrollSpeed, 28);
}

TEST_F(KeyPage, layoutHDisablesAllKeys)
{
    showProduct(kProductH);
    expectShown(8);
    EXPECT_TRUE(hidden("mKeyLScroll"));
    for (int i = 0; i < 16; ++i) {
        EXPECT_FALSE(box(i).isEnabled()) << i;
    }
    EXPECT_FALSE(enabled("penKeyLower"));
    EXPECT_TRUE(enabled("penKeyUpper"));
    EXPECT_FALSE(enabled("mScrollSpeed"));
}

TEST_F(KeyPage, everyKeyThatIsShownCanBeUsedInLayoutsAAndCToG)
{
    // Hidden boxes stay enabled, too, except those of layout E.
    for (const std::uint16_t product :
        {kProductA, kProductC, kProductD, kProductE, kProductFLite, kProductF, kProductG}) {
        showProduct(product);
        for (int i = 0; i < 16; ++i) {
            const bool isDisabled = product == kProductE && i >= 5 && i < 8;
            EXPECT_EQ(box(i).isEnabled(), !isDisabled) << std::hex << product << ' ' << i;
        }
        EXPECT_TRUE(enabled("penKeyUpper")) << std::hex << product;
        EXPECT_TRUE(enabled("mKeyLScroll")) << std::hex << product;
        const bool hasStrip = product == kProductA || product == kProductG;
        EXPECT_EQ(enabled("mScrollSpeed"), hasStrip) << std::hex << product;
        const bool hasLower = hasStrip || product == kProductF;
        EXPECT_EQ(enabled("penKeyLower"), hasLower) << std::hex << product;
        leave();
    }
}

TEST_F(KeyPage, laidOutTwiceMovesTheFirstKeyTwice)
{
    setProduct(kProductC);
    mPane.willSelect();
    mPane.willSelect();
    EXPECT_EQ(frame("mKey1_1"), (Rect{mFirst.x + 10, mFirst.y - 130, mFirst.width, mFirst.height}));
    expectColumn({45, 90, 135});
    mPane.didUnselect();
    EXPECT_EQ(frame("mKey1_1"), (Rect{mFirst.x + 5, mFirst.y - 65, mFirst.width, mFirst.height}))
        << "where the second call found it";
}

TEST_F(KeyPage, layoutGsTextsAreBlackInADarkThemeToo)
{
    QPalette dark = mWindow->palette();
    for (const QPalette::ColorRole role :
        {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
        dark.setColor(role, Qt::white);
    }
    mWindow->setPalette(dark);
    showProduct(kProductG);
    for (const QPalette::ColorRole role :
        {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
        EXPECT_EQ(box(0).palette().color(role), QColor(Qt::black)) << role;
        EXPECT_EQ(box(17).palette().color(role), QColor(Qt::white)) << role;
    }
    leave();
    showProduct(kProductA);
    EXPECT_EQ(box(0).palette().color(QPalette::Text), QColor(Qt::white));
    EXPECT_FALSE(box(0).view()->testAttribute(Qt::WA_SetPalette)) << "it follows the theme again";
}

TEST_F(KeyPage, theScrollSpeedsLabelIsDisabledWithIt)
{
    for (const QVTabletModel& model : kQVTabletModels) {
        showProduct(model.productID);
        EXPECT_EQ(enabled("mScrollSpeedLabel"), enabled("mScrollSpeed")) << model.name;
        leave();
    }
}

TEST_F(KeyPage, laidOutTwiceMovesTheStripTwice)
{
    const Rect right = frame("mKeyRScroll");
    setProduct(kProductG);
    mPane.willSelect();
    mPane.willSelect();
    EXPECT_EQ(frame("mKeyLScroll"), (Rect{mStrip.x + 30, mStrip.y, mStrip.width, mStrip.height}));
    mPane.didUnselect();
    EXPECT_EQ(frame("mKeyLScroll"), (Rect{mStrip.x + 15, mStrip.y, mStrip.width, mStrip.height}));
    EXPECT_EQ(frame("mKeyRScroll"), right);
}

TEST_F(KeyPage, leavingWithoutATabletKeepsTheInterfaceFilesPlaces)
{
    const Rect right = frame("mKeyRScroll");
    mEvents.answer(0);
    show();
    leave();
    EXPECT_EQ(frame("mKey1_1"), mFirst);
    EXPECT_EQ(frame("mKeyLScroll"), mStrip);
    EXPECT_EQ(frame("mKeyRScroll"), right);
}

TEST_F(KeyPage, leavingInBetweenLetsTheKeysStandStill)
{
    showProduct(kProductC);
    const Rect first = frame("mKey1_1");
    leave();
    EXPECT_EQ(frame("mKey1_1"), mFirst);
    show();
    EXPECT_EQ(frame("mKey1_1"), first);
}

TEST_F(KeyPage, theNumbersStandBesideTheirBoxes)
{
    for (const QVTabletModel& model : kQVTabletModels) {
        showProduct(model.productID);
        for (int i = 0; i < 8; ++i) {
            std::string label = name(i);
            label.replace(1, 3, "Label");
            const Rect box = frame(name(i));
            EXPECT_EQ(frame(label), (Rect{box.x - 20, box.y, 18, box.height})) << model.name << i;
            EXPECT_EQ(enabled(label), enabled(name(i))) << model.name << i;
        }
        leave();
    }
}

TEST_F(KeyPage, nothingOverlapsOrLeavesThePageInAnyLayout)
{
    auto& canvas = outlet<QWidget>("keyCanvas");
    for (const QVTabletModel& model : kQVTabletModels) {
        showProduct(model.productID);
        QList<QWidget*> shown;
        for (QWidget* const control :
            canvas.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (control->isHidden()) {
                continue;
            }
            EXPECT_TRUE(canvas.rect().contains(control->geometry()))
                << model.name << ' ' << qPrintable(control->objectName());
            for (const QWidget* const other : shown) {
                EXPECT_FALSE(other->geometry().intersects(control->geometry()))
                    << model.name << ' ' << qPrintable(control->objectName()) << ' '
                    << qPrintable(other->objectName());
            }
            shown.append(control);
        }
        leave();
    }
}

TEST_F(KeyPage, noLayoutIsLeftOverForTheNextModel)
{
    // The state of each control in every layout when it is the first one shown.
    const auto state = [this] {
        QStringList lines{QString::number(outlet<QWidget>("mMonitorSpeed").isEnabled())};
        for (const QWidget* const control :
            outlet<QWidget>("keyCanvas")
                .findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            const Rect place = platform::frame(*control);
            lines += QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8")
                         .arg(control->objectName())
                         .arg(place.x)
                         .arg(place.y)
                         .arg(place.width)
                         .arg(place.height)
                         .arg(control->isHidden())
                         .arg(control->isEnabled())
                         .arg(control->palette().color(QPalette::Button).name());
        }
        lines += QString::number(outlet<QSlider>("mScrollSpeed").value());
        return lines.join(u'\n');
    };
    const std::vector products{kProductA, kProductB, kProductC, kProductD, kProductE, kProductFLite,
        kProductF, kProductG, kProductH};
    std::map<std::uint16_t, QString> expected;
    for (const std::uint16_t product : products) {
        QVTblt_prefPanePref pane;
        pane.initWithBundle(platform::Bundle(QStringLiteral(QVTBLT_STAGE_RESOURCES)));
        std::unique_ptr<QWidget> window(pane.loadMainView());
        setProduct(product);
        window.swap(mWindow);
        pane.willSelect();
        expected[product] = state();
        pane.willUnselect();
        pane.didUnselect();
        window.swap(mWindow);
    }
    for (const std::uint16_t before : products) {
        for (const std::uint16_t after : products) {
            showProduct(before);
            leave();
            showProduct(after);
            EXPECT_EQ(state(), expected[after]) << std::hex << before << ' ' << after;
            leave();
        }
    }
}

TEST_F(KeyPage, anotherModelForgetsTheTextsOfTheLast)
{
    edit([](tagQVTabletInfo& record) {
        record.Basic.ProductID = kProductA;
        record.Key.SubKey[3].Valid = kQVApplication;
    });
    show();
    EXPECT_EQ(box(3).itemText(5), QStringLiteral("/app/3"));
    leave();
    edit([](tagQVTabletInfo& record) {
        record.Basic.ProductID = kProductG;
        record.Key.SubKey[3].Valid = kQVNoAction;
    });
    show();
    EXPECT_NE(box(3).itemText(5), QStringLiteral("/app/3"));
}

// Showing a slot ----------------------------------------------------------------------------------

TEST_F(KeyPage, aKeyIsMarkedAsLongAsItIsPressedOnTheTablet)
{
    showProduct(kProductA);
    const auto press = [](uint slot, bool isDown) {
        platform::notifications().post(
            {platform::kSourceSignalNotification, nullptr, {}, {}, {slot, isDown}});
    };
    press(2, true);
    press(17, true);
    EXPECT_TRUE(box(2).isMarked());
    EXPECT_TRUE(box(17).isMarked());
    EXPECT_FALSE(box(3).isMarked());
    auto& spoken = *box(2).parentWidget()->findChild<platform::NoticeLabel*>();
    EXPECT_EQ(spoken.size(), QSize(1, 1)) << "what screen readers say is not seen";
    EXPECT_FALSE(spoken.isHidden());
    EXPECT_EQ(spoken.text(), box(17).accessibleName() + QStringLiteral(" is pressed"));
    const WatchedEvents shows(spoken, QEvent::Show);
    press(2, true);
    EXPECT_EQ(shows.count, 1) << "each key is announced";
    EXPECT_EQ(spoken.text(), box(2).accessibleName() + QStringLiteral(" is pressed"));
    press(2, false);
    EXPECT_TRUE(spoken.isHidden());
    EXPECT_FALSE(box(2).isMarked());
    EXPECT_TRUE(box(17).isMarked());
    outlet<QWidget>("keyCanvas").hide();
    press(3, true);
    EXPECT_TRUE(spoken.isHidden()) << "another page is shown";
    outlet<QWidget>("keyCanvas").show();
    press(18, true); // there is no such slot
    press(70000, true);
    show();
    EXPECT_FALSE(box(17).isMarked()) << "another tablet's key stays marked";
}

TEST_F(KeyPage, everyValidAndMouseShowsItsItemAndCommitsIt)
{
    show();
    tagQVTabletInfoSubKey& key = qvTabletInfo.Key.SubKey[2];
    const auto expect = [&](int item) {
        mPane.InitSingleComboBoxWithKey(&box(2), 2);
        ASSERT_EQ(box(2).currentIndex(), item) << key.Valid << ' ' << key.Mouse;
        ASSERT_EQ(box(2).committed(), 100 + item) << key.Valid << ' ' << key.Mouse;
    };
    for (int valid = -32768; valid <= 32767; ++valid) {
        key.Valid = static_cast<std::int16_t>(valid);
        key.Mouse = 7;
        expect(valid >= kQVApplication && valid <= kQVPauseTablet ? valid + 3 : 0);
    }
    key.Valid = kQVMouseButton;
    for (int mouse = -32768; mouse <= 32767; ++mouse) {
        key.Mouse = static_cast<std::int16_t>(mouse);
        expect(mouse == kQVLeftButton      ? 1
                : mouse == kQVRightButton  ? 2
                : mouse == kQVMiddleButton ? 3
                : mouse == kQVBackButton   ? 4
                                           : 0);
    }
}

TEST_F(KeyPage, anUnknownMouseButtonIsNoAction)
{
    edit([](tagQVTabletInfo& record) {
        record.Key.SubKey[0].Valid = kQVMouseButton;
        record.Key.SubKey[0].Mouse = 7;
    });
    show();
    EXPECT_EQ(box(0).currentIndex(), 0);
    EXPECT_EQ(box(0).committed(), 100);
}

TEST_F(KeyPage, anUnknownKindIsNoActionAndTheLastKnownIsTheLastItem)
{
    edit([](tagQVTabletInfo& record) {
        record.Key.SubKey[0].Valid = 9;
        record.Key.SubKey[1].Valid = kQVPauseTablet;
    });
    show();
    EXPECT_EQ(box(0).currentIndex(), 0);
    EXPECT_EQ(box(1).currentIndex(), 9);
}

TEST_F(KeyPage, theStoredCombinationIsItsItemsText)
{
    edit([](tagQVTabletInfo& record) {
        record.Key.SubKey[kQVLowerPenSlot].Valid = kQVKeyCombination;
        record.Key.SubKey[kQVLowerPenSlot].Key = 0x03063836;
    });
    show();
    EXPECT_EQ(box(17).currentIndex(), 6);
    EXPECT_EQ(box(17).currentText(), QStringLiteral("Ctrl  Shift  Z"));
}

TEST_F(KeyPage, theCombinationsTextDoesNotLookAtTheKind)
{
    qvTabletInfo.Key.SubKey[5].Valid = kQVNoAction;
    qvTabletInfo.Key.SubKey[5].Key = 0x0200000B;
    const tagQVTabletInfo before = qvTabletInfo;
    EXPECT_EQ(mPane.GetSubKeyString(5), QStringLiteral("B  A"));
    EXPECT_TRUE(sameBytes(qvTabletInfo, before));
}

TEST_F(KeyPage, aCodeThatFollowsNothingIsNoCombinationUnlessItsCountSaysSo)
{
    qvTabletInfo.Key.SubKey[5].Key = 0x00000600;
    EXPECT_EQ(mPane.GetSubKeyString(5), QString()) << "first byte and count are 0";
    qvTabletInfo.Key.SubKey[5].Key = 0x01060000;
    EXPECT_EQ(mPane.GetSubKeyString(5), QStringLiteral("A")) << "the second byte ends it";
}

TEST_F(KeyPage, everyCombinationIsShownWithoutHarm)
{
    show();
    std::mt19937 random(4711); // NOLINT(cert-msc51-cpp): the same values in every run
    tagQVTabletInfoSubKey& key = qvTabletInfo.Key.SubKey[2];
    key.Valid = kQVKeyCombination;
    for (int i = 0; i < 2000; ++i) {
        key.Key = static_cast<std::uint32_t>(random());
        mPane.InitSingleComboBoxWithKey(&box(2), 2);
        ASSERT_EQ(box(2).count(), 10);
        ASSERT_EQ(box(2).currentText(), mPane.GetSubKeyString(2));
    }
}

TEST_F(KeyPage, anApplicationWithoutAPathIsAnItemWithoutText)
{
    edit([](tagQVTabletInfo& record) {
        record.Key.SubKey[3].Valid = kQVApplication;
        record.Key.SubKey[3].App = {};
    });
    show();
    EXPECT_EQ(box(3).currentIndex(), QVKeyComboBox::Application);
    EXPECT_EQ(box(3).currentText(), QString());
}

TEST_F(KeyPage, aPathWithoutItsNulIsReadToTheFieldsEndOnly)
{
    show();
    tagQVTabletInfoSubKey& key = qvTabletInfo.Key.SubKey[2];
    key.Valid = kQVApplication;
    key.App.fill('x');
    qvTabletInfo.Key.SubKey[3].Valid = 0x7979;
    mPane.InitSingleComboBoxWithKey(&box(2), 2);
    EXPECT_EQ(box(2).currentText(), QString(256, u'x'));
    box(2).grab();
}

TEST_F(KeyPage, aPathOfAnyBytesIsShownWithoutHarm)
{
    show();
    tagQVTabletInfoSubKey& key = qvTabletInfo.Key.SubKey[2];
    key.Valid = kQVApplication;
    key.App.fill('\0');
    std::strcpy(key.App.data(), "/a\n\x01\x7f\x80\xBC");
    mPane.InitSingleComboBoxWithKey(&box(2), 2);
    EXPECT_EQ(box(2).currentText(), QStringLiteral("/a\n\u0001\u007f\uFFFD\uFFFD"));
    box(2).grab();
    box(2).showPopup();
    box(2).view()->grab();
    box(2).hidePopup();
}

TEST_F(KeyPage, theListOpensWithAllTenItems)
{
    show();
    box(0).showPopup();
    QAbstractItemView* const list = box(0).view();
    for (int i = 0; i < 10; ++i) {
        const QRect item = list->visualRect(box(0).model()->index(i, 0));
        EXPECT_TRUE(list->viewport()->rect().contains(item)) << i;
    }
    box(0).hidePopup();
}

// Choosing ----------------------------------------------------------------------------------------

TEST_F(KeyPage, everyPlainChoiceIsPushedAndNotCommitted)
{
    struct Choice {
        int item;
        std::int16_t valid;
        std::int16_t mouse;
    };
    show();
    constexpr std::int16_t kKept = kQVBackButton;
    for (const Choice& choice :
        std::vector<Choice>{{1, kQVMouseButton, kQVLeftButton}, {2, kQVMouseButton, kQVRightButton},
            {3, kQVMouseButton, kQVMiddleButton}, {4, kQVMouseButton, kQVBackButton},
            {0, kQVNoAction, kKept}, {7, kQVNextDisplay, kKept}, {8, kQVFinePositioning, kKept},
            {9, kQVPauseTablet, kKept}}) {
        const std::size_t before = pushes().size();
        choose(box(2), choice.item);
        ASSERT_EQ(pushes().size(), before + 1) << choice.item;
        EXPECT_EQ(+pushes().back().Key.SubKey[2].Valid, choice.valid) << choice.item;
        EXPECT_EQ(+pushes().back().Key.SubKey[2].Mouse, choice.mouse) << choice.item;
        EXPECT_EQ(box(2).committed(), 100) << choice.item;
    }
}

TEST_F(KeyPage, aChoiceChangesNothingButItsSlot)
{
    show();
    const tagQVTabletInfo before = qvTabletInfo;
    choose(box(16), 3);
    tagQVTabletInfo expected = before;
    expected.Key.SubKey[kQVUpperPenSlot].Valid = kQVMouseButton;
    expected.Key.SubKey[kQVUpperPenSlot].Mouse = kQVMiddleButton;
    EXPECT_TRUE(sameBytes(qvTabletInfo, expected));
}

TEST_F(KeyPage, theFourthItemIsMouseTwoAndIsShownAgain)
{
    show();
    choose(box(0), 4);
    EXPECT_EQ(+slot(0).Mouse, kQVBackButton);
    leave();
    show();
    EXPECT_EQ(box(0).currentIndex(), 4);
    EXPECT_EQ(box(0).committed(), 104);
}

TEST_F(KeyPage, codeThatChangesABoxChoosesNothing)
{
    show();
    box(0).setCurrentIndex(3);
    EXPECT_TRUE(pushes().empty());
    EXPECT_EQ(+slot(0).Valid, 100);
}

TEST_F(KeyPage, noItemOrAnUnknownOnePushesTheRecordAsItIs)
{
    show();
    const tagQVTabletInfo before = qvTabletInfo;
    box(0).setCurrentIndex(-1);
    mPane.SelectKey(&box(0));
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_TRUE(sameBytes(pushes().back(), before));
    box(0).addItem(QStringLiteral("an eleventh item"));
    box(0).setCurrentIndex(10);
    mPane.SelectKey(&box(0));
    ASSERT_EQ(pushes().size(), 2U);
    EXPECT_TRUE(sameBytes(pushes().back(), before));
}

TEST_F(KeyPage, anApplicationIsStoredShownAndPushedTwice)
{
    show();
    mPanel.path = QStringLiteral("/usr/share/applications/draw.desktop");
    choose(box(3), 5);
    EXPECT_EQ(mPanel.asked, 1);
    ASSERT_EQ(pushes().size(), 2U);
    for (const tagQVTabletInfo& record : pushes()) {
        EXPECT_EQ(+record.Key.SubKey[3].Valid, kQVApplication);
        EXPECT_STREQ(record.Key.SubKey[3].App.data(), "/usr/share/applications/draw.desktop");
    }
    EXPECT_EQ(box(3).currentIndex(), 5);
    EXPECT_EQ(box(3).currentText(), *mPanel.path);
}

TEST_F(KeyPage, anApplicationIsCommittedByTheNextShowingNotByTheChoice)
{
    edit([](tagQVTabletInfo& record) { record.Key.SubKey[3].Valid = kQVNextDisplay; });
    show();
    mPanel.path = QStringLiteral("/a.app");
    choose(box(3), 5);
    EXPECT_EQ(box(3).committed(), 107);
    leave();
    show();
    EXPECT_EQ(box(3).committed(), 105);
}

TEST_F(KeyPage, aCancelledChooserCommitsWhatTheRecordHas)
{
    edit([](tagQVTabletInfo& record) { record.Key.SubKey[3].Valid = kQVNextDisplay; });
    show();
    choose(box(3), 9); // not committed, but in the record
    EXPECT_EQ(box(3).committed(), 107);
    choose(box(3), 5);
    EXPECT_EQ(box(3).currentIndex(), 9);
    EXPECT_EQ(box(3).committed(), 109);
}

TEST_F(KeyPage, aDialogCancelledAfterAnApplicationGoesBackToTheCommittedItem)
{
    edit([](tagQVTabletInfo& record) { record.Key.SubKey[3].Valid = kQVFinePositioning; });
    show();
    mPanel.path = QStringLiteral("/a.app");
    choose(box(3), 5);
    const std::size_t before = pushes().size();
    chooseKeys(box(3), [](QVKeySetClass& dialog) { click(dialog, {"keyB", "cancelBtn"}); });
    EXPECT_EQ(box(3).currentIndex(), 8);
    EXPECT_EQ(box(3).itemText(5), QStringLiteral("/a.app"));
    EXPECT_EQ(+slot(3).Valid, kQVApplication) << "the record keeps the application";
    EXPECT_EQ(pushes().size(), before);
}

TEST_F(KeyPage, aCancelledChooserShowsTheRecordAgainAndStillPushes)
{
    edit([](tagQVTabletInfo& record) {
        record.Key.SubKey[3].Valid = kQVMouseButton;
        record.Key.SubKey[3].Mouse = kQVRightButton;
    });
    show();
    const tagQVTabletInfo before = qvTabletInfo;
    choose(box(3), 5);
    EXPECT_EQ(mPanel.asked, 1);
    EXPECT_EQ(box(3).currentIndex(), 2);
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_TRUE(sameBytes(pushes().back(), before));
}

TEST_F(KeyPage, aPathThatFitsIsStoredWhole)
{
    show();
    mPanel.path = u'/' + QString(254, u'x');
    choose(box(3), 5);
    EXPECT_EQ(QByteArray(slot(3).App.data()), mPanel.path->toLatin1());
}

TEST_F(KeyPage, aPathThatCannotBeStoredLeavesTheFieldEmptyAndItsNeighboursAlone)
{
    for (const QString& path : {u'/' + QString(255, u'x'), u'/' + QString(4095, u'x'),
             QStringLiteral("/opt/M\u00fcller/draw.desktop"), QStringLiteral("/opt/\u0080")}) {
        show();
        const tagQVTabletInfoSubKey next = slot(4);
        mPanel.path = path;
        choose(box(3), 5);
        EXPECT_EQ(+slot(3).Valid, kQVApplication);
        EXPECT_EQ(slot(3).App, QVString{}) << path.size();
        EXPECT_EQ(std::memcmp(&slot(4), &next, sizeof next), 0);
        leave();
    }
}

TEST_F(KeyPage, tellsTheChooserWhichPathsItCannotStore)
{
    show();
    choose(box(3), 5);
    const auto fault = mPanel.refusal;
    EXPECT_EQ(fault(u'/' + QString(254, u'x')), QString());
    EXPECT_EQ(fault(u'/' + QString(255, u'x')),
        QStringLiteral("The path is longer than 255 characters."));
    for (const QString& path : {QStringLiteral("/opt/M\u00fcller/draw.desktop"),
             QStringLiteral("/a\nb.desktop"), QStringLiteral("/a\u007f")}) {
        EXPECT_EQ(fault(path),
            QStringLiteral("The path contains characters that the tablet's settings cannot hold."))
            << qPrintable(path);
    }
}

TEST_F(KeyPage, showsAnApplicationsNameAndIconBesideItsPath)
{
    const QString path = mHome.path() + QStringLiteral("/draw.desktop");
    QImage blue(16, 16, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    ASSERT_TRUE(blue.save(mHome.path() + QStringLiteral("/draw.png")));
    writeFile(path,
        "[Desktop Entry]\nType=Application\nName=Draw & Paint\nExec=true\nIcon="
            + QFile::encodeName(mHome.path()) + "/draw.png\n");
    show();
    const QString own = box(3).accessibleDescription();
    mPanel.path = path;
    choose(box(3), 5);
    EXPECT_EQ(box(3).currentText(), path);
    EXPECT_EQ(box(3).accessibleDescription(), QStringLiteral("Draw & Paint"));
    EXPECT_TRUE(box(3)
                    .itemData(5, Qt::ToolTipRole)
                    .toString()
                    .contains(QStringLiteral("Draw &amp; Paint")));
    EXPECT_FALSE(box(3).itemIcon(5).isNull());
    choose(box(3), 0);
    EXPECT_EQ(box(3).accessibleDescription(), own);
    choose(box(3), 5);
    leave();
    show();
    EXPECT_EQ(box(3).accessibleDescription(), QStringLiteral("Draw & Paint"));
}

TEST_F(KeyPage, readsAnApplicationOnceForAllShowings)
{
    const QString path = mHome.path() + QStringLiteral("/draw.desktop");
    writeFile(path, "[Desktop Entry]\nType=Application\nName=Draw\nExec=true\n");
    show();
    mPanel.path = path;
    choose(box(3), 5);
    leave();
    ASSERT_TRUE(QFile::remove(path));
    show();
    EXPECT_EQ(box(3).currentText(), path);
    EXPECT_EQ(box(3).accessibleDescription(), QStringLiteral("Draw"));
    choose(box(3), 0);
    qvTabletInfo.Key.SubKey[3].Valid = kQVApplication;
    mPane.InitSingleComboBoxWithKey(&box(3), 3);
    EXPECT_EQ(box(3).currentIndex(), 5);
}

TEST_F(KeyPage, aShorterPathLeavesNothingOfALongerOne)
{
    show();
    mPanel.path = QStringLiteral("/usr/share/applications/draw.desktop");
    choose(box(3), 5);
    mPanel.path = QStringLiteral("/a.app");
    choose(box(3), 5);
    QVString expected{};
    std::strcpy(expected.data(), "/a.app");
    EXPECT_EQ(slot(3).App, expected);
}

// Key combinations --------------------------------------------------------------------------------

TEST_F(KeyPage, aCombinationIsStoredShownCommittedAndPushedOnce)
{
    show();
    chooseKeys(box(2), [](QVKeySetClass& dialog) {
        click(dialog, {"keyCtrl", "keyShift", "keyZ", "okBtn"});
    });
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_EQ(+pushes().back().Key.SubKey[2].Valid, kQVKeyCombination);
    EXPECT_EQ(+pushes().back().Key.SubKey[2].Key, 0x03063836U);
    EXPECT_EQ(box(2).currentIndex(), 6);
    EXPECT_EQ(box(2).currentText(), QStringLiteral("Ctrl  Shift  Z"));
    EXPECT_EQ(box(2).committed(), 106);
}

TEST_F(KeyPage, aCancelledDialogChangesNothingAndPushesNothing)
{
    for (const auto& [valid, item] : {std::pair(kQVNextDisplay, 7), {kQVFinePositioning, 8}}) {
        edit([number = valid](tagQVTabletInfo& record) { record.Key.SubKey[2].Valid = number; });
        show();
        const tagQVTabletInfo before = qvTabletInfo;
        chooseKeys(box(2), [](QVKeySetClass& dialog) { click(dialog, {"keyZ", "cancelBtn"}); });
        EXPECT_TRUE(pushes().empty());
        EXPECT_TRUE(sameBytes(qvTabletInfo, before));
        EXPECT_EQ(box(2).currentIndex(), item);
        leave();
    }
}

TEST_F(KeyPage, okWithoutAKeyIsLikeCancel)
{
    show();
    const tagQVTabletInfo before = qvTabletInfo;
    chooseKeys(box(2), [](QVKeySetClass& dialog) { dialog.SaveKeyData(); });
    EXPECT_TRUE(pushes().empty());
    EXPECT_TRUE(sameBytes(qvTabletInfo, before));
    EXPECT_EQ(box(2).currentIndex(), 0);
}

TEST_F(KeyPage, aHostThatClosesThePanelUnderTheDialogDoesNoHarm)
{
    show();
    // The window is destroyed; the pane stays, as in a host that shows it in another window later.
    chooseKeys(box(2), [this](QVKeySetClass& dialog) {
        dialog.close();
        QTimer::singleShot(0, qApp, [this] { mWindow.reset(); });
    });
    QCoreApplication::processEvents();
    EXPECT_TRUE(pushes().empty());
}

TEST_F(KeyPage, cancellingOverAStoredCombinationKeepsItShown)
{
    edit([](tagQVTabletInfo& record) {
        record.Key.SubKey[2].Valid = kQVKeyCombination;
        record.Key.SubKey[2].Key = 0x01000006;
    });
    show();
    chooseKeys(box(2), [](QVKeySetClass& dialog) { dialog.reject(); });
    EXPECT_EQ(box(2).currentIndex(), 6);
    EXPECT_EQ(box(2).currentText(), QStringLiteral("Z"));
}

TEST_F(KeyPage, cancellingGoesBackToTheCommittedItemNotToTheChoiceInBetween)
{
    edit([](tagQVTabletInfo& record) { record.Key.SubKey[2].Valid = kQVNextDisplay; });
    show();
    choose(box(2), 9);
    chooseKeys(box(2), [](QVKeySetClass& dialog) { dialog.reject(); });
    EXPECT_EQ(box(2).currentIndex(), 7);
    EXPECT_EQ(+slot(2).Valid, kQVPauseTablet) << "the record keeps the choice in between";
}

TEST_F(KeyPage, aDriverThatDiesWhileTheDialogIsOpenLosesNothing)
{
    show();
    chooseKeys(box(2), [this](QVKeySetClass& dialog) {
        mEvents.sendResult = platform::procNotFound;
        click(dialog, {"keyB", "okBtn"});
    });
    EXPECT_EQ(+slot(2).Key, 0x0100000BU);
    EXPECT_EQ(box(2).committed(), 106);
    leave();
    EXPECT_EQ(+recordInFile().Key.SubKey[2].Key, 0x0100000BU);
}

TEST_F(KeyPage, theOneDialogServesEveryBox)
{
    show();
    chooseKeys(box(2), [](QVKeySetClass& dialog) { click(dialog, {"keyB", "okBtn"}); });
    chooseKeys(box(17), [](QVKeySetClass& dialog) { click(dialog, {"keyC", "okBtn"}); });
    EXPECT_EQ(+slot(2).Key, 0x0100000BU);
    EXPECT_EQ(+slot(17).Key, 0x01000008U);
    EXPECT_EQ(box(2).currentText(), QStringLiteral("B"));
}

TEST_F(KeyPage, theOrOfCountsIsShownAsStoredAtTheNextShowing)
{
    show();
    chooseKeys(box(2), [](QVKeySetClass& dialog) {
        click(dialog, {"keyX", "keyY", "delBtn", "keyZ", "okBtn"});
    });
    EXPECT_EQ(box(2).currentText(), QStringLiteral("X  Z"));
    leave();
    show();
    EXPECT_EQ(box(2).currentText(), QStringLiteral("X  Z  A"));
}

// Slider, cancel ----------------------------------------------------------------------------------

TEST_F(KeyPage, theSlidersValueIsPushedAtOnce)
{
    showProduct(kProductG);
    auto& slider = outlet<QSlider>("mScrollSpeed");
    slider.setValue(4);
    QTest::keyClick(&slider, Qt::Key_Right);
    ASSERT_EQ(pushes().size(), 2U);
    EXPECT_EQ(+pushes().front().Key.ScrollSpeed, 4);
    EXPECT_EQ(+pushes().back().Key.ScrollSpeed, 5);
}

TEST_F(KeyPage, theSlidersEndIsChosenForAValueBeyondItWithKeyboardAndMouse)
{
    auto& slider = outlet<QSlider>("mScrollSpeed");
    const auto expectChosen = [&](const std::function<void()>& act) {
        edit([](tagQVTabletInfo& record) {
            record.Basic.ProductID = kProductG;
            record.Key.ScrollSpeed = 28;
        });
        show();
        ASSERT_EQ(slider.value(), 10);
        mEvents.sent.clear();
        act();
        EXPECT_EQ(slider.value(), 10);
        EXPECT_EQ(+qvTabletInfo.Key.ScrollSpeed, 10);
        ASSERT_EQ(pushes().size(), 1U);
        EXPECT_EQ(+pushes().back().Key.ScrollSpeed, 10);
        leave();
    };
    expectChosen([&] { QTest::keyClick(&slider, Qt::Key_End); });
    expectChosen([&] {
        const QPoint end(slider.width() - 2, slider.height() / 3);
        QTest::mouseClick(&slider, Qt::LeftButton, {}, end);
    });
}

TEST_F(KeyPage, theSlidersFirstValueCanBeChosenWhereTheLayoutDoesNotShowTheRecords)
{
    edit([](tagQVTabletInfo& record) {
        record.Basic.ProductID = static_cast<std::int16_t>(kProductA);
        record.Key.ScrollSpeed = 5;
    });
    show();
    auto& slider = outlet<QSlider>("mScrollSpeed");
    ASSERT_EQ(slider.value(), 1);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(+qvTabletInfo.Key.ScrollSpeed, 1);
    EXPECT_EQ(pushes().size(), 1U);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(pushes().size(), 1U) << "it is 1 already";
}

TEST_F(KeyPage, servesAMainViewThatIsMadeAnew)
{
    showProduct(kProductC);
    leave();
    mWindow.reset();
    mWindow.reset(mPane.loadMainView());
    mFirst = frame("mKey1_1");
    showProduct(kProductC);
    EXPECT_EQ(frame("mKey1_1"), (Rect{mFirst.x + 5, mFirst.y - 65, mFirst.width, mFirst.height}));
    leave();
    showProduct(kProductA); // restores the interface file's state
    EXPECT_EQ(frame("mKey1_1"), mFirst);
    mEvents.sent.clear();
    chooseKeys(box(2), [](QVKeySetClass& dialog) { click(dialog, {"keyB", "okBtn"}); });
    EXPECT_EQ(+slot(2).Key, 0x0100000BU);
    EXPECT_EQ(pushes().size(), 1U);
}

TEST_F(KeyPage, cancelPushesTheFileWhileTheBoxesKeepTheChoices)
{
    edit([](tagQVTabletInfo& record) { record.Key.SubKey[0].Valid = kQVNextDisplay; });
    show();
    choose(box(0), 9);
    mPane.CancelSet();
    EXPECT_EQ(+pushes().back().Key.SubKey[0].Valid, kQVNextDisplay);
    EXPECT_EQ(box(0).currentIndex(), 9);
    leave();
    show();
    EXPECT_EQ(box(0).currentIndex(), 7);
}

// Languages ---------------------------------------------------------------------------------------

class GermanKeyPage : public KeyPage {
protected:
    GermanKeyPage()
        : KeyPage(QLocale::German)
    {
    }
};

TEST_F(KeyPage, isEnglishWhereThereIsNoTranslation)
{
    EXPECT_EQ(box(0).itemText(1), QStringLiteral("Left mouse button"));
}

TEST_F(GermanKeyPage, hasItsTextsTranslated)
{
    EXPECT_EQ(box(0).itemText(1), QStringLiteral("Linke Maustaste"));
    EXPECT_EQ(outlet<QCheckBox>("mKeyLScroll").text(), QStringLiteral("&Linker Rollstreifen"));
}

TEST_F(KeyPage, noTextIsCutOff)
{
    showProduct(kProductG);
    expectTextsFit();
}

TEST_F(GermanKeyPage, noTextIsCutOff)
{
    showProduct(kProductG);
    expectTextsFit();
}
