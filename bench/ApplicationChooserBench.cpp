// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ApplicationChooser.h"
#include "Paired.h"
#include "TemporaryHome.h"

#include <QApplication>
#include <QLibrary>
#include <QLineEdit>
#include <QListView>

#include <memory>
#include <optional>

namespace {

constexpr int kApplications = 2000;
constexpr int kFewTurns = 20;

/** A home folder with applications. GLib reads its place once in a process. */
class Installed {
public:
    Installed()
    {
        const QString folder = mHome.path() + QStringLiteral("/data/applications");
        QDir().mkpath(folder);
        qputenv("XDG_DATA_HOME", QFile::encodeName(mHome.path() + QStringLiteral("/data")));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(mHome.path() + QStringLiteral("/none")));
        for (int i = 0; i < kApplications; ++i) {
            const QByteArray number = QByteArray::number(i);
            writeFile(folder + QStringLiteral("/application%1.desktop").arg(i),
                "[Desktop Entry]\nType=Application\nVersion=1.0\nName=Application " + number
                    + "\nName[de]=Anwendung " + number + "\nName[fr]=Application " + number
                    + "\nGenericName=Image Editor\nComment=Creates and edits images\n"
                      "Exec=/bin/sh -c \"true %U\"\nIcon=application-x-executable\n"
                      "Terminal=false\nCategories=Graphics;RasterGraphics;\n"
                      "Keywords=paint;draw;picture;\nMimeType=image/png;image/jpeg;\n");
        }
    }

private:
    TemporaryHome mHome;
};

std::unique_ptr<platform::ApplicationChooser> openChooser()
{
    auto chooser = std::make_unique<platform::ApplicationChooser>(
        nullptr, [](const QString& /*path*/) { return QString(); },
        [](QWidget* /*parent*/) { return std::optional<QString>(); });
    chooser->show();
    chooser->grab(); // has drawn it
    return chooser;
}

/** Floor: GLib lists the same applications. */
void chooser(benchmark::State& state)
{
    static const Installed installed;
    struct List {
        void* data;
        List* next;
        List* previous;
    };
    QLibrary library(QStringLiteral("gio-2.0"), 0);
    const auto all = reinterpret_cast<List* (*)()>(library.resolve("g_app_info_get_all"));
    const auto unref = reinterpret_cast<void (*)(void*)>(library.resolve("g_object_unref"));
    const auto freeList =
        reinterpret_cast<void (*)(List*, void (*)(void*))>(library.resolve("g_list_free_full"));
    if (all == nullptr || unref == nullptr || freeList == nullptr) {
        state.SkipWithError("GLib is not there");
        return;
    }
    std::unique_ptr<platform::ApplicationChooser> opened;
    timePaired(
        state, [&] { opened = openChooser(); }, [&] { freeList(all(), unref); },
        [&] {
            if (opened && opened->findChild<QListView*>()->model()->rowCount() != kApplications) {
                state.SkipWithError("not every application is listed");
            }
            opened.reset();
            QCoreApplication::processEvents();
        });
}
BENCHMARK(chooser)->Iterations(kFewTurns)->UseManualTime();

/** A letter in the search field, until the list is drawn again. Floor: drawing the list. */
void searchChooser(benchmark::State& state)
{
    static const Installed installed;
    const auto opened = openChooser();
    auto& line = *opened->findChild<QLineEdit*>();
    auto& list = *opened->findChild<QListView*>();
    int turn = 0;
    timePaired(
        state,
        [&] {
            line.setText(QStringLiteral("application 1").left(12 + ++turn % 2));
            list.grab();
        },
        [&] { list.grab(); }, [] { QCoreApplication::processEvents(); });
}
BENCHMARK(searchChooser)->Iterations(kFewTurns)->UseManualTime();

} // namespace
