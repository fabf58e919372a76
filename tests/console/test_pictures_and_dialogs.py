"""Pictures of the drawing (--render) and the dialogs of a run (--show-dialogs), as a designer
gets them from the console.

The PNG is read back here with zlib alone (no imaging library), and where an entity must appear
is worked out from the picture's stated layout: the drawing's extents fitted with a margin of 5 %
of the picture on every side, the longer side 1600 pixels.
"""
import math
import os
import struct
import subprocess
import tempfile
import unittest
import zlib

ADSCON = os.environ["ADSCON"]
VRN2_ROOT = os.environ["VRN2_ROOT"]
LONG_SIDE = 1600
MARGIN = 0.05
RED = (255, 0, 0)
WHITE = (255, 255, 255)


def run(cwd, *args):
    p = subprocess.run([ADSCON, "--cwd", cwd, *args], capture_output=True, text=True, timeout=120)
    return p.returncode, p.stdout, p.stderr


def exprs(*items):
    out = []
    for e in items:
        out += ["-e", e]
    return out


def read_png(path):
    """(width, height, rows of (r, g, b)) of an 8-bit RGB or RGBA PNG."""
    with open(path, "rb") as f:
        data = f.read()
    assert data[:8] == b"\x89PNG\r\n\x1a\n", "not a PNG"
    pos, idat, header = 8, b"", None
    while pos < len(data):
        length, kind = struct.unpack(">I4s", data[pos:pos + 8])
        body = data[pos + 8:pos + 8 + length]
        if kind == b"IHDR":
            header = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            idat += body
        pos += 12 + length
    width, height, depth, colour = header[:4]
    assert depth == 8 and colour in (2, 6), header
    channels = 3 if colour == 2 else 4
    raw = zlib.decompress(idat)
    stride = width * channels
    rows, previous = [], bytearray(stride)
    for y in range(height):
        kind = raw[y * (stride + 1)]
        line = bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for i in range(stride):
            a = line[i - channels] if i >= channels else 0
            b = previous[i]
            c = previous[i - channels] if i >= channels else 0
            if kind == 1:
                line[i] = (line[i] + a) & 255
            elif kind == 2:
                line[i] = (line[i] + b) & 255
            elif kind == 3:
                line[i] = (line[i] + (a + b) // 2) & 255
            elif kind == 4:
                p = a + b - c
                pa, pb, pc = abs(p - a), abs(p - b), abs(p - c)
                line[i] = (line[i] + (a if pa <= pb and pa <= pc else b if pb <= pc else c)) & 255
        rows.append([tuple(line[x * channels:x * channels + 3]) for x in range(width)])
        previous = line
    return width, height, rows


def plan_to_picture(extents, width, height):
    (x0, y0), (x1, y1) = extents
    scale = min(width * (1 - 2 * MARGIN) / (x1 - x0), height * (1 - 2 * MARGIN) / (y1 - y0))
    return lambda x, y: (width / 2 + scale * (x - (x0 + x1) / 2), height / 2 - scale * (y - (y0 + y1) / 2))


def close_to(pixel, colour):
    """The colour at half coverage or more: strokes are smoothed at their edges."""
    return all(abs(p - c) <= 128 for p, c in zip(pixel, colour))


def near(rows, x, y, colour, reach=1):
    """True when a pixel within REACH of (x, y) shows the colour."""
    x, y = int(round(x)), int(round(y))
    return any(close_to(rows[j][i], colour) for j in range(y - reach, y + reach + 1)
               for i in range(x - reach, x + reach + 1))


def render(*expressions):
    """Runs the expressions in a fresh folder with --render and reads the PNG back."""
    with tempfile.TemporaryDirectory() as d:
        picture = os.path.join(d, "picture.png")
        code, out, err = run(d, "--render", picture, *exprs(*expressions))
        assert code == 0, err
        return read_png(picture)


def coloured(rows, colour):
    return [(x, y) for y, row in enumerate(rows) for x, pixel in enumerate(row) if pixel == colour]


RED_LINE = ['(command "LAYER" "M" "RED" "C" "1" "" "")',
            '(command "LINE" \'(0 0) \'(100 50) "")']


class LineOnARedLayer(unittest.TestCase):
    def test_the_line_crosses_the_picture_in_red_on_white(self):
        with tempfile.TemporaryDirectory() as d:
            picture = os.path.join(d, "line.png")
            code, out, err = run(d, "--render", picture, *exprs(*RED_LINE))
            self.assertEqual(code, 0, err)
            self.assertIn("Picture: " + picture, out)
            width, height, rows = read_png(picture)
            self.assertEqual((width, height), (LONG_SIDE, LONG_SIDE // 2))
            at = plan_to_picture(((0, 0), (100, 50)), width, height)
            for t in (0.0, 0.25, 0.5, 0.75, 1.0):
                self.assertTrue(near(rows, *at(100 * t, 50 * t), RED), t)
            # Off the line: the white background, in the corners the line does not reach.
            self.assertEqual(rows[0][0], WHITE)
            self.assertEqual(rows[height - 40][width - 40], WHITE)
            self.assertEqual(rows[40][40], WHITE)
            # Nothing else is drawn: every coloured pixel is near the line.
            red = sum(1 for row in rows for pixel in row if close_to(pixel, RED))
            length = math.hypot(*[a - b for a, b in zip(at(100, 50), at(0, 0))])
            self.assertGreater(red, 0.8 * length)
            self.assertLess(red, 3 * length)

    def test_a_heavier_line_weight_draws_a_wider_stroke(self):
        def stroke_height(weight):
            with tempfile.TemporaryDirectory() as d:
                picture = os.path.join(d, "w.png")
                code, out, err = run(d, "--render", picture, *exprs(
                    '(entmake \'((0 . "LINE") (8 . "0") (62 . 1) (370 . %d) (10 0 0 0) (11 100 0 0)))' % weight,
                    '(entmake \'((0 . "POINT") (8 . "0") (10 0 50 0)))'))
                self.assertEqual(code, 0, err)
                width, height, rows = read_png(picture)
                column = width // 2
                return sum(1 for y in range(height) if rows[y][column] != WHITE)
        # 2 mm at 96 dots per inch is about 7.6 pixels; 0.25 mm stays at least one pixel.
        thin, heavy = stroke_height(25), stroke_height(200)
        self.assertGreaterEqual(thin, 1)
        self.assertLessEqual(thin, 3)
        self.assertGreaterEqual(heavy, 7)
        self.assertLessEqual(heavy, 10)


class TextsBlocksAndScreenGraphics(unittest.TestCase):
    FRAME = ['(entmake \'((0 . "POINT") (8 . "0") (10 -5 -5 0)))',
             '(entmake \'((0 . "POINT") (8 . "0") (10 45 15 0)))']

    def assert_lettered_in(self, rows, width, height, colour, box):
        """Glyph strokes in the colour, inside the plan box (x0, y0, x1, y1) give or take 30 %
        of its height, and nowhere else."""
        at = plan_to_picture(((-5, -5), (45, 15)), width, height)
        (left, bottom), (right, top) = at(box[0], box[1]), at(box[2], box[3])
        strokes = coloured(rows, colour)
        self.assertGreater(len(strokes), 1000)  # strokes of several characters, not a smudge
        slack = 0.3 * (bottom - top)
        self.assertGreater(min(y for _, y in strokes), top - slack)
        self.assertLess(max(y for _, y in strokes), bottom + slack)
        self.assertGreater(min(x for x, _ in strokes), left - 5)

    def test_chinese_text_on_a_blue_layer_is_lettered(self):
        width, height, rows = render('(command "LAYER" "M" "NOTE" "C" "5" "" "")',
                                     '(command "TEXT" \'(0 0) 10 0 "暖通空调")', *self.FRAME)
        # The glyphs stand on the baseline and reach about the text's height above it.
        self.assert_lettered_in(rows, width, height, (0, 0, 255), (0, 0, 40, 10))

    def test_the_degree_celsius_sign_is_drawn_even_where_the_font_has_no_ink_for_it(self):
        # WenQuanYi Micro Hei maps ℃ to an empty glyph: the picture spells it °C.
        width, height, rows = render('(command "LAYER" "M" "NOTE" "C" "5" "" "")',
                                     '(command "TEXT" \'(0 0) 10 0 "5℃")', *self.FRAME)
        self.assert_lettered_in(rows, width, height, (0, 0, 255), (0, 0, 40, 10))
        at = plan_to_picture(((-5, -5), (45, 15)), width, height)
        # Ink right of the digit: where the sign is.
        (sign_left, _), (sign_right, _) = at(8, 0), at(16, 0)
        self.assertTrue(any(sign_left <= x <= sign_right for x, _ in coloured(rows, (0, 0, 255))))

    def test_mtext_lines_hang_from_the_top_left_corner(self):
        width, height, rows = render(
            '(entmake \'((0 . "MTEXT") (100 . "AcDbEntity") (8 . "0") (62 . 3) (100 . "AcDbMText")'
            ' (10 0 10 0) (40 . 3.0) (71 . 1) (1 . "{\\\\fSimSun;送风}\\\\P回风 Return")))', *self.FRAME)
        # Two lines of 3 units from the corner down: the second baseline 3 + 5 below the top.
        self.assert_lettered_in(rows, width, height, (0, 255, 0), (0, 10 - 8, 30, 10))

    def test_block_contents_are_placed_scaled_and_turned(self):
        with tempfile.TemporaryDirectory() as d:
            picture = os.path.join(d, "block.png")
            code, out, err = run(d, "--render", picture, *exprs(
                '(entmake \'((0 . "BLOCK") (2 . "BAR") (70 . 0) (10 0 0 0)))',
                '(entmake \'((0 . "LINE") (8 . "0") (62 . 1) (10 0 0 0) (11 10 0 0)))',
                '(entmake \'((0 . "ENDBLK")))',
                # Twice as large, turned a quarter: the bar runs up from (50, 0) to (50, 20).
                '(entmake \'((0 . "INSERT") (2 . "BAR") (8 . "0") (10 50 0 0) (41 . 2.0) (42 . 2.0) (50 . %r)))'
                % (math.pi / 2),
                '(entmake \'((0 . "POINT") (8 . "0") (10 0 0 0)))',
                '(entmake \'((0 . "POINT") (8 . "0") (10 100 20 0)))'))
            self.assertEqual(code, 0, err)
            width, height, rows = read_png(picture)
            at = plan_to_picture(((0, 0), (100, 20)), width, height)
            for y in (2, 10, 18):
                self.assertTrue(near(rows, *at(50, y), RED), y)
            self.assertFalse(near(rows, *at(60, 0.5), RED, reach=3))  # not drawn unturned

    def test_lettering_of_the_session_is_drawn_over_the_drawing(self):
        width, height, rows = render('(t:draw-hz 20 20 1.0 1 "" "暖通")')
        red = coloured(rows, RED)
        self.assertGreater(len(red), 20)
        # Two 16-pixel characters from the screen point (20, 20).
        self.assertTrue(all(20 <= x < 52 and 20 <= y < 36 for x, y in red))


class PictureFiles(unittest.TestCase):
    def test_svg_and_pdf_by_extension(self):
        with tempfile.TemporaryDirectory() as d:
            for name, head in (("a.svg", b"<?xml"), ("a.PDF", b"%PDF-")):
                picture = os.path.join(d, name)
                code, out, err = run(d, "--render", picture, *exprs(*RED_LINE))
                self.assertEqual(code, 0, err)
                with open(picture, "rb") as f:
                    self.assertEqual(f.read(len(head)), head)
                self.assertFalse(os.path.exists(picture + ".part"))

    def test_an_unknown_picture_type_is_refused_before_the_run(self):
        with tempfile.TemporaryDirectory() as d:
            code, out, err = run(d, "--render", os.path.join(d, "a.bmp"), *exprs('(princ "ran")'))
            self.assertEqual(code, 2)
            self.assertIn("a picture is a .png, .svg or .pdf file", err)
            self.assertNotIn("ran", out)
            self.assertEqual(os.listdir(d), [])

    def test_a_picture_that_cannot_be_written_leaves_nothing(self):
        with tempfile.TemporaryDirectory() as d:
            picture = os.path.join(d, "missing", "a.png")
            code, out, err = run(d, "--render", picture, *exprs(*RED_LINE))
            self.assertEqual(code, 2)
            self.assertIn("cannot write picture " + picture, err)
            self.assertEqual(os.listdir(d), [])


class DialogsShown(unittest.TestCase):
    def test_the_supply_air_result_shows_its_values(self):
        with tempfile.TemporaryDirectory() as d:
            code, out, err = run(d, "--show-dialogs", *exprs(
                '(host-dialog "gs_caldlg" \'((set "tn_value" "24") (set "rhn_value" "55") (press "cal")))',
                '(host-dialog "gscalres" \'((press "accept")))', "(c:gscal)"))
            self.assertEqual(code, 0, err)
            result = out[out.index("+-- 送风量与送风状态计算结果 (gscalres)"):]
            result = result[:result.index("\n+--\n")]
            lines = result.split("\n")
            self.assertIn("| 干球温度(℃):", lines)
            # The supply air is 6 K below the room (the dialog's starting difference).
            self.assertEqual(lines[lines.index("| 干球温度(℃):") + 1], "| 18")
            self.assertIn("| [ 保存结果 ]", lines)
            inputs = out[out.index("+-- 送风量与送风状态计算 (gs_caldlg)"):]
            self.assertIn("| 干球温度(℃):\n| [24]\n| 相对湿度(%):\n| [55]\n", inputs)

    def test_without_the_option_no_dialog_is_shown(self):
        with tempfile.TemporaryDirectory() as d:
            code, out, err = run(d, *exprs('(host-dialog "gs_caldlg" \'((press "cal")))', "(c:gscal)"))
            self.assertEqual(code, 0, err)
            self.assertNotIn("+--", out)


class OptionStyle(unittest.TestCase):
    """The options read as airstate's do: --OPTION VALUE or --OPTION=VALUE, --version."""

    def test_equals_form(self):
        with tempfile.TemporaryDirectory() as d:
            picture = os.path.join(d, "eq.png")
            code, out, err = run(d, "--render=" + picture, "-e", "(princ (getvar \"DWGNAME\"))")
            self.assertEqual(code, 0, err)
            self.assertTrue(os.path.isfile(picture))

    def test_a_flag_with_a_value_is_refused(self):
        with tempfile.TemporaryDirectory() as d:
            code, out, err = run(d, "--show-dialogs=yes")
            self.assertEqual(code, 2)
            self.assertIn("adscon: --show-dialogs takes no value", err)

    def test_version(self):
        p = subprocess.run([ADSCON, "--version"], capture_output=True, text=True)
        self.assertEqual(p.returncode, 0)
        self.assertRegex(p.stdout, r"^adscon \d+\.\d+\.\d+\n$")


if __name__ == "__main__":
    unittest.main()
