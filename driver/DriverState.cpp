// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "DriverState.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

constexpr QLatin1String kAttached("attached");
constexpr QLatin1String kRecord("record");
constexpr QLatin1String kPushes("pushes");

QString statePath()
{
    QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    if (QDir::isRelativePath(folder)) {
        folder = QDir::home().filePath(QStringLiteral(".local/state"));
    }
    return folder + QStringLiteral("/tdsg-driver/state.json");
}

} // namespace

std::optional<DriverState> DriverState::load()
{
    QFile file(statePath());
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject()) {
        return std::nullopt;
    }
    const QJsonObject object = document.object();
    DriverState state;
    state.attached = static_cast<std::uint16_t>(object.value(kAttached).toInt());
    state.record = QByteArray::fromBase64(object.value(kRecord).toString().toLatin1());
    state.pushes = static_cast<std::uint32_t>(object.value(kPushes).toDouble());
    return state;
}

QString DriverState::save() const
{
    const QString path = statePath();
    QDir().mkpath(QFileInfo(path).path());
    QJsonObject object;
    object.insert(kAttached, attached);
    object.insert(kRecord, QString::fromLatin1(record.toBase64()));
    object.insert(kPushes, static_cast<double>(pushes));
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(object).toJson());
        if (file.commit()) {
            return {};
        }
    }
    return QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
}
