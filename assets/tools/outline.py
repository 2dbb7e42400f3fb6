"""Turns lit cells of a grid into closed outlines: one polygon around each patch, one around each hole."""

# The four sides of a cell, as steps between grid corners (y grows downwards), with the cell on the right hand.
_Sides = (((0, 0), (1, 0), (0, -1)), ((1, 0), (1, 1), (1, 0)), ((1, 1), (0, 1), (0, 1)), ((0, 1), (0, 0), (-1, 0)))


def _Border_Edges(cells):
    edges = {}
    for x, y in sorted(cells):
        for (x0, y0), (x1, y1), (dx, dy) in _Sides:
            if (x + dx, y + dy) not in cells:
                edges.setdefault((x + x0, y + y0), []).append((x + x1, y + y1))
    return edges


def _Right_Turn_First(came_from, at, choices):
    """Where two cells touch at a corner only, turning right keeps them apart."""
    dx, dy = at[0] - came_from[0], at[1] - came_from[1]
    right = (at[0] - dy, at[1] + dx)
    return right if right in choices else choices[0]


def _Corners_Only(points):
    def Straight(a, b, c):
        return (b[0] - a[0]) * (c[1] - b[1]) == (b[1] - a[1]) * (c[0] - b[0])
    count = len(points)
    return [points[i] for i in range(count) if not Straight(points[i - 1], points[i], points[(i + 1) % count])]


def Outlines(cells):
    """Lists of corners in grid units; outer borders run clockwise on the page, holes the other way."""
    edges = _Border_Edges(cells)
    outlines = []
    while edges:
        start = min(edges)
        path, at, came_from = [start], edges[start][0], start
        edges[start].pop(0)
        while at != start:
            path.append(at)
            choice = _Right_Turn_First(came_from, at, edges[at])
            edges[at].remove(choice)
            came_from, at = at, choice
        edges = {corner: ends for corner, ends in edges.items() if ends}
        outlines.append(_Corners_Only(path))
    return outlines
