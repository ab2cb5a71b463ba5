// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Fuzzes what the driver sends to a calibrating panel, from the bytes on the bus to the handler.
// Input: one message as it is on the wire, or steps (see EventMaker.h), each beginning with a byte:
// 0 and an event; 1 and the driver's answer to a query, which is then asked; 2 and the button that
// alerts are answered with; 3 and the bytes with which the settings record begins, after a word for
// their number.

#include "Alerts.h"
#include "DBusAppleEvents.h"
#include "EventMaker.h"
#include "QVCalibrateView.h"
#include "QVDriverProtocol.h"
#include "Service.h"
#include "Sleep.h"
#include "rzkApplication.h"

#include <charconv>
#include <cstring>

using namespace platform;

namespace {

constexpr int kMostSteps = 16;

class FakeAlerts final : public Alerts {
public:
    std::int16_t runStandardAlert(const StandardAlert& alert, QWidget* parent) override
    {
        static_cast<void>(alert);
        static_cast<void>(parent);
        return answer;
    }
    std::int16_t answer = kAlertStdAlertOKButton;

private:
    ServiceScope<Alerts> mScope{*this};
};

class NoSleep final : public Sleep {
public:
    void sleepFor(std::chrono::milliseconds time) override { static_cast<void>(time); }

private:
    ServiceScope<Sleep> mScope{*this};
};

struct Panel {
    Panel() { events.acceptEventsFrom(kQVDriverSignature); }

    FakeBus bus;
    DBusAppleEvents events;
    ServiceScope<AppleEvents> scope{events};
    FakeAlerts alerts;
    NoSleep sleep;
};

/**
 * Resets the calibration, which continues where the last one ended, to a known state: the last
 * accepted point is (0, 0).
 */
void calibrateFromStart()
{
    QVCalibrateView view;
    const auto point = [&view](std::uint16_t place) {
        AEList reports;
        for (const std::uint32_t key : {1U, 0U}) {
            QByteArray report(12, '\0');
            std::memcpy(report.data(), &key, sizeof key);
            std::memcpy(report.data() + 4, &place, sizeof place);
            std::memcpy(report.data() + 6, &place, sizeof place);
            reports.push_back({0, report});
            reports.push_back({});
        }
        AppleEvent reply;
        QVTabletGetDatahandler(
            {kAECoreSuite, kAEGetData, {}, {{keyDirectObject, {typeAEList, reports}}}}, reply,
            &view);
    };
    // One of the first two is far enough from any point, and the third is far enough from the
    // second.
    point(0);
    point(40000);
    point(0);
}

void askDriver(Panel& panel, Input& input)
{
    panel.bus.setAnswer(takeAnswer(input));
    std::strcpy(GetPListName(), "unknown");
    const bool isThere = rzkgetQVDevice();
    const std::string_view name(GetPListName());
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(name.begin(), name.end(), number);
    const bool isNumbered =
        error == std::errc() && number <= 0xFFFF && std::string_view(end, name.end()) == ".plist";
    require(isNumbered || (!isThere && name == "unknown"), "a file is named by 16 bits");
}

void step(Panel& panel, Input& input)
{
    switch (input.byte() % 4) {
    case 0:
        panel.bus.deliver(takeEvent(input));
        break;
    case 1:
        askDriver(panel, input);
        break;
    case 2:
        panel.alerts.answer = static_cast<std::int16_t>(input.byte());
        break;
    default:
        std::ranges::copy(input.bytes(std::min<std::size_t>(input.word(), sizeof qvTabletInfo)),
            reinterpret_cast<std::uint8_t*>(&qvTabletInfo));
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    startApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static auto& panel = *new Panel;
    std::memset(&qvTabletInfo, 0, sizeof qvTabletInfo);
    panel.alerts.answer = kAlertStdAlertOKButton;
    calibrateFromStart();
    QVCalibrateView view;
    view.resize(1920, 1080);
    if (Message message = takeWireMessage({data, size})) {
        panel.bus.deliver(std::move(message));
    } else {
        Input input({data, size});
        for (int i = 0; i < kMostSteps && !input.isEmpty(); ++i) {
            step(panel, input);
        }
    }
    const std::int32_t points = view.changenPointValue(0);
    require(points >= -4 && points <= 4, "a pass has four points");
    panel.events.finishSends();
    return 0;
}
