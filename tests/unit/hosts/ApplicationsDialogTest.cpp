// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ApplicationsDialog.h"

#include "Dialogs.h"
#include "OpenPanel.h"
#include "Service.h"
#include "TemporaryHome.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace {

/** An open panel in which the user has chosen already. */
class ChosenPanel final : public platform::OpenPanel {
public:
    std::optional<QString> chooseApplication(
        QWidget* /*parent*/, const Refusal& /*refusal*/) override
    {
        if (whileOpen) {
            whileOpen();
        }
        return path;
    }

    std::optional<QString> path;
    std::function<void()> whileOpen;
};

class Applications : public testing::Test {
protected:
    Applications()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(mHome.path()));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(mHome.path()));
        qputenv("LANGUAGE", "en");
        EXPECT_TRUE(QDir().mkpath(mHome.path() + QStringLiteral("/applications")));
        install("org.example.Paint", "Paint");
        install("org.example.Draw", "Draw");
    }

    QString entry(const char* id) const
    {
        return mHome.path() + QStringLiteral("/applications/") + QString::fromLatin1(id)
            + QStringLiteral(".desktop");
    }
    void install(const char* id, const QByteArray& name)
    {
        writeFile(entry(id), "[Desktop Entry]\nType=Application\nExec=true\nName=" + name + "\n");
    }

    void open(const QStringList& ids, const QString& profile = QStringLiteral("Painting"))
    {
        mDialog = std::make_unique<ApplicationsDialog>(profile, ids, nullptr);
        mDialog->show();
        activate(*mDialog);
    }
    QListWidget& list() { return *mDialog->findChild<QListWidget*>(); }
    QStringList names()
    {
        QStringList names;
        for (int row = 0; row < list().count(); ++row) {
            names.append(list().item(row)->text());
        }
        return names;
    }
    QPushButton& button(const char* text) { return buttonOf(*mDialog, text); }
    /** Adds what the user chooses in the panel. */
    void add(const QString& path)
    {
        mPanel.path = path;
        button("Add…").click();
    }

    TemporaryHome mHome;
    ChosenPanel mPanel;
    platform::ServiceScope<platform::OpenPanel> mScope{mPanel};
    std::unique_ptr<ApplicationsDialog> mDialog;
};

QStringList texts(std::initializer_list<const char*> names)
{
    QStringList list;
    for (const char* const name : names) {
        list.append(QString::fromUtf8(name));
    }
    return list;
}

} // namespace

TEST_F(Applications, haveTheirNames)
{
    open(texts({"org.example.Draw", "org.example.Gone", "org.example.Paint"}));
    EXPECT_EQ(names(), texts({"Draw", "org.example.Gone", "Paint"}));
    EXPECT_EQ(mDialog->applications(),
        texts({"org.example.Draw", "org.example.Gone", "org.example.Paint"}));
    EXPECT_EQ(list().item(0)->toolTip(), QStringLiteral("<span>org.example.Draw</span>"));
}

TEST_F(Applications, areAddedByTheirDesktopEntryOrTheirFile)
{
    open({});
    EXPECT_FALSE(button("Remove").isEnabled());
    add(entry("org.example.Paint"));
    EXPECT_TRUE(button("Remove").isEnabled());
    add(mHome.path() + QStringLiteral("/Sketch 1.2.AppImage"));
    EXPECT_EQ(names(), texts({"Paint", "Sketch 1.2"}));
    EXPECT_EQ(mDialog->applications(), texts({"org.example.Paint", "Sketch 1.2.AppImage"}));
    add(entry("org.example.Paint"));
    EXPECT_EQ(mDialog->applications().size(), 2) << "it is there";
    EXPECT_EQ(list().currentRow(), 0);
}

TEST_F(Applications, stayAsTheyAreWhenNoneIsChosen)
{
    open(texts({"org.example.Paint"}));
    button("Add…").click();
    EXPECT_EQ(names(), texts({"Paint"}));
}

TEST_F(Applications, areRemoved)
{
    open(texts({"org.example.Draw", "org.example.Paint"}));
    list().setCurrentRow(1);
    button("Remove").click();
    EXPECT_EQ(mDialog->applications(), texts({"org.example.Draw"}));
    button("Remove").click();
    EXPECT_EQ(mDialog->applications(), QStringList());
    EXPECT_FALSE(button("Remove").isEnabled());
}

TEST_F(Applications, areThoseOfTheProfileInTheText)
{
    const QString profile = QStringLiteral("<b>Ink</b> & wash");
    open(texts({"org.example.Draw"}), profile);
    EXPECT_EQ(mDialog->windowTitle(), QStringLiteral("Applications of the Profile"));
    const auto& label = *mDialog->findChild<QLabel*>();
    EXPECT_TRUE(label.text().contains(profile));
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_GE(label.height(), 2 * label.fontMetrics().lineSpacing()) << "it wraps";
    EXPECT_GE(label.height(), label.heightForWidth(label.width()));
    EXPECT_LT(label.geometry().bottom(), list().y());
}

TEST_F(Applications, canBeChangedWithTheKeyboardAlone)
{
    open(texts({"org.example.Draw", "org.example.Paint"}));
    EXPECT_EQ(QApplication::focusWidget(), &list());
    EXPECT_EQ(list().currentRow(), 0);
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_EQ(list().currentRow(), 1);
    for (const char* const text : {"Add…", "Remove"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &button(text));
    }
    QTest::keyClick(&button("Remove"), Qt::Key_Return);
    EXPECT_TRUE(mDialog->isVisible());
    EXPECT_EQ(mDialog->applications(), texts({"org.example.Draw"}));
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(mDialog->result(), QDialog::Accepted);
    EXPECT_FALSE(mDialog->isVisible());
}

TEST_F(Applications, stayAsTheyWereAfterCancel)
{
    cancelInEachWay(
        [this] {
            open(texts({"org.example.Draw"}));
            return mDialog.get();
        },
        [this] {
            EXPECT_FALSE(mDialog->isVisible());
            EXPECT_EQ(mDialog->result(), QDialog::Rejected);
        });
}

TEST_F(Applications, haveRoomForSeveralAndForLongNames)
{
    const QString name(300, u'n');
    install("org.example.Long", name.toUtf8());
    open(texts({"org.example.Draw", "org.example.Long", "org.example.Paint"}));
    EXPECT_EQ(list().verticalScrollBar()->maximum(), 0);
    EXPECT_FALSE(list().horizontalScrollBar()->isVisible());
    EXPECT_EQ(list().iconSize(), QSize(32, 32)) << "a size that themes have";
    EXPECT_GE(mDialog->sizeHint().width(), 60 * mDialog->fontMetrics().averageCharWidth());
    EXPECT_LT(list().geometry().bottom(), button("Add…").y());
    EXPECT_EQ(button("Add…").y(), button("Remove").y());
    EXPECT_LT(button("Remove").x(), mDialog->width() / 2) << "both are on the left";
    const QPoint corner = button("OK").mapTo(mDialog.get(), QPoint(0, 0));
    EXPECT_GT(corner.y(), button("Add…").geometry().bottom());
    // A long name is shown with its beginning and its end.
    const auto drawn = [this](const QString& text) {
        list().item(1)->setText(text);
        return list().grab().toImage();
    };
    const QImage before = drawn(name);
    EXPECT_NE(drawn(QString(name).replace(0, 1, u'O')), before);
    EXPECT_NE(drawn(QString(name).replace(299, 1, u'O')), before);
    QFont large = mDialog->font();
    large.setPointSize(3 * QFontInfo(large).pointSize());
    mDialog->setFont(large);
    EXPECT_GE(mDialog->sizeHint().height(), 18 * mDialog->fontMetrics().lineSpacing());
}

TEST_F(Applications, mayGoWhileOneIsChosen)
{
    open({});
    mPanel.whileOpen = [this] { mDialog.reset(); };
    add(entry("org.example.Paint"));
    EXPECT_EQ(mDialog, nullptr);
}
