// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyListShape.h"

#include "PropertyList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <vector>

namespace platform {

namespace {

constexpr std::string_view kBinaryMagic = "bplist00";
constexpr std::string_view kBlank = " \t\r\n";

/** Objects that one binary list may expand to; sharing could otherwise make it exponential. */
constexpr std::uint64_t kMaxObjects = 100'000;

std::string tooDeep()
{
    return "containers nest deeper than " + std::to_string(kPropertyListMaxDepth);
}

// The XML form ------------------------------------------------------------------------------------

/**
 * Walks the tags of the XML form. It need not see everything that is wrong, since the parser
 * follows, but it must never see a lesser depth than the parser does.
 */
class XmlShape {
public:
    explicit XmlShape(std::string_view text)
        : mText(text)
    {
    }

    std::string error()
    {
        for (;;) {
            const std::size_t tag = mText.find('<', mPos);
            if (mRootEnded
                && mText.substr(mPos, tag - mPos).find_first_not_of(kBlank)
                    != std::string_view::npos) {
                return "text after the end of the list";
            }
            if (tag == std::string_view::npos) {
                return mRootEnded ? std::string() : "the list does not end";
            }
            mPos = tag;
            std::string why = markup();
            if (!why.empty()) {
                return why;
            }
        }
    }

private:
    bool startsWith(std::string_view prefix) const
    {
        return mText.compare(mPos, prefix.size(), prefix) == 0;
    }

    /** Moves behind the next end mark that begins after the opening one. */
    std::string skip(std::string_view begin, std::string_view end)
    {
        const std::size_t found = mText.find(end, mPos + begin.size());
        if (found == std::string_view::npos) {
            return "a '" + std::string(end) + "' is missing";
        }
        mPos = found + end.size();
        return {};
    }

    /**
     * Skips markup that may hold quoted text. The parser looks for the end outside of the quotes;
     * where that differs from the first end there is, the list is refused.
     */
    std::string skipProlog(std::string_view begin, std::string_view end)
    {
        if (mDepth != 0 || mRootEnded) {
            return "a '" + std::string(begin) + "' within the list";
        }
        const std::size_t from = mPos;
        std::string why = skip(begin, end);
        const std::string_view skipped = mText.substr(from, mPos - from);
        if (std::ranges::count(skipped, '"') % 2 != 0) {
            return "an end within quotes";
        }
        // Without definitions of its own, a document type can hide no tags.
        return skipped.find('[') != std::string_view::npos ? "a document type with definitions"
                                                           : why;
    }

    std::string markup()
    {
        if (startsWith("<!--")) {
            return skip("<!--", "-->");
        }
        if (startsWith("<![CDATA[")) {
            return skip("<![CDATA[", "]]>");
        }
        if (startsWith("<?")) {
            return skipProlog("<", "?>");
        }
        if (startsWith("<!")) {
            return skipProlog("<!", ">");
        }
        if (startsWith("<plist")) {
            return skipProlog("<plist", ">");
        }
        return tag();
    }

    std::string tag()
    {
        const std::size_t end = mText.find('>', mPos);
        if (end == std::string_view::npos) {
            return "a '>' is missing";
        }
        std::string_view inside = mText.substr(mPos + 1, end - mPos - 1);
        mPos = end + 1;
        const bool closes = inside.starts_with('/');
        if (closes) {
            inside.remove_prefix(1);
        }
        const bool isEmpty = !closes && inside.ends_with('/');
        if (isEmpty) {
            inside.remove_suffix(1);
        }
        const std::string_view name = inside.substr(0, inside.find_first_of(kBlank));
        if (name == "plist") {
            return mRootEnded ? std::string() : "the list ends too early";
        }
        // Only <plist> has attributes. Elsewhere one could hold a '<' or a '>' in its quotes.
        if (inside.find_first_not_of(kBlank, name.size()) != std::string_view::npos
            || std::ranges::find(kNames, name) == kNames.end()) {
            return "unknown tag <" + std::string(inside.substr(0, 32)) + ">";
        }
        if (mRootEnded) {
            return "a second list follows the first";
        }
        if (name == "dict" || name == "array") {
            return container(closes, isEmpty);
        }
        if (!closes && (name == "integer" || name == "real" || name == "date")) {
            return scalar(name, isEmpty);
        }
        return {};
    }

    std::string container(bool closes, bool isEmpty)
    {
        if (closes) {
            if (mDepth == 0) {
                return "a container ends that did not begin";
            }
            --mDepth;
        } else if (mDepth == kPropertyListMaxDepth) {
            return tooDeep();
        } else if (!isEmpty) {
            ++mDepth;
        }
        mRootEnded = mDepth == 0;
        return {};
    }

    /** Checks the text of a number or a date, which the parser would bend into shape. */
    std::string scalar(std::string_view name, bool isEmpty)
    {
        const std::size_t end = isEmpty ? mPos : mText.find('<', mPos);
        std::string_view text = mText.substr(mPos, end - mPos);
        text.remove_prefix(std::min(text.find_first_not_of(kBlank), text.size()));
        text = text.substr(0, text.find_last_not_of(kBlank) + 1);
        const std::string shown = "'" + std::string(text.substr(0, 32)) + "'";
        const bool isClosed = isEmpty
            || (end != std::string_view::npos
                && mText.substr(end).starts_with("</" + std::string(name)));
        if (!isClosed) {
            return shown + " is interrupted";
        }
        if (name == "integer") {
            return integer(text, shown);
        }
        const bool good = name == "real" ? isReal(text) : isDate(text);
        return good ? std::string() : shown + " is no " + std::string(name);
    }

    /** The parser saturates what is too big and takes a leading zero for base eight. */
    static std::string integer(std::string_view text, const std::string& shown)
    {
        const bool negative = text.starts_with('-');
        if (negative || text.starts_with('+')) {
            text.remove_prefix(1);
        }
        int base = 10;
        if (text.starts_with("0x") || text.starts_with("0X")) {
            base = 16;
            text.remove_prefix(2);
        } else if (text.size() > 1 && text.starts_with('0')) {
            return "integer " + shown + " has a leading zero";
        }
        std::uint64_t value = 0;
        const auto [rest, status] = std::from_chars(text.begin(), text.end(), value, base);
        if (status == std::errc::invalid_argument || rest != text.end()) {
            return shown + " is no integer";
        }
        constexpr std::uint64_t kLargestNegative = std::uint64_t{1} << 63U;
        if (status == std::errc::result_out_of_range || (negative && value > kLargestNegative)) {
            return "integer " + shown + " does not fit into 64 bits";
        }
        return {};
    }

    static bool isReal(std::string_view text)
    {
        if (text.starts_with('+')) {
            text.remove_prefix(1);
        }
        double value = 0;
        const auto [rest, status] = std::from_chars(text.begin(), text.end(), value);
        return status == std::errc() && rest == text.end();
    }

    /** The form of ISO 8601 that property lists use: 2026-11-21T02:46:00Z. */
    static bool isDate(std::string_view text)
    {
        constexpr std::string_view kForm = "0000-00-00T00:00:00Z";
        return std::ranges::equal(text, kForm,
            [](char c, char form) { return form == '0' ? c >= '0' && c <= '9' : c == form; });
    }

    static constexpr std::array<std::string_view, 10> kNames{
        "dict", "key", "integer", "string", "true", "false", "array", "real", "data", "date"};

    std::string_view mText;
    std::size_t mPos = 0;
    int mDepth = 0;
    bool mRootEnded = false;
};

// The binary form ---------------------------------------------------------------------------------

/**
 * Follows the references of the binary form.
 *
 * Layout: "bplist00", the objects, a table of their offsets, and a trailer of 32 bytes. The trailer
 * holds, at these places: 6 the bytes per offset, 7 the bytes per reference, 8 the number of
 * objects, 16 the top object, 24 where the table begins; the last three have 8 bytes. All integers
 * are big-endian. An object begins with a byte whose high half is its type (0xA, 0xB, 0xC: arrays
 * and sets of references, 0xD: a dictionary, as many key as value references) and whose low half is
 * its count, or 15 when an integer object with the count follows.
 */
class BinaryShape {
public:
    explicit BinaryShape(std::string_view bytes)
        : mBytes(bytes)
    {
    }

    std::string error()
    {
        constexpr std::size_t kTrailer = 32;
        if (mBytes.size() < kBinaryMagic.size() + kTrailer) {
            return "the binary list is too short";
        }
        const std::size_t trailer = mBytes.size() - kTrailer;
        mOffsetSize = byteAt(trailer + 6);
        mReferenceSize = byteAt(trailer + 7);
        const std::uint64_t count = number(trailer + 8, 8);
        const std::uint64_t top = number(trailer + 16, 8);
        mTable = number(trailer + 24, 8);
        if (!isWidth(mOffsetSize) || !isWidth(mReferenceSize) || count == 0 || top >= count
            || mTable > trailer || count > (trailer - mTable) / mOffsetSize) {
            return "the binary list's trailer contradicts its size";
        }
        mTrailer = trailer;
        mObjects.resize(count);
        return visit(top, 1);
    }

private:
    static bool isWidth(std::size_t width) { return width >= 1 && width <= 8; }

    std::size_t byteAt(std::size_t at) const { return static_cast<unsigned char>(mBytes[at]); }

    std::uint64_t number(std::size_t at, std::size_t width) const
    {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < width; ++i) {
            value = value << 8U | byteAt(at + i);
        }
        return value;
    }

    /** Reads a container's count and moves past it; false when it does not fit. */
    bool readCount(std::size_t& at, std::uint64_t& count) const
    {
        count = byteAt(at++) & 0x0FU;
        if (count != 15) {
            return true;
        }
        if (at >= mTrailer || (byteAt(at) & 0xF0U) != 0x10) {
            return false;
        }
        const std::size_t width = std::size_t{1} << (byteAt(at++) & 0x0FU);
        if (width > 8 || mTrailer - at < width) {
            return false;
        }
        count = number(at, width);
        at += width;
        return true;
    }

    /** What is known of an object. */
    struct Object {
        std::uint64_t expanded = 0; ///< objects it expands to, itself included; 0: not visited
        int height = 0; ///< containers one within the other, itself included
        bool open = false; ///< its parts are being visited
    };

    std::string visit(std::uint64_t index, int depth)
    {
        Object& object = mObjects[index];
        if (object.open) {
            return "a container holds itself";
        }
        if (object.expanded == 0) {
            object.open = true;
            std::string why = measure(object, index, depth);
            object.open = false;
            if (!why.empty()) {
                return why;
            }
        }
        return depth - 1 + object.height > kPropertyListMaxDepth ? tooDeep() : std::string();
    }

    std::string measure(Object& object, std::uint64_t index, int depth)
    {
        std::size_t at = number(mTable + index * mOffsetSize, mOffsetSize);
        if (at < kBinaryMagic.size() || at >= mTrailer) {
            return "an object lies outside of the list";
        }
        std::uint64_t total = 1;
        const std::size_t marker = byteAt(at);
        const std::size_t type = marker >> 4U;
        if (marker == 0x14 && (mTrailer - at <= 16 || number(at + 1, 8) != 0)) {
            return "an integer does not fit into 64 bits";
        }
        if (type >= 0xA && type <= 0xD) {
            if (depth > kPropertyListMaxDepth) {
                return tooDeep();
            }
            std::uint64_t count = 0;
            const std::uint64_t perEntry = type == 0xD ? 2 : 1;
            if (!readCount(at, count) || count > (mTrailer - at) / mReferenceSize / perEntry) {
                return "a container is longer than the list";
            }
            object.height = 1;
            for (std::uint64_t i = 0; i < count * perEntry; ++i) {
                const std::uint64_t part = number(at + i * mReferenceSize, mReferenceSize);
                if (part >= mObjects.size()) {
                    return "a container refers to an object that is not there";
                }
                std::string why = visit(part, depth + 1);
                if (!why.empty()) {
                    return why;
                }
                object.height = std::max(object.height, 1 + mObjects[part].height);
                total += mObjects[part].expanded;
                if (total > kMaxObjects) {
                    return "the list expands to more than " + std::to_string(kMaxObjects)
                        + " objects";
                }
            }
        }
        object.expanded = total;
        return {};
    }

    std::string_view mBytes;
    std::size_t mOffsetSize = 0;
    std::size_t mReferenceSize = 0;
    std::uint64_t mTable = 0;
    std::size_t mTrailer = 0;
    std::vector<Object> mObjects;
};

} // namespace

std::string propertyListShapeError(std::string_view bytes)
{
    if (bytes.starts_with(kBinaryMagic.substr(0, 6))) {
        return BinaryShape(bytes).error();
    }
    return XmlShape(bytes).error();
}

} // namespace platform
