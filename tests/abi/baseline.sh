#!/bin/sh
# usage: tests/abi/baseline.sh check LIBRARY
#        tests/abi/baseline.sh write LIBRARY
#
# check fails when the binary interface of LIBRARY is not that of the baseline,
# so that programs built with the baseline's library would break: a symbol, a
# type in a signature, a layout, a constant's value. Skipped without abidiff.
# write makes the interface of LIBRARY the baseline.
#
# The library needs debug information.
set -eu
. "$(dirname "$0")/../../scripts/usage.sh"
check_usage 2 2 "" "$@"
here=$(cd "$(dirname "$0")" && pwd)
baseline=$here/baseline.xml
library=$2

check() {
  command -v abidiff >/dev/null || { echo "Skipped: no abidiff"; exit 77; }
  abidiff --suppressions "$here/baseline.suppr" "$baseline" "$library" || {
    echo "The interface differs from $baseline." >&2
    exit 1
  }
}

# Without this machine's paths.
write() {
  abidw --suppressions "$here/baseline.suppr" --exported-interfaces-only \
    --drop-undefined-syms --no-comp-dir-path --no-corpus-path --no-elf-needed \
    --no-parameter-names --no-show-locs --no-write-default-sizes "$library" |
    sed "s|path='$(cd "$here/../.." && pwd)/|path='|" >"$baseline"
}

case $1 in
  check) check ;;
  write) write ;;
  *) fail_usage "unknown command: $1" ;;
esac
