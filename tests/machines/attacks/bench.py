"""Where attacks happen: folders of their own for each case, bounded starts of tavrin-cli, and what must always hold."""
import hashlib
import os
import random
import signal
import stat
import subprocess
import threading
import time
from pathlib import Path

MOST_MEMORY = 1536  # MB that one start may hold
MOST_PROCESSOR = 10.0  # seconds
MOST_ADDRESSES = 6 << 20  # KB, so that no start takes the machine down
LONG_FILE = 64 << 20  # longer files are not read to see whether they changed
NOBODY = 65534
BATCH_SIZE = ["--inches", "1x1", "--dpi", "300", "--type", "png"]
CRASHES = {-signal.SIGSEGV, -signal.SIGABRT, -signal.SIGBUS, -signal.SIGFPE, -signal.SIGILL, -signal.SIGXCPU}


def patience():
    """Seconds after which a start hangs; more on a machine that has much else to do."""
    return 20 * min(6.0, max(1.0, os.getloadavg()[0] / (os.cpu_count() or 1)))


def tree(folder):
    """Everything below a folder, by its path in bytes: a link's target, a file's digest, or the kind."""
    found = {}
    root = os.fsencode(folder)
    for place, folders, files in os.walk(root):
        for name in folders + files:
            path = os.path.join(place, name)
            found[os.path.relpath(path, root)] = describe(path)
    return found


def describe(path):
    try:
        facts = os.lstat(path)
        if stat.S_ISLNK(facts.st_mode):
            return "link to " + os.fsdecode(os.readlink(path))
        if not stat.S_ISREG(facts.st_mode):
            return stat.filemode(facts.st_mode)[0]
        if facts.st_size > LONG_FILE:
            return f"{facts.st_size} bytes, {facts.st_mtime_ns}"
        with open(path, "rb") as file:
            return hashlib.sha256(file.read()).hexdigest()
    except FileNotFoundError:
        return "gone"


class Start:
    """One start of tavrin-cli and, after `wait`, its end."""

    def __init__(self, process):
        self.process = process
        self.code, self.out, self.err = None, b"", b""
        self.processor = self.memory = 0
        # Not into files: a limit for these would cut short what is said about it.
        self.readers = [threading.Thread(target=self.read, args=(name,), daemon=True) for name in ("stdout", "stderr")]
        for reader in self.readers:
            reader.start()

    def wait(self, seconds):
        """False when it still runs after so many seconds."""
        end = time.monotonic() + seconds
        while self.code is None and time.monotonic() < end:
            pid, status, usage = os.wait4(self.process.pid, os.WNOHANG)
            if pid:
                self.process.returncode = self.code = os.waitstatus_to_exitcode(status)
                self.processor = usage.ru_utime + usage.ru_stime
                self.memory = usage.ru_maxrss // 1024
                for reader in self.readers:
                    reader.join()
            else:
                time.sleep(0.004)
        return self.code is not None

    def read(self, name):
        stream = getattr(self.process, name)
        if stream is not None:
            with stream:
                setattr(self, name.replace("std", ""), stream.read())

    def send(self, number):
        if self.code is None:
            os.kill(self.process.pid, number)

    def processor_now(self):
        """Seconds of processor time up to this moment."""
        fields = Path(f"/proc/{self.process.pid}/stat").read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


class Case:
    """One attack in a folder of its own: `inputs` must stay as they are, `out` is the program's."""

    def __init__(self, bench, family, number, kind, folder):
        self.bench, self.family, self.number, self.kind = bench, family, number, kind
        self.rng = random.Random(f"{bench.seed} {family} {number}")
        self.folder = Path(folder)
        self.inputs, self.out, self.temp = (self.folder / name for name in ("inputs", "out", "temp"))
        self.faults, self.starts, self.running = [], [], []
        self.before = None
        self.may_appear = {b"out"}
        self.user = None
        self.attack, self.skipped, self.killed = f"{family} {kind}", "", False
        for place in (self.inputs, self.out, self.temp):
            place.mkdir(parents=True)

    def want(self, holds, fault):
        if not holds:
            self.faults.append(fault)
        return holds

    def put(self, name, content):
        path = self.inputs / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        return path

    def freeze(self):
        """From now on everything outside `out` has to stay as it is. What a kill left in `temp` goes with the next run."""
        self.before = {path: was for path, was in tree(self.folder).items() if not path.startswith(b"temp/")}

    def becomes_somebody(self):
        """The super-user is stopped by no permission: from here on the program runs as somebody else."""
        if os.geteuid() != 0:
            return True
        if self.bench.nobody is None:
            self.skipped = "nobody else can run the program"
            return False
        self.user = self.bench.nobody
        for place in (self.folder, self.inputs, self.out, self.temp):
            os.chown(place, self.user, self.user)
        return True

    def start(self, *arguments, stdout=None, file_limit=None, shared_home=True):
        if self.before is None:
            self.freeze()
        limits = f"ulimit -c 0; ulimit -v {MOST_ADDRESSES}; "
        if file_limit is not None:
            # Half a kilobyte each. Ignored, the signal becomes an error, as on a full disk.
            limits += f"trap '' XFSZ; ulimit -f {file_limit}; "
        own = {"user": self.user, "group": self.user, "extra_groups": []} if self.user else {}
        process = subprocess.Popen(["sh", "-c", limits + 'exec "$@"', "sh", self.bench.cli, *arguments],
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE if stdout is None else stdout,
                                   stderr=subprocess.PIPE,
                                   env=self.environment(shared_home), cwd=self.folder, **own)
        start = Start(process)
        self.starts.append(start)
        self.running.append(start)
        return start

    def environment(self, shared_home):
        home = self.bench.home if shared_home else self.folder / "home"
        runtime = "runtime-other" if self.user else "runtime"
        return {"PATH": os.environ.get("PATH", ""), "LANG": "C.UTF-8", "HOME": str(home), "TMPDIR": str(self.temp),
                "XDG_DATA_HOME": str(home / "data"), "XDG_CONFIG_HOME": str(home / "config"),
                "XDG_CACHE_HOME": str(self.bench.home / "cache"), "XDG_RUNTIME_DIR": str(self.bench.home / runtime)}

    def end(self, start, crash_only=False):
        """Waits for the end and looks at what holds for every end."""
        self.running.remove(start)
        if not start.wait(patience()):
            used = start.processor_now()
            start.send(signal.SIGKILL)
            start.wait(20)
            self.killed = True
            self.want(False, f"it hangs, after {used:.1f} s of processor time")
            return start
        lasting = start.code in CRASHES if crash_only else start.code not in (0, 1, 2)
        self.want(not lasting, f"it ended with {start.code}: {text(start.err)}")
        self.want(start.processor <= MOST_PROCESSOR, f"it took {start.processor:.1f} s of processor time")
        self.want(start.memory <= MOST_MEMORY, f"it took {start.memory} MB")
        if not lasting and start.code in (1, 2):
            self.want((start.err + start.out).strip(), f"it ended with {start.code} and says nothing")
        # What is printed for programs may hold the sign 127, which JSON does not escape.
        for name, stream, more in (("output", start.out, b""), ("error stream", start.err, b"\x7f")):
            raw = sorted({byte for byte in stream if (byte < 32 and byte != 10) or byte in more})
            self.want(not raw, f"raw control bytes {raw} on the {name}: {text(stream)}")
        return start

    def run(self, *arguments, **options):
        return self.end(self.start(*arguments, **options))

    def close(self):
        """What has to hold when everything is over."""
        for start in list(self.running):
            self.running.remove(start)
            start.send(signal.SIGKILL)
            start.wait(20)
        if self.before is None:
            return
        after = tree(self.folder)
        for path, was in self.before.items():
            if path.split(b"/")[0] != b"out":
                self.want(after.get(path) == was, f"{path} changed: it was {was}, is {after.get(path, 'gone')}")
        new = {path for path in after.keys() - self.before.keys() if not self.is_expected(path)}
        # What a program left that was killed here says nothing new.
        tops = sorted(path for path in new if os.path.dirname(path) not in new and not self.killed)
        self.want(not tops, f"left behind: {tops}")

    def is_expected(self, path):
        top, name = path.split(b"/")[0], os.path.basename(path)
        half_written = name.endswith((b".part", b"tmp", b".set-aside", b".lock")) and top == b"out"
        return not half_written and top in self.may_appear

    def leftovers(self):
        """Temporary folders and half-written pictures, by their paths."""
        found = [b"temp/" + path for path in tree(self.temp) if b"/" not in path]
        return found + [path for path in tree(self.out) if path.endswith(b".part")]

    def batch(self, *arguments, style="combine", out=None):
        """The arguments of a batch over the inputs' portraits, as it made the expected pictures."""
        return ["batch", "--bare",
                "--foregrounds", str(self.inputs / "portraits"), "--backgrounds", str(self.bench.background),
                "--out", str(out or self.out), "--style", style, *BATCH_SIZE, *map(str, arguments)]

    def put_portraits(self, count, name="p{}.png"):
        (self.inputs / "portraits").mkdir(exist_ok=True)
        for number in range(count):
            self.put("portraits/" + name.format(number), self.bench.portraits[number])

    def made(self, out=None):
        """The visible files of a folder by their paths in bytes."""
        root, found = os.fsencode(out or self.out), {}
        for place, folders, files in os.walk(root):
            folders[:] = [name for name in folders if not name.startswith(b".")]
            for path in (os.path.join(place, name) for name in files if not name.startswith(b".")):
                with open(path, "rb") as file:
                    found[os.path.relpath(path, root)] = file.read()
        return found

    def people(self, out=None):
        """Whose pictures lie there: the numbers of the portraits, None for a picture that is nobody's."""
        expected = self.bench.expected
        return sorted((expected.index(content) if content in expected else None
                       for content in self.made(out).values()), key=lambda one: -1 if one is None else one)

    def want_people(self, count, when):
        self.want(self.people() == list(range(count)), f"{when}: the pictures are those of {self.people()}, "
                  f"not of {count} people once each; {sorted(self.made())}")

    def stamps(self):
        """Shows every write: what stands where, since when."""
        facts = {path: os.stat(os.path.join(os.fsencode(self.out), path)) for path in self.made()}
        return {path: (fact.st_ino, fact.st_mtime_ns, fact.st_size) for path, fact in facts.items()}


def text(output):
    """The end of what a program printed, fit for one line."""
    return ascii(output.decode("utf-8", "replace").strip()[-300:])
