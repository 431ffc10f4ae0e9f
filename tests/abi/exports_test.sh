#!/bin/sh
# usage: exports_test.sh NM LIBRARY LIST
# Fails when the names that the library exports, all with the version
# VELMOHELP_1.5, are not those of the list, in C order. A name that disappears
# breaks programs already built; one that appears is kept forever.
set -eu
nm=$1 library=$2 list=$3

names=$("$nm" -D --defined-only "$library")
plain=$(printf '%s\n' "$names" | sed -e 's/.* //' \
  -e '/^VELMOHELP_1\.5\(@@.*\)\{0,1\}$/d' -e 's/@@VELMOHELP_1\.5$//;t' \
  -e 's/$/ without the version/')
printf '%s\n' "$plain" | LC_ALL=C sort | diff -u "$list" - || {
  echo "exports differ: - is missing, + is not in $list" >&2
  exit 1
}
