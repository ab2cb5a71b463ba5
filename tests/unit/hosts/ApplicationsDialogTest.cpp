// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ApplicationsDialog.h"

#include "OpenPanel.h"
#include "Service.h"
#include "TemporaryHome.h"

#include <QListWidget>
#include <QPushButton>

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

    void open(const QStringList& ids)
    {
        mDialog = std::make_unique<ApplicationsDialog>(QStringLiteral("Painting"), ids, nullptr);
        mDialog->show();
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
    QPushButton& button(const char* text)
    {
        const auto buttons = mDialog->findChildren<QPushButton*>();
        for (QPushButton* const button : buttons) {
            if (QString(button->text()).remove(u'&') == QString::fromUtf8(text)) {
                return *button;
            }
        }
        ADD_FAILURE() << "there is no button " << text;
        return *buttons.constFirst();
    }
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

TEST_F(Applications, mayGoWhileOneIsChosen)
{
    open({});
    mPanel.whileOpen = [this] { mDialog.reset(); };
    add(entry("org.example.Paint"));
    EXPECT_EQ(mDialog, nullptr);
}
