// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPointF>

#include <cstdint>

class QPushButton;

namespace platform {
class NoticeLabel;
}

/**
 * The threshold that fits a hand: the pressure in the middle of its lightest
 * and its hardest one gives half of the full effect. A threshold bends the
 * curve at one place only, so this is all that it can fit.
 */
int QVFittingThreshold(double lightest, double hardest);

/**
 * A dialog in which the user presses once as lightly and once as hard as usual.
 * It shows the curve that fits, beside the present one, and changes nothing
 * itself.
 */
class QVPressFit final : public QDialog {
    Q_OBJECT

public:
    /** @param threshold that the driver applies while the dialog is shown */
    QVPressFit(int threshold, QWidget* parent);

    /** The threshold that fits, once the dialog has been accepted. */
    int threshold() const { return mFitting; }

private:
    class Pad;
    class Curves;

    enum class Step : std::uint8_t { Lightest, Hardest, Harder, Done };

    QString textOf(Step step) const;
    void begin(Step step);
    void takePress(double pressure);

    int mPresent;
    int mFitting;
    double mLightest = 0;
    Step mStep = Step::Lightest;
    platform::NoticeLabel* mText;
    Curves* mCurves;
    QPushButton* mAgain = nullptr;
    QPushButton* mUse = nullptr;
};

/**
 * A dot that runs along the pressure curve while the pen presses on a pad. It
 * lies above the curve's view, has its size, and lets everything else through.
 */
class QVPressDot final : public QWidget {
    Q_OBJECT

public:
    explicit QVPressDot(QWidget* parent = nullptr);

    /** Follows the pen on a pad with the same lifetime. */
    void follow(QWidget& pad);

    /** The pressure that programs receive, 0 to 1; 0 while the pen does not
     * press. */
    double pressure() const { return mPressure; }
    /** The dot's middle, in pixels from the upper left corner: on the curve, but at its ends. */
    QPointF place() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void setPressure(double pressure);
    QRect dot() const;

    double mPressure = 0;
};
