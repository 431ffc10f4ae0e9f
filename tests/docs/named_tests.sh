#!/bin/sh
# named_tests.sh CTEST BUILD DOCUMENT: fails when the document names a test that
# the build does not have: in its table of rules, or as `Suite.Test`, `Suite.*`,
# `..._test` or `..._corpus` anywhere.
set -eu
# shellcheck disable=SC2016 # No commands: code spans of Markdown.
there=$("$1" --test-dir "$2" --show-only)
named=$(
  sed -n '/^## Which test/,/^## What/{/^|/p}' "$3" | cut -d '|' -f 3 |
    grep -o '`[^`]*`'
  grep -oE '`([A-Za-z/]+\.([A-Z][^`]*|\*)|[a-z_]+_(test|corpus))`' "$3"
)
[ "$(echo "$named" | wc -l)" -gt 20 ] || { echo "No names read" >&2; exit 1; }
missing=$(echo "$named" | tr -d '`' | sort -u | while read -r name; do
  echo "$there" | grep -qF -- "${name%\*}" || echo "$name"
done)
[ -z "$missing" ] || { echo "No such test: $missing" >&2; exit 1; }
