#!/bin/sh
# Usage: registration.sh PROGRAM PLATFORM COMPONENT OTHER_COMPONENT HOST SCRIPT
# Copies them, the program without a component beside it, and uses the components through their registration alone, as
# the demonstrating host and script do.
set -u
. "$(dirname "$0")/../support/complaints.sh"
mkdir "$work/bin" "$work/the components" "$work/elsewhere"
cp "$1" "$2" "$5" "$work/bin/"
cp "$3" "$4" "$work/the components/"
program=$work/bin/$(basename "$1")
component="$work/the components/$(basename "$3")"
other="$work/the components/$(basename "$4")"
host=$work/bin/$(basename "$5")
demonstration=$6
store=$work/home/.local/share/zilvo/registrations
cd "$work/elsewhere" || exit 1

# expect STATUS TEXT ARGUMENT...: runs the program with nothing in its environment but HOME; what it prints has TEXT.
expect() {
    status=$1
    text=$2
    shift 2
    env -i HOME="$work/home" "$program" "$@" >"$work/out" 2>&1 </dev/null
    got=$?
    [ $got -eq "$status" ] || complain "$* ended with $got, not $status"
    grep -qF -e "$text" "$work/out" || complain "$* did not print $text"
}

# Nothing is registered yet.
expect 1 '--component FILE' list
expect 1 'beside' list
expect 1 'zilvo register FILE' list
expect 0 'is not registered' unregister "$component"
[ ! -e "$work/home" ] || complain 'a store was made for nothing'
expect 1 'absent.Ocx' register absent.Ocx
expect 1 'is not a component' register "$program"

# Registered: found by ProgID, class id and name from any folder, and the classes of the other component too.
expect 0 "registered ZILVO_ZilvoButtons, 18 classes of $component, in $store" register "$component"
expect 0 'registered Gallery, 3 classes' register "../the components/$(basename "$other")"
cp "$store" "$work/once"
expect 0 'registered Gallery' register "$other"
cmp -s "$store" "$work/once" || complain 'registering twice changed the store'
expect 0 'ssOKCancel' list
cat >"$work/script.lua" <<'END'
assert(tostring(zilvo.create("ZILVO_ZilvoButtons.DeckButtons")) == "control DeckButtons")
assert(tostring(zilvo.create("{49f5cf18-c7fd-407e-9374-3078a6fa29dc}")) == "control DeckButtons")
LivelyMood = "the script's own"
setmetatable(_G, {__index = function(_, name) error("there is no " .. name) end})
assert(not pcall(function() return CalmMood end))
local small = zilvo.create("Gallery.Small")
assert(CalmMood == 1 and LivelyMood == "the script's own")
assert(zilvo.alive == 3)
assert(zilvo.describe().library.name == "ZILVO_ZilvoButtons")
zilvo.create("Nothing")
END
expect 1 "script.lua:10: neither a known component nor the registrations in $store have a class Nothing" \
    run "$work/script.lua"

for command in "$host" "$program run $demonstration"; do
    env -i HOME="$work/home" $command >"$work/out" 2>&1 </dev/null || complain "$command failed"
    [ "$(tr '\n' ';' <"$work/out")" = 'the table has 6 decks;the table has 8 decks;NumberOfDecks is 8;' ] ||
        complain "$command printed something else"
done

# The file is gone: it says so, and can be unregistered all the same.
rm "$other"
expect 1 "Gallery.Small, registered in $store: there is no component file $other" run "$work/script.lua"
expect 0 'unregistered Gallery, 3 classes' unregister "$other"
expect 0 'is not registered' unregister "$other"

# Another store, named for one run.
expect 1 'zilvo register FILE' --registrations "$work/another" list
expect 1 'names no file' --registrations '' list
expect 0 "in $work/another" register "$component" --registrations "$work/another"
expect 0 "in $store" unregister "$component"
expect 1 'there is no component' list
expect 0 'ssOKCancel' list --registrations ../another

# Stores that cannot be used.
echo 'end' >"$work/another"
expect 1 "$work/another, line 1: " --registrations "$work/another" unregister "$component"
expect 1 "$work/another, line 1: " --registrations "$work/another" list
chmod a-w "$store"
expect 1 "$store cannot be written" register "$component"
for command in list "register $(basename "$component")"; do
    (cd "$work/the components" && env -i "$program" $command) >"$work/out" 2>&1 && complain "$command in no place"
    grep -q 'ZILVO_REGISTRATIONS, XDG_DATA_HOME and HOME' "$work/out" || complain 'did not name the variables'
done

finish
