// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// A window over each display that prints a line of JSON for each event of a pen, and for each
// change of the displays.

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>
#include <QTabletEvent>

#include <cstdio>
#include <map>
#include <memory>

namespace {

void print(const QJsonObject& object)
{
    std::puts(QJsonDocument(object).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

/** Covers a display; a program that draws gets the pen's places in its own pixels, as this one. */
class Sheet final : public QRasterWindow {
public:
    explicit Sheet(QScreen* screen)
    {
        setScreen(screen);
        setGeometry(screen->geometry());
        setFlags(Qt::FramelessWindowHint);
        connect(screen, &QScreen::geometryChanged, this, &Sheet::tell);
        showFullScreen();
    }

protected:
    void tabletEvent(QTabletEvent* event) override
    {
        event->accept();
        const QPointF place = event->position();
        print({{QStringLiteral("display"), screen()->name()}, {QStringLiteral("x"), place.x()},
            {QStringLiteral("y"), place.y()}, {QStringLiteral("pressure"), event->pressure()},
            {QStringLiteral("type"), static_cast<int>(event->type())}});
    }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter(this).fillRect(QRect(QPoint(), size()), Qt::white);
    }

    void exposeEvent(QExposeEvent* event) override
    {
        QRasterWindow::exposeEvent(event);
        tell();
    }
    void resizeEvent(QResizeEvent* event) override
    {
        QRasterWindow::resizeEvent(event);
        tell();
    }

private:
    void tell() const
    {
        const QRect bounds = screen()->geometry();
        if (isExposed() && size() == bounds.size()) {
            print({{QStringLiteral("shown"), screen()->name()},
                {QStringLiteral("bounds"),
                    QJsonArray{bounds.x(), bounds.y(), bounds.width(), bounds.height()}}});
        }
    }
};

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    std::map<const QScreen*, std::unique_ptr<Sheet>> sheets;
    const auto cover = [&](QScreen* screen) { sheets[screen] = std::make_unique<Sheet>(screen); };
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, qGuiApp, cover);
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, qGuiApp, [&](QScreen* screen) {
        print({{QStringLiteral("gone"), screen->name()}});
        sheets.erase(screen);
    });
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* const screen : screens) {
        cover(screen);
    }
    return QGuiApplication::exec();
}
