// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Paired.h"
#include "QVConfigStore.h"
#include "SampleConfig.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"

#include <QXmlStreamReader>

#include <benchmark/benchmark.h>
#include <plist/plist.h>

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/** A full configuration file in a temporary home folder. */
struct Files {
    Files()
    {
        std::strcpy(GetPListName(), "7.plist");
        writeFile(QString::fromStdString(path), sampleConfig());
        // Convert it to the form in which the panel writes it.
        store.ReadQVConfigPlist();
        store.WriteQVConfigPlist();
    }

    TemporaryHome home;
    std::string path = home.configFile(7).toStdString();
    QVConfigStore store;
};

std::string contents(const std::string& path)
{
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status { };
    ::fstat(file, &status);
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    benchmark::DoNotOptimize(::read(file, bytes.data(), bytes.size()));
    ::close(file);
    return bytes;
}

/** Reads the XML and discards the result. */
void walk(const std::string& bytes)
{
    QXmlStreamReader xml(QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size())));
    while (!xml.atEnd()) {
        benchmark::DoNotOptimize(xml.readNext());
    }
}

/** Floor: the file is read, and Qt's reader parses it. */
void load(benchmark::State& state)
{
    Files files;
    timePaired(
        state, [&] { files.store.ReadQVConfigPlist(); }, [&] { walk(contents(files.path)); },
        [] {});
}
BENCHMARK(load)->Iterations(kTurns)->UseManualTime();

/** Floor: the file is read and libplist parses it. */
void loadAgainstLibplist(benchmark::State& state)
{
    Files files;
    timePaired(
        state, [&] { files.store.ReadQVConfigPlist(); },
        [&] {
            const std::string bytes = contents(files.path);
            plist_t list = nullptr;
            plist_from_xml(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &list);
            plist_free(list);
        },
        [] {});
}
BENCHMARK(loadAgainstLibplist)->Iterations(kTurns)->UseManualTime();

/** Floor: Qt's reader parses the file before and after it is written, flushed and renamed. */
void save(benchmark::State& state)
{
    Files files;
    const std::string temporary = files.path + ".new";
    timePaired(
        state, [&] { files.store.WriteQVConfigPlist(); },
        [&] {
            const std::string xml = contents(files.path);
            walk(xml);
            walk(xml);
            const int file =
                ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
            benchmark::DoNotOptimize(::write(file, xml.data(), xml.size()));
            ::fsync(file);
            ::close(file);
            std::rename(temporary.c_str(), files.path.c_str());
        },
        [] {});
}
BENCHMARK(save)->Iterations(kTurns)->UseManualTime();

} // namespace
