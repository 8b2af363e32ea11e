#!/bin/sh
# Usage: transcript.sh PROGRAM COMPONENT
# Plays transcripts that go as written, that differ, and that cannot be played at all.
set -u
program=$1
component=$2
. "$(dirname "$0")/../support/complaints.sh"
cd "$work" || exit 1

# play STATUS ARGUMENT...
play() {
    status=$1
    shift
    "$program" --component "$component" transcript "$@" --timeout 2 >out 2>err </dev/null
    got=$?
    [ $got -eq "$status" ] || complain "transcript $* ended with $got, not $status"
}
prints() {
    cat out err | grep -qF -e "$1" || complain "$2 did not print: $1"
}

# What happens is written, in its order, and nothing else is touched.
cat >story.lua <<'END'
-- A heading that stays.
local pair = zilvo.create("ssOKCancel", { bag = {} })
--> something old
--> and more of it
local function set(name, value) pair[name] = value end
pair:on("OKWasClicked", function()
    pair.OKEnabled = false -- a comment
end)

pcall(set, "Default", "x")
pair.OKEnabled = true; print(pair.OKEnabled, { 3, name = 0.5 })
pair:key(13)
END
cp story.lua before.lua
play 1 story.lua
prints 'story.lua:2: what happens is not what is written (- written, + observed)' differing
prints '  - --> something old' differing
prints '  + --> created ssOKCancel' differing
prints 'story.lua: 4 of 6 statements differ' differing
cmp -s story.lua before.lua || complain 'playing changed the file'
play 0 story.lua --write
prints 'story.lua: 4 statements written anew' writing
play 0 story.lua
prints 'story.lua: 6 statements as written' 'playing what was written'
grep -v '^-->' story.lua >statements.lua
grep -v '^-->' before.lua | cmp -s statements.lua - || complain 'writing changed a statement'
sed -n '/^pcall/,$p' story.lua | grep -v '^-- ' >observed
cat >expected <<'END'
pcall(set, "Default", "x")
--> fails: type mismatch: ssOKCancel.Default: "x" (String) does not convert to Boolean
pair.OKEnabled = true; print(pair.OKEnabled, { 3, name = 0.5 })
--> cmdOK: Enabled False -> True
--> ssOKCancel: OKEnabled False -> True
--> prints true {name = 0.5, 3}
pair:key(13)
--> OKWasClicked()
-->   cmdOK: Enabled True -> False
-->   ssOKCancel: OKEnabled True -> False
END
cmp -s expected observed || complain "observed: $(cat observed)"
"$program" --component "$component" run story.lua >out 2>err || complain 'it does not run as a script'

# What cannot be played: the status, the line and why; the other files are played all the same, and none is written.
# NAME|SCRIPT|MESSAGE
while IFS='|' read -r name script message; do
    printf '%b' "$script" >"$name.lua"
    cp "$name.lua" before.lua
    play 1 "$name.lua" story.lua --write
    prints "$name.lua:$message" "$name"
    prints 'story.lua: 0 statements written anew' "$name"
    cmp -s "$name.lua" before.lua || complain "$name was written"
done <<'END'
syntax|local a = 1\nx = = 2\n|2: unexpected symbol
unfinished|local a = 1\nlocal function f(\n|3: <name> or '...' expected near <eof>
missing-class|local a = 1\nlocal c = zilvo.create("Nothing")\n|2: neither a known component
error|\n\nerror("stop")\n|3: stop
endless|local a = 1\nwhile true do pcall(error) end\n|2: the statement did not end in 2 s
exit|local a = 1\nos.exit(0)\n|2: the statement ended the process with exit status 0
crash|local a = 1\nos.execute("kill -9 $PPID")\n|2: the statement ended by signal 9
stray|-- nothing\n\n--> beep\n|3: what is observed here stands under no statement
END
printf 'if true then return end\nlocal x = 1\n--> beep\n' >early.lua
play 1 early.lua
prints 'early.lua:2: did not run' early.lua
play 1 absent.lua
prints 'absent.lua cannot be read' absent.lua
play 1 .
prints 'is a directory' directory
play 1 "$(printf '%0300d' 0).lua"
prints '.lua cannot be read: File name too long' 'a name that is too long'
name=$(printf '%0250d' 0).lua # as long as a name can be
grep -v '^-->' story.lua >"$name"
cp "$name" before.lua
chmod a-w "$name"
play 1 "$name" --write
prints "$name cannot be written: it is read-only" 'the file that cannot be written'
cmp -s "$name" before.lua || complain 'the file that cannot be written was'
chmod u+w "$name"
play 0 "$name" --write
finish
