// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

/**
 * @file
 * The settings record of the one attached tablet.
 *
 * The record is a wire format: the driver receives its 5077 bytes as they lie in memory. It has no
 * padding, and its integers are little-endian. The assertions below hold size, order and every
 * offset.
 *
 * Tablet units are relative to the upper left corner of the tablet's surface. Screen areas are in
 * points of the global display coordinates: origin at the upper left corner of the main display, y
 * growing downwards.
 */

/** Size of a string in the record, including its terminating NUL. */
inline constexpr std::size_t kQVStringSize = 256;

/** Number of buttons: sixteen express keys, then the upper and the lower pen button. */
inline constexpr std::size_t kQVSlotCount = 18;

/** The slots of the pen's buttons, which follow those of the express keys. */
inline constexpr std::size_t kQVUpperPenSlot = 16;
inline constexpr std::size_t kQVLowerPenSlot = 17;

/** What a button does: the values of a slot's Valid. */
enum QVAction : std::int16_t {
    kQVNoAction = 0,
    kQVMouseButton = 1, ///< which one is in Mouse
    kQVApplication = 2, ///< its path is in App
    kQVKeyCombination = 3, ///< its keys are in Key
    kQVNextDisplay = 4,
    kQVFinePositioning = 5,
    kQVPauseTablet = 6,
};

/** A mouse button: the values of a slot's Mouse. */
enum QVMouseButton : std::int16_t {
    kQVLeftButton = 0,
    kQVRightButton = 1,
    kQVBackButton = 2,
    kQVMiddleButton = 3,
};

/** Pen's PressureThreshold: the straight line, and the heaviest curve; 0 is the lightest. */
inline constexpr std::int16_t kQVStraightThreshold = 100;
inline constexpr std::int16_t kQVHighestThreshold = 200;

/** Monitor's rotationFlag where the tablet is upside down; otherwise it is 0. */
inline constexpr std::int16_t kQVTurned = 180;

/** Key's ScrollSpeed: the slowest, that of a new tablet, and the fastest. */
inline constexpr std::int16_t kQVSlowestScroll = 1;
inline constexpr std::int16_t kQVUsualScroll = 5;
inline constexpr std::int16_t kQVFastestScroll = 10;

/** Report speeds: the values of Monitor's Speed. */
inline constexpr std::int16_t kQVSpeedFast = 180;
inline constexpr std::int16_t kQVSpeedNormal = 220;

/** A NUL-terminated ASCII string in a field of fixed size. */
using QVString = std::array<char, kQVStringSize>;

#pragma pack(push, 1)

/** The model's data from the configuration file. The panel does not change it. */
struct tagQVTabletInfoBasic {
    std::int16_t VendorID; ///< USB vendor ID
    std::int16_t ProductID; ///< USB product ID; read it with QVProductID()
    std::int16_t VersionNumber;
    std::int16_t InputLength; ///< bytes of one input report
    std::int16_t KeyNum; ///< number of express keys
    std::int16_t ScrollNum; ///< number of scroll strips
    std::int16_t PressureMax; ///< highest pressure value
    std::uint16_t TabletXmin; ///< full active area, in tablet units
    std::uint16_t TabletXmax;
    std::uint16_t TabletYmin;
    std::uint16_t TabletYmax;
    std::int16_t BasicReserved1; ///< always 0
    std::int16_t BasicReserved2; ///< always 0
    std::uint8_t isUpdate; ///< 0 or 1
    QVString UpdateFilename;
};

/** How the pen responds to pressure. */
struct tagQVTabletInfoPen {
    std::int16_t PressureThreshold; ///< 0 to kQVHighestThreshold
    std::int16_t Speed;
};

/** How the tablet is mapped to the screen. The spelling is intended. */
struct tagQVTabletInfoMonitior {
    std::int16_t num; ///< chosen entry of the display list, from 0
    std::int16_t Speed; ///< report mode: kQVSpeedFast or kQVSpeedNormal
    std::int16_t rotationFlag; ///< degrees: kQVTurned or 0
    std::int16_t disableFlag; ///< 1 while a calibration collects points
    std::int16_t XOrg; ///< mapped screen area, in points
    std::int16_t Width;
    std::int16_t YOrg;
    std::int16_t Height;
    std::uint16_t cTabletXmin; ///< part of the tablet that maps onto the area, in tablet units
    std::uint16_t cTabletXmax;
    std::uint16_t cTabletYmin;
    std::uint16_t cTabletYmax;
    std::int16_t MonitorReserved1; ///< always 0
    std::int16_t MonitorReserved2; ///< always 0
    std::int16_t MonitorReserved3; ///< always 0
    std::int16_t MonitorReserved4; ///< always 0
};

/** One button's assignment. */
struct tagQVTabletInfoSubKey {
    std::int16_t Valid; ///< a QVAction; anything else is none
    std::int16_t Mouse; ///< a QVMouseButton, where Valid is kQVMouseButton
    std::uint32_t Key; ///< key codes in bytes 0 to 2, their number in byte 3
    QVString App; ///< path of the application to start
};

/** All buttons and scroll strips. */
struct tagQVTabletInfoKey {
    std::array<tagQVTabletInfoSubKey, kQVSlotCount> SubKey; ///< Key0 to Key15, penKeyU, penKeyL
    std::int16_t Scrollbar0; ///< left strip: 0 when it is on, 1 when it is off
    std::int16_t Scrollbar1; ///< right strip, in the same sense
    std::int16_t ScrollSpeed;
};

/** The whole record. */
struct tagQVTabletInfo {
    tagQVTabletInfoBasic Basic;
    tagQVTabletInfoPen Pen;
    tagQVTabletInfoMonitior Monitor;
    tagQVTabletInfoKey Key;
};

#pragma pack(pop)

/** The model's USB product ID. */
constexpr std::uint16_t QVProductID(const tagQVTabletInfo& record)
{
    return static_cast<std::uint16_t>(record.Basic.ProductID);
}

/** A string before its NUL; all of it when it has none. */
constexpr std::string_view QVText(const QVString& field)
{
    const std::string_view whole(field.data(), field.size());
    return whole.substr(0, whole.find('\0'));
}

/** Bytes of the record, and of every push. */
inline constexpr std::int32_t kQVRecordSize = 5077;

static_assert(sizeof(tagQVTabletInfo) == kQVRecordSize);
static_assert(alignof(tagQVTabletInfo) == 1);
static_assert(
    std::endian::native == std::endian::little, "drivers and stored records expect this order");

static_assert(offsetof(tagQVTabletInfo, Basic) == 0);
static_assert(sizeof(tagQVTabletInfoBasic) == 283);
static_assert(offsetof(tagQVTabletInfo, Basic.VendorID) == 0);
static_assert(offsetof(tagQVTabletInfo, Basic.ProductID) == 2);
static_assert(offsetof(tagQVTabletInfo, Basic.VersionNumber) == 4);
static_assert(offsetof(tagQVTabletInfo, Basic.InputLength) == 6);
static_assert(offsetof(tagQVTabletInfo, Basic.KeyNum) == 8);
static_assert(offsetof(tagQVTabletInfo, Basic.ScrollNum) == 10);
static_assert(offsetof(tagQVTabletInfo, Basic.PressureMax) == 12);
static_assert(offsetof(tagQVTabletInfo, Basic.TabletXmin) == 14);
static_assert(offsetof(tagQVTabletInfo, Basic.TabletXmax) == 16);
static_assert(offsetof(tagQVTabletInfo, Basic.TabletYmin) == 18);
static_assert(offsetof(tagQVTabletInfo, Basic.TabletYmax) == 20);
static_assert(offsetof(tagQVTabletInfo, Basic.BasicReserved1) == 22);
static_assert(offsetof(tagQVTabletInfo, Basic.BasicReserved2) == 24);
static_assert(offsetof(tagQVTabletInfo, Basic.isUpdate) == 26);
static_assert(offsetof(tagQVTabletInfo, Basic.UpdateFilename) == 27);

static_assert(offsetof(tagQVTabletInfo, Pen) == 283);
static_assert(sizeof(tagQVTabletInfoPen) == 4);
static_assert(offsetof(tagQVTabletInfo, Pen.PressureThreshold) == 283);
static_assert(offsetof(tagQVTabletInfo, Pen.Speed) == 285);

static_assert(offsetof(tagQVTabletInfo, Monitor) == 287);
static_assert(sizeof(tagQVTabletInfoMonitior) == 32);
static_assert(offsetof(tagQVTabletInfo, Monitor.num) == 287);
static_assert(offsetof(tagQVTabletInfo, Monitor.Speed) == 289);
static_assert(offsetof(tagQVTabletInfo, Monitor.rotationFlag) == 291);
static_assert(offsetof(tagQVTabletInfo, Monitor.disableFlag) == 293);
static_assert(offsetof(tagQVTabletInfo, Monitor.XOrg) == 295);
static_assert(offsetof(tagQVTabletInfo, Monitor.Width) == 297);
static_assert(offsetof(tagQVTabletInfo, Monitor.YOrg) == 299);
static_assert(offsetof(tagQVTabletInfo, Monitor.Height) == 301);
static_assert(offsetof(tagQVTabletInfo, Monitor.cTabletXmin) == 303);
static_assert(offsetof(tagQVTabletInfo, Monitor.cTabletXmax) == 305);
static_assert(offsetof(tagQVTabletInfo, Monitor.cTabletYmin) == 307);
static_assert(offsetof(tagQVTabletInfo, Monitor.cTabletYmax) == 309);
static_assert(offsetof(tagQVTabletInfo, Monitor.MonitorReserved1) == 311);
static_assert(offsetof(tagQVTabletInfo, Monitor.MonitorReserved2) == 313);
static_assert(offsetof(tagQVTabletInfo, Monitor.MonitorReserved3) == 315);
static_assert(offsetof(tagQVTabletInfo, Monitor.MonitorReserved4) == 317);

static_assert(offsetof(tagQVTabletInfo, Key) == 319);
static_assert(sizeof(tagQVTabletInfoKey) == 4758);
static_assert(sizeof(tagQVTabletInfoSubKey) == 264);
static_assert(offsetof(tagQVTabletInfoSubKey, Valid) == 0);
static_assert(offsetof(tagQVTabletInfoSubKey, Mouse) == 2);
static_assert(offsetof(tagQVTabletInfoSubKey, Key) == 4);
static_assert(offsetof(tagQVTabletInfoSubKey, App) == 8);
static_assert(offsetof(tagQVTabletInfo, Key.SubKey) == 319);
static_assert(offsetof(tagQVTabletInfo, Key.Scrollbar0) == 5071);
static_assert(offsetof(tagQVTabletInfo, Key.Scrollbar1) == 5073);
static_assert(offsetof(tagQVTabletInfo, Key.ScrollSpeed) == 5075);
