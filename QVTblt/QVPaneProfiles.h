// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"
#include "QVPanelObject.h"
#include "QVProfileSwitch.h"
#include "tagQVTabletInfo.h"

#include <QDBusConnection>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class QDBusPendingCallWatcher;

/**
 * The panel's profiles, and its place among the programs that change the tablet's settings: while
 * it is shown, it owns the panel's name on the bus, or, if another panel owns it, sends its edits
 * to that panel and takes over that panel's.
 */
class QVPaneProfiles final : public QObject,
                             public platform::PaneProfiles,
                             private QVProfileSwitch {
    Q_OBJECT

public:
    /** What this needs of the panel. */
    struct Panel {
        std::function<bool()> hasDevice;
        std::function<bool()> isCalibrating;
        std::function<void()> show; ///< shows the record on the pages
        std::function<void(bool isOther)> tell; ///< the record is another one, perhaps a profile's
    };

    QVPaneProfiles(QVConfigStore& store, Panel panel);
    ~QVPaneProfiles() override;

    /** The panel is shown, with the tablet's settings loaded. */
    void enter();
    /** The panel is hidden, and its settings are saved. */
    void leave();
    /** The record may have been edited, or a calibration has begun or ended. */
    void noteEdit();
    /** The panel has saved the settings. */
    void noteSaved();

    std::vector<Profile> list() const override;
    QString current() const override;
    void use(const QString& name, Done done) override;
    QString save(const QString& name) override;
    QString rename(const QString& name, const QString& newName) override;
    QString duplicate(const QString& name, const QString& newName) override;
    QString remove(const QString& name) override;
    QString setApplications(const QString& name, const QStringList& applications) override;
    QString exportTo(const QString& name, const QString& file) override;
    Import readImport(const QString& file) override;
    QString keepImport(const Import& import, const std::vector<bool>& allowed) override;
    QString faultOf(const QString& name) const override;
    void setChangeHandler(std::function<void()> handler) override;

private:
    platform::Result<> attach() override;
    platform::Result<> mayChange() override;
    platform::Result<> push() override;
    void show() override;
    void changed(bool isOther) override;

    bool isSecond() const { return mObject && mObject->isSecond(); }
    void joinOrPartSoon();
    void join();
    void part();
    void takeRole();
    void takeSettings(const QByteArray& record);
    void takeSaved();
    void sendEdits();
    void tellCalibration();
    void merge();
    void tellListChanged();
    /** Calls a method of the panel that owns the name. */
    void call(const char* method, const QVariantList& arguments,
        std::function<void(const QDBusPendingCallWatcher& reply)> done);

    Panel mPanel;
    std::function<void()> mChangeHandler;
    QFileSystemWatcher mFiles;
    QTimer mTellSoon; ///< until others are notified of edits
    bool mIsShown = false;

    std::optional<QDBusConnection> mBus;
    std::unique_ptr<QVPanelObject> mObject; ///< null without a bus, and while the panel is hidden
    tagQVTabletInfo mShared{}; ///< the record as the owner knows it, with the edits sent to it
    QString mProfile; ///< the current one, as last shown
    std::optional<tagQVTabletInfo> mTaken; ///< the owner's record, to be taken over
    int mPending = 0; ///< calls with edits that have not been answered
    bool mIsCalibrationTold = false; ///< the owner knows that this panel calibrates
};
