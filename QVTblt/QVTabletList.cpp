// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVTabletList.h"

#include <QDBusMetaType>
#include <QStringList>

void QVRegisterTabletList()
{
    qRegisterMetaType<QVTabletList>("QVTabletList"); // Qt 5 knows a method's types by name only
    qDBusRegisterMetaType<QVTabletList>();
}

QString QVTabletListText(const QVTabletList& tablets)
{
    QString text;
    for (const QVariantMap& tablet : tablets) {
        const auto entry = [&](const char* key) { return tablet.value(QLatin1String(key)); };
        const auto word = [&](const char* key) { return entry(key).toString(); };
        const auto number = [&](const char* key, const char* unit) {
            return QStringLiteral("%1 %2").arg(word(key), QLatin1String(unit));
        };
        text += QStringLiteral("%1  %2%3\n")
                    .arg(word("id"), word("name"),
                        entry("inUse").toBool() ? QStringLiteral(" (in use)") : QString());
        QStringList facts{word("node")};
        if (tablet.contains(QStringLiteral("pressureLevels"))) {
            if (entry("width").toDouble() > 0) {
                facts += QStringLiteral("%1 x %2 mm")
                             .arg(QString::number(entry("width").toDouble(), 'f', 0),
                                 QString::number(entry("height").toDouble(), 'f', 0));
            }
            facts += number("pressureLevels", "pressure levels");
            facts += entry("tilt").toBool() ? QStringLiteral("tilt") : QStringLiteral("no tilt");
            facts +=
                entry("eraser").toBool() ? QStringLiteral("eraser") : QStringLiteral("no eraser");
            facts += entry("keys").toUInt() == 1 ? QStringLiteral("1 key") : number("keys", "keys");
            facts += entry("strips").toUInt() == 1 ? QStringLiteral("1 strip or ring")
                                                   : number("strips", "strips or rings");
        }
        text += QStringLiteral("    %1\n").arg(facts.join(QStringLiteral(", ")));
        if (const QString problem = word("problem"); !problem.isEmpty()) {
            text += QStringLiteral("    %1\n").arg(problem);
        }
    }
    return tablets.isEmpty() ? QStringLiteral("no tablet is plugged in\n") : text;
}
