"""One picture as an SVG file, kept within what small renderers draw right: plain shapes, paths, simple gradients."""


def Number(value):
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


class Svg:
    """A picture of width x height pixels. Colours are '#rrggbb' or what Gradient and Radial return."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.defs, self.body = [], []

    def _Add(self, shape, fill, opacity=1.0):
        extra = f' fill-opacity="{Number(opacity)}"' if opacity != 1.0 else ""
        self.body.append(f'{shape} fill="{fill}"{extra}/>')

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
        corner = f' rx="{Number(round_by)}" ry="{Number(round_by)}"' if round_by else ""
        self._Add(f'<rect x="{Number(x)}" y="{Number(y)}" width="{Number(width)}" height="{Number(height)}"{corner}',
                  fill, opacity)

    def Circle(self, cx, cy, radius, fill, opacity=1.0):
        self._Add(f'<circle cx="{Number(cx)}" cy="{Number(cy)}" r="{Number(radius)}"', fill, opacity)

    def Shape(self, data, fill, opacity=1.0):
        self._Add(f'<path d="{data}"', fill, opacity)

    def Polygon(self, points, fill, opacity=1.0):
        self.Shape("M" + "L".join(f"{Number(x)} {Number(y)}" for x, y in points) + "Z", fill, opacity)

    def Stroke(self, data, color, width=1.0, cap="square", join="miter", opacity=1.0):
        extra = f' stroke-opacity="{Number(opacity)}"' if opacity != 1.0 else ""
        self.body.append(f'<path d="{data}" fill="none" stroke="{color}" stroke-width="{Number(width)}" '
                         f'stroke-linecap="{cap}" stroke-linejoin="{join}" stroke-miterlimit="2"{extra}/>')

    def Lines(self, points, color, width=1.0, **style):
        self.Stroke("M" + "L".join(f"{Number(x)} {Number(y)}" for x, y in points), color, width, **style)

    def Place(self, other, left, top):
        """Puts another picture into this one; it may have no gradients."""
        assert not other.defs
        self.body.append(f'<g transform="translate({left} {top})">{"".join(other.body)}</g>')

    def Text(self):
        defs = f"<defs>{''.join(self.defs)}</defs>\n" if self.defs else ""
        return (f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="{self.width}" '
                f'height="{self.height}" viewBox="0 0 {self.width} {self.height}">\n{defs}'
                + "\n".join(self.body) + "\n</svg>\n")
