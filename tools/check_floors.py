#!/usr/bin/env python3
"""Checks that no file of src/ includes anything of a higher floor or a higher room.

A file includes what stands on a lower floor, or its own folder. Two folders of one floor do not know each other. In a
folder with rooms (sub-folders) the same holds for these: a file includes its own room and the rooms below it; "." is
what lies in the folder itself. Without arguments the tree is checked; --self-test checks the checker.
"""
import re
import sys
import tempfile
from pathlib import Path

FLOORS = {
    "core": 0,
    "folders": 1,
    "formats": 1,
    "browse": 2,
    "key": 2,
    "effects": 3,
    "pipeline": 4,
    "delivery": 5,
    "editor": 5,
    "session": 5,
    "batch": 6,
    "booth": 6,
    "farm": 6,
    "ui": 7,
    "apps": 8,
}
WINDOW_FLOOR = FLOORS["ui"]

# The rooms of a folder from the lowest up; those of one line do not know each other.
ROOMS = {
    "core": [["."], ["files"], ["raster"], ["image"], ["state"], ["text"]],
    "key": [["pixel"], ["screen", "skin", "guard", "refine"], ["hair", "spill"], ["light"], ["."]],
    "effects": [["."], ["frame", "shadow", "sketch", "smoothing", "star"]],
    "editor": [["brush"], ["."]],
    "delivery": [["words"], ["mail", "pages", "print"]],
    "ui": [["."], ["bind", "views"], ["tiles"], ["adjust", "batch", "editor", "effects", "mail", "review", "settings", "sizes", "strip", "text"], ["booth", "look", "picture", "print"], ["frame"]],
    "apps": [["cli", "desktop", "web"]],
}

# The same for a room that has rooms of its own.
INNER_ROOMS = {
    "key/refine": [["grid"], ["screen"], ["subject"], ["finish"], ["."]],
}

INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)')
# The engine is not linked with these, so the compiler finds most of them too; the form with a folder it does not.
WINDOW_HEADER = re.compile(r"^(Qt(Widgets|PrintSupport|WebEngine\w*)/|QApplication$|Q\w*(Widget|Dialog)$)")


def place(path):
    """The folder and the room of a path below src/."""
    parts = path.split("/")
    return parts[0], parts[1] if len(parts) > 2 else "."


def inner_place(path):
    """The room with rooms of its own that a path below src/ lies in, and which of them; None elsewhere."""
    parts = path.split("/")
    outer = "/".join(parts[:2])
    return (outer, parts[2] if len(parts) > 3 else ".") if outer in INNER_ROOMS and len(parts) > 2 else None


def level(folder, room):
    """How high a room stands in its folder, or None when the table does not have it."""
    rooms = ROOMS.get(folder) or INNER_ROOMS.get(folder, [["."]])
    return next((height for height, row in enumerate(rooms) if room in row), None)


def room_fault(folder, room, target):
    """The rule that an include of room `target` breaks in `room` of the same folder, or None."""
    if target == room:
        return None
    own, other = level(folder, room), level(folder, target)
    if other is None:
        return f"the room {folder}/{target} is not in the table of tools/check_floors.py"
    if other == own:
        return f"{folder}/{room} and {folder}/{target} stand side by side and do not include each other"
    if other > own:
        return f"{folder}/{room} includes {folder}/{target}, which stands higher"
    return None


def fault(path, quoted, system):
    """The rule that an include in a file at `path` below src/ breaks, or None."""
    folder, room = place(path)
    floor = FLOORS[folder]
    if system:
        if floor < WINDOW_FLOOR and WINDOW_HEADER.match(system):
            return f"<{system}> belongs to windows, which only src/ui and src/apps know"
        return None
    if quoted.endswith(".moc"):
        return None
    target, target_room = place(quoted)
    if "/" not in quoted or target not in FLOORS:
        return f'"{quoted}" does not begin with a folder of src/, as in "core/state/SystemInfo.h"'
    if target == folder:
        own, other = inner_place(path), inner_place(quoted)
        if own and other and own[0] == other[0]:
            return room_fault(*own, other[1])
        return room_fault(folder, room, target_room)
    if FLOORS[target] == floor:
        return f"{folder} and {target} stand on the same floor ({floor}) and do not include each other"
    if FLOORS[target] > floor:
        return f"{folder} (floor {floor}) includes {target} (floor {FLOORS[target]}), which stands higher"
    return None


def missing_from_tables(folder, room):
    """What the tables lack for a file that lies in `folder`/`room`, or None."""
    if folder not in FLOORS:
        return f"the folder {folder} has no floor; add it to the table in tools/check_floors.py"
    if level(folder, room) is None:
        return f"the room {folder}/{room} has no place; add it to the table in tools/check_floors.py"
    return None


def missing_inside(outer, room):
    """The same for a file in a room with rooms of its own."""
    return None if level(outer, room) is not None else f"the room {outer}/{room} has no place in tools/check_floors.py"


def check(source_root):
    """All broken rules below `source_root`, one line each."""
    faults = []
    for path in sorted(source_root.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        below = path.relative_to(source_root).as_posix()
        reason = missing_from_tables(*place(below)) or inner_place(below) and missing_inside(*inner_place(below))
        if reason:
            faults.append(f"{path}:1: {reason}")
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            reason = match and fault(below, match.group(1), match.group(2))
            if reason:
                faults.append(f"{path}:{number}: {reason}")
    return faults


def self_test():
    """Builds small trees, good and bad, and sees whether exactly the bad lines are found."""
    good = ['#include "core/a.h"', '#include "core/text/t.h"', '#include "key/b.h"', '#include "key/hair/b.h"',
            "#include <QImage>", "#include <vector>",
            '#include "key/refine/x.h"']
    bad = {
        "key/up.cpp": '#include "pipeline/loop.h"',
        "core/spaced.h": ' #  include "formats/x.h"',
        "editor/side.cpp": '#include "delivery/x.h"',
        "batch/window.cpp": "#include <QtWidgets/QWidget>",
        "delivery/dialog.cpp": "#include <QPrintDialog>",
        "core/state/local.cpp": '#include "local.h"',
        "core/raster/state.cpp": '#include "core/state/SystemInfo.h"',
        "key/pixel/root.cpp": '#include "key/Combine.h"',
        "key/skin/beside.cpp": '#include "key/guard/x.h"',
        "key/cellar/x.h": "",
        "key/refine/screen/up.h": '#include "key/refine/finish/x.h"',
        "key/refine/cellar/x.h": "",
        "elsewhere/x.h": "",
    }
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        for name, line in bad.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text("#pragma once\n" + line + "\n")
        (root / "key" / "good.cpp").write_text("\n".join(good) + "\n")
        (root / "ui").mkdir()
        (root / "ui" / "good.cpp").write_text('#include <QWidget>\n#include "batch/x.h"\n#include "good.moc"\n')
        found = sorted(str(Path(line.split(":")[0]).relative_to(root)) for line in check(root))
    if found != sorted(bad):
        print(f"self-test: expected faults in {sorted(bad)}, found them in {found}", file=sys.stderr)
        return 1
    return 0


def main():
    if sys.argv[1:] == ["--self-test"]:
        return self_test()
    root = Path(__file__).resolve().parent.parent / "src"
    faults = check(root)
    for line in faults:
        print(line.replace(f"{root.parent}/", ""), file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
