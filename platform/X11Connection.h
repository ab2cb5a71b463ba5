// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>

struct xcb_connection_t;

namespace platform {

/** Frees replies, events and errors of XCB, which come from malloc(). */
struct XcbFree {
    void operator()(void* memory) const { std::free(memory); } // NOLINT(*-no-malloc)
};
template <class Reply>
using XcbOwned = std::unique_ptr<Reply, XcbFree>;

/** Closes a connection to an X server. */
struct XcbDisconnect {
    void operator()(xcb_connection_t* connection) const;
};

/** A connection to the X server in DISPLAY, and the root window of the screen that it names. */
class X11Connection {
public:
    /** Connects; see isOpen(). */
    X11Connection();

    /** Whether it could be opened, and the server has not ended. */
    bool isOpen() const;

    xcb_connection_t* get() const { return mConnection.get(); }
    std::uint32_t root() const { return mRoot; }
    /** The socket, to wait for events. */
    int fileDescriptor() const;

    /**
     * Asks for events of the root window, in place of those asked for before.
     *
     * @param mask of xcb_event_mask_t
     */
    void selectRootEvents(std::uint32_t mask) const;

private:
    std::unique_ptr<xcb_connection_t, XcbDisconnect> mConnection;
    std::uint32_t mRoot = 0;
};

} // namespace platform
