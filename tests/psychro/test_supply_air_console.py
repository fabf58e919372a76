"""The supply-air command and its result file as a designer uses them through the console.

The expected figures are worked here again from the humid-air relations in plain floating point
(water saturation curve, wet bulb by bisection), independently of the module.
"""
import math
import os
import subprocess
import tempfile
import unittest

ADSCON = os.environ["ADSCON"]


def run(cwd, *exprs):
    args = [ADSCON, "--cwd", cwd]
    for e in exprs:
        args += ["-e", e]
    p = subprocess.run(args, capture_output=True, text=True, timeout=60)
    return p.returncode, p.stdout


def ps_water(T):
    return math.exp(-5800.2206 / T + 1.3914993 - 0.04860239 * T + 4.1764768e-5 * T**2
                    - 1.4452093e-8 * T**3 + 6.5459673 * math.log(T))


def wet_bulb(t, pq, P):
    target = pq + 0.000667 * P * t
    lo, hi = 273.15, 373.15
    for _ in range(100):
        mid = (lo + hi) / 2
        lo, hi = (mid, hi) if ps_water(mid) + 0.000667 * P * (mid - 273.15) < target else (lo, mid)
    return (lo + hi) / 2 - 273.15


def supply_air_total_load(B, tn, rhn, q, w, dt):
    P = 1000 * B
    pq = ps_water(tn + 273.15) * rhn / 100
    dN = 622 * pq / (P - pq)
    iN = 1.01 * tn + 0.001 * dN * (1.84 * tn + 2500)
    to = tn - dt
    e = q / (1000 * w / 3600)
    dO = (iN - e * dN - 1.01 * to) / (0.001 * (1.84 * to + 2500) - e)
    iO = 1.01 * to + 0.001 * dO * (1.84 * to + 2500)
    t1 = (iO - 0.001 * dO * 2501) / (0.001 * dO * 1.84 + 1.01)
    pqO = P * dO / (622 + dO)
    return dict(G=q / (iN - iO) * 3600, t=to, d=dO, i=iO, fy=100 * pqO / ps_water(t1 + 273.15),
                ts=wet_bulb(t1, pqO, P))


def shown(value, decimals):
    """A number as the dialog shows it: rounded, trailing zeros dropped."""
    text = "%.*f" % (decimals, value)
    return text.rstrip("0").rstrip(".") if "." in text else text


GSCAL_AND_SAVE = ['(host-dialog "gs_caldlg" \'((press "cal")))',
                  '(host-dialog "gscalres" \'((press "saveres")))', "(c:gscal)"]


class SupplyAirFile(unittest.TestCase):
    def test_defaults_are_saved_with_the_worked_figures(self):
        with tempfile.TemporaryDirectory() as d:
            code, out = run(d, *GSCAL_AND_SAVE)
            self.assertEqual(code, 0, out)
            self.assertIn("结果已存在文件gscal.txt中.", out)
            self.assertNotIn("[alert]", out)
            with open(os.path.join(d, "gscal.txt"), "rb") as f:
                text = f.read().decode("utf-8")  # must be valid UTF-8
            O = supply_air_total_load(101.325, 22, 60, 11.6, 5, 6)
            lines = text.split("\n")
            self.assertEqual(lines[:4], ["", "         送风量与送风状态计算结果", "",
                                         "__________________________________________"])
            self.assertEqual(lines[5], "(B=101.325kPa)")
            self.assertEqual(lines[8], "             干球温度 ℃   :    22.00")
            self.assertEqual(lines[9], "             相对湿度(%)   :    60.00")
            self.assertEqual(lines[14], "         送风量(kg/h)  :        " + shown(O["G"], 4))
            self.assertEqual(lines[16:], [
                "             干球温度 ℃   :    " + shown(O["t"], 3),
                "             含湿量(kg/kg) :    " + shown(O["d"], 3),
                "             相对湿度(%)   :    " + shown(O["fy"], 3),
                "             焓值(kJ/kg)   :    " + shown(O["i"], 3),
                "             湿球温度 ℃   :    " + shown(O["ts"], 3)])

    def test_delete_then_view_says_nothing_is_saved(self):
        with tempfile.TemporaryDirectory() as d:
            run(d, *GSCAL_AND_SAVE)
            self.assertTrue(os.path.exists(os.path.join(d, "gscal.txt")))
            code, out = run(d, '(host-dialog "delwarming" \'((press "cancel")))', "(c:gsdelres)")
            self.assertTrue(os.path.exists(os.path.join(d, "gscal.txt")))
            code, out = run(d, '(host-dialog "delwarming" \'((press "ok")))', "(c:gsdelres)", "(c:gsv_res)")
            self.assertEqual(code, 0, out)
            self.assertFalse(os.path.exists(os.path.join(d, "gscal.txt")))
            self.assertIn("[alert] 没有保存结果.", out)


class SupplyAirInputs(unittest.TestCase):
    def test_pressure_out_of_range_is_refused(self):
        with tempfile.TemporaryDirectory() as d:
            code, out = run(d, '(host-dialog "gs_caldlg" \'((set "B" "40") (press "cal")))', "(c:gscal)")
            self.assertEqual(code, 0, out)
            self.assertIn("[alert]    大气压要求在50-200之间.  ", out)
            self.assertFalse(os.path.exists(os.path.join(d, "gscal.txt")))


if __name__ == "__main__":
    unittest.main()
