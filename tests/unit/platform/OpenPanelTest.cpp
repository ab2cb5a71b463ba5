// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "OpenPanel.h"

#include "ApplicationChooser.h"
#include "Service.h"
#include "TemporaryHome.h"
#include "Wait.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

/** Accepts every path. */
QString noRefusal(const QString& path)
{
    static_cast<void>(path);
    return {};
}

/**
 * Asks for another file, acts in the window that opens for it, and returns the answer. If nothing
 * was chosen there, cancels.
 */
template <class Act>
std::optional<QString> chooseBy(
    const Act& act, const platform::OpenPanel::Refusal& refusal = noRefusal)
{
    QTimer::singleShot(0, qApp, [act] {
        const QPointer<QDialog> chooser =
            qobject_cast<platform::ApplicationChooser*>(QApplication::activeModalWidget());
        ASSERT_FALSE(chooser.isNull());
        QTimer::singleShot(0, qApp, [act] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
        });
        chooser->findChild<QPushButton*>(QStringLiteral("otherFile"))->click();
        if (!chooser.isNull() && chooser->isVisible()) {
            chooser->reject();
        }
    });
    return platform::openPanel().chooseApplication(nullptr, refusal);
}

/** Picks a file as a desktop's own dialog does, which may also return what is no application. */
void pick(QFileDialog& dialog, const QString& file)
{
    // This takes back what was selected, which counts before the name. But it leaves the name that
    // is there while its field has the focus.
    dialog.selectFile(file);
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file);
    static_cast<QDialog&>(dialog).done(QDialog::Accepted);
}

/** Picks the file, or none, in the open panel's window, and returns the answer. */
std::optional<QString> choose(
    const QString& file, const platform::OpenPanel::Refusal& refusal = noRefusal)
{
    return chooseBy(
        [file](QFileDialog& dialog) {
            EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
            if (file.isEmpty()) {
                dialog.reject();
                return;
            }
            pick(dialog, file);
        },
        refusal);
}

class OpenPanel : public testing::Test {
protected:
    OpenPanel()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        qputenv("XDG_DATA_HOME", QFile::encodeName(mHome.path()));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(mHome.path()));
    }

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
    // The message comes later. Answer whatever is shown then, so that nothing waits.
    int told = 0;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, qApp, [&] {
        QWidget* const shown = QApplication::activeModalWidget();
        if (auto* const message = qobject_cast<QMessageBox*>(shown)) {
            ++told;
            message->accept();
        } else if (auto* const dialog = qobject_cast<QFileDialog*>(shown); told > 0 && dialog) {
            pick(*dialog, file);
        }
    });
    answer.start(10);
    EXPECT_EQ(choose(tool), QFileInfo(file).canonicalFilePath());
    EXPECT_EQ(told, 1);
}

TEST_F(OpenPanel, saysWhyAFileCannotBeUsedAndChoosesNone)
{
    const QString file = mHome.path() + QStringLiteral("/draw.desktop");
    writeFile(file, "[Desktop Entry]\n");
    QString told;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, qApp, [&] {
        QWidget* const shown = QApplication::activeModalWidget();
        if (auto* const message = qobject_cast<QMessageBox*>(shown)) {
            told = message->text();
            message->accept();
        } else if (auto* const dialog = qobject_cast<QFileDialog*>(shown);
                   !told.isEmpty() && dialog) {
            dialog->reject();
        }
    });
    answer.start(10);
    EXPECT_EQ(choose(file, [](const QString& path) { return QStringLiteral("not ") + path; }),
        std::nullopt);
    EXPECT_EQ(told, QStringLiteral("not ") + QFileInfo(file).canonicalFilePath());
}

TEST_F(OpenPanel, asksForNothingMoreWhenItsMessageIsClosedFromOutside)
{
    const QString tool = mHome.path() + QStringLiteral("/tool");
    writeFile(tool, "#!/bin/sh\n");
    int told = 0;
    int askedAgain = 0;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, qApp, [&] {
        QWidget* const shown = QApplication::activeModalWidget();
        if (auto* const message = qobject_cast<QMessageBox*>(shown)) {
            ++told;
            message->reject();
        } else if (auto* const dialog = qobject_cast<QFileDialog*>(shown); told > 0 && dialog) {
            ++askedAgain;
            dialog->reject();
        }
    });
    answer.start(10);
    EXPECT_EQ(choose(tool), std::nullopt);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(askedAgain, 0);
}

namespace {

/** Creates a bundle in a folder, and returns its path. */
QString makeBundle(const QString& folder, const QString& name)
{
    EXPECT_TRUE(QDir(folder).mkpath(name + QStringLiteral("/Contents")));
    return QFileInfo(folder + QLatin1Char('/') + name).canonicalFilePath();
}

/** Waits until the dialog has read its folder, and returns the index of a file in its list. */
QModelIndex placeOf(QFileDialog& dialog, const QString& name)
{
    auto* const list = dialog.findChild<QListView*>(QStringLiteral("listView"));
    QModelIndex place;
    const bool isThere = QTest::qWaitFor(
        [&] {
            const QAbstractItemModel& model = *list->model();
            for (int row = 0; row < model.rowCount(list->rootIndex()); ++row) {
                const QModelIndex index = model.index(row, 0, list->rootIndex());
                if (index.data().toString() == name) {
                    place = index;
                }
            }
            return place.isValid();
        },
        kPatience);
    EXPECT_TRUE(isThere) << qPrintable(name);
    return place;
}

/** Types a name and presses Return. */
void typeName(QFileDialog& dialog, const QString& name)
{
    auto* const line = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    line->setFocus();
    line->setText(name);
    QTest::keyClick(line, Qt::Key_Return);
}

} // namespace

TEST_F(OpenPanel, takesABundleThatIsEntered)
{
    const QString bundle = makeBundle(mHome.path(), QStringLiteral("Draw.app"));
    EXPECT_EQ(chooseBy([this](QFileDialog& dialog) {
        dialog.setDirectory(mHome.path());
        auto* const list = dialog.findChild<QListView*>(QStringLiteral("listView"));
        list->setCurrentIndex(placeOf(dialog, QStringLiteral("Draw.app")));
        QTest::keyClick(list, Qt::Key_Return);
    }),
        bundle);
}

TEST_F(OpenPanel, takesABundleWhoseNameIsTyped)
{
    const QString bundle = makeBundle(mHome.path(), QStringLiteral("Draw.App"));
    EXPECT_EQ(chooseBy([&bundle](QFileDialog& dialog) { typeName(dialog, bundle); }), bundle);
}

TEST_F(OpenPanel, followsALinkToABundle)
{
    const QString bundle = makeBundle(mHome.path(), QStringLiteral("Draw.app"));
    const QString link = mHome.path() + QStringLiteral("/link.app");
    ASSERT_TRUE(QFile::link(bundle, link));
    EXPECT_EQ(chooseBy([&link](QFileDialog& dialog) { typeName(dialog, link); }), bundle);
}

TEST_F(OpenPanel, opensAnyOtherFolderAndChoosesNone)
{
    const QString folder = makeBundle(mHome.path(), QStringLiteral("tools.desktop"));
    QString shown;
    EXPECT_EQ(chooseBy([&](QFileDialog& dialog) {
        typeName(dialog, folder);
        ASSERT_TRUE(dialog.isVisible());
        shown = dialog.directory().canonicalPath();
        dialog.setDirectory(mHome.path());
        auto* const list = dialog.findChild<QListView*>(QStringLiteral("listView"));
        list->setCurrentIndex(placeOf(dialog, QStringLiteral("tools.desktop")));
        QTest::keyClick(list, Qt::Key_Return);
        ASSERT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.directory().canonicalPath(), folder);
        dialog.reject();
    }),
        std::nullopt);
    EXPECT_EQ(shown, folder);
}

TEST_F(OpenPanel, asksAgainForAFolderThatIsNoBundle)
{
    const QString folder = makeBundle(mHome.path(), QStringLiteral("tools.desktop"));
    int told = 0;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, qApp, [&] {
        QWidget* const shown = QApplication::activeModalWidget();
        if (auto* const message = qobject_cast<QMessageBox*>(shown)) {
            ++told;
            message->accept();
        } else if (auto* const dialog = qobject_cast<QFileDialog*>(shown); told > 0 && dialog) {
            dialog->reject();
        }
    });
    answer.start(10);
    EXPECT_EQ(choose(folder), std::nullopt);
    EXPECT_EQ(told, 1);
}
