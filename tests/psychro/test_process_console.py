#!/usr/bin/python3
"""c:constp driven through the console on a drawn chart: a coil cooling summer air (taken from
the last state point of c:ci_dt) to an apparatus dew point, and a spray washer humidifying
winter air at constant enthalpy. qres.txt is read back and the saved drawing is read with
ezdxf: the process lines and labels lie where the chart's geometry, worked out here (see
test_id_chart_console.py), puts the states computed here from their own formulas."""
import math
import os
import re
import sys
import tempfile
import unittest

import ezdxf

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from test_id_chart_console import CORNER, P, point_of, run, saturation  # noqa: E402


def state_tf(t, fy):
    pq = fy / 100 * saturation(t)
    d = 622 * pq / (P - pq)
    return {"t": t, "d": d, "i": 1.01 * t + 0.001 * d * (1.84 * t + 2500), "fy": fy}


def state_id(i, d):
    t = (i - 2.5 * d) / (1.01 + 0.00184 * d)
    pq = P * d / (622 + d)
    return {"t": t, "d": d, "i": i, "fy": 100 * pq / saturation(t)}


def root(f, lo, hi):
    """The root of increasing F between LO and HI, by halving."""
    for _ in range(200):
        mid = (lo + hi) / 2
        if f(mid) < 0:
            lo = mid
        else:
            hi = mid
    return (lo + hi) / 2


# Summer air at 30 °C and 60 %, cooled towards an apparatus dew point of 12 °C until it leaves
# at 95 %; 5000 kg/h.
W = state_tf(30.0, 60.0)
A = state_tf(12.0, 100.0)
S = root(lambda s: state_id(W["i"] + s * (A["i"] - W["i"]), W["d"] + s * (A["d"] - W["d"]))["fy"] - 95.0, 0, 1)
L = state_id(W["i"] + S * (A["i"] - W["i"]), W["d"] + S * (A["d"] - W["d"]))
# Winter air at 20 °C and 30 %, humidified at constant enthalpy to 90 %; 2000 kg/h.
H1 = state_tf(20.0, 30.0)
H2 = state_tf(root(lambda t: state_tf(t, 90.0)["i"] - H1["i"], -20.0, 20.0), 90.0)

SCRIPT = """(host-dialog "crti_dtdlg" '((set "pressure" "101.325") (press "accept")))
(host-getpoint '(%g %g))
(c:crti_dt)
(host-dialog "ci_dt" '((set "tfy" "1") (set "pressure" "101.325") (set "temp" "30") (set "fy" "60") (press "result")))
(c:ci_dt)
(host-dialog "constpdlg" '((press "last_state") (set "k_adp" "1") (set "tl" "12") (set "fy2" "95") (set "G" "5000")
  (set "label1" "W") (set "label2" "L") (set "label3" "A") (press "cal")))
(host-dialog "constpres" '((press "saveres")))
(c:constp)
(host-dialog "constpdlg" '((set "k_adia" "1") (set "t1" "20") (set "fy1" "30") (set "by_d" "0") (set "fy2" "90")
  (set "G" "2000") (set "label1" "1") (set "label2" "2") (press "cal")))
(host-dialog "constpres" '((press "saveres")))
(c:constp)
""" % CORNER


def rows(block):
    """The 'name(unit) : value' rows of a qres.txt block."""
    out = {}
    for line in block.split("\n"):
        m = re.match(r"\s+(\S+?)\s*:\s+(\S+)$", line)
        if m:
            out[m.group(1)] = m.group(2)
    return out


class ProcessesOnTheChart(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.result = run(cls.folder.name, SCRIPT)
        cls.doc = ezdxf.readfile(os.path.join(cls.folder.name, "out.dxf"))
        cls.msp = cls.doc.modelspace()
        with open(os.path.join(cls.folder.name, "qres.txt"), encoding="utf-8") as f:
            cls.saved = f.read()

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_run_and_layers(self):
        self.assertEqual(self.result.returncode, 0, self.result.stderr)
        self.assertEqual(self.result.stdout.count("结果已存在文件qres.txt中."), 2)
        self.assertIn("ID_PROCESS", self.doc.layers)
        self.assertEqual(self.doc.header["$CLAYER"], "0")

    def test_saved_blocks_hold_the_end_states_and_balances(self):
        blocks = self.saved.split("__________________________________________")[1:]
        self.assertEqual(len(blocks), 2)
        coil, washer = rows(blocks[0]), rows(blocks[1])
        self.assertIn("冷却减湿(机器露点) (W→L)", blocks[0])
        # The library's saturation pressure is the one worked here: states agree to the file's
        # three decimals.
        self.assertAlmostEqual(float(coil["初始含湿量(g/kg)"]), W["d"], delta=0.0011)
        self.assertAlmostEqual(float(coil["终点干球温度(℃)"]), L["t"], delta=0.002)
        self.assertAlmostEqual(float(coil["终点含湿量(g/kg)"]), L["d"], delta=0.002)
        self.assertAlmostEqual(float(coil["热量Q(kW)"]), 5000 * (L["i"] - W["i"]) / 3600, delta=0.005)
        self.assertAlmostEqual(float(coil["湿量W(kg/h)"]), 5000 * (L["d"] - W["d"]) / 1000, delta=0.005)
        self.assertAlmostEqual(float(coil["接触系数"]), S, delta=0.0011)
        self.assertAlmostEqual(float(washer["终点干球温度(℃)"]), H2["t"], delta=0.002)
        self.assertAlmostEqual(float(washer["终点焓值(kJ/kg)"]), H1["i"], delta=0.0011)
        self.assertAlmostEqual(float(washer["热量Q(kW)"]), 0.0, delta=0.0011)
        self.assertAlmostEqual(float(washer["湿量W(kg/h)"]), 2000 * (H2["d"] - H1["d"]) / 1000, delta=0.005)

    def lines(self):
        return list(self.msp.query('LINE[layer=="ID_PROCESS"]'))

    def assert_line(self, line, a, b):
        pa, pb = point_of(a["i"], a["d"]), point_of(b["i"], b["d"])
        self.assertAlmostEqual(line.dxf.start.x, pa[0], delta=1e-3)
        self.assertAlmostEqual(line.dxf.start.y, pa[1], delta=1e-3)
        self.assertAlmostEqual(line.dxf.end.x, pb[0], delta=1e-3)
        self.assertAlmostEqual(line.dxf.end.y, pb[1], delta=1e-3)

    def test_process_lines_run_between_the_states(self):
        solid = [e for e in self.lines() if e.dxf.linetype.upper() != "ID_DASHED"]
        dashed = [e for e in self.lines() if e.dxf.linetype.upper() == "ID_DASHED"]
        self.assertEqual(len(solid), 2)
        self.assertEqual(len(dashed), 1)
        self.assert_line(solid[0], W, L)
        self.assert_line(dashed[0], L, A)
        self.assert_line(solid[1], H1, H2)
        # The washer's line follows the enthalpy line: it falls by 2.5 per g/kg on the chart.
        s = solid[1]
        self.assertLess(s.dxf.end.y, s.dxf.start.y)

    def test_arrowheads_point_at_the_end_states(self):
        solids = list(self.msp.query('SOLID[layer=="ID_PROCESS"]'))
        self.assertEqual(len(solids), 2)
        for solid, (a, b) in zip(solids, ((W, L), (H1, H2))):
            pa, pb = point_of(a["i"], a["d"]), point_of(b["i"], b["d"])
            tip = solid.dxf.vtx0
            # On the line, just short of the end state.
            cross = (tip.x - pa[0]) * (pb[1] - pa[1]) - (tip.y - pa[1]) * (pb[0] - pa[0])
            self.assertAlmostEqual(cross / math.hypot(pb[0] - pa[0], pb[1] - pa[1]), 0.0, delta=1e-6)
            self.assertLess(math.hypot(tip.x - pb[0], tip.y - pb[1]), 5.0)
            back = (solid.dxf.vtx1 + solid.dxf.vtx2) / 2
            self.assertLess(math.hypot(back.x - pa[0], back.y - pa[1]), math.hypot(tip.x - pa[0], tip.y - pa[1]))

    def test_labels_stand_beside_their_states(self):
        texts = {e.dxf.text: e for e in self.msp.query('TEXT[layer=="ID_PROCESS"]')}
        self.assertEqual(set(texts), {"W", "L", "A", "1", "2"})
        for label, s in (("W", W), ("L", L), ("A", A), ("1", H1), ("2", H2)):
            p = point_of(s["i"], s["d"])
            at = texts[label].dxf.align_point
            self.assertGreater(at.x, p[0], label)
            self.assertGreater(at.y, p[1], label)
            self.assertLess(math.hypot(at.x - p[0], at.y - p[1]), 10.0, label)


if __name__ == "__main__":
    unittest.main()
