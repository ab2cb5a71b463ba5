// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "EventForms.h"

#include "QVWire.h"
#include "tagQVTabletInfo.h"

#include <span>

namespace {

using namespace platform;

QByteArray codes(std::initializer_list<FourCharCode> list)
{
    return {reinterpret_cast<const char*>(std::data(list)),
        static_cast<int>(list.size() * sizeof(FourCharCode))};
}

/** Returns an error unless the entries' keywords are exactly these, in this order. */
QString keywordError(
    const char* what, const AERecord& entries, std::initializer_list<AEKeyword> keywords)
{
    if (!std::ranges::equal(entries, keywords, {}, &AEKeyDesc::keyword)) {
        QByteArray expected;
        for (const AEKeyword keyword : keywords) {
            expected += ' ' + quoted(keyword);
        }
        return QStringLiteral("%1 must have exactly%2, in this order")
            .arg(QLatin1String(what), QLatin1String(expected));
    }
    return {};
}

/** Returns an error unless the descriptor has this type and one of these values. */
QString valueError(const AEKeyDesc& entry, DescType type, std::initializer_list<QByteArray> values)
{
    const QByteArray* const bytes = entry.desc.bytes();
    if (entry.desc.type != type) {
        return QStringLiteral("%1 is of type %2, not %3")
            .arg(QLatin1String(quoted(entry.keyword)), QLatin1String(quoted(entry.desc.type)),
                QLatin1String(quoted(type)));
    }
    if (bytes == nullptr || std::ranges::find(values, *bytes) == values.end()) {
        return QStringLiteral("%1 has not the expected value")
            .arg(QLatin1String(quoted(entry.keyword)));
    }
    return {};
}

QString firstOf(std::initializer_list<QString> errors)
{
    for (const QString& error : errors) {
        if (!error.isEmpty()) {
            return error;
        }
    }
    return {};
}

QString specifierError(const AEDesc& desc)
{
    const auto* const entries = std::get_if<AERecord>(&desc.data);
    if (desc.type != typeObjectSpecifier || entries == nullptr) {
        return QStringLiteral("'----' is no object specifier");
    }
    QString error = keywordError("the object specifier", *entries,
        {keyAEDesiredClass, keyAEKeyForm, keyAEKeyData, keyAEContainer});
    if (!error.isEmpty()) {
        return error;
    }
    const AERecord& entry = *entries;
    // A panel with a four-byte long sends only the property's code.
    return firstOf({valueError(entry[0], typeType, {codes({cProperty})}),
        valueError(entry[1], typeEnumerated, {codes({formPropertyID})}),
        valueError(entry[2], typeLongInteger,
            {codes({kQVConfigProperty, kQVDriverSignature}), codes({kQVConfigProperty})}),
        valueError(entry[3], typeNull, {QByteArray()})});
}

} // namespace

QString queryFormError(const AppleEvent& event)
{
    const AERecord& entry = event.parameters;
    QString error = keywordError("the query", entry, {keyAERequestedType, keyDirectObject});
    if (!error.isEmpty()) {
        return error;
    }
    return firstOf({valueError(entry[0], typeType, {codes({typeLongInteger})}),
        specifierError(entry[1].desc)});
}

QString settingsFormError(const AppleEvent& event)
{
    const AERecord& entry = event.parameters;
    QString error = keywordError("the settings", entry, {kQVSettingsData});
    if (!error.isEmpty()) {
        return error;
    }
    const QByteArray* const bytes = entry[0].desc.bytes();
    if (entry[0].desc.type != typeUTF8Text || bytes == nullptr) {
        return QStringLiteral("'data' is of type %1, not 'utf8'")
            .arg(QLatin1String(quoted(entry[0].desc.type)));
    }
    if (bytes->size() != kQVRecordSize) {
        return QStringLiteral("the record has %1 bytes, not %2")
            .arg(bytes->size())
            .arg(kQVRecordSize);
    }
    return {};
}
