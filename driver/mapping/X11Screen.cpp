// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "X11Screen.h"

#include <cstring>
#include <utility>
#include <xcb/xcb.h>

using platform::XcbOwned;

X11Screen::X11Screen()
{
    if (!mConnection.isOpen()) {
        return;
    }
    mNotifier =
        std::make_unique<QSocketNotifier>(mConnection.fileDescriptor(), QSocketNotifier::Read);
    connect(mNotifier.get(), &QSocketNotifier::activated, this, &X11Screen::readEvents);
    mConnection.selectRootEvents(XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    const XcbOwned<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(
        mConnection.get(), xcb_get_geometry(mConnection.get(), mConnection.root()), nullptr));
    if (geometry) {
        mSize = {geometry->width, geometry->height};
    }
    readEvents(); // those that came before the answer are no longer in the socket
}

void X11Screen::readEvents()
{
    QSize size = mSize;
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(mConnection.get())}) {
        if (event->response_type == XCB_CONFIGURE_NOTIFY) {
            xcb_configure_notify_event_t change{};
            std::memcpy(&change, event.get(), sizeof change);
            size = {change.width, change.height};
        }
    }
    if (!mConnection.isOpen()) {
        mNotifier->setEnabled(false); // it would report the end for ever
    } else if (std::exchange(mSize, size) != size) {
        Q_EMIT changed();
    }
}
