#!/usr/bin/python3
"""c:crti_dt, c:ci_dt's "sel_point" and c:airmix's "i_d" driven through the console. The saved
drawing is read back with ezdxf, and every line and curve of the chart is turned back into a
state with the chart's geometry worked out here from the dialog's inputs (d along x; i − 2.5·d
along y; the frame spans the -10 °C and 50 °C isotherms) and the saturation pressure
evaluated from its correlations, independently of the module."""
import math
import os
import subprocess
import tempfile
import unittest

import ezdxf

ADSCON = os.environ.get("ADSCON", "adscon")
ROOT = os.environ.get("VRN2_ROOT", "")
CORNER = (50.0, 100.0)
B = 101.325
P = 1000 * B


def saturation(t):
    """Saturation pressure, Pa: over ice below 0 °C, over water above, 609 Pa at 0 °C."""
    if abs(t) <= 0.0001:
        return 609.0
    T = t + 273.15
    if t < 0:
        return math.exp(-5674.5359 / T + 6.3925247 - 0.009677843 * T + 6.2215701e-7 * T ** 2
                        + 2.0747825e-9 * T ** 3 - 9.484024e-13 * T ** 4 + 4.1635019 * math.log(T))
    return math.exp(-5800.2206 / T + 1.3914993 - 0.04860239 * T + 4.1764768e-5 * T * T
                    - 1.4452093e-8 * T ** 3 + 6.5459673 * math.log(T))


def reduced(t, d):
    """i − 2.5·d of air at t with moisture d."""
    return 1.01 * t + 0.001 * d * (1.84 * t + 2500) - 2.5 * d


R_BOTTOM = min(reduced(-10, 0), reduced(-10, 30))
R_TOP = max(reduced(50, 0), reduced(50, 30))
KD = 300.0 / 30.0
KI = 400.0 / (R_TOP - R_BOTTOM)


def state_at(x, y):
    d = (x - CORNER[0]) / KD
    i = (y - CORNER[1]) / KI + R_BOTTOM + 2.5 * d
    t = (i - 2.5 * d) / (1.01 + 0.00184 * d)
    pq = P * d / (622 + d)
    return {"d": d, "i": i, "t": t, "fy": 100 * pq / saturation(t)}


def point_of(i, d):
    return (CORNER[0] + KD * d, CORNER[1] + KI * (i - 2.5 * d - R_BOTTOM))


def wet_bulb(t, pq):
    lo, hi = -20.0, t
    for _ in range(200):
        mid = (lo + hi) / 2
        if saturation(mid) + 0.000667 * P * (mid - t) - pq > 0:
            hi = mid
        else:
            lo = mid
    return (lo + hi) / 2


def run(folder, script):
    path = os.path.join(folder, "run.lsp")
    with open(path, "w", encoding="utf-8") as f:
        f.write(script)
    args = [ADSCON, "--cwd", folder, "--save", os.path.join(folder, "out.dxf")]
    if ROOT:
        args += ["--root", ROOT]
    return subprocess.run(args + [path], capture_output=True, text=True, encoding="utf-8", timeout=120)


PICK = (120.0, 300.0)
SCRIPT = """(host-dialog "crti_dtdlg" '((set "pressure" "101.325") (press "accept")))
(host-getpoint '(%g %g))
(c:crti_dt)
(host-dialog "ci_dt" '((press "sel_point")))
(host-getpoint '(%g %g))
(host-dialog "i_dresdlg" '((press "saveres")))
(c:ci_dt)
(host-dialog "airmixdlg" '((press "procres") (press "i_d")))
(c:airmix)
""" % (CORNER + PICK)


class DrawnChart(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.result = run(cls.folder.name, SCRIPT)
        cls.doc = ezdxf.readfile(os.path.join(cls.folder.name, "out.dxf"))
        cls.msp = cls.doc.modelspace()
        with open(os.path.join(cls.folder.name, "wair002.txt"), encoding="utf-8") as f:
            cls.saved = f.read()

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def polylines(self, layer):
        return [list(e.get_points("xy")) for e in self.msp.query('LWPOLYLINE[layer=="%s"]' % layer)]

    def test_run(self):
        self.assertEqual(self.result.returncode, 0, self.result.stderr)
        self.assertIn("结果已存在文件WAIR002.TXT中.", self.result.stdout)
        for layer in ("ID_FRAME", "ID_D", "ID_I", "ID_T", "ID_FY", "ID_SAT", "ID_TEXT"):
            self.assertIn(layer, self.doc.layers)

    def test_humidity_curves_lie_on_their_humidity(self):
        found = set()
        for curve in self.polylines("ID_FY"):
            fy = round(state_at(*curve[0])["fy"])
            found.add(fy)
            for x, y in curve:
                self.assertAlmostEqual(state_at(x, y)["fy"], fy, delta=1e-6)
        self.assertEqual(found, {10, 20, 30, 40, 50, 60, 70, 80, 90})

    def test_saturation_curve_and_enthalpy_lines(self):
        (curve,) = self.polylines("ID_SAT")
        for x, y in curve:
            self.assertAlmostEqual(state_at(x, y)["fy"], 100.0, delta=1e-6)
        lines = self.polylines("ID_I")
        self.assertGreater(len(lines), 50)
        for (x0, y0), (x1, y1) in lines:
            a, b = state_at(x0, y0), state_at(x1, y1)
            self.assertAlmostEqual(a["i"], b["i"], delta=1e-7)
            self.assertAlmostEqual(a["i"] / 2, round(a["i"] / 2), delta=1e-7)
            self.assertLessEqual(b["fy"], 100 + 1e-6)

    def test_isotherms_and_title(self):
        for (x0, y0), (x1, y1) in self.polylines("ID_T"):
            a, b = state_at(x0, y0), state_at(x1, y1)
            self.assertAlmostEqual(a["t"], round(a["t"]), delta=1e-7)
            self.assertAlmostEqual(b["t"], round(a["t"]), delta=1e-7)
        texts = [e.dxf.text for e in self.msp.query('TEXT[layer=="ID_TEXT"]')]
        self.assertIn("焓湿图 (大气压力 B=101.325 kPa)", texts)
        self.assertIn("φ=60%", texts)

    def test_picked_point_state_is_saved(self):
        block = self.saved.split("选取点求状态参数.结果如下:")[1]
        rows = {}
        for line in block.strip("\n").split("\n")[:5]:
            label, value = line.strip().rsplit("   ", 1)
            rows[label.strip()] = float(value)
        s = state_at(*PICK)
        self.assertAlmostEqual(rows["干球温度T ℃ :"], s["t"], delta=0.0011)
        self.assertAlmostEqual(rows["含湿量D(g/kg):"], s["d"], delta=0.0011)
        self.assertAlmostEqual(rows["相对湿度FY(%):"], s["fy"], delta=0.0011)
        self.assertAlmostEqual(rows["焓值IH(kJ/kg):"], s["i"], delta=0.0011)
        self.assertAlmostEqual(rows["湿球温度TS ℃:"], wet_bulb(s["t"], P * s["d"] / (622 + s["d"])), delta=0.002)

    def test_mixture_points_and_line(self):
        a, b = point_of(91.06, 21.4), point_of(62.0, 13.0)
        m = point_of((18000 * 91.06 + 42000 * 62.0) / 60000, (18000 * 21.4 + 42000 * 13.0) / 60000)
        (line,) = list(self.msp.query("LINE"))
        self.assertAlmostEqual(line.dxf.start.x, a[0], delta=1e-6)
        self.assertAlmostEqual(line.dxf.start.y, a[1], delta=1e-6)
        self.assertAlmostEqual(line.dxf.end.x, b[0], delta=1e-6)
        self.assertAlmostEqual(line.dxf.end.y, b[1], delta=1e-6)
        centres = []
        for e in self.msp.query("LWPOLYLINE"):
            if e.dxf.layer.startswith("ID_"):
                continue
            pts = list(e.get_points("xy"))
            centres.append(((pts[0][0] + pts[1][0]) / 2, (pts[0][1] + pts[1][1]) / 2))
        self.assertEqual(len(centres), 4)  # the picked point and the three of the mix
        for p in (PICK, a, b, m):
            self.assertTrue(any(math.hypot(p[0] - c[0], p[1] - c[1]) < 1e-6 for c in centres), p)


class NothingDrawn(unittest.TestCase):
    def test_cancelled_pick_and_bad_input(self):
        with tempfile.TemporaryDirectory() as folder:
            # No point is given: the pick is cancelled and nothing is drawn.
            result = run(folder, '(host-dialog "crti_dtdlg" \'((press "accept")))\n(c:crti_dt)\n')
            self.assertEqual(result.returncode, 0, result.stderr)
            doc = ezdxf.readfile(os.path.join(folder, "out.dxf"))
            self.assertEqual(len(doc.modelspace()), 0)
        with tempfile.TemporaryDirectory() as folder:
            # A pressure out of range is refused in the dialog, so the queued point is never
            # asked for: the run says so and fails, and the drawing is not saved.
            result = run(folder, '(host-dialog "crti_dtdlg" \'((set "pressure" "300") (press "accept")))\n'
                                 "(host-getpoint '(0 0))\n(c:crti_dt)\n")
            self.assertEqual(result.returncode, 1, result.stdout)
            self.assertIn("1 queued point pick was not used", result.stderr)
            self.assertFalse(os.path.exists(os.path.join(folder, "out.dxf")))

if __name__ == "__main__":
    unittest.main()
