// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyListNode.h"

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <utility>

namespace platform {

namespace {

using Node = PropertyListNode;
using Kind = Node::Kind;

struct Tag {
    const char* name;
    Kind kind;
};

/** Most frequent first. */
constexpr std::array<Tag, 9> kTags{{{"integer", Kind::Integer}, {"string", Kind::String},
    {"dict", Kind::Dictionary}, {"true", Kind::True}, {"false", Kind::False}, {"real", Kind::Real},
    {"array", Kind::Array}, {"data", Kind::Data}, {"date", Kind::Date}}};

const char* tagName(Kind kind)
{
    return std::ranges::find(kTags, kind, &Tag::kind)->name;
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r\n";
    text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
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

// Reading -----------------------------------------------------------------------------------------

class XmlReader {
public:
    explicit XmlReader(std::string_view bytes)
        : mBytes(bytes)
    {
        // Tags are identified by their qualified names.
        mXml.setNamespaceProcessing(false);
        const auto* const raw = reinterpret_cast<const unsigned char*>(bytes.data());
        // UTF-16 is detected by its byte-order mark, or the NUL beside the first '<'. The reader
        // gets it decoded, whatever byte order is declared.
        const bool isWide = bytes.size() >= 2
            && ((raw[0] == 0xFF && raw[1] == 0xFE) || (raw[0] == 0xFE && raw[1] == 0xFF)
                || (raw[0] == '<' && raw[1] == 0) || (raw[0] == 0 && raw[1] == '<'));
        if (!isWide) {
            mXml.addData(QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size())));
            return;
        }
        const bool isBigEndian = raw[0] == 0xFE || raw[0] == 0;
        const std::size_t mark = raw[0] >= 0xFE ? 2 : 0;
        QString text(static_cast<int>((bytes.size() - mark) / 2), Qt::Uninitialized);
        if (isBigEndian) {
            qFromBigEndian<quint16>(raw + mark, text.size(), text.data());
        } else {
            qFromLittleEndian<quint16>(raw + mark, text.size(), text.data());
        }
        mIsDecoded = true;
        if (bytes.size() % 2 != 0 || !text.isValidUtf16()) {
            refuse("it is not valid UTF-16");
        }
        mXml.addData(text);
    }

    Result<Node> read()
    {
        Node root;
        const bool hasRoot = next() && (mXml.name() != QLatin1String("plist") || next());
        if (hasRoot) {
            readValue(root, 0);
        }
        while (mWhy.empty() && !mXml.atEnd()) {
            if (next() && kind()) {
                refuse("a second list follows the first");
            }
        }
        if (mXml.hasError()) {
            // Qt quotes the unexpected text, including control characters.
            QString text = mXml.errorString();
            for (QChar& c : text) {
                c = c.isPrint() ? c : QChar(u'?');
            }
            refuse(text.toStdString() + " (line " + std::to_string(mXml.lineNumber()) + ")");
        }
        if (!hasRoot) {
            refuse("it contains no value");
        }
        if (!mWhy.empty()) {
            return Error{QString::fromStdString(mWhy)};
        }
        return root;
    }

private:
    void refuse(std::string why)
    {
        if (mWhy.empty()) {
            mWhy = std::move(why);
        }
    }

    /** Advances to the next child element. @return false at the parent's end or on an error */
    bool next()
    {
        while (mWhy.empty()) {
            switch (mXml.readNext()) {
            case QXmlStreamReader::StartDocument:
                checkEncoding();
                break;
            case QXmlStreamReader::DTD:
                // No list needs its own entities, so they are never expanded.
                if (mXml.text().contains(QLatin1Char('['))) {
                    refuse("a document type with definitions");
                }
                break;
            case QXmlStreamReader::StartElement:
                return true;
            case QXmlStreamReader::EndElement:
            case QXmlStreamReader::EndDocument:
            case QXmlStreamReader::Invalid:
                return false;
            case QXmlStreamReader::Characters:
                if (!mXml.isWhitespace()) {
                    refuse(
                        "text instead of a value (line " + std::to_string(mXml.lineNumber()) + ")");
                }
                break;
            case QXmlStreamReader::EntityReference:
                refuse("an entity that is not defined");
                break;
            default:
                break;
            }
        }
        return false;
    }

    /** Rejects invalid UTF-8; in other encodings, decoding errors show in the texts. */
    void checkEncoding()
    {
        const QString encoding = mXml.documentEncoding().toString().toUpper();
        const bool isUtf8Declared = encoding.isEmpty() || encoding == QLatin1String("UTF-8")
            || encoding == QLatin1String("US-ASCII");
        if (!mIsDecoded && isUtf8Declared) {
            mIsDecoded = true;
            if (!isUtf8(mBytes)) {
                refuse("it is not valid UTF-8");
            }
        }
    }

    /** The kind of value; rejects an unknown tag. */
    std::optional<Kind> kind()
    {
        const auto name = mXml.name();
        const auto* const tag = std::ranges::find_if(
            kTags, [&](const Tag& known) { return name == QLatin1String(known.name); });
        if (tag != kTags.end()) {
            return tag->kind;
        }
        refuse(name == QLatin1String("key")
                ? "a key instead of a value"
                : "unknown tag " + shown(name.toString().toStdString()));
        return std::nullopt;
    }

    /** Reads the element's value, up to its end. @param depth containers around it */
    void readValue(Node& node, int depth)
    {
        const std::optional<Kind> itsKind = kind();
        if (!itsKind) {
            return;
        }
        if (++mNodes > kPropertyListMaxNodes) {
            refuse(propertyListTooManyNodes());
            return;
        }
        node.kind = *itsKind;
        if (!node.isContainer()) {
            readText(node.text);
            check(node);
            return;
        }
        if (depth == kPropertyListMaxDepth) {
            refuse(propertyListTooDeep());
            return;
        }
        while (next()) {
            Node& part = node.parts.emplace_back();
            if (node.kind != Kind::Dictionary || readKey(part.key)) {
                readValue(part, depth + 1);
            }
        }
        node.dropOlderValues();
    }

    /** Reads a key and goes on to its value. @return whether a value follows */
    bool readKey(std::string& key)
    {
        if (mXml.name() != QLatin1String("key")) {
            if (kind()) {
                refuse("a value without a key");
            }
            return false;
        }
        readText(key);
        if (next()) {
            return true;
        }
        if (!mXml.hasError()) {
            refuse("a key without a value");
        }
        return false;
    }

    /** Reads to the end of the element. Comments in between are not part of its text. */
    void readText(std::string& text)
    {
        for (;;) {
            switch (mXml.readNext()) {
            case QXmlStreamReader::Characters: {
                const auto part = mXml.text();
                if (!mIsDecoded && part.contains(QChar(QChar::ReplacementCharacter))) {
                    refuse("it is not in the encoding that it declares");
                }
                const bool isAscii =
                    std::ranges::all_of(part, [](QChar c) { return c.unicode() < 0x80; });
                if (isAscii) { // as nearly always: it need not be encoded
                    std::ranges::transform(
                        part, std::back_inserter(text), [](QChar c) { return c.toLatin1(); });
                } else {
                    text += part.toUtf8().toStdString();
                }
                break;
            }
            case QXmlStreamReader::Comment:
            case QXmlStreamReader::ProcessingInstruction:
                break;
            case QXmlStreamReader::EndElement:
            case QXmlStreamReader::Invalid:
                return;
            default:
                refuse(shown(text) + " is interrupted");
                return;
            }
        }
    }

    /** Rejects an invalid scalar. */
    void check(const Node& node)
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
            break;
        default:
            break;
        }
    }

    std::string_view mBytes;
    QXmlStreamReader mXml;
    bool mIsDecoded = false; ///< encoding errors have already been detected
    std::size_t mNodes = 0;
    std::string mWhy;
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
    return XmlReader(bytes).read();
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
