"""Odd names of portraits, backgrounds, states and folders: everybody gets one picture, and it is their own."""
import os
import shutil
import time

from .bench import BATCH_SIZE, patience

STYLES = ("combine", "number", "split")


def bytes_of(rng):
    """Every byte that a name may hold, spread over the portraits; a different cut each time."""
    known = [byte for byte in range(1, 256) if byte not in b"/."]
    rng.shuffle(known)
    return [bytes(known[at:at + 43]) for at in range(0, len(known), 43)]


NAMES = {
    "all bytes": bytes_of,
    "Latin-1": lambda rng: [b"M\xf6ller", b"M\xfcller", b"M\xe4ller", b"M\xc3\xbcller", b"Muller"],
    "broken UTF-8": lambda rng: [b"\xc3", b"\xc3\x28", b"\xe2\x82", b"\xff\xfe", b"\xed\xa0\x80", b"\xef\xbf\xbd"],
    "signs and scripts": lambda rng: [name.encode() for name in (
        "😀", "李明", "Ωλ", "שלום", "a\u202eb", "e\u0301\u0327")],
    "escape codes": lambda rng: [b"\x1b[31mred", b"\x1b]0;title\x07", b"a\rb", b"a\x08b", b"\x1bc", b"\x7f"],
    "lines": lambda rng: [b"a\nb", b"\n", b"a\n", b"a\n\nb", b"a\tb"],
    "dashes": lambda rng: [b"-", b"--help", b"--out=x", b"-v", b"--", b"@file"],
    "long": lambda rng: [b"a" * 251, b"b" * 251, "ä".encode() * 125, b"a" * 250 + b"b"],
    "case": lambda rng: [b"anna", b"Anna", b"ANNA", "straße".encode(), b"strasse", "STRASSE".encode()],
    "normal forms": lambda rng: ["\u00e9".encode(), b"e\xcc\x81", "\u212b".encode(), "\u00c5".encode(), b"A\xcc\x8a"],
    "dots and spaces": lambda rng: [b"anna ", b" anna", b"anna.", b"anna..", b"an na", b"  "],
    "signs of other programs": lambda rng: [b"%s%n", b"a|b", b"a;b", b"$(x)", b"a'b", b'a"b'],
    "markup": lambda rng: [b"<a>", b"&amp;", b"&", b"]]>", b"\\", b"a:b"],
}


def attack(kind):
    def try_names(case):
        style = case.rng.choice(STYLES)
        stems = NAMES[kind](case.rng)
        case.kind = f"{kind}, style {style}"
        case.rng.shuffle(stems)
        put_named(case, stems)
        arguments = batch_with_odd_places(case, style, stems)
        first = case.run(*arguments)
        look(case, first, len(stems), style, allows_fewer=kind == "long" and style == "combine")
        before = case.stamps()
        second = case.run(*arguments)
        case.want(case.stamps() == before, f"the second run changed {changed(before, case.stamps())}")
        case.want(second.code == first.code, f"the second run ended with {second.code}: {second.err}")
    return try_names


def put_named(case, stems):
    folder = os.fsencode(case.inputs / "portraits")
    os.mkdir(folder)
    for number, stem in enumerate(stems):
        with open(os.path.join(folder, stem + b".png"), "wb") as file:
            file.write(case.bench.portraits[number])


def batch_with_odd_places(case, style, stems):
    """Background, state and out folder bear one of these names too, now and then."""
    background, out = os.fsencode(case.bench.background), os.fsencode(case.out)
    states = []
    if case.rng.random() < 0.4:
        background = os.path.join(os.fsencode(case.inputs), case.rng.choice(stems)[:60] + b".jpg")
        shutil.copyfile(case.bench.background, background)
    if case.rng.random() < 0.3:
        state = os.path.join(os.fsencode(case.inputs), case.rng.choice(stems)[:60] + b".qlx")
        shutil.copyfile(case.bench.state, state)
        states = ["--states", state]
    if case.rng.random() < 0.4:
        out = os.path.join(out, case.rng.choice(stems))
    return ["batch", "--bare",
            "--foregrounds", str(case.inputs / "portraits"), "--backgrounds", background, "--out", out,
            "--style", style, *BATCH_SIZE, *states]


def look(case, done, count, style, allows_fewer):
    people = case.people()
    case.want(None not in people, f"a picture is nobody's: {sorted(case.made())}")
    case.want(len(set(people)) == len(people), f"somebody has two pictures: {people}")
    if done.code == 0 or not allows_fewer:
        case.want(len(people) == count, f"it ended with {done.code}, and {count - len(people)} of {count} have no "
                  f"picture: {sorted(case.made())} {done.err[-300:]}")
    told = done.out.count(b'"status":"failed"')
    case.want(len(people) + told >= count, f"{count} portraits, {len(people)} pictures, {told} told as failed")
    case.want((done.code == 0) == (len(people) == count),
              f"{len(people)} of {count} pictures, and it ended with {done.code}")


def changed(before, after):
    return sorted(path for path in before.keys() | after.keys() if before.get(path) != after.get(path))


def watched(case):
    """A watch makes each picture once, whatever the names are."""
    kind = case.rng.choice(("Latin-1", "broken UTF-8", "escape codes", "lines"))
    style = case.rng.choice(STYLES)
    stems = NAMES[kind](case.rng)
    case.kind = f"watched: {kind}, style {style}"
    put_named(case, stems)
    watch = case.start(*case.batch("--watch", style=style))
    end = time.monotonic() + patience()
    while len(case.made()) < len(stems) and time.monotonic() < end and not watch.wait(0.2):
        pass
    before = case.stamps()
    watch.wait(2.5)
    after = case.stamps()
    watch.send(15)
    case.end(watch)
    case.want(len(before) == len(stems), f"{len(before)} of {len(stems)} pictures were made")
    case.want(after == before, f"it made again {changed(before, after)}")
    people = case.people()
    case.want(None not in people and len(set(people)) == len(stems), f"the pictures are of {people}")


def one_name(case):
    """A single render of odd names, and errors that name them."""
    stem = case.rng.choice([stem for kind in NAMES for stem in NAMES[kind](case.rng)])[:200]
    case.kind = f"render of {stem!r}"
    portrait = os.path.join(os.fsencode(case.inputs), stem + b".png")
    with open(portrait, "wb") as file:
        file.write(case.bench.portraits[0] if case.rng.random() < 0.6 else b"no picture")
    out = os.path.join(os.fsencode(case.out), stem + b".png")
    done = case.run("render", "--bare",
                    "--foreground", portrait, "--background", str(case.bench.background), "--out", out,
                    *BATCH_SIZE[:4])
    made = case.made()
    whole = made == {stem + b".png": case.bench.expected[0]}
    case.want((done.code == 0) == whole, f"it ended with {done.code}: {done.err}")
    case.run("info", portrait)


KINDS = [(kind, attack(kind)) for kind in NAMES] + [("watched", watched), ("render", one_name), ("render", one_name)]
