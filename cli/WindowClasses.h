// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/**
 * Which desktop entries the windows of a class belong to. Windows of X11 often have another class
 * than their desktop entry has a name; the entry then says so itself, in StartupWMClass.
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
