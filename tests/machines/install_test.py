#!/usr/bin/env python3
"""What an installation has in it: install_test.py CMAKE BUILD_FOLDER

Installs into a folder, moves that elsewhere, and works from there as a stranger would: another current folder, an empty
home, no variables. Both programs start and find what they ship, the desktop's files fit together, the manual knows every
option, and docs/licences.md every library. What looks into the desktop's files and is not on the machine is left out.
"""
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml
from pathlib import Path

problems = []


def want(holds, line):
    if not holds:
        problems.append(line)
        print(line)


def call(arguments, **more):
    done = subprocess.run([str(word) for word in arguments], capture_output=True, text=True, timeout=120, **more)
    want(done.returncode == 0, f"{arguments[0]} ended with {done.returncode}: {done.stderr}{done.stdout}")
    return done


def needed_by(program):
    return re.findall(r"NEEDED\s+(\S+?)\.so", call(["objdump", "-p", program]).stdout)


class Installed:
    def __init__(self, usr, work):
        self.usr, self.work = usr, work
        (work / "home").mkdir()
        (work / "runtime").mkdir(mode=0o700)
        self.environment = {"HOME": str(work / "home"), "PATH": "/usr/bin:/bin", "QT_QPA_PLATFORM": "offscreen",
                            "XDG_RUNTIME_DIR": str(work / "runtime")}

    def run(self, program, *arguments):
        return call([self.usr / "bin" / program, *arguments], cwd=self.work, env=self.environment)

    def renders(self):
        sample = self.usr / "share/doc/tavrin/examples"
        done = self.run("tavrin-cli", "render", "--foreground", sample / "portrait.jpg", "--background",
                        sample / "background.jpg", "--out", "made.jpg", "--inches", "4x5", "--dpi", "60", "--texture",
                        "canvas", "--frame", "oval", "--frame-fill", "walnut", "--overlays", "winter", "--cartoon",
                        "pencil")
        want(done.stderr == "", f"render said {done.stderr}")
        want("240 x 300" in self.run("tavrin-cli", "info", "made.jpg").stdout, "The picture has another size.")

    def window_opens(self):
        window = subprocess.Popen([self.usr / "bin/tavrin"], cwd=self.work, env=self.environment, text=True,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        try:
            said, _ = window.communicate(timeout=4)
            want(False, f"The window ended by itself: {said}")
        except subprocess.TimeoutExpired:
            window.terminate()
            said, _ = window.communicate(timeout=30)
            own = [line for line in said.splitlines() if not line.startswith("This plugin does not support")]
            want(not own, f"The window said {own}")
        want((self.work / "home/.local/share/Tavrin").is_dir(), "The account was not set up.")

    def programs(self):
        want(self.run("tavrin-cli", "--version").stdout.split()[-1] == self.run("tavrin", "--version").stdout.split()[-1],
             "The programs have different versions.")
        self.renders()
        self.window_opens()

    def desktop_files(self):
        share = self.usr / "share"
        meta = share / "metainfo/org.tavrin.Tavrin.metainfo.xml"
        component = xml.parse(meta).getroot()
        entry = (share / "applications" / component.findtext("launchable")).read_text()
        want(f"\nExec={component.findtext('provides/binary')} " in entry, "The desktop entry starts another program.")
        icon = re.search("^Icon=(.*)$", entry, re.M).group(1)
        xml.parse(share / f"icons/hicolor/scalable/apps/{icon}.svg")
        types = xml.parse(share / "mime/packages/org.tavrin.Tavrin.xml").getroot()
        want(types[0].get("type") in entry, "The desktop entry does not take state files.")
        if shutil.which("appstreamcli"):
            call(["appstreamcli", "validate", "--no-net", meta])
        if shutil.which("desktop-file-validate"):
            call(["desktop-file-validate", share / "applications" / component.findtext("launchable")])

    def shells_and_manual(self):
        share = self.usr / "share"
        for name in ("bash-completion/completions/tavrin-cli", "zsh/vendor-completions/_tavrin-cli",
                     "fish/vendor_completions.d/tavrin-cli.fish"):
            want("protect-clothes" in (share / name).read_text(), f"{name} does not know the options.")
        for program, commands in (("tavrin", [[]]), ("tavrin-cli", [["render"], ["batch"]])):
            manual = (share / f"man/man1/{program}.1").read_text().replace("\\", "")
            for command in commands:
                for option in re.findall(r"--[a-z-]+", self.run(program, *command, "--help").stdout):
                    want(option in manual, f"The manual of {program} lacks {option}.")

    def licences(self):
        page = (self.usr / "share/doc/tavrin/docs/licences.md").read_text()
        for program in ("tavrin", "tavrin-cli"):
            for library in needed_by(self.usr / "bin" / program):
                want(f"`{library}`" in page, f"docs/licences.md lacks {library}.")


def main(cmake, build):
    with tempfile.TemporaryDirectory(prefix="tavrin-install-") as folder:
        work = Path(folder)
        call([cmake, "--install", build, "--prefix", work / "first/usr"])
        (work / "moved").mkdir()
        (work / "first/usr").rename(work / "moved/usr")
        installed = Installed(work / "moved/usr", work)
        for look in (installed.programs, installed.desktop_files, installed.shells_and_manual, installed.licences):
            look()
    print("All there." if not problems else f"{len(problems)} problems.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
