# Sourced by the tests that run the program: a folder that goes with the test, and failures that do not end it.
#
# What was run last is expected to have left its output in $work/out and, where it is kept apart, $work/err. A test
# ends with `finish`.
work=$(cd "$(mktemp -d)" && pwd -P) || exit 1
trap 'rm -rf "$work"' EXIT
failures=0

complain() {
    echo "FAILED: $*" >&2
    for stream in out err; do
        [ ! -e "$work/$stream" ] || sed "s/^/    $stream: /" "$work/$stream" >&2
    done
    failures=$((failures + 1))
}

finish() {
    exit $((failures > 0))
}
