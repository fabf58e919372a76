"""The console as a user runs it: options, echo, messages, exit statuses."""
import os
import subprocess
import sys
import tempfile
import unittest

ADSCON = os.environ["ADSCON"]


def run(*args, cwd=None):
    p = subprocess.run([ADSCON, *args], capture_output=True, text=True, cwd=cwd, timeout=60)
    return p.returncode, p.stdout, p.stderr


class Help(unittest.TestCase):
    def test_help_documents_every_option_and_headless_form(self):
        code, out, _ = run("--help")
        self.assertEqual(code, 0)
        for word in ["--root", "--drawing", "--save", "--cwd", "--reg", "--reg-file", "--module", "-e",
                     "(host-dialog NAME ACTIONS)", "(set KEY VALUE)", "(press KEY)",
                     "(host-entsel ENAME POINT)", "(host-getpoint POINT)", "Exit status"]:
            self.assertIn(word, out)


class Evaluation(unittest.TestCase):
    def test_values_echo_as_the_command_line_shows_them(self):
        code, out, _ = run("-e", "(+ 1 2)", "-e", "(/ 10.0 4)", "-e", "(list 1 \"a\" 'b '(c . 2))",
                           "-e", "(setq x nil)", "-e", "(princ)")
        self.assertEqual(code, 0)
        self.assertEqual(out, '3\n2.5\n(1 "a" B (C . 2))\nnil\n')

    def test_unknown_function_gives_the_editor_error_and_status_1(self):
        code, out, err = run("-e", "(princ \"before\")", "-e", "(zz-unknown 1)", "-e", "(princ \"after\")")
        self.assertEqual(code, 1)
        self.assertEqual(err, "-e:1: ; error: no function definition: ZZ-UNKNOWN\n")
        self.assertNotIn("after", out)

    def test_scripts_run_in_order_with_defun_and_loops(self):
        with tempfile.TemporaryDirectory() as d:
            a, b = os.path.join(d, "a.lsp"), os.path.join(d, "b.lsp")
            with open(a, "w") as f:
                f.write("(defun sq (n / r) (setq r (* n n)) r)\n;| block\ncomment |;\n(setq total 0)\n")
            with open(b, "w") as f:
                f.write("(foreach n '(1 2 3) (setq total (+ total (sq n))))\n(princ total)\n")
            code, out, _ = run(a, b)
            self.assertEqual(code, 0)
            self.assertEqual(out, "14")

    def test_registry_values_reach_the_module(self):
        code, out, _ = run("--reg", "SysPath=D:\\Vornex\\", "--reg", "VrnResult=ok", "-e", "(_Xgetsyspath)",
                           "-e", "(XGetVrA)", "-e", "(XGetVrB)")
        self.assertEqual(code, 0)
        self.assertEqual(out, '"D:\\\\Vornex\\\\"\n"ok"\n""\n')

    def test_drv_is_the_root_with_a_trailing_separator(self):
        with tempfile.TemporaryDirectory() as d:
            code, out, _ = run("--root", d, "-e", "_DRV")
            self.assertEqual(code, 0)
            self.assertEqual(out, '"%s/"\n' % d)

    def test_results_go_to_the_cwd_folder(self):
        with tempfile.TemporaryDirectory() as d:
            code, _, _ = run("--cwd", d, "-e", "(setq f 1)")
            self.assertEqual(code, 0)


class Drawing(unittest.TestCase):
    def test_entities_made_in_a_script_are_saved_and_read_back_by_ezdxf(self):
        import ezdxf
        with tempfile.TemporaryDirectory() as d:
            out = os.path.join(d, "made.dxf")
            code, text, err = run(
                "-e", '(entmake (list (cons 0 "LINE") (cons 8 "0") (list 10 1.0 2.0 0.0) (list 11 4.0 6.0 0.0)))',
                "-e", "(cdr (assoc 11 (entget (entlast))))",
                "-e", '(sslength (ssget "X" (list (cons 0 "LINE"))))',
                "-e", '(ssget "X" (list (cons 0 "CIRCLE")))',
                "--save", out)
            self.assertEqual(code, 0, err)
            self.assertEqual(text.splitlines()[1:], ["(4.0 6.0 0.0)", "1", "nil"])
            doc = ezdxf.readfile(out)
            lines = list(doc.modelspace().query("LINE"))
            self.assertEqual(len(lines), 1)
            self.assertEqual(tuple(lines[0].dxf.end), (4.0, 6.0, 0.0))
            self.assertEqual(len(doc.audit().errors), 0)

    def test_a_script_error_leaves_the_saved_drawing_alone(self):
        with tempfile.TemporaryDirectory() as d:
            out = os.path.join(d, "kept.dxf")
            with open(out, "w") as f:
                f.write("previous contents")
            code, _, err = run("-e", '(entmake (list (cons 0 "POINT") (list 10 0.0 0.0 0.0)))', "-e", "(zz-undefined)",
                               "--save", out)
            self.assertEqual(code, 1)
            self.assertIn("not saved", err)
            with open(out) as f:
                self.assertEqual(f.read(), "previous contents")

    def test_repairs_made_while_reading_are_reported_and_the_drawing_opens(self):
        lines = ["0", "SECTION", "2", "HEADER", "9", "$ACADVER", "1", "AC1009", "0", "ENDSEC",
                 "0", "SECTION", "2", "ENTITIES"]
        for y in ("0.0", "1.0"):
            lines += ["0", "LINE", "5", "2A", "8", "0", "10", "0.0", "20", y, "30", "0.0",
                      "11", "1.0", "21", y, "31", "0.0"]
        lines += ["0", "ENDSEC", "0", "EOF"]
        with tempfile.TemporaryDirectory() as d:
            path = os.path.join(d, "twice.dxf")
            with open(path, "w") as f:
                f.write("\n".join(lines) + "\n")
            code, out, _ = run("--drawing", path, "-e", '(sslength (ssget "X"))')
            self.assertEqual(code, 0)
            self.assertEqual(out, "Warning: handle 2A is used more than once; a later object was given a new handle\n2\n")


class BadInput(unittest.TestCase):
    def test_bad_options_and_unreadable_files_give_status_2(self):
        for args in (["--bogus"], ["--root"], ["/no/such/script.lsp"], ["--reg", "novalue"],
                     ["--module", "/no/such/module.so", "-e", "1"], ["--cwd", "/no/such/folder"]):
            code, out, err = run(*args)
            self.assertEqual(code, 2, args)
            self.assertTrue(err.startswith("adscon: "), (args, err))
            self.assertEqual(out, "", args)

    def test_dialog_names_and_keys_must_be_strings_since_they_are_case_sensitive(self):
        code, out, err = run("-e", "(host-dialog \"ci_dt\" '((press result)))")
        self.assertEqual(code, 1)
        self.assertIn("; error: bad argument type: stringp: RESULT", err)
        code, out, err = run("-e", "(host-dialog \"ci_dt\" '((set \"temp\" 25) (press \"result\")))")
        # Queued and never used, since no command starts that dialog: the run did not do all it asked.
        self.assertEqual((code, out), (1, "T\n"))
        self.assertIn("actions queued for dialog ci_dt were not used", err)

    def test_malformed_input_is_an_autolisp_error(self):
        code, out, err = run("-e", "(+ 1 2")
        self.assertEqual(code, 1)
        self.assertIn("; error: malformed list on input", err)
        code, out, err = run("-e", "(+ 1 \"a\")")
        self.assertEqual(code, 1)
        self.assertIn('; error: bad argument type: numberp: "a"', err)


if __name__ == "__main__":
    unittest.main(verbosity=2)
