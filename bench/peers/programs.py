"""The programs compared. Each keys a `Picture` and lays it over its background; `SETTINGS` were chosen by --tune.

`seconds` is the time of that work alone, without start and files: timed inside the program where it can be scripted,
else the time of a process that does it several times less that of one which does it once, by the number of times more.
It comes with the CPU time, which all threads used together.
"""
import functools
import itertools
import json
import pathlib
import resource
import shutil
import statistics
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent


def grid(**choices):
    return [dict(zip(choices, values)) for values in itertools.product(*choices.values())]


def run(command, environment=None):
    done = subprocess.run(command, capture_output=True, text=True, env=environment, check=False)
    if done.returncode:
        raise RuntimeError(f"{command[0]} failed: {(done.stderr or done.stdout).strip()[-600:]}")
    return done.stdout


def children_cpu():
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def hexadecimal(screen):
    return "%02x%02x%02x" % tuple(round(level) for level in screen)


class Program:
    name, packages, note = "", "", ""  # `note`: what to keep in mind beside the figures
    settings, tried = {}, []

    def __init__(self, environment, threads):
        self.environment = environment | {"OMP_NUM_THREADS": str(threads), "MAGICK_THREAD_LIMIT": str(threads)}
        self.threads = threads

    def installed(self):
        raise NotImplementedError

    def seconds(self, picture):
        """The time of one key and composite, and its CPU time."""
        raise NotImplementedError

    def key(self, picture, alpha="", result=""):
        """Writes the alpha as a grey picture, and the composite, where they are named."""
        raise NotImplementedError


class Repeated(Program):
    """A program that is run from the command line."""
    repeats = 8

    def command(self, picture, times, alpha="", result=""):
        raise NotImplementedError

    def seconds(self, picture):
        once, often = (self.elapsed(picture, times) for times in (1, 1 + self.repeats))
        return tuple((more - less) / self.repeats for less, more in zip(once, often))

    def elapsed(self, picture, times):
        command = self.command(picture, times)
        start, used = time.perf_counter(), children_cpu()
        run(command, self.environment)
        return time.perf_counter() - start, children_cpu() - used

    def key(self, picture, alpha="", result=""):
        if alpha:
            run(self.command(picture, 1, alpha=alpha), self.environment)
        if result:
            run(self.command(picture, 1, result=result), self.environment)


class Scripted(Program):
    """A program that runs a script of ours, which takes a job as JSON and prints its seconds as the last line."""
    repeats = 3

    def launcher(self):
        """The command up to the job."""
        raise NotImplementedError

    def work(self, picture, repeats, alpha="", result=""):
        job = {"foreground": picture.foreground, "background": picture.background, "screen": picture.screen,
               "threads": self.threads, "settings": self.settings, "repeats": repeats, "alpha": alpha,
               "result": result}
        lines = run([*self.launcher(), json.dumps(job)], self.environment).splitlines()
        return json.loads(next(line for line in reversed(lines) if line.startswith("[")))

    def seconds(self, picture):
        return tuple(statistics.median(times) for times in zip(*self.work(picture, self.repeats)))

    def key(self, picture, alpha="", result=""):
        self.work(picture, 0, alpha, result)


@functools.cache
def python_with(check):
    """A Python that can run `check`: this one, or the system's, for which Debian's packages are made."""
    for python in (sys.executable, "/usr/bin/python3"):
        if shutil.which(python) and not subprocess.run([python, "-c", check], capture_output=True).returncode:
            return python
    return None


class Ffmpeg(Repeated):
    packages = "ffmpeg"
    front, back, filter, despill, form = "", "", "", True, ""  # pixel formats and filters

    def installed(self):
        return shutil.which("ffmpeg")

    def command(self, picture, times, alpha="", result=""):
        key = (f"{self.filter}=0x{hexadecimal(picture.screen)}:{self.settings['similarity']}:"
               f"{self.settings['blend']}")
        spill = f",despill={'blue' if picture.blue else 'green'}" if self.despill else ""
        # A frame that is looped stays in memory as it was converted; each pass is given a copy of it.
        graph = (f"[0]format={self.front},loop=-1:1[f];[1]format={self.back},loop=-1:1[b];"
                 f"[f]{key}{spill}[k];[b][k]overlay=format={self.form}")
        if alpha:
            graph = f"[0]format={self.front},{key},alphaextract;[1]nullsink"
        out = [alpha or result] if alpha or result else ["-f", "null", "-"]
        return ["ffmpeg", "-y", "-hide_banner", "-loglevel", "error", "-filter_threads", str(self.threads),
                "-filter_complex_threads", str(self.threads), "-i", picture.foreground, "-i", picture.background,
                "-filter_complex", graph, "-frames:v", str(times), *out]


class FfmpegDespill(Ffmpeg):
    name = "ffmpeg chromakey, despill, overlay"
    note = "one screen colour; starts from 4:4:4 YUV"
    front, back, filter, form = "yuva444p", "rgb24", "chromakey", "rgb"
    settings = {"similarity": 0.05, "blend": 0.05}
    tried = grid(similarity=(0.02, 0.03, 0.04, 0.05, 0.06, 0.1), blend=(0.0, 0.03, 0.05, 0.1))


class FfmpegHalfChroma(Ffmpeg):
    name = "ffmpeg chromakey, overlay, 4:2:0"
    note = "one screen colour; no despill; chroma at half resolution"
    front, back, filter, despill, form = "yuva420p", "yuv420p", "chromakey", False, "yuv420"
    settings, tried = FfmpegDespill.settings, FfmpegDespill.tried


class FfmpegColorkey(Ffmpeg):
    name = "ffmpeg colorkey, despill, overlay"
    note = "one screen colour; no chroma: brightness counts as much"
    front, back, filter, form = "rgba", "rgb24", "colorkey", "rgb"
    settings = {"similarity": 0.05, "blend": 0.1}
    tried = grid(similarity=(0.03, 0.05, 0.07, 0.1), blend=(0.0, 0.05, 0.08, 0.1, 0.13))


class Blender(Scripted):
    name = "Blender Keying, Alpha Over"
    packages = "blender"
    note = "one screen colour"
    settings = {"clip_black": 0.2, "clip_white": 0.9}
    tried = grid(clip_black=(0.0, 0.1, 0.2, 0.25, 0.3), clip_white=(1.0, 0.9, 0.8))

    def installed(self):
        return shutil.which("blender")

    def launcher(self):
        return ["blender", "-b", "--factory-startup", "--python-exit-code", "1", "-t", str(self.threads), "-P",
                str(HERE / "inside_blender.py"), "--"]


class OpenCv(Scripted):
    name = "OpenCV inRange of HSV, copyTo"
    packages = "python3-opencv"
    note = "one screen colour; hard mask; no despill"
    repeats = 15
    settings = {"hue": 8, "saturation": 0.5, "value": 0.5}
    tried = grid(hue=(6, 8, 10, 14), saturation=(0.4, 0.5, 0.6), value=(0.4, 0.5, 0.6))
    script, check = "inside_opencv.py", "import cv2"

    def installed(self):
        return python_with(self.check)

    def launcher(self):
        return [python_with(self.check), str(HERE / self.script)]


class Gegl(OpenCv):
    name = "GEGL color-to-alpha, over"
    packages = "python3-gi gir1.2-gegl-0.4"
    note = "one screen colour"
    repeats = 3
    settings = {"transparency": 0.1, "opacity": 0.3}
    tried = grid(transparency=(0.0, 0.05, 0.1, 0.15, 0.2), opacity=(0.1, 0.2, 0.3, 0.4, 0.6))
    script, check = "inside_gegl.py", "import gi; gi.require_version('Gegl', '0.4')"


class Gmic(Repeated):
    name = "G'MIC, a formula of RGB distance"
    packages = "gmic"
    note = "one screen colour; no despill; no keyer: the formula is ours"
    repeats = 4
    settings = {"from": 30, "to": 60}
    tried = [s for s in grid(**{"from": (15, 20, 25, 30, 35, 40), "to": (40, 50, 60, 70, 80)}) if s["from"] < s["to"]]

    def installed(self):
        return shutil.which("gmic")

    def command(self, picture, times, alpha="", result=""):
        low, high = self.settings["from"], self.settings["to"]
        matte = f"a=cut((norm(I-[{','.join(map(str, picture.screen))}])-{low})/{high - low},0,1);"
        start = ["gmic", "-v", "0", picture.foreground, picture.background]
        if alpha:
            return [*start, "fill[0]", matte + "255*a", "keep[0]", "channels", "0", "round", "output", alpha]
        over = matte + "a*I+(1-a)*I(#1)"
        if result:
            return [*start, "fill[0]", over, "keep[0]", "round", "output", result]
        return [*start, "repeat", str(times), "+fill[0]", over, "remove[-1]", "done"]


class ImageMagick(Repeated):
    name = "ImageMagick -transparent, DstOver"
    packages = "imagemagick"
    note = "one screen colour; hard mask; no despill"
    repeats = 4
    settings = {"fuzz": 11}
    tried = grid(fuzz=(5, 7, 8, 9, 10, 11, 12, 14, 17, 20))

    def installed(self):
        return shutil.which("convert-im6.q16")

    def command(self, picture, times, alpha="", result=""):
        key = ["-fuzz", f"{self.settings['fuzz']}%", "-transparent", f"#{hexadecimal(picture.screen)}"]
        if alpha:
            return ["convert-im6.q16", picture.foreground, *key, "-alpha", "extract", "-define", "png:bit-depth=8",
                    "-define", "png:color-type=0", alpha]
        over = ["(", "mpr:front", *key, "mpr:back", "-compose", "DstOver", "-composite", ")"]
        start = ["convert-im6.q16", picture.foreground, "-write", "mpr:front", "+delete", picture.background, "-write",
                 "mpr:back", "+delete"]
        if result:
            return [*start, *over, "-depth", "8", result]
        return [*start, *(over + ["-write", "null:", "+delete"]) * times, *over[1:2], "null:"]


class Tavrin(Program):
    """This program: Combine with the settings that it starts with, after it has measured the screen itself."""
    name = "Tavrin"
    packages = "no package"
    note = "measures the screen by itself, place by place"
    repeats = 7

    def __init__(self, environment, threads, tool):
        super().__init__(environment, threads)
        self.tool = tool
        self.measuring = []  # seconds of measuring the screen, one for each call of `seconds`

    def installed(self):
        return True

    def seconds(self, picture):
        _, combine, measuring = self.tool.key(picture, self.threads, self.repeats)
        self.measuring.append(measuring[0])
        return combine

    def key(self, picture, alpha="", result=""):
        self.tool.key(picture, self.threads, 0, alpha, result)


PEERS = (FfmpegDespill, FfmpegHalfChroma, FfmpegColorkey, Blender, Gmic, OpenCv, ImageMagick, Gegl)
