#!/usr/bin/python3
"""Builds the 16 by 16 GB2312 bitmap font file system/cclib from Debian's public-domain
GuoBiao Song font (package xfonts-intl-chinese, converted with pcf2bdf).

Layout of the file: 94 zones of 94 positions, 32 bytes per glyph, two bytes per row from the
top, the most significant bit of a row's first byte being its leftmost pixel; the glyph of
zone q and position p (both from 1) starts at ((q - 1) * 94 + p - 1) * 32.
"""
import gzip
import subprocess
import sys
import tempfile

FONT = "/usr/share/fonts/X11/misc/guob16.pcf.gz"
ZONES = 94
CELL = 16


def bdf_text(pcf_gz):
    with tempfile.NamedTemporaryFile(suffix=".pcf") as pcf:
        with gzip.open(pcf_gz, "rb") as src:
            pcf.write(src.read())
        pcf.flush()
        return subprocess.run(["pcf2bdf", pcf.name], check=True, capture_output=True).stdout.decode("latin-1")


def glyphs(bdf):
    ascent = None
    lines = iter(bdf.splitlines())
    for line in lines:
        if line.startswith("FONT_ASCENT"):
            ascent = int(line.split()[1])
        if not line.startswith("STARTCHAR"):
            continue
        encoding, bbx, rows = None, None, []
        for line in lines:
            if line.startswith("ENCODING"):
                encoding = int(line.split()[1])
            elif line.startswith("BBX"):
                bbx = [int(v) for v in line.split()[1:]]
            elif line.startswith("BITMAP"):
                for line in lines:
                    if line.startswith("ENDCHAR"):
                        break
                    rows.append(int(line, 16) << (32 - 4 * len(line)))  # left-aligned in 32 bits
                break
        yield encoding, bbx, rows, ascent


def build(out_path):
    data = bytearray(ZONES * 94 * 32)
    count = 0
    for encoding, (w, h, xoff, yoff), rows, ascent in glyphs(bdf_text(FONT)):
        zone, position = (encoding >> 8) - 0x20, (encoding & 0xFF) - 0x20
        if not (1 <= zone <= ZONES and 1 <= position <= 94):
            continue
        top = ascent - (yoff + h)
        base = ((zone - 1) * 94 + position - 1) * 32
        for r, bits in enumerate(rows):
            y = top + r
            if not 0 <= y < CELL:
                continue
            row = (bits >> 16) >> max(0, xoff) if xoff >= 0 else (bits >> 16) << -xoff
            row &= 0xFFFF
            data[base + 2 * y] = row >> 8
            data[base + 2 * y + 1] = row & 0xFF
        count += 1
    with open(out_path, "wb") as f:
        f.write(data)
    print(f"{out_path}: {count} glyphs, {len(data)} bytes")


if __name__ == "__main__":
    build(sys.argv[1] if len(sys.argv) > 1 else "system/cclib")
