// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletFields.h"

#include <QString>

/**
 * What an entry sets, in the user's language and as within a sentence: "key 3", "pressure". Entries
 * that are set together have the same name.
 */
QString QVEntryName(const QVEntry& entry);
