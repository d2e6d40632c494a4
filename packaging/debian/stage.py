# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Completes the folders that CPack makes Debian packages of.

stage.py --sources FOLDER --version VERSION --maintainer NAME_AND_ADDRESS --strip PROGRAM STAGING COMPONENT=PACKAGE...

To the files of each package it adds the copyright, the changelog, the overrides of lintian with their reasons, and
the files in packaging/debian/PACKAGE/files. All times become SOURCE_DATE_EPOCH, so that packages of the same
sources are the same.
"""
import argparse
import email.utils
import gzip
import os
import pathlib
import re
import subprocess
import sys

ELF = b"\x7fELF"
PARTS_OF_PAGES = """
The pages in /usr/share/doc/vxprinterstatus-doc/html, and those in the help file, have styles, scripts and pictures
that Doxygen has added, under the licence above:

  navtree.js, resize.js, dynsections.js, search.js: Copyright 1997-2020 by Dimitri van Heesch
  jquery.js: jQuery, Copyright OpenJS Foundation and other contributors;
    jQuery UI, Copyright jQuery Foundation and other contributors;
    jQuery UI Touch Punch, Copyright 2011-2014 Dave Furfero;
    SmartMenus jQuery Plugin, Copyright Vasil Dinkov, Vadikom Web Ltd.
"""


def write(path, data):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data if isinstance(data, bytes) else data.encode())


def compressed(data):
    # Without a name and a time.
    return gzip.compress(data, compresslevel=9, mtime=0)


def changelog(version, maintainer, seconds):
    # The history of the product is in its own changelog; this one is that of the packages.
    date = email.utils.formatdate(seconds)
    return (f"vxprinterstatus ({version}) unstable; urgency=medium\n\n"
            f"  * Packages of VxPrinterStatus {version.rpartition('-')[0]}.\n\n"
            f" -- {maintainer}  {date}\n").encode()


def copyright_of(package, sources):
    text = "VxPrinterStatus\n\n" + (sources / "LICENSE").read_text(encoding="utf-8")
    if package == "vxprinterstatus-web":
        text += ("\nThe file /usr/share/VxPrinterStatus/web/vendor/mqtt.js is made of packages of others.\n"
                 + (sources / "web/vendor/LICENSES.txt").read_text(encoding="utf-8"))
    if package == "vxprinterstatus-doc":
        text += PARTS_OF_PAGES
    return text


def sonames(folder):
    """The names that programs ask for the libraries in a folder by, such as libvxprinterstatus and 1."""
    names = []
    for path in sorted(folder.glob("usr/lib/*/lib*.so.*")):
        if not path.is_symlink():
            dynamic = subprocess.run(["readelf", "-d", path], check=True, capture_output=True, text=True).stdout
            found = re.search(r"SONAME.*\[(.+)\.so\.(.+)\]", dynamic)
            if not found:
                sys.exit(f"{path} has no SONAME with a version")
            names.append(found.groups())
    return names


def has_programs(folder):
    for path in folder.glob("usr/**/*"):
        if path.is_file() and not path.is_symlink():
            with path.open("rb") as file:
                if file.read(4) == ELF:
                    return True
    return False


def add_files(folder, package, options, seconds):
    own = options.sources / "packaging/debian" / package
    documents = folder / "usr/share/doc" / package
    write(documents / "copyright", copyright_of(package, options.sources))
    write(documents / "changelog.Debian.gz", compressed(changelog(options.version, options.maintainer, seconds)))
    overrides = own / "lintian-overrides"
    if overrides.exists():
        write(folder / "usr/share/lintian/overrides" / package, overrides.read_bytes())
    for path in sorted((own / "files").rglob("*")):
        if path.is_file():
            write(folder / path.relative_to(own / "files"), path.read_bytes())
    for page in sorted(folder.glob("usr/share/man/**/*.[1-9]")):
        write(page.with_name(page.name + ".gz"), compressed(page.read_bytes()))
        page.unlink()
    for archive in sorted(folder.glob("usr/lib/*/*.a")):
        subprocess.run([options.strip, "--strip-debug", "--enable-deterministic-archives", archive], check=True)


def move_page_configuration(folder):
    """The page reads its configuration beside itself; an administrator's files belong into /etc."""
    beside = folder / "usr/share/VxPrinterStatus/web/config.json"
    configuration = folder / "etc/vxprinterstatus/page.json"
    write(configuration, beside.read_bytes())
    beside.unlink()
    beside.symlink_to("/etc/vxprinterstatus/page.json")


def arrange_documentation(folder, package):
    """Debian has a package's pages in its own folder, and what to start from among its examples."""
    documents = folder / "usr/share/doc" / package
    pages = folder / "usr/share/doc/VxPrinterStatus"
    documents.mkdir(parents=True, exist_ok=True)
    (pages / "html").rename(documents / "html")
    pages.rmdir()
    (documents / "examples").symlink_to("../../VxPrinterStatus/examples")
    # The same place as in the sources, so what the guides say of them holds.
    (folder / "usr/share/VxPrinterStatus/examples/clients").symlink_to("../clients")


def is_script(path):
    with path.open("rb") as file:
        return file.read(2) == b"#!"


def set_modes_and_times(folder, seconds):
    for path in [folder, *folder.rglob("*")]:
        if not path.is_symlink():
            is_open = path.is_dir() or path.stat().st_mode & 0o100 or is_script(path)
            path.chmod(0o755 if is_open else 0o644)
        os.utime(path, (seconds, seconds), follow_symlinks=False)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--sources", type=pathlib.Path, required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("--maintainer", required=True)
    parser.add_argument("--strip", required=True)
    parser.add_argument("staging", type=pathlib.Path)
    parser.add_argument("packages", nargs="+")
    options = parser.parse_args()
    if "SOURCE_DATE_EPOCH" not in os.environ:
        sys.exit("stage.py: set SOURCE_DATE_EPOCH, the time of the sources in seconds; scripts/package does")
    seconds = int(os.environ["SOURCE_DATE_EPOCH"])
    packages = dict(each.split("=") for each in options.packages)
    upstream = options.version.rpartition("-")[0]

    # dpkg-shlibdeps reads this file before it asks the system's packages, which know nothing of these.
    own_libraries = [(name, soname, package) for component, package in packages.items()
                     for name, soname in sonames(options.staging / component)]
    for component, package in packages.items():
        folder = options.staging / component
        add_files(folder, package, options, seconds)
        if package == "vxprinterstatus-web":
            move_page_configuration(folder)
        if package == "vxprinterstatus-doc":
            arrange_documentation(folder, package)
        set_modes_and_times(folder, seconds)
        if has_programs(folder):
            # CPack removes the folder when dpkg-shlibdeps has read it.
            write(folder / "debian/shlibs.local", "".join(
                f"{name} {soname} {owner} (>= {upstream})\n" for name, soname, owner in own_libraries
                if owner != package))


main()
