# Sourced by every script before it does anything else, so that neither --help
# nor a mistyped option changes the machine. The comment at the top of a script
# is its usage text.

# Absolute, since scripts change their folder.
usage_source=$(cd "$(dirname "$0")" && pwd)/$(basename "$0")

print_usage() {
  sed -n '1d; /^#/!q; s/^# \{0,1\}//p' "$usage_source"
}

# fail_usage MESSAGE
fail_usage() {
  echo "$(basename "$0"): $1" >&2
  print_usage >&2
  exit 2
}

# check_usage LEAST MOST OPTIONS ARGUMENT...: how many arguments the script
# takes (MOST may be "any"), and the options that may come first, separated by
# spaces.
check_usage() {
  least=$1 most=$2 options=$3
  shift 3
  case ${1-} in
    --help | -h)
      print_usage
      exit 0
      ;;
    -?*)
      case " $options " in
        *" $1 "*) ;;
        *) fail_usage "unknown option: $1" ;;
      esac
      ;;
  esac
  [ $# -ge "$least" ] || fail_usage "too few arguments"
  [ "$most" = any ] || [ $# -le "$most" ] || fail_usage "too many arguments"
}

# require_number WORD
require_number() {
  case $1 in
    '' | *[!0-9]*) fail_usage "not a number: $1" ;;
  esac
}

# require_folder PATH
require_folder() {
  [ -d "$1" ] || fail_usage "no such folder: $1"
}
