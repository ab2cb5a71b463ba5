// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariantList>

#include <functional>
#include <optional>

/**
 * Controls qvtblt-follow.service, the user's service that switches profiles with the application in
 * front: reports whether systemd starts it with each session and whether it runs, and turns it on
 * and off. Calls systemd over the session bus without waiting for an answer, and never makes the
 * bus start systemd. Main thread only.
 */
class FollowService final : public QObject {
    Q_OBJECT

public:
    explicit FollowService(QObject* parent = nullptr);
    ~FollowService() override;

    /** Asks for the state; changed() follows, soon or at once. */
    void refresh();

    /**
     * Turns the service on or off, now and for all further sessions; once it has started or ended,
     * changed() follows.
     */
    void set(bool isOn);

    /** Whether the service is on; nothing while that is unknown, and where it cannot be changed. */
    std::optional<bool> isOn() const { return mIsOn; }

    /**
     * For the user: why this cannot be switched, or that it is on but has ended. Empty if it works,
     * and before systemd has answered.
     */
    QString fault() const { return mFault; }

Q_SIGNALS:
    void changed();
    /** set() has failed, or what it started has ended; the text is for the user. */
    void failed(const QString& text);

private Q_SLOTS:
    void noteJob(const QDBusMessage& removed);

private: // NOLINT(readability-redundant-access-specifiers): moc reads the one before
    using Next = std::function<void(const QDBusMessage& reply)>;

    using Change = bool (QDBusConnection::*)(const QString& service, const QString& path,
        const QString& interface, const QString& name, QObject* receiver, const char* slot);

    bool connectToBus();
    /** Starts or stops receiving the results of systemd's jobs. */
    void hearOfJobs(Change change);
    void call(const char* method, const QVariantList& arguments, Next next);
    void takeState(const QDBusMessage& reply);
    void askWhetherItRuns(bool isStarting);
    /** Ends set(), unless there is another step to do after it. @return whether there is */
    bool goesOn(const QDBusMessage& reply);
    void finish();
    void become(std::optional<bool> isOn, const QString& fault);

    QString mConnection; ///< the name of its connection to the bus
    QDBusConnection mBus;
    std::optional<bool> mIsOn;
    QString mFault;
    QTimer mJob; ///< systemd starts or stops the service
    bool mIsStarting = false; ///< set() has asked for that, and the state has not come yet
    bool mIsBusy = false; ///< an answer is awaited
};
