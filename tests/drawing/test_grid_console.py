"""c:fzzbsc through the console: the grid's lines and labels in the saved drawing against
positions worked out here from the file's values, the limits applied on reading, the
switches, a missing file, and CMDECHO set back."""

import math
import os
import subprocess
import tempfile
import unittest

import ezdxf

ADSCON = os.environ["ADSCON"]
PI = 3.1415927


def expected_grid(p1, p2, s, alpha, q1, q2, t, beta):
    """Lines and labels of the grid, by the construction: origin, corners, families."""
    k1, k2 = int(abs(p2 - p1) / s + 0.5), int(abs(q2 - q1) / t + 0.5)
    l1, l2 = k1 * s, k2 * t
    a, b = math.radians(alpha) * PI / math.pi, math.radians(beta) * PI / math.pi
    ux, uy, vx, vy = math.cos(a), math.sin(a), math.cos(b), math.sin(b)
    ox, oy = p1, q1
    if alpha < 0:
        oy = abs(uy * l1) + p1
    if beta > 90:
        ox = abs(vx * l2) + q1
    lines = []
    for i in range(k1 + 1):
        lines.append(((ox + ux * i * s, oy + uy * i * s), (ox + vx * l2 + ux * i * s, oy + vy * l2 + uy * i * s)))
    for i in range(k2 + 1):
        lines.append(((ox + vx * i * t, oy + vy * i * t), (ox + ux * l1 + vx * i * t, oy + uy * l1 + vy * i * t)))
    d = max(2 * t / 3, 2 * s / 3)
    labels = [(f"{p1 + i * s:.1f}", ox - vx * d + ux * i * s, oy - vy * d + uy * i * s, s / 4) for i in range(k1 + 1)]
    labels += [(f"{q1 + i * t:.1f}", ox - ux * d + vx * i * t, oy - uy * d + vy * i * t, t / 4) for i in range(k2 + 1)]
    return lines, labels


class GridDrawing(unittest.TestCase):
    def draw(self, file_text, before=()):
        with tempfile.TemporaryDirectory() as root:
            os.makedirs(os.path.join(root, "datlib"))
            if file_text is not None:
                with open(os.path.join(root, "datlib", "t-fzzb.dat"), "w") as f:
                    f.write(file_text)
            saved = os.path.join(root, "out.dxf")
            args = [ADSCON, "--root", root, "--save", saved]
            for e in (*before, "(c:fzzbsc)", '(princ (strcat "\\nCMDECHO=" (itoa (getvar "CMDECHO"))))'):
                args += ["-e", e]
            done = subprocess.run(args, capture_output=True, text=True, timeout=300)
            self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
            return done.stdout, ezdxf.readfile(saved)

    def assert_grid(self, doc, values, centre=True, labels=True):
        lines, texts = expected_grid(*values)
        msp = doc.modelspace()
        grid = [e for e in msp.query('LINE[layer=="T-FZZB"]') if e.dxf.color == 8]
        self.assertEqual(len(grid), len(lines))
        for e, ((x1, y1), (x2, y2)) in zip(grid, lines):
            for got, want in ((e.dxf.start, (x1, y1)), (e.dxf.end, (x2, y2))):
                self.assertAlmostEqual(got.x, want[0], places=6)
                self.assertAlmostEqual(got.y, want[1], places=6)
        centres = [e for e in msp.query('LINE[layer=="T-FZZB"]') if e.dxf.color == 9]
        self.assertEqual(len(centres), 2 if centre else 0)
        drawn = list(msp.query('TEXT[layer=="T-FZZB"]'))
        self.assertEqual(len(drawn), len(texts) if labels else 0)
        for e, (text, x, y, height) in zip(drawn, texts):
            self.assertEqual(e.dxf.text, text)
            self.assertAlmostEqual(e.dxf.insert.x, x, places=6)
            self.assertAlmostEqual(e.dxf.insert.y, y, places=6)
            self.assertAlmostEqual(e.dxf.height, height, places=9)
            self.assertEqual(e.dxf.color, 8)

    def test_an_oblique_grid_with_both_origin_corrections(self):
        out, doc = self.draw("10\n70\n5\n-30\n20\n52\n4\n150\n 0\n 0", before=['(setvar "CMDECHO" 1)'])
        self.assert_grid(doc, (10, 70, 5, -30, 20, 52, 4, 150))
        self.assertIn("CMDECHO=1", out)
        self.assertIn(doc.styles.get("Standard").dxf.font.upper(), ("SIMPLEX", "SIMPLEX.SHX"))
        self.assertAlmostEqual(doc.styles.get("Standard").dxf.width, 0.7)

    def test_values_are_limited_when_read(self):
        _, doc = self.draw("0\n3\n0.2\n120\n0\n2\n0.4\n-10\n0\n0")
        self.assert_grid(doc, (0, 3, 0.5, 90, 0, 2, 0.5, 0))

    def test_the_switches_leave_out_centre_lines_and_labels(self):
        _, doc = self.draw("0\n30\n10\n0\n0\n20\n10\n90\n 1\n 1")
        self.assert_grid(doc, (0, 30, 10, 0, 0, 20, 10, 90), centre=False, labels=False)

    def test_a_missing_file_draws_nothing(self):
        out, doc = self.draw(None)
        self.assertIn("Failaure in opening file", out)
        self.assertEqual(len(doc.modelspace()), 0)


class GridDialog(unittest.TestCase):
    def edit(self, file_text, actions, status=0):
        with tempfile.TemporaryDirectory() as root:
            os.makedirs(os.path.join(root, "datlib"))
            os.makedirs(os.path.join(root, "dwglib"))
            with open(os.path.join(os.environ["VRN2_ROOT"], "dwglib", "t-fzzb.dcl"), "rb") as src:
                with open(os.path.join(root, "dwglib", "t-fzzb.dcl"), "wb") as dst:
                    dst.write(src.read())
            data = os.path.join(root, "datlib", "t-fzzb.dat")
            if file_text is not None:
                with open(data, "w") as f:
                    f.write(file_text)
            done = subprocess.run([ADSCON, "--root", root, "-e", f"(host-dialog \"t_fzzb\" '({actions}))",
                                   "-e", "(c:fzzbdy)"], capture_output=True, text=True, timeout=300)
            self.assertEqual(done.returncode, status, done.stdout + done.stderr)
            written = None
            if os.path.exists(data):
                with open(data, "rb") as f:
                    written = f.read().decode()
            return done.stdout, written

    SHIPPED = "0.00\n60.00\n5.00\n30.00\n0.00\n40.00\n5.00\n150.00\n 0\n 0"

    def test_ok_writes_the_edit_texts_and_switches_without_a_final_line_break(self):
        _, written = self.edit(self.SHIPPED, '(set "e3" "0.2") (set "s1" "125") (set "e4" "120") '
                                             '(set "s8" "95") (set "e6" "-3.456") (set "a" "1") (press "d")')
        self.assertEqual(written, "12.50\n60.00\n0.50\n90.00\n0.00\n-3.46\n5.00\n95.00\n 1\n 0")

    def test_a_file_that_was_read_with_limits_is_shown_with_them(self):
        _, written = self.edit("1\n2\n0.2\n-120\n3\n4\n0.3\n200\n0\n1", '(press "d")')
        self.assertEqual(written, "1.00\n2.00\n0.50\n-90.00\n3.00\n4.00\n0.50\n180.00\n 0\n 1")

    def test_cancel_leaves_the_file_as_it_was(self):
        _, written = self.edit(self.SHIPPED, '(set "e1" "7") (press "e")')
        self.assertEqual(written, self.SHIPPED)

    def test_a_missing_file_is_reported_and_no_dialog_is_shown(self):
        # The actions queued for the dialog that never opened make the run fail.
        out, written = self.edit(None, '(press "d")', status=1)
        self.assertIn("Failaure in opening file", out)
        self.assertIsNone(written)


if __name__ == "__main__":
    unittest.main()
