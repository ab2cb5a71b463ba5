// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Displays.h"
#include "Service.h"

#include <QGuiApplication>

#include <utility>
#include <vector>

/** Displays with given bounds, which replace the desktop's for its lifetime. */
class FakeDisplays final : public platform::Displays {
public:
    explicit FakeDisplays(std::vector<platform::Rect> bounds)
        : mBounds(std::move(bounds))
        , mScope(*this)
    {
    }

    std::optional<std::uint32_t> activeDisplayCount() const override
    {
        return failCount ? std::nullopt : std::optional(static_cast<std::uint32_t>(mBounds.size()));
    }

    std::optional<std::vector<platform::DisplayID>> activeDisplays() const override
    {
        if (failList) {
            return std::nullopt;
        }
        std::vector<platform::DisplayID> displays;
        for (std::size_t i = 0; i < mBounds.size(); ++i) {
            displays.push_back(kFirstID + static_cast<platform::DisplayID>(i));
        }
        return displays;
    }

    platform::Rect bounds(platform::DisplayID display) const override
    {
        return mBounds.at(display - kFirstID);
    }

    bool isMain(platform::DisplayID display) const override { return display == kFirstID + main; }

    platform::Monitor monitor(platform::DisplayID display) const override
    {
        const std::size_t index = display - kFirstID;
        return index < monitors.size() ? monitors[index] : platform::Monitor();
    }

    QSize pixels(platform::DisplayID display) const override
    {
        const std::size_t index = display - kFirstID;
        return index < sizes.size() ? sizes[index] : QSize();
    }

    QScreen* screen(platform::DisplayID display) const override
    {
        return sharesScreen || display == kFirstID + main ? QGuiApplication::primaryScreen()
                                                          : nullptr;
    }

    /** Changes the displays as the desktop does, with notifications for each before and after. */
    void change(std::vector<platform::Rect> bounds)
    {
        tell(platform::kDisplayBeginConfiguration);
        mBounds = std::move(bounds);
        tell(platform::kDisplaySetMode);
    }
    /** Sends a notification for each display. */
    void tell(std::uint32_t flags)
    {
        for (std::size_t i = 0; i < mBounds.size(); ++i) {
            Q_EMIT reconfigured(kFirstID + static_cast<platform::DisplayID>(i), flags);
        }
    }

    std::uint32_t main = 0; ///< index of the main display
    std::vector<platform::Monitor> monitors; ///< in the order of the displays
    std::vector<QSize> sizes; ///< in pixels, in the same order
    bool sharesScreen = false; ///< the others are shown on the main display's screen, too
    bool failCount = false; ///< the window system does not return the number of displays
    bool failList = false; ///< nor the list

private:
    static constexpr platform::DisplayID kFirstID = 100;

    std::vector<platform::Rect> mBounds;
    platform::ServiceScope<platform::Displays> mScope;
};
