# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Writes the examples in the comments of headers into a source file, so that the compiler checks them.

Usage: header_examples.py ROOT OUTPUT.cpp HEADER...
       header_examples.py ROOT OUTPUT.c HEADER...

Each block between @code and @endcode becomes a function. What it uses without declaring it, a host has:
header_examples.h declares it, in a struct for each header that needs more than all have (example_printer_command for
printer_command.h), and header_examples_c.h for headers in C. An ellipsis (…) stands for code of the host. A block with
a tag, such as @code{.cmake}, is in another language.
"""
import pathlib
import re
import sys

HERE = pathlib.Path(__file__).resolve().parent


class BadHeader(Exception):
    pass


def blocks(header):
    """(line of the first line of code, lines) of each block of C or C++."""
    found, block, begin, skipped = [], None, 0, False
    for number, line in enumerate(header.read_text(encoding="utf-8").splitlines(), 1):
        text = re.sub(r"^\s*(?:///|//!|\*(?!/)|/\*\*|/\*!) ?", "", line)
        start = re.match(r"[@\\]code(?:\{\.?(\w+)\})?\s*(.*)$", text.strip())
        if block is None and start:
            if start[2]:
                raise BadHeader(f"{header}:{number}: there is something behind @code: {start[2]}")
            block, begin, skipped = [], number, start[1] not in (None, "cpp", "c")
        elif block is not None and re.match(r"[@\\]endcode", text.strip()):
            if text.strip()[1:] != "endcode":
                raise BadHeader(f"{header}:{number}: there is something behind @endcode: {text.strip()}")
            if not skipped:
                found.append((begin + 1, block))
            block = None
        elif block is not None:
            block.append(text)
        elif re.search(r"[@\\](end)?code\b", text):
            raise BadHeader(f"{header}:{number}: @code and @endcode need a line of their own")
    if block is not None:
        raise BadHeader(f"{header}:{begin}: there is no @endcode")
    return found


def contexts():
    """The headers for which header_examples.h declares more."""
    return set(re.findall(r"^struct (example_\w+) ", (HERE / "header_examples.h").read_text(encoding="utf-8"), re.M))


def in_c(output):
    return output.suffix == ".c"


def source(root, output, headers):
    known = contexts()
    include = "header_examples_c.h" if in_c(output) else "header_examples.h"
    includes, functions = {f'#include "{include}"'}, []
    for header in headers:
        includes.add(f'#include "{header.name}"')
        name = "example_" + header.stem
        for begin, lines in blocks(header):
            function = f"{name}_{begin}"
            includes.update(line.strip() for line in lines if line.strip().startswith("#include"))
            lines = ["" if line.strip().startswith("#include") else line.replace("…", "") for line in lines]
            shown = header.relative_to(root) if header.is_relative_to(root) else header
            code = f'#line {begin} "{shown}"\n' + "\n".join(lines)
            if in_c(output):
                functions.append(f"int {function}(void);\nint {function}(void)\n{{\n{code}\nreturn 0;\n}}\n")
            else:
                base = name if name in known else "Example"
                functions.append(f"struct {function} : {base} {{ void run(); }};\n"
                                 f"void {function}::run()\n{{\n{code}\n}}\n")
    if not functions:
        raise BadHeader("there is no example in any header")
    return "\n".join([*sorted(includes), "", *functions])


def main():
    root, output, *headers = map(pathlib.Path, sys.argv[1:])
    try:
        text = source(root, output, headers)
    except BadHeader as fault:
        print(f"header_examples.py: {fault}", file=sys.stderr)
        return 1
    output.write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
