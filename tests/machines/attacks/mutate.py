"""Damage for files: anything that a bad card, a cut transfer or an ill will makes of bytes."""
import struct
import zlib

EXTREMES = (0, 1, 0x7F, 0x80, 0xFF, 0x7FFF, 0x8000, 0xFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF)


def flip_bits(rng, content):
    damaged = bytearray(content)
    for _ in range(rng.choice((1, 1, 4, 32, 256))):
        damaged[place(rng, content)] ^= 1 << rng.randrange(8)
    return bytes(damaged)


def cut(rng, content):
    return content[:rng.randrange(len(content))]


def set_number(rng, content):
    """A number of 2 or 4 bytes at any place, most often in the head."""
    damaged = bytearray(content)
    for _ in range(rng.choice((1, 1, 2, 5))):
        width = rng.choice("HI")
        number = struct.pack(rng.choice("<>") + width, rng.choice(EXTREMES) & (0xFFFF if width == "H" else 0xFFFFFFFF))
        at = place(rng, content)
        damaged[at:at + len(number)] = number
    return bytes(damaged)


def repeat_block(rng, content):
    at, length = block(rng, content)
    return content[:at] + content[at:at + length] * rng.choice((2, 2, 3, 50)) + content[at + length:]


def remove_block(rng, content):
    at, length = block(rng, content)
    return content[:at] + content[at + length:]


def fill_block(rng, content):
    at, length = block(rng, content)
    filling = rng.choice((bytes(length), b"\xff" * length, rng.randbytes(length)))
    return content[:at] + filling + content[at + length:]


def add_tail(rng, content):
    return content + rng.choice((bytes(5000), rng.randbytes(5000), content))


def place(rng, content):
    return rng.randrange(min(len(content), 600)) if rng.random() < 0.6 else rng.randrange(len(content))


def block(rng, content):
    at = place(rng, content)
    return at, min(rng.choice((1, 4, 16, 200, 3000)), len(content) - at)


WAYS = (flip_bits, flip_bits, cut, set_number, set_number, repeat_block, remove_block, fill_block, add_tail)


def damage(rng, content):
    """The damaged bytes, and how they were damaged in words."""
    ways = [rng.choice(WAYS) for _ in range(rng.choice((1, 1, 1, 2, 3)))]
    for way in ways:
        content = way(rng, content) or b"\0"
    return content, ", ".join(way.__name__ for way in ways)


def damage_text(rng, content):
    """The same for files of lines; often a number or a word changes and the form stays."""
    if rng.random() < 0.5:
        return damage(rng, content)
    lines = content.split(b"\n")
    at = rng.randrange(len(lines))
    digits = [i for i, byte in enumerate(lines[at]) if 48 <= byte <= 57]
    way = rng.choice(("number", "swap", "twice", "gone", "long"))
    if way == "number" and digits:
        number = rng.choice((b"-1", b"99999999999999999999", b"1e999", b"nan", b"4294967296", b"0.0000001",
                             b"2147483647"))
        lines[at] = lines[at][:digits[0]] + number + lines[at][digits[-1] + 1:]
    elif way == "swap":
        other = rng.randrange(len(lines))
        lines[at], lines[other] = lines[other], lines[at]
    elif way == "long":
        middle = len(lines[at]) // 2
        lines[at] = lines[at][:middle] + b"A" * rng.choice((300, 70000, 2000000)) + lines[at][middle:]
    else:
        lines[at:at + 1] = [lines[at]] * (2 if way == "twice" else 0)
    return b"\n".join(lines), "a line: " + way


def png_with_chunk_length(content, length=0x7FFFFFFF):
    """The second chunk says that it is so long."""
    return content[:33] + struct.pack(">I", length) + content[37:90]


def with_size(ending, content, width, height):
    """The picture says that it is so large; sums agree with that."""
    if ending == "png":
        head = struct.pack(">II", width, height) + content[24:29]
        return content[:16] + head + struct.pack(">I", zlib.crc32(b"IHDR" + head)) + content[33:]
    if ending == "jpg":
        at = content.find(b"\xff\xc0")
        return content[:at + 5] + struct.pack(">HH", height & 0xFFFF, width & 0xFFFF) + content[at + 9:]
    if ending == "gif":
        return content[:6] + struct.pack("<HH", width & 0xFFFF, height & 0xFFFF) + content[10:]
    if ending == "bmp":
        return content[:18] + struct.pack("<ii", width, height) + content[26:]
    if ending == "psd":
        return content[:14] + struct.pack(">II", height, width) + content[22:]
    if ending in ("tif", "dng"):
        entry = content.find(struct.pack("<HHI", 256, 4, 1))
        return content[:entry + 8] + struct.pack("<I", width) + content[entry + 12:entry + 20] + struct.pack(
            "<I", height) + content[entry + 24:]
    return content
