#!/usr/bin/env bash
# Usage: idl.sh PROGRAM COMPONENT DECLARATIONS
# What the program prints compiles to a type library that holds every identifier of the component, with
# the declarations of the automation types that lie in the folder DECLARATIONS.
set -euo pipefail
program=$1
component=$2
declarations=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
compile() { x86_64-w64-mingw32-widl -I "$declarations" -L "$work" -t -o "$2" "$1"; }

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

compile "$declarations/stdole2.idl" "$work/stdole2.tlb"
"$program" --component "$component" describe --idl >"$work/library.idl"
compile "$work/library.idl" "$work/library.tlb"

# The binary form of an identifier: three little-endian numbers, then eight bytes.
bytes=$(od -An -v -tx1 "$work/library.tlb" | tr -d ' \n')
ids=$(sed -nE 's/.*uuid\(([0-9A-F-]+)\).*/\L\1/p' "$work/library.idl")
[ "$(wc -w <<<"$ids")" -gt 60 ] || fail "few identifiers: $ids"
for id in $ids; do
    little=$(sed -E 's/^(..)(..)(..)(..)-(..)(..)-(..)(..)/\4\3\2\1\6\5\8\7/; s/-//g' <<<"$id")
    [[ $bytes == *$little* ]] || fail "the type library lacks $id"
done

# A class alone is a library too, and one description is in one language.
"$program" --component "$component" describe SpinCounter --idl >"$work/one.idl"
compile "$work/one.idl" "$work/one.tlb"
grep -q 'propputref\] HRESULT Font(\[in\] IFontDisp\* ' "$work/one.idl" || fail "Font is not put by reference"
! "$program" --component "$component" describe --idl --json >/dev/null 2>&1 || fail "two languages at once"
