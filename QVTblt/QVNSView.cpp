// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVNSView.h"

#include <QLoggingCategory>
#include <QTabletEvent>

namespace {

Q_LOGGING_CATEGORY(lcPen, "org.quorvia.tablet.pen", QtInfoMsg)

} // namespace

void QVPostProximity(const QObject& relay, const std::shared_ptr<const platform::Event>& event)
{
    platform::notifications().post({kProximityNotification, &relay, {{kProximityEventKey, event}}});
}

QVNSView::QVNSView(QWidget* parent)
    : QWidget(parent)
    , ProximityResponder(static_cast<const QWidget&>(*this))
{
}

void QVNSView::tabletPoint(const platform::Event& event)
{
    static_cast<void>(event);
    qCInfo(lcPen, "mouse tabletPoint..............");
}

void QVNSView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Q_EMIT resized();
}

void QVNSView::tabletEvent(QTabletEvent* event)
{
    event->ignore(); // so that Qt turns it into a mouse event
    const auto taken = platform::penEvent(*event, *this, mPenDownAt);
    if (taken && taken->type == platform::EventType::TabletPoint) {
        tabletPoint(*taken);
    }
}
