// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Reads and writes the XML form of property lists.

#include "PropertyListNode.h"

#include <QRegularExpression>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <expat.h>
#include <limits>
#include <locale>
#include <memory>
#include <sstream>
#include <utility>
#include <vector>

namespace platform {

namespace {

using Node = PropertyListNode;
using Kind = Node::Kind;

struct Tag {
    std::string_view name;
    Kind kind;
};

/** Most frequent first. */
constexpr auto kTags = std::to_array<Tag>({{"integer", Kind::Integer}, {"string", Kind::String},
    {"dict", Kind::Dictionary}, {"true", Kind::True}, {"false", Kind::False}, {"real", Kind::Real},
    {"array", Kind::Array}, {"data", Kind::Data}, {"date", Kind::Date}});

std::string_view tagName(Kind kind)
{
    return std::ranges::find(kTags, kind, &Tag::kind)->name;
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

/** The beginning of a text in single quotes, with question marks for special bytes. */
std::string shown(std::string_view text)
{
    std::string quoted(1, '\'');
    for (const char c : text.substr(0, 32)) {
        quoted += c >= ' ' && c <= '~' ? c : '?';
    }
    quoted += '\'';
    return quoted;
}

/**
 * Whether it has the ISO 8601 form of property lists: 2026-11-21T02:46:00Z, or truncated down to
 * the day.
 */
bool isDate(std::string_view text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A\d{4}-\d\d-\d\d(T\d\d(:\d\d(:\d\d)?)?)?Z\z)"));
    // As Latin-1, so that a byte-order mark is not passed over.
    return form.match(QString::fromLatin1(text.data(), static_cast<int>(text.size()))).hasMatch();
}

// Expat 2.9 replaced this function, which other releases have.
#if XML_MAJOR_VERSION > 2 || XML_MINOR_VERSION >= 9
constexpr auto currentLine = XML_GetCurrentLineNumber64;
#else
constexpr auto currentLine = XML_GetCurrentLineNumber;
#endif

// Reading -----------------------------------------------------------------------------------------

/** UTF-16 in UTF-8, with its byte-order mark; nothing if it is not valid. */
std::optional<std::string> fromUtf16(std::string_view bytes)
{
    QString text(static_cast<int>(bytes.size() / 2), Qt::Uninitialized);
    if (bytes.front() == '\xFE' || bytes.front() == '\0') {
        qFromBigEndian<quint16>(bytes.data(), text.size(), text.data());
    } else {
        qFromLittleEndian<quint16>(bytes.data(), text.size(), text.data());
    }
    if (bytes.size() % 2 != 0 || !text.isValidUtf16()) {
        return std::nullopt;
    }
    return text.toStdString();
}

/** Builds the tree from the parser's events. After the first error, the rest is ignored. */
class XmlReader {
public:
    Result<Node> read(std::string_view bytes)
    {
        // Detected by its byte-order mark, or the NUL beside the first '<', whatever is declared.
        const bool isWide = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")
            || bytes.substr(0, 2).find('\0') != std::string_view::npos;
        std::optional<std::string> decoded;
        if (isWide) {
            decoded = fromUtf16(bytes);
            if (!decoded) {
                return Error{QStringLiteral("it is not valid UTF-16")};
            }
            bytes = *decoded;
        }
        const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
            XML_ParserCreate(isWide ? "UTF-8" : nullptr), &XML_ParserFree);
        mParser = parser.get();
        setHandlers();
        if (XML_Parse(mParser, bytes.data(), static_cast<int>(bytes.size()), XML_TRUE)
            == XML_STATUS_ERROR) {
            // If a handler has stopped it, its reason stays.
            refuse(mMayBeUtf8 && !isUtf8(bytes)
                    ? "it is not valid UTF-8"
                    : XML_ErrorString(XML_GetErrorCode(mParser)) + line());
        } else if (!mHasRoot) {
            refuse("it contains no value");
        }
        if (!mWhy.empty()) {
            return Error{QString::fromStdString(mWhy)};
        }
        return std::move(mRoot);
    }

private:
    static XmlReader& reader(void* self) { return *static_cast<XmlReader*>(self); }

    void setHandlers()
    {
        XML_SetUserData(mParser, this);
        XML_SetElementHandler(
            mParser,
            [](void* self, const XML_Char* name, const XML_Char** /*attributes*/) {
                reader(self).start(name);
            },
            [](void* self, const XML_Char* /*name*/) { reader(self).end(); });
        XML_SetCharacterDataHandler(mParser, [](void* self, const XML_Char* text, int length) {
            reader(self).addText({text, static_cast<std::size_t>(length)});
        });
        XML_SetXmlDeclHandler(mParser,
            [](void* self, const XML_Char* /*version*/, const XML_Char* encoding, int /*alone*/) {
                reader(self).mMayBeUtf8 = encoding == nullptr || qstricmp(encoding, "UTF-8") == 0;
            });
        // No list needs its own entities, so they are never expanded.
        XML_SetStartDoctypeDeclHandler(mParser,
            [](void* self, const XML_Char* /*name*/, const XML_Char* /*system*/,
                const XML_Char* /*public*/, int hasDefinitions) {
                if (hasDefinitions != 0) {
                    reader(self).refuse("a document type with definitions");
                }
            });
        XML_SetSkippedEntityHandler(
            mParser, [](void* self, const XML_Char* /*name*/, int /*isParameter*/) {
                reader(self).refuse("an entity that is not defined");
            });
    }

    std::string line() const { return " (line " + std::to_string(currentLine(mParser)) + ")"; }

    /** Keeps the first reason, and ends the parsing. */
    void refuse(std::string why)
    {
        if (mWhy.empty()) {
            mWhy = std::move(why);
            XML_StopParser(mParser, XML_FALSE);
        }
    }

    void start(std::string_view name)
    {
        if (!mWhy.empty()) {
            return;
        }
        if (mText != nullptr) {
            refuse(shown(*mText) + " is interrupted");
        } else if (mOpen.empty()) {
            startOutermost(name);
        } else if (mOpen.back()->kind == Kind::Dictionary && !mHasKey) {
            startKey(name);
        } else {
            Node& parent = *mOpen.back();
            startValue(mHasKey ? parent.parts.back() : parent.parts.emplace_back(), name);
            mHasKey = false;
        }
    }

    /** The list itself, or the element "plist" around it. */
    void startOutermost(std::string_view name)
    {
        const bool isFirst = std::exchange(mIsFirst, false);
        if (isFirst && name == "plist") {
            return;
        }
        if (std::exchange(mHasRoot, true)) {
            if (kindOf(name)) {
                refuse("a second list follows the first");
            }
            return;
        }
        startValue(mRoot, name);
    }

    void startKey(std::string_view name)
    {
        if (name == "key") {
            mText = &mOpen.back()->parts.emplace_back().key;
        } else if (kindOf(name)) {
            refuse("a value without a key");
        }
    }

    void startValue(Node& node, std::string_view name)
    {
        const std::optional<Kind> kind = kindOf(name);
        if (!kind) {
            return;
        }
        if (++mNodes > kPropertyListMaxNodes) {
            refuse(propertyListTooManyNodes());
            return;
        }
        node.kind = *kind;
        if (!node.isContainer()) {
            mScalar = &node;
            mText = &node.text;
        } else if (mOpen.size() == std::size_t{kPropertyListMaxDepth}) {
            refuse(propertyListTooDeep());
        } else {
            mOpen.push_back(&node);
        }
    }

    void end()
    {
        if (!mWhy.empty()) {
            return;
        }
        if (mScalar != nullptr) {
            check(*mScalar);
            mScalar = nullptr;
            mText = nullptr;
        } else if (mText != nullptr) {
            mHasKey = true;
            mText = nullptr;
        } else if (mHasKey) {
            refuse("a key without a value");
        } else if (!mOpen.empty()) {
            mOpen.back()->dropOlderValues();
            mOpen.pop_back();
        }
    }

    /** A text may come in parts. */
    void addText(std::string_view text)
    {
        if (mText != nullptr) {
            mText->append(text);
        } else if (!std::ranges::all_of(text, isBlank)) {
            refuse("text instead of a value" + line());
        }
    }

    /** The kind of value; rejects an unknown tag. */
    std::optional<Kind> kindOf(std::string_view name)
    {
        const auto* const tag = std::ranges::find(kTags, name, &Tag::name);
        if (tag != kTags.end()) {
            return tag->kind;
        }
        refuse(name == "key" ? "a key instead of a value" : "unknown tag " + shown(name));
        return std::nullopt;
    }

    /** Rejects an invalid scalar, and drops blanks in a boolean, which is written without text. */
    void check(Node& node)
    {
        const std::string_view text = trimmed(node.text);
        switch (node.kind) {
        case Kind::Integer:
            if (!propertyListInteger(text)) {
                refuse(shown(text) + " is not a 64-bit integer");
            }
            break;
        case Kind::Real:
            if (!propertyListReal(text)) {
                refuse(shown(text) + " is not a real");
            }
            break;
        case Kind::Date:
            if (!isDate(text)) {
                refuse(shown(text) + " is not a date"
                    + (text.find('.') == std::string_view::npos ? "" : " in whole seconds"));
            }
            break;
        case Kind::True:
        case Kind::False:
            if (!text.empty()) {
                refuse(shown(text) + " in a boolean");
            }
            node.text.clear();
            break;
        default:
            break;
        }
    }

    XML_Parser mParser = nullptr;
    bool mMayBeUtf8 = true; ///< no other encoding is declared
    Node mRoot;
    bool mIsFirst = true; ///< no element has begun
    bool mHasRoot = false;
    std::vector<Node*> mOpen; ///< the containers around the next element
    bool mHasKey = false; ///< the innermost dictionary's last part has a key, but no value
    Node* mScalar = nullptr; ///< the scalar whose text is being read
    std::string* mText =
        nullptr; ///< where the text goes that is being read: a scalar's, or a key's
    std::size_t mNodes = 0;
    std::string mWhy; ///< why the list is rejected
};

// Writing -----------------------------------------------------------------------------------------

void writeText(std::string& xml, std::string_view text)
{
    for (const char c : text) {
        switch (c) {
        case '&':
            xml += "&amp;";
            break;
        case '<':
            xml += "&lt;";
            break;
        case '>':
            xml += "&gt;";
            break;
        case '\r':
            xml += "&#13;"; // otherwise readers treat it as the end of a line
            break;
        default:
            xml += c;
        }
    }
}

void writeElement(std::string& xml, std::string_view name, std::string_view text)
{
    xml.append("<").append(name).append(">");
    writeText(xml, text);
    xml.append("</").append(name).append(">\n");
}

void writeNode(std::string& xml, const Node& node, std::size_t depth)
{
    const std::string_view name = tagName(node.kind);
    xml.append(depth, '\t');
    if (!node.isContainer() && node.kind != Kind::True && node.kind != Kind::False) {
        writeElement(xml, name, node.text);
        return;
    }
    if (node.parts.empty()) {
        xml.append("<").append(name).append("/>\n");
        return;
    }
    xml.append("<").append(name).append(">\n");
    for (const Node& part : node.parts) {
        if (node.kind == Kind::Dictionary) {
            xml.append(depth + 1, '\t');
            writeElement(xml, "key", part.key);
        }
        writeNode(xml, part, depth + 1);
    }
    xml.append(depth, '\t');
    xml.append("</").append(name).append(">\n");
}

} // namespace

Result<PropertyListNode> readXmlPropertyList(std::string_view bytes)
{
    return XmlReader().read(bytes);
}

std::string writeXmlPropertyList(const PropertyListNode& root)
{
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n";
    writeNode(xml, root, 0);
    return xml + "</plist>\n";
}

std::optional<std::uint64_t> propertyListInteger(std::string_view text)
{
    text = trimmed(text);
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const bool isHex = text.starts_with("0x") || text.starts_with("0X");
    if (isHex) {
        text.remove_prefix(2);
    }
    std::uint64_t value = 0;
    const auto [rest, status] =
        std::from_chars(text.data(), text.data() + text.size(), value, isHex ? 16 : 10);
    constexpr std::uint64_t kLargestNegative = std::uint64_t{1} << 63U;
    if (status != std::errc() || rest != text.data() + text.size()
        || (isNegative && value > kLargestNegative)) {
        return std::nullopt;
    }
    return isNegative ? 0 - value : value;
}

std::optional<double> propertyListReal(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return std::nullopt;
        }
    }
    double value = 0;
    const auto [rest, status] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (rest != text.data() + text.size() || status == std::errc::invalid_argument) {
        return std::nullopt;
    }
    if (status == std::errc::result_out_of_range) {
        // from_chars does not say whether it is too large or too small; a stream returns the
        // nearest number.
        std::istringstream stream{std::string(text)};
        stream.imbue(std::locale::classic());
        stream >> value;
        return std::abs(value) > 1 ? std::copysign(std::numeric_limits<double>::infinity(), value)
                                   : 0.0;
    }
    return value;
}

} // namespace platform
