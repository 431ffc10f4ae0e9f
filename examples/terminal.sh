# Sourced by the example viewer and the example browser, which set $world and
# define a function "show" before.

# on_screen NAME [ARGUMENT...]: writes the program's name, the exact arguments
# that it was started with, one per line, and the output of "show" to the pipe
# $world/screen. The demonstration reads the pipe later; the program waits for
# that, but not forever. Without the pipe it prints the output of "show" alone,
# on the terminal where the host was started.
on_screen() {
  if [[ -p $world/screen ]]; then
    transcript "$@" | timeout 10 sh -c 'cat >"$0"' "$world/screen"
  else
    show "${@:2}"
  fi
}

transcript() {
  printf '%s %d\n' "$1" "$(($# - 1))"
  printf '%s\n' "${@:2}"
  show "${@:2}"
}

as_text() {
  w3m -T text/html -I UTF-8 -O UTF-8 -cols 72 -dump
}

# show_page URL: the page's text from the anchor on. The client passes the anchor
# of a local page as "?nameAnchor=", that of an online page after "#".
show_page() {
  local anchor=
  case $1 in
    *[?]nameAnchor=*) anchor=${1#*[?]nameAnchor=} ;;
    *[#]*) anchor=${1#*[#]} ;;
  esac
  w3m -no-proxy -dump_source "${1%%[?#]*}" | anchor=$anchor from_anchor |
    as_text
}

# A page without the anchor is shown from its heading on, and only up to the
# search frame that the help's own site adds.
from_anchor() {
  awk '{ line[NR] = $0 }
    !start && index($0, "name=\"" ENVIRON["anchor"] "\"") { start = NR }
    !heading && /<h1/ { heading = NR }
    END {
      for (i = start ? start : heading; i <= NR; i++) {
        if (line[i] ~ /<div id="SearchFrame"/) break
        print line[i]
      }
    }'
}
