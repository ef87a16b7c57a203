#!/usr/bin/env python3
"""Writes the letter tile sources alpha0.svg ... alpha28.svg and feld0.svg.

Each letter is a skeleton of centre lines stroked twice: a wide black stroke, then a
narrower coloured one on top, so joins merge and a one-pixel outline stays round the
whole letter. Coordinates are tile pixels (25 x 30); stems sit on whole pixels so the
1x rendering stays sharp. "Mixed" colours are a checker dither laid over the pixels that
lie wholly inside the coloured stroke, the way a 16-colour screen showed them.

    python3 tools/pictures/make_tiles.py [OUTDIR]   (default: src/widgets/pictures)
"""
import math
import os
import sys

W, H = 25, 30
OUTER, INNER = 6, 4          # black and coloured stroke widths
XL, XR, XC = 5, 20, 12.5     # stem centres: left, right, middle
YB = 25                      # baseline centre


def arc(cx, cy, rx, ry, a0, a1, steps=None):
    """Points along an ellipse from angle a0 to a1 (degrees, y down)."""
    if steps is None:
        steps = max(4, int(abs(a1 - a0) / 10))
    out = []
    for i in range(steps + 1):
        a = math.radians(a0 + (a1 - a0) * i / steps)
        out.append((cx + rx * math.cos(a), cy + ry * math.sin(a)))
    return out


class Stroke:
    def __init__(self, pts, cap="square", join="miter", closed=False):
        self.pts, self.cap, self.join, self.closed = pts, cap, join, closed

    def d(self):
        s = "M" + " L".join(f"{x:.2f} {y:.2f}".replace(".00", "") for x, y in self.pts)
        return s + (" Z" if self.closed else "")

    # Is point p inside the stroke of width w? Joins are taken as round, which is a
    # slight underestimate at outer mitre corners and so safe for the dither.
    def covers(self, p, w):
        hw = w / 2
        pts = self.pts + ([self.pts[0]] if self.closed else [])
        n = len(pts) - 1
        for i in range(n):
            (ax, ay), (bx, by) = pts[i], pts[i + 1]
            dx, dy = bx - ax, by - ay
            length = math.hypot(dx, dy)
            if length == 0:
                continue
            ux, uy = dx / length, dy / length
            px, py = p[0] - ax, p[1] - ay
            along = px * ux + py * uy
            across = abs(-px * uy + py * ux)
            lo = -hw if (i == 0 and not self.closed and self.cap == "square") else 0
            hi = length + (hw if (i == n - 1 and not self.closed and self.cap == "square") else 0)
            if lo - 1e-9 <= along <= hi + 1e-9 and across <= hw + 1e-9:
                return True
        inner = pts if self.closed else pts[1:-1]
        return any(math.hypot(p[0] - x, p[1] - y) <= hw + 1e-9 for x, y in inner)


class Dot:
    """An umlaut dot: a small square with its own outline."""
    def __init__(self, x, y, size=3):
        self.x, self.y, self.size = x, y, size

    def covers(self, p, w):
        return self.x <= p[0] <= self.x + self.size and self.y <= p[1] <= self.y + self.size


def S(*pts, **kw):
    return Stroke(list(pts), **kw)


# --- the alphabet -------------------------------------------------------------------
# yt: centre of the top stroke; umlauts pass a lower one to make room for the dots.

def A(yt=5):
    # Flat apex and upright feet keep every end square to the pixel grid.
    foot = YB - 4
    bar = yt + (YB - yt) * 0.62
    def leg_x(y, x_foot, x_top):
        return x_foot + (foot - y) / (foot - yt) * (x_top - x_foot)
    return [S((XL, YB), (XL, foot), (10, yt), (15, yt), (XR, foot), (XR, YB)),
            S((leg_x(bar, XL, 10), bar), (leg_x(bar, XR, 15), bar), cap="butt")]


def B():
    return [S((XL, 15), (XL, 5), (13.5, 5), *arc(13.5, 10, 5.5, 5, -90, 90)[1:-1], (13.5, 15),
              closed=True, join="round"),
            S((XL, 15), (14, 15), *arc(14, 20, 6, 5, -90, 90)[1:-1], (14, YB), (XL, YB),
              closed=True, join="round")]


def C():
    return [S(*arc(XC + 0.5, 15, 7.5, 10, -42, -318), cap="butt", join="round")]


def D():
    return [S((XL, YB), (XL, 5), (10, 5), *arc(10, 15, 10, 10, -90, 90)[1:-1], (10, YB),
              closed=True, join="round")]


def E():
    return [S((19, 5), (XL, 5), (XL, YB), (19, YB)), S((XL, 15), (17, 15), cap="butt")]


def F():
    return [S((19, 5), (XL, 5), (XL, YB)), S((XL, 15), (17, 15), cap="butt")]


def G():
    return [S(*arc(XC + 0.5, 15, 7.5, 10, -42, -360), (14, 15), cap="butt", join="round")]


def Hh():
    return [S((XL, 5), (XL, YB)), S((XR, 5), (XR, YB)), S((XL, 15), (XR, 15), cap="butt")]


def I():
    return [S((XC, 5), (XC, YB), cap="butt"), S((8, 5), (17, 5)), S((8, YB), (17, YB))]


def J():
    return [S((12, 5), (XR, 5), (XR, 18), *arc(13.5, 18, 6.5, 7, 0, 180)[1:], (7, 17),
              join="round")]


def K():
    return [S((XL, 5), (XL, YB)),
            S((7.5, 15), (19, 6), (19, 5), join="miter"),
            S((10, 13.5), (19, 24), (19, YB), join="miter")]


def L():
    return [S((XL, 5), (XL, YB), (19, YB))]


def M():
    return [S((XL, YB), (XL, 5), (7, 5), (XC, 17), (18, 5), (XR, 5), (XR, YB))]


def N():
    return [S((XL, YB), (XL, 5), (7, 5), (18, YB), (XR, YB), (XR, 5))]


def O(yt=5):
    ry = (YB - yt) / 2
    return [S(*arc(XC, yt + ry, 7.5, ry, 0, 360, 40)[:-1], closed=True, join="round")]


def P():
    return [S((XL, YB), (XL, 5), (14, 5), *arc(14, 10.5, 6, 5.5, -90, 90)[1:-1], (14, 16),
              (XL, 16), join="round")]


def Q():
    return O() + [S((14, 20), (20, 26), (21, 26), cap="square", join="miter")]


def R():
    return P() + [S((13.5, 17.5), (19, 24), (19, YB), join="miter")]


def Ss():
    top = arc(XC, 10, 7, 5, -15, -270)
    bottom = arc(XC, 20, 7, 5, -90, 165)
    return [S(*top, *bottom[1:], cap="butt", join="round")]


def T():
    return [S((XL, 5), (XR, 5)), S((XC, 5), (XC, YB))]


def U(yt=5):
    return [S((XL, yt), (XL, 17), *arc(XC, 17, 7.5, 8, 180, 0)[1:-1], (XR, 17), (XR, yt),
              join="round")]


def V():
    return [S((4, 5), (4, 7), (10.5, YB), (14.5, YB), (21, 7), (21, 5))]


def Ww():
    return [S((4, 5), (4, 6), (7, YB), (12.5, 14), (18, YB), (21, 6), (21, 5))]


def X():
    return [S((XL, 5), (XL, 6), (XR, 24), (XR, YB)), S((XR, 5), (XR, 6), (XL, 24), (XL, YB))]


def Y():
    return [S((XL, 5), (XL, 6), (XC, 15), (XR, 6), (XR, 5)), S((XC, 15), (XC, YB))]


def Z():
    return [S((XL, 5), (XR, 5), (XR, 7), (XL, 23), (XL, YB), (XR, YB))]


def umlaut(body):
    return body + [Dot(6, 3), Dot(16, 3)]


UMLAUT_TOP = 11
LETTERS = [
    ("A", A, "red"), ("B", B, "cyan"), ("C", C, "yellow"), ("D", D, "magenta"),
    ("E", E, "green"), ("F", F, "yellow"), ("G", G, "blue"), ("H", Hh, "blue+cyan"),
    ("I", I, "red"), ("J", J, "red+magenta"), ("K", K, "green"), ("L", L, "yellow"),
    ("M", M, "blue"), ("N", N, "darkgreen"), ("O", O, "red"), ("P", P, "blue"),
    ("Q", Q, "yellow"), ("R", R, "green"), ("S", Ss, "cyan"), ("T", T, "red"),
    ("U", U, "magenta"), ("V", V, "yellow"), ("W", Ww, "darkgreen"), ("X", X, "yellow"),
    ("Y", Y, "blue"), ("Z", Z, "cyan"),
    ("Ä", lambda: umlaut(A(UMLAUT_TOP)), "red"),
    ("Ö", lambda: umlaut(O(UMLAUT_TOP)), "magenta"),
    ("Ü", lambda: umlaut(U(UMLAUT_TOP)), "green"),
]

# The 16-colour palette the game was born with, each with a lighter shade for the top.
COLOURS = {
    "red": ("#ff5a4a", "#e00000"),
    "cyan": ("#8ffcff", "#00d8e8"),
    "yellow": ("#fff88a", "#ffd800"),
    "magenta": ("#ff7cf4", "#e000d0"),
    "green": ("#7cf870", "#10c010"),
    "darkgreen": ("#30a838", "#006c10"),
    "blue": ("#4c6cff", "#0010e0"),
}


def gradient(gid, name):
    light, dark = COLOURS[name]
    return (f'<linearGradient id="{gid}" gradientUnits="userSpaceOnUse" x1="0" y1="2" '
            f'x2="0" y2="28"><stop offset="0" stop-color="{light}"/>'
            f'<stop offset="1" stop-color="{dark}"/></linearGradient>')


def dither(parts, colour):
    """Checker squares of the second colour over pixels wholly inside the letter."""
    cells = []
    for y in range(H):
        for x in range(W):
            if (x + y) % 2:
                continue
            corners = [(x, y), (x + 1, y), (x, y + 1), (x + 1, y + 1)]
            if all(any(p.covers(c, INNER) for p in parts) for c in corners):
                cells.append(f"M{x} {y}h1v1h-1z")
    return f'<path fill="{COLOURS[colour][1]}" d="{"".join(cells)}"/>'


def tile_svg(letter, parts, colour):
    first, _, second = colour.partition("+")
    strokes = [p for p in parts if isinstance(p, Stroke)]
    dots = [p for p in parts if isinstance(p, Dot)]

    def layer(width, paint):
        out = []
        for s in strokes:
            out.append(f'<path d="{s.d()}" stroke-linecap="{s.cap}" stroke-linejoin="{s.join}"/>')
        for d in dots:
            grow = (width - INNER) / 2
            out.append(f'<rect x="{d.x - grow:g}" y="{d.y - grow:g}" width="{d.size + 2 * grow:g}" '
                       f'height="{d.size + 2 * grow:g}" stroke="none" fill="{paint}"/>')
        return (f'<g fill="none" stroke="{paint}" stroke-width="{width}" stroke-miterlimit="2">'
                + "".join(out) + "</g>")

    lines = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{W}" height="{H}" viewBox="0 0 {W} {H}">',
        f"<!-- letter tile {letter}: generated by tools/pictures/make_tiles.py -->",
        "<defs>" + gradient("c", first) + "</defs>",
        f'<rect width="{W}" height="{H}" fill="#ffffff"/>',
        layer(OUTER, "#000000"),
        layer(INNER, "url(#c)"),
    ]
    if second:
        lines.append(dither(parts, second))
    lines.append("</svg>")
    return "\n".join(lines) + "\n"


def feld_svg():
    # Covered word field: red frame (2 px top, left, bottom; 1 px right), a black right
    # edge, and the blue and cyan dither inside.
    cells = "".join(f"M{x} {y}h1v1h-1z" for y in range(2, 28) for x in range(2, 23)
                    if (x + y) % 2 == 0)
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{W}" height="{H}" viewBox="0 0 {W} {H}">',
        "<!-- covered word field: generated by tools/pictures/make_tiles.py -->",
        f'<rect width="{W}" height="{H}" fill="#ff0000"/>',
        '<rect x="24" width="1" height="30" fill="#000000"/>',
        '<rect x="2" y="2" width="21" height="26" fill="#0000ff"/>',
        f'<path fill="#00ffff" d="{cells}"/>',
        "</svg>",
    ]) + "\n"


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "..", "..", "src", "widgets", "pictures")
    for i, (letter, make, colour) in enumerate(LETTERS):
        with open(os.path.join(out, f"alpha{i}.svg"), "w", encoding="utf-8") as f:
            f.write(tile_svg(letter, make(), colour))
    with open(os.path.join(out, "feld0.svg"), "w", encoding="utf-8") as f:
        f.write(feld_svg())


if __name__ == "__main__":
    main()
