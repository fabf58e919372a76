"""An installed console runs on its own: installed to a temporary prefix, the prefix moved
elsewhere, run from another folder with copies of the example scripts, it finds its tree and
its module beside itself and loads no library of the build folder."""
import os
import shutil
import subprocess
import tempfile
import unittest

BUILD = os.environ["VRN2_BUILD"]
ROOT = os.environ["VRN2_ROOT"]


def bare_environment():
    """Nothing of the build or source folders; a sanitizer build's settings are kept."""
    env = {"PATH": "/usr/bin:/bin"}
    env.update({k: v for k, v in os.environ.items() if k in ("ASAN_OPTIONS", "UBSAN_OPTIONS")})
    return env


class InstalledConsole(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tmp = tempfile.TemporaryDirectory()
        staged = os.path.join(cls.tmp.name, "staged")
        p = subprocess.run(["cmake", "--install", BUILD, "--prefix", staged], capture_output=True, text=True)
        assert p.returncode == 0, p.stderr
        cls.prefix = os.path.join(cls.tmp.name, "moved")
        shutil.move(staged, cls.prefix)  # relocated after installing

    @classmethod
    def tearDownClass(cls):
        cls.tmp.cleanup()

    def installed(self, *parts):
        return os.path.join(self.prefix, *parts)

    def test_the_layout(self):
        for part in (("bin", "adscon"), ("bin", "airstate"), ("lib", "vrn2", "Vrn2.so"),
                     ("lib", "vrn2", "libadshost.so"), ("share", "vrn2", "system", "cclib"),
                     ("share", "vrn2", "dwglib", "gscal.dcl")):
            self.assertTrue(os.path.isfile(self.installed(*part)), part)

    def test_libraries_resolve_inside_the_installation(self):
        for program in (self.installed("bin", "adscon"), self.installed("lib", "vrn2", "Vrn2.so")):
            out = subprocess.run(["ldd", program], capture_output=True, text=True).stdout
            host = [line for line in out.splitlines() if "libadshost.so" in line]
            self.assertEqual(len(host), 1, out)
            resolved = host[0].split("=>")[1].split("(")[0].strip()
            self.assertEqual(os.path.normpath(resolved), self.installed("lib", "vrn2", "libadshost.so"))
            self.assertNotIn(BUILD.rstrip("/"), out)

    def test_the_example_runs_from_another_folder(self):
        with tempfile.TemporaryDirectory() as work:
            for name in ("first-steps.lsp", "air-calculations.lsp"):
                shutil.copy(os.path.join(ROOT, "examples", name), work)
            run_in = os.path.join(work, "run")
            os.mkdir(run_in)
            picture = os.path.join(run_in, "example.png")
            p = subprocess.run([self.installed("bin", "adscon"), "--cwd", run_in, "--reg", "SysPath=C:\\Vornex\\",
                                "--render", picture, "first-steps.lsp", "air-calculations.lsp"],
                               cwd=work, capture_output=True, text=True, timeout=120,
                               env=bare_environment())
            self.assertEqual(p.returncode, 0, p.stderr + p.stdout)
            self.assertIn("Installation root (_DRV): " + self.installed("share", "vrn2") + "/", p.stdout)
            self.assertIn("Picture: " + picture, p.stdout)
            for name in ("gscal.txt", "wair002.txt", "example.png"):
                self.assertGreater(os.path.getsize(os.path.join(run_in, name)), 100, name)

    def test_versions(self):
        for tool in ("adscon", "airstate"):
            p = subprocess.run([self.installed("bin", tool), "--version"], capture_output=True, text=True)
            self.assertEqual(p.returncode, 0, p.stderr)
            self.assertRegex(p.stdout, r"^%s \d+\.\d+\.\d+\n$" % tool)


if __name__ == "__main__":
    unittest.main()
