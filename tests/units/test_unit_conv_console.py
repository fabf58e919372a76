"""The unit conversion window driven through the console as a designer uses it.

Expected results are worked here by hand from the unit definitions: 1 in = 0.0254 m,
t_F = t_C * 9 / 5 + 32, T_K = t_C + 273 (the window's constant), 1 kgf/cm^2 = 98067 Pa
(the label shows its reverse 1.020E-05).
"""
import os
import subprocess
import unittest

ADSCON = os.environ["ADSCON"]
TITLE = "单位换算"


def run(*exprs):
    args = [ADSCON]
    for e in exprs:
        args += ["-e", e]
    p = subprocess.run(args, capture_output=True, text=True, timeout=60)
    return p.returncode, p.stdout.splitlines()


def act(*actions):
    return '(host-window "%s" (quote (%s)))' % (TITLE, " ".join(actions))


def text(control):
    return '(host-window-text "%s" "%s")' % (TITLE, control)


class UnitConvConsole(unittest.TestCase):
    def test_repeated_command_keeps_one_window_and_its_contents(self):
        rc, out = run("(c:UnitConv)", act('(select "category" 2)', '(set "penc1" "5")'),
                      "(c:UnitConv)", text("penc1"), text("penc2"))
        self.assertEqual(rc, 0, out)
        # A second window would start with empty edits.
        self.assertEqual(out[-2:], ['"5"', '"0.127"'])

    def test_conversions_typed_into_the_window(self):
        rc, out = run(
            "(c:UnitConv)",
            act('(select "category" 2)', '(set "penc1" "1")'), text("penc2"),
            act('(click "dir2")', '(set "penc2" "1")'), text("penc1"),
            act('(select "category" 0)', '(set "penc2" "100")'), text("penc1"),
            act('(select "pairs" 1)', '(set "penc2" "0")'), text("penc1"),
            act('(select "category" 7)', '(set "penc2" "1")'), text("penc1"), text("factor"),
            act('(set "penc2" "abc")'), text("penc1"))
        self.assertEqual(rc, 0, out)
        values = [line for line in out if line.startswith('"')]
        self.assertEqual(values, ['"0.0254"', '"39.3701"', '"212"', '"273"', '"1.02e-05"',
                                  '"1.020E-05"', '"0"'])

    def test_empty_source_shows_the_message_of_that_edit(self):
        rc, out = run("(c:UnitConv)", act('(set "penc1" "")'),
                      act('(click "dir2")', '(set "penc2" "")'))
        self.assertEqual(rc, 0, out)
        self.assertIn("[alert] 数据1无数据!", out)
        self.assertIn("[alert] 数据2无数据!", out)

    def test_doubled_factor_texts_each_on_its_own_path(self):
        rc, out = run("(c:UnitConv)",
                      act('(select "category" 3)'), text("factor"), text("unit1"),
                      act('(select "pairs" 0)'), text("factor"),
                      act('(select "category" 7)', '(select "pairs" 3)'), text("factor"),
                      act('(click "dir2")', '(click "dir1")'), text("factor"),
                      act('(set "penc1" "2")'), text("penc2"))
        self.assertEqual(rc, 0, out)
        self.assertEqual([l for l in out if l.startswith('"')],
                         ['"6.452E-04"', '"[in^2]英寸"', '"6.425E-04"', '"249.089"',
                          '"249.098"', '"498.196"'])

    def test_closed_window_is_gone_and_opens_again(self):
        rc, out = run("(c:UnitConv)", act('(click "cancel")'), text("penc1"),
                      "(c:UnitConv)", text("factor"))
        self.assertEqual(rc, 0, out)
        self.assertEqual(out[-2:], ["nil", '"[(F-32)*5/9]"'])

    def test_unknown_window_or_control_is_an_error(self):
        # Errors go to standard error as "-e:LINE: ; error: MESSAGE".
        p = subprocess.run([ADSCON, "-e", "(c:UnitConv)", "-e", act('(click "nosuch")')],
                           capture_output=True, text=True, timeout=60)
        self.assertEqual(p.returncode, 1)
        self.assertIn("; error: no control nosuch in the window", p.stderr)
        p = subprocess.run([ADSCON, "-e", '(host-window "nosuch" (quote ((click "ok"))))'],
                           capture_output=True, text=True, timeout=60)
        self.assertEqual(p.returncode, 1)
        self.assertIn("; error: no window nosuch", p.stderr)


if __name__ == "__main__":
    unittest.main()
