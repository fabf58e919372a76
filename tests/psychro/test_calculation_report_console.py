#!/usr/bin/python3
"""The calculation report end to end, as a designer makes it in the console: the i-d chart is
drawn, a state point, a supply-air case and a mixture are computed and saved, and c:q_res
writes the Word document. python-docx (another reader of the format) opens it; the headings,
the units and the values of its tables are checked against the result files the same
calculations wrote, against figures worked here from the humid-air relations, and against the
energy and mass balances; the chart picture is decoded with zlib alone and must be a PNG of the
chart's proportions with the chart's lines and the red marks on it."""
import math
import os
import re
import subprocess
import sys
import tempfile
import time
import unittest
import zipfile

import docx

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "console"))
from test_pictures_and_dialogs import read_png  # noqa: E402  the console tests' PNG reader

ADSCON = os.environ.get("ADSCON", "adscon")
ROOT = os.environ.get("VRN2_ROOT", "")
P = 101325.0

SCRIPT = """(host-dialog "crti_dtdlg" '((set "pressure" "101.325") (press "accept")))
(host-getpoint '(0 0))
(c:crti_dt)
(host-dialog "ci_dt" '((set "pressure" "101.325") (set "temp" "26") (set "fy" "55") (press "result")))
(host-dialog "i_dresdlg" '((press "saveres")))
(c:ci_dt)
(host-dialog "gs_caldlg" '((press "cal")))
(host-dialog "gscalres" '((press "saveres")))
(c:gscal)
(host-dialog "airmixdlg" '((press "procres")))
(host-dialog "i_dresdlg" '((press "saveres")))
(c:airmix)
(host-dialog "q_resdlg" '((press "report")))
(host-dialog "q_report" '((set "name" "办公楼 计算书") (press "accept")))
(c:q_res)
"""


def ps_water(t):
    T = t + 273.15
    return math.exp(-5800.2206 / T + 1.3914993 - 0.04860239 * T + 4.1764768e-5 * T * T
                    - 1.4452093e-8 * T ** 3 + 6.5459673 * math.log(T))


def moisture(t, fy):
    pq = ps_water(t) * fy / 100
    return 622 * pq / (P - pq)


def enthalpy(t, d):
    return 1.01 * t + 0.001 * d * (1.84 * t + 2500)


def run(folder, script):
    path = os.path.join(folder, "run.lsp")
    with open(path, "w", encoding="utf-8") as f:
        f.write(script)
    args = [ADSCON, "--cwd", folder]
    if ROOT:
        args += ["--root", ROOT]
    return subprocess.run(args + [path], capture_output=True, text=True, encoding="utf-8", timeout=300)


def file_rows(text, labels):
    """The value after each label in a result file's text (the last block that has it)."""
    found = {}
    for label in labels:
        values = re.findall(re.escape(label) + r"\s*([-0-9.]+)", text)
        assert values, label
        found[label] = float(values[-1])
    return found


class Report(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.result = run(cls.folder.name, SCRIPT)
        cls.path = os.path.join(cls.folder.name, "办公楼 计算书.docx")
        cls.doc = docx.Document(cls.path)
        with open(os.path.join(cls.folder.name, "wair002.txt"), encoding="utf-8") as f:
            cls.wair = f.read()
        with open(os.path.join(cls.folder.name, "gscal.txt"), encoding="utf-8") as f:
            cls.gscal = f.read()

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def table(self, index):
        """Rows of table INDEX as lists of cell texts, the header row left out."""
        return [[c.text for c in row.cells] for row in self.doc.tables[index].rows][1:]

    def quantities(self, index):
        return {name: (float(value), unit) for name, value, unit in self.table(index)}

    def states(self, index):
        return {r[0]: dict(name=r[1], t=float(r[2]), d=float(r[3]), fy=float(r[4]), i=float(r[5]))
                for r in self.table(index)}

    def test_run_and_headings(self):
        self.assertEqual(self.result.returncode, 0, self.result.stdout + self.result.stderr)
        self.assertIn("计算书已写入文件 办公楼 计算书.docx (3 项计算, 附焓湿图).", self.result.stdout)
        self.assertNotIn("[alert]", self.result.stdout)
        paragraphs = [(p.style.name, p.text) for p in self.doc.paragraphs if p.text]
        self.assertEqual(paragraphs[0], ("Title", "空气调节计算书"))
        day = time.localtime()
        self.assertIn(("Normal", "计算日期: %d年%d月%d日" % (day.tm_year, day.tm_mon, day.tm_mday)), paragraphs)
        self.assertIn(("Normal", "大气压力: B = 101.325 kPa"), paragraphs)
        self.assertEqual([t for s, t in paragraphs if s == "Heading 1"],
                         ["1. 湿空气状态点计算", "2. 送风量与送风状态计算", "3. 两股空气混合", "焓湿图"])
        self.assertEqual([t for s, t in paragraphs if s == "Heading 2"], ["输入参数", "计算结果", "状态点"] * 3)
        self.assertEqual(len(self.doc.tables), 9)
        for k in (0, 1, 3, 4, 6, 7):
            self.assertEqual([c.text for c in self.doc.tables[k].rows[0].cells], ["参数", "数值", "单位"])

    def test_state_point_against_its_result_file(self):
        inputs, results = self.quantities(0), self.quantities(1)
        self.assertEqual(inputs, {"大气压力 B": (101.325, "kPa"), "干球温度 T": (26.0, "℃"), "相对湿度 FY": (55.0, "%")})
        block = self.wair.split("已知T=26.00℃,FY=55.00(%),求其它参数:")[1].split("____")[0]
        saved = file_rows(block, ["湿球温度TS ℃:", "含湿量D(g/kg):", "焓值IH(kJ/kg):"])
        self.assertEqual(results["湿球温度 TS"], (saved["湿球温度TS ℃:"], "℃"))
        self.assertEqual(results["含湿量 D"], (saved["含湿量D(g/kg):"], "g/kg"))
        self.assertEqual(results["焓值 IH"], (saved["焓值IH(kJ/kg):"], "kJ/kg"))
        self.assertEqual(results["比容 V"][1], "m³/kg")
        d = moisture(26, 55)
        self.assertAlmostEqual(results["含湿量 D"][0], d, delta=0.0011)
        self.assertAlmostEqual(results["焓值 IH"][0], enthalpy(26, d), delta=0.0011)
        (state,) = self.states(2).items()
        self.assertEqual(state[0], "S1")
        self.assertEqual((state[1]["t"], state[1]["fy"], state[1]["d"]), (26.0, 55.0, results["含湿量 D"][0]))

    def test_supply_air_against_its_result_file_and_balances(self):
        inputs, results, states = self.quantities(3), self.quantities(4), self.states(5)
        self.assertEqual(inputs, {"大气压力 B": (101.325, "kPa"), "室内干球温度": (22.0, "℃"),
                                  "室内相对湿度": (60.0, "%"), "全热冷负荷": (11.6, "kW"),
                                  "湿负荷": (5.0, "kg/h"), "送风温差": (6.0, "℃")})
        saved = file_rows(self.gscal, ["送风量(kg/h)  :", "干球温度 ℃   :", "含湿量(kg/kg) :", "焓值(kJ/kg)   :",
                                       "湿球温度 ℃   :"])
        self.assertAlmostEqual(results["送风量"][0], saved["送风量(kg/h)  :"], delta=5e-5)
        self.assertEqual(results["送风量"][1], "kg/h")
        self.assertEqual(results["送风干球温度"], (16.0, "℃"))
        self.assertAlmostEqual(results["送风含湿量"][0], saved["含湿量(kg/kg) :"], delta=5e-4)
        self.assertAlmostEqual(results["送风焓值"][0], saved["焓值(kJ/kg)   :"], delta=5e-4)
        self.assertAlmostEqual(results["送风湿球温度"][0], saved["湿球温度 ℃   :"], delta=5e-4)
        self.assertEqual(sorted(states), ["N2", "O2"])
        N, O = states["N2"], states["O2"]
        self.assertAlmostEqual(N["d"], moisture(22, 60), delta=0.0011)
        # The coil load and the moisture load come back from the report's own figures.
        G = results["送风量"][0]
        self.assertAlmostEqual(G * (N["i"] - O["i"]) / 3600, 11.6, delta=G * 0.001 / 3600 * 2)
        self.assertAlmostEqual(G * (N["d"] - O["d"]) / 1000, 5.0, delta=G * 0.001 / 1000 * 2)

    def test_mixture_against_its_result_file_and_the_mixing_line(self):
        inputs, results, states = self.quantities(6), self.quantities(7), self.states(8)
        self.assertEqual(inputs["焓值 iA"], (91.06, "kJ/kg"))
        self.assertEqual(inputs["风量 GB"], (42000.0, "kg/h"))
        self.assertEqual(results["焓值 IH"], (70.718, "kJ/kg"))  # (18000·91.06 + 42000·62.0)/60000
        self.assertEqual(results["含湿量 D"], (15.52, "g/kg"))
        block = self.wair.split("已知IH=70.72(kJ/kg),D=15.52(g/kg),求其它参数:")[1]
        saved = file_rows(block, ["干球温度T ℃ :", "相对湿度FY(%):"])
        self.assertEqual(results["干球温度 T"][0], saved["干球温度T ℃ :"])
        self.assertEqual(results["相对湿度 FY"][0], saved["相对湿度FY(%):"])
        A, B, M = states["A3"], states["B3"], states["M3"]
        # M lies on A-B, 42000/60000 of the way from A.
        self.assertAlmostEqual((M["i"] - A["i"]) / (B["i"] - A["i"]), 0.7, delta=1e-4)
        self.assertAlmostEqual((M["d"] - A["d"]) / (B["d"] - A["d"]), 0.7, delta=1e-4)

    def test_chinese_runs_name_a_chinese_font(self):
        with zipfile.ZipFile(self.path) as z:
            self.assertIsNone(z.testzip())
            xml = z.read("word/document.xml").decode("utf-8")
            self.assertIn('w:eastAsia="宋体"', xml)
            self.assertIn('w:eastAsia="黑体"', xml)
            self.assertIn('w:eastAsia="宋体"', z.read("word/styles.xml").decode("utf-8"))

    def test_chart_picture(self):
        (shape,) = self.doc.inline_shapes
        picture = os.path.join(self.folder.name, "chart.png")
        with zipfile.ZipFile(self.path) as z, open(picture, "wb") as f:
            f.write(z.read("word/media/chart.png"))
        width, height, rows = read_png(picture)
        # The default chart is 300 × 400 drawing units with its labels around it: scaled into the
        # 1600 × 2000 box, it fills the box in one direction and keeps its proportions.
        self.assertTrue((width == 1600 and height <= 2000) or (height == 2000 and width <= 1600), (width, height))
        self.assertTrue(1.0 < height / width < 400 / 300 * 1.15, (width, height))
        self.assertAlmostEqual(shape.width / shape.height, width / height, delta=0.002)
        self.assertEqual(shape.width, 15 * 360000)
        pixels = [p for row in rows[::2] for p in row[::2]]
        drawn = sum(1 for p in pixels if min(p) < 235)
        dark = sum(1 for p in pixels if max(p) < 128)
        red = sum(1 for p in pixels if p[0] > 180 and p[1] < 60 and p[2] < 60)
        self.assertGreater(drawn / len(pixels), 0.03, "the chart's lines and labels")
        self.assertGreater(dark / len(pixels), 0.005, "the frame, the isotherms and the labels")
        # Six marks of 5 px radius, a quarter of their pixels sampled, and their labels.
        self.assertGreater(red, 6 * 15, "the red marks of the states")
        self.assertIn("N2 室内状态点", self.doc.paragraphs[-1].text)

    def test_report_reads_as_text(self):
        # docx2txt, a third reader, when the machine has it.
        if not os.path.exists("/usr/bin/docx2txt"):
            self.skipTest("docx2txt is not installed")
        text = subprocess.run(["/usr/bin/docx2txt", self.path, "-"], capture_output=True, text=True,
                              encoding="utf-8", timeout=60).stdout
        self.assertIn("送风量与送风状态计算", text)
        self.assertIn("70.718", text)


if __name__ == "__main__":
    unittest.main()
