// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AppleEvents.h"

#include <QString>
#include <QVariant>

#include <optional>

/**
 * @file
 * The wire format of events on D-Bus, as described in docs/driver-protocol.md.
 *
 * A parameter list has the signature a(u(uv)): keyword, then the descriptor's type and data. The
 * data is ay (bytes), a(uv) (a list) or a(u(uv)) (a record).
 */
namespace platform::wire {

inline constexpr auto kObjectPath = "/org/quorvia/AppleEvents";
inline constexpr auto kInterface = "org.quorvia.AppleEvents1";
inline constexpr auto kSendMethod = "Send";
inline constexpr auto kChangedSignal = "Changed";
inline constexpr auto kEventNotHandled = "org.quorvia.AppleEvents.Error.EventNotHandled";
inline constexpr auto kCoercionFail = "org.quorvia.AppleEvents.Error.CoercionFail";

/** Signature of the method's arguments. */
inline constexpr auto kSendSignature = "uua(u(uv))";

/** Maximum nesting of lists and records; a parameter's own descriptor is at depth 1. */
inline constexpr int kMaxDepth = 8;

/** Maximum number of entries of a parameter list, list or record. */
inline constexpr std::size_t kMaxItems = 4096;

/**
 * The bus name of the application with that signature. If a bus name cannot contain its characters,
 * the code is written as "_x" and eight hex digits.
 */
QString busName(FourCharCode signature);

/** Encodes a parameter list as an argument of a D-Bus message. */
QVariant encode(const AERecord& parameters);

/** Decodes a parameter list from an argument of a D-Bus message; nothing if it is malformed. */
std::optional<AERecord> decode(const QVariant& argument);

} // namespace platform::wire
