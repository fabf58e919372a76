"""The host commands driven from the console as a script would drive them, checked in the
saved drawing with ezdxf: its audit, and the layers, lines, donuts, breaks, texts, styles and
view read back by a reader that is not the host's."""

import math
import os
import subprocess
import sys
import tempfile
import unittest

import ezdxf
from ezdxf.math import bulge_to_arc

ADSCON = os.environ.get("ADSCON", "")


def run(*expressions, drawing=None, save):
    args = [ADSCON, "--save", save]
    if drawing:
        args += ["--drawing", drawing]
    for e in expressions:
        args += ["-e", e]
    proc = subprocess.run(args, capture_output=True, text=True, timeout=300)
    if proc.returncode != 0:
        raise AssertionError(proc.stdout + proc.stderr)
    return proc.stdout


def audited(path):
    doc = ezdxf.readfile(path)
    auditor = doc.audit()
    assert not auditor.errors, [e.message for e in auditor.errors]
    assert not auditor.fixes, [f.message for f in auditor.fixes]
    return doc


class HostCommands(unittest.TestCase):
    def setUp(self):
        self.tmp = tempfile.TemporaryDirectory()
        self.out = os.path.join(self.tmp.name, "out.dxf")

    def tearDown(self):
        self.tmp.cleanup()

    def test_layer_line_colour_and_break(self):
        run('(command "LAYER" "M" "_TBRE" "C" 1 "_TBRE" "")',
            '(command "COLOR" 3)',
            '(command "LINE" (list 0 0) (list 100 0) (list 100 50) "")',
            '(command "BREAK" (list 30 0.2) (list 60 0))',
            '(command "COLOR" "BYLAYER")',
            save=self.out)
        doc = audited(self.out)
        layer = doc.layers.get("_TBRE")
        self.assertEqual(layer.dxf.color, 1)
        self.assertEqual(doc.header["$CLAYER"], "_TBRE")
        self.assertEqual(doc.header["$CECOLOR"], 256)
        lines = sorted((tuple(l.dxf.start)[:2], tuple(l.dxf.end)[:2]) for l in doc.modelspace().query("LINE"))
        self.assertEqual(lines, [((0, 0), (30, 0)), ((60, 0), (100, 0)), ((100, 0), (100, 50))])
        for line in doc.modelspace().query("LINE"):
            self.assertEqual(line.dxf.layer, "_TBRE")
            self.assertEqual(line.dxf.color, 3)

    def test_donut_geometry_read_by_ezdxf(self):
        run('(command "DONUT" 50 150 (list 100 200) (list 400 200) "")', save=self.out)
        doc = audited(self.out)
        donuts = doc.modelspace().query("LWPOLYLINE")
        self.assertEqual(len(donuts), 2)
        donut = donuts[0]
        self.assertTrue(donut.closed)
        self.assertEqual(donut.dxf.const_width, 50.0)
        points = donut.get_points("xyb")
        self.assertEqual(len(points), 2)
        for i in range(2):
            start, end, bulge = points[i][:2], points[(i + 1) % 2][:2], points[i][2]
            centre, _, _, radius = bulge_to_arc(start, end, bulge)
            self.assertAlmostEqual(centre.x, 100.0)
            self.assertAlmostEqual(centre.y, 200.0)
            self.assertAlmostEqual(radius, 50.0)

    def test_donut_in_r12_drawing_is_an_old_style_polyline(self):
        source = os.path.join(self.tmp.name, "r12.dxf")
        ezdxf.new("R12").saveas(source)
        run('(command "DONUT" 0 10 (list 5 5) "")', drawing=source, save=self.out)
        doc = audited(self.out)
        polylines = doc.modelspace().query("POLYLINE")
        self.assertEqual(len(polylines), 1)
        vertices = list(polylines[0].vertices)
        self.assertEqual(len(vertices), 2)
        self.assertTrue(polylines[0].is_closed)
        self.assertEqual([v.dxf.bulge for v in vertices], [1.0, 1.0])
        self.assertEqual(polylines[0].dxf.default_start_width, 5.0)

    def test_text_style_and_zoom(self):
        run('(command "STYLE" "STANDARD" "SIMPLEX" 0 0.7 0 "N" "N" "N")',
            '(command "TEXT" "j" "m" (list 10 10) 7 0 "送风管")',
            '(command "LINE" (list 0 0) (list 400 100) "")',
            '(command "ZOOM" "e")',
            '(command "ZOOM" "0.9x")',
            save=self.out)
        doc = audited(self.out)
        style = doc.styles.get("Standard")
        self.assertAlmostEqual(style.dxf.width, 0.7)
        self.assertEqual(style.dxf.font, "SIMPLEX.shx")
        text = doc.modelspace().query("TEXT")[0]
        self.assertEqual(text.dxf.text, "送风管")
        self.assertEqual(text.dxf.height, 7.0)
        self.assertEqual(text.dxf.halign, 4)  # middle
        self.assertEqual(tuple(text.dxf.align_point)[:2], (10.0, 10.0))
        active = doc.viewports.get("*Active")[0]
        # Extents (0,0)-(400,100) of a 4:3 screen need the height 300; 0.9x enlarges it.
        self.assertAlmostEqual(active.dxf.height, 300.0 / 0.9)
        self.assertAlmostEqual(active.dxf.center[0], 200.0)
        self.assertAlmostEqual(active.dxf.center[1], 50.0)
        self.assertAlmostEqual(doc.header["$EXTMAX"][0], 400.0)

    def test_unchanged_drawing_through_commands_that_change_nothing(self):
        source = os.path.join(self.tmp.name, "src.dxf")
        doc = ezdxf.new("R2000")
        doc.modelspace().add_line((0, 0), (1, 1))
        doc.saveas(source)
        run('(command "LAYER" "")', '(command "ERASE" "")', drawing=source, save=self.out)
        with open(source, "rb") as a, open(self.out, "rb") as b:
            self.assertEqual(a.read(), b.read())


if __name__ == "__main__":
    if not ADSCON:
        print("ADSCON is not set", file=sys.stderr)
        sys.exit(1)
    unittest.main()
