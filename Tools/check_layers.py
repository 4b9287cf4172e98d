#!/usr/bin/env python3
"""Checks that includes run downward only, by the table in layers.txt.

    check_layers.py [SOURCE_FOLDER [TABLE]]

Prints one line "file:line: reason" for each include that runs upward or sideways and exits with 1.
"""
import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]')


def read_table(path):
    ranks, only, never, private = {}, {}, {}, {}
    for number, line in enumerate(path.read_text().splitlines(), 1):
        words = line.split("#")[0].split()
        if not words:
            continue
        if words[0] == "layer" and len(words) == 3:
            ranks[words[2]] = int(words[1])
        elif words[0] == "only" and len(words) >= 2:
            only.setdefault(words[1], set()).update(words[2:])
        elif words[0] == "never" and len(words) >= 3:
            never.setdefault(words[1], set()).update(words[2:])
        elif words[0] == "private" and len(words) >= 3:
            private.setdefault(words[1], set()).update(words[2:])
        else:
            sys.exit(f"{path}:{number}: not a rule: {line}")
    return ranks, only, never, private


def module_of(relative, ranks):
    """The longest listed folder that holds the file."""
    folders = [str(p) for p in pathlib.PurePosixPath(relative).parents]
    return next((f for f in folders if f in ranks), None)


def within(folder, folders):
    return any(folder == f or folder.startswith(f + "/") for f in folders)


def fault(user, used, table):
    ranks, only, never, private = table
    if user == used:
        return None
    if used in private and user not in private[used]:
        return f"{used} is not for {user}"
    if user in only:
        return None if used in only[user] else f"{user} may not include {used}"
    if ranks[used] >= ranks[user]:
        return f"{user} (layer {ranks[user]}) may not include {used} (layer {ranks[used]})"
    if within(used, never.get(user, ())):
        return f"{user} may not know {used}"
    return None


def check_file(source, path, table):
    relative = path.relative_to(source).as_posix()
    user = module_of(relative, table[0])
    if user is None:
        yield f"{path}:1: {relative} is in no folder of the table"
        return
    for number, line in enumerate(path.read_text(errors="replace").splitlines(), 1):
        match = INCLUDE.match(line)
        if not match:
            continue
        for base in (source / "Common", source, path.parent):
            target = base / match.group(1)
            if target.is_file():
                break
        else:
            continue  # not ours: a library or the standard
        used = module_of(target.resolve().relative_to(source.resolve()).as_posix(), table[0])
        reason = fault(user, used, table) if used else f"{target} is in no folder of the table"
        if reason:
            yield f"{path}:{number}: {reason}"


def main(arguments):
    root = pathlib.Path(__file__).resolve().parent.parent
    source = pathlib.Path(arguments[0]) if arguments else root / "Source"
    table = read_table(pathlib.Path(arguments[1]) if len(arguments) > 1 else root / "Tools" / "layers.txt")
    files = sorted(p for p in source.rglob("*") if p.suffix in (".h", ".cpp"))
    faults = [line for path in files for line in check_file(source, path, table)]
    print("\n".join(faults) if faults else f"layers: {len(files)} files, no include runs upward")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
