# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Runs tests/mutation/run on a small program, for which it is known what its tests notice."""

import json
import pathlib
import subprocess
import tempfile
import tomllib
import unittest

RUN = pathlib.Path(__file__).resolve().parent / "run"

FILES = {
    ".gitignore": "/build/\n",
    "CMakeLists.txt": """
cmake_minimum_required(VERSION 3.25)
project(Small LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 20)
find_package(GTest REQUIRED)
add_library(small STATIC small.cpp)
add_executable(small-tests small_test.cpp)
target_link_libraries(small-tests PRIVATE small GTest::gtest_main)
""",
    "small.h": """
#pragma once
int atLeastZero(int value);
int untested(int value);
unsigned long steps(unsigned long count);
void note(int value);
int noted();
int asked();
bool isOdd(int value);
int pick(bool first, bool second);
void setSpacing(int points);
""",
    "small.cpp": """
#include "small.h"
static int last = 0;
static int questions = 0;
static_assert(
    sizeof(int) == 4);
template <int> struct Sized;
template <> struct Sized<4> { };
static Sized<sizeof(int)> sized;
int atLeastZero(int value)
{
    return value < 0 ? 0 : value;
}
int untested(int value)
{
    return value * 5;
}
unsigned long steps(unsigned long count)
{
    unsigned long done = 0;
    for (; done != count; ++done) { }
    return done;
}
static void keep(int value)
{
    last = value;
}
void note(int value)
{
    keep(value);
}
int noted()
{
    return last;
}
int asked()
{
    return ++questions;
}
bool isOdd(int value)
{
    return value % 2 == 1;
}
int pick(bool first, bool second)
{
    if (isOdd(3) && first) {
        return 5;
    }
    return second ? 6 : 7;
}
static int spacing = 0;
void setSpacing(int points)
{
    spacing = points;
}
int spaced()
{
    setSpacing(8);
    return spacing;
}
""",
    "small_test.cpp": """
#include "small.h"
#include <gtest/gtest.h>
TEST(Small, keepsAboveZero)
{
    EXPECT_EQ(atLeastZero(-3), 0);
    EXPECT_EQ(atLeastZero(3), 3);
}
TEST(Small, stepsUp)
{
    EXPECT_EQ(steps(3), 3);
}
TEST(Small, notes)
{
    note(7);
    EXPECT_EQ(noted(), 7);
}
TEST(Small, isAskedOnce)
{
    EXPECT_EQ(asked(), 1);
}
TEST(Small, isAskedOnceInAnotherProcess)
{
    EXPECT_EQ(asked(), 1);
}
TEST(Small, picks)
{
    EXPECT_EQ(pick(true, false), 5);
    EXPECT_EQ(pick(false, true), 6);
    EXPECT_EQ(pick(false, false), 7);
}
TEST(Other, isNotRun)
{
    EXPECT_EQ(untested(1), 0);
}
""",
    "tests/mutation/areas.toml": """
[small]
"small.cpp" = ["small-tests:Small.*"]
""",
    "tests/mutation/equivalent": """
# Zero is as good from either side.
small.cpp: zero is zero by either way
- return value < 0 ? 0 : value;
+ return value <= 0 ? 0 : value;
""",
    "tests/mutation/explained": """
small.cpp: six would do as well
- return value * 5;
+ return value * 6;
""",
}


class Areas(unittest.TestCase):
    def test_every_source_of_the_module_is_in_one(self):
        source = RUN.parent.parent.parent
        areas = tomllib.loads((RUN.parent / "areas.toml").read_text())
        del areas["alone"]
        listed = {file for area in areas.values() for file in area}
        # Only the plug-in's entry is not part of a test program.
        expected = {f"QVTblt/{path.name}" for path in (source / "QVTblt").glob("*.cpp")
                    if path.name != "QVTbltModule.cpp"}
        self.assertEqual(expected - listed, set())
        self.assertEqual({file for file in listed if not (source / file).is_file()}, set())


class MutationTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.root = pathlib.Path(folder.name)
        for name, text in FILES.items():
            (cls.root / name).parent.mkdir(parents=True, exist_ok=True)
            (cls.root / name).write_text(text)
        subprocess.run(["git", "init", "--quiet", cls.root], check=True)
        cls.done = cls.run_tool("--all")
        log = (cls.root / "build/mutation/log").read_text().splitlines()
        cls.results = {entry["new"]: entry for entry in map(json.loads, log)}

    @classmethod
    def run_tool(cls, *arguments):
        return subprocess.run([RUN, "--root", cls.root, *arguments], capture_output=True, text=True)

    def result(self, new):
        self.assertIn(new, self.results, self.done.stdout + self.done.stderr)
        return self.results[new]["result"], self.results[new]["by"]

    def test_notices_a_fault_that_a_test_looks_at(self):
        self.assertEqual(self.result("return value >= 0 ? 0 : value;"),
                         ("noticed", "Small.keepsAboveZero"))
        self.assertEqual(self.result("return value < 0 ? 1 : value;"),
                         ("noticed", "Small.keepsAboveZero"))

    def test_notices_a_call_that_is_left_out(self):
        self.assertEqual(self.result(";"), ("noticed", "Small.notes"))

    def test_turns_conditions_round(self):
        for new in ("if (!(isOdd(3)) && first) {", "if (isOdd(3) && !(first)) {",
                    "return !(second) ? 6 : 7;"):
            self.assertEqual(self.result(new), ("noticed", "Small.picks"))
        # A condition with an operator is changed there, and nowhere else.
        self.assertNotIn("return !(value < 0) ? 0 : value;", self.results)

    def test_leaves_out_what_no_test_should_pin_down(self):
        self.assertEqual([new for new in self.results if "setSpacing(" in new], [])
        self.assertEqual([new for new in self.results if "sizeof(int) !=" in new], [])

    def test_takes_a_hang_for_noticed(self):
        self.assertEqual(self.result("for (; done != count; --done) { }"),
                         ("noticed", "Small.stepsUp (takes too long)"))

    def test_does_not_count_what_does_not_compile(self):
        self.assertEqual(self.result("template <> struct Sized<5> { };"), ("no build", ""))

    def test_says_which_faults_nobody_notices(self):
        self.assertEqual(self.result("return value * 6;"), ("unnoticed", ""))
        self.assertIn("small.cpp:16:20\n    - return value * 5;\n    + return value * 6;\n"
                      "    (six would do as well)\n", self.done.stdout)

    def test_gives_the_share_of_what_could_be_noticed(self):
        self.assertEqual(self.done.returncode, 0, self.done.stdout + self.done.stderr)
        line = next(line for line in self.done.stdout.splitlines() if line.startswith("small "))
        faults, noticed, left, share = line.split()[1:5]
        explained, equivalent, no_build = line.split()[6:]
        self.assertEqual((left, explained, equivalent), ("6", "1", "1"))
        self.assertEqual(int(faults), int(noticed) + int(left))
        self.assertEqual(float(share), round(100 * int(noticed) / int(faults), 1))
        self.assertEqual(no_build, "1")

    def test_leaves_the_sources_alone(self):
        self.assertEqual((self.root / "small.cpp").read_text(), FILES["small.cpp"])

    def test_goes_on_where_it_was_interrupted(self):
        log = self.root / "build/mutation/log"
        before = log.read_text()
        self.addCleanup(log.write_text, before)
        first, *rest = before.splitlines(keepends=True)
        log.write_text("".join(rest))
        done = self.run_tool("--all", "--resume")
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        self.assertEqual(sorted(map(str.strip, log.read_text().splitlines())),
                         sorted(map(str.strip, before.splitlines())))
        self.assertEqual(log.read_text().splitlines(keepends=True)[-1], first)

    def test_reports_an_equivalent_that_no_longer_fits(self):
        equivalent = self.root / "tests/mutation/equivalent"
        before = equivalent.read_text()
        self.addCleanup(equivalent.write_text, before)
        equivalent.write_text(before + "small.cpp: it was there once\n- return 1;\n+ return 2;\n"
                              "small.cpp: it was changed\n- return count * 5;\n+ return count * 6;\n"
                              "small.cpp: it is noticed\n- return value < 0 ? 0 : value;\n"
                              "+ return value < 0 ? 1 : value;\n")
        done = self.run_tool("--all", "--resume")
        self.assertEqual(done.returncode, 1)
        self.assertIn("no such fault any more, in small.cpp:\n    - return 1;", done.stdout)
        self.assertIn("    - return count * 5;\n    + return count * 6;\n  the nearest one now: "
                      "small.cpp:16:20\n    - return value * 5;\n", done.stdout)
        self.assertIn("Small.keepsAboveZero notices, in small.cpp:", done.stdout)

    def test_samples_the_same_faults_each_time(self):
        every = self.run_tool("--all", "--list").stdout
        some = self.run_tool("--all", "--list", "--sample", "3").stdout
        self.assertEqual(some, self.run_tool("--all", "--list", "--sample", "3").stdout)
        self.assertLess(len(some), len(every) / 2)
        self.assertGreater(len(some), 0)


if __name__ == "__main__":
    unittest.main()
