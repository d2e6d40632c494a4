# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Runs clang-tidy on the sources of a build, leaving out those that were found clean as they are now.

Usage: tidy.py [--all] [--minutes N] BUILD CACHE

BUILD has been built with Ninja: it knows the headers that each source includes. Each source is checked
without precompiled headers: clang cannot read another compiler's, and a source that includes too little
is found that way. CACHE keeps one empty file for each source that was found clean, named after a hash of
everything that the result depends on: the source, our headers that it includes, how it is compiled, the
configuration and clang-tidy itself. --all checks every source again. The sources that were committed last
are checked first, and with --minutes no further one is begun after N minutes: the last line says how many
were left out, and the next run goes on with them. Findings are printed; the exit status is 1 when there are
any.
"""
import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

PATIENCE = 600  # seconds that one source may take


def dependencies(build):
    """Each object's inputs as Ninja recorded them, by the object's path."""
    listing = subprocess.run(["ninja", "-C", str(build), "-t", "deps"], check=True,
                             capture_output=True, text=True).stdout
    found, current = {}, None
    for line in listing.splitlines():
        if line.startswith("    "):
            found[current].append((build / line.strip()).resolve())
        elif line:
            current = line.split(":", 1)[0]
            found[current] = []
    return found


def configuration(root):
    """What all .clang-tidy files of the tree say, without their comments."""
    files = subprocess.run(["git", "-C", str(root), "ls-files", "-z", "*.clang-tidy"], check=True,
                           capture_output=True, text=True).stdout.split("\0")
    lines = [line for file in sorted(filter(None, files))
             for line in [f"{file}:", *(root / file).read_text(encoding="utf-8").splitlines()]]
    return "\n".join(line for line in lines if not line.startswith("#")).encode()


class Hashes:
    """Hashes of files, each read once."""

    def __init__(self):
        self.known = {}

    def of(self, path):
        if path not in self.known:
            self.known[path] = hashlib.sha256(path.read_bytes()).hexdigest()
        return self.known[path]


def key_of(entry, inputs, root, common, hashes):
    key = hashlib.sha256(common)
    key.update(entry["command"].replace(str(root), "").encode())
    for path in sorted(set(inputs)):
        if path.is_relative_to(root) and not path.name.startswith("cmake_pch") and path.exists():
            key.update(f"{path.relative_to(root)}={hashes.of(path)}\n".encode())
    return key.hexdigest()


def without_precompiled_headers(entries, folder):
    """Writes the compile commands without precompiled headers."""
    plain = [{**entry, "command": re.sub(r"-Winvalid-pch|-fpch-preprocess|-include \S*/cmake_pch\.hxx", "",
                                         entry["command"])} for entry in entries]
    (folder / "compile_commands.json").write_text(json.dumps(plain), encoding="utf-8")


def ages(root):
    """The place of each file in the history: 0 for one that was committed last."""
    names = subprocess.run(["git", "-C", str(root), "log", "--format=", "--name-only", "-z"], check=True,
                           capture_output=True, text=True).stdout.split("\0")
    found = {}
    for name in names:
        found.setdefault(root / name.strip("\n"), len(found))
    return found


def check(source, build, end):
    if time.monotonic() > end:
        return None, ""
    run = subprocess.run(["clang-tidy", "-p", str(build), "--quiet", str(source)],
                         capture_output=True, text=True, timeout=PATIENCE, check=False)
    return run.returncode == 0, run.stdout + ("" if run.returncode == 0 else run.stderr)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--minutes", type=int, default=24 * 60)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("cache", type=pathlib.Path)
    arguments = parser.parse_args()
    root = pathlib.Path(__file__).resolve().parents[2]
    build = arguments.build.resolve()
    arguments.cache.mkdir(parents=True, exist_ok=True)

    version = subprocess.run(["clang-tidy", "--version"], check=True, capture_output=True).stdout
    common = version + configuration(root)
    recorded, hashes = dependencies(build), Hashes()
    todo = []
    entries = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    for entry in entries:
        source = pathlib.Path(entry["directory"], entry["file"]).resolve()
        if not source.is_relative_to(root) or source.is_relative_to(build):
            continue
        inputs = recorded[re.search(r" -o (\S+)", entry["command"])[1]]
        key = key_of(entry, [source, *inputs], root, common, hashes)
        if arguments.all or not (arguments.cache / key).exists():
            todo.append((source, (entry, [source, *inputs], key)))
    age = ages(root)
    todo = sorted({source: (source, state) for source, state in todo}.values(),
                  key=lambda each: age.get(each[0], -1))
    print(f"tidy: {len(todo)} sources to check", file=sys.stderr)

    began, told, clean, left_out = time.monotonic(), time.monotonic(), True, 0
    end = began + arguments.minutes * 60
    with (tempfile.TemporaryDirectory() as commands,
          concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool):
        without_precompiled_headers(entries, pathlib.Path(commands))
        runs = {pool.submit(check, source, commands, end): state for source, state in todo}
        for count, run in enumerate(concurrent.futures.as_completed(runs), 1):
            passed, output = run.result()
            if passed is None:
                left_out += 1
            elif passed:
                # What was checked is not what the key names if somebody has edited it meanwhile.
                entry, inputs, key = runs[run]
                if key_of(entry, inputs, root, common, Hashes()) == key:
                    (arguments.cache / key).touch()
            else:
                clean = False
                print(output.replace(f"{root}/", ""), flush=True)
            if time.monotonic() - told > 30:
                told = time.monotonic()
                print(f"tidy:   [{count}/{len(todo)}] after {told - began:.0f} s", file=sys.stderr)
    if left_out:
        print(f"tidy: {left_out} of {len(todo)} sources NOT CHECKED within {arguments.minutes} minutes",
              file=sys.stderr)
    sys.exit(1 if not clean else 4 if left_out else 0)


main()
