"""What all cases share: the program, pictures made with it, and what undisturbed runs make of them."""
import os
import re
import shutil
import subprocess
import time
from pathlib import Path

from . import formats
from .bench import BATCH_SIZE, NOBODY, tree

SAMPLE = Path(__file__).resolve().parents[3] / "data" / "sample"
# Far apart, and none of them green: so a picture of the wrong person is seen.
COLOURS = ((200, 40, 40), (50, 50, 200), (240, 240, 240), (20, 20, 20), (200, 60, 200), (230, 140, 40), (120, 120, 120),
           (110, 60, 30))


class Bench:
    def __init__(self, cli, seed, work):
        self.cli, self.seed, self.work = cli, seed, work
        self.home, self.shared = work / "home", work / "shared"
        for place in (self.home / "runtime", self.shared / "portraits", work / "cases"):
            place.mkdir(parents=True)
        (self.home / "runtime").chmod(0o700)
        self.portrait, self.background = self.shared / "small-portrait.jpg", self.shared / "small-background.jpg"
        self.make_pictures()
        self.make_state()
        self.make_expected()
        self.let_others_in()
        self.before = tree(self.shared)

    def call(self, *arguments):
        environment = {"PATH": os.environ.get("PATH", ""), "HOME": str(self.home), "TMPDIR": str(self.work),
                       "XDG_DATA_HOME": str(self.home / "data"), "XDG_CACHE_HOME": str(self.home / "cache"),
                       "XDG_CONFIG_HOME": str(self.home / "config"), "XDG_RUNTIME_DIR": str(self.home / "runtime"),
                       "LANG": "C.UTF-8"}
        done = subprocess.run([self.cli, *map(str, arguments)], capture_output=True, text=True, env=environment)
        if done.returncode != 0:
            raise SystemExit(f"{' '.join(map(str, arguments))} ended with {done.returncode}: {done.stderr}")
        return done.stdout

    def make_pictures(self):
        """The shipped sample, small: the "portrait" is laid over nothing but itself."""
        for small, large in ((self.portrait, "portrait.jpg"), (self.background, "background.jpg")):
            self.call("render", "--foreground", SAMPLE / large, "--background", SAMPLE / large, "--out", small,
                      "--inches", "2x2", "--dpi", "72", "--set", "bShowOrgImage=1")
        self.jpeg = self.portrait.read_bytes()
        with_exif = formats.jpeg_with_exif(self.jpeg, formats.exif(orientation=8))
        self.own_pictures = [("jpg", with_exif), *formats.made().items()]
        self.pictures = self.own_pictures + real_pictures()

    def make_state(self):
        """A state that any size may be given to."""
        self.state = self.shared / "plain.qlx"
        begin = time.monotonic()
        self.call("render", "--bare", "--foreground", self.portrait, "--background", self.background, "--out",
                  self.shared / "plain.png", "--size", "Wallet 200 Vert", "--save-state", self.state)
        self.render_seconds = time.monotonic() - begin

    def state_with_logo(self, path):
        """The plain state with one picture item."""
        text = self.state.read_text("latin-1")
        label = re.search(r"<FontLabel2>(.*?)</FontLabel2>", text, re.S).group(1)
        for name, value in (("isImage", "1"), ("sText", str(path)), ("imageSizeWidth", "30"), ("imageSizeHeight", "30"),
                            ("xPos", "0.1"), ("yPos", "0.1")):
            label = re.sub(rf"<{name}>[^<]*</{name}>", lambda _, n=name, v=value: f"<{n}>{v}</{n}>", label)
        text = text.replace("<iFontObjectCount>0<", "<iFontObjectCount>1<")
        return text.replace("</ImageState>", f"    <FontObject>{label}</FontObject>\n</ImageState>").encode("latin-1")

    def make_expected(self):
        """One portrait for each colour, and what an undisturbed run makes of each."""
        begin = time.monotonic()
        portraits, out = self.shared / "portraits", self.shared / "expected"
        self.portraits = [formats.png(colour) for colour in COLOURS]
        for number, content in enumerate(self.portraits):
            (portraits / f"p{number}.png").write_bytes(content)
        self.call("batch", "--bare",
                  "--foregrounds", portraits, "--backgrounds", self.background, "--out", out, "--style",
                  "split", *BATCH_SIZE)
        self.batch_seconds = time.monotonic() - begin
        made = out / self.background.stem
        self.expected = [(made / f"p{number}.png").read_bytes() for number in range(len(COLOURS))]
        if len(set(self.expected)) != len(COLOURS):
            raise SystemExit("The pictures of different portraits are alike.")

    def let_others_in(self):
        """The super-user is stopped by no permission, so some cases run as somebody else."""
        self.nobody = None
        if os.geteuid() != 0:
            return
        for place in (self.work, self.work / "cases"):
            place.chmod(0o755)
        (self.home / "runtime-other").mkdir(mode=0o700)
        os.chown(self.home / "runtime-other", NOBODY, NOBODY)
        for place in (self.home, self.home / "cache"):
            place.mkdir(exist_ok=True)
            place.chmod(0o777)
        try:
            done = subprocess.run([self.cli, "--version"], user=NOBODY, group=NOBODY, extra_groups=[], cwd="/",
                                  capture_output=True, check=False)
            self.nobody = NOBODY if done.returncode == 0 else None
        except (OSError, subprocess.SubprocessError):
            pass

    def check(self, case):
        """What all cases read stays as it is, and nothing comes to it."""
        now = tree(self.shared)
        changed = sorted(path for path in now.keys() | self.before.keys() if now.get(path) != self.before.get(path))
        case.want(not changed, f"the shared pictures changed: {changed}")

    @staticmethod
    def remove(folder):
        for place, folders, _ in os.walk(os.fsencode(folder)):
            for name in folders:
                path = os.path.join(place, name)
                if not os.path.islink(path):
                    os.chmod(path, 0o700)
        shutil.rmtree(os.fsencode(folder), ignore_errors=True)


def real_pictures():
    """Small pictures of real cameras and programs, when there are any."""
    folder = os.environ.get("TAVRIN_TEST_DATA", "")
    places = sorted(Path(folder, "formats").glob("*.*")) if folder else []
    return [(place.suffix[1:], place.read_bytes()) for place in places
            if place.suffix in (".jpg", ".png", ".tiff", ".psd", ".heic", ".dng") and place.stat().st_size < 1 << 20]
