"""Broken pictures in every place where the program takes a picture."""
import os

from . import formats, mutate

SIZE = ["--inches", "1x1", "--dpi", "72"]
PIXELS = (72, 72)
# Some options say at once that a picture cannot be used: wrong usage.
FAILED = (1, 2)

# What stands in a picture's place when it is read as something else.
SCRIPTS = {
    "svg": b'<?xml version="1.0"?><svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
           b'width="90" height="90"><image xlink:href="%(other)s" width="90" height="90"/></svg>',
    "mvg": b"push graphic-context\nviewbox 0 0 90 90\nimage over 0,0 90,90 '%(other)s'\npop graphic-context\n",
    "msl": b'<?xml version="1.0"?><image><read filename="%(other)s"/><write filename="%(left)s"/></image>',
    "ps": b"%%!PS-Adobe-3.0 EPSF-3.0\n%%%%BoundingBox: 0 0 90 90\n(%(left)s) (w) file closefile showpage\n",
    "sh": b"#!/bin/sh\ntouch '%(left)s'\n",
    "url": b"https://localhost:1/%(other)s\n",
    "txt": b"@%(other)s\n",
    "xpm": b'/* XPM */ static char *x[] = {"90 90 1 1","a c #ff0000"};\n',
}


def use_as(case, use, victim, out):
    """The arguments that make the program read `victim` in some place."""
    if use == "info":
        return ["info", str(victim)]
    portrait, background = (case.bench.portrait, case.bench.background)
    arguments = {"portrait": [], "background": [], "texture": ["--texture", victim],
                 "frame": ["--frame", "square", "--frame-fill", victim],
                 "silhouette": ["--set", "bOutputSilhouette=1", "--set", f"sSilhouetteFileName={victim}"],
                 "logo": ["--state", case.inputs / "logo.qlx"]}.get(use, ["--" + use, victim])
    if use == "logo":
        case.put("logo.qlx", case.bench.state_with_logo(victim))
    return ["render", "--bare", "--foreground", str(victim if use == "portrait" else portrait), "--background",
            str(victim if use == "background" else background), "--out", str(out), *SIZE, *map(str, arguments)]


USES = ("portrait", "portrait", "background", "info", "overlay-background", "overlay-foreground", "overlay-frame",
        "texture", "frame", "silhouette", "logo")


def show(case, content, ending, use=None, wanted=None):
    """Reads the picture in one place and looks at the end. `wanted` are the exit codes that are right."""
    use = use or case.rng.choice(USES)
    victim = case.inputs / f"victim.{ending}"
    if content is not None:
        victim.write_bytes(content)
    out = case.out / case.rng.choice(("made.png", "made.png", "made.jpg"))
    case.kind += f" as {use}"
    done = case.run(*use_as(case, use, victim, out))
    check(case, done, use, victim, out, wanted)


def check(case, done, use, victim, out, wanted=None):
    if wanted is not None:
        case.want(done.code in wanted, f"it ended with {done.code}, not one of {wanted}")
    if done.code == 1:
        case.want(os.fsencode(victim.name) in done.err, f"the message does not name the file: {done.err[-300:]}")
    if use == "info":
        case.want(done.code != 0 or done.out, "nothing was said")
        return
    must_not = done.code != 0 and use in ("portrait", "background")
    case.want(not (must_not and os.path.lexists(out)), "it failed, but there is a picture")
    if done.code == 0 or out.exists():
        try:
            case.want(formats.size_of(out) == PIXELS, f"the picture has the size {formats.size_of(out)}")
        except (OSError, ValueError) as error:
            case.want(False, f"the picture is not whole: {error}")


def mutated(case):
    ending, content = case.rng.choice(case.bench.pictures)
    damaged, how = mutate.damage(case.rng, content)
    case.kind = f"{ending} with {how}"
    # Some readers go by the name, others must not.
    show(case, damaged, ending if case.rng.random() < 0.8 else case.rng.choice(("jpg", "dng", "tif", "mvg")))


def huge_header(case):
    ending, content = case.rng.choice([(e, c) for e, c in case.bench.own_pictures if e != "webp"])
    width, height = case.rng.choice(((65535, 65535), (300000, 300000), (0x7FFFFFFF, 1), (1, 0x7FFFFFFF), (0, 96),
                                     (30000, 30000), (0xFFFFFF, 0xFFFFFF)))
    case.kind = f"{ending} of {width} x {height}"
    show(case, mutate.with_size(ending, content, width, height), ending)


def long_chunk(case):
    length = case.rng.choice((0x7FFFFFFF, 0x70000000, 0xFFFFFFFF))
    use = case.rng.choice(USES)
    # What is told of a picture stands in its head, which is whole.
    wanted = (0, 1) if use == "info" else FAILED
    show(case, mutate.png_with_chunk_length(formats.png(), length), "png", use, wanted)


def exif_loop(case):
    content = formats.jpeg_with_exif(case.bench.jpeg, formats.exif_loop())
    show(case, content, "jpg", case.rng.choice(("portrait", "info")))


def exif_codes(case):
    """A camera's name that would paint the terminal."""
    block = formats.exif(make=b"\x1b[31mred\x1b]0;x\x07\r\x08\0")
    show(case, formats.jpeg_with_exif(case.bench.jpeg, block), "jpg", "info", wanted=(0,))


def sparse(case):
    """8 GB of nothing behind a good head."""
    ending, content = case.rng.choice(case.bench.own_pictures)
    victim = case.put(f"victim.{ending}", content[:case.rng.choice((30, 64, len(content)))])
    os.truncate(victim, 8 << 30)
    case.kind = f"sparse {ending}"
    show(case, None, ending)


def sparse_bmp(case):
    """8 GB whose head fits them, as far as heads of this kind can."""
    ending = case.rng.choice(("bmp", "psd"))
    victim = case.put(f"victim.{ending}", mutate.with_size(ending, dict(case.bench.own_pictures)[ending], 9000, 9000))
    os.truncate(victim, 8 << 30)
    show(case, None, ending)


def script(case):
    name, content = case.rng.choice(sorted(SCRIPTS.items()))
    case.kind = f"a script ({name})"
    names = {b"other": os.fsencode(case.bench.portrait), b"left": os.fsencode(case.folder / "left")}
    # A known head in front makes it a broken picture; alone it is none.
    content = case.rng.choice((b"", b"BM" + bytes(30), b"8BPS")) + content % names
    show(case, content, case.rng.choice(("jpg", "png", "bmp", "psd", "mvg", "svg")), wanted=FAILED)


def missing(case):
    show(case, None, "png", wanted=FAILED)


def no_picture(case):
    """A folder, a pipe nobody writes to, an empty file, a link to itself."""
    victim = case.inputs / "victim.png"
    case.kind = case.rng.choice(("folder", "pipe", "empty file", "endless link", "device"))
    if case.kind == "folder":
        victim.mkdir()
    elif case.kind == "pipe":
        os.mkfifo(victim)
    elif case.kind == "empty file":
        victim.touch()
    else:
        victim.symlink_to(victim if case.kind == "endless link" else "/dev/zero")
    show(case, None, "png", wanted=FAILED)


KINDS = [("mutated", mutated), ("huge header", huge_header), ("mutated", mutated), ("long chunk", long_chunk),
         ("missing", missing), ("mutated", mutated), ("sparse", sparse), ("exif loop", exif_loop), ("mutated", mutated),
         ("script", script), ("sparse bmp or psd", sparse_bmp), ("mutated", mutated), ("no picture", no_picture),
         ("mutated", mutated), ("escape codes in EXIF", exif_codes)]
