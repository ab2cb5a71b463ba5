// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyListNode.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
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
    if (kind != Kind::Dictionary) {
        return;
    }
    std::vector<Part> sorted;
    sorted.reserve(parts.size());
    for (auto part = parts.begin(); part != parts.end(); ++part) {
        sorted.push_back(part);
    }
    // Values with the same key stay in file order.
    std::ranges::stable_sort(sorted, {}, [](Part part) -> const std::string& { return part->key; });
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        if (sorted[i]->key == sorted[i - 1]->key) {
            parts.splice(sorted[i - 1], parts, sorted[i]);
            parts.erase(sorted[i - 1]);
        }
    }
}

bool isUtf8(std::string_view bytes)
{
    constexpr std::string_view kMark = "\xEF\xBB\xBF"; // the codec drops it
    if (bytes.starts_with(kMark)) {
        bytes.remove_prefix(kMark.size());
    }
    const QByteArray again =
        QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size())).toUtf8();
    return bytes == std::string_view(again.constData(), static_cast<std::size_t>(again.size()));
}

std::string propertyListTooDeep()
{
    // In one expression, GCC 14 warns that it writes past the end of the number's text.
    std::string text = "containers nest deeper than ";
    text += std::to_string(kPropertyListMaxDepth);
    return text;
}

std::string propertyListTooManyNodes()
{
    return "it has more than " + std::to_string(kPropertyListMaxNodes) + " values";
}

} // namespace platform
