"""pzjc through the console on drawings made here: donuts at collisions of line pipes, gaps cut
into the lower of two crossing polyline pipes, the limits and the argument messages."""

import unittest

import ezdxf

from drawing_console import run_on



def polyline_pipe(msp, layer, start, end):
    pline = msp.add_polyline3d([start, end], dxfattribs={"layer": layer})
    pline.set_xdata("STARTP", [(1010, start)])
    pline.set_xdata("ENDP", [(1010, end)])
    pline.set_xdata("GUANJ", [(1000, "DN20")])
    return pline


def new_drawing():
    doc = ezdxf.new("R2000")
    for app in ("STARTP", "ENDP", "GUANJ"):
        doc.appids.new(app)
    return doc


class Console:
    def console(self, doc, *expressions):
        return run_on(self, doc, *expressions)


def donut_centres(doc):
    centres = []
    for e in doc.modelspace().query('LWPOLYLINE[layer=="_TBRE"]'):
        (x1, y1, *_), (x2, y2, *_) = list(e.get_points())[:2]
        centres.append((round((x1 + x2) / 2, 6), round((y1 + y2) / 2, 6)))
    return sorted(centres)


class CollisionMarks(Console, unittest.TestCase):
    def drawing(self):
        doc = new_drawing()
        msp = doc.modelspace()
        msp.add_line((0, 0, 1000), (6000, 0, 1000), dxfattribs={"layer": "R02-GS"})
        msp.add_line((2000, -500, 1000), (2000, 500, 1000), dxfattribs={"layer": "R02-HS"})  # crosses
        msp.add_line((6000, 0, 1000), (6000, 800, 1000), dxfattribs={"layer": "R02-HS"})  # joint at an end
        msp.add_line((3000, 0, 1000), (3000, 900, 1000), dxfattribs={"layer": "J02-PS"})  # ends on the main
        msp.add_line((4500, -500, 1000), (4500, 500, 1000), dxfattribs={"layer": "B02-PS"})  # not a pipe layer
        # Rising 1:1 over the main at x = 5000: nearest distance 100/sqrt(2) = 70.71.
        msp.add_line((5000, -1000, 100), (5000, 1000, 2100), dxfattribs={"layer": "P03-XX"})
        return doc

    def test_donuts_at_crossings_and_near_misses_within_the_tolerance(self):
        out, doc = self.console(self.drawing(), "(pzjc 0 75.0)")
        self.assertEqual(donut_centres(doc), [(2000.0, 0.0), (5000.0, 0.0)], out)
        donut = doc.modelspace().query('LWPOLYLINE[layer=="_TBRE"]').first
        self.assertAlmostEqual(donut.dxf.const_width, 50.0)  # (150 - 50) / 2
        self.assertEqual(doc.layers.get("_TBRE").color, 1)
        self.assertEqual(doc.header["$CLAYER"], "_TBRE")

    def test_a_near_miss_outside_the_tolerance_is_not_marked(self):
        _, doc = self.console(self.drawing(), "(pzjc 0 70.0)")
        self.assertEqual(donut_centres(doc), [(2000.0, 0.0)])

    def test_more_than_1500_lines_are_refused(self):
        doc = new_drawing()
        for i in range(1501):
            doc.modelspace().add_line((i, 0), (i, 10), dxfattribs={"layer": "R01-GS"})
        out, saved = self.console(doc, "(pzjc 0 1.0)")
        self.assertIn("Too Many Entities( > 1500) !!", out)
        self.assertEqual(len(saved.modelspace().query("LWPOLYLINE")), 0)
        self.assertIsNone(saved.layers.get("_TBRE") if "_TBRE" in saved.layers else None)

    def test_argument_messages(self):
        out, _ = self.console(new_drawing(), "(pzjc)", '(pzjc "0" 1.0)', "(pzjc 2 1.0)", "(pzjc 0)", "(pzjc 0 1)")
        self.assertEqual(
            [line for line in out.splitlines() if "ERROR" in line],
            ["Application Vrn2 ERROR: " + m for m in (
                "Argument Needed !!", "Illegal Argument !!", "Argument should be integer 0 or 1.",
                "Argument Needed !!", "Illegal Argument !!")])


def pipe_ends(doc, layer):
    """The vertex runs of the polylines on LAYER, each as a sorted pair of plan points."""
    runs = []
    for e in doc.modelspace().query(f'POLYLINE[layer=="{layer}"]'):
        points = [tuple(round(c, 6) for c in v.dxf.location) for v in e.vertices]
        runs.append((points[0], points[-1]))
    return sorted(runs)


class CrossingBreaks(Console, unittest.TestCase):
    def test_the_lower_level_pipe_gets_a_gap_of_twice_the_radius(self):
        doc = new_drawing()
        msp = doc.modelspace()
        polyline_pipe(msp, "$R01-GS", (0, 0, 0), (1000, 0, 0))
        polyline_pipe(msp, "$R01-HS", (400, -500, -300), (400, 500, -300))
        polyline_pipe(msp, "$R01-HS", (700, -500, 0), (700, 500, 0))  # same height: never cut
        _, saved = self.console(doc, "(pzjc 1 100.0)")
        self.assertEqual(pipe_ends(saved, "$R01-GS"), [((0, 0, 0), (1000, 0, 0))])
        low = pipe_ends(saved, "$R01-HS")
        self.assertIn(((400, -500, -300), (400, -100, -300)), low)
        self.assertIn(((400, 100, -300), (400, 500, -300)), low)
        self.assertIn(((700, -500, 0), (700, 500, 0)), low)
        piece = saved.modelspace().query('POLYLINE[layer=="$R01-HS"]').first
        self.assertTrue(piece.has_xdata("STARTP"), "pieces keep the pipe's data")

    def test_a_gap_near_an_end_is_one_sided_and_a_sloping_tie_cuts_the_later_pipe(self):
        doc = new_drawing()
        msp = doc.modelspace()
        polyline_pipe(msp, "$P01-AA", (0, 0, 0), (1000, 0, 100))  # 30 at x = 300
        polyline_pipe(msp, "$P01-BB", (300, -40, 26), (300, 1000, 130))  # 30 at y = 0: a tie
        _, saved = self.console(doc, "(pzjc 1 100.0)")
        self.assertEqual(pipe_ends(saved, "$P01-AA"), [((0, 0, 0), (1000, 0, 100))])
        # 100 before the crossing is beyond the start (40 before it): the gap runs from the
        # crossing itself to 100 past it, and the 40 stub stays.
        self.assertEqual(pipe_ends(saved, "$P01-BB"),
                         [((300, -40, 26), (300, 0, 30)), ((300, 100, 40), (300, 1000, 130))])

    def test_2500_gaps_stop_before_any_cut(self):
        doc = new_drawing()
        msp = doc.modelspace()
        for i in range(50):
            polyline_pipe(msp, "$R01-GS", (-10, i * 10, 0), (510, i * 10, 0))
            polyline_pipe(msp, "$R01-HS", (i * 10 + 5, -10, 100), (i * 10 + 5, 510, 100))
        out, saved = self.console(doc, "(pzjc 1 1.0)")
        self.assertIn("Too Many Break Points( > 2500) !!", out)
        self.assertEqual(len(saved.modelspace().query("POLYLINE")), 100)


if __name__ == "__main__":
    unittest.main()
