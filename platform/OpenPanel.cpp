// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "OpenPanel.h"

#include "Service.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

class DesktopOpenPanel final : public OpenPanel {
public:
    std::optional<QString> chooseApplication(QWidget* parent) override
    {
        // The parent may end before the user is done, and takes the dialog with it.
        const QPointer<QFileDialog> dialog = new QFileDialog(
            parent, QCoreApplication::translate("OpenPanel", "Choose an application"));
        dialog->setFileMode(QFileDialog::ExistingFile);
        dialog->setNameFilter(QCoreApplication::translate("OpenPanel", "Applications")
            + QStringLiteral(" (*.desktop *.AppImage *.appimage *.app)"));
        dialog->setDirectory(applicationsFolder());
        std::optional<QString> path;
        while (!path && dialog->exec() == QDialog::Accepted && !dialog.isNull()) {
            path = applicationOf(dialog->selectedFiles().value(0));
            if (!path) {
                // A name that was typed in passes the filter.
                QMessageBox::information(dialog, dialog->windowTitle(),
                    QCoreApplication::translate("OpenPanel",
                        "This is not an application: choose a desktop entry, an AppImage or an "
                        "application bundle."));
            }
        }
        delete dialog;
        return path;
    }

private:
    /** The file's full path, links followed; nothing when it is no application. */
    static std::optional<QString> applicationOf(const QString& file)
    {
        static const QStringList kTypes{
            QStringLiteral("desktop"), QStringLiteral("appimage"), QStringLiteral("app")};
        const QFileInfo info(file);
        if (!kTypes.contains(info.suffix().toLower())) {
            return std::nullopt;
        }
        const QString resolved = info.canonicalFilePath();
        // A file that has vanished meanwhile has no canonical path.
        return resolved.isEmpty() ? file : resolved;
    }

    /** Where this desktop keeps its applications: the system's before the user's own. */
    static QString applicationsFolder()
    {
        QStringList folders =
            QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
        std::reverse(folders.begin(), folders.end());
        for (const QString& folder : std::as_const(folders)) {
            if (QFileInfo(folder).isDir()) {
                return folder;
            }
        }
        return QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
    }
};

} // namespace

OpenPanel& openPanel()
{
    static DesktopOpenPanel panel;
    OpenPanel* const replaced = ServiceScope<OpenPanel>::current();
    return replaced == nullptr ? panel : *replaced;
}

} // namespace platform
