"""The pictures that every program works on, and Tavrin's own tool, which makes them and measures alphas."""
import dataclasses
import json
import math
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
SAMPLE = ROOT / "data" / "sample"
STATE = ROOT / "data" / "Default.qlx"  # the settings with which Tavrin starts
MEGAPIXELS = 12.0


@dataclasses.dataclass
class Picture:
    """Two plain RGB files of one size, and what is known of the screen; `screen` is red, green and blue."""
    name: str
    foreground: str
    background: str
    width: int
    height: int
    blue: bool
    screen: tuple = ()
    truth: str = ""


class Tool:
    """bin/peer_tool of a build."""

    def __init__(self, build):
        self.path = pathlib.Path(build) / "bin" / "peer_tool"
        if not self.path.exists():
            raise SystemExit(f"{self.path} is missing: cmake --preset release && cmake --build --preset release")

    def numbers(self, *arguments):
        done = subprocess.run([self.path, *map(str, arguments)], capture_output=True, text=True, check=False)
        if done.returncode:
            raise SystemExit(done.stderr.strip())
        return [float(word) for word in done.stdout.split()]

    def key(self, picture, threads, repeats, alpha="", result=""):
        """The measured screen colour; time and CPU time of key and composite; the same of measuring the screen."""
        options = ["--blue"] * picture.blue + ["--alpha", alpha] * bool(alpha) + ["--result", result] * bool(result)
        found = self.numbers("key", picture.foreground, picture.background, "--state", STATE,
                                                 "--threads", threads, "--repeats", repeats, *options)
        return tuple(found[:3]), tuple(found[3:5]), tuple(found[5:])

    def errors(self, alpha, truth):
        return tuple(self.numbers("errors", alpha, truth))


def is_blue(path):
    """As bin/quality tells it: by scenes.json, or else by the name."""
    facts = path.parent / "scenes.json"
    told = json.loads(facts.read_text(encoding="utf-8")) if facts.exists() else {}
    return told.get(path.stem, {}).get("blue", "blue" in path.stem)


def prepare(tool, path, folder, megapixels=None):
    """Makes a picture ready in `folder`, enlarged or reduced to so many megapixels where that is asked for."""
    path = pathlib.Path(path)
    name = path.stem
    front, back = f"{folder}/{name}.png", f"{folder}/{name}_background.png"
    width, height = map(int, tool.numbers("picture", path, front))
    if megapixels:
        scale = math.sqrt(megapixels * 1e6 / (width * height))
        width, height = 2 * round(width * scale / 2), 2 * round(height * scale / 2)  # even, for chroma at half size
        tool.numbers("picture", path, front, width, height)
    tool.numbers("picture", SAMPLE / "background.jpg", back, width, height)
    picture = Picture(name, front, back, width, height, is_blue(path))
    truth = path.with_name(name + "_alpha.png")
    if truth.exists():
        picture.truth = str(truth)
        picture.screen = tuple(tool.numbers("screen", path, truth))
    else:
        picture.screen = tool.key(picture, 2, 0)[0]
    return picture


def find_scenes(folder):
    """The pictures NAME.jpg or NAME.png of a folder that have a NAME_alpha.png."""
    paths = sorted(path for path in pathlib.Path(folder).iterdir() if path.suffix in (".jpg", ".png"))
    return [path for path in paths if path.with_name(path.stem + "_alpha.png").exists()]
