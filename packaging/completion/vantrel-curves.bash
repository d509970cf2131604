# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of vantrel-curves for bash.
_vantrel_curves() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local pages="kinematics kinetics measures variability scores label"
  local options="--output --page --strides --mean --normal --label --title --subject --paper
    --landscape --monochrome --overwrite --help --version"

  case $previous in
    --page)
      mapfile -t COMPREPLY < <(compgen -W "$pages" -- "$current")
      return
      ;;
    --paper)
      mapfile -t COMPREPLY < <(compgen -W "a4 letter" -- "$current")
      return
      ;;
    --normal | --output)
      mapfile -t COMPREPLY < <(compgen -f -- "$current")
      compopt -o filenames
      return
      ;;
    --label | --title | --subject) return ;;
  esac
  if [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    return
  fi
  mapfile -t COMPREPLY < <(
    compgen -d -- "$current"
    compgen -f -X '!*.[cC]3[dD]' -- "$current"
  )
  compopt -o filenames
}
complete -F _vantrel_curves vantrel-curves
