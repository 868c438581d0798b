# Completion of quill-inp for bash.

_quill_inp_verbs='show fmt get set unset add new sweep hash diff json from-json lint explain lsp help'

_quill_inp_options() {
  local files='--recursive -r --glob --files-from --null -0 --jobs -j'
  local output='--output -o --force'
  local write='--output -o --force --in-place -i --diff --backup --break-hard-links --lock-timeout'
  local loss='--allow-loss --max-change --strict'
  local geometry='--atoms --frame --xyz --trajectory'
  local lines='--bond --angle --dihedral --atom --scan --post --raw'
  local general='--help -h --quiet -q --color --max-size --stdin-filename'
  case ${1:-} in
    show) echo "--json --lines --strict $files $general" ;;
    fmt) echo "$write --check $loss $files $general" ;;
    set) echo "--flag --replace-task --existing $geometry $write $loss $files $general" ;;
    unset) echo "--key -k $write $loss $files $general" ;;
    add) echo "$lines $write $loss $files $general" ;;
    new)
      echo "--task --param --model --device --charge --multiplicity $geometry $lines $output $loss $general"
      ;;
    from-json) echo "$output $loss $general" ;;
    sweep) echo "--output -o --zip --atoms --frames --manifest --force --jobs -j $loss $general" ;;
    hash) echo "--check $loss $files $general" ;;
    diff) echo "--json --git --strict $general" ;;
    get) echo "--json --default --strict --key -k --with-filename --no-filename $files $general" ;;
    json) echo "--strict $files $general" ;;
    lint) echo "--format --fail-on --select --ignore --statistics --fix --diff $files $general" ;;
    explain | lsp | help) echo "$general" ;;
    *) echo '--help -h --version' ;;
  esac
}

_quill_inp_keys() {
  local lines='@bonds @angles @dihedrals @atom_constraints @scans @post_files @raw'
  case ${1:-} in
    get) echo "@charge @multiplicity @geometry @files @atoms @formula @natoms @keys $lines" ;;
    set) echo '@charge= @multiplicity=' ;;
    unset) echo "@charge @multiplicity $lines" ;;
  esac
}

# Offers the words that begin with $2, and no blank after one that waits for a value.
_quill_inp_offer() {
  mapfile -t COMPREPLY < <(compgen -W "$1" -- "$2")
  if [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *= ]]; then compopt -o nospace 2>/dev/null; fi
}

# Prints the keys of the first input that is named before the word, one per line. They come from a
# file of anybody, so the shell must not expand them.
_quill_inp_keys_of_file() {
  local file
  for file in "${COMP_WORDS[@]:2:COMP_CWORD-2}"; do
    if [[ -f $file ]]; then
      "${COMP_WORDS[0]}" get -q -- "$file" @keys 2>/dev/null
      return
    fi
  done
}

# Adds the keys of the input that begin with $2; those of 'set' get a '='.
_quill_inp_offer_keys_of_file() {
  local key ending=
  if [[ $1 == set ]]; then ending='='; fi
  while IFS= read -r key; do
    printf -v key '%q' "$key$ending"
    if [[ $key == "$2"* ]]; then COMPREPLY+=("$key"); fi
  done < <(_quill_inp_keys_of_file)
  if [[ $1 == set && ${#COMPREPLY[@]} -gt 0 ]]; then compopt -o nospace 2>/dev/null; fi
}

_quill_inp_files() {
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -f -- "$1")
}

_quill_inp() {
  local word=${COMP_WORDS[COMP_CWORD]}
  local before=${COMP_WORDS[COMP_CWORD - 1]}
  local verb=${COMP_WORDS[1]}
  COMPREPLY=()

  # bash makes three words of "--color=auto".
  if [[ $word == = ]]; then word=''; fi
  if [[ $before == = ]]; then before=${COMP_WORDS[COMP_CWORD - 2]}; fi

  if [[ $COMP_CWORD -eq 1 ]]; then
    if [[ $word == -* ]]; then
      _quill_inp_offer "$(_quill_inp_options)" "$word"
    else
      _quill_inp_offer "$_quill_inp_verbs" "$word"
    fi
    return
  fi

  case $before in
    --color) _quill_inp_offer 'auto always never' "$word" ;;
    --format) _quill_inp_offer 'text json github sarif' "$word" ;;
    --fail-on) _quill_inp_offer 'error warning info never' "$word" ;;
    --atoms | --xyz | --trajectory | --post | --files-from | --output | -o | --manifest) _quill_inp_files "$word" ;;
    --task) _quill_inp_offer 'sp opt ts freq irc scan' "$word" ;;
    --key | -k)
      _quill_inp_offer "$(_quill_inp_keys "$verb")" "$word"
      _quill_inp_offer_keys_of_file "$verb" "$word"
      ;;
    --flag | --replace-task | --default | --frame | --param | --model | --device | --charge | --multiplicity | --bond | --angle | --dihedral | \
      --atom | --scan | --raw | --glob | --select | --ignore | --jobs | -j | --max-change | --lock-timeout | --max-size | --stdin-filename) ;;
    *)
      case $word in
        -*) _quill_inp_offer "$(_quill_inp_options "$verb")" "$word" ;;
        @*) _quill_inp_offer "$(_quill_inp_keys "$verb")" "$word" ;;
        *)
          if [[ $verb == help ]]; then
            _quill_inp_offer "$_quill_inp_verbs" "$word"
          else
            _quill_inp_files "$word"
          fi
          case $verb in
            get | set | unset) _quill_inp_offer_keys_of_file "$verb" "$word" ;;
          esac
          ;;
      esac
      ;;
  esac
}

complete -F _quill_inp quill-inp
