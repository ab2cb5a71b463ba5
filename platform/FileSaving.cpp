// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "FileSaving.h"

#include <QFile>
#include <QSaveFile>
#include <QTemporaryFile>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace platform {

namespace {

Error systemError()
{
    return {QString::fromStdString(std::system_category().message(errno))};
}

/** Writes all bytes and flushes them to disk. A full disk is reported here. */
Result<> writeThrough(QFileDevice& file, std::string_view bytes)
{
    // A short write gives no error; the next write reports why, such as a full disk.
    for (std::size_t done = 0; done < bytes.size();) {
        const qint64 written =
            file.write(bytes.data() + done, static_cast<qint64>(bytes.size() - done));
        if (written <= 0) {
            return Error{file.errorString()};
        }
        done += static_cast<std::size_t>(written);
    }
    if (!file.flush()) {
        return Error{file.errorString()};
    }
    // Some file systems report a full disk only here.
    if (::fsync(file.handle()) != 0) {
        return systemError();
    }
    return {};
}

/** Never replaces a file that was created meanwhile. @return false with errno on failure */
bool moveWithoutReplacing(const char* from, const char* to)
{
    // Some file systems, such as those of memory cards, have no links; others, such as NFS, do not
    // support this flag.
    return ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0
        || (errno != EEXIST && ::linkat(AT_FDCWD, from, AT_FDCWD, to, 0) == 0);
}

} // namespace

Result<> replaceFile(const QString& path, std::string_view bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return Error{file.errorString()};
    }
    if (Result<> written = writeThrough(file, bytes); !written) {
        return written;
    }
    if (!file.commit()) {
        return Error{file.errorString()};
    }
    return {};
}

Result<> createFile(const QString& path, std::string_view bytes)
{
    QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
    if (!file.open()) {
        return Error{file.errorString()};
    }
    if (Result<> done = writeThrough(file, bytes); !done) {
        return done;
    }
    const QByteArray written = QFile::encodeName(file.fileName());
    if (::fchmod(file.handle(), S_IRUSR | S_IWUSR) != 0
        || !moveWithoutReplacing(written.constData(), QFile::encodeName(path).constData())) {
        return systemError();
    }
    return {};
}

} // namespace platform
