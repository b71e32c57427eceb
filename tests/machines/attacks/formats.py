"""Small pictures of all kinds that the program reads, written here byte by byte, and a look whether one is whole."""
import struct
import zlib

from support import png_chunk, png_of

SIDE = 96
GREEN = (40, 160, 60)
HERE = 0xFEEDBEEF


def rows_of(colour, side=SIDE):
    """A coloured square before a green screen."""
    edge = side // 4
    screen = bytes(GREEN) * side
    middle = screen[: 3 * edge] + bytes(colour) * (side - 2 * edge) + screen[3 * (side - edge):]
    return [middle if edge <= y < side - edge else screen for y in range(side)]


def png(colour=(200, 40, 90), extra=b""):
    return png_of(SIDE, SIDE, rows_of(colour), extra)


def png_with_text():
    dots = struct.pack(">IIB", 3937, 3937, 1)
    return png(extra=png_chunk(b"tEXt", b"Comment\0a portrait") + png_chunk(b"pHYs", dots) +
               png_chunk(b"eXIf", exif(orientation=6)))


def exif(orientation=1, make=b"Maker\0", entries=(), next_offset=0):
    """A block of EXIF in Intel order; `entries` are (tag, type, count, value) behind the usual ones."""
    own = [(0x0112, 3, 1, orientation), *entries]
    text_at = 8 + 2 + 12 * (len(own) + 1) + 4
    own.insert(0, (0x010F, 2, len(make), text_at))
    directory = b"".join(struct.pack("<HHII", *entry) for entry in own)
    return b"II*\0" + struct.pack("<IH", 8, len(own)) + directory + struct.pack("<I", next_offset) + make


def exif_loop():
    """Thousands of entries, all of them directories that begin where this one begins."""
    entries = [((0x8769, 0x8825, 0xA005)[i % 3], 4, 1, 8) for i in range(5000)]
    return exif(entries=entries, next_offset=8)


def jpeg_with_exif(jpeg, block):
    body = b"Exif\0\0" + block
    return jpeg[:2] + b"\xff\xe1" + struct.pack(">H", min(len(body) + 2, 65535)) + body[:65533] + jpeg[2:]


def bmp():
    rows = b"".join(row[::-1] for row in reversed(rows_of((200, 40, 90))))  # mirrored, so red comes last
    head = struct.pack("<IiiHHIIiiII", 40, SIDE, SIDE, 1, 24, 0, len(rows), 2835, 2835, 0, 0)
    return b"BM" + struct.pack("<IHHI", 54 + len(rows), 0, 0, 54) + head + rows


def psd():
    planes = b"".join(b"".join(row[band::3] for row in rows_of((200, 40, 90))) for band in range(3))
    head = b"8BPS" + struct.pack(">H6xHIIHH", 1, 3, SIDE, SIDE, 8, 3)
    return head + struct.pack(">III", 0, 0, 0) + struct.pack(">H", 0) + planes


def gif():
    """Two colours, and codes that are never combined: a clear code comes before the table grows."""
    bits = []
    pixels = [int(row[at:at + 3] != bytes(GREEN)) for row in rows_of((200, 40, 90)) for at in range(0, len(row), 3)]
    for index, pixel in enumerate(pixels):
        if index % 2 == 0:
            bits.append(4)
        bits.append(pixel)
    bits.append(5)
    value = sum(code << (3 * at) for at, code in enumerate(bits))
    data = value.to_bytes((3 * len(bits) + 7) // 8, "little")
    blocks = b"".join(bytes([len(data[at:at + 255])]) + data[at:at + 255] for at in range(0, len(data), 255))
    head = b"GIF89a" + struct.pack("<HHBBB", SIDE, SIDE, 0x80, 0, 0) + bytes(GREEN) + bytes((200, 40, 90))
    return head + b"," + struct.pack("<HHHHB", 0, 0, SIDE, SIDE, 0) + b"\2" + blocks + b"\0;"


def webp():
    """One colour without loss: five codes of one symbol each, so that the pixels take no bits at all."""
    fields = [(0x2F, 8), (SIDE - 1, 14), (SIDE - 1, 14), (0, 1), (0, 3), (0, 1), (0, 1), (0, 1)]
    for symbol in (GREEN[1], GREEN[0], GREEN[2], 255, 0):
        fields += [(1, 1), (0, 1), (1, 1), (symbol, 8)]
    value = at = 0
    for field, width in fields:
        value |= field << at
        at += width
    data = value.to_bytes((at + 7) // 8, "little")
    data += b"\0" * (len(data) % 2)
    return b"RIFF" + struct.pack("<I", 12 + len(data)) + b"WEBPVP8L" + struct.pack("<I", len(data)) + data


def directory_file(entries, data):
    """A TIFF of one directory in Intel order: values that do not fit their entries behind it, then the data, whose
    place is written where an entry says HERE."""
    entries = sorted(entries)
    end = 8 + 2 + 12 * len(entries) + 4
    packed, rest = b"", b""
    for tag, kind, count, value in entries:
        if isinstance(value, bytes) and len(value) > 4:
            packed += struct.pack("<HHII", tag, kind, count, end + len(rest))
            rest += value + b"\0" * (len(value) % 2)
        else:
            small = value if isinstance(value, bytes) else struct.pack("<I", value)
            packed += struct.pack("<HHI", tag, kind, count) + small.ljust(4, b"\0")
    packed = packed.replace(struct.pack("<I", HERE), struct.pack("<I", end + len(rest)))
    return b"II*\0" + struct.pack("<IH", 8, len(entries)) + packed + b"\0\0\0\0" + rest + data


def tiff():
    data = b"".join(rows_of((200, 40, 90)))
    return directory_file([(256, 4, 1, SIDE), (257, 4, 1, SIDE), (258, 3, 3, struct.pack("<3H", 8, 8, 8)),
                           (259, 3, 1, 1), (262, 3, 1, 2), (273, 4, 1, HERE), (274, 3, 1, 1), (277, 3, 1, 3),
                           (278, 4, 1, SIDE), (279, 4, 1, len(data))], data)


def dng():
    data = struct.pack("<H", 3000) * (SIDE * SIDE)
    numbers = (7000, -1500, -600, -5000, 13000, 2200, -900, 1800, 6500)
    matrix = struct.pack("<18i", *(part for number in numbers for part in (number, 10000)))
    return directory_file([(254, 4, 1, 0), (256, 4, 1, SIDE), (257, 4, 1, SIDE), (258, 3, 1, 16), (259, 3, 1, 1),
                           (262, 3, 1, 32803), (271, 2, 6, b"Maker\0"), (272, 2, 6, b"Model\0"), (273, 4, 1, HERE),
                           (274, 3, 1, 1), (277, 3, 1, 1), (278, 4, 1, SIDE), (279, 4, 1, len(data)),
                           (33421, 3, 2, struct.pack("<2H", 2, 2)), (33422, 1, 4, b"\0\1\1\2"),
                           (50706, 1, 4, b"\1\4\0\0"), (50708, 2, 12, b"Maker Model\0"), (50721, 10, 9, matrix),
                           (50778, 3, 1, 21)], data)


def made():
    """Pictures by their ending. JPEG comes from the program itself."""
    return {"png": png_with_text(), "tif": tiff(), "bmp": bmp(), "gif": gif(), "webp": webp(), "psd": psd(),
            "dng": dng()}


def size_of_png(content):
    """(width, height) of a PNG that is whole; raises ValueError otherwise."""
    if not content.startswith(b"\x89PNG\r\n\x1a\n"):
        raise ValueError("no PNG")
    at, pixels, head, kind = 8, b"", b"", b""
    while at + 12 <= len(content) and kind != b"IEND":
        length, kind = struct.unpack_from(">I4s", content, at)
        chunk = content[at + 8:at + 8 + length]
        if content[at + 8 + length:at + 12 + length] != struct.pack(">I", zlib.crc32(kind + chunk)):
            raise ValueError(f"a wrong sum in {kind}")
        head = chunk if kind == b"IHDR" else head
        pixels += chunk if kind == b"IDAT" else b""
        at += 12 + length
    if kind != b"IEND" or at != len(content):
        raise ValueError("no end where the file ends")
    width, height, bits, colour = struct.unpack_from(">IIBB", head)
    bands = {0: 1, 2: 3, 4: 2, 6: 4}[colour]
    if len(zlib.decompress(pixels)) != height * (1 + width * bands * bits // 8):
        raise ValueError("too few pixels")
    return width, height


def size_of_jpeg(content):
    if not content.startswith(b"\xff\xd8") or not content.endswith(b"\xff\xd9"):
        raise ValueError("no JPEG, or one that is cut short")
    at = 2
    while at + 9 < len(content):
        marker, length = struct.unpack_from(">HH", content, at)
        if 0xFFC0 <= marker <= 0xFFC2:
            height, width = struct.unpack_from(">HH", content, at + 5)
            return width, height
        at += 2 + length
    raise ValueError("no size")


def size_of(path):
    content = path.read_bytes()
    return size_of_png(content) if path.suffix == ".png" else size_of_jpeg(content)
