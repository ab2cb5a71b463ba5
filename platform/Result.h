// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <tl/expected.hpp>

#include <utility>

namespace platform {

/** Why something failed. */
struct Error {
    QString text; ///< for the user: the failed operation, then the system's text
    bool isMissingFile = false; ///< the file to be read does not exist
};

/** A value, or the reason why there is none; by default, just success or failure. */
template <class T = void>
class [[nodiscard]] Result : public tl::expected<T, Error> {
public:
    using tl::expected<T, Error>::expected;
    Result() = default;
    /** Implicit, so that an error is returned like a value. */
    Result(Error error)
        : tl::expected<T, Error>(tl::unexpect, std::move(error))
    {
    }
};

} // namespace platform
