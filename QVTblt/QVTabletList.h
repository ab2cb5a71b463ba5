// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

/**
 * @file
 * The list of the tablets that are plugged in, as the driver gives it; docs/driver-protocol.md has
 * its entries.
 */

/** The tablets; each has a map of entries. */
using QVTabletList = QList<QVariantMap>;

/** Lets the list travel over D-Bus. */
void QVRegisterTabletList();

/** The list as text, a paragraph for each tablet. */
QString QVTabletListText(const QVTabletList& tablets);
