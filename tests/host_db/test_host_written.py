"""Drawings the host writes itself, made by a script in the console as a user would make them
(a new drawing, an R2000 and an R12 one, filled with every kind of entity the host makes,
extended data, a block with attributes, a changed and a deleted entity), open in ezdxf, pass
its audit without errors or fixes, and hold what was made."""

import os
import subprocess
import tempfile
import unittest

import ezdxf
from ezdxf import recover

ADSCON = os.environ["ADSCON"]

COMMON = r"""
(regapp "K_DUCT_SIZE")
(regapp "STARTP")
(entmake '((0 . "LINE") (8 . "SLJS-1") (62 . 3) (10 0.0 0.0 0.0) (11 1000.0 0.0 0.0)
           (-3 ("K_DUCT_SIZE" (1002 . "{") (1040 . 500.0) (1040 . 320.0) (1002 . "}")))))
(entmake '((0 . "LINE") (8 . "风管") (10 1000.0 0.0 0.0) (11 1000.0 500.0 0.0)
           (-3 ("STARTP" (1010 1000.0 0.0 0.0) (1000 . "送风 DN100") (1070 . 7) (1071 . 123456)
                (1005 . "1F")))))
(entmake '((0 . "CIRCLE") (10 50.0 50.0 0.0) (40 . 5.0)))
(entmake '((0 . "ARC") (10 50.0 50.0 0.0) (40 . 8.0) (50 . 0.0) (51 . 1.5707963267948966)))
(entmake '((0 . "TEXT") (10 50.0 50.0 0.0) (40 . 3.5) (1 . "送风管 %%c100") (72 . 1) (73 . 2)
           (11 50.0 50.0 0.0)))
(entmake '((0 . "POINT") (10 1000.0 500.0 0.0)))
(entmake '((0 . "SOLID") (10 0.0 0.0 0.0) (11 1000.0 0.0 0.0) (12 1000.0 500.0 0.0) (13 50.0 50.0 0.0)))
(entmake '((0 . "POLYLINE") (66 . 1) (70 . 1)))
(foreach v '((0.0 0.0 0.0) (1000.0 0.0 0.0) (1000.0 500.0 0.0))
  (entmake (list '(0 . "VERTEX") (cons 10 v) '(42 . 0.25))))
(entmake '((0 . "SEQEND")))
(entmake '((0 . "POLYLINE") (66 . 1) (70 . 8)))
(foreach v '((0.0 0.0 0.0) (0.0 0.0 300.0)) (entmake (list '(0 . "VERTEX") (cons 10 v) '(70 . 32))))
(entmake '((0 . "SEQEND")))
(entmake '((0 . "BLOCK") (2 . "C201-1") (70 . 2) (10 0.0 0.0 0.0)))
(entmake '((0 . "CIRCLE") (10 0.0 0.0 0.0) (40 . 5.0)))
(entmake '((0 . "ATTDEF") (10 0.0 0.0 0.0) (40 . 2.5) (1 . "") (2 . "F-LL") (3 . "流量") (70 . 0)))
(entmake '((0 . "ENDBLK")))
(entmake '((0 . "INSERT") (2 . "C201-1") (10 1000.0 500.0 0.0) (66 . 1)))
(entmake '((0 . "ATTRIB") (10 1000.0 500.0 0.0) (40 . 2.5) (1 . "1200") (2 . "F-LL") (70 . 0)))
(entmake '((0 . "SEQEND")))
(entmake '((0 . "LINE") (10 0.0 0.0 0.0) (11 1000.0 500.0 0.0)))
(entdel (entlast))
(setq first (entget (entnext)))
(entmod (append (subst '(8 . "CHANGED") (assoc 8 first) first) '((62 . 1))))
"""

LATER_TYPES = r"""
(entmake '((0 . "ELLIPSE") (10 50.0 50.0 0.0) (11 20.0 0.0 0.0) (40 . 0.5) (41 . 0.0) (42 . 6.283185307179586)))
(entmake '((0 . "MTEXT") (10 50.0 50.0 0.0) (40 . 2.5) (1 . "两行\\P文字")))
(entmake '((0 . "LWPOLYLINE") (90 . 2) (70 . 1) (43 . 50.0) (10 50.0 200.0) (42 . 1.0) (10 150.0 200.0)
           (42 . 1.0)))
"""


class HostWritten(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tmp = tempfile.TemporaryDirectory()
        d = cls.tmp.name
        for version in ("R2000", "R12"):
            base = ezdxf.new(version)
            base.encoding = "gbk"  # written as $DWGCODEPAGE ANSI_936
            base.saveas(os.path.join(d, f"base_{version}.dxf"))
        cls.make("host_new.dxf", COMMON + LATER_TYPES)
        cls.make("host_r2000.dxf", COMMON + LATER_TYPES, "base_R2000.dxf")
        cls.make("host_r12.dxf", COMMON, "base_R12.dxf")

    @classmethod
    def make(cls, name, script, base=None):
        d = cls.tmp.name
        path = os.path.join(d, name + ".lsp")
        with open(path, "w", encoding="utf-8") as f:
            f.write(script)
        args = [ADSCON, "--save", os.path.join(d, name), path]
        if base:
            args[1:1] = ["--drawing", os.path.join(d, base)]
        p = subprocess.run(args, capture_output=True, text=True, timeout=60)
        if p.returncode != 0 or "nil" in p.stdout.split():
            raise AssertionError(f"{name}: {p.returncode}\n{p.stdout}{p.stderr}")

    @classmethod
    def tearDownClass(cls):
        cls.tmp.cleanup()

    def open(self, name):
        path = os.path.join(self.tmp.name, name)
        doc, auditor = recover.readfile(path)
        self.assertEqual([str(e.message) for e in auditor.errors], [])
        self.assertEqual([str(f.message) for f in auditor.fixes], [])
        doc = ezdxf.readfile(path)
        auditor = doc.audit()
        self.assertEqual([str(e.message) for e in auditor.errors], [])
        self.assertEqual([str(f.message) for f in auditor.fixes], [])
        return doc

    def check_content(self, doc, types):
        msp = doc.modelspace()
        self.assertEqual(sorted(e.dxftype() for e in msp), sorted(types))
        # The first line was changed to layer CHANGED, colour 1; its extended data stayed.
        duct = msp.query('LINE[layer=="CHANGED"]')[0]
        self.assertEqual(duct.dxf.color, 1)
        self.assertEqual([(t.code, t.value) for t in duct.get_xdata("K_DUCT_SIZE")],
                         [(1002, "{"), (1040, 500.0), (1040, 320.0), (1002, "}")])
        other = msp.query('LINE[layer=="风管"]')[0]
        values = {t.code: t.value for t in other.get_xdata("STARTP")}
        self.assertEqual(values[1000], "送风 DN100")
        self.assertEqual(values[1070], 7)
        self.assertEqual(values[1071], 123456)
        self.assertEqual(tuple(values[1010]), (1000.0, 0.0, 0.0))
        self.assertEqual(msp.query("TEXT")[0].dxf.text, "送风管 %%c100")
        insert = msp.query("INSERT")[0]
        self.assertEqual(insert.dxf.name, "C201-1")
        self.assertEqual([(a.dxf.tag, a.dxf.text) for a in insert.attribs], [("F-LL", "1200")])
        self.assertEqual(sorted(e.dxftype() for e in doc.blocks.get("C201-1")), ["ATTDEF", "CIRCLE"])
        polylines = msp.query("POLYLINE")
        self.assertEqual(sorted(len(list(p.vertices)) for p in polylines), [2, 3])
        self.assertTrue(any(p.is_3d_polyline for p in polylines))

    def test_new_drawing(self):
        doc = self.open("host_new.dxf")
        self.assertEqual(doc.dxfversion, "AC1021")
        self.check_content(doc, ["LINE", "LINE", "CIRCLE", "ARC", "TEXT", "POINT", "SOLID", "ELLIPSE",
                                 "MTEXT", "POLYLINE", "POLYLINE", "INSERT", "LWPOLYLINE"])
        donut = doc.modelspace().query("LWPOLYLINE")[0]
        self.assertTrue(donut.closed)
        self.assertEqual(donut.dxf.const_width, 50.0)
        self.assertEqual([p[4] for p in donut.get_points()], [1.0, 1.0])

    def test_r2000_drawing(self):
        doc = self.open("host_r2000.dxf")
        self.assertEqual(doc.dxfversion, "AC1015")
        self.assertEqual(doc.encoding, "gbk")
        self.check_content(doc, ["LINE", "LINE", "CIRCLE", "ARC", "TEXT", "POINT", "SOLID", "ELLIPSE",
                                 "MTEXT", "POLYLINE", "POLYLINE", "INSERT", "LWPOLYLINE"])

    def test_r12_drawing(self):
        doc = self.open("host_r12.dxf")
        self.assertEqual(doc.dxfversion, "AC1009")
        self.check_content(doc, ["LINE", "LINE", "CIRCLE", "ARC", "TEXT", "POINT", "SOLID",
                                 "POLYLINE", "POLYLINE", "INSERT"])


if __name__ == "__main__":
    unittest.main()
