#!/usr/bin/env python3
"""Prints the compile commands' sources that show clang-tidy the files on standard input, one path a line.

A source shows itself. A header is shown by any listed source that names it in an include, else by one that is named
after it (its test uses its templates), else by the unit that compiles it alone, else by the first that names it.

    Tools/lint_units.py COMPILE_COMMANDS ROOT < FILES
"""
import json
import os
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]', re.MULTILINE)


def read(path):
    with open(path, encoding="utf-8") as source:
        return source.read()


def main():
    commands, root = sys.argv[1], sys.argv[2]
    with open(commands, encoding="utf-8") as database:
        units = {entry["file"] for entry in json.load(database)}
    build = os.path.join(root, "build") + "/"
    sources = sorted(unit for unit in units if unit.startswith(root + "/") and not unit.startswith(build))
    alone = {unit.split("_verify_interface_header_sets/", 1)[1].removesuffix(".cxx"): unit
             for unit in units if "_verify_interface_header_sets/" in unit}
    listed = [os.path.join(root, line) for line in sys.stdin.read().split("\n") if line]

    shown = set(listed) & set(sources)
    named = {source: set(INCLUDE.findall(read(source))) for source in sources}
    for header in (path for path in listed if path.endswith(".h")):
        names = [header[i + 1:] for i, letter in enumerate(header) if letter == "/"]
        users = [source for source in sources if named[source].intersection(names)]
        if shown.intersection(users):
            continue
        stem = os.path.basename(header).removesuffix(".h")
        candidates = [user for user in users if os.path.basename(user).startswith(stem)]
        candidates += [alone[name] for name in names if name in alone]
        shown.update((candidates + users)[:1])
    print("\n".join(sorted(shown)))


if __name__ == "__main__":
    main()
