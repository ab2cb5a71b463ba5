// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyList.h"
#include "QVTabletFields.h"

#include <QString>
#include <QStringList>

#include <bitset>
#include <cstdint>

/** The longest name of a profile, in characters. */
inline constexpr int kQVProfileNameSize = 64;

/** Which of kQVEntries something has. */
using QVEntrySet = std::bitset<kQVEntries.size()>;

/**
 * The settings of a tablet for one kind of work. Its file is a property list with the entries
 * FormatVersion (1), Name, ProductID, Applications, and Pen, Monitor and Key as in a configuration
 * file, but without the calibration flag.
 */
struct QVProfile {
    QString name;
    std::uint16_t productID = 0; ///< of the tablet that it was made for
    /** What it is for: the names of desktop entries, without ".desktop". */
    QStringList applications;
    tagQVTabletInfo settings{}; ///< only the entries in present
    QVEntrySet present;
};

/** Whether an entry belongs to a profile: all that the panel saves, but no calibration flag. */
constexpr bool QVIsInProfile(const QVEntry& entry)
{
    return entry.section->saved && entry.offset != offsetof(tagQVTabletInfo, Monitor.disableFlag);
}

/** Why a text cannot be the name of a profile, for the user; empty if it can. */
QString QVProfileNameFault(const QString& name);

/** A profile with all settings of a record, which also names the tablet. */
QVProfile QVProfileOf(const tagQVTabletInfo& record, const QString& name);

/** Copies the settings that the profile has; the others keep their values. */
void QVApplyProfile(const QVProfile& profile, tagQVTabletInfo& record);

/**
 * The profile in a property list. Entries that a configuration file would be loaded without are
 * left out. Fails if it is no profile, or one of a later format.
 */
platform::Result<QVProfile> QVReadProfile(const platform::PropertyList& list);

/** The profile as a property list. */
platform::PropertyList QVWriteProfile(const QVProfile& profile);
