#!/bin/sh
# result_codes.sh DOCUMENT HEADER...: fails when an enumeration of result codes
# in the headers has a constant that the document does not name with its
# number: in the row of a table that begins with the number, or in the text
# right after it.
set -eu
document=$1
shift
text=$(tr '\n' ' ' <"$document")
codes=$(
  cat "$@" | awk '
    /^(typedef )?enum [A-Za-z]*(ReturnCode|Result) / { inside = 1 }
    inside && match($0, /k[A-Za-z]+ = [0-9]+/) {
      print substr($0, RSTART, RLENGTH)
    }
    /}/ { inside = 0 }'
)
[ "$(echo "$codes" | wc -l)" -gt 40 ] || { echo "No codes read" >&2; exit 1; }
echo "$codes" | {
  missing=0
  while read -r name _ number; do
    grep -q "^| $number |.*\`$name\`" "$document" ||
      echo "$text" | grep -q "[ (]$number \`$name\`" || {
      echo "$document does not have $name with $number" >&2
      missing=1
    }
  done
  exit "$missing"
}
