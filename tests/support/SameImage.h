// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

/** A canvas with a view's size in points, at a pixel density; its painter has y growing upwards. */
struct Canvas {
    Canvas(const QSizeF& points, double density)
        : image((points * density).toSize(), QImage::Format_ARGB32_Premultiplied)
    {
        image.setDevicePixelRatio(density);
        image.fill(Qt::transparent);
        painter.begin(&image);
        painter.translate(0, points.height());
        painter.scale(1, -1);
        painter.setRenderHint(QPainter::Antialiasing);
    }

    QImage image;
    QPainter painter;
};

/** Compares two pictures by their pixels' colours. */
inline void expectSameImage(const QImage& drawn, const QImage& expected)
{
    ASSERT_EQ(drawn.size(), expected.size());
    int differing = 0;
    int greatest = 0;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const QRgb one = drawn.pixel(x, y);
            const QRgb other = expected.pixel(x, y);
            const int difference = std::max({std::abs(qRed(one) - qRed(other)),
                std::abs(qGreen(one) - qGreen(other)), std::abs(qBlue(one) - qBlue(other))});
            // Ignore rounding by one step at antialiased edges.
            differing += difference > 1 ? 1 : 0;
            greatest = std::max(greatest, difference);
        }
    }
    EXPECT_EQ(differing, 0) << "pixels differ, by up to " << greatest;
}
