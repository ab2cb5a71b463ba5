// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Shows the panel and prints the texts of the labels that are then visible.

#include <QApplication>
#include <QLabel>
#include <QPluginLoader>

#include <PreferencePane.h>
#include <cstdio>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QPluginLoader loader(QStringLiteral(QVTBLT_MODULE));
    const auto* const plugin = qobject_cast<platform::PreferencePanePlugin*>(loader.instance());
    if (plugin == nullptr) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(loader.errorString()));
        return 1;
    }
    const auto pane = plugin->makePane();
    if (pane->initWithBundle(platform::Bundle(QStringLiteral(QVTBLT_RESOURCES))) == nullptr) {
        return 1;
    }
    QWidget* const view = pane->loadMainView();
    pane->willSelect();
    view->show();
    pane->didSelect();
    const auto labels = view->findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        if (label->isVisible()) {
            std::printf("%s\n", qUtf8Printable(label->text()));
        }
    }
    pane->willUnselect();
    view->hide();
    pane->didUnselect();
    delete view;
    return 0;
}
