"""Damaged states, lists of sizes, batch lists, journals and reports, and things that are no files in their place."""
import json
import os
from pathlib import Path

from . import formats, mutate
from .pictures import PIXELS, SIZE

SIZES = Path(__file__).resolve().parents[3] / "data" / "ImageSize.xml"
OUTSIDE = ("../victim.png", "BatchFile/../../victim.png", "%s/victim.png", "BatchFile1/../../inputs/victim.png")


def render(case, *arguments):
    return ["render", "--bare",
            "--foreground", str(case.bench.portrait), "--background", str(case.bench.background), "--out",
            str(case.out / "made.png"), *map(str, arguments)]


def is_named(case, done, *names):
    if done.code == 1:
        case.want(any(os.fsencode(name) in done.err for name in names), f"no file is named: {done.err[-300:]}")


def state(case):
    content, case.kind = mutate.damage_text(case.rng, case.bench.state.read_bytes())
    path = case.put("damaged.qlx", content)
    case.kind = "state with " + case.kind
    if case.rng.random() < 0.3:
        is_named(case, case.run("state", "show", str(path)), path.name)
        return
    done = case.run(*render(case, "--state", path, *SIZE))
    # With a picture something in it may be missing, which has a name of its own.
    if not (case.out / "made.png").exists():
        is_named(case, done, path.name)
    if done.code == 0:
        case.want(formats.size_of(case.out / "made.png") == PIXELS, "the picture has another size")


def own_size(case):
    """A state that was saved with a size of its own gives the same picture."""
    state_file = case.out / "own.qlx"
    first = case.run(*render(case, *SIZE, "--save-state", state_file))
    before = case.made().get(b"made.png")
    second = case.run(*render(case, "--state", state_file))
    case.want(first.code == 0 and second.code == 0, f"it ended with {first.code} and {second.code}: {second.err}")
    case.want(case.made().get(b"made.png") == before, "the state gives another picture")


def size_list(case):
    """In a home of its own. The damaged file is set aside at most."""
    case.may_appear.add(b"home")
    content = SIZES.read_bytes()
    cut = case.rng.random() < 0.5
    content = content[:case.rng.randrange(1, len(content) // 2)] if cut else mutate.damage_text(case.rng, content)[0]
    name = case.rng.choice(("ImageSize.xml", "ImageSize.xml", "CustomImageSize.xml"))
    path = case.folder / "home" / "data" / "Tavrin" / "QLXXML" / name
    path.parent.mkdir(parents=True)
    (path.parent / "ImageSize.xml").write_bytes(SIZES.read_bytes())
    path.write_bytes(content)
    case.kind = f"{path.name}, {'cut' if cut else 'damaged'}"
    case.freeze()
    case.before = {place: what for place, what in case.before.items() if not place.startswith(b"home")}
    case.run("sizes", shared_home=False)
    done = case.run(*render(case), shared_home=False)
    if cut:
        case.want((case.out / "made.png").exists(), f"no picture without a size: {done.code}, {done.err}")
    kept = [place.read_bytes() for place in path.parent.iterdir() if place.is_file()]
    case.want(content in kept, "the damaged list is gone")


def batch_list_text(case, count):
    jobs = [f"<image>\n<foreground>{case.inputs}/portraits/p{number}.png</foreground>\n"
            f"<background>{case.bench.background}</background>\n</image>\n" for number in range(count)]
    return "".join(jobs).encode()


def batch_list(case):
    count = 3
    case.put_portraits(count)
    content = batch_list_text(case, count)
    case.kind = "batch list with " + case.rng.choice(("UTF-16", "UTF-8 and its mark", "old line ends",
                                                      "line ends of two", "a broken byte", "damage", "damage"))
    if "UTF" in case.kind:
        content = content.decode().encode("utf-16" if "16" in case.kind else "utf-8-sig")
    elif "line ends" in case.kind:
        content = content.replace(b"\n", b"\r" if "old" in case.kind else b"\r\n")
    elif "byte" in case.kind:
        content = content.replace(b"p1.png", b"p\xfc1.png")
    else:
        content = mutate.damage_text(case.rng, content)[0]
    case.put("jobs.txt", content)
    done = case.run("batch", "--bare", "--list", str(case.inputs / "jobs.txt"), "--out", str(case.out), "--style",
                    case.rng.choice(("combine", "number", "split")), "--inches", "1x1", "--dpi", "300", "--type", "png")
    people = case.people()
    case.want(None not in people, f"a picture is nobody's: {sorted(case.made())}")
    if "damage" not in case.kind and done.code == 0:
        case.want(people == list(range(count)), f"it ended with 0, and the pictures are those of {people}")


def journal_of(case):
    return sorted((case.out / ".tavrin-batch").glob("*.jsonl"))


def journal(case):
    """Lines are damaged; the pictures stand, or are made again as they were."""
    count, style = 3, case.rng.choice(("combine", "split"))
    case.put_portraits(count)
    case.run(*case.batch(style=style))
    for path in journal_of(case):
        damaged, case.kind = mutate.damage_text(case.rng, path.read_bytes())
        path.write_bytes(damaged)
    case.kind = "journal with " + case.kind
    if case.rng.random() < 0.3:
        for path in list(case.made()):
            os.unlink(os.path.join(os.fsencode(case.out), path))
        done = case.run(*case.batch(style=style))
        case.want(done.code == 0, f"it ended with {done.code}: {done.err}")
    else:
        case.run(*case.batch(style=style))
    case.want_people(count, "after the second run")


def journal_outside(case):
    """An entry leads out of the folder of pictures."""
    case.put_portraits(2)
    case.put("victim.png", case.bench.portraits[5])
    (case.folder / "victim.png").write_bytes(case.bench.portraits[6])
    case.run(*case.batch(style="number"))
    wanted = case.rng.choice(OUTSIDE)
    wanted = wanted % case.inputs if "%" in wanted else wanted
    case.kind = f"journal that names {wanted if '../' in wanted else 'a full path'}"
    for path in journal_of(case):
        lines = [json.loads(line) for line in path.read_text().splitlines()]
        for line in lines:
            line["out"], line["status"] = wanted, "begun"
        path.write_text("".join(json.dumps(line) + "\n" for line in lines))
    (case.out / "BatchFile").mkdir()
    (case.out / "BatchFile1").mkdir()
    case.run(*case.batch("--again", style="number"))


def journal_odd(case):
    """Something that is no file bears the name of a journal."""
    case.put_portraits(2)
    place = case.out / ".tavrin-batch"
    place.mkdir()
    case.kind = "journal that is a " + case.rng.choice(("pipe", "folder", "lost link", "device"))
    name = case.rng.choice(("x.jsonl", "turn"))
    odd_thing(place / name, case.kind)
    done = case.run(*case.batch())
    if name == "x.jsonl":
        case.want(done.code == 0, f"it ended with {done.code}: {done.err}")
        case.want_people(2, "after the run")


def odd_thing(path, kind):
    if "pipe" in kind:
        os.mkfifo(path)
    elif "folder" in kind:
        path.mkdir()
    else:
        path.symlink_to("/dev/zero" if "device" in kind else path.parent / "nowhere")


def report(case):
    """`report merge` of damaged reports."""
    case.put_portraits(2)
    reports = []
    for shard in (1, 2):
        path = case.out / f"part-{shard}.jsonl"
        case.run(*case.batch("--shard", f"{shard}/2", "--report", path))
        reports.append(path)
    content, case.kind = mutate.damage_text(case.rng, reports[0].read_bytes())
    case.kind = "report with " + case.kind
    reports[0].write_bytes(content)
    before = case.made()
    case.run("report", "merge", "--out", str(case.out / "all.jsonl"), *map(str, reports))
    after = case.made()
    merged = after.pop(b"all.jsonl", b"")
    case.want(after == before, "merging changed other files")
    for line in merged.splitlines():
        case.want(json.loads(line) is not None, "a line is no JSON")


def odd_files(case):
    """A pipe, a folder, a lost link or a device where the program wants a file of text."""
    path = case.inputs / "odd.qlx"
    case.kind = case.rng.choice(("pipe", "folder", "lost link", "device"))
    odd_thing(path, case.kind)
    use = case.rng.choice(("state", "list", "report", "state show"))
    case.kind += f" as {use}"
    if use == "state":
        done = case.run(*render(case, "--state", path, *SIZE))
    elif use == "list":
        done = case.run("batch", "--bare", "--list", str(path), "--out", str(case.out))
    elif use == "report":
        done = case.run("report", "merge", "--out", str(case.out / "all.jsonl"), str(path))
    else:
        done = case.run("state", "show", str(path))
    case.want(done.code in (1, 2), f"it ended with {done.code}")
    is_named(case, done, path.name)
    case.want(not case.made(), "it failed, but wrote a file")


KINDS = [("state", state), ("own size", own_size), ("batch list", batch_list), ("journal outside", journal_outside),
         ("state", state), ("odd file", odd_files), ("size list", size_list), ("odd journal", journal_odd),
         ("journal", journal), ("state", state), ("batch list", batch_list), ("report", report)]
