// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "X11Front.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <span>
#include <xcb/xcb.h>

using platform::XcbOwned;

namespace {

/** No name is as long; a property may be. In units of four bytes. */
constexpr std::uint32_t kMostText = 256;
constexpr std::uint32_t kMostTypes = 16;

} // namespace

/** The atoms of the properties that are read, and of their values. */
struct X11Front::Atoms {
    enum Name : std::uint8_t {
        ActiveWindow,
        DesktopFile,
        GtkApplication,
        ProcessID,
        WindowType,
        TypeDesktop,
        TypeDock,
        Count,
    };
    std::array<xcb_atom_t, Count> of{};

    explicit Atoms(xcb_connection_t* connection)
    {
        static constexpr std::array<std::string_view, Count> kAtomNames{"_NET_ACTIVE_WINDOW",
            "_KDE_NET_WM_DESKTOP_FILE", "_GTK_APPLICATION_ID", "_NET_WM_PID", "_NET_WM_WINDOW_TYPE",
            "_NET_WM_WINDOW_TYPE_DESKTOP", "_NET_WM_WINDOW_TYPE_DOCK"};
        std::array<xcb_intern_atom_cookie_t, Count> cookies{};
        std::ranges::transform(kAtomNames, cookies.begin(), [&](std::string_view name) {
            return xcb_intern_atom(
                connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
        });
        std::ranges::transform(cookies, of.begin(), [&](xcb_intern_atom_cookie_t cookie) {
            const XcbOwned<xcb_intern_atom_reply_t> reply(
                xcb_intern_atom_reply(connection, cookie, nullptr));
            return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
        });
    }
};

namespace {

/** Reads the beginning of a property; null if the window is gone. */
XcbOwned<xcb_get_property_reply_t> readProperty(xcb_connection_t* connection, xcb_window_t window,
    xcb_atom_t atom, xcb_atom_t type, std::uint32_t most)
{
    xcb_generic_error_t* failed = nullptr;
    XcbOwned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, atom, type, 0, most), &failed));
    const XcbOwned<xcb_generic_error_t> error(failed);
    return reply;
}

/** The bytes of a property; none unless its items have this many bits. */
std::span<const std::uint8_t> bytesIn(const xcb_get_property_reply_t* reply, int bits)
{
    if (reply == nullptr || reply->format != bits) {
        return {};
    }
    return {static_cast<const std::uint8_t*>(xcb_get_property_value(reply)),
        static_cast<std::size_t>(std::max(xcb_get_property_value_length(reply), 0))};
}

} // namespace

X11Front::X11Front()
{
    if (!mConnection.isOpen()) {
        return;
    }
    mAtoms = std::make_unique<Atoms>(mConnection.get());
    mConnection.selectRootEvents(XCB_EVENT_MASK_PROPERTY_CHANGE);
    mNotifier =
        std::make_unique<QSocketNotifier>(mConnection.fileDescriptor(), QSocketNotifier::Read);
    connect(mNotifier.get(), &QSocketNotifier::activated, this, &X11Front::readEvents);
    mSoon.setSingleShot(true);
    connect(&mSoon, &QTimer::timeout, this, &X11Front::readEvents);
}

X11Front::~X11Front() = default;

std::optional<FrontApplication> X11Front::application()
{
    std::optional<FrontApplication> application;
    const auto atom = [this](Atoms::Name name) { return mAtoms->of[name]; };
    if (const auto window = number(mConnection.root(), atom(Atoms::ActiveWindow), XCB_ATOM_WINDOW);
        window.value_or(XCB_WINDOW_NONE) != XCB_WINDOW_NONE && !isPartOfDesktop(*window)) {
        QStringList names{QString::fromUtf8(text(*window, atom(Atoms::DesktopFile))),
            QString::fromUtf8(text(*window, atom(Atoms::GtkApplication)))};
        names += namesInClass(text(*window, XCB_ATOM_WM_CLASS));
        application = {applicationNames(names),
            number(*window, atom(Atoms::ProcessID), XCB_ATOM_CARDINAL).value_or(0)};
    }
    // Events that came before the answers are no longer in the socket.
    mSoon.start(0);
    return application;
}

void X11Front::readEvents()
{
    bool isOther = false;
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(mConnection.get())}) {
        constexpr unsigned kSent = 0x80; // by another client
        if ((event->response_type & ~kSent) == XCB_PROPERTY_NOTIFY) {
            xcb_property_notify_event_t change{};
            std::memcpy(&change, event.get(), sizeof change);
            isOther = isOther
                || (change.window == mConnection.root()
                    && change.atom == mAtoms->of[Atoms::ActiveWindow]);
        }
    }
    if (isOther) {
        Q_EMIT changed();
    }
    if (!mConnection.isOpen() && mNotifier->isEnabled()) {
        mNotifier->setEnabled(false); // it would report the end for ever
        Q_EMIT lost(QStringLiteral("the X server has ended"));
    }
}

std::optional<std::uint32_t> X11Front::number(
    std::uint32_t window, std::uint32_t atom, std::uint32_t type)
{
    const auto reply = readProperty(mConnection.get(), window, atom, type, 1);
    const auto bytes = bytesIn(reply.get(), 32);
    std::uint32_t value = 0;
    if (bytes.size() != sizeof value) {
        return std::nullopt;
    }
    std::memcpy(&value, bytes.data(), sizeof value);
    return value;
}

QByteArray X11Front::text(std::uint32_t window, std::uint32_t atom)
{
    const auto reply =
        readProperty(mConnection.get(), window, atom, XCB_GET_PROPERTY_TYPE_ANY, kMostText);
    const auto bytes = bytesIn(reply.get(), 8);
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size())};
}

bool X11Front::isPartOfDesktop(std::uint32_t window)
{
    const auto reply = readProperty(
        mConnection.get(), window, mAtoms->of[Atoms::WindowType], XCB_ATOM_ATOM, kMostTypes);
    const auto bytes = bytesIn(reply.get(), 32);
    for (std::size_t i = 0; i + sizeof(xcb_atom_t) <= bytes.size(); i += sizeof(xcb_atom_t)) {
        xcb_atom_t type = XCB_ATOM_NONE;
        std::memcpy(&type, bytes.data() + i, sizeof type);
        if (type != XCB_ATOM_NONE
            && (type == mAtoms->of[Atoms::TypeDesktop] || type == mAtoms->of[Atoms::TypeDock])) {
            return true;
        }
    }
    return false;
}

QStringList namesInClass(const QByteArray& value)
{
    const QByteArrayList parts = value.split('\0');
    return {QString::fromUtf8(parts.value(1)), QString::fromUtf8(parts.value(0))};
}
