// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "SettingsExchange.h"

#include <utility>

SettingsExchange::SettingsExchange(const TabletSettings& settings)
    : mInUse(new Version{settings, nullptr})
{
}

SettingsExchange::~SettingsExchange()
{
    delete mPublished.load();
    freeAll(mReplaced.load());
    delete mInUse;
}

void SettingsExchange::publish(const TabletSettings& settings)
{
    delete mPublished.exchange(new Version{settings, nullptr});
    freeAll(mReplaced.exchange(nullptr));
}

const TabletSettings& SettingsExchange::take()
{
    if (Version* const fresh = mPublished.exchange(nullptr)) {
        mInUse->next = mReplaced.load();
        while (!mReplaced.compare_exchange_weak(mInUse->next, mInUse)) { }
        mInUse = fresh;
    }
    return mInUse->settings;
}

void SettingsExchange::freeAll(Version* version)
{
    while (version != nullptr) {
        delete std::exchange(version, version->next);
    }
}
