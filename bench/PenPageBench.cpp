// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ChoiceSlider.h"
#include "Paired.h"
#include "QVDrawView.h"
#include "QVPressView.h"
#include "rzkApplication.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <vector>

using platform::Event;
using platform::EventType;

namespace {

constexpr int kRedraws = 2000;
constexpr int kBatches = 300;
constexpr int kBatch = 100; ///< steps that arrive at once
constexpr QSize kPad(500, 400);

/** The pad during a stroke. */
class Pad {
public:
    Pad()
    {
        mView.resize(kPad);
        mView.setOutlets(&mPressure);
        mView.awakeFromNib();
        mView.mouseDown(eventAt({0, 200}));
    }

    /** Delivers all steps and draws them. */
    void draw(const std::vector<QPointF>& places)
    {
        for (const QPointF& place : places) {
            mView.queue().post(eventAt(place));
        }
        mView.trackEvents();
        mView.render(&mTarget);
    }

private:
    static Event eventAt(const QPointF& place)
    {
        Event event;
        event.type = EventType::LeftMouseDragged;
        event.locationInWindow = place;
        event.pressure = 0.5F;
        return event;
    }

    QLabel mPressure;
    QVDrawView mView;
    QPixmap mTarget{1, 1};
};

/** Returns steps of a few points each, up and down the pad. */
std::vector<QPointF> places()
{
    std::vector<QPointF> all;
    for (int i = 0; i < kBatch; ++i) {
        all.emplace_back(20 + i * 4.5, 200 + (i % 20) * 5);
    }
    return all;
}

/** A batch of steps. Floor: the same segments are stroked into a pixmap of that size. */
void drawSteps(benchmark::State& state)
{
    Pad pad;
    const std::vector<QPointF> steps = places();
    for (int i = 0; i < 10; ++i) {
        pad.draw(steps); // the width reaches its final value
    }
    QPixmap target(kPad);
    target.fill(Qt::lightGray);
    // The final width, from the mean of the smoothed pressures.
    constexpr double kWidth = 25;
    timePaired(
        state, [&] { pad.draw(steps); },
        [&] {
            QPainter painter(&target);
            painter.setRenderHint(QPainter::Antialiasing);
            const QPen pen(Qt::black, kWidth, Qt::SolidLine, Qt::RoundCap);
            QPointF last = steps.back();
            for (const QPointF& step : steps) {
                QPainterPath path(last);
                path.cubicTo((last + step) * 0.5, (last + step) * 0.5, step);
                painter.strokePath(path, pen);
                last = step;
            }
        },
        [] {});
}
BENCHMARK(drawSteps)->Iterations(kBatches)->UseManualTime();

/** Floor: QPainter paints the precomputed path on a background with a frame, and copies it. */
void redrawCurve(benchmark::State& state)
{
    platform::ChoiceSlider slider;
    slider.setMaximum(2000);
    QLabel penID;
    QVPressView view;
    view.setOutlets(&slider, &penID);
    view.resize(200, 200);
    qvTabletInfo.Pen.PressureThreshold = 50;
    QPixmap target(200, 200);
    QPainterPath path;
    for (const QVPoint& point : QVPressCurve(50)) {
        path.lineTo(point.x, 200 - point.y);
    }
    timePaired(
        state,
        [&] {
            view.setNeedsDisplay();
            view.render(&target);
        },
        [&] {
            QPixmap store(200, 200);
            store.fill(Qt::lightGray);
            {
                QPainter painter(&store);
                painter.setPen(Qt::black);
                painter.drawRect(0, 0, 199, 199);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.strokePath(path, QPen(Qt::black, 1));
            }
            QPainter(&target).drawPixmap(0, 0, store);
        },
        [] {});
}
BENCHMARK(redrawCurve)->Iterations(kRedraws)->UseManualTime();

} // namespace
