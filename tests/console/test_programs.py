"""AutoLISP programs of the kind CAD scripters keep in their libraries, run unchanged; the
values, files and drawings they give are checked against answers worked independently."""
import math
import os
import subprocess
import tempfile
import unittest

import ezdxf

ADSCON = os.environ["ADSCON"]
PROGRAMS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "programs")


def run(*args, cwd=None):
    p = subprocess.run([ADSCON, *args], capture_output=True, text=True, cwd=cwd, timeout=60)
    return p.returncode, p.stdout, p.stderr


def program(name):
    return os.path.join(PROGRAMS, name)


class StringAndListUtilities(unittest.TestCase):
    def test_every_utility_gives_the_editors_answer(self):
        code, out, err = run(program("strings_and_lists.lsp"))
        self.assertEqual((code, err), (0, ""))
        fields = ["DUCT-200", "PIPE-50", "DUCT-200", "VAV-3"]
        expected = [
            "(" + " ".join('"%s"' % f for f in fields) + ")",
            ",".join(sorted(dict.fromkeys(fields))),
            "12in x 8in".replace("in", "mm"),
            str(fields.index("PIPE-50")),
            '("PIPE-50" "VAV-3")',
            '("VAV-3")',
            "T",       # every item a number
            "T",       # and gives T, so vl-some answers T
            str(max(len(f) for f in fields)),
            "(1 2 3.5)",  # the duplicate 1 is kept once
            "2.5",
            "T",
            "T",
            '"plan-3"',
            str(13 & (2 | 8)),
        ]
        self.assertEqual(out.splitlines(), expected)


class BlockCount(unittest.TestCase):
    def test_counts_by_block_name_match_the_drawing(self):
        with tempfile.TemporaryDirectory() as d:
            doc = ezdxf.new("R2000")
            for name in ("VAV", "DIFFUSER", "GRILLE"):
                block = doc.blocks.new(name)
                block.add_circle((0, 0), 1)
            msp = doc.modelspace()
            placed = {"VAV": 3, "DIFFUSER": 5, "GRILLE": 1}
            for name, n in placed.items():
                for k in range(n):
                    msp.add_blockref(name, (k * 10, len(name)))
            msp.add_line((0, 0), (5, 5))
            path = os.path.join(d, "plan.dxf")
            doc.saveas(path)
            code, out, err = run("--drawing", path, program("block_count.lsp"))
            self.assertEqual((code, err), (0, ""))
            rows = [line.split("\t") for line in out.splitlines()]
            expected = [[name, str(placed[name])] for name in sorted(placed)]
            self.assertEqual(rows, expected + [["TOTAL", str(sum(placed.values()))]])


class LayerReport(unittest.TestCase):
    def test_the_report_file_lists_every_layer_with_its_state(self):
        with tempfile.TemporaryDirectory() as d:
            doc = ezdxf.new("R2000")
            doc.layers.add("SUPPLY", color=1)
            doc.layers.add("RETURN", color=5, linetype="DASHED").off()
            doc.layers.add("Büro", color=3).freeze()
            path = os.path.join(d, "plan.dxf")
            doc.saveas(path)
            code, out, err = run("--drawing", path, "--cwd", d, program("layer_report.lsp"))
            self.assertEqual((code, err), (0, ""))
            report = os.path.join(d, "layers.csv")
            self.assertEqual(out, "%d layers written to %s" % (len(doc.layers), report))
            with open(report, "rb") as f:
                raw = f.read()
            self.assertTrue(raw.endswith(b"\r\n"))
            lines = raw.decode("utf-8").splitlines()
            self.assertEqual(lines[0], "name;color;linetype;state")
            expected = []
            for layer in doc.layers:
                state = "frozen" if layer.is_frozen() else ("off" if layer.is_off() else "on")
                expected.append("%s;%d;%s;%s" % (layer.dxf.name, abs(layer.dxf.color), layer.dxf.linetype, state))
            self.assertEqual(sorted(lines[1:]), sorted(expected))


class ErrorHandler(unittest.TestCase):
    def test_the_local_handler_restores_the_variables_and_the_run_fails(self):
        with tempfile.TemporaryDirectory() as d:
            save = os.path.join(d, "out.dxf")
            code, out, err = run(program("restore_on_error.lsp"), "--save", save)
            self.assertEqual(code, 1)
            # The handler ran while the command's locals were bound: OSMODE is back at 37.
            self.assertEqual(out, "\nOSMODE 37 restored after: divide by zero")
            self.assertEqual(err, "%s:14: ; error: divide by zero\n"
                                  "adscon: drawing not saved: the run failed\n" % program("restore_on_error.lsp"))
            self.assertFalse(os.path.exists(save))

    def test_the_handler_is_not_called_inside_vl_catch_all_apply(self):
        code, out, err = run("-e", '(defun *error* (m) (princ "HANDLER"))',
                             "-e", "(vl-catch-all-error-message (vl-catch-all-apply '/ '(1 0)))")
        self.assertEqual((code, err), (0, ""))
        self.assertEqual(out, '*ERROR*\n"divide by zero"\n')


class DrawFromPoints(unittest.TestCase):
    def run_ngon(self, d, replies):
        save = os.path.join(d, "ngon.dxf")
        code, out, err = run("-e", "(host-getpoint '(10.0 20.0))", "-e", "(host-input %s)" % replies,
                             program("draw_from_points.lsp"), "--save", save)
        return code, out, err, save

    def test_the_polygon_drawn_has_the_asked_sides_and_a_label(self):
        with tempfile.TemporaryDirectory() as d:
            code, out, err, save = self.run_ngon(d, '-3 30 6 "Yes"')
            self.assertEqual((code, err), (0, ""))
            # initget 7 refuses the negative length and asks again.
            self.assertIn("Value must be positive and nonzero.", out)
            msp = ezdxf.readfile(save).modelspace()
            lines = msp.query("LINE")
            self.assertEqual(len(lines), 6)
            # Worked independently: the vertices of a regular hexagon of side 30 from (10,20).
            corners = [(10.0, 20.0)]
            for k in range(5):
                a = k * math.pi / 3
                x, y = corners[-1]
                corners.append((x + 30 * math.cos(a), y + 30 * math.sin(a)))
            for k, line in enumerate(lines):
                self.assertAlmostEqual(line.dxf.start.x, corners[k][0], places=9)
                self.assertAlmostEqual(line.dxf.start.y, corners[k][1], places=9)
                self.assertAlmostEqual(line.dxf.end.x, corners[(k + 1) % 6][0], places=9)
                self.assertAlmostEqual(line.dxf.end.y, corners[(k + 1) % 6][1], places=9)
            texts = msp.query("TEXT")
            self.assertEqual([t.dxf.text for t in texts], ["6-GON"])
            # The label sits at the centre: the mean of the corners.
            cx = sum(p[0] for p in corners) / 6
            cy = sum(p[1] for p in corners) / 6
            self.assertAlmostEqual(texts[0].dxf.insert.x, cx, places=9)
            self.assertAlmostEqual(texts[0].dxf.insert.y, cy, places=9)

    def test_a_missing_point_cancels_and_nothing_is_saved(self):
        with tempfile.TemporaryDirectory() as d:
            save = os.path.join(d, "ngon.dxf")
            code, out, err = run(program("draw_from_points.lsp"), "--save", save)
            self.assertEqual(code, 1)
            self.assertIn("; error: Function cancelled\n", err)
            self.assertFalse(os.path.exists(save))


if __name__ == "__main__":
    unittest.main(verbosity=2)
