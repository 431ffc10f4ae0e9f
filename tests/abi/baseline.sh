#!/bin/sh
# baseline.sh check LIBRARY: fails when a program that was built with the
#   library of the baseline would meet another binary interface: a symbol, a
#   type in a signature, a layout, a constant's value. Skipped without abidiff.
# baseline.sh write LIBRARY: makes the library's interface the baseline.
# The library needs debug information.
set -eu
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
esac
