// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Accessible.h"
#include "TabletGeometry.h"

#include <QWidget>

#include <optional>

/**
 * The surface of a tablet, with a cross at the position of the pen. The pen follows the mouse, and
 * the left button presses its tip down. With the keyboard focus, the arrow keys and the space bar
 * do the same. If the pen leaves the surface while it is down, it slides along the edge.
 */
class TabletSurface final : public QWidget, public platform::Accessible {
    Q_OBJECT

public:
    explicit TabletSurface(QWidget* parent);

    /** Shows a tablet, with the pen up; a different range puts it into the middle. */
    void setTablet(const QVTabletArea& range);
    /** Changes the range of the same tablet; the pen does not change. */
    void setRange(const QVTabletArea& range);
    /** Draws a frame around the area that covers the screen, if any. */
    void setMapped(const std::optional<QVTabletArea>& area);
    /** Shows the pen at a point, unless it is held here. */
    void showPen(const QVTabletPoint& pen);

    const QVTabletArea& range() const { return mRange; }
    /** Position of the pen. */
    const QVTabletPoint& pen() const { return mPen; }
    bool isPenDown() const { return mHeldBy != Holder::Nobody; }
    /** The surface's rectangle in this widget. */
    QRectF surface() const;

    /** Describes the pen: up or down, and where. */
    QString spokenContents() const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint() / 3; }

Q_SIGNALS:
    /** The tip was pressed down, dragged or lifted; in tablet units. */
    void penDown(ushort x, ushort y);
    void penDragged(ushort x, ushort y);
    void penUp();
    /** The pen has moved, or its tip has gone down or up. */
    void penChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /** What holds the pen down; nothing else can move or lift it meanwhile. */
    enum class Holder : std::uint8_t { Nobody, Mouse, SpaceBar };

    void hold(Holder holder);
    void release(Holder holder);
    void movePen(const QVTabletPoint& pen);

    QVTabletArea mRange{0, 1, 0, 1};
    std::optional<QVTabletArea> mMapped;
    QVTabletPoint mPen{};
    Holder mHeldBy = Holder::Nobody;
};
