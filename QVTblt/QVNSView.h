// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Notifications.h"
#include "ProximityRelay.h"

#include <QWidget>

/** The notification that a pen has come into reach or has left it. */
inline constexpr QLatin1String kProximityNotification("kProximityNotification");
/** Of its user info: the proximity event. */
inline constexpr QLatin1String kProximityEventKey("kProximityEventKey");
/** The same from an older path of events, which nothing here uses. */
inline constexpr QLatin1String kProximityEventCarbonKey("kProximityEventCarbonKey");

/** Posts the notification of the event, with the one who relays it as its object. */
void QVPostProximity(const QObject& relay, const std::shared_ptr<const platform::Event>& event);

/**
 * Spreads the pen's coming and going to all views that want to know. It is the pane's main view,
 * and so told for as long as the pane is shown, whichever page is.
 */
class QVNSView final : public QWidget, public platform::ProximityResponder {
    Q_OBJECT

public:
    explicit QVNSView(QWidget* parent = nullptr);

    void tabletProximity(const std::shared_ptr<const platform::Event>& event) override;
    /** Who relays has no use for the notification. */
    void handleProximity(const platform::Notification& notification);
    /** Leaves a line in the log. */
    void tabletPoint(const platform::Event& event);

Q_SIGNALS:
    /** The host has given the view another size. */
    void resized();

protected:
    void resizeEvent(QResizeEvent* event) override;
    /** What the pen does on other controls is theirs; that it presses otherwise comes through here.
     */
    void tabletEvent(QTabletEvent* event) override;

private:
    std::optional<QPointF> mPenDownAt;
};
