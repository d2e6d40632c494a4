# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The commands that the guides show: where they are, and what they are checked against."""
import dataclasses
import re
import shlex

SHELLS = {"sh", "bash", "console", "bat", "powershell"}
TOOLS = ("vxprintmon", "vxprintview", "vxprintagent", "vxipc", "rolldb")
# The programs with which an inline command begins. Those that pages show in blocks are added.
INLINE = re.compile(r"(?:VX_\w+=\S* )*(?:[\w./-]*/)?(?:vxprintmon|vxprintview|vxprintagent|vxipc|rolldb|ctest|cmake"
                    r"|net|icacls|netsh|reg|systemctl|bench_\w+|tst_\w+|fuzz_\w+|scripts/[\w-]+|\.ci/run) .*"
                    r"|scripts/[\w-]+|\.ci/run")
PROSE = re.compile(r"`[^`]*`")


@dataclasses.dataclass
class Command:
    page: str
    line: int
    text: str
    # "block" is run, "inline" and "table" are parts of a sentence, of which names and options are checked.
    place: str
    output: list = dataclasses.field(default_factory=list)  # what the page shows, for "console"

    def __str__(self):
        return f"{self.page}:{self.line}: {self.text}"


def without_comment(line):
    """A line without the comment at its end. A "#" inside quotes or words is none."""
    found = re.match(r"""((?:[^"'#]|"(?:\\.|[^"\\])*"|'[^']*'|(?<=\S)#)*?)(?:(?:^|\s+)#.*)?$""", line)
    return (found[1] if found else line).rstrip()


def block_commands(page, block):
    number, pending, begin = block.line, "", None
    commands = []
    for line in block.text.splitlines():
        if block.language == "console":
            if line.startswith("$ "):
                commands.append(Command(page, number, line[2:].strip(), "block"))
            elif commands:
                commands[-1].output.append(line)
        elif block.language in ("bat", "powershell"):
            if line.strip():
                commands.append(Command(page, number, line.strip(), "block"))
        else:
            text = without_comment(line) if not pending else without_comment(line.strip())
            begin = begin or number
            if text.endswith("\\"):
                pending += text[:-1].rstrip() + " "
            elif pending or text:
                commands.append(Command(page, begin, (pending + text).strip(), "block"))
                pending, begin = "", None
            else:
                begin = None
        number += 1
    return [command for command in commands if command.text]


def page_commands(path, name, tables):
    """All commands of a Markdown page, in their order. `tables` names the program whose commands its tables list."""
    from markdown_pages import Page
    page = Page(path)
    found = []
    for block in page.blocks:
        if block.language in SHELLS or (not block.language and re.search(r"^\$ ", block.text, re.M)):
            found += block_commands(name, block)
    row = column = 0
    in_table = False
    for number, token in enumerate(page.tokens):
        if token.type == "table_open":
            header = next(each for each in page.tokens[number:] if each.type == "inline")
            in_table = header.content.strip().lower() == "command" and name in tables
        elif token.type == "table_close":
            in_table = False
        elif token.type == "tr_open":
            row, column = token.map[0] + 1 if token.map else row, 0
        elif token.type == "td_open":
            column += 1
        if token.type != "inline":
            continue
        line = token.map[0] + 1 if token.map else row
        for child in token.children:
            if child.type in ("softbreak", "hardbreak"):
                line += 1
            if child.type != "code_inline":
                continue
            if INLINE.fullmatch(child.content):
                found.append(Command(name, line, child.content, "inline"))
            elif in_table and column == 1:
                found.append(Command(name, line, f"{tables[name]} {child.content}", "table"))
    return sorted(found, key=lambda command: command.line)


def programs_of(text):
    """The program of each part of a command line, without variables before it."""
    parts = []
    for part in re.split(r"&&|\|\||[|;]", re.sub(r"\"[^\"]*\"|'[^']*'", "_", text)):
        words = [word for word in part.split() if not re.match(r"^\w+=", word)]
        if words:
            parts.append(words[0])
    return parts


def words_of(text):
    """The words of a simple command as a shell reads them, and the variables before it."""
    words = shlex.split(text.replace("[", " [ ").replace("]", " ] ")) if "[" in text else shlex.split(text)
    variables = []
    while words and re.match(r"^[A-Z]\w*=", words[0]):
        variables.append(words.pop(0).partition("=")[0])
    return variables, [word for word in words if word not in ("[", "]", "]...", "...")]
