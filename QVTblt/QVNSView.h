// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Notifications.h"
#include "ProximityRelay.h"

#include <QWidget>

/** The notification that a pen has entered or left the range of the tablet. */
inline constexpr QLatin1String kProximityNotification("kProximityNotification");
/** The key of the proximity event in its user info. */
inline constexpr QLatin1String kProximityEventKey("kProximityEventKey");
/** The same for an older kind of events, not used here. */
inline constexpr QLatin1String kProximityEventCarbonKey("kProximityEventCarbonKey");

/** Posts the notification of the event, with the relaying object as its sender. */
void QVPostProximity(const QObject& relay, const std::shared_ptr<const platform::Event>& event);

/**
 * The pane's main view, which contains all pages. It relays the pen's proximity events to the views
 * that observe them, as long as the pane is shown, whatever page is open.
 */
class QVNSView final : public QWidget, public platform::ProximityResponder {
    Q_OBJECT

public:
    explicit QVNSView(QWidget* parent = nullptr);

    void tabletProximity(const std::shared_ptr<const platform::Event>& event) override
    {
        QVPostProximity(*this, event);
    }
    /** Does nothing: the relay does not need its own notification. */
    void handleProximity(const platform::Notification& /*notification*/) { }
    /** Writes a line to the log. */
    void tabletPoint(const platform::Event& event);

Q_SIGNALS:
    /** The host has resized the view. */
    void resized();

protected:
    void resizeEvent(QResizeEvent* event) override;
    /** Pen events belong to the controls; only changes of pressure are handled here. */
    void tabletEvent(QTabletEvent* event) override;

private:
    std::optional<QPointF> mPenDownAt;
};
