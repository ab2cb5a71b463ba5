// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletSurface.h"

#include "Contrast.h"
#include "Wait.h"

#include <QImage>
#include <QMouseEvent>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class Surface : public testing::Test {
protected:
    Surface()
    {
        mSurface.setTablet({0, 20000, 0, 10000});
        mSurface.resize(206, 106); // the surface is 200 by 100, from (3, 3)
        QObject::connect(
            &mSurface, &TabletSurface::penDown, [this](ushort x, ushort y) { note("down", x, y); });
        QObject::connect(&mSurface, &TabletSurface::penDragged,
            [this](ushort x, ushort y) { note("to", x, y); });
        QObject::connect(&mSurface, &TabletSurface::penUp, [this] { mTold.emplace_back("up"); });
        mSurface.show();
        mSurface.activateWindow();
        mSurface.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mSurface, kPatience));
    }

    void note(const char* what, ushort x, ushort y)
    {
        mTold.push_back(std::string(what) + ' ' + std::to_string(x) + ' ' + std::to_string(y));
    }

    /** Moves the mouse with its button pressed; QTest only moves it within the widget. */
    void drag(const QPoint& to)
    {
        QMouseEvent event(QEvent::MouseMove, QPointF(to), QPointF(mSurface.mapToGlobal(to)),
            Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&mSurface, &event);
    }

    /** The signals since the last call. */
    std::vector<std::string> told() { return std::exchange(mTold, {}); }

    void expectPen(int x, int y)
    {
        EXPECT_EQ(mSurface.pen().x, x);
        EXPECT_EQ(mSurface.pen().y, y);
    }

    using Words = std::vector<std::string>;

    QWidget mOther; ///< takes the focus away
    TabletSurface mSurface{nullptr};
    std::vector<std::string> mTold;
};

} // namespace

TEST_F(Surface, thePenFollowsTheMouseAndTouchesWhileItIsPressed)
{
    QTest::mouseMove(&mSurface, {53, 53});
    expectPen(5000, 5000);
    EXPECT_EQ(told(), Words{});
    QTest::mousePress(&mSurface, Qt::LeftButton, {}, {53, 53});
    QTest::mouseMove(&mSurface, {103, 23});
    QTest::mouseMove(&mSurface, {103, 23});
    QTest::mouseRelease(&mSurface, Qt::LeftButton, {}, {103, 23});
    QTest::mouseMove(&mSurface, {13, 13});
    EXPECT_EQ(told(), (Words{"down 5000 5000", "to 10000 2000", "up"}));
}

TEST_F(Surface, asksForNoMoreThanASquareWhateverItsProportions)
{
    EXPECT_EQ(mSurface.sizeHint(), QSize(480, 240));
    EXPECT_EQ(mSurface.minimumSizeHint(), QSize(160, 80));
    for (const QVTabletArea& range : {QVTabletArea{0, 1, 0, 65535}, {0, 65535, 0, 1}}) {
        mSurface.setRange(range);
        const QSize size = mSurface.sizeHint();
        EXPECT_EQ(size.boundedTo({480, 480}), size) << size.width() << ' ' << size.height();
        EXPECT_EQ(size.expandedTo({60, 60}), size) << size.width() << ' ' << size.height();
    }
}

TEST_F(Surface, aDragBeyondTheEdgeSlidesAlongIt)
{
    QTest::mousePress(&mSurface, Qt::LeftButton, {}, {103, 53});
    drag({900, 53});
    drag({900, -50});
    QTest::mouseRelease(&mSurface, Qt::LeftButton, {}, {-50, 900});
    EXPECT_EQ(
        told(), (Words{"down 10000 5000", "to 20000 5000", "to 20000 0", "to 0 10000", "up"}));
}

TEST_F(Surface, noPressBesideTheSurfaceAndNoOtherButtonTouches)
{
    mSurface.resize(206, 206); // the surface begins at y = 53
    QTest::mouseClick(&mSurface, Qt::LeftButton, {}, {103, 20});
    QTest::mouseClick(&mSurface, Qt::RightButton, {}, {103, 103});
    QTest::mouseClick(&mSurface, Qt::MiddleButton, {}, {103, 103});
    EXPECT_EQ(told(), Words{});
}

TEST_F(Surface, theKeyboardAloneDoesIt)
{
    expectPen(10000, 5000);
    QTest::keyClick(&mSurface, Qt::Key_Left);
    QTest::keyClick(&mSurface, Qt::Key_Up, Qt::ShiftModifier);
    expectPen(9800, 3000);
    QTest::keyPress(&mSurface, Qt::Key_Space);
    QTest::keyClick(&mSurface, Qt::Key_Right);
    QTest::keyClick(&mSurface, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyRelease(&mSurface, Qt::Key_Space);
    EXPECT_EQ(told(), (Words{"down 9800 3000", "to 10000 3000", "to 10000 5000", "up"}));
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(&mSurface, Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(&mSurface, Qt::Key_Up, Qt::ShiftModifier);
    }
    expectPen(0, 0);
}

TEST_F(Surface, aSpaceBarThatRepeatsIsHeld)
{
    const auto repeat = [this](QEvent::Type type) {
        QKeyEvent event(type, Qt::Key_Space, {}, QStringLiteral(" "), true);
        QCoreApplication::sendEvent(&mSurface, &event);
    };
    QTest::keyPress(&mSurface, Qt::Key_Space);
    for (int i = 0; i < 3; ++i) {
        repeat(QEvent::KeyRelease);
        repeat(QEvent::KeyPress);
    }
    EXPECT_EQ(told(), (Words{"down 10000 5000"}));
    QTest::keyRelease(&mSurface, Qt::Key_Space);
    EXPECT_EQ(told(), (Words{"up"}));
}

TEST_F(Surface, mouseAndSpaceBarDoNotTakeThePenFromEachOther)
{
    QTest::keyPress(&mSurface, Qt::Key_Space);
    QTest::mouseMove(&mSurface, {53, 53});
    QTest::mouseClick(&mSurface, Qt::LeftButton, {}, {53, 53});
    EXPECT_EQ(told(), (Words{"down 10000 5000"}));
    QTest::keyRelease(&mSurface, Qt::Key_Space);
    EXPECT_EQ(told(), (Words{"up"}));
    QTest::mousePress(&mSurface, Qt::LeftButton, {}, {53, 53});
    QTest::keyClick(&mSurface, Qt::Key_Space);
    QTest::keyClick(&mSurface, Qt::Key_Left);
    EXPECT_EQ(told(), (Words{"down 5000 5000"}));
}

TEST_F(Surface, thePenIsLiftedWhereItsHolderIsLost)
{
    QTest::keyPress(&mSurface, Qt::Key_Space);
    mSurface.clearFocus();
    EXPECT_EQ(told(), (Words{"down 10000 5000", "up"}));
    QTest::mousePress(&mSurface, Qt::LeftButton, {}, {53, 53});
    mSurface.hide();
    EXPECT_EQ(told(), (Words{"down 5000 5000", "up"}));
}

TEST_F(Surface, aTabletThatIsTakenAwayReportsNoLift)
{
    QTest::mousePress(&mSurface, Qt::LeftButton, {}, {53, 53});
    mSurface.setTablet({0, 300, 0, 200});
    EXPECT_FALSE(mSurface.isPenDown());
    QTest::mouseRelease(&mSurface, Qt::LeftButton, {}, {53, 53});
    EXPECT_EQ(told(), (Words{"down 5000 5000"}));
}

TEST_F(Surface, isShownAPenThatMovesElsewhereButNotWhileItIsHeldHere)
{
    mSurface.showPen({5, 6});
    expectPen(5, 6);
    QTest::keyPress(&mSurface, Qt::Key_Space);
    mSurface.showPen({7, 8});
    expectPen(5, 6);
}

TEST_F(Surface, anotherRangeKeepsThePenWithinIt)
{
    mSurface.showPen({19000, 100});
    mSurface.setRange({1000, 5000, 500, 2500});
    expectPen(5000, 500);
}

TEST_F(Surface, drawsPenAndFrameInTheColoursOfTheTheme)
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(20, 20, 30));
    palette.setColor(QPalette::Text, QColor(250, 250, 250));
    mSurface.setPalette(palette);
    mSurface.clearFocus();
    mSurface.setMapped(QVTabletArea{2000, 8000, 2000, 8000});
    mSurface.showPen({15000, 5000});
    const auto colorAt = [](const QImage& image, double x, double y) {
        const double density = image.devicePixelRatio();
        return image.pixelColor(static_cast<int>(x * density), static_cast<int>(y * density));
    };
    QImage image = mSurface.grab().toImage();
    EXPECT_EQ(colorAt(image, 190, 20), QColor(20, 20, 30));
    EXPECT_GT(colorAt(image, 23.5, 60).red(), 200); // the frame's left edge
    EXPECT_GT(colorAt(image, 82.5, 60).red(), 200); // and its right one
    EXPECT_GT(colorAt(image, 153, 20).red(), 80); // the cross
    EXPECT_GT(colorAt(image, 190, 53).red(), 80);
    EXPECT_EQ(colorAt(image, 156, 50), QColor(20, 20, 30)); // within the ring
    QTest::keyPress(&mSurface, Qt::Key_Space);
    image = mSurface.grab().toImage();
    EXPECT_EQ(colorAt(image, 156, 50), QColor(250, 250, 250));
}

TEST_F(Surface, drawsLinesThatStandApartInEveryTheme)
{
    mSurface.setMapped(QVTabletArea{2000, 8000, 2000, 8000});
    mSurface.showPen({15000, 5000});
    for (const Theme& theme : kThemes) {
        SCOPED_TRACE(theme.name);
        mSurface.setPalette(theme.palette());
        mSurface.setFocus();
        const QImage image = mSurface.grab().toImage();
        const double density = image.devicePixelRatio();
        const auto contrast = [&image, density](double x1, double y1, double x2, double y2) {
            const auto at = [&image, density](double x, double y) {
                return image.pixelColor(
                    static_cast<int>(x * density), static_cast<int>(y * density));
            };
            return contrastRatio(at(x1, y1), at(x2, y2));
        };
        EXPECT_GE(contrast(100, 3.5, 100, 8), kGraphicsContrast) << "the tablet's edge";
        EXPECT_GE(contrast(24, 60, 12, 60), kGraphicsContrast) << "the frame, from outside";
        EXPECT_GE(contrast(24, 60, 40, 60), kGraphicsContrast) << "and from inside";
        EXPECT_GE(contrast(153.5, 20, 160, 20), kGraphicsContrast) << "the cross";
        EXPECT_GE(contrast(153.5, 47, 160, 20), kGraphicsContrast) << "the ring";
        mSurface.clearFocus();
        const QImage without = mSurface.grab().toImage();
        const int edge = static_cast<int>(1.5 * density);
        EXPECT_GE(contrastRatio(image.pixelColor(image.width() / 2, edge),
                      without.pixelColor(image.width() / 2, edge)),
            kGraphicsContrast)
            << "the focus";
    }
}

TEST_F(Surface, saysInWordsWhereThePenIs)
{
    QAccessibleInterface& interface = *QAccessible::queryAccessibleInterface(&mSurface);
    EXPECT_EQ(interface.role(), QAccessible::Canvas);
    mSurface.showPen({15000, 5000});
    const auto words = [&interface] { return interface.text(QAccessible::Description); };
    EXPECT_TRUE(words().endsWith(QStringLiteral(" The pen is up at 15000, 5000.")));
    QTest::keyPress(&mSurface, Qt::Key_Space);
    EXPECT_TRUE(words().endsWith(QStringLiteral(" The pen is down at 15000, 5000.")));
}
