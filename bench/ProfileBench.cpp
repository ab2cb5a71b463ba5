// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "BenchSession.h"
#include "Client.h"
#include "NoDiagnostics.h"
#include "Paired.h"
#include "QVConfigStore.h"
#include "QVProfileFolder.h"
#include "QVProfileSwitch.h"
#include "rzkApplication.h"

#include <QFile>

#include <benchmark/benchmark.h>
#include <plist/plist.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <vector>

namespace {

/** Switches as a panel does, which knows its tablet. */
class PanelsSwitch final : public QVProfileSwitch {
public:
    using QVProfileSwitch::QVProfileSwitch;

    /** When the driver had accepted the record. */
    std::chrono::steady_clock::time_point pushed() const { return mPushed; }

protected:
    platform::Result<> attach() override { return {}; }
    platform::Result<> push() override
    {
        const platform::Result<> result = QVProfileSwitch::push();
        mPushed = std::chrono::steady_clock::now();
        return result;
    }

private:
    std::chrono::steady_clock::time_point mPushed;
};

/** From the call to the bytes at the driver. Floor: the file is loaded, and the record pushed. */
void useProfile(benchmark::State& state)
{
    static_cast<void>(benchSession());
    const NoDiagnostics quiet;
    QVConfigStore store;
    if (!store.loadAttachedTablet()) {
        state.SkipWithError("there is no tablet");
        return;
    }
    const QVProfileFolder folder(QVProductID(qvTabletInfo));
    const std::array names{QStringLiteral("Painting"), QStringLiteral("Sculpting")};
    for (const QString& name : names) {
        QVProfile profile = QVProfileOf(qvTabletInfo, name);
        profile.settings.Pen.PressureThreshold = static_cast<std::int16_t>(name.size());
        if (!folder.save(profile)) {
            state.SkipWithError("a profile cannot be saved");
            return;
        }
    }
    PanelsSwitch profiles(store);
    std::size_t turn = 0;
    timePaired(
        state,
        [&] {
            if (!profiles.use(names[++turn % names.size()])) {
                state.SkipWithError("the profile cannot be used");
            }
            return profiles.pushed();
        },
        [&] {
            static_cast<void>(store.loadTabletsRecord());
            static_cast<void>(QVPushAndWait());
        },
        [] {});
}
BENCHMARK(useProfile)->Iterations(kTurns)->UseManualTime();

/** Two hundred profiles. Floor: libplist parses their files. */
void listProfiles(benchmark::State& state)
{
    constexpr int kProfiles = 200;
    const TemporaryHome home;
    const QVProfileFolder folder(7);
    tagQVTabletInfo record{};
    record.Basic.ProductID = 7;
    for (int i = 0; i < kProfiles; ++i) {
        if (!folder.save(QVProfileOf(record, QStringLiteral("Profile %1").arg(i)))) {
            state.SkipWithError("a profile cannot be saved");
            return;
        }
    }
    const std::vector<QVProfileFolder::Item> all = folder.list();
    timePaired(
        state, [&] { benchmark::DoNotOptimize(folder.list()); },
        [&] {
            for (const QVProfileFolder::Item& item : all) {
                const QByteArray bytes = readFile(item.path);
                plist_t list = nullptr;
                plist_from_xml(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &list);
                plist_free(list);
            }
        },
        [] {});
}
BENCHMARK(listProfiles)->Iterations(50)->UseManualTime();

} // namespace
