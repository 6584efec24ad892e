#!/usr/bin/env bash
# check_hardening.sh PROGRAM...: fails unless each program checks itself as packages of ours do.
set -euo pipefail

# has PROGRAM WHAT READELF_ARGUMENT PATTERN
has() {
    local told
    told=$(LC_ALL=C readelf -W "$3" "$1")
    grep -qE "$4" <<<"$told" && return
    printf '%s: no %s\n' "$1" "$2" >&2
    exit 1
}

for program in "$@"; do
    has "$program" "position-independent code" -h 'Type: +DYN'
    has "$program" "read-only relocations" -l 'GNU_RELRO'
    has "$program" "binding at the start" -d 'BIND_NOW|FLAGS.* NOW'
    has "$program" "protection of the stack" --dyn-syms ' __stack_chk_fail'
    has "$program" "checked lengths" --dyn-syms ' __[a-z]+_chk(@|$)'
    has "$program" "checked indices of containers" --dyn-syms '__glibcxx_assert_fail'
    # A stack that only data is on.
    has "$program" "stack without code" -l 'GNU_STACK .* RW '
done
