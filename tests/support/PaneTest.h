// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeDisplays.h"
#include "FakeEvents.h"
#include "QVDriverProtocol.h"
#include "QVTblt_prefPanePref.h"
#include "SampleConfig.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"

#include <QTabWidget>

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

/** The panel with a driver that answers 7, whose file is the sample, and no bus. */
class PaneTest : public testing::Test {
protected:
    void SetUp() override
    {
        writeFile(mHome.configFile(7), sampleConfig());
        mEvents.answer(7);
        ASSERT_EQ(
            mPane.initWithBundle(platform::Bundle(QStringLiteral(QVTBLT_STAGE_RESOURCES))), &mPane);
        mWindow.reset(mPane.loadMainView());
    }

    template <class Widget>
    Widget& outlet(const char* name)
    {
        auto* const widget = mWindow->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }

    /** Shows the pane as a host does. */
    void show()
    {
        mPane.willSelect();
        mWindow->show();
        mPane.didSelect();
    }

    /** Shows a page of the pane: "keyPage", "penPage" or "displayPage". */
    void showPage(const char* name)
    {
        outlet<QTabWidget>("tabView").setCurrentWidget(&outlet<QWidget>(name));
    }

    /** Uses the font size at which a point of the layout is a pixel. */
    void layOutInPixels()
    {
        QFont font = mWindow->font();
        font.setPixelSize(13);
        mWindow->setFont(font);
    }

    /** Leaves it as a host does. */
    void leave()
    {
        mPane.willUnselect();
        mWindow->hide();
        mPane.didUnselect();
    }

    /** The records pushed so far. */
    std::vector<tagQVTabletInfo> pushes() const
    {
        std::vector<tagQVTabletInfo> records;
        for (const FakeEvents::Sent& sent : mEvents.sent) {
            if (sent.event.eventID == kQVSettingsEvent) {
                const QByteArray bytes = *sent.event.parameters.front().desc.bytes();
                EXPECT_EQ(bytes.size(), 5077);
                std::memcpy(&records.emplace_back(), bytes.constData(), sizeof(tagQVTabletInfo));
            }
        }
        return records;
    }

    tagQVTabletInfo recordInFile()
    {
        const tagQVTabletInfo before = qvTabletInfo;
        EXPECT_TRUE(QVConfigStore().loadRecord(mHome.configFile(7).toStdString()));
        return std::exchange(qvTabletInfo, before);
    }

    TemporaryHome mHome;
    FakeEvents mEvents;
    FakeDisplays mDisplays{{{0, 0, 100, 100}, {100, 0, 100, 100}}};
    QVTblt_prefPanePref mPane;
    std::unique_ptr<QWidget> mWindow;
};
