"""Plays a drill as somebody who hears the program and cannot see it: atspi.py PROGRAM. Run by ../zilvo-qt/atspi.sh."""
import os
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "../zilvo-qt"))
from atspi import act, application, below, heard, listen, until

import pyatspi


def find(role, name):
    """What is shown by that name, sooner or later."""
    window = until(lambda: application("zilvo-drill"), "the program")[0]
    return until(
        lambda: next(
            (
                one
                for one in below(window)
                if (one.getRoleName(), one.name) == (role, name) and one.getState().contains(pyatspi.STATE_SHOWING)
            ),
            None,
        ),
        f"{role} {name}",
    )


def cards():
    """Those that were heard of, by what they are called."""
    return [name for type, name, _ in heard if type.endswith("accessible-name") and " of " in name]


def tag(card):
    rank = card.split(": ")[1].split()[0]
    return 1 if rank in ("Two", "Three", "Four", "Five", "Six") else 0 if rank in ("Seven", "Eight", "Nine") else -1


def play():
    listen()
    act(find("push button", "OK"), "Press")
    act(find("push button", "START"), "Press")
    until(lambda: len(cards()) >= 2, "two cards")
    act(find("push button", "STOP"), "Press")
    find("label", "What is the running count? Choose its sign and the number, then OK.")
    count = sum(tag(card) for card in cards())
    spin = find("spin button", "Cards in stack")
    for step in range(abs(count)):
        act(spin, "Increase")
        until(lambda: spin.queryValue().currentValue == step + 1, "a step")
    if count < 0:
        act(find("push button", "Plus"), "Press")
        find("push button", "Minus")
    act(find("push button", "OK"), "Press")
    verdict = f"Right: the running count is {count:+}." if count else "Right: the running count is 0."
    find("label", verdict)
    until(lambda: ("object:state-changed:focused", verdict, 1) in heard, "the verdict to be told")
    find("list item", f"{cards()[0]}, count {tag(cards()[0]):+}, true count {min(tag(cards()[0]), 0)}")


with subprocess.Popen(sys.argv[1:]) as program:
    try:
        play()
    finally:
        program.kill()
