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

/** Whether it is an application bundle: a folder that counts as one file. */
bool isBundle(const QFileInfo& file)
{
    return file.isDir() && file.suffix().compare(QLatin1String("app"), Qt::CaseInsensitive) == 0;
}

/**
 * A dialog for a file, in which a bundle is one: whoever enters it, by a double click or by its
 * name, has chosen it. Any other folder is opened.
 */
class ApplicationDialog final : public QFileDialog {
public:
    ApplicationDialog(QWidget* parent, const QString& title)
        : QFileDialog(parent, title)
    {
        setFileMode(QFileDialog::ExistingFile);
        //: Kind of files in the dialog for choosing an application.
        setNameFilter(QCoreApplication::translate("OpenPanel", "Applications")
            + QStringLiteral(" (*.desktop *.AppImage *.appimage *.app)"));
        connect(this, &QFileDialog::directoryEntered, this, [this](const QString& folder) {
            if (isBundle(QFileInfo(folder))) {
                choose(folder);
            }
        });
    }

    /** The file that was chosen, or the bundle. */
    QString chosen() const { return mBundle.isEmpty() ? selectedFiles().value(0) : mBundle; }

    /** Shows it until something was chosen, or nothing shall be. */
    int exec() override
    {
        mBundle.clear();
        return QFileDialog::exec();
    }

protected:
    void accept() override
    {
        const QString file = selectedFiles().value(0);
        if (isBundle(QFileInfo(file))) {
            choose(file);
        } else {
            QFileDialog::accept();
        }
    }

private:
    void choose(const QString& bundle)
    {
        mBundle = bundle;
        done(QDialog::Accepted);
    }

    QString mBundle;
};

class DesktopOpenPanel final : public OpenPanel {
public:
    std::optional<QString> chooseApplication(QWidget* parent) override
    {
        // The parent may end before the user is done, and takes the dialog with it.
        //: Title of the dialog.
        const QPointer<ApplicationDialog> dialog = new ApplicationDialog(
            parent, QCoreApplication::translate("OpenPanel", "Choose an application"));
        dialog->setDirectory(applicationsFolder());
        std::optional<QString> path;
        bool goesOn = true;
        while (goesOn && dialog->exec() == QDialog::Accepted && !dialog.isNull()) {
            path = applicationOf(dialog->chosen());
            // A name that was typed in passes the filter. Whoever closes the message from outside,
            // because what the file was for has gone, wants no other file.
            goesOn = !path && tellOfNoApplication(dialog) && !dialog.isNull();
        }
        delete dialog;
        return path;
    }

private:
    /** Gives whether the user has closed the message. */
    static bool tellOfNoApplication(QWidget* dialog)
    {
        const QPointer<QMessageBox> message = new QMessageBox(QMessageBox::Information,
            dialog->windowTitle(),
            QCoreApplication::translate("OpenPanel",
                "This is not an application: choose a desktop entry, an AppImage or an application "
                "bundle."),
            QMessageBox::Ok, dialog);
        const bool isRead = message->exec() != QDialog::Rejected; // which no button here stands for
        delete message;
        return isRead;
    }

    /** The file's full path, links followed; nothing when it is no application. */
    static std::optional<QString> applicationOf(const QString& file)
    {
        static const QStringList kTypes{
            QStringLiteral("desktop"), QStringLiteral("appimage"), QStringLiteral("app")};
        const QFileInfo info(file);
        if (!kTypes.contains(info.suffix().toLower()) || (info.isDir() && !isBundle(info))) {
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
    return currentService<OpenPanel, DesktopOpenPanel>();
}

} // namespace platform
