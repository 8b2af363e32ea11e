#!/usr/bin/env bash
# Runs a program on a bus of its own, where it speaks to assistive technologies; whatever it or the bus starts ends with
# it. Needs a display: session.sh atspi.sh PROGRAM [ARG...]
set -euo pipefail
if [ "$1" = --on-the-bus ]; then
    shift
    # Programs speak once this service runs, which nobody has asked for yet.
    dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress >/dev/null
    exec "$@"
fi
export ZILVO_TEST_SCREEN=1 QT_ACCESSIBILITY=1 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
# The bus itself says much that is nobody's concern.
setsid dbus-run-session -- "$0" --on-the-bus "$@" 2> >(grep -v dbus-daemon >&2) &
group=$!
trap 'kill -- -$group 2>/dev/null' EXIT
wait $group
