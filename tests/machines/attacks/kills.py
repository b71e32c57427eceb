"""Signals at any moment: nothing half-made is seen, nothing stays, and the next run makes what was missing."""
import os
import signal
import time

GENTLE = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP)
PEOPLE = 8


def end_of(case, start, number):
    """The end of a start that got a signal: by itself, with a code of its own, or by the signal."""
    case.end(start, crash_only=True)
    codes = (0, 1, -number, 128 + number)
    case.want(start.code in codes or case.killed, f"it ended with {start.code} after {number.name}: {start.err[-300:]}")


def killed_render(number):
    def attack(case):
        out = case.out / case.rng.choice(("made.png", "made.tif", "made.jpg"))
        old = case.rng.choice((None, b"an older picture"))
        if old:
            out.write_bytes(old)
        arguments = ["render", "--bare",
                     "--foreground", str(case.bench.portrait), "--background", str(case.bench.background),
                     "--out", str(out), "--inches", "4x5", "--dpi", "200", "--alpha", str(case.out / "alpha.png"),
                     "--save-state", str(case.out / "saved.qlx")]
        start = case.start(*arguments)
        start.wait(case.rng.uniform(0.0, 1.2 * case.bench.render_seconds))
        start.send(number)
        end_of(case, start, number)
        if number != signal.SIGKILL:
            case.want(not case.leftovers(), f"after {number.name} there are {case.leftovers()}")
        left = case.made()
        second = case.run(*arguments)
        case.want(second.code == 0, f"the next run ended with {second.code}: {second.err}")
        case.want(not case.leftovers(), f"after the next run there are {case.leftovers()}")
        whole = case.made()
        for path, content in left.items():
            is_old = old is not None and os.fsencode(out.name) == path and content == old
            case.want(is_old or content == whole.get(path), f"after {number.name} {path} was neither old nor whole")
    return attack


def killed_batch(number):
    def attack(case):
        style = case.rng.choice(("combine", "number", "split"))
        case.put_portraits(PEOPLE)
        case.kind += f", style {style}"
        for _ in range(case.rng.choice((1, 1, 2))):
            start = case.start(*case.batch(style=style))
            start.wait(case.rng.uniform(0.0, 1.2 * case.bench.batch_seconds))
            start.send(number)
            end_of(case, start, number)
            look(case, number, start)
        finish(case, style)
    return attack


def look(case, number, start):
    people = case.people()
    case.want(None not in people and len(set(people)) == len(people),
              f"after {number.name} the pictures are of {people}")
    case.want(start.code != 0 or len(people) == PEOPLE, f"it ended with 0, and only {len(people)} pictures are there")
    if number != signal.SIGKILL:
        case.want(not case.leftovers(), f"after {number.name} there are {case.leftovers()}")


def finish(case, style):
    """The next run makes what an undisturbed one makes, and the one after it nothing."""
    done = case.run(*case.batch(style=style))
    case.want(done.code == 0, f"the next run ended with {done.code}: {done.err[-300:]}")
    case.want_people(PEOPLE, "after the next run")
    case.want(not case.leftovers(), f"after the next run there are {case.leftovers()}")
    before = case.stamps()
    case.run(*case.batch(style=style))
    case.want(case.stamps() == before, "a run with nothing to do made pictures again")


def closed_output(case):
    """Whoever reads the output goes away."""
    style = case.rng.choice(("combine", "number", "split"))
    case.put_portraits(PEOPLE)
    reading, writing = os.pipe()
    start = case.start(*case.batch(style=style), stdout=writing)
    os.close(writing)
    if case.rng.random() < 0.7:
        os.read(reading, 1)
    os.close(reading)
    end_of(case, start, signal.SIGPIPE)
    look(case, signal.SIGPIPE, start)
    finish(case, style)


def two_signals(case):
    """The second one stops the batch at once; what that leaves goes with the next run."""
    case.put_portraits(PEOPLE)
    start = case.start(*case.batch())
    start.wait(case.rng.uniform(0.0, case.bench.batch_seconds))
    number = case.rng.choice((signal.SIGINT, signal.SIGTERM))
    start.send(number)
    start.wait(case.rng.uniform(0.0, 0.1))
    start.send(number)
    end_of(case, start, number)
    finish(case, "combine")


def killed_watch(number):
    def attack(case):
        (case.inputs / "portraits").mkdir()
        style = case.rng.choice(("combine", "number", "split"))
        case.kind += f", style {style}"
        start = case.start(*case.batch("--watch", style=style))
        for person in range(PEOPLE):
            bring(case, person)
            start.wait(case.rng.uniform(0.0, 0.3))
        start.wait(case.rng.uniform(0.0, 2 * case.bench.batch_seconds))
        start.send(number)
        end_of(case, start, number)
        case.want(all((case.inputs / "portraits" / f"p{person}.png").read_bytes() == case.bench.portraits[person]
                      for person in range(PEOPLE)), "the watch changed a portrait")
        case.freeze()
        people = case.people()
        case.want(None not in people and len(set(people)) == len(people),
                  f"after {number.name} the pictures are of {people}")
        if number != signal.SIGKILL:
            case.want(not case.leftovers(), f"after {number.name} there are {case.leftovers()}")
        finish(case, style)
    return attack


def bring(case, person):
    """In one go, slowly, or moved into place."""
    content, path = case.bench.portraits[person], case.inputs / "portraits" / f"p{person}.png"
    way = case.rng.randrange(3)
    if way == 0:
        path.write_bytes(content)
    elif way == 1:
        with open(path, "wb") as file:
            file.write(content[:len(content) // 2])
            file.flush()
            time.sleep(case.rng.uniform(0.0, 0.2))
            file.write(content[len(content) // 2:])
    else:
        (case.inputs / "coming").write_bytes(content)
        (case.inputs / "coming").rename(path)


SIGNALS = (*GENTLE, signal.SIGKILL)
KINDS = [kind for number in SIGNALS for kind in ((f"render, {number.name}", killed_render(number)),
                                                (f"batch, {number.name}", killed_batch(number)))]
KINDS += [("closed output", closed_output), ("two signals", two_signals),
          ("watch, SIGTERM", killed_watch(signal.SIGTERM)), ("watch, SIGKILL", killed_watch(signal.SIGKILL)),
          ("watch, SIGHUP", killed_watch(signal.SIGHUP))]
