#!/usr/bin/python3
"""c:retair driven through the console as a designer uses it: the dialog's inputs, the result
dialog's "saveres" and "i_d", qres.txt read back, and the system drawn on the i-d chart of the
saved drawing (read with ezdxf; the chart's geometry worked out here from c:crti_dt's default
inputs as in test_id_chart_console.py). Also: every tile key the command's code names is a key
of dwglib/retair.dcl."""
import math
import os
import re
import subprocess
import tempfile
import unittest

import ezdxf

ADSCON = os.environ.get("ADSCON", "adscon")
ROOT = os.environ.get("VRN2_ROOT", os.path.join(os.path.dirname(__file__), "..", ".."))
CORNER = (50.0, 100.0)


def reduced(t, d):
    return 1.01 * t + 0.001 * d * (1.84 * t + 2500) - 2.5 * d


R_BOTTOM = min(reduced(-10, 0), reduced(-10, 30))
KD = 300.0 / 30.0
KI = 400.0 / (max(reduced(50, 0), reduced(50, 30)) - R_BOTTOM)


def point_of(i, d):
    return (CORNER[0] + KD * d, CORNER[1] + KI * (i - 2.5 * d - R_BOTTOM))


def run(folder, script, *options):
    path = os.path.join(folder, "run.lsp")
    with open(path, "w", encoding="utf-8") as f:
        f.write(script)
    args = [ADSCON, "--cwd", folder, "--root", ROOT, "--save", os.path.join(folder, "out.dxf"), *options]
    return subprocess.run(args + [path], capture_output=True, text=True, encoding="utf-8", timeout=120)


def read_qres(folder):
    with open(os.path.join(folder, "qres.txt"), encoding="utf-8") as f:
        return f.read()


STATE = re.compile(r"^\s+(\S+)\s+(\S+): t=(\S+)℃ d=(\S+)g/kg φ=(\S+)% i=(\S+)kJ/kg$")


def states_of(block):
    found = {}
    for line in block.split("\n"):
        m = STATE.match(line)
        if m:
            found[m.group(1)] = {k: float(m.group(n)) for k, n in (("t", 3), ("d", 4), ("fy", 5), ("i", 6))}
    return found


def row(block, name):
    m = re.search(r"^\s+" + re.escape(name) + r": (\S+)$", block, re.M)
    return float(m.group(1)) if m else None


CHART = """(host-dialog "crti_dtdlg" '((set "pressure" "101.325") (press "accept")))
(host-getpoint '(%g %g))
(c:crti_dt)
""" % CORNER

SUMMER = """(host-dialog "retairdlg" '((press "cal")))
(host-dialog "retairres" '((press "saveres") (press "i_d")))
(c:retair)
"""


class SummerPrimaryOnTheChart(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.result = run(cls.folder.name, CHART + SUMMER)
        cls.text = read_qres(cls.folder.name)
        cls.states = states_of(cls.text)
        cls.msp = ezdxf.readfile(os.path.join(cls.folder.name, "out.dxf")).modelspace()

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_saved_block(self):
        self.assertEqual(self.result.returncode, 0, self.result.stderr)
        self.assertIn("结果已存在文件qres.txt中.", self.result.stdout)
        self.assertTrue(self.text.startswith("\n          空气处理过程与回风系统计算结果\n"))
        self.assertIn("一次回风系统(夏季)\n(B=101.325kPa)\n 输入参数:", self.text)
        self.assertEqual(sorted(self.states), ["C", "L", "N", "O", "W"])
        # The room state 22 °C, 55 %, worked out by hand from the saturation pressure.
        self.assertEqual(self.states["N"], {"t": 22.0, "d": 9.163, "fy": 55.0, "i": 45.498})
        # The supply removes the room's 3.314 kW and 0.9504 kg/h; the coil load is G·(iC − iL).
        G, N, C, L, O = (row(self.text, "送风量(kg/h)"), self.states["N"], self.states["C"], self.states["L"],
                         self.states["O"])
        self.assertAlmostEqual(G * (N["i"] - O["i"]) / 3600, 3.314, delta=0.002)
        self.assertAlmostEqual(G * (N["d"] - O["d"]) / 1000, 0.9504, delta=0.001)
        self.assertAlmostEqual(row(self.text, "表冷器冷量(kW)"), G * (C["i"] - L["i"]) / 3600, delta=0.002)
        self.assertAlmostEqual(O["t"], 14.0, delta=1e-9)

    def process_lines(self):
        return [e for e in self.msp.query('LINE[layer=="ID_PROCESS"]')]

    def test_lines_join_the_saved_states(self):
        at = {k: point_of(s["i"], s["d"]) for k, s in self.states.items()}

        def near(p, label):
            return math.hypot(p[0] - at[label][0], p[1] - at[label][1]) < 0.05

        legs = []
        for line in self.process_lines():
            a, b = (line.dxf.start.x, line.dxf.start.y), (line.dxf.end.x, line.dxf.end.y)
            ends = [[k for k in at if near(p, k)] for p in (a, b)]
            self.assertTrue(all(len(e) == 1 for e in ends), (a, b, ends))
            dashed = line.dxf.linetype == "ID_DASHED"
            legs.append(ends[0][0] + ("--" if dashed else "->") + ends[1][0])
        self.assertEqual(sorted(legs), sorted(["W--N", "C->L", "L->O", "O->N"]))
        # The mixture C lies on the dashed mixing line W–N.
        (w, n), c = (at["W"], at["N"]), at["C"]
        cross = (n[0] - w[0]) * (c[1] - w[1]) - (n[1] - w[1]) * (c[0] - w[0])
        self.assertLess(abs(cross) / math.hypot(n[0] - w[0], n[1] - w[1]), 0.05)

    def test_states_are_labelled(self):
        labels = sorted(e.dxf.text for e in self.msp.query('TEXT[layer=="ID_PROCESS"]'))
        self.assertEqual(labels, ["C", "L", "N", "O", "W"])


WINTER = """(host-dialog "retairdlg" '((set "sys2" "1") (set "winter" "1") (set "tw_value" "-12")
  (set "ow_fy" "1") (set "ow_value" "45") (set "q_value" "-1.5") (set "m_value" "40") (set "sup_g" "1")
  (set "sup_value" "1200") (set "tp_value" "2") (set "g2_value" "500") (press "cal")))
(host-dialog "retairres" '((press "saveres") (press "accept")))
(c:retair)
"""


class WinterSecondaryAndRememberedInputs(unittest.TestCase):
    def test_winter_secondary_is_saved_and_its_inputs_kept(self):
        with tempfile.TemporaryDirectory() as folder:
            # A second run of the command opens with the winter inputs: "cal" alone computes
            # the same system again.
            again = '(host-dialog "retairdlg" \'((press "cal")))\n' \
                    '(host-dialog "retairres" \'((press "saveres")))\n(c:retair)\n'
            result = run(folder, WINTER + again)
            self.assertEqual(result.returncode, 0, result.stderr)
            blocks = read_qres(folder).split("__________________________________________")[1:]
            self.assertEqual(len(blocks), 2)
            for block in blocks:
                self.assertIn("二次回风系统(冬季)", block)
                self.assertEqual(sorted(states_of(block)), sorted(["N", "W", "W'", "C1", "D", "L", "C2", "O"]))
                # Figures of tests/psychro/return_air_worked.py.
                self.assertAlmostEqual(row(block, "再热量(kW)"), 4.373, delta=0.0015)
                self.assertAlmostEqual(row(block, "加湿量(kg/h)"), 3.159, delta=0.0015)
                self.assertAlmostEqual(row(block, "新风预热量(kW)"), 1.887, delta=0.0015)
                self.assertEqual(row(block, "二次回风量(kg/h)"), 500.0)


class RefusedInputs(unittest.TestCase):
    def test_messages_in_the_error_tile_and_nothing_saved(self):
        with tempfile.TemporaryDirectory() as folder:
            script = """(host-dialog "retairdlg" '((set "B" "abc") (press "cal") (set "B" "101.325")
  (set "sup_value" "14") (press "cal") (set "sup_value" "8") (set "ow_value" "40") (press "cal")))
(c:retair)
"""
            result = run(folder, script, "--show-dialogs")
            self.assertEqual(result.returncode, 0, result.stderr)
            # The dialog closes with the last message still shown.
            self.assertIn("室外湿球温度不能高于干球温度.", result.stdout)
            self.assertFalse(os.path.exists(os.path.join(folder, "qres.txt")))

    def test_each_message_is_shown(self):
        for tiles, message in (('(set "B" "abc")', "请输入大气压值."),
                               ('(set "sup_value" "14")', "送风状态超出饱和线或不合理,请检查负荷、送风温差或送风量."),
                               ('(set "sys2" "1") (set "m_value" "80")',
                                "新风量大于经过表冷器的风量,二次回风系统不成立,请减小新风比.")):
            with tempfile.TemporaryDirectory() as folder:
                script = '(host-dialog "retairdlg" \'(%s (press "cal")))\n(c:retair)\n' % tiles
                result = run(folder, script, "--show-dialogs")
                self.assertEqual(result.returncode, 0, result.stderr)
                self.assertIn(message, result.stdout, tiles)
                self.assertFalse(os.path.exists(os.path.join(folder, "qres.txt")))


class DialogKeys(unittest.TestCase):
    def test_every_key_the_code_names_is_in_the_dcl_file(self):
        with open(os.path.join(ROOT, "dwglib", "retair.dcl"), encoding="utf-8") as f:
            dcl = f.read()
        keys = set(re.findall(r'key\s*=\s*"([^"]+)"', dcl))
        keys |= set(re.findall(r"^(\w+)\s*:\s*dialog", dcl, re.M))
        # errtile is the standard message line of key "error"; the main and result dialogs have it.
        self.assertEqual(dcl.count("errtile;"), 2)
        keys.add("error")
        named = set()
        for name in ("return_air_tiles.cpp", "return_air_command.cpp"):
            with open(os.path.join(ROOT, "psychro", name), encoding="utf-8") as f:
                named |= set(re.findall(r'L"([a-z][a-z0-9_]*[a-z0-9]|[A-Z])"', f.read()))
        self.assertGreater(len(named), 30)
        self.assertEqual(sorted(named - keys), [])


if __name__ == "__main__":
    unittest.main()
