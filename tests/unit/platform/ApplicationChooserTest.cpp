// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Each test has a process of its own: GLib reads the folders of applications from the environment
// once.

#include "ApplicationChooser.h"

#include "Dialogs.h"
#include "TemporaryHome.h"

#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

const QString kTooLong = QStringLiteral("The path is too long.");

class Chooser : public testing::Test {
protected:
    Chooser()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(mHome.path() + QStringLiteral("/data")));
        qputenv(
            "XDG_DATA_DIRS", QFile::encodeName(mHome.path() + QStringLiteral("/exports/share")));
        qputenv("LANGUAGE", "en");
        qunsetenv("XDG_CURRENT_DESKTOP");
        QDir().mkpath(folder());
    }

    QString folder() const { return mHome.path() + QStringLiteral("/data/applications"); }

    /** Installs an application, and returns its path. */
    QString install(const QString& id, const QByteArray& name, const QByteArray& more = {})
    {
        const QString path = folder() + u'/' + id + QStringLiteral(".desktop");
        writeFile(path,
            "[Desktop Entry]\nType=Application\nExec=/bin/sh -c \"true 'and quotes'\"\nName=" + name
                + '\n' + more + '\n');
        return path;
    }

    void open()
    {
        mChooser = std::make_unique<platform::ApplicationChooser>(
            nullptr,
            [this](const QString& path) { return path == mRefused ? kTooLong : QString(); },
            [this](QWidget* /*parent*/) { return mOtherFile; });
        mChooser->show();
    }

    QString file(const char* name) const { return mHome.path() + u'/' + QString::fromLatin1(name); }

    /** Whether an application with that icon has a blue one. */
    static bool isBlue(const QString& icon)
    {
        platform::Application application;
        application.icon = icon;
        const QPixmap picture = platform::iconOf(application).pixmap(16);
        return !picture.isNull() && picture.toImage().pixelColor(8, 8) == Qt::blue;
    }

    QListView& list() { return *mChooser->findChild<QListView*>(); }
    QLineEdit& search() { return *mChooser->findChild<QLineEdit*>(); }
    QPushButton& other() { return *mChooser->findChild<QPushButton*>(QStringLiteral("otherFile")); }
    QString current() { return list().currentIndex().data(Qt::AccessibleTextRole).toString(); }
    QStringList rows()
    {
        QStringList rows;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            rows.append(list().model()->index(row, 0).data(Qt::AccessibleTextRole).toString());
        }
        return rows;
    }

    TemporaryHome mHome;
    QString mRefused; ///< a path that cannot be used
    std::optional<QString> mOtherFile; ///< what the user chooses as another file
    std::unique_ptr<platform::ApplicationChooser> mChooser;
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

TEST_F(Chooser, listsWhatTheMenuHasByName)
{
    install(QStringLiteral("p"), "paint", "GenericName=Image Editor\nComment=Paints");
    install(QStringLiteral("d"), "Draw", "Comment=Draws lines");
    install(QStringLiteral("h"), "Helper", "NoDisplay=true");
    install(QStringLiteral("z"), "Zoom");
    open();
    EXPECT_EQ(rows(), texts({"Draw, Draws lines", "paint, Image Editor", "Zoom"}));
    EXPECT_EQ(current(), QStringLiteral("Draw, Draws lines")) << "Return chooses it";
}

TEST_F(Chooser, findsEveryWordInNamesAndKeywords)
{
    install(QStringLiteral("p"), "Paint", "Keywords=brush;canvas;");
    install(QStringLiteral("d"), "Draw", "Keywords=canvas;");
    install(QStringLiteral("org.example.Note"), "Text");
    open();
    QTest::keyClicks(&search(), QStringLiteral("CANVAS"));
    EXPECT_EQ(rows(), texts({"Draw", "Paint"}));
    QTest::keyClicks(&search(), QStringLiteral(" pai"));
    EXPECT_EQ(rows(), texts({"Paint"}));
    search().setText(QStringLiteral("example"));
    EXPECT_EQ(rows(), texts({"Text"}));
    search().setText(QStringLiteral("nowhere"));
    EXPECT_EQ(rows(), QStringList());
    QTest::keyClick(&search(), Qt::Key_Return);
    EXPECT_TRUE(mChooser->isVisible()) << "there is nothing to choose";
}

TEST_F(Chooser, choosesWithTheKeyboardFromTheSearchField)
{
    install(QStringLiteral("d"), "Draw");
    const QString paint = install(QStringLiteral("p"), "Paint");
    open();
    QTest::keyClick(&search(), Qt::Key_Down);
    QTest::keyClick(&search(), Qt::Key_Return);
    EXPECT_EQ(mChooser->result(), QDialog::Accepted);
    EXPECT_EQ(mChooser->chosen(), paint);
}

TEST_F(Chooser, pressesTheButtonThatHasTheFocusWithReturn)
{
    install(QStringLiteral("d"), "Draw");
    const auto openActive = [this] {
        open();
        activate(*mChooser);
        return mChooser.get();
    };
    cancelInEachWay(openActive, [this] {
        EXPECT_FALSE(mChooser->isVisible());
        EXPECT_EQ(mChooser->result(), QDialog::Rejected);
    });
    mOtherFile = file("other");
    openActive();
    other().setFocus();
    QTest::keyClick(&other(), Qt::Key_Return);
    EXPECT_EQ(mChooser->chosen(), mOtherFile);
}

TEST_F(Chooser, showsOneThatCannotBeUsedAndSaysWhy)
{
    mRefused = install(QStringLiteral("d"), "Draw", "Comment=Draws lines");
    install(QStringLiteral("p"), "Paint");
    open();
    EXPECT_EQ(rows(), texts({"Draw, The path is too long.", "Paint"}));
    EXPECT_EQ(list().model()->index(0, 0).flags(), Qt::NoItemFlags);
    EXPECT_EQ(current(), QStringLiteral("Paint"));
    search().setText(QStringLiteral("draw"));
    QTest::keyClick(&search(), Qt::Key_Return);
    EXPECT_TRUE(mChooser->isVisible());
}

TEST_F(Chooser, beginsWithTheLastOnes)
{
    install(QStringLiteral("a"), "Archive");
    install(QStringLiteral("d"), "Draw");
    install(QStringLiteral("p"), "Paint");
    mOtherFile = mHome.path() + QStringLiteral("/Sketch.AppImage");
    writeFile(*mOtherFile, "");
    for (const char* const name : {"paint", "draw"}) {
        open();
        search().setText(QString::fromLatin1(name));
        QTest::keyClick(&search(), Qt::Key_Return);
    }
    open();
    other().click();
    EXPECT_EQ(mChooser->chosen(), *mOtherFile);
    open();
    EXPECT_EQ(rows(), texts({"Sketch", "Draw", "Paint", "Archive"}));
    ASSERT_TRUE(QFile::remove(*mOtherFile));
    open();
    EXPECT_EQ(rows(), texts({"Draw", "Paint", "Archive"}));
}

TEST_F(Chooser, staysWhenNoOtherFileIsChosen)
{
    open();
    EXPECT_EQ(rows(), QStringList());
    other().click();
    EXPECT_TRUE(mChooser->isVisible());
    EXPECT_EQ(mChooser->chosen(), QString());
}

TEST_F(Chooser, keepsTheLinkOfASandboxesEntryAndFollowsAnyOther)
{
    const QString exported = mHome.path() + QStringLiteral("/exports/share/applications");
    const QString versions = mHome.path() + QStringLiteral("/versions");
    ASSERT_TRUE(QDir().mkpath(exported) && QDir().mkpath(versions));
    const QString real = versions + QStringLiteral("/org.example.Draw.desktop");
    ASSERT_TRUE(QFile::rename(install(QStringLiteral("d"), "Draw"), real));
    const QString link = exported + QStringLiteral("/org.example.Draw.desktop");
    ASSERT_TRUE(QFile::link(real, link));
    EXPECT_EQ(platform::lastingPath(link), link);
    EXPECT_EQ(platform::lastingPath(real), QFileInfo(real).canonicalFilePath());
    ASSERT_TRUE(QFile::link(real, folder() + QStringLiteral("/own.desktop")));
    EXPECT_EQ(platform::lastingPath(folder() + QStringLiteral("/own.desktop")),
        QFileInfo(real).canonicalFilePath());
    open();
    search().setText(QStringLiteral("org.example"));
    QTest::keyClick(&search(), Qt::Key_Return);
    EXPECT_EQ(mChooser->chosen(), link);
}

TEST_F(Chooser, loadsTheIconOfARowWhenItIsSeen)
{
    QImage blue(32, 32, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    const QString icon = mHome.path() + QStringLiteral("/middle.png");
    for (int i = 0; i < 50; ++i) {
        install(QStringLiteral("a%1").arg(i), "Before");
        install(QStringLiteral("z%1").arg(i), "Last");
    }
    install(QStringLiteral("m"), "Here", "Icon=" + QFile::encodeName(icon));
    open();
    mChooser->grab();
    ASSERT_TRUE(blue.save(icon)) << "after the rest is on screen";
    const QModelIndex here = list().model()->index(50, 0);
    list().scrollTo(here, QListView::PositionAtCenter);
    const QImage seen = list().viewport()->grab().toImage();
    const QRect row = list().visualRect(here);
    EXPECT_EQ(seen.pixelColor(row.topLeft() + QPoint(row.height() / 2, row.height() / 2)),
        QColor(Qt::blue));
}

TEST_F(Chooser, listsTwoThousandOfWhichSomeAreHostile)
{
    const QString large = mHome.path() + QStringLiteral("/large.png");
    writeFile(large, QByteArray(10 << 20, 'x'));
    QImage wide(20000, 2, QImage::Format_Mono);
    wide.fill(0);
    ASSERT_TRUE(wide.save(mHome.path() + QStringLiteral("/wide.png")));
    const QByteArray home = QFile::encodeName(mHome.path());
    install(QStringLiteral("h1"), "!1\\n\\n\\nlines", "Icon=" + home + "/large.png");
    install(QStringLiteral("h2"),
        "!2 \xe2\x80\xae"
        "turned",
        "Icon=" + home + "/wide.png");
    install(QStringLiteral("h3"), "!3" + QByteArray(100000, 'x'), "Icon=/dev/zero");
    install(QStringLiteral("h4"), "!4 <b>bold</b> &amp;", "Icon=../../../etc/passwd");
    install(QStringLiteral("h5"), "!5\xff\xfe", "Icon=/");
    install(QStringLiteral("h6"), "", "Comment=no name\nIcon=\n");
    writeFile(folder() + QStringLiteral("/h7.desktop"), "[Desktop Entry]\nExec=\"unfinished\n");
    writeFile(folder() + QStringLiteral("/h8.desktop"), QByteArray(1 << 20, '['));
    for (int i = 0; i < 1990; ++i) {
        install(QStringLiteral("a%1").arg(i), "Application " + QByteArray::number(i));
    }
    open();
    mChooser->grab();
    const QStringList all = rows();
    EXPECT_GE(all.size(), 1994);
    for (const QString& row : all) {
        EXPECT_LE(row.size(), 202);
        for (const QChar character : row) {
            EXPECT_NE(character.category(), QChar::Other_Control) << qPrintable(row);
            EXPECT_NE(character.category(), QChar::Other_Format) << qPrintable(row);
        }
    }
    EXPECT_TRUE(all.contains(QStringLiteral("!1 lines")));
    QTest::keyClicks(&search(), QStringLiteral("application 1989"));
    EXPECT_EQ(rows(), texts({"Application 1989"}));
}

TEST_F(Chooser, readsNoEntryThatIsTooLargeToBeOne)
{
    const QString draw =
        install(QStringLiteral("d"), "Draw", '#' + QByteArray(2 * 1024 * 1024, 'x'));
    EXPECT_EQ(platform::applicationAt(draw).name, QStringLiteral("d"));
}

TEST_F(Chooser, drawsNoDrawingThatMayTakeLong)
{
    if (!QImageReader::supportedImageFormats().contains("svg")) {
        GTEST_SKIP() << "this Qt draws none";
    }
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='32' height='32'>"
                               "<rect width='32' height='32' fill='#00f'/>";
    const QByteArray end = "</svg>";
    writeFile(file("icon.svg"), drawing + end);
    writeFile(file("large.svg"), drawing + "<!--" + QByteArray(300000, 'x') + "-->" + end);
    QProcess gzip;
    gzip.start(QStringLiteral("gzip"), {QStringLiteral("--keep"), file("icon.svg")});
    ASSERT_TRUE(gzip.waitForFinished());
    ASSERT_TRUE(QFile::copy(file("icon.svg.gz"), file("icon.svgz")));
    ASSERT_TRUE(QFile::rename(file("icon.svg.gz"), file("packed.svg")));
    EXPECT_TRUE(isBlue(file("icon.svg")));
    EXPECT_FALSE(isBlue(file("large.svg")));
    EXPECT_FALSE(isBlue(file("icon.svgz")));
    EXPECT_FALSE(isBlue(file("packed.svg")));
}

TEST_F(Chooser, looksForAnIconsNameInTheThemeOnly)
{
    const QString theme = file("icons/hicolor");
    ASSERT_TRUE(QDir().mkpath(theme + QStringLiteral("/32x32/apps")));
    writeFile(theme + QStringLiteral("/index.theme"),
        "[Icon Theme]\nName=hicolor\nDirectories=32x32/apps\n[32x32/apps]\nSize=32\n");
    QImage blue(32, 32, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    ASSERT_TRUE(blue.save(theme + QStringLiteral("/32x32/apps/draw.png")));
    ASSERT_TRUE(blue.save(file("outside.png")));
    QIcon::setThemeSearchPaths({file("icons")});
    QIcon::setThemeName(QStringLiteral("hicolor"));
    EXPECT_TRUE(isBlue(QStringLiteral("draw")));
    EXPECT_FALSE(isBlue(QStringLiteral("../../../../outside")));
}

TEST_F(Chooser, tellsAnApplicationsNameFromItsEntryOrItsFile)
{
    const QString draw =
        install(QStringLiteral("d"), "Draw", "Comment=Draws lines\nIcon=draw-icon");
    const platform::Application application = platform::applicationAt(draw);
    EXPECT_EQ(application.name, QStringLiteral("Draw"));
    EXPECT_EQ(application.icon, QStringLiteral("draw-icon"));
    EXPECT_EQ(application.path, draw);
    EXPECT_EQ(platform::applicationAt(QStringLiteral("/opt/Sketch-1.2.AppImage")).name,
        QStringLiteral("Sketch-1.2"));
    EXPECT_EQ(
        platform::applicationAt(QStringLiteral("/gone.desktop")).name, QStringLiteral("gone"));
    writeFile(draw, "nothing");
    EXPECT_EQ(platform::applicationAt(draw).name, QStringLiteral("d"));
}
