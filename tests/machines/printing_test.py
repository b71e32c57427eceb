#!/usr/bin/env python3
"""Sheets on a real printing system: printing_test.py TAVRIN_CLI

Starts a CUPS daemon of its own on a loopback port and a printer of the network behind it, and prints: what arrives is
counted and compared. Then the printer is stopped, out of paper, gone, of another name, and the printing system ended:
each is told, and the sheet stays to be sent again. Then the program is killed while it sends: afterwards every sheet
was printed or waits, and none is printed twice. Ends with 77 (skipped) where CUPS is not installed.
"""
import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from printing import Printing, find
from support import png_of, wait_for

PAGE = "Letter Four 4x5"


def write_picture(path, number):
    """A picture of four colours, another one for each number."""
    width, height = 120, 150
    upper = bytes((200, 30, 9 * number)) * 60 + bytes((20, 180, 30)) * 60
    lower = bytes((30, 40, 200)) * 60 + bytes((220, 210, 20)) * 60
    path.write_bytes(png_of(width, height, [upper if y < 75 else lower for y in range(height)]))


def page_size(path):
    told = subprocess.run([find("pdfinfo"), str(path)], capture_output=True, text=True).stdout
    line = next(line for line in told.splitlines() if line.startswith("Page size:"))
    return tuple(round(float(word)) for word in (line.split()[2], line.split()[4]))


def pixels(path, work):
    subprocess.run([find("pdftoppm"), "-r", "100", str(path), str(work / "look")], check=True)
    made = next(work.glob("look*.ppm"))
    content = made.read_bytes()
    made.unlink()
    return content


class Test:
    def __init__(self, cli, work):
        self.cli, self.work = cli, work
        self.printing = Printing(work / "printing")
        home = work / "home"
        home.mkdir()
        self.environment = {**self.printing.environment, "HOME": str(home), "XDG_DATA_HOME": str(home / "data")}
        self.picture = work / "anna.png"
        write_picture(self.picture, 1)
        self.good = True

    def expect(self, what, holds):
        if not holds:
            print(f"Not so: {what}")
            self.good = False

    def call(self, *arguments):
        return subprocess.run([self.cli, "print", *map(str, arguments)], env=self.environment, capture_output=True,
                              text=True)

    def send(self, *more, printer="studio"):
        return self.call(self.picture, "--page", PAGE, "--printer", printer, *more)

    def waiting(self):
        return self.call("--waiting").stdout.splitlines()

    def all_printed(self, count):
        return wait_for(f"{count} prints", 20, lambda: len(self.printer.prints()) == count and not self.waiting())

    def arrives(self):
        done = self.send("--copies", "2", "--wait", "20")
        self.expect("two copies are printed " + done.stderr, done.returncode == 0 and done.stdout.count("printed") == 2)
        self.expect("they are two jobs", len(self.printer.prints()) == 2)
        if not self.printer.prints():
            sys.exit(self.printing.errors())
        sheet = self.work / "sheet.pdf"
        self.call(self.picture, "--page", PAGE, "--to", sheet)
        arrived = self.printer.prints()[0]
        self.expect("it has its true size", page_size(arrived) == (612, 792) == page_size(sheet))
        self.expect("it looks as the sheet does", pixels(arrived, self.work) == pixels(sheet, self.work))
        kept = subprocess.run([find("pdfimages"), "-list", str(arrived)], capture_output=True, text=True).stdout
        self.expect("it keeps the picture's pixels, packed without loss",
                    all(line.split()[3:5] == ["120", "150"] and line.split()[8] == "image"
                        for line in kept.splitlines()[2:]))

    def on_other_paper(self):
        before = len(self.printer.prints())
        self.send("--paper", "A4", "--landscape", "--wait", "20")
        arrived = self.printer.prints()[before:]
        self.expect("paper of another size is printed on", len(arrived) == 1 and page_size(arrived[0]) == (595, 842))

    def stays(self, what, why, done, code=1):
        self.expect(f"{what}: {why} ({done.returncode}) {done.stdout}{done.stderr}",
                    why in done.stderr and done.returncode == code)
        self.expect(f"{what}: the sheet stays", len(self.waiting()) == 1 and why in self.waiting()[0])

    def stopped(self):
        before = len(self.printer.prints())
        self.printing.call("cupsdisable", "studio")
        self.stays("stopped", "is stopped", self.send())
        self.expect("it is not sent again while the printer is stopped", self.call("--again", "all").returncode == 1)
        self.printing.call("cupsenable", "studio")
        self.expect("it is sent again", self.call("--again", "all").returncode == 0 and self.all_printed(before + 1))

    def out_of_paper(self):
        before = len(self.printer.prints())
        self.printer.set_mood("out")
        self.stays("out of paper", "out of paper", self.send("--wait", "3"))
        self.expect("the list of printers says so", "out of paper" in self.call("--printers").stdout)
        self.printer.set_mood("well")
        self.expect("with paper it is printed once", self.all_printed(before + 1))

    def gone(self):
        before = len(self.printer.prints())
        self.printer.stop()
        self.stays("gone", "may not exist", self.send("--wait", "3"))
        name = self.waiting()[0].split()[0]
        self.expect("what the printer has is not meant by all", self.call("--discard", "all").returncode == 0)
        self.expect("it is taken back", self.call("--discard", name).returncode == 0 and not self.waiting())
        self.printer.start()
        time.sleep(1)
        self.expect("a sheet that was taken back is not printed", len(self.printer.prints()) == before)

    def nobody(self):
        refused = self.send(printer="studoi")
        self.expect("a wrong name is told", refused.returncode == 2 and 'mean "studio"' in refused.stderr)
        self.expect("and nothing waits", not self.waiting())
        before = len(self.printer.prints())
        self.printing.stop()
        self.stays("no printing system", "does not answer", self.send("--paper", "Letter"))
        self.printing.start()
        self.expect("it is sent again", self.call("--again", "all").returncode == 0 and self.all_printed(before + 1))

    def killed(self):
        """Killed at many places between the first sheet that is sent and the last."""
        for round_number, pause in enumerate((0.0, 0.08)):
            before, copies = len(self.printer.prints()), 4
            running = subprocess.Popen(
                [self.cli, "print", str(self.picture), "--page", PAGE, "--printer", "studio", "--copies", str(copies)],
                env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
            running.stdout.readline()  # one is sent, and all are in the queue
            time.sleep(pause)
            running.kill()
            running.wait()
            left = self.waiting()
            unsure = [line for line in left if "may have been printed" in line]
            self.expect(f"round {round_number}: the printer can tell", not unsure)
            self.call("--again", "all")
            self.expect(f"round {round_number}: each sheet once", self.all_printed(before + copies))

    def folder(self):
        """A folder is printed, then watched while photos arrive and the program is killed: each photo comes out once."""
        photos, before = self.work / "photos", len(self.printer.prints())
        photos.mkdir()
        command = ("--folder", photos, "--page", PAGE, "--printer", "studio")
        for number in range(1, 4):
            write_picture(photos / f"p{number}.png", number)
        done = self.call(*command)
        self.expect("a folder is printed " + done.stderr, done.returncode == 0 and done.stdout.count(".png") == 3)
        self.expect("three photos, three prints", self.all_printed(before + 3))
        self.expect("its history is heeded", self.call(*command).stdout == "")
        for number in (4, 5):
            running = subprocess.Popen([self.cli, "print", *map(str, command), "--watch"], env=self.environment,
                                       stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
            write_picture(photos / f"p{number}.png", number)
            running.stdout.readline()
            time.sleep(0.05 * (number - 4))
            running.kill()
            running.wait()
        self.call(*command)
        self.call("--again", "all")
        self.expect("after the kills each photo was printed once", self.all_printed(before + 5))
        time.sleep(1)
        self.expect("and no more", len(self.printer.prints()) == before + 5)
        self.printing.call("cupsdisable", "studio")
        write_picture(photos / "p6.png", 6)
        running = subprocess.Popen([self.cli, "print", *map(str, command)], env=self.environment,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        self.expect("a printer that is stopped holds the run", "The run waits." in running.stderr.readline())
        self.printing.call("cupsenable", "studio")
        self.expect("which goes on by itself", running.wait(20) == 0 and self.all_printed(before + 6))

    def run(self):
        try:
            self.printer = self.printing.add_printer("studio")
            for step in (self.arrives, self.on_other_paper, self.stopped, self.out_of_paper, self.gone, self.nobody,
                         self.killed, self.folder):
                began = time.monotonic()
                step()
                print(f"{step.__name__}: {time.monotonic() - began:.1f} s")
            print(f"{len(self.printer.prints())} prints")
        finally:
            self.printing.end()
        return 0 if self.good else 1


if __name__ == "__main__":
    # The printing system works as a user of its own, who gets into no folder of this one's.
    place = "/tmp" if os.getuid() == 0 and os.path.isdir("/tmp") else None
    with tempfile.TemporaryDirectory(prefix="tavrin-print-", dir=place) as folder:
        os.chmod(folder, 0o755)
        sys.exit(Test(os.path.abspath(sys.argv[1]), Path(folder)).run())
