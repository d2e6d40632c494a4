#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Makes the manual page of a tool and its completions for bash, zsh and fish, from what the tool says of itself.

Usage: make_help_pages.py TOOL OUTPUT_FOLDER

Runs TOOL --help-json (tools/common/tool_help.h describes it) and writes, for a tool named vxipc:
  OUTPUT_FOLDER/man1/vxipc.1    the manual page; what no --help says (environment, files, examples and what
                                to see also) is in tools/vxipc/manual.toml
  OUTPUT_FOLDER/bash/vxipc      completions, each under the name under which its shell looks for it
  OUTPUT_FOLDER/zsh/_vxipc
  OUTPUT_FOLDER/fish/vxipc.fish
The date on the page is that of SOURCE_DATE_EPOCH or, without it, of the newest version in CHANGELOG.md, so the
same sources always make the same files.
"""
import datetime
import json
import os
import pathlib
import re
import subprocess
import sys
import textwrap
import tomllib

ROOT = pathlib.Path(__file__).resolve().parents[2]
LIMIT = 60  # seconds; ends what hangs
FORMAT = 1
PROJECT = "VxPrinterStatus"
# What may be in a manual.toml.
MANUAL_KEYS = {"name", "exit_status", "environment", "files", "examples", "see_also"}
KINDS = {"word", "number", "file", "folder", "printer", "choice"}
SAFE = re.compile(r"[A-Za-z0-9_.:/+@%-]+")


def fail(message):
    sys.exit(f"make_help_pages: {message}")


def help_of(tool):
    environment = {**os.environ, "LC_ALL": "C.UTF-8", "LANGUAGE": "en", "QT_QPA_PLATFORM": "offscreen"}
    try:
        done = subprocess.run([tool, "--help-json"], env=environment, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, stdin=subprocess.DEVNULL, timeout=LIMIT, check=False)
    except (OSError, subprocess.TimeoutExpired) as error:
        fail(f"{tool} cannot be run: {error}")
    if done.returncode != 0:
        fail(f"{tool} --help-json: {done.stderr.decode(errors='replace').strip()}")
    try:
        described = json.loads(done.stdout)
    except ValueError as error:
        fail(f"{tool} --help-json: it is not JSON: {error}")
    if described.get("format") != FORMAT:
        fail(f"{tool} --help-json: its format is {described.get('format')}, expected {FORMAT}")
    check(described)
    return described


def check(described):
    """Fails for a placeholder of which nobody has said what it stands for, and for what no shell can take."""
    values = [option["value"] for option in described["options"] if option["value"]]
    values += [argument for command in described["commands"] for argument in command["arguments"]]
    for value in values:
        if value["kind"] not in KINDS:
            fail(f"{described['tool']}: {value['placeholder']} has no kind; add it to the tool's placeholders")
    names = [name for option in described["options"] for name in option["names"]]
    names += [command["name"] for command in described["commands"]]
    names += [choice for value in values for choice in value["choices"]]
    for name in names:
        if not SAFE.fullmatch(name):
            fail(f"{described['tool']}: \"{name}\" cannot be completed; use letters, digits and -")


def manual_of(tool):
    path = ROOT / "tools" / tool / "manual.toml"
    try:
        manual = tomllib.loads(path.read_text(encoding="utf-8"))
    except OSError as error:
        fail(str(error))
    except tomllib.TOMLDecodeError as error:
        fail(f"{path}: {error}")
    unknown = manual.keys() - MANUAL_KEYS
    if unknown:
        fail(f"{path}: unknown key {sorted(unknown)[0]}; expected one of {', '.join(sorted(MANUAL_KEYS))}")
    return manual


def date_of_page():
    epoch = os.environ.get("SOURCE_DATE_EPOCH")
    if epoch:
        if not epoch.isdecimal():
            fail(f"SOURCE_DATE_EPOCH is \"{epoch}\", expected seconds since 1970")
        return datetime.datetime.fromtimestamp(int(epoch), datetime.timezone.utc).date().isoformat()
    changes = (ROOT / "CHANGELOG.md").read_text(encoding="utf-8")
    newest = re.search(r"^## \[\d+\.\d+\.\d+\] - (\d{4}-\d{2}-\d{2})$", changes, re.MULTILINE)
    if not newest:
        fail("CHANGELOG.md names no version with its date")
    return newest[1]


# ---- the manual page ---------------------------------------------------------------------------------------

ROFF = {"\\": "\\e", "-": "\\-", "'": "\\(aq", "\"": "\\(dq", "`": "\\(ga", "^": "\\(ha", "~": "\\(ti"}
# In running text a hyphen is one, and lines may be broken there.
ROFF_TEXT = {**ROFF, "-": "-"}


def escaped(text, table):
    return "".join(table.get(each, each if each < "\x7f" else f"\\[u{ord(each):04X}]") for each in text)


def literal(text):
    """What somebody types, and copies from the page."""
    return escaped(text, ROFF)


# Options, variables and quoted commands in running text are to be copied too.
SOURCE_WIDTH = 78
TO_COPY = re.compile(r"(?<![\w-])--?[a-z][a-z-]*|\"[^\"]*\"")


def running(text):
    """A paragraph, on lines of the source that are not too long."""
    parts, end = [], 0
    for match in TO_COPY.finditer(text):
        parts += [escaped(text[end:match.start()], ROFF_TEXT), literal(match[0])]
        end = match.end()
    text = "".join(parts) + escaped(text[end:], ROFF_TEXT)
    lines = textwrap.wrap(text, SOURCE_WIDTH, break_long_words=False, break_on_hyphens=False)
    # A control character at the beginning of a line would make it a request.
    return "\n".join("\\&" + line if line.startswith((".", "'")) else line for line in lines)


def sentence(text):
    text = text[:1].upper() + text[1:]
    return text if text.endswith((".", "!", "?")) else text + "."


def option_summary(described, option):
    """A sentence, but the commands in front of "watch, forecast: warn ..." stay what they are."""
    text = option["summary"]
    begins_with_command = re.match(r"([a-z]+)[a-z, -]*: ", text)
    if begins_with_command and begins_with_command[1] in [command["name"] for command in described["commands"]]:
        return text + "."
    return sentence(text)


def italic_words(usage):
    """PRINTER SKU [RIBBON]... with the placeholders in italics."""
    return re.sub(r"[A-Za-z][A-Za-z0-9.]*[A-Za-z0-9]", lambda word: f"\\fI{word[0]}\\fR", literal(usage))


def bold(text):
    return f"\\fB{literal(text)}\\fR"


def option_heading(option):
    names = ", ".join(bold(name) for name in option["names"])
    return f"{names} \\fI{literal(option['value']['placeholder'])}\\fR" if option["value"] else names


def synopsis(described):
    tool = bold(described["tool"])
    if not described["commands"]:
        return [f"{tool} [\\fIOPTION\\fR]..."]
    lines = []
    for command in described["commands"]:
        line = f"{tool} {bold(command['name'])}"
        if command["name"] != "help":
            line += " [\\fIOPTION\\fR]..."
        lines.append(f"{line} {italic_words(command['usage'])}".rstrip())
    return lines


def exit_statuses(text, further):
    """The words that all tools have in their help, as a list."""
    found = re.fullmatch(r"Exit status: ((?:\d+ [^,.]+(?:, )?)+)\. (.+)", text)
    if not found:
        fail(f"the help says of exit statuses what this script does not understand: {text}")
    rows = [part.split(" ", 1) for part in found[1].split(", ")]
    rows += [[str(status), meaning] for status, meaning in further]
    lines = []
    for status, meaning in rows:
        lines += [".TP", bold(status), running(sentence(meaning))]
    return [*lines, ".PP", running(found[2])]


def manual_page(described, manual):
    tool = described["tool"]
    lines = [f".\\\" Made from {tool} \\-\\-help\\-json by make_help_pages.py.",
             f".TH {literal(tool.upper())} 1 {date_of_page()} \"{PROJECT} {described['version']}\" \"User Commands\"",
             # Commands are copied: no line is broken inside a word, and lines are not spread out.
             ".nh", ".ad l",
             ".SH NAME", f"{literal(tool)} \\- {running(manual['name'])}", ".SH SYNOPSIS"]
    for line in synopsis(described):
        lines += [line, ".br"]
    lines.pop()
    lines += [".SH DESCRIPTION", running(described["summary"])]
    for note in described["notes"]:
        lines += [".PP", running(note)]
    if described["commands"]:
        lines.append(".SH COMMANDS")
    of_all = set.intersection(*(set(command["options"]) for command in described["commands"]
                                if command["name"] != "help")) if described["commands"] else set()
    for command in described["commands"]:
        lines += [".TP", f"{bold(command['name'])} {italic_words(command['usage'])}".rstrip(),
                  running(sentence(command["summary"]))]
        for paragraph in command["details"]:
            lines += [".IP", running(paragraph)]
        own = [name for name in command["options"] if name not in of_all]
        if own:
            lines += [".IP", "Options:", *(f"{bold(name)}," for name in own[:-1]), f"{bold(own[-1])}."]
    lines.append(".SH OPTIONS")
    for option in described["options"]:
        lines += [".TP", option_heading(option), running(option_summary(described, option))]
    lines += [".SH EXIT STATUS", *exit_statuses(described["exitStatus"], manual.get("exit_status", []))]
    for title, key in (("ENVIRONMENT", "environment"), ("FILES", "files")):
        if manual.get(key):
            lines.append(f".SH {title}")
        for name, text in manual.get(key, []):
            lines += [".TP", (bold if key == "environment" else lambda text: f"\\fI{literal(text)}\\fR")(name),
                      running(sentence(text))]
    lines.append(".SH EXAMPLES")
    for number, (text, command) in enumerate(manual["examples"]):
        lines += [*([".PP"] if number else []), running(text), ".PP", ".RS 4", ".EX", literal(command), ".EE", ".RE"]
    # A reference to a manual page is bold, anything else is a text.
    references = [re.sub(r"^([\w-]+)\((\d)\)$", lambda page: f"{bold(page[1])}({page[2]})", running(each))
                  for each in manual["see_also"]]
    return "\n".join([*lines, ".SH SEE ALSO", ", ".join(references)]) + "\n"


# ---- completions -------------------------------------------------------------------------------------------

# Names with characters that a JSON string escapes as \\u001b and the like cannot be typed, so they are left out.
# This is for the names as the monitor prints them with --json, one printer a line.
PRINTER_NAMES = (r's/^ *\{"printerName":"(([^"\\]|\\.)*)".*/\1/', "t name", "b", ":name", r"s/\\\\/\n/g",
                 r'/\\[^"\/]/b', r's/\\(["\/])/\1/g', r"s/\n/\\/g", "p")
# How many names are offered at most, and how many seconds may pass until they are there, unless the environment
# variable VX_COMPLETION_SECONDS names another number, as it does in tests for slow machines.
MOST_PRINTERS = 200
SECONDS_FOR_PRINTERS = 2

HEADER = "# {shell} completion for {tool}. Made from {tool} --help-json by make_help_pages.py.\n"


def quoted(text):
    return "'" + text.replace("'", "'\\''") + "'"


def fish_quoted(text):
    return "'" + text.replace("\\", "\\\\").replace("'", "\\'") + "'"


def uses(described, kind):
    values = [option["value"] for option in described["options"] if option["value"]]
    values += [argument for command in described["commands"] for argument in command["arguments"]]
    return any(value["kind"] == kind for value in values)


def names_of(described, accepted=None):
    """The names of the options: of all, or of those that a command accepts, with those of every command."""
    of_help = {"--help", "--help-json", "--version"}
    return [name for option in described["options"]
            if accepted is None or {*option["names"]} & {*accepted, *of_help} for name in option["names"]]


def options_with_value(described):
    return [option for option in described["options"] if option["value"]]


BASH_PRINTERS = r"""
# The names of the printers, one a line. $1: the program; further words: its options.
_@TOOL@_printers() {
    timeout "${VX_COMPLETION_SECONDS:-@SECONDS@}" "$1" list --json "${@:2}" 2>/dev/null </dev/null | head -n @MOST@ |
        LC_ALL=C @SED@
}
"""

BASH_KEEP_FLEET = r"""            if [ "$value_of" = --virtual ]; then
                _@TOOL@_unquote "$word"
                fleet=(--virtual "$plain")
            fi
"""

BASH_BODY = r"""
# Offers what a value of the kind $1 can be: one of the further words, a file and so on.
_@TOOL@_offer() {
    local kind=$1 name
    shift
    COMPREPLY=()
    for name; do
        [[ $name != "$cur"* ]] || COMPREPLY+=("$name")
    done
    case $kind in
    file | folder)
        compopt -o filenames 2>/dev/null
        local list=-f
        [ "$kind" = file ] || list=-d
        while IFS= read -r name; do COMPREPLY+=("$name"); done < <(compgen "$list" -- "$cur")
        ;;
@PRINTER_CASE@    esac
}

# Sets plain to a word without its quotes, of which the last one may be missing.
_@TOOL@_unquote() {
    case $1 in
    \'*) plain=${1:1} plain=${plain%\'} ;;
    \"*) plain=${1:1} plain=${plain%\"} plain=${plain//\\/} ;;
    *) plain=${1//\\/} ;;
    esac
}

_@TOOL@() {
    # A word with "=" comes in three parts. The program takes "--option value" as well.
    local word words=() index plain@FLEET@
    for ((index = 1; index < COMP_CWORD; ++index)); do
        word=${COMP_WORDS[index]}
        [ "$word" = = ] || words+=("$word")
    done
    local cur=${COMP_WORDS[COMP_CWORD]}
    [ "$cur" != = ] || cur=
    # What is offered is quoted by the shell.
    _@TOOL@_unquote "$cur"
    cur=$plain

    local command='' place=0 value_of='' options_are_over=''
    for word in "${words[@]}"; do
        if [ -n "$value_of" ]; then
@KEEP_FLEET@            value_of=
        elif [ -z "$options_are_over" ] && [ "$word" = -- ]; then
            options_are_over=yes
        elif [ -z "$options_are_over" ] && [[ $word == -* ]]; then
            case $word in
            @WITH_VALUE@) value_of=$word ;;
            esac
@POSITION@
        fi
    done

    case $value_of in
    "") ;;
@VALUES@
    *) return ;;
    esac
    if [ -z "$options_are_over" ] && [[ $cur == -* ]]; then
        case $command in
@OPTIONS@
        esac
        return
    fi
@ARGUMENTS@
}
complete -F _@TOOL@ @TOOL@
"""


def filled(template, described, quote=quoted, **parts):
    sed = "sed -n -E " + " ".join("-e " + quote(command) for command in PRINTER_NAMES)
    parts = {"TOOL": described["tool"], "SED": sed, "MOST": str(MOST_PRINTERS),
             "SECONDS": str(SECONDS_FOR_PRINTERS), **parts}
    return re.sub(r"@([A-Z_]+)@", lambda name: parts[name[1]], template)


def bash_offer(described, value, own=False):
    if value["kind"] in ("word", "number"):
        return "COMPREPLY=()"
    return " ".join([f"_{described['tool']}_offer", value["kind"], *value["choices"]])


def bash_places(described, command):
    """The arguments of a command, as branches of a case about their place."""
    branches = []
    for place, argument in enumerate(command["arguments"]):
        pattern = "*" if argument["repeated"] else str(place)
        branches.append(f"        {pattern}) {bash_offer(described, argument)} ;;")
    if not branches:
        return f"    {command['name']}) ;;"
    return "\n".join([f"    {command['name']})", "        case $place in", *branches, "        esac", "        ;;"])


def bash_completion(described):
    tool, commands = described["tool"], described["commands"]
    with_value = [name for option in options_with_value(described) for name in option["names"]]
    values = "\n".join(f"    {' | '.join(option['names'])})\n        {bash_offer(described, option['value'])}\n"
                       "        return\n        ;;" for option in options_with_value(described))
    every = " ".join(names_of(described))
    options = [f"        {command['name']}) _{tool}_offer choice "
               f"{' '.join(names_of(described, command['options']))} ;;" for command in commands]
    options.append(f"        *) _{tool}_offer choice {every} ;;")
    if commands:
        names = " ".join(command["name"] for command in commands)
        position = ("        elif [ -z \"$command\" ]; then\n            command=$word\n"
                    "        else\n            place=$((place + 1))")
        arguments = "\n".join(["    case $command in", f"    \"\") _{tool}_offer choice {names} ;;",
                               *(bash_places(described, command) for command in commands), "    esac"])
    else:
        position = "        else\n            place=$((place + 1))"
        arguments = "    COMPREPLY=()"
    has_printers = uses(described, "printer")
    printer_case = ("    printer)\n        compopt -o filenames 2>/dev/null\n"
                    "        while IFS= read -r name; do\n"
                    "            [[ $name != \"$cur\"* ]] || COMPREPLY+=(\"$name\")\n"
                    f"        done < <(_{tool}_printers \"$program\" \"${{fleet[@]}}\")\n        ;;\n")
    return (HEADER.format(shell="bash", tool=tool) + "# shellcheck shell=bash\n"
            + (filled(BASH_PRINTERS, described) if has_printers else "")
            + filled(BASH_BODY, described, WITH_VALUE=" | ".join(with_value), POSITION=position, VALUES=values,
                     OPTIONS="\n".join(options), ARGUMENTS=arguments,
                     PRINTER_CASE=printer_case if has_printers else "",
                     FLEET=" program=$1 fleet=()" if has_printers else "",
                     KEEP_FLEET=filled(BASH_KEEP_FLEET, described) if has_printers else ""))


ZSH_PRINTERS = r"""
# Offers the names of the printers.
_@TOOL@_printers() {
    local -a names fleet expl
    # Quoted as it was typed, and once more for opt_args.
    [[ -z ${opt_args[--virtual]} ]] || fleet=(--virtual ${(Q)${(Q)opt_args[--virtual]}})
    names=(${(f)"$(timeout ${VX_COMPLETION_SECONDS:-@SECONDS@} $program list --json $fleet 2>/dev/null </dev/null |
        head -n @MOST@ | LC_ALL=C @SED@)"})
    _wanted printers expl printer compadd -a names
}
"""

ZSH_FILES = r"""
# Offers files, and words that stand for something else.
_@TOOL@_files_and_words() {
    local -a expl
    _wanted words expl word compadd -a "$@"
    _files
}
"""


def zsh_described(text):
    return text.replace("\\", "\\\\").replace("[", "\\[").replace("]", "\\]")


def zsh_action(described, value):
    tool = described["tool"]
    if value["kind"] == "file" and value["choices"]:
        return f"{{local -a own=({' '.join(value['choices'])}); _{tool}_files_and_words own}}"
    return {"file": "_files", "folder": "_files -/", "printer": f"_{tool}_printers",
            "choice": f"({' '.join(value['choices'])})"}.get(value["kind"], " ")


def zsh_options(described, accepted=None):
    wanted = set(names_of(described, accepted))
    for option in described["options"]:
        names = [name for name in option["names"] if name in wanted and name != "--"]
        ends = "(- *)" if {"--help", "--help-json", "--version"} & {*names} else f"({' '.join(names)})"
        for name in names:
            text = f"{ends}{name}[{zsh_described(option['summary'])}]"
            if option["value"]:
                text += f":{option['value']['placeholder']}:{zsh_action(described, option['value'])}"
            yield quoted(text)


def zsh_arguments(described, command):
    for place, argument in enumerate(command["arguments"], 1):
        optional = "" if argument["required"] else ":"
        start = "*" if argument["repeated"] else f"{place}{optional}"
        yield quoted(f"{start}:{argument['placeholder']}:{zsh_action(described, argument)}")


def zsh_completion(described):
    tool, commands = described["tool"], described["commands"]
    wide = any(value["kind"] == "file" and value["choices"] for value in
               [option["value"] for option in options_with_value(described)])
    text = f"#compdef {tool}\n" + HEADER.format(shell="zsh", tool=tool)
    if uses(described, "printer"):
        text += filled(ZSH_PRINTERS, described)
    if wide:
        text += filled(ZSH_FILES, described)
    joined = " \\\n        ".join
    text += (f"\n_{tool}() {{\n    local curcontext=$curcontext program=$words[1] state line\n"
             "    typeset -A opt_args\n")
    if not commands:
        return text + f"    _arguments \\\n        {joined(zsh_options(described))}\n}}\n\n_{tool} \"$@\"\n"
    text += ("    local -a commands=(\n" + "".join(
        f"        {quoted(command['name'] + ':' + command['summary'])}\n" for command in commands) + "    )\n")
    # The command is the first word that is no option.
    text += (f"    _arguments -C \\\n        {joined(zsh_options(described))} \\\n"
             "        '(-): :->command' '(-)*:: :->argument' && return\n"
             "    if [[ $state = command ]]; then\n        _describe -t commands command commands\n        return\n"
             "    fi\n    case $words[1] in\n")
    for command in commands:
        specs = [*zsh_options(described, command["options"]), *zsh_arguments(described, command)]
        text += f"    {command['name']})\n        _arguments \\\n        {joined(specs)}\n        ;;\n"
    return text + f"    esac\n}}\n\n_{tool} \"$@\"\n"


FISH_WORDS = r"""
# The command and its arguments before the cursor, without options and their values, one a line.
function __@TOOL@_words
    set -l is_value
    for token in (commandline -opc)[2..-1]
        if test -n "$is_value"
            set is_value
        else if contains -- $token @WITH_VALUE@
            set is_value yes
        else if not string match -q -- '-*' $token
            echo -- $token
        end
    end
end

# Whether the next word is the argument at the place $argv[2] (0 is the first) of the command $argv[1], or with a
# further word one behind it.
function __@TOOL@_at
    set -l words (__@TOOL@_words)
    test "$words[1]" = $argv[1]; or return
    set -l place (math (count $words) - 1)
    test $place -eq $argv[2]; or begin
        set -q argv[3]; and test $place -gt $argv[2]
    end
end

# Whether no command was given yet, or one of these.
function __@TOOL@_accepts
    set -l words (__@TOOL@_words)
    test (count $words) -eq 0; or contains -- $words[1] $argv
end
"""

FISH_PRINTERS = r"""
# The names of the printers, one a line.
function __@TOOL@_printers
    set -l tokens (commandline -opc)
    set -l fleet
    if set -l place (contains -i -- --virtual $tokens)
        set fleet --virtual $tokens[(math $place + 1)]
    end
    set -l seconds @SECONDS@
    set -q VX_COMPLETION_SECONDS; and set seconds $VX_COMPLETION_SECONDS
    timeout $seconds $tokens[1] list --json $fleet 2>/dev/null </dev/null | head -n @MOST@ |
        LC_ALL=C @SED@
end
"""


def fish_value(described, value):
    """What -a and the like need for a value; always with one that is expected."""
    tool, kind, choices = described["tool"], value["kind"], " ".join(value["choices"])
    offered = {"folder": "(__fish_complete_directories)", "printer": f"(__{tool}_printers)",
               "choice": choices, "file": choices}.get(kind, "")
    flags = "-r -F" if kind == "file" else "-x"
    return f"{flags} -a {fish_quoted(offered)}" if offered else flags


def fish_completion(described):
    tool, commands = described["tool"], described["commands"]
    text = HEADER.format(shell="fish", tool=tool)
    with_value = " ".join(name for option in options_with_value(described) for name in option["names"])
    if commands:
        text += filled(FISH_WORDS, described, WITH_VALUE=with_value)
    if uses(described, "printer"):
        text += filled(FISH_PRINTERS, described, fish_quoted)
    text += f"\ncomplete -c {tool} -f\n"
    for command in commands:
        text += (f"complete -c {tool} -n 'test (count (__{tool}_words)) -eq 0' -a {command['name']} "
                 f"-d {fish_quoted(command['summary'])}\n")
        for place, argument in enumerate(command["arguments"]):
            value = fish_value(described, argument).replace("-x", "-f").removeprefix("-r ")
            if "-a" in value or argument["kind"] == "file":
                further = " ..." if argument["repeated"] else ""
                text += f"complete -c {tool} -n '__{tool}_at {command['name']} {place}{further}' {value}\n"
    for option in described["options"]:
        if option["names"] == ["--"]:
            continue
        accepting = [command["name"] for command in commands if {*option["names"]} & {*command["options"]}]
        condition = (f" -n '__{tool}_accepts {' '.join(accepting)}'"
                     if accepting and len(accepting) < len(commands) - 1 else "")
        names = " ".join(f"-l {name[2:]}" if name.startswith("--") else f"-s {name[1:]}" for name in option["names"])
        value = f" {fish_value(described, option['value'])}" if option["value"] else ""
        text += f"complete -c {tool}{condition} {names}{value} -d {fish_quoted(option['summary'])}\n"
    return text


def main():
    if len(sys.argv) != 3:
        print("make_help_pages: expected TOOL OUTPUT_FOLDER", file=sys.stderr)
        sys.exit(2)
    tool, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    described = help_of(tool)
    name = described["tool"]
    files = {f"man1/{name}.1": manual_page(described, manual_of(name)), f"bash/{name}": bash_completion(described),
             f"zsh/_{name}": zsh_completion(described), f"fish/{name}.fish": fish_completion(described)}
    for path, text in files.items():
        target = folder / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(text, encoding="utf-8")


main()
