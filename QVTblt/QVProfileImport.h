// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVProfile.h"
#include "Result.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <string>
#include <vector>

/**
 * A profile from somebody else, adapted to a tablet, and what it would change. Its buttons start no
 * application before QVAllowStart() is called.
 */
struct QVProfileImport {
    QVProfile profile; ///< with the tablet's product; keys that start applications have no action
    QStringList changes; ///< a line for each entry that differs from the record
    QStringList leftOut; ///< what does not fit the tablet, or is no valid setting

    /** A button that would start an application. */
    struct Start {
        std::size_t slot;
        QString button; ///< its name for the user
        QString path;
    };
    std::vector<Start> starts;
};

/**
 * Reads a file with a profile.
 *
 * @param record of the tablet that the profile is for
 */
platform::Result<QVProfileImport> QVReadImport(
    const std::string& path, const tagQVTabletInfo& record);

/** The same for a list that has been loaded. */
platform::Result<QVProfileImport> QVImport(
    const platform::PropertyList& list, const tagQVTabletInfo& record);

/** Lets a button start its application. */
void QVAllowStart(QVProfileImport& import, const QVProfileImport::Start& start);
