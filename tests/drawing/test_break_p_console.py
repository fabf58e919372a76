"""break_p through the console: a pipe inside the span erased, pipes reaching past either end
cut so that only their part inside goes (the pieces keep the pipe's data), a pipe across the
span left alone, and the three argument alerts."""

import unittest

import ezdxf

from drawing_console import run_on

LAYER = "$R01-GS"


def pipe(msp, start, end, layer=LAYER):
    p = msp.add_polyline3d([start, end], dxfattribs={"layer": layer})
    p.set_xdata("STARTP", [(1010, start)])
    p.set_xdata("GUANJ", [(1000, "DN25")])
    return p


def runs(doc, layer=LAYER):
    out = []
    for e in doc.modelspace().query(f'POLYLINE[layer=="{layer}"]'):
        v = [tuple(round(c, 6) for c in x.dxf.location)[:2] for x in e.vertices]
        out.append((v[0], v[-1], e.get_xdata("GUANJ")[0].value if e.has_xdata("GUANJ") else None))
    return sorted(out)


class SpanBreak(unittest.TestCase):
    def console(self, doc, *expressions):
        return run_on(self, doc, *expressions)

    def new(self):
        doc = ezdxf.new("R2000")
        doc.appids.new("STARTP")
        doc.appids.new("GUANJ")
        return doc

    def test_each_class(self):
        doc = self.new()
        msp = doc.modelspace()
        pipe(msp, (1200, 0, 0), (1800, 0, 0))      # inside the span: erased
        pipe(msp, (0, 100, 0), (1500, 100, 0))     # p1 inside it: cut from 1000 to its end at 1500
        pipe(msp, (1500, -100, 0), (4000, -100, 0))  # p2 inside it: cut from 1500 to 2000
        pipe(msp, (1500, -500, 0), (1500, 500, 0))  # across: left alone
        pipe(msp, (1200, 0, 0), (1800, 0, 0), layer="$R01-HS")  # another layer
        _, saved = self.console(doc, "(break_p '(1000.0 0.0 0.0) '(2000.0 0.0 0.0) \"$R01-GS\")")
        self.assertEqual(runs(saved), [
            ((0, 100), (1000, 100), "DN25"),
            ((1500, -500), (1500, 500), "DN25"),
            ((2000, -100), (4000, -100), "DN25"),
        ])
        self.assertEqual(len(runs(saved, "$R01-HS")), 1)

    def test_a_pipe_reaching_past_both_ends_loses_the_middle(self):
        doc = self.new()
        pipe(doc.modelspace(), (0, 0, 0), (3000, 0, 0))
        _, saved = self.console(doc, "(break_p '(1000.0 0.0 0.0) '(2000.0 0.0 0.0) \"$R01-GS\")")
        self.assertEqual(runs(saved), [((0, 0), (1000, 0), "DN25"), ((2000, 0), (3000, 0), "DN25")])

    def test_argument_alerts(self):
        doc = self.new()
        pipe(doc.modelspace(), (0, 0, 0), (3000, 0, 0))
        out, saved = self.console(doc, "(break_p 1 '(2.0 0.0 0.0) \"$R01-GS\")", "(break_p '(1.0 0.0 0.0) 2 \"$R01-GS\")",
                                  "(break_p '(1.0 0.0 0.0) '(2.0 0.0 0.0) 3)")
        self.assertEqual([l for l in out.splitlines() if l.startswith("[alert]")],
                         ["[alert] 第1个参数不是三维点!", "[alert] 第2个参数不是三维点!", "[alert] 第3个参数不是string!"])
        self.assertEqual(len(runs(saved)), 1)


if __name__ == "__main__":
    unittest.main()
