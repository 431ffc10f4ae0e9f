#!/bin/sh
# documented.sh VELMO_HELP SOURCE: fails when an option of a command is missing
# in the manual page or in a completion.
set -eu
tool=$1
source=$2
status=0
for command in explain display open search status check new import; do
  for option in $("$tool" "$command" --help |
    grep -o '^  [-a-z,]*--[a-z-]*' | grep -o -e '--[a-z-]*'); do
    for file in completions/velmo-help.bash completions/_velmo-help \
      velmo-help.1; do
      if ! sed 's/\\-/-/g' "$source/tools/$file" | grep -q -e "$option\b"; then
        echo "tools/$file lacks $option of $command"
        status=1
      fi
    done
  done
done
exit $status
