# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Prints what an application exposes to screen readers, as JSON: one object per accessible.

It runs as a separate process, since the library can connect to only one session in its lifetime.
Each request goes to the application and takes time, so it reads only what it was asked for.
"""

import argparse
import json
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


def describe(thing, path, options, found):
    """Adds an accessible and its descendants."""
    try:
        states = thing.get_state_set()
        isShowing = states.contains(Atspi.StateType.SHOWING)
        component = thing.get_component_iface()
        extents = component.get_extents(Atspi.CoordType.SCREEN) if component else None
        value = thing.get_value_iface()
        name = thing.get_name()
        description = thing.get_description()
        found.append((thing, {
            "name": name,
            "role": thing.get_role_name(),
            "description": description,
            "labels": labels(thing),
            "path": path,
            "showing": isShowing,
            "enabled": states.contains(Atspi.StateType.ENABLED),
            "focusable": states.contains(Atspi.StateType.FOCUSABLE),
            "focused": states.contains(Atspi.StateType.FOCUSED),
            "checked": states.contains(Atspi.StateType.CHECKED),
            "value": value.get_current_value() if value else None,
            "x": extents.x if extents else 0,
            "y": extents.y if extents else 0,
            "width": extents.width if extents else 0,
            "height": extents.height if extents else 0,
        }))
        if not isShowing and not options.all:
            return  # nor are its descendants
        if thing.get_role() == Atspi.Role.COMBO_BOX:
            if options.items_of in (name, description):
                options = argparse.Namespace(**{**vars(options), "all": True})
            elif not options.items:
                return
        for i, child in children(thing):
            describe(child, path + [i], options, found)
    except GLib.Error:
        pass  # the thing went away while it was looked at


def labels(thing):
    """Returns the names of the accessible's labels."""
    targets = [relation.get_target(i) for relation in thing.get_relation_set()
               if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
               for i in range(relation.get_n_targets())]
    return [target.get_name() for target in targets if target is not None]


def print_focused(thing):
    """Prints name and description of the descendant that has the focus. Returns whether there is
    one."""
    try:
        states = thing.get_state_set()
        if states.contains(Atspi.StateType.FOCUSED):
            print(thing.get_name(), thing.get_description(), sep="\n")
            return True
        if not states.contains(Atspi.StateType.SHOWING) or thing.get_role() == Atspi.Role.COMBO_BOX:
            return False
        return any(print_focused(child) for _, child in children(thing))
    except GLib.Error:
        return False  # the thing went away while it was looked at


def press(name, role, found):
    """Does what a click on the accessible with that name or description would do. Returns whether
    there is one."""
    for thing, about in found:
        if name in (about["name"], about["description"]) and role == about["role"] \
                and about["showing"]:
            action = thing.get_action_iface()
            names = [action.get_action_name(i) for i in range(action.get_n_actions())]
            # A click toggles a check box and presses a button; a check box may have no press
            # action.
            return action.do_action(names.index("Toggle" if "Toggle" in names else "Press"))
    return False


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
                "role": event.source.get_role_name(),
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


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("application")
    parser.add_argument("--all", action="store_true",
                        help="also what is not on the screen, but not what is in closed lists")
    parser.add_argument("--items", action="store_true", help="also the items of an open list")
    parser.add_argument("--items-of", metavar="NAME",
                        help="also those of the combo box with that name or description")
    parser.add_argument("--focused", action="store_true",
                        help="print only name and description of what has the focus, in two lines")
    parser.add_argument("--press", nargs=2, metavar=("NAME", "ROLE"),
                        help="instead, press the thing with that name or description, if it is "
                        "there, and print whether it was")
    parser.add_argument("--listen", action="store_true",
                        help="instead, print a line for each thing that appears or says of itself "
                        "something new, until this is ended")
    options = parser.parse_args()
    Atspi.init()
    if options.listen:
        listen(options.application)
        return
    found = []
    desktop = Atspi.get_desktop(0)
    for i, application in children(desktop):
        try:
            if application.get_name() != options.application:
                continue
            for j, window in children(application):
                if options.focused:
                    print_focused(window)
                else:
                    describe(window, [i, j], options, found)
        except GLib.Error:
            pass  # the application has ended
    if options.press:
        json.dump(press(*options.press, found), sys.stdout)
    elif not options.focused:
        json.dump([about for _, about in found], sys.stdout)


if __name__ == "__main__":
    main()
