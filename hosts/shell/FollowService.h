// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>
#include <optional>

/**
 * The user's service that has the profiles follow the application in front, qvtblt-follow.service:
 * whether the user's systemd starts it with each session, and turning that on and off. Asks systemd
 * over the session bus, without ever waiting for an answer, and does not have the bus start it.
 * Main thread only.
 */
class FollowService final : public QObject {
    Q_OBJECT

public:
    explicit FollowService(QObject* parent = nullptr);
    ~FollowService() override;

    /** Asks for the state; changed() follows, soon or at once. */
    void refresh();

    /** Turns the service on or off, now and for all further sessions; then changed() follows. */
    void set(bool isOn);

    /** Whether the service is on; nothing while that is unknown, and where it cannot be changed. */
    std::optional<bool> isOn() const { return mIsOn; }

    /** Why it cannot be changed, for the user; empty if it can, and while that is unknown. */
    QString fault() const { return mFault; }

Q_SIGNALS:
    void changed();
    /** set() has failed; the text is for the user. */
    void failed(const QString& text);

private:
    using Next = std::function<void(const QDBusMessage& reply)>;

    bool connectToBus();
    void call(const char* method, const QVariantList& arguments, Next next);
    void takeState(const QDBusMessage& reply);
    /** Ends set(), unless there is another step to do after it. @return whether there is */
    bool goesOn(const QDBusMessage& reply);
    void finish();
    void become(std::optional<bool> isOn, const QString& fault);

    QString mConnection; ///< the name of its connection to the bus
    QDBusConnection mBus;
    std::optional<bool> mIsOn;
    QString mFault;
    bool mIsBusy = false; ///< an answer is awaited
};
