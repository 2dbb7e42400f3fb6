"""Outlines of the ten oscillator shapes, 24 x 12 pixels each."""

import math

from palette import Cyan, Letter
from svg import Svg

Left, Right, High, Low, Middle = 1.5, 22.5, 1.5, 10.5, 6.0


def _Sine(rectified):
    def Height(i):
        value = math.sin(2 * math.pi * i / 42)
        return Middle - 4.5 * (abs(value) if rectified else value)
    return [(Left + i / 2, Height(i)) for i in range(43)]


def _Steps(*levels):
    width = (Right - Left) / len(levels)
    return [(Left + width * (i + side), y) for i, y in enumerate(levels) for side in (0, 1)]


Outlines = (
    [(Left, Low), (11.5, High), (11.5, Low), (21.5, High), (21.5, Low)],
    [(Left, Low), (21.5, High), (21.5, Low)],
    [(Left, Low), (11.5, Low), (11.5, High), (21.5, High), (21.5, Low)],
    [(Left, Low), (12, High), (Right, Low)],
    _Sine(False),
    _Sine(True),
    [(Left, Low), (Left, High), (4.5, High), (4.5, Low), (Right, Low)],
    _Steps(High, Low, High, Low, High, Low, High),
    [(Left, 8.5), (3.5, 5), (6, 3.5), (8, 6.5), (10.5, 9.5), (13, 7), (15, 8.5)],
    _Steps(5.5, 2.5, 9.5, 4.5, 10.5, 1.5, 7.5),
)


def Draw_Wave(picture, index, left, top):
    points = [(left + x, top + y) for x, y in Outlines[index]]
    picture.Lines(points, Letter, cap="square", join="round" if index in (4, 5, 8) else "miter")
    if index == 8:  # the curve drawn by hand, with the pen that drew it
        x, y = left + 15, top + 9
        picture.Polygon(((x, y + 1), (x + 1, y - 2), (x + 6, y - 8), (x + 8, y - 6), (x + 3, y)), Cyan)


def Pictures():
    named = {}
    for index in range(10):
        named[f"osc-wave-{index}"] = Svg(24, 12)
        Draw_Wave(named[f"osc-wave-{index}"], index, 0, 0)
    return named
