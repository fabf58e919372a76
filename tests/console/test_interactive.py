"""The console's command line at a terminal: adscon without a script, its standard input a
pseudo-terminal, shows "Command: ", evaluates each line typed and prints its value, reports
an error and goes on, continues an unfinished expression on the next line, runs a command
typed with its answers, and ends (saving the drawing) at the end of input."""
import os
import pty
import select
import subprocess
import tempfile
import time
import unittest

import ezdxf

ADSCON = os.environ["ADSCON"]


class Terminal:
    """adscon with a pseudo-terminal for its standard input and output."""

    def __init__(self, *args):
        self.master, slave = pty.openpty()
        self.proc = subprocess.Popen([ADSCON, *args], stdin=slave, stdout=slave, stderr=subprocess.PIPE,
                                     close_fds=True)
        os.close(slave)
        self.seen = b""

    def read_until(self, text, timeout=60):
        """Everything printed up to and including text; fails after timeout seconds."""
        want = text.encode()
        end = time.monotonic() + timeout
        while want not in self.seen:
            left = end - time.monotonic()
            if left <= 0:
                raise AssertionError("no %r in %r" % (text, self.seen.decode(errors="replace")))
            ready, _, _ = select.select([self.master], [], [], left)
            if ready:
                try:
                    chunk = os.read(self.master, 4096)
                except OSError:  # the other side closed
                    chunk = b""
                if not chunk:
                    raise AssertionError("ended before %r: %r" % (text, self.seen.decode(errors="replace")))
                self.seen += chunk
        at = self.seen.index(want) + len(want)
        got, self.seen = self.seen[:at], self.seen[at:]
        return got.decode().replace("\r\n", "\n")

    def type(self, line):
        os.write(self.master, line.encode() + b"\n")

    def finish(self):
        os.write(self.master, b"\x04")  # Ctrl+D: end of input at the start of a line
        code = self.proc.wait(timeout=60)
        err = self.proc.stderr.read().decode()
        os.close(self.master)
        return code, err


class InteractiveConsole(unittest.TestCase):
    def test_lines_are_evaluated_until_end_of_input(self):
        with tempfile.TemporaryDirectory() as tmp:
            out = os.path.join(tmp, "typed.dxf")
            term = Terminal("--save", out)
            term.read_until("Command: ")
            term.type("(+ 1 2)")
            self.assertIn("\n3\n", term.read_until("Command: "))
            # The terminal echoes what is typed; the value is the line after it.
            term.type('(setq name "duct")')
            self.assertIn('\n"duct"\n', term.read_until("Command: "))
            term.type("!name")
            self.assertIn('\n"duct"\n', term.read_until("Command: "))
            # An error is reported and the session goes on.
            term.type("(car 5)")
            self.assertIn("; error: bad argument type", term.read_until("Command: "))
            # An unfinished expression takes the next line.
            term.type("(* 6")
            term.read_until("(_> ")
            term.type("7)")
            self.assertIn("\n42\n", term.read_until("Command: "))
            # A command and its answers separated by spaces.
            term.type('LINE 0,0 30,40 ""')
            shown = term.read_until("Command: ")
            self.assertIn("Specify next point", shown)
            self.assertNotIn("nil", shown)
            term.type("(nosuchfunction)")
            self.assertIn("; error: no function definition: NOSUCHFUNCTION", term.read_until("Command: "))
            code, err = term.finish()
            self.assertEqual(code, 0, err)
            lines = ezdxf.readfile(out).modelspace().query("LINE")
            self.assertEqual(len(lines), 1)
            self.assertEqual(tuple(lines[0].dxf.end)[:2], (30.0, 40.0))

    def test_piped_input_is_a_script_not_a_prompt(self):
        p = subprocess.run([ADSCON, "-"], input="(princ (+ 2 3))", capture_output=True, text=True, timeout=60)
        self.assertEqual(p.returncode, 0, p.stderr)
        self.assertNotIn("Command:", p.stdout)
        self.assertIn("5", p.stdout)


if __name__ == "__main__":
    unittest.main()
