"""One picture as an SVG file, kept within what small renderers draw right: plain shapes, paths, simple gradients."""

import re


def Number(value):
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


Everywhere = (float("-inf"), float("-inf"), float("inf"), float("inf"))


def Overlap(one, other):
    """Boxes are (left, top, right, bottom)."""
    return one[0] < other[2] and other[0] < one[2] and one[1] < other[3] and other[1] < one[3]


def Box_Of(data, around):
    """Of a path; straight lines and curves stay inside their points."""
    if re.search("[^MLQCZ0-9. -]", data):
        return Everywhere
    numbers = [float(number) for number in re.findall(r"-?[0-9.]+", data)]
    xs, ys = numbers[::2], numbers[1::2]
    return min(xs) - around, min(ys) - around, max(xs) + around, max(ys) + around


class Svg:
    """A picture of width x height pixels. Colours are '#rrggbb' or what Gradient and Radial return."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.defs, self.body = [], []
        self._boxes = []  # of the parts of the body
        self._joined = {}  # style of a path: its place in the body

    def _Put(self, part, box):
        self.body.append(part)
        self._boxes.append(box)

    def _Join(self, data, style, box):
        """Draws into the last path of that style where nothing that was put there since would be painted over: a
        panel's hundreds of scale marks then are a few elements, which a program reads in a fraction of the time."""
        at = self._joined.get(style)
        if at is not None and not any(Overlap(box, later) for later in self._boxes[at + 1:]):
            self.body[at] = self.body[at].replace('" ', data + '" ', 1)
            self._boxes[at] = tuple(pick(pair) for pick, pair in zip((min, min, max, max), zip(self._boxes[at], box)))
            return
        self._joined[style] = len(self.body)
        self._Put(f'<path d="{data}" {style}/>', box)

    def _Add(self, shape, fill, opacity=1.0, box=Everywhere):
        extra = f' fill-opacity="{Number(opacity)}"' if opacity != 1.0 else ""
        self._Put(f'{shape} fill="{fill}"{extra}/>', box)

    def _Stops(self, stops):
        return "".join(f'<stop offset="{Number(at)}" stop-color="{color}"'
                       + (f' stop-opacity="{Number(opacity[0])}"' if opacity else "") + "/>"
                       for at, color, *opacity in stops)

    def Gradient(self, *stops, across=False):
        """A straight gradient over the shape, downwards or across; stops are (place 0..1, colour[, opacity])."""
        name = f"g{len(self.defs)}"
        x2, y2 = (1, 0) if across else (0, 1)
        self.defs.append(f'<linearGradient id="{name}" x1="0" y1="0" x2="{x2}" y2="{y2}">{self._Stops(stops)}'
                         "</linearGradient>")
        return f"url(#{name})"

    def Radial(self, cx, cy, radius, *stops):
        """A round gradient; centre and radius in parts of the shape's box."""
        name = f"g{len(self.defs)}"
        self.defs.append(f'<radialGradient id="{name}" cx="{Number(cx)}" cy="{Number(cy)}" r="{Number(radius)}">'
                         f"{self._Stops(stops)}</radialGradient>")
        return f"url(#{name})"

    def Rect(self, x, y, width, height, fill, round_by=0, opacity=1.0):
        box = (x, y, x + width, y + height)
        if not round_by and opacity == 1.0 and fill.startswith("#"):
            left, top, right, bottom = map(Number, box)
            self._Join(f"M{left} {top}L{right} {top}L{right} {bottom}L{left} {bottom}Z", f'fill="{fill}"', box)
            return
        corner = f' rx="{Number(round_by)}" ry="{Number(round_by)}"' if round_by else ""
        self._Add(f'<rect x="{Number(x)}" y="{Number(y)}" width="{Number(width)}" height="{Number(height)}"{corner}',
                  fill, opacity, box)

    def Circle(self, cx, cy, radius, fill, opacity=1.0):
        self._Add(f'<circle cx="{Number(cx)}" cy="{Number(cy)}" r="{Number(radius)}"', fill, opacity)

    def Shape(self, data, fill, opacity=1.0):
        self._Add(f'<path d="{data}"', fill, opacity)

    def Polygon(self, points, fill, opacity=1.0):
        self.Shape("M" + "L".join(f"{Number(x)} {Number(y)}" for x, y in points) + "Z", fill, opacity)

    def Stroke(self, data, color, width=1.0, cap="square", join="miter", opacity=1.0):
        extra = f' stroke-opacity="{Number(opacity)}"' if opacity != 1.0 else ""
        style = (f'fill="none" stroke="{color}" stroke-width="{Number(width)}" stroke-linecap="{cap}" '
                 f'stroke-linejoin="{join}" stroke-miterlimit="2"{extra}')
        box = Box_Of(data, 2 * width)  # a corner reaches out by the miter limit
        if opacity == 1.0 and box != Everywhere:
            self._Join(data, style, box)
        else:
            self._Put(f'<path d="{data}" {style}/>', box)

    def Lines(self, points, color, width=1.0, **style):
        self.Stroke("M" + "L".join(f"{Number(x)} {Number(y)}" for x, y in points), color, width, **style)

    def Place(self, other, left, top):
        """Puts another picture into this one; it may have no gradients."""
        assert not other.defs
        self._Put(f'<g transform="translate({left} {top})">{"".join(other.body)}</g>', Everywhere)

    def Text(self):
        defs = f"<defs>{''.join(self.defs)}</defs>\n" if self.defs else ""
        return (f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="{self.width}" '
                f'height="{self.height}" viewBox="0 0 {self.width} {self.height}">\n{defs}'
                + "\n".join(self.body) + "\n</svg>\n")
