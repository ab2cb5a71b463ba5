// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The panel in each of its languages: every text has enough room, its glyphs and a unique mnemonic.
// Also in a right-to-left language.

#include "Accessible.h"
#include "ApplicationChooser.h"
#include "ApplicationsDialog.h"
#include "Geometry.h"
#include "ImportDialog.h"
#include "NotedPane.h"
#include "PaneShell.h"
#include "PaneTest.h"
#include "ProfileBar.h"
#include "ProfileNameDialog.h"
#include "QVKeyComboBox.h"
#include "QVKeySetClass.h"
#include "QVPressFit.h"
#include "QVSelfCheck.h"
#include "QVTabletModels.h"
#include "SelfCheckDialog.h"
#include "TabPage.h"
#include "rzkBundle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTabWidget>
#include <QTextLayout>
#include <QToolButton>

#include <cmath>
#include <functional>

namespace {

constexpr int kUsualText = 13; ///< pixels: ten points at 96 dots to the inch
constexpr int kLargeText = 16; ///< a quarter more
constexpr double kHintRoom = 1000; ///< the calibration's hint begins 500 before the middle

/** The text as drawn, without mnemonic marks. */
QString drawn(const QString& text)
{
    static const QRegularExpression kMark(QStringLiteral("&(.)"));
    return QString(text).replace(kMark, QStringLiteral("\\1"));
}

/** Sets the user's language and text size, in pixels, for widgets created from here on. */
class UserSettings {
public:
    UserSettings(const QString& language, int textSize)
    {
        QLocale::setDefault(QLocale(language));
        QFont font = QApplication::font();
        font.setPixelSize(textSize);
        QApplication::setFont(font);
    }
    ~UserSettings()
    {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QLocale::setDefault(QLocale::c());
    }
    UserSettings(const UserSettings&) = delete;
    UserSettings& operator=(const UserSettings&) = delete;
};

/** The panel in a language, in a scroll area as in its own window. */
class LanguagePane : private UserSettings, public PaneTest {
protected:
    explicit LanguagePane(const QString& language, int textSize = kUsualText)
        : UserSettings(language, textSize)
    {
    }
    ~LanguagePane() override { static_cast<void>(mWindow.release()); } // the area owns it

    void SetUp() override
    {
        PaneTest::SetUp();
        mInterfaceFile = mWindow->size();
        mArea.setFrameShape(QFrame::NoFrame);
        mArea.setWidgetResizable(true);
        mArea.setWidget(mWindow.get());
    }

    void show()
    {
        mPane.willSelect();
        mArea.resize(mInterfaceFile.expandedTo(mWindow->sizeHint()));
        mArea.show();
        mPane.didSelect();
        settle();
    }
    void showWithoutTablet()
    {
        mEvents.answer(0);
        show();
    }
    static void settle()
    {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }
    void setProduct(std::uint16_t productID)
    {
        QString config = QString::fromUtf8(readFile(mHome.configFile(7)));
        static const QRegularExpression kProduct(
            QStringLiteral("(<key>ProductID</key>\\s*<integer>)[^<]*"));
        config.replace(kProduct, QStringLiteral("\\1%1").arg(static_cast<std::int16_t>(productID)));
        writeFile(mHome.configFile(7), config.toUtf8());
    }
    static void post(QLatin1String name) { platform::notifications().post({name, nullptr, {}}); }

    /** Calls the function on every page, at the view's usual size and at smaller ones. */
    void atEveryPage(const std::function<void()>& look)
    {
        for (const QSize size : {mArea.size(), mInterfaceFile, QSize(200, 200)}) {
            mArea.resize(size);
            QTabWidget& tabs = *mWindow->findChild<QTabWidget*>();
            for (int page = 0; page < tabs.count(); ++page) {
                tabs.setCurrentIndex(page);
                settle();
                const testing::ScopedTrace trace(__FILE__, __LINE__,
                    tabs.widget(page)->objectName().toStdString() + " of "
                        + std::to_string(mWindow->width()) + " x "
                        + std::to_string(mWindow->height()));
                look();
            }
        }
    }

    /** The window for combinations, which is made when it is first asked for. */
    QVKeySetClass& keyDialog()
    {
        if (mKeyDialog == nullptr) {
            mKeyDialog = new QVKeySetClass(mWindow->window());
        }
        return *mKeyDialog;
    }

    QSize mInterfaceFile; ///< the main view's size in the interface file
    QScrollArea mArea;
    QVKeySetClass* mKeyDialog = nullptr; ///< owned by the main view's window
};

// What is shown -----------------------------------------------------------------------------------

template <class Widget>
std::vector<Widget*> visible(const QWidget& window)
{
    std::vector<Widget*> widgets;
    const auto all = window.findChildren<Widget*>();
    for (Widget* const widget : all) {
        if (widget->isVisible() && widget->window() == window.window()) {
            widgets.push_back(widget);
        }
    }
    return widgets;
}

/** All texts on screen, with mnemonic marks, including every item of lists. */
QStringList textsOf(const QWidget& window)
{
    QStringList texts;
    for (const auto* const label : visible<QLabel>(window)) {
        texts.append(label->text());
    }
    for (const auto* const button : visible<QAbstractButton>(window)) {
        texts.append(button->text());
    }
    for (const auto* const group : visible<QGroupBox>(window)) {
        texts.append(group->title());
    }
    for (const auto* const edit : visible<QLineEdit>(window)) {
        texts.append(edit->text().isEmpty() ? edit->placeholderText() : edit->text());
    }
    for (const auto* const list : visible<QComboBox>(window)) {
        for (int item = 0; item < list->count(); ++item) {
            texts.append(list->itemText(item));
        }
    }
    for (const auto* const tabs : visible<QTabBar>(window)) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            texts.append(tabs->tabText(tab));
        }
    }
    texts.removeAll(QString());
    return texts;
}

// Whether it fits ---------------------------------------------------------------------------------

/** Fails with the text if it needs more room than it has. */
void expectRoom(const QWidget& widget, const QString& text, QSize needed, QSize room)
{
    EXPECT_LE(needed.width(), room.width())
        << qPrintable(widget.objectName()) << ": " << qPrintable(text);
    EXPECT_LE(needed.height(), room.height())
        << qPrintable(widget.objectName()) << ": " << qPrintable(text);
}

/** Size of one line; the height covers all fonts that it uses. */
QSize sizeOf(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text);
}

void expectFits(const QLabel& label)
{
    if (!label.wordWrap()) {
        expectRoom(label, label.text(), label.sizeHint(), label.size());
        return;
    }
    const QRect room(0, 0, label.contentsRect().width(), label.contentsRect().height());
    const QRect needed = label.fontMetrics().boundingRect(
        QRect(0, 0, room.width(), QWIDGETSIZE_MAX), Qt::TextWordWrap, label.text());
    expectRoom(label, label.text(), needed.size(), room.size());
}

void expectFits(const QComboBox& list)
{
    QStyleOptionComboBox option;
    option.initFrom(&list);
    option.frame = list.hasFrame();
    const QRect field = list.style()->subControlRect(
        QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list);
    constexpr int kMargins = 4;
    for (int item = 0; item < list.count(); ++item) {
        // The field is as high as the usual font; for other fonts, the ink counts, not the line
        // height.
        const QString text = list.itemText(item);
        expectRoom(list, text,
            {sizeOf(list, text).width() + kMargins,
                list.fontMetrics().tightBoundingRect(text).height()},
            field.size());
    }
}

void expectFits(const QTabBar& tabs)
{
    EXPECT_LE(tabs.sizeHint().width(), tabs.width());
    for (int tab = 0; tab < tabs.count(); ++tab) {
        constexpr int kPadding = 8;
        expectRoom(tabs, tabs.tabText(tab),
            sizeOf(tabs, tabs.tabText(tab)) + QSize(2 * kPadding, 0), tabs.tabRect(tab).size());
    }
}

void expectInside(const QWidget& widget)
{
    const QWidget& parent = *widget.parentWidget();
    EXPECT_TRUE(parent.rect().contains(widget.geometry())) << qPrintable(widget.objectName());
}

void expectAllFits(const QWidget& window)
{
    int count = 0;
    for (const auto* const label : visible<QLabel>(window)) {
        expectFits(*label);
        expectInside(*label);
        ++count;
    }
    for (const auto* const button : visible<QAbstractButton>(window)) {
        expectRoom(*button, button->text(),
            {button->sizeHint().width(), sizeOf(*button, button->text()).height()}, button->size());
        expectInside(*button);
        ++count;
    }
    for (const auto* const group : visible<QGroupBox>(window)) {
        constexpr int kFrame = 16;
        expectRoom(*group, group->title(), sizeOf(*group, group->title()) + QSize(kFrame, 0),
            group->size());
        ++count;
    }
    for (const auto* const edit : visible<QLineEdit>(window)) {
        constexpr int kFrame = 12;
        expectRoom(*edit, edit->placeholderText(),
            sizeOf(*edit, edit->placeholderText()) + QSize(kFrame, 0), edit->size());
        ++count;
    }
    for (const auto* const list : visible<QComboBox>(window)) {
        expectFits(*list);
        expectInside(*list);
        ++count;
    }
    for (const auto* const tabs : visible<QTabBar>(window)) {
        expectFits(*tabs);
        ++count;
    }
    EXPECT_GT(count, 1);
}

/** Expects a glyph for every character. */
void expectGlyphs(const QString& text)
{
    QTextLayout layout(drawn(text), QApplication::font());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    EXPECT_FALSE(runs.isEmpty()) << qPrintable(text);
    for (const QGlyphRun& run : runs) {
        EXPECT_FALSE(run.glyphIndexes().contains(0))
            << qPrintable(text) << " in " << qPrintable(run.rawFont().familyName());
    }
}

void expectGlyphs(const QStringList& texts)
{
    for (const QString& text : texts) {
        expectGlyphs(text);
    }
}

// The keyboard's letters --------------------------------------------------------------------------

/** The mnemonic of a text; empty without one. */
QString mnemonicOf(const QString& text)
{
    static const QRegularExpression kMark(QStringLiteral("(?<!&)&([^&])"));
    return kMark.match(text).captured(1).toUpper();
}

void expectMnemonicsDiffer(const QStringList& texts, int least)
{
    QHash<QString, QString> texts_of;
    for (const QString& text : texts) {
        const QString letter = mnemonicOf(text);
        if (letter.isEmpty()) {
            continue;
        }
        EXPECT_FALSE(texts_of.contains(letter)) << qPrintable(letter) << ": " << qPrintable(text)
                                                << ", " << qPrintable(texts_of.value(letter));
        texts_of.insert(letter, text);
    }
    EXPECT_GE(texts_of.size(), least);
}

// The languages -----------------------------------------------------------------------------------

const std::string kLanguages[] = {"en", "de", "es", "fr", "ja", "zh_CN"};
constexpr int kTextSizes[] = {kUsualText, kLargeText};

class Language : public LanguagePane,
                 public testing::WithParamInterface<std::tuple<std::string, int>> {
protected:
    Language()
        : LanguagePane(QString::fromStdString(std::get<0>(GetParam())), std::get<1>(GetParam()))
    {
    }
};

std::string nameOf(const testing::TestParamInfo<Language::ParamType>& info)
{
    return std::get<0>(info.param) + (std::get<1>(info.param) == kUsualText ? "" : "_large");
}

INSTANTIATE_TEST_SUITE_P(Every, Language,
    testing::Combine(testing::ValuesIn(kLanguages), testing::ValuesIn(kTextSizes)), nameOf);

} // namespace

TEST_P(Language, hasRoomForAllItsTexts)
{
    show();
    atEveryPage([this] { expectAllFits(*mWindow); });
}

TEST_P(Language, needsNoMoreRoomThanTheInterfaceFileHas)
{
    show();
    auto& tabs = outlet<QTabWidget>("tabView");
    for (int page = 0; page < tabs.count() && std::get<1>(GetParam()) == kUsualText; ++page) {
        tabs.setCurrentIndex(page);
        settle();
        const QSize least = mWindow->minimumSizeHint();
        EXPECT_LE(least.width(), mInterfaceFile.width()) << page;
        EXPECT_LE(least.height(), mInterfaceFile.height()) << page;
    }
}

TEST_P(Language, showsEachPageInTheRoomThatSystemSettingsLeaves)
{
    if (std::get<1>(GetParam()) != kUsualText) {
        return;
    }
    mPane.setButtonsShown(false);
    show();
    PaneLife life;
    life.hasProfiles = true;
    const PaneShell shell(std::make_unique<NotedPane>(life), PaneShell::Host::SettingsApplication);
    const auto hiddenBy = [](const QScrollArea& area) {
        return std::pair(
            area.horizontalScrollBar()->maximum(), area.verticalScrollBar()->maximum());
    };
    // Of a window of 930 by 650, below the profiles.
    mArea.resize(659, 562 - shell.topHeight());
    auto& tabs = outlet<QTabWidget>("tabView");
    for (int page = 0; page < tabs.count(); ++page) {
        tabs.setCurrentIndex(page);
        settle();
        EXPECT_EQ(hiddenBy(mArea), std::pair(0, 0)) << page;
    }
    tabs.setCurrentWidget(&outlet<QWidget>("displayPage"));
    settle();
    // The picture, which is blank there, gives what the profiles take.
    const auto& picture = outlet<QScrollArea>("mMonitorScroll");
    constexpr int kBlank = 20;
    EXPECT_EQ(hiddenBy(picture).first, 0);
    EXPECT_LE(hiddenBy(picture).second, kBlank);
    // With less room, only the picture scrolls.
    mArea.resize(659, 440);
    settle();
    EXPECT_EQ(hiddenBy(mArea), std::pair(0, 0));
    EXPECT_GT(hiddenBy(picture).second, 0);
}

TEST_P(Language, needsNoMoreRoomOnAPageThanThatAsksForWhileItIsHidden)
{
    show();
    const QSize room = platform::TabPage::kRoom * platform::pixelsPerPoint(mWindow->font());
    auto& tabs = outlet<QTabWidget>("tabView");
    for (int page = 0; page < tabs.count(); ++page) {
        tabs.setCurrentIndex(page);
        settle();
        const QSize least = tabs.widget(page)->minimumSizeHint();
        EXPECT_LE(least.width(), room.width()) << page;
        EXPECT_LE(least.height(), room.height()) << page;
    }
}

TEST_P(Language, hasRoomForItsTextsInTheLayoutOfEveryModel)
{
    for (const QVTabletModel& model : kQVTabletModels) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, model.name);
        setProduct(model.productID);
        show();
        expectAllFits(*mWindow);
        mPane.willUnselect();
        mPane.didUnselect();
    }
}

TEST_P(Language, hasRoomForWhatGoesWrong)
{
    using News = platform::PreferencePane::News;
    show();
    auto& tabs = outlet<QTabWidget>("tabView");
    for (const PaneShell::Host host :
        {PaneShell::Host::Window, PaneShell::Host::SettingsApplication}) {
        PaneLife life;
        life.hasProfiles = true;
        auto pane = std::make_unique<NotedPane>(life);
        NotedPane& noted = *pane;
        PaneShell shell(std::move(pane), host);
        shell.willSelect();
        shell.resize(mInterfaceFile);
        shell.show();
        QStringList texts;
        for (const News news : {News::ChangeNotTaken, News::NotLoaded, News::NotSaved}) {
            noted.tell(news, mHome.configFile(7));
            settle();
            expectAllFits(shell);
            expectGlyphs(textsOf(shell));
            texts.append(shell.findChild<platform::NoticeLabel*>()->text());
            // Together with the mnemonics around each page.
            for (int page = 0; page < tabs.count(); ++page) {
                tabs.setCurrentIndex(page);
                expectMnemonicsDiffer(textsOf(*mWindow) + textsOf(shell), 4);
            }
        }
        texts.removeDuplicates();
        EXPECT_EQ(texts.size(), 3);
    }
}

TEST_P(Language, hasRoomInTheChooserOfApplications)
{
    show();
    platform::ApplicationChooser chooser(
        nullptr, [](const QString& /*path*/) { return QString(); }, {});
    chooser.show();
    settle();
    expectAllFits(chooser);
    expectGlyphs(textsOf(chooser));
    expectMnemonicsDiffer(textsOf(chooser), 3);
}

TEST_P(Language, hasRoomInTheDialogThatFitsThePressure)
{
    show();
    QVPressFit dialog(100, nullptr);
    dialog.show();
    settle();
    expectAllFits(dialog);
    expectGlyphs(textsOf(dialog));
    expectMnemonicsDiffer(textsOf(dialog), 3);
}

TEST_P(Language, hasRoomForTheProfiles)
{
    show();
    PaneLife life;
    life.hasProfiles = true;
    PaneShell shell(std::make_unique<NotedPane>(life), PaneShell::Host::Window);
    shell.willSelect();
    shell.show();
    shell.resize(shell.minimumSizeHint());
    settle();
    auto& bar = *shell.findChild<ProfileBar*>();
    expectAllFits(bar);
    expectGlyphs(textsOf(bar));
    EXPECT_LE(bar.width(), mInterfaceFile.width());
    QStringList items;
    const auto actions = bar.findChild<QToolButton*>()->menu()->actions();
    for (const QAction* const action : actions) {
        items.append(action->text());
    }
    expectMnemonicsDiffer(items, 7);
    items.removeAll(QString());
    expectGlyphs(items);
}

TEST_P(Language, hasRoomInTheDialogsOfProfiles)
{
    show();
    PaneLife life;
    life.hasProfiles = true;
    life.profiles = {{QStringLiteral("A"), {}}};
    life.profile = QStringLiteral("A");
    PaneShell shell(std::make_unique<NotedPane>(life), PaneShell::Host::Window);
    shell.willSelect();
    shell.show();
    settle();
    auto& bar = *shell.findChild<ProfileBar*>();
    const auto lookAtDialog = [](int letters) {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        settle();
        expectAllFits(*dialog);
        expectGlyphs(textsOf(*dialog));
        expectMnemonicsDiffer(textsOf(*dialog), letters);
    };
    const auto close = [] {
        while (QWidget* const dialog = QApplication::activeModalWidget()) {
            dialog->close();
        }
    };
    bar.findChild<QPushButton*>()->click();
    lookAtDialog(3);
    Q_EMIT qobject_cast<ProfileNameDialog*>(QApplication::activeModalWidget())
        ->chosen(QStringLiteral("A"));
    lookAtDialog(2); // the question whether to replace it
    close();
    const auto actions = bar.findChild<QToolButton*>()->menu()->actions();
    for (const auto& [item, letters] :
        {std::pair(0, 3), std::pair(1, 3), std::pair(2, 2), std::pair(3, 4)}) {
        actions[item]->trigger();
        lookAtDialog(letters);
        close();
    }
}

TEST_P(Language, hasRoomForAnImport)
{
    show();
    platform::PaneProfiles::Import import;
    import.name = QString(64, u'W');
    import.changes = QStringList{QStringLiteral("A")};
    import.leftOut = import.changes;
    import.applications = import.changes;
    import.starts = {{ QStringLiteral("1"), QStringLiteral("/usr/bin/true") }};
    ImportDialog dialog(import, nullptr);
    dialog.show();
    settle();
    expectAllFits(dialog);
    expectMnemonicsDiffer(textsOf(dialog), 2);
    const auto& list = *dialog.findChild<QListWidget*>();
    for (int row = 0; row < list.count(); ++row) {
        expectGlyphs(list.item(row)->text());
        EXPECT_LE(list.visualItemRect(list.item(row)).width(), list.viewport()->width());
    }
    expectGlyphs(dialog.findChild<QCheckBox*>()->text());
}

TEST_P(Language, hasRoomForTheTextsWithoutATablet)
{
    showWithoutTablet();
    EXPECT_TRUE(outlet<QLabel>("NoDevTitle").isVisible());
    EXPECT_TRUE(outlet<QLabel>("NoDevHelp").isVisible());
    expectAllFits(*mWindow);
}

TEST_P(Language, hasRoomForTheSelfCheck)
{
    show();
    PaneLife life;
    NotedPane pane(life);
    SelfCheckDialog dialog(pane, nullptr);
    dialog.show();
    const QVSelfCheckFacts everythingIsWrong;
    pane.checkDone(QVSelfCheckResult(everythingIsWrong));
    settle();
    expectAllFits(dialog);
    expectMnemonicsDiffer(textsOf(dialog), 2);
    const auto& list = *dialog.findChild<QListWidget*>();
    EXPECT_GT(list.count(), 5);
    for (int row = 0; row < list.count(); ++row) {
        expectGlyphs(list.item(row)->text().remove(u'\n'));
        EXPECT_LE(list.visualItemRect(list.item(row)).width(), list.viewport()->width());
    }
}

TEST_P(Language, hasRoomForTheButtonWithoutATablet)
{
    show();
    PaneLife life;
    life.hasDevice = false;
    PaneShell shell(std::make_unique<NotedPane>(life), PaneShell::Host::Window);
    shell.willSelect();
    shell.show();
    settle();
    expectGlyphs(textsOf(shell));
    expectMnemonicsDiffer(textsOf(shell), 1);
    for (const auto* const button : visible<QAbstractButton>(shell)) {
        expectRoom(*button, button->text(), button->sizeHint(), button->size());
    }
}

TEST_P(Language, hasRoomForTheTextsOfTheKeyDialog)
{
    show();
    QVKeySetClass& dialog = keyDialog();
    dialog.showWindow();
    settle();
    expectAllFits(dialog);
    dialog.resize(dialog.minimumSizeHint());
    settle();
    expectAllFits(dialog);
}

TEST_P(Language, hasRoomForTheCalibrationsHint)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setBold(true);
    font.setPixelSize(40);
    const QString hint =
        rzkBundle.localizedString(QStringLiteral("Esc"), QString(), QStringLiteral("InfoPlist"));
    EXPECT_LE(QFontMetricsF(font).horizontalAdvance(hint), kHintRoom) << qPrintable(hint);
    expectGlyphs(hint);
}

TEST_P(Language, hasAGlyphForEveryCharacter)
{
    show();
    atEveryPage([this] { expectGlyphs(textsOf(*mWindow)); });
    keyDialog().showWindow();
    expectGlyphs(textsOf(keyDialog()));
    keyDialog().hide();
    mPane.willUnselect();
    showWithoutTablet();
    expectGlyphs(textsOf(*mWindow));
}

TEST_P(Language, reachesNoTwoControlsOfAPageWithTheSameLetter)
{
    show();
    constexpr int kTabs = 3;
    constexpr int kButtons = 4; // with those of the profiles
    PaneLife life;
    life.hasProfiles = true;
    PaneShell shell(std::make_unique<NotedPane>(life), PaneShell::Host::Window);
    shell.willSelect();
    shell.show();
    atEveryPage(
        [&] { expectMnemonicsDiffer(textsOf(*mWindow) + textsOf(shell), kTabs + kButtons + 4); });
    keyDialog().showWindow();
    expectMnemonicsDiffer(textsOf(keyDialog()), 3);
}

namespace {

/** A language in which untranslated texts stand out. */
class LanguageWithLettersOfItsOwn : public LanguagePane,
                                    public testing::WithParamInterface<std::string> {
protected:
    LanguageWithLettersOfItsOwn()
        : LanguagePane(QString::fromStdString(GetParam()))
    {
    }
};

INSTANTIATE_TEST_SUITE_P(Every, LanguageWithLettersOfItsOwn, testing::Values("ja", "zh_CN"));

} // namespace

TEST_P(LanguageWithLettersOfItsOwn, leavesNoTextInEnglish)
{
    static const QRegularExpression kLatinWord(QStringLiteral("[A-Za-z]{3}"));
    static const QRegularExpression kOwn(
        QStringLiteral("[\\x{3040}-\\x{30ff}\\x{4e00}-\\x{9fff}]"));
    int count = 0;
    const auto look = [&](const QStringList& texts) {
        for (const QString& text : texts) {
            const bool isTranslated = text.contains(kOwn);
            EXPECT_TRUE(isTranslated || !text.contains(kLatinWord)) << qPrintable(text);
            count += isTranslated ? 1 : 0;
        }
    };
    show();
    outlet<QLabel>("mSoft").clear(); // a model's name is the same in every language
    atEveryPage([&] { look(textsOf(*mWindow)); });
    look({mWindow->windowTitle(), keyDialog().windowTitle()});
    mPane.willUnselect();
    showWithoutTablet();
    look(textsOf(*mWindow));
    EXPECT_GT(count, 60);
}

// From right to left ------------------------------------------------------------------------------

namespace {

class RightToLeft : public LanguagePane {
protected:
    RightToLeft()
        : LanguagePane(QStringLiteral("en"))
    {
    }

    /** The rectangles of the named visible controls. */
    static QHash<QString, QRect> places(const QWidget& window)
    {
        QHash<QString, QRect> found;
        for (const auto* const widget : visible<QWidget>(window)) {
            const QString name = widget->objectName();
            if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_"))) {
                found.insert(name, QRect(widget->mapTo(&window, QPoint()), widget->size()));
            }
        }
        return found;
    }
    static QRect mirrored(const QRect& place, int width)
    {
        return {width - place.x() - place.width(), place.y(), place.width(), place.height()};
    }
    static void turn()
    {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        settle();
    }
};

} // namespace

TEST_F(RightToLeft, mirrorsThePlacesOfAllControls)
{
    show();
    atEveryPage([this] {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        settle();
        const QHash<QString, QRect> before = places(*mWindow);
        turn();
        const QHash<QString, QRect> after = places(*mWindow);
        EXPECT_GT(before.size(), 12);
        EXPECT_EQ(before.size(), after.size());
        for (auto place = before.cbegin(); place != before.cend(); ++place) {
            // An odd number of pixels may be split differently.
            const QRect wanted = mirrored(place.value(), mWindow->width());
            const QRect is = after.value(place.key());
            EXPECT_LE(std::abs(wanted.x() - is.x()), 1) << qPrintable(place.key());
            EXPECT_LE(std::abs(wanted.width() - is.width()), 1) << qPrintable(place.key());
            EXPECT_EQ(wanted.y(), is.y()) << qPrintable(place.key());
        }
    });
}

TEST_F(RightToLeft, isMirroredFromTheBeginningToo)
{
    turn();
    show();
    const QHash<QString, QRect> after = places(*mWindow);
    EXPECT_GT(after.value(QStringLiteral("mKey1_1")).left(),
        after.value(QStringLiteral("mKeyView")).right());
    EXPECT_GT(after.value(QStringLiteral("mLabel1_1")).left(),
        after.value(QStringLiteral("mKey1_1")).right());
    atEveryPage([this] { expectAllFits(*mWindow); });
}

TEST_F(RightToLeft, drawsWhatIsAPictureOfSomethingAsItIs)
{
    setProduct(0x5101); // has a picture
    show();
    const auto pictures = [this] {
        QHash<QString, QImage> taken;
        atEveryPage([&] {
            for (const char* const name : {"mKeyView", "mPressView", "mDrawView", "mMonitorView"}) {
                auto& view = outlet<QWidget>(name);
                if (view.isVisible()) {
                    taken.insert(QString::fromLatin1(name), view.grab().toImage());
                }
            }
        });
        return taken;
    };
    const QHash<QString, QImage> before = pictures();
    EXPECT_EQ(before.size(), 4);
    // Each differs from its mirror image, except the empty drawing pad.
    for (const char* const name : {"mKeyView", "mPressView", "mMonitorView"}) {
        const QImage& picture = before[QString::fromLatin1(name)];
        EXPECT_NE(picture, picture.mirrored(true, false)) << name;
    }
    turn();
    EXPECT_EQ(pictures(), before);
}

TEST_F(RightToLeft, leavesTheCurvesNamesAtItsAxes)
{
    turn();
    show();
    showPage("penPage");
    settle();
    const auto side = [this](const char* name) {
        const auto& label = outlet<QLabel>(name);
        return QStyle::visualAlignment(label.layoutDirection(), label.alignment())
            & Qt::AlignHorizontal_Mask & ~Qt::AlignAbsolute;
    };
    EXPECT_EQ(side("mOutputLabel"), Qt::AlignLeft);
    EXPECT_EQ(side("mInputLabel"), Qt::AlignRight);
}

TEST_F(RightToLeft, leavesTheKeyboardAsItIs)
{
    QVKeySetClass dialog;
    dialog.showWindow();
    settle();
    const QHash<QString, QRect> before = places(dialog);
    turn();
    QVKeySetClass other;
    other.showWindow();
    settle();
    EXPECT_EQ(other.size(), dialog.size());
    const QHash<QString, QRect> after = places(other);
    int keys = 0;
    for (auto place = before.cbegin(); place != before.cend(); ++place) {
        const bool isKey = place.key().startsWith(QLatin1String("key"));
        keys += isKey ? 1 : 0;
        const QRect wanted = isKey ? place.value() : mirrored(place.value(), dialog.width());
        EXPECT_EQ(wanted, after.value(place.key())) << qPrintable(place.key());
    }
    EXPECT_GT(keys, 60);
}

TEST_F(RightToLeft, mirrorsTheTextsWithoutATablet)
{
    showWithoutTablet();
    const QRect title = outlet<QLabel>("NoDevTitle").geometry();
    const QRect help = outlet<QLabel>("NoDevHelp").geometry();
    mPane.willUnselect();
    turn();
    const std::unique_ptr<QVTblt_prefPanePref> pane = std::make_unique<QVTblt_prefPanePref>();
    pane->initWithBundle(rzkBundle);
    const std::unique_ptr<QWidget> view(pane->loadMainView());
    view->resize(mWindow->size());
    pane->willSelect();
    const auto& label = *view->findChild<QLabel*>(QStringLiteral("NoDevTitle"));
    EXPECT_EQ(label.geometry(), mirrored(title, view->width()));
    EXPECT_EQ(view->findChild<QLabel*>(QStringLiteral("NoDevHelp"))->geometry(),
        mirrored(help, view->width()));
    // Each showing moves it further from its side.
    pane->willUnselect();
    pane->willSelect();
    EXPECT_EQ(label.geometry().right(), mirrored(title, view->width()).right() - 20);
}
