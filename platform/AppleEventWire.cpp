// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "AppleEventWire.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>

#include <algorithm>
#include <utility>

namespace platform::wire {

/** (uv) */
struct Desc {
    uint type = 0;
    QDBusVariant data;
};

/** (u(uv)) */
struct Parameter {
    uint keyword = 0;
    Desc desc;
};

// QtDBus finds these by the namespace of their types.

static QDBusArgument& operator<<(QDBusArgument& argument, const Desc& desc)
{
    argument.beginStructure();
    argument << desc.type << desc.data;
    argument.endStructure();
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, Desc& desc)
{
    argument.beginStructure();
    argument >> desc.type >> desc.data;
    argument.endStructure();
    return argument;
}

static QDBusArgument& operator<<(QDBusArgument& argument, const Parameter& parameter)
{
    argument.beginStructure();
    argument << parameter.keyword << parameter.desc;
    argument.endStructure();
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, Parameter& parameter)
{
    argument.beginStructure();
    argument >> parameter.keyword >> parameter.desc;
    argument.endStructure();
    return argument;
}

} // namespace platform::wire

Q_DECLARE_METATYPE(platform::wire::Desc)
Q_DECLARE_METATYPE(platform::wire::Parameter)

namespace platform::wire {

namespace {

void registerTypes()
{
    static const bool done = [] {
        qDBusRegisterMetaType<Desc>();
        qDBusRegisterMetaType<QList<Desc>>();
        qDBusRegisterMetaType<Parameter>();
        qDBusRegisterMetaType<QList<Parameter>>();
        return true;
    }();
    static_cast<void>(done);
}

Desc toWire(const AEDesc& desc);

QList<Parameter> toWire(const AERecord& record)
{
    QList<Parameter> parameters;
    parameters.reserve(static_cast<int>(record.size()));
    for (const AEKeyDesc& entry : record) {
        parameters.append({entry.keyword, toWire(entry.desc)});
    }
    return parameters;
}

QVariant toVariant(const QByteArray& bytes)
{
    return bytes;
}

QVariant toVariant(const AEList& list)
{
    QList<Desc> items;
    items.reserve(static_cast<int>(list.size()));
    for (const AEDesc& item : list) {
        items.append(toWire(item));
    }
    return QVariant::fromValue(items);
}

QVariant toVariant(const AERecord& record)
{
    return QVariant::fromValue(toWire(record));
}

Desc toWire(const AEDesc& desc)
{
    return {desc.type,
        QDBusVariant(std::visit([](const auto& data) { return toVariant(data); }, desc.data))};
}

// Reading. QtDBus warns and returns zeros if an argument is read with a wrong signature, so every
// signature is checked first. It leaks containers that are begun but not ended, so a malformed
// argument is still read to its end.

bool readDesc(const QDBusArgument& argument, int depth, AEDesc& desc);

bool readList(const QDBusArgument& argument, int depth, AEList& list)
{
    bool isGood = true;
    argument.beginArray();
    while (!argument.atEnd()) {
        AEDesc item;
        isGood = readDesc(argument, depth, item) && isGood && list.size() < kMaxItems;
        if (isGood) {
            list.push_back(std::move(item));
        }
    }
    argument.endArray();
    return isGood;
}

bool readRecord(const QDBusArgument& argument, int depth, AERecord& record)
{
    bool isGood = true;
    argument.beginArray();
    while (!argument.atEnd()) {
        AEKeyDesc entry;
        argument.beginStructure();
        argument >> entry.keyword;
        isGood = readDesc(argument, depth, entry.desc) && isGood && record.size() < kMaxItems;
        argument.endStructure();
        if (isGood) {
            record.push_back(std::move(entry));
        }
    }
    argument.endArray();
    return isGood;
}

bool readDesc(const QDBusArgument& argument, int depth, AEDesc& desc)
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
        return readList(inner, depth + 1, desc.data.emplace<AEList>());
    }
    if (inner.currentSignature() == QLatin1String("a(u(uv))")) {
        return readRecord(inner, depth + 1, desc.data.emplace<AERecord>());
    }
    return false;
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
    registerTypes();
    return QVariant::fromValue(toWire(parameters));
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
    return readRecord(parameters, 1, record) ? std::optional(std::move(record)) : std::nullopt;
}

} // namespace platform::wire
