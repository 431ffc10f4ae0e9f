#!/bin/sh
# manual_pages.sh HEADER PAGE...: fails when a page has a mistake that man finds,
# or when velmohelp.3 leaves out a function that the header declares.
set -eu
header=$1
shift
for page; do
  warnings=$(MANWIDTH=80 LC_ALL=C.UTF-8 man --warnings -l "$page" 2>&1 >/dev/null)
  [ -z "$warnings" ] || { echo "$page: $warnings" >&2; exit 1; }
  case $page in
    */velmohelp.3) library=$page ;;
  esac
done
functions=$(sed -n 's/^VELMOHELP_API [a-z0-9_]* \([A-Za-z]*\)(.*/\1/p' "$header")
[ "$(echo "$functions" | wc -l)" -gt 6 ] || { echo "None read" >&2; exit 1; }
for function in $functions; do
  grep -q "$function" "$library" || { echo "No $function" >&2; exit 1; }
done
