"""gdsx through the console on a drawing made here: the run's pipe and equipment entries
against coordinates worked out by hand, the two sets, a pipe back to the previous point, small
equipment, the break-length file present and missing, and a layer that is not a pipe layer."""

import os
import subprocess
import tempfile
import unittest

import ezdxf

ADSCON = os.environ["ADSCON"]
LAYER = "$R01-GS"


def pipe(msp, start, end, diameter, layer=LAYER):
    p = msp.add_polyline3d([start, end], dxfattribs={"layer": layer})
    p.set_xdata("STARTP", [(1010, start)])
    p.set_xdata("ENDP", [(1010, end)])
    p.set_xdata("GUANJ", [(1000, diameter)])
    return p


def equipment(msp, block, at, mark, scale, rotation=0.0):
    e = msp.add_blockref(block, at, dxfattribs={"layer": LAYER, "xscale": scale, "yscale": scale,
                                                "zscale": scale, "rotation": rotation})
    e.set_xdata("BMARK", [(1000, mark)])
    e.set_xdata("INSP", [(1010, at)])


def drawing():
    doc = ezdxf.new("R2000")
    for app in ("STARTP", "ENDP", "GUANJ", "BMARK", "INSP"):
        doc.appids.new(app)
    for name in ("F1001-A", "T2001-B1", "_PLBA"):
        doc.blocks.new(name).add_line((-1, -1), (1, 1))
    msp = doc.modelspace()
    pipe(msp, (0, 0, 0), (1000, 0, 0), "DN25")              # from the base
    pipe(msp, (1000, 0, 0), (0.005, 0.004, 0), "DN25")      # back to the previous point: no entry
    pipe(msp, (1000, 2000, 300), (1000, 0, 0), "DN20")      # drawn towards the run
    pipe(msp, (5000, 5000, 0), (6000, 5000, 0), "DN50")     # not connected
    pipe(msp, (0, 0, 0), (0, 800, 0), "DN40", layer="$R01-HS")  # another layer
    # Probed 200 from (1000, 2000, 300) pointing down: on the DN20 pipe.
    equipment(msp, "F1001-A", (1000, 2000, 300), "R-1", 100, rotation=270)
    equipment(msp, "T2001-B1", (0, 0, 0), "V-1", 0.04)      # small: a _PLB fitting under it
    equipment(msp, "T2001-B1", (1000, 0, 0), "V-2", 0.04)   # small, nothing under it
    fitting = msp.add_blockref("_PLBA", (0, 0, 0), dxfattribs={"layer": LAYER})
    fitting.set_xdata("GUANJ", [(1000, "DN15")])
    msp.add_line((0, 0), (10, 0), dxfattribs={"layer": "ABC"})
    return doc


def run(expressions, cwd, source):
    """Runs the expressions as a script: a script's values are not echoed."""
    script = os.path.join(cwd, "trace.lsp")
    with open(script, "w") as f:
        f.write("\n".join(expressions) + "\n")
    args = [ADSCON, "--drawing", source, "--cwd", cwd, script]
    done = subprocess.run(args, capture_output=True, text=True, timeout=300)
    return done.returncode, done.stdout


SETUP = [
    '(setq inset (ssget "X"))',
    '(setq outset (ssadd))',
    f'(setq picked (ssname (ssget "X" (list (cons 8 "{LAYER}"))) 0))',
]


class TraceRun(unittest.TestCase):
    def trace(self, call, brklen=None):
        with tempfile.TemporaryDirectory() as d:
            source = os.path.join(d, "in.dxf")
            drawing().saveas(source)
            if brklen is not None:
                with open(os.path.join(d, "_brklen.dat"), "w") as f:
                    f.write(brklen)
            code, out = run(SETUP + [f"(setq run {call})", "(princ \"\\nPIPES \")", "(prin1 (nth 2 run))",
                                     "(princ \"\\nEQUIPMENT \")", "(prin1 (nth 3 run))",
                                     "(princ (strcat \"\\nSETS \" (itoa (sslength inset)) \" \" (itoa (sslength outset))))",
                                     "(princ (strcat \"\\nSAME \" (if (and (eq (car run) inset) (eq (cadr run) outset)) \"T\" \"nil\")))"],
                            d, source)
            self.assertEqual(code, 0, out)
            return out

    def line(self, out, tag):
        return next(l[len(tag) + 1:].strip() for l in out.splitlines() if l.startswith(tag + " "))

    def test_entries_sets_and_equipment_diameters(self):
        # The DN20 pipe is 2000 long and rises 300: sqrt(20² + 3²) = 20.2237 at scale 100.
        out = self.trace("(gdsx 0 '(0.0 0.0 0.0) picked inset outset 100.0)", brklen="F1001 12.5\n")
        self.assertEqual(self.line(out, "PIPES"),
                         '(((0.0 0.0 0.0) (10.0 0.0 0.0) 10.0 "DN25") '
                         '((10.0 20.0 3.0) (10.0 0.0 0.0) 20.2237 "DN20"))')
        self.assertEqual(self.line(out, "EQUIPMENT"),
                         '(("R-1" "F1001-A" (10.0 20.0 3.0) 4.71239 100.0 100.0 100.0 "DN20") '
                         '("V-1" "T2001-B1" (0.0 0.0 0.0) 0.0 0.04 0.04 0.04 "DN15") '
                         '("V-2" "T2001-B1" (10.0 0.0 0.0) 0.0 0.04 0.04 0.04 "20.0"))')
        # Reached: three pipes and three inserts; left: the stranger, the other layer's pipe,
        # the fitting, the line on layer ABC.
        self.assertEqual(self.line(out, "SETS"), "4 6")
        self.assertEqual(self.line(out, "SAME"), "T")
        self.assertNotIn("[alert]", out)

    def test_a_missing_break_length_file_is_told_and_the_trace_goes_on(self):
        out = self.trace("(gdsx 0 '(0.0 0.0 0.0) picked inset outset 100.0)")
        self.assertIn('[alert] Can\'t open file "_brklen.dat"!', out)
        self.assertIn('"DN20")', self.line(out, "EQUIPMENT"))

    def test_mode_1_moves_the_run_without_entries(self):
        out = self.trace("(gdsx 1 '(0.0 0.0 0.0) picked inset outset 100.0)")
        self.assertEqual(self.line(out, "PIPES"), "(nil)")
        self.assertEqual(self.line(out, "EQUIPMENT"), "(nil)")
        self.assertEqual(self.line(out, "SETS"), "4 6")

    def test_a_pick_off_the_pipe_layers_changes_nothing(self):
        out = self.trace('(gdsx 0 \'(0.0 0.0 0.0) (ssname (ssget "X" (list (cons 8 "ABC"))) 0) inset outset 1.0)')
        self.assertEqual(self.line(out, "PIPES"), "(nil)")
        self.assertEqual(self.line(out, "EQUIPMENT"), "(nil)")
        self.assertEqual(self.line(out, "SETS"), "10 0")

    def test_argument_messages_in_order(self):
        with tempfile.TemporaryDirectory() as d:
            source = os.path.join(d, "in.dxf")
            drawing().saveas(source)
            _, out = run(SETUP + ["(gdsx)", "(gdsx 1.0)", "(gdsx 2)", "(gdsx 0)", '(gdsx 0 "base")',
                                  "(gdsx 0 '(0.0 0.0 0.0) picked inset outset)",
                                  "(gdsx 0 '(0.0 0.0 0.0) picked inset outset 1)"], d, source)
        self.assertEqual([l for l in out.splitlines() if "ERROR" in l],
                         ["Application Vrn2 ERROR: " + m for m in (
                             "Arguments Needed !!", "Illegal Argument !!", "Funtion code should be integer 0 or 1.",
                             "More arguments Needed !!", "Illegal Argument !!", "More arguments Needed !!",
                             "Illegal Argument !!")])


if __name__ == "__main__":
    unittest.main()
