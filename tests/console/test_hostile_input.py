"""Hostile input through the console: every broken drawing, dialog file or script ends with a
message and exit status 0, 1 or 2, within seconds, and nothing is lost or changed."""
import os
import resource
import subprocess
import tempfile
import time
import unittest

import ezdxf

ADSCON = os.environ["ADSCON"]
ROOT = os.environ["VRN2_ROOT"]
MEMORY_LIMIT = 1 << 30  # a hostile file is answered within a few hundred MB


def limit_memory():
    # AddressSanitizer reserves terabytes of address space for its shadow: a sanitizer run
    # (which sets ASAN_OPTIONS) is checked for crashes and time, not for memory.
    if "ASAN_OPTIONS" not in os.environ:
        resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))


def run(*args, cwd=None):
    start = time.monotonic()
    p = subprocess.run([ADSCON, *args], capture_output=True, text=True, errors="replace", cwd=cwd,
                       timeout=30, preexec_fn=limit_memory)
    return p.returncode, p.stdout, p.stderr, time.monotonic() - start


def lines(*pairs):
    return "".join(f"{code}\n{value}\n" for code, value in pairs)


def r12(entities, blocks=""):
    text = lines((0, "SECTION"), (2, "HEADER"), (9, "$ACADVER"), (1, "AC1009"), (0, "ENDSEC"))
    if blocks:
        text += lines((0, "SECTION"), (2, "BLOCKS")) + blocks + lines((0, "ENDSEC"))
    return text + lines((0, "SECTION"), (2, "ENTITIES")) + entities + lines((0, "ENDSEC"), (0, "EOF"))


LINE = lines((0, "LINE"), (8, "0"), (10, 0), (20, 0), (30, 0), (11, 1), (21, 1), (31, 0))


class HostileInput(unittest.TestCase):
    def setUp(self):
        self.tmp = tempfile.TemporaryDirectory()
        self.dir = self.tmp.name

    def tearDown(self):
        self.tmp.cleanup()

    def write(self, name, text, mode="w"):
        path = os.path.join(self.dir, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, mode) as f:
            f.write(text)
        return path

    def assertAnswered(self, result, codes=(0, 1, 2)):
        code, out, err, seconds = result
        self.assertIn(code, codes, (out[-400:], err[-400:]))
        self.assertLess(seconds, 20)
        return out + err

    def test_scripts_nested_deep_or_building_long_lists_end_with_an_answer(self):
        scripts = {
            "reader": "(" * 40000 + ")" * 40000,
            "quotes": "'" * 10000 + "x",
            "print": "(setq x nil i 0) (while (< i 9000) (setq x (list x) i (1+ i))) (print x) (princ)",
            "free": "(setq l nil) (repeat 300000 (setq l (cons 1 l))) (setq l nil)",
            "module": "(setq x nil i 0) (while (< i 100000) (setq x (list x) i (1+ i))) (_kzsj2 x)",
        }
        for name, text in scripts.items():
            printed = self.assertAnswered(run(self.write(name + ".lsp", text)))
            if name in ("reader", "quotes"):
                self.assertIn("; error: stack overflow", printed, name)

    def test_broken_dialog_files_give_a_dcl_error_naming_file_and_line(self):
        cases = {
            "nesting": "procdlg : dialog {\n" + ": row {\n" * 11100 + "}\n" * 11100 + "ok_only; }\n",
            "chain": "".join(f"p{i} : p{i + 1} {{ }}\n" for i in range(14000)) + "p14000 : text { }\n",
            "fanout": "".join(f"r{i} : row {{ r{i + 1}; r{i + 1}; r{i + 1}; r{i + 1}; }}\n" for i in range(30))
            + "r30 : text { }\nairmixdlg : dialog { r0; ok_only; }\n",
            "nul": "airmixdlg : dialog { label = \"a\"; ok_only; }\0\n",
        }
        for name, text in cases.items():
            root = os.path.join(self.dir, name)
            dcl = self.write(os.path.join(name, "dwglib", "procdlg.dcl"), text)
            os.symlink(os.path.join(ROOT, "system"), os.path.join(root, "system"))
            printed = self.assertAnswered(run("--root", root, "-e", "(c:airmix)"))
            self.assertIn("DCL error in " + dcl + " line ", printed, name)
            self.assertNotIn("\0", printed, name)
            message = printed[printed.index("DCL error in "):]
            self.assertEqual(message.count("DCL error in "), 1, name)
            # The message is a line of its own: what the module prints next starts a new one.
            self.assertNotIn("Application", message.splitlines()[0], name)

    def test_drawings_with_numbers_that_do_not_fit_are_refused_with_the_line(self):
        flag = r12(lines((0, "LINE"), (8, "0"), (70, "1e30"), (10, 0), (20, 0), (11, 1), (21, 1)))
        nan = r12(lines((0, "LINE"), (8, "0"), (10, "nan"), (20, "nan"), (11, 1), (21, 1)))
        for name, text in {"flag.dxf": flag, "nan.dxf": nan}.items():
            code, out, err, _ = run("--drawing", self.write(name, text))
            self.assertEqual(code, 2, name)
            self.assertIn(name + ", line ", err)

    def test_a_block_inserting_itself_zooms_in_time(self):
        inserts = lines((0, "INSERT"), (8, "0"), (2, "R"), (10, 1), (20, 1)) * 10
        block = lines((0, "BLOCK"), (8, "0"), (2, "R"), (70, 0), (10, 0), (20, 0), (3, "R")) + inserts + LINE + \
            lines((0, "ENDBLK"), (8, "0"))
        path = self.write("self.dxf", r12(lines((0, "INSERT"), (8, "0"), (2, "R"), (10, 0), (20, 0)), block))
        code, out, err, _ = run("--drawing", path, "-e", '(command "zoom" "e")', "-e", '(getvar "viewctr")')
        self.assertEqual(code, 0, err)
        self.assertIn("(0.5 0.5 0.0)", out)

    def test_handles_do_not_wrap_and_sections_given_twice_are_saved_once(self):
        seed = lines((0, "SECTION"), (2, "HEADER"), (9, "$ACADVER"), (1, "AC1009"), (9, "$HANDSEED"),
                     (5, "FFFFFFFFFFFFFFFF"), (0, "ENDSEC"), (0, "SECTION"), (2, "ENTITIES")) + LINE + \
            lines((0, "ENDSEC"), (0, "EOF"))
        make = '(entmake (list (cons 0 "LINE") (list 10 0.0 0.0 0.0) (list 11 1.0 1.0 0.0)))'
        code, out, err, _ = run("--drawing", self.write("seed.dxf", seed), "-e", make, "-e",
                                "(cdr (assoc 5 (entget (entlast))))")
        self.assertEqual(code, 0, err)
        self.assertNotIn('"0"', out.splitlines()[-1])

        entities = lines((0, "SECTION"), (2, "ENTITIES")) + LINE + lines((0, "ENDSEC"))
        twice = lines((0, "SECTION"), (2, "HEADER"), (9, "$ACADVER"), (1, "AC1015"), (0, "ENDSEC")) + \
            entities + entities + lines((0, "EOF"))
        first, second = os.path.join(self.dir, "first.dxf"), os.path.join(self.dir, "second.dxf")
        self.assertEqual(run("--drawing", self.write("twice.dxf", twice), "--save", first)[0], 0)
        self.assertEqual(run("--drawing", first, "--save", second)[0], 0)
        with open(first) as a, open(second) as b:
            self.assertEqual(a.read(), b.read())
        self.assertEqual(len(ezdxf.readfile(second).modelspace()), 2)

    def test_a_long_file_name_saves_and_a_save_error_says_cannot_save_once(self):
        name = "a" * 250 + ".dxf"  # 254 bytes
        code, out, err, _ = run("--save", os.path.join(self.dir, name))
        self.assertEqual(code, 0, err)
        self.assertEqual(os.listdir(self.dir), [name])
        code, out, err, _ = run("--save", os.path.join(self.dir, "no", "such", "x.dxf"))
        self.assertEqual(code, 2)
        self.assertEqual(err.count("cannot save"), 1, err)

    def test_refused_changes_leave_the_drawing_alone(self):
        line = '(command "line" "0,0" "1,1" "")'
        refused = '(entmod (append (entget (entlast)) (list (cons 8 "NEWLAYER") (cons 62 300))))'
        code, out, err, _ = run("-e", line, "-e", refused, "-e", '(tblsearch "LAYER" "NEWLAYER")',
                                "-e", '(command "change" "l" "" "p" "c" 1e30 "")',
                                "-e", '(cdr (assoc 62 (entget (entlast))))')
        self.assertEqual(code, 0, err)
        shown = out.splitlines()
        self.assertEqual(shown[-1], "nil")  # no colour was set
        self.assertIn("Invalid color value.", out)
        self.assertIn("nil", shown)  # the layer of the refused change was not made


if __name__ == "__main__":
    unittest.main()
