// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "BenchSession.h"
#include "Client.h"
#include "NoDiagnostics.h"
#include "Paired.h"
#include "QVKeyComboBox.h"
#include "QVTabletModels.h"
#include "QVTblt_prefPanePref.h"
#include "rzkApplication.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include <array>
#include <cstring>

namespace {

/** A visible panel with a record that uses every kind of item. */
class ShownPane {
public:
    ShownPane()
    {
        mPane.initWithBundle({});
        mView.reset(mPane.loadMainView());
        mPane.willSelect();
        mView->show();
        mPane.didSelect();
        for (std::size_t slot = 0; slot < kQVSlotCount; ++slot) {
            tagQVTabletInfoSubKey& key = qvTabletInfo.Key.SubKey[slot];
            key.Valid = static_cast<std::int16_t>(slot % 7);
            key.Mouse = static_cast<std::int16_t>(slot % 4);
            key.Key = 0x03063836;
            std::strcpy(key.App.data(), "/usr/share/applications/draw.desktop");
        }
        mPane.InitComboBoxWithKey();
        QCoreApplication::processEvents();
    }

    QVTblt_prefPanePref& pane() { return mPane; }
    QVKeyComboBox& box(const char* name)
    {
        return *mView->findChild<QVKeyComboBox*>(QString::fromLatin1(name));
    }

private:
    QVTblt_prefPanePref mPane;
    std::unique_ptr<QWidget> mView;
};

/** Floor: eighteen plain combo boxes on a page are filled with the same ten items. */
void showKeyPage(benchmark::State& state)
{
    benchSession();
    ShownPane shown;
    QWidget page;
    std::array<QComboBox*, kQVSlotCount> bare{};
    for (QComboBox*& box : bare) {
        box = new QComboBox(&page);
    }
    QStringList items;
    const QVKeyComboBox& model = shown.box("mKey1_1");
    for (int i = 0; i < model.count(); ++i) {
        items.append(model.itemText(i));
    }
    page.show();
    timePaired(
        state, [&] { shown.pane().InitComboBoxWithKey(); },
        [&] {
            for (QComboBox* const box : bare) {
                box->clear();
                box->addItems(items);
            }
        },
        [] { QCoreApplication::processEvents(); });
}
BENCHMARK(showKeyPage)->Iterations(kTurns)->UseManualTime();

/** Clicks a row of the box's open list. */
void click(QVKeyComboBox& box, int row)
{
    QWidget* const list = box.view()->viewport();
    const QPointF at = box.view()->visualRect(box.model()->index(row, 0)).center();
    const QPointF global = list->mapToGlobal(at.toPoint());
    for (const QEvent::Type type :
        {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool isDown = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, at, global,
            type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
            isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list, &event);
    }
}

/** From the click on an item of the open list to the driver's answer. Floor: the push alone. */
void choose(benchmark::State& state)
{
    BenchSession& session = benchSession();
    ShownPane shown;
    const NoDiagnostics quiet;
    QVKeyComboBox& box = shown.box("mKey1_1");
    const auto open = [&] {
        QCoreApplication::processEvents();
        if (!box.view()->isVisible()) {
            box.showPopup();
        }
        QCoreApplication::processEvents();
    };
    open();
    // The list ignores clicks right after it was opened.
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    const auto before = DriverProcess::ask<uint>("Pushes");
    int turn = 0;
    timePaired(
        state,
        [&] {
            click(box, 1 + ++turn % 3);
            session.events.finishSends();
        },
        [&] {
            PushQVTabletInfo();
            session.events.finishSends();
        },
        open);
    if (DriverProcess::ask<uint>("Pushes") != before + 2 * static_cast<uint>(state.iterations())) {
        state.SkipWithError("not every click was pushed");
    }
}
BENCHMARK(choose)->Iterations(kTurns)->UseManualTime();

} // namespace
