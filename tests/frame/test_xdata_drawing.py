"""Extended data attached with "_kzsj1" in the console, saved, and read back by ezdxf from
drawings that ezdxf made, next to another application's data that must stay as it was."""

import os
import re
import subprocess
import tempfile
import unittest

import ezdxf

ADSCON = os.environ["ADSCON"]
ROOT = os.environ["VRN2_ROOT"]

SCRIPT = r"""
(setq line (ssname (ssget "X" '((0 . "LINE"))) 0))
(setq circle (ssname (ssget "X" '((0 . "CIRCLE"))) 0))
(_kzsj1 line "VRN_DUCT" "送风管 DN200")
(_kzsj1 line "VRN_NODE" (list 1 2.5 "s" '(1.0 2.0 3.0) (list 4 "深" (list 5)) circle))
(_kzsj1 line "VRN_PT" '(3.0 4.0))
(_kzsj1 line "other" "replaced")
(print (_kzsj2 line "VRN_DUCT" 0))
(print (_kzsj2 line "VRN_NODE" 1))
(print (work2 line "VRN_NODE" 1070 "OTHER" 1070))
"""


def plain(value):
    """Text as written: files before R2007 spell characters outside their code page \\U+XXXX."""
    if not isinstance(value, str):
        return value
    return re.sub(r"\\U\+([0-9A-Fa-f]{4})", lambda m: chr(int(m.group(1), 16)), value)


class XdataInDrawings(unittest.TestCase):
    def run_on(self, version):
        with tempfile.TemporaryDirectory() as d:
            source, saved, script = (os.path.join(d, n) for n in ("in.dxf", "out.dxf", "s.lsp"))
            doc = ezdxf.new(version)
            doc.appids.new("OTHER")
            msp = doc.modelspace()
            line = msp.add_line((0, 0), (10, 0))
            line.set_xdata("OTHER", [(1000, "旧数据"), (1070, 3), (1040, 0.5)])
            circle = msp.add_circle((5, 5), 2)
            doc.saveas(source)
            with open(script, "w", encoding="utf-8") as f:
                f.write(SCRIPT)
            p = subprocess.run([ADSCON, "--root", ROOT, "--drawing", source, "--save", saved, script],
                               capture_output=True, text=True, timeout=60)
            self.assertEqual(p.returncode, 0, p.stdout + p.stderr)
            out = ezdxf.readfile(saved)
            auditor = out.audit()
            self.assertEqual([str(e.message) for e in auditor.errors], [])
            return p.stdout, out, circle.dxf.handle

    def check(self, version):
        printed, doc, circle_handle = self.run_on(version)
        line = doc.modelspace().query("LINE")[0]
        xdata = lambda app: [(t.code, tuple(t.value) if t.code == 1010 else plain(t.value)) for t in line.get_xdata(app)]
        # The name matches without regard to case, and its string is overwritten in place.
        self.assertEqual(xdata("OTHER"), [(1000, "replaced"), (1070, 3), (1040, 0.5)])
        self.assertEqual(xdata("VRN_DUCT"), [(1000, "送风管 DN200")])
        self.assertEqual(xdata("VRN_NODE"), [
            (1002, "{"), (1070, 1), (1040, 2.5), (1000, "s"), (1010, (1.0, 2.0, 3.0)),
            (1002, "{"), (1070, 4), (1000, "深"), (1002, "{"), (1070, 5), (1002, "}"), (1002, "}"),
            (1005, circle_handle), (1002, "}")])
        self.assertEqual(xdata("VRN_PT"), [(1002, "{"), (1040, 3.0), (1040, 4.0), (1002, "}")])
        self.assertIn('"送风管 DN200"', printed)
        self.assertIn('(1 2.5 "s" (1.0 2.0 3.0) (4 "深" (5)) <Entity name:', printed)
        self.assertIn('((1 4 5) (3))', printed)

    def test_r2000(self):
        self.check("R2000")

    def test_r2018(self):
        self.check("R2018")


if __name__ == "__main__":
    unittest.main()
