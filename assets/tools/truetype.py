"""Writes a TrueType font of straight-lined, fixed-pitch glyphs, byte for byte the same on each run."""

import struct

_Epoch = 3_786_912_000  # fixed date of creation, seconds since 1904


def _Glyph_Data(outlines):
    """One simple glyph: on-curve points only, words for all coordinates."""
    if not outlines:
        return b""
    points = [point for outline in outlines for point in outline]
    xs, ys = [x for x, _ in points], [y for _, y in points]
    ends, last = [], -1
    for outline in outlines:
        last += len(outline)
        ends.append(last)
    data = struct.pack(">hhhhh", len(outlines), min(xs), min(ys), max(xs), max(ys))
    data += struct.pack(f">{len(ends)}HH", *ends, 0) + b"\x01" * len(points)
    for values in (xs, ys):
        steps = [b - a for a, b in zip([0] + values, values)]
        data += struct.pack(f">{len(steps)}h", *steps)
    return data + b"\0" * (-len(data) % 4)


def _Cmap(codes):
    """Format 4 over one unbroken run of codes, glyph numbers from 1 on."""
    first, last = codes[0], codes[-1]
    assert codes == list(range(first, last + 1))
    table = struct.pack(">HHHHHHH", 4, 32, 0, 4, 4, 1, 0)
    table += struct.pack(">HHHHHhhHH", last, 0xFFFF, 0, first, 0xFFFF, 1 - first, 1, 0, 0)
    return struct.pack(">HHHHIHHI", 0, 2, 0, 3, 20, 3, 1, 20) + table


def _Name(family, copyright_line):
    rows = ((0, copyright_line), (1, family), (2, "Regular"), (3, family + " Regular"), (4, family),
            (5, "Version 1.0"), (6, family))
    records, strings = b"", b""
    for number, text in rows:
        encoded = text.encode("utf-16-be")
        records += struct.pack(">HHHHHH", 3, 1, 0x409, number, len(encoded), len(strings))
        strings += encoded
    return struct.pack(">HHH", 0, len(rows), 6 + len(records)) + records + strings


def _Os2(advance, ascent, em, first, last):
    panose = bytes((2, 0, 5, 9, 0, 0, 0, 0, 0, 0))
    half = em // 2
    return (struct.pack(">HhHHH", 4, advance, 400, 5, 0)
            + struct.pack(">10h", half, half, 0, em // 8, half, half, 0, half, em // 18, half)
            + struct.pack(">h", 0) + panose + struct.pack(">IIII", 1, 0, 0, 0) + b"MLVR"
            + struct.pack(">HHH", 0x40, first, last) + struct.pack(">hhhHH", ascent, 0, 0, ascent, 0)
            + struct.pack(">II", 1, 0) + struct.pack(">hhHHH", ascent, ascent, 0, first, 0))


def _Checksum(data):
    data += b"\0" * (-len(data) % 4)
    return sum(struct.unpack(f">{len(data) // 4}I", data)) & 0xFFFFFFFF


def _Assemble(tables):
    count = len(tables)
    power = 1 << (count.bit_length() - 1)
    head = struct.pack(">IHHHH", 0x00010000, count, power * 16, power.bit_length() - 1, (count - power) * 16)
    offset, directory, body = 12 + 16 * count, b"", b""
    for tag in sorted(tables):
        data = tables[tag]
        directory += tag.encode() + struct.pack(">III", _Checksum(data), offset + len(body), len(data))
        body += data + b"\0" * (-len(data) % 4)
    font = head + directory + body
    place = offset + sum(len(tables[t]) + -len(tables[t]) % 4 for t in sorted(tables) if t < "head") + 8
    return font[:place] + struct.pack(">I", (0xB1B0AFBA - _Checksum(font)) & 0xFFFFFFFF) + font[place + 4:]


def Build_Font(family, copyright_line, em, ascent, advance, glyphs, codes):
    """glyphs[0] is what codes outside the font show; glyphs[i + 1] belongs to codes[i]. Units are em parts, y up."""
    shapes = [_Glyph_Data(outlines) for outlines in glyphs]
    places = [sum(len(s) for s in shapes[:i]) for i in range(len(shapes) + 1)]
    boxes = [struct.unpack(">hhhhh", s[:10])[1:] for s in shapes if s]
    box = (min(b[0] for b in boxes), min(b[1] for b in boxes), max(b[2] for b in boxes), max(b[3] for b in boxes))
    sides = [struct.unpack(">hh", s[:4])[1] if s else 0 for s in shapes]
    points = max(sum(len(o) for o in outlines) for outlines in glyphs)
    contours = max(len(outlines) for outlines in glyphs)
    return _Assemble({
        "OS/2": _Os2(advance, ascent, em, codes[0], codes[-1]),
        "cmap": _Cmap(codes),
        "gasp": struct.pack(">HHHH", 1, 1, 0xFFFF, 0x000A),
        "glyf": b"".join(shapes),
        "head": struct.pack(">IIIIHHQQhhhhHHhhh", 0x00010000, 0x00010000, 0, 0x5F0F3CF5, 0x000B, em,
                            _Epoch, _Epoch, *box, 0, 8, 2, 1, 0),
        "hhea": struct.pack(">IhhhHhhhhhhhhhhhH", 0x00010000, ascent, 0, 0, advance, min(sides),
                            advance - box[2], box[2], 1, 0, 0, 0, 0, 0, 0, 0, len(shapes)),
        "hmtx": b"".join(struct.pack(">Hh", advance, side) for side in sides),
        "loca": struct.pack(f">{len(places)}I", *places),
        "maxp": struct.pack(">IHHH", 0x00010000, len(shapes), points, contours)
                + struct.pack(">11H", 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0),
        "name": _Name(family, copyright_line),
        "post": struct.pack(">IIhhIIIII", 0x00030000, 0, -em // 9, em // 18, 1, 0, 0, 0, 0),
    })
