// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyList.h"
#include "QVTabletFields.h"
#include "rzkApplication.h"

#include <QLatin1String>
#include <QString>

#include <cstdint>
#include <string>

/**
 * Posted at each load and each save of the attached tablet's file, even if there is none. For
 * failures, the notification's text gives the reason, for the user.
 */
inline constexpr QLatin1String kConfigLoadedNotification("kConfigLoadedNotification");
inline constexpr QLatin1String kConfigNotLoadedNotification("kConfigNotLoadedNotification");
inline constexpr QLatin1String kConfigSavedNotification("kConfigSavedNotification");
inline constexpr QLatin1String kConfigNotSavedNotification("kConfigNotSavedNotification");

/**
 * The configuration file of the attached tablet, loaded into and saved from the record.
 *
 * The file belongs to the driver: it is never created here, and missing dictionaries and slots are
 * not added. Failures are not reported to the caller: a file that cannot be read leaves the record
 * unchanged, and one that cannot be written, such as on a full disk, is left unchanged, with a
 * message in the log. A missing file, or no file name yet from the driver, is normal and not
 * logged. Each outcome is posted as a notification. Main thread only.
 */
class QVConfigStore {
public:
    /**
     * Loads the file into the record. Fields whose entry is missing or has a wrong type keep their
     * value. With a single display, the mapped area is that display, whatever the file says.
     */
    void ReadQVConfigPlist();

    /** Saves the record's Pen, Monitor and Key sections to the file. */
    void WriteQVConfigPlist();

    /**
     * Whether the user has made changes that are not in the file: whether a saved field differs
     * from its value at the last load or save, or, before the first, at the creation of the store.
     *
     * The calibration flag does not count, nor does the mapped area, which is derived from num and
     * the current displays whenever they are drawn.
     */
    bool hasUnsavedFields() const;

    /** Takes note of what is in the tablet's file now, if others may have saved it. */
    void noteSaved();

    /** Copies a slot's dictionary to slot i of the record; does nothing unless i is 0 to 17. */
    void GetSubKeyInfo(std::int32_t i, const platform::Dictionary& object);

    /** Copies slot i of the record to a slot's dictionary; does nothing unless i is 0 to 17. */
    void SetSubKeyInfo(std::int32_t i, const platform::MutableDictionary& object);

    /** The file's path: its folder in the user's home folder, and pListname. */
    static std::string configPath();

    /** The folder of all tablets' files, with a slash at its end. */
    static std::string configFolder();

    /**
     * ReadQVConfigPlist() for callers that do not observe notifications.
     *
     * @return the file's contents
     */
    platform::Result<platform::PropertyList> loadTabletsRecord();

    /** Asks the driver for the attached tablet, and loads its file like loadTabletsRecord(). */
    platform::Result<platform::PropertyList> loadAttachedTablet();

    /** The same for any configuration file, ignoring the displays. */
    platform::Result<platform::PropertyList> loadRecord(const std::string& path,
        platform::PropertyListSource source = platform::PropertyListSource::RegularFile);

    /** Saves the record's sections to any existing configuration file. */
    platform::Result<> saveRecord(const std::string& path);

    /** Saves one entry of the record to the tablet's file, and no other. */
    platform::Result<> saveEntry(const QVEntry& entry);

    /** The tablet's name in the file loaded last; empty if it has none. */
    QString tabletName() const { return mTabletName; }

private:
    QString mTabletName;
    tagQVTabletInfo mInFile = qvTabletInfo; ///< the record when it last matched the file
};
