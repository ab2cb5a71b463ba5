// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Fuzzes what is sent to the driver, from the bytes on the bus to the driver's state and its
// window. Input: one message as it is on the wire, or steps (see EventMaker.h), each beginning with
// a byte: 0 and an event; 1 and a call of the simulated tablet, a byte for its name and three
// words, of which the first is the number of arguments; 2 and two bytes, at which place of the
// tablet's window the mouse is pressed. The window is opened when it is first needed, and checked
// at the end.

#include "DBusAppleEvents.h"
#include "Driver.h"
#include "EventMaker.h"
#include "QVDriverProtocol.h"
#include "QVTabletModels.h"
#include "TabletSimulator.h"
#include "TabletSurface.h"
#include "TabletWindow.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"

#include <QCoreApplication>
#include <QImage>
#include <QMouseEvent>
#include <QToolButton>

#include <array>
#include <cstring>
#include <memory>

using namespace platform;

namespace {

constexpr int kMostSteps = 16;

struct Bus {
    Bus()
    {
        require(events.registerApplication(kQVDriverSignature).has_value(), "the name is free");
    }

    TemporaryHome home;
    FakeBus bus;
    DBusAppleEvents events;
};

/** A call of the simulated tablet; null for one that would only waste time. */
Message takeSimulatorCall(Input& input)
{
    // Without Stall, which only makes the driver sleep.
    constexpr std::array kMembers{"Attach", "Detach", "Attached", "Tap", "SetReportRate", "Pushes",
        "LastRecord", "LastRecordDecoded", "Models", "Unknown"};
    Message call(dbus_message_new_method_call(FakeBus::kProgram, kQVSimulatorPath,
        kQVSimulatorInterface, kMembers[input.byte() % kMembers.size()]));
    const int count = input.word() % 4;
    for (int i = 0; i < count; ++i) {
        const dbus_uint16_t number = input.word();
        const dbus_uint32_t wide = number;
        if (dbus_message_has_member(call.get(), "SetReportRate") != 0) {
            dbus_message_append_args(call.get(), DBUS_TYPE_UINT32, &wide, DBUS_TYPE_INVALID);
        } else {
            dbus_message_append_args(call.get(), DBUS_TYPE_UINT16, &number, DBUS_TYPE_INVALID);
        }
    }
    return call;
}

/** The driver as in its program. */
struct Program {
    explicit Program(Bus& itsBus)
        : bus(itsBus)
    {
        bus.events.connection().registerObject(QLatin1String(kQVSimulatorPath), &simulator,
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        require(driver.startSimulation(kQVTabletModels.front().productID).has_value(),
            "there is a tablet");
    }

    Bus& bus;
    Driver driver{bus.events, bus.events.connection()};
    TabletSimulator simulator{driver};
    std::unique_ptr<TabletWindow> window;
};

void touch(Program& program, Input& input)
{
    if (program.window == nullptr) {
        program.window = std::make_unique<TabletWindow>(program.driver);
        program.window->show();
    }
    const TabletWindow& window = *program.window;
    auto& surface = *window.findChild<TabletSurface*>();
    const QPointF place(
        input.byte() * surface.width() / 255.0, input.byte() * surface.height() / 255.0);
    const auto send = [&](QEvent::Type type, Qt::MouseButtons buttons) {
        QMouseEvent event(
            type, place, surface.mapToGlobal(place), Qt::LeftButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&surface, &event);
    };
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::NoButton);
}

void step(Program& program, Input& input)
{
    switch (input.byte() % 3) {
    case 0:
        program.bus.bus.deliver(takeEvent(input));
        break;
    case 1:
        program.bus.bus.deliver(takeSimulatorCall(input));
        break;
    default:
        touch(program, input);
        break;
    }
}

/** Checks all that the window shows of the driver. */
void look(TabletWindow& window)
{
    const auto buttons = window.findChildren<QToolButton*>();
    for (QToolButton* const button : buttons) {
        button->click();
        QCoreApplication::sendPostedEvents(); // lays out what it tells
    }
    constexpr QSize kScreen{1280, 1024};
    require(window.size().boundedTo(kScreen) == window.size(), "the window fits on a screen");
    static QImage picture(kScreen, QImage::Format_ARGB32_Premultiplied);
    window.render(&picture);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    startApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static auto& bus = *new Bus;
    require(DriverState().save().has_value(), "the state can be saved");
    Program program(bus);
    Driver& driver = program.driver;

    if (Message message = takeWireMessage({data, size})) {
        if (dbus_message_has_member(message.get(), "Stall") == 0) {
            bus.bus.deliver(std::move(message));
        }
    } else {
        Input input({data, size});
        for (int i = 0; i < kMostSteps && !input.isEmpty(); ++i) {
            step(program, input);
        }
    }
    if (program.window != nullptr) {
        look(*program.window);
    }

    const QByteArray record = driver.lastRecord();
    require(record.size() == (driver.pushes() == 0 ? 0 : kQVRecordSize), "a push is a record");
    require(driver.attached() == 0 || QVFindModel(driver.attached()) != nullptr,
        "the tablet is of a known model");
    driver.saveState();
    const auto state = DriverState::load();
    require(state && state->record == record && state->pushes == driver.pushes()
            && state->attached == driver.attached(),
        "what is saved can be loaded");
    bus.events.finishSends();
    return 0;
}
