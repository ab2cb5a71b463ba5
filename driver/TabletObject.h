// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "QVTabletList.h"
#include "Result.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QString>

#include <functional>

/** What the object on the bus says of the attached tablet. */
struct TabletFacts {
    QString name;
    ushort vendorID = 0;
    ushort productID = 0; ///< as in the record: the number of the file
    QString state = QStringLiteral("none");
    QString problem; ///< what is wrong and what to do; empty if nothing is
};

/**
 * The tablet on the bus, for the panel and for scripts. All public members are exported, as
 * org.quorvia.Tablet1.
 */
class TabletObject final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.quorvia.Tablet1")
    Q_PROPERTY(QString Name READ name)
    Q_PROPERTY(ushort VendorID READ vendorID)
    Q_PROPERTY(ushort ProductID READ productID)
    Q_PROPERTY(QString State READ state)
    Q_PROPERTY(QString Problem READ problem)

public:
    using List = std::function<QVTabletList()>;
    using User = std::function<platform::Result<>(const QString& id)>;
    using Noticer = std::function<void(bool areShown)>;

    /**
     * Exports the object.
     *
     * @param list gives the tablets that are plugged in
     * @param use has the driver use one of them
     * @param notices has it show notices on the screen, or not
     */
    TabletObject(QDBusConnection bus, List list, User use, Noticer notices);

    /** Shows these facts from now on, and announces those that have changed. */
    void show(const TabletFacts& facts);

    QString name() const { return mFacts.name; }
    ushort vendorID() const { return mFacts.vendorID; }
    ushort productID() const { return mFacts.productID; }
    QString state() const { return mFacts.state; }
    QString problem() const { return mFacts.problem; }

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): moc reads it
    /** The tablets that are plugged in. */
    QVTabletList Tablets() const { return mList(); }
    /** Uses a tablet from now on; an error if none with that ID is plugged in. */
    void Use(const QString& id);
    /**
     * Sets whether a short notice appears on the screen when a key pauses the pen or moves it to
     * another display.
     */
    void ShowNotices(bool areShown) { mNotices(areShown); }

Q_SIGNALS:
    /** A button of the tablet or of its pen is down or up; slot is the button's in the record. */
    void ButtonChanged(ushort slot, bool down);

private:
    QDBusConnection mBus;
    List mList;
    User mUse;
    Noticer mNotices;
    TabletFacts mFacts;
};
