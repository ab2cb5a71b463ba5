// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVProfileSwitch.h"

#include "FakeDisplays.h"
#include "FakeEvents.h"
#include "FakeUsb.h"
#include "FileSizeLimit.h"
#include "QVConfigStore.h"
#include "QVDriverProtocol.h"
#include "SampleConfig.h"
#include "TemporaryHome.h"

#include <QFile>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace {

/** Notes what it has told. */
class NotedSwitch final : public QVProfileSwitch {
public:
    using QVProfileSwitch::QVProfileSwitch;

    std::vector<int> shown; ///< the pressures to be shown
    std::vector<bool> changes; ///< whether the settings were those of another profile

protected:
    void show() override { shown.push_back(qvTabletInfo.Pen.PressureThreshold); }
    void changed(bool isOther) override { changes.push_back(isOther); }
};

/** A driver with the sample's tablet, and no panel. */
class Switch : public testing::Test {
protected:
    Switch()
    {
        qvTabletInfo = {};
        writeFile(mHome.configFile(7), sampleConfig());
        mEvents.answer(7);
    }

    /** Makes a profile from the sample with another pressure. */
    void make(const QString& name, std::int16_t pressure, const QStringList& applications = {})
    {
        tagQVTabletInfo record = sampleRecord();
        record.Pen.PressureThreshold = pressure;
        QVProfile profile = QVProfileOf(record, name);
        profile.applications = applications;
        ASSERT_TRUE(QVProfileFolder(2).save(profile));
    }

    /** The pressures pushed since the last call. */
    std::vector<int> pushes()
    {
        std::vector<int> pressures;
        for (const FakeEvents::Sent& sent : mEvents.sent) {
            if (sent.event.eventID == kQVSettingsEvent) {
                tagQVTabletInfo record{};
                std::memcpy(&record, sent.event.parameters.front().desc.bytes()->constData(),
                    sizeof record);
                pressures.push_back(record.Pen.PressureThreshold);
            }
        }
        mEvents.sent.clear();
        return pressures;
    }

    tagQVTabletInfo inFile()
    {
        const tagQVTabletInfo before = qvTabletInfo;
        EXPECT_TRUE(QVConfigStore().loadRecord(mHome.configFile(7).toStdString()));
        return std::exchange(qvTabletInfo, before);
    }

    QStringList names() { return mSwitch.names().value_or(QStringList()); }

    static QString text(const platform::Result<>& result)
    {
        return result ? QString() : result.error().text;
    }

    TemporaryHome mHome;
    FakeEvents mEvents;
    FakeDisplays mDisplays{{{0, 0, 100, 100}, {100, 0, 200, 100}}};
    QVConfigStore mStore;
    NotedSwitch mSwitch{mStore};
};

const QString kA = QStringLiteral("A");
const QString kB = QStringLiteral("B");

} // namespace

TEST_F(Switch, putsAProfileIntoTheFileAndPushesItOnce)
{
    make(kA, 50);
    ASSERT_TRUE(mSwitch.use(kA));
    EXPECT_EQ(pushes(), std::vector<int>{50});
    tagQVTabletInfo expected = sampleRecord();
    expected.Pen.PressureThreshold = 50;
    EXPECT_TRUE(sameBytes(inFile(), expected)) << "also the tablet's own entries";
    EXPECT_EQ(*mSwitch.current(), kA);
    EXPECT_EQ(QVProfileChoice::load(2).chosen, kA);
}

TEST_F(Switch, keepsTheSettingsOfAUserWhoHadNoProfiles)
{
    make(kA, 50);
    ASSERT_TRUE(mSwitch.use(kA));
    const QString before = QStringLiteral("Before A");
    EXPECT_EQ(names(), (QStringList{kA, before}));
    EXPECT_EQ(+QVProfileFolder(2).load(before)->settings.Pen.PressureThreshold, 12);
    ASSERT_TRUE(mSwitch.use(before));
    ASSERT_TRUE(mSwitch.use(kA));
    EXPECT_EQ(names(), (QStringList{kA, before})) << "it is kept already";
}

TEST_F(Switch, canBeTriedAgainWhenTheDriverHasNotAcceptedIt)
{
    make(kA, 50, {QStringLiteral("paint")});
    mEvents.onSend = [this] {
        // The query is the first.
        mEvents.sendResult = mEvents.sent.empty() ? platform::noErr : platform::errAETimeout;
    };
    EXPECT_FALSE(mSwitch.useFor({QStringLiteral("paint")}));
    EXPECT_NE(QVProfileChoice::load(2).current, kA);
    mEvents.onSend = nullptr;
    mEvents.sendResult = platform::noErr;
    EXPECT_TRUE(mSwitch.useFor({QStringLiteral("paint")}));
    EXPECT_EQ(*mSwitch.current(), kA);
}

TEST_F(Switch, saysWhyItCannot)
{
    EXPECT_EQ(text(mSwitch.use(kA)), QString::fromUtf8("There is no profile “A”."));
    make(kA, 50);
    mEvents.answer(0);
    EXPECT_EQ(text(mSwitch.use(kA)), QStringLiteral("no tablet is attached"));
    mEvents.answer(7);
    QFile::remove(mHome.configFile(7));
    EXPECT_TRUE(text(mSwitch.use(kA)).startsWith(QStringLiteral("cannot read ")));
    EXPECT_EQ(pushes(), std::vector<int>{});
    EXPECT_FALSE(mSwitch.current());
}

TEST_F(Switch, keepsWhatNoProfileHas)
{
    make(kA, 12);
    make(kB, 60);
    ASSERT_TRUE(mSwitch.use(kA));
    ASSERT_TRUE(mSwitch.use(kB));
    ASSERT_TRUE(mSwitch.use(kA));
    EXPECT_EQ(names(), (QStringList{kA, kB})) << "nothing was edited";
    ASSERT_TRUE(mSwitch.set(QStringLiteral("Pen/PressureThreshold"), QStringLiteral("55")));
    ASSERT_TRUE(mSwitch.use(kB));
    const QString before = QStringLiteral("Before B");
    EXPECT_EQ(names(), (QStringList{kA, kB, before}));
    EXPECT_EQ(+QVProfileFolder(2).load(before)->settings.Pen.PressureThreshold, 55);
    ASSERT_TRUE(mSwitch.use(before));
    EXPECT_EQ(+inFile().Pen.PressureThreshold, 55);
    ASSERT_TRUE(mSwitch.set(QStringLiteral("Pen/PressureThreshold"), QStringLiteral("56")));
    ASSERT_TRUE(mSwitch.use(kB));
    EXPECT_EQ(names(), (QStringList{kA, kB, before, QStringLiteral("Before B 2")}));
}

TEST_F(Switch, shortensALongNameAsLittleAsItCan)
{
    make(kA, 12);
    int pressure = 55;
    for (const QString& character : {QStringLiteral("x"), QStringLiteral("🖊")}) {
        const QString name = character.repeated(64);
        make(name, 50);
        ASSERT_TRUE(mSwitch.use(kA));
        ASSERT_TRUE(
            mSwitch.set(QStringLiteral("Pen/PressureThreshold"), QString::number(pressure++)));
        ASSERT_TRUE(mSwitch.use(name));
        const QString before = QStringLiteral("Before ") + character.repeated(57);
        EXPECT_TRUE(names().contains(before)) << names().join(u'\n').toStdString();
    }
}

TEST_F(Switch, changesNothingWhenTheDiskIsFull)
{
    make(kA, 50, {QStringLiteral("paint")});
    {
        // There is no room for a profile with the settings as they are.
        const FileSizeLimit full(0);
        EXPECT_FALSE(mSwitch.use(kA));
        EXPECT_FALSE(mSwitch.useFor({QStringLiteral("paint")}));
        EXPECT_FALSE(mSwitch.save(kB));
    }
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 12);
    make(kB, 12);
    ASSERT_TRUE(mSwitch.use(kB));
    pushes();
    mSwitch.changes.clear();
    {
        // Nor is there for the tablet's file.
        const FileSizeLimit full(0);
        EXPECT_FALSE(mSwitch.use(kA));
        EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 12);
    }
    EXPECT_TRUE(pushes().empty());
    EXPECT_EQ(*mSwitch.current(), kB);
    EXPECT_TRUE(mSwitch.changes.empty());
}

TEST_F(Switch, tellsWhetherTheSettingsAreThoseOfAnotherProfile)
{
    const QString pressure = QStringLiteral("Pen/PressureThreshold");
    using Changes = std::vector<bool>;
    const auto told = [this] { return std::exchange(mSwitch.changes, {}); };
    make(kA, 50);
    EXPECT_FALSE(mSwitch.use(kB));
    EXPECT_EQ(told(), Changes());
    ASSERT_TRUE(mSwitch.use(kA));
    EXPECT_EQ(told(), Changes{true});
    ASSERT_TRUE(mSwitch.set(pressure, QStringLiteral("55")));
    EXPECT_EQ(told(), Changes{false});
    ASSERT_TRUE(mSwitch.edit({{pressure, QStringLiteral("56")}}));
    EXPECT_EQ(told(), Changes{false});
    ASSERT_TRUE(mSwitch.save(kB));
    EXPECT_EQ(told(), Changes{false});
    ASSERT_TRUE(mSwitch.rename(kB, QStringLiteral("C")));
    EXPECT_EQ(told(), Changes{false});
    ASSERT_TRUE(mSwitch.remove(QStringLiteral("C")));
    EXPECT_EQ(told(), Changes{false});
    EXPECT_EQ(mSwitch.shown, (std::vector<int>{50, 55, 56}));
}

TEST_F(Switch, asksTheTabletForTheReportSpeedOfAProfile)
{
    FakeUsb usb;
    usb.devices.resize(1);
    tagQVTabletInfo record = sampleRecord();
    record.Monitor.Speed = kQVSpeedFast;
    ASSERT_TRUE(QVProfileFolder(2).save(QVProfileOf(record, kA)));
    record.Pen.PressureThreshold = 50;
    ASSERT_TRUE(QVProfileFolder(2).save(QVProfileOf(record, kB)));
    ASSERT_TRUE(mSwitch.use(kA));
    ASSERT_EQ(usb.data.size(), 1U);
    EXPECT_EQ(usb.data[0], (std::vector<std::uint8_t>{4, 1}));
    ASSERT_TRUE(mSwitch.use(kB));
    EXPECT_EQ(usb.data.size(), 1U) << "it has that speed already";
}

TEST_F(Switch, goesRoundWithNext)
{
    EXPECT_EQ(mSwitch.useNext().error().text, QStringLiteral("There are no profiles."));
    make(kB, 12);
    make(kA, 50);
    EXPECT_EQ(*mSwitch.useNext(), kA);
    EXPECT_EQ(*mSwitch.useNext(), kB);
    EXPECT_EQ(*mSwitch.useNext(), kA);
    EXPECT_EQ(pushes(), (std::vector<int>{50, 12, 50}));
}

TEST_F(Switch, followsTheApplicationInFront)
{
    make(kA, 50, {QStringLiteral("org.example.Paint")});
    make(kB, 60, {QStringLiteral("cad"), QStringLiteral("org.example.paint")});
    const QStringList paint{QStringLiteral("org.example.PAINT")};
    const QStringList cad{QStringLiteral("x"), QStringLiteral("CAD")};
    const QStringList other{QStringLiteral("browser")};

    ASSERT_TRUE(mSwitch.useFor(other));
    EXPECT_EQ(pushes(), std::vector<int>{}) << "there is nothing to go back to";
    ASSERT_TRUE(mSwitch.useFor(paint));
    EXPECT_EQ(*mSwitch.current(), kA);
    ASSERT_TRUE(mSwitch.useFor(paint));
    EXPECT_EQ(pushes(), std::vector<int>{50}) << "one push for each change";
    ASSERT_TRUE(mSwitch.useFor(cad));
    EXPECT_EQ(*mSwitch.current(), kB);
    ASSERT_TRUE(mSwitch.useFor(other));
    EXPECT_EQ(*mSwitch.current(), QStringLiteral("Default"));
    EXPECT_EQ(pushes(), (std::vector<int>{60, 12})) << "the settings that were there at first";

    ASSERT_TRUE(mSwitch.use(kB));
    ASSERT_TRUE(mSwitch.useFor(paint));
    ASSERT_TRUE(mSwitch.useFor(other));
    EXPECT_EQ(*mSwitch.current(), kB) << "the user's own choice";
    EXPECT_EQ(names(), (QStringList{kA, kB, QStringLiteral("Default")}));
}

TEST_F(Switch, changesOneEntryOfTheFile)
{
    ASSERT_TRUE(mSwitch.set(QStringLiteral("Key/Key3/Valid"), QStringLiteral("6")));
    tagQVTabletInfo expected = sampleRecord();
    expected.Key.SubKey[3].Valid = 6;
    EXPECT_TRUE(sameBytes(inFile(), expected));
    EXPECT_EQ(pushes().size(), 1U);
    EXPECT_EQ(text(mSwitch.set(QStringLiteral("Key/Key3"), QStringLiteral("6"))),
        QStringLiteral("there is no entry Key/Key3"));
    EXPECT_EQ(text(mSwitch.set(QStringLiteral("Tablet/KeyNum"), QStringLiteral("6"))),
        QStringLiteral("Tablet/KeyNum describes the tablet and cannot be set"));
    EXPECT_EQ(text(mSwitch.set(QStringLiteral("Pen/Speed"), QStringLiteral("x"))),
        QStringLiteral("'x' is not a number"));
    EXPECT_TRUE(pushes().empty());
}

TEST_F(Switch, readsNumbersAndTextsOfEntries)
{
    const QString speed = QStringLiteral("Pen/Speed");
    for (const auto& [words, number] :
        {std::pair("31", 31), {"0x1f", 31}, {"0X1F", 31}, {"-5", -5}}) {
        ASSERT_TRUE(mSwitch.set(speed, QLatin1String(words))) << words;
        EXPECT_EQ(+inFile().Pen.Speed, number) << words;
    }
    EXPECT_EQ(
        text(mSwitch.set(speed, QStringLiteral("0x1g"))), QStringLiteral("'0x1g' is not a number"));
    EXPECT_EQ(
        text(mSwitch.set(speed, QStringLiteral("70000"))), QStringLiteral("70000 does not fit"));

    const QString path = QStringLiteral("Key/Key3/App");
    const std::string longest(255, 'a');
    ASSERT_TRUE(mSwitch.set(path, QString::fromStdString(longest)));
    EXPECT_EQ(QVText(inFile().Key.SubKey[3].App), longest);
    for (const QString& unfit : {QString(256, u'a'), QString::fromUtf8("ö")}) {
        EXPECT_EQ(text(mSwitch.set(path, unfit)),
            QStringLiteral("the text must be ASCII and at most 255 characters long"));
    }
    EXPECT_EQ(text(mSwitch.set(path, QStringLiteral("a\x01"))),
        QStringLiteral("the text must not contain control characters"));
    EXPECT_EQ(QVText(inFile().Key.SubKey[3].App), longest);
}

TEST_F(Switch, changesAllEntriesOrNone)
{
    const QString pressure = QStringLiteral("Pen/PressureThreshold");
    EXPECT_FALSE(mSwitch.edit({{pressure, QStringLiteral("5")}, {kA, QStringLiteral("5")}}));
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 12);
    EXPECT_TRUE(pushes().empty());
    ASSERT_TRUE(mSwitch.edit(
        {{pressure, QStringLiteral("5")}, {QStringLiteral("Pen/Speed"), QStringLiteral("6")}}));
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 5);
    EXPECT_EQ(+qvTabletInfo.Pen.Speed, 6);
    EXPECT_EQ(pushes(), std::vector<int>{5});
    EXPECT_TRUE(sameBytes(inFile(), sampleRecord())) << "it is not saved";
}

TEST_F(Switch, mapsTheChosenDisplayAsItIsNow)
{
    tagQVTabletInfo record = sampleRecord();
    record.Monitor.num = 2;
    ASSERT_TRUE(QVProfileFolder(2).save(QVProfileOf(record, kA)));
    ASSERT_TRUE(mSwitch.use(kA));
    EXPECT_EQ(+qvTabletInfo.Monitor.XOrg, 100);
    EXPECT_EQ(+qvTabletInfo.Monitor.Width, 200);
    EXPECT_EQ(+inFile().Monitor.Width, 200);
    ASSERT_TRUE(mSwitch.set(QStringLiteral("Monitor/num"), QStringLiteral("0")));
    EXPECT_EQ(+qvTabletInfo.Monitor.Width, 300);
    ASSERT_TRUE(mSwitch.set(QStringLiteral("Monitor/num"), QStringLiteral("3")));
    EXPECT_EQ(+qvTabletInfo.Monitor.num, 3);
}

TEST_F(Switch, savesTheSettingsWithTheApplicationsOfTheProfile)
{
    make(kA, 50, {QStringLiteral("paint")});
    ASSERT_TRUE(mSwitch.save(kA));
    EXPECT_EQ(+QVProfileFolder(2).load(kA)->settings.Pen.PressureThreshold, 12);
    EXPECT_EQ(QVProfileFolder(2).load(kA)->applications, QStringList{QStringLiteral("paint")});
    EXPECT_EQ(*mSwitch.current(), kA);
    ASSERT_TRUE(mSwitch.rename(kA, kB));
    EXPECT_EQ(*mSwitch.current(), kB);
    EXPECT_EQ(QVProfileChoice::load(2).chosen, kB);
    EXPECT_FALSE(mSwitch.save(QString()));
    ASSERT_TRUE(mSwitch.remove(kB));
    EXPECT_EQ(QVProfileChoice::load(2).current, QString());
    EXPECT_FALSE(mSwitch.remove(kB));
}

TEST_F(Switch, savesWhatAnApplicationUsesWithoutMakingItTheUsersChoice)
{
    make(kA, 50, {QStringLiteral("paint")});
    make(kB, 12);
    ASSERT_TRUE(mSwitch.use(kB));
    ASSERT_TRUE(mSwitch.useFor({QStringLiteral("paint")}));
    ASSERT_TRUE(mSwitch.save(kA));
    EXPECT_EQ(QVProfileChoice::load(2).chosen, kB);
}

TEST_F(Switch, makesWhatTheUserSavesTheirChoice)
{
    make(kA, 50, {QStringLiteral("paint")});
    ASSERT_TRUE(mSwitch.use(kA));
    ASSERT_TRUE(mSwitch.save(kB));
    EXPECT_EQ(QVProfileChoice::load(2).chosen, kB);
    ASSERT_TRUE(mSwitch.useFor({QStringLiteral("paint")}));
    ASSERT_TRUE(mSwitch.remove(kB));
    ASSERT_TRUE(mSwitch.save(kA));
    EXPECT_EQ(QVProfileChoice::load(2).chosen, kA) << "there is no other choice any more";
}
