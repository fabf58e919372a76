"""Drawings the host writes itself (a new drawing, an R2000 and an R12 one, filled with every
kind of entity the host makes, extended data, a block with attributes) open in ezdxf, pass its
audit without errors or fixes, and hold what was made."""

import os
import subprocess
import sys
import tempfile
import unittest

import ezdxf
from ezdxf import recover

BUILD = os.environ.get("VRN2_BUILD", "")
TESTS = os.path.join(BUILD, "tests", "host_db_tests")


class HostWritten(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tmp = tempfile.TemporaryDirectory()
        env = dict(os.environ, HOST_DB_DRAWING_OUT=cls.tmp.name)
        proc = subprocess.run([TESTS, "--gtest_filter=WrittenDrawing.*"], env=env,
                              capture_output=True, text=True, timeout=300)
        if proc.returncode != 0:
            raise AssertionError(proc.stdout + proc.stderr)

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
    if not os.path.exists(TESTS):
        print(f"{TESTS} is missing", file=sys.stderr)
        sys.exit(1)
    unittest.main()
