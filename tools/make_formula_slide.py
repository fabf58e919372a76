#!/usr/bin/env python3
"""Writes dwglib/formula.sld: the coil's heat-transfer formula

                1
    K = ----------------------
           1             1
        ---------- + ---------
        A·Vy^m·ξ^p    B·w^n

as a slide of vectors, drawn with a small stroke font, for the image tile of the device
database editor.

Slide layout (new format, little-endian): the 17-byte identifier "AutoCAD Slide" CR LF ^Z NUL,
type 0x56, level 2, the highest x and y dot, the aspect ratio of the dot range times 10 000 000 (4 bytes, square pixels), the
hardware-fill flag, the test number 0x1234; then records of 16-bit words: a vector is four words
(from x, from y, to x, to y) whose first word stays below 0x8000; 0xFFnn sets colour nn; 0xFC00
ends the slide. The slide's origin is its lower-left corner.
"""
import struct
import sys
from pathlib import Path

# Glyph strokes on a grid 4 wide; capitals 6 high, small letters 4 high, descenders to -2.
GLYPHS = {
    "1": [[(1, 5), (2, 6), (2, 0)], [(1, 0), (3, 0)]],
    "K": [[(0, 0), (0, 6)], [(4, 6), (0, 2)], [(1.4, 3.4), (4, 0)]],
    "=": [[(0, 2), (4, 2)], [(0, 4), (4, 4)]],
    "+": [[(0, 3), (4, 3)], [(2, 1), (2, 5)]],
    "A": [[(0, 0), (2, 6), (4, 0)], [(0.7, 2), (3.3, 2)]],
    "B": [[(0, 0), (0, 6), (3, 6), (4, 5), (4, 4), (3, 3), (0, 3)],
          [(3, 3), (4, 2), (4, 1), (3, 0), (0, 0)]],
    "V": [[(0, 6), (2, 0), (4, 6)]],
    "y": [[(0, 4), (2, 0)], [(4, 4), (1, -2), (0, -2)]],
    "m": [[(0, 0), (0, 4)], [(0, 3), (1, 4), (2, 3), (2, 0)], [(2, 3), (3, 4), (4, 3), (4, 0)]],
    "n": [[(0, 0), (0, 4)], [(0, 3), (1, 4), (3, 4), (4, 3), (4, 0)]],
    "p": [[(0, -2), (0, 4)], [(0, 3), (1, 4), (3, 4), (4, 3), (4, 1), (3, 0), (1, 0), (0, 1)]],
    "w": [[(0, 4), (1, 0), (2, 3), (3, 0), (4, 4)]],
    "ξ": [[(1, 6), (3, 6)], [(3, 6), (1, 5), (1, 4), (3, 4)],
          [(3, 4), (1, 3.5), (0, 2.5), (0, 1), (1, 0), (3, 0), (3, -1), (2, -2)]],
    "·": [[(0.7, 2.7), (1.3, 2.7), (1.3, 3.3), (0.7, 3.3), (0.7, 2.7)]],
}
ADVANCE = {"·": 2.0}
SUPERSCRIPT_SCALE = 0.6


def advance(ch, scale=1.0):
    return ADVANCE.get(ch, 5.0) * scale


def text_width(run):
    """Width of a run: a list of (character, superscript) pairs."""
    return sum(advance(ch, SUPERSCRIPT_SCALE if sup else 1.0) for ch, sup in run)


def run_of(text):
    """'^' raises the next character."""
    run, sup = [], False
    for ch in text:
        if ch == "^":
            sup = True
            continue
        run.append((ch, sup))
        sup = False
    return run


class Drawing:
    def __init__(self):
        self.lines = []  # (x1, y1, x2, y2) in grid units

    def line(self, a, b):
        self.lines.append((a[0], a[1], b[0], b[1]))

    def text(self, text, x, baseline):
        for ch, sup in run_of(text):
            scale = SUPERSCRIPT_SCALE if sup else 1.0
            rise = 3.5 if sup else 0.0
            for stroke in GLYPHS[ch]:
                pts = [(x + px * scale, baseline + rise + py * scale) for px, py in stroke]
                for a, b in zip(pts, pts[1:]):
                    self.line(a, b)
            x += advance(ch, scale)
        return x

    def fraction(self, numerator, denominator, left, bar):
        """A fraction with its bar at height BAR from LEFT; answers its right end."""
        width = max(text_width(run_of(numerator)), text_width(run_of(denominator))) + 2
        self.line((left, bar), (left + width, bar))
        self.text(numerator, left + (width - text_width(run_of(numerator))) / 2, bar + 1.5)
        self.text(denominator, left + (width - text_width(run_of(denominator))) / 2, bar - 7.5)
        return left + width


def formula():
    d = Drawing()
    bar = 20.0
    x = d.text("K", 1.0, bar - 3) + 1.5
    x = d.text("=", x, bar - 3) + 1.5
    outer_left = x
    inner_bar = bar - 9
    x = d.fraction("1", "A·Vy^m·ξ^p", outer_left + 1, inner_bar) + 1.5
    x = d.text("+", x, inner_bar - 3) + 1.5
    x = d.fraction("1", "B·w^n", x, inner_bar) + 1
    d.line((outer_left, bar), (x, bar))
    d.text("1", outer_left + (x - outer_left - 5) / 2, bar + 1.5)
    return d


def slide_bytes(d, width_px=640, height_px=240, colour=7):
    xs = [v for l in d.lines for v in (l[0], l[2])]
    ys = [v for l in d.lines for v in (l[1], l[3])]
    x0, y0 = min(xs) - 1, min(ys) - 1
    scale = min((width_px - 1) / (max(xs) + 1 - x0), (height_px - 1) / (max(ys) + 1 - y0))
    px = lambda v, o: int(round((v - o) * scale))
    out = bytearray(b"AutoCAD Slide\r\n\x1a\x00")
    out += struct.pack("<BBHHIHH", 0x56, 2, width_px - 1, height_px - 1,
                       int(round((width_px - 1) / (height_px - 1) * 10_000_000)), 0, 0x1234)
    out += struct.pack("<H", 0xFF00 | colour)
    for x1, y1, x2, y2 in d.lines:
        out += struct.pack("<HHHH", px(x1, x0), px(y1, y0), px(x2, x0), px(y2, y0))
    out += struct.pack("<H", 0xFC00)
    return bytes(out)


def main():
    root = Path(__file__).resolve().parent.parent
    target = Path(sys.argv[1]) if len(sys.argv) > 1 else root / "dwglib" / "formula.sld"
    data = slide_bytes(formula())
    target.write_bytes(data)
    print(f"{target}: {len(data)} bytes")


if __name__ == "__main__":
    main()
