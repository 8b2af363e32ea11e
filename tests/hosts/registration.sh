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
collectgarbage()
assert(zilvo.alive == 1)
assert(zilvo.describe().library.name == "ZILVO_ZilvoButtons")
zilvo.create("Nothing")
END
expect 1 "script.lua:11: neither a known component nor the registrations in $store have a class Nothing" \
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

# Moved: what is its own is found by its class ids, wherever it lies.
moved="$work/moved.Ocx"
cp "$component" "$moved"
expect 0 'registered' register "$component"
expect 0 "unregistered ZILVO_ZilvoButtons, 18 classes of $component, in $store" unregister "$moved"
expect 0 'is not registered' unregister "$component"
expect 0 'registered' register "$component"
expect 0 'registered' register "$moved"
expect 0 "registered Gallery" register "$(dirname "$3")/$(basename "$4")"
[ "$(grep -c '^\[component\]' "$store")" -eq 2 ] || complain 'the moved component is registered twice'

# What became of the components: there, other classes, broken, gone; --repair takes out what is gone.
expect 0 "$moved: there" registrations
expect 0 '        ZILVO_ZilvoButtons.DeckButtons {49F5CF18-C7FD-407E-9374-3078A6FA29DC}' registrations
cp "$4" "$moved"
expect 0 "$moved: other classes" registrations
head -c 5000 "$component" >"$moved"
expect 0 "$moved is not a component: at offset" registrations
expect 0 "nothing is to be repaired in $store" registrations --repair
expect 0 '"state": "no component"' registrations --json
! command -v python3 >/dev/null || python3 -m json.tool "$work/out" >/dev/null || complain 'the list is no JSON'
expect 0 'unregistered ZILVO_ZilvoButtons, 18 classes' unregister "$moved"
cp "$component" "$moved"
expect 0 'registered' register "$moved"
rm "$moved"
expect 0 "$moved: gone" registrations
expect 0 "$moved is gone: unregistered ZILVO_ZilvoButtons, 18 classes of $moved" registrations --repair
expect 0 'Gallery.Small {' registrations
! grep -q "$moved" "$work/out" || complain 'what is gone was not taken out'
expect 1 'excludes' registrations --json --repair
expect 0 'unregistered Gallery' unregister "$4"

# A damaged store does not block: it is set aside, never over another file. One of a newer version is no damage.
expect 0 'registered' register "$component"
for aside in damaged damaged-2; do
    head -n 20 "$store" >"$work/cut"
    cp "$work/cut" "$store"
    expect 1 "$store, line 20: it is cut short" registrations
    expect 0 "zilvo: it is $store.$aside now" register "$component"
    cmp -s "$work/cut" "$store.$aside" || complain 'something else was set aside'
    [ -s "$store" ] || complain 'nothing was registered in its place'
done
: >"$store"
expect 0 "$store, line 1: it does not begin with" registrations --repair
expect 0 'nothing is to be repaired' registrations --repair
[ -e "$store.damaged-3" ] && [ ! -e "$store" ] || complain 'the empty store was not set aside'
printf 'zilvo registrations, format 2\n\nend\n' >"$store"
for command in register unregister; do expect 1 'newer version' $command "$component"; done
expect 1 'newer version' registrations --repair
rm "$store"

# Behind the user's registrations stand the machine's, unless another file is named.
export XDG_DATA_DIRS="relative:$work/none:$work/machine"
machine=$work/machine/zilvo/registrations
user() { env -i HOME="$work/home" XDG_DATA_DIRS="$XDG_DATA_DIRS" "$program" "$@" >"$work/out" 2>&1 </dev/null; }
expect 0 "in $machine" register "$component" --registrations "$machine"
user run "$demonstration" || complain 'the class was not found for the machine'
user list || complain 'the component was not found for the machine'
user registrations && grep -qF "$machine" "$work/out" || complain 'the file of the machine is not listed'
grep -qF "$component: there" "$work/out" || complain 'what is registered for the machine is not listed'
user unregister "$component" && grep -qF 'is not registered' "$work/out" || complain 'the store of the machine was changed'
echo 'error(select(2, pcall(zilvo.create, "Nothing")))' >"$work/nothing.lua"
user run "$work/nothing.lua"
grep -qF "the registrations in $store and $machine have a class Nothing" "$work/out" || complain 'other files are named'
! user list --registrations "$work/unused" || complain 'the machine stands behind a named file'

# And those that packages bring, a file each; what a package is about to put there does not count.
mkdir "$machine.d"
mv "$machine" "$machine.d/buttons"
expect 0 'registered Gallery' register "$4" --registrations "$machine.d/gallery"
cp "$work/cut" "$machine.d/gallery.dpkg-new"
user run "$demonstration" || complain 'the class of a package was not found'
user registrations || complain 'a file that is no package'"'"'s yet was read'
[ "$(grep -c ': there$' "$work/out")" -eq 2 ] || complain 'the registrations of two packages are not listed'

# Only absolute paths are believed.
(cd "$work" && env -i HOME=home XDG_DATA_HOME=data "$program" register "$component") >"$work/out" 2>&1 &&
    complain 'a relative HOME was believed'
grep -q 'HOME is set, the latter two to an absolute path' "$work/out" || complain 'did not say what is wrong with HOME'

# Two writers at once both land; a full disk leaves the old store, and no other file.
for file in "$component" "$4"; do env -i HOME="$work/home" "$program" register "$file" >"$work/out.$$" 2>&1 & done
wait
rm "$work/out.$$"
[ "$(grep -c '^\[component\]' "$store")" -eq 2 ] || complain 'a writer lost what the other registered'
cp "$store" "$work/whole"
(trap '' XFSZ && ulimit -f 1 && expect 1 "$store cannot be written: File too large" unregister "$component" && exit $failures) ||
    failures=$((failures + 1))
cmp -s "$store" "$work/whole" || complain 'a full disk changed the store'
[ -z "$(find "$work/home" -name '.zilvo-*')" ] || complain 'a full disk left a part'
expect 1 "/dev/full cannot be written: No space left on device" --component "$component" gallery /dev/full
expect 0 '</svg>' --component "$component" gallery /dev/stdout

# Stores that cannot be used.
echo 'end' >"$work/another"
expect 1 "$work/another, line 1: " --registrations "$work/another" unregister "$component"
expect 1 "$work/another, line 1: " --registrations "$work/another" list
chmod a-w "$store"
expect 1 "$store cannot be written: it is read-only" unregister "$component"
for command in list "register $(basename "$component")"; do
    (cd "$work/the components" && env -i "$program" $command) >"$work/out" 2>&1 && complain "$command in no place"
    grep -q 'ZILVO_REGISTRATIONS, XDG_DATA_HOME and HOME' "$work/out" || complain 'did not name the variables'
done

finish
