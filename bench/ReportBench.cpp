// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "AppleEventWire.h"
#include "BenchSession.h"
#include "Paired.h"
#include "Peer.h"
#include "PlainWire.h"
#include "QVCalibrateView.h"
#include "QVDriverProtocol.h"

#include <QDBusPendingCall>

#include <optional>
#include <utility>

using namespace platform;

namespace {

constexpr int kReports = 20000;

/** A message as received from the bus, with a pen report that is neither down nor up. */
QDBusMessage reportFromTheBus(BenchSession& session)
{
    Peer panel(session.bus);
    panel.answer = [](const QDBusMessage& call) { return call.createReply(); };
    const QByteArray report(12, '\x02');
    const AERecord parameters{{keyDirectObject, {typeAEList, AEList{{kQVPenReportType, report}}}}};
    QDBusMessage call =
        QDBusMessage::createMethodCall(panel.uniqueName(), QLatin1String(wire::kObjectPath),
            QLatin1String(wire::kInterface), QLatin1String(wire::kSendMethod));
    call << kAECoreSuite << kAEGetData << wire::encode(parameters);
    session.events.connection().asyncCall(call).waitForFinished();
    return panel.calls().at(0);
}

/** Floor: QtDBus reads the same message completely into plain values. */
void takeReport(benchmark::State& state)
{
    registerPlainWire();
    const QDBusMessage message = reportFromTheBus(benchSession());
    QVCalibrateView view;
    timePaired(
        state,
        [&] {
            const QList<QVariant> arguments = message.arguments();
            std::optional<AERecord> parameters = wire::decode(arguments[2]);
            const AppleEvent event{arguments[0].toUInt(), arguments[1].toUInt(),
                {typeBusName, message.service().toUtf8()}, std::move(*parameters)};
            AppleEvent reply;
            QVTabletGetDatahandler(event, reply, &view);
        },
        [&] {
            const QList<QVariant> arguments = message.arguments();
            benchmark::DoNotOptimize(arguments[0].toUInt() + arguments[1].toUInt());
            const auto parameters = qdbus_cast<Parameters>(arguments[2]);
            const auto items = qdbus_cast<Descriptors>(parameters[0].desc.data.variant());
            benchmark::DoNotOptimize(items[0].data.variant().toByteArray().constData());
        },
        [] {});
}
BENCHMARK(takeReport)->Iterations(kReports)->UseManualTime();

} // namespace
