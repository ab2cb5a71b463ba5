// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <string>

/** The error's text; empty if there is a value. */
template <class T>
std::string errorText(const platform::Result<T>& result)
{
    return result ? std::string() : result.error().text.toStdString();
}
