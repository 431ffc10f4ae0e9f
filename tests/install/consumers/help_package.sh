#!/bin/sh
# help_package.sh SKETCH FOLDER: builds the Debian package of help that is in the
# folder SKETCH, from a copy below FOLDER, which is deleted first, and looks for
# the pages where the client does. velmo-help is in the PATH, velmohelp.pc in the
# PKG_CONFIG_PATH.
set -eu
rm -rf "$2"
mkdir -p "$2"
cp -r "$1" "$2/sketch"
cd "$2/sketch"

# The tool is not installed as a package: -d.
dpkg-buildpackage -b -us -uc -d >../log 2>&1 || { cat ../log >&2; exit 1; }
cd ..
dpkg-deb -x sketch-help_*_all.deb root
installed="root$(pkg-config --variable=helpdir velmohelp)/Sketch/en_US"
cut -f 2 "$installed/helpmap.txt" | cut -d '#' -f 1 | while read -r page; do
  [ -f "$installed/$page" ] || { echo "No $page" >&2; exit 1; }
done
grep -q moving.html "$installed/search-index.js"
cmp sketch/content/Sketch/en_US/helpmap.txt "$installed/helpmap.txt"

# A mistake in the help fails the build.
sed -i /VX_HOME/d sketch/content/Sketch/en_US/helpmap.txt
cd sketch
if debian/rules build >../log 2>&1; then
  echo "Help without a home page was packaged" >&2
  exit 1
fi
grep -q no-home ../log
