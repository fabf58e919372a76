#!/usr/bin/python3
"""Writes small drawings for the DXF fuzzer's seed corpus, one per version and kind of content.

Each holds what the host's reader treats in its own way: polylines with vertices and SEQEND,
inserts with attributes, a block inserting another, extended data with nested lists, texts
in the drawing's code page, layers and line types in the tables.
Usage: seed_drawings.py FOLDER
"""

import os
import sys

import ezdxf


def fill(doc):
    doc.layers.add("PIPES", color=3)
    doc.appids.add("VRNDATA")
    inner = doc.blocks.new("MARK")
    inner.add_circle((0, 0), 1.0)
    outer = doc.blocks.new("TAG")
    outer.add_blockref("MARK", (2, 0))
    outer.add_attdef("NO", (0, -2), dxfattribs={"height": 0.5})
    msp = doc.modelspace()
    line = msp.add_line((0, 0), (10, 5), dxfattribs={"layer": "PIPES"})
    line.set_xdata("VRNDATA", [(1000, "DN50"), (1002, "{"), (1040, 2.5), (1070, 3), (1002, "}"),
                               (1010, (1, 2, 3))])
    msp.add_polyline3d([(0, 0, 0), (5, 0, 1), (5, 5, 2)])
    if doc.dxfversion > "AC1009":
        msp.add_lwpolyline([(0, 0), (3, 0), (3, 3)], close=True)
    msp.add_arc((4, 4), 2, 0, 90)
    msp.add_text("Zuluft 20 °C", dxfattribs={"height": 0.3}).set_placement((1, 1))
    tag = msp.add_blockref("TAG", (20, 20))
    tag.add_attrib("NO", "F1001", (20, 18))


def main():
    folder = sys.argv[1]
    os.makedirs(folder, exist_ok=True)
    for version in ("R12", "R2000", "R2013"):
        doc = ezdxf.new(version)
        fill(doc)
        doc.saveas(os.path.join(folder, f"generated-{version}.dxf"))
    # A bare drawing: the tables and blocks a new drawing has, nothing in model space.
    ezdxf.new("R12").saveas(os.path.join(folder, "generated-empty-R12.dxf"))


if __name__ == "__main__":
    main()
