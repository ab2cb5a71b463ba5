// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Accessible.h"

#include "Service.h"

#include <QAccessibleWidget>
#include <QTimer>

#include <utility>

namespace platform {

namespace {

constexpr int kPause = 500; ///< milliseconds between two announcements

/** Null for a widget that is being destroyed, whose Accessible is already gone. */
Accessible* accessibleOf(QWidget* widget)
{
    return dynamic_cast<Accessible*>(widget);
}

class Interface final : public QAccessibleWidget {
public:
    Interface(QWidget* widget, QAccessible::Role role)
        : QAccessibleWidget(widget, role)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const Accessible* const accessible = accessibleOf(widget());
        QString usual = QAccessibleWidget::text(kind);
        if (accessible == nullptr) {
            return usual;
        }
        if (kind == QAccessible::Name) {
            const QString name = accessible->spokenName();
            return name.isEmpty() ? usual : name;
        }
        if (kind == QAccessible::Description) {
            const QString contents = accessible->spokenContents();
            return usual.isEmpty() || contents.isEmpty() ? usual + contents
                                                         : usual + u' ' + contents;
        }
        return usual;
    }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    static_cast<void>(className);
    auto* const widget = qobject_cast<QWidget*>(object);
    Accessible* const accessible = accessibleOf(widget);
    return accessible == nullptr ? nullptr : accessible->newInterface();
}

} // namespace

/**
 * Keeps makeInterface() installed in Qt while there are such widgets. A module must not leave it
 * behind in its host.
 */
class AccessibleFactory {
public:
    AccessibleFactory() { QAccessible::installFactory(makeInterface); }
    ~AccessibleFactory() { QAccessible::removeFactory(makeInterface); }
    AccessibleFactory(const AccessibleFactory&) = delete;
    AccessibleFactory& operator=(const AccessibleFactory&) = delete;
};

Accessible::Accessible(QWidget& widget, QAccessible::Role role)
    : mWidget(widget)
    , mRole(role)
    , mFactory(sharedInstance<AccessibleFactory>())
{
}

Accessible::~Accessible() = default;

QString Accessible::spokenName() const
{
    return {};
}

QString Accessible::spokenContents() const
{
    return {};
}

QAccessibleInterface* Accessible::newInterface()
{
    return new Interface(&mWidget, mRole);
}

void Accessible::contentsChanged()
{
    if (!QAccessible::isActive()) {
        return;
    }
    if (mPause == nullptr) {
        mPause = std::make_unique<QTimer>();
        mPause->setSingleShot(true);
        mPause->setInterval(kPause);
        mPause->callOnTimeout([this] {
            announce(mLastName, spokenName(), QAccessible::NameChanged);
            announce(mLastContents, spokenContents(), QAccessible::DescriptionChanged);
        });
    }
    if (!mPause->isActive()) {
        mPause->start();
    }
}

void Accessible::announce(QString& last, const QString& words, QAccessible::Event what)
{
    if (std::exchange(last, words) != words) {
        QAccessibleEvent event(&mWidget, what);
        QAccessible::updateAccessibility(&event);
    }
}

LiveLabel::LiveLabel(QWidget* parent)
    : QLabel(parent)
    , Accessible(static_cast<QWidget&>(*this), QAccessible::StaticText)
{
    // A label with a name of its own doesn't announce each new text.
    setAccessibleName(QStringLiteral(" "));
}

void LiveLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    contentsChanged(); // a new text is always repainted
}

NoticeLabel::NoticeLabel(QWidget* parent)
    : QLabel(parent)
    , Accessible(static_cast<QWidget&>(*this), QAccessible::Notification)
{
}

} // namespace platform
