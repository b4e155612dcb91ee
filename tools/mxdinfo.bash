# Completion of mxdinfo for bash.
_mxdinfo() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local options="--help --version --recursive --files-from --null --jobs --format --output --dump
    --xml --layers --sources --crs --symbols --losses
    --find-source --update --diff --check-sources --map
    --broken --fonts --totals --deep --no-bom --no-formula-guard --quiet --verbose --color --strict"
  local IFS=$' \t\n'
  case $previous in
    -f | --format) mapfile -t COMPREPLY < <(compgen -W "text json ndjson csv html xml dump" -- "$current") ;;
    --color) mapfile -t COMPREPLY < <(compgen -W "auto always never" -- "$current") ;;
    -j | --jobs) mapfile -t COMPREPLY < <(compgen -W "1 2 4 8 0" -- "$current") ;;
    --find-source | --map) COMPREPLY=() ;;
    -o | --output | --xml | --update | --files-from) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
    *)
      if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
      else
        mapfile -t COMPREPLY < <(
          compgen -d -- "$current"
          compgen -f -X '!*.[mM][xX][dDtT]' -- "$current"
        )
      fi
      ;;
  esac
}
complete -o filenames -F _mxdinfo mxdinfo
