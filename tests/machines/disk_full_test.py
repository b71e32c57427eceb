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
        self.command = [cli, "batch", "--bare", "--foregrounds", str(work / "portraits"), "--backgrounds",
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

    def full_disk(self):
        """A disk with an old state and not a byte of room."""
        folder = self.small_disk("full")
        (folder / "old.qlx").write_text("as it was")
        (folder / "tmp").mkdir()
        with open(folder / "filler", "wb", buffering=0) as filler:
            try:
                while filler.write(bytes(4096)):
                    pass
            except OSError:
                pass
        return folder

    def saving_calls(self, folder, render, batch):
        """A call for every kind of file that the program saves."""
        cli, state, report = self.command[0], str(self.work / "state.qlx"), str(self.work / "report.jsonl")
        picture = str(self.work / "a.png")
        subprocess.run([*render, "--out", picture, "--save-state", state], check=True)
        subprocess.run([*batch, str(self.work / "other"), "--report", report], check=True, capture_output=True)
        calls = {f"a picture ({kind})": [*render, "--out", str(folder / f"a.{kind}")] for kind in ("png", "jpg", "tif")}
        calls["a matte"] = [*render, "--out", picture, "--alpha", str(folder / "matte.png")]
        calls["a state"] = [*render, "--out", picture, "--save-state", str(folder / "old.qlx")]
        calls["a changed state"] = [cli, "state", "set", state, str(folder / "new.qlx"), "iBlendEdges=3"]
        calls["a report"] = [*batch, str(self.work / "other"), "--again", "--report", str(folder / "report.jsonl")]
        calls["a joined report"] = [cli, "report", "merge", "--out", str(folder / "all.jsonl"), report]
        calls["a journal"] = [*batch, str(folder / "done")]
        return calls

    def are_told(self, calls):
        good = True
        for what, call in calls.items():
            done = subprocess.run(call, capture_output=True, text=True)
            # A batch whose pictures are all there may end well without its report.
            if "the disk is full" not in done.stderr or done.returncode != 1 and what != "a report":
                print(f"{what}: exit code {done.returncode}, {done.stderr.strip()}")
                good = False
        return good

    def edits_without_undo(self, folder, render):
        """Edits whose step of undo finds no room: the stroke stays in the picture, and the reason is told."""
        stroke = "tavrin-edits 1\nview 200 250\n10 112\n1 100 100\n3 120 140\n2\n"
        made = {}
        for name, text, temporary in (("kept", stroke, self.work), ("undone", stroke + "201\n", folder / "tmp")):
            edits, out = self.work / f"{name}.edits", self.work / f"{name}.png"
            edits.write_text(text)
            done = subprocess.run([*render, "--out", str(out), "--edits", str(edits)], capture_output=True, text=True,
                                  env={**os.environ, "HOME": str(temporary), "XDG_DATA_HOME": str(temporary / "d"),
                                       "TMPDIR": str(temporary)})
            made[name] = (done, out.read_bytes() if done.returncode == 0 else b"")
        told = "This step cannot be undone: the disk is full" in made["undone"][0].stderr
        print(f"Edits without room for undo: {'told' if told else made['undone'][0].stderr.strip()}")
        return told and made["kept"][1] != b"" and made["kept"][1] == made["undone"][1]

    def say_so(self):
        folder = self.full_disk()
        sources = [str(self.work / "portraits" / "portrait-0-.png"), str(self.work / "sea-.png")]
        render = [self.command[0], "render", "--bare",
                  "--foreground", sources[0], "--background", sources[1], "--inches", "4x5",
                  "--dpi", "50"]
        batch = [self.command[0], "batch", "--bare",
                 "--foregrounds", sources[0], "--backgrounds", sources[1], *SIZE, "--out"]
        calls = self.saving_calls(folder, render, batch)
        good = self.are_told(calls)
        elsewhere = subprocess.run([*render, "--out", str(self.work / "b.png")],
                                   env={**os.environ, "TMPDIR": str(folder / "tmp")})
        told = self.edits_without_undo(folder, render)
        # With room for a part of a file its saving fails in the middle.
        os.truncate(folder / "filler", (folder / "filler").stat().st_size - 8192)
        good = self.are_told({what: calls[what] for what in ("a state", "a changed state")}) and good
        left = {path.name for path in folder.iterdir()} - {"old.qlx", "filler", "done", "tmp"}
        print(f"Without room: {len(calls)} kinds of files refused; left behind: {left or 'nothing'}")
        return good and told and elsewhere.returncode == 0 and (folder / "old.qlx").read_text() == "as it was" and not left


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
