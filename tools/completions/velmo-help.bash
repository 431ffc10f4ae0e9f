# Completion of velmo-help for bash.
_velmo_help() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
  local command=${COMP_WORDS[1]-}
  local common='--help --json --color'
  local config='--output --locale --base-url --app-id --pub-id --force'
  local host='--host --pid'
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W '--help --version check display explain import new open search status' \
      -- "$word")
    return
  fi
  case $before in
    explain) mapfile -t COMPREPLY < <(compgen -W 'display open search' -- "$word")
      return ;;
    --host | --report) mapfile -t COMPREPLY < <(compgen -f -- "$word")
      compopt -o filenames
      return ;;
    --color) mapfile -t COMPREPLY < <(compgen -W 'auto always never' -- "$word")
      return ;;
    --format) mapfile -t COMPREPLY < <(compgen -W 'text json sarif' -- "$word")
      return ;;
    --on-collision) mapfile -t COMPREPLY < <(compgen -W 'first error' -- "$word")
      return ;;
    import) mapfile -t COMPREPLY < <(compgen \
      -W 'tsv csv gimp qhp qch htmlhelp hid2file' -- "$word")
      return ;;
    -o | --output | --against) mapfile -t COMPREPLY < <(compgen -d -- "$word")
      compopt -o filenames
      return ;;
  esac
  local options=
  case $command in
    explain) options="$common $host --verbose --offline --online --no-viewer \
--pref --report" ;;
    display | open | search) options="$common $host --verbose" ;;
    status) options="$common $host" ;;
    check) options="$common --format --ids --locales --against --baseline \
--all --without" ;;
    new) options="$common $config" ;;
    import) options="$common $config --product --content --home --prefix \
--on-collision --verbose" ;;
  esac
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
  elif [[ $command == check || $command == import ]]; then
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
    compopt -o filenames
  fi
}
complete -F _velmo_help velmo-help
