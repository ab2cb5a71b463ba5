// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Doctor.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

QString doctorText(const std::vector<QVStage>& stages)
{
    QString text;
    for (const QVStage& stage : stages) {
        text += QStringLiteral("%1  %2  %3\n")
                    .arg(QString::fromLatin1(QVStatusName(stage.status)), -11)
                    .arg(QString::fromLatin1(stage.id), -7)
                    .arg(stage.text.shown());
        if (const QString remedy = QVRemedyText(stage); !remedy.isEmpty()) {
            text += QStringLiteral("                      → %1\n").arg(remedy);
        }
    }
    return text;
}

QByteArray doctorJson(const std::vector<QVStage>& stages)
{
    QJsonArray array;
    for (const QVStage& stage : stages) {
        array.append(QJsonObject{{QStringLiteral("id"), QString::fromLatin1(stage.id)},
            {QStringLiteral("status"), QString::fromLatin1(QVStatusName(stage.status))},
            {QStringLiteral("text"), stage.text.shown()},
            {QStringLiteral("remedy"), QVRemedyText(stage)}});
    }
    return QJsonDocument(
        QJsonObject{{QStringLiteral("version"), 1}, {QStringLiteral("stages"), array}})
        .toJson();
}
