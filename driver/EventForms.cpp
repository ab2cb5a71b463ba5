// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "EventForms.h"

#include "QVDriverProtocol.h"

#include <span>

namespace {

using namespace platform;

QByteArray codes(std::initializer_list<FourCharCode> list)
{
    return {reinterpret_cast<const char*>(std::data(list)),
        static_cast<int>(list.size() * sizeof(FourCharCode))};
}

/** Checks that the entries' keywords are exactly these, in this order. */
Result<> checkKeywords(
    const char* what, const AERecord& entries, std::initializer_list<AEKeyword> keywords)
{
    if (!std::ranges::equal(entries, keywords, {}, &AEKeyDesc::keyword)) {
        QByteArray expected;
        for (const AEKeyword keyword : keywords) {
            expected += ' ' + quoted(keyword);
        }
        return Error{QStringLiteral("%1 must have exactly%2, in this order")
                         .arg(QLatin1String(what), QLatin1String(expected))};
    }
    return {};
}

/** Checks that the descriptor has this type and one of these values. */
Result<> checkValue(const AEKeyDesc& entry, DescType type, std::initializer_list<QByteArray> values)
{
    const QByteArray* const bytes = entry.desc.bytes();
    if (entry.desc.type != type) {
        return Error{QStringLiteral("%1 is of type %2, not %3")
                         .arg(QLatin1String(quoted(entry.keyword)),
                             QLatin1String(quoted(entry.desc.type)), QLatin1String(quoted(type)))};
    }
    if (bytes == nullptr || std::ranges::find(values, *bytes) == values.end()) {
        return Error{QStringLiteral("%1 does not have the expected value")
                         .arg(QLatin1String(quoted(entry.keyword)))};
    }
    return {};
}

Result<> firstFailure(std::initializer_list<Result<>> checks)
{
    const auto* const failed =
        std::ranges::find_if(checks, [](const Result<>& check) { return !check; });
    return failed == checks.end() ? Result<>() : *failed;
}

Result<> checkSpecifier(const AEDesc& desc)
{
    const auto* const entries = std::get_if<AERecord>(&desc.data);
    if (desc.type != typeObjectSpecifier || entries == nullptr) {
        return Error{QStringLiteral("'----' is not an object specifier")};
    }
    if (Result<> keywords = checkKeywords("the object specifier", *entries,
            {keyAEDesiredClass, keyAEKeyForm, keyAEKeyData, keyAEContainer});
        !keywords) {
        return keywords;
    }
    const AERecord& entry = *entries;
    // A panel with a four-byte long sends only the property's code.
    return firstFailure({checkValue(entry[0], typeType, {codes({cProperty})}),
        checkValue(entry[1], typeEnumerated, {codes({formPropertyID})}),
        checkValue(entry[2], typeLongInteger,
            {codes({kQVConfigProperty, kQVDriverSignature}), codes({kQVConfigProperty})}),
        checkValue(entry[3], typeNull, {QByteArray()})});
}

} // namespace

Result<> checkQuery(const AppleEvent& event)
{
    const AERecord& entry = event.parameters;
    if (Result<> keywords =
            checkKeywords("the query", entry, {keyAERequestedType, keyDirectObject});
        !keywords) {
        return keywords;
    }
    return firstFailure({checkValue(entry[0], typeType, {codes({typeLongInteger})}),
        checkSpecifier(entry[1].desc)});
}

Result<tagQVTabletInfo> pushedRecord(const AppleEvent& event)
{
    const AERecord& entry = event.parameters;
    if (const Result<> keywords = checkKeywords("the settings", entry, {kQVSettingsData});
        !keywords) {
        return keywords.error();
    }
    const QByteArray* const bytes = entry[0].desc.bytes();
    if (entry[0].desc.type != typeUTF8Text || bytes == nullptr) {
        return Error{QStringLiteral("'data' is of type %1, not 'utf8'")
                         .arg(QLatin1String(quoted(entry[0].desc.type)))};
    }
    const std::optional<tagQVTabletInfo> record = QVRecordIn(*bytes);
    if (!record) {
        return Error{QStringLiteral("the record has %1 bytes, not %2")
                         .arg(bytes->size())
                         .arg(kQVRecordSize)};
    }
    return *record;
}
