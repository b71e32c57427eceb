"""Originals in the way of what is written: no picture that the program did not make is ever replaced."""
import os
import shutil

from .bench import BATCH_SIZE
from .pictures import SIZE


def render(case, out, *more):
    return ["render", "--bare", "--foreground", str(case.inputs / "portraits" / "p0.png"), "--background",
            str(case.inputs / "sea.jpg"), "--out", str(out), *SIZE, *map(str, more)]


def another_way(case, path):
    """The path, a round-about path, a symbolic or a hard link to it."""
    way = case.rng.choice(("itself", "round", "symbolic", "hard"))
    link = case.inputs / f"link-{way}{path.suffix}"
    if way == "itself" or not path.exists():
        return path
    if way == "round":
        return case.inputs / ".." / "inputs" / path.relative_to(case.inputs)
    if not os.path.lexists(link):
        link.symlink_to(path) if way == "symbolic" else os.link(path, link)
    return link


def own_input(case):
    """An output that is one of the inputs, by its name, a link or another way to it. Nothing may change."""
    case.put_portraits(2)
    folder = case.inputs / "portraits"
    (folder / "frame.jpg").write_bytes(case.bench.jpeg)
    sea = case.put("sea.jpg", case.bench.jpeg)
    state = case.put("look.qlx", case.bench.state.read_bytes())
    jobs = case.put("jobs.txt", (f"<image>\n<foreground>{folder}/p0.png</foreground>\n<background>{sea}</background>\n"
                                 f"<outputfolder>{folder}/p0.x</outputfolder>\n<outputnamestyle>outputfolderhasname"
                                 "</outputnamestyle>\n<outputfiletype>outputpng</outputfiletype>\n</image>\n").encode())
    other = case.out / "other.png"
    victim = case.rng.choice((folder / "p0.png", sea))
    ways = {"split": ["batch", "--bare",
                      "--foregrounds", str(folder), "--backgrounds", str(sea), "--out", str(case.inputs),
                      "--style", "split", *BATCH_SIZE],
            "list": ["batch", "--bare", "--list", str(jobs), "--out", str(case.out), *BATCH_SIZE[:4]],
            "out": render(case, another_way(case, victim)),
            "alpha": render(case, other, "--alpha", another_way(case, folder / "p0.png")),
            "overlay": render(case, another_way(case, folder / "frame.jpg"), "--overlay-frame", folder / "frame.jpg"),
            "alpha is out": render(case, other, "--alpha", another_way(case, other)),
            "save-state": render(case, other, "--save-state", another_way(case, victim)),
            "state": render(case, other, "--state", state, "--alpha", another_way(case, state)),
            "report": ["batch", "--bare",
                       "--foregrounds", str(folder), "--backgrounds", str(sea), "--out", str(case.out),
                       *BATCH_SIZE, "--report", str(another_way(case, victim))],
            "merge": ["report", "merge", "--out", str(another_way(case, jobs)), str(jobs)]}
    way = case.rng.choice(sorted(ways))
    case.kind = f"output is an input: {way}"
    if way == "split":
        # The folder of the background's name is the folder of the portraits.
        folder.rename(case.inputs / "sea")
        ways[way][3] = str(case.inputs / "sea")
        case.may_appear.add(b"inputs/.tavrin-batch")
    case.freeze()
    done = case.run(*ways[way])
    case.want(done.code in ((1, 2) if way == "merge" else (2,)), f"it ended with {done.code}, not with 2")


def read_only(case):
    """A picture that its owner made read-only stays, although its portrait has changed."""
    case.put_portraits(2)
    if not case.becomes_somebody():
        return
    case.run(*case.batch())
    for path in case.out.glob("*.png"):
        path.chmod(0o444)
    before = case.made()
    (case.inputs / "portraits" / "p0.png").write_bytes(case.bench.portraits[4])
    case.freeze()
    done = case.run(*case.batch())
    case.want(case.made() == before, "it was replaced")
    case.want(done.code == 1, f"it ended with {done.code}")


def foreign(case):
    """A picture of that name is there, and this program did not make it."""
    case.put_portraits(2)
    style = case.rng.choice(("combine", "split", "number"))
    case.kind += f", style {style}"
    case.run(*case.batch(style=style))
    mine = case.rng.choice(sorted(case.made()))
    place = os.path.join(os.fsencode(case.out), mine)
    shutil.rmtree(case.out / ".tavrin-batch")
    with open(place, "wb") as file:
        file.write(b"something else")
    before = case.made()
    done = case.run(*case.batch(style=style))
    after = case.made()
    case.want(after.get(mine) == b"something else", "it was replaced")
    case.want(all(after.get(path) == before[path] for path in before), "pictures were replaced")
    case.want(style == "number" or done.code == 1, f"it ended with {done.code}")


def lost_journal(case):
    """Numbered pictures of an earlier day are there, their journal is not."""
    case.put_portraits(3)
    case.run(*case.batch(style="number"))
    before = case.made()
    shutil.rmtree(case.out / ".tavrin-batch")
    for number in range(3):
        (case.inputs / "portraits" / f"p{number}.png").write_bytes(case.bench.portraits[number + 3])
    case.freeze()
    case.run(*case.batch(style="number"))
    after = case.made()
    case.want(all(after.get(path) == content for path, content in before.items()), "earlier pictures were replaced")


def leading_link(case):
    """A link in the folder of pictures leads to an original."""
    case.put_portraits(2)
    victim = case.put("original.png", case.bench.portraits[5])
    (case.out / ("p0_" + case.bench.background.stem + ".png")).symlink_to(victim)
    case.freeze()
    done = case.run(*case.batch())
    case.want(done.code == 1, f"it ended with {done.code}")


KINDS = [("output is an input", own_input), ("output is an input", own_input), ("read-only picture", read_only),
         ("output is an input", own_input), ("foreign picture", foreign), ("output is an input", own_input),
         ("lost journal", lost_journal), ("link in the pictures", leading_link)]
