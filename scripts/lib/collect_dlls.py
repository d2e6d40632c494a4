# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Copies the DLLs that the programs in a folder need, which it finds through their import tables.

Usage: collect_dlls.py FOLDER QT_PREFIX IMPORT_LIBRARIES DLL_FOLDER...

A DLL that is in neither QT_PREFIX nor a DLL_FOLDER has to be part of Windows. MinGW has an import library
in the folder IMPORT_LIBRARIES for each DLL of Windows, except for API sets (api-ms-win-*), which are named
like DLLs.
"""
import pathlib
import re
import shutil
import subprocess
import sys

OBJDUMP = "x86_64-w64-mingw32-objdump"

# The plugins that each Qt library requires. Import tables do not contain them, because Qt loads plugins
# by name.
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
    """Copies plugins into a subfolder per kind, where Qt looks for them, and returns the copies."""
    copies = []
    for pattern in patterns:
        found = sorted(plugins.glob(pattern))
        if not found:
            sys.exit(f"collect_dlls: no plugin matches {plugins}/{pattern}")
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
        sys.exit("collect_dlls: DLLs not found: " + ", ".join(sorted(missing)))
    print(f"collect_dlls: {sum(1 for _ in folder.rglob('*.dll'))} DLLs in {folder}", file=sys.stderr)


if __name__ == "__main__":
    main()
