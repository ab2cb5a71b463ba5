# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Prints what an application tells screen readers, as JSON: one object for each accessible thing.

A process of its own, since the library can speak to one session in its life. Each question goes to
the application and takes its time, so it looks at no more than it was asked for.
"""

import argparse
import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def describe(thing, path, options, found):
    """Adds the thing and what is below it."""
    try:
        states = thing.get_state_set()
        isShowing = states.contains(Atspi.StateType.SHOWING)
        component = thing.get_component_iface()
        extents = component.get_extents(Atspi.CoordType.SCREEN) if component else None
        value = thing.get_value_iface()
        name = thing.get_name()
        description = thing.get_description()
        found.append({
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
        })
        if not isShowing and not options.all:
            return  # nor is anything below it
        if thing.get_role() == Atspi.Role.COMBO_BOX:
            if options.items_of in (name, description):
                options = argparse.Namespace(**{**vars(options), "all": True})
            elif not options.items:
                return
        for i in range(thing.get_child_count()):
            child = thing.get_child_at_index(i)
            if child is not None:
                describe(child, path + [i], options, found)
    except GLib.Error:
        pass  # the thing went away while it was looked at


def labels(thing):
    """The names of what labels the thing."""
    return [relation.get_target(i).get_name() for relation in thing.get_relation_set()
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
            for i in range(relation.get_n_targets())]


def print_focused(thing):
    """Prints name and description of the thing below this one that has the focus. Gives whether
    there is one."""
    states = thing.get_state_set()
    if states.contains(Atspi.StateType.FOCUSED):
        print(thing.get_name(), thing.get_description(), sep="\n")
        return True
    if not states.contains(Atspi.StateType.SHOWING) or thing.get_role() == Atspi.Role.COMBO_BOX:
        return False
    return any(print_focused(thing.get_child_at_index(i))
               for i in range(thing.get_child_count()))


def press(path):
    """Does what a click on the thing would do."""
    thing = Atspi.get_desktop(0)
    for i in path:
        thing = thing.get_child_at_index(i)
    action = thing.get_action_iface()
    names = [action.get_action_name(i) for i in range(action.get_n_actions())]
    # What a click does is a box's toggling and a button's pressing; a box may have no press at all.
    action.do_action(names.index("Toggle" if "Toggle" in names else "Press"))


EVENTS = ("object:state-changed:showing", "object:property-change:accessible-description",
          "object:property-change:accessible-name")


def listen(name):
    """Prints what is told, as one JSON object a line."""
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
    parser.add_argument("--press", nargs="+", type=int, metavar="PLACE",
                        help="press the thing at that path instead")
    parser.add_argument("--listen", action="store_true",
                        help="instead, print a line for each thing that appears or says of itself "
                        "something new, until this is ended")
    options = parser.parse_args()
    Atspi.init()
    if options.listen:
        listen(options.application)
        return
    if options.press:
        press(options.press)
        return
    found = []
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(i)
        if application is not None and application.get_name() == options.application:
            for j in range(application.get_child_count()):
                window = application.get_child_at_index(j)
                if options.focused:
                    print_focused(window)
                else:
                    describe(window, [i, j], options, found)
    if not options.focused:
        json.dump(found, sys.stdout)


if __name__ == "__main__":
    main()
