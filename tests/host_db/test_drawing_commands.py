"""CIRCLE, ARC, PLINE, INSERT, EXPLODE and PURGE driven from the console as a script drives
them, on drawings made by ezdxf, and the saved result read back by ezdxf: its audit, the
entities' types and the values ezdxf's own geometry gives for the same input (circles
through points, tangents of bulge arcs, block reference transforms); and commands that
make several entities (EXPLODE, BREAK) leaving the drawing as it was when one cannot be made."""

import math
import os
import subprocess
import sys
import tempfile
import unittest

import ezdxf
from ezdxf.math import Matrix44, Vec3, bulge_to_arc

ADSCON = os.environ.get("ADSCON", "")


def run(*expressions, drawing=None, save=None, expect_ok=True):
    args = [ADSCON]
    if save:
        args += ["--save", save]
    if drawing:
        args += ["--drawing", drawing]
    for e in expressions:
        args += ["-e", e]
    proc = subprocess.run(args, capture_output=True, text=True, timeout=300)
    if expect_ok and proc.returncode != 0:
        raise AssertionError(proc.stdout + proc.stderr)
    return proc


def audited(path):
    doc = ezdxf.readfile(path)
    auditor = doc.audit()
    assert not auditor.errors, [e.message for e in auditor.errors]
    assert not auditor.fixes, [f.message for f in auditor.fixes]
    return doc


def circumcentre(a, b, c):
    """The centre of the circle through three points, by the perpendicular bisectors."""
    (ax, ay), (bx, by), (cx, cy) = a, b, c
    d = 2 * (ax * (by - cy) + bx * (cy - ay) + cx * (ay - by))
    ux = ((ax * ax + ay * ay) * (by - cy) + (bx * bx + by * by) * (cy - ay) + (cx * cx + cy * cy) * (ay - by)) / d
    uy = ((ax * ax + ay * ay) * (cx - bx) + (bx * bx + by * by) * (ax - cx) + (cx * cx + cy * cy) * (bx - ax)) / d
    return ux, uy


def lisp_point(p):
    return "(list %r %r)" % (float(p[0]), float(p[1]))


def segment_directions(start, end, bulge):
    """Unit tangents at the start and end of a polyline segment, from ezdxf's arc."""
    start, end = Vec3(start), Vec3(end)
    if abs(bulge) < 1e-12:
        d = (end - start).normalize()
        return d, d
    centre, _, _, _ = bulge_to_arc(start, end, bulge)
    centre = Vec3(centre)
    turn = 1 if bulge > 0 else -1  # counter-clockwise: the tangent is the radius turned left
    at_start = (start - centre).orthogonal(ccw=turn > 0).normalize()
    at_end = (end - centre).orthogonal(ccw=turn > 0).normalize()
    return at_start, at_end


class DrawingCommands(unittest.TestCase):
    def setUp(self):
        self.tmp = tempfile.TemporaryDirectory()
        self.out = os.path.join(self.tmp.name, "out.dxf")

    def tearDown(self):
        self.tmp.cleanup()

    def source(self, doc):
        path = os.path.join(self.tmp.name, "source.dxf")
        doc.saveas(path)
        return path

    def test_circles_and_arcs_through_points(self):
        a, b, c = (7.0, 1.0), (2.5, 4.0), (-3.0, -1.5)
        ux, uy = circumcentre(a, b, c)
        r = math.hypot(a[0] - ux, a[1] - uy)
        run('(command "CIRCLE" "3P" %s %s %s)' % (lisp_point(a), lisp_point(b), lisp_point(c)),
            '(command "CIRCLE" %s "D" 8)' % lisp_point(a),
            '(command "CIRCLE" "2P" %s %s)' % (lisp_point(a), lisp_point(c)),
            '(command "ARC" %s %s %s)' % (lisp_point(a), lisp_point(b), lisp_point(c)),
            '(command "ARC" %s "C" (list 0 0) "A" 135)' % lisp_point((5, 0)),
            save=self.out)
        doc = audited(self.out)
        circles = doc.modelspace().query("CIRCLE")
        self.assertEqual(len(circles), 3)
        self.assertAlmostEqual(circles[0].dxf.center.x, ux)
        self.assertAlmostEqual(circles[0].dxf.center.y, uy)
        self.assertAlmostEqual(circles[0].dxf.radius, r)
        self.assertAlmostEqual(circles[1].dxf.radius, 4.0)
        self.assertAlmostEqual(circles[2].dxf.center.x, (a[0] + c[0]) / 2)
        self.assertAlmostEqual(circles[2].dxf.radius, math.hypot(a[0] - c[0], a[1] - c[1]) / 2)
        arcs = doc.modelspace().query("ARC")
        self.assertEqual(len(arcs), 2)
        arc = arcs[0]
        self.assertAlmostEqual(arc.dxf.center.x, ux)
        self.assertAlmostEqual(arc.dxf.radius, r)
        # The points run counter-clockwise (b lies left of a->c), so a starts the arc.
        self.assertTrue(arc.start_point.isclose(Vec3(a), abs_tol=1e-9))
        self.assertTrue(arc.end_point.isclose(Vec3(c), abs_tol=1e-9))
        self.assertAlmostEqual(arcs[1].dxf.start_angle % 360, 0.0)
        self.assertAlmostEqual(arcs[1].dxf.end_angle, 135.0)

    def test_pline_arcs_are_tangent_and_widths_read_back(self):
        points = [(0, 0), (10, 0), (18, 6), (12, 15)]
        run('(command "PLINE" %s "W" 0.5 1.5 %s "A" %s %s "L" %s "")'
            % (lisp_point(points[0]), lisp_point(points[1]), lisp_point(points[2]), lisp_point(points[3]),
               lisp_point((0, 15))),
            save=self.out)
        doc = audited(self.out)
        polylines = doc.modelspace().query("LWPOLYLINE")
        self.assertEqual(len(polylines), 1)
        vertices = polylines[0].get_points("xyseb")
        self.assertEqual(len(vertices), 5)
        self.assertEqual((vertices[0][2], vertices[0][3]), (0.5, 1.5))
        self.assertEqual((vertices[1][2], vertices[1][3]), (1.5, 1.5))
        self.assertEqual(vertices[0][4], 0.0)
        self.assertNotEqual(vertices[1][4], 0.0)
        self.assertNotEqual(vertices[2][4], 0.0)
        self.assertEqual(vertices[3][4], 0.0)
        # Each arc leaves in the direction the segment before it arrived in.
        previous_end = None
        for i in range(4):
            start, end, bulge = vertices[i][:2], vertices[i + 1][:2], vertices[i][4]
            at_start, at_end = segment_directions(start, end, bulge)
            if bulge != 0:
                self.assertTrue(at_start.isclose(previous_end, abs_tol=1e-9), (i, at_start, previous_end))
            previous_end = at_end
        # Exploded: lines and arcs on the same centres, the widths gone.
        run('(command "EXPLODE" (entlast) "")', drawing=self.out, save=self.out)
        doc = audited(self.out)
        msp = doc.modelspace()
        self.assertEqual(len(msp.query("LWPOLYLINE")), 0)
        self.assertEqual(len(msp.query("LINE")), 2)
        arcs = msp.query("ARC")
        self.assertEqual(len(arcs), 2)
        for arc, i in zip(arcs, (1, 2)):
            centre, start_angle, end_angle, radius = bulge_to_arc(vertices[i][:2], vertices[i + 1][:2],
                                                                  vertices[i][4])
            self.assertAlmostEqual(arc.dxf.center.x, centre.x)
            self.assertAlmostEqual(arc.dxf.center.y, centre.y)
            self.assertAlmostEqual(arc.dxf.radius, radius)
            self.assertAlmostEqual(arc.dxf.start_angle % 360, math.degrees(start_angle) % 360)
            self.assertAlmostEqual(arc.dxf.end_angle % 360, math.degrees(end_angle) % 360)

    def tag_drawing(self):
        doc = ezdxf.new("R2000")
        doc.layers.add("TAGS")
        block = doc.blocks.new("VALVE", base_point=(10, 0))
        block.add_line((10, 0), (14, 0))
        block.add_circle((12, 0), 2)
        block.add_attdef("NO", (12, 1), dxfattribs={"height": 2.5, "prompt": "Valve number"}).dxf.text = "V1"
        block.add_attdef("SIZE", (12, -3), dxfattribs={"height": 1.5, "prompt": "Size"}).dxf.text = "DN50"
        return doc

    def test_insert_with_attributes_placed_by_the_block_transform(self):
        source = self.source(self.tag_drawing())
        run('(command "LAYER" "S" "TAGS" "")',
            '(command "INSERT" "valve" (list 100 50) 2 "" 30 "V-17" "")',
            drawing=source, save=self.out)
        doc = audited(self.out)
        inserts = doc.modelspace().query("INSERT")
        self.assertEqual(len(inserts), 1)
        insert = inserts[0]
        self.assertEqual(insert.dxf.name, "VALVE")
        self.assertEqual(insert.dxf.layer, "TAGS")
        self.assertAlmostEqual(insert.dxf.rotation, 30.0)
        self.assertEqual((insert.dxf.xscale, insert.dxf.yscale), (2.0, 2.0))
        attribs = {a.dxf.tag: a for a in insert.attribs}
        self.assertEqual(attribs["NO"].dxf.text, "V-17")
        self.assertEqual(attribs["SIZE"].dxf.text, "DN50", "Enter takes the default")
        # The expected positions: base point off, scaled, turned, moved, computed by ezdxf.
        m = Matrix44.chain(Matrix44.translate(-10, 0, 0), Matrix44.scale(2, 2, 2),
                           Matrix44.z_rotate(math.radians(30)), Matrix44.translate(100, 50, 0))
        for tag, at in (("NO", (12, 1, 0)), ("SIZE", (12, -3, 0))):
            self.assertTrue(attribs[tag].dxf.insert.isclose(m.transform(at), abs_tol=1e-9), tag)
            self.assertAlmostEqual(attribs[tag].dxf.rotation, 30.0)
        self.assertAlmostEqual(attribs["NO"].dxf.height, 5.0)
        # Exploding brings back the definitions, placed; the values given are gone.
        run('(command "EXPLODE" (entlast) "")', drawing=self.out, save=self.out)
        doc = audited(self.out)
        msp = doc.modelspace()
        self.assertEqual(len(msp.query("INSERT")), 0)
        self.assertEqual(len(msp.query("ATTRIB")), 0)
        attdefs = {a.dxf.tag: a for a in msp.query("ATTDEF")}
        self.assertEqual(attdefs["NO"].dxf.text, "V1")
        self.assertTrue(attdefs["SIZE"].dxf.insert.isclose(m.transform((12, -3, 0)), abs_tol=1e-9))
        circle = msp.query("CIRCLE")[0]
        self.assertTrue(circle.dxf.center.isclose(m.transform((12, 0, 0)), abs_tol=1e-9))
        self.assertAlmostEqual(circle.dxf.radius, 4.0)
        line = msp.query("LINE")[0]
        self.assertTrue(line.dxf.end.isclose(m.transform((14, 0, 0)), abs_tol=1e-9))

    def test_exploded_mirrored_reference_matches_what_another_reader_explodes(self):
        doc = ezdxf.new("R2000")
        block = doc.blocks.new("FITTING", base_point=(5, 5))
        block.add_line((5, 5), (9, 7))
        block.add_circle((7, 5), 1.5)
        block.add_arc((5, 5), 3, 10, 100)
        block.add_lwpolyline([(5, 5, 0, 0, 0.5), (8, 5, 0, 0, 0), (8, 8, 0, 0, 0)], format="xyseb")
        doc.modelspace().add_blockref("FITTING", (40, 30), dxfattribs={
            "xscale": -2, "yscale": 2, "zscale": 2, "rotation": 30})
        source = self.source(doc)
        # What ezdxf makes of the reference, read from the same file.
        reference = ezdxf.readfile(source).modelspace().query("INSERT")[0]
        expected = {e.dxftype(): e for e in reference.virtual_entities()}
        run('(command "EXPLODE" (ssget "X" (list (cons 0 "INSERT"))) "")', drawing=source, save=self.out)
        msp = audited(self.out).modelspace()
        self.assertEqual(len(msp.query("INSERT")), 0)
        line, circle, arc = msp.query("LINE")[0], msp.query("CIRCLE")[0], msp.query("ARC")[0]
        self.assertTrue(line.dxf.start.isclose(expected["LINE"].dxf.start, abs_tol=1e-9))
        self.assertTrue(line.dxf.end.isclose(expected["LINE"].dxf.end, abs_tol=1e-9))
        # Readers may draw a mirrored circle from below (extrusion -Z): compare in the world.
        self.assertTrue(circle.ocs().to_wcs(circle.dxf.center).isclose(
            expected["CIRCLE"].ocs().to_wcs(expected["CIRCLE"].dxf.center), abs_tol=1e-9))
        self.assertAlmostEqual(circle.dxf.radius, 3.0)
        # Arcs compared by the points they pass, whichever way a reader writes them.
        ours = [Vec3(p) for p in arc.vertices([arc.dxf.start_angle, arc.dxf.end_angle,
                                               arc.dxf.start_angle + (arc.dxf.end_angle - arc.dxf.start_angle) % 360 / 2])]
        theirs = expected["ARC"]
        theirs = [Vec3(p) for p in theirs.vertices([theirs.dxf.start_angle, theirs.dxf.end_angle,
                                                   theirs.dxf.start_angle + (theirs.dxf.end_angle - theirs.dxf.start_angle) % 360 / 2])]
        self.assertTrue(ours[2].isclose(theirs[2], abs_tol=1e-9), "the arc runs through the same middle")
        self.assertEqual({p.round(9) for p in ours[:2]}, {p.round(9) for p in theirs[:2]})
        polyline = msp.query("LWPOLYLINE")[0]
        ours = [Vec3(p) for p in polyline.vertices_in_wcs()]
        theirs = [Vec3(p) for p in expected["LWPOLYLINE"].vertices_in_wcs()]
        self.assertEqual(len(ours), len(theirs))
        for a, b in zip(ours, theirs):
            self.assertTrue(a.isclose(b, abs_tol=1e-9), (a, b))
        self.assertAlmostEqual(polyline.get_points("b")[0][0], -0.5, msg="mirrored: the bulge turns the other way")

    def test_a_reference_that_cannot_be_exploded_whole_is_left_as_it_was(self):
        # Another program wrote a block that refers to a block the drawing lacks: its line
        # could be made, the reference inside it cannot, so nothing of it is.
        doc = ezdxf.new("R2000")
        block = doc.blocks.new("OUTER")
        block.add_line((0, 0), (1, 0))
        block.add_blockref("GHOST", (0, 0))
        doc.modelspace().add_blockref("OUTER", (5, 5))
        proc = run('(vl-catch-all-apply (function command) (list "EXPLODE" (ssget "X") ""))',
                   drawing=self.source(doc), save=self.out)
        self.assertIn("Cannot explode block OUTER", proc.stdout)
        msp = ezdxf.readfile(self.out).modelspace()
        self.assertEqual([e.dxftype() for e in msp], ["INSERT"])

    def test_a_break_whose_piece_cannot_be_made_leaves_the_line_whole(self):
        # The line's linetype is not in the drawing (another program wrote it so): the line
        # stands, but a new piece with that linetype cannot be made.
        doc = ezdxf.new("R2000")
        doc.modelspace().add_line((0, 0), (10, 0), dxfattribs={"linetype": "NOSUCH"})
        proc = run('(vl-catch-all-apply (function command)'
                   ' (list "BREAK" (ssname (ssget "X") 0) "F" (list 3 0) (list 5 0)))',
                   drawing=self.source(doc), save=self.out)
        self.assertIn("Cannot break this object", proc.stdout)
        lines = ezdxf.readfile(self.out).modelspace().query("LINE")
        self.assertEqual(len(lines), 1)
        self.assertTrue(lines[0].dxf.end.isclose((10, 0, 0)), "not shortened")

    def test_insert_of_a_missing_block_fails_the_script(self):
        source = self.source(self.tag_drawing())
        proc = run('(command "INSERT" "NOSUCH" (list 0 0) 1 "" 0)', drawing=source, expect_ok=False)
        self.assertEqual(proc.returncode, 1)
        self.assertIn('Block "NOSUCH" not found.', proc.stdout + proc.stderr)
        proc = run('(command "CIRCLE" "TTR")', drawing=source, expect_ok=False)
        self.assertEqual(proc.returncode, 1)

    def test_purge_keeps_referenced_layers_and_nested_blocks(self):
        doc = ezdxf.new("R2000")
        for name in ("USED", "IN-INNER", "ONLY-LONE", "SPARE", "HERE"):
            doc.layers.add(name)
        doc.header["$CLAYER"] = "HERE"
        inner = doc.blocks.new("INNER")
        inner.add_line((0, 0), (1, 0), dxfattribs={"layer": "IN-INNER"})
        outer = doc.blocks.new("OUTER")
        outer.add_blockref("INNER", (0, 0))
        lone = doc.blocks.new("LONE")
        lone.add_line((0, 0), (1, 1), dxfattribs={"layer": "ONLY-LONE"})
        doc.modelspace().add_blockref("OUTER", (5, 5), dxfattribs={"layer": "USED"})
        source = self.source(doc)
        proc = run('(command "PURGE" "A" "*" "N")', drawing=source, save=self.out)
        self.assertIn('Deleting block "LONE".', proc.stdout)
        self.assertIn('Deleting layer "SPARE".', proc.stdout)
        self.assertIn("2 layers deleted.", proc.stdout)
        doc = audited(self.out)
        layers = {layer.dxf.name.upper() for layer in doc.layers}
        self.assertEqual(layers & {"SPARE", "ONLY-LONE"}, set())
        self.assertLessEqual({"0", "USED", "IN-INNER", "HERE"}, layers)
        blocks = {b.name.upper() for b in doc.blocks}
        self.assertNotIn("LONE", blocks)
        self.assertLessEqual({"INNER", "OUTER"}, blocks)


if __name__ == "__main__":
    if not ADSCON:
        print("ADSCON is not set", file=sys.stderr)
        sys.exit(1)
    unittest.main()
