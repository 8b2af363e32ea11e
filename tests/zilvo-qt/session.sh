#!/usr/bin/env bash
# Runs a program on a display of its own with a window manager, both of which end with it: session.sh PROGRAM [ARG...]
set -euo pipefail
for needed in Xvfb openbox xdotool rsvg-convert; do
    command -v "$needed" >/dev/null || { echo "$needed is missing" >&2; exit 1; }
done
export HOME XDG_RUNTIME_DIR
HOME=$(mktemp -d)
XDG_RUNTIME_DIR=$HOME
Xvfb -displayfd 1 -screen 0 1600x1200x24 -nolisten tcp >"$HOME/display" 2>"$HOME/xvfb" &
trap 'kill $(jobs -p) 2>/dev/null; wait; rm -rf "$HOME"' EXIT
for ((i = 0; i < 300; ++i)); do
    [ -s "$HOME/display" ] && break
    sleep 0.1
done
export DISPLAY=:$(cat "$HOME/display") QT_QPA_PLATFORM=xcb
openbox 2>/dev/null &
for ((i = 0; i < 300; ++i)); do
    xdotool get_desktop >/dev/null 2>&1 && break
    sleep 0.1
done
"$@"
