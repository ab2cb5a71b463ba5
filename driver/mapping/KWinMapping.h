// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Mapping.h"

#include <QDBusConnection>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QVariantMap>

/** How KWin is to be set for the virtual pen. */
struct KWinSettings {
    QVariantMap changes; ///< properties of its object that have to be set
    /** Quarter turns by which KWin turns the place of the pen, since it does so with a display. */
    int turns = 0;
};

/**
 * The settings with which the pen's whole range covers all displays and KWin changes nothing else.
 *
 * KWin 6 can map a pen to the workspace. KWin 5 maps it to one output; but the part of the output
 * that the pen covers may begin and end outside of it, so that it is all outputs together.
 *
 * @param present the properties of the pen's object
 */
KWinSettings kwinSettings(const QVariantMap& present, const Desktop& desktop);

/**
 * Makes KWin map the virtual pen to all displays: when the pen or KWin appears, when the displays
 * change, and when another program has changed the mapping. Without KWin, it does nothing.
 */
class KWinMapping final : public QObject {
    Q_OBJECT

public:
    explicit KWinMapping(QDBusConnection session, QObject* parent = nullptr);

    /** The pen from now on: the name of its event node, such as "event7"; empty for none. */
    void setPen(const QString& node);
    /** The displays that the pen has to cover. */
    void setDesktop(const Desktop& desktop);

    /** Quarter turns by which KWin turns the place of the pen. */
    int turns() const { return mTurns; }

Q_SIGNALS:
    /** turns() has changed. */
    void changed();

private Q_SLOTS:
    void takeDevice(const QString& node);

private: // NOLINT(readability-redundant-access-specifiers): moc reads the one before
    void apply();
    void set(const QString& path, const QVariantMap& present);
    void setTurns(int turns);
    /**
     * Watches the file in which KWin keeps the settings of its devices, since it sends no signal;
     * while there is none, its folder.
     */
    void watchFile();

    QDBusConnection mBus;
    QFileSystemWatcher mFile{this};
    QString mPen;
    Desktop mDesktop;
    int mTurns = 0;
    bool mIsAsking = false;
    bool mIsToAskAgain = false;
};
