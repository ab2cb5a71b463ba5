// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

/** The application whose window is in front: the one that gets the keys. */
struct FrontApplication {
    /** The name of its desktop entry, and the class of its window, as far as they are known. */
    QStringList names;
    qint64 processID = 0; ///< of the window's process; 0 if it is not known
};

/** Which window of the desktop is in front. */
class FrontWindow : public QObject {
    Q_OBJECT

public:
    /** Begins to report with changed(). Before the first report, application() may be unknown. */
    virtual void start() { }

    /** The application in front; nothing if there is none, or only a part of the desktop. */
    virtual std::optional<FrontApplication> application() = 0;

Q_SIGNALS:
    /** application() may have changed. */
    void changed();
    /** The window in front can no longer be determined; the text says why. */
    void lost(const QString& why);
};

/**
 * The names in the form in which profiles have them: without the folder and ".desktop" of an entry,
 * each once. What cannot be a name is left out.
 */
QStringList applicationNames(const QStringList& names);
