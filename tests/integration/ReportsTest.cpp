// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The panel and a driver on a real session bus; above all pen reports, end to end.

#include "AppleEventWire.h"
#include "Client.h"
#include "DBusAppleEvents.h"
#include "Peer.h"
#include "PlainWire.h"
#include "PrivateBus.h"
#include "QVCalibrateWin.h"
#include "QVDriverProtocol.h"
#include "QVKeyComboBox.h"
#include "QVTblt_prefPanePref.h"
#include "SampleConfig.h"
#include "Service.h"
#include "TemporaryHome.h"
#include "Wait.h"
#include "rzkApplication.h"

#include <QApplication>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstring>
#include <memory>
#include <numeric>
#include <optional>
#include <thread>
#include <vector>

using namespace platform;
using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

const QString kDriverName = wire::busName(kQVDriverSignature);

/** Returns a report; the number is in the bytes that the panel does not read. */
QByteArray report(std::uint32_t key, std::uint16_t x, std::uint16_t y, std::uint32_t number = 0)
{
    const QVPenReport bytes{key, x, y, number};
    return {reinterpret_cast<const char*>(&bytes), sizeof bytes};
}

std::uint32_t numberOf(const QByteArray& report)
{
    QVPenReport bytes{};
    std::memcpy(&bytes, report.constData(), sizeof bytes);
    return bytes.pressure;
}

/**
 * A driver that answers the query with 7 and pushes with nothing, or an error if it refuses them,
 * and records when pushes arrive.
 */
class ReportingDriver {
public:
    explicit ReportingDriver(const PrivateBus& bus)
        : mPeer(bus, kDriverName)
    {
        mPeer.answer = [this](const QDBusMessage& call) {
            if (call.arguments()[1].toUInt() == kQVSettingsEvent) {
                ++mPushes;
                return refusesPushes
                    ? call.createErrorReply(QDBusError::Failed, QStringLiteral("no"))
                    : call.createReply(parameters({}));
            }
            const std::int32_t number = 7;
            return call.createReply(parameters({TestParameter{keyDirectObject,
                {typeLongInteger,
                    QDBusVariant(
                        QByteArray(reinterpret_cast<const char*>(&number), sizeof number))}}}));
        };
    }

    Peer& peer() { return mPeer; }
    int pushes() const { return mPushes; }

    std::atomic<bool> refusesPushes = false;

private:
    std::atomic<int> mPushes = 0;
    Peer mPeer;
};

/** The panel in its window, with the driver. */
class Panel : public testing::Test {
protected:
    void SetUp() override
    {
        registerPlainWire();
        writeFile(mHome.configFile(7), sampleConfig());
        mPane.initWithBundle(Bundle(QStringLiteral(QVTBLT_STAGE_RESOURCES)));
        mWindow.reset(mPane.loadMainView());
        mPane.willSelect();
        mWindow->show();
        mPane.didSelect();
    }

    /** Runs the panel until the condition holds. */
    template <class Condition>
    static void waitUntil(const Condition& condition)
    {
        ASSERT_TRUE(QTest::qWaitFor(condition, kPatience));
    }

    TemporaryHome mHome;
    PrivateBus mBus;
    DBusAppleEvents mEvents;
    ServiceScope<AppleEvents> mScope{mEvents};
    ReportingDriver mDriver{mBus};
    QVTblt_prefPanePref mPane;
    std::unique_ptr<QWidget> mWindow;
};

/** The panel during a calibration. */
class Reports : public Panel {
protected:
    void SetUp() override
    {
        Panel::SetUp();
        mWindow->findChild<QTabWidget*>()->setCurrentWidget(
            mWindow->findChild<QWidget*>(QStringLiteral("displayPage")));
        button("mDoCalibrate").click();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window(), kPatience));
        waitUntil([this] { return mDriver.pushes() == 1; });
    }

    QPushButton& button(const char* name)
    {
        return *mWindow->findChild<QPushButton*>(QString::fromLatin1(name));
    }
    QVCalibrateWin* window() { return mWindow->findChild<QVCalibrateWin*>(); }
    QVCalibrateView& view() { return window()->view(); }
    int points() { return view().changenPointValue(0); }

    QDBusMessage eventOf(const Descriptors& items)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(mEvents.connection().baseService(),
            QLatin1String(wire::kObjectPath), QLatin1String(wire::kInterface),
            QLatin1String(wire::kSendMethod));
        call.setArguments({kAECoreSuite, kAEGetData,
            parameters(
                {{keyDirectObject, {typeAEList, QDBusVariant(QVariant::fromValue(items))}}})});
        return call;
    }

    static TestDesc item(const QByteArray& bytes)
    {
        return {kQVPenReportType, QDBusVariant(bytes)};
    }

    /** Sends an event and runs the panel until it has answered. */
    QDBusMessage send(Peer& sender, const Descriptors& items)
    {
        const QDBusPendingCall pending = sender.connection().asyncCall(eventOf(items), kPatience);
        waitUntil([&pending] { return pending.isFinished(); });
        return pending.reply();
    }
};

/** How the flood is made. */
constexpr std::uint32_t kEvents = 1000;
constexpr auto kBetweenEvents = 5ms;
constexpr std::uint32_t kReportsInEvent = 100; ///< 20000 in a second
static_assert(kReportsInEvent % 3 != 0);

/**
 * Returns the n-th event of a flood without lifts, unless the receiver misses a report, or reads an
 * item between two of them.
 *
 * Key states repeat as down, neither, up. Without "neither", down and up would be a lift. The
 * number of reports is not a multiple of three, so that each position in an event is tested. The
 * item between down and neither is an up, and that between neither and up is a down.
 */
Descriptors floodEvent(std::uint32_t n)
{
    constexpr std::array<std::uint32_t, 3> kReports{1, 2, 0};
    constexpr std::array<std::uint32_t, 3> kBetween{0, 1, 1};
    Descriptors items;
    items.reserve(2 * kReportsInEvent);
    for (std::uint32_t i = 0; i < kReportsInEvent; ++i) {
        const std::uint32_t number = n * kReportsInEvent + i;
        items.append(
            {kQVPenReportType, QDBusVariant(report(kReports[number % 3], 5000, 5000, number))});
        items.append({kQVPenReportType, QDBusVariant(report(kBetween[number % 3], 9000, 9000))});
    }
    return items;
}

} // namespace

TEST_F(Panel, marksTheKeyThatIsPressedOnTheTablet)
{
    const auto* const box = mWindow->findChild<QVKeyComboBox*>(QStringLiteral("mKey1_3"));
    for (const bool isDown : {true, false}) {
        QDBusMessage signal = QDBusMessage::createSignal(QLatin1String(kQVTabletPath),
            QLatin1String(kQVTabletInterface), QLatin1String(kQVButtonSignal));
        signal << QVariant::fromValue(ushort{2}) << isDown;
        EXPECT_TRUE(mDriver.peer().connection().send(signal));
        waitUntil([&] { return box->isMarked() == isDown; });
    }
}

TEST_F(Panel, checksWithoutBlockingWhetherItsLastChangeWasTaken)
{
    using Status = PreferencePane::CheckedStage::Status;
    int told = 0;
    mPane.setNewsHandler([&told](PreferencePane::News news, const QString&) {
        using News = PreferencePane::News;
        told += news == News::ChangeTaken || news == News::ChangeNotTaken ? 1 : 0;
    });
    const auto pushed = [&] {
        std::optional<Status> status;
        mPane.checkSelf([&status](const PreferencePane::SelfCheck& check) {
            EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
            const auto stage = std::ranges::find(
                check.stages, QStringLiteral("push"), &PreferencePane::CheckedStage::id);
            ASSERT_NE(stage, check.stages.end());
            status = stage->status;
        });
        EXPECT_FALSE(status);
        waitUntil([&status] { return status.has_value(); });
        return status;
    };
    EXPECT_EQ(pushed(), Status::NotChecked) << "there was none";
    for (const bool refuses : {false, true, false}) {
        mDriver.refusesPushes = refuses;
        const int before = told;
        mPane.send();
        waitUntil([&] { return told != before; });
        EXPECT_EQ(pushed(), refuses ? Status::Problem : Status::Ok);
    }
}

TEST_F(Reports, aFloodLosesNothingAndLeavesThePanelAnswering)
{
    std::atomic<std::uint32_t> handled = 0; // number of events
    std::vector<std::uint32_t> seen;
    seen.reserve(std::size_t{kEvents} * kReportsInEvent);
    // Wrap the view's handler to record what it gets.
    mEvents.installEventHandler(
        kAECoreSuite, kAEGetData, [&](const AppleEvent& event, AppleEvent& reply) {
            const auto& list = std::get<AEList>(find(event.parameters, keyDirectObject)->data);
            for (std::size_t i = 0; i < list.size(); i += 2) {
                seen.push_back(numberOf(*list[i].bytes()));
            }
            ++handled;
            return QVTabletGetDatahandler(event, reply, &view());
        });

    std::vector<QDBusPendingCall> answers;
    answers.reserve(kEvents);
    std::atomic<bool> isOver = false;
    std::vector<QDBusMessage> calls;
    for (std::uint32_t n = 0; n < kEvents; ++n) {
        calls.push_back(eventOf(floodEvent(n)));
    }
    std::thread flood([&] {
        const Clock::time_point start = Clock::now();
        for (std::uint32_t n = 0; n < kEvents; ++n) {
            std::this_thread::sleep_until(start + n * kBetweenEvents);
            answers.push_back(mDriver.peer().connection().asyncCall(calls[n], 60000));
        }
    });

    // The window system reports a click; its answer is the push that reaches the driver.
    QPushButton& clicked = button("mDefaultArea");
    QWindow* const target = mWindow->windowHandle();
    const QPointF local = clicked.mapTo(mWindow.get(), clicked.rect().center());
    const QPointF global = clicked.mapToGlobal(clicked.rect().center());
    int answeredInTheFlood = 0;
    std::thread user([&] {
        const Clock::time_point start = Clock::now();
        for (int i = 1; i < 20; ++i) {
            std::this_thread::sleep_until(start + i * 250ms);
            const int before = mDriver.pushes();
            const Clock::time_point click = Clock::now();
            for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                qt_handleMouseEvent(target, local, global,
                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                    Qt::LeftButton, type, Qt::NoModifier, 1000 * i);
            }
            while (mDriver.pushes() == before && Clock::now() - click < kPatience * 1ms) {
                std::this_thread::sleep_for(1ms);
            }
            answeredInTheFlood += mDriver.pushes() != before && handled < kEvents ? 1 : 0;
        }
        isOver = true;
    });
    // Longer than all clicks together may take.
    EXPECT_TRUE(QTest::qWaitFor([&isOver] { return isOver.load(); }, 20 * kPatience));
    flood.join();
    user.join();
    waitUntil([&answers] { return answers.back().isFinished(); });

    for (const QDBusPendingCall& answer : answers) {
        ASSERT_TRUE(answer.isValid()) << qPrintable(answer.error().message());
    }
    std::vector<std::uint32_t> all(std::size_t{kEvents} * kReportsInEvent);
    std::iota(all.begin(), all.end(), 0U);
    EXPECT_EQ(seen, all) << "every event came, in order";
    EXPECT_EQ(points(), 0) << "of every event, every odd item was read, and no other";
    EXPECT_EQ(mDriver.pushes(), 1 + 19);
    // A panel that handles the flood first would answer every click after it. The time of an
    // answer, and how many clicks come before the end, depend on the machine.
    EXPECT_GE(answeredInTheFlood, 1);

    send(mDriver.peer(), {item(report(1, 5000, 5000)), item({}), item(report(0, 5000, 5000))});
    EXPECT_EQ(points(), 1) << "a lift is one still";
}

TEST_F(Reports, fromAnotherProgramThanTheDriverAreRefused)
{
    Peer stranger(mBus);
    testing::internal::CaptureStderr();
    for (const std::uint32_t key : {1U, 0U}) {
        const QDBusMessage answer = send(stranger, {item(report(key, 5000, 5000))});
        EXPECT_EQ(answer.errorName(), QStringLiteral("org.freedesktop.DBus.Error.AccessDenied"));
    }
    EXPECT_NE(testing::internal::GetCapturedStderr().find("rejected an event"), std::string::npos);
    EXPECT_EQ(points(), 0);

    // The stranger's "down" report is not combined with the driver's "up" report.
    send(stranger, {item(report(1, 5000, 5000))});
    send(mDriver.peer(), {item(report(0, 5000, 5000))});
    EXPECT_EQ(points(), 0);
    send(mDriver.peer(), {item(report(1, 5000, 5000))});
    send(mDriver.peer(), {item(report(0, 5000, 5000))});
    EXPECT_EQ(points(), 1);
    EXPECT_EQ(mDriver.pushes(), 1);
}

TEST_F(Reports, areAnsweredBeforeTheUserHasAnsweredTheAlert)
{
    const std::array<std::array<std::uint16_t, 2>, 4> touches{
        {{1000, 1000}, {9000, 1100}, {9100, 5000}, {1100, 5100}}};
    for (std::size_t i = 0; i < 3; ++i) {
        send(mDriver.peer(), {item(report(1, touches[i][0], touches[i][1]))});
        send(mDriver.peer(), {item(report(0, touches[i][0], touches[i][1]))});
    }
    send(mDriver.peer(), {item(report(1, touches[3][0], touches[3][1]))});
    ASSERT_EQ(points(), 3);

    const QDBusPendingCall last = mDriver.peer().connection().asyncCall(
        eventOf({item(report(0, touches[3][0], touches[3][1]))}), 2 * kPatience);
    bool wasAnswered = false;
    bool isOver = false;
    QElapsedTimer open; // since the alert was first seen
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
        auto* const alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (alert == nullptr) {
            return;
        }
        if (!open.isValid()) {
            open.start();
        }
        wasAnswered = last.isFinished();
        if (wasAnswered || open.elapsed() > kPatience) {
            alert->button(QMessageBox::Ok)->click();
            isOver = true;
        }
    });
    user.start(10);
    ASSERT_TRUE(QTest::qWaitFor([&] { return isOver && last.isFinished(); }, 2 * kPatience));
    EXPECT_TRUE(wasAnswered);
    EXPECT_EQ(last.reply().type(), QDBusMessage::ReplyMessage);
}
