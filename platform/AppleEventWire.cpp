// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "AppleEventWire.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>

#include <algorithm>
#include <utility>

Q_DECLARE_METATYPE(platform::AEDesc)
Q_DECLARE_METATYPE(platform::AEKeyDesc)
Q_DECLARE_METATYPE(platform::AEList)
Q_DECLARE_METATYPE(platform::AERecord)

namespace platform {

// QtDBus finds these by the namespace of their types.

/** (uv) */
static QDBusArgument& operator<<(QDBusArgument& argument, const AEDesc& desc)
{
    const auto toVariant = [](const auto& data) { return QVariant::fromValue(data); };
    argument.beginStructure();
    argument << desc.type << QDBusVariant(std::visit(toVariant, desc.data));
    argument.endStructure();
    return argument;
}

/** (u(uv)) */
static QDBusArgument& operator<<(QDBusArgument& argument, const AEKeyDesc& entry)
{
    argument.beginStructure();
    argument << entry.keyword << entry.desc;
    argument.endStructure();
    return argument;
}

/** A list or a record. */
template <class Item>
static QDBusArgument& operator<<(QDBusArgument& argument, const std::vector<Item>& items)
{
    argument.beginArray(qMetaTypeId<Item>());
    for (const Item& item : items) {
        argument << item;
    }
    argument.endArray();
    return argument;
}

// Registering a type needs a reader, which is never called.

static const QDBusArgument& operator>>(const QDBusArgument& argument, AEDesc& /*desc*/)
{
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, AEKeyDesc& /*entry*/)
{
    return argument;
}

template <class Item>
static const QDBusArgument& operator>>(const QDBusArgument& argument, std::vector<Item>& /*items*/)
{
    return argument;
}

namespace wire {

namespace {

// Reading. QtDBus warns and returns zeros if an argument is read with a wrong signature, so every
// signature is checked first. It leaks containers that are begun but not ended, so a malformed
// argument is still read to its end.

bool readItem(const QDBusArgument& argument, int depth, AEDesc& desc);
bool readItem(const QDBusArgument& argument, int depth, AEKeyDesc& entry);

template <class Item>
bool readItems(const QDBusArgument& argument, int depth, std::vector<Item>& items)
{
    bool isGood = true;
    argument.beginArray();
    while (!argument.atEnd()) {
        Item item;
        isGood = readItem(argument, depth, item) && isGood && items.size() < kMaxItems;
        if (isGood) {
            items.push_back(std::move(item));
        }
    }
    argument.endArray();
    return isGood;
}

bool readItem(const QDBusArgument& argument, int depth, AEDesc& desc)
{
    QDBusVariant variant;
    argument.beginStructure();
    argument >> desc.type >> variant;
    argument.endStructure();

    const QVariant data = variant.variant();
    if (data.userType() == QMetaType::QByteArray) {
        desc.data = data.toByteArray();
        return depth <= kMaxDepth;
    }
    if (depth > kMaxDepth || data.userType() != qMetaTypeId<QDBusArgument>()) {
        return false;
    }
    const auto inner = data.value<QDBusArgument>();
    if (inner.currentSignature() == QLatin1String("a(uv)")) {
        return readItems(inner, depth + 1, desc.data.emplace<AEList>());
    }
    if (inner.currentSignature() == QLatin1String("a(u(uv))")) {
        return readItems(inner, depth + 1, desc.data.emplace<AERecord>());
    }
    return false;
}

bool readItem(const QDBusArgument& argument, int depth, AEKeyDesc& entry)
{
    argument.beginStructure();
    argument >> entry.keyword;
    const bool isGood = readItem(argument, depth, entry.desc);
    argument.endStructure();
    return isGood;
}

} // namespace

QString busName(FourCharCode signature)
{
    constexpr auto kPrefix = "org.quorvia.AppleEvents.";
    QString text;
    for (int shift = 24; shift >= 0; shift -= 8) {
        text += QChar(static_cast<ushort>(signature >> static_cast<unsigned>(shift) & 0xFFU));
    }
    const auto isPlain = [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9')
            || c == u'_' || c == u'-';
    };
    // An element of a bus name cannot begin with a digit; one that begins with "_x" would be
    // ambiguous.
    const bool fits = std::all_of(text.cbegin(), text.cend(), isPlain) && !text.at(0).isDigit()
        && !text.startsWith(QLatin1String("_x"));
    return QLatin1String(kPrefix)
        + (fits ? text : QStringLiteral("_x%1").arg(signature, 8, 16, QLatin1Char('0')));
}

QVariant encode(const AERecord& parameters)
{
    static const bool areRegistered = [] {
        qDBusRegisterMetaType<AEDesc>();
        qDBusRegisterMetaType<AEKeyDesc>();
        qDBusRegisterMetaType<AEList>();
        qDBusRegisterMetaType<AERecord>();
        return true;
    }();
    static_cast<void>(areRegistered);
    return QVariant::fromValue(parameters);
}

std::optional<AERecord> decode(const QVariant& argument)
{
    if (argument.userType() != qMetaTypeId<QDBusArgument>()) {
        return std::nullopt;
    }
    const auto parameters = argument.value<QDBusArgument>();
    if (parameters.currentSignature() != QLatin1String("a(u(uv))")) {
        return std::nullopt;
    }
    AERecord record;
    return readItems(parameters, 1, record) ? std::optional(std::move(record)) : std::nullopt;
}

} // namespace wire

} // namespace platform
