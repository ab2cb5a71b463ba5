// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ImportDialog.h"

#include "DialogSize.h"
#include "Dialogs.h"
#include "TemporaryHome.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

class Import : public testing::Test {
protected:
    Import()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(mHome.path()));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(mHome.path()));
        qputenv("LANGUAGE", "en");
        mImport.name = QStringLiteral("Theirs");
    }

    void open()
    {
        mDialog = std::make_unique<ImportDialog>(mImport, nullptr);
        mDialog->show();
        activate(*mDialog);
    }
    QListWidget& list() { return *mDialog->findChild<QListWidget*>(); }
    QPushButton& button(const char* text) { return buttonOf(*mDialog, text); }
    QStringList lines()
    {
        QStringList lines;
        for (int row = 0; row < list().count(); ++row) {
            lines.append(QString(list().item(row)->text()).remove(QChar(0x200b)));
        }
        return lines;
    }
    /** The texts of the labels, as they are read. */
    QString labels()
    {
        QStringList texts;
        const auto labels = mDialog->findChildren<QLabel*>();
        for (const QLabel* const label : labels) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
            texts.append(QString(label->text()).remove(QChar(0x200b)));
        }
        return texts.join(u'\n');
    }

    TemporaryHome mHome;
    platform::PaneProfiles::Import mImport;
    std::unique_ptr<ImportDialog> mDialog;
};

} // namespace

TEST_F(Import, showsWhatIsInTheProfile)
{
    EXPECT_TRUE(QDir().mkpath(mHome.path() + QStringLiteral("/applications")));
    writeFile(mHome.path() + QStringLiteral("/applications/org.example.Paint.desktop"),
        "[Desktop Entry]\nType=Application\nExec=true\nName=Paint\n");
    mImport.changes = QStringList{QStringLiteral("Pressure: 50"), QStringLiteral("Key 1: Ctrl Z")};
    mImport.leftOut = QStringList{QStringLiteral("Key 20")};
    mImport.applications =
        QStringList{QStringLiteral("org.example.Paint"), QStringLiteral("org.example.Gone")};
    open();
    EXPECT_TRUE(labels().contains(QStringLiteral("“Theirs”")));
    EXPECT_EQ(lines(),
        (QStringList{QStringLiteral("It changes:"), QStringLiteral("Pressure: 50"),
            QStringLiteral("Key 1: Ctrl Z"),
            QStringLiteral("Left out, because it does not fit your tablet:"),
            QStringLiteral("Key 20"), QStringLiteral("It is for these applications:"),
            QStringLiteral("Paint"), QStringLiteral("org.example.Gone")}));
    QList<int> headings;
    for (int row = 0; row < list().count(); ++row) {
        if (list().item(row)->font().bold()) {
            headings.append(row);
        }
    }
    EXPECT_EQ(headings, (QList<int>{0, 3, 5}));
    EXPECT_EQ(mDialog->findChildren<QCheckBox*>().size(), 0);
    EXPECT_EQ(mDialog->allowed(), std::vector<bool>());
}

TEST_F(Import, saysThatItChangesNothing)
{
    open();
    EXPECT_EQ(lines(), QStringList{QStringLiteral("It changes nothing.")});
}

TEST_F(Import, letsNoButtonStartAnApplicationUnlessTheUserAllowsIt)
{
    mImport.starts = {{QStringLiteral("Express key 1"), QStringLiteral("/usr/bin/one")},
        {QStringLiteral("Upper pen button"), QStringLiteral("/usr/bin/two")},
        {QStringLiteral("Express key 3"), QStringLiteral("/usr/bin/three")}};
    open();
    EXPECT_EQ(mDialog->allowed(), (std::vector{false, false, false}));
    EXPECT_TRUE(labels().contains(QStringLiteral("Upper pen button\n/usr/bin/two")));
    const auto labels = mDialog->findChild<QScrollArea*>()->findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 3);
    EXPECT_EQ(labels[1]->accessibleName(), QStringLiteral("Upper pen button: /usr/bin/two"));
    const auto boxes = mDialog->findChildren<QCheckBox*>();
    ASSERT_EQ(boxes.size(), 3);
    EXPECT_GT(boxes[1]->y(), labels[1]->geometry().bottom());
    EXPECT_LT(boxes[1]->geometry().bottom(), labels[2]->y());
    EXPECT_EQ(boxes[1]->text(), QStringLiteral("Let this button start it"));
    EXPECT_EQ(boxes[1]->accessibleName(),
        QStringLiteral("Upper pen button: let this button start /usr/bin/two"));
    boxes[1]->click();
    EXPECT_EQ(mDialog->allowed(), (std::vector{false, true, false}));
}

TEST_F(Import, showsThingsLiterallyAndPathsWhole)
{
    const QString path = QStringLiteral("/tmp/<b>") + QString(240, u'x') + QStringLiteral("/sh");
    mImport.name = QStringLiteral("<i>Theirs</i>");
    mImport.changes = QStringList{QStringLiteral("Key 1: \u202eevil\n\u0007")};
    mImport.starts = {{QStringLiteral("Express key 1"), path},
        {QStringLiteral("Express key 2"), QStringLiteral("/bin/\u202elive\nhidden")}};
    open();
    EXPECT_TRUE(labels().contains(QStringLiteral("“<i>Theirs</i>”")));
    EXPECT_EQ(lines().value(1), QStringLiteral("Key 1: \ufffdevil\ufffd\ufffd"));
    EXPECT_TRUE(labels().contains(path));
    EXPECT_TRUE(labels().contains(QStringLiteral("/bin/\ufffdlive\ufffdhidden")));
    // The path wraps instead of being cut off.
    const auto& area = *mDialog->findChild<QScrollArea*>();
    EXPECT_LE(area.widget()->width(), area.viewport()->width());
    const auto labels = area.findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 2);
    EXPECT_GT(labels[0]->height(), 3 * labels[0]->fontMetrics().lineSpacing());
    EXPECT_GE(labels[0]->height(), labels[0]->heightForWidth(labels[0]->width()));
}

TEST_F(Import, isReadAndTakenWithTheKeyboardAlone)
{
    mImport.changes = QStringList{QStringLiteral("Pressure: 50"), QStringLiteral("Key 1: Ctrl Z")};
    open();
    EXPECT_EQ(mDialog->windowTitle(), QStringLiteral("Import Profile"));
    EXPECT_EQ(QApplication::focusWidget(), &list());
    EXPECT_EQ(list().currentRow(), 0);
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_EQ(list().currentRow(), 1);
    EXPECT_TRUE(list().selectedItems().isEmpty()) << "there is nothing to choose";
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(mDialog->result(), QDialog::Accepted);
    EXPECT_FALSE(mDialog->isVisible());
}

TEST_F(Import, isNotTakenAfterCancel)
{
    cancelInEachWay(
        [this] {
            open();
            return mDialog.get();
        },
        [this] {
            EXPECT_FALSE(mDialog->isVisible());
            EXPECT_EQ(mDialog->result(), QDialog::Rejected);
        });
}

TEST_F(Import, hasItsPartsBelowEachOtherWithRoomForTheStarts)
{
    open();
    const int height = mDialog->height();
    mImport.starts = {{QStringLiteral("Express key 1"), QStringLiteral("/usr/bin/one")}};
    open();
    EXPECT_GT(mDialog->height(), height);
    EXPECT_EQ(mDialog->size(),
        mDialog->sizeHint().boundedTo(mDialog->screen()->availableSize() * kMostOfScreen));
    int bottom = -1;
    const auto labels = mDialog->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_EQ(labels.size(), 2);
    auto* const area = mDialog->findChild<QScrollArea*>();
    for (const QWidget* const part : {static_cast<QWidget*>(labels[0]),
             static_cast<QWidget*>(&list()), static_cast<QWidget*>(labels[1]),
             static_cast<QWidget*>(area), button("Import").parentWidget()}) {
        EXPECT_GT(part->y(), bottom);
        EXPECT_EQ(part->width(), labels[0]->width());
        bottom = part->geometry().bottom();
    }
    EXPECT_LT(bottom, mDialog->height());
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
}

TEST_F(Import, wrapsLongLinesAndLongWords)
{
    mImport.changes =
        QStringList{QStringLiteral("Key 1: ") + QString(QStringLiteral("text ")).repeated(60),
            QStringLiteral("Key 2: Open /") + QString(300, u'x')};
    open();
    EXPECT_FALSE(list().horizontalScrollBar()->isVisible());
    for (int row = 1; row <= 2; ++row) {
        EXPECT_EQ(list().item(row)->data(Qt::AccessibleTextRole), mImport.changes[row - 1])
            << "read as it is";
        expectWrapped(list(), row);
    }
}

TEST_F(Import, wrapsLinesBesideItsScrollBar)
{
    for (int i = 0; i < 100; ++i) {
        mImport.changes.append(QString(QStringLiteral("text ")).repeated(20 + i));
    }
    open();
    for (int row = 1; row <= 100; ++row) {
        EXPECT_LE(list().visualItemRect(list().item(row)).width(), list().viewport()->width());
    }
    EXPECT_GT(list().verticalScrollBar()->maximum(), 0);
    EXPECT_FALSE(list().horizontalScrollBar()->isVisible());
}

TEST_F(Import, scrollsWhatIsLong)
{
    for (int i = 0; i < 200; ++i) {
        mImport.changes.append(QStringLiteral("Setting %1: 50").arg(i));
        mImport.starts.push_back({QStringLiteral("Button %1").arg(i), QStringLiteral("/bin/true")});
    }
    open();
    EXPECT_LE(mDialog->height(), 800);
    EXPECT_GT(mDialog->findChild<QListWidget*>()->verticalScrollBar()->maximum(), 0);
    EXPECT_GT(mDialog->findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(mDialog->findChild<QListWidget*>()->horizontalScrollBar()->maximum(), 0);
}
