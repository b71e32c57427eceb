"""Faults of the machine: what fails says so, and nothing that is not there counts as done."""
import json
import os
import shutil
import subprocess
import time

from support import mount

from .bench import patience
from .originals import render

PEOPLE = 8


def wait_for_pictures(case, start, count):
    end = time.monotonic() + patience()
    while len(case.made()) < count and time.monotonic() < end and not start.wait(0.005):
        pass


def out_goes(case):
    """Somebody removes the folder while pictures are made."""
    case.put_portraits(PEOPLE)
    style = case.rng.choice(("combine", "number", "split"))
    start = case.start(*case.batch(style=style))
    wait_for_pictures(case, start, case.rng.randrange(1, 4))
    shutil.rmtree(case.out, ignore_errors=True)
    case.end(start)
    count = len(case.people())
    case.want(start.code != 0 or count == PEOPLE, f"it ended with 0, and {count} of {PEOPLE} pictures are there")


def unreadable(case):
    """A folder or a file that may not be read, or a folder that may not be written."""
    case.put_portraits(3)
    what = case.rng.choice(("folder of portraits", "portrait", "background", "out folder", "temporary folder", "home"))
    case.kind = f"no permission: {what}"
    if not case.becomes_somebody():
        return
    background = case.inputs / "background.jpg"
    shutil.copyfile(case.bench.background, background)
    portraits = case.inputs / "portraits"
    place = {"folder of portraits": portraits, "portrait": portraits / "p1.png", "background": background,
             "out folder": case.out, "temporary folder": case.temp}.get(what, case.folder / "home")
    if what == "home":
        place.mkdir()
    place.chmod(0o555 if what in ("out folder", "temporary folder", "home") else 0)
    arguments = case.batch("--backgrounds", background)
    at = arguments.index("--backgrounds")  # the first, which is that of all others
    del arguments[at:at + 2]
    case.freeze()
    done = case.run(*arguments, shared_home=what != "home")
    count = len(case.people())
    case.want((done.code == 0) == (count == 3), f"it ended with {done.code}, and {count} of 3 are there: {done.err}")
    if what not in ("temporary folder", "home"):
        case.want(done.code != 0, "it ended with 0")
        case.want(os.fsencode(place.name) in done.err, f"it does not name {place.name}: {done.err}")


def full_disk(case):
    """A memory disk with room for some of the pictures, or a limit for each file where nothing can be mounted."""
    case.put_portraits(PEOPLE)
    room = sum(map(len, case.bench.expected)) // case.rng.choice((2, 3, 8, 40))
    arguments = case.batch(style=case.rng.choice(("combine", "number", "split")))
    limit = None
    if mount(case.out, f"size={room}"):
        case.kind, limit = "file too large", case.rng.choice((1, 8, 16))
    try:
        done = case.run(*arguments, file_limit=limit)
        people = case.people()
        case.want(None not in people, f"a picture is not whole: {people}")
        whole = len(people) == PEOPLE
        case.want((done.code == 0) == whole, f"it ended with {done.code}, and {len(people)} are there")
        case.want(not case.leftovers(), f"there are {case.leftovers()}")
        mount(case.out, "remount,size=100M")
        done = case.run(*arguments)
        case.want(done.code == 0, f"with room it ended with {done.code}: {done.err}")
        case.want_people(PEOPLE, "with room")
    finally:
        subprocess.run(["umount", "-l", str(case.out)], capture_output=True, check=False)


def full_render(case):
    """A render whose files may not become large enough, one after the other."""
    out, old = case.out / case.rng.choice(("made.png", "made.jpg", "made.tif")), b"an older picture"
    out.write_bytes(old)
    arguments = ["render", "--bare",
                 "--foreground", str(case.bench.portrait), "--background", str(case.bench.background),
                 "--out", str(out), "--inches", "2x2", "--dpi", "100", "--alpha", str(case.out / "alpha.png"),
                 "--save-state", str(case.out / "saved.qlx")]
    done = case.run(*arguments, file_limit=case.rng.choice((0, 1, 8, 20, 40)))
    case.want(done.code != 0 or len(case.made()) == 3, "it ended with 0, and not all files are there")
    case.want(not case.leftovers(), f"there are {case.leftovers()}")
    case.want(out.exists(), "the older picture is gone")
    case.want(out.read_bytes() == old or done.code == 0 or len(out.read_bytes()) > 500, "the older picture is damaged")
    case.want(b"Unknown" not in done.err, f"it does not say what is wrong: {done.err}")


def full_output(case):
    """Standard output cannot be written: what it should say is lost, so it failed."""
    with open("/dev/full", "wb") as full:
        use = case.rng.choice(("batch", "info", "sizes", "state", "effects", "render"))
        case.kind = f"full output: {use}"
        case.put_portraits(2)
        arguments = {"batch": case.batch(), "info": ["info", str(case.bench.portrait)], "sizes": ["sizes"],
                     "state": ["state", "show", str(case.bench.state)], "effects": ["effects"]}.get(
                         use, [*render(case, case.out / "made.png"), "--json"])
        done = case.run(*arguments, stdout=full)
        case.want(done.code == 1, f"it ended with {done.code}")


def clock(case):
    """The journal was written by a clock that was ahead, and a portrait failed then."""
    case.put_portraits(3)
    (case.inputs / "portraits" / "p3.png").write_bytes(b"no picture")
    first = case.run(*case.batch())
    case.want(first.code == 1, f"with a broken portrait it ended with {first.code}")
    for path in (case.out / ".tavrin-batch").glob("*.jsonl"):
        lines = [json.loads(line) for line in path.read_text().splitlines()]
        for line in lines:
            line["at"] = str(int(line["at"]) + 10 ** 10)
        path.write_text("".join(json.dumps(line) + "\n" for line in lines))
    portrait = case.inputs / "portraits"
    (portrait / "p3.png").write_bytes(case.bench.portraits[3])
    (portrait / "p0.png").write_bytes(case.bench.portraits[4])
    case.freeze()
    second = case.run(*case.batch())
    case.want(second.code == 0, f"mended, it ended with {second.code}: {second.err}")
    case.want(case.people() == [1, 2, 3, 4], f"the pictures are those of {case.people()}")
    before = case.stamps()
    third = case.run(*case.batch())
    case.want(third.code == 0 and case.stamps() == before, "a run with nothing to do made pictures again")


def lost_silhouette(case):
    """Two states, one of them with a silhouette that is not there: nobody gets a picture of another."""
    case.put_portraits(6)
    (case.inputs / "states").mkdir()
    text = case.bench.state.read_text("latin-1")
    broken = text.replace("<bOutputSilhouette>0", "<bOutputSilhouette>1").replace(
        "<sSilhouetteFileName>", f"<sSilhouetteFileName>{case.inputs}/gone.png")
    (case.inputs / "states" / "a.qlx").write_text(text, "latin-1")
    (case.inputs / "states" / "b.qlx").write_text(broken, "latin-1")
    done = case.run(*case.batch("--states", case.inputs / "states", style="split"))
    made = case.made()
    case.want(done.code == 1, f"it ended with {done.code}")
    case.want(b"gone.png" in done.err, f"it does not name the file: {done.err[-300:]}")
    for path, content in made.items():
        person = int(os.path.basename(path)[1:2])
        if b"/b/" not in path:
            case.want(content == case.bench.expected[person], f"{path} is not the picture of {person}")
    # Whatever a picture without its silhouette is: it depends on its own portrait, and on that alone.
    without = [content for path, content in made.items() if b"/b/" in path]
    case.want(len(set(without)) == len(without), "the pictures of different people are alike")
    again = case.out / "again"
    case.run(*case.batch("--states", case.inputs / "states", style="split", out=again))
    repeated = case.made(again)
    for path in made.keys() & repeated.keys():
        case.want(made[path] == repeated[path], f"{path} is another picture the next time")


def lost_report(case):
    case.put_portraits(2)
    done = case.run(*case.batch("--report", case.out / "nowhere" / "report.jsonl"))
    case.want(done.code in (1, 2), f"it ended with {done.code}")
    case.want(not case.made(), "that is told only after the work")


def idle_watch(case):
    """A file grows, then goes. An idle watch takes next to no time of the processor."""
    folder = case.inputs / "portraits"
    folder.mkdir()
    watch = case.start(*case.batch("--watch"))
    end = time.monotonic() + patience()
    while not (case.out / ".tavrin-batch").exists() and time.monotonic() < end and not watch.wait(0.1):
        pass
    with open(folder / "growing.png", "wb") as file:
        # For longer than the watch lets pass between two looks of its own.
        for _ in range(15):
            file.write(case.bench.portraits[0][:20])
            file.flush()
            watch.wait(0.2)
        if case.rng.random() < 0.5:
            os.unlink(folder / "growing.png")
        else:
            (folder / "growing.png").rename(case.inputs / "elsewhere")
    watch.wait(3.0)
    before, begin = watch.processor_now(), time.monotonic()
    watch.wait(3.0)
    share = (watch.processor_now() - before) / (time.monotonic() - begin)
    case.want(share < 0.05, f"an idle watch takes {100 * share:.0f} percent of a core")
    watch.send(15)
    case.end(watch)
    case.freeze()


KINDS = [("folder of pictures goes", out_goes), ("full output", full_output), ("no permission", unreadable),
         ("full disk", full_disk), ("lost silhouette", lost_silhouette), ("clock", clock),
         ("render without room", full_render), ("report into nothing", lost_report), ("idle watch", idle_watch)]
