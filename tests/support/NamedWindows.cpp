// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Opens a window for each argument, with that title and, on Wayland, as a window of the application
// with that desktop entry. Prints "ready" when all are on the screen, and runs until it is ended.

#include <QGuiApplication>
#include <QRasterWindow>

#include <cstddef>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

class NamedWindow final : public QRasterWindow {
public:
    explicit NamedWindow(const QString& name)
    {
        // The window takes the name when it is created.
        QGuiApplication::setDesktopFileName(name);
        setTitle(name);
        resize(200, 100);
        create();
        show();
    }

    static std::size_t& awaited()
    {
        static std::size_t count = 0;
        return count;
    }

protected:
    void exposeEvent(QExposeEvent* event) override
    {
        QRasterWindow::exposeEvent(event);
        if (isExposed() && !mWasExposed) {
            mWasExposed = true;
            if (--awaited() == 0) {
                std::puts("ready");
                std::fflush(stdout);
            }
        }
    }

private:
    bool mWasExposed = false;
};

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList names = QCoreApplication::arguments().mid(1);
    NamedWindow::awaited() = static_cast<std::size_t>(names.size());
    std::vector<std::unique_ptr<NamedWindow>> windows;
    for (const QString& name : names) {
        windows.push_back(std::make_unique<NamedWindow>(name));
        QCoreApplication::processEvents();
    }
    return QGuiApplication::exec();
}
