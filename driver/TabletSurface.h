// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"
#include "TabletGeometry.h"

#include <QWidget>

#include <optional>

/**
 * The surface of a tablet, with a cross where the pen is. Where the mouse goes, the pen goes;
 * pressing its left button is the tip going down. So do the arrow keys and the space bar, while the
 * surface has the focus. A pen that leaves the surface while it is down slides along its edge.
 */
class TabletSurface final : public QWidget, public platform::Accessible {
    Q_OBJECT

public:
    explicit TabletSurface(QWidget* parent);

    /** Shows a tablet; the pen is up and, with another range, in the middle. */
    void setTablet(const QVTabletArea& range);
    /** Changes the range of the same tablet; the pen stays as it is. */
    void setRange(const QVTabletArea& range);
    /** Draws a frame around the area that covers the screen; nothing for none. */
    void setMapped(const std::optional<QVTabletArea>& area);
    /** Shows the pen elsewhere, unless it is held here. */
    void showPen(const QVTabletPoint& pen);

    const QVTabletArea& range() const { return mRange; }
    /** Where the pen is. */
    const QVTabletPoint& pen() const { return mPen; }
    bool isPenDown() const { return mHeldBy != Holder::Nobody; }
    /** The surface, in this widget. */
    QRectF surface() const;

    /** What the pen does. */
    QString spokenContents() const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void penDown(ushort x, ushort y);
    void penDragged(ushort x, ushort y);
    void penUp();
    /** The pen is elsewhere, or has come down or up. */
    void penChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /** What holds the pen down; what does not hold it cannot move or lift it. */
    enum class Holder : std::uint8_t { Nobody, Mouse, SpaceBar };

    void hold(Holder holder);
    void release(Holder holder);
    void movePen(const QVTabletPoint& pen);

    QVTabletArea mRange{0, 1, 0, 1};
    std::optional<QVTabletArea> mMapped;
    QVTabletPoint mPen{};
    Holder mHeldBy = Holder::Nobody;
};
