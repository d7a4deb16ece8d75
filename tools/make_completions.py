#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes packaging/completions from what the command line program says in its help texts.

    tools/make_completions.py PROGRAM           writes the files anew
    tools/make_completions.py --check PROGRAM   fails when they do not fit the program
"""
import pathlib
import re
import subprocess
import sys

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "packaging" / "completions"
NAME = "kestrel-sudoku-cli"
PUZZLES = "line grid sdk ss opensudoku candidates json csv"
WORDS = {  # options that take one of a few words
    ("convert", "to"): PUZZLES,
    ("explain", "steps"): "gathered all",
    ("generate", "format"): "tsv " + PUZZLES,
    ("rate", "format"): "tsv json",
    ("solve", "format"): "text json",
    ("stock export", "format"): "lines " + PUZZLES,
    ("stock list", "format"): "tsv json",
}


class Commands:
    """The commands with their summaries, and their options as (name, value, help)."""

    def __init__(self, program):
        self.program = program
        text = self.help()
        text = text[: text.index("\nOptions:")]
        self.all = re.findall(r"^  ((?:stock )?[a-z]+)  +(\S.*)$", text, re.M)
        self.options = {name: self.options_of(name) for name, _ in self.all}

    def help(self, *words):
        return subprocess.run([self.program, *words, "--help"], capture_output=True, text=True, check=True).stdout

    def options_of(self, command):
        text = self.help(*command.split())
        found = re.findall(r"^  --([a-z-]+)(?: (\S+))?(?:  +(\S.*)|\n {26}(\S.*))$", text[text.index("\nOptions:") :], re.M)
        return [(name, value, first or second) for name, value, first, second in found]

    def groups(self):
        """The first words, each with its summary."""
        first = {}
        for name, summary in self.all:
            first.setdefault(name.split()[0], summary if " " not in name else "Make, check and change stock files")
        return first.items()

    def of_stock(self):
        return [(name.split()[1], summary) for name, summary in self.all if " " in name]


def bash(commands):
    groups = " ".join(name for name, _ in commands.groups())
    stock = " ".join(name for name, _ in commands.of_stock())
    words = "".join(f'      "{c} --{o}") words="{w}" ;;\n' for (c, o), w in sorted(WORDS.items()))
    options = "".join(
        f'          "{c}") words="{" ".join("--" + o[0] for o in commands.options[c])} --help" ;;\n'
        for c, _ in commands.all
    )
    return f"""# SPDX-License-Identifier: MIT
# Completion of {NAME} for bash. Made by tools/make_completions.py.
_kestrel_sudoku_cli() {{
  local current=${{COMP_WORDS[COMP_CWORD]}} before=${{COMP_WORDS[COMP_CWORD - 1]}} command=${{COMP_WORDS[1]}} words=
  if [ "$COMP_CWORD" -eq 1 ]; then
    words="{groups} --help --version"
  elif [ "$command" = stock ] && [ "$COMP_CWORD" -eq 2 ]; then
    words="{stock} --help"
  else
    [ "$command" = stock ] && command="stock ${{COMP_WORDS[2]}}"
    case "$command $before" in
{words}      *)
        case "$command" in
{options}        esac
        [[ $current == -* ]] || words= ;;
    esac
  fi
  if [ -n "$words" ]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
  fi
}}
complete -o filenames -F _kestrel_sudoku_cli {NAME}
"""


def plain(text):
    return text.replace("'", "").replace("[", "(").replace("]", ")").replace(":", " -")


def zsh_value(command, option, value):
    if (command, option) in WORDS:
        return f":{value.lower()}:({WORDS[command, option]})"
    return ":file:_files" if value == "FILE" else f":{plain(value.lower())}:" if value else ""


def zsh(commands):
    def listed(entries):
        return "".join(f"    '{name}:{plain(summary)}'\n" for name, summary in entries)

    cases = ""
    for command, _ in commands.all:
        cases += f"    '{command}')\n      _arguments \\\n"
        for option, value, text in commands.options[command]:
            cases += f"        '--{option}[{plain(text)}]{zsh_value(command, option, value)}' \\\n"
        cases += "        '--help[show the help]' '*:file:_files' ;;\n"
    return f"""#compdef {NAME}
# SPDX-License-Identifier: MIT
# Completion of {NAME} for zsh. Made by tools/make_completions.py.
_kestrel_sudoku_cli() {{
  local -a commands stock_commands
  commands=(
{listed(commands.groups())}  )
  stock_commands=(
{listed(commands.of_stock())}  )
  if (( CURRENT == 2 )); then
    _describe command commands
    return
  fi
  local command=$words[2]
  if [[ $command == stock ]]; then
    if (( CURRENT == 3 )); then
      _describe 'stock command' stock_commands
      return
    fi
    command="stock $words[3]"
  fi
  case $command in
{cases}  esac
}}
_kestrel_sudoku_cli "$@"
"""


def fish(commands):
    start = f"complete -c {NAME}"
    text = f"""# SPDX-License-Identifier: MIT
# Completion of {NAME} for fish. Made by tools/make_completions.py.
function __kestrel_sudoku_command
    set -l words (commandline -opc)
    set -e words[1]
    test "$words[1]" = stock; and set words "$words[1] $words[2]"
    test "$words[1]" = "$argv[1]"
end
"""
    for name, summary in commands.groups():
        text += f"{start} -n __fish_use_subcommand -f -a {name} -d '{plain(summary)}'\n"
    for name, summary in commands.of_stock():
        text += f"{start} -n '__kestrel_sudoku_command \"stock \"' -f -a {name} -d '{plain(summary)}'\n"
    for command, _ in commands.all:
        for option, value, what in commands.options[command]:
            words = WORDS.get((command, option))
            takes = f" -x -a '{words}'" if words else " -r" if value == "FILE" else " -x" if value else ""
            condition = f"'__kestrel_sudoku_command \"{command}\"'"
            text += f"{start} -n {condition} -l {option}{takes} -d '{plain(what)}'\n"
    return text


def main():
    commands = Commands(sys.argv[-1])
    files = {NAME + ".bash": bash(commands), "_" + NAME: zsh(commands), NAME + ".fish": fish(commands)}
    bad = 0
    for name, text in files.items():
        if "--check" not in sys.argv:
            (FOLDER / name).write_text(text)
        elif (FOLDER / name).read_text() != text:
            print(f"{FOLDER / name}: does not fit the program; tools/make_completions.py {sys.argv[-1]}")
            bad = 1
    return bad


sys.exit(main())
