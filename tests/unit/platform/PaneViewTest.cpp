// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PaneView.h"

#include "PointCanvas.h"

#include <QCoreApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

using platform::PaneView;
using platform::Rect;

namespace {

/** Fills its lower left quarter with red. */
class Quarter final : public PaneView {
public:
    using PaneView::PaneView;

    int draws = 0;
    Rect lastDirty;

protected:
    void drawRect(QPainter& painter, const Rect& dirty) override
    {
        ++draws;
        lastDirty = dirty;
        const Rect all = bounds();
        painter.fillRect(QRectF(0, 0, all.width / 2, all.height / 2), Qt::red);
    }
};

/** Two by two points, at two pixels per point; each point has a different colour. */
QImage fourColours()
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.setDotsPerMeterX(5669);
    image.setDotsPerMeterY(5669);
    QPainter painter(&image);
    painter.fillRect(0, 0, 2, 2, Qt::red); // upper left
    painter.fillRect(2, 0, 2, 2, Qt::green); // upper right
    painter.fillRect(0, 2, 2, 2, Qt::blue); // lower left
    painter.fillRect(2, 2, 2, 2, Qt::yellow);
    return image;
}

/** Draws the image on a white canvas of ten points, with y growing upwards. */
QImage drawn(const Rect& target, const Rect& source)
{
    QImage canvas(10, 10, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    painter.translate(0, 10);
    painter.scale(1, -1);
    platform::drawImage(painter, fourColours(), target, source);
    return canvas;
}

} // namespace

TEST(PaneView, drawsFromTheLowerLeftCorner)
{
    Quarter view;
    view.resize(40, 20);
    const QImage image = view.grab().toImage();
    EXPECT_EQ(image.pixelColor(5, 15), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(5, 5), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(35, 15), QColor(Qt::red));
    EXPECT_EQ(view.lastDirty, (Rect{0, 0, 40, 20}));
}

TEST(PaneView, copiesWhatTheWindowSystemUncovers)
{
    Quarter view;
    view.resize(40, 20);
    view.grab();
    const QImage again = view.grab().toImage();
    EXPECT_EQ(view.draws, 1);
    EXPECT_EQ(again.pixelColor(5, 15), QColor(Qt::red));
}

TEST(PaneView, drawsAgainWhenAskedResizedOrShown)
{
    Quarter view;
    view.resize(40, 20);
    view.grab();
    view.setNeedsDisplay();
    view.grab();
    EXPECT_EQ(view.draws, 2);
    view.resize(60, 20);
    view.grab();
    EXPECT_EQ(view.draws, 3);
    view.show();
    QCoreApplication::processEvents();
    view.grab();
    EXPECT_EQ(view.draws, 4);
}

TEST(PaneView, measuresInPointsOfItsCanvas)
{
    platform::PointCanvas canvas;
    canvas.setMinimumSize(200, 200);
    Quarter view(&canvas);
    view.setGeometry(0, 0, 100, 50);
    canvas.takePlaces();
    QFont font;
    font.setPixelSize(60);
    canvas.setFont(font);
    EXPECT_GT(view.width(), 150);
    EXPECT_NEAR(view.bounds().width, 100, 0.5);
    EXPECT_NEAR(view.bounds().height, 50, 0.5);
    const QImage image = view.grab().toImage();
    EXPECT_EQ(image.pixelColor(2, view.height() - 2), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(view.width() - 2, 2), QColor(Qt::red));
}

TEST(DrawImage, hasTheImagesLowerLeftCornerAtTheRectangles)
{
    const QImage canvas = drawn({0, 0, 2, 2}, {0, 0, 2, 2});
    EXPECT_EQ(canvas.pixelColor(0, 9), QColor(Qt::blue));
    EXPECT_EQ(canvas.pixelColor(1, 9), QColor(Qt::yellow));
    EXPECT_EQ(canvas.pixelColor(0, 8), QColor(Qt::red));
    EXPECT_EQ(canvas.pixelColor(1, 8), QColor(Qt::green));
    EXPECT_EQ(canvas.pixelColor(2, 9), QColor(Qt::white));
    EXPECT_EQ(canvas.pixelColor(0, 7), QColor(Qt::white));
}

TEST(DrawImage, takesThePartThatIsAskedFor)
{
    const QImage canvas = drawn({1, 0, 1, 1}, {1, 0, 1, 1});
    EXPECT_EQ(canvas.pixelColor(1, 9), QColor(Qt::yellow));
    EXPECT_EQ(canvas.pixelColor(0, 9), QColor(Qt::white));
    EXPECT_EQ(canvas.pixelColor(1, 8), QColor(Qt::white));
}

TEST(DrawImage, measuresAnImageByItsResolution)
{
    const Rect bounds = platform::imageBounds(fourColours());
    EXPECT_NEAR(bounds.width, 2, 0.001);
    EXPECT_NEAR(bounds.height, 2, 0.001);
}
