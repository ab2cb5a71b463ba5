// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyListNode.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QTimeZone>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <utility>

namespace platform {

namespace {

using Node = PropertyListNode;
using Kind = Node::Kind;

constexpr std::size_t kMagicSize = 8; // "bplist00"
constexpr std::size_t kTrailerSize = 32;

/** What makes a text one that XML cannot hold. */
constexpr char kNoUtf8 = '\xFF';

/** The shortest text that gives the same real. */
std::string realText(double value)
{
    std::array<char, 32> text{};
    const auto [end, status] = std::to_chars(text.data(), text.data() + text.size(), value);
    return {text.data(), end};
}

/**
 * A date from its seconds since the beginning of 2001; nothing outside the years 1 to 9999. A date
 * in XML has whole seconds. A fraction shows in the text, as milliseconds, so that the date is
 * never written as a different one.
 */
std::optional<std::string> dateText(double seconds)
{
    constexpr double kBegin = 978'307'200; // in Unix time
    const double whole = std::floor(seconds);
    // NaN fails the comparison, too.
    if (!(std::abs(whole) < 1e12)) {
        return std::nullopt;
    }
    const QDateTime date =
        QDateTime::fromSecsSinceEpoch(static_cast<qint64>(whole + kBegin), QTimeZone::utc())
            .toUTC();
    if (date.date().year() < 1 || date.date().year() > 9999) {
        return std::nullopt;
    }
    const double fraction = seconds - whole;
    return date.addMSecs(static_cast<qint64>(fraction * 1000))
        .toString(fraction == 0 ? Qt::ISODate : Qt::ISODateWithMs)
        .toStdString();
}

/**
 * Reads the binary form.
 *
 * Layout: "bplist00", the objects, a table of their offsets, and a trailer of 32 bytes. The trailer
 * contains, at these offsets: 6 the bytes per offset, 7 the bytes per reference, 8 the number of
 * objects, 16 the top object, 24 the offset of the table; the last three have 8 bytes. All integers
 * are big-endian. An object begins with a byte: its high half is the type, its low half the size or
 * count, or 15 if an integer object with the count follows. A container (0xA: an array, 0xD: a
 * dictionary, its keys before its values) contains references to objects.
 *
 * Containers may share objects, and each reference creates a separate value; so a small file can
 * represent a list of any size, or contain itself. The limits on depth, values and bytes apply to
 * what has been created, which stops this early.
 */
class BinaryReader {
public:
    explicit BinaryReader(std::string_view bytes)
        : mBytes(bytes)
    {
    }

    Result<Node> read()
    {
        Node root;
        if (!readTrailer() || !readNode(mTop, root, 0)) {
            return Error{QString::fromStdString(mWhy)};
        }
        return root;
    }

private:
    /** An object without its first byte. */
    struct Object {
        std::size_t at = 0; ///< offset of what follows
        unsigned type = 0;
        unsigned low = 0; ///< low half of the first byte
        std::uint64_t count = 0; ///< for the types that have one
    };

    bool refuse(std::string why)
    {
        mWhy = std::move(why);
        return false;
    }

    std::size_t byteAt(std::size_t at) const { return static_cast<unsigned char>(mBytes[at]); }

    std::uint64_t number(std::size_t at, std::size_t width) const
    {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < width; ++i) {
            value = value << 8U | byteAt(at + i);
        }
        return value;
    }

    bool has(std::size_t at, std::uint64_t size) const { return mEnd - at >= size; }

    bool readTrailer()
    {
        if (mBytes.size() < kMagicSize + kTrailerSize) {
            return refuse("the binary list is too short");
        }
        mEnd = mBytes.size() - kTrailerSize;
        mOffsetSize = byteAt(mEnd + 6);
        mReferenceSize = byteAt(mEnd + 7);
        mCount = number(mEnd + 8, 8);
        mTop = number(mEnd + 16, 8);
        mTable = number(mEnd + 24, 8);
        const auto isWidth = [](std::size_t width) { return width >= 1 && width <= 8; };
        if (!isWidth(mOffsetSize) || !isWidth(mReferenceSize) || mTop >= mCount || mTable > mEnd
            || mCount > (mEnd - mTable) / mOffsetSize) {
            return refuse("the binary list's trailer contradicts its size");
        }
        return true;
    }

    bool readObject(std::uint64_t index, Object& object)
    {
        const std::uint64_t offset = number(mTable + index * mOffsetSize, mOffsetSize);
        if (offset < kMagicSize || offset >= mEnd) {
            return refuse("an object is outside the list");
        }
        const std::size_t marker = byteAt(offset);
        object = {offset + 1, static_cast<unsigned>(marker >> 4U),
            static_cast<unsigned>(marker & 0xFU), marker & 0xFU};
        if (object.type < 4 || object.type == 8 || object.count != 15) {
            return true;
        }
        const std::size_t head = has(object.at, 1) ? byteAt(object.at) : 0; // 0: no integer
        const std::size_t width = std::size_t{1} << (head & 0xFU);
        if (head >> 4U != 1 || width > 8 || !has(object.at + 1, width)) {
            return refuse("a count is not an integer");
        }
        object.count = number(object.at + 1, width);
        object.at += 1 + width;
        return true;
    }

    /**
     * Reads the object into the node, with its contents. @param depth number of containers around
     * it
     */
    bool readNode(std::uint64_t index, Node& node, int depth)
    {
        if (++mNodes > kPropertyListMaxNodes) {
            return refuse(propertyListTooManyNodes());
        }
        Object object;
        if (!readObject(index, object)) {
            return false;
        }
        switch (object.type) {
        case 0x0:
            node.kind = object.low == 9 ? Kind::True : Kind::False;
            return object.low == 8 || object.low == 9 || refuse("an object of an unknown type");
        case 0x1:
            node.kind = Kind::Integer;
            return readInteger(object, node.text);
        case 0x2:
            node.kind = Kind::Real;
            return readReal(object, node.text);
        case 0x3:
            node.kind = Kind::Date;
            return readDate(object, node.text);
        case 0x4:
            node.kind = Kind::Data;
            return readData(object, node.text);
        case 0x5:
        case 0x6:
            node.kind = Kind::String;
            return readString(object, node.text);
        case 0x8:
            return readReference(object, node);
        case 0xA:
        case 0xD:
            node.kind = object.type == 0xA ? Kind::Array : Kind::Dictionary;
            return readContainer(object, node, depth + 1);
        default:
            return refuse("an object of an unknown type");
        }
    }

    bool readInteger(const Object& object, std::string& text)
    {
        const std::size_t width = std::size_t{1} << object.low;
        if (object.low > 4 || !has(object.at, width)) {
            return refuse("an integer is longer than the list");
        }
        const std::uint64_t low =
            number(object.at + (width == 16 ? 8 : 0), std::min<std::size_t>(width, 8));
        // Integers of eight bytes or more are signed.
        const bool isNegative = width >= 8 && byteAt(object.at) >= 0x80;
        if (width == 16) {
            const std::uint64_t high = number(object.at, 8);
            if (high != (isNegative ? ~std::uint64_t{0} : 0) || (isNegative && low >> 63U == 0)) {
                return refuse("an integer does not fit into 64 bits");
            }
        }
        text = isNegative ? std::to_string(static_cast<std::int64_t>(low)) : std::to_string(low);
        return true;
    }

    bool readReal(const Object& object, std::string& text)
    {
        const std::size_t width = std::size_t{1} << object.low;
        if ((width != 4 && width != 8) || !has(object.at, width)) {
            return refuse("a real is longer than the list");
        }
        const std::uint64_t bits = number(object.at, width);
        text = realText(width == 8
                ? std::bit_cast<double>(bits)
                : static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits))));
        return true;
    }

    bool readDate(const Object& object, std::string& text)
    {
        if (object.low != 3 || !has(object.at, 8)) {
            return refuse("a date is longer than the list");
        }
        const auto date = dateText(std::bit_cast<double>(number(object.at, 8)));
        text = date.value_or(std::string());
        return date || refuse("a date is outside the years 1 to 9999");
    }

    /** Counts the size of a text before it is created. */
    bool readText(const Object& object, std::size_t perUnit)
    {
        if (object.count > (mEnd - object.at) / perUnit) {
            return refuse("a text is longer than the list");
        }
        mTextBytes += object.count * perUnit;
        return mTextBytes <= kPropertyListMaxSize
            || refuse(
                "its texts are longer than " + std::to_string(kPropertyListMaxSize) + " bytes");
    }

    bool readData(const Object& object, std::string& text)
    {
        if (!readText(object, 1)) {
            return false;
        }
        const QByteArray data =
            QByteArray::fromRawData(mBytes.data() + object.at, static_cast<int>(object.count));
        text = data.toBase64().toStdString();
        return true;
    }

    bool readString(const Object& object, std::string& text)
    {
        const bool isWide = object.type == 6;
        if (!readText(object, isWide ? 2 : 1)) {
            return false;
        }
        if (!isWide) {
            text = mBytes.substr(object.at, object.count);
            return isUtf8(text) || refuse("a string is not valid text");
        }
        QString wide(static_cast<int>(object.count), Qt::Uninitialized);
        qFromBigEndian<quint16>(mBytes.data() + object.at, wide.size(), wide.data());
        text = wide.toStdString();
        if (!wide.isValidUtf16()) {
            text += kNoUtf8; // for half a surrogate pair
        }
        return true;
    }

    /** XML has no references between objects of an archive; this is their usual form there. */
    bool readReference(const Object& object, Node& node)
    {
        const std::size_t width = object.low + 1;
        if (width > 8 || !has(object.at, width)) {
            return refuse("a reference is longer than the list");
        }
        node.kind = Kind::Dictionary;
        Node& value = node.parts.emplace_back();
        value.key = "CF$UID";
        value.kind = Kind::Integer;
        value.text = std::to_string(number(object.at, width));
        return true;
    }

    bool readContainer(const Object& object, Node& node, int depth)
    {
        if (depth > kPropertyListMaxDepth) {
            return refuse(propertyListTooDeep());
        }
        const std::size_t perPart = node.kind == Kind::Dictionary ? 2 : 1;
        if (object.count > (mEnd - object.at) / mReferenceSize / perPart) {
            return refuse("a container is longer than the list");
        }
        const auto reference = [&](std::uint64_t i) {
            return number(object.at + i * mReferenceSize, mReferenceSize);
        };
        for (std::uint64_t i = 0; i < object.count; ++i) {
            const std::uint64_t value = reference(i + (perPart - 1) * object.count);
            if (value >= mCount || reference(i) >= mCount) {
                return refuse("a container refers to an object that does not exist");
            }
            Node& part = node.parts.emplace_back();
            Object key;
            if (perPart == 2 && !readObject(reference(i), key)) {
                return false;
            }
            if (perPart == 2 && key.type != 5 && key.type != 6) {
                return refuse("a key is not a string");
            }
            if ((perPart == 2 && !readString(key, part.key)) || !readNode(value, part, depth)) {
                return false;
            }
        }
        node.dropOlderValues();
        return true;
    }

    std::string_view mBytes;
    std::size_t mEnd = 0; ///< end of the objects: where the trailer begins
    std::size_t mOffsetSize = 0;
    std::size_t mReferenceSize = 0;
    std::uint64_t mCount = 0;
    std::uint64_t mTop = 0;
    std::uint64_t mTable = 0;
    std::size_t mNodes = 0; ///< created so far
    std::size_t mTextBytes = 0; ///< of the strings and data created so far
    std::string mWhy;
};

} // namespace

Result<PropertyListNode> readBinaryPropertyList(std::string_view bytes)
{
    return BinaryReader(bytes).read();
}

} // namespace platform
