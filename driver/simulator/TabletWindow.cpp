// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletWindow.h"

#include "ActionText.h"
#include "Driver.h"
#include "QVDriverProtocol.h"
#include "QVTabletModels.h"
#include "TabletSurface.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFontMetrics>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

constexpr int kKeyWidth = 48;
constexpr int kKeyHeight = 40; ///< at most
constexpr int kStripHeight = 80; ///< at most
constexpr int kGroupGap = 8;
constexpr QSize kUsualSize{620, 580};
constexpr int kUsualLine = 32; ///< the usual width in line heights, for large fonts
constexpr int kLeastModelName = 9; ///< characters of a model's name that are always visible
constexpr int kToldLines = 2; ///< maximum lines of a text; a longer one is elided

/** The groups of keys of a layout, from top to bottom; a 0 stands for the strip. */
std::vector<int> keyGroups(QVKeyLayout layout)
{
    switch (layout) {
    case QVKeyLayout::A:
    case QVKeyLayout::G:
        return {4, 0, 4};
    case QVKeyLayout::C:
    case QVKeyLayout::D:
        return {4};
    case QVKeyLayout::E:
        return {5};
    case QVKeyLayout::F:
        return {3, 1, 3};
    case QVKeyLayout::B:
    case QVKeyLayout::H:
        break;
    }
    return {};
}

template <class Label = QLabel>
Label* valueLabel(QFormLayout& form, const QString& name)
{
    auto* const value = new Label;
    value->setWordWrap(true);
    value->setMinimumWidth(1); // a path may not wrap, and must not widen the window
    form.addRow(name, value);
    return value;
}

/** Describes the action of a button in the settings. */
auto slotText(std::size_t slot)
{
    return [slot](const tagQVTabletInfoKey& keys) { return actionText(keys.SubKey[slot]); };
}

/** Lets a button of the tablet shrink to the room for its text, since all of them have to fit. */
void makeShrinkable(QToolButton& button, int height)
{
    button.setMinimumSize(kKeyWidth, button.fontMetrics().height());
    button.setMaximumHeight(std::max(height, button.minimumHeight()));
    button.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

/** The settings' screen area, relative to the main display's upper left corner. */
QRect screenArea(const tagQVTabletInfo& settings)
{
    const QScreen* const main = QGuiApplication::primaryScreen();
    const QRect area(settings.Monitor.XOrg, settings.Monitor.YOrg, settings.Monitor.Width,
        settings.Monitor.Height);
    return main == nullptr ? area : area.translated(main->geometry().topLeft());
}

} // namespace

/**
 * Shows a key's action. A path that is too long is elided in the middle, since its end matters;
 * screen readers and the tooltip get all of it.
 */
class TabletWindow::ToldLabel final : public QLabel {
public:
    void tell(const QString& text)
    {
        mWhole = text;
        setAccessibleName(text);
        fit();
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QLabel::resizeEvent(event);
        fit();
    }

private:
    void fit()
    {
        const QFontMetrics letters = fontMetrics();
        const QRect needed =
            letters.boundingRect(QRect(0, 0, width(), QWIDGETSIZE_MAX), Qt::TextWordWrap, mWhole);
        const bool fits =
            needed.width() <= width() && needed.height() <= kToldLines * letters.lineSpacing();
        setText(fits ? mWhole : letters.elidedText(mWhole, Qt::ElideMiddle, width()));
        setToolTip(fits ? QString() : mWhole);
    }

    QString mWhole;
};

TabletWindow::TabletWindow(Driver& driver)
    : Accessible(static_cast<QWidget&>(*this), QAccessible::Window)
    , mDriver(driver)
    , mModels(new QComboBox)
    , mTablet(new QWidget)
    , mSurface(new TabletSurface(mTablet))
    , mNoTablet(new QLabel)
    , mTop(new QHBoxLayout)
    , mBody(new QHBoxLayout)
{
    //: Read by screen readers: the list of tablet models.
    mModels->setAccessibleName(tr("Tablet"));
    mModels->setAccessibleDescription(tr("The model that is attached."));
    //: First item of the list of tablet models: none is attached.
    mModels->addItem(tr("No tablet"), 0);
    for (const QVTabletModel& known : kQVTabletModels) {
        mModels->addItem(QString::fromUtf8(known.name), known.productID);
    }
    //: Label of the list of tablet models.
    auto* const label = new QLabel(tr("&Tablet:"));
    label->setBuddy(mModels);
    mTop->addWidget(label);
    // With large fonts, the pen's buttons need room beside it.
    mModels->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mModels->setMinimumContentsLength(kLeastModelName);
    mTop->addWidget(mModels, 1);

    auto* const body = new QFrame;
    body->setLayoutDirection(Qt::LeftToRight); // the keys are not mirrored in any language
    body->setFrameShape(QFrame::StyledPanel);
    body->setLayout(mBody);
    mBody->addWidget(mSurface, 1);
    auto* const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    //: Label of a line such as "Pen: down at 100, 200".
    mPen = valueLabel<platform::LiveLabel>(*form, tr("Pen:"));
    //: Label of a line such as "Panel: calibrating: it gets pen reports"; the settings panel.
    mListening = valueLabel(*form, tr("Panel:"));
    //: Label of the line that explains the frame drawn on the surface.
    mMapped = valueLabel(*form, tr("Frame:"));
    //: Label of the line that shows the action of the key pressed last.
    mTold = valueLabel<ToldLabel>(*form, tr("Pressed:"));
    auto* const tablet = new QVBoxLayout(mTablet);
    tablet->setContentsMargins(0, 0, 0, 0);
    tablet->addWidget(body, 1);
    tablet->addLayout(form);
    mNoTablet->setAlignment(Qt::AlignCenter);
    mNoTablet->setWordWrap(true);
    mNoTablet->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);

    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(mTop);
    layout->addWidget(mTablet, 1);
    layout->addWidget(mNoTablet, 1);

    connect(mModels, qOverload<int>(&QComboBox::activated), this, &TabletWindow::choose);
    connect(mSurface, &TabletSurface::penDown, &mDriver, &Driver::penDown);
    connect(mSurface, &TabletSurface::penDragged, &mDriver, &Driver::penMove);
    connect(mSurface, &TabletSurface::penUp, &mDriver, &Driver::penUp);
    connect(mSurface, &TabletSurface::penChanged, this, &TabletWindow::showPen);
    connect(&mDriver, &Driver::attachedChanged, this, &TabletWindow::showModel);
    connect(&mDriver, &Driver::pushed, this, &TabletWindow::showSettings);
    connect(&mDriver, &Driver::calibratingChanged, this, &TabletWindow::showListening);
    connect(&mDriver, &Driver::tapped, mSurface, [this](ushort x, ushort y) {
        mSurface->showPen({x, y});
    });
    showModel();
    showListening();
    mSurface->setFocus();
    resize(usualSize(screen()->availableSize()));
}

QSize TabletWindow::usualSize(const QSize& available) const
{
    const QSize wide(kUsualLine * fontMetrics().lineSpacing(), kUsualSize.height());
    return wide.expandedTo(kUsualSize).boundedTo(available * 0.9);
}

void TabletWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    Q_EMIT closed();
}

const QVTabletModel* TabletWindow::model() const
{
    return QVFindModel(mDriver.attached());
}

std::optional<tagQVTabletInfo> TabletWindow::settings() const
{
    std::optional<tagQVTabletInfo> settings = QVRecordIn(mDriver.lastRecord());
    return settings && QVProductID(*settings) == mDriver.attached() ? settings : std::nullopt;
}

void TabletWindow::choose()
{
    const auto productID = static_cast<std::uint16_t>(mModels->currentData().toUInt());
    if (productID == 0) {
        mDriver.detach();
        return;
    }
    if (const platform::Result<> attached = mDriver.attach(productID); !attached) {
        const QString& error = attached.error().text;
        say(error);
        showModel();
        //: %1 is the reason, in English.
        const QString text = tr("The tablet could not be attached: %1").arg(error);
        mTold->tell(text);
        mNoTablet->setText(text);
    }
}

void TabletWindow::showModel()
{
    const QVTabletModel* const attached = model();
    mModels->setCurrentIndex(mModels->findData(mDriver.attached()));
    if (attached == nullptr) {
        //: Window title.
        setWindowTitle(tr("Virtual tablet"));
    } else {
        //: Window title; %1 is the model's name.
        setWindowTitle(tr("Virtual tablet: %1").arg(QString::fromUtf8(attached->name)));
    }
    mNoTablet->setText(tr("No tablet is attached. Choose one above."));
    mNoTablet->setVisible(attached == nullptr);
    mTablet->setVisible(attached != nullptr);
    delete mKeys;
    mKeys = nullptr;
    delete mPenButtons;
    mPenButtons = nullptr;
    if (attached == nullptr) {
        mSurface->setTablet(mSurface->range());
        return;
    }
    addKeys(*attached);
    addPenButtons(*attached);
    //: Follows the label "Pressed:".
    mTold->tell(tr("no key yet; press one to see its action"));
    const std::optional<tagQVTabletInfo> known = settings();
    mSurface->setTablet(tabletRange(*attached, known ? &*known : nullptr));
    showSettings();
}

void TabletWindow::addKeys(const QVTabletModel& model)
{
    const std::vector<int> groups = keyGroups(model.layout);
    if (groups.empty()) {
        return;
    }
    mKeys = new QWidget;
    auto* const column = new QVBoxLayout(mKeys);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addStretch();
    std::size_t key = 0;
    for (const int count : groups) {
        if (column->count() > 1) {
            column->addSpacing(kGroupGap);
        }
        if (count == 0 && model.scrollNum > 0) {
            const QString strip = tr("Left scroll strip");
            QToolButton& button = addButton(*column, QStringLiteral("\u2261"), strip,
                [](const auto& keys) { return stripText(keys.Scrollbar0, keys.ScrollSpeed); });
            makeShrinkable(button, kStripHeight);
        }
        for (int i = 0; i < count && key < model.keyNum; ++i, ++key) {
            const QString number = QString::number(key + 1);
            //: Name of an express key of the tablet; %1 is its number.
            QToolButton& button =
                addButton(*column, number, tr("Key %1").arg(number), slotText(key));
            makeShrinkable(button, kKeyHeight);
            reportButton(button, key);
        }
    }
    column->addStretch();
    mBody->insertWidget(0, mKeys);
}

void TabletWindow::addPenButtons(const QVTabletModel& model)
{
    mPenButtons = new QWidget;
    auto* const row = new QHBoxLayout(mPenButtons);
    row->setContentsMargins(0, 0, 0, 0);
    const std::array names{tr("Upper pen button"), tr("Lower pen button")};
    for (std::size_t i = 0; i < std::min<std::size_t>(model.penButtons, names.size()); ++i) {
        const std::size_t slot = kQVUpperPenSlot + i;
        reportButton(addButton(*row, names[i], names[i], slotText(slot)), slot);
    }
    mTop->addWidget(mPenButtons); // saves a row on small screens
}

QToolButton& TabletWindow::addButton(QLayout& layout, const QString& text, const QString& name,
    std::function<QString(const tagQVTabletInfoKey& keys)> action)
{
    auto* const button = new QToolButton;
    button->setText(text);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::pressed, this, [this, name, action = std::move(action)] {
        const std::optional<tagQVTabletInfo> known = settings();
        mTold->tell(
            tr("%1: %2", "a key and what it does")
                .arg(name,
                    known ? action(known->Key) : tr("unknown until the panel sends its settings")));
    });
    layout.addWidget(button);
    return *button;
}

void TabletWindow::reportButton(const QToolButton& button, std::size_t slot)
{
    const auto number = static_cast<std::uint16_t>(slot);
    connect(
        &button, &QToolButton::pressed, &mDriver, [this, number] { mDriver.press(number, true); });
    connect(&button, &QToolButton::released, &mDriver,
        [this, number] { mDriver.press(number, false); });
}

void TabletWindow::showSettings()
{
    const QVTabletModel* const attached = model();
    if (attached == nullptr) {
        return;
    }
    const std::optional<tagQVTabletInfo> known = settings();
    mSurface->setRange(tabletRange(*attached, known ? &*known : nullptr));
    if (!known) {
        mSurface->setMapped(std::nullopt);
        mMapped->setText(tr("unknown until the panel sends its settings"));
        return;
    }
    const QVTabletArea mapped = QVUsedArea(*known);
    mSurface->setMapped(mapped);
    //: Follows the label "Frame:"; x and y are ranges in tablet units.
    mMapped->setText(tr("the part that covers the screen, x %1 to %2, y %3 to %4")
                         .arg(QString::number(mapped.xmin), QString::number(mapped.xmax),
                             QString::number(mapped.ymin), QString::number(mapped.ymax)));
}

void TabletWindow::showListening()
{
    if (mDriver.isCalibrating()) {
        //: Follows the label "Panel:".
        mListening->setText(tr("calibrating: it gets pen reports"));
    } else {
        //: Follows the label "Panel:".
        mListening->setText(tr("not calibrating: it gets no pen reports"));
    }
    liftAboveCalibration();
}

void TabletWindow::showPen()
{
    const QVTabletPoint& pen = mSurface->pen();
    //: Follows the label "Pen:"; %1 is x, %2 is y, in tablet units.
    const QString down = tr("down at %1, %2");
    //: Follows the label "Pen:"; %1 is x, %2 is y, in tablet units.
    const QString up = tr("up at %1, %2");
    mPen->setText(
        (mSurface->isPenDown() ? down : up).arg(QString::number(pen.x), QString::number(pen.y)));
}

void TabletWindow::liftAboveCalibration()
{
    if (windowHandle() == nullptr) {
        return;
    }
    // The panel covers the display that it calibrates and stays on top; with a single display, this
    // window could not be reached.
    const std::optional<tagQVTabletInfo> known = settings();
    const bool isCovered =
        mDriver.isCalibrating() && known && screenArea(*known).intersects(frameGeometry());
    Qt::WindowFlags flags = windowFlags();
    flags.setFlag(Qt::WindowStaysOnTopHint, isCovered);
    if (flags == windowFlags()) {
        return;
    }
    overrideWindowFlags(flags);
    windowHandle()->setFlags(flags);
    if (isCovered) {
        raise();
        activateWindow();
    }
}
