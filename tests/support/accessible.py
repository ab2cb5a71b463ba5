# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Prints what an application exposes to screen readers, as JSON: one object per accessible.

Without arguments, it reads them from standard input, one JSON array per line, and answers each line
with one line. Each answer comes from a process of its own, forked after the library is loaded, which
takes long: the library caches what it has been told. Each request goes to the application and takes
time, so it reads only what it was asked for.
"""

import argparse
import json
import os
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def children(thing):
    """Yields the index of each child and the child. Skips one that disappears meanwhile."""
    for i in range(thing.get_child_count()):
        child = thing.get_child_at_index(i)
        if child is not None:
            yield i, child


def windows(name):
    """Yields the windows of the application with that name, each with its path."""
    for i, application in children(Atspi.get_desktop(0)):
        try:
            if application.get_name() == name:
                yield from ((window, [i, j]) for j, window in children(application))
        except GLib.Error:
            pass  # the application has ended


def walk(thing, path, options):
    """Yields an accessible and its descendants, each with its path and states."""
    try:
        states = thing.get_state_set()
        yield thing, path, states
        if not states.contains(Atspi.StateType.SHOWING) and not options.all:
            return  # nor are its descendants
        if thing.get_role() == Atspi.Role.COMBO_BOX:
            if options.items_of and has_name(thing, options.items_of):
                options = argparse.Namespace(**{**vars(options), "all": True})
            elif not options.items:
                return
        for i, child in children(thing):
            yield from walk(child, path + [i], options)
    except GLib.Error:
        pass  # the thing went away while it was looked at


def has_name(thing, name):
    """Returns whether this is the accessible's name or description."""
    return name in (thing.get_name(), thing.get_description())


def role_name(thing):
    """Returns the name of the accessible's role. Newer libraries call a push button a button."""
    return "push button" if thing.get_role() == Atspi.Role.PUSH_BUTTON else thing.get_role_name()


def describe(thing, path, states):
    """Returns the properties of an accessible, or None if it has disappeared."""
    try:
        component = thing.get_component_iface()
        extents = component.get_extents(Atspi.CoordType.SCREEN) if component else None
        value = thing.get_value_iface()
        text = thing.get_text_iface() if thing.get_role() == Atspi.Role.TEXT else None
        return {
            "application": thing.get_application().get_name(),
            "name": thing.get_name(),
            "role": role_name(thing),
            "description": thing.get_description(),
            "labels": labels(thing),
            "path": path,
            "showing": states.contains(Atspi.StateType.SHOWING),
            "enabled": states.contains(Atspi.StateType.ENABLED),
            "focusable": states.contains(Atspi.StateType.FOCUSABLE),
            "focused": states.contains(Atspi.StateType.FOCUSED),
            "checked": states.contains(Atspi.StateType.CHECKED),
            "value": value.get_current_value() if value else None,
            "text": Atspi.Text.get_text(text, 0, -1) if text else None,
            "x": extents.x if extents else 0,
            "y": extents.y if extents else 0,
            "width": extents.width if extents else 0,
            "height": extents.height if extents else 0,
        }
    except GLib.Error:
        return None


def describe_at(path):
    """Returns the properties of the accessible with that path, or None if there is none."""
    thing = Atspi.get_desktop(0)
    try:
        for i in path:
            thing = thing and thing.get_child_at_index(i)
        return describe(thing, path, thing.get_state_set()) if thing else None
    except GLib.Error:
        return None  # it disappeared meanwhile


def find(things, name, role, showing, inside):
    """Returns the first accessible with that name or description, or None."""
    for thing, path, states in things:
        if path[:len(inside)] == inside and states.contains(Atspi.StateType.SHOWING) == showing:
            try:
                if has_name(thing, name) and role in ("", role_name(thing)):
                    return thing, path, states
            except GLib.Error:
                pass  # the thing went away while it was looked at
    return None


def labels(thing):
    """Returns the names of the accessible's labels."""
    targets = [relation.get_target(i) for relation in thing.get_relation_set()
               if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
               for i in range(relation.get_n_targets())]
    return [target.get_name() for target in targets if target is not None]


def focused(thing):
    """Returns name and description of the descendant that has the focus, or an empty list."""
    try:
        states = thing.get_state_set()
        if states.contains(Atspi.StateType.FOCUSED):
            return [thing.get_name(), thing.get_description()]
        if not states.contains(Atspi.StateType.SHOWING) or thing.get_role() == Atspi.Role.COMBO_BOX:
            return []
        return next(filter(None, (focused(child) for _, child in children(thing))), [])
    except GLib.Error:
        return []  # the thing went away while it was looked at


def press(thing):
    """Does what a click on the accessible would do. Returns whether it was still there."""
    try:
        action = thing.get_action_iface()
        names = [action.get_action_name(i) for i in range(action.get_n_actions())]
    except GLib.Error:
        return False  # it disappeared
    # A click toggles a check box and presses a button; a check box may have no press action.
    return action.do_action(names.index("Toggle" if "Toggle" in names else "Press"))


EVENTS = ("object:state-changed:showing", "object:property-change:accessible-description",
          "object:property-change:accessible-name")


def listen(name):
    """Prints the announcements, one JSON object per line."""
    def take(event, *_):
        try:
            application = event.source.get_application()
            if application is None or application.get_name() != name:
                return
            print(json.dumps({
                "event": event.type,
                "role": role_name(event.source),
                "name": event.source.get_name(),
                "description": event.source.get_description(),
                "on": event.detail1,
            }), flush=True)
        except GLib.Error:
            pass  # the thing has gone already

    listener = Atspi.EventListener.new(take, None)
    for event in EVENTS:
        listener.register(event)
    print("listening", flush=True)
    Atspi.event_main()


def answer(arguments):
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("application")
    parser.add_argument("--all", action="store_true",
                        help="also what is not on the screen, but not what is in closed lists")
    parser.add_argument("--items", action="store_true", help="also the items of an open list")
    parser.add_argument("--items-of", metavar="NAME",
                        help="also those of the combo box with that name or description")
    parser.add_argument("--focused", action="store_true",
                        help="print only name and description of what has the focus")
    parser.add_argument("--find", nargs=2, metavar=("NAME", "ROLE"),
                        help="print only the first thing with that name or description, and with "
                        "that role unless it is empty; null if there is none")
    parser.add_argument("--hidden", action="store_true",
                        help="find one that is not on the screen")
    parser.add_argument("--inside", metavar="PATH", type=json.loads, default=[],
                        help="find it below the thing with this path")
    parser.add_argument("--at", metavar="PATH", type=json.loads,
                        help="print only the thing with this path; null if there is none")
    parser.add_argument("--press", action="store_true",
                        help="also press what is found, and print whether it was")
    parser.add_argument("--listen", action="store_true",
                        help="instead, print a line for each thing that appears or says of itself "
                        "something new, until this is ended")
    options = parser.parse_args(arguments)
    Atspi.init()
    Atspi.set_timeout(20000, 20000)  # milliseconds; by default a busy application gets 800
    if options.listen:
        listen(options.application)
        return
    if options.focused:
        words = [word for window, _ in windows(options.application) for word in focused(window)]
        print(json.dumps(words), flush=True)
        return
    if options.at:
        print(json.dumps(describe_at(options.at)), flush=True)
        return
    things = (thing for window, path in windows(options.application)
              for thing in walk(window, path, options))
    if options.find:
        found = find(things, *options.find, not options.hidden, options.inside)
        if found:
            found = press(found[0]) if options.press else describe(*found)
        print(json.dumps(found), flush=True)
    else:
        told = (describe(*thing) for thing in things)
        print(json.dumps([about for about in told if about]), flush=True)


def serve():
    """Answers each line of standard input."""
    for line in sys.stdin:
        process = os.fork()
        if process == 0:
            answer(json.loads(line))
            os._exit(0)
        _, status = os.waitpid(process, 0)
        if status != 0:
            sys.exit("accessible.py failed: " + line)


if __name__ == "__main__":
    if len(sys.argv) > 1:
        answer(None)
    else:
        serve()
