#!/bin/sh
# types_test.sh PACKAGE CACHE: checks the package's type hints, and that a caller
# gets the types that the documents promise.
set -eu
command -v mypy >/dev/null || {
  echo "types_test: Skipped"
  echo "mypy is not installed"
  exit 77
}
here=$(cd "$(dirname "$0")" && pwd)
cd "$(dirname "$1")"
mypy --strict --cache-dir "$2" "$(basename "$1")"
MYPYPATH=. mypy --strict --cache-dir "$2" "$here/types_of_callers.py"
