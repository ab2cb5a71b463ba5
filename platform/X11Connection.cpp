// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "X11Connection.h"

#include <xcb/xcb.h>

namespace platform {

void XcbDisconnect::operator()(xcb_connection_t* connection) const
{
    xcb_disconnect(connection);
}

X11Connection::X11Connection()
{
    int screen = 0;
    mConnection.reset(xcb_connect(nullptr, &screen));
    if (!isOpen()) {
        return;
    }
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(get()));
    for (; screen > 0 && screens.rem > 1; --screen) {
        xcb_screen_next(&screens);
    }
    mRoot = screens.data->root;
}

bool X11Connection::isOpen() const
{
    return xcb_connection_has_error(get()) == 0;
}

int X11Connection::fileDescriptor() const
{
    return xcb_get_file_descriptor(get());
}

void X11Connection::selectRootEvents(std::uint32_t mask) const
{
    xcb_change_window_attributes(get(), mRoot, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(get());
}

} // namespace platform
