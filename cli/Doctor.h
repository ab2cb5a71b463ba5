// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVSelfCheck.h"

#include <QByteArray>
#include <QString>

#include <vector>

/** The stages in the user's language, one line for each, with what to do below it. */
QString doctorText(const std::vector<QVStage>& stages);

/** The stages as JSON, in the form that the manual page describes. */
QByteArray doctorJson(const std::vector<QVStage>& stages);
