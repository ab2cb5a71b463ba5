// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Displays.h"
#include "Paired.h"
#include "QVMonitorView.h"
#include "Service.h"
#include "rzkApplication.h"
#include "rzkBundle.h"

#include <QComboBox>
#include <QPainter>
#include <QPixmap>

#include <array>

using platform::Rect;

namespace {

constexpr int kRedraws = 500;

const std::array<Rect, 4> kDisplays{Rect{0, 0, 1920, 1080}, Rect{1920, 0, 1920, 1080},
    Rect{3840, 0, 1280, 1024}, Rect{-1280, 0, 1280, 1024}};

/** Four displays that do not change. */
class FourDisplays final : public platform::Displays {
public:
    std::optional<std::uint32_t> activeDisplayCount() const override { return kDisplays.size(); }
    std::optional<std::vector<platform::DisplayID>> activeDisplays() const override
    {
        return std::vector<platform::DisplayID>{0, 1, 2, 3};
    }
    Rect bounds(platform::DisplayID display) const override { return kDisplays.at(display); }
    bool isMain(platform::DisplayID display) const override { return display == 0; }
};

/** Draws the page's picture on request. */
class Picture {
public:
    Picture()
    {
        mView.setOutlets(&mDisplayList, &mSpeedList, &mModeList);
        mView.resize(kWidth, kHeight);
        mView.awakeFromNib();
    }
    void draw()
    {
        mView.setNeedsDisplay();
        mView.render(&mTarget);
    }

    static constexpr int kWidth = 600;
    static constexpr int kHeight = 360;

private:
    FourDisplays mDisplays;
    platform::ServiceScope<platform::Displays> mScope{mDisplays};
    QComboBox mDisplayList;
    QComboBox mSpeedList;
    QComboBox mModeList;
    QVMonitorView mView;
    QPixmap mTarget{kWidth, kHeight};
};

/**
 * Floor: QPainter paints the same picture, rectangles, texts and lines on a pixmap, and copies it.
 */
void redrawDisplays(benchmark::State& state)
{
    rzkBundle = platform::Bundle(QStringLiteral(QVTBLT_STAGE_RESOURCES));
    qvTabletInfo.Basic.TabletXmax = 20320;
    qvTabletInfo.Basic.TabletYmax = 12700;
    Picture picture;
    const QImage background(QStringLiteral(QVTBLT_STAGE_RESOURCES "/backgroundregion.jpg"));
    std::array<QRectF, 4> rects;
    for (std::size_t i = 0; i < rects.size(); ++i) {
        const Rect rect = QVMiniature(kDisplays[i], {0, 0, Picture::kWidth, Picture::kHeight});
        rects[i] = {rect.x, Picture::kHeight - rect.y - rect.height, rect.width, rect.height};
    }
    QPixmap target(Picture::kWidth, Picture::kHeight);
    timePaired(
        state, [&] { picture.draw(); },
        [&] {
            QPixmap store(Picture::kWidth, Picture::kHeight);
            store.fill(Qt::transparent);
            {
                QPainter painter(&store);
                painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
                painter.drawImage(QRectF(0, 0, Picture::kWidth, Picture::kHeight), background);
                int number = 0;
                for (const QRectF& rect : rects) {
                    painter.setPen(QPen(Qt::magenta, 1));
                    painter.setBrush(Qt::magenta);
                    painter.drawRect(rect);
                    painter.setPen(Qt::black);
                    painter.drawText(rect.bottomLeft() + QPointF(20, -20),
                        QStringLiteral("Display #%1").arg(++number));
                }
                QRectF all;
                for (const QRectF& rect : rects) {
                    all |= rect;
                }
                painter.setBrush(Qt::NoBrush);
                painter.drawRect(all);
                painter.drawLine(all.topLeft(), QPointF(275, 260));
                painter.drawLine(all.topRight(), QPointF(361, 260));
                painter.drawLine(all.bottomRight(), QPointF(361, 307));
                painter.drawLine(all.bottomLeft(), QPointF(275, 307));
            }
            QPainter(&target).drawPixmap(0, 0, store);
        },
        [] {});
}
BENCHMARK(redrawDisplays)->Iterations(kRedraws)->UseManualTime();

} // namespace
