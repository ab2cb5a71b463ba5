// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVNSView.h"

#include "PaneTest.h"
#include "PenInput.h"
#include "QVCalibrateWin.h"
#include "QVDrawView.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

using platform::Notification;

namespace {

QStringList logged;

void keepLog(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    static_cast<void>(type);
    if (QLatin1String(context.category) == QLatin1String("org.quorvia.tablet.pen")) {
        logged.append(text);
    }
}

class Proximity : public PaneTest {
protected:
    void SetUp() override
    {
        mDisplays.change({{0, 0, 800, 600}});
        PaneTest::SetUp();
        show();
        platform::notifications().addObserver(mOwner, kProximityNotification,
            [this](const Notification& notification) { mPosted.push_back(notification); });
    }

    QObject mOwner;
    std::vector<Notification> mPosted;
};

} // namespace

TEST_F(Proximity, isPostedOnceByTheMainViewWithTheEventItself)
{
    PenInput pen(*mWindow, 4711);
    pen.enter();
    PenInput::deliver();
    ASSERT_EQ(mPosted.size(), 1U);
    EXPECT_EQ(mPosted[0].name, QStringLiteral("kProximityNotification"));
    EXPECT_EQ(mPosted[0].object, mWindow.get());
    ASSERT_EQ(mPosted[0].userInfo.size(), 1);
    const auto event = mPosted[0].userInfo.value(QStringLiteral("kProximityEventKey"));
    ASSERT_NE(event, nullptr);
    EXPECT_EQ(event->uniqueID, 4711U);
    EXPECT_TRUE(event->isEnteringProximity);
}

TEST_F(Proximity, isPostedWhicheverPageIsShown)
{
    auto& pages = outlet<QTabWidget>("tabView");
    PenInput pen(*mWindow, 1);
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentIndex(page);
        pen.enter();
        PenInput::deliver();
        EXPECT_EQ(mPosted.size(), static_cast<std::size_t>(page) + 1);
    }
}

TEST_F(Proximity, isPostedByTheCalibrationWindowWhileItIsOpen)
{
    outlet<QPushButton>("mDoCalibrate").click();
    auto* const window = mWindow->findChild<QVCalibrateWin*>();
    ASSERT_NE(window, nullptr);
    PenInput pen(*mWindow, 1);
    pen.enter();
    PenInput::deliver();
    ASSERT_EQ(mPosted.size(), 1U);
    EXPECT_EQ(mPosted[0].object, window);
    window->close();
    pen.leave();
    PenInput::deliver();
    ASSERT_EQ(mPosted.size(), 2U);
    EXPECT_EQ(mPosted[1].object, mWindow.get());
}

TEST_F(Proximity, reachesBothViewsOfThePenPageByOneNotification)
{
    auto& pages = outlet<QTabWidget>("tabView");
    pages.setCurrentWidget(&outlet<QWidget>("penPage"));
    PenInput eraser(*mWindow, 4711, PenInput::End::Eraser);
    eraser.enter();
    PenInput::deliver();
    ASSERT_EQ(mPosted.size(), 1U);
    EXPECT_TRUE(outlet<QVDrawView>("mDrawView").isErasing());
    EXPECT_EQ(outlet<QLabel>("mPenID").text(), QStringLiteral("Eraser, serial number 4711"));
}

TEST_F(Proximity, isNothingToThePaneItself)
{
    const tagQVTabletInfo before = qvTabletInfo;
    mEvents.sent.clear();
    mPane.tabletProximity(std::make_shared<const platform::Event>());
    mPane.handleProximity({kProximityNotification, mWindow.get(), {}});
    EXPECT_TRUE(mPosted.empty());
    EXPECT_TRUE(mEvents.sent.empty());
    EXPECT_EQ(std::memcmp(&before, &qvTabletInfo, sizeof before), 0);
}

TEST_F(Proximity, isNotPostedWhileThePaneIsHidden)
{
    leave();
    PenInput pen(*mWindow, 1);
    pen.enter();
    PenInput::deliver();
    EXPECT_TRUE(mPosted.empty());
}

TEST_F(Proximity, ofATabletPointThereIsOnlyALineInTheLog)
{
    const tagQVTabletInfo before = qvTabletInfo;
    mEvents.sent.clear();
    qInstallMessageHandler(keepLog);
    PenInput pen(*mWindow, 1);
    pen.enter();
    pen.press({2, 2}, 0.5); // beside all controls
    pen.move({2, 2}, 0.75);
    pen.move({3, 2}, 0.75);
    pen.release({3, 2});
    PenInput::deliver();
    qInstallMessageHandler(nullptr);
    EXPECT_EQ(logged, QStringList{QStringLiteral("mouse tabletPoint..............")});
    EXPECT_EQ(mPosted.size(), 1U) << "of the pen that came";
    EXPECT_TRUE(mEvents.sent.empty());
    EXPECT_EQ(std::memcmp(&before, &qvTabletInfo, sizeof before), 0);
}

TEST_F(Proximity, leavesThePenToTheControlsAsAMouse)
{
    auto& pages = outlet<QTabWidget>("tabView");
    pages.setCurrentIndex(0);
    auto& strip = outlet<QCheckBox>("mKeyLScroll");
    int clicks = 0;
    QObject::connect(&strip, &QCheckBox::clicked, [&clicks] { ++clicks; });
    PenInput pen(strip, 1);
    pen.press({5, 5}, 0.5);
    pen.release({5, 5});
    PenInput::deliver();
    EXPECT_EQ(clicks, 1);
}
