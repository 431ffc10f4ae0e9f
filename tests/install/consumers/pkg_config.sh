#!/bin/sh
# pkg_config.sh SOURCE PROGRAM HELPDIR FRAMEWORKSDIR SYSCONFDIR: checks the
# places that the package names, then builds and runs a C program with nothing
# but the compiler and pkg-config, as a makefile does.
set -eu
test "$(pkg-config --variable=helpdir velmohelp)" = "$3"
test "$(pkg-config --variable=frameworksdir velmohelp)" = "$4"
test "$(pkg-config --variable=sysconfdir velmohelp)" = "$5"
# shellcheck disable=SC2046,SC2086 # both are lists of arguments
"$CC" -std=c11 -Wall -Wextra -Wpedantic -Werror $CFLAGS "$1" \
  $(pkg-config --cflags --libs velmohelp) -o "$2"
LD_LIBRARY_PATH=$(pkg-config --variable=libdir velmohelp) "$2"
