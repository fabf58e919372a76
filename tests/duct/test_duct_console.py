"""c:sssj and c:zljs in the console on drawings made by ezdxf at test time: the traced flows,
main-path marks and colours read back by ezdxf, the results file checked line by line against
losses worked here by an independent bisection of the Colebrook-White equation, and the
messages for each fault."""

import math
import os
import re
import subprocess
import tempfile
import unittest

import ezdxf

ADSCON = os.environ["ADSCON"]
ROOT = os.environ["VRN2_ROOT"]
LAYER = "SLJS-TEST"


def plain(value):
    if not isinstance(value, str):
        return value
    return re.sub(r"\\U\+([0-9A-Fa-f]{4})", lambda m: chr(int(m.group(1), 16)), value)


def friction_factor(k_mm, re_number, d_m):
    """λ from 1/√λ = -2·log10(k/(3.7·D) + 2.51/(Re·√λ)) by bisection on λ."""
    g = lambda lam: 1 / math.sqrt(lam) + 2 * math.log10(k_mm / 1000 / (3.7 * d_m) + 2.51 / (re_number * math.sqrt(lam)))
    lo, hi = 1e-4, 1.0
    for _ in range(200):
        mid = (lo + hi) / 2
        lo, hi = (mid, hi) if g(mid) > 0 else (lo, mid)
    return (lo + hi) / 2


def circular_loss(d_mm, flow, length, xi, k=0.15, b=101.325, t=20.0):
    """Friction and local loss of a circular duct; viscosity 1.506e-5 at 20 °C."""
    rho = 0.00348 * b * 1000 / (t + 273.15)
    d = d_mm / 1000
    v = flow / 3600 / (math.pi / 4 * d * d)
    lam = friction_factor(k, v * d / 1.506e-5, d)
    return length * lam / d * rho * v * v / 2, xi * rho * v * v / 2, v


class Drawing:
    """A tee: the start duct Ø200 (0,0)-(10000,0), branch A Ø160 up 4 m to a 400 m³/h outlet,
    branch B Ø200 on 3 m to a 600 m³/h outlet."""

    def __init__(self):
        self.doc = ezdxf.new("R2000")
        self.doc.layers.add(LAYER, color=7)
        for app in ("K_DUCT_SIZE", "K_DUCT_NO", "K_DUCT_F", "outfile", "is_main"):
            self.doc.appids.add(app)
        block = self.doc.blocks.new("C201-1")
        block.add_circle((0, 0), 100)
        block.add_attdef("F-LL", (0, -200))
        self.msp = self.doc.modelspace()

    def duct(self, a, b, size, number, xi=0.0, layer=LAYER):
        line = self.msp.add_line(a, b, dxfattribs={"layer": layer})
        line.set_xdata("K_DUCT_SIZE", [(1002, "{")] + [(1040, float(s)) for s in size] + [(1002, "}")])
        line.set_xdata("K_DUCT_NO", [(1002, "{"), (1070, number), (1002, "}")])
        line.set_xdata("K_DUCT_F", [(1002, "{"), (1040, xi), (1002, "}")])
        return line

    def outlet(self, at, flow):
        insert = self.msp.add_blockref("C201-1", at, dxfattribs={"layer": LAYER})
        if flow is not None:
            insert.add_attrib("F-LL", str(flow), (at[0], at[1] - 200))
        return insert


def tee(root_reversed=False):
    d = Drawing()
    a, b = ((10000, 0), (0, 0)) if root_reversed else ((0, 0), (10000, 0))
    d.root = d.duct(a, b, (200,), 1)
    d.root.set_xdata("outfile", [(1000, "out.ksl")])
    d.branch_a = d.duct((10000, 0), (10000, 4000), (160,), 2, xi=0.5)
    d.outlet((10000, 4000), 400)
    d.branch_b = d.duct((10000, 0), (13000, 0), (200,), 3, xi=0.2)
    d.outlet((13000, 0), 600)
    return d


TRACE = """(setq _tzbl 100.0)
(host-entsel (handent "{handle}") '({pick} 0.0 0.0))
(host-dialog "mainduct_l" '((press "accept")))
(c:sssj)
"""

# The trace up to the pick alone: for runs that stop before the main-path dialog, which would
# otherwise leave its queued actions unused and fail the run.
TRACE_PICK = TRACE.replace("""(host-dialog "mainduct_l" '((press "accept")))\n""", "")

CALC = """(host-dialog "sljs_dlg" '({actions}))
(host-dialog "k_sljs_res" '((press "cancel")))
(c:zljs)
"""

GOOD = '(set "K" "0.15") (set "B" "101.325") (set "t" "20") (press "cal")'


class DuctCommands(unittest.TestCase):
    def run_script(self, drawing, script, root=ROOT):
        self.dir = tempfile.mkdtemp()
        source, saved, lsp = (os.path.join(self.dir, n) for n in ("in.dxf", "out.dxf", "s.lsp"))
        drawing.doc.saveas(source)
        with open(lsp, "w", encoding="utf-8") as f:
            f.write(script)
        p = subprocess.run([ADSCON, "--root", root, "--drawing", source, "--cwd", self.dir, "--save", saved, lsp],
                           capture_output=True, text=True, timeout=120)
        self.assertEqual(p.returncode, 0, p.stdout + p.stderr)
        out = ezdxf.readfile(saved)
        self.assertEqual([str(e.message) for e in out.audit().errors], [])
        return p.stdout, out

    def xtext(self, doc, handle, app):
        entity = doc.entitydb[handle]
        if not entity.has_xdata(app):
            return None
        return plain(entity.get_xdata(app)[0].value)

    def trace(self, d, pick=1000.0, extra=""):
        return TRACE.format(handle=d.root.dxf.handle, pick=pick) + extra

    def test_trace_and_calculate_the_tee(self):
        d = tee()
        printed, doc = self.run_script(d, self.trace(d) + CALC.format(actions=GOOD))
        # Flows summed to the start duct; both leaves marked not main; main path A in green.
        self.assertEqual(self.xtext(doc, d.root.dxf.handle, "K_DUCT_G"), "1000.0000000")
        self.assertEqual(self.xtext(doc, d.branch_a.dxf.handle, "is_main"), "0")
        self.assertEqual(self.xtext(doc, d.branch_b.dxf.handle, "is_main"), "0")
        self.assertEqual(doc.entitydb[d.root.dxf.handle].dxf.color, 3)
        self.assertEqual(doc.entitydb[d.branch_a.dxf.handle].dxf.color, 3)
        self.assertNotEqual(doc.entitydb[d.branch_b.dxf.handle].dxf.color, 3)
        self.assertIn("绿色管段为主风道.", printed)
        # The worked duct: Ø200, 1000 m³/h, 10 m, ξ = 0 (two branches: no contraction rule).
        root_pl, root_pj, root_v = circular_loss(200, 1000, 10, 0)
        self.assertAlmostEqual(root_v, 8.84194, places=5)
        a_pl, a_pj, a_v = circular_loss(160, 400, 4, 0.5)
        _, _, b_v = circular_loss(200, 600, 3, 0.2)
        dp_root = float(self.xtext(doc, d.root.dxf.handle, "K_DUCT_DP"))
        dp_a = float(self.xtext(doc, d.branch_a.dxf.handle, "K_DUCT_DP"))
        self.assertAlmostEqual(dp_root, root_pl, places=6)
        self.assertAlmostEqual(dp_a, a_pl + a_pj, places=6)
        self.assertIsNone(self.xtext(doc, d.branch_b.dxf.handle, "K_DUCT_DP"))
        self.assertIn("编号:2 局部阻力ΔPj=%.4fPa,沿程阻力ΔPl=%.4fPa" % (a_pj, a_pl), printed)
        self.assertIn("编号:1 局部阻力ΔPj=0.0000Pa,沿程阻力ΔPl=%.4fPa" % root_pl, printed)
        total = root_pl + a_pl + a_pj
        self.assertIn("最不利管路总阻力ΔP=%.4fPa." % total, printed)
        with open(os.path.join(self.dir, "out.ksl"), encoding="utf-8") as f:
            lines = f.read().split("\n")
        self.assertEqual(lines, [
            "", "===============风道计算结果==============", "",
            "管段编号 流量(m^3/h) 管长(m) 风管尺寸(mm) 流速(m/s) 阻力(Pa)", "主风道",
            "%4d%14.3f %8.3f     %4d     %8.4f  %10.6f" % (1, 1000, 10, 200, root_v, root_pl),
            "%4d%14.3f %8.3f     %4d     %8.4f  %10.6f" % (2, 400, 4, 160, a_v, a_pl + a_pj),
            "", "最不利环路阻力为ΔP=%.4f Pa" % total, "", "支风道:",
            "%4d%14.3f %8.3f     %4d     %8.4f" % (3, 600, 3, 200, b_v), ""])
        with open(os.path.join(self.dir, "k-sljs.sr"), encoding="utf-8") as f:
            self.assertEqual(f.read().split("\n")[7:10], ["0.1500", "101.325", "20.00"])

    def test_is_main_overrides_the_longest_path(self):
        d = tee()
        d.branch_b.set_xdata("is_main", [(1000, "1")])
        printed, doc = self.run_script(d, self.trace(d))
        self.assertEqual(doc.entitydb[d.branch_b.dxf.handle].dxf.color, 3)
        self.assertNotEqual(doc.entitydb[d.branch_a.dxf.handle].dxf.color, 3)
        self.assertEqual(self.xtext(doc, d.branch_b.dxf.handle, "is_main"), "1")

    def test_pick_near_the_second_end_makes_it_upstream(self):
        d = tee(root_reversed=True)  # first point at the junction
        _, doc = self.run_script(d, self.trace(d, pick=1000.0))  # near (0,0): the second point
        self.assertEqual(self.xtext(doc, d.root.dxf.handle, "K_DUCT_G"), "1000.0000000")
        d = tee(root_reversed=True)
        _, doc = self.run_script(d, self.trace(d, pick=9000.0))  # near the junction: traced away
        self.assertIsNone(self.xtext(doc, d.root.dxf.handle, "K_DUCT_G"))
        self.assertEqual(self.xtext(doc, d.root.dxf.handle, "is_main"), "0")

    def test_ends_join_below_ten_units(self):
        for gap, joined in ((9.99, True), (10.0, False)):
            d = Drawing()
            d.root = d.duct((0, 0), (10000, 0), (200,), 1)
            d.duct((10000 + gap, 0), (12000, 0), (200,), 2)
            d.outlet((12000, 0), 500)
            _, doc = self.run_script(d, self.trace(d))
            self.assertEqual(self.xtext(doc, d.root.dxf.handle, "K_DUCT_G"), "500.0000000" if joined else None)

    def test_branch_on_the_middle_of_a_duct_is_split_and_traced(self):
        d = Drawing()
        d.root = d.duct((0, 0), (10000, 0), (400, 250), 1, xi=0.4)
        d.outlet((10000, 0), 700)
        d.duct((5000, 3000), (5000, 5), (200,), 2)
        d.outlet((5000, 3000), 300)
        printed, doc = self.run_script(d, self.trace(d))
        lines = doc.modelspace().query("LINE")
        self.assertEqual(len(lines), 3)
        piece = [l for l in lines if l.dxf.start[0] == 5000 and l.dxf.start[1] == 0][0]
        self.assertEqual([t.value for t in piece.get_xdata("K_DUCT_SIZE")], ["{", 400.0, 250.0, "}"])
        self.assertFalse(piece.has_xdata("K_DUCT_F"))
        self.assertEqual(self.xtext(doc, d.root.dxf.handle, "K_DUCT_G"), "1000.0000000")

    def test_missing_outlet_flow_is_marked(self):
        d = tee()
        d.msp.query("INSERT")[0].attribs[0].dxf.text = "?"
        printed, doc = self.run_script(d, self.trace(d))
        self.assertIn("图中打问号的送风口未输入数据.", printed)
        self.assertEqual(self.xtext(doc, d.root.dxf.handle, "K_DUCT_G"), "599.0000000")
        marks = doc.modelspace().query('TEXT[layer=="SLJS_WARM"]')
        self.assertEqual([t.dxf.text for t in marks], ["?"])
        self.assertEqual(doc.layers.get("SLJS_WARM").color, 240)

    def test_trace_faults(self):
        d = tee()
        for x in (8000, 12000):
            d.duct((10000, 0), (x, -3000), (160,), 9)
        printed, _ = self.run_script(d, TRACE_PICK.format(handle=d.root.dxf.handle, pick=1000.0))
        self.assertIn("输入管网不能超过三个分支.", printed)
        d = tee()
        other = d.duct((0, 5000), (100, 5000), (200,), 5, layer="0")
        printed, _ = self.run_script(d, TRACE_PICK.format(handle=other.dxf.handle, pick=50.0))
        self.assertIn("[alert] 选择风道无效.", printed)
        d = tee()
        circle = d.msp.add_circle((0, 9000), 100, dxfattribs={"layer": LAYER})
        printed, _ = self.run_script(d, TRACE_PICK.format(handle=circle.dxf.handle, pick=0.0))
        self.assertIn("选择起始段不是风道.", printed)
        printed, _ = self.run_script(tee(), '(setq _tzbl 100.0)\n(c:sssj)\n')
        self.assertIn("没选择起始风道.", printed)
        d = tee()
        # Without the scale nothing is asked: a queued pick would be left over.
        printed, doc = self.run_script(d, "(c:sssj)\n")
        self.assertIn("未设置绘图比例_tzbl.", printed)
        self.assertIsNone(self.xtext(doc, d.root.dxf.handle, "K_DUCT_G"))

    def test_calculation_needs_a_traced_network(self):
        printed, _ = self.run_script(tee(), "(c:zljs)\n")
        self.assertNotIn("最不利管路总阻力", printed)
        self.assertFalse(os.path.exists(os.path.join(self.dir, "k-sljs.sr")))
        self.assertFalse(os.path.exists(os.path.join(self.dir, "out.ksl")))

    def test_missing_dialog_file_is_told_and_nothing_is_calculated(self):
        d = tee()
        empty_root = tempfile.mkdtemp()
        # Neither dialog can be shown, so no dialog actions are queued.
        script = TRACE_PICK.format(handle=d.root.dxf.handle, pick=1000.0) + "(c:zljs)\n"
        printed, doc = self.run_script(d, script, root=empty_root)
        self.assertIn("不能装载对话框文件K-SLJS.DCL..", printed)
        self.assertEqual(self.xtext(doc, d.root.dxf.handle, "K_DUCT_G"), "1000.0000000")
        self.assertIsNone(self.xtext(doc, d.root.dxf.handle, "K_DUCT_DP"))
        self.assertFalse(os.path.exists(os.path.join(self.dir, "out.ksl")))

    def test_inputs_are_checked_in_order(self):
        d = tee()
        actions = ('(set "K" "") (press "cal") (set "K" "x") (press "cal") (set "K" "0.15") '
                   '(set "B" "") (press "cal") (set "B" "kPa") (press "cal") (set "B" "101.325") '
                   '(set "t" "") (press "cal") (set "t" "abc") (press "cal") (set "t" "70.01") (press "cal") '
                   '(set "t" "-10.01") (press "cal") (set "t" "-10") (press "cal")')
        printed, _ = self.run_script(d, self.trace(d) + CALC.format(actions=actions))
        alerts = re.findall(r"\[alert\] ([^\n]*)", printed)
        self.assertEqual(alerts, ["输入当量粗糙度K值.", "输入正确的当量粗糙度K.", "输入空气压力值.", "输入正确的空气压力值.",
                                  "输入空气温度值.", "输入正确的空气温度值.", "输入正确的空气温度值.", "输入正确的空气温度值."])
        self.assertIn("最不利管路总阻力", printed)
        with open(os.path.join(self.dir, "k-sljs.sr"), encoding="utf-8") as f:
            self.assertEqual(f.read().split("\n")[9], "-10.00")
        printed, _ = self.run_script(d, self.trace(d) + CALC.format(actions=GOOD.replace('"20"', '"70"')))
        self.assertIn("最不利管路总阻力", printed)


if __name__ == "__main__":
    unittest.main()
