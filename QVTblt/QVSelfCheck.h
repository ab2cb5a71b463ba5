// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/**
 * @file
 * The self-check: what is between the user's pen and the panel, stage by stage, and what to do
 * where something is wrong. Facts are gathered first; what they mean is decided by a pure function.
 */

/** A tablet that the kernel lists. */
struct QVConnectedTablet {
    std::uint16_t vendor = 0;
    std::uint16_t product = 0;
    QString node; ///< /dev/input/event7, or /dev/bus/usb/001/005
    bool isPen = false; ///< the node has the pen's events; otherwise, it is the maker's USB device
    bool mayBeOpened = false; ///< by this user
    bool isClaimed = false; ///< a program has taken the USB device from the kernel

    /** Vendor and product, such as "1234:0042". */
    QString id() const;
};

/** What is known about the surroundings of the panel. */
struct QVSelfCheckFacts {
    enum class Bus : std::uint8_t { None, Hangs, Answers };
    Bus bus = Bus::None;

    enum class Driver : std::uint8_t { Running, Started, NotInstalled, NotStarted };
    Driver driver = Driver::NotStarted;

    std::optional<std::int32_t> answer; ///< the driver's; 0 if it has no tablet

    std::vector<QVConnectedTablet> tablets;
    bool mayMakeDevices = false; ///< /dev/uinput may be opened
    bool hasPenRule = false; ///< 70-tdsg-driver-access.rules is installed
    bool hasUsbRule = false; ///< 60-quorvia-tablet.rules is installed
    /** Names of the user's programs that have a tablet open, except the driver. */
    QStringList holders;

    enum class File : std::uint8_t { Missing, Unusable, NotWritable, NoRoom, Good };
    File file = File::Missing;

    std::optional<bool> isLastPushTaken; ///< by the driver; nothing if there was no push

    enum class Module : std::uint8_t { Missing, OtherQt, Fits };
    Module module = Module::Missing;
    QString moduleQt; ///< the version of Qt that it was built for

    enum class Desktop : std::uint8_t { Unknown, None, X11, KWin, OtherWayland };
    Desktop desktop = Desktop::Unknown;

    bool hasDriversTablet() const { return answer.value_or(0) != 0; }
};

/** A text in English, to be translated when it is shown, with a word that replaces its %1. */
struct QVStageText {
    const char* source = "";
    QString word = {};
    bool isPrivate = false; ///< the word may say something about the user

    /** In the user's language. */
    QString shown() const;
    /** For a report: in English, without what is private. */
    QString reported() const;
};

/** One stage, decided. */
struct QVStage {
    using Status = platform::PreferencePane::CheckedStage::Status;

    const char* id = ""; ///< does not change between versions
    Status status = Status::NotChecked;
    QVStageText text = {};
    const char* remedy = ""; ///< what to do, in English; empty if nothing is to be done
};

/** What to do, in the user's language; empty if nothing is to be done. */
QString QVRemedyText(const QVStage& stage);

/** Decides all stages; the result always contains every one. */
std::vector<QVStage> QVDecideStages(const QVSelfCheckFacts& facts);

/** What QVGatherFacts() cannot find out by itself; made on the main thread. */
struct QVSelfCheckInput {
    std::string configFolder; ///< with the files of all tablets
    QString modulePath; ///< the module's file; empty if a host has loaded it
    std::optional<bool> isLastPushTaken; ///< if it is known; otherwise, the driver is asked

    QVSelfCheckInput();
};

/**
 * Gathers the facts. Starts a driver if none is running; otherwise, changes nothing: devices are
 * neither opened nor claimed. Blocks for some hundredths of a second, or several seconds if the bus
 * or the driver hangs. May be called on any thread; on another than the main one,
 * QThread::requestInterruption() has it return within the time that is given to the bus, unless a
 * disk does not answer.
 */
QVSelfCheckFacts QVGatherFacts(const QVSelfCheckInput& input);

/**
 * The stages as a text for others: with versions, the desktop, and the numbers of the tablets, and
 * without anything that is the user's own: paths, names, serial numbers, the environment.
 */
QString QVSelfCheckReport(const QVSelfCheckFacts& facts);

/** The stages in the user's language, and the report. */
platform::PreferencePane::SelfCheck QVSelfCheckResult(const QVSelfCheckFacts& facts);

/** The name of a status on the command line and in reports: ok, problem or not checked. */
const char* QVStatusName(QVStage::Status status);
