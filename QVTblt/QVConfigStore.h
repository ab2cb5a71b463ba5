// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyList.h"
#include "QVTabletFields.h"
#include "tagQVTabletInfo.h"

#include <QLatin1String>

#include <cstdint>
#include <string>

/**
 * Posted at each load and each save of the attached tablet's file, also where there is none. With
 * the failures, the notification's text says why, for people.
 */
inline constexpr QLatin1String kConfigLoadedNotification("kConfigLoadedNotification");
inline constexpr QLatin1String kConfigNotLoadedNotification("kConfigNotLoadedNotification");
inline constexpr QLatin1String kConfigSavedNotification("kConfigSavedNotification");
inline constexpr QLatin1String kConfigNotSavedNotification("kConfigNotSavedNotification");

/**
 * The configuration file of the attached tablet, loaded into and saved from the record.
 *
 * The file belongs to the driver: it is never created here, and dictionaries and slots that it
 * lacks stay missing. No failure is an error to the caller: an unusable file leaves the record, and
 * an unwritable one the file, as they are, with a line in the log. A missing file is normal and not
 * logged; so is a file without a name, before the driver has given one. Whoever wants to know hears
 * of each outcome by a notification. Main thread only.
 */
class QVConfigStore {
public:
    QVConfigStore();

    /**
     * Loads the file into the record. What it lacks, and what is of the wrong type, keeps its
     * value. With a single display, the mapped area is that display's, whatever the file says.
     */
    void ReadQVConfigPlist();

    /** Saves the record's Pen, Monitor and Key sections into the file. */
    void WriteQVConfigPlist();

    /**
     * Whether the record holds choices of the user's that the file does not: whether a field that
     * is saved has another value than when the file was last loaded or saved. Before that, the
     * record is taken to be as it was when the store was made.
     *
     * Not among them are the calibration's flag, and the mapped area, which follows from num and
     * the displays that there are, whenever they are drawn.
     */
    bool hasUnsavedFields() const;

    /** Copies a slot's dictionary into slot i of the record, i from 0 to 17; else does nothing. */
    void GetSubKeyInfo(std::int32_t i, const platform::Dictionary& object);

    /** Copies slot i of the record into a slot's dictionary, i from 0 to 17; else does nothing. */
    void SetSubKeyInfo(std::int32_t i, const platform::Dictionary& object);

    /** The file's path: its folder below the user's home, and pListname. */
    static std::string configPath();

    /**
     * ReadQVConfigPlist() for callers that do not observe notifications.
     *
     * @return the file's contents
     */
    platform::Result<platform::PropertyList> loadTabletsRecord();

    /** The same of any configuration file, without regard to displays. */
    platform::Result<platform::PropertyList> loadRecord(const std::string& path,
        platform::PropertyListSource source = platform::PropertyListSource::RegularFile);

    /** Saves the record's sections into any configuration file that is there. */
    platform::Result<> saveRecord(const std::string& path);

private:
    void readSection(const platform::Dictionary& dictionary, const QVSection& section);
    void writeSection(const platform::Dictionary& dictionary, const QVSection& section);

    tagQVTabletInfo mInFile; ///< the record when it and the file were last the same
};
