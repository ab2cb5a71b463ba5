// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/**
 * Which desktop entries the windows of a class belong to. The class of an X11 window often differs
 * from the name of its desktop entry; the entry then gives the class in StartupWMClass.
 */
class WindowClasses {
public:
    /** The names of the entries, without ".desktop", for any of these classes. */
    QStringList entriesFor(const QStringList& classes);

private:
    /** By class. Forgotten when there are many, since any program can name a class. */
    QHash<QString, QStringList> mKnown;
};

/** The class that the text of a desktop entry names; empty if it names none. */
QString classInEntry(const QByteArray& text);
