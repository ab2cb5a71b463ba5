// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT

// Runs a program's tests with an application object: one with offscreen windows if the program is
// built with QVTBLT_TEST_WINDOWS.

#include <gtest/gtest.h>

#ifdef QVTBLT_TEST_WINDOWS
#include <QApplication>
using Application = QApplication;
#else
#include <QCoreApplication>
using Application = QCoreApplication;
#endif

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    const Application application(argc, argv);
    return RUN_ALL_TESTS();
}
