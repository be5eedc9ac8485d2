"""Small PNG files: pictures with at most 256 colours."""
import collections
import struct
import zlib

MOST_COLOURS = 256
# Colours are alike if they have the same upper bits in each channel.
ALIKE = 0xF0
# At most this many entries of the palette are for different colours; the others are for the most frequent ones.
MOST_DIFFERENT = 200


def _palette(counts):
    """The most frequent colour of each group of alike ones, so that small coloured parts keep their colour, then the most
    frequent ones of all."""
    frequent = [colour for colour, _ in counts.most_common()]
    groups = {}
    for colour in frequent:
        groups.setdefault(tuple(value & ALIKE for value in colour), colour)
    chosen = list(groups.values())[:MOST_DIFFERENT]
    known = set(chosen)
    return (chosen + [colour for colour in frequent if colour not in known])[:MOST_COLOURS]


def _nearest(colour, palette):
    red, green, blue = colour
    return min(range(len(palette)), key=lambda at: (red - palette[at][0]) ** 2 + (green - palette[at][1]) ** 2
               + (blue - palette[at][2]) ** 2)


def write_indexed_png(path, width, height, bgrx):
    """Writes 32-bit BGRX pixel rows as a PNG with 256 colours; others become the nearest of them."""
    pixels = list(zip(bgrx[2::4], bgrx[1::4], bgrx[0::4]))
    counts = collections.Counter(pixels)
    palette = _palette(counts)
    index = {colour: at for at, colour in enumerate(palette)}
    index.update((colour, _nearest(colour, palette)) for colour in counts if colour not in index)
    indexed = bytes(index[pixel] for pixel in pixels)
    raw = b"".join(b"\0" + indexed[y * width:(y + 1) * width] for y in range(height))

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))
    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 3, 0, 0, 0))
                   + chunk(b"PLTE", bytes(value for colour in palette for value in colour))
                   + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))
