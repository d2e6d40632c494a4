# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Copies the DLLs that the programs of a folder need, found by walking their import tables.

Usage: collect_dlls.py FOLDER QT_PREFIX DLL_FOLDER...

Qt's plugins are loaded by name and are in no import table: each kind that a needed Qt library can load
is copied with what it needs in turn. DLLs found nowhere are the system's own, if Windows has them.
"""
import pathlib
import re
import shutil
import subprocess
import sys

OBJDUMP = "x86_64-w64-mingw32-objdump"

# Which plugins a Qt library loads without being told to.
PLUGINS = {
    "qt6gui.dll": ["platforms", "imageformats"],
    "qt6widgets.dll": ["styles"],
    "qt6sql.dll": ["sqldrivers"],
}

# What comes with Windows; anything else that is found nowhere is missing.
SYSTEM = re.compile(
    r"^(advapi32|authz|bcrypt|comctl32|comdlg32|crypt32|d3d\w+|dnsapi|dwmapi|dwrite|dxgi|gdi32|imm32|"
    r"iphlpapi|kernel32|mpr|msvcrt|netapi32|ntdll|ole32|oleaut32|rpcrt4|secur32|setupapi|shcore|"
    r"shell32|shlwapi|user32|userenv|usp10|uxtheme|version|winmm|winspool|wintrust|wldap32|ws2_32|"
    r"wtsapi32|api-ms-win-[\w-]+)\.(dll|drv)$")


def imports(binary):
    output = subprocess.run([OBJDUMP, "-p", binary], check=True, capture_output=True, text=True)
    return [name.lower() for name in re.findall(r"DLL Name: (\S+)", output.stdout)]


def main():
    if len(sys.argv) < 4:
        sys.exit("collect_dlls: expected FOLDER QT_PREFIX DLL_FOLDER...")
    folder, qt = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    available = {}
    for source in [*map(pathlib.Path, sys.argv[3:]), qt / "bin"]:
        for dll in source.glob("*.dll"):
            available.setdefault(dll.name.lower(), dll)

    present = {path.name.lower(): path for path in folder.iterdir()}
    queue = [path for path in present.values() if path.suffix.lower() in (".dll", ".exe")]
    missing = set()
    while queue:
        binary = queue.pop()
        for name in imports(binary):
            if name in present or SYSTEM.match(name):
                continue
            if name not in available:
                missing.add(f"{name} (needed by {binary.name})")
                continue
            present[name] = shutil.copy2(available[name], folder)
            queue.append(pathlib.Path(present[name]))
            for kind in PLUGINS.get(name, []):
                for plugin in (qt / "plugins" / kind).glob("*.dll"):
                    target = folder / kind
                    target.mkdir(exist_ok=True)
                    queue.append(pathlib.Path(shutil.copy2(plugin, target)))
    if missing:
        sys.exit("collect_dlls: found nowhere: " + ", ".join(sorted(missing)))
    print(f"collect_dlls: {sum(1 for _ in folder.rglob('*.dll'))} DLLs in {folder}", file=sys.stderr)


if __name__ == "__main__":
    main()
