#!/usr/bin/env bash
# What the program says at the command line and bash offers there, and its desktop file: cli.sh PROGRAM SOURCE_FOLDER
set -euo pipefail
program=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
export XDG_DATA_HOME=$folder/data XDG_RUNTIME_DIR=$folder
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM

fails() { # EXPECTED_MESSAGE ARGUMENT...
    local expected=$1
    shift
    if "$program" "$@" >out 2>err; then echo "$*: passes" >&2; exit 1; fi
    grep -qxF "zilvo-drill: $expected" err || { echo "$*:" >&2; cat err >&2; exit 1; }
}
fails "there is no display; --screenshot FILE needs none"
fails "3 decks: a shoe holds 1, 2, 4 to 10 or 12" --decks 3 --screenshot a.png
fails "--decks: six is no number" --decks six --screenshot a.png
fails "--seed: -1 is no number" --seed -1 --screenshot a.png
fails "--page: there is no page other" --page other --screenshot a.png
fails "/dev/null/a.png cannot be written" --screenshot /dev/null/a.png
fails "file: no file is taken" file
fails "Unknown option 'deck'." --deck 4

"$program" --help 2>/dev/null >help
for option in --help --seed --decks --screenshot --page; do grep -q -- "$option" help; done
. "$2/demos/drill/completion.bash"
_zilvo_drill "$program" --se zilvo-drill
[ "${COMPREPLY[*]}" = --seed ]
_zilvo_drill "$program" t --page
[ "${COMPREPLY[*]}" = table ]
_zilvo_drill "$program" '' --decks
for decks in "${COMPREPLY[@]}"; do "$program" --decks "$decks" --screenshot decks.png 2>/dev/null; done
"$program" --seed 7 --page table --screenshot seven.png 2>/dev/null
"$program" --seed 7 --page table --screenshot again.png 2>/dev/null
"$program" --seed 8 --page table --screenshot eight.png 2>/dev/null
"$program" --decks 8 --screenshot setup.png 2>/dev/null
cmp seven.png again.png
for other in eight setup; do if cmp -s seven.png $other.png; then echo "$other is the same" >&2; exit 1; fi; done
[ ! -e data ] || { echo "a picture leaves files" >&2; exit 1; }
desktop-file-validate "$2/demos/drill/zilvo-drill.desktop"
