# What the example viewer and the example browser share: how they show things as
# text. Both source it, with $world set and a function "show" of their own.

# on_screen NAME [ARGUMENT...]: prints what "show" prints, before it the
# program's name and exactly the arguments that it was started with, one to a
# line. The demonstration reads all this from the pipe $world/screen when it
# comes to it, and the program waits for that, though not for ever. Without the
# pipe it prints what "show" prints on the terminal where the host was started.
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

# show_page URL: the page's text from the anchor on. The client hands a local
# page's anchor over as "?nameAnchor=", an online page's behind "#".
show_page() {
  local anchor=
  case $1 in
    *[?]nameAnchor=*) anchor=${1#*[?]nameAnchor=} ;;
    *[#]*) anchor=${1#*[#]} ;;
  esac
  w3m -no-proxy -dump_source "${1%%[?#]*}" | anchor=$anchor from_anchor |
    as_text
}

# A page that lacks the anchor is shown from its heading. What follows the text
# proper is the frame of the help's own site.
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
