// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "WaylandOutputs.h"

#include <cstdint>
#include <list>
#include <memory>
#include <string_view>
#include <wayland-client.h>

namespace platform {

namespace {

/** The first version of wl_output with names. */
constexpr std::uint32_t kNamedOutputs = 4;

/** Releases a proxy of libwayland. */
template <auto release>
struct Releaser {
    template <class Proxy>
    void operator()(Proxy* proxy) const
    {
        release(proxy);
    }
};

template <class Proxy, auto release>
using Owned = std::unique_ptr<Proxy, Releaser<release>>;

/** What the compositor says of one output. */
struct Output {
    Owned<wl_output, wl_output_destroy> proxy;
    QString name{};
    QSize mode{}; ///< the current one
    bool isUpright = false; ///< turned by a quarter or three
};

using Outputs = std::list<Output>; // listeners keep addresses

void noteGeometry(void* output, wl_output* /*proxy*/, std::int32_t /*x*/, std::int32_t /*y*/,
    std::int32_t /*width*/, std::int32_t /*height*/, std::int32_t /*subpixel*/,
    const char* /*maker*/, const char* /*model*/, std::int32_t transform)
{
    // The odd ones are quarter turns, flipped or not.
    static_cast<Output*>(output)->isUpright = transform % 2 != 0;
}

void noteMode(void* output, wl_output* /*proxy*/, std::uint32_t flags, std::int32_t width,
    std::int32_t height, std::int32_t /*refresh*/)
{
    if ((flags & WL_OUTPUT_MODE_CURRENT) != 0) {
        static_cast<Output*>(output)->mode = {width, height};
    }
}

void noteDone(void* /*output*/, wl_output* /*proxy*/) { }

void noteScale(void* /*output*/, wl_output* /*proxy*/, std::int32_t /*factor*/) { }

void noteName(void* output, wl_output* /*proxy*/, const char* name)
{
    static_cast<Output*>(output)->name = QString::fromUtf8(name);
}

void noteDescription(void* /*output*/, wl_output* /*proxy*/, const char* /*text*/) { }

constexpr wl_output_listener kOutputListener{
    noteGeometry, noteMode, noteDone, noteScale, noteName, noteDescription};

void noteGlobal(void* outputs, wl_registry* registry, std::uint32_t number, const char* interface,
    std::uint32_t version)
{
    if (std::string_view(interface) != wl_output_interface.name || version < kNamedOutputs) {
        return;
    }
    Output& output = static_cast<Outputs*>(outputs)->emplace_back();
    output.proxy.reset(static_cast<wl_output*>(
        wl_registry_bind(registry, number, &wl_output_interface, kNamedOutputs)));
    wl_output_add_listener(output.proxy.get(), &kOutputListener, &output);
}

void noteRemoval(void* /*outputs*/, wl_registry* /*registry*/, std::uint32_t /*number*/) { }

constexpr wl_registry_listener kRegistryListener{noteGlobal, noteRemoval};

} // namespace

QSize waylandOutputPixels(const QString& name)
{
    const Owned<wl_display, wl_display_disconnect> display(wl_display_connect(nullptr));
    if (!display) {
        return {};
    }
    const Owned<wl_registry, wl_registry_destroy> registry(wl_display_get_registry(display.get()));
    Outputs outputs;
    wl_registry_add_listener(registry.get(), &kRegistryListener, &outputs);
    // First the list of outputs, then what each of them says.
    if (wl_display_roundtrip(display.get()) < 0 || wl_display_roundtrip(display.get()) < 0) {
        return {};
    }
    for (const Output& output : outputs) {
        if (output.name == name) {
            return output.isUpright ? output.mode.transposed() : output.mode;
        }
    }
    return {};
}

} // namespace platform
