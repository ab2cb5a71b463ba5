// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVProfile.h"

#include "QVConfigEntry.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

using platform::Error;
using platform::Result;

namespace {

constexpr int kFormatVersion = 1;

constexpr const char* kFormatKey = "FormatVersion";
constexpr const char* kNameKey = "Name";
constexpr const char* kProductKey = "ProductID";
constexpr const char* kApplicationsKey = "Applications";

/** No more than these are read from a file. */
constexpr std::size_t kMostApplications = 100;
constexpr std::size_t kLongestApplication = 255; ///< the longest name of a file

/** The context of the translations. */
struct ProfileTexts {
    Q_DECLARE_TR_FUNCTIONS(QVProfile)
};

QString textOf(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

bool hasControls(const QString& text)
{
    return std::ranges::any_of(
        text, [](QChar character) { return character.category() == QChar::Other_Control; });
}

/** The dictionary for an entry, made if there is none. */
platform::MutableDictionary dictionaryFor(
    const platform::MutableDictionary& root, const QVEntry& entry)
{
    const auto made = [](const platform::MutableDictionary& parent, const char* key) {
        const platform::MutableDictionary present = parent.dictionary(key);
        return present.exists() ? present : parent.addDictionary(key);
    };
    const platform::MutableDictionary section = made(root, entry.section->key);
    return entry.slot == nullptr ? section : made(section, entry.slot);
}

QStringList applicationsIn(const platform::Dictionary& root)
{
    QStringList applications;
    const std::vector<std::string> names = root.strings(kApplicationsKey);
    for (const std::string& name : names) {
        const QString text = textOf(name);
        if (!name.empty() && name.size() <= kLongestApplication && !hasControls(text)
            && static_cast<std::size_t>(applications.size()) < kMostApplications) {
            applications.append(text);
        }
    }
    applications.removeDuplicates();
    return applications;
}

} // namespace

QString QVProfileNameFault(const QString& name)
{
    if (name.trimmed().isEmpty()) {
        return ProfileTexts::tr("A profile needs a name.");
    }
    if (name.toUcs4().size() > kQVProfileNameSize) {
        //: %1 is a number of characters.
        return ProfileTexts::tr("The name is longer than %1 characters.").arg(kQVProfileNameSize);
    }
    // Neither a property list nor a list of names, one to a line, has room for them.
    if (hasControls(name) || !name.isValidUtf16()) {
        return ProfileTexts::tr("The name contains characters that cannot be shown.");
    }
    return {};
}

QVProfile QVProfileOf(const tagQVTabletInfo& record, const QString& name)
{
    QVProfile profile;
    profile.name = name;
    profile.productID = QVProductID(record);
    for (std::size_t i = 0; i < kQVEntries.size(); ++i) {
        if (QVIsInProfile(kQVEntries[i])) {
            QVCopyField(kQVEntries[i], record, profile.settings);
            profile.present.set(i);
        }
    }
    return profile;
}

void QVApplyProfile(const QVProfile& profile, tagQVTabletInfo& record)
{
    for (std::size_t i = 0; i < kQVEntries.size(); ++i) {
        if (profile.present.test(i)) {
            QVCopyField(kQVEntries[i], profile.settings, record);
        }
    }
}

Result<QVProfile> QVReadProfile(const platform::PropertyList& list)
{
    const platform::Dictionary root = list.root();
    const std::optional<platform::Number> version = root.number(kFormatKey);
    const std::optional<platform::Number> product = root.number(kProductKey);
    if (!version || !version->isWhole() || !product) {
        return Error{ProfileTexts::tr("The file is not a profile.")};
    }
    if (version->longValue() != kFormatVersion) {
        return Error{ProfileTexts::tr("The file is a profile of an unsupported version.")};
    }
    QVProfile profile;
    profile.name = textOf(root.string(kNameKey).value_or(""));
    if (const QString fault = QVProfileNameFault(profile.name); !fault.isEmpty()) {
        return Error{fault};
    }
    profile.productID = static_cast<std::uint16_t>(product->shortValue());
    profile.applications = applicationsIn(root);
    for (std::size_t i = 0; i < kQVEntries.size(); ++i) {
        const QVEntry& entry = kQVEntries[i];
        if (!QVIsInProfile(entry)) {
            continue;
        }
        const QVEntryResult result =
            QVReadEntry(QVEntryDictionary(root, entry), entry, profile.settings);
        profile.present.set(
            i, result == QVEntryResult::Copied || result == QVEntryResult::Truncated);
    }
    return profile;
}

platform::PropertyList QVWriteProfile(const QVProfile& profile)
{
    platform::PropertyList list;
    const platform::MutableDictionary root = list.root();
    root.setInteger(kFormatKey, kFormatVersion);
    root.setString(kNameKey, profile.name.toStdString());
    root.setInteger(kProductKey, profile.productID);
    std::vector<std::string> applications;
    for (const QString& application : profile.applications) {
        applications.push_back(application.toStdString());
    }
    root.setStrings(kApplicationsKey, applications);
    for (std::size_t i = 0; i < kQVEntries.size(); ++i) {
        if (profile.present.test(i)) {
            // A text that a property list cannot hold has no place in a configuration file either.
            QVWriteEntry(dictionaryFor(root, kQVEntries[i]), kQVEntries[i], profile.settings);
        }
    }
    return list;
}
