"""MOVE, COPY, ROTATE, SCALE, MIRROR and OFFSET driven from the console on drawings written
by ezdxf, and the saved drawings read back by ezdxf: coordinates against values worked out
here from the geometry (ezdxf's own reading of block references and bulges included), its
audit clean, and commands that cannot act failing the run with the editor's message."""

import math
import os
import subprocess
import sys
import tempfile
import unittest

import ezdxf
from ezdxf import path as ezpath

ADSCON = os.environ.get("ADSCON", "")


def adscon(*expressions, drawing, save):
    args = [ADSCON, "--drawing", drawing, "--save", save]
    for e in expressions:
        args += ["-e", e]
    return subprocess.run(args, capture_output=True, text=True, timeout=300)


def run(*expressions, drawing, save):
    proc = adscon(*expressions, drawing=drawing, save=save)
    if proc.returncode != 0:
        raise AssertionError(proc.stdout + proc.stderr)
    return proc.stdout


def audited(path):
    doc = ezdxf.readfile(path)
    auditor = doc.audit()
    assert not auditor.errors, [e.message for e in auditor.errors]
    return doc


def mirror_x(p):
    """A point mirrored in the Y axis."""
    return (-p[0], p[1])


def near(a, b, tol=1e-6):
    return all(abs(x - y) <= tol for x, y in zip(a, b))


def handle(h):
    return '(handent "%s")' % h


class EditCommands(unittest.TestCase):
    def setUp(self):
        self.tmp = tempfile.TemporaryDirectory()
        self.src = os.path.join(self.tmp.name, "src.dxf")
        self.out = os.path.join(self.tmp.name, "out.dxf")
        self.doc = ezdxf.new("R2000")
        self.doc.appids.new("VRNTEST")
        self.msp = self.doc.modelspace()

    def tearDown(self):
        self.tmp.cleanup()

    def save_source(self):
        self.doc.saveas(self.src)

    def by_handle(self, doc, h):
        return doc.entitydb[h]

    def test_move_and_copy_keep_extended_data_and_give_new_handles(self):
        line = self.msp.add_line((0, 0), (10, 0))
        line.set_xdata("VRNTEST", [(1000, "pipe")])
        arc = self.msp.add_arc((20, 0), 5, 0, 90)
        self.save_source()
        run('(command "MOVE" %s "" (list 0 0) (list 5 5))' % handle(line.dxf.handle),
            '(command "COPY" %s "" (list 0 0) (list 0 10) "@0,10" "")' % handle(arc.dxf.handle),
            '(command "COPY" %s "" "D" (list 0 -5))' % handle(line.dxf.handle),
            '(command "MOVE" %s "" "" (list 1 1))' % handle(arc.dxf.handle),
            drawing=self.src, save=self.out)
        doc = audited(self.out)
        moved = self.by_handle(doc, line.dxf.handle)
        self.assertTrue(near(moved.dxf.start, (5, 5)) and near(moved.dxf.end, (15, 5)))
        lines = doc.modelspace().query("LINE")
        self.assertEqual(len(lines), 2)
        copy = [l for l in lines if l.dxf.handle != line.dxf.handle][0]
        self.assertTrue(near(copy.dxf.start, (5, 0)) and near(copy.dxf.end, (15, 0)))
        self.assertEqual(copy.get_xdata("VRNTEST"), [(1000, "pipe")])
        # The arc itself moved by the displacement (1,1); copies at 10 and 20 (the second
        # relative to the first) above where it was.
        centres = sorted(tuple(a.dxf.center)[:2] for a in doc.modelspace().query("ARC"))
        self.assertEqual(len(centres), 3)
        for got, want in zip(centres, [(20, 10), (20, 20), (21, 1)]):
            self.assertTrue(near(got, want), (got, want))
        handles = {e.dxf.handle for e in doc.modelspace()}
        self.assertEqual(len(handles), 5)

    def test_rotate_follows_angdir_and_reference(self):
        circle = self.msp.add_circle((10, 0), 2)
        text = self.msp.add_text("ABC", dxfattribs={"height": 2.5, "insert": (10, 0)})
        line = self.msp.add_line((0, 0), (10, 0))
        note = self.msp.add_mtext("Note", dxfattribs={"insert": (10, 5), "char_height": 2})
        self.save_source()
        run('(setvar "ANGBASE" (/ pi 2))',  # a turn is not measured from ANGBASE
            '(command "ROTATE" %s %s %s "" (list 0 0) "C" 90)' % (handle(circle.dxf.handle), handle(text.dxf.handle),
                                                                   handle(note.dxf.handle)),
            '(setvar "ANGDIR" 1)',  # clockwise
            '(command "ROTATE" %s "" (list 0 0) 30)' % handle(line.dxf.handle),
            '(setvar "ANGDIR" 0)',
            '(command "ROTATE" %s "" (list 10 0) "R" 45 90)' % handle(text.dxf.handle),
            drawing=self.src, save=self.out)
        doc = audited(self.out)
        centres = sorted(tuple(c.dxf.center)[:2] for c in doc.modelspace().query("CIRCLE"))
        self.assertTrue(near(centres[0], (0, 10)) and near(centres[1], (10, 0)), centres)
        texts = {t.dxf.handle: t for t in doc.modelspace().query("TEXT")}
        copy = [t for h, t in texts.items() if h != text.dxf.handle][0]
        self.assertTrue(near(copy.dxf.insert, (0, 10)))
        self.assertAlmostEqual(copy.dxf.rotation % 360, 90)
        # The reference turn from 45 to 90 degrees about its own insertion point.
        self.assertTrue(near(texts[text.dxf.handle].dxf.insert, (10, 0)))
        self.assertAlmostEqual(texts[text.dxf.handle].dxf.rotation % 360, 45)
        notes = [m for m in doc.modelspace().query("MTEXT") if m.dxf.handle != note.dxf.handle]
        self.assertEqual(len(notes), 1)
        self.assertTrue(near(notes[0].dxf.insert, (-5, 10)))
        self.assertAlmostEqual(notes[0].get_rotation(), 90)
        turned = self.by_handle(doc, line.dxf.handle)
        a = math.radians(-30)
        self.assertTrue(near(turned.dxf.end, (10 * math.cos(a), 10 * math.sin(a))), turned.dxf.end)

    def test_scale_by_factor_reference_and_copy(self):
        circle = self.msp.add_circle((10, 0), 2)
        text = self.msp.add_text("H", dxfattribs={"height": 2.5, "insert": (4, 4)})
        donut = self.msp.add_lwpolyline([(0, 0, 0, 0, 1), (2, 0, 0, 0, 1)], format="xyseb", close=True,
                                        dxfattribs={"const_width": 0.5})
        self.save_source()
        run('(command "SCALE" %s %s "" (list 0 0) 2)' % (handle(circle.dxf.handle), handle(text.dxf.handle)),
            '(command "SCALE" %s "" (list 0 0) "R" 2 5)' % handle(text.dxf.handle),
            '(command "SCALE" %s "" (list 1 0) "C" 3)' % handle(donut.dxf.handle),
            drawing=self.src, save=self.out)
        doc = audited(self.out)
        c = self.by_handle(doc, circle.dxf.handle)
        self.assertTrue(near(c.dxf.center, (20, 0)))
        self.assertAlmostEqual(c.dxf.radius, 4)
        t = self.by_handle(doc, text.dxf.handle)
        self.assertAlmostEqual(t.dxf.height, 2.5 * 2 * 2.5)
        self.assertTrue(near(t.dxf.insert, (4 * 5, 4 * 5)))
        polylines = doc.modelspace().query("LWPOLYLINE")
        self.assertEqual(len(polylines), 2)
        copy = [p for p in polylines if p.dxf.handle != donut.dxf.handle][0]
        self.assertAlmostEqual(copy.dxf.const_width, 1.5)
        points = [tuple(p[:2]) for p in copy.get_points("xy")]
        self.assertTrue(near(points[0], (-2, 0)) and near(points[1], (4, 0)), points)

    def test_mirror_copies_arcs_bulges_texts_and_block_references(self):
        self.doc.header["$MIRRTEXT"] = 0
        block = self.doc.blocks.new("TAG")
        block.add_line((0, 0), (1, 0))
        block.add_attdef("NO", (0, 1), dxfattribs={"height": 0.5})
        arc = self.msp.add_arc((20, 0), 5, 0, 90)
        pl = self.msp.add_lwpolyline([(0, 0, 1), (10, 0, 0)], format="xyb")
        text = self.msp.add_text("AB", dxfattribs={"height": 2, "insert": (10, 3)})
        ref = self.msp.add_blockref("TAG", (10, 10))
        ref.add_auto_attribs({"NO": "7"})
        self.save_source()
        names = " ".join(handle(e.dxf.handle) for e in (arc, pl, text, ref))
        run('(command "MIRROR" %s "" (list 0 0) (list 0 1) "N")' % names, drawing=self.src, save=self.out)
        doc = audited(self.out)
        msp = doc.modelspace()
        old = {arc.dxf.handle, pl.dxf.handle, text.dxf.handle, ref.dxf.handle}
        new = [e for e in msp if e.dxf.handle not in old and e.dxf.owner == msp.layout_key]
        self.assertEqual(sorted(e.dxftype() for e in new), ["ARC", "INSERT", "LWPOLYLINE", "TEXT"])
        kind = {e.dxftype(): e for e in new}
        # The arc's ends mirrored, and it runs counter-clockwise from the old end's image.
        a = kind["ARC"]
        self.assertTrue(near(a.start_point, mirror_x((20, 5))), a.start_point)
        self.assertTrue(near(a.end_point, mirror_x((25, 0))), a.end_point)
        # The half circle through (5,-5) now passes through (-5,-5).
        flat = list(ezpath.make_path(kind["LWPOLYLINE"]).flattening(0.001))
        self.assertLess(min(math.dist((p.x, p.y), (-5, -5)) for p in flat), 0.01)
        self.assertLess(max(p.y for p in flat), 1e-6)
        # MIRRTEXT 0: readable (no backward flag), at the mirrored insertion point.
        t = kind["TEXT"]
        self.assertTrue(near(t.dxf.insert, (-10, 3)))
        self.assertAlmostEqual(t.dxf.rotation % 360, 0)
        self.assertEqual(t.dxf.text_generation_flag & 2, 0)
        # ezdxf's own reading of the reference: the block's line is mirrored.
        r = kind["INSERT"]
        line = [v for v in r.virtual_entities() if v.dxftype() == "LINE"][0]
        ends = sorted([tuple(line.dxf.start)[:2], tuple(line.dxf.end)[:2]])
        self.assertTrue(near(ends[0], (-11, 10)) and near(ends[1], (-10, 10)), ends)
        attribs = r.attribs
        self.assertEqual(len(attribs), 1)
        self.assertEqual(attribs[0].dxf.text, "7")
        self.assertTrue(near(attribs[0].dxf.insert, mirror_x(ref.attribs[0].dxf.insert)))
        self.assertNotEqual(attribs[0].dxf.handle, ref.attribs[0].dxf.handle)

    def test_mirrtext_one_writes_texts_backwards_and_yes_mirrors_in_place(self):
        text = self.msp.add_text("AB", dxfattribs={"height": 2, "insert": (10, 3)})
        self.save_source()
        run('(setvar "MIRRTEXT" 1)',
            '(command "MIRROR" %s "" (list 0 0) (list 0 1) "Y")' % handle(text.dxf.handle),
            drawing=self.src, save=self.out)
        doc = audited(self.out)
        texts = doc.modelspace().query("TEXT")
        self.assertEqual(len(texts), 1)
        t = texts[0]
        self.assertEqual(t.dxf.handle, text.dxf.handle)
        self.assertTrue(near(t.dxf.insert, (-10, 3)))
        self.assertEqual(t.dxf.text_generation_flag & 2, 2)
        self.assertEqual(doc.header["$MIRRTEXT"], 1)

    def test_offset_lines_circles_and_arcs(self):
        line = self.msp.add_line((0, 0), (3, 4))
        circle = self.msp.add_circle((0, 0), 5)
        arc = self.msp.add_arc((20, 0), 5, 0, 90)
        self.save_source()
        run('(command "OFFSET" 5 %s (list -1 1) "")' % handle(line.dxf.handle),
            '(command "OFFSET" "T" %s (list 0 8) "")' % handle(circle.dxf.handle),
            '(command "OFFSET" 2 %s (list 30 30) %s (list 0 1) "")' % (handle(arc.dxf.handle),
                                                                       handle(circle.dxf.handle)),
            drawing=self.src, save=self.out)
        doc = audited(self.out)
        msp = doc.modelspace()
        lines = [l for l in msp.query("LINE") if l.dxf.handle != line.dxf.handle]
        self.assertEqual(len(lines), 1)
        # Five units along the left normal (-4,3)/5 of the 3-4-5 line.
        self.assertTrue(near(lines[0].dxf.start, (-4, 3)) and near(lines[0].dxf.end, (-1, 7)))
        radii = sorted(c.dxf.radius for c in msp.query("CIRCLE"))
        self.assertEqual(len(radii), 3)
        for got, want in zip(radii, [3, 5, 8]):
            self.assertAlmostEqual(got, want)
        arcs = [a for a in msp.query("ARC") if a.dxf.handle != arc.dxf.handle]
        self.assertEqual(len(arcs), 1)
        self.assertAlmostEqual(arcs[0].dxf.radius, 7)
        self.assertAlmostEqual(arcs[0].dxf.start_angle, 0)
        self.assertAlmostEqual(arcs[0].dxf.end_angle, 90)
        self.assertAlmostEqual(doc.header.get("$OFFSETDIST", 2), 2)

    def test_commands_that_cannot_act_fail_the_run_and_nothing_is_saved(self):
        circle = self.msp.add_circle((0, 0), 5)
        self.save_source()
        cases = [
            ('(command "OFFSET" 6 %s (list 1 0) "")' % handle(circle.dxf.handle), "Cannot offset that object."),
            ('(command "MOVE" %s "" (list 0 0))' % handle(circle.dxf.handle), "Function cancelled"),
            ('(command "ROTATE" %s "" (list 0 0) "R" 10)' % handle(circle.dxf.handle), "Function cancelled"),
            ('(command "SCALE" %s "" (list 0 0) -2)' % handle(circle.dxf.handle), "Value must be positive and nonzero."),
        ]
        for expression, message in cases:
            proc = adscon(expression, drawing=self.src, save=self.out)
            self.assertEqual(proc.returncode, 1, expression)
            self.assertIn(message, proc.stdout + proc.stderr, expression)
            self.assertFalse(os.path.exists(self.out))
        # Nothing selected is no error: the command does nothing.
        run('(command "MOVE" "" )', '(command "COPY" "" )', drawing=self.src, save=self.out)
        self.assertEqual(len(audited(self.out).modelspace().query("CIRCLE")), 1)

    def test_dimensions_are_left_with_a_message_while_the_rest_moves(self):
        line = self.msp.add_line((0, 0), (10, 0))
        dim = self.msp.add_linear_dim(base=(0, 5), p1=(0, 0), p2=(10, 0))
        dim.render()
        self.save_source()
        out = run('(command "MOVE" %s %s "" "D" (list 0 7))' % (handle(line.dxf.handle), handle(dim.dimension.dxf.handle)),
                  drawing=self.src, save=self.out)
        self.assertIn("DIMENSION object was left unchanged", out)
        doc = audited(self.out)
        self.assertTrue(near(self.by_handle(doc, line.dxf.handle).dxf.start, (0, 7)))
        self.assertTrue(near(self.by_handle(doc, dim.dimension.dxf.handle).dxf.defpoint, (0, 5, 0)))


if __name__ == "__main__":
    if not ADSCON:
        print("ADSCON is not set", file=sys.stderr)
        sys.exit(1)
    unittest.main()
