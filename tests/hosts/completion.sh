#!/usr/bin/env bash
# Usage: completion.sh PROGRAM COMPONENT COMPLETION
# What bash offers for what has been typed of a command of zilvo.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
mkdir folder
touch a.lua a.Ocx a.txt 'b c.lua'
ln -s "$1" zilvo
ln -s "$2" c.Ocx
PATH=$work:$PATH
. "$3"
compopt() { :; } # is for a shell that is asked by a key
failures=0

# offers EXPECTED TYPED: with the cursor at the end of what was typed.
offers() {
    local expected=$1
    read -ra COMP_WORDS <<<"$2"
    [[ $2 != *' ' ]] || COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    _zilvo "${COMP_WORDS[0]}" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    [ "$(printf '%s\n' "${COMPREPLY[@]}" | sort -u | paste -sd ,)" = "$expected" ] && return
    printf '%s: offers %s\n' "$2" "${COMPREPLY[*]}" >&2
    failures=$((failures + 1))
}

export LC_ALL=C
offers 'describe,gallery,inspect,list,register,registrations,repl,resources,run,snapshot,transcript,unregister,validate' 'zilvo '
offers register,registrations 'zilvo reg'
offers --component,--help,--registrations 'zilvo -'
offers '--component,--help,--idl,--json,--registrations' 'zilvo describe -'
offers --output 'zilvo snapshot all --o'
offers DeckButtons 'zilvo --component c.Ocx describe De'
offers paneledGOButton,paneledSeatBoxes 'zilvo inspect --component c.Ocx pan'
offers all 'zilvo --component c.Ocx snapshot DeckButtons al'
offers 30010,30011,30012,30013,30014,30015,30016 'zilvo --component c.Ocx resources 3001'
offers folder 'zilvo snapshot all -o '
offers 'a.lua,b c.lua,folder' 'zilvo run '
offers 'a.Ocx,a.lua,a.txt' 'zilvo run a.lua --json a'
offers 'a.lua,b c.lua,folder' 'zilvo transcript --write '
offers a.Ocx,c.Ocx,folder 'zilvo register '
offers a.Ocx 'zilvo validate --json a'
offers a.Ocx 'zilvo --component a'
offers 'a.Ocx,a.lua,a.txt' 'zilvo list --registrations a'
offers '' 'zilvo validate --timeout '
exit $((failures > 0))
