// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyListNode.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <iterator>
#include <vector>

namespace platform {

PropertyListNode* PropertyListNode::find(std::string_view name)
{
    const auto found = std::ranges::find(parts, name, &PropertyListNode::key);
    return found == parts.end() ? nullptr : &*found;
}

void PropertyListNode::dropOlderValues()
{
    using Part = std::list<PropertyListNode>::iterator;
    if (kind != Kind::Dictionary || parts.size() < 2) {
        return;
    }
    std::vector<Part> sorted;
    sorted.reserve(parts.size());
    for (auto part = parts.begin(); part != parts.end(); ++part) {
        sorted.push_back(part);
    }
    // Those of one key stay in the file's order.
    std::ranges::stable_sort(sorted, {}, [](Part part) -> const std::string& { return part->key; });
    for (auto first = sorted.begin(); first != sorted.end();) {
        const auto last = std::find_if(
            first, sorted.end(), [&](Part part) { return part->key != (*first)->key; });
        if (const Part newest = *std::prev(last); newest != *first) {
            parts.splice(*first, parts, newest);
            std::for_each(first, std::prev(last), [this](Part part) { parts.erase(part); });
        }
        first = last;
    }
}

void appendUtf8(std::string& to, std::u16string_view from)
{
    const auto add = [&to](unsigned bits) { to += static_cast<char>(bits); };
    const auto isHalf = [](unsigned c, unsigned first) { return c - first < 0x400U; };
    for (std::size_t at = 0; at < from.size(); ++at) {
        unsigned c = from[at];
        if (isHalf(c, 0xD800U) && at + 1 < from.size() && isHalf(from[at + 1], 0xDC00U)) {
            c = 0x10000U + ((c - 0xD800U) << 10U) + (from[++at] - 0xDC00U);
        }
        if (c < 0x80U) {
            add(c);
            continue;
        }
        if (c < 0x800U) {
            add(0xC0U | c >> 6U);
        } else {
            if (c < 0x10000U) {
                add(0xE0U | c >> 12U);
            } else {
                add(0xF0U | c >> 18U);
                add(0x80U | (c >> 12U & 0x3FU));
            }
            add(0x80U | (c >> 6U & 0x3FU));
        }
        add(0x80U | (c & 0x3FU));
    }
}

bool isUtf8(std::string_view bytes)
{
    const bool isAscii =
        std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    if (isAscii) {
        return true;
    }
    constexpr std::string_view kMark = "\xEF\xBB\xBF"; // is lost on the way
    if (bytes.starts_with(kMark)) {
        bytes.remove_prefix(kMark.size());
    }
    const QByteArray again =
        QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size())).toUtf8();
    return bytes == std::string_view(again.constData(), static_cast<std::size_t>(again.size()));
}

std::string propertyListTooDeep()
{
    return "containers nest deeper than " + std::to_string(kPropertyListMaxDepth);
}

std::string propertyListTooManyNodes()
{
    return "it has more than " + std::to_string(kPropertyListMaxNodes) + " values";
}

} // namespace platform
