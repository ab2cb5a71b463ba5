// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Every page and state of the panel with a screen reader, with the keyboard, and with sufficient
// contrast.

#include "ApplicationChooser.h"
#include "ApplicationsDialog.h"
#include "Contrast.h"
#include "Dialogs.h"
#include "ImportDialog.h"
#include "LayoutModels.h"
#include "NotedPane.h"
#include "PaneShell.h"
#include "PaneTest.h"
#include "PenInput.h"
#include "ProfileNameDialog.h"
#include "QVCalibrateWin.h"
#include "QVDrawView.h"
#include "QVKeyComboBox.h"
#include "QVKeySetClass.h"
#include "QVMonitorView.h"
#include "QVPressFit.h"
#include "QVPressView.h"
#include "QVTabletModels.h"
#include "Wait.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <functional>
#include <private/qguiapplication_p.h>
#include <set>

using platform::Rect;

namespace {

// Screen readers ---------------------------------------------------------------------------------

std::string textOf(QAccessibleInterface& thing, QAccessible::Text kind)
{
    return thing.text(kind).trimmed().toStdString();
}

QAccessibleInterface& accessible(QObject& object)
{
    return *QAccessible::queryAccessibleInterface(&object);
}

std::string describe(QAccessibleInterface& thing)
{
    const QObject* const object = thing.object();
    return std::string(object == nullptr ? "?" : object->metaObject()->className()) + ' '
        + (object == nullptr ? "" : object->objectName().toStdString()) + " '"
        + textOf(thing, QAccessible::Name) + "', role " + std::to_string(thing.role());
}

bool isOperable(QAccessible::Role role)
{
    static const std::set<QAccessible::Role> kOperable{QAccessible::Button,
        QAccessible::ButtonDropDown, QAccessible::ButtonMenu, QAccessible::CheckBox,
        QAccessible::ComboBox, QAccessible::EditableText, QAccessible::PageTab,
        QAccessible::RadioButton, QAccessible::Slider, QAccessible::SpinBox};
    return kOperable.contains(role);
}

bool isLabelled(QAccessibleInterface& thing)
{
    const auto labels = thing.relations(QAccessible::Label);
    return std::ranges::any_of(labels, [](const auto& label) {
        const auto* const widget = qobject_cast<const QLabel*>(label.first->object());
        return widget != nullptr && !textOf(*label.first, QAccessible::Name).empty();
    });
}

/** Qt's tab widget passes its focus on to its tabs, which are listed separately. */
bool handsFocusOn(QAccessibleInterface& thing)
{
    const auto* const widget = qobject_cast<const QWidget*>(thing.object());
    return widget != nullptr && widget->focusProxy() != nullptr;
}

/** The problems of an accessible for a screen reader. */
std::vector<std::string> faultsOf(QAccessibleInterface& thing)
{
    std::vector<std::string> faults;
    const auto fault = [&](const char* what) { faults.push_back(describe(thing) + what); };
    const QAccessible::Role role = thing.role();
    const bool isNameless = textOf(thing, QAccessible::Name).empty();
    if (isOperable(role) && isNameless) {
        fault(": a control without a name");
    }
    // A combo box's name is what it shows.
    if (role == QAccessible::ComboBox && !isLabelled(thing)) {
        fault(": a list without a label");
    }
    if ((role == QAccessible::Slider || role == QAccessible::SpinBox) && !isLabelled(thing)
        && textOf(thing, QAccessible::Description).empty()) {
        fault(": a value without a label or a description");
    }
    if ((role == QAccessible::Graphic || role == QAccessible::Canvas)
        && (isNameless || textOf(thing, QAccessible::Description).empty())) {
        fault(": a picture without a name or a description");
    }
    const bool isMute = role == QAccessible::Client || role == QAccessible::NoRole;
    if (isMute && thing.childCount() == 0) {
        fault(": its role does not tell what it is");
    }
    if (thing.state().focusable && !handsFocusOn(thing) && (isMute || isNameless)) {
        fault(": has the focus and does not say what it is");
    }
    return faults;
}

struct Findings {
    std::vector<std::string> faults;
    std::set<QAccessible::Role> roles;
    int things = 0;
};

void look(QAccessibleInterface& thing, Findings& findings)
{
    if (thing.state().invisible) {
        return;
    }
    ++findings.things;
    findings.roles.insert(thing.role());
    for (const std::string& fault : faultsOf(thing)) {
        findings.faults.push_back(fault);
    }
    if (thing.role() == QAccessible::ComboBox) {
        return; // its list is a separate window
    }
    for (int i = 0; i < thing.childCount(); ++i) {
        if (QAccessibleInterface* const child = thing.child(i)) {
            look(*child, findings);
        }
    }
}

Findings look(QWidget& window)
{
    Findings findings;
    look(accessible(window), findings);
    return findings;
}

/** The announcements to screen readers. */
class Told {
public:
    Told()
    {
        sEvents.clear();
        mBefore = QAccessible::installUpdateHandler(take);
        listen(true);
    }
    ~Told()
    {
        listen(false);
        QAccessible::installUpdateHandler(mBefore);
    }
    Told(const Told&) = delete;
    Told& operator=(const Told&) = delete;

    /** The number of such events since the last call. */
    static int count(const QObject& object, QAccessible::Event what)
    {
        const auto count = std::ranges::count(sEvents, std::pair(&object, what));
        std::erase(sEvents, std::pair(&object, what));
        return static_cast<int>(count);
    }

private:
    /** Does what the window system does when a screen reader starts. */
    static void listen(bool listens)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(listens);
    }
    static void take(QAccessibleEvent* event)
    {
        sEvents.emplace_back(event->object(), event->type());
    }

    static inline std::vector<std::pair<const QObject*, QAccessible::Event>> sEvents;
    QAccessible::UpdateHandler mBefore;
};

// The keyboard -----------------------------------------------------------------------------------

QRect placeOf(const QWidget& widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

/** Whether the second follows in reading order: below, or to the right. */
bool isNext(const QWidget& from, const QWidget& to)
{
    const QRect one = placeOf(from);
    const QRect other = placeOf(to);
    const bool goesUp = other.bottom() < one.top();
    const bool goesLeft = other.right() < one.left();
    const bool goesDown = other.top() > one.bottom();
    const bool goesRight = other.left() > one.right();
    return goesUp ? goesRight : (goesLeft ? goesDown : true);
}

/** Everything that Tab has to reach. */
std::set<const QWidget*> stopsOf(const QWidget& window)
{
    std::set<const QWidget*> stops;
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled() && widget->window() == &window
            && (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr) {
            stops.insert(widget);
        }
    }
    return stops;
}

/** Returns the widget that has the focus after each step. */
std::vector<const QWidget*> tabAround(QWidget& window, Qt::Key key, std::size_t most)
{
    std::vector<const QWidget*> visited;
    for (std::size_t i = 0; i < most; ++i) {
        QTest::keyClick(window.focusWidget() == nullptr ? &window : window.focusWidget(), key,
            key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        visited.push_back(QApplication::focusWidget());
    }
    return visited;
}

void expectTabVisitsAllInOrder(QWidget& window)
{
    const std::set<const QWidget*> stops = stopsOf(window);
    ASSERT_GE(stops.size(), 2U);
    // From the one that all others follow, wherever the focus was.
    const auto first = std::ranges::find_if(stops, [&stops](const QWidget* stop) {
        return std::ranges::all_of(
            stops, [stop](const QWidget* other) { return isNext(*stop, *other); });
    });
    ASSERT_NE(first, stops.end());
    auto there = tabAround(window, Qt::Key_Tab, stops.size());
    const QWidget* const begun = there.front();
    EXPECT_EQ(std::set(there.begin(), there.end()), stops) << "each exactly once";
    EXPECT_EQ(tabAround(window, Qt::Key_Tab, 1).front(), begun) << "it goes around";
    auto back = tabAround(window, Qt::Key_Backtab, stops.size());
    std::ranges::reverse(back);
    EXPECT_EQ(back, there);
    std::rotate(there.begin(), std::ranges::find(there, *first), there.end());
    for (std::size_t i = 0; i + 1 < there.size(); ++i) {
        EXPECT_TRUE(isNext(*there[i], *there[i + 1]))
            << there[i]->objectName().toStdString() << " to "
            << there[i + 1]->objectName().toStdString();
    }
}

// The panel --------------------------------------------------------------------------------------

class Accessibility : public PaneTest {
protected:
    void showProduct(std::uint16_t productID)
    {
        QString config = QString::fromUtf8(sampleConfig());
        static const QRegularExpression kProduct(
            QStringLiteral("(<key>ProductID</key>\\s*<integer>)[^<]*"));
        config.replace(kProduct, QStringLiteral("\\1%1").arg(productID));
        writeFile(mHome.configFile(7), config.toUtf8());
        show();
        activate(*mWindow);
    }
    void showPage(const char* name)
    {
        PaneTest::showPage(name);
        if (auto* const view = mWindow->findChild<QVMonitorView*>(); view->isVisible()) {
            view->grab(); // drawing updates its lists
        }
    }
    void showWithoutTablet()
    {
        mEvents.answer(0);
        show();
        activate(*mWindow);
    }
    static void activate(QWidget& window)
    {
        window.resize(window.sizeHint().expandedTo({900, 660}));
        // On the offscreen platform, a window that is hidden keeps the focus. When it is shown
        // again, it gets it anew only from another one.
        QWidget other;
        other.show();
        ASSERT_TRUE(QTest::qWaitFor([&other] { return other.isActiveWindow(); }, kPatience));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&window] { return window.isActiveWindow(); }, kPatience));
    }
    QVCalibrateWin& calibrate()
    {
        mDisplays.change({{0, 0, 800, 600}});
        showProduct(productOf(QVKeyLayout::A));
        showPage("displayPage");
        outlet<QPushButton>("mDoCalibrate").click();
        return *mWindow->findChild<QVCalibrateWin*>();
    }
    std::string contents(QWidget& widget)
    {
        return textOf(accessible(widget), QAccessible::Description);
    }
    void expectNoFaults(QWidget& window, int least)
    {
        const Findings findings = look(window);
        EXPECT_EQ(findings.faults, std::vector<std::string>());
        EXPECT_GE(findings.things, least);
    }
    /** Calls the function on the pages of each layout, and on each of the other pages. */
    void forEachPage(const std::function<void()>& what)
    {
        for (const std::uint16_t productID : productsOfEachLayout()) {
            SCOPED_TRACE(productID);
            showProduct(productID);
            showPage("keyPage");
            what();
            leave();
        }
        for (const char* const page : {"penPage", "displayPage"}) {
            SCOPED_TRACE(page);
            showProduct(productOf(QVKeyLayout::A));
            showPage(page);
            what();
            leave();
        }
    }
};

} // namespace

TEST_F(Accessibility, saysOfEveryPageWhatIsOnIt)
{
    forEachPage([this] { expectNoFaults(*mWindow, 10); });
}

TEST_F(Accessibility, saysWhatThereIsWithoutATablet)
{
    showWithoutTablet();
    expectNoFaults(*mWindow, 3);
    EXPECT_EQ(QApplication::focusWidget(), &outlet<QLabel>("NoDevHelp"));
    EXPECT_EQ(
        textOf(accessible(outlet<QLabel>("NoDevTitle")), QAccessible::Name), "No tablet was found");
}

TEST_F(Accessibility, saysWhatIsInTheKeyDialog)
{
    QVKeyComboBox box;
    QVKeySetClass dialog;
    dialog.QVShowWindow(&box);
    dialog.showWindow();
    expectNoFaults(dialog, 70);
}

TEST_F(Accessibility, saysWhatIsInTheChooserOfApplications)
{
    platform::ApplicationChooser chooser(
        nullptr, [](const QString& /*path*/) { return QString(); }, {});
    chooser.show();
    expectNoFaults(chooser, 5);
}

TEST_F(Accessibility, saysWhatIsInTheDialogThatFitsThePressure)
{
    QVPressFit dialog(100, nullptr);
    dialog.show();
    expectNoFaults(dialog, 5);
    QWidget& pad = widgetNamed(dialog, "Pad to press on");
    QWidget& curve = widgetNamed(dialog, "Pressure curve");
    EXPECT_EQ(contents(pad), "Press here with the pen.");
    EXPECT_EQ(contents(curve),
        "Programs receive 25 % of the full pressure at a quarter of it, 50 % at half and 75 % at "
        "three quarters.");
    const Told told;
    const QPointF at = pad.rect().center();
    PenInput pen(pad, 7);
    for (const double pressure : {0.1, 0.5}) {
        pen.press(at, pressure);
        pen.release(at);
        PenInput::deliver();
        EXPECT_EQ(
            Told::count(*dialog.findChild<platform::NoticeLabel*>(), QAccessible::ObjectShow), 1);
    }
    EXPECT_TRUE(QTest::qWaitFor(
        [&curve] { return Told::count(curve, QAccessible::DescriptionChanged) > 0; }, kPatience));
    EXPECT_EQ(contents(curve),
        "Programs receive 45 % of the full pressure at a quarter of it, 68 % at half and 85 % at "
        "three quarters.");
}

TEST_F(Accessibility, saysWhichCrossToTouch)
{
    QVCalibrateWin& window = calibrate();
    activate(window);
    expectNoFaults(window, 2);
    EXPECT_EQ(accessible(window).role(), QAccessible::Window);
    QVCalibrateView& view = window.view();
    EXPECT_EQ(QApplication::focusWidget(), &view);
    EXPECT_EQ(
        textOf(accessible(view), QAccessible::Name), "Touch the cross with the pen. Esc cancels.");
    const std::array<std::string, 4> places{
        "upper left", "upper right", "lower right", "lower left"};
    for (std::size_t i = 0; i < places.size(); ++i) {
        view.setDrawEraseFlag(QVCalibrateView::kDrawCross + static_cast<std::int32_t>(i));
        EXPECT_EQ(
            contents(view), "Cross " + std::to_string(i + 1) + " of 4, at the " + places[i] + ".");
    }
    view.setDrawEraseFlag(QVCalibrateView::kEraseCross);
    EXPECT_EQ(contents(view), "");
}

TEST_F(Accessibility, readsOutWhatHasGoneWrong)
{
    using News = platform::PreferencePane::News;
    PaneLife life;
    auto noted = std::make_unique<NotedPane>(life);
    const NotedPane& pane = *noted;
    PaneShell shell(std::move(noted), PaneShell::Host::Window);
    shell.willSelect();
    shell.show();
    activate(shell);
    std::vector<const QPushButton*> buttons;
    for (const QPushButton* const button : shell.findChildren<QPushButton*>()) {
        if (button->isVisible()) {
            buttons.push_back(button);
        }
    }
    ASSERT_EQ(buttons.size(), 2U);
    const QRect save = placeOf(*buttons[1]);
    pane.tell(News::ChangeNotTaken);
    auto& notice = *shell.findChild<platform::NoticeLabel*>();
    pane.tell(News::ChangeTaken);
    EXPECT_FALSE(notice.isVisible());

    const Told told;
    pane.tell(News::ChangeNotTaken);
    EXPECT_EQ(Told::count(notice, QAccessible::ObjectShow), 1);
    EXPECT_EQ(accessible(notice).role(), QAccessible::Notification);
    EXPECT_EQ(textOf(accessible(notice), QAccessible::Name),
        "The tablet's driver has not accepted the last change. Is it running?");
    pane.tell(News::ChangeNotTaken);
    EXPECT_EQ(Told::count(notice, QAccessible::ObjectShow), 0) << "it stands there already";
    expectNoFaults(shell, 4);
    expectTabVisitsAllInOrder(shell);
    pane.tell(News::ChangeTaken);
    EXPECT_FALSE(notice.isVisible());
    EXPECT_EQ(placeOf(*buttons[1]), save);
}

TEST_F(Accessibility, saysWhatIsInTheRowOfProfiles)
{
    PaneLife life;
    life.hasProfiles = true;
    for (const QString& profile : {QString(), QStringLiteral("Painting")}) {
        life.profiles = {{QStringLiteral("Painting"), {}}};
        life.profile = profile;
        PaneShell shell(std::make_unique<NotedPane>(life), PaneShell::Host::Window);
        shell.willSelect();
        shell.show();
        activate(shell);
        expectNoFaults(shell, 8);
        expectTabVisitsAllInOrder(shell);
        auto& list = *shell.findChild<QComboBox*>();
        EXPECT_EQ(textOf(accessible(list), QAccessible::Name),
            profile.isEmpty() ? "None" : profile.toStdString());
        EXPECT_EQ(
            contents(list), "Each profile has all settings of the tablet for one kind of work.");
    }
}

TEST_F(Accessibility, saysWhatIsInTheDialogsOfProfiles)
{
    const QStringList words{QStringLiteral("A"), QStringLiteral("B")};
    ProfileNameDialog name(
        QStringLiteral("Name"), QStringLiteral("Use"), QString(),
        [](const QString& /*name*/) { return QStringLiteral("That is no name."); }, nullptr);
    ApplicationsDialog applications(QStringLiteral("A"), words, nullptr);
    platform::PaneProfiles::Import import;
    import.changes = words;
    import.starts = {{words[0], words[1]}, { words[1], words[0] }};
    ImportDialog importDialog(import, nullptr);
    for (QDialog* const dialog :
        std::initializer_list<QDialog*>{&name, &applications, &importDialog}) {
        SCOPED_TRACE(dialog->windowTitle().toStdString());
        dialog->show();
        activate(*dialog);
        expectNoFaults(*dialog, 5);
        expectTabVisitsAllInOrder(*dialog);
    }
}

TEST_F(Accessibility, saysTheCurveInWords)
{
    showProduct(productOf(QVKeyLayout::A));
    showPage("penPage");
    QVPressView& curve = outlet<QVPressView>("mPressView");
    outlet<QSlider>("mSlider").setValue(1000);
    EXPECT_EQ(contents(curve),
        "Threshold 100 of 200. Programs receive 25 % of the full pressure at a quarter of it, 50 % "
        "at half and 75 % at three quarters.");
    outlet<QSlider>("mSlider").setValue(0);
    EXPECT_EQ(contents(curve),
        "Threshold 0 of 200. Programs receive 50 % of the full pressure at a quarter of it, 71 % "
        "at half and 87 % at three quarters.");
    outlet<QSlider>("mSlider").setValue(1800);
    EXPECT_EQ(contents(curve),
        "Threshold 180 of 200. Programs receive 8 % of the full pressure at a quarter of it, 29 % "
        "at half and 59 % at three quarters.");
    const Told told;
    outlet<QSlider>("mSlider").setValue(1500);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return Told::count(curve, QAccessible::DescriptionChanged) == 1; }, kPatience));
}

TEST_F(Accessibility, saysWhichDisplayTheTabletReaches)
{
    mDisplays.change({{0, 0, 1920, 1080}, {1920, 56, 1280, 1024}});
    showProduct(productOf(QVKeyLayout::A));
    showPage("displayPage");
    auto& view = outlet<QVMonitorView>("mMonitorView");
    auto& list = outlet<QComboBox>("mComboBox");
    const std::string displays =
        "Display #1: 1920 by 1080 points, its upper left corner at 0, 0. "
        "Display #2: 1280 by 1024 points, its upper left corner at 1920, 56. ";
    list.setCurrentIndex(2);
    view.SelectMonitor();
    EXPECT_EQ(contents(view), displays + "The tablet is mapped to Display #2.");
    const Told told;
    list.setCurrentIndex(0);
    view.SelectMonitor();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return Told::count(view, QAccessible::DescriptionChanged) == 1; }, kPatience));
    EXPECT_EQ(contents(view), displays + "The tablet is mapped to All displays.");
    mDisplays.change({{0, 0, 800, 600}});
    view.grab();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return Told::count(view, QAccessible::DescriptionChanged) == 1; }, kPatience));
    EXPECT_EQ(contents(view),
        "Display #1: 800 by 600 points, its upper left corner at 0, 0. The tablet is mapped to "
        "Display "
        "#1.");
}

TEST_F(Accessibility, saysThePressureAndDoesNotFlood)
{
    showProduct(productOf(QVKeyLayout::A));
    showPage("penPage");
    auto& pad = outlet<QVDrawView>("mDrawView");
    auto& number = outlet<QLabel>("txtRawTabletPressure");
    auto& stats = outlet<QLabel>("mPenStats");
    const Told told;
    platform::Event event;
    event.type = platform::EventType::TabletPoint;
    QElapsedTimer clock;
    clock.start();
    int events = 0;
    const auto mostTold = [&clock] { return static_cast<int>(clock.elapsed() / 500) + 1; };
    while (clock.elapsed() < 1100 || events <= 4 * mostTold()) {
        event.pressure = static_cast<float>(events++ % 100) / 100;
        pad.tabletPoint(event);
        QCoreApplication::processEvents();
    }
    event.pressure = 0.37F;
    pad.mouseUp(event);
    EXPECT_EQ(contents(pad), "Draw here with the pen or the mouse. Pressure 37 %");
    EXPECT_EQ(textOf(accessible(number), QAccessible::Name), "24247.95");
    QTest::qWait(600);
    const int most = mostTold();
    for (const auto& [object, what] :
        {std::pair<QObject*, QAccessible::Event>{&pad, QAccessible::DescriptionChanged},
            {&number, QAccessible::NameChanged}, {&stats, QAccessible::NameChanged}}) {
        const int count = Told::count(*object, what);
        EXPECT_GE(count, 1) << object->objectName().toStdString();
        EXPECT_LE(count, most) << object->objectName().toStdString();
    }
}

TEST_F(Accessibility, tellsThatThePicturesAreDisabledWithTheirPage)
{
    showProduct(productOf(QVKeyLayout::A));
    for (const char* const name : {"mKeyView", "mMonitorView"}) {
        auto& picture = outlet<QWidget>(name);
        const Told told;
        for (const bool isEnabled : {false, true}) {
            picture.parentWidget()->setEnabled(isEnabled);
            EXPECT_EQ(Told::count(picture, QAccessible::StateChanged), 1) << name;
        }
    }
}

TEST_F(Accessibility, makesNoWordsWhenNobodyListens)
{
    class Silent final : public QWidget, public platform::Accessible {
    public:
        Silent()
            : Accessible(static_cast<QWidget&>(*this), QAccessible::Graphic)
        {
        }
        QString spokenContents() const override
        {
            ++made;
            return QString::number(made);
        }
        mutable int made = 0;
    };
    Silent silent;
    silent.contentsChanged();
    QTest::qWait(700);
    EXPECT_EQ(silent.made, 0);
    const Told told;
    silent.contentsChanged();
    silent.contentsChanged();
    EXPECT_EQ(silent.made, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return silent.made > 0; }, kPatience));
    EXPECT_EQ(silent.made, 1);
    EXPECT_EQ(Told::count(silent, QAccessible::DescriptionChanged), 1);
}

TEST(AccessibleFactory, isGoneFromTheHostWithTheLastView)
{
    class View final : public QWidget, public platform::Accessible {
    public:
        View()
            : Accessible(static_cast<QWidget&>(*this), QAccessible::Canvas)
        {
        }
    };
    static int asked = 0;
    const auto hosts = [](const QString&, QObject*) -> QAccessibleInterface* {
        ++asked;
        return nullptr;
    };
    {
        const View first;
        const View second;
    }
    // The latest factory is asked first. A factory that had stayed would now come after the host's.
    QAccessible::installFactory(hosts);
    View view;
    EXPECT_EQ(accessible(view).role(), QAccessible::Canvas);
    EXPECT_EQ(asked, 0);
    QAccessible::removeFactory(hosts);
}

// The keyboard -----------------------------------------------------------------------------------

TEST_F(Accessibility, tabVisitsEveryControlInReadingOrder)
{
    forEachPage([this] { expectTabVisitsAllInOrder(*mWindow); });
}

TEST_F(Accessibility, tabVisitsEveryControlOfTheKeyDialog)
{
    QVKeyComboBox box;
    QVKeySetClass dialog;
    dialog.QVShowWindow(&box);
    dialog.showWindow();
    activate(dialog);
    dialog.findChild<QToolButton*>(QStringLiteral("keyA"))->click();
    expectTabVisitsAllInOrder(dialog);
}

TEST_F(Accessibility, beginsAtTheTabletsName)
{
    showProduct(productOf(QVKeyLayout::A));
    EXPECT_EQ(QApplication::focusWidget(), &outlet<QLabel>("mSoft"));
    QTest::keyClick(&outlet<QLabel>("mSoft"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), outlet<QTabWidget>("tabView").tabBar());
}

TEST_F(Accessibility, theArrowsBendTheCurve)
{
    showProduct(productOf(QVKeyLayout::A));
    showPage("penPage");
    auto& slider = outlet<QSlider>("mSlider");
    slider.setValue(1000);
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(+pushes().back().Pen.PressureThreshold, 101);
    QTest::keyClick(&slider, Qt::Key_PageUp);
    EXPECT_EQ(+pushes().back().Pen.PressureThreshold, 111);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(+pushes().back().Pen.PressureThreshold, 0);
}

TEST_F(Accessibility, showsWhichViewHasTheFocus)
{
    for (const Theme& theme : kThemes) {
        SCOPED_TRACE(theme.name);
        const ThemeScope scope(theme);
        for (const auto& [page, name] :
            {std::pair{"penPage", "mDrawView"}, std::pair{"displayPage", "mMonitorView"}}) {
            showProduct(productOf(QVKeyLayout::A));
            showPage(page);
            auto& view = outlet<QWidget>(name);
            mWindow->setFocus();
            const QImage before = view.grab().toImage();
            view.setFocus(Qt::TabFocusReason);
            const QImage with = view.grab().toImage();
            // Along the upper edge, the contrast of the focus frame in each line.
            double most = 1;
            for (int y = 0; y < 4; ++y) {
                most = std::max(most,
                    contrastRatio(before.pixelColor(before.width() / 2, y),
                        with.pixelColor(with.width() / 2, y)));
            }
            EXPECT_GE(most, kGraphicsContrast);
            mWindow->setFocus();
            EXPECT_EQ(view.grab().toImage(), before);
            leave();
        }
    }
}

// Colours ----------------------------------------------------------------------------------------

TEST(Contrast, isReckonedAsWcagSays)
{
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::white), 1, 0.01);
    EXPECT_NEAR(contrastRatio(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
    EXPECT_NEAR(contrastRatio(Qt::magenta, Qt::black), 6.70, 0.01);
}

TEST_F(Accessibility, textsStandApartInEveryTheme)
{
    for (const Theme& theme : kThemes) {
        SCOPED_TRACE(theme.name);
        const ThemeScope scope(theme);
        int count = 0;
        const auto expectReadable = [&] {
            platform::notifications().post({platform::kEventNotTakenNotification, nullptr, {}});
            // Take whole controls with their surroundings: a label has no background of its own.
            const QImage page = mWindow->grab().toImage();
            for (const QWidget* const widget : mWindow->findChildren<QWidget*>()) {
                const auto* const label = qobject_cast<const QLabel*>(widget);
                const bool hasText =
                    label != nullptr ? !label->text().isEmpty() : widget->inherits("QVKeyComboBox");
                if (hasText && widget->isVisible() && widget->isEnabled()) {
                    const QRect place(widget->mapTo(mWindow.get(), QPoint()), widget->size());
                    EXPECT_GE(contrastIn(page.copy(place)), kTextContrast)
                        << widget->objectName().toStdString();
                    ++count;
                }
            }
        };
        forEachPage(expectReadable);
        EXPECT_GT(count, 100);
        showWithoutTablet();
        EXPECT_GE(contrastIn(outlet<QLabel>("NoDevHelp").grab().toImage()), kTextContrast);
        mEvents.answer(7);
        leave();
    }
}

TEST_F(Accessibility, picturesStandApartInEveryTheme)
{
    mDisplays.change({{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}});
    for (const Theme& theme : kThemes) {
        SCOPED_TRACE(theme.name);
        const ThemeScope scope(theme);
        showProduct(productOf(QVKeyLayout::A));
        showPage("penPage");
        EXPECT_GE(
            contrastIn(outlet<QVPressView>("mPressView").grab(QRect(5, 5, 190, 190)).toImage()),
            kGraphicsContrast)
            << "the curve";
        showPage("displayPage");
        auto& view = outlet<QVMonitorView>("mMonitorView");
        const QImage picture = view.grab().toImage();
        // The name of the first display, in its miniature; and the lines to the tablet.
        const Rect miniature = QVMiniature({0, 0, 1920, 1080}, view.bounds());
        const QRect name(static_cast<int>(miniature.x) + 20,
            picture.height() - static_cast<int>(miniature.y) - 35, 70, 20);
        EXPECT_EQ(groundOf(picture.copy(name)), QColor(Qt::magenta));
        EXPECT_GE(contrastIn(picture.copy(name)), kTextContrast);
        const QRect lines(static_cast<int>(miniature.x) - 30,
            picture.height() - static_cast<int>(miniature.y) + 2, 60, 40);
        EXPECT_GE(contrastIn(picture.copy(lines)), kGraphicsContrast) << "the lines";
        leave();
    }
}
