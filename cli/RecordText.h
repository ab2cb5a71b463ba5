// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletFields.h"

#include <QByteArray>
#include <QString>

/** Formats the record, one line per entry: "Monitor/XOrg", spaces, the value. */
QString recordTable(const tagQVTabletInfo& record);

/**
 * Formats the record as JSON, structured like its configuration file: four objects, slots in "Key".
 */
QByteArray recordJson(const tagQVTabletInfo& record);
