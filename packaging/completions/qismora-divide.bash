# Completion of qismora-divide for bash.

_qismora_divide() {
  local options="--school= --format= --reasons --compare --consent --input= --separator= --columns= --ignore-columns
    --first= --no-header --quiet --help --version"
  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]} words=
  # bash takes --option=value as three words.
  if [[ $cur == = ]]; then
    cur=
  elif [[ $prev == = ]]; then
    prev=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  case $prev in
    -s | --school) words="hanafi maliki shafii hanbali all" ;;
    -f | --format) words="table csv json jsonl" ;;
    -i | --input) words="csv case" ;;
    -d | --separator) words="comma semicolon tab" ;;
    --columns | --first) return ;;
    *) [[ $cur != -* ]] || words=$options ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$cur")
  if [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *= ]]; then compopt -o nospace; fi
}
complete -o default -F _qismora_divide qismora-divide
