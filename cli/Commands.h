// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

inline constexpr int kExitGood = 0;
inline constexpr int kExitBad = 1; ///< the command has failed, or doctor has found a problem
inline constexpr int kExitUsage = 2; ///< the command line is not valid

/** What follows a command. */
struct Arguments {
    QStringList operands;
    bool asJson = false;
};

/** A command of qvtbltctl. */
struct Command {
    const char* name;
    int least; ///< number of operands
    int most;
    /** Whether it pushes the tablet's file, which depends on the displays. */
    bool (*needsDisplays)(const Arguments& arguments);
    /** Writes its output to standard output and errors to standard error. @return the exit code */
    int (*run)(const Arguments& arguments);
};

/** The command with that name; null if there is none. */
const Command* findCommand(const QString& name);

/** Reports why a command has failed. @return the exit code */
int fail(const QString& why);

/** Reports that the command line is not valid. @return the exit code */
int usageError(const QString& why);

/**
 * Checks a configuration file or a pipe and prints a line for each entry: the verdict, its path,
 * and its value or problem.
 *
 * @return kExitGood if the panel can use every entry: none is missing, of a wrong type or too big
 */
int checkFile(const QString& path);
