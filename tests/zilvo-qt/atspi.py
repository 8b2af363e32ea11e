"""Goes through a window with all controls as an assistive technology does: atspi.py PROGRAM COMPONENT.

Run by atspi.sh. What is wrong is told on standard error, with status 1.
"""
import subprocess
import sys

import pyatspi
from gi.repository import GLib

DEADLINE = 60  # seconds, for whatever is waited for
heard = []


def until(condition, what):
    """Lets events in until the condition gives something, and gives that."""
    loop = GLib.MainContext.default()
    late = []
    tick = GLib.timeout_add(50, lambda: True)
    deadline = GLib.timeout_add_seconds(DEADLINE, lambda: late.append(True))
    try:
        while not (found := condition()):
            if late:
                sys.exit(f"waited in vain for {what}; heard: {heard[-20:]}")
            loop.iteration(True)
        return found
    finally:
        GLib.source_remove(tick)
        if not late:
            GLib.source_remove(deadline)


def below(accessible):
    for child in accessible:
        yield child
        yield from below(child)


def application(name):
    return next((app for app in pyatspi.Registry.getDesktop(0) if app and app.name == name), None)


def actions(accessible):
    try:
        action = accessible.queryAction()
    except NotImplementedError:
        return []
    return [action.getName(i) for i in range(action.nActions)]


def act(accessible, name):
    accessible.queryAction().doAction(actions(accessible).index(name))


def hears(type, name, detail=None):
    until(lambda: (type, name) in [event[:2] for event in heard if detail in (None, event[2])], f"{type} of {name}")


def require(truth, what):
    if not truth:
        sys.exit(what)


def listen():
    pyatspi.Registry.registerEventListener(
        lambda event: heard.append((str(event.type), event.source.name, event.detail1)),
        "object:state-changed:checked",
        "object:state-changed:focused",
        "object:property-change:accessible-value",
        "object:property-change:accessible-name",
    )


def go_through(program):
    listen()
    require(b"ready\n" in program.stdout, "the program has ended")
    window = until(lambda: application("all-controls"), "the program")[0]
    everything = list(below(window))
    controls = [child for child in window if child.getRoleName() == "panel"]
    require(len(controls) == 17, f"{len(controls)} controls")

    pushed = {"Press", "Toggle", "Increase", "Decrease"}
    clickable = [one for one in everything if pushed.intersection(actions(one))]
    nameless = [one for one in clickable if not one.name]
    require(not nameless, f"nameless: {[(one.getRoleName(), one.parent.name) for one in nameless]}")
    print(f"{len(everything)} objects, of which {len(clickable)} can be clicked, each by its name")

    def find(role, name):
        return next((one for one in everything if (one.getRoleName(), one.name) == (role, name)), None) or sys.exit(
            f"there is no {role} {name}"
        )

    six = find("radio button", "6 Decks")
    require(six.description == "5 of 10. 6-Deck Shoe", six.description)
    require(not six.getState().contains(pyatspi.STATE_CHECKED), "6 Decks is checked at first")
    act(six, "Toggle")
    hears("object:state-changed:checked", "6 Decks", 1)
    hears("object:state-changed:checked", "1 Deck", 0)
    require(six.getState().contains(pyatspi.STATE_CHECKED), "6 Decks is not checked")

    spin = find("spin button", "Cards in stack")
    act(spin, "Increase")
    hears("object:property-change:accessible-value", "Cards in stack")
    require(spin.queryValue().currentValue == 1, "the spin button has not stepped")
    hears("object:property-change:accessible-name", "(001)")

    act(find("push button", "Sit Down"), "SetFocus")
    hears("object:state-changed:focused", "Sit Down", 1)
    gained = [name for type, name, gains in heard if type == "object:state-changed:focused" and gains]
    require(gained[-1] == "Sit Down", f"the focus goes to {gained}")


if __name__ == "__main__":
    with subprocess.Popen(sys.argv[1:], stdout=subprocess.PIPE) as program:
        try:
            go_through(program)
        finally:
            program.kill()
