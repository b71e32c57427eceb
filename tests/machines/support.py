"""What the tests of batches on farms and full disks share."""
import struct
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


def write_portrait(path, number):
    """A PNG of a coloured square before a green screen, another one for each number."""
    width, height = 240, 300
    side, left, top = 100, 40 + number, 90 + 2 * number % 80
    colour = bytes((200, 40 + 3 * number, 90))
    screen = bytes((40, 160, 60)) * width
    middle = screen[: 3 * left] + colour * side + screen[3 * (left + side):]
    rows = b"".join(b"\0" + (middle if top <= y < top + side else screen) for y in range(height))

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    head = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(rows)) +
                     chunk(b"IEND", b""))
