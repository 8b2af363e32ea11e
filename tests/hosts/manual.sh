#!/bin/sh
# Usage: manual.sh FOLDER
# The manual pages of the programs are sound roff, and apropos finds them by what they say in one line.
set -eu
for page in "$1"/*.1.gz; do
    wrong=$(man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
    [ -z "$wrong" ] || { echo "$page: $wrong" >&2; exit 1; }
    lexgrog "$page"
    for section in NAME SYNOPSIS DESCRIPTION; do zgrep -qx ".SH $section" "$page"; done
done
