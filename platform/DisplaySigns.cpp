// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "DisplaySigns.h"

#include "Accessible.h"

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <chrono>

namespace platform {

namespace {

constexpr std::chrono::seconds kShown{3};

/** A card with the number and the text, in the middle of its display. */
class Sign final : public QWidget, public Accessible {
public:
    Sign(const DisplaySign& sign, QScreen& screen)
        : QWidget(nullptr,
            Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus
                | Qt::BypassWindowManagerHint)
        , Accessible(static_cast<QWidget&>(*this), QAccessible::Notification)
        , mSpoken(sign.spoken)
    {
        setAttribute(Qt::WA_ShowWithoutActivating);
        setWindowTitle(sign.spoken);
        auto* const card = new QFrame(this);
        card->setAutoFillBackground(true);
        card->setFrameShape(QFrame::Box);
        const QSize room = screen.geometry().size();
        const int least = std::min(room.width(), room.height());
        auto* const number = new QLabel(sign.number, card);
        auto* const text = new QLabel(card);
        setTextSize(*number, least / 3);
        setTextSize(*text, std::max(least / 28, QFontInfo(font()).pixelSize()));
        text->setTextFormat(Qt::PlainText);
        text->setText(
            text->fontMetrics().elidedText(sign.text, Qt::ElideRight, room.width() * 4 / 5));
        auto* const lines = new QVBoxLayout(card);
        lines->setContentsMargins(least / 20, least / 40, least / 20, least / 30);
        lines->addWidget(number, 0, Qt::AlignHCenter);
        lines->addWidget(text, 0, Qt::AlignHCenter);
        auto* const layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(card, 0, Qt::AlignCenter);

        winId();
        windowHandle()->setScreen(&screen);
        // On Wayland, only a full-screen window gets to a display of its own choice. There, it may
        // be translucent.
        if (isOnWayland()) {
            setAttribute(Qt::WA_TranslucentBackground);
            showFullScreen();
        } else {
            QRect place(QPoint(), sizeHint().boundedTo(room));
            place.moveCenter(screen.geometry().center());
            setGeometry(place);
            QWidget::show();
        }
    }

    QString spokenName() const override { return mSpoken; }

private:
    static void setTextSize(QWidget& widget, int pixels)
    {
        QFont font = widget.font();
        font.setPixelSize(std::max(pixels, 1));
        widget.setFont(font);
    }

    QString mSpoken;
};

} // namespace

DisplaySigns::DisplaySigns(QObject* parent)
    : QObject(parent)
{
    mEnd.setSingleShot(true);
    mEnd.setInterval(kShown);
    connect(&mEnd, &QTimer::timeout, this, &DisplaySigns::hide);
}

DisplaySigns::~DisplaySigns() = default;

void DisplaySigns::show(const std::vector<DisplaySign>& signs)
{
    hide();
    for (const DisplaySign& sign : signs) {
        if (QScreen* const screen = displays().screen(sign.display)) {
            mWindows.push_back(std::make_unique<Sign>(sign, *screen));
        }
    }
    if (areShown()) {
        connect(&displays(), &Displays::reconfigured, this, &DisplaySigns::hide);
        qApp->installEventFilter(this);
        mEnd.start();
    }
}

void DisplaySigns::hide()
{
    mEnd.stop();
    qApp->removeEventFilter(this);
    disconnect(&displays(), nullptr, this, nullptr);
    mWindows.clear();
}

bool DisplaySigns::eventFilter(QObject* object, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool isKey = type == QEvent::KeyPress || type == QEvent::ShortcutOverride;
    // NOLINTNEXTLINE(*-downcast): by its type
    if (!isKey || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) {
        return QObject::eventFilter(object, event);
    }
    event->accept(); // a shortcut is not to be triggered by it
    if (type == QEvent::KeyPress) {
        hide();
    }
    return true;
}

} // namespace platform
