// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Mapping.h"

#include "DisplayReport.h"
#include "KWinMapping.h"

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

namespace {

DesktopDisplay display(const QRectF& bounds, int turns = 0)
{
    return {QStringLiteral("DP-%1").arg(bounds.x()), bounds, turns};
}

/** A main display with one to its left, higher up, and one to its right. */
const Desktop kThree{
    display({0, 0, 1920, 1080}), display({-1280, -200, 1280, 1024}), display({1920, 0, 1536, 864})};

/** What KWin 5.27 tells of a pen, as far as it matters. */
QVariantMap kwin5(const QString& output = {}, const QRectF& area = {0, 0, 1, 1})
{
    return {{QStringLiteral("outputName"), output}, {QStringLiteral("outputArea"), area},
        {QStringLiteral("leftHanded"), false}};
}

/** The same of KWin 6. */
QVariantMap kwin6(bool isMapped = false)
{
    QVariantMap present = kwin5();
    present.insert(QStringLiteral("mapToWorkspace"), isMapped);
    present.insert(QStringLiteral("inputArea"), QRectF(0, 0, 1, 1));
    present.insert(QStringLiteral("orientationDBus"), 0);
    present.insert(QStringLiteral("rotation"), 0U);
    present.insert(QStringLiteral("tabletToolIsRelative"), false);
    present.insert(QStringLiteral("pressureRangeMin"), 0.0);
    present.insert(QStringLiteral("pressureRangeMax"), 1.0);
    present.insert(QStringLiteral("pressureCurve"), QStringLiteral("0,0;1,1;"));
    present.insert(QStringLiteral("defaultPressureCurve"), QStringLiteral("0,0;1,1;"));
    return present;
}

/** What KWin 6 has for kThree in the end. */
QVariantMap mapped6()
{
    QVariantMap present = kwin6(true);
    present.insert(QStringLiteral("outputArea"),
        kwinSettings(present, kThree).changes.value(QStringLiteral("outputArea")));
    return present;
}

/**
 * Where KWin 5 puts a place of the pen's range that the pipeline has given it: turned, then on the
 * area of the output before its rotation, then rotated with the output.
 */
QPointF kwin5Place(QPointF range, const QRectF& area, const DesktopDisplay& output)
{
    const QRectF& bounds = output.bounds;
    const bool isUpright = output.turns % 2 == 0;
    const double width = isUpright ? bounds.width() : bounds.height();
    const double height = isUpright ? bounds.height() : bounds.width();
    const QPointF place(width * (area.x() + area.width() * range.x()),
        height * (area.y() + area.height() * range.y()));
    switch (output.turns) {
    case 1:
        return bounds.topLeft() + QPointF(height - place.y(), place.x());
    case 2:
        return bounds.topLeft() + QPointF(width - place.x(), height - place.y());
    case 3:
        return bounds.topLeft() + QPointF(place.y(), width - place.x());
    default:
        return bounds.topLeft() + place;
    }
}

/** As PenPipeline does it. */
QPointF turnedBack(QPointF place, int turns)
{
    for (int turn = 0; turn < turns; ++turn) {
        place = {place.y(), 1 - place.x()};
    }
    return place;
}

} // namespace

TEST(Mapping, theDesktopIsTheRectangleAroundAllDisplays)
{
    EXPECT_TRUE(boundsOf({}).isEmpty());
    EXPECT_EQ(boundsOf(kThree), QRectF(-1280, -200, 1280 + 1920 + 1536, 1280));
}

TEST(Mapping, anAreaIsAPartOfTheRange)
{
    const QRectF all(-1000, 0, 2000, 1000);
    // In points: the area up to the beginning of its last ones.
    const auto target = [&](const QRectF& area) {
        const TabletRect part = targetOf(area, {{display(all)}, all});
        return QRectF(QPointF(all.left() + part.left * all.width(), part.top * all.height()),
            QPointF(all.left() + part.right * all.width() + 0.9, part.bottom * all.height() + 0.9));
    };
    for (const QRectF& area : {all, QRectF(0, 0, 1000, 500), QRectF(-1000, 500, 1000, 500)}) {
        EXPECT_EQ(target(area), area);
    }
    EXPECT_EQ(target({500, 500, 1000, 1000}), QRectF(500, 500, 500, 500))
        << "what is off the desktop cannot be reached";
}

TEST(Mapping, thePenCoversWhatIsOnNoDisplayToo)
{
    // The left one of two displays is off, and the other has kept its place on the X screen.
    const DesktopReport desktop{{display({0, 0, 1000, 500})}, {-1000, -100, 2000, 1000}};
    const TabletRect part = targetOf({0, 0, 1000, 500}, desktop);
    EXPECT_DOUBLE_EQ(part.left, 0.5);
    EXPECT_DOUBLE_EQ(part.top, 0.1);
    EXPECT_DOUBLE_EQ(part.right, (2000 - 0.9) / 2000);
    EXPECT_DOUBLE_EQ(part.bottom, (600 - 0.9) / 1000);
}

TEST(Mapping, withoutADesktopOrAnAreaOnItTheTabletReachesAllOfIt)
{
    const TabletRect all{0, 0, 1, 1};
    EXPECT_EQ(targetOf({0, 0, 100, 100}, {}), all);
    const DesktopReport desktop{
        {display({0, 0, 100, 100}), display({200, 0, 100, 100})}, {0, 0, 300, 100}};
    EXPECT_EQ(targetOf({}, desktop), all);
    EXPECT_EQ(targetOf({300, 0, 100, 100}, desktop), all) << "its display is gone";
    EXPECT_EQ(targetOf({100, 0, 100, 100}, desktop), all) << "it was between those that are left";
    EXPECT_NE(targetOf({50, 0, 100, 100}, desktop), all) << "half of it is on a display";
    EXPECT_EQ(targetOf({0, 0, 0.9, 100}, desktop), all) << "no place of the pen is on it";
    EXPECT_EQ(targetOf({0, 0, 100, 0.9}, desktop), all);
}

TEST(Mapping, anAreaOnNoDisplayIsAllDisplaysOfALargerScreen)
{
    const DesktopReport desktop{{display({0, 0, 1000, 500})}, {0, 0, 2000, 1000}};
    EXPECT_EQ(targetOf({3000, 0, 10, 10}, desktop), targetOf({0, 0, 1000, 500}, desktop));
    EXPECT_EQ(targetOf({}, desktop), targetOf({0, 0, 1000, 500}, desktop));
}

TEST(Mapping, anAreaThatThePenDoesNotCoverIsReachedWithAllOfIt)
{
    const DesktopReport desktop{{display({1000, 0, 1000, 500})}, {0, 0, 1000, 500}};
    EXPECT_EQ(targetOf({1000, 0, 1000, 500}, desktop), (TabletRect{0, 0, 1, 1}));
}

TEST(Mapping, aDisplayIsFoundByItsBoundsWhateverElseChanges)
{
    EXPECT_EQ(displayAt(kThree, {1920, 0, 1536, 864}), 2U);
    EXPECT_EQ(displayAt({kThree[2], kThree[0]}, {1920, 0, 1536, 864}), 0U);
    EXPECT_EQ(displayAt({display({0, 0, 1920.5, 1080})}, {0, 0, 1920, 1080}), 0U);
    EXPECT_EQ(displayAt({display({1, -1, 1921, 1079})}, {0, 0, 1920, 1080}), 0U);
    EXPECT_FALSE(displayAt({display({2, 0, 1920, 1080})}, {0, 0, 1920, 1080}));
    EXPECT_FALSE(displayAt({kThree[0], kThree[1]}, {1920, 0, 1536, 864}));
    EXPECT_FALSE(displayAt(kThree, boundsOf(kThree)));
    EXPECT_FALSE(displayAt({}, {0, 0, 1920, 1080}));
}

TEST(Mapping, theNextDisplayIsThatAfterTheOneInUse)
{
    EXPECT_EQ(displayAfter(kThree, {0, 0, 1920, 1080}), 1U);
    EXPECT_EQ(displayAfter(kThree, {-1280, -200, 1280, 1024}), 2U);
    EXPECT_EQ(displayAfter(kThree, {1920, 0, 1536, 864}), 0U);
    EXPECT_EQ(displayAfter(kThree, boundsOf(kThree)), 0U) << "of all together, the first";
    EXPECT_EQ(displayAfter(kThree, {}), 0U);
    EXPECT_EQ(displayAfter({display({0, 0, 1920.5, 1080})}, {0, 0, 1920, 1080}), 0U)
        << "the only one, with a fraction of a point";
    EXPECT_EQ(displayAfter({kThree[0], kThree[0], kThree[0], kThree[2]}, {0, 0, 1920, 1080}), 3U)
        << "two others show the same";
    EXPECT_EQ(displayAfter({kThree[0], kThree[0], kThree[1], kThree[2]}, {0, 0, 1920, 1080}), 2U);
    EXPECT_FALSE(displayAfter({}, {0, 0, 1920, 1080}));
}

TEST(Mapping, aLineBringsTheDisplaysBack)
{
    Desktop desktop = kThree;
    desktop[1].turns = 3;
    desktop[2].bounds.setWidth(1536.5);
    desktop[2].name = QStringLiteral("\"\n{");
    const DesktopReport report{desktop, {-1300, -200, 5000, 1300.5}};
    const QByteArray line = toLine(report);
    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_TRUE(line.endsWith('\n'));
    EXPECT_EQ(reportFrom(line), report);
}

TEST(Mapping, aLineThatMakesNoSenseIsNone)
{
    const auto isNone = [](const QByteArray& line) { return !reportFrom(line); };
    for (const char* const line : {"", "[]", "{}", "[1]", "{\"displays\":[1]}"}) {
        EXPECT_TRUE(isNone(line)) << line;
    }
    const auto bounds = [](const QByteArray& width, const QByteArray& height = "9") {
        return "\"x\":0,\"y\":0,\"width\":" + width + ",\"height\":" + height;
    };
    const auto report = [&](const QByteArray& display, const QByteArray& covered) {
        return "{\"displays\":[{" + display + "}],\"covered\":{" + covered + "}}";
    };
    const QByteArray good = bounds("9") + ",\"turns\":0";
    EXPECT_FALSE(isNone(report(good, bounds("9"))));
    EXPECT_FALSE(isNone(report(good, bounds("0.5", "0.5"))));
    EXPECT_FALSE(isNone(report(good, bounds("1000000", "1000000"))));
    for (const char* const width : {"0", "-9", "1000001", "1e300", "\"9\""}) {
        EXPECT_TRUE(isNone(report(bounds(width) + ",\"turns\":0", bounds("9")))) << width;
        EXPECT_TRUE(isNone(report(good, bounds(width)))) << width;
        EXPECT_TRUE(isNone(report(good, bounds("9", width)))) << width;
    }
    for (const char* const missing : {"x", "y", "width", "height"}) {
        EXPECT_TRUE(isNone(report(good, QByteArray(bounds("9")).replace(missing, "z")))) << missing;
    }
    EXPECT_TRUE(isNone(report(bounds("9") + ",\"turns\":4", bounds("9"))));
    EXPECT_TRUE(isNone(report(bounds("9"), bounds("9"))));
    EXPECT_TRUE(isNone(report("\"x\":0,\"y\":0,\"width\":1,\"turns\":0", bounds("9"))));
    EXPECT_TRUE(isNone(report(good, "")));
    const QRectF nine(0, 0, 9, 9);
    EXPECT_FALSE(isNone(toLine({Desktop(64, display(nine)), nine})));
    EXPECT_TRUE(isNone(toLine({Desktop(65, display(nine)), nine})));
}

TEST(Mapping, aPanelsOwnPositionIsNoRotation)
{
    EXPECT_EQ(turnsOf(Qt::LandscapeOrientation, false), 0);
    EXPECT_EQ(turnsOf(Qt::PortraitOrientation, false), 1);
    EXPECT_EQ(turnsOf(Qt::InvertedLandscapeOrientation, false), 2);
    EXPECT_EQ(turnsOf(Qt::InvertedPortraitOrientation, false), 3);
    EXPECT_EQ(turnsOf(Qt::PortraitOrientation, true), 0);
    EXPECT_EQ(turnsOf(Qt::InvertedLandscapeOrientation, true), 1);
    EXPECT_EQ(turnsOf(Qt::LandscapeOrientation, true), 3);
    EXPECT_EQ(turnsOf(Qt::PrimaryOrientation, true), 0) << "unknown";
}

TEST(KWinSettings, ofKWin6AreTheWorkspace)
{
    const QVariantMap changes = kwinSettings(kwin6(), kThree).changes;
    EXPECT_EQ(changes.keys(),
        (QStringList{QStringLiteral("mapToWorkspace"), QStringLiteral("outputArea")}));
    EXPECT_EQ(changes.value(QStringLiteral("mapToWorkspace")), true);
    // KWin 6 takes the workspace for one point less, and cuts the product to whole points.
    const QRectF area = changes.value(QStringLiteral("outputArea")).toRectF();
    EXPECT_EQ(area.topLeft(), QPointF());
    EXPECT_EQ(static_cast<std::uint32_t>((4736 - 1) * area.width()), 4736U);
    EXPECT_EQ(static_cast<std::uint32_t>((1280 - 1) * area.height()), 1280U);
    EXPECT_TRUE(kwinSettings(mapped6(), kThree).changes.isEmpty());
    EXPECT_TRUE(kwinSettings(kwin6(true), {}).changes.isEmpty()) << "it does not know how large";
    EXPECT_EQ(kwinSettings(kwin6(), {display({0, 0, 1080, 1920}, 1)}).turns, 0)
        << "it does not turn the pen with a display";
}

TEST(KWinSettings, takeBackWhatThePanelHasSettingsFor)
{
    const QVariantMap plain = mapped6();
    for (const auto& [name, value] :
        QVariantMap{{QStringLiteral("leftHanded"), true}, {QStringLiteral("orientationDBus"), 2},
            {QStringLiteral("rotation"), 180U}, {QStringLiteral("tabletToolIsRelative"), true},
            {QStringLiteral("outputArea"), QRectF(0, 0, 0.5, 1)},
            {QStringLiteral("inputArea"), QRectF(0.1, 0, 0.9, 1)},
            {QStringLiteral("pressureRangeMin"), 0.2}, {QStringLiteral("pressureRangeMax"), 0.8},
            {QStringLiteral("pressureCurve"), QStringLiteral("0,0;0.5,0.9;1,1;")}}
            .toStdMap()) {
        QVariantMap present = plain;
        present.insert(name, value);
        EXPECT_EQ(kwinSettings(present, kThree).changes, (QVariantMap{{name, plain.value(name)}}));
    }
}

TEST(KWinSettings, ofKWin5AreAnAreaAroundItsOutput)
{
    const QVariantMap changes = kwinSettings(kwin5(), kThree).changes;
    EXPECT_EQ(changes.value(QStringLiteral("outputName")), kThree[0].name);
    const QRectF area = changes.value(QStringLiteral("outputArea")).toRectF();
    EXPECT_DOUBLE_EQ(area.x(), -1280.0 / 1920);
    EXPECT_DOUBLE_EQ(area.y(), -200.0 / 1080);
    EXPECT_NEAR(area.width(), 4736.0 / 1920, 2e-6);
    EXPECT_NEAR(area.height(), 1280.0 / 1080, 2e-6);
    EXPECT_TRUE(kwinSettings(kwin5(kThree[0].name, area), kThree).changes.isEmpty());
    EXPECT_TRUE(kwinSettings(kwin5(), {}).changes.isEmpty()) << "it does not know where that is";
}

TEST(KWinSettings, ofKWin5PreferAnOutputThatIsNotTurned)
{
    const Desktop desktop{display({0, 0, 1080, 1920}, 1), display({1080, 0, 1920, 1080}, 0)};
    const KWinSettings settings = kwinSettings(kwin5(), desktop);
    EXPECT_EQ(settings.changes.value(QStringLiteral("outputName")), desktop[1].name);
    EXPECT_EQ(settings.turns, 0);
}

TEST(KWinSettings, ofKWin5PutThePenWhereItBelongsHoweverTheOutputIsTurned)
{
    for (int turns = 0; turns < 4; ++turns) {
        const Desktop desktop{
            display({0, 0, 1080, 1920}, turns), display({1080, 300, 1000, 1700}, turns)};
        const QRectF all = boundsOf(desktop);
        const KWinSettings settings = kwinSettings(kwin5(), desktop);
        ASSERT_EQ(settings.turns, turns);
        const QRectF area = settings.changes.value(QStringLiteral("outputArea")).toRectF();
        for (const QPointF wanted : {QPointF(0, 0), QPointF(1, 0), QPointF(0.25, 0.5)}) {
            const QPointF place = kwin5Place(turnedBack(wanted, settings.turns), area, desktop[0]);
            EXPECT_NEAR(place.x(), all.x() + all.width() * wanted.x(), 0.01) << turns;
            EXPECT_NEAR(place.y(), all.y() + all.height() * wanted.y(), 0.01) << turns;
        }
    }
}
