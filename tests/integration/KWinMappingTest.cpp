// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The mapping of the virtual pen, with a KWin on a bus of its own.

#include "KWinMapping.h"

#include "PrivateBus.h"
#include "TemporaryHome.h"
#include "VirtualDevices.h"
#include "Wait.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QDir>
#include <QFileSystemWatcher>
#include <QTest>

#include <gtest/gtest.h>

#include <optional>
#include <utility>

namespace {

const QString kService = QStringLiteral("org.kde.KWin");
const QString kManagerPath = QStringLiteral("/org/kde/KWin/InputDevice");
const QString kNode = QStringLiteral("event7");

/** Has one input device, and writes its settings to a file as KWin does: on every change. */
class FakeKWin final : public QDBusVirtualObject {
public:
    FakeKWin(const QString& address, QString file, bool hasDevice = true)
        : mBus(QDBusConnection::connectToBus(address, QStringLiteral("kwin")))
        , mFile(std::move(file))
        , mHasDevice(hasDevice)
    {
        EXPECT_TRUE(mBus.registerVirtualObject(kManagerPath, this, QDBusConnection::SubPath));
        EXPECT_TRUE(mBus.registerService(kService));
    }
    ~FakeKWin() override { QDBusConnection::disconnectFromBus(QStringLiteral("kwin")); }

    /** It has seen the device. */
    void addDevice()
    {
        mHasDevice = true;
        QDBusMessage signal = QDBusMessage::createSignal(kManagerPath,
            QStringLiteral("org.kde.KWin.InputDeviceManager"), QStringLiteral("deviceAdded"));
        signal << kNode;
        EXPECT_TRUE(mBus.send(signal));
    }

    void set(const QString& name, const QVariant& value)
    {
        properties.insert(name, value);
        QFile file(mFile);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Append));
        file.write("changed\n");
    }

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        ++calls;
        if (!mHasDevice || call.path() != kManagerPath + QLatin1Char('/') + kNode) {
            return false;
        }
        const QVariantList words = call.arguments();
        EXPECT_EQ(words.value(0).toString(), QStringLiteral("org.kde.KWin.InputDevice"));
        if (call.member() == QLatin1String("GetAll")) {
            bus.send(call.createReply(QVariant(properties)));
        } else {
            const QVariant value = words.value(2).value<QDBusVariant>().variant();
            set(words.value(1).toString(),
                value.canConvert<QDBusArgument>() ? qdbus_cast<QRectF>(value) : value);
            bus.send(call.createReply());
            ++sets;
        }
        return true;
    }

    QVariantMap properties{{QStringLiteral("name"), QString::fromLatin1(kVirtualPenName)},
        {QStringLiteral("outputName"), QString()},
        {QStringLiteral("outputArea"), QRectF(0, 0, 1, 1)}};
    int calls = 0; ///< with or without an answer
    int sets = 0;

private:
    QDBusConnection mBus;
    QString mFile;
    bool mHasDevice;
};

class KWin : public testing::Test {
protected:
    KWin() { EXPECT_TRUE(QDir().mkpath(mHome.path() + QStringLiteral("/.config"))); }
    ~KWin() override { QDBusConnection::disconnectFromBus(QStringLiteral("driver")); }

    void startKWin(bool hasDevice = true)
    {
        mKWin.emplace(
            mBus.address(), mHome.path() + QStringLiteral("/.config/kcminputrc"), hasDevice);
    }
    void startKWin6()
    {
        startKWin();
        mKWin->properties.insert(QStringLiteral("mapToWorkspace"), false);
    }

    /** A driver with a pen, on two displays. */
    KWinMapping& startDriver()
    {
        mMapping.emplace(QDBusConnection::connectToBus(mBus.address(), QStringLiteral("driver")));
        mMapping->setDesktop({{QStringLiteral("DP-1"), {0, 0, 1000, 500}, 0},
            {QStringLiteral("DP-2"), {1000, 0, 500, 500}, 0}});
        mMapping->setPen(kNode);
        return *mMapping;
    }

    bool isMapped() const
    {
        return mKWin->properties.value(QStringLiteral("mapToWorkspace"), true).toBool()
            && (mKWin->properties.contains(QStringLiteral("mapToWorkspace"))
                || (mKWin->properties.value(QStringLiteral("outputName")) == QStringLiteral("DP-1")
                    && mKWin->properties.value(QStringLiteral("outputArea")).toRectF().width()
                        > 1.5));
    }
    bool becomesMapped() const
    {
        return QTest::qWaitFor([&] { return isMapped(); }, kPatience);
    }

    /** Waits until the driver has an answer to each of its calls. */
    void expectAnswers() const
    {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return mMapping->findChildren<QDBusPendingCallWatcher*>().isEmpty(); },
            kPatience));
    }
    void expectQuestionsAlone() const
    {
        expectAnswers();
        EXPECT_GT(mKWin->calls, 0);
        EXPECT_EQ(mKWin->sets, 0);
    }

    TemporaryHome mHome;
    PrivateBus mBus;
    std::optional<FakeKWin> mKWin;
    std::optional<KWinMapping> mMapping;
};

} // namespace

TEST_F(KWin, isToldOfThePenThatItHas)
{
    startKWin();
    startDriver();
    EXPECT_TRUE(becomesMapped());
}

TEST_F(KWin, isToldToMapThePenToItsWorkspaceIfItCan)
{
    startKWin6();
    startDriver();
    EXPECT_TRUE(becomesMapped());
    EXPECT_EQ(mKWin->properties.value(QStringLiteral("outputName")), QString());
}

TEST_F(KWin, isToldOfAPenThatItSeesLater)
{
    startKWin(false);
    startDriver();
    expectQuestionsAlone();
    mKWin->addDevice();
    EXPECT_TRUE(becomesMapped());
}

TEST_F(KWin, isToldAgainWhenItHasBeenStartedAgain)
{
    startDriver();
    expectAnswers();
    for (int times = 0; times < 2; ++times) {
        startKWin();
        EXPECT_TRUE(becomesMapped());
        mKWin.reset();
    }
}

TEST_F(KWin, isToldAgainWhenTheUserHasChangedIt)
{
    startKWin6();
    startDriver();
    EXPECT_TRUE(becomesMapped());
    for (int times = 0; times < 3; ++times) {
        mKWin->set(QStringLiteral("mapToWorkspace"), false);
        EXPECT_TRUE(becomesMapped());
    }
    mKWin->set(QStringLiteral("outputArea"), QRectF(0, 0, 0.5, 0.5));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return mKWin->properties.value(QStringLiteral("outputArea")).toRectF().width() >= 1;
        },
        kPatience));
}

TEST_F(KWin, isToldAgainWhenItsFileWasDeleted)
{
    startKWin();
    startDriver();
    EXPECT_TRUE(becomesMapped());
    const auto& watched = *mMapping->findChild<QFileSystemWatcher*>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !watched.files().isEmpty(); }, kPatience));
    EXPECT_TRUE(QFile::remove(mHome.path() + QStringLiteral("/.config/kcminputrc")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return watched.files().isEmpty(); }, kPatience));
    expectAnswers();
    for (int times = 0; times < 2; ++times) {
        mKWin->set(QStringLiteral("outputArea"), QRectF(0, 0, 0.5, 0.5));
        EXPECT_TRUE(becomesMapped());
    }
}

TEST_F(KWin, isToldNothingThatItHasAlready)
{
    startKWin6();
    mKWin->properties.insert(QStringLiteral("mapToWorkspace"), true);
    mKWin->properties.insert(
        QStringLiteral("outputArea"), QRectF(0, 0, 1500.0 / 1499 + 1e-6, 500.0 / 499 + 1e-6));
    startDriver();
    expectQuestionsAlone();
}

TEST_F(KWin, followsTheDisplays)
{
    startKWin();
    KWinMapping& mapping = startDriver();
    EXPECT_TRUE(becomesMapped());
    int changes = 0;
    QObject::connect(&mapping, &KWinMapping::changed, &mapping, [&] { ++changes; });
    mapping.setDesktop({{QStringLiteral("DP-3"), {0, 0, 500, 1000}, 1}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return mapping.turns() == 1; }, kPatience));
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return mKWin->properties.value(QStringLiteral("outputName")) == QStringLiteral("DP-3");
        },
        kPatience));
}

TEST_F(KWin, turnsNothingAnyMoreOnceItIsGone)
{
    startKWin();
    KWinMapping& mapping = startDriver();
    mapping.setDesktop({{QStringLiteral("DP-3"), {0, 0, 500, 1000}, 1}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return mapping.turns() == 1; }, kPatience));
    mKWin.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return mapping.turns() == 0; }, kPatience));
}

TEST_F(KWin, isToldNothingOfAnotherDevice)
{
    startKWin6();
    mKWin->properties.insert(QStringLiteral("name"), QStringLiteral("Acme Pen"));
    startDriver();
    expectQuestionsAlone();
}

TEST_F(KWin, isNotMissedWithoutABus)
{
    KWinMapping mapping{QDBusConnection(QStringLiteral("no bus"))};
    mapping.setPen(kNode);
    mapping.setDesktop({});
    EXPECT_EQ(mapping.turns(), 0);
}
