// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVPressFit.h"

#include "Accessible.h"
#include "QVPressCurve.h"
#include "rzkApplication.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTabletEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <utility>

namespace {

constexpr double kDotRadius = 5; ///< of the dot on the curve, in pixels
constexpr double kDotReach = kDotRadius + 1; ///< with its ring

/**
 * The pressure in a tablet event; 0 when the pen is lifted, nothing for other events. A pen
 * that hovers may report the pressure of its last touch.
 */
std::optional<double> pressureOf(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::TabletPress:
    case QEvent::TabletMove: {
        const auto& pen = static_cast<const QTabletEvent&>(event); // NOLINT(*-downcast): its type
        return (pen.buttons() & Qt::LeftButton) == 0 ? 0 : pen.pressure();
    }
    case QEvent::TabletRelease:
    case QEvent::Hide:
        return 0;
    default:
        return std::nullopt;
    }
}

} // namespace

int QVFittingThreshold(double lightest, double hardest)
{
    constexpr double kHalf = 0.5;
    const double m = (lightest + hardest) / 2;
    // Below the half, m = h (1 - s + s h) with h = 1/2; above it, h = m (1 - s + s m).
    const double s = m < kHalf ? (m - kHalf) / (kHalf * kHalf)
        : m < 1                ? (m - kHalf) / (m * (1 - m))
                               : 1;
    return static_cast<int>(std::lround(kQVStraightThreshold * (1 + std::clamp(s, -1.0, 1.0))));
}

// The dialog --------------------------------------------------------------------------------------

/** Where the user presses; reports the greatest pressure of each press. */
class QVPressFit::Pad final : public QWidget, public platform::Accessible {
public:
    Pad(std::function<void(double)> told, QWidget* parent)
        : QWidget(parent)
        , Accessible(static_cast<QWidget&>(*this), QAccessible::Graphic)
        , mTold(std::move(told))
    {
        setCursor(Qt::CrossCursor);
    }

    QString spokenContents() const override { return QVPressFit::tr("Press here with the pen."); }

protected:
    void tabletEvent(QTabletEvent* event) override
    {
        event->accept();
        mPressure = pressureOf(*event).value_or(0);
        mGreatest = std::max(mGreatest, mPressure);
        if (event->type() == QEvent::TabletRelease) {
            mTold(std::exchange(mGreatest, 0));
        }
        update();
    }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        // A disc that grows with the pressure.
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(palette().color(QPalette::Mid));
        painter.setBrush(palette().base());
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().highlight());
        const double radius = std::min(width(), height()) / 2.0 * mPressure;
        painter.drawEllipse(QRectF(rect()).center(), radius, radius);
    }

private:
    std::function<void(double)> mTold;
    double mPressure = 0;
    double mGreatest = 0;
};

/** The present curve, dashed, and the one that fits. */
class QVPressFit::Curves final : public QWidget, public platform::Accessible {
public:
    Curves(int present, QWidget* parent)
        : QWidget(parent)
        , Accessible(static_cast<QWidget&>(*this), QAccessible::Graphic)
        , mPresent(present)
        , mFitting(present)
    {
    }

    void setFitting(int threshold)
    {
        mFitting = threshold;
        update();
        contentsChanged();
    }

    QString spokenContents() const override
    {
        const auto percentAt = [this](double pressure) {
            return QString::number(std::lround(100 * QVPressResponse(pressure, mFitting)));
        };
        //: Read by screen readers for the new pressure curve; %1 to %3 are percentages.
        return QVPressFit::tr("Programs receive %1 % of the full pressure at a quarter of it, %2 % "
                              "at half and %3 % at three quarters.")
            .arg(percentAt(0.25), percentAt(0.5), percentAt(0.75));
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setPen(palette().color(QPalette::Mid));
        painter.setBrush(palette().base());
        painter.drawRect(frame);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
        painter.drawPath(curve(mPresent, frame));
        if (mFitting != mPresent) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
            painter.drawPath(curve(mFitting, frame));
        }
    }

private:
    static QPainterPath curve(int threshold, const QRectF& frame)
    {
        constexpr int kSteps = 100;
        QPainterPath path(frame.bottomLeft());
        for (int i = 1; i <= kSteps; ++i) {
            const double pressure = static_cast<double>(i) / kSteps;
            path.lineTo(frame.left() + pressure * frame.width(),
                frame.bottom() - QVPressResponse(pressure, threshold) * frame.height());
        }
        return path;
    }

    int mPresent;
    int mFitting;
};

QVPressFit::QVPressFit(int threshold, QWidget* parent)
    : QDialog(parent)
    , mPresent(threshold)
    , mFitting(threshold)
    , mText(new platform::NoticeLabel(this))
    , mCurves(new Curves(threshold, this))
{
    //: Title of the dialog that fits the pressure curve to the user's hand.
    setWindowTitle(tr("Fit the pressure to your hand"));
    mText->setWordWrap(true);
    auto* const pad = new Pad([this](double pressure) { takePress(pressure); }, this);
    pad->setAccessibleName(tr("Pad to press on"));
    mCurves->setAccessibleName(tr("Pressure curve"));
    const int side = fontMetrics().height() * 11;
    pad->setMinimumSize(side, side);
    mCurves->setFixedSize(side, side);

    auto* const buttons = new QDialogButtonBox;
    //: Button: forgets both presses, and asks for the first one again.
    mAgain = buttons->addButton(tr("Start &Again"), QDialogButtonBox::ResetRole);
    connect(mAgain, &QPushButton::clicked, this, [this] { begin(Step::Lightest); });
    //: Button: closes the dialog, and leaves the pressure curve as it is.
    buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    //: Button: takes the new pressure curve.
    mUse = buttons->addButton(tr("&Use"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const views = new QHBoxLayout;
    views->addWidget(pad, 1);
    views->addWidget(mCurves);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(mText);
    layout->addLayout(views, 1);
    layout->addWidget(buttons);
    begin(Step::Lightest);
    // So that the window keeps its size, whatever the text.
    mText->setMinimumHeight(3 * fontMetrics().lineSpacing());
    mText->setAlignment(Qt::AlignTop);
}

QString QVPressFit::textOf(Step step) const
{
    switch (step) {
    case Step::Lightest:
        return tr("Press on the pad as lightly as you ever do, and lift the pen.");
    case Step::Hardest:
        return tr("Now press as hard as you ever do, and lift the pen.");
    case Step::Harder:
        return tr("That was not harder than the first time. Press as hard as you "
                  "ever do, and lift "
                  "the pen.");
    case Step::Done:
        break;
    }
    return mFitting == mPresent ? tr("The curve fits your hand as it is.")
                                : tr("The thick line is the curve that fits your hand: the middle "
                                     "between your lightest "
                                     "and your hardest touch has half of the full effect.");
}

void QVPressFit::begin(Step step)
{
    mStep = step;
    if (step != Step::Done) {
        mFitting = mPresent;
    }
    mText->hide(); // screen readers announce what appears
    mText->setText(textOf(step));
    mText->show();
    mAgain->setEnabled(step != Step::Lightest);
    mUse->setEnabled(step == Step::Done);
    if (step == Step::Done) {
        mUse->setFocus();
    }
    mCurves->setFitting(mFitting);
}

void QVPressFit::takePress(double pressure)
{
    constexpr double kLeastDifference = 0.05;
    // The driver has applied the present curve.
    const double own = QVPressResponse(pressure, kQVHighestThreshold - mPresent);
    if (own <= 0 || mStep == Step::Done) {
        return;
    }
    if (mStep == Step::Lightest) {
        mLightest = own;
        begin(Step::Hardest);
    } else if (own < mLightest + kLeastDifference) {
        begin(Step::Harder);
    } else {
        mFitting = QVFittingThreshold(mLightest, own);
        begin(Step::Done);
    }
}

// The dot -----------------------------------------------------------------------------------------

QVPressDot::QVPressDot(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void QVPressDot::follow(QWidget& pad)
{
    pad.installEventFilter(this);
}

bool QVPressDot::eventFilter(QObject* watched, QEvent* event)
{
    if (const auto pressure = pressureOf(*event)) {
        setPressure(*pressure);
    }
    return QWidget::eventFilter(watched, event);
}

void QVPressDot::setPressure(double pressure)
{
    if (pressure == mPressure) {
        return;
    }
    update(dot());
    mPressure = pressure;
    update(dot());
    setVisible(mPressure > 0);
}

QPointF QVPressDot::place() const
{
    // The driver has applied the curve.
    const int threshold = GetqvTabletInfo()->Pen.PressureThreshold;
    const double own = QVPressResponse(mPressure, kQVHighestThreshold - threshold);
    // All of it is seen at the ends, too.
    const auto inside = [](double middle, int size) {
        return std::clamp(middle, kDotReach, std::max(size - kDotReach, kDotReach));
    };
    return {inside(own * width(), width()), inside((1 - mPressure) * height(), height())};
}

QRect QVPressDot::dot() const
{
    const QPointF reach(kDotReach, kDotReach);
    return QRectF(place() - reach, place() + reach).toAlignedRect();
}

void QVPressDot::paintEvent(QPaintEvent* /*event*/)
{
    // The curve is black on light grey in every theme.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(Qt::red);
    painter.drawEllipse(place(), kDotRadius, kDotRadius);
}
