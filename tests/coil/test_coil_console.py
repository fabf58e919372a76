"""The coil check and the device database editor as a designer uses them through the console,
on a copy of the installation tree: checks saved to sccal.txt and read back against the check
worked independently (coil_worked.py), and records added, replaced and deleted while every
other record of sc.dat stays byte for byte."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import coil_worked  # noqa: E402

ADSCON = os.environ["ADSCON"]
ROOT = Path(os.environ.get("VRN2_ROOT", Path(__file__).resolve().parents[2]))


class Installation:
    """A copy of dwglib/ and datlib/ as the installation root, and a current folder."""

    def __init__(self, tmp):
        self.root = Path(tmp) / "suite"
        self.cwd = Path(tmp) / "work"
        self.cwd.mkdir()
        for folder in ("dwglib", "datlib"):
            shutil.copytree(ROOT / folder, self.root / folder)
        self.db = self.root / "datlib" / "sc.dat"

    def run(self, *exprs):
        args = [ADSCON, "--root", str(self.root) + "/", "--cwd", str(self.cwd)]
        for e in exprs:
            args += ["-e", e]
        p = subprocess.run(args, capture_output=True, text=True, timeout=120)
        return p.returncode, p.stdout


def dialog(name, *actions):
    return '(host-dialog "%s" \'(%s))' % (name, " ".join(actions))


def s(key, value):
    return '(set "%s" "%s")' % (key, value)


def check_actions(model_index, rows, units, conn, t1, ts1, G, tw1, W):
    return (('(select "type" "%d")' % model_index), s("Nn", rows), s("nu_value", units), s("conn", conn),
            s("t1_value", t1), s("ts1_value", ts1), s("G_value", G), s("tw1_value", tw1), s("W_value", W))


def block_values(block):
    """{label: text} of the lines "         LABEL VALUE" of one block."""
    values = {}
    for line in block.split("\n"):
        if line.startswith("         ") and not line.startswith("           "):
            label, _, value = line.strip().rpartition(" ")
            values[label] = value
    return values


class CoilCheckFile(unittest.TestCase):
    def test_two_saved_checks_are_two_blocks_under_one_title(self):
        with tempfile.TemporaryDirectory() as tmp:
            inst = Installation(tmp)
            first = check_actions(1, 4, 1, "parallel", 27, 19.5, 20000, 7, 18000)
            second = check_actions(2, 6, 2, "series", 28, 20.5, 24000, 7.5, 30000)
            code, out = inst.run(dialog("sccaldlg", *first, '(press "cal")', '(press "saveres")'), "(c:sccal)",
                                 dialog("sccaldlg", *second, '(press "cal")', '(press "saveres")'), "(c:sccal)")
            self.assertEqual(code, 0, out)
            text = (inst.cwd / "sccal.txt").read_bytes().decode("utf-8")
            self.assertTrue(text.startswith("\n         表冷器校核计算结果\n\n______"))
            self.assertEqual(text.count("表冷器校核计算结果"), 1)
            blocks = text.split("\n______________________________________\n")[1:]
            self.assertEqual(len(blocks), 2)

            db = coil_worked.read_database(ROOT / "datlib" / "sc.dat")
            cases = [(("JW20", 4), 4, 1, False, 27, 19.5, 20000, 7, 18000, "并联"),
                     (("JW30", 6), 6, 2, True, 28, 20.5, 24000, 7.5, 30000, "串联")]
            for block, (key, rows, units, series, t1, ts1, G, tw1, W, conn) in zip(blocks, cases):
                v = block_values(block)
                self.assertTrue(block.startswith("\n(B=101.325kPa)\n 输入参数:  "), block)
                self.assertEqual(v["表冷器型号:"], key[0])
                self.assertEqual(v["排数:"], str(rows))
                self.assertEqual(v["台数:"], str(units))
                self.assertEqual(v["连接方式:"], conn)
                self.assertIn("\n           干球温度 ℃:    %.2f" % t1, block)
                self.assertIn("\n           湿球温度 ℃:    %.2f" % ts1, block)
                self.assertIn("\n         风量 G (kg/h): %.2f" % G, block)
                self.assertIn("\n         水量 W (kg/h): %.2f" % W, block)
                worked = coil_worked.check(db[key], rows, units, series, 101.325, t1, ts1, G, tw1, W)
                # The iteration stops within 0.0005 of the efficiency: a few hundredths of a kelvin.
                tol = 0.0005 * (t1 - tw1) * 2 + 0.0005
                self.assertAlmostEqual(float(v["出风干球温度 (℃):"]), worked["t"], delta=tol)
                self.assertAlmostEqual(float(v["出风湿球温度 (℃):"]), worked["ts"], delta=2 * tol)
                self.assertAlmostEqual(float(v["出风露点温度 (℃):"]), worked["tl"], delta=3 * tol)
                self.assertAlmostEqual(float(v["出风含湿量 (g/kg):"]), worked["d"], delta=0.02)
                self.assertAlmostEqual(float(v["出风相对湿度 (%):"]), worked["fy"], delta=0.3)
                self.assertAlmostEqual(float(v["出风焓值 (kJ/kg):"]), worked["i"], delta=0.05)
                self.assertAlmostEqual(float(v["冷量 Q (kW):"]), worked["Q"], delta=0.003 * worked["Q"])
                self.assertAlmostEqual(float(v["出水温度 tw2 (℃):"]), worked["tw2"], delta=0.02)

    def test_input_faults_and_a_missing_record_are_told(self):
        with tempfile.TemporaryDirectory() as tmp:
            inst = Installation(tmp)
            code, out = inst.run(
                dialog("sccaldlg", s("G_value", "20000"), s("W_value", "18000"), s("ts1_value", "30"), '(press "cal")'),
                "(c:sccal)",
                dialog("sccaldlg", s("G_value", "20000"), s("W_value", "18000"), s("Nn", "3"), '(press "cal")',
                       '(press "saveres")'),
                "(c:sccal)")
            self.assertEqual(code, 0, out)
            self.assertIn("[alert] 湿球温度不能高于干球温度.", out)
            self.assertIn("[alert] 数据文件SC.DAT没有存在此型号或此排数\n的表冷器,请增加他到此文件", out)
            self.assertFalse((inst.cwd / "sccal.txt").exists())

    def test_result_file_that_cannot_be_written_is_told(self):
        with tempfile.TemporaryDirectory() as tmp:
            inst = Installation(tmp)
            (inst.cwd / "sccal.txt").mkdir()  # a folder where the file should be
            actions = check_actions(1, 4, 1, "parallel", 27, 19.5, 20000, 7, 18000)
            code, out = inst.run(dialog("sccaldlg", *actions, '(press "cal")', '(press "saveres")'), "(c:sccal)")
            self.assertEqual(code, 0, out)
            self.assertIn("[alert] 不能创建存放结果的文件.", out)
            self.assertTrue((inst.cwd / "sccal.txt").is_dir())

    def test_velocity_beyond_the_table_is_told_once(self):
        with tempfile.TemporaryDirectory() as tmp:
            inst = Installation(tmp)
            actions = check_actions(0, 4, 1, "parallel", 27, 19.5, 14000, 7, 12000)  # JW10: 4.1 m/s
            code, out = inst.run(dialog("sccaldlg", *actions, '(press "cal")'), "(c:sccal)")
            self.assertEqual(out.count("[alert] 求出的接触系数不在设备给出的范围"), 1, out)


def editor(*actions):
    return dialog("scdinfo", *actions), "(c:scinfo)"


RECORD = (s("type", "KX-1"), s("Nn", "4"), s("A_value", "40"), s("B_value", "330"), s("m_value", "0.5"),
          s("p_value", "1"), s("n_value", "0.8"), s("L1_value", "1000"), s("L2_value", "2000"),
          s("Fd_value", "10"), s("Fy_value", "0.8"), s("fw_value", "0.004"),
          s("Vy_value", "2"), s("E2_value", "0.8"), '(press "addE2list")',
          s("Vy_value", "3"), s("E2_value", "0.7"), '(press "addE2list")')
KX_RECORD = ("\n{KX-1*4}\nA=40.0000 B=330.0000 m=0.5000 p=1.0000 n=0.8000"
             "\nL=1000.00-2000.00 Fd=10.0000 Fy=0.8000 fw=0.004000\nVy=2.00   E2=0.8000\nVy=3.00   E2=0.7000\n")


class DeviceDatabaseEditor(unittest.TestCase):
    def test_add_modify_delete_keep_every_other_record(self):
        with tempfile.TemporaryDirectory() as tmp:
            inst = Installation(tmp)
            bundled = inst.db.read_bytes()
            code, out = inst.run(*editor(*RECORD, '(press "add")'))
            self.assertEqual(code, 0, out)
            self.assertIn("增加完毕.", out)
            self.assertEqual(inst.db.read_bytes(), bundled + KX_RECORD.encode("utf-8"))

            # The record is checked as it was saved: chosen from the list it fills the tiles.
            code, out = inst.run(dialog("sccaldlg", '(select "type" "4")',
                                        *check_actions(4, 4, 1, "parallel", 27, 19.5, 5000, 7, 5000)[1:],
                                        '(press "cal")', '(press "saveres")'), "(c:sccal)")
            self.assertIn("表冷器型号: KX-1", (inst.cwd / "sccal.txt").read_text(encoding="utf-8"))

            # Replacing JW20*4: the record changes in place, everything else stays.
            code, out = inst.run(*editor('(select "records" "5")', s("A_value", "44.5"), '(press "add")'))
            self.assertEqual(code, 0, out)
            self.assertIn("修改完毕.", out)
            after = inst.db.read_bytes().decode("utf-8")
            old = bundled.decode("utf-8") + KX_RECORD
            start = old.index("\n{JW20*4}")
            end = old.index("\n{JW20*6}")
            self.assertEqual(after[:start], old[:start])
            self.assertEqual(after[start:].split("\n{JW20*6}", 1)[1], old[end:].split("\n{JW20*6}", 1)[1])
            self.assertIn("\n{JW20*4}\nA=44.5000 B=332.6000 m=0.5200 p=1.0300 n=0.8000\n", after)
            self.assertFalse((inst.root / "datlib" / "@sctemp.acc").exists())

            # Deleting the added record gives back the replaced file without it.
            code, out = inst.run(dialog("warming", '(press "ok")'),
                                 *editor(s("type", "KX-1"), s("Nn", "4"), '(press "delete")'))
            self.assertIn("删除完毕.", out)
            self.assertEqual(inst.db.read_bytes().decode("utf-8"), after.replace(KX_RECORD, ""))

    def test_refusals_leave_the_database_alone(self):
        with tempfile.TemporaryDirectory() as tmp:
            inst = Installation(tmp)
            bundled = inst.db.read_bytes()
            code, out = inst.run(
                dialog("warming", '(press "cancel")'),
                *editor(s("type", "JW10"), s("Nn", "2"), '(press "delete")'),
                *editor(s("Nn", "4"), '(press "delete")'),
                *editor(s("type", "JW10"), s("Nn", "2.5"), '(press "delete")'),
                dialog("warming", '(press "ok")'),
                *editor(s("type", "NONE"), s("Nn", "4"), '(press "delete")'),
                *editor(s("Vy_value", "2"), '(press "addE2list")', s("Vy_value", ""), s("E2_value", "0.5"),
                        '(press "addE2list")', s("Vy_value", "2"), s("E2_value", "1.2"), '(press "addE2list")'))
            self.assertEqual(code, 0, out)
            for message in ("输入表冷器型号.", "输入正确的排数.", "此型号的设备不存在,无法删除.",
                            "输入E2值.", "输入Vy值.", "不正确的接触系数."):
                self.assertIn("[alert] " + message, out)
            self.assertNotIn("删除完毕", out)
            self.assertEqual(inst.db.read_bytes(), bundled)

    def test_failed_write_leaves_the_database_as_it_was(self):
        with tempfile.TemporaryDirectory() as tmp:
            inst = Installation(tmp)
            bundled = inst.db.read_bytes()
            (inst.root / "datlib" / "@sctemp.acc").mkdir()  # the working copy cannot be written
            code, out = inst.run(*editor('(select "records" "0")', s("A_value", "1"), '(press "add")'),
                                 dialog("warming", '(press "ok")'),
                                 *editor('(select "records" "0")', '(press "delete")'))
            self.assertEqual(code, 0, out)
            self.assertIn("[alert] 不能创建临时文件.", out)
            self.assertIn("[alert] 不能删除此设备.", out)
            self.assertEqual(inst.db.read_bytes(), bundled)


class Help(unittest.TestCase):
    def test_help_dialog_opens_and_closes(self):
        with tempfile.TemporaryDirectory() as tmp:
            inst = Installation(tmp)
            code, out = inst.run(dialog("zat_help", '(press "accept")'), "(c:schlp)")
            self.assertEqual(code, 0, out)
            self.assertNotIn("[alert]", out)
            shutil.rmtree(inst.root / "dwglib")
            code, out = inst.run("(c:schlp)")
            self.assertIn("[alert] 不能装载对话框.", out)


if __name__ == "__main__":
    unittest.main()
