"""Typed replies through the console, as a script supplies them: (host-input ...) queues what a
user would type, and each get-function takes the next reply, refusing what does not fit with
the editor's message."""
import math
import os
import subprocess
import unittest

ADSCON = os.environ["ADSCON"]


def run(*expressions):
    args = [ADSCON]
    for e in expressions:
        args += ["-e", e]
    p = subprocess.run(args, capture_output=True, text=True, timeout=60)
    return p.returncode, p.stdout, p.stderr


class TypedReplies(unittest.TestCase):
    def test_help_documents_the_form(self):
        out = subprocess.run([ADSCON, "--help"], capture_output=True, text=True, timeout=60).stdout
        self.assertIn("(host-input VALUE ...)", out)
        self.assertIn("nil for a bare", out)

    def test_replies_are_taken_in_order_by_whichever_request_asks(self):
        code, out, err = run('(host-input "ten" 10 "Width" \'(3 4) nil)',
                             '(getreal "\\nHeight: ")',
                             '(progn (initget "Width Length") (getkword "\\nOption: "))',
                             "(getcorner '(0 0) \"\\nCorner: \")",
                             '(getint "\\nCount: ")')
        self.assertEqual(code, 0, err)
        self.assertEqual(out, 'T\n\nHeight: \nRequires numeric value.\nHeight: 10.0\n'
                              '\nOption: "Width"\n\nCorner: (3.0 4.0 0.0)\n\nCount: nil\n')
        self.assertEqual(err, "")

    def test_initget_bits_refuse_values_and_reprompt(self):
        code, out, _ = run('(host-input 0 -2.5 "4.5")',
                           '(progn (initget 7) (getdist "\\nLength: "))')
        self.assertEqual(code, 0)
        self.assertEqual(out.count("Value must be positive and nonzero."), 2)
        self.assertTrue(out.endswith("4.5\n"), out)

    def test_a_distance_shown_by_two_points(self):
        code, out, _ = run('(host-input "1,1" "4,5")', '(getdist "\\nDistance: ")')
        self.assertEqual(code, 0)
        self.assertIn("Specify second point: ", out)
        self.assertAlmostEqual(float(out.rsplit(" ", 1)[-1]), math.hypot(3, 4))

    def test_nothing_queued_cancels_and_stops_the_script(self):
        code, out, err = run('(getstring "\\nName: ")', '(princ "after")')
        self.assertEqual(code, 1)
        self.assertIn("Name: *Cancel*", out)
        self.assertIn("; error: Function cancelled", err)
        self.assertNotIn("after", out)

    def test_replies_left_over_are_reported_and_fail_the_run(self):
        code, _, err = run('(host-input 1 2)', '(getint)')
        self.assertEqual(code, 1)
        self.assertIn("1 queued typed reply was not used", err)


if __name__ == "__main__":
    unittest.main(verbosity=2)
