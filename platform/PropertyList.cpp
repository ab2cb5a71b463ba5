// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyList.h"

#include "FileSaving.h"
#include "PropertyListNode.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace platform {

namespace {

Error failure(const char* what, const std::string& path, const QString& why)
{
    return {
        QStringLiteral("%1 %2: %3").arg(QLatin1String(what), QString::fromStdString(path), why)};
}

Error tooLarge()
{
    return {QStringLiteral("it is larger than %1 bytes").arg(kPropertyListMaxSize)};
}

/** Reads a whole file; never blocks on a regular one. */
Result<QByteArray> readFile(const std::string& path, PropertyListSource source)
{
    const bool isRegular = source == PropertyListSource::RegularFile;
    const auto fail = [&](const QString& why) { return failure("cannot read", path, why); };
    // O_NONBLOCK: otherwise, opening a FIFO would wait for a writer.
    const int descriptor =
        ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | (isRegular ? O_NONBLOCK : 0));
    if (descriptor < 0) {
        const int reason = errno;
        Error error = fail(QString::fromStdString(std::system_category().message(reason)));
        error.isMissingFile = reason == ENOENT;
        return error;
    }
    QFile file;
    struct stat status { };
    if (!file.open(
            descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle)) {
        return fail(file.errorString());
    }
    if (::fstat(descriptor, &status) != 0) {
        return fail(qt_error_string());
    }
    if (isRegular && !S_ISREG(status.st_mode)) {
        return fail(QStringLiteral("it is not a regular file"));
    }
    constexpr auto kLimit = static_cast<qint64>(kPropertyListMaxSize);
    constexpr qint64 kPart = 16 << 10; // a configuration is less
    QByteArray bytes;
    while (std::max<qint64>(bytes.size(), file.size()) <= kLimit) {
        const QByteArray part = file.read(kPart);
        if (file.error() != QFile::NoError) {
            return fail(file.errorString());
        }
        bytes += part;
        // QFile fills the part unless the file ends. A terminal would be asked once more.
        if (part.size() < kPart && bytes.size() <= kLimit) {
            return bytes;
        }
    }
    return fail(tooLarge().text);
}

} // namespace

// Number ------------------------------------------------------------------------------------------

Number Number::integer(std::uint64_t bits)
{
    return {static_cast<std::int64_t>(bits), true, bits != 0};
}

Number Number::real(double value)
{
    constexpr double kEnd = 0x1p63;
    std::int64_t whole = 0;
    if (value >= kEnd) {
        whole = std::numeric_limits<std::int64_t>::max();
    } else if (value < -kEnd) {
        whole = std::numeric_limits<std::int64_t>::min();
    } else if (!std::isnan(value)) {
        whole = static_cast<std::int64_t>(value);
    }
    return {whole, static_cast<double>(whole) == value, value != 0};
}

// Dictionary --------------------------------------------------------------------------------------

using Kind = PropertyListNode::Kind;

namespace {

PropertyListNode* find(PropertyListNode* dictionary, const char* key)
{
    return dictionary == nullptr ? nullptr : dictionary->find(key);
}

PropertyListNode* findDictionary(PropertyListNode* dictionary, const char* key)
{
    PropertyListNode* const node = find(dictionary, key);
    return node != nullptr && node->kind == Kind::Dictionary ? node : nullptr;
}

} // namespace

EntryKind Dictionary::kind(const char* key) const
{
    const PropertyListNode* const node = find(mNode, key);
    if (node == nullptr) {
        return EntryKind::Absent;
    }
    switch (node->kind) {
    case Kind::True:
    case Kind::False:
    case Kind::Integer:
    case Kind::Real:
        return EntryKind::Number;
    case Kind::String:
        return EntryKind::String;
    case Kind::Dictionary:
        return EntryKind::Dictionary;
    case Kind::Array:
        return EntryKind::Array;
    case Kind::Date:
        return EntryKind::Date;
    case Kind::Data:
        return EntryKind::Data;
    }
    return EntryKind::Absent;
}

std::optional<Number> Dictionary::number(const char* key) const
{
    const PropertyListNode* const node = find(mNode, key);
    if (node == nullptr) {
        return std::nullopt;
    }
    switch (node->kind) {
    case Kind::True:
        return Number::integer(1);
    case Kind::False:
        return Number::integer(0);
    case Kind::Integer:
        return Number::integer(propertyListInteger(node->text).value_or(0));
    case Kind::Real:
        return Number::real(propertyListReal(node->text).value_or(0));
    default:
        return std::nullopt;
    }
}

std::optional<std::string_view> Dictionary::string(const char* key) const
{
    const PropertyListNode* const node = find(mNode, key);
    if (node == nullptr || node->kind != Kind::String) {
        return std::nullopt;
    }
    return node->text;
}

Dictionary Dictionary::dictionary(const char* key) const
{
    return Dictionary(findDictionary(mNode, key));
}

std::vector<std::string> Dictionary::strings(const char* key) const
{
    std::vector<std::string> strings;
    const PropertyListNode* const array = mNode == nullptr ? nullptr : mNode->find(key);
    if (array != nullptr && array->kind == Kind::Array) {
        for (const PropertyListNode& part : array->parts) {
            if (part.kind == Kind::String) {
                strings.push_back(part.text);
            }
        }
    }
    return strings;
}

std::vector<std::string> Dictionary::keys() const
{
    std::vector<std::string> keys;
    if (mNode != nullptr) {
        for (const PropertyListNode& part : mNode->parts) {
            keys.push_back(part.key);
        }
    }
    return keys;
}

MutableDictionary MutableDictionary::dictionary(const char* key) const
{
    return MutableDictionary(findDictionary(mNode, key));
}

namespace {

/** Sets an entry, without contents; does nothing without a dictionary. */
PropertyListNode* put(
    PropertyListNode* dictionary, const char* key, Kind kind, std::string text = {})
{
    if (dictionary == nullptr) {
        return nullptr;
    }
    PropertyListNode* node = dictionary->find(key);
    if (node == nullptr) {
        node = &dictionary->parts.emplace_back();
        node->key = key;
    }
    node->kind = kind;
    node->text = std::move(text);
    node->parts.clear();
    return node;
}

} // namespace

void MutableDictionary::setInteger(const char* key, std::int64_t value) const
{
    put(mNode, key, Kind::Integer, std::to_string(value));
}

void MutableDictionary::setBoolean(const char* key, bool value) const
{
    put(mNode, key, value ? Kind::True : Kind::False);
}

void MutableDictionary::setString(const char* key, const std::string& value) const
{
    put(mNode, key, Kind::String, value);
}

void MutableDictionary::setStrings(const char* key, const std::vector<std::string>& values) const
{
    if (PropertyListNode* const array = put(mNode, key, Kind::Array)) {
        for (const std::string& value : values) {
            PropertyListNode& part = array->parts.emplace_back();
            part.kind = Kind::String;
            part.text = value;
        }
    }
}

MutableDictionary MutableDictionary::addDictionary(const char* key) const
{
    return MutableDictionary(put(mNode, key, Kind::Dictionary));
}

// PropertyList ------------------------------------------------------------------------------------

PropertyList::PropertyList()
    : PropertyList(PropertyListNode())
{
}

PropertyList::PropertyList(PropertyListNode root)
    : mRoot(std::make_unique<PropertyListNode>(std::move(root)))
{
}

PropertyList::PropertyList(PropertyList&&) noexcept = default;
PropertyList& PropertyList::operator=(PropertyList&&) noexcept = default;
PropertyList::~PropertyList() = default;

Result<PropertyList> PropertyList::parse(std::string_view bytes)
{
    if (bytes.size() > kPropertyListMaxSize) {
        return tooLarge();
    }
    Result<PropertyListNode> root = bytes.starts_with(kBinaryPropertyList)
        ? readBinaryPropertyList(bytes)
        : readXmlPropertyList(bytes);
    if (!root) {
        return root.error();
    }
    if (root->kind != Kind::Dictionary) {
        return Error{QStringLiteral("its root is not a dictionary")};
    }
    return PropertyList(std::move(*root));
}

Result<PropertyList> PropertyList::load(const std::string& path, PropertyListSource source)
{
    const Result<QByteArray> bytes = readFile(path, source);
    if (!bytes) {
        return bytes.error();
    }
    Result<PropertyList> list =
        parse({bytes->constData(), static_cast<std::size_t>(bytes->size())});
    if (!list) {
        return failure("cannot use", path, list.error().text);
    }
    return list;
}

std::string PropertyList::toXml() const
{
    return writeXmlPropertyList(*mRoot);
}

namespace {

/** Saves the list, unless its XML does not represent it. */
Result<> saveAs(const PropertyListNode& root, const std::string& path, const char* failed,
    Result<> (*write)(const QString& path, std::string_view bytes))
{
    const std::string xml = writeXmlPropertyList(root);
    if (xml.size() > kPropertyListMaxSize) {
        return failure(failed, path, QStringLiteral("in XML, ") + tooLarge().text);
    }
    const Result<PropertyListNode> again = readXmlPropertyList(xml);
    if (!again || *again != root) {
        return failure(failed, path,
            QStringLiteral("it contains text that XML cannot represent")
                + (again ? QString() : QStringLiteral(": ") + again.error().text));
    }
    const Result<> saved = write(QFile::decodeName(path.c_str()), xml);
    return saved ? saved : failure(failed, path, saved.error().text);
}

} // namespace

Result<> PropertyList::save(const std::string& path) const
{
    return saveAs(*mRoot, path, "cannot write", replaceFile);
}

Result<> PropertyList::saveNew(const std::string& path) const
{
    return saveAs(*mRoot, path, "cannot create", createFile);
}

} // namespace platform
