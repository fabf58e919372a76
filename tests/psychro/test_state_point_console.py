#!/usr/bin/python3
"""c:ci_dt and c:airmix driven through the console as a user's script drives them. The saved
result file must be UTF-8 with its fixed texts, and every number in it must agree with the
state worked out here independently: the saturation pressure over water is evaluated from its
correlation and each inverse (dew point, wet bulb, temperature) is found by bisection, not by
the program's band-and-secant iteration."""
import math
import os
import subprocess
import tempfile
import unittest

ADSCON = os.environ.get("ADSCON", "adscon")
ROOT = os.environ.get("VRN2_ROOT", "")
SAVED = "结果已存在文件WAIR002.TXT中."


def pw(T):
    """Saturation pressure over water, Pa, at T kelvin."""
    return math.exp(-5800.2206 / T + 1.3914993 - 0.04860239 * T + 4.1764768e-5 * T * T
                    - 1.4452093e-8 * T ** 3 + 6.5459673 * math.log(T))


def bisect(f, lo, hi):
    for _ in range(200):
        mid = (lo + hi) / 2
        if f(mid) > 0:
            hi = mid
        else:
            lo = mid
    return (lo + hi) / 2


def temp_at_saturation(p):
    return bisect(lambda t: pw(t + 273.15) - p, 0.01, 150)


def wet_bulb(t, pq, P):
    return bisect(lambda ts: pw(ts + 273.15) + 0.000667 * P * (ts - t) - pq, 0.01, t)


def enthalpy(t, d):
    return 1.01 * t + 0.001 * d * (1.84 * t + 2500)


def state(P, t, pq):
    d = 622 * pq / (P - pq)
    return {"t": t, "ts": wet_bulb(t, pq, P), "d": d, "fy": 100 * pq / pw(t + 273.15), "i": enthalpy(t, d)}


LABELS = {"   干球温度T ℃ :": "t", "   湿球温度TS ℃:": "ts", "   含湿量D(g/kg):": "d",
          "   相对湿度FY(%):": "fy", "   焓值IH(kJ/kg):": "i"}


def run_script(folder, script):
    path = os.path.join(folder, "run.lsp")
    with open(path, "w", encoding="utf-8") as f:
        f.write(script)
    args = [ADSCON, "--cwd", folder]
    if ROOT:
        args += ["--root", ROOT]
    result = subprocess.run(args + [path], capture_output=True, text=True, encoding="utf-8", timeout=120)
    return result


def saved_blocks(text):
    """The blocks after the title: each a (pressure line, known line, {quantity: value})."""
    blocks = []
    for chunk in text.split("\n________________________________________________\n")[1:]:
        lines = [line for line in chunk.split("\n") if line]
        rows = {}
        for line in lines[2:]:
            label, value = line.strip(" ").rsplit("   ", 1)
            rows[LABELS["   " + label]] = float(value)
        blocks.append((lines[0], lines[1], rows))
    return blocks


def choice(radio, **tiles):
    sets = " ".join('(set "%s" "%s")' % (k, v) for k, v in tiles.items())
    return ('(host-dialog "ci_dt" \'((set "%s" "1") %s (press "result")))\n'
            '(host-dialog "i_dresdlg" \'((press "saveres")))\n(c:ci_dt)\n' % (radio, sets))


class SavedStates(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        script = (choice("tfy", pressure="90", temp="20", fy="50")
                  + choice("tts", temp="30", ts="22")
                  + choice("ttl", pressure="101.325", temp="26", tl="15")
                  + choice("fyd", fy="60", d="12")
                  + choice("tldb", db="20", tl="12")
                  + '(host-dialog "airmixdlg" \'((press "procres")))\n'
                  + '(host-dialog "i_dresdlg" \'((press "saveres")))\n(c:airmix)\n')
        cls.result = run_script(cls.folder.name, script)
        with open(os.path.join(cls.folder.name, "wair002.txt"), "rb") as f:
            cls.raw = f.read()
        cls.text = cls.raw.decode("utf-8")
        cls.blocks = saved_blocks(cls.text)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_run_and_messages(self):
        self.assertEqual(self.result.returncode, 0, self.result.stderr)
        self.assertEqual(self.result.stdout.count(SAVED), 6, self.result.stdout)
        self.assertNotIn("skipped", self.result.stdout)

    def test_file_is_utf8_with_one_title_and_the_fixed_texts(self):
        self.assertTrue(self.raw.startswith("\n          空气状态与处理过程计算结果 \n".encode("utf-8")))
        self.assertEqual(self.text.count("空气状态与处理过程计算结果"), 1)
        self.assertEqual(len(self.blocks), 6)
        self.assertNotIn("%%", self.text)
        self.assertIn("已知T=20.00℃,FY=50.00(%),求其它参数:", self.text)
        self.assertIn("已知FY=60.00(%),D=12.00(g/kg),求其它参数:", self.text)
        self.assertIn("(大气压B=90.000 kPa )", self.text)
        # Known lines: 1 (T), 2 (T, TS), 2 (T, TL), 0, 1 (TL), 0; rows of t and ts: 1, 0, 1, 2, 2, 2.
        self.assertEqual(self.text.count("℃"), 6 + 8)

    def assertRows(self, rows, expected):
        self.assertEqual(set(rows), set(expected))
        for key, value in expected.items():
            self.assertAlmostEqual(rows[key], value, delta=0.0011, msg=key)

    def test_temperature_and_humidity_at_90_kPa(self):
        P = 90000.0
        s = state(P, 20.0, 0.5 * pw(293.15))
        self.assertRows(self.blocks[0][2], {k: s[k] for k in ("ts", "d", "i")})

    def test_temperature_and_wet_bulb_at_the_remembered_pressure(self):
        # The dialog opened with the 90 kPa of the run before.
        self.assertIn("(大气压B=90.000 kPa )", self.blocks[1][0])
        P = 90000.0
        pq = pw(22 + 273.15) - 0.000667 * P * (30 - 22)
        s = state(P, 30.0, pq)
        self.assertRows(self.blocks[1][2], {k: s[k] for k in ("d", "fy", "i")})

    def test_temperature_and_dew_point(self):
        self.assertIn("(大气压B=101.325 kPa )", self.blocks[2][0])
        P = 101325.0
        s = state(P, 26.0, pw(15 + 273.15))
        self.assertRows(self.blocks[2][2], {k: s[k] for k in ("ts", "d", "fy", "i")})

    def test_humidity_and_moisture(self):
        P = 101325.0
        pq = P * 12 / 634
        t = temp_at_saturation(pq / 0.6)
        s = state(P, t, pq)
        self.assertRows(self.blocks[3][2], {k: s[k] for k in ("t", "ts", "i")})

    def test_saturated_moisture_and_dew_point(self):
        P = 101325.0
        pb = P * 20 / 642
        pl = pw(12 + 273.15)
        d = 622 * pl / (P - pl)
        fy = 100 * (P * d / (622 + d)) / pb
        t = temp_at_saturation(pb)
        expected = {"t": t, "ts": wet_bulb(t, pb * fy / 100, P), "d": d, "fy": fy, "i": enthalpy(t, d)}
        self.assertRows(self.blocks[4][2], expected)

    def test_mixture_of_the_initial_streams(self):
        P = 101325.0
        iM = (18000 * 91.06 + 42000 * 62.0) / 60000
        dM = (18000 * 21.4 + 42000 * 13.0) / 60000
        self.assertIn("已知IH=70.72(kJ/kg),D=15.52(g/kg)", self.blocks[5][1])
        t = (iM - 2.5 * dM) / (1.01 + 0.00184 * dM)
        s = state(P, t, P * dM / (622 + dM))
        self.assertRows(self.blocks[5][2], {k: s[k] for k in ("t", "ts", "fy")})


class ConsoleMessages(unittest.TestCase):
    def test_input_message_and_no_chart(self):
        with tempfile.TemporaryDirectory() as folder:
            result = run_script(folder, '(host-dialog "ci_dt" \'((press "sel_point")))\n(c:ci_dt)\n'
                                        '(host-dialog "airmixdlg" \'((set "press" "250") (press "procres")))\n'
                                        '(c:airmix)\n')
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertIn("先生成焓湿图.", result.stdout)
            self.assertFalse(os.path.exists(os.path.join(folder, "wair002.txt")))


if __name__ == "__main__":
    unittest.main()
