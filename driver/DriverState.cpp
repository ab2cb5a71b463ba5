// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "DriverState.h"

#include "FileSaving.h"
#include "HomeFolder.h"
#include "tagQVTabletInfo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <cmath>
#include <cstddef>
#include <limits>

namespace {

constexpr QLatin1String kAttached("attached");
constexpr QLatin1String kRecord("record");
constexpr QLatin1String kPushes("pushes");
constexpr QLatin1String kChosen("chosen");
constexpr QLatin1String kNumbers("numbers");
constexpr QLatin1String kNotices("notices");

QString statePath()
{
    return platform::userStateFolder() + QStringLiteral("/tdsg-driver/state.json");
}

/** Returns an integer that fits the type, or nothing. */
template <class Number>
std::optional<Number> wholeNumber(const QJsonValue& value)
{
    const double number = value.toDouble(-1);
    // NaN fails every comparison, too.
    if (number >= 0 && number <= std::numeric_limits<Number>::max()
        && number == std::floor(number)) {
        return static_cast<Number>(number);
    }
    return std::nullopt;
}

/** Returns a complete record, an empty one, or nothing if it is neither. */
std::optional<QByteArray> wholeRecord(const QJsonValue& value)
{
    const auto decoded = QByteArray::fromBase64Encoding(
        value.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (!value.isString() || !decoded
        || (!decoded.decoded.isEmpty() && decoded.decoded.size() != kQVRecordSize)) {
        return std::nullopt;
    }
    return decoded.decoded;
}

} // namespace

platform::Result<DriverState> DriverState::load()
{
    const QString path = statePath();
    const QFileInfo info(path);
    if (!info.isFile()) { // a FIFO would keep the driver waiting
        return platform::Error{
            QStringLiteral("%1 is not a regular file").arg(path), !info.exists()};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return platform::Error{QStringLiteral("cannot read %1: %2").arg(path, file.errorString())};
    }
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    const auto attached = wholeNumber<std::uint16_t>(object.value(kAttached));
    const auto record = wholeRecord(object.value(kRecord));
    const auto pushes = wholeNumber<std::uint32_t>(object.value(kPushes));
    if (!attached || !record || !pushes) {
        return platform::Error{QStringLiteral("%1 is not a state of this driver").arg(path)};
    }
    DriverState state{*attached, *record, *pushes, object.value(kChosen).toString(), {},
        object.value(kNotices).toBool(true)};
    const QJsonObject numbers = object.value(kNumbers).toObject();
    for (auto number = numbers.begin(); number != numbers.end(); ++number) {
        if (const auto value = wholeNumber<std::uint16_t>(number.value())) {
            state.numbers.insert(number.key(), *value);
        }
    }
    return state;
}

platform::Result<> DriverState::save() const
{
    const QString path = statePath();
    QDir().mkpath(QFileInfo(path).path());
    QJsonObject object;
    object.insert(kAttached, attached);
    object.insert(kRecord, QString::fromLatin1(record.toBase64()));
    object.insert(kPushes, static_cast<double>(pushes));
    object.insert(kChosen, chosen);
    object.insert(kNotices, showsNotices);
    QJsonObject numberObject;
    for (auto number = numbers.begin(); number != numbers.end(); ++number) {
        numberObject.insert(number.key(), number.value());
    }
    object.insert(kNumbers, numberObject);
    const QByteArray bytes = QJsonDocument(object).toJson();
    const platform::Result<> saved =
        platform::replaceFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    return saved
        ? saved
        : platform::Error{QStringLiteral("cannot write %1: %2").arg(path, saved.error().text)};
}

QString modelKey(std::uint16_t vendorID, std::uint16_t productID)
{
    return QStringLiteral("%1:%2")
        .arg(vendorID, 4, 16, QLatin1Char('0'))
        .arg(productID, 4, 16, QLatin1Char('0'));
}
