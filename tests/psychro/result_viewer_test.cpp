// Viewing and deleting result files in the host: the list as the file gives it, the messages
// when the file or a dialog is missing, the explanation behind "resintr", and deletion only on
// "ok".
#include "adscodes.h"
#include "psychro/psychro_handlers.h"
#include "tests/psychro/result_file_session.h"

namespace result_file_test {
namespace {

using Entries = std::vector<std::wstring>;

class ResultViewer : public ResultFileSession {
protected:
    Entries listed() {
        const auto* d = dialog(L"v_resdlg");
        return d && d->tile(L"reslist") ? d->tile(L"reslist")->list : Entries{L"<no list>"};
    }
};

TEST_F(ResultViewer, NoResultFileMeansNoDialog) {
    EXPECT_EQ(handlerStatus(14, vrn2::viewSupplyAirResults), RTERROR);
    EXPECT_EQ(handlerStatus(43, vrn2::viewCoolerResults), RTERROR);
    EXPECT_EQ(handlerStatus(23, vrn2::viewStatePointResults), RTERROR);
    EXPECT_EQ(alerts(), (Entries{L"没有保存结果.", L"没有保存结果.", L"没有保存结果."}));
    EXPECT_TRUE(host::dcl::dialogHistory().empty());
    EXPECT_TRUE(failures().empty());
}

TEST_F(ResultViewer, TheListShowsTheFileWithItsLastLineTwiceAfterALineFeed) {
    writeFile("gscal.txt", utf8(L"\n         送风量与送风状态计算结果\n\n(B=101.325kPa)\n 末行\n"));
    EXPECT_EQ(handlerStatus(14, vrn2::viewSupplyAirResults), RTNORM);
    EXPECT_EQ(listed(), (Entries{L"", L"         送风量与送风状态计算结果", L"", L"(B=101.325kPa)", L" 末行", L" 末行"}));
    EXPECT_TRUE(alerts().empty());
    EXPECT_TRUE(failures().empty());

    writeFile("sccal.txt", "first\nlast");
    EXPECT_EQ(handlerStatus(43, vrn2::viewCoolerResults), RTNORM);
    EXPECT_EQ(listed(), (Entries{L"first", L"last"}));
    EXPECT_EQ(dialog(L"v_resdlg")->file.filename(), "sccal.dcl");
}

TEST_F(ResultViewer, LinesLongerThan99CharactersBecomeSeveralEntries) {
    std::wstring row;
    for (int k = 0; k < 120; ++k) row += static_cast<wchar_t>(k % 2 ? L'℃' : L'%');
    writeFile("gscal.txt", utf8(row + L"\nshort"));
    call(L"c:gsv_res");
    EXPECT_EQ(listed(), (Entries{row.substr(0, 99), row.substr(99), L"short"}));
}

TEST_F(ResultViewer, ASavedCalculationIsListedLineByLine) {
    queue(L"gs_caldlg", {press(L"cal")});
    queue(L"gscalres", {press(L"saveres")});
    call(L"c:gscal");
    call(L"c:gsv_res");
    // The file ends without a line feed, so nothing is repeated; its first line is empty.
    Entries e = listed();
    ASSERT_EQ(e.size(), 21u);
    EXPECT_EQ(e[0], L"");
    EXPECT_EQ(e[1], L"         送风量与送风状态计算结果");
    EXPECT_EQ(e[3], L"__________________________________________");
    EXPECT_EQ(e[9], L"             相对湿度(%)   :    60.00");
    EXPECT_EQ(e[14], L"         送风量(kg/h)  :        4718.0615");
    EXPECT_EQ(e[20], L"             湿球温度 ℃   :    13.742");
}

TEST_F(ResultViewer, AStatePointSavedTwiceIsListedWithItsTitleOnceAndItsLastLineTwice) {
    for (int run = 0; run < 2; ++run) {
        queue(L"ci_dt", {set(L"tfy", L"1"), set(L"temp", L"20"), set(L"fy", L"50"), press(L"result")});
        queue(L"i_dresdlg", {press(L"saveres")});
        call(L"c:ci_dt");
    }
    queue(L"v_resdlg", {press(L"resintr"), press(L"accept")});
    call(L"c:v_res");
    Entries e = listed();
    // Title (after its leading line feed), then two blocks of nine lines; the file ends with
    // a line feed, so its last row comes twice.
    ASSERT_EQ(e.size(), 2u + 2 * 9 + 1);
    EXPECT_EQ(e[1], L"          空气状态与处理过程计算结果 ");
    EXPECT_EQ(e[3], L"________________________________________________");
    EXPECT_EQ(e[5], L"                  (大气压B=101.325 kPa )");
    EXPECT_EQ(e[7], L"           已知T=20.00℃,FY=50.00(%),求其它参数:");
    EXPECT_EQ(e[e.size() - 1], e[e.size() - 2]);
    EXPECT_EQ(e[e.size() - 1].rfind(L"                  焓值IH(kJ/kg):   ", 0), 0u) << host::toUtf8(e.back());
    EXPECT_EQ(dialog(L"introduce2")->file.filename(), "ci_dt.dcl");
    EXPECT_TRUE(failures().empty());
}

TEST_F(ResultViewer, ResintrOpensTheExplanationOfTheSameDialogFile) {
    writeFile("gscal.txt", "x\n");
    writeFile("sccal.txt", "y\n");
    queue(L"v_resdlg", {press(L"resintr"), press(L"accept")});
    queue(L"v_resdlg", {press(L"resintr")});
    call(L"c:gsv_res");
    ASSERT_NE(dialog(L"introduce3"), nullptr);
    EXPECT_EQ(dialog(L"introduce3")->depth, 2);
    EXPECT_EQ(dialog(L"introduce3")->file.filename(), "gscal.dcl");
    EXPECT_EQ(dialog(L"v_resdlg")->status, DLGOK);
    call(L"c:scv_res");
    EXPECT_EQ(dialog(L"introduce3")->file.filename(), "sccal.dcl");
    EXPECT_EQ(runs(L"introduce3"), 2);
    EXPECT_TRUE(failures().empty());
}

TEST_F(ResultViewer, OkInTheWarningDeletesAndTheViewerThenHasNothing) {
    writeFile("gscal.txt", "saved\n");
    writeFile("sccal.txt", "saved\n");
    queue(L"delwarming", {press(L"ok")});
    EXPECT_EQ(handlerStatus(13, vrn2::deleteSupplyAirResults), RTNORM);
    EXPECT_FALSE(exists("gscal.txt"));
    EXPECT_TRUE(exists("sccal.txt")) << "each command deletes its own file";
    EXPECT_EQ(dialog(L"delwarming")->status, DLGOK);
    call(L"c:gsv_res");
    EXPECT_EQ(alerts(), (Entries{L"没有保存结果."}));

    queue(L"delwarming", {press(L"ok")});
    call(L"c:scdelres");
    EXPECT_FALSE(exists("sccal.txt"));
    EXPECT_EQ(dialog(L"delwarming")->file.filename(), "sccal.dcl");
}

TEST_F(ResultViewer, AnyOtherWayOutDeletesNothing) {
    writeFile("gscal.txt", "saved\n");
    queue(L"delwarming", {press(L"cancel")});
    EXPECT_EQ(handlerStatus(13, vrn2::deleteSupplyAirResults), RTNORM);
    call(L"c:gsdelres");  // nothing queued: the dialog is closed without an answer
    EXPECT_EQ(fileBytes("gscal.txt"), "saved\n");
    EXPECT_EQ(runs(L"delwarming"), 2);
}

TEST_F(ResultViewer, DeletingAMissingFileSaysNothing) {
    queue(L"delwarming", {press(L"ok")});
    EXPECT_EQ(handlerStatus(44, vrn2::deleteCoolerResults), RTNORM);
    EXPECT_TRUE(alerts().empty());
    EXPECT_TRUE(failures().empty());
    EXPECT_EQ(printed(), L"");
}

TEST_F(ResultViewer, MissingDialogFilesAndDialogs) {
    writeFile("gscal.txt", "x\n");
    writeFile("sccal.txt", "x\n");
    useRoot("empty_root");
    EXPECT_EQ(handlerStatus(14, vrn2::viewSupplyAirResults), RTERROR);
    EXPECT_EQ(failures(), (Entries{L"\n不能装载对话框."}));
    EXPECT_EQ(handlerStatus(13, vrn2::deleteSupplyAirResults), RTERROR);
    EXPECT_EQ(alerts(), (Entries{L"不能装载对话框."}));
    EXPECT_EQ(fileBytes("gscal.txt"), "x\n");

    clearOutput();
    useRoot("bare_root");
    writeFile("bare_root/dwglib/gscal.dcl", "other : dialog { ok_only; }\n");
    writeFile("bare_root/dwglib/sccal.dcl", "other : dialog { ok_only; }\n");
    EXPECT_EQ(handlerStatus(14, vrn2::viewSupplyAirResults), RTERROR);
    EXPECT_EQ(handlerStatus(43, vrn2::viewCoolerResults), RTERROR);
    EXPECT_EQ(failures(), (Entries{L"\n不能显示V_RESDLG对话框.", L"\n不能显示VIEW_TBLDLG对话框."}));
    EXPECT_EQ(handlerStatus(44, vrn2::deleteCoolerResults), RTERROR);
    EXPECT_EQ(alerts(), (Entries{L"不能显示对话框."}));
    EXPECT_TRUE(exists("sccal.txt"));
}

TEST_F(ResultViewer, AMissingExplanationIsReported) {
    writeFile("gscal.txt", "x\n");
    useRoot("list_only_root");
    writeFile("list_only_root/dwglib/gscal.dcl",
              "v_resdlg : dialog { : list_box { key = \"reslist\"; } : button { key = \"resintr\"; } ok_only; }\n");
    queue(L"v_resdlg", {press(L"resintr")});
    EXPECT_EQ(handlerStatus(14, vrn2::viewSupplyAirResults), RTNORM);
    EXPECT_EQ(failures(), (Entries{L"不能打开说明对话框."}));
}

TEST_F(ResultViewer, WithoutTheSuiteFolderTheViewerAndDeleterStop) {
    writeFile("gscal.txt", "x\n");
    doc().symbols().erase(L"_DRV");
    EXPECT_EQ(handlerStatus(14, vrn2::viewSupplyAirResults), RTERROR);
    EXPECT_EQ(handlerStatus(13, vrn2::deleteSupplyAirResults), RTERROR);
    EXPECT_EQ(alerts(), (Entries{L"找不到暖通软件目录!", L"找不到暖通软件目录!"}));
    EXPECT_TRUE(exists("gscal.txt"));
}

}  // namespace
}  // namespace result_file_test
