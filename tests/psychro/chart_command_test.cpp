// The chart commands run as a user runs them: the chart dialog's messages for bad input (and
// nothing drawn), a cancelled corner pick, the table of state points and its viewer.
#include <string>
#include <vector>

#include "host/dcl/dcl.h"
#include "psychro/id_chart_messages.h"
#include "tests/psychro/result_file_session.h"

namespace {

using host::dcl::lastDialog;

class ChartCommands : public result_file_test::ResultFileSession {
protected:
    bool drawingIsEmpty() { return eval(L"(entlast)") == L"nil"; }
    void drawDefaultChart() {
        queue(L"crti_dtdlg", LR"((press "accept"))");
        eval(L"(host-getpoint '(0 0))");
        call(L"c:crti_dt");
        ASSERT_FALSE(drawingIsEmpty());
    }
};

struct BadInput {
    const wchar_t* tile;
    const wchar_t* text;
    const wchar_t* message;
};

TEST_F(ChartCommands, EachBadInputHasItsMessageAndFocusAndNothingIsDrawn) {
    const std::vector<BadInput> cases = {
        {L"pressure", L"abc", vrn2::kMsgChartPressureText},  {L"pressure", L"49", vrn2::kMsgChartPressureRange},
        {L"t_min", L"", vrn2::kMsgChartTempMinText},         {L"t_max", L"x", vrn2::kMsgChartTempMaxText},
        {L"t_max", L"-20", vrn2::kMsgChartTempRange},        {L"d_min", L"?", vrn2::kMsgChartMoistureMinText},
        {L"d_max", L"101", vrn2::kMsgChartMoistureRange},    {L"width", L"w", vrn2::kMsgChartWidthText},
        {L"height", L"-", vrn2::kMsgChartHeightText},        {L"height", L"20", vrn2::kMsgChartSizeRange},
    };
    for (const BadInput& c : cases) {
        queue(L"crti_dtdlg", L"(set \"" + std::wstring(c.tile) + L"\" \"" + c.text + L"\") (press \"accept\")");
        eval(L"(host-getpoint '(0 0))");  // would draw a chart, were the input taken
        call(L"c:crti_dt");
        const auto* dialog = lastDialog(L"crti_dtdlg");
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->value(L"error"), c.message) << result_file_test::utf8(c.tile);
        EXPECT_TRUE(dialog->cancelledByHost) << "the dialog stays open with the message";
        EXPECT_TRUE(drawingIsEmpty());
    }
    // Without a chart the table command draws nothing and says why.
    call(L"c:crti_dtbl");
    EXPECT_NE(printed().find(L"先生成焓湿图."), std::wstring::npos);
    EXPECT_TRUE(drawingIsEmpty());
}

TEST_F(ChartCommands, CancelledCornerPickDrawsNothingAndLeavesNoChart) {
    queue(L"crti_dtdlg", LR"((press "accept"))");
    call(L"c:crti_dt");
    EXPECT_NE(printed().find(L"焓湿图左下角: "), std::wstring::npos);
    EXPECT_TRUE(drawingIsEmpty());
    queue(L"ci_dt", LR"((press "sel_point"))");
    call(L"c:ci_dt");
    EXPECT_NE(printed().find(L"先生成焓湿图."), std::wstring::npos);
}

TEST_F(ChartCommands, TableTakesCalculatedAndPickedPointsAndTheViewerListsThem) {
    drawDefaultChart();
    queue(L"ci_dt", LR"((set "tfy" "1") (set "pressure" "101.325") (set "temp" "26") (set "fy" "50") (press "result"))");
    call(L"c:ci_dt");
    // A pick below the saturation curve is refused; the next one is taken.
    eval(L"(host-getpoint '(290 10))");
    eval(L"(host-getpoint '(100 200))");
    call(L"c:crti_dtbl");
    EXPECT_NE(printed().find(L"所选点不是合理的湿空气状态"), std::wstring::npos);
    call(L"c:vi_dtbl");
    const auto* viewer = lastDialog(L"vi_dtbldlg");
    ASSERT_NE(viewer, nullptr);
    const auto* list = viewer->tile(L"ptlist");
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->list.size(), 3u);
    // 26 °C and 50 %: d = 10.62 g/kg, i = 53.31 kJ/kg by the library's relations.
    EXPECT_EQ(list->list[1].substr(0, 26), L"1         26.00     18.76 ");
    EXPECT_NE(list->list[1].find(L"10.62     50.0      53.31"), std::wstring::npos);
    EXPECT_EQ(list->list[2].substr(0, 1), L"2");
    EXPECT_EQ(viewer->value(L"pressure"), L"大气压力 B=101.325 kPa");
    // Nothing new: nothing drawn, and the table stays as it was.
    call(L"c:crti_dtbl");
    EXPECT_NE(printed().find(L"没有新的状态点."), std::wstring::npos);
}

TEST_F(ChartCommands, HelpOpensItsDialog) {
    call(L"c:i_dhlp");
    const auto* help = lastDialog(L"i_dhlpdlg");
    ASSERT_NE(help, nullptr);
    EXPECT_FALSE(help->title.empty());
}

}  // namespace
