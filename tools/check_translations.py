#!/usr/bin/env python3
"""Every text of the window has its words in every language: check_translations.py LUPDATE."""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

ROOT = pathlib.Path(__file__).resolve().parent.parent


def faults(file, lupdate):
    with tempfile.TemporaryDirectory() as folder:
        fresh = pathlib.Path(folder) / file.name
        shutil.copy(file, fresh)
        told = subprocess.run([lupdate, "-no-obsolete", "-locations", "none", str(ROOT / "src"), "-ts", str(fresh)],
                              capture_output=True, text=True, check=True)
        known = {(c.findtext("name"), m.findtext("source")) for c in ET.parse(file).iter("context") for m in c.iter("message")}
        for line in (told.stdout + told.stderr).splitlines():
            if "lacks Q_OBJECT" in line:
                yield line + ": its texts would not be found"
        for context in ET.parse(fresh).iter("context"):
            for message in context.iter("message"):
                source, translation = message.findtext("source"), message.find("translation")
                if translation.get("type") == "unfinished" or not translation.text:
                    yield f"{file.name}: no words for {source!r} of {context.findtext('name')}"
                elif [f"%{n}" in source for n in range(1, 10)] != [f"%{n}" in translation.text for n in range(1, 10)]:
                    yield f"{file.name}: other placeholders than {source!r}: {translation.text!r}"
                known.discard((context.findtext("name"), source))
        for name, source in sorted(known):
            yield f"{file.name}: {source!r} of {name} is no longer in the sources"


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    found = [fault for file in sorted((ROOT / "translations").glob("*.ts")) for fault in faults(file, sys.argv[1])]
    for fault in found:
        print(fault)
    sys.exit(1 if found else 0)


main()
