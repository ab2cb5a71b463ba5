// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "AppleEventWire.h"
#include "BenchSession.h"
#include "Client.h"
#include "NoDiagnostics.h"
#include "Paired.h"
#include "QVDriverProtocol.h"
#include "rzkApplication.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

using namespace platform;

namespace {

constexpr int kTimeOut = 250;

QDBusMessage callOf(const AppleEvent& event)
{
    QDBusMessage call = QDBusMessage::createMethodCall(wire::busName(kQVDriverSignature),
        QLatin1String(wire::kObjectPath), QLatin1String(wire::kInterface),
        QLatin1String(wire::kSendMethod));
    call << event.eventClass << event.eventID << wire::encode(event.parameters);
    return call;
}

/** Captures what the panel sends. */
class Caught final : public AppleEvents {
public:
    AppleEvent event;

    OSErr send(const AppleEvent& sent, AppleEvent* reply, AESendMode mode, AESendPriority priority,
        std::int32_t timeOut) override
    {
        static_cast<void>(reply);
        static_cast<void>(mode);
        static_cast<void>(priority);
        static_cast<void>(timeOut);
        event = sent;
        return noErr;
    }
    OSErr finishSends() override { return noErr; }
    OSErr installEventHandler(AEEventClass, AEEventID, Handler) override { return noErr; }
    OSErr removeEventHandler(AEEventClass, AEEventID) override { return noErr; }
    void acceptEventsFrom(FourCharCode) override { }
};

void pushRecord()
{
    PushQVTabletInfo();
}

/** Floor: QtDBus sends the same bytes in the same form, with the same time-out. */
void push(benchmark::State& state)
{
    BenchSession& session = benchSession();
    const NoDiagnostics quiet;
    QDBusConnection bus = session.events.connection();
    const QByteArray record(reinterpret_cast<const char*>(GetqvTabletInfo()), kQVRecordSize);
    AppleEvent event;
    session.events.createAppleEvent(kQVDriverSignature, kQVSettingsEvent, AEDesc{}, event);
    event.parameters = {{fourCharCode("data"), {typeUTF8Text, record}}};
    std::optional<QDBusPendingCall> pending;
    timePaired(
        state, pushRecord, [&] { pending = bus.asyncCall(callOf(event), kTimeOut); },
        [&] {
            session.events.finishSends();
            if (pending) {
                pending->waitForFinished();
            }
        });
}
BENCHMARK(push)->Iterations(kTurns)->UseManualTime();

/** Floor: QtDBus sends just the same bytes, as one array, to an object that does not exist. */
void pushAgainstPlainBytes(benchmark::State& state)
{
    BenchSession& session = benchSession();
    const NoDiagnostics quiet;
    QDBusConnection bus = session.events.connection();
    const QByteArray record(reinterpret_cast<const char*>(GetqvTabletInfo()), kQVRecordSize);
    std::optional<QDBusPendingCall> pending;
    timePaired(
        state, pushRecord,
        [&] {
            QDBusMessage call = QDBusMessage::createMethodCall(wire::busName(kQVDriverSignature),
                QLatin1String(wire::kObjectPath), QLatin1String(wire::kInterface),
                QLatin1String(wire::kSendMethod));
            call << record;
            pending = bus.asyncCall(call, kTimeOut);
        },
        [&] {
            session.events.finishSends();
            if (pending) {
                pending->waitForFinished();
            }
        });
}
BENCHMARK(pushAgainstPlainBytes)->Iterations(kTurns)->UseManualTime();

/** Floor: QtDBus makes the same call and waits for its reply. */
void query(benchmark::State& state)
{
    BenchSession& session = benchSession();
    QDBusConnection bus = session.events.connection();
    Caught caught;
    {
        const ServiceScope<AppleEvents> scope(caught);
        rzkgetQVDevice();
    }
    timePaired(
        state, rzkgetQVDevice, [&] { bus.call(callOf(caught.event), QDBus::Block, kTimeOut); },
        [] {});
}
BENCHMARK(query)->Iterations(kTurns)->UseManualTime();

} // namespace
