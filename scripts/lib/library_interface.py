# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Compares the binary interface of shared libraries with the one that is kept, or records it.

library_interface.py [--update] --build FOLDER_OF_LIBRARIES SOURCES ABI_FOLDER

ABI_FOLDER has two files for each library: NAME.symbols, what it exports, which the tests compare in every build,
and NAME.abi, which libabigail's abidw has made of its debug information. Exit status 1: something was removed,
changed or added. The last is recorded with --update; the others need a new major version.
"""
import argparse
import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

# Each library with the folders of its public headers. What is declared elsewhere is not part of its interface.
LIBRARIES = {
    "libvxprinterstatus": ("include", "platform/vxipc"),
    "libvxprinterstatuskit": ("kit/include", "include"),
    "libvxprinterstatuswidgets": ("widgets/include", "kit/include"),
}

# Bits of abidiff's exit status.
ERROR, USAGE, CHANGE = 1, 2, 4

# What the linker needs once for each class, whichever library has it. Those of classes of Qt and of the standard
# library come and go with the compiler's decisions.
CLASS_DATA = ("vtable for ", "VTT for ", "typeinfo for ", "typeinfo name for ")
OTHERS_CLASSES = ("std::", "Q", "__gnu_cxx::", "(anonymous namespace)")


def is_interface(kind, name):
    if kind in "TDBRGA":
        return True
    # Weak: class data, and functions that every program which uses them has as well.
    for prefix in CLASS_DATA:
        if name.startswith(prefix):
            return not name[len(prefix):].startswith(OTHERS_CLASSES)
    return False


def symbol_lines(library, *options):
    """(kind, name) of everything that the library has for others, in nm's order."""
    listing = subprocess.run(["nm", "-D", "--defined-only", "--extern-only", *options, library],
                             check=True, capture_output=True, encoding="utf-8").stdout
    for line in listing.splitlines():
        _, kind, name = line.split(" ", 2)
        # With a version behind it where the library has a version script.
        yield kind, name.partition("@@")[0]


def exported_symbols(library):
    """What the library exports, readable, one a line; sorted."""
    return sorted({name for kind, name in symbol_lines(library, "--demangle") if is_interface(kind, name)})


def exported_identifiers(library):
    """The same as the linker knows it."""
    readable = symbol_lines(library, "--no-sort", "--demangle")
    return {identifier for (kind, name), (_, identifier) in zip(readable, symbol_lines(library, "--no-sort"))
            if is_interface(kind, name)}


def symbol_differences(kept, found):
    kept, found = set(kept), set(found)
    return sorted(kept - found), sorted(found - kept)


def header_options(folders, number=""):
    return [word for folder in folders for word in (f"--headers-dir{number}", str(folder))]


# The attributes with which abidw's elements refer to a type.
REFERENCES = ("type-id", "naming-typedef-id", "method-class-id")


def drop_inline_functions(root):
    """Removes the functions of classes that the library does not export: programs have them themselves."""
    for element in root.iter():
        for member in element.findall("member-function"):
            function = member.find("function-decl")
            if function is not None and "elf-symbol-id" not in function.attrib and "vtable-offset" not in member.attrib:
                element.remove(member)


def drop_unused_member_types(root):
    """Removes types within types that nothing refers to. True if there were any."""
    used = {element.attrib[each] for element in root.iter() for each in REFERENCES if each in element.attrib}
    found = False
    for element in root.iter():
        for member in element.findall("member-type"):
            if not any(each.get("id") in used or "elf-symbol-id" in each.attrib for each in member.iter()):
                element.remove(member)
                found = True
    return found


def declarations_of(scope):
    """All declarations in a scope and in its namespaces, each with the scope that it is in."""
    for element in scope:
        if element.tag == "namespace-decl":
            yield from declarations_of(element)
        else:
            yield scope, element


def drop_unused(root):
    """Removes declarations that no exported function or variable leads to."""
    declarations = [each for unit in root.iter("abi-instr") for each in declarations_of(unit)]
    declared_in = {}
    for _, declaration in declarations:
        for element in declaration.iter():
            if "id" in element.attrib:
                declared_in.setdefault(element.attrib["id"], []).append(declaration)
    waiting = [declaration for _, declaration in declarations
               if any("elf-symbol-id" in each.attrib for each in declaration.iter())]
    used = set()
    while waiting:
        declaration = waiting.pop()
        if declaration in used:
            continue
        used.add(declaration)
        for element in declaration.iter():
            for each in REFERENCES:
                waiting += declared_in.get(element.get(each), ())
    for scope, declaration in declarations:
        if declaration not in used:
            scope.remove(declaration)


def drop_other_symbols(root, exported):
    """Removes what is in the library only because each program that uses a template has a copy of it."""
    def is_other(name):
        return name is not None and name.partition("@")[0] not in exported

    for parent in root.iter():
        for element in list(parent):
            symbol = element.get("name") if element.tag == "elf-symbol" else element.get("elf-symbol-id")
            # As a member it is wrapped, and without its symbol it is dropped like an inline function.
            if is_other(symbol) and parent.tag == "member-function":
                del element.attrib["elf-symbol-id"]
            elif is_other(symbol):
                parent.remove(element)


def prune(file, exported):
    """Keeps what hosts depend on. abidw also writes down every type that the sources mention, most of the file."""
    tree = xml.etree.ElementTree.parse(file)
    root = tree.getroot()
    drop_other_symbols(root, exported)
    drop_inline_functions(root)
    while drop_unused_member_types(root):
        pass
    drop_unused(root)
    # One element a line, so that a change is seen in the difference of two files.
    for element in root.iter():
        element.text, element.tail = None, "\n"
    tree.write(file, encoding="utf-8")


def write_abi(library, header_folders, output):
    """What abidw knows of the library: without places in the sources and types that the headers do not declare."""
    subprocess.run(["abidw", *header_options(header_folders), "--drop-private-types", "--no-comp-dir-path",
                    "--no-show-locs", "--no-corpus-path", "--no-architecture", "--short-locs", "--type-id-style", "hash",
                    "--exported-interfaces-only", "--out-file", output, library], check=True)
    prune(output, exported_identifiers(library))


def abi_differences(kept, found):
    """(what was removed or changed, whether something is new), as abidiff says it."""
    def abidiff(*options):
        done = subprocess.run(["abidiff", *options, kept, found], capture_output=True, encoding="utf-8", check=False)
        if done.returncode & (ERROR | USAGE):
            sys.exit(f"abidiff could not compare {kept} with {found}:\n{done.stdout}{done.stderr}")
        return done

    changed = abidiff("--no-added-syms")
    broken = changed.stdout if changed.returncode & CHANGE else ""
    return broken, not broken and bool(abidiff().returncode & CHANGE)


def check(name, library, header_folders, abi_folder, update):
    """Prints what differs. Returns whether the library may be released as it is."""
    symbols_file, abi_file = abi_folder / f"{name}.symbols", abi_folder / f"{name}.abi"
    symbols = exported_symbols(library)
    with tempfile.TemporaryDirectory() as scratch:
        abi = pathlib.Path(scratch, abi_file.name)
        write_abi(library, header_folders, abi)
        if update:
            symbols_file.write_text("".join(f"{symbol}\n" for symbol in symbols), encoding="utf-8")
            abi_file.write_bytes(abi.read_bytes())
            print(f"{name}: {len(symbols)} symbols recorded")
            return True
        removed, added = symbol_differences(symbols_file.read_text(encoding="utf-8").splitlines(), symbols)
        broken, has_grown = abi_differences(abi_file, abi)
    if removed or broken:
        print(f"{name}: hosts that were built with the release fail with this library. Restore what is listed, or "
              "raise the major version and run scripts/check-abi --update.")
        print("".join(f"  removed: {symbol}\n" for symbol in removed) + broken)
        return False
    if added or has_grown:
        print(f"{name}: new in the binary interface. If it is meant to be public, run scripts/check-abi --update.")
        print("".join(f"  new: {symbol}\n" for symbol in added))
        return False
    print(f"{name}: {len(symbols)} symbols, as released")
    return True


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--update", action="store_true")
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("sources", type=pathlib.Path)
    parser.add_argument("abi", type=pathlib.Path)
    options = parser.parse_args()
    results = [check(name, options.build / f"{name}.so", [options.sources / each for each in headers],
                     options.abi, options.update)
               for name, headers in LIBRARIES.items()]
    sys.exit(0 if all(results) else 1)


if __name__ == "__main__":
    main()
