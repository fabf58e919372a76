#!/usr/bin/python3
"""Writes a small heating system drawing for the pipe tools (examples/heating-system.lsp).

Plan of a two-room floor, drawing units millimetres:
  - supply run on layer "$R01-GS": 3-D polyline pipes from the boiler connection at the
    origin along the corridor, with a "_PLB2" valve fitting in the run and two branches to
    radiators (blocks "F1001-A" and "F1002-B1"); each pipe carries "STARTP", "ENDP" and
    "GUANJ" data, each radiator "BMARK" and "INSP";
  - return run on layer "$R01-HS", 300 lower, crossing the supply branches in plan;
  - a sloping drain on "$J01-PS" crossing the supply main;
  - line pipes on "R02-GS" / "R02-HS" and "J02-PS" for the collision check: two crossing at
    the same height, two passing 20 apart in height, one ending on another.
Usage: heating-system.py [OUTPUT.dxf]   (default: heating-system.dxf beside this script)
"""

import os
import sys

import ezdxf

APPS = ("STARTP", "ENDP", "GUANJ", "BMARK", "INSP")


def pipe_polyline(msp, layer, points, diameter):
    """A polyline pipe: its ends and diameter in extended data, its vertices as drawn."""
    pline = msp.add_polyline3d(points, dxfattribs={"layer": layer})
    pline.set_xdata("STARTP", [(1010, points[0])])
    pline.set_xdata("ENDP", [(1010, points[-1])])
    pline.set_xdata("GUANJ", [(1000, diameter)])
    return pline


def fitting(msp, layer, start, end, diameter):
    """A "_PLB2" fitting (a valve) placed between two pipe ends."""
    mid = tuple((a + b) / 2 for a, b in zip(start, end))
    insert = msp.add_blockref("_PLB2", mid, dxfattribs={"layer": layer, "xscale": 100, "yscale": 100})
    insert.set_xdata("STARTP", [(1010, start)])
    insert.set_xdata("ENDP", [(1010, end)])
    insert.set_xdata("GUANJ", [(1000, diameter)])
    return insert


def radiator(msp, block, layer, at, mark, rotation=0.0):
    # Drawn at scale 100: the pipe diameter is probed 200 from the connection, along the
    # rotation, where the branch pipe comes in.
    insert = msp.add_blockref(block, at, dxfattribs={"layer": layer, "rotation": rotation,
                                                     "xscale": 100, "yscale": 100, "zscale": 100})
    insert.set_xdata("BMARK", [(1000, mark)])
    insert.set_xdata("INSP", [(1010, at)])
    return insert


def define_blocks(doc):
    valve = doc.blocks.new("_PLB2")
    valve.add_line((-1, -1), (1, 1))
    valve.add_line((-1, 1), (1, -1))
    for name in ("F1001-A", "F1002-B1"):
        block = doc.blocks.new(name)
        block.add_lwpolyline([(-6, 0), (6, 0), (6, 6), (-6, 6)], close=True)


def build(path):
    doc = ezdxf.new("R2000")
    for app in APPS:
        doc.appids.new(app)
    for layer in ("$R01-GS", "$R01-HS", "$J01-PS", "R02-GS", "R02-HS", "J02-PS"):
        doc.layers.new(layer)
    define_blocks(doc)
    msp = doc.modelspace()

    supply, ret = "$R01-GS", "$R01-HS"
    pipe_polyline(msp, supply, [(0, 0, 0), (3000, 0, 0)], "DN32")
    fitting(msp, supply, (3000, 0, 0), (3200, 0, 0), "DN32")
    pipe_polyline(msp, supply, [(3200, 0, 0), (5000, 0, 0)], "DN25")
    pipe_polyline(msp, supply, [(5000, 0, 0), (8000, 0, 0)], "DN25")
    pipe_polyline(msp, supply, [(5000, 0, 0), (5000, 2500, 0)], "DN20")
    pipe_polyline(msp, supply, [(8000, 0, 0), (8000, 2500, 0)], "DN20")
    radiator(msp, "F1001-A", supply, (5000, 2500, 0), "R-1", rotation=270.0)
    radiator(msp, "F1002-B1", supply, (8000, 2500, 0), "R-2", rotation=270.0)

    pipe_polyline(msp, ret, [(0, 600, -300), (9000, 600, -300)], "DN32")
    pipe_polyline(msp, "$J01-PS", [(2000, -1500, 200), (2000, 1500, -400)], "DN40")

    msp.add_line((0, 5000, 2800), (6000, 5000, 2800), dxfattribs={"layer": "R02-GS"})
    msp.add_line((2000, 4000, 2800), (2000, 6000, 2800), dxfattribs={"layer": "R02-HS"})
    msp.add_line((4000, 4000, 2780), (4000, 6000, 2780), dxfattribs={"layer": "J02-PS"})
    msp.add_line((6000, 5000, 2800), (6000, 6000, 2800), dxfattribs={"layer": "R02-HS"})
    doc.saveas(path)


if __name__ == "__main__":
    here = os.path.dirname(os.path.abspath(__file__))
    build(sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "heating-system.dxf"))
