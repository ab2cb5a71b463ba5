// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "OpenPanel.h"

#include "ApplicationChooser.h"
#include "InstalledApplications.h"
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
 * A file dialog in which a bundle counts as a file: entering it, by a double click or by its name,
 * chooses it. Any other folder is opened.
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

    /** The chosen file or bundle. */
    QString chosen() const { return mBundle.isEmpty() ? selectedFiles().value(0) : mBundle; }

    /** Shows the dialog until the user has chosen something or cancelled. */
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
    std::optional<QString> chooseApplication(QWidget* parent, const Refusal& refusal) override
    {
        // The parent may be destroyed, and the dialog with it, before the user is done.
        const QPointer<ApplicationChooser> chooser = new ApplicationChooser(
            parent, refusal, [refusal](QWidget* dialog) { return chooseFile(dialog, refusal); });
        std::optional<QString> path;
        if (chooser->exec() == QDialog::Accepted && !chooser.isNull()) {
            path = chooser->chosen();
        }
        delete chooser;
        return path;
    }

private:
    static std::optional<QString> chooseFile(QWidget* parent, const Refusal& refusal)
    {
        //: Title of the dialog.
        const QPointer<ApplicationDialog> dialog = new ApplicationDialog(
            parent, QCoreApplication::translate("OpenPanel", "Choose the file of an application"));
        dialog->setDirectory(applicationsFolder());
        std::optional<QString> path;
        bool goesOn = true;
        while (goesOn && dialog->exec() == QDialog::Accepted && !dialog.isNull()) {
            path = applicationOf(dialog->chosen());
            const QString fault = path ? refusal(*path)
                                       : QCoreApplication::translate("OpenPanel",
                                           "This is not an application: choose a desktop entry, an "
                                           "AppImage or an application bundle.");
            if (fault.isEmpty()) {
                break;
            }
            path.reset();
            // If the message is closed by the program, because the file is no longer needed, do not
            // ask again.
            goesOn = tell(dialog, fault) && !dialog.isNull();
        }
        delete dialog;
        return path;
    }

    /** Returns whether the user has closed the message. */
    static bool tell(QWidget* dialog, const QString& text)
    {
        const QPointer<QMessageBox> message = new QMessageBox(
            QMessageBox::Information, dialog->windowTitle(), text, QMessageBox::Ok, dialog);
        message->setTextFormat(Qt::PlainText);
        const bool isRead = message->exec() != QDialog::Rejected; // no button has this result
        delete message;
        return isRead;
    }

    /** The file's lasting path; nothing if it is not an application: a typed name bypasses the
     * filter. */
    static std::optional<QString> applicationOf(const QString& file)
    {
        static const QStringList kTypes{
            QStringLiteral("desktop"), QStringLiteral("appimage"), QStringLiteral("app")};
        const QFileInfo info(file);
        if (!kTypes.contains(info.suffix().toLower()) || (info.isDir() && !isBundle(info))) {
            return std::nullopt;
        }
        return lastingPath(file);
    }

    /** The folder of applications: the system's, or else the user's own. */
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
