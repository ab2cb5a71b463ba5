// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "OpenPanel.h"

#include "Service.h"
#include "TemporaryHome.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

/** The open panel's answer when a person picks the file, or none, in its window. */
std::optional<QString> choose(const QString& file)
{
    QTimer::singleShot(0, qApp, [file] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFile);
        if (file.isEmpty()) {
            dialog->reject();
            return;
        }
        dialog->selectFile(file);
        static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
    });
    return platform::openPanel().chooseApplication(nullptr);
}

class OpenPanel : public testing::Test {
protected:
    OpenPanel() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    TemporaryHome mHome;
};

} // namespace

TEST_F(OpenPanel, givesTheFullPathOfTheFile)
{
    const QString file = mHome.path() + QStringLiteral("/draw.desktop");
    writeFile(file, "[Desktop Entry]\n");
    EXPECT_EQ(choose(file), QFileInfo(file).canonicalFilePath());
}

TEST_F(OpenPanel, followsALink)
{
    const QString file = mHome.path() + QStringLiteral("/draw.desktop");
    const QString link = mHome.path() + QStringLiteral("/link.desktop");
    writeFile(file, "[Desktop Entry]\n");
    ASSERT_TRUE(QFile::link(file, link));
    EXPECT_EQ(choose(link), QFileInfo(file).canonicalFilePath());
}

TEST_F(OpenPanel, givesNothingWhenTheUserCancels)
{
    EXPECT_EQ(choose(QString()), std::nullopt);
}

TEST_F(OpenPanel, givesThePathOfAFileThatVanished)
{
    const QString file = mHome.path() + QStringLiteral("/gone.desktop");
    EXPECT_EQ(choose(file), file);
}

TEST_F(OpenPanel, asksAgainForWhatIsNoApplication)
{
    const QString tool = mHome.path() + QStringLiteral("/tool");
    const QString file = mHome.path() + QStringLiteral("/draw.AppImage");
    writeFile(tool, "#!/bin/sh\n");
    writeFile(file, "");
    // The message comes in its own time. Whatever is shown then is answered, so that nothing waits.
    int told = 0;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, qApp, [&] {
        QWidget* const shown = QApplication::activeModalWidget();
        if (auto* const message = qobject_cast<QMessageBox*>(shown)) {
            ++told;
            message->accept();
        } else if (auto* const dialog = qobject_cast<QFileDialog*>(shown); told > 0 && dialog) {
            dialog->selectFile(file);
            static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
        }
    });
    answer.start(10);
    EXPECT_EQ(choose(tool), QFileInfo(file).canonicalFilePath());
    EXPECT_GE(told, 1);
}
