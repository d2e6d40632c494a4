# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""What the Windows installer installs: which file belongs to which of its components.

Usage: installer_files.py assign BUILD_FOLDER STAGED_FOLDER >ASSIGNMENT
       installer_files.py lists STAGED_FOLDER ASSIGNMENT FOLDER

assign: prints a line "component<TAB>path" for each file of STAGED_FOLDER, which scripts/lib/stage-windows has made
        from BUILD_FOLDER. Our files go where CMake's components say. A DLL of others goes to the component that needs
        it, or to the library, which is always installed, if several do.
lists:  makes FOLDER with files.nsh, a macro for each component that writes its files beside those of the installed
        version, and with a list for each component, by which an installer or uninstaller knows later what it may
        remove. own.ini lists what every installation has besides; it is not installed.
"""
import pathlib
import re
import subprocess
import sys
import tempfile

# In the order of the installer's page.
COMPONENTS = {
    "library": ["runtime", "kit", "widgets", "development", "data", "licence", "Unspecified"],
    "tools": ["tools"],
    "window": ["window"],
    "agent": ["agent"],
    "documentation": ["documentation", "web"],
}
THIRD_PARTY_LICENCES = "share/doc/VxPrinterStatus/third-party/"
# It lists the files of all components.
BILL_OF_MATERIALS = "share/doc/VxPrinterStatus/VxPrinterStatus.spdx.json"
OBJDUMP = "x86_64-w64-mingw32-objdump"


# What installer.nsi itself adds.
OWN_FILES = ["uninstall.exe", "uninstall/agent.json", "uninstall/icon.ico"]


def files_below(folder):
    return sorted(path.relative_to(folder).as_posix() for path in folder.rglob("*") if not path.is_dir())


def installed_by(build, parts):
    with tempfile.TemporaryDirectory() as folder:
        for part in parts:
            subprocess.run(["cmake", "--install", build, "--prefix", folder, "--component", part], check=True,
                           stdout=subprocess.DEVNULL)
        return files_below(pathlib.Path(folder))


def imports(binary):
    output = subprocess.run([OBJDUMP, "-p", binary], check=True, capture_output=True, text=True).stdout
    return {name.lower() for name in re.findall(r"DLL Name: (\S+)", output)}


def needed_by(staged, roots):
    """The names of all DLLs in bin that the files need, directly or not. Plugins need what their folder needs."""
    present = {path.name.lower(): path for path in (staged / "bin").glob("*.dll")}
    found, queue = set(), [staged / path for path in roots if path.endswith((".exe", ".dll"))]
    while queue:
        for name in imports(queue.pop()) & present.keys() - found:
            found.add(name)
            queue.append(present[name])
    return found


def assign(build, staged):
    owners = {}
    for component, parts in COMPONENTS.items():
        for path in installed_by(build, parts):
            if path in owners:
                sys.exit(f"installer_files: {path} is in the components {owners[path]} and {component}")
            owners[path] = component
    everything = files_below(staged)
    missing = sorted(owners.keys() - set(everything))
    if missing:
        sys.exit(f"installer_files: these are installed, but not staged: {', '.join(missing)}")
    needs = {component: needed_by(staged, [path for path, owner in owners.items() if owner == component])
             for component in COMPONENTS}
    for path in everything:
        if path in owners:
            continue
        place = pathlib.PurePosixPath(path)
        if place.parent == pathlib.PurePosixPath("bin"):
            users = [component for component, names in needs.items() if place.name.lower() in names]
            owners[path] = users[0] if len(users) == 1 else "library"
        elif path == BILL_OF_MATERIALS:
            owners[path] = "library"
        elif path.startswith(THIRD_PARTY_LICENCES) or path.startswith("bin/") and place.suffix == ".dll":
            owners[path] = "library"
        else:
            sys.exit(f"installer_files: {path} is in no component")
    for path in everything:
        print(f"{owners[path]}\t{path}")


def quoted(text):
    """As a string of NSIS."""
    return '"' + text.replace("$", "$$").replace('"', '$\\"') + '"'


def folders_of(paths):
    """The folders of the files, each after those in it, so that they can be removed in this order."""
    found = {parent.as_posix() for path in paths for parent in pathlib.PurePosixPath(path).parents}
    return sorted(found - {"."}, key=lambda folder: (-folder.count("/"), folder))


def write_list(file, paths):
    lines = ["[files]", *(path.replace("/", "\\") + "=1" for path in paths),
             *(path.replace("/", "\\") + "\\=1" for path in folders_of(paths))]
    file.write_text("\r\n".join(lines) + "\r\n", encoding="utf-16")


def lists(staged, assignment, folder):
    folder.mkdir()
    owners = [line.split("\t") for line in assignment.read_text(encoding="utf-8").splitlines()]
    script = ["# The files of each component, by scripts/lib/installer_files.py."]
    for component in COMPONENTS:
        paths = sorted(path for owner, path in owners if owner == component)
        # What a list cannot hold: its lines are keys of an INI file.
        odd = [path for path in paths if re.search(r'[=;\[\]\r\n"\\]', path)]
        if odd:
            sys.exit(f"installer_files: unexpected characters in {', '.join(map(repr, odd))}")
        write_list(folder / f"{component}.ini", paths)
        script.append(f"!macro InstallFilesOf_{component}")
        now = None
        for path in paths:
            place = pathlib.PurePosixPath(path).parent.as_posix().replace("/", "\\")
            if place != now:
                script.append(f'    SetOutPath "${{TEMPORARY}}\\new\\{place}"')
                now = place
            script.append(f"    File {quoted(str(staged / path))}")
        script += ['    SetOutPath "${TEMPORARY}\\new\\uninstall"',
                   f"    File {quoted(str(folder / f'{component}.ini'))}",
                   "!macroend"]
    write_list(folder / "own.ini", OWN_FILES)
    (folder / "files.nsh").write_text("\n".join(script) + "\n", encoding="utf-8")


def main():
    if len(sys.argv) == 4 and sys.argv[1] == "assign":
        assign(*map(pathlib.Path, sys.argv[2:]))
    elif len(sys.argv) == 5 and sys.argv[1] == "lists":
        lists(*(pathlib.Path(argument).absolute() for argument in sys.argv[2:]))
    else:
        sys.exit("installer_files: expected assign BUILD_FOLDER STAGED_FOLDER or lists STAGED_FOLDER ASSIGNMENT FOLDER")


if __name__ == "__main__":
    main()
