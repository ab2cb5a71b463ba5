// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyListShape.h"

#include "PropertyList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>
#include <vector>

namespace platform {

namespace {

constexpr std::string_view kBinaryMagic = "bplist00";

/** Objects that one binary list may expand to; sharing could otherwise make it exponential. */
constexpr std::uint64_t kMaxObjects = 100'000;

std::string tooDeep()
{
    return "containers nest deeper than " + std::to_string(kPropertyListMaxDepth);
}

/** The beginning of a text in single quotes; each byte that is not plain is a question mark. */
std::string shown(std::string_view text)
{
    std::string quoted(1, '\'');
    for (const char c : text.substr(0, 32)) {
        quoted += c >= ' ' && c <= '~' ? c : '?';
    }
    quoted += '\'';
    return quoted;
}

// The XML form ------------------------------------------------------------------------------------

/** What can stand between the '<' and the '>' of a list's tags, but for <plist>. */
enum class Tag : std::uint8_t { Container, Number, Real, Date, Text, Unknown };

Tag tagOf(std::string_view name)
{
    struct Known {
        std::string_view name;
        Tag tag;
    };
    constexpr std::array<Known, 10> kKnown{
        {{"key", Tag::Text}, {"integer", Tag::Number}, {"string", Tag::Text},
            {"dict", Tag::Container}, {"array", Tag::Container}, {"true", Tag::Text},
            {"false", Tag::Text}, {"real", Tag::Real}, {"data", Tag::Text}, {"date", Tag::Date}}};
    for (const Known& known : kKnown) {
        if (known.name == name) {
            return known.tag;
        }
    }
    return Tag::Unknown;
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

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
        while (step()) { }
        return mError;
    }

private:
    /** Notes why the list is refused. @return false, to be passed on */
    bool refuse(std::string why)
    {
        mError = std::move(why);
        return false;
    }

    /** Moves behind the next piece of markup. @return false at the end, or when it is refused */
    bool step()
    {
        const std::size_t start = mPos;
        mPos = std::min(mText.find('<', mPos), mText.size());
        if (mRootEnded && !std::all_of(mText.begin() + start, mText.begin() + mPos, isBlank)) {
            return refuse("text after the end of the list");
        }
        if (mPos == mText.size()) {
            return mRootEnded ? false : refuse("the list does not end");
        }
        const char next = mPos + 1 < mText.size() ? mText[mPos + 1] : '\0';
        if (next != '!' && next != '?' && next != 'p') {
            return tag();
        }
        if (startsWith("<!--")) {
            return skip("<!--", "-->");
        }
        if (startsWith("<![CDATA[")) {
            return skip("<![CDATA[", "]]>");
        }
        if (next == '?') {
            return skipProlog("<", "?>");
        }
        return next == '!' ? skipProlog("<!", ">") : skipProlog("<plist", ">");
    }

    bool startsWith(std::string_view prefix) const
    {
        return mText.substr(mPos).starts_with(prefix);
    }

    /** Moves behind the next end mark that begins after the opening one. */
    bool skip(std::string_view begin, std::string_view end)
    {
        const std::size_t found = mText.find(end, mPos + begin.size());
        if (found == std::string_view::npos) {
            return refuse(shown(end) + " is missing");
        }
        mPos = found + end.size();
        return true;
    }

    /**
     * Skips markup that may hold quoted text. The parser looks for the end outside of the quotes;
     * where that differs from the first end there is, the list is refused.
     */
    bool skipProlog(std::string_view begin, std::string_view end)
    {
        if (!startsWith(begin)) {
            return refuse("unknown tag " + shown(mText.substr(mPos, 12)));
        }
        if (mDepth != 0 || mRootEnded) {
            return refuse(shown(begin) + " within the list");
        }
        const std::size_t from = mPos;
        if (!skip(begin, end)) {
            return false;
        }
        const std::string_view skipped = mText.substr(from, mPos - from);
        if (std::ranges::count(skipped, '"') % 2 != 0) {
            return refuse("an end within quotes");
        }
        // Without definitions of its own, a document type can hide no tags.
        return skipped.find('[') == std::string_view::npos
            || refuse("a document type with definitions");
    }

    bool tag()
    {
        // A tag is short, so a plain loop finds its end faster than a search would begin.
        std::size_t end = mPos + 1;
        while (end < mText.size() && mText[end] != '>') {
            ++end;
        }
        if (end == mText.size()) {
            return refuse(shown(">") + " is missing");
        }
        std::string_view name = mText.substr(mPos + 1, end - mPos - 1);
        mPos = end + 1;
        const bool closes = name.starts_with('/');
        if (closes) {
            name.remove_prefix(1);
        }
        const bool isEmpty = !closes && name.ends_with('/');
        if (isEmpty) {
            name.remove_suffix(1);
        }
        // Only <plist> has attributes. Elsewhere one could hold a '<' or a '>' in its quotes.
        while (!name.empty() && isBlank(name.back())) {
            name.remove_suffix(1);
        }
        if (closes && name == "plist") {
            return mRootEnded || refuse("the list ends too early");
        }
        const Tag tag = tagOf(name);
        if (tag == Tag::Unknown) {
            return refuse("unknown tag " + shown(name));
        }
        if (mRootEnded) {
            return refuse("a second list follows the first");
        }
        if (tag == Tag::Container) {
            return container(closes, isEmpty);
        }
        return closes || tag == Tag::Text || scalar(tag, name, isEmpty);
    }

    bool container(bool closes, bool isEmpty)
    {
        if (closes) {
            if (mDepth == 0) {
                return refuse("a container ends that did not begin");
            }
            --mDepth;
        } else if (mDepth == kPropertyListMaxDepth) {
            return refuse(tooDeep());
        } else if (!isEmpty) {
            ++mDepth;
        }
        mRootEnded = mDepth == 0;
        return true;
    }

    /** Checks the text of a number or a date, which the parser would bend into shape. */
    bool scalar(Tag tag, std::string_view name, bool isEmpty)
    {
        const std::size_t end = isEmpty ? mPos : std::min(mText.find('<', mPos), mText.size());
        std::string_view text = mText.substr(mPos, end - mPos);
        while (!text.empty() && isBlank(text.front())) {
            text.remove_prefix(1);
        }
        while (!text.empty() && isBlank(text.back())) {
            text.remove_suffix(1);
        }
        const std::string_view behind = mText.substr(end);
        if (!isEmpty && !(behind.starts_with("</") && behind.substr(2).starts_with(name))) {
            return refuse(shown(text) + " is interrupted");
        }
        if (tag == Tag::Number) {
            return integer(text);
        }
        return (tag == Tag::Real ? isReal(text) : isDate(text))
            || refuse(shown(text) + " is no " + std::string(name));
    }

    /** The parser saturates what is too big and takes a leading zero for base eight. */
    bool integer(std::string_view whole)
    {
        std::string_view text = whole;
        const bool negative = text.starts_with('-');
        if (negative || text.starts_with('+')) {
            text.remove_prefix(1);
        }
        int base = 10;
        if (text.starts_with("0x") || text.starts_with("0X")) {
            base = 16;
            text.remove_prefix(2);
        } else if (text.size() > 1 && text.starts_with('0')) {
            return refuse("integer " + shown(whole) + " has a leading zero");
        }
        std::uint64_t value = 0;
        const auto [rest, status] = std::from_chars(text.begin(), text.end(), value, base);
        if (status == std::errc::invalid_argument || rest != text.end()) {
            return refuse(shown(whole) + " is no integer");
        }
        constexpr std::uint64_t kLargestNegative = std::uint64_t{1} << 63U;
        if (status == std::errc::result_out_of_range || (negative && value > kLargestNegative)) {
            return refuse("integer " + shown(whole) + " does not fit into 64 bits");
        }
        return true;
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

    std::string_view mText;
    std::size_t mPos = 0;
    int mDepth = 0;
    bool mRootEnded = false;
    std::string mError;
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
