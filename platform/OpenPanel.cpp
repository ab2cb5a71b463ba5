// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "OpenPanel.h"

#include "Service.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace platform {

namespace {

class DesktopOpenPanel final : public OpenPanel {
public:
    std::optional<QString> chooseApplication(QWidget* parent) override
    {
        QFileDialog dialog(
            parent, QCoreApplication::translate("OpenPanel", "Choose an application"));
        dialog.setFileMode(QFileDialog::ExistingFile);
        dialog.setNameFilter(QCoreApplication::translate("OpenPanel", "Applications")
            + QStringLiteral(" (*.desktop *.AppImage *.appimage *.app)"));
        dialog.setDirectory(applicationsFolder());
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
            return std::nullopt;
        }
        const QString chosen = dialog.selectedFiles().constFirst();
        const QString resolved = QFileInfo(chosen).canonicalFilePath();
        // A file that has vanished meanwhile has no canonical path.
        return resolved.isEmpty() ? chosen : resolved;
    }

private:
    /** Where this desktop keeps its applications: the system's before the user's own. */
    static QString applicationsFolder()
    {
        const QStringList folders =
            QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
        for (auto folder = folders.crbegin(); folder != folders.crend(); ++folder) {
            if (QFileInfo(*folder).isDir()) {
                return *folder;
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
