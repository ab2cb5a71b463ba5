# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The panel in its own window, in use: mouse, real X server, real driver, real file."""

import plistlib
import re
import signal
import unittest

import desktop
import session

HELP = ("Is the tablet connected? Is its driver running? "
        "The settings appear here as soon as both are available.")
TITLE = "Quorvia Tablet"


class Window(desktop.Desktop):
    def start_panel(self):
        panel = self.start([session.BIN / "qvtblt"])
        self.find("qvtblt", "Left scroll strip", "check box")
        return panel

    def file_strips(self):
        keys = plistlib.loads(self.config().read_bytes())["Key"]
        return keys["Scrollbar0"], keys["Scrollbar1"]

    def driver_strips(self):
        record = self.record()
        return (int.from_bytes(record[5071:5073], "little", signed=True),
                int.from_bytes(record[5073:5075], "little", signed=True))

    def click_strip(self, name="Left scroll strip"):
        """Clicks a check box and waits until the driver has the push."""
        before = int(self.simulator("Pushes")[1])
        self.click(self.find("qvtblt", name, "check box"), 8)
        session.wait_for(lambda: int(self.simulator("Pushes")[1]) > before, "the push", 5)

    def test_an_edit_travels_to_the_driver_and_with_save_into_the_file(self):
        self.start_driver()
        self.start_panel()
        self.assertEqual(self.file_strips(), (0, 0))
        self.click_strip()
        self.assertEqual(self.driver_strips(), (1, 0))
        self.assertEqual(self.file_strips(), (0, 0))
        self.press("qvtblt", "Save", "push button")
        session.wait_for(lambda: self.file_strips() == (1, 0), "the file")

    def test_cancel_takes_the_edit_back_from_the_driver(self):
        self.start_driver()
        self.start_panel()
        self.click_strip()
        self.assertEqual(self.driver_strips(), (1, 0))
        self.press("qvtblt", "Cancel", "push button")
        session.wait_for(lambda: self.driver_strips() == (0, 0), "the driver")
        # The panel is shown again, so that its pages match.
        session.wait_for(lambda: self.find("qvtblt", "Left scroll strip")["checked"], "the box")

    def test_all_pages_follow_the_file_after_cancel(self):
        self.start_driver()
        self.start_panel()
        self.press("qvtblt", "Pen", "page tab")
        before = self.find("qvtblt", "Pressure curve")["description"]
        pushes = int(self.simulator("Pushes")[1])
        self.xdotool("key", "alt+l", "Home")
        session.wait_for(lambda: int(self.simulator("Pushes")[1]) > pushes, "the push")
        session.wait_for(lambda: self.find("qvtblt", "Pressure curve")["description"] != before,
                         "the other curve")
        picture = self.curve()
        self.press("qvtblt", "Cancel", "push button")
        session.wait_for(lambda: self.find("qvtblt", "Pressure curve")["description"] == before,
                         "the file's curve")
        session.wait_for(lambda: self.curve() != picture, "its drawing")

    def curve(self):
        view = self.find("qvtblt", "Pressure curve")
        return self.pixels(view["x"], view["y"], view["width"], view["height"])

    def test_an_edit_works_by_keyboard_alone(self):
        self.start_driver()
        self.start_panel()
        before = int(self.simulator("Pushes")[1])
        self.xdotool("search", "--sync", "--onlyvisible", "--name", TITLE, "windowactivate",
                     "--sync", "key", "alt+l")
        session.wait_for(lambda: int(self.simulator("Pushes")[1]) > before, "the push")
        self.assertEqual(self.driver_strips(), (1, 0))
        self.xdotool("key", "alt+v")
        session.wait_for(lambda: self.file_strips() == (1, 0), "the file")

    def test_closing_the_window_saves(self):
        self.start_driver()
        panel = self.start_panel()
        self.click_strip()
        self.close_window(TITLE)
        self.assertEqual(panel.wait(timeout=session.PATIENCE), 0)
        self.assertEqual(self.file_strips(), (1, 0))

    def test_being_told_to_end_saves(self):
        self.start_driver()
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number):
                panel = self.start_panel()
                before = self.file_strips()
                self.click_strip()
                self.assertEqual(self.file_strips(), before)
                panel.send_signal(number)
                self.assertEqual(panel.wait(timeout=session.PATIENCE), 0)
                self.assertEqual(self.file_strips(), (1 - before[0], 0))

    def test_without_a_tablet_there_is_only_the_label_and_the_self_check(self):
        self.start_driver("none")
        self.start([session.BIN / "qvtblt"])
        self.find("qvtblt", "No tablet was found", "label")
        self.find("qvtblt", "Find the Problem…", "push button")
        for thing in self.things("qvtblt"):
            if thing["role"] in ("check box", "push button", "page tab", "combo box"):
                self.assertEqual(thing["showing"], thing["name"] == "Find the Problem…", thing)

    def found(self):
        """Returns the lines of the self-check. Qt 5 says that those of closed lists show, too."""
        things = self.things("qvtblt", "--items")
        lists = [thing["path"] for thing in things if thing["name"] == "What was checked"]
        return [thing["name"] for thing in things
                if thing["role"] == "list item" and thing["showing"]
                and thing["path"][:-1] in lists]

    def test_the_self_check_says_what_is_wrong_and_heals_itself(self):
        driver = self.start_driver("none")
        self.start([session.BIN / "qvtblt"])
        self.find("qvtblt", "Find the Problem…", "push button")
        # By keyboard alone.
        self.xdotool("search", "--sync", "--onlyvisible", "--name", TITLE, "windowactivate",
                     "--sync", "key", "alt+p")
        self.find("qvtblt", "Something is wrong. Begin with the first problem:")
        lines = session.wait_for(self.found, "the lines")
        self.assertTrue(lines[0].startswith("OK: The session bus answers."), lines)
        self.assertTrue(any(line.startswith("Problem: No tablet is connected.\nConnect the tablet")
                            for line in lines), lines)
        self.stop_driver(driver)
        self.press("qvtblt", "Check Again", "push button")
        session.wait_for(lambda: any("No driver is installed." in line for line in self.found()),
                         "the missing driver")
        self.start_driver("20737")
        self.find("qvtblt", "Left scroll strip", "check box")
        session.wait_for(lambda: not self.found(), "the end of the dialog")

    def test_the_panel_goes_on_when_the_driver_dies(self):
        driver = self.start_driver()
        panel = self.start_panel()
        self.stop_driver(driver, signal.SIGKILL)
        self.click(self.find("qvtblt", "Left scroll strip", "check box"), 8)
        self.press("qvtblt", "Save", "push button")
        session.wait_for(lambda: self.file_strips() == (1, 0), "the file")
        self.close_window(TITLE)
        self.assertEqual(panel.wait(timeout=session.PATIENCE), 0)


    def notice(self):
        """Returns the lines about a problem; empty if there is none."""
        return [thing["name"] for thing in self.things("qvtblt") if thing["showing"]
                and any(words in thing["name"]
                        for words in ("not accepted", "not saved", "cannot be loaded"))]

    def test_the_pages_appear_when_a_tablet_is_attached(self):
        self.start_driver("none")
        self.start([session.BIN / "qvtblt"])
        self.find("qvtblt", "No tablet was found", "label")
        self.find("qvtblt", HELP, "label")
        self.simulator("Attach", "q", "20738")
        self.find("qvtblt", "Quorvia Draft M", "label")
        self.find("qvtblt", "Keys", "page tab")
        self.find("qvtblt", HELP, "label", showing=False)

    def test_the_pages_appear_when_the_driver_is_started(self):
        self.start([session.BIN / "qvtblt"])
        self.find("qvtblt", "No tablet was found", "label")
        driver = self.start_driver()
        self.find("qvtblt", "Keys", "page tab")
        self.press("qvtblt", "Left scroll strip", "check box")
        lines = [""]
        while not lines[-1].startswith("push "):
            lines.append(session.read_line(driver.stdout, "the push"))
        queries = [line for line in lines if line.startswith("query from ")]
        self.assertEqual(len(queries), 1, "it is asked once")

    def test_what_the_driver_has_not_taken_is_sent_again_by_hand(self):
        driver = self.start_driver()
        self.start_panel()
        self.stop_driver(driver, signal.SIGKILL)
        self.press("qvtblt", "Left scroll strip", "check box")
        session.wait_for(self.notice, "the line")
        driver = self.start_driver()
        line = session.read_line(driver.stdout, "the panel's query")
        self.assertTrue(line.startswith("query from "), f"'{line}': nothing is sent unasked")
        self.assertTrue(self.notice())
        self.press("qvtblt", "Send Again", "push button")
        session.wait_for(lambda: self.record() and self.driver_strips() == (1, 0), "the record")
        session.wait_for(lambda: not self.notice(), "the line's end")

    def test_reset_leaves_no_line_behind_when_the_driver_comes_back(self):
        driver = self.start_driver()
        self.start_panel()
        self.stop_driver(driver, signal.SIGKILL)
        self.press("qvtblt", "Left scroll strip", "check box")
        session.wait_for(self.notice, "the line")
        self.press("qvtblt", "Cancel", "push button")
        self.find("qvtblt", "No tablet was found", "label")
        self.start_driver()
        self.find("qvtblt", "Left scroll strip", "check box")
        self.assertEqual(self.notice(), [])

    def test_another_tablet_gets_its_own_settings_and_the_former_one_keeps_its(self):
        self.start_driver()
        self.start_panel()
        self.click_strip()
        other = self.config(20738)
        self.simulator("Attach", "q", "20738")
        self.find("qvtblt", "Quorvia Draft M", "label")
        self.assertEqual(self.file_strips(), (1, 0), "the former tablet's file has the edit")
        self.assertEqual(plistlib.loads(other.read_bytes())["Key"]["Scrollbar0"], 0)
        self.assertEqual(plistlib.loads(other.read_bytes())["Tablet"]["ProductID"], 20738)
        pushes = self.simulator("Pushes")
        self.assertEqual(pushes, ["u", "1"], "only the edit, to the tablet that it was made for")
        self.click_strip()
        self.assertEqual(int.from_bytes(self.record()[2:4], "little"), 20738)

    def test_a_file_that_cannot_be_saved_is_told(self):
        self.start_driver()
        self.start_panel()
        away = self.config().with_suffix(".away")
        self.config().rename(away)
        self.click_strip()
        self.press("qvtblt", "Save", "push button")
        session.wait_for(self.notice, "the line")
        away.rename(self.config())
        self.press("qvtblt", "Try Again", "push button")
        session.wait_for(lambda: not self.notice(), "the line's end")
        self.assertEqual(self.file_strips(), (1, 0))

    def test_settings_that_cannot_be_loaded_are_told_at_once_and_not_overwritten(self):
        self.start_driver()
        whole = self.config().read_bytes()
        self.config().write_bytes(b"nonsense")
        self.start([session.BIN / "qvtblt"])
        session.wait_for(self.notice, "the line")
        self.config().write_bytes(whole)
        self.press("qvtblt", "Try Again", "push button")
        self.find("qvtblt", "Quorvia Draft S", "label")
        session.wait_for(lambda: not self.notice(), "the line's end")
        self.assertEqual(self.config().read_bytes(), whole)

    def test_a_window_whose_changes_cannot_be_saved_is_not_closed_unasked(self):
        self.start_driver()
        panel = self.start_panel()
        away = self.config().with_suffix(".away")
        self.config().rename(away)
        self.click_strip()
        self.close_window(TITLE)
        self.press("qvtblt", "Keep Open", "push button")
        session.wait_for(lambda: not [thing for thing in self.things("qvtblt")
                                      if thing["name"] == "Keep Open"], "the question's end")
        self.assertIsNone(panel.poll())
        self.close_window(TITLE)
        self.press("qvtblt", "Discard", "push button")
        self.assertEqual(panel.wait(timeout=session.PATIENCE), 0)


class SmallScreen(desktop.Desktop):
    """The window with its frame on a small screen, with large text."""

    SCREEN = "1024x600x24"

    def test_the_whole_window_is_on_the_screen(self):
        self.start_driver()
        for points in (10, 14, 18):
            for language in ("en", "de", "es", "fr", "ja", "zh_CN"):
                with self.subTest(points=points, language=language):
                    self.env["LANGUAGE"] = language
                    self.env["QT_FONT_DPI"] = str(96 * points // 10)  # 10 is usual
                    panel = self.start([session.BIN / "qvtblt"])
                    window = session.wait_for(
                        lambda: self.run_program("xdotool", "search", "--onlyvisible", "--class",
                                                 "qvtblt").stdout.split(), "the window")[-1]
                    frame = session.wait_for(lambda: self.frame(window), "its frame")
                    left, top, width, height = frame
                    self.assertGreaterEqual((left, top), (0, 0))
                    self.assertLessEqual(left + width, 1024)
                    self.assertLessEqual(top + height, 600)
                    panel.terminate()
                    panel.wait(timeout=session.PATIENCE)

    def frame(self, window):
        """Returns the window's rectangle with its frame; None before it has one."""
        text = self.run_program("xwininfo", "-id", window, "-frame").stdout
        extents = self.run_program("xprop", "-id", window, "_NET_FRAME_EXTENTS").stdout
        if "=" not in extents:
            return None
        return tuple(int(re.search(rf"{words}: +(-?\d+)", text)[1]) for words in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))


class WithoutDisplay(session.Session):
    def panel(self, *arguments):
        return self.run_program(session.BIN / "qvtblt", *arguments)

    def test_help_and_version(self):
        self.assertIn("--render <DIR>", self.panel("--help").stdout)
        self.assertRegex(self.panel("--version").stdout, r"^qvtblt \d+\.\d+\.\d+\n$")

    def test_says_that_there_is_no_display(self):
        result = self.panel()
        self.assertEqual(result.returncode, 1)
        self.assertIn("there is no display", result.stderr)

    def test_renders_each_page_with_and_without_a_tablet_and_saves_nothing(self):
        self.start_driver()
        before = self.config().read_bytes()
        folder = self.home / "new/pages"
        result = self.panel("--render", folder)
        self.assertEqual(result.returncode, 0, result.stderr)
        names = sorted(path.name for path in folder.iterdir())
        self.assertIn("keyPage.png", names)
        self.assertIn("displayPage.png", names)
        self.assertIn("noDevice.png", names)
        self.assertEqual(sorted(result.stdout.split()), [str(folder / name) for name in names])
        for name in names:
            self.assertEqual((folder / name).read_bytes()[:4], b"\x89PNG")
        self.assertEqual(self.config().read_bytes(), before)
        self.assertEqual(self.simulator("Pushes"), ["u", "0"])

    def test_renders_without_a_driver_what_there_is_to_see(self):
        result = self.panel("--render", self.home)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(result.stdout, f"{self.home}/noDevice.png\n")

    def test_says_when_it_cannot_write_the_pictures(self):
        for folder in ("/proc/none", "/dev/null"):
            result = self.panel("--render", folder)
            self.assertEqual(result.returncode, 1)
            self.assertIn("qvtblt: cannot", result.stderr)
        result = self.panel("--render", "/proc")
        self.assertEqual(result.returncode, 1)
        self.assertRegex(result.stderr, "qvtblt: cannot write /proc/noDevice.png: .")

    def test_says_when_the_module_is_missing(self):
        copy = self.folder / "qvtblt"
        copy.write_bytes((session.BIN / "qvtblt").read_bytes())
        copy.chmod(0o755)
        result = self.run_program(copy, "--render", self.home)
        self.assertEqual(result.returncode, 1)
        self.assertIn("qvtblt: cannot load the panel", result.stderr)


if __name__ == "__main__":
    unittest.main()
