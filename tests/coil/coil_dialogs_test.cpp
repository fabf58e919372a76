// What the coil dialogs show that the console does not print: a check that fails is told in
// the check dialog's error tile and nothing is saved; the database editor shows the formula
// slide as vectors inside its image tile, and the tiles of a chosen record.
#include <filesystem>
#include <fstream>

#include "tests/psychro/result_file_session.h"

namespace {

using result_file_test::ResultFileSession;
using result_file_test::utf8;
namespace fs = std::filesystem;

class CoilDialogs : public ResultFileSession {
protected:
    // An installation root with the bundled dialogs and slide and a database of TEXT.
    void installRoot(const std::string& text) {
        useRoot("suite");
        fs::create_directories(dir_ / "suite/dwglib");
        fs::create_directories(dir_ / "suite/datlib");
        const fs::path source = host::toUtf8(testing_support::sourceRoot());
        for (const char* file : {"dwglib/sccal.dcl", "dwglib/formula.sld"})
            fs::copy_file(source / file, dir_ / "suite" / file);
        std::ofstream(dir_ / "suite/datlib/sc.dat", std::ios::binary) << text;
    }
};

TEST_F(CoilDialogs, FailedCheckIsToldInTheDialogAndNothingIsSaved) {
    // The contact coefficient falls to zero at 3 m/s and below zero beyond.
    installRoot("\n{FALL*4}\nA=39.7 B=332.6 m=0.52 p=1.03 n=0.8\nL=0-0 Fd=24.05 Fy=1.87 fw=0.00407\n"
                "Vy=1.00   E2=0.5000\nVy=2.00   E2=0.2500\n");
    queue(L"sccaldlg", L"(set \"G_value\" \"28000\") (set \"W_value\" \"18000\") (press \"cal\") (press \"saveres\")");
    ASSERT_TRUE(call(L"c:sccal").defined);
    const auto* check = dialog(L"sccaldlg");
    ASSERT_NE(check, nullptr);
    EXPECT_EQ(check->value(L"type"), L"0");
    EXPECT_EQ(check->value(L"error"), L"先按\"校核计算\"求出结果.");  // saveres after the failure
    EXPECT_EQ(check->value(L"t_value"), L"");
    ASSERT_EQ(alerts().size(), 1u);
    EXPECT_EQ(alerts()[0], L"求出的接触系数不在设备给出的范围");
    EXPECT_FALSE(exists("sccal.txt"));

    queue(L"sccaldlg", L"(set \"G_value\" \"28000\") (set \"W_value\" \"18000\") (press \"cal\")");
    call(L"c:sccal");
    EXPECT_EQ(dialog(L"sccaldlg")->value(L"error"), L"此风速下的接触系数不大于零,无法校核.");
}

TEST_F(CoilDialogs, EditorDrawsTheFormulaSlideInsideItsImageTile) {
    installRoot("\n{A1*2}\nA=1 B=2 m=3 p=4 n=5\nL=6-7 Fd=8 Fy=9 fw=0.001\nVy=2.00   E2=0.5000\n");
    queue(L"scdinfo", L"(select \"records\" \"0\")");
    ASSERT_TRUE(call(L"c:scinfo").defined);
    const auto* editor = dialog(L"scdinfo");
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->value(L"type"), L"A1");
    EXPECT_EQ(editor->value(L"Nn"), L"2");
    EXPECT_EQ(editor->value(L"fw_value"), L"0.001");
    ASSERT_NE(editor->tile(L"E2_list"), nullptr);
    EXPECT_EQ(editor->tile(L"E2_list")->list, std::vector<std::wstring>{L"Vy=2.00   E2=0.5000"});

    const auto* image = editor->tile(L"formula");
    ASSERT_NE(image, nullptr);
    ASSERT_FALSE(image->image.empty());
    EXPECT_EQ(image->image[0].kind, host::dcl::ImageOp::Kind::Slide);
    EXPECT_NE(image->image[0].slide.find(L"dwglib/formula"), std::wstring::npos);
    const short width = image->image[0].x2, height = image->image[0].y2;
    int vectors = 0, left = width, right = 0;
    for (const auto& op : image->image) {
        if (op.kind != host::dcl::ImageOp::Kind::Vector) continue;
        ++vectors;
        for (short x : {op.x1, op.x2}) {
            EXPECT_GE(x, 0);
            EXPECT_LE(x, width);
            left = std::min<int>(left, x);
            right = std::max<int>(right, x);
        }
        for (short y : {op.y1, op.y2}) {
            EXPECT_GE(y, 0);
            EXPECT_LE(y, height);
        }
    }
    EXPECT_GT(vectors, 50);  // the strokes of "K = 1 / (1/(A·Vy^m·ξ^p) + 1/(B·w^n))"
    EXPECT_GT(right - left, width * 3 / 4);  // the formula fills the tile's width
}

TEST_F(CoilDialogs, MissingSlideDrawsNothingButTheEditorStillRuns) {
    installRoot("");
    fs::remove(dir_ / "suite/dwglib/formula.sld");
    ASSERT_TRUE(call(L"c:scinfo").defined);
    const auto* image = dialog(L"scdinfo")->tile(L"formula");
    ASSERT_NE(image, nullptr);
    for (const auto& op : image->image) EXPECT_NE(op.kind, host::dcl::ImageOp::Kind::Vector);
}

}  // namespace
