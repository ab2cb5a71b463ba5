// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <string>

/** Why there is no value; empty where there is one. */
template <class T>
std::string errorText(const platform::Result<T>& result)
{
    return result ? std::string() : result.error().text.toStdString();
}
