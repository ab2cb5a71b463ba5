// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Paired.h"
#include "QVConfigStore.h"
#include "SampleConfig.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"

#include <benchmark/benchmark.h>
#include <plist/plist.h>

#include <cstdio>
#include <cstdlib>
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

/** The file, read and parsed by libplist. */
plist_t parse(const std::string& path)
{
    const std::string bytes = contents(path);
    plist_t list = nullptr;
    plist_from_xml(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &list);
    return list;
}

/** Floor: the file is read and libplist parses it. */
void load(benchmark::State& state)
{
    Files files;
    timePaired(
        state, [&] { files.store.ReadQVConfigPlist(); }, [&] { plist_free(parse(files.path)); },
        [] {});
}
BENCHMARK(load)->Iterations(kTurns)->UseManualTime();

/** Floor: libplist parses and serialises the file, which is written, flushed and renamed. */
void save(benchmark::State& state)
{
    Files files;
    const std::string temporary = files.path + ".new";
    timePaired(
        state, [&] { files.store.WriteQVConfigPlist(); },
        [&] {
            plist_t const list = parse(files.path);
            char* xml = nullptr;
            std::uint32_t length = 0;
            plist_to_xml(list, &xml, &length);
            const int file =
                ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
            benchmark::DoNotOptimize(::write(file, xml, length));
            ::fsync(file);
            ::close(file);
            std::rename(temporary.c_str(), files.path.c_str());
            std::free(xml); // libplist's own function for that has another name in each release
            plist_free(list);
        },
        [] {});
}
BENCHMARK(save)->Iterations(kTurns)->UseManualTime();

} // namespace
