// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// The panel's profiles: what the pages show, what is refused, and what others are told.

#include "QVPaneProfiles.h"

#include "LivingBus.h"
#include "PaneTest.h"
#include "PrivateBus.h"
#include "QVKeyComboBox.h"
#include "QVMonitorView.h"
#include "QVPressView.h"
#include "QVProfileFolder.h"
#include "Wait.h"

#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDir>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <vector>

namespace {

using Pane = platform::PreferencePane;

bool waitFor(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, kPatience);
}

class PanelProfiles : public PaneTest {
protected:
    void SetUp() override
    {
        PaneTest::SetUp();
        show();
        outlet<QTabWidget>("tabView").setCurrentIndex(1); // the pen page
        mEvents.sent.clear();
        tagQVTabletInfo record = qvTabletInfo;
        record.Pen.PressureThreshold = 50;
        record.Key.SubKey[2].Valid = kQVPauseTablet;
        ASSERT_TRUE(QVProfileFolder(2).save(QVProfileOf(record, mName)));
        mPane.setNewsHandler([this](Pane::News news, const QString&) { mNews.push_back(news); });
    }

    /** Uses a profile. @return why it could not be; empty on success */
    QString use(const QString& name)
    {
        QString why = QStringLiteral("no answer");
        mPane.profiles()->use(name, [&](const QString& error) { why = error; });
        return why;
    }

    /** Begins to calibrate the first display. */
    QVMonitorView& calibrate()
    {
        outlet<QComboBox>("mComboBox").setCurrentIndex(1);
        auto& view = outlet<QVMonitorView>("mMonitorView");
        view.SelectMonitor();
        view.DoCalibrate();
        EXPECT_TRUE(view.isCalibrating());
        return view;
    }

    /** As drawn. */
    int shownPressure() { return outlet<QSlider>("mSlider").value() / QVPressView::kSliderSteps; }

    const QString mName = QStringLiteral("Painting");
    std::vector<Pane::News> mNews;
};

/** Hears what a panel tells. */
class Ear final : public QObject {
    Q_OBJECT

public:
    explicit Ear(QDBusConnection bus)
    {
        bus.connect(kQVPanelService, kQVPanelPath, kQVPanelInterface, QStringLiteral("Changed"),
            this, SLOT(noteChange()));
        bus.connect(kQVPanelService, kQVPanelPath, kQVPanelInterface,
            QStringLiteral("SettingsChanged"), this, SLOT(noteRecord(QByteArray)));
        bus.connect(kQVPanelService, kQVPanelPath, kQVPanelInterface, QStringLiteral("Saved"), this,
            SLOT(noteSave()));
    }

    int changes = 0;
    int saves = 0;
    std::vector<int> pressures;

private Q_SLOTS:
    void noteChange() { ++changes; }
    void noteSave() { ++saves; }
    void noteRecord(const QByteArray& bytes)
    {
        const auto record = QVRecordIn(bytes);
        ASSERT_TRUE(record);
        pressures.push_back(record->Pen.PressureThreshold);
    }
};

/** Those that have or want the panel's name, the owner first. */
QStringList queue(const QDBusConnection& bus)
{
    return QDBusReply<QStringList>(bus.call(platform::busCall("ListQueuedOwners", kQVPanelService)))
        .value();
}

/** With a bus, on which others ask the panel. */
class PanelOnBus : public PanelProfiles {
protected:
    void SetUp() override
    {
        PanelProfiles::SetUp();
        ASSERT_TRUE(waitFor([&] { return mOwned(); }));
    }
    ~PanelOnBus() override { QDBusConnection::disconnectFromBus(mClient.name()); }

    bool mOwned()
    {
        const QDBusReply<bool> isOwned = mClient.interface()->isServiceRegistered(kQVPanelService);
        return isOwned.value();
    }

    /** Calls the panel without blocking it, which is in this process. */
    QDBusMessage ask(const char* method, const QVariantList& arguments = {})
    {
        const QDBusPendingCall pending = mClient.asyncCall(QVPanelCall(method, arguments));
        EXPECT_TRUE(waitFor([&] { return pending.isFinished(); })) << method;
        return pending.reply();
    }

    PrivateBus mBus;
    QDBusConnection mClient =
        QDBusConnection::connectToBus(mBus.address(), QStringLiteral("client"));
};

/** Beside another panel, which was there first. */
class SecondPanel : public PanelOnBus {
protected:
    void SetUp() override
    {
        PanelOnBus::SetUp();
        leave();
        ASSERT_TRUE(waitFor([&] { return !mOwned(); }));
        mFirst.emplace(mTheirs, QVPanelObject::Kind::Panel, mClient);
        ASSERT_TRUE(waitFor([&] { return mFirst->isOwner(); }));
        show();
        ASSERT_TRUE(waitFor([&] { return mTheirs.asks > 0; })) << "for their settings";
    }
    void TearDown() override
    {
        leave();
        mFirst.reset();
    }

    /** The other one's settings, which are always there. */
    class Theirs final : public QVProfileSwitch {
    public:
        using QVProfileSwitch::QVProfileSwitch;

        int asks = 0;
        int edits = 0;

    protected:
        platform::Result<> attach() override
        {
            ++asks;
            return {};
        }
        platform::Result<> push() override { return {}; }
        void changed(bool /*isOther*/) override { ++edits; }
    };

    QVConfigStore mStore;
    Theirs mTheirs{mStore};
    std::optional<QVPanelObject> mFirst;
};

/** A panel with a record of its own, which this one's process does not share. */
class OtherPanel final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.quorvia.TabletPanel1")

public:
    explicit OtherPanel(QDBusConnection bus)
        : mBus(std::move(bus))
    {
        mBus.registerObject(kQVPanelPath, this, QDBusConnection::ExportAllSlots);
        EXPECT_TRUE(mBus.registerService(kQVPanelService));
    }

    /** Tells its record, or that it has saved it. */
    void tell() { send("SettingsChanged", {settings()}); }
    void tellSaved() { send("Saved", {}); }
    /** Answers the edits that it has held. */
    void answer() { mBus.send(mHeld.createReply()); }

    tagQVTabletInfo record = qvTabletInfo;
    std::vector<QVStringMap> edits;
    QStringList used;
    QString fault; ///< why it refuses everything; empty if it does not
    bool holdsEdits = false;

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming): the names of the bus
    QByteArray Settings() { return settings(); }
    void Edit(const QMap<QString, QString>& values)
    {
        edits.push_back(values);
        setDelayedReply(holdsEdits);
        mHeld = message();
        refuse();
    }
    void Use(const QString& name)
    {
        used.append(name);
        refuse();
    }
    // NOLINTEND(readability-identifier-naming)

private:
    QByteArray settings() const { return QVBytesOf(record); }
    void refuse()
    {
        if (!fault.isEmpty()) {
            sendErrorReply(QStringLiteral("org.quorvia.TabletPanel1.Error.Failed"), fault);
        }
    }
    void send(const char* signal, const QVariantList& arguments)
    {
        QDBusMessage message =
            QDBusMessage::createSignal(kQVPanelPath, kQVPanelInterface, QLatin1String(signal));
        message.setArguments(arguments);
        mBus.send(message);
    }

    QDBusConnection mBus;
    QDBusMessage mHeld;
};

/** Beside a panel that was there first, with a record of its own. */
class BesideAnother : public PanelOnBus {
protected:
    void SetUp() override
    {
        PanelOnBus::SetUp();
        leave();
        ASSERT_TRUE(waitFor([&] { return !mOwned(); }));
        mOther.emplace(mClient);
        mOther->record.Pen.PressureThreshold = 61;
        mNews.clear();
        show();
        ASSERT_TRUE(waitFor([&] { return shownPressure() == 61; })) << "its edits, not the file";
    }
    void TearDown() override { leave(); }

    /** Whether this panel shows what the other one tells, and so has all that came before. */
    bool hears(std::int16_t pressure)
    {
        mOther->record.Pen.PressureThreshold = pressure;
        mOther->tell();
        return waitFor([&] { return shownPressure() == pressure; });
    }
    /** Edits the pen's speed. */
    void edit(std::int16_t speed)
    {
        qvTabletInfo.Pen.Speed = speed;
        mPane.send();
    }
    static QVStringMap speed(const char* value)
    {
        return {{QStringLiteral("Pen/Speed"), QString::fromLatin1(value)}};
    }

    std::optional<OtherPanel> mOther;
};

} // namespace

TEST_F(PanelProfiles, areShownOnThePagesOnceUsed)
{
    EXPECT_EQ(use(mName), QString());
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 50);
    EXPECT_TRUE(waitFor([&] { return shownPressure() == 50; }));
    EXPECT_EQ(outlet<QVKeyComboBox>("mKey1_3").currentIndex(), QVKeyComboBox::PauseTablet);
    EXPECT_EQ(+recordInFile().Key.SubKey[2].Valid, kQVPauseTablet);
    ASSERT_EQ(pushes().size(), 1U);
    EXPECT_EQ(+pushes()[0].Pen.PressureThreshold, 50);
    EXPECT_EQ(mPane.profiles()->current(), mName);
    EXPECT_FALSE(mPane.hasChanges());
    EXPECT_EQ(std::ranges::count(mNews, Pane::News::SettingsReplaced), 1);
}

TEST_F(PanelProfiles, keepUnsavedEditsFirst)
{
    qvTabletInfo.Pen.PressureThreshold = 77;
    EXPECT_EQ(use(mName), QString());
    const auto before = QVProfileFolder(2).load(QStringLiteral("Before Painting"));
    ASSERT_TRUE(before);
    EXPECT_EQ(+before->settings.Pen.PressureThreshold, 77);
    EXPECT_EQ(mPane.profiles()->list().size(), 2U);
}

TEST_F(PanelProfiles, areRefusedDuringACalibration)
{
    QVMonitorView& view = calibrate();
    EXPECT_EQ(use(mName), QStringLiteral("The tablet is being calibrated. Finish that first."));
    EXPECT_NE(+qvTabletInfo.Pen.PressureThreshold, 50);
    view.endCalibration();
    EXPECT_TRUE(waitFor([&] { return !view.isCalibrating(); }));
    EXPECT_EQ(use(mName), QString());
}

TEST_F(PanelProfiles, areRefusedWithoutATablet)
{
    leave();
    mEvents.answer(0);
    show();
    EXPECT_EQ(use(mName), QStringLiteral("No tablet is attached."));
    EXPECT_TRUE(mPane.profiles()->list().empty());
}

TEST_F(PanelProfiles, leaveFileAndPagesAloneIfTheFileCannotBeWritten)
{
    QFile::remove(mHome.configFile(7));
    QDir().mkdir(mHome.configFile(7));
    EXPECT_TRUE(use(mName).startsWith(QStringLiteral("cannot read ")));
    EXPECT_NE(+qvTabletInfo.Pen.PressureThreshold, 50);
    EXPECT_TRUE(pushes().empty());
    EXPECT_EQ(mPane.profiles()->current(), QString());
}

TEST_F(PanelProfiles, areManagedForTheShell)
{
    platform::PaneProfiles& profiles = *mPane.profiles();
    int changes = 0;
    profiles.setChangeHandler([&] { ++changes; });
    const auto expectDone = [&](const QString& why) {
        EXPECT_EQ(why, QString());
        EXPECT_GT(std::exchange(changes, 0), 0) << "the list is told of";
    };
    const QString second = QStringLiteral("Second");
    const QString third = QStringLiteral("Third");
    expectDone(profiles.save(second));
    EXPECT_EQ(profiles.current(), second);
    expectDone(profiles.setApplications(second, {QStringLiteral("paint")}));
    expectDone(profiles.duplicate(second, third));
    EXPECT_TRUE(profiles.list().back().applications.isEmpty()) << "each has one profile";
    EXPECT_NE(profiles.duplicate(second, third), QString());
    expectDone(profiles.rename(second, QStringLiteral("2")));
    EXPECT_EQ(profiles.current(), QStringLiteral("2"));
    expectDone(profiles.remove(third));
    const auto list = profiles.list();
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0].applications, QStringList{QStringLiteral("paint")});
    EXPECT_NE(profiles.faultOf(QString()), QString());
    for (const QString& why :
        {profiles.duplicate(third, second), profiles.setApplications(third, {}),
            profiles.exportTo(third, mHome.path()), profiles.remove(third)}) {
        EXPECT_EQ(why, QString::fromUtf8("There is no profile “Third”."));
    }
    QVProfileChoice{third, third}.save(QVProductID(qvTabletInfo));
    EXPECT_EQ(profiles.current(), QString()) << "it is gone";
    profiles.setChangeHandler(nullptr);
}

TEST_F(PanelProfiles, areAlsoThoseThatOthersSave)
{
    int changes = 0;
    mPane.profiles()->setChangeHandler([&] { ++changes; });
    leave();
    QDir(QVProfileFolder(2).path()).removeRecursively();
    show();
    EXPECT_GE(changes, 1) << "the list may have changed meanwhile";
    const int before = changes;
    ASSERT_TRUE(QVProfileFolder(2).save(QVProfileOf(qvTabletInfo, QStringLiteral("Theirs"))));
    EXPECT_TRUE(waitFor([&] { return changes > before; }));
    mPane.profiles()->setChangeHandler(nullptr);
}

TEST_F(PanelProfiles, areExchangedWithoutTrust)
{
    platform::PaneProfiles& profiles = *mPane.profiles();
    const QString file = mHome.path() + QStringLiteral("/theirs.plist");
    tagQVTabletInfo record = qvTabletInfo;
    record.Basic.KeyNum = 16;
    qvTabletInfo.Basic.KeyNum = 16;
    record.Key.SubKey[1].Valid = kQVApplication;
    record.Key.SubKey[3].Valid = kQVApplication;
    ASSERT_TRUE(QVProfileFolder(2).save(QVProfileOf(record, QStringLiteral("Mine"))));
    ASSERT_EQ(
        profiles.setApplications(QStringLiteral("Mine"), {QStringLiteral("paint")}), QString());
    ASSERT_EQ(profiles.exportTo(QStringLiteral("Mine"), file), QString());

    const auto import = profiles.readImport(file);
    EXPECT_EQ(import.error, QString());
    EXPECT_EQ(import.name, QStringLiteral("Mine 2"));
    ASSERT_EQ(import.starts.size(), 2U);
    EXPECT_EQ(import.starts[0].path, QStringLiteral("/app/1"));
    EXPECT_FALSE(import.changes.isEmpty());
    EXPECT_FALSE(import.leftOut.isEmpty());
    EXPECT_EQ(import.applications, QStringList{QStringLiteral("paint")});
    writeFile(file, "rubbish"); // it has been read
    EXPECT_EQ(profiles.keepImport(import, {false}), QString());
    EXPECT_EQ(+QVProfileFolder(2).load(QStringLiteral("Mine 2"))->settings.Key.SubKey[1].Valid,
        kQVNoAction);
    EXPECT_EQ(profiles.keepImport(import, {}), QString()) << "what is not allowed is not";
    EXPECT_EQ(profiles.remove(QStringLiteral("Mine 2 2")), QString());
    int changes = 0;
    profiles.setChangeHandler([&] { ++changes; });
    EXPECT_EQ(profiles.keepImport(import, {false, true, true}), QString());
    EXPECT_EQ(changes, 1);
    profiles.setChangeHandler(nullptr);
    EXPECT_EQ(+QVProfileFolder(2).load(QStringLiteral("Mine 2 2"))->settings.Key.SubKey[3].Valid,
        kQVApplication);
    const auto refused = profiles.readImport(file);
    EXPECT_TRUE(refused.error.startsWith(QStringLiteral("cannot use ")));
    EXPECT_EQ(profiles.keepImport(refused, {}), refused.error);
}

TEST_F(PanelOnBus, doesWhatOthersAsk)
{
    EXPECT_EQ(ask("Profiles").arguments().value(0).toStringList(), QStringList{mName});
    const Ear ear(mClient);
    EXPECT_EQ(ask("Use", {mName}).errorMessage(), QString());
    EXPECT_TRUE(waitFor([&] { return shownPressure() == 50; }));
    EXPECT_TRUE(waitFor([&] { return ear.saves == 1; })) << "other panels load the file";
    EXPECT_EQ(ask("Current").arguments().value(0).toString(), mName);
    EXPECT_EQ(ask("Use", {QStringLiteral("x")}).errorMessage(),
        QString::fromUtf8("There is no profile “x”."));
    EXPECT_EQ(ask("Settings").arguments().value(0).toByteArray().size(), 5077);
    EXPECT_EQ(ask("Save", {QStringLiteral("Second")}).errorMessage(), QString());
    EXPECT_EQ(ask("Profiles").arguments().value(0).toStringList().size(), 3);
    EXPECT_EQ(ask("UseNext").arguments().value(0).toString(), QStringLiteral("Before Painting"));
    EXPECT_EQ(
        mPane.profiles()->setApplications(QStringLiteral("Second"), {QStringLiteral("paint")}),
        QString());
    EXPECT_EQ(ask("Follow", {QStringList{QStringLiteral("Paint")}}).errorMessage(), QString());
    EXPECT_EQ(ask("Current").arguments().value(0).toString(), QStringLiteral("Second"));
}

TEST_F(PanelOnBus, saysWhyItDoesNotDoWhatOthersAsk)
{
    EXPECT_EQ(ask("Save", {QString()}).errorMessage(), QVProfileNameFault(QString()));
    EXPECT_EQ(ask("Edit", {QVariant::fromValue(QVStringMap{{QStringLiteral("Pen"), QString()}})})
                  .errorMessage(),
        QStringLiteral("there is no entry Pen"));
    ASSERT_EQ(mPane.profiles()->remove(mName), QString());
    EXPECT_EQ(ask("UseNext").errorMessage(), QStringLiteral("There are no profiles."));
    calibrate();
    const QString fault = QStringLiteral("The tablet is being calibrated. Finish that first.");
    EXPECT_EQ(ask("Follow", {QStringList{QStringLiteral("paint")}}).errorMessage(), fault);
}

TEST_F(PanelOnBus, isToldApartFromNoPanel)
{
    // In another thread, since the panel that answers is in this one.
    const auto askPanel = [this](const QString& name) {
        auto answer = std::async(
            std::launch::async, [this, name] { return QVAskPanel(mClient, "Use", {name}); });
        EXPECT_TRUE(waitFor(
            [&] { return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        return answer.get();
    };
    const auto used = askPanel(mName);
    ASSERT_TRUE(used);
    EXPECT_TRUE(*used);
    const auto unused = askPanel(QStringLiteral("x"));
    ASSERT_TRUE(unused);
    EXPECT_EQ(unused->error().text, QString::fromUtf8("There is no profile “x”."));
    leave();
    ASSERT_TRUE(waitFor([&] { return !mOwned(); }));
    EXPECT_FALSE(askPanel(mName).has_value()) << "there is no panel";
    EXPECT_FALSE(QVPanelCall("Use").autoStartService()) << "and none is started";
    QDBusConnection::disconnectFromBus(mClient.name());
    EXPECT_FALSE(QVAskPanel(QDBusConnection(QString()), "Use", {mName}).has_value())
        << "there is no bus";
}

TEST_F(PanelOnBus, takesASettingFromOthersBesideItsOwnEdits)
{
    qvTabletInfo.Pen.Speed = 99; // an edit that is not saved
    ASSERT_EQ(
        ask("Set", {QStringLiteral("Pen/PressureThreshold"), QStringLiteral("40")}).errorMessage(),
        QString());
    EXPECT_TRUE(waitFor([&] { return shownPressure() == 40; }));
    EXPECT_EQ(+recordInFile().Pen.PressureThreshold, 40);
    EXPECT_EQ(+recordInFile().Pen.Speed, 13) << "the panel's edit is not saved with it";
    EXPECT_TRUE(mPane.hasChanges());
    EXPECT_EQ(+pushes().back().Pen.Speed, 99);
    mPane.cancel();
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 40) << "Cancel goes back to what is saved";
}

TEST_F(PanelOnBus, tellsOthersOfEdits)
{
    Ear ear(mClient);
    qvTabletInfo.Pen.PressureThreshold = 32;
    mPane.send();
    EXPECT_TRUE(waitFor([&] { return ear.changes > 0; }));
    ask("Current");
    ask("Current");
    EXPECT_EQ(ear.changes, 1);
    EXPECT_TRUE(ear.pressures.empty()) << "nobody has asked for the record";

    ask("Settings");
    for (const std::int16_t pressure : std::array<std::int16_t, 3>{33, 34, 35}) {
        qvTabletInfo.Pen.PressureThreshold = pressure;
        mPane.send();
    }
    EXPECT_TRUE(waitFor([&] { return !ear.pressures.empty(); }));
    EXPECT_EQ(ear.pressures, std::vector<int>{35}) << "the last of those that come together";
    mPane.send();
    EXPECT_TRUE(waitFor([&] { return ear.changes == 3; }));
    EXPECT_EQ(ear.pressures, std::vector<int>{35}) << "it is as before";

    const QVStringMap values{{QStringLiteral("Pen/PressureThreshold"), QStringLiteral("36")}};
    const QDBusPendingCallWatcher edit(
        mClient.asyncCall(QVPanelCall("Edit", {QVariant::fromValue(values)})));
    int pressureAtAnswer = 0;
    QObject::connect(&edit, &QDBusPendingCallWatcher::finished,
        [&] { pressureAtAnswer = ear.pressures.back(); });
    EXPECT_TRUE(waitFor([&] { return pressureAtAnswer != 0; }));
    EXPECT_FALSE(edit.isError());
    EXPECT_EQ(pressureAtAnswer, 36) << "told before the answer";
    EXPECT_TRUE(mPane.hasChanges());

    mPane.cancel();
    leave();
    EXPECT_TRUE(waitFor([&] { return ear.pressures.back() == 12; }))
        << "what is discarded, before the name is given up";
}

TEST_F(PanelOnBus, tellsWhatIsDiscardedAlsoWhenItEndsAtOnce)
{
    leave();
    ASSERT_TRUE(waitFor([&] { return !mOwned(); }));
    auto pane = std::make_unique<QVTblt_prefPanePref>();
    pane->initWithBundle(platform::Bundle(QStringLiteral(QVTBLT_STAGE_RESOURCES)));
    const std::unique_ptr<QWidget> window(pane->loadMainView());
    pane->willSelect();
    pane->didSelect();
    ASSERT_TRUE(waitFor([&] { return mOwned(); }));
    Ear ear(mClient);
    ask("Settings");
    qvTabletInfo.Pen.PressureThreshold = 33;
    pane->send();
    EXPECT_TRUE(waitFor([&] { return ear.pressures == std::vector<int>{33}; }));
    pane->cancel();
    pane->willUnselect();
    pane->didUnselect();
    pane.reset();
    EXPECT_TRUE(waitFor([&] { return ear.pressures == (std::vector<int>{33, 12}); }));
}

TEST_F(PanelOnBus, changesNothingWhileAnotherCalibrates)
{
    const QString fault = QStringLiteral("The tablet is being calibrated. Finish that first.");
    ask("NoteCalibration", {true});
    EXPECT_EQ(ask("Use", {mName}).errorMessage(), fault);
    EXPECT_EQ(use(mName), fault);
    EXPECT_EQ(ask("Set", {QStringLiteral("Pen/Speed"), QStringLiteral("4")}).errorMessage(), fault);
    EXPECT_TRUE(pushes().empty());
    ask("NoteCalibration", {false});
    EXPECT_EQ(use(mName), QString());
}

TEST_F(PanelOnBus, forgetsTheCalibrationOfOneThatHasLeftTheBus)
{
    const QString name = QStringLiteral("guest");
    QDBusConnection guest = QDBusConnection::connectToBus(mBus.address(), name);
    const QDBusPendingCall told = guest.asyncCall(QVPanelCall("NoteCalibration", {true}));
    ASSERT_TRUE(waitFor([&] { return told.isFinished(); }));
    EXPECT_NE(use(mName), QString());
    QDBusConnection::disconnectFromBus(name);
    guest = QDBusConnection(QString()); // the last reference closes it
    EXPECT_TRUE(waitFor([&] { return use(mName).isEmpty(); }));
}

TEST_F(PanelOnBus, forgetsTheCalibrationOfOneThatLeftTheBusBeforeItWasHeard)
{
    const QString name = QStringLiteral("guest");
    QDBusConnection guest = QDBusConnection::connectToBus(mBus.address(), name);
    const QString guestName = guest.baseService();
    // Without the event loop, which would let the panel hear of it.
    guest.send(QVPanelCall("NoteCalibration", {true}));
    guest.call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/"), QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
    QDBusConnection::disconnectFromBus(name);
    guest = QDBusConnection(QString()); // the last reference closes it
    while (mClient.interface()->isServiceRegistered(guestName)) { }
    ask("Settings"); // what came before has been heard then
    EXPECT_TRUE(waitFor([&] { return use(mName).isEmpty(); }));
}

TEST_F(PanelOnBus, leavesTheBusWithItsPane)
{
    const BusClients clients(mBus);
    const auto before = clients.count();
    {
        QVTblt_prefPanePref other;
        other.initWithBundle(platform::Bundle(QStringLiteral(QVTBLT_STAGE_RESOURCES)));
        const std::unique_ptr<QWidget> window(other.loadMainView());
        other.willSelect();
        EXPECT_TRUE(waitFor([&] { return clients.count() > before; }));
        other.willUnselect();
        other.didUnselect();
    }
    EXPECT_TRUE(waitFor([&] { return clients.count() == before; }));
}

TEST_F(PanelOnBus, tellsItsSettingsAnewWhenACalibrationHasEnded)
{
    Ear ear(mClient);
    ask("Settings");
    mPane.send();
    EXPECT_TRUE(waitFor([&] { return ear.pressures.size() == 1; }));
    ask("NoteCalibration", {true});
    ask("NoteCalibration", {false});
    EXPECT_TRUE(waitFor([&] { return ear.pressures.size() == 2; }))
        << "others send again what has been refused";
    QVMonitorView& view = calibrate();
    EXPECT_TRUE(waitFor([&] { return ear.pressures.size() == 3; })) << "a calibration has begun";
    view.endCalibration();
    EXPECT_TRUE(waitFor([&] { return ear.pressures.size() > 3; }));
    std::size_t told = ear.pressures.size();
    view.setTabletDefaultArea();
    EXPECT_TRUE(waitFor([&] { return ear.pressures.size() > told; }));
    told = ear.pressures.size();
    calibrate();
    view.endCalibration();
    EXPECT_TRUE(waitFor([&] { return ear.pressures.size() > told; })) << "the same ones again";
    told = ear.pressures.size();
    calibrate();
    EXPECT_TRUE(waitFor([&] { return ear.pressures.size() > told; }));
    told = ear.pressures.size();
    mPane.send();
    ask("Settings");
    QCoreApplication::processEvents();
    EXPECT_EQ(ear.pressures.size(), told) << "not before its end";
}

TEST_F(SecondPanel, takesNoOwnerForAnotherThatCalibrates)
{
    // What a second panel has told the owner reaches itself where it has become the owner.
    ask("NoteCalibration", {true});
    EXPECT_FALSE(mFirst->isCalibratedByOther());
}

TEST_F(PanelOnBus, knowsWhatAnotherHasSaved)
{
    Ear ear(mClient);
    qvTabletInfo.Pen.PressureThreshold = 32;
    EXPECT_TRUE(mPane.hasChanges());
    ASSERT_TRUE(QVConfigStore().saveRecord(mHome.configFile(7).toStdString()));
    ask("NoteSaved");
    EXPECT_FALSE(mPane.hasChanges());
    EXPECT_TRUE(waitFor([&] { return ear.saves == 1; })) << "a third panel";
    qvTabletInfo.Pen.PressureThreshold = 33;
    mPane.save();
    EXPECT_TRUE(waitFor([&] { return ear.saves == 2; }));
}

TEST_F(SecondPanel, saysThatItCalibrates)
{
    QVMonitorView& view = calibrate();
    EXPECT_TRUE(waitFor([&] { return mFirst->isCalibratedByOther(); }));
    view.endCalibration();
    EXPECT_TRUE(waitFor([&] { return !mFirst->isCalibratedByOther(); }));
    calibrate();
    EXPECT_TRUE(waitFor([&] { return mFirst->isCalibratedByOther(); }));
    leave();
    EXPECT_TRUE(waitFor([&] { return !mFirst->isCalibratedByOther(); }));
}

TEST_F(SecondPanel, sendsTheAreaThatItHasCalibrated)
{
    QVMonitorView& view = calibrate();
    qvTabletInfo.Monitor.cTabletXmax = 4321;
    EXPECT_EQ(mTheirs.edits, 0);
    view.endCalibration();
    EXPECT_TRUE(waitFor([&] { return mTheirs.edits > 0; }));
}

TEST_F(SecondPanel, saysToTheNextOwnerThatItCalibrates)
{
    QDBusConnection bus = QDBusConnection::connectToBus(mBus.address(), QStringLiteral("next"));
    QVPanelObject next(mTheirs, QVPanelObject::Kind::Panel, bus);
    int changes = 0;
    next.setRoleHandler([&] { ++changes; });
    ASSERT_TRUE(waitFor([&] { return queue(mClient).value(1) == bus.baseService(); }))
        << "the bus has it before this panel";
    ASSERT_TRUE(waitFor([&] { return next.isSecond(); }));
    calibrate();
    ASSERT_TRUE(waitFor([&] { return mFirst->isCalibratedByOther(); }));
    const int before = changes;
    mFirst.reset();
    EXPECT_TRUE(waitFor([&] { return next.isCalibratedByOther(); }));
    EXPECT_EQ(changes, before + 1) << "it has become the owner once";
    QDBusConnection::disconnectFromBus(bus.name());
}

TEST_F(SecondPanel, saysThatItHasSaved)
{
    bool isSaved = false;
    mFirst->setSavedHandler([&] { isSaved = true; });
    mPane.save();
    EXPECT_TRUE(waitFor([&] { return isSaved; }));
}

TEST_F(SecondPanel, knowsWhatTheFirstHasSaved)
{
    qvTabletInfo.Pen.PressureThreshold = 32;
    EXPECT_TRUE(mPane.hasChanges());
    ASSERT_TRUE(QVConfigStore().saveRecord(mHome.configFile(7).toStdString()));
    bool isTold = false;
    mPane.setChangeHandler([&] { isTold = true; });
    mFirst->tellSaved();
    EXPECT_TRUE(waitFor([&] { return isTold; }));
    EXPECT_FALSE(mPane.hasChanges());
    mPane.setChangeHandler(nullptr);
    EXPECT_EQ(std::ranges::count(mNews, Pane::News::SettingsReplaced), 0);
}

TEST_F(BesideAnother, showsWhatTheOtherHasEdited)
{
    qvTabletInfo.Pen.Speed = 44; // not sent yet
    EXPECT_TRUE(hears(62));
    EXPECT_EQ(+qvTabletInfo.Pen.Speed, 44) << "its own edit";
    EXPECT_TRUE(waitFor([&] { return mOther->edits.size() == 1; })) << "the other does not have it";
}

TEST_F(BesideAnother, waitsUntilItsOwnEditsAreAnsweredBeforeItTakesTheOtherOnes)
{
    edit(44);
    mOther->record.Pen.Speed = 44;
    EXPECT_TRUE(hears(62)) << "it comes before the answer";
    EXPECT_EQ(mOther->edits.size(), 1U);
}

TEST_F(BesideAnother, showsThatTheOtherUsesAProfile)
{
    int changes = 0;
    mPane.profiles()->setChangeHandler([&] { ++changes; });
    QVProfileChoice{mName, mName}.save(QVProductID(qvTabletInfo));
    EXPECT_TRUE(hears(62));
    EXPECT_EQ(std::ranges::count(mNews, Pane::News::SettingsReplaced), 1);
    EXPECT_GE(changes, 1);
    EXPECT_TRUE(hears(63));
    EXPECT_EQ(std::ranges::count(mNews, Pane::News::SettingsReplaced), 1) << "it is the same one";
    mPane.profiles()->setChangeHandler(nullptr);
}

TEST_F(BesideAnother, sendsItsEdits)
{
    qvTabletInfo.Monitor.Width = 5; // what the user does not choose
    edit(44);
    ASSERT_TRUE(waitFor([&] { return mOther->edits.size() == 1; }));
    EXPECT_EQ(mOther->edits[0], speed("44"));
    edit(45);
    edit(46);
    ASSERT_TRUE(waitFor([&] { return mOther->edits.size() == 3; }));
    EXPECT_EQ(mOther->edits[2], speed("46"));
    qvTabletInfo.Pen.PressureThreshold = 20;
    mPane.send();
    ASSERT_TRUE(waitFor([&] { return mOther->edits.size() == 4; }));
    EXPECT_EQ(mOther->edits[3].keys(), QStringList{QStringLiteral("Pen/PressureThreshold")})
        << "it has the others";
}

TEST_F(BesideAnother, sendsItsEditsAgainAfterTheyWereRefused)
{
    mOther->fault = QStringLiteral("not now");
    edit(44);
    ASSERT_TRUE(waitFor([&] { return mOther->edits.size() == 1; }));
    mOther->fault.clear();
    EXPECT_TRUE(hears(62));
    EXPECT_EQ(+qvTabletInfo.Pen.Speed, 44);
    ASSERT_TRUE(waitFor([&] { return mOther->edits.size() == 2; }));
    EXPECT_EQ(mOther->edits[1], speed("44"));
}

TEST_F(BesideAnother, keepsItsEditsWhileTheOtherMayLackThem)
{
    mOther->holdsEdits = true;
    edit(44);
    ASSERT_TRUE(waitFor([&] { return mOther->edits.size() == 1; }));
    mOther->record.Pen.PressureThreshold = 62;
    mOther->tell();
    ASSERT_TRUE(QVConfigStore().saveRecord(mHome.configFile(7).toStdString()));
    mOther->tellSaved();
    ASSERT_TRUE(waitFor([&] { return !mPane.hasChanges(); })) << "it has heard both";
    EXPECT_EQ(+qvTabletInfo.Pen.Speed, 44);
    EXPECT_EQ(shownPressure(), 61);
    mOther->record.Pen.Speed = 44;
    mOther->tell();
    mOther->answer();
    EXPECT_TRUE(waitFor([&] { return shownPressure() == 62; }));
    EXPECT_EQ(+qvTabletInfo.Pen.Speed, 44);
}

TEST_F(BesideAnother, beginsAnewWhenItIsLeftBeforeItsEditsAreAnswered)
{
    mOther->holdsEdits = true;
    edit(44);
    ASSERT_TRUE(waitFor([&] { return mOther->edits.size() == 1; }));
    leave();
    ASSERT_TRUE(waitFor([&] { return queue(mClient).size() == 1; }));
    show();
    EXPECT_TRUE(hears(63));
}

TEST_F(BesideAnother, takesNothingWhileItCalibrates)
{
    QVMonitorView& view = calibrate();
    mOther->record.Pen.PressureThreshold = 62;
    mOther->tell();
    ASSERT_TRUE(QVConfigStore().saveRecord(mHome.configFile(7).toStdString()));
    mOther->tellSaved();
    ASSERT_TRUE(waitFor([&] { return !mPane.hasChanges(); })) << "it has heard both";
    EXPECT_EQ(+qvTabletInfo.Pen.PressureThreshold, 61);
    view.endCalibration();
    EXPECT_TRUE(waitFor([&] { return qvTabletInfo.Pen.PressureThreshold == 62; }));
}

TEST_F(BesideAnother, hasTheOtherUseProfiles)
{
    QStringList answers;
    const auto useBy = [&] {
        mPane.profiles()->use(mName, [&](const QString& error) { answers.append(error); });
    };
    useBy();
    EXPECT_TRUE(waitFor([&] { return answers == QStringList{QString()}; }));
    EXPECT_EQ(mOther->used, QStringList{mName});
    EXPECT_EQ(shownPressure(), 61) << "the other one tells when it has";
    mOther->fault = QStringLiteral("not now");
    useBy();
    EXPECT_TRUE(waitFor([&] { return answers.value(1) == mOther->fault; }));
}

TEST_F(BesideAnother, knowsTheProfileThatWasUsedBeforeItCame)
{
    leave();
    QVProfileChoice{mName, mName}.save(QVProductID(qvTabletInfo));
    qvTabletInfo.Pen.PressureThreshold = 30; // no edit, but in the file
    ASSERT_TRUE(QVConfigStore().saveRecord(mHome.configFile(7).toStdString()));
    mNews.clear();
    mOther->record.Pen.PressureThreshold = 64;
    show();
    EXPECT_TRUE(waitFor([&] { return shownPressure() == 64; }));
    EXPECT_TRUE(mOther->edits.empty());
    EXPECT_EQ(std::ranges::count(mNews, Pane::News::SettingsReplaced), 0);
}

TEST_F(BesideAnother, tellsItsShellOnlyOfWhatHasChanged)
{
    int changes = 0;
    mPane.setChangeHandler([&] { ++changes; });
    mOther->tell();
    EXPECT_TRUE(hears(62));
    EXPECT_EQ(changes, 1);
    mPane.setChangeHandler(nullptr);
}

TEST_F(BesideAnother, knowsThatTheOtherHasSavedWhatItHasChanged)
{
    qvTabletInfo.Pen.PressureThreshold = 62;
    ASSERT_TRUE(QVConfigStore().saveRecord(mHome.configFile(7).toStdString()));
    qvTabletInfo.Pen.PressureThreshold = 61;
    EXPECT_TRUE(hears(62));
    EXPECT_FALSE(mPane.hasChanges());
}

TEST_F(BesideAnother, saysThatItNoLongerCalibratesWhenTheTabletIsAnother)
{
    // A driver with another tablet is sent nothing when the calibration ends.
    mOther.reset();
    QVConfigStore store;
    QVProfileSwitch own(store);
    QVPanelObject first(own, QVPanelObject::Kind::Panel, mClient);
    calibrate();
    ASSERT_TRUE(waitFor([&] { return first.isCalibratedByOther(); }));
    mEvents.answer(8);
    EXPECT_EQ(mPane.checkDevice(), Pane::Device::Other);
    leave();
    EXPECT_TRUE(waitFor([&] { return !first.isCalibratedByOther(); }));
}

TEST_F(SecondPanel, comesBeforeAFollowerThatWasThereEarlier)
{
    QDBusConnection bus = QDBusConnection::connectToBus(mBus.address(), QStringLiteral("follower"));
    QDBusMessage request = platform::busCall("RequestName", kQVPanelService);
    constexpr uint kAllowReplacement = 1;
    constexpr uint kBeforeOthers = 2;
    request << (kAllowReplacement | kBeforeOthers);
    bus.call(request);
    const QStringList before = queue(mClient);
    ASSERT_EQ(before.indexOf(bus.baseService()), 1);
    mFirst.reset();
    EXPECT_TRUE(waitFor([&] { return queue(mClient).value(0) == before.value(2); }))
        << queue(mClient).join(u' ').toStdString();
    QDBusConnection::disconnectFromBus(bus.name());
}

TEST_F(SecondPanel, asksTheNextOwnerForItsSettings)
{
    QDBusConnection bus = QDBusConnection::connectToBus(mBus.address(), QStringLiteral("next"));
    QVPanelObject next(mTheirs, QVPanelObject::Kind::Panel, bus);
    ASSERT_TRUE(waitFor([&] { return queue(mClient).value(1) == bus.baseService(); }))
        << "the bus has it before this panel";
    ASSERT_TRUE(waitFor([&] { return next.isSecond(); }));
    const Ear ear(bus);
    mFirst.reset();
    ASSERT_TRUE(waitFor([&] { return next.isOwner(); }));
    EXPECT_TRUE(waitFor([&] {
        next.tellChanged();
        return !ear.pressures.empty(); // somebody has asked for them
    }));
    QDBusConnection::disconnectFromBus(bus.name());
}

TEST_F(SecondPanel, countsNoOwnerThatHasNoSuchObject)
{
    leave();
    mFirst.reset();
    ASSERT_TRUE(waitFor([&] { return !mOwned(); }));
    QDBusConnection bus = QDBusConnection::connectToBus(mBus.address(), QStringLiteral("empty"));
    ASSERT_TRUE(bus.registerService(kQVPanelService));
    EXPECT_FALSE(QVAskPanel(mClient, "Use", {mName}).has_value()) << "a panel about to end";
    QDBusConnection::disconnectFromBus(bus.name());
}

TEST_F(PanelOnBus, keepsItsNameWhenItIsNotLeftAfterAll)
{
    mPane.willUnselect();
    QCoreApplication::processEvents();
    EXPECT_TRUE(mOwned()) << "the settings could not be saved, and the user stays";
}

TEST_F(PanelOnBus, givesUpItsNameWhenItIsLeft)
{
    leave();
    EXPECT_TRUE(waitFor([&] { return !mOwned(); }));
    show();
    EXPECT_TRUE(waitFor([&] { return mOwned(); }));
    leave();
    show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(mOwned()) << "left for a moment only, as by Cancel";
}

TEST_F(PanelOnBus, takesTheNameFromAFollowerAndGivesItBack)
{
    leave();
    ASSERT_TRUE(waitFor([&] { return !mOwned(); }));
    QVConfigStore store;
    QVProfileSwitch own(store);
    QVPanelObject follower(own, QVPanelObject::Kind::Follower, mClient);
    ASSERT_TRUE(waitFor([&] { return follower.isOwner(); }));
    show();
    EXPECT_TRUE(waitFor([&] { return !follower.isOwner(); }));
    leave();
    EXPECT_TRUE(waitFor([&] { return follower.isOwner(); }));
    mEvents.answer(0);
    for (const char* const method : {"Profiles", "Current", "Settings", "UseNext"}) {
        EXPECT_EQ(ask(method).errorMessage(), QStringLiteral("no tablet is attached")) << method;
    }
}

#include "QVPaneProfilesTest.moc"
