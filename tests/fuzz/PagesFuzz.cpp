// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Shows any record on every page of the panel. Input: a byte for the number of displays, then the
// bytes of the record.

#include "FakeDisplays.h"
#include "FakeEvents.h"
#include "Fuzz.h"
#include "QVTblt_prefPanePref.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"

#include <QImage>
#include <QTabWidget>

#include <cstring>
#include <memory>

using namespace platform;

namespace {

constexpr unsigned kMostDisplays = 4;

/** That many displays, from left to right. */
std::vector<Rect> displayRow(unsigned count)
{
    std::vector<Rect> row;
    for (unsigned i = 0; i < count; ++i) {
        row.push_back({1920.0 * i, 0, 1920, 1080});
    }
    return row;
}

/** The panel in its window, with a driver that has a tablet, and no file. */
struct Panel {
    Panel()
    {
        events.answer(7);
        pane.initWithBundle(Bundle(QStringLiteral(QVTBLT_STAGE_RESOURCES)));
        window.reset(pane.loadMainView());
        tabs = window->findChild<QTabWidget*>(QStringLiteral("tabView"));
        require(tabs != nullptr && tabs->count() == 3, "there are three pages");
        picture = QImage(window->size(), QImage::Format_ARGB32_Premultiplied);
    }

    TemporaryHome home;
    FakeEvents events;
    FakeDisplays displays{displayRow(1)};
    QVTblt_prefPanePref pane;
    std::unique_ptr<QWidget> window;
    QTabWidget* tabs = nullptr;
    QImage picture;
};

/** The mapped area follows the displays whenever they are drawn. */
void copyMappedArea(tagQVTabletInfo& to, const tagQVTabletInfo& from)
{
    to.Monitor.XOrg = from.Monitor.XOrg;
    to.Monitor.Width = from.Monitor.Width;
    to.Monitor.YOrg = from.Monitor.YOrg;
    to.Monitor.Height = from.Monitor.Height;
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
    Input input({data, size});
    panel.displays.change(displayRow(input.byte() % (kMostDisplays + 1)));
    const auto bytes = input.bytes(sizeof qvTabletInfo);
    std::memset(&qvTabletInfo, 0, sizeof qvTabletInfo);
    std::ranges::copy(bytes, reinterpret_cast<std::uint8_t*>(&qvTabletInfo));
    tagQVTabletInfo before = qvTabletInfo;

    panel.pane.willSelect();
    panel.window->show();
    panel.pane.didSelect();
    for (int page = 0; page < panel.tabs->count(); ++page) {
        panel.tabs->setCurrentIndex(page);
        panel.tabs->currentWidget()->render(&panel.picture);
    }
    panel.pane.willUnselect();
    panel.window->hide();
    panel.pane.didUnselect();
    QCoreApplication::processEvents();

    copyMappedArea(before, qvTabletInfo);
    require(std::memcmp(&before, &qvTabletInfo, sizeof before) == 0,
        "showing the pages leaves the record");
    panel.events.sent.clear();
    return 0;
}
