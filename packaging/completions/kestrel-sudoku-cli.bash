# SPDX-License-Identifier: MIT
# Completion of kestrel-sudoku-cli for bash. Made by tools/make_completions.py.
_kestrel_sudoku_cli() {
  local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]} words=
  if [ "$COMP_CWORD" -eq 1 ]; then
    words="rate solve explain convert generate print report stock --help --version"
  elif [ "$command" = stock ] && [ "$COMP_CWORD" -eq 2 ]; then
    words="new renew import repair verify list export --help"
  else
    [ "$command" = stock ] && command="stock ${COMP_WORDS[2]}"
    case "$command $before" in
      "convert --to") words="line grid sdk ss opensudoku candidates json csv" ;;
      "explain --steps") words="gathered all" ;;
      "generate --format") words="tsv line grid sdk ss opensudoku candidates json csv" ;;
      "rate --format") words="tsv json" ;;
      "solve --format") words="text json" ;;
      "stock export --format") words="lines line grid sdk ss opensudoku candidates json csv" ;;
      "stock list --format") words="tsv json" ;;
      *)
        case "$command" in
          "rate") words="--format --solutions --shard --jobs --help" ;;
          "solve") words="--steps --trace --format --jobs --help" ;;
          "explain") words="--output --steps --help" ;;
          "convert") words="--to --shard --jobs --help" ;;
          "generate") words="--count --attempts --level --seed --format --shard --output --resume --jobs --help" ;;
          "print") words="--level --from --per-page --pages --booklet --large --no-solutions --no-pencilmarks --paper --format --stock --output --help" ;;
          "report") words="--output --stock --jobs --help" ;;
          "stock new") words="--seed --pool --force --stock --jobs --help" ;;
          "stock renew") words="--level --seed --stock --jobs --help" ;;
          "stock import") words="--level --fill --dry-run --seed --stock --jobs --help" ;;
          "stock repair") words="--dry-run --force --seed --stock --jobs --help" ;;
          "stock verify") words="--stock --jobs --help" ;;
          "stock list") words="--level --stock --format --help" ;;
          "stock export") words="--level --stock --format --help" ;;
        esac
        [[ $current == -* ]] || words= ;;
    esac
  fi
  if [ -n "$words" ]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
  fi
}
complete -o filenames -F _kestrel_sudoku_cli kestrel-sudoku-cli
