#!/usr/bin/env python3
"""A watching batch whose disk is full: disk_full_test.py TAVRIN_CLI

Mounts a small memory disk (in a mount space of its own, which needs root or a user space) as the folder of the
pictures, watches until it is full, looks that nothing half-made stands there, gives it room, and wants all pictures,
equal to those made on a disk with room. Then the same for a batch that ends: it stops, and the next run goes on. Then
everything else that is saved meets a disk without any room, and has to say so. Ends with 77 (skipped) where such a disk cannot be mounted.
"""
import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from support import has_own_mount_space, mount, skip, wait_for, write_portrait

PICTURES = 8
SIZE = ["--inches", "8x10", "--dpi", "72", "--type", "png", "--style", "number"]


def pictures(folder):
    return {path.name: path.read_bytes() for path in folder.glob("*.png")}


class Test:
    def __init__(self, cli, work):
        self.work, self.expected = work, work / "expected"
        self.command = [cli, "batch", "--foregrounds", str(work / "portraits"), "--backgrounds",
                        str(work / "sea-.png"), *SIZE, "--out"]
        (work / "portraits").mkdir()
        for number in range(PICTURES):
            write_portrait(work / "portraits" / f"portrait-{number}-.png", number)
        write_portrait(work / "sea-.png", 60)
        subprocess.run([*self.command, str(self.expected)], check=True, capture_output=True)
        self.whole = pictures(self.expected)
        # Room for half of them.
        self.room = sum(map(len, self.whole.values())) // 2

    def small_disk(self, name):
        folder = self.work / name
        folder.mkdir()
        problem = mount(folder, f"size={self.room}")
        if problem:
            skip(f"no memory disk can be mounted ({problem}).")
        return folder

    def is_sound(self, folder):
        return all(self.whole.get(name) == content for name, content in pictures(folder).items())

    def watch(self):
        folder = self.small_disk("watched")
        errors = open(self.work / "watch.log", "w+")
        batch = subprocess.Popen([*self.command, str(folder), "--watch"], stdout=subprocess.DEVNULL, stderr=errors)
        try:
            told = wait_for("the line about the full disk", 60,
                            lambda: "the disk is full" in (self.work / "watch.log").read_text())
            time.sleep(1)
            some = len(pictures(folder))
            sound = self.is_sound(folder) and 0 < some < PICTURES and batch.poll() is None
            mount(folder, f"remount,size={4 * self.room}")
            all_made = wait_for("all pictures", 60, lambda: pictures(folder) == self.whole)
        finally:
            batch.terminate()
            code = batch.wait(60)
        print(f"Watching: {some} of {PICTURES} pictures fitted; with room again {len(pictures(folder))}, exit code {code}")
        return told and sound and all_made and code == 0

    def end_and_resume(self):
        folder = self.small_disk("ended")
        first = subprocess.run([*self.command, str(folder)], capture_output=True, text=True)
        some = len(pictures(folder))
        sound = self.is_sound(folder) and 0 < some < PICTURES
        told = first.returncode == 1 and "Run the same command again" in first.stderr
        mount(folder, f"remount,size={4 * self.room}")
        second = subprocess.run([*self.command, str(folder)], capture_output=True, text=True)
        print(f"Ending: {some} of {PICTURES} pictures fitted, then {second.stderr.strip()}")
        return told and sound and second.returncode == 0 and pictures(folder) == self.whole

    def say_so(self):
        """Every kind of file that the program saves, on a disk that is full to the last byte."""
        folder = self.small_disk("full")
        old = folder / "old.qlx"
        old.write_text("as it was")
        (folder / "tmp").mkdir()
        with open(folder / "filler", "wb", buffering=0) as filler:
            try:
                while filler.write(bytes(4096)):
                    pass
            except OSError:
                pass
        cli, room = self.command[0], self.work
        portrait, sea = str(room / "portraits" / "portrait-0-.png"), str(room / "sea-.png")
        render = [cli, "render", "--foreground", portrait, "--background", sea, "--inches", "4x5", "--dpi", "50"]
        state = str(room / "state.qlx")
        subprocess.run([*render, "--out", str(room / "a.png"), "--save-state", state], check=True)
        report = str(room / "report.jsonl")
        batch = [cli, "batch", "--foregrounds", portrait, "--backgrounds", sea, *SIZE, "--out", str(room / "other")]
        subprocess.run([*batch, "--report", report], check=True, capture_output=True)
        calls = {f"a picture ({kind})": [*render, "--out", str(folder / f"a.{kind}")] for kind in ("png", "jpg", "tif")}
        calls["a matte"] = [*render, "--out", str(room / "a.png"), "--alpha", str(folder / "matte.png")]
        calls["a state"] = [*render, "--out", str(room / "a.png"), "--save-state", str(old)]
        calls["a changed state"] = [cli, "state", "set", state, str(folder / "new.qlx"), "iBlendEdges=3"]
        calls["a report"] = [*batch, "--again", "--report", str(folder / "report.jsonl")]
        calls["a joined report"] = [cli, "report", "merge", "--out", str(folder / "all.jsonl"), report]
        calls["a journal"] = [*batch[:-1], str(folder / "done")]
        good = True
        for what, call in calls.items():
            done = subprocess.run(call, capture_output=True, text=True)
            # A batch whose pictures are all there ends well without its report.
            told = "the disk is full" in done.stderr and done.returncode == (0 if what == "a report" else 1)
            good = good and told
            if not told:
                print(f"{what}: exit code {done.returncode}, {done.stderr.strip()}")
        temporary = subprocess.run([*render, "--out", str(room / "b.png")], capture_output=True, text=True,
                                   env={**os.environ, "TMPDIR": str(folder / "tmp")})
        if temporary.returncode != 0:
            print(f"temporary files: {temporary.stderr.strip()}")
        left = {path.name for path in folder.iterdir()} - {"old.qlx", "filler", "done", "tmp"}
        print(f"Without any room: {len(calls)} kinds of files refused; left behind: {left or 'nothing'}")
        return good and temporary.returncode == 0 and old.read_text() == "as it was" and not left


def main():
    if not has_own_mount_space():
        skip("nothing can be mounted here.")
    with tempfile.TemporaryDirectory(prefix="tavrin-full-") as folder:
        test = Test(os.path.abspath(sys.argv[1]), Path(folder))
        try:
            good = test.watch() & test.end_and_resume() & test.say_so()
        finally:
            for name in ("watched", "ended", "full"):
                subprocess.run(["umount", "-l", str(Path(folder) / name)], capture_output=True)
        return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
