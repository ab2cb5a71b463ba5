// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The process that knows the displays, in whose place a script says what a test wants.

#include "DisplayWatcher.h"

#include "PrivateBus.h"
#include "Wait.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace {

/** The user's service manager, with its environment. */
class FakeManager final : public QDBusVirtualObject {
public:
    explicit FakeManager(const QString& address)
        : mBus(QDBusConnection::connectToBus(address, QStringLiteral("manager")))
    {
        EXPECT_TRUE(mBus.registerVirtualObject(
            QStringLiteral("/org/freedesktop/systemd1"), this, QDBusConnection::SubPath));
        EXPECT_TRUE(mBus.registerService(QStringLiteral("org.freedesktop.systemd1")));
    }
    ~FakeManager() override { QDBusConnection::disconnectFromBus(QStringLiteral("manager")); }

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        ++calls;
        EXPECT_EQ(call.arguments().value(1).toString(), QStringLiteral("Environment"));
        bus.send(call.createReply(QVariant::fromValue(QDBusVariant(environment))));
        return true;
    }

    QStringList environment;
    int calls = 0;

private:
    QDBusConnection mBus;
};

class Watcher : public testing::Test {
protected:
    Watcher()
    {
        qunsetenv("WAYLAND_DISPLAY");
        qunsetenv("DISPLAY");
    }
    ~Watcher() override { QDBusConnection::disconnectFromBus(QStringLiteral("driver")); }

    /** Starts to watch by a script, in which "say NAME WIDTH" tells of one display. */
    void start(const QByteArray& script)
    {
        const QString path = mFolder.filePath(QStringLiteral("watch"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n"
                   "say() { printf '{\"displays\":[{\"name\":\"%s\",\"x\":0,\"y\":0,\"width\":%s,"
                   "\"height\":9,\"turns\":0}],\"covered\":{\"x\":0,\"y\":0,\"width\":99,"
                   "\"height\":9}}\\n' \"$1\" \"$2\"; }\n"
                   "cd "
            + mFolder.path().toUtf8() + "\n" + script);
        file.close();
        EXPECT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        mWatcher.emplace(
            QDBusConnection::connectToBus(mBus.address(), QStringLiteral("driver")), path);
        mWatcher->start();
    }

    bool sees(const char* name, double width) const
    {
        return QTest::qWaitFor(
            [&] {
                const Desktop& desktop = mWatcher->desktop().displays;
                return desktop.size() == 1 && desktop[0].name == QLatin1String(name)
                    && desktop[0].bounds.width() == width;
            },
            kPatience);
    }

    /** Runs from one try to the next. */
    const QTimer& pause() const { return *mWatcher->findChild<QTimer*>(); }

    QTemporaryDir mFolder;
    PrivateBus mBus;
    std::optional<DisplayWatcher> mWatcher;
};

} // namespace

TEST_F(Watcher, followsWhatItIsTold)
{
    qputenv("DISPLAY", ":7");
    start("say DP-1 10; say DP-1 20; echo '{}'; echo nonsense; say DP-1 20; say DP-1 30; read end");
    std::vector<double> widths;
    QObject::connect(&*mWatcher, &DisplayWatcher::changed, &*mWatcher,
        [&] { widths.push_back(mWatcher->desktop().displays.at(0).bounds.width()); });
    EXPECT_TRUE(sees("DP-1", 30));
    EXPECT_EQ(widths, (std::vector{10.0, 20.0, 30.0})) << "what makes no sense changes nothing";
}

TEST_F(Watcher, beginsAnewWhenTheProcessEnds)
{
    qputenv("DISPLAY", ":7");
    start("echo x >> starts; say DP-1 $(wc -l < starts); [ $(wc -l < starts) = 3 ] && read end");
    EXPECT_TRUE(sees("DP-1", 3));
}

TEST_F(Watcher, asksTheServiceManagerWhereTheDesktopIs)
{
    FakeManager manager(mBus.address());
    start("say \"$WAYLAND_DISPLAY$XDG_CURRENT_DESKTOP$OTHER\" 5; read end");
    EXPECT_TRUE(QTest::qWaitFor([&] { return manager.calls >= 2; }, kPatience));
    EXPECT_TRUE(mWatcher->desktop().displays.empty()) << "there is no desktop as yet";
    manager.environment = QStringList{QStringLiteral("OTHER=x"),
        QStringLiteral("WAYLAND_DISPLAY=wayland-3"), QStringLiteral("XDG_CURRENT_DESKTOP=KDE")};
    EXPECT_TRUE(sees("wayland-3KDE", 5));
}

TEST_F(Watcher, prefersItsOwnDesktopUntilThatIsGone)
{
    FakeManager manager(mBus.address());
    manager.environment = QStringList{QStringLiteral("DISPLAY=:9")};
    qputenv("DISPLAY", ":7");
    start("say \"$DISPLAY\" 5; while [ \"$DISPLAY\" = :7 ] && [ ! -e gone ]; do sleep 0.1; done\n"
          "[ \"$DISPLAY\" = :7 ] || read end");
    EXPECT_TRUE(sees(":7", 5));
    QFile gone(mFolder.filePath(QStringLiteral("gone")));
    EXPECT_TRUE(gone.open(QIODevice::WriteOnly));
    EXPECT_TRUE(sees(":9", 5));
}

TEST_F(Watcher, knowsNothingOnceItIsStopped)
{
    qputenv("DISPLAY", ":7");
    start("say DP-1 10; echo x >> starts; read end");
    EXPECT_TRUE(sees("DP-1", 10));
    mWatcher->stop();
    EXPECT_TRUE(mWatcher->desktop().displays.empty());
    mWatcher->start();
    EXPECT_TRUE(sees("DP-1", 10));
}

TEST_F(Watcher, asksAgainAfterTheServiceManagerHasNotAnswered)
{
    start("say \"$DISPLAY\" 5; read end");
    EXPECT_TRUE(QTest::qWaitFor([&] { return pause().isActive(); }, kPatience));
    FakeManager manager(mBus.address());
    manager.environment = QStringList{QStringLiteral("DISPLAY=:3")};
    EXPECT_TRUE(sees(":3", 5));
}

TEST_F(Watcher, takesNothingAlongFromADesktopThatIsGone)
{
    FakeManager manager(mBus.address());
    manager.environment = QStringList{QStringLiteral("DISPLAY=:9")};
    qputenv("WAYLAND_DISPLAY", "wayland-7");
    start("[ \"$WAYLAND_DISPLAY\" ] && exit 1; say \"$DISPLAY\" 5; read end");
    EXPECT_TRUE(sees(":9", 5));
}

TEST_F(Watcher, staysOnItsOwnDesktopIfTheServiceManagerKnowsNone)
{
    const FakeManager manager(mBus.address());
    qputenv("DISPLAY", ":7");
    start("echo x >> starts; say \"$DISPLAY\" $(wc -l < starts); [ $(wc -l < starts) = 3 ] && read "
          "end");
    EXPECT_TRUE(sees(":7", 3));
}

TEST_F(Watcher, pausesLongerOnlyAfterAFirstPause)
{
    qputenv("DISPLAY", ":7");
    start("exit 1");
    std::vector<int> pauses;
    QObject::connect(
        &pause(), &QTimer::timeout, &*mWatcher, [&] { pauses.push_back(pause().interval()); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return pauses.size() == 2; }, kPatience));
    EXPECT_EQ(pauses, (std::vector{250, 500}));
}
