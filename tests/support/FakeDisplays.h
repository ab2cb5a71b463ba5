// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Displays.h"
#include "Service.h"

#include <vector>

/** Displays with given bounds, in the place of the desktop's for as long as it lives. */
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

    bool failCount = false; ///< the window system does not tell how many there are
    bool failList = false; ///< nor which

private:
    static constexpr platform::DisplayID kFirstID = 100;

    std::vector<platform::Rect> mBounds;
    platform::ServiceScope<platform::Displays> mScope;
};
