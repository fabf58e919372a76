#!/usr/bin/python3
"""Checks the rules of the host's code that the compiler does not.

- The host's folders are layers (host/README.md gives the order): a host file may include host
  headers of its own folder and of folders below it, never of a folder above.
- No include on either side of the module/host wall climbs out of its folder with "../", which
  would reach past the include roots the build gives each side.
- Every C function the host exports runs its body through host::guarded (host/boundary.h), so
  that no exception reaches a module.

Usage: check_host_rules.py PROJECT_ROOT. Prints each breach and exits 1 when there is one."""
import pathlib
import re
import sys

# Bottom to top; "" is the base: the files directly in host/.
LAYERS = ["", "win", "db", "dcl", "runtime", "commands", "lisp", "render", "console"]
MODULE_FOLDERS = ["frame", "psychro", "duct", "coil", "drawing", "units"]
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
# An exported definition and the first lines of its body.
EXPORTED = re.compile(r'^extern "C" [^;{]*?\b(\w+)\([^;{]*?\)\s*\{\n((?:.*\n){1,3})', re.MULTILINE)


def layer_of(relative):
    """The layer of a path below host/: its first folder, or the base for a file at the top."""
    parts = pathlib.PurePosixPath(relative).parts
    return parts[0] if len(parts) > 1 else ""


def sources(folder):
    return sorted(p for p in folder.rglob("*") if p.suffix in (".h", ".cpp"))


def includes(path):
    text = path.read_text(encoding="utf-8")
    for match in INCLUDE.finditer(text):
        yield text.count("\n", 0, match.start()) + 1, match.group(1)


def host_problems(host_dir):
    found = []
    for path in sources(host_dir):
        own = layer_of(path.relative_to(host_dir).as_posix())
        if own not in LAYERS:
            found.append(f"{path}: folder host/{own} has no place in the layer order")
            continue
        for line, name in includes(path):
            if name.startswith("../"):
                found.append(f"{path}:{line}: includes {name}, climbing out of its folder")
            if not name.startswith("host/"):
                continue
            target = layer_of(name[len("host/"):])
            if target not in LAYERS:
                found.append(f"{path}:{line}: includes {name} of an unknown layer")
            elif LAYERS.index(target) > LAYERS.index(own):
                found.append(f"{path}:{line}: host/{own or '.'} includes {name}, a layer above it")
    return found


def unguarded_exports(host_dir):
    found = []
    for path in sources(host_dir):
        text = path.read_text(encoding="utf-8")
        for match in EXPORTED.finditer(text):
            if "guarded(" not in match.group(2):
                line = text.count("\n", 0, match.start()) + 1
                found.append(f"{path}:{line}: exported {match.group(1)} does not run its body through host::guarded")
    return found


def module_problems(root):
    found = []
    for folder in MODULE_FOLDERS:
        for path in sources(root / folder) if (root / folder).is_dir() else []:
            for line, name in includes(path):
                if name.startswith("../"):
                    found.append(f"{path}:{line}: includes {name}, climbing out of its folder")
    return found


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    root = pathlib.Path(sys.argv[1])
    found = host_problems(root / "host") + module_problems(root) + unguarded_exports(root / "host")
    for problem in found:
        print(problem)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
