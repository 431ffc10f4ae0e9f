#!/bin/sh
# replay.sh DOCUMENT FOLDER: does in FOLDER, which is deleted first, what the
# document tells its reader to do, in one shell and in the document's order.
#
#   ```c NAME      a file to be saved as NAME
#   ```console     commands, each after "$ "; the lines after a command are all
#                  that it prints
#
# Fails at the first command that prints something else or fails.
set -eu
document=$1
rm -rf "$2"
mkdir -p "$2/home"
cd "$2"
got=$PWD/got wanted=$PWD/wanted
export HOME="$PWD/home"
unset XDG_CONFIG_HOME XDG_CONFIG_DIRS XDG_DATA_HOME XDG_DATA_DIRS

# The desktop of a reader without a help server.
mkdir -p "$HOME/.config/velmo" "$HOME/.local/share/applications"
printf '[Preferences]\nVelmoOnlineDefault=0\n' \
  >"$HOME/.config/velmo/com.velmo.VelmoOnlineHelp.conf"
printf '[Desktop Entry]\nType=Application\nName=Test\nExec=true %%u\n' \
  >"$HOME/.local/share/applications/test.desktop"
printf '[Default Applications]\nx-scheme-handler/https=test.desktop\n' \
  >"$HOME/.config/mimeapps.list"

# compare: what the last command printed, with what the document says.
compare() {
  [ -n "$command" ] || return 0
  diff -u "$wanted" "$got" || {
    echo "$document: $command" >&2
    exit 1
  }
  commands=$((commands + 1))
  command=
}

run() {
  compare
  command=$1
  : >"$wanted"
  eval "$command" >"$got" 2>&1 </dev/null || {
    echo "$document: $command: status $?" >&2
    cat "$got" >&2
    exit 1
  }
}

block='' command='' commands=0
while IFS= read -r line; do
  case $block:$line in
    '':'```console') block=console ;;
    '':'```'*) block=${line#* } && [ "$block" != "$line" ] || block=unnamed ;;
    *:'```') compare && block= ;;
    console:'$ '*) run "${line#\$ }" ;;
    console:*) printf '%s\n' "$line" >>"$wanted" ;;
    '':* | unnamed:*) ;;
    *) printf '%s\n' "$line" >>"$block" ;;
  esac
done <"$document"
echo "Replayed: $commands commands"
[ "$commands" -gt 5 ]
