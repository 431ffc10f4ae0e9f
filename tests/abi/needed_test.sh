#!/bin/sh
# usage: needed_test.sh READELF LIBRARY
# Fails when the library needs anything but the C and C++ runtime: whatever it
# needs is loaded into the host's process too.
set -eu
readelf=$1 library=$2

needed=$("$readelf" -d "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
[ -n "$needed" ] || { echo "no NEEDED entry in $library" >&2; exit 1; }
for name in $needed; do
  case $name in
    libstdc++.so.* | libgcc_s.so.* | libm.so.* | libc.so.* | ld-linux*.so.*) ;;
    *) echo "$library needs $name" >&2; exit 1 ;;
  esac
done
