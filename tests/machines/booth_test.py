#!/usr/bin/env python3
"""An evening at the booth with everything going wrong: booth_test.py TAVRIN_CLI [--evening] [--seed N]

Two booths work on one folder. Meanwhile guests press (save, print, mail), portraits are still being copied when they do,
the booths are killed, the printer is stopped and runs out of paper, the mail server goes away, the disk is full, and
the folder is unmounted and comes back. In the end each press has one picture, one print for each copy and one mail. A
sheet or a mail of which the program itself says that it may have gone is looked up and settled, as a person would.

The short form takes about half a minute. Where nothing can be mounted the disk stays as it is; without a printing
system or a mail server it ends with 77 (skipped).
"""
import argparse
import collections
import json
import os
import random
import signal
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

from printing import Printing, free_port
from support import has_own_mount_space, mount, skip, wait_for, write_portrait

try:
    import email
    import email.policy
    from aiosmtpd.controller import Controller
except ImportError:
    if os.path.realpath(sys.executable) != os.path.realpath("/usr/bin/python3") and os.path.exists("/usr/bin/python3"):
        os.execv("/usr/bin/python3", ["/usr/bin/python3", *sys.argv])  # whose packages Debian installs
    skip("python3-aiosmtpd is missing.")

PAGE = "4x6 Vert"


class Mails:
    def __init__(self):
        self.lock, self.pictures = threading.Lock(), collections.Counter()

    async def handle_DATA(self, server, session, envelope):
        message = email.message_from_bytes(envelope.content, policy=email.policy.default)
        name = next(message.iter_attachments()).get_filename()
        with self.lock:
            self.pictures[Path(name).stem] += 1
        return "250 taken"


class Booth:
    """A program that is killed now and then, and started again."""

    def __init__(self, command, environment, log):
        self.command, self.environment, self.log, self.process, self.kills = command, environment, log, None, 0

    def start(self):
        self.process = subprocess.Popen(self.command, env=self.environment, stdout=open(self.log, "a"),
                                        stderr=subprocess.STDOUT)

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
            self.kills += 1
        self.process.wait()
        self.start()

    def end(self):
        """The polite way: the job in hand is finished."""
        self.process.send_signal(signal.SIGTERM)
        return self.process.wait(60)


class Evening:
    def __init__(self, cli, work, presses, kills, seed, mounts):
        self.cli, self.work, self.presses, self.kills, self.mounts = cli, work, presses, kills, mounts
        self.chance, self.good = random.Random(seed), True
        self.inbox, self.disk, self.out = work / "in", work / "disk", work / "out"
        for folder in (self.inbox, self.disk, self.out, work / "home"):
            folder.mkdir()
        self.wanted, self.lock, self.pause = {}, threading.Lock(), threading.Event()
        self.said, self.busy = [], 0

    def expect(self, what, holds):
        print(f"{'ok   ' if holds else 'WRONG'} {what}", flush=True)
        self.good = self.good and holds

    # What is set up.

    def mount_out(self):
        return subprocess.run(["mount", "--bind", str(self.disk / "out"), str(self.out)]).returncode == 0

    def set_up(self):
        self.mounts = self.mounts and not mount(self.disk, "size=600m")
        (self.disk / "out").mkdir()
        self.mounts = self.mounts and self.mount_out()
        write_portrait(self.work / "sea.png", 60)
        self.printing = Printing(self.work / "printing")
        self.printer = self.printing.add_printer("studio")
        self.environment = {**self.printing.environment, "HOME": str(self.work / "home"),
                            "XDG_DATA_HOME": str(self.work / "home/data")}
        self.mails, self.mail_port = Mails(), free_port()
        self.open_mail()
        command = [self.cli, "booth", "--output", str(self.out), "--printer", "studio", "--page", PAGE,
                   "--server", f"smtp://127.0.0.1:{self.mail_port}", "--from", "studio@example.org", "--mail-title",
                   "Your picture", "--json"]
        self.booths = [Booth(command, self.environment, self.work / f"booth-{i}.log") for i in (1, 2)]

    def open_mail(self):
        self.mail_server = Controller(self.mails, hostname="127.0.0.1", port=self.mail_port)
        self.mail_server.start()

    # Guests.

    def copy_slowly(self, number):
        """As a camera does it over a cable, under the final name."""
        whole = self.work / f"camera-{number}.png"
        write_portrait(whole, number % 50)
        content, target = whole.read_bytes(), self.inbox / f"guest{number}.png"
        with open(target, "wb", buffering=0) as file:
            for part in range(4):
                file.write(content[part * len(content) // 4:(part + 1) * len(content) // 4])
                time.sleep(0.1)

    def press(self, number):
        portrait = self.inbox / f"guest{number}.png"
        if self.chance.random() < 0.5:  # the operator is quicker than the cable
            threading.Thread(target=self.copy_slowly, args=(number,)).start()
            wait_for("a portrait", 5, portrait.exists)
        else:
            self.copy_slowly(number)
        aim = self.chance.choice(("save", "print", "mail"))
        copies = self.chance.choice((1, 1, 2, 3)) if aim == "print" else 0
        more = {"save": [], "print": ["--print", str(copies)], "mail": ["--mail", f"guest{number}@example.org"]}[aim]
        call = [self.cli, "booth", "press", "--output", str(self.out), "--portrait", str(portrait), "--background",
                str(self.work / "sea.png"), "--inches", "4x5", "--dpi", "50", *more]
        while True:  # until it says that it was saved
            done = subprocess.run(call, capture_output=True, text=True, env=self.environment)
            if done.returncode == 0:
                break
            self.said.append(done.stderr.strip())
            time.sleep(0.3)
        with self.lock:
            self.wanted[Path(done.stdout.strip()).stem] = (aim, copies)

    def guests(self):
        for number in range(self.presses):
            while self.pause.is_set():
                time.sleep(0.05)
            self.busy = 1
            if not self.pause.is_set():
                self.press(number)
            else:
                self.busy = 0
                continue
            self.busy = 0
            time.sleep(self.chance.uniform(0, 0.2))

    # Faults.

    def killer(self, done):
        while not done.is_set() and sum(booth.kills for booth in self.booths) < self.kills:
            time.sleep(self.chance.uniform(0.1, 1.2))
            # A booth that starts while the disk is away would take the empty place for its folder.
            if not self.pause.is_set():
                self.chance.choice(self.booths).kill()

    def printer_stops(self):
        """After the sheet in hand: one that the printing system is made to let go of in the middle it prints again."""
        self.printing.call("cupsdisable", "--hold", "-r", "cleaning", "studio")
        time.sleep(4)
        self.printing.call("cupsenable", "--release", "studio")

    def paper_runs_out(self):
        self.printer.set_mood("out")
        time.sleep(4)
        self.printer.set_mood("well")

    def mail_goes_away(self):
        self.mail_server.stop()
        time.sleep(5)
        self.open_mail()

    def disk_fills(self):
        filler = self.disk / "filler"
        with open(filler, "wb", buffering=0) as file:
            for size in (1 << 20, 4096):
                try:
                    while file.write(bytes(size)) == size:
                        pass
                except OSError:
                    pass
        time.sleep(4)
        filler.unlink()

    def folder_goes_away(self):
        """While nobody presses: what is on the screen refuses to then, which a program that starts anew cannot know."""
        self.pause.set()
        wait_for("the guests", 20, lambda: not self.busy)
        time.sleep(1.5)  # for a booth that has just been started
        subprocess.run(["umount", "-l", str(self.out)])
        time.sleep(4)
        left = [str(path) for path in self.out.rglob("*")]
        self.expect(f"nothing gets to where the disk is not {left}", not left)
        self.mount_out()
        self.pause.clear()

    def faults(self, done):
        kinds = [self.printer_stops, self.mail_goes_away, self.paper_runs_out, self.disk_fills, self.printer_stops,
                 self.folder_goes_away]
        if not self.mounts:
            print("      nothing can be mounted here: without a full disk and a folder that goes away", flush=True)
            kinds = [fault for fault in kinds if fault not in (self.disk_fills, self.folder_goes_away)]
        for fault in kinds:
            done.wait(self.chance.uniform(1, 4) * self.presses / 60)
            fault()

    # The end.

    def pending(self):
        names = {path.name for path in self.out.iterdir()}
        return [name for name in names if name.endswith(".qlx") and name[:-4] + ".jpg" not in names]

    def prints(self):
        """Copies by the stem of the ticket: the job's title stands in the name of what the printer keeps."""
        counts = collections.Counter()
        for path in self.printer.prints():
            for stem in self.wanted:
                if stem in path.name:
                    counts[stem] += 1
        return counts

    def sheets(self):
        time.sleep(0.5)
        done = subprocess.run([self.cli, "print", "--waiting"], capture_output=True, text=True, env=self.environment)
        return [line for line in done.stdout.splitlines() if " for " in line]

    def outbox(self):
        time.sleep(0.2)
        done = subprocess.run([self.cli, "outbox", "list", "--json"], capture_output=True, text=True,
                              env=self.environment)
        return json.loads(done.stdout or "[]")

    def settle_doubts(self):
        """A person looks what has come, and sends the rest once more."""
        asked = 0
        for mail in self.outbox():
            if mail["state"] == "waiting":
                continue
            asked += 1
            came = self.mails.pictures[Path(mail["attachment"]).stem] > 0
            subprocess.run([self.cli, "outbox", "discard" if came else "send", mail["id"]], env=self.environment,
                           capture_output=True)
        unsure = [line for line in self.sheets() if "may have been printed" in line]
        return asked, len(unsure)

    def check(self):
        names = {path.name for path in self.out.iterdir()}
        stems = set(self.wanted)
        self.expect(f"{len(stems)} presses, each with its ticket", len(stems) == self.presses and
                    {name[:-4] for name in names if name.endswith(".qlx")} == stems)
        photos = {name[:-4] for name in names if name.endswith(".jpg")}
        self.expect(f"{len(photos)} pictures, one each", photos == stems)
        whole = all(content.startswith(b"\xff\xd8") and content.endswith(b"\xff\xd9")
                    for content in ((self.out / (stem + ".jpg")).read_bytes() for stem in photos))
        self.expect("each whole", whole)
        some = self.chance.sample(sorted(stems), min(10, len(stems)))
        self.expect("equal to a render of the same ticket", all(self.is_render(stem) for stem in some))
        asked = sum(copies for _, copies in self.wanted.values())
        right = {stem: copies for stem, (_, copies) in self.wanted.items() if copies}
        prints = dict(self.prints())
        wrong = {stem: (prints.get(stem, 0), right.get(stem, 0)) for stem in stems
                 if prints.get(stem, 0) != right.get(stem, 0)}
        self.expect(f"{asked} prints asked for, {sum(prints.values())} printed {wrong or ''}", not wrong)
        letters = {stem for stem, (aim, _) in self.wanted.items() if aim == "mail"}
        mails = dict(self.mails.pictures)
        doubled = {stem: count for stem, count in mails.items() if count != 1}
        self.expect(f"{len(letters)} mails asked for, {sum(mails.values())} came {doubled or ''}",
                    set(mails) == letters and not doubled)
        left = [path.name for path in (self.out / ".tavrin-booth").iterdir() if not path.name.startswith("counts-")]
        self.expect(f"nothing is left lying about {left}", not left)
        counts = subprocess.run([self.cli, "booth", "counts", "--output", str(self.out)], capture_output=True, text=True,
                                env=self.environment).stdout.split()
        sums = [sum(int(line.split(",")[column]) for line in counts[1:]) for column in (1, 2, 3, 4)]
        self.expect(f"the counts tell the same {sums}", sums == [len(stems), asked, len(letters), 0])

    def is_render(self, stem):
        made = self.work / "render.jpg"
        subprocess.run([self.cli, "render", "--fast", "--quiet", "--state", str(self.out / (stem + ".qlx")), "--out",
                        str(made)], env=self.environment, capture_output=True)
        return made.read_bytes() == (self.out / (stem + ".jpg")).read_bytes()

    def run(self):
        self.set_up()
        begin, done = time.monotonic(), threading.Event()
        try:
            for booth in self.booths:
                booth.start()
            threads = [threading.Thread(target=self.killer, args=(done,)),
                       threading.Thread(target=self.faults, args=(done,))]
            for thread in threads:
                thread.start()
            self.guests()
            wait_for("the kills", 600, lambda: sum(booth.kills for booth in self.booths) >= self.kills)
            threads[1].join()
            done.set()
            threads[0].join()
            self.expect("all tickets are done", wait_for("the last pictures", 120, lambda: not self.pending()))
            self.expect("all mails are gone", wait_for("the mails", 120, lambda: not any(
                mail["state"] in ("waiting", "under way") for mail in self.outbox())))
            self.expect("all sheets are gone", wait_for("the prints", 240, lambda: not any(
                "may have been" not in line for line in self.sheets())))
            codes = [booth.end() for booth in self.booths]
            doubts = self.settle_doubts()
            time.sleep(1)
            kills = sum(booth.kills for booth in self.booths)
            print(f"      {kills} kills, {doubts[0]} mails and {doubts[1]} sheets of which nobody could know, "
                  f"{len(self.said)} presses refused and repeated, exit codes {codes}, "
                  f"{time.monotonic() - begin:.0f} s")
            self.check()
        finally:
            for booth in self.booths:
                if booth.process and booth.process.poll() is None:
                    booth.process.kill()
                    booth.process.wait()
            self.mail_server.stop()
            self.printing.end()
            for folder in (self.out, self.disk):
                subprocess.run(["umount", "-l", str(folder)], capture_output=True)
        return 0 if self.good else 1


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("cli")
    parser.add_argument("--evening", action="store_true", help="300 presses and 200 kills")
    parser.add_argument("--seed", type=int, default=random.randrange(1000000))
    parser.add_argument("--keep", action="store_true")
    chosen = parser.parse_args()
    mounts = has_own_mount_space()
    print(f"seed {chosen.seed}")
    presses, kills = (300, 200) if chosen.evening else (25, 12)
    # The printing system works as a user of its own, who gets into no folder of this one's.
    place = "/tmp" if os.getuid() == 0 and os.path.isdir("/tmp") else None
    folder = tempfile.mkdtemp(prefix="tavrin-booth-", dir=place)
    os.chmod(folder, 0o755)
    code = Evening(os.path.abspath(chosen.cli), Path(folder), presses, kills, chosen.seed, mounts).run()
    if code == 0 and not chosen.keep:
        subprocess.run(["rm", "-rf", folder])
    else:
        print(f"kept: {folder}")
    return code


if __name__ == "__main__":
    sys.exit(main())
