# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Prints the distribution's own package sources as deb-src lines, from both file formats of apt.

Only entries that are signed with the distribution's keyring, or that do not name a keyring, are printed:
other repositories on the machine do not contain the distribution's source packages.
"""
import glob
import re


def entries_of_deb822(path):
    for paragraph in re.split(r"\n\s*\n", open(path, encoding="utf-8").read()):
        fields = {}
        for line in paragraph.splitlines():
            if ":" in line and not line.startswith(("#", " ")):
                name, value = line.split(":", 1)
                fields[name.strip().lower()] = value.strip()
        if fields.get("uris") and fields.get("suites") and fields.get("enabled", "yes") == "yes":
            for uri in fields["uris"].split():
                for suite in fields["suites"].split():
                    yield uri, suite, fields.get("components", ""), fields.get("signed-by", "")


def entries_of_list(path):
    for line in open(path, encoding="utf-8"):
        match = re.match(r"\s*deb\s+(?:\[([^]]*)\]\s+)?(\S+)\s+(\S+)\s+(.*)", line)
        if match:
            options, uri, suite, components = match.groups()
            signed = re.search(r"signed-by=(\S+)", options or "")
            yield uri, suite, components.strip(), signed.group(1) if signed else ""


def main():
    seen = []
    for path in sorted(glob.glob("/etc/apt/sources.list.d/*.sources")):
        seen += entries_of_deb822(path)
    for path in ["/etc/apt/sources.list", *sorted(glob.glob("/etc/apt/sources.list.d/*.list"))]:
        try:
            seen += entries_of_list(path)
        except FileNotFoundError:
            pass
    for uri, suite, components, signed in dict.fromkeys(seen):
        keyring = signed.rsplit("/", 1)[-1]
        if "main" not in components.split():
            continue
        if keyring and not keyring.startswith(("debian-archive", "ubuntu-archive")):
            continue
        option = f"[signed-by={signed}] " if signed else ""
        print(f"deb-src {option}{uri} {suite} {components}")


main()
