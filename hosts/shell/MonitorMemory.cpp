// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "MonitorMemory.h"

#include "HomeFolder.h"

#include <QGuiApplication>
#include <QSettings>

#include <algorithm>
#include <array>
#include <utility>

using platform::Monitor;

namespace {

constexpr std::size_t kMostDisplays = 4; ///< that a device can be mapped to

/** The parts of a monitor that are remembered, with their names in the file. */
constexpr std::array kParts{std::pair("maker", &Monitor::maker),
    std::pair("product", &Monitor::product), std::pair("serial", &Monitor::serial),
    std::pair("connector", &Monitor::connector)};

/** The monitors in the order of the display list. */
std::vector<Monitor> currentMonitors()
{
    const platform::Displays& displays = platform::displays();
    std::vector<Monitor> monitors;
    for (const platform::DisplayID display :
        displays.activeDisplays().value_or(std::vector<platform::DisplayID>())) {
        if (monitors.size() < kMostDisplays) {
            monitors.push_back(displays.monitor(display));
        }
    }
    return monitors;
}

QString statePath()
{
    return platform::userStateFolder() + QStringLiteral("/qvtblt/monitors.ini");
}

/** The device's group in the file. */
QString groupOf(const QString& device)
{
    return device + u'-' + QGuiApplication::platformName();
}

} // namespace

std::optional<int> findMonitor(const Monitor& remembered, const std::vector<Monitor>& monitors)
{
    const auto isLike = [&](const Monitor& monitor) {
        return monitor.maker == remembered.maker && monitor.product == remembered.product
            && monitor.serial == remembered.serial;
    };
    const bool isSingle = std::ranges::count_if(monitors, isLike) == 1;
    const auto found = std::ranges::find_if(monitors, [&](const Monitor& monitor) {
        return isLike(monitor) && (isSingle || monitor.connector == remembered.connector);
    });
    return found == monitors.end() ? std::nullopt
                                   : std::optional(static_cast<int>(found - monitors.begin()) + 1);
}

void MonitorMemory::show(const platform::PreferencePane& pane, bool isLoaded)
{
    load(pane.deviceID());
    mNumber = pane.chosenDisplay();
    if (isLoaded && !mChosen && mNumber > 0) {
        choose(pane);
    }
    mShownNumber = mNumber;
    mShown = mChosen;
}

bool MonitorMemory::note(const platform::PreferencePane& pane)
{
    const int number = pane.chosenDisplay();
    if (number == mNumber) {
        return false;
    }
    if (number == mShownNumber && mShown) {
        mNumber = number;
        mChosen = mShown;
        save(pane.deviceID());
    } else {
        choose(pane);
    }
    return true;
}

void MonitorMemory::choose(const platform::PreferencePane& pane)
{
    mNumber = pane.chosenDisplay();
    const std::vector<Monitor> monitors = currentMonitors();
    const auto chosen = static_cast<std::size_t>(mNumber); // a negative one is too large
    // With a single one, there is no choice.
    if (pane.deviceID().isEmpty() || monitors.size() < 2 || chosen > monitors.size()) {
        return;
    }
    mChosen = chosen == 0 ? std::nullopt : std::optional(monitors[chosen - 1]);
    if (mNumber == mShownNumber) {
        mShown = mChosen;
    }
    save(pane.deviceID());
}

std::optional<int> MonitorMemory::moved(const platform::PreferencePane& pane) const
{
    const std::vector<Monitor> monitors = currentMonitors();
    if (!mChosen || monitors.size() < 2 || pane.chosenDisplay() == 0) {
        return std::nullopt;
    }
    const std::optional<int> number = findMonitor(*mChosen, monitors);
    return number == pane.chosenDisplay() ? std::nullopt : number;
}

void MonitorMemory::load(const QString& device)
{
    mChosen.reset();
    if (device.isEmpty()) {
        return;
    }
    QSettings file(statePath(), QSettings::IniFormat);
    file.beginGroup(groupOf(device));
    if (!file.childKeys().isEmpty()) {
        mChosen.emplace();
        for (const auto& [name, part] : kParts) {
            (*mChosen).*part = file.value(QLatin1String(name)).toString();
        }
    }
}

void MonitorMemory::save(const QString& device) const
{
    QSettings file(statePath(), QSettings::IniFormat);
    file.beginGroup(groupOf(device));
    file.remove(QString());
    for (const auto& [name, part] : kParts) {
        if (mChosen) {
            file.setValue(QLatin1String(name), (*mChosen).*part);
        }
    }
}
