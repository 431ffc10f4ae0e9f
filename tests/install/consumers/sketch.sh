#!/bin/sh
# sketch.sh SKETCH FOLDER PREFIX: copies the example in the folder SKETCH, builds
# it against the library below PREFIX, and uses it as the user of a desktop with
# a browser of the test's own. Everything is below FOLDER, which is deleted
# first.
set -eu
sketch=$1 folder=$2 prefix=$3
rm -rf "$folder"
# A space in the path: addresses must come out all the same.
home="$folder/a home"
settings=$home/.config
mkdir -p "$home/.local/share/applications" "$settings/velmo"
export HOME="$home"
unset XDG_CONFIG_HOME XDG_CONFIG_DIRS XDG_DATA_HOME XDG_DATA_DIRS
cp -r "$sketch" "$home/sketch"

# The browser reports its address in a pipe. It gives up when nobody reads:
# CTest waits for it.
cat >"$folder/browser" <<END
#!/bin/sh
exec 2>/dev/null
exec timeout 60 sh -c 'echo "\$1" >"\$2"' sh "\$1" "$folder/shown"
END
chmod +x "$folder/browser"
cat >"$home/.local/share/applications/test.desktop" <<END
[Desktop Entry]
Type=Application
Name=Test
Exec="$folder/browser" %u
END
echo '[Default Applications]
x-scheme-handler/https=test.desktop' >"$settings/mimeapps.list"

cd "$home/sketch"
cmake -S . -B build "-DCMAKE_PREFIX_PATH=$prefix" "-DCMAKE_C_COMPILER=$CC"
cmake --build build
cd build

# expect OUTPUT ADDRESS ARGUMENT...: what ./sketch prints and the browser shows.
expect() {
  output=$1 address=$2
  shift 2
  # A new pipe: the last browser may still have the old one open.
  rm -f "$folder/shown"
  mkfifo "$folder/shown"
  timeout 60 head -n 1 "$folder/shown" >"$folder/address" &
  printed=$(./sketch "$@")
  wait
  shown=$(cat "$folder/address")
  [ "$printed" = "$output" ] && [ "$shown" = "$address" ] && return
  printf './sketch %s: "%s" and %s\n' "$*" "$printed" "$shown" >&2
  exit 1
}

found='initialise: 0 success
display: 0 success'
help="file://$folder/a%20home/.config/klh.9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1/Local%20Store/Help/Sketch/en_US"
built="file://$folder/a%20home/sketch/build/content/Sketch/en_US"

# Without a help server.
printf '[Preferences]\nVelmoOnlineDefault=0\n' \
  >"$settings/velmo/com.velmo.VelmoOnlineHelp.conf"
expect "$found" "$help/lines.html" drawing-lines
expect "$found" "$help/lines.html?nameAnchor=curves" drawing-curves
expect "$found" "$help/index.html" no-such-page
expect 'search: 0 success' "$help/search.html?q=right%20angle" \
  --search 'right angle'

# With one, which this library takes to be localhost: the same pages.
rm "$settings/velmo/com.velmo.VelmoOnlineHelp.conf"
expect "$found" "$built/lines.html#curves" drawing-curves
expect 'search: 0 success' "$built/search.html?q=pen" --search pen

# Every page is in the index.
for page in index lines moving; do
  grep -q "name: \"$page.html\", title: \".\+\", text: \".\+\"" \
    content/Sketch/en_US/search-index.js
done
