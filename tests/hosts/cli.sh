#!/bin/sh
# Usage: cli.sh PROGRAM COMPONENT
# Checks what the commands print and the exit statuses that scripts rely on.
set -u
program=$1
component=$2
. "$(dirname "$0")/../support/complaints.sh"

# expect STATUS PATTERN ARGUMENT...: runs the program on the component; a line of its output must match PATTERN.
expect() {
    status=$1
    pattern=$2
    shift 2
    "$program" --component "$component" "$@" >"$work/out" 2>"$work/err" </dev/null
    got=$?
    [ $got -eq "$status" ] || complain "$* ended with $got, not $status"
    [ -z "$pattern" ] || cat "$work/out" "$work/err" | grep -q -e "$pattern" || complain "$* did not print $pattern"
}

script() {
    printf '%s\n' "$2" >"$work/$1"
}

# Scripts: success, each way to fail with its line, arguments.
script good.lua 'assert(arg[0]:find("good.lua", 1, true)); print(#arg, ...)'
expect 0 '^3	-x	--json	list$' run "$work/good.lua" -x --json list
expect 0 '^0$' run "$work/good.lua"
script plain.lua 'local x
error("stopped here")'
expect 1 'plain.lua:2: stopped here$' run "$work/plain.lua"
script table.lua '
error({})'
expect 1 'table.lua:2: .*table' run "$work/table.lua"
script message.lua 'error({ code = 5, message = "told so" })'
expect 1 'message.lua:1: told so$' run "$work/message.lua"
script nil.lua 'error(nil)'
expect 1 'nil.lua:1: .*nil' run "$work/nil.lua"
script syntax.lua 'x = = 1'
expect 1 'syntax.lua:1: ' run "$work/syntax.lua"
script failure.lua 'local c = zilvo.create("ssOKCancel")

c.Nothing = 1'
expect 1 'failure.lua:3: .*ssOKCancel.*Nothing$' run "$work/failure.lua"
script handler.lua 'local c = zilvo.create("ssOKCancel")
c:on("OKWasClicked", function()
    zilvo.create("Nothing")
end)
c:key(13)'
expect 1 'handler.lua:3: .*Nothing$' run "$work/handler.lua"
script debug.lua 'local names, c = {}, zilvo.create("ssOKCancel")
for name in pairs(debug) do names[#names + 1] = name end
table.sort(names)
local reached = 0
c:on("OKWasClicked", function()
    for level = 1, 9 do
        local frame = debug.getinfo(level)
        if frame and frame.what == "C" and not pcall(frame.func, c) then reached = reached + 1 end
    end
end)
c:key(13)
print(require("debug") == debug, reached, table.concat(names, " "))'
expect 0 '^true	3	gethook getinfo sethook traceback$' run "$work/debug.lua"
script final.lua 'setmetatable({}, { __gc = function() print(pcall(zilvo.create, "ssOKCancel")) end })'
expect 0 '^false	.*final.lua:1: the script has ended$' run "$work/final.lua"
script exit.lua 'zilvo.create("ssOKCancel") os.exit(7, true)'
expect 7 '' run "$work/exit.lua"
script drop.lua 'local most = 0
for _ = 1, 20000 do zilvo.create("DeckButtons") most = math.max(most, zilvo.alive) end print(most)'
expect 0 '^[0-9][0-9]\{0,1\}$' run "$work/drop.lua"
script changes.lua 'local c = zilvo.create("ssOKCancel")
for i = 1, 3000 do c.Cancel = i % 2 == 0 end c.Default = false
print(#c.changes >= 500 and #c.changes <= 1000, c.changes[1], c.changes[#c.changes])'
expect 0 '^true	Cancel	Default$' run "$work/changes.lua"
expect 1 'missing.lua' run "$work/missing.lua"
expect 1 'irectory' run "$work"

# Information.
expect 0 '^ssOKCancel .*\.ssOKCancel .*{F183CFF5-42C5-44A4-958C-928E204EBE8B}$' list
expect 0 '^class ssOKCancel ' describe
expect 0 '0x68030005 property Cancel As Boolean (get, put)' describe ssokcancel
expect 0 '^  "library": {$' describe --json
expect 0 '"progId": "[A-Z_a-z]*\.ssOKCancel"' describe ssOKCancel --json
expect 1 'Nothing' describe Nothing
expect 0 'cmdOK: CommandButton .*disabled' inspect ssOKCancel
expect 0 '^  "class": "ssOKCancel",$' inspect ssOKCancel --json
expect 1 'Nothing' inspect Nothing
expect 0 '^BITMAP  30016  *760 bytes$' resources
expect 0 '^VERSION 1  *[0-9]* bytes$' resources
expect 0 '' resources -o "$work/resources"
[ "$(find "$work/resources" -name 'BITMAP-*.dib' -size 760c | wc -l)" -eq 17 ] || complain "not the seventeen bitmaps"
[ "$(find "$work/resources" -name 'RCDATA-*' -size 20c | wc -l)" -eq 35 ] || complain "not the interface ids"
expect 0 '' resources _iid_ssokcancel -o "$work/one"
[ "$(od -An -tx1 "$work/one/RCDATA-_IID_SSOKCANCEL.bin" | tr -d ' \n')" = 10000000957c213810631c4fba9fb9205b4221c4 ] ||
    complain "another interface id"
expect 1 'nothing' resources 30015 nothing -o "$work/none"
[ ! -e "$work/none" ] || complain "resources in spite of an unknown one"
expect 1 'Usage' resources 30015

# Pictures: an unknown class is named and does not keep the others from being drawn.
expect 0 '' snapshot ssOKCancel -o "$work/new/folder"
grep -q '</svg>' "$work/new/folder/ssOKCancel.svg" || complain "no picture"
expect 1 'Nothing' snapshot Nothing ssokcancel -o "$work/some"
[ "$(ls "$work/some")" = ssOKCancel.svg ] || complain "not the one picture: $(ls "$work/some")"
expect 0 '' snapshot all -o "$work/all"
[ -s "$work/all/ssOKCancel.svg" ] || complain "no picture among all"
: >"$work/file"
expect 1 'file' snapshot ssOKCancel -o "$work/file/below"

# A conversation: errors do not end it, an unfinished statement goes on.
printf '%s\n' '1 + 1' 'error("oh")' 'for i = 5, 6 do' 'print(i)' 'end' 'x = zilvo.create("ssOKCancel")' \
    'x.Cancel, x.Default' 'x.Nothing' 'if' >"$work/typed"
"$program" --component "$component" repl <"$work/typed" >"$work/out" 2>"$work/err" || complain "the conversation failed"
[ "$(tr '\n' ' ' <"$work/out")" = '2 5 6 true	true ' ] || complain "the conversation printed something else"
[ "$(grep -c . "$work/err")" -eq 3 ] || complain "the conversation had other errors"

# Values are shown as a script would write them; a table's message is its error's text.
cat >"$work/typed" <<'END'
'"\n\27', 2.0, 1/0, zilvo.Integer(5), zilvo.array(3, { true }), zilvo.Font { Size = 9 }, zilvo.create("GOButton")
t = { 1, { "x" }, ["a b"] = nil, x = 1, ["end"] = 2, [0] = true } t.t = t t[2].up = t[2]
t
{ { { { { 1 } } } } }, ("x"):rep(3), setmetatable({}, { __tostring = function() return "own" end })
{ ("a"):rep(60), ("b"):rep(60) }
error({ message = "told so" })
END
cat >"$work/expected" <<'END'
"\"\n\x1B"	2.0	math.huge	zilvo.Integer(5)	zilvo.array(3, {true})	zilvo.Font({Size = 9.0})	control GOButton
{[0] = true, ["end"] = 2, t = <cycle>, x = 1, 1, {up = <cycle [2]>, "x"}}
{{{{{...}}}}}	"xxx"	own
END
"$program" --component "$component" repl <"$work/typed" >"$work/out" 2>"$work/err"
head -n 3 "$work/out" | cmp -s "$work/expected" - || complain "the values are $(cat "$work/out")"
[ "$(sed -n '4,$p' "$work/out" | cut -c1-5 | tr '\n' ' ')" = '{   "aa   "bb } ' ] || complain 'a long table is no list'
[ "$(cat "$work/err")" = 'stdin:1: told so' ] || complain "the table's message is $(cat "$work/err")"

# What is long is not compiled anew with each of its lines, and runs where it ends.
{
    printf '%s\n' 'function many() --[==[ if' 'do ]] ( ]==] return #{'
    seq 20000 | sed 's/.*/    function() if many then return "}" .. "\\"" end end, -- }/'
    printf '%s\n' '}' 'end' 'many()' 'for i = = 1 do' 'if'
} | timeout 60 "$program" --component "$component" repl >"$work/out" 2>"$work/err" || complain 'a long conversation failed'
[ "$(cat "$work/out")" = 20000 ] || complain 'a long conversation printed something else'
[ "$(grep -c . "$work/err")" -eq 2 ] || complain 'a long conversation had other errors'

# Misuse: help and a failing status.
expect 1 'Usage' inspect
expect 1 'Usage' run
expect 1 'Usage' frobnicate
expect 1 'not expected: frobnicate$' frobnicate
expect 1 'Usage'
expect 1 'Usage' snapshot ssOKCancel
expect 1 'Usage' list --json
expect 0 'Usage' --help
expect 0 'Usage' run --help

# What cannot be written is not lost in silence, whoever writes it and however the program ends.
script story.lua 'local x'
script out.lua 'print(1)'
script write.lua 'io.write("x") os.exit(true, true)'
script silent.lua 'io.open(arg[1], "w"):write("kept"):close()'
for arguments in list describe 'describe --json' resources 'inspect ssOKCancel' --help repl "run $work/out.lua" \
    "run $work/write.lua" "transcript $work/story.lua" 'validate /dev/null'; do
    for stream in '>/dev/full' '>&-'; do
        # shellcheck disable=SC2086
        (eval "echo 1 | '$program' --component '$component' $arguments $stream" 2>"$work/err")
        [ $? -eq 1 ] || complain "$arguments $stream did not end with 1"
        grep -q '^zilvo: the standard output cannot be written: ' "$work/err" || complain "$arguments $stream: no message"
    done
done
"$program" --component "$component" run "$work/silent.lua" "$work/kept" >&- || complain 'nothing to write was lost'
[ "$(cat "$work/kept")" = kept ] || complain 'the closed output got into a file'

# The component: one that is missing or none at all, and named behind the command too.
component_given=$component
component=$work/absent
expect 1 'absent' list
component=$work/good.lua
expect 1 'good.lua' list
component=$(printf '%0300d' 0)
expect 1 "^zilvo: the component file .*$component cannot be read: File name too long$" list
component=$component_given
# What no system says in our stead.
(mkdir "$work/gone" && cd "$work/gone" && rmdir "$work/gone" && "$program" --component absent list) \
    >"$work/out" 2>"$work/err" && complain 'a component was found in no folder'
grep -q '^zilvo: absent cannot be found: No such' "$work/err" || complain 'in no folder'
export TMPDIR="$work/absent"
expect 1 "^zilvo: no temporary folder .* can be made: " validate "$component"
unset TMPDIR
"$program" run --component "$component" "$work/good.lua" a >"$work/out" 2>"$work/err" || complain "--component behind run"
"$program" list --component "$component" >"$work/out" 2>"$work/err" || complain "--component behind list"

finish
