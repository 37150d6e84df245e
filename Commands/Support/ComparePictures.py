# SPDX-License-Identifier: MIT
"""Compares pictures with recorded ones: ComparePictures.py <recorded> <drawn>

A pixel differs if one of its colours does by more than a little, which compilers and releases of a toolkit may change; a
picture differs if more than one pixel of a thousand does, or its size.
"""

import struct
import sys
import zlib
from pathlib import Path

SIGNATURE = b'\x89PNG\r\n\x1a\n'
COLOURS = 3
LARGEST_DIFFERENCE = 24
MOST_PIXELS = 0.001


def paeth(left, above, corner):
    estimate = left + above - corner
    return min((abs(estimate - left), 0, left), (abs(estimate - above), 1, above), (abs(estimate - corner), 2, corner))[2]


def unfilter(kind, line, before):
    for place, value in enumerate(line):
        left = line[place - COLOURS] if place >= COLOURS else 0
        corner = before[place - COLOURS] if place >= COLOURS else 0
        above = before[place]
        line[place] = (value + (0, left, above, (left + above) // 2, paeth(left, above, corner))[kind]) & 255
    return line


def read_picture(path):
    """Width and height, and the rows, each with three bytes for a pixel."""
    data = path.read_bytes()
    if not data.startswith(SIGNATURE):
        sys.exit(f'{path}: expected a PNG')
    position, packed, size = len(SIGNATURE), b'', (0, 0)
    while position < len(data):
        length, kind = struct.unpack('>I4s', data[position:position + 8])
        content = data[position + 8:position + 8 + length]
        if kind == b'IHDR':
            *size, depth, colours = struct.unpack('>IIBB', content[:10])
            if (depth, colours) != (8, 2):
                sys.exit(f'{path}: expected 8 bits for each of red, green and blue')
        elif kind == b'IDAT':
            packed += content
        position += length + 12
    lines, rows = zlib.decompress(packed), []
    step = size[0] * COLOURS + 1
    before = bytes(step - 1)
    for start in range(0, len(lines), step):
        before = unfilter(lines[start], bytearray(lines[start + 1:start + step]), before)
        rows.append(before)
    return tuple(size), rows


def count_differences(rows, others):
    differing = 0
    for row, other in zip(rows, others):
        if row != other:
            differing += sum(any(abs(row[at + colour] - other[at + colour]) > LARGEST_DIFFERENCE
                                 for colour in range(COLOURS)) for at in range(0, len(row), COLOURS))
    return differing


def compare(recorded, drawn):
    """What is wrong with a picture, or None."""
    if not recorded.is_file() or not drawn.is_file():
        return f'{drawn.name}: there is only {recorded if recorded.is_file() else drawn}'
    if recorded.read_bytes() == drawn.read_bytes():
        return None
    (size, rows), (other_size, others) = read_picture(recorded), read_picture(drawn)
    if size != other_size:
        return f'{drawn.name}: expected {size[0]} x {size[1]} pixels, found {other_size[0]} x {other_size[1]}'
    differing = count_differences(rows, others)
    if differing > MOST_PIXELS * size[0] * size[1]:
        return f'{drawn.name}: {differing} of {size[0] * size[1]} pixels differ'
    return None


def main(recorded, drawn):
    names = sorted({path.name for folder in (recorded, drawn) for path in folder.glob('*.png')})
    wrong = [fault for fault in (compare(recorded / name, drawn / name) for name in names) if fault]
    print('\n'.join(wrong) if wrong else f'{len(names)} pictures of the coffee machine on {recorded.parent.name} are as recorded')
    return 1 if wrong or not names else 0


if __name__ == '__main__':
    sys.exit(main(Path(sys.argv[1]), Path(sys.argv[2])))
