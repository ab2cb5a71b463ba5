// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "DisplaySigns.h"

#include "FakeDisplays.h"
#include "Wait.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class Signs : public testing::Test {
protected:
    void show(const QString& text = QStringLiteral("Acme A1, 1920 × 1080 pixels"))
    {
        mSigns.show({{mDisplays.activeDisplays()->front(), QStringLiteral("1"), text,
            QStringLiteral("Display #1: Acme A1")}});
    }

    /** The visible sign; null if there is none. */
    static QWidget* sign()
    {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget* const window : windows) {
            if (window->isVisible()
                && window->windowTitle() == QLatin1String("Display #1: Acme A1")) {
                return window;
            }
        }
        return nullptr;
    }

    FakeDisplays mDisplays{{{0, 0, 800, 600}}};
    platform::DisplaySigns mSigns;
};

} // namespace

TEST_F(Signs, standInTheMiddleOfTheirDisplayAndTakeNoInput)
{
    show();
    ASSERT_NE(sign(), nullptr);
    EXPECT_TRUE(sign()->windowFlags().testFlag(Qt::WindowTransparentForInput));
    EXPECT_TRUE(sign()->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_TRUE(screen.contains(sign()->geometry()));
    EXPECT_LE((sign()->geometry().center() - screen.center()).manhattanLength(), 2);
    const auto labels = sign()->findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 2);
    EXPECT_EQ(labels[0]->text(), QStringLiteral("1"));
    EXPECT_EQ(labels[1]->text(), QStringLiteral("Acme A1, 1920 × 1080 pixels"));
    EXPECT_GE(labels[0]->height(), screen.height() / 4) << "readable from afar";
}

TEST_F(Signs, fitHoweverLongANameIs)
{
    show(QString(10000, u'W'));
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(sign()->geometry()));
}

TEST_F(Signs, goAfterThreeSeconds)
{
    QElapsedTimer timer;
    timer.start();
    show();
    EXPECT_TRUE(QTest::qWaitFor([] { return sign() == nullptr; }, kPatience));
    EXPECT_GE(timer.elapsed(), 2800); // Qt lets its timers be 5 % early
    EXPECT_FALSE(mSigns.areShown());
}

TEST_F(Signs, goWithEscapeWhichDoesNothingElse)
{
    QWidget window;
    window.show();
    show();
    QTest::keyClick(&window, Qt::Key_A);
    EXPECT_NE(sign(), nullptr);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(sign(), nullptr);
}

TEST_F(Signs, goWhenTheDisplaysChange)
{
    show();
    mDisplays.change({{0, 0, 1024, 768}});
    EXPECT_EQ(sign(), nullptr);
}

TEST_F(Signs, areNotShownOnADisplayThatIsGone)
{
    mSigns.show({{12345, QStringLiteral("1"), QString(), QString()}});
    EXPECT_FALSE(mSigns.areShown());
}
