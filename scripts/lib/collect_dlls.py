# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Copies the DLLs that the programs of a folder need, found by walking their import tables.

Usage: collect_dlls.py FOLDER QT_PREFIX IMPORT_LIBRARIES DLL_FOLDER...

What is found nowhere has to come with Windows: MinGW has an import library for each DLL that does,
and IMPORT_LIBRARIES is the folder they are in. Sets of functions that Windows names like DLLs have
none of their own.
"""
import pathlib
import re
import shutil
import subprocess
import sys

OBJDUMP = "x86_64-w64-mingw32-objdump"

# Plugins are loaded by name and are in no import table: what each Qt library cannot do without.
PLUGINS = {
    "qt6gui.dll": ["platforms/qwindows.dll", "imageformats/*.dll"],
    "qt6sql.dll": ["sqldrivers/qsqlite.dll"],
    "qt6widgets.dll": ["styles/*.dll"],
}


def imports(binary):
    output = subprocess.run([OBJDUMP, "-p", binary], check=True, capture_output=True, text=True)
    return [name.lower() for name in re.findall(r"DLL Name: (\S+)", output.stdout)]


def comes_with_windows(name, import_libraries):
    stem = name.rsplit(".", 1)[0]
    return stem.startswith("api-ms-win-") or (import_libraries / f"lib{stem}.a").exists()


def copy_plugins(plugins, patterns, folder):
    """The copies; those of a kind are together in a folder of its name, where Qt looks for them."""
    copies = []
    for pattern in patterns:
        found = sorted(plugins.glob(pattern))
        if not found:
            sys.exit(f"collect_dlls: there is no plugin {plugins}/{pattern}")
        for plugin in found:
            target = folder / plugin.parent.name
            target.mkdir(exist_ok=True)
            copies.append(pathlib.Path(shutil.copy2(plugin, target)))
    return copies


def main():
    if len(sys.argv) < 4:
        sys.exit("collect_dlls: expected FOLDER QT_PREFIX IMPORT_LIBRARIES DLL_FOLDER...")
    folder, qt, import_libraries = map(pathlib.Path, sys.argv[1:4])
    available = {}
    for source in [*map(pathlib.Path, sys.argv[4:]), qt / "bin"]:
        for dll in source.glob("*.dll"):
            available.setdefault(dll.name.lower(), dll)

    present = {path.name.lower() for path in folder.iterdir()}
    queue = [path for path in folder.iterdir() if path.suffix.lower() in (".dll", ".exe")]
    missing = set()
    while queue:
        binary = queue.pop()
        for name in imports(binary):
            if name in present:
                continue
            if name not in available:
                if not comes_with_windows(name, import_libraries):
                    missing.add(f"{name} (needed by {binary.name})")
                continue
            present.add(name)
            queue.append(pathlib.Path(shutil.copy2(available[name], folder)))
            queue += copy_plugins(qt / "plugins", PLUGINS.get(name, []), folder)
    if missing:
        sys.exit("collect_dlls: found nowhere: " + ", ".join(sorted(missing)))
    print(f"collect_dlls: {sum(1 for _ in folder.rglob('*.dll'))} DLLs in {folder}", file=sys.stderr)


if __name__ == "__main__":
    main()
