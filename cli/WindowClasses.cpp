// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "WindowClasses.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>

namespace {

/** No entry is as large, and no desktop has as many. */
constexpr qint64 kLargestEntry = 65536;
constexpr int kMostEntries = 10000;

QStringList entriesWithClass(const QString& windowClass)
{
    QStringList names;
    int count = 0;
    const QStringList folders =
        QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    for (const QString& folder : folders) {
        QDirIterator entries(
            folder, {QStringLiteral("*.desktop")}, QDir::Files, QDirIterator::Subdirectories);
        while (entries.hasNext() && count++ < kMostEntries) {
            QFile file(entries.next());
            if (file.open(QIODevice::ReadOnly)
                && classInEntry(file.read(kLargestEntry)).compare(windowClass, Qt::CaseInsensitive)
                    == 0) {
                // As the entry's ID is made: a folder becomes the beginning of the name.
                QString name = QDir(folder).relativeFilePath(file.fileName());
                name.chop(static_cast<int>(qstrlen(".desktop")));
                names.append(name.replace(QLatin1Char('/'), QLatin1Char('-')));
            }
        }
    }
    return names;
}

} // namespace

QStringList WindowClasses::entriesFor(const QStringList& classes)
{
    constexpr int kMostClasses = 256;
    QStringList names;
    for (const QString& windowClass : classes) {
        if (!mKnown.contains(windowClass)) {
            if (mKnown.size() >= kMostClasses) {
                mKnown.clear();
            }
            mKnown.insert(windowClass, entriesWithClass(windowClass));
        }
        names += mKnown.value(windowClass);
    }
    return names;
}

QString classInEntry(const QByteArray& text)
{
    bool isInGroup = false;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray& line : lines) {
        const QByteArray words = line.trimmed();
        if (words.startsWith('[')) {
            isInGroup = words == "[Desktop Entry]";
        } else if (const auto equals = words.indexOf('=');
                   isInGroup && words.left(equals).trimmed() == "StartupWMClass") {
            return QString::fromUtf8(words.mid(equals + 1).trimmed());
        }
    }
    return {};
}
