// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

/** A temporary home folder, for its lifetime: HOME and the folders derived from it. */
class TemporaryHome {
public:
    TemporaryHome()
        : mBefore(qgetenv("HOME"))
    {
        EXPECT_TRUE(mFolder.isValid());
        qputenv("HOME", QFile::encodeName(mFolder.path()));
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_STATE_HOME");
    }
    ~TemporaryHome() { qputenv("HOME", mBefore); }

    QString path() const { return mFolder.path(); }

    /** Creates and returns the folder of the configuration files. */
    QDir configFolder() const
    {
        const QDir folder(
            mFolder.filePath(QStringLiteral("Library/Preferences/QuorviaTablet/config")));
        EXPECT_TRUE(folder.mkpath(QStringLiteral(".")));
        return folder;
    }

    /** Path of the configuration file with that number. */
    QString configFile(int number) const
    {
        return configFolder().filePath(QStringLiteral("%1.plist").arg(number));
    }

private:
    QTemporaryDir mFolder;
    QByteArray mBefore;
};

/** Replaces a file's contents. */
inline void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(file.errorString());
    ASSERT_EQ(file.write(bytes), bytes.size());
}

/** A file's contents. */
inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.errorString());
    return file.readAll();
}
