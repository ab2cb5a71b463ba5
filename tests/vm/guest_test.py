# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The real driver with tablets that the kernel takes for real ones. Runs in the virtual machine, see
vm_test.py."""

import fcntl
import json
import os
import pathlib
import plistlib
import re
import signal
import socket
import struct
import sys
import time
import unittest

from gi.repository import Gio, GLib

import desktop
import guest
import session
from guest import KEYBOARD, PEN, POINTER, wait_for
from tablet import LOWER, PRESSURE_MAX, STRIP_MAX, UPPER, Tablet

# The tablet is 48000 by 30000 units; the virtual pen has four times as many.
MIDDLE = {"x": 24000, "y": 15000}
LEFT, RIGHT, BACK, MIDDLE_BUTTON = range(4)
CONTROL, SHIFT, ALT = 54, 56, 58
EVIOCGRAB = 0x40044590

# The kernel's names of the keys that are not called as in the panel.
KEY_NAMES = {
    "Esc": "ESC", "Bksp": "BACKSPACE", "PgUp": "PAGEUP", "PgDn": "PAGEDOWN", "-": "MINUS", "+": "EQUAL",
    "Ctrl": "LEFTCTRL", "Shift": "LEFTSHIFT", "Alt": "LEFTALT", "\u2318": "LEFTMETA",
}


def setUpModule():
    guest.TestCase.world = guest.World()
    guest.TestCase.world.make()


def wait_for_stop(process):
    """Waits until a process does not run any more."""
    wait_for(lambda: "T (stopped)" in pathlib.Path(f"/proc/{process}/status").read_text(),
             f"process {process} to stop")


def down_and_up(*names):
    """The frames of keys that go down in this order, and up in reverse."""
    return [[(name, 1)] for name in names] + [[(name, 0)] for name in reversed(names)]


class TheTablet(guest.TestCase):
    def test_is_one_device_of_a_pen_and_keys_with_what_the_kernel_says_of_it(self):
        tablets = self.world.tablets()
        node = guest.Node.find(self.tablet.name)
        self.assertEqual(tablets, [{
            "id": self.tablet.id, "name": self.tablet.name, "vendor": 0x6F3D, "product": 0x42,
            "node": node, "inUse": True, "problem": "", "width": 240.0, "height": 150.0,
            "pressureLevels": 8192, "tilt": True, "eraser": True, "keys": 16, "strips": 2}])
        self.assertEqual([self.world.property(name) for name in (
            "Name", "VendorID", "ProductID", "State", "Problem")],
            [self.tablet.name, 0x6F3D, 0x42, "attached", ""])

    def test_has_a_file_with_what_the_kernel_says_of_it(self):
        config = plistlib.loads(self.config(0x42).read_bytes())
        tablet = config["Tablet"]
        self.assertEqual(
            {key: tablet[key] & 0xFFFF for key in tablet.keys() & guest.Record.FIELDS.keys()},
            {"VendorID": 0x6F3D, "ProductID": 0x42, "KeyNum": 16, "ScrollNum": 2, "PressureMax": 8191,
             "TabletXmin": 0, "TabletXmax": 48000, "TabletYmin": 0, "TabletYmax": 30000})
        self.assertEqual(tablet["Name"], self.tablet.name)

    def config(self, number):
        return self.world.home / f"Library/Preferences/QuorviaTablet/config/{number}.plist"

    def test_obeys_what_qvtbltctl_sets(self):
        # It takes a driver that is slow to answer for none, and here they all are.
        wait_for(lambda: self.world.run(session.BIN / "qvtbltctl", "set", "Monitor/rotationFlag", "180")
                 .returncode == 0, "qvtbltctl")
        self.assertEqual(self.place(8000, 6000), (160000, 96000))

    def test_of_a_foreign_maker_gets_a_number_of_its_own_and_is_chosen_by_name(self):
        foreign = Tablet("Large Tablet", 0x6F3E, 0x42, "", place="usb-test-2", x_max=120000, y_max=75000,
                         width=300, height=188, has_pad=False)
        self.addCleanup(self.renew)
        self.addCleanup(foreign.unplug)
        listed = wait_for(
            lambda: [tablet for tablet in self.world.tablets() if tablet["id"] == foreign.id],
            "the second tablet")
        self.assertEqual([(tablet["inUse"], tablet["keys"]) for tablet in listed], [(False, 0)])
        result = self.world.run(session.BIN / "qvtbltctl", "tablet", "use", foreign.id)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.world.wait_until_used(foreign)
        self.assertEqual(self.world.property("ProductID"), 0x8000)
        # Too large for the record, so that two of its units are one there; the virtual pen has all.
        tablet = plistlib.loads(self.config(0x8000).read_bytes())["Tablet"]
        self.assertEqual([tablet[key] & 0xFFFF for key in ("ProductID", "TabletXmax", "TabletYmax")],
                         [0x8000, 60000, 37500])
        foreign.pen(30001, 75000)
        foreign.away()
        self.pen.wait_for("BTN_TOOL_PEN", 0)
        self.assertEqual((self.pen.state["ABS_X"], self.pen.state["ABS_Y"]), (120004, 300000))

        # It is what was chosen, so that the first one waits until it is gone.
        foreign.unplug()
        self.world.wait_until_used(self.tablet)
        self.assertEqual(self.place(12000, 7500), (48000, 30000))

    def test_obeys_no_settings_for_another_one(self):
        self.push(ProductID=self.tablet.product + 1, rotationFlag=180, disableFlag=1)
        self.assertEqual(self.place(12000, 7500), (48000, 30000))

    def test_waits_for_another_program_that_has_taken_it(self):
        self.addCleanup(self.renew)
        self.world.end()
        tablet = Tablet()
        self.addCleanup(tablet.unplug)
        other = os.open(wait_for(lambda: guest.Node.find(tablet.name), "its node"), os.O_RDONLY)
        fcntl.ioctl(other, EVIOCGRAB, 1)
        self.world.start_driver()
        wait_for(lambda: self.world.property("Problem") == f"Another program is using {tablet.name}.",
                 "the problem")
        self.assertEqual(self.world.property("State"), "no-permission")
        os.close(other)
        self.world.wait_for_state("attached")
        self.assertEqual(self.world.property("Problem"), "")


class ThePen(guest.TestCase):
    def test_covers_its_whole_range_with_the_whole_tablet(self):
        self.assertEqual(self.place(0, 0), (0, 0))
        self.assertEqual(self.place(48000, 30000), (192000, 120000))
        self.assertEqual(self.place(12001, 7501), (48004, 30004))

    def test_covers_its_whole_range_with_the_area(self):
        self.push(cTabletXmin=12000, cTabletXmax=36000, cTabletYmin=6000, cTabletYmax=21000)
        self.assertEqual(self.place(12000, 6000), (0, 0))
        self.assertEqual(self.place(18000, 13500), (48000, 60000))
        self.assertEqual(self.place(36000, 21000), (192000, 120000))

    def test_stays_at_the_edge_of_the_area_outside_of_it(self):
        self.push(cTabletXmin=12000, cTabletXmax=36000, cTabletYmin=6000, cTabletYmax=21000)
        self.assertEqual(self.place(0, 13500), (0, 60000))
        self.assertEqual(self.place(48000, 29999), (192000, 120000))

    def test_is_turned_with_the_tablet_and_so_is_its_area(self):
        self.push(rotationFlag=180)
        self.assertEqual(self.place(12000, 6000), (144000, 96000))
        # The left half of the turned tablet is what was its right one.
        self.push(cTabletXmax=24000)
        self.assertEqual(self.place(36000, 6000), (96000, 96000))
        self.assertEqual(self.place(12000, 6000), (192000, 96000))

    def test_keeps_all_8192_levels_of_pressure_on_the_straight_line(self):
        levels = [1, 2, 3, 500, 501, 4095, 4096, 8190, PRESSURE_MAX]
        self.assertEqual(self.pressures(levels), levels)

    def test_has_the_pressure_of_the_curve(self):
        levels = [1, 100, 1024, 2048, 4096, 6000, 8000, PRESSURE_MAX]
        for threshold in (0, 50, 150, 200):
            with self.subTest(threshold=threshold):
                self.push(PressureThreshold=threshold)
                bend = abs(threshold - 100) / 100
                pressures = self.pressures(levels)
                # A light curve is a heavy one with its axes exchanged.
                flat, steep = (levels, pressures) if threshold < 100 else (pressures, levels)
                for low, high in zip(flat, steep):
                    part = high / PRESSURE_MAX
                    curved = PRESSURE_MAX * ((1 - bend) * part + bend * part * part)
                    # One level of pressure is how much on the other axis?
                    self.assertAlmostEqual(low, max(curved, min(1, low)), delta=1 + 2 * bend)

    def pressures(self, levels):
        return [state["ABS_PRESSURE"] for state in self.stroke(
            *({**MIDDLE, "pressure": level} for level in levels))]

    def test_carries_tilt_distance_and_serial_number_through(self):
        state, = self.stroke({**MIDDLE, "tilt": (-60, 31), "distance": 40, "serial": 0x1234567})
        self.assertEqual(
            [state[name] for name in ("ABS_TILT_X", "ABS_TILT_Y", "ABS_DISTANCE", "MSC_SERIAL")],
            [-60, 31, 40, 0x1234567])

    def test_tilts_the_other_way_on_a_turned_tablet(self):
        self.push(rotationFlag=180)
        state, = self.stroke({**MIDDLE, "tilt": (-60, 31)})
        self.assertEqual([state[name] for name in ("ABS_TILT_X", "ABS_TILT_Y")], [60, -31])

    def test_erases_with_its_other_end(self):
        states = self.stroke({**MIDDLE, "eraser": True}, {**MIDDLE, "eraser": True, "pressure": 4000})
        self.assertEqual([(state["BTN_TOOL_RUBBER"], state["BTN_TOOL_PEN"],
                           state["BTN_TOUCH"], state["ABS_PRESSURE"]) for state in states],
                         [(1, 0, 0, 0), (1, 0, 1, 4000)])

    def test_comes_and_goes_once_and_tells_the_time_in_each_frame(self):
        for x in (1000, 2000, 3000):
            self.tablet.pen(x, 1000, pressure=x)
        self.tablet.away()
        self.pen.wait_for("BTN_TOOL_PEN", 0)
        frames, self.pen.frames = self.pen.frames, []
        events = [event for frame in frames for event in frame]
        self.assertEqual([value for name, value in events if name == "BTN_TOOL_PEN"], [1, 0])
        self.assertEqual([value for name, value in events if name == "BTN_TOUCH"], [1, 0])
        times = [dict(frame)["MSC_TIMESTAMP"] for frame in frames]
        self.assertEqual(len(times), 4)
        self.assertEqual(times, sorted(times))

    def test_is_seen_by_libinput_as_a_tablet_tool_with_a_whole_stroke(self):
        self.record.slot(guest.Record.UPPER, 1, RIGHT)
        self.push()
        begin = len(self.world.libinput.lines)
        for step in range(5):
            self.tablet.pen(20000 + 1000 * step, 15000)
        for step in range(8):
            self.tablet.pen(24000 + 1000 * step, 15000, pressure=1000 * step + 1000, buttons=UPPER)
        for step in range(5):
            self.tablet.pen(32000 + step, 15000)
        self.tablet.away()
        events = [(event, rest) for name, event, rest in self.libinput(begin, "proximity-out")
                  if name == PEN]
        told = [(event, rest) for event, rest in events if event != "TABLET_TOOL_AXIS"]
        words = [re.search(r"proximity-(in|out)|\b(down|up|pressed|released)\b", rest).group()
                 for _, rest in told]
        self.assertEqual((words[0], sorted(words[1:3]), sorted(words[3:5]), words[5:]),
                         ("proximity-in", ["down", "pressed"], ["released", "up"], ["proximity-out"]))
        # In millimetres, of a pen that claims to be an eighth of the tablet.
        self.assertRegex(events[0][1], r"\b12\.50\*?/9\.38")

    def test_touches_for_libinput_with_its_lightest_stroke(self):
        self.push(PressureThreshold=200)
        begin = len(self.world.libinput.lines)
        for report in (MIDDLE, {**MIDDLE, "pressure": 1}, MIDDLE):
            self.tablet.pen(**report)
        self.tablet.away()
        tips = [rest for name, event, rest in self.libinput(begin, "proximity-out")
                if (name, event) == (PEN, "TABLET_TOOL_TIP")]
        self.assertEqual([re.search(r"\b(down|up)\b", rest).group() for rest in tips], ["down", "up"])


class TheButtonsOfThePen(guest.TestCase):
    SLOTS = ((UPPER, guest.Record.UPPER), (LOWER, guest.Record.LOWER))

    def pressed(self, buttons):
        """Returns the pen's buttons that go down with those of the tablet's pen, and up again."""
        down, up = self.stroke({**MIDDLE, "buttons": buttons}, {**MIDDLE, "x": 24001})
        names = [name for name in down if name.startswith("BTN_STYLUS") and down[name]]
        self.assertFalse(any(up[name] for name in names), up)
        return names

    def test_are_the_buttons_of_a_pen_by_their_slots(self):
        for button, slot in self.SLOTS:
            for mouse, name in ((RIGHT, "BTN_STYLUS2"), (MIDDLE_BUTTON, "BTN_STYLUS"),
                                (BACK, "BTN_STYLUS3")):
                with self.subTest(slot=slot, name=name):
                    self.record = guest.Record(self.tablet).slot(slot, 1, mouse)
                    self.push()
                    self.assertEqual(self.pressed(button), [name])
                    self.assertEqual(self.pressed(button ^ 3), [])

    def test_touch_with_full_pressure_as_the_left_mouse_button(self):
        for button, slot in self.SLOTS:
            with self.subTest(slot=slot):
                self.record = guest.Record(self.tablet).slot(slot, 1, LEFT)
                self.push()
                states = self.stroke(MIDDLE, {**MIDDLE, "buttons": button}, {**MIDDLE, "x": 24001})
                self.assertEqual([(state["BTN_TOUCH"], state["ABS_PRESSURE"]) for state in states],
                                 [(0, 0), (1, PRESSURE_MAX), (0, 0)])

    def test_press_keys(self):
        for button, slot in self.SLOTS:
            with self.subTest(slot=slot):
                self.record = guest.Record(self.tablet).combination(slot, CONTROL, 6)
                self.push()
                self.assertEqual(self.pressed(button), [])
                self.assertEqual(self.take(), (down_and_up("KEY_LEFTCTRL", "KEY_Z"), []))

    def test_let_go_when_the_pen_leaves_with_its_button_down(self):
        self.record.combination(guest.Record.UPPER, SHIFT)
        self.push()
        self.stroke({**MIDDLE, "buttons": UPPER})
        self.assertEqual(self.take(), (down_and_up("KEY_LEFTSHIFT"), []))

    def test_do_nothing_without_an_action(self):
        self.assertEqual(self.pressed(UPPER | LOWER), [])
        self.assertEqual(self.take(), ([], []))


class TheKeys(guest.TestCase):
    def test_are_the_slots_in_the_order_of_the_kernels_codes(self):
        digits = (29, 18, 19, 20, 21, 23, 22, 26, 28, 25, 0, 11, 8, 2, 14)
        names = [f"KEY_{digit}" for digit in range(10)] + [f"KEY_{letter}" for letter in "ABCDE"]
        for slot, code in enumerate(digits):
            self.record.combination(slot, code)
        self.push()
        for slot in range(len(digits)):
            self.press(slot)
        self.press()
        expected = []
        for before, name in zip([None, *names], names):
            # In one report, the key with the lower slot comes first.
            expected += ([[(before, 0)]] if before else []) + [[(name, 1)]]
        self.assertEqual(self.take(), (expected + [[(names[-1], 0)]], []))

    def test_press_nothing_without_an_action_or_with_an_unknown_one(self):
        for slot, valid in enumerate((0, 7, -1, 4)):
            self.record.slot(slot, valid, mouse=1, key=0x01000000)
        self.push()
        self.assertEqual(self.click(0, 1, 2, 3), ([], []))

    def test_hold_the_buttons_of_a_mouse(self):
        for slot in range(4):
            self.record.slot(slot, 1, slot)
        self.push()
        for slot, name in ((LEFT, "BTN_LEFT"), (RIGHT, "BTN_RIGHT"), (BACK, "BTN_SIDE"),
                           (MIDDLE_BUTTON, "BTN_MIDDLE")):
            with self.subTest(name=name):
                self.press(slot)
                self.assertEqual(self.take(), ([], [[(name, 1)]]))
                self.press()
                self.assertEqual(self.take(), ([], [[(name, 0)]]))

    def test_press_keys_in_order_and_let_go_in_reverse(self):
        self.record.combination(0, CONTROL, SHIFT, 6).combination(1, 6, ALT)
        self.push()
        self.assertEqual(self.click(0), (down_and_up("KEY_LEFTCTRL", "KEY_LEFTSHIFT", "KEY_Z"), []))
        self.assertEqual(self.click(1), (down_and_up("KEY_Z", "KEY_LEFTALT"), []))

    def test_press_each_key_that_the_panel_offers(self):
        header = (session.SOURCE / "QVTblt/hid_usb_2_adb_keymap_char.h").read_text()
        keys = [(int(code), name.encode().decode("unicode_escape"))
                for code, name in re.findall(r'^    \{(\d+), u"(.+)"\},$', header, re.MULTILINE)]
        self.assertEqual(len(keys), 68)
        keys.remove((111, "F12"))  # without which nothing here would work
        expected = []
        for begin in range(0, len(keys), 8):
            part = keys[begin:begin + 8]
            for slot, (code, name) in enumerate(part):
                self.record.combination(slot, code)
                expected += down_and_up("KEY_" + KEY_NAMES.get(name, name.upper()))
            self.push()
            for slot in range(len(part)):
                self.press(slot)
                self.press()
            self.settle()
        self.assertEqual(self.take(), (expected, []))

    def test_press_nothing_with_an_empty_combination(self):
        self.record.combination(0)
        self.push()
        self.assertEqual(self.click(0), ([], []))

    def test_let_go_of_what_they_have_pressed_after_their_setting_has_changed(self):
        self.record.combination(0, CONTROL, 6)
        self.push()
        self.press(0)
        self.record.slot(0, 1, RIGHT)
        self.push()
        self.press()
        self.assertEqual(self.take(), (down_and_up("KEY_LEFTCTRL", "KEY_Z"), []))
        self.assertEqual(self.click(0), ([], [[("BTN_RIGHT", 1)], [("BTN_RIGHT", 0)]]))

    def test_obey_a_profile_at_once_and_let_go_of_what_the_last_one_pressed(self):
        def ctl(*words):
            # It takes a driver that is slow to answer for none, and here they all are.
            wait_for(lambda: self.world.run(session.BIN / "qvtbltctl", *words).returncode == 0,
                     "qvtbltctl")
        last = f"Key/Key{guest.Record.LAST}"  # as in the record that the tests push
        ctl("set", f"{last}/Valid", "3")
        ctl("set", f"{last}/Key", str(int.from_bytes((111, 0, 0, 1), "little")))
        ctl("set", "Key/Key0/Valid", "1")
        for name, button in (("Middle", "3"), ("Right", "1")):
            ctl("set", "Key/Key0/Mouse", button)
            ctl("profile", "save", name)
        self.press(0)
        ctl("profile", "use", "Middle")
        self.press()
        self.assertEqual(self.take(), ([], [[("BTN_RIGHT", 1)], [("BTN_RIGHT", 0)]]))
        self.assertEqual(self.click(0), ([], [[("BTN_MIDDLE", 1)], [("BTN_MIDDLE", 0)]]))

    def test_hold_a_key_until_the_last_of_them_lets_go(self):
        self.record.combination(0, CONTROL).combination(1, CONTROL, 6)
        self.push()
        self.press(0)
        self.press(0, 1)
        self.press(1)
        self.press()
        self.assertEqual(self.take(), (down_and_up("KEY_LEFTCTRL", "KEY_Z"), []))

    def test_tell_the_panel_that_they_are_down(self):
        told = []
        path, interface = session.TABLET
        number = self.world.bus.signal_subscribe(
            session.DRIVER_NAME, interface, "ButtonChanged", path, None, Gio.DBusSignalFlags.NONE,
            lambda *signal: told.append(signal[5].unpack()))
        self.addCleanup(self.world.bus.signal_unsubscribe, number)
        self.world.property("State")  # the bus has the subscription now
        self.press(3)
        self.press()
        self.settle()  # the pen is read first
        self.stroke({**MIDDLE, "buttons": UPPER}, MIDDLE, {**MIDDLE, "buttons": LOWER})
        wait_for(lambda: (17, False) in told, "what is told of six changes")
        self.assertEqual(
            [each for each in told if each[0] != guest.Record.LAST],
            [(3, True), (3, False), (16, True), (16, False), (17, True), (17, False)])

    def test_are_seen_by_libinput_as_a_keyboard_and_a_mouse(self):
        self.record.combination(0, CONTROL, 6).slot(1, 1, BACK)
        self.push()
        begin = len(self.world.libinput.lines)
        self.click(1)
        self.click(0)
        self.assertEqual([re.sub(r"^\S+\s+", "", rest) for name, _, rest
                          in self.libinput(begin, "KEY_LEFTCTRL (29) released") if name == KEYBOARD and "F12" not in rest],
                         ["KEY_LEFTCTRL (29) pressed", "KEY_Z (44) pressed", "KEY_Z (44) released",
                          "KEY_LEFTCTRL (29) released"])
        self.assertEqual([re.search(r"BTN_\w+ .*(pressed|released)", rest).group() for name, _, rest
                          in self.libinput(begin, "BTN_SIDE (275) released") if name == POINTER],
                         ["BTN_SIDE (275) pressed", "BTN_SIDE (275) released"])


class TheStrips(guest.TestCase):
    def setUp(self):
        super().setUp()
        # A strip that is off forgets what it has not scrolled yet.
        self.push(Scrollbar0=1, Scrollbar1=1)
        self.settle()
        self.push(Scrollbar0=0, Scrollbar1=0)

    def scrolled(self):
        """Returns how far the wheel was turned, in 120ths of a notch."""
        events = [event for frame in self.take()[1] for event in frame]
        amount, notches = (sum(value for name, value in events if name == wheel)
                           for wheel in ("REL_WHEEL_HI_RES", "REL_WHEEL"))
        # Whole notches for programs that know no others, as soon as they are whole: less than one may
        # be left over, and may have been left over before in the other direction.
        self.assertLess(abs(notches - amount / 120), 2)
        return amount

    def slide(self, *places):
        for place in places:
            self.tablet.strip(place)
        self.tablet.strip(0)

    def turn(self, *places):
        for place in places:
            self.tablet.ring(place)

    def test_scroll_in_high_resolution_by_the_speed(self):
        # A whole strip is twice as many notches as the speed.
        for speed, places in ((1, (1, 2, 51)), (5, (1, 40, 51)), (10, (51, 1, 51, 101 - 50))):
            with self.subTest(speed=speed):
                self.push(ScrollSpeed=speed)
                self.slide(*places)
                way = places[-1] - places[0]
                amount = -240 * speed * way // STRIP_MAX
                self.assertEqual(self.scrolled(), amount)

    def test_lose_nothing_between_small_steps(self):
        self.push(ScrollSpeed=1)
        for place in range(STRIP_MAX, 0, -1):
            self.tablet.strip(place)
            if place % 10 == 0:
                self.settle()
                self.pointer.read()  # the kernel keeps so many events only
        self.slide(1, 2)
        self.assertAlmostEqual(self.scrolled(), 240 * 98 / STRIP_MAX, delta=1)

    def test_scroll_nothing_where_the_finger_comes_down(self):
        self.slide(10)
        self.slide(90)
        self.assertEqual(self.scrolled(), 0)

    def test_turn_around_the_end_of_a_ring(self):
        self.turn(70)
        self.take()
        self.turn(2, 8)
        self.assertAlmostEqual(self.scrolled(), -240 * 5 * 10 / 72, delta=1)

    def test_are_off_one_by_one(self):
        self.push(Scrollbar0=1)
        self.slide(1, 51)
        self.assertEqual(self.scrolled(), 0)
        self.turn(20, 26)
        self.assertNotEqual(self.scrolled(), 0)
        self.push(Scrollbar0=0, Scrollbar1=1)
        self.turn(40, 34)
        self.assertEqual(self.scrolled(), 0)
        self.slide(1, 51)
        self.assertEqual(self.scrolled(), -600)

    def test_run_the_other_way_on_a_turned_tablet(self):
        self.push(rotationFlag=180)
        self.slide(1, 51)
        self.assertEqual(self.scrolled(), 600)

    def test_are_seen_by_libinput_as_a_wheel(self):
        begin = len(self.world.libinput.lines)
        self.slide(1, 51)
        events = self.libinput(begin, "POINTER_SCROLL_WHEEL")
        self.assertRegex(events[-1][2], r"vert 75\.00/600\.0\*")
        self.assertEqual(events[-1][0], POINTER)


class Functions(guest.TestCase):
    def test_a_key_pauses_the_tablet_and_the_same_key_wakes_it(self):
        self.record.slot(0, 6)
        self.push()
        self.click(0)
        self.world.wait_for_state("paused")
        self.tablet.pen(1000, 1000, pressure=4000)
        self.tablet.away()
        self.settle()
        self.assertEqual(self.pen.take(), [])
        self.click(0)
        self.world.wait_for_state("attached")
        self.assertEqual(self.place(12000, 7500), (48000, 30000))

    def test_pausing_in_a_stroke_lifts_the_pen(self):
        self.record.slot(0, 6)
        self.push()
        self.tablet.pen(1000, 1000, pressure=4000)
        self.pen.wait_for("BTN_TOUCH", 1)
        self.press(0)
        self.press()
        self.pen.wait_for("BTN_TOOL_PEN", 0)
        self.assertEqual((self.pen.state["BTN_TOUCH"], self.pen.state["ABS_PRESSURE"]), (0, 0))
        self.tablet.away()
        self.click(0)
        self.world.wait_for_state("attached")

    def test_a_key_slows_the_pen_to_a_quarter_while_it_is_held(self):
        self.record.slot(0, 5)
        self.push()
        self.tablet.pen(24000, 15000)
        self.pen.wait_for("BTN_TOOL_PEN", 1)
        self.press(0)
        self.settle()
        self.tablet.pen(28000, 17000)
        self.pen.wait_for("ABS_X", 96000 + 4000)
        self.assertEqual(self.pen.state["ABS_Y"], 60000 + 2000)
        self.press()
        self.settle()
        self.tablet.pen(28001, 17000)
        self.pen.wait_for("ABS_X", 4 * 28001)
        self.tablet.away()
        self.pen.wait_for("BTN_TOOL_PEN", 0)

    def test_a_key_starts_an_application_once_a_second(self):
        first, second = (guest.make_program(
            f"program-{number}", f"#!/bin/sh\necho started >>{guest.FOLDER}/started-{number}\n")
            for number in (1, 2))
        desktop = guest.make_program(
            "program.desktop", f"[Desktop Entry]\nType=Application\nName=Program\nExec={second}\n")
        self.record.slot(0, 2, app=first).slot(1, 2, app=desktop)
        self.push()
        for _ in range(3):
            self.press(0)
            self.press()
        self.click(1)
        started = [guest.FOLDER / f"started-{number}" for number in (1, 2)]
        wait_for(lambda: all(path.exists() for path in started), "both programs")
        self.assertEqual([path.read_text() for path in started], ["started\n"] * 2)

    def test_an_application_that_is_gone_is_a_problem_until_another_one_starts(self):
        self.record.slot(2, 2, app="/nowhere/program").slot(3, 2, app="/bin/true")
        self.push()
        self.click(2)
        wait_for(lambda: "/nowhere/program" in self.world.property("Problem"), "the problem")
        self.click(3)
        wait_for(lambda: self.world.property("Problem") == "", "the end of the problem")


class Displays(guest.TestCase):
    """Two displays of 1000 by 500 points, the main one to the right, as a file tells Qt. An area ends at the
    beginning of its last points."""

    NOTIFICATIONS = "org.freedesktop.Notifications"

    @classmethod
    def setUpClass(cls):
        config = guest.FOLDER / "screens.json"
        config.write_text(json.dumps({"screens": [
            {"name": "DP-1", "x": 1000, "y": 0, "width": 1000, "height": 500},
            {"name": "DP-2", "x": 0, "y": 0, "width": 1000, "height": 500}]}))
        cls.begin_anew(DISPLAY=":9", QT_QPA_PLATFORM=f"offscreen:configfile={config}")
        cls.notices = []
        interface, = Gio.DBusNodeInfo.new_for_xml(
            f"""<node><interface name="{cls.NOTIFICATIONS}"><method name="Notify">
            <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
            <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
            <arg type="a{{sv}}" direction="in"/><arg type="i" direction="in"/>
            <arg type="u" direction="out"/></method></interface></node>""").interfaces
        bus = cls.world.bus
        cls.object = bus.register_object(
            "/" + cls.NOTIFICATIONS.replace(".", "/"), interface, cls.notify, None, None)
        cls.name = Gio.bus_own_name_on_connection(
            bus, cls.NOTIFICATIONS, Gio.BusNameOwnerFlags.NONE, None, None)

    @classmethod
    def tearDownClass(cls):
        Gio.bus_unown_name(cls.name)
        cls.world.bus.unregister_object(cls.object)
        cls.begin_anew()

    @classmethod
    def begin_anew(cls, **env):
        cls.world.end()
        cls.world.start_driver(**env)
        cls.world.plug(Tablet())

    @classmethod
    def notify(cls, _bus, _sender, _path, _interface, _method, words, call):
        cls.notices.append(words.unpack()[3])
        call.return_value(GLib.Variant("(u)", (len(cls.notices),)))

    def setUp(self):
        super().setUp()
        self.record.slot(0, 4)
        # The left display, after another area, so that it is no longer a button's choice.
        self.push(XOrg=-1000, Width=1000, YOrg=0, Height=500)
        wait_for(lambda: self.place(48000, 30000) == (95914, 119784), "the displays")
        self.notices.clear()

    def test_are_where_the_record_says(self):
        self.assertEqual(self.place(0, 0), (0, 0))
        self.push(XOrg=0)
        self.assertEqual(self.place(0, 0), (96001, 0))
        self.assertEqual(self.place(48000, 30000), (191914, 119784))
        self.push(XOrg=-1000, Width=2000)
        self.assertEqual(self.place(24000, 15000), (95957, 59892))
        self.push(XOrg=5000)  # where there is no display
        self.assertEqual(self.place(48000, 30000), (192000, 120000))

    def test_a_key_goes_to_the_next_one_until_the_panel_says_otherwise(self):
        for x, notice in ((96001, "The pen is on display #1 (DP-1)"), (0, "The pen is on display #2 (DP-2)")):
            self.click(0)
            wait_for(lambda x=x: self.place(0, 0) == (x, 0), "the next display")
            wait_for(lambda notice=notice: self.notices[-1:] == [notice], notice)
        self.click(0)
        wait_for(lambda: self.place(0, 0) == (96001, 0), "the next display")
        self.push(PressureThreshold=120)
        self.assertEqual(self.place(0, 0), (96001, 0))
        self.push(XOrg=-1000, Width=2000)
        self.assertEqual(self.place(0, 0), (0, 0))

    def test_a_calibration_is_for_the_one_that_the_record_says(self):
        self.click(0)
        wait_for(lambda: self.place(0, 0) == (96001, 0), "the next display")
        self.push(disableFlag=1)
        self.world.wait_for_state("calibrating")
        self.push(disableFlag=0)
        self.world.wait_for_state("attached")
        self.assertEqual(self.place(0, 0), (0, 0))

    def test_a_stroke_ends_where_it_is_when_the_pen_goes_to_another(self):
        self.tablet.pen(24000, 15000, pressure=4000)
        self.pen.wait_for("BTN_TOUCH", 1)
        self.press(0)
        self.pen.wait_for("ABS_X", 143957)
        lifted = next(frame for frame in self.pen.frames if ("BTN_TOUCH", 0) in frame)
        self.assertNotIn("ABS_X", dict(lifted))
        self.press()
        self.tablet.pen(24000, 15000, pressure=5000)
        self.tablet.away()
        self.pen.wait_for("BTN_TOOL_PEN", 0)
        touches = [frame for frame in self.pen.frames if ("BTN_TOUCH", 1) in frame]
        self.assertEqual(len(touches), 1, "the tip has not been lifted in between")

    def test_a_word_says_that_the_pen_is_paused_unless_it_is_not_wanted(self):
        self.record.slot(1, 6)
        self.push()
        self.click(1)
        wait_for(lambda: self.notices == ["The pen is paused"], "the notice")
        self.click(1)
        wait_for(lambda: self.notices[1:] == ["The pen works again"], "the notice")
        ctl = session.BIN / "qvtbltctl"
        self.addCleanup(self.world.run, ctl, "tablet", "notices", "on")
        self.assertEqual(self.world.run(ctl, "tablet", "notices", "off").returncode, 0)
        self.click(1)
        self.world.wait_for_state("paused")
        self.click(1)
        self.world.wait_for_state("attached")
        self.assertEqual(len(self.notices), 2)


class Calibration(guest.TestCase):
    """A panel on a connection of its own asks for the reports of the pen."""

    INTERFACE = Gio.DBusNodeInfo.new_for_xml("""<node><interface name="org.quorvia.AppleEvents1">
        <method name="Send"><arg type="u" direction="in"/><arg type="u" direction="in"/>
        <arg type="a(u(uv))" direction="in"/><arg type="a(u(uv))" direction="out"/></method>
        </interface></node>""").interfaces[0]

    def setUp(self):
        super().setUp()
        self.panel = self.world.session.connect()
        self.reports = []
        self.panel.register_object(session.EVENTS[0], self.INTERFACE, self.take_report, None, None)
        self.record.set(disableFlag=1)
        self.addCleanup(self.leave)

    def take_report(self, _bus, _sender, _path, _interface, _method, parameters, call):
        (_, (_, items)), = parameters.unpack()[2]
        self.reports.append(struct.unpack("=IHH", bytes(items[0][1])[:8]))
        call.return_value(GLib.Variant("(a(u(uv)))", ([],)))

    def leave(self):
        if not self.panel.is_closed():
            self.panel.close_sync()
        self.world.wait_for_state("attached")

    def touch(self):
        self.tablet.pen(12000, 6000)
        self.tablet.pen(12000, 6000, pressure=4000)
        self.tablet.pen(12004, 6002, pressure=4000)
        self.tablet.pen(12004, 6002)
        self.tablet.away()

    def expect_reports(self, *reports):
        wait_for(lambda: len(self.reports) >= len(reports), "the reports")
        self.assertEqual(self.reports, list(reports))
        self.settle()
        self.assertEqual(self.pen.take(), [])

    def test_the_panel_gets_raw_reports_and_the_pen_moves_nothing(self):
        self.record.set(cTabletXmin=12000, cTabletXmax=36000)
        self.world.push(self.record, self.panel)
        self.world.wait_for_state("calibrating")
        self.touch()
        self.expect_reports((0, 12000, 6000), (1, 12000, 6000), (1, 12004, 6002), (0, 12004, 6002))

    def test_the_reports_of_a_turned_tablet_are_turned(self):
        self.record.set(rotationFlag=180)
        self.world.push(self.record, self.panel)
        self.touch()
        self.expect_reports((0, 36000, 24000), (1, 36000, 24000), (1, 35996, 23998), (0, 35996, 23998))

    def test_only_the_panel_that_calibrates_ends_it(self):
        self.world.push(self.record, self.panel)
        self.world.push(guest.Record(self.tablet))
        self.tablet.pen(12000, 6000)
        self.tablet.away()
        self.expect_reports((0, 12000, 6000))
        self.world.push(guest.Record(self.tablet), self.panel)
        self.assertEqual(self.place(12000, 6000), (48000, 24000))
        self.assertEqual(len(self.reports), 1)

    def test_ends_with_the_panel(self):
        self.world.push(self.record, self.panel)
        self.world.wait_for_state("calibrating")
        self.panel.close_sync()
        self.world.wait_for_state("attached")
        self.assertEqual(self.place(12000, 6000), (48000, 24000))


class CalibrationInThePanel(desktop.Desktop):
    """A panel on a display of 1280 by 900 points. Its crosses stand 50 points in, so they are 1180 and
    800 points apart: ten units each."""

    LEFT, TOP, RIGHT, BOTTOM = 5000, 4000, 16800, 12000
    AREA = {"cTabletXmin": 4500, "cTabletXmax": 17300, "cTabletYmin": 3500, "cTabletYmax": 12500}

    def setUp(self):
        world = guest.TestCase.world
        world.end()
        self.addCleanup(world.make)
        super().setUp()
        self.env["DBUS_SYSTEM_BUS_ADDRESS"] = world.system.address
        self.driver = self.start_and_await_driver()
        self.tablet = Tablet()
        self.addCleanup(self.tablet.unplug)
        session.wait_for(lambda: self.config(0x42).exists(), "the file")
        while self.driver.said.count(f"{self.tablet.name} obeys the settings") == 0 or (
                f"{guest.KEYS} keys" not in self.ctl("tablet", "list").stdout):
            self.driver.said.append(session.read_line(self.driver.stdout, "the tablet"))

    def monitor(self):
        return plistlib.loads(self.config(0x42).read_bytes())["Monitor"]

    def calibrate(self, turn):
        """Touches the four crosses; the function gives the places of the tablet that is turned, or of
        the one that is not."""
        panel = self.start([session.BIN / "qvtblt"])
        self.press("qvtblt", "Display", "page tab")
        self.press("qvtblt", "Calibrate…", "push button")
        while "calibrating" not in self.run_program(
                "busctl", "--user", "get-property", session.DRIVER_NAME, *session.TABLET, "State").stdout:
            pass
        # The reports wait until the panel is ready for the next cross.
        for x, y in ((self.LEFT, self.TOP), (self.RIGHT, self.TOP), (self.RIGHT, self.BOTTOM),
                     (self.LEFT, self.BOTTOM)):
            x, y = turn(x, y)
            self.tablet.pen(x, y)
            self.tablet.pen(x, y, pressure=3000)
            self.tablet.pen(x, y)
            self.tablet.away()
        self.find("qvtblt", "The tablet now fits the display. Keep this calibration?")
        self.press("qvtblt", "OK", "push button")
        wait_for(lambda: not any(thing["name"] == "Calibration" for thing in self.things("qvtblt")),
                 "the end of the window")
        panel.send_signal(signal.SIGTERM)
        self.assertEqual(panel.wait(timeout=guest.PATIENCE), 0)
        monitor = self.monitor()
        self.assertEqual({edge: monitor[edge] for edge in self.AREA}, self.AREA)
        self.assertEqual(monitor["disableFlag"], 0)
        # The pen is now where the crosses were.
        pen = guest.Node(PEN)
        self.addCleanup(pen.close)
        for x, y, across, down in ((self.LEFT, self.TOP, 50, 50),
                                   (self.RIGHT, self.BOTTOM, 1230, 850)):
            def touch(place=turn(x, y)):
                pen.take()
                self.tablet.pen(*place)
                self.tablet.away()
                pen.wait_for("BTN_TOOL_PEN", 0)
                return pen.state["ABS_X"], pen.state["ABS_Y"]
            # The area ends at the beginning of its last points, as soon as the display is known.
            place = (round(across / 1280 * (1280 - 0.9) * 4 * 48000 / 1280),
                     round(down / 900 * (900 - 0.9) * 4 * 30000 / 900))
            wait_for(lambda touch=touch, place=place: all(
                abs(is_ - goal) <= 1 for is_, goal in zip(touch(), place)), f"the pen at {place}")

    def test_puts_the_pen_where_the_crosses_were_also_on_a_turned_tablet(self):
        self.calibrate(lambda x, y: (x, y))
        result = self.ctl("set", "Monitor/rotationFlag", 180)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.calibrate(lambda x, y: (self.tablet.x_max - x, self.tablet.y_max - y))


class Safety(guest.TestCase):
    """Whatever happens in the middle of a stroke, with a key and a mouse button held: nothing stays
    pressed."""

    PRESSED = ((PEN, "BTN_TOUCH"), (PEN, "BTN_STYLUS2"), (PEN, "BTN_TOOL_PEN"),
               (KEYBOARD, "KEY_LEFTCTRL"), (POINTER, "BTN_RIGHT"))

    def setUp(self):
        super().setUp()
        self.record.combination(0, CONTROL).slot(1, 1, RIGHT).slot(guest.Record.UPPER, 1, RIGHT)
        self.push()
        self.begin_stroke()

    def begin_stroke(self):
        self.begin = len(self.world.libinput.lines)
        self.tablet.pen(12000, 6000)
        # Several, since libinput looks at the pen's way.
        for step in range(1, 6):
            self.tablet.pen(12000 + step, 6000, pressure=5000, buttons=UPPER)
        self.press(0, 1)
        self.pen.wait_for("ABS_X", 48020)
        self.keyboard.wait_for("KEY_LEFTCTRL", 1)
        self.pointer.wait_for("BTN_RIGHT", 1)
        for word in ("TABLET_TOOL_TIP", "KEY_LEFTCTRL", "POINTER_BUTTON"):
            self.world.libinput.wait(word, self.begin)

    def expect_nothing_pressed(self):
        """Checks that the driver has let go of everything, also of the tablet."""
        for node, name in self.PRESSED:
            node = self.world.nodes[node]
            node.wait(lambda: node.state[name] == 0, f"{name} to be let go")
        self.expect_nothing_pressed_for_libinput()

    def pressed(self):
        """Returns the state of what the stroke presses."""
        return [self.world.nodes[node].state[name] for node, name in self.PRESSED]

    def expect_nothing_pressed_for_libinput(self):
        for text in ("proximity-out", "KEY_LEFTCTRL (29) released", "BTN_RIGHT (273) released"):
            self.world.libinput.wait(text, self.begin)
        events = self.libinput(self.begin, "proximity-out")
        told = [rest for name, event, rest in events if name == PEN and event in (
            "TABLET_TOOL_TIP", "TABLET_TOOL_BUTTON")]
        self.assertEqual(sum(rest.count("down") + rest.count("pressed") for rest in told),
                         sum(len(re.findall(r"\bup\b|released", rest)) for rest in told), told)

    def expect_the_bare_tablet(self):
        """Checks that the desktop has the tablet itself."""
        self.tablet.away()
        self.press()
        begin = len(self.world.libinput.lines)
        for step in range(5):
            self.tablet.pen(20000 + step, 10000)
        self.tablet.away()
        self.world.libinput.wait("TABLET_TOOL_PROXIMITY", begin)

    def test_unplugging_lets_go(self):
        self.addCleanup(self.renew)
        self.tablet.unplug()
        self.expect_nothing_pressed_for_libinput()
        self.world.wait_for_state("none")

    def test_a_driver_that_is_terminated_lets_go(self):
        self.addCleanup(self.renew)
        self.assertEqual(self.world.driver.end(signal.SIGTERM), 0)
        self.expect_nothing_pressed_for_libinput()
        self.expect_the_bare_tablet()

    def test_the_kernel_lets_go_for_a_driver_that_is_killed(self):
        self.addCleanup(self.renew)
        self.world.driver.end(signal.SIGKILL)
        self.expect_nothing_pressed_for_libinput()
        self.expect_the_bare_tablet()

    def test_a_driver_without_its_bus_lets_go_and_ends(self):
        def begin_anew():
            self.world.session = guest.Bus("session")
            self.world.bus = self.world.session.connect()
            self.renew()
        self.addCleanup(begin_anew)
        self.world.session.daemon.end()
        self.expect_nothing_pressed_for_libinput()
        self.world.driver.process.wait(timeout=guest.PATIENCE)
        self.expect_the_bare_tablet()

    def test_nothing_stays_pressed_for_which_events_were_lost(self):
        """More happens than the kernel keeps for a driver that does not read."""
        process = self.world.driver.process
        process.send_signal(signal.SIGSTOP)
        wait_for_stop(process.pid)
        for step in range(500):
            self.tablet.pen(12000 + step, 6000, pressure=5000, buttons=UPPER * (step % 2))
            self.press(*range(step % 2))
        self.press()
        self.tablet.away()
        process.send_signal(signal.SIGCONT)
        self.expect_nothing_pressed()
        self.take()
        self.assertEqual(set(self.pressed()), {0})
        self.assertEqual(self.place(12000, 7500), (48000, 30000))

    def test_a_locked_session_has_everything_let_go_until_it_is_unlocked(self):
        self.lose_and_regain("LockedHint 1", "LockedHint 0")

    def test_a_session_in_the_background_has_everything_let_go_until_it_is_in_front(self):
        self.lose_and_regain("Active 0", "Active 1")

    def test_a_machine_about_to_sleep_has_everything_let_go_until_it_wakes(self):
        self.world.logind.wait("delayed")
        begin = len(self.world.logind.lines)
        self.lose("PrepareForSleep 1")
        # It may say so after the events, since it ungrabs the tablet in between. Awake again, it would
        # keep the delay until it has the next one.
        released = self.world.logind.wait("released", begin)
        self.regain("PrepareForSleep 0")
        self.world.logind.wait("delayed", released)  # for the next time

    def lose_and_regain(self, lost, regained):
        self.lose(lost)
        self.regain(regained)

    def lose(self, lost):
        """Tells logind's word that takes the session away, and waits until the driver has let go."""
        self.world.tell_logind(lost)
        self.expect_nothing_pressed()
        self.world.wait_for_state("asleep")
        self.pen.take()

    def regain(self, regained):
        """Tells logind's word that gives the session back, and checks that the driver takes the tablet,
        but nothing in the middle of a stroke."""
        begin = len(self.world.driver.lines)
        self.world.tell_logind(regained)
        self.world.wait_for_state("attached")
        self.tablet.pen(13000, 6000, pressure=5000)
        self.tablet.pen(13000, 6000)
        self.tablet.away()
        self.press()
        self.world.driver.wait("obeys the settings", begin)
        self.keyboard.take()
        self.pointer.take()
        self.assertEqual([frame for frame in self.pen.take() if ("BTN_TOUCH", 1) in frame], [])
        self.assertEqual(self.place(12000, 7500), (48000, 30000))


class Costs(guest.TestCase):
    MOST_MEMORY = 4096  # KiB that a real tablet may take more than a simulated one

    @staticmethod
    def memory(program):
        """Returns the KiB that nothing else uses."""
        rollup = pathlib.Path(f"/proc/{program.process.pid}/smaps_rollup").read_text()
        return sum(int(size) for size in re.findall(r"^Private_\w+: +(\d+) kB", rollup, re.MULTILINE))

    def test_takes_little_more_memory_than_a_simulated_tablet(self):
        self.place(12000, 7500)
        bus = guest.Bus("simulation")
        simulated = guest.Program([session.BIN / "tdsg-driver", "--simulate"],
                                  self.world.env | {"DBUS_SESSION_BUS_ADDRESS": bus.address})
        self.addCleanup(bus.daemon.end)
        self.addCleanup(simulated.end)
        simulated.wait("ready")
        sizes = [self.memory(program) for program in (simulated, self.world.driver)]
        print(f"    {sizes[0]} KiB simulated, {sizes[1]} KiB with a tablet", file=sys.stderr)
        self.assertLess(sizes[1] - sizes[0], self.MOST_MEMORY)

    def test_sleeps_while_nothing_happens(self):
        # Without a desktop, it looks for one now and then.
        self.addCleanup(Displays.begin_anew)
        Displays.begin_anew(DISPLAY=":9", QT_QPA_PLATFORM="offscreen")

        def wakings():
            return [re.findall(r"ctxt_switches:\t(\d+)", (task / "status").read_text())
                    for task in pathlib.Path(f"/proc/{self.world.driver.process.pid}/task").iterdir()]

        def rest():
            """Waits until what the test did before has been done, such as saving."""
            before = wakings()
            time.sleep(1)
            return wakings() == before
        wait_for(rest, "a second of sleep")
        before = wakings()
        time.sleep(3)
        self.assertEqual(wakings(), before)


class Watchdog(guest.TestCase):
    """The test is the service manager: it kills a driver that has not told for a second that it is
    alive."""

    def test_hears_of_a_driver_only_while_it_answers(self):
        self.addCleanup(self.renew)
        self.world.end()
        path = guest.FOLDER / "notify"
        with socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM) as manager:
            self.addCleanup(path.unlink)
            manager.bind(str(path))
            manager.settimeout(guest.PATIENCE)
            self.world.start_driver(NOTIFY_SOCKET=str(path), WATCHDOG_USEC="1000000")
            self.world.plug(Tablet())
            self.assertEqual(manager.recv(100), b"WATCHDOG=1")
            self.tablet.pen(12000, 6000)
            self.pen.wait_for("BTN_TOOL_PEN", 1)
            begin = len(self.world.libinput.lines)
            self.world.driver.process.send_signal(signal.SIGSTOP)
            wait_for_stop(self.world.driver.process.pid)
            manager.setblocking(False)
            with self.assertRaises(BlockingIOError):
                while True:
                    manager.recv(100)  # what it told before
            manager.settimeout(1)
            with self.assertRaises(TimeoutError):
                manager.recv(100)
            self.world.driver.end(signal.SIGKILL)
            self.world.libinput.wait("proximity-out", begin)


class AsAService(guest.TestCase):
    """The driver is run by a user's service manager, as the package has it."""

    @classmethod
    def setUpClass(cls):
        cls.world.end()
        cls.manager = guest.ServiceManager(cls.world)
        cls.manager.start_driver()
        cls.world.plug(Tablet())

    @classmethod
    def tearDownClass(cls):
        cls.manager.end()
        cls.world.make()

    def test_a_driver_that_hangs_is_replaced_within_five_seconds_of_its_last_word(self):
        self.assertEqual(self.manager.driver("WatchdogUSec"), "4s")
        self.record.combination(0, CONTROL)
        self.push()
        self.press(0)
        self.tablet.pen(12000, 6000)
        for step in range(1, 6):
            self.tablet.pen(12000 + step, 6000, pressure=5000)
        self.keyboard.wait_for("KEY_LEFTCTRL", 1)
        self.world.libinput.wait("KEY_LEFTCTRL")
        self.pen.wait_for("ABS_X", 48020)
        begin = len(self.world.libinput.lines)
        said = len(self.world.driver.lines)
        os.kill(int(self.manager.driver("MainPID")), signal.SIGSTOP)
        hanging = time.monotonic()
        self.world.libinput.wait("KEY_LEFTCTRL (29) released", begin)
        self.world.libinput.wait("proximity-out", begin)
        print(f"    let go {time.monotonic() - hanging:.1f} s after the hang", file=sys.stderr)
        self.tablet.away()
        self.press()
        self.world.driver.wait("ready", said)  # another one
        self.world.wait_until_used(self.tablet)
        self.assertEqual(self.place(12000, 7500), (48000, 30000))

    def test_applications_live_apart_from_the_driver_and_without_its_restrictions(self):
        out = guest.FOLDER / "restrictions"
        program = guest.make_program(
            "apart", f"#!/bin/sh\ncat /proc/self/status /proc/self/cgroup >{out}.new\nmv {out}.new {out}\n")
        entry = guest.make_program(
            "apart.desktop", f"[Desktop Entry]\nType=Application\nName=Apart\nExec={program}\n")
        for slot, path in enumerate((program, entry)):
            out.unlink(missing_ok=True)
            self.record.slot(slot, 2, app=path)
            self.push()
            self.click(slot)
            wait_for(out.exists, path)
            self.assertRegex(out.read_text(), r"(?s)NoNewPrivs:\t0\n.*app\.slice/app-tdsgdriver-")
        self.assertEqual(self.world.property("Problem"), "")

    def test_a_desktop_entry_that_cannot_be_started_is_a_problem(self):
        entry = guest.make_program(
            "broken.desktop",
            "[Desktop Entry]\nType=Application\nName=Broken\nExec=/nowhere/program\n")
        self.record.slot(0, 2, app=entry)
        self.push()
        self.click(0)
        wait_for(lambda: str(entry) in self.world.property("Problem"), "the problem")


if __name__ == "__main__":
    # What still runs at the end ends with the machine.
    unittest.main(verbosity=2, warnings="ignore")
