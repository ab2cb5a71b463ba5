// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QLabel>
#include <QString>

#include <memory>

class QTimer;

namespace platform {

/**
 * Makes a widget that draws itself accessible to screen readers: a second base class with a role
 * and, optionally, a description of what the widget shows.
 *
 * Descriptions are made on request, never ahead. Names are the widget's, as usual.
 */
class Accessible {
public:
    /** @param widget the object that this is a base of */
    Accessible(QWidget& widget, QAccessible::Role role);
    virtual ~Accessible();

    QAccessible::Role role() const { return mRole; }

    /** The name; by default, the widget's. */
    virtual QString spokenName() const;
    /** Describes what is visible, in a few sentences; by default, nothing. */
    virtual QString spokenContents() const;

    /**
     * Must be called when the visible contents change. Listeners are notified soon, at most twice a
     * second, and only if the description has changed; without listeners, this costs next to
     * nothing.
     */
    void contentsChanged();

    /** Creates Qt's accessible interface for the widget; Qt takes ownership. */
    virtual QAccessibleInterface* newInterface();

private:
    void announce(QString& last, const QString& words, QAccessible::Event what);

    QWidget& mWidget;
    QAccessible::Role mRole;
    std::shared_ptr<class AccessibleFactory> mFactory;
    std::unique_ptr<QTimer> mPause; ///< created by the first change with listeners
    QString mLastName; ///< as announced
    QString mLastContents;
};

/**
 * A label whose text may change with each pen event. Qt's own label would notify screen readers
 * each time.
 */
class LiveLabel : public QLabel, public Accessible {
    Q_OBJECT

public:
    explicit LiveLabel(QWidget* parent = nullptr);

    QString spokenName() const override { return text(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

/** A label that screen readers announce whenever it appears. */
class NoticeLabel final : public QLabel, public Accessible {
    Q_OBJECT

public:
    explicit NoticeLabel(QWidget* parent = nullptr);

    QString spokenName() const override { return text(); }
};

} // namespace platform
