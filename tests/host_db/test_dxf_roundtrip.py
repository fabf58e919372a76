"""Drawings written by ezdxf (R12, R2000, R2010, R2018) go through the host's console
unchanged: loaded and saved, every entity, table entry and extended-data group reads back the
same in ezdxf, the bytes are the same, and the file still passes ezdxf's audit. A new
drawing the host writes opens in ezdxf and audits clean."""

import os
import subprocess
import sys
import tempfile
import unittest

import ezdxf
from ezdxf import recover

ADSCON = os.environ.get("ADSCON", "")


def run_console(*args):
    """Runs the console; returns (exit status, output)."""
    proc = subprocess.run([ADSCON, *args], capture_output=True, text=True, timeout=300)
    return proc.returncode, proc.stdout + proc.stderr


def load_and_save(source, target):
    status, output = run_console("--drawing", source, "--save", target)
    if status != 0:
        raise AssertionError(f"console failed ({status}): {output}")


def make_drawing(version, path, encoding=None):
    doc = ezdxf.new(version)
    if encoding:
        doc.encoding = encoding
    doc.appids.new("K_DUCT_SIZE")
    doc.appids.new("STARTP")
    doc.layers.new("SLJS-1", dxfattribs={"color": 3})
    doc.layers.new("风管", dxfattribs={"color": 5})
    msp = doc.modelspace()
    line = msp.add_line((0, 0, 0), (1000.5, 250.25, 0), dxfattribs={"layer": "SLJS-1"})
    line.set_xdata("K_DUCT_SIZE", [(1002, "{"), (1040, 500.0), (1040, 320.0), (1002, "}")])
    line.set_xdata("STARTP", [(1000, "中文 xdata"), (1070, 7), (1071, 123456),
                              (1010, (1.5, 2.5, 3.5)), (1005, "1F"), (1041, 2.0), (1042, 0.5)])
    msp.add_line((5, 5), (6, 6), dxfattribs={"layer": "风管", "color": 1})
    msp.add_text("送风管 DN100 %%c100", dxfattribs={"height": 2.5, "layer": "风管"}).set_placement((10, 10))
    msp.add_polyline2d([(0, 0), (10, 0), (10, 10)], dxfattribs={"layer": "SLJS-1"})
    msp.add_polyline3d([(0, 0, 0), (5, 5, 5), (10, 0, 3)])
    msp.add_circle((50, 50), 5)
    msp.add_arc((0, 100), 10, 0, 90)
    msp.add_point((7, 8))
    if version != "R12":
        msp.add_lwpolyline([(50, 200, 50, 50, 1.0), (150, 200, 50, 50, 1.0)], format="xyseb",
                           close=True, dxfattribs={"const_width": 50})
    block = doc.blocks.new("C201-1")
    block.add_circle((0, 0), 5)
    block.add_attdef("F-LL", (0, 0), dxfattribs={"height": 2.5, "prompt": "flow"})
    insert = msp.add_blockref("C201-1", (100, 50))
    insert.add_attrib("F-LL", "1200", (100, 50))
    doc.saveas(path)


def entity_signature(entity):
    """Everything ezdxf reads of an entity: type, attributes, vertices, attributes of
    inserts, extended data."""
    attribs = entity.dxfattribs()
    attribs.pop("handle", None)
    attribs.pop("owner", None)
    sig = [entity.dxftype(), sorted((k, repr(v)) for k, v in attribs.items())]
    if entity.dxftype() == "POLYLINE":
        sig.append([repr(v.dxf.location) for v in entity.vertices])
    if entity.dxftype() == "LWPOLYLINE":
        sig.append([repr(p) for p in entity.get_points()])
    if entity.dxftype() == "INSERT":
        sig.append([(a.dxf.tag, a.dxf.text) for a in entity.attribs])
    if entity.xdata:
        sig.append([(app, [(t.code, repr(t.value)) for t in entity.get_xdata(app)])
                    for app in sorted(entity.xdata.data)])
    return sig


def drawing_signature(doc):
    return {
        "entities": [entity_signature(e) for e in doc.modelspace()],
        "blocks": {b.name: [entity_signature(e) for e in b] for b in doc.blocks},
        "layers": sorted((l.dxf.name, l.dxf.color) for l in doc.layers),
        "appids": sorted(a.dxf.name for a in doc.appids),
        "styles": sorted(s.dxf.name for s in doc.styles),
        # ezdxf makes up new GUIDs for an R12 file each time it reads one, and fills in creation
        # and update times from the clock where a file has none; the bytes are compared too.
        "header": {k: repr(doc.header[k]) for k in doc.header.varnames()
                   if k not in ("$FINGERPRINTGUID", "$VERSIONGUID", "$TDCREATE", "$TDUCREATE",
                                "$TDUPDATE", "$TDUUPDATE")},
    }


def audit(path):
    doc = ezdxf.readfile(path)
    auditor = doc.audit()
    return doc, [str(e.message) for e in auditor.errors], [str(f.message) for f in auditor.fixes]


class RoundTrip(unittest.TestCase):
    def setUp(self):
        self.tmp = tempfile.TemporaryDirectory()

    def tearDown(self):
        self.tmp.cleanup()

    def path(self, name):
        return os.path.join(self.tmp.name, name)

    def check_version(self, version, encoding=None):
        source, target = self.path(f"{version}.dxf"), self.path(f"{version}_out.dxf")
        make_drawing(version, source, encoding)
        load_and_save(source, target)
        before, after = ezdxf.readfile(source), ezdxf.readfile(target)
        self.assertEqual(drawing_signature(before), drawing_signature(after))
        with open(source, "rb") as a, open(target, "rb") as b:
            self.assertEqual(a.read(), b.read(), "an unchanged drawing is written back byte for byte")
        _, errors_before, fixes_before = audit(source)
        _, errors, fixes = audit(target)
        self.assertEqual(errors, errors_before)
        self.assertEqual(fixes, fixes_before)

    def test_r12_gbk(self):
        self.check_version("R12", "gbk")

    def test_r2000_gbk(self):
        self.check_version("R2000", "gbk")

    def test_r2000_windows_1252_with_escapes(self):
        self.check_version("R2000")

    def test_r2010_utf8(self):
        self.check_version("R2010")

    def test_r2018_utf8(self):
        self.check_version("R2018")

    def test_chinese_text_reads_back(self):
        source, target = self.path("zh.dxf"), self.path("zh_out.dxf")
        make_drawing("R2000", source, "gbk")
        load_and_save(source, target)
        doc = ezdxf.readfile(target)
        texts = [e.dxf.text for e in doc.modelspace().query("TEXT")]
        self.assertEqual(texts, ["送风管 DN100 %%c100"])
        line = doc.modelspace().query("LINE")[0]
        self.assertEqual(line.get_xdata("STARTP")[0].value, "中文 xdata")

    def test_new_drawing_opens_and_audits_clean(self):
        target = self.path("new.dxf")
        status, output = run_console("--save", target)
        self.assertEqual(status, 0, output)
        doc, auditor = recover.readfile(target)
        self.assertEqual(len(auditor.errors), 0)
        self.assertEqual(len(auditor.fixes), 0)
        doc, errors, fixes = audit(target)
        self.assertEqual(errors, [])
        self.assertEqual(fixes, [])
        self.assertEqual(doc.dxfversion, "AC1021")
        self.assertIn("0", [layer.dxf.name for layer in doc.layers])
        self.assertEqual(len(doc.modelspace()), 0)

    def test_damaged_file_is_refused_and_named(self):
        source = self.path("whole.dxf")
        make_drawing("R2000", source)
        with open(source, "rb") as f:
            data = f.read()
        cut = self.path("cut.dxf")
        with open(cut, "wb") as f:
            f.write(data[: len(data) // 2])
        target = self.path("never.dxf")
        status, output = run_console("--drawing", cut, "--save", target)
        self.assertNotEqual(status, 0)
        self.assertIn("line ", output)
        self.assertFalse(os.path.exists(target))


if __name__ == "__main__":
    if not ADSCON:
        print("ADSCON is not set", file=sys.stderr)
        sys.exit(1)
    unittest.main()
