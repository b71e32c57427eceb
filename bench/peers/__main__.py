"""Compares Tavrin's key with what else keys a picture: python3 bench/peers --help. docs/performance.md tells more."""
import argparse
import os
import pathlib
import statistics
import sys
import tempfile

import pictures
import programs


def parse():
    parser = argparse.ArgumentParser(prog="bench/peers", description="Times the key and the composite of Tavrin and "
                                     "of other programs on the same pictures, and measures their alphas.")
    parser.add_argument("--picture", action="append", default=[], help="a picture to take the time on, brought to 12 "
                        "megapixels; may be given several times; without it the sample")
    parser.add_argument("--scenes", default=pictures.SAMPLE, help="folder of pictures NAME.jpg or NAME.png with their "
                        "true alpha NAME_alpha.png; without it the sample's")
    parser.add_argument("--rounds", type=int, default=5, help="how often each time is taken, in turn; 0: no times")
    parser.add_argument("--threads", type=int, default=2)
    parser.add_argument("--only", default="", help="only programs with this in name or package, and Tavrin")
    parser.add_argument("--keep", help="a folder for everybody's alphas and composites of the scenes")
    parser.add_argument("--tune", action="store_true", help="try settings on the scenes and print the best, no more")
    parser.add_argument("--build", default=pictures.ROOT / "build" / "release")
    return parser.parse_args()


def say(text):
    print(text, file=sys.stderr, flush=True)


def table(head, rows):
    print("| " + " | ".join(head) + " |\n|" + "---|" * len(head))
    for row in rows:
        print("| " + " | ".join(row) + " |")
    print(flush=True)


def mean(values):
    values = list(values)
    return sum(values) / len(values)


class Contest:
    """Tavrin and the peers that are installed. One that fails is told of and takes no further part."""

    def __init__(self, options, tool, folder):
        self.tool, self.folder = tool, folder
        # Nobody's own settings take part.
        home = {"HOME": folder, "XDG_CONFIG_HOME": f"{folder}/config", "XDG_CACHE_HOME": f"{folder}/cache"}
        environment = os.environ | home
        self.tavrin = programs.Tavrin(environment, options.threads, tool)
        self.programs = [self.tavrin]
        for kind in programs.PEERS:
            if options.only.lower() not in f"{kind.name} {kind.packages}".lower():
                continue
            program = kind(environment, options.threads)
            if program.installed():
                self.programs.append(program)
            else:
                say(f"Not installed: {kind.name}. As root: apt-get install --no-install-recommends {kind.packages}")

    def each(self, work):
        """Calls `work` with one program after the other and returns what came of it, by program."""
        results = {}
        for program in list(self.programs):
            try:
                results[program] = work(program)
            except RuntimeError as problem:
                say(f"{program.name} is left out: {problem}")
                self.programs.remove(program)
        return results

    def time(self, picture, rounds):
        """Everybody in turn, round by round, so that a slow minute of the machine is everybody's."""
        times = {program: [] for program in self.programs}
        for turn in range(rounds):
            say(f"{picture.name}: round {turn + 1} of {rounds}")
            for program, taken in self.each(lambda program: program.seconds(picture)).items():
                times[program].append([seconds * 1e9 / (picture.width * picture.height) for seconds in taken])
        return {program: times[program] for program in self.programs}

    def errors(self, program, scenes):
        """For each scene the mean alpha error and that near edges, percent."""
        alpha = pathlib.Path(self.folder) / "alpha.png"
        errors = []
        for scene in scenes:
            alpha.unlink(missing_ok=True)
            program.key(scene, str(alpha))
            errors.append(self.tool.errors(alpha, scene.truth))
        return errors


def print_times(contest, picture, rounds):
    times = contest.time(picture, rounds)
    middles = {program: [statistics.median(values) for values in zip(*taken)] for program, taken in times.items()}
    own_wall, own_cpu = middles[contest.tavrin]
    rows = []
    for program, (wall, cpu) in middles.items():
        walls = [wall for wall, _ in times[program]]
        rows.append([program.name, f"{wall:.1f}", f"{min(walls):.1f} to {max(walls):.1f}", f"{wall / own_wall:.2f}",
                     f"{cpu:.1f}", f"{cpu / own_cpu:.2f}"])
    print(f"{picture.name}, {picture.width} x {picture.height}, {contest.tavrin.threads} threads: key and composite "
          f"alone, median of {rounds} rounds\n")
    table(["", "ns a pixel", "lowest to highest", "times Tavrin's", "CPU ns a pixel", "times Tavrin's"], rows)
    measuring = statistics.median(contest.tavrin.measuring) * 1e9 / (picture.width * picture.height)
    print(f"Before it Tavrin measures the screen, {measuring:.1f} ns a pixel; the others are told its colour.\n")
    contest.tavrin.measuring.clear()


def print_errors(contest, scenes):
    errors = contest.each(lambda program: contest.errors(program, scenes))
    print(f"Mean absolute error of alpha over {len(scenes)} scenes, percent\n")
    table(["", "whole picture", "near edges", "note", "settings"],
          [[program.name, f"{mean(whole for whole, _ in found):.2f}", f"{mean(edge for _, edge in found):.2f}",
            program.note, ", ".join(f"{name} {value}" for name, value in program.settings.items())]
           for program, found in errors.items()])
    print("Near edges, scene by scene, percent\n")
    table(["", *(program.name for program in errors)],
          [[scene.name, *(f"{found[i][1]:.1f}" for found in errors.values())] for i, scene in enumerate(scenes)])


def keep_pictures(contest, scenes, folder):
    def key(program):
        name = "".join(letter if letter.isalnum() else "_" for letter in program.name)
        for scene in scenes:
            base = pathlib.Path(folder).absolute() / f"{scene.name}-{name}"
            program.key(scene, f"{base}-alpha.png", f"{base}.png")

    os.makedirs(folder, exist_ok=True)
    contest.each(key)


def tune(contest, scenes):
    """Tries each peer's settings and prints the five with the smallest product of the errors whole and near edges."""
    def try_all(program):
        results = []
        for program.settings in program.tried:
            say(f"{program.name}: {program.settings}")
            errors = contest.errors(program, scenes)
            results.append((mean(whole for whole, _ in errors), mean(edge for _, edge in errors), program.settings))
        if results:
            print(program.name)
        for whole, edge, settings in sorted(results, key=lambda result: result[0] * result[1])[:5]:
            print(f"  whole picture {whole:.2f}, near edges {edge:.2f}: {settings}", flush=True)

    contest.each(try_all)


def main():
    options = parse()
    tool = pictures.Tool(options.build)
    with tempfile.TemporaryDirectory(prefix="tavrin-peers-") as folder:
        contest = Contest(options, tool, folder)
        scenes = [pictures.prepare(tool, path, folder) for path in pictures.find_scenes(options.scenes)]
        if not scenes:
            raise SystemExit(f"{options.scenes}: there is no picture NAME with a NAME_alpha.png.")
        if options.tune:
            tune(contest, scenes)
            return
        os.mkdir(f"{folder}/timed")
        for path in (options.picture or [pictures.SAMPLE / "portrait.jpg"]) if options.rounds else []:
            print_times(contest, pictures.prepare(tool, path, f"{folder}/timed", pictures.MEGAPIXELS), options.rounds)
        print_errors(contest, scenes)
        if options.keep:
            keep_pictures(contest, scenes, options.keep)


main()
