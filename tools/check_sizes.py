#!/usr/bin/env python3
"""Checks that no source file has grown beyond what one sitting can read: a file is one idea."""
import sys
from pathlib import Path

MOST_LINES = 500
FOLDERS = ("src", "tests", "bench", "fuzz", "tools")
SUFFIXES = (".h", ".cpp", ".py", ".sh")


def main():
    root = Path(__file__).resolve().parent.parent
    files = [path for folder in FOLDERS for path in (root / folder).rglob("*") if path.suffix in SUFFIXES]
    status = 0
    for path in sorted(files):
        lines = len(path.read_text(encoding="utf-8").splitlines())
        if lines > MOST_LINES:
            print(f"{path.relative_to(root)}: {lines} lines; split it, {MOST_LINES} are the most", file=sys.stderr)
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main())
