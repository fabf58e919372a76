#!/usr/bin/env python3
"""Writes office-supply.dxf: the supply-air duct network of one office floor, drawn as a
designer draws it for the duct tracing and hydraulic calculation commands.

A rectangular main duct runs along the corridor (y = 0) from the air-handling unit at x = 0.
Every 3 m a pair of circular branches serves the offices on both sides; each branch splits
in the office into two runs ending at ceiling diffusers (blocks C201-1, attribute F-LL = air
flow in m³/h). One diffuser has no flow entered yet. One branch, added later, ends on the
middle of a main duct instead of at a joint. Duct lines carry their size (K_DUCT_SIZE: one
real for a circular duct, width and height for a rectangular one), number (K_DUCT_NO) and sum
of local-loss coefficients (K_DUCT_F); the first duct names the results file (outfile).

Usage: make_office_supply.py [OUTPUT.dxf]   (default: office-supply.dxf beside this script)
"""
import os
import sys

import ezdxf

LAYER = "SLJS-SUPPLY"
OUTLET = "C201-1"
APPS = ("K_DUCT_SIZE", "K_DUCT_NO", "K_DUCT_F", "outfile")

MAIN_SIZES = [(1000, 400), (1000, 400), (900, 400), (800, 400), (800, 320), (630, 320),
              (630, 320), (500, 320), (500, 250), (400, 250), (320, 200)]


class Floor:
    def __init__(self):
        self.doc = ezdxf.new("R2000")
        self.doc.header["$INSUNITS"] = 4  # millimetres
        self.doc.layers.add(LAYER, color=7)
        for app in APPS:
            self.doc.appids.add(app)
        block = self.doc.blocks.new(OUTLET)
        block.add_circle((0, 0), 150)
        block.add_line((-150, 0), (150, 0))
        block.add_line((0, -150), (0, 150))
        block.add_attdef("F-LL", (0, -300), dxfattribs={"height": 100})
        self.msp = self.doc.modelspace()
        self.number = 0

    def duct(self, start, end, size, xi):
        self.number += 1
        line = self.msp.add_line(start, end, dxfattribs={"layer": LAYER})
        reals = [(1040, float(s)) for s in size]
        line.set_xdata("K_DUCT_SIZE", [(1002, "{")] + reals + [(1002, "}")])
        line.set_xdata("K_DUCT_NO", [(1002, "{"), (1070, self.number), (1002, "}")])
        line.set_xdata("K_DUCT_F", [(1002, "{"), (1040, xi), (1002, "}")])
        return line

    def outlet(self, at, flow):
        insert = self.msp.add_blockref(OUTLET, at, dxfattribs={"layer": LAYER})
        if flow is not None:
            insert.add_attrib("F-LL", f"{flow:g}", (at[0], at[1] - 300), dxfattribs={"height": 100})

    def office_branch(self, x, side, flows, reverse):
        """Branch from the main at x to one side (+1 up, -1 down), splitting into two runs."""
        split = (x, side * 2500.0)
        first = self.duct((x, 0.0), split, (250,), 1.2)
        if reverse:  # drawn from the office back to the corridor: direction does not matter
            first.dxf.start, first.dxf.end = split, (x, 0.0)
        far = (x, side * 5000.0)
        self.duct(split, far, (200,), 0.9)
        self.outlet(far, flows[0])
        aside = (x + 1500.0, side * 2500.0)
        self.duct(split, aside, (160,), 1.1)
        self.outlet(aside, flows[1])


def build():
    floor = Floor()
    root = floor.duct((0.0, 0.0), (3000.0, 0.0), MAIN_SIZES[0], 0.5)
    root.set_xdata("outfile", [(1000, "office-supply.ksl")])
    for i in range(1, len(MAIN_SIZES)):
        x = 3000.0 * i
        floor.duct((x, 0.0), (x + 3000.0, 0.0), MAIN_SIZES[i], 0.3)
        up_flows = (320, None) if i == 5 else (300 + 10 * i, 260)
        floor.office_branch(x, +1, up_flows, reverse=i % 3 == 0)
        floor.office_branch(x, -1, (280, 240 + 5 * i), reverse=False)
    end = 3000.0 * len(MAIN_SIZES)
    floor.outlet((end, 0.0), 400)
    # Meeting room, added later: its branch ends on the middle of the second main duct.
    floor.duct((5250.0, -3000.0), (5250.0, -4.0), (250,), 1.5)
    floor.outlet((5250.0, -3000.0), 450)
    return floor.doc


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    output = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "office-supply.dxf")
    build().saveas(output)


if __name__ == "__main__":
    main()
