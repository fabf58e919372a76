"""Round trips of many generated drawings: ezdxf writes a drawing with entities, layers and
extended data chosen by a seeded generator; the console loads and saves it, then loads and
saves its own file. The two saves are the same file, and ezdxf reads from the saved file every
entity, layer and extended-data group it wrote."""
import os
import random
import subprocess
import tempfile
import unittest

import ezdxf

ADSCON = os.environ["ADSCON"]
DRAWINGS = 100


def make_drawing(rng, version):
    doc = ezdxf.new(version)
    msp = doc.modelspace()
    apps = [f"APP{i}" for i in range(rng.randint(0, 3))]
    for app in apps:
        doc.appids.new(app)
    layers = ["0"] + [f"L{i}" for i in range(rng.randint(0, 4))]
    for name in layers[1:]:
        doc.layers.add(name, color=rng.randint(1, 255))
    for _ in range(rng.randint(1, 25)):
        x, y = rng.uniform(-1e4, 1e4), rng.uniform(-1e4, 1e4)
        attribs = {"layer": rng.choice(layers), "color": rng.choice([256, rng.randint(1, 255)])}
        kinds = ["line", "circle", "arc", "text", "point"] + (["lwpolyline"] if version != "R12" else [])
        kind = rng.choice(kinds)
        if kind == "line":
            e = msp.add_line((x, y), (x + rng.uniform(-50, 50), y + rng.uniform(-50, 50)), dxfattribs=attribs)
        elif kind == "circle":
            e = msp.add_circle((x, y), rng.uniform(0.1, 100), dxfattribs=attribs)
        elif kind == "arc":
            e = msp.add_arc((x, y), rng.uniform(0.1, 100), rng.uniform(0, 360), rng.uniform(0, 360), dxfattribs=attribs)
        elif kind == "text":
            e = msp.add_text(rng.choice(["a", "Zone 1", "ΔT = 5 K", "x" * 40]), dxfattribs=attribs)
            e.dxf.insert = (x, y)
        elif kind == "point":
            e = msp.add_point((x, y), dxfattribs=attribs)
        else:
            e = msp.add_lwpolyline([(x + rng.uniform(-9, 9), y + rng.uniform(-9, 9)) for _ in range(rng.randint(2, 6))],
                                   dxfattribs=attribs)
        if apps and rng.random() < 0.5:
            app = rng.choice(apps)
            e.set_xdata(app, [(1000, f"tag{rng.randint(0, 999)}"), (1040, rng.uniform(-1, 1)),
                              (1070, rng.randint(-32768, 32767)), (1071, rng.randint(-2**31, 2**31 - 1))])
    return doc


def signature(doc):
    entities = []
    for e in doc.modelspace():
        xdata = []
        if e.xdata:
            for app in sorted(e.xdata.data):
                xdata.append((app, [(code, round(v, 9) if isinstance(v, float) else v)
                                    for code, v in e.get_xdata(app)]))
        entities.append((e.dxftype(), e.dxf.layer, e.dxf.get("color", 256), xdata))
    layers = sorted(layer.dxf.name.upper() for layer in doc.layers)
    return entities, layers


class RoundTrip(unittest.TestCase):
    def test_generated_drawings_survive_two_saves_unchanged(self):
        rng = random.Random(20261122)
        with tempfile.TemporaryDirectory() as tmp:
            for n in range(DRAWINGS):
                version = rng.choice(["R12", "R2000", "R2010"])
                doc = make_drawing(rng, version)
                source = os.path.join(tmp, f"d{n}.dxf")
                doc.saveas(source)
                first, second = os.path.join(tmp, f"d{n}-1.dxf"), os.path.join(tmp, f"d{n}-2.dxf")
                for given, saved in ((source, first), (first, second)):
                    p = subprocess.run([ADSCON, "--drawing", given, "--save", saved], capture_output=True,
                                       text=True, timeout=60)
                    self.assertEqual(p.returncode, 0, (n, version, p.stderr))
                with open(first, "rb") as a, open(second, "rb") as b:
                    self.assertEqual(a.read(), b.read(), (n, version))
                self.assertEqual(signature(ezdxf.readfile(first)), signature(doc), (n, version))


if __name__ == "__main__":
    unittest.main()
