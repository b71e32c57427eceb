"""What the tests of batches on farms and full disks, and the attacks, share."""
import os
import shutil
import struct
import subprocess
import sys
import time
import zlib

SKIPPED = 77


def skip(reason):
    print(f"Skipped: {reason}")
    sys.exit(SKIPPED)


def wait_for(what, seconds, ready):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if ready():
            return True
        time.sleep(0.05)
    print(f"Waited {seconds} s in vain: {what}")
    return False


def has_own_mount_space():
    """Whether this program may mount. It is started again in a mount space of its own, if that can be had."""
    if os.environ.get("TAVRIN_OWN_MOUNTS"):
        return True
    for flags in (["-m"], ["-r", "-m"]):
        if shutil.which("unshare") and subprocess.run(["unshare", *flags, "true"], capture_output=True).returncode == 0:
            os.environ["TAVRIN_OWN_MOUNTS"] = "1"
            os.execvp("unshare", ["unshare", *flags, sys.executable, *sys.argv])
    return False


def mount(folder, options):
    """Mounts a memory disk. Returns "" or why that is not possible."""
    done = subprocess.run(["mount", "-t", "tmpfs", "-o", options, "tmpfs", str(folder)], capture_output=True, text=True)
    return "" if done.returncode == 0 else done.stderr.strip() or "mount failed"


def png_chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png_of(width, height, rows, extra=b""):
    """A PNG of 8 bits RGB. `rows` are bytes, `extra` are chunks before the pixels."""
    head = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    pixels = zlib.compress(b"".join(b"\0" + row for row in rows))
    return (b"\x89PNG\r\n\x1a\n" + png_chunk(b"IHDR", head) + extra + png_chunk(b"IDAT", pixels) +
            png_chunk(b"IEND", b""))


def write_portrait(path, number):
    """A PNG of a coloured square before a green screen, another one for each number."""
    width, height = 240, 300
    side, left, top = 100, 40 + number, 90 + 2 * number % 80
    colour = bytes((200, 40 + 3 * number, 90))
    screen = bytes((40, 160, 60)) * width
    middle = screen[: 3 * left] + colour * side + screen[3 * (left + side):]
    path.write_bytes(png_of(width, height, [middle if top <= y < top + side else screen for y in range(height)]))
