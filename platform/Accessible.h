// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QBasicTimer>
#include <QLabel>
#include <QObject>
#include <QString>

#include <memory>

class QWidget;

namespace platform {

/**
 * What a widget is to screen readers, where Qt cannot know it: a second base of the widget, which
 * has a role and may say in words what it shows.
 *
 * Words are made when somebody asks for them, never ahead. Names are the widget's, as everywhere.
 */
class Accessible {
public:
    /** @param widget of which this is a base */
    Accessible(QWidget& widget, QAccessible::Role role);
    virtual ~Accessible();

    QAccessible::Role role() const { return mRole; }

    /** The name; as long as nothing else is said, the widget's. */
    virtual QString spokenName() const;
    /** What is to be seen, in a few sentences; as long as nothing else is said, nothing. */
    virtual QString spokenContents() const;

    /**
     * Something else is to be seen. Listeners are told soon, at most twice a second, and only when
     * the words have changed; without listeners this costs next to nothing.
     */
    void contentsChanged();

    /** What Qt shows to screen readers of the widget, which owns it from then on. */
    virtual QAccessibleInterface* newInterface();

private:
    class Notice;

    QWidget& mWidget;
    QAccessible::Role mRole;
    std::shared_ptr<class AccessibleFactory> mFactory;
    std::unique_ptr<Notice> mNotice; ///< since the first change that had listeners
};

/**
 * A label whose text may change with each event of a pen. Qt's own label sends a message to screen
 * readers each time.
 */
class LiveLabel : public QLabel, public Accessible {
    Q_OBJECT

public:
    explicit LiveLabel(QWidget* parent = nullptr);

    QString spokenName() const override { return text(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

/** A label that screen readers read out whenever it appears. */
class NoticeLabel final : public QLabel, public Accessible {
    Q_OBJECT

public:
    explicit NoticeLabel(QWidget* parent = nullptr);

    QString spokenName() const override { return text(); }
};

} // namespace platform
