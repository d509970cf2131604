# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of vantrel-report for bash.
_vantrel_report() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local reports="header parameter-header groups parameters labels point analog events strides
    measures normalized summary visit variability norms scores check gcd tree"
  local options="--label --all-labels --group --param --format --further-labels --normal --events --output-dir
    --axes --overwrite --gender --date-of-birth --visit-date --recursive --jobs --help --version"

  case $previous in
    --output-dir)
      mapfile -t COMPREPLY < <(compgen -d -- "$current")
      compopt -o filenames
      return
      ;;
    --format)
      mapfile -t COMPREPLY < <(compgen -W "text csv json" -- "$current")
      return
      ;;
    --axes)
      mapfile -t COMPREPLY < <(compgen -W "walk anatomical" -- "$current")
      return
      ;;
    --normal)
      mapfile -t COMPREPLY < <(compgen -f -- "$current")
      compopt -o filenames
      return
      ;;
    --gender)
      mapfile -t COMPREPLY < <(compgen -W "Female Male" -- "$current")
      return
      ;;
    --label | --group | --param | --date-of-birth | --visit-date | --jobs) return ;;
  esac
  if [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    return
  fi
  local word
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    if [[ " ${reports//$'\n'/ } " == *" $word "* ]]; then
      mapfile -t COMPREPLY < <(
        compgen -d -- "$current"
        compgen -f -X '!*.[cC]3[dD]' -- "$current"
      )
      compopt -o filenames
      return
    fi
  done
  mapfile -t COMPREPLY < <(compgen -W "$reports" -- "$current")
}
complete -F _vantrel_report vantrel-report
