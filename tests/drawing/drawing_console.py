"""Running the console on a drawing made by ezdxf, for the drawing tools' tests."""

import os
import subprocess
import tempfile

import ezdxf

ADSCON = os.environ["ADSCON"]


def run_on(test, doc, *expressions):
    """Saves DOC, evaluates EXPRESSIONS on it in the console, and answers the console's output
    and the saved drawing read back by ezdxf."""
    with tempfile.TemporaryDirectory() as d:
        source, saved = os.path.join(d, "in.dxf"), os.path.join(d, "out.dxf")
        doc.saveas(source)
        args = [ADSCON, "--drawing", source, "--save", saved]
        for e in expressions:
            args += ["-e", e]
        done = subprocess.run(args, capture_output=True, text=True, timeout=300)
        test.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return done.stdout, ezdxf.readfile(saved)
