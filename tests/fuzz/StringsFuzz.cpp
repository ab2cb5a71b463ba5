// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Fuzzes a table of localized strings, with a valid English one beside it. Input: the bytes of the
// German table.

#include "Bundle.h"
#include "Fuzz.h"
#include "PropertyList.h"
#include "TemporaryHome.h"

#include <QLocale>

#include <string>
#include <string_view>

using namespace platform;

namespace {

constexpr std::string_view kEnglish = "<plist version=\"1.0\"><dict>"
                                      "<key>Ok</key><string>the English text</string>"
                                      "</dict></plist>";
constexpr std::size_t kMostKeys = 8; ///< each lookup reads the file

QString tableOf(const TemporaryHome& home, const char* language)
{
    const QString folder =
        home.path() + QStringLiteral("/%1.lproj").arg(QString::fromLatin1(language));
    require(QDir().mkpath(folder), "the folder can be made");
    return folder + QStringLiteral("/InfoPlist.strings");
}

QString textOf(const Result<PropertyList>& list, const std::string& key)
{
    const auto text = list ? list->root().string(key.c_str()) : std::nullopt;
    if (text) {
        return QString::fromUtf8(text->data(), static_cast<int>(text->size()));
    }
    return key == "Ok" ? QStringLiteral("the English text") : QStringLiteral("the default");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    startApplication(argc, argv);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryHome home;
    static const QString table = tableOf(home, "de");
    static const bool hasEnglish = [] {
        putFile(tableOf(home, "en"),
            {reinterpret_cast<const std::uint8_t*>(kEnglish.data()), kEnglish.size()});
        return true;
    }();
    static_cast<void>(hasEnglish);
    putFile(table, {data, size});

    const auto list = PropertyList::load(table.toStdString());
    std::vector<std::string> keys{"Ok", "NoDevice"};
    if (list) {
        for (const std::string& key : list->root().keys()) {
            // Only keys that a program can ask for.
            if (keys.size() < kMostKeys && QString::fromStdString(key).toStdString() == key) {
                keys.push_back(key);
            }
        }
    }
    const Bundle bundle(home.path());
    for (const std::string& key : keys) {
        const QString text = bundle.localizedString(QString::fromStdString(key),
            QStringLiteral("the default"), QStringLiteral("InfoPlist"));
        require(text == textOf(list, key), "a text is the table's, the English one or the default");
    }
    return 0;
}
