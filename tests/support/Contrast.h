// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <ostream>

/** The contrasts required for text, and for lines and frames that carry information. */
inline constexpr double kTextContrast = 4.5;
inline constexpr double kGraphicsContrast = 3.0;

/** The contrast ratio of two opaque colours as WCAG 2 defines it, from 1 to 21. */
inline double contrastRatio(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double channel) {
            return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
            + 0.0722 * linear(color.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/** The colours of a theme. */
struct Theme {
    const char* name;
    QRgb window, base, text, button, highlight, highlightedText;

    QPalette palette() const
    {
        QPalette palette{QColor(button), QColor(window)}; // Qt derives the shades
        for (const QPalette::ColorRole role :
            {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            palette.setColor(QPalette::Active, role, QColor(text));
            palette.setColor(QPalette::Inactive, role, QColor(text));
        }
        palette.setColor(QPalette::Base, QColor(base));
        palette.setColor(QPalette::Highlight, QColor(highlight));
        palette.setColor(QPalette::HighlightedText, QColor(highlightedText));
        return palette;
    }
};

inline void PrintTo(const Theme& theme, std::ostream* stream)
{
    *stream << theme.name;
}

/** Breeze's colours are from its colour schemes, Fusion's are Qt's without a desktop. */
inline constexpr std::array<Theme, 6> kThemes{{
    {"BreezeLight", 0xFFEFF0F1, 0xFFFFFFFF, 0xFF232629, 0xFFFCFCFC, 0xFF3DAEE9, 0xFFFFFFFF},
    {"BreezeDark", 0xFF2A2E32, 0xFF1B1E20, 0xFFFCFCFC, 0xFF31363B, 0xFF3DAEE9, 0xFFFCFCFC},
    {"FusionLight", 0xFFEFEFEF, 0xFFFFFFFF, 0xFF000000, 0xFFEFEFEF, 0xFF308CC6, 0xFFFFFFFF},
    {"FusionDark", 0xFF323232, 0xFF242424, 0xFFFFFFFF, 0xFF323232, 0xFF308CC6, 0xFFFFFFFF},
    {"HighContrast", 0xFF000000, 0xFF000000, 0xFFFFFFFF, 0xFF000000, 0xFFFFFF00, 0xFF000000},
    {"HighContrastInverse", 0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000, 0xFFFFFFFF, 0xFF000080, 0xFFFFFFFF},
}};

/** Replaces the desktop's theme for its lifetime. */
class ThemeScope {
public:
    explicit ThemeScope(const Theme& theme)
        : mBefore(QApplication::palette())
    {
        QApplication::setStyle(QStringLiteral("fusion"));
        QApplication::setPalette(theme.palette());
    }
    ~ThemeScope() { QApplication::setPalette(mBefore); }
    ThemeScope(const ThemeScope&) = delete;
    ThemeScope& operator=(const ThemeScope&) = delete;

private:
    QPalette mBefore;
};

/** The most frequent colour. */
inline QColor groundOf(const QImage& image)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    const auto most =
        std::ranges::max_element(counts, {}, [](const auto& count) { return count.second; });
    return QColor(most->first);
}

/**
 * The contrast of a drawing to its background. In antialiased texts and lines, the pixel with the
 * highest contrast has the intended colour.
 */
inline double contrastIn(const QImage& image)
{
    const QColor ground = groundOf(image);
    double most = 1;
    QRgb last = ground.rgb();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (pixel != last) {
                last = pixel;
                most = std::max(most, contrastRatio(QColor(pixel), ground));
            }
        }
    }
    return most;
}
