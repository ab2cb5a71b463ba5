# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""Prints what an application tells screen readers, as JSON: one object for each accessible thing.

A process of its own, since the library can speak to one session in its life.

Usage: accessible.py APPLICATION [--items]: with the items of lists, of which there are many
       accessible.py APPLICATION --press PATH...: presses the thing at that path instead
       accessible.py APPLICATION --listen: prints a line for each thing that appears or says of
           itself something new, until it is ended
"""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def describe(thing, path, found):
    """Adds the thing and all below it."""
    try:
        states = thing.get_state_set()
        component = thing.get_component_iface()
        extents = component.get_extents(Atspi.CoordType.SCREEN) if component else None
        value = thing.get_value_iface()
        found.append({
            "name": thing.get_name(),
            "role": thing.get_role_name(),
            "description": thing.get_description(),
            "labels": labels(thing),
            "path": path,
            "showing": states.contains(Atspi.StateType.SHOWING),
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
        if thing.get_role() == Atspi.Role.COMBO_BOX and "--items" not in sys.argv:
            return
        for i in range(thing.get_child_count()):
            child = thing.get_child_at_index(i)
            if child is not None:
                describe(child, path + [i], found)
    except GLib.Error:
        pass  # the thing went away while it was looked at


def labels(thing):
    """The names of what labels the thing."""
    return [relation.get_target(i).get_name() for relation in thing.get_relation_set()
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
            for i in range(relation.get_n_targets())]


def press(path):
    """Does what a click on the thing would do."""
    thing = Atspi.get_desktop(0)
    for i in path:
        thing = thing.get_child_at_index(i)
    action = thing.get_action_iface()
    names = [action.get_action_name(i) for i in range(action.get_n_actions())]
    action.do_action(names.index("Press"))


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
    Atspi.init()
    if "--listen" in sys.argv:
        listen(sys.argv[1])
        return
    if "--press" in sys.argv:
        press([int(word) for word in sys.argv[3:]])
        return
    found = []
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(i)
        if application is not None and application.get_name() == sys.argv[1]:
            describe(application, [i], found)
    json.dump(found, sys.stdout)


if __name__ == "__main__":
    main()
