"""The formula slide of the device database editor: the committed dwglib/formula.sld is what
tools/make_formula_slide.py writes, and netpbm's independent slide reader (sldtoppm) accepts it
and draws lines from it."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(os.environ.get("VRN2_ROOT", Path(__file__).resolve().parents[2]))


class FormulaSlide(unittest.TestCase):
    def test_committed_slide_is_the_generated_one(self):
        with tempfile.TemporaryDirectory() as tmp:
            out = Path(tmp) / "formula.sld"
            subprocess.run([sys.executable, str(ROOT / "tools/make_formula_slide.py"), str(out)],
                           check=True, capture_output=True)
            self.assertEqual(out.read_bytes(), (ROOT / "dwglib/formula.sld").read_bytes())

    def test_another_reader_draws_it(self):
        reader = shutil.which("sldtoppm")
        self.assertIsNotNone(reader, "sldtoppm (Debian package netpbm) is needed")
        run = subprocess.run([reader, "-info", str(ROOT / "dwglib/formula.sld")], capture_output=True)
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertIn(b"Slide file type 86, level 2", run.stderr)
        self.assertNotIn(b"non-square", run.stderr)
        header, pixels = run.stdout.split(b"\n255\n", 1)
        self.assertEqual(header.split()[1:], [b"640", b"240"])
        lit = sum(1 for k in range(0, len(pixels), 3) if pixels[k:k + 3] != b"\0\0\0")
        # Dozens of strokes, a few pixels wide each: thousands of lit pixels, far from all.
        self.assertGreater(lit, 2000)
        self.assertLess(lit, 640 * 240 // 4)


if __name__ == "__main__":
    unittest.main()
