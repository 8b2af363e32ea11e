#!/bin/sh
# Usage: validate.sh PROGRAM FAULTY
# The component passes as long as it is sound; each planted fault is found by its check, with a finding, while the other
# checks go on.
set -u
program=$1
faulty=$2
. "$(dirname "$0")/../support/complaints.sh"

# run STATUS ARGUMENT...: validates, which must end with that status.
run() {
    status=$1
    shift
    "$program" validate "$@" >"$work/out" 2>"$work/err" </dev/null
    got=$?
    [ $got -eq "$status" ] || complain "validate $* ended with $got, not $status"
}

# prints PATTERN WHAT: a line of the report matches.
prints() {
    grep -q -e "$1" "$work/out" || complain "$2 did not print $1"
}

run 0 "$faulty" --timeout 120
prints '^PASSED  *loads' "$faulty"
prints '^PASSED  *unloads' "$faulty"
prints ', 0 skipped, 0 failed, 0 crashed$' "$faulty"
! grep -q 'Faulty is loaded' "$work/out" || complain "what the component prints is in the report"
checks=$(grep -c ' ms$' "$work/out")

# FAULT|CHECK'S LINE|FINDING
while IFS='|' read -r fault line finding; do
    export ZILVO_FAULT="$fault"
    run 1 "$faulty" --timeout 3
    prints "^$line  *[0-9]* ms$" "$fault"
    prints "^   .*$finding" "$fault"
    [ "$(grep -c ' ms$' "$work/out")" -eq "$checks" ] || complain "$fault kept a check from its report"
    [ "$fault" = crash-while-loading ] || prints '^PASSED  *names' "$fault"
done <<END
same-interface-id|FAILED  *identifiers|{9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C211} stands twice: for the interface of Faulty and for the events of Faulty
other-member-id|FAILED  *instances are as described|Faulty: the instance has .*1745027074.*Length.*, the class table .*1745027073
known-class-refused|FAILED  *class factories|Faulty: .*{9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C210}
unknown-class-given|FAILED  *unknown classes and interfaces|expected 0x80040111 (class not available), came 0x00000000
missing-event-number|FAILED  *file says what runs|TYPELIB 1 is another
missing-event-number|FAILED  *member ids and event numbers|Faulty: the event TitleChanged has the number 3, not 2
undeclared-event-number|FAILED  *events are raised as declared|click cmdPush: raises Pushed with the number 99, not 1
event-argument-by-value|FAILED  *events are raised as declared|click cmdPush: raises Pushed with -1 (Integer) as Index, which is no reference
crash-in-member|CRASHED  *properties|ended .* at Faulty.Length
hang-in-method|FAILED  *extreme arguments|did not finish in 3 s at Faulty.Work, method Amount = 32767
object-stays-alive|FAILED  *stays loaded while in use|Faulty: 1 objects are alive
settings-not-restored|FAILED  *settings are restored|Title was saved as "Text & more" (String), is saved as "&Push" (String)
second-InitNew|FAILED  *lifecycle|Forwarder, InitNew while new: expected 0x8000ffff (unexpected call), came 0x00000000
other-id-registered|FAILED  *registration|registers \[class\] id = {9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C299}.*expected \[class\] id = {9C4D21E7-0A6B-4F1C-8E55-3B7D90A1C210}
crash-while-loading|CRASHED  *loads and exports|ended
END
unset ZILVO_FAULT

# What the file says is read without running any of it, even when that would end the program.
export ZILVO_FAULT=crash-while-loading
for command in list describe 'describe --json' 'describe Faulty --idl' resources "register $faulty" registrations \
    "unregister $faulty"; do
    # shellcheck disable=SC2086
    "$program" --component "$faulty" --registrations "$work/registrations" $command >"$work/out" 2>&1 || complain "$command failed"
    prints 'Faulty\|TYPELIB' "$command"
    ! grep -q 'is loaded' "$work/out" || complain "$command loaded the component"
done
# What makes objects runs it, and does not end with it.
for command in 'inspect Faulty' "snapshot all -o $work/new" "gallery $work/all.svg"; do
    # shellcheck disable=SC2086
    "$program" --component "$faulty" $command >"$work/out" 2>&1
    [ $? -eq 1 ] || complain "$command did not end with 1"
    prints "^zilvo: running $faulty ended " "$command"
done
unset ZILVO_FAULT

# JSON and nothing else.
run 0 "$faulty" --json --timeout 120
[ "$(sed -n 1p "$work/out")" = '{' ] || complain "the report is no JSON object"
prints '^    "crashed": 0$' "$faulty"
prints '^      "name": "unloads",$' "$faulty"
! command -v python3 >/dev/null || python3 -m json.tool "$work/out" >/dev/null || complain "the report is no JSON"

# Files that are no component.
echo 'no component' >"$work/text"
for file in "$work/text" "$work/missing" "$work" "$program"; do
    run 1 "$file"
    prints '^FAILED  *loads' "$file"
    prints "^   .*component.*$file\\|^   .*$file.*component" "$file"
    prints '^SKIPPED  *unloads' "$file"
done

# Misuse.
for arguments in '' '--timeout 0' '--timeout x'; do
    # shellcheck disable=SC2086
    ! "$program" validate $arguments "${arguments:+$faulty}" >"$work/out" 2>"$work/err" || complain "took $arguments"
done

finish
