# Completion of quill-inp for fish.

# Prints the keys of the first input that is named before the word, one per line.
function __quill_inp_keys_of_file
  set -l words (commandline -opc)
  for word in $words[3..]
    if test -f "$word"
      $words[1] get -q -- $word @keys 2>/dev/null
      return
    end
  end
end

set -l verbs show fmt get set unset add new sweep hash diff json from-json lint explain lsp help
set -l writing '__fish_seen_subcommand_from fmt set unset add'
set -l choosing '__fish_seen_subcommand_from show fmt get set unset add hash json lint'
set -l keyed '__fish_seen_subcommand_from get unset'
set -l losing '__fish_seen_subcommand_from fmt set unset add new sweep hash from-json'
set -l placing '__fish_seen_subcommand_from set new'
set -l adding '__fish_seen_subcommand_from add new'
set -l making '__fish_seen_subcommand_from new'
set -l linting '__fish_seen_subcommand_from lint'
set -l general "__fish_seen_subcommand_from $verbs"
set -l first "not __fish_seen_subcommand_from $verbs"

complete -c quill-inp -n $first -f
complete -c quill-inp -n $first -l version -d 'Print the version'
complete -c quill-inp -s h -l help -d 'Print help'
complete -c quill-inp -n $first -a show -d 'Summarise inputs'
complete -c quill-inp -n $first -a fmt -d 'Format inputs in the canonical layout'
complete -c quill-inp -n $first -a get -d 'Print the values of inputs'
complete -c quill-inp -n $first -a set -d 'Set values, parameters and the geometry'
complete -c quill-inp -n $first -a unset -d 'Remove commands and parameters'
complete -c quill-inp -n $first -a add -d 'Add constraints, scans and other lines at the end'
complete -c quill-inp -n $first -a new -d 'Print a new input'
complete -c quill-inp -n $first -a sweep -d 'Write inputs for all combinations of values'
complete -c quill-inp -n $first -a hash -d 'Print or check hashes of inputs'
complete -c quill-inp -n $first -a diff -d 'Show how two inputs differ'
complete -c quill-inp -n $first -a json -d 'Print inputs as JSON, without loss'
complete -c quill-inp -n $first -a from-json -d 'Print a JSON text as a QUILL input'
complete -c quill-inp -n $first -a lint -d 'Find probable mistakes in inputs'
complete -c quill-inp -n $first -a explain -d 'Explain the codes of lint'
complete -c quill-inp -n $first -a lsp -d 'Serve an editor'
complete -c quill-inp -n $first -a help -d 'Print the help of a verb'
complete -c quill-inp -n '__fish_seen_subcommand_from help' -f -a "$verbs"

complete -c quill-inp -n $general -s q -l quiet -d 'Print errors only'
complete -c quill-inp -n $general -l color -xa 'auto always never' -d 'Use colour'
complete -c quill-inp -n $general -l max-size -x -d 'Refuse larger files'
complete -c quill-inp -n $general -l stdin-filename -x -d 'Name for standard input in messages'

complete -c quill-inp -n '__fish_seen_subcommand_from show' -l json -d 'Print JSON'
complete -c quill-inp -n '__fish_seen_subcommand_from show' -l lines -d 'Print what every line is'
complete -c quill-inp -n '__fish_seen_subcommand_from get' -l json -d 'Print JSON'
complete -c quill-inp -n '__fish_seen_subcommand_from get' -l default -x -d 'Print this for a key without an answer'
complete -c quill-inp -n '__fish_seen_subcommand_from show get json diff' -l strict -d 'Exit with 1 if the reader warns of something'
complete -c quill-inp -n '__fish_seen_subcommand_from fmt' -l check -d 'Only list files that would change'
complete -c quill-inp -n '__fish_seen_subcommand_from diff' -l json -d 'Print JSON'
complete -c quill-inp -n '__fish_seen_subcommand_from diff' -l git -d 'Take the arguments that git gives'
complete -c quill-inp -n '__fish_seen_subcommand_from hash' -l check -d 'Read hashes and check them'

complete -c quill-inp -n $linting -l format -xa 'text json github sarif' -d 'Print in this form'
complete -c quill-inp -n $linting -l fail-on -xa 'error warning info never' -d 'Exit code 1 from this severity on'
complete -c quill-inp -n $linting -l select -x -d 'Only these codes and groups'
complete -c quill-inp -n $linting -l ignore -x -d 'All but these codes and groups'
complete -c quill-inp -n $linting -l statistics -d 'Print how often each code was found'
complete -c quill-inp -n $linting -l fix -d 'Write files in which the safe corrections are made'
complete -c quill-inp -n $linting -l diff -d 'Only print the changes'

complete -c quill-inp -n $choosing -s r -l recursive -d 'Take the files in folders, too'
complete -c quill-inp -n $choosing -l glob -x -d 'With -r, take files that match PATTERN'
complete -c quill-inp -n $choosing -l files-from -r -d 'Read names of files from a list'
complete -c quill-inp -n $choosing -s 0 -l null -d 'The names in the list end with NUL'
complete -c quill-inp -n "$choosing; or __fish_seen_subcommand_from sweep" -s j -l jobs -x -d 'Work on this number of files at once'
complete -c quill-inp -n $keyed -s k -l key -xa '(__quill_inp_keys_of_file)' -d 'A key'
complete -c quill-inp -n '__fish_seen_subcommand_from get' -l with-filename -d 'Print the name of the file before every line'
complete -c quill-inp -n '__fish_seen_subcommand_from get' -l no-filename -d 'Never print the name of the file'

complete -c quill-inp -n '__fish_seen_subcommand_from fmt set unset add new sweep from-json' -s o -l output -r -d 'Write to a new file'
complete -c quill-inp -n '__fish_seen_subcommand_from fmt set unset add new sweep from-json' -l force -d 'Replace an existing file'
complete -c quill-inp -n '__fish_seen_subcommand_from sweep' -l zip -d 'Combine values of the same number'
complete -c quill-inp -n '__fish_seen_subcommand_from sweep' -l frames -d 'Take every frame of a trajectory'
complete -c quill-inp -n '__fish_seen_subcommand_from sweep' -l manifest -r -d 'List names, SHA-256 and values'
complete -c quill-inp -n $writing -s i -l in-place -d 'Write to the file'
complete -c quill-inp -n $writing -l diff -d 'Only print the changes'
complete -c quill-inp -n $writing -l backup -d 'Keep a copy of the old text'
complete -c quill-inp -n $writing -l break-hard-links -d 'Also write a file that has several hard links'
complete -c quill-inp -n $writing -l lock-timeout -x -d 'Wait so long for other runs'
complete -c quill-inp -n $losing -l allow-loss -d 'Write the text even if something is lost'
complete -c quill-inp -n $losing -l max-change -x -d 'Accept rounding by up to this number'
complete -c quill-inp -n $losing -l strict -d 'Refuse a text in which lint finds an error'

complete -c quill-inp -n '__fish_seen_subcommand_from set' -l flag -x -d 'Set a command or parameter without a value'
complete -c quill-inp -n '__fish_seen_subcommand_from set' -l replace-task -x -d 'Give a task another name'
complete -c quill-inp -n '__fish_seen_subcommand_from set' -l existing -d 'Only set what already exists'
complete -c quill-inp -n "$placing; or __fish_seen_subcommand_from sweep" -l atoms -r -d 'Copy the atoms of an XYZ file into the input'
complete -c quill-inp -n $placing -l frame -x -d 'The structure of several'
complete -c quill-inp -n $placing -l xyz -r -d 'Refer to XYZ files'
complete -c quill-inp -n $placing -l trajectory -r -d 'Refer to an XYZ trajectory'

complete -c quill-inp -n $adding -l bond -x -d 'Keep the distance of two atoms fixed'
complete -c quill-inp -n $adding -l angle -x -d 'Keep the angle of three atoms fixed'
complete -c quill-inp -n $adding -l dihedral -x -d 'Keep the dihedral of four atoms fixed'
complete -c quill-inp -n $adding -l atom -x -d 'Keep an atom in its place'
complete -c quill-inp -n $adding -l scan -x -d 'Scan a distance, angle or dihedral'
complete -c quill-inp -n $adding -l post -r -d 'Name a post-processing file'
complete -c quill-inp -n $adding -l raw -x -d 'Add a line of text as it is'

complete -c quill-inp -n $making -l task -xa 'sp opt ts freq irc scan' -d 'What to compute'
complete -c quill-inp -n $making -l param -x -d 'A parameter of the task before it'
complete -c quill-inp -n $making -l model -x -d 'The model'
complete -c quill-inp -n $making -l device -x -d 'The device'
complete -c quill-inp -n $making -l charge -x -d 'The charge'
complete -c quill-inp -n $making -l multiplicity -x -d 'The multiplicity'

complete -c quill-inp -n '__fish_seen_subcommand_from get unset' -a '@charge @multiplicity'
complete -c quill-inp -n '__fish_seen_subcommand_from get' -a '@geometry @files @atoms @formula @natoms @keys'
complete -c quill-inp -n '__fish_seen_subcommand_from get unset' -a '@bonds @angles @dihedrals @atom_constraints @scans @post_files @raw'
complete -c quill-inp -n '__fish_seen_subcommand_from set' -a '@charge= @multiplicity='
complete -c quill-inp -n '__fish_seen_subcommand_from get unset' -a '(__quill_inp_keys_of_file)'
complete -c quill-inp -n '__fish_seen_subcommand_from set' -a '(__quill_inp_keys_of_file | string replace -r \'$\' =)'
