// "c:gscal" run in the host as a user runs it: the dialog's defaults, toggles and labels, the
// input checks with their alerts and focus, the three kinds of calculation, the result dialog
// and the result file read back byte for byte.
#include "adscodes.h"
#include "psychro/psychro_handlers.h"
#include "tests/psychro/result_file_session.h"

namespace result_file_test {
namespace {

class SupplyAirCommand : public ResultFileSession {
protected:
    host::CallResult gscal() { return call(L"c:gscal"); }
    int gscalStatus() { return handlerStatus(12, vrn2::supplyAirCalculation); }
};

// The figures of the default case rounded as the dialog shows them; the unrounded values are
// those of tests/psychro/supply_air_worked.py (G 4718.0614595, d 8.9493346, i 38.7968048,
// fy 78.2173628, ts 13.7416745).
TEST_F(SupplyAirCommand, DefaultsGiveAFullSupplyStateAt16Degrees) {
    queue(L"gs_caldlg", {press(L"cal")});
    EXPECT_EQ(gscalStatus(), RTNORM);
    EXPECT_TRUE(alerts().empty());

    const auto* main = dialog(L"gs_caldlg");
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(main->value(L"B"), L"101.325");
    EXPECT_EQ(main->value(L"tn_value"), L"22");
    EXPECT_EQ(main->value(L"rhn_value"), L"60");
    EXPECT_EQ(main->value(L"q_value"), L"11.6");
    EXPECT_EQ(main->value(L"w_value"), L"5");
    EXPECT_EQ(main->value(L"dt_value"), L"6");
    EXPECT_EQ(main->value(L"q"), L"1");
    EXPECT_EQ(main->value(L"w"), L"1");
    EXPECT_EQ(main->value(L"q_text"), L"  总热冷负荷(kW):  ");
    EXPECT_TRUE(main->tile(L"w_value")->enabled);
    EXPECT_EQ(main->value(L"error"), L"");

    const auto* res = dialog(L"gscalres");
    ASSERT_NE(res, nullptr);
    EXPECT_EQ(res->depth, 2) << "shown over the calculation dialog";
    EXPECT_EQ(res->value(L"Ga"), L"4718.0615");
    EXPECT_EQ(res->value(L"t_value"), L"16");
    EXPECT_EQ(res->value(L"d_value"), L"8.949");
    EXPECT_EQ(res->value(L"i_value"), L"38.797");
    EXPECT_EQ(res->value(L"rh_value"), L"78.217");
    EXPECT_EQ(res->value(L"ts_value"), L"13.742");
    EXPECT_EQ(res->value(L"error"), L"");
    EXPECT_FALSE(exists("gscal.txt")) << "nothing is saved unless asked";
}

TEST_F(SupplyAirCommand, TotalLoadWithoutMoistureLoadIsRefused) {
    queue(L"gs_caldlg", {set(L"w", L"0"), press(L"cal")});
    gscal();
    ASSERT_EQ(alerts(), (std::vector<std::wstring>{L"    湿负荷项不能关闭。"}));
    EXPECT_EQ(dialog(L"gs_caldlg")->focus, L"w");
    EXPECT_FALSE(dialog(L"gs_caldlg")->tile(L"w_value")->enabled);
    EXPECT_EQ(runs(L"gscalres"), 0);
}

TEST_F(SupplyAirCommand, SensibleLoadOnlyGivesTheFlowAndTheSupplyTemperature) {
    queue(L"gs_caldlg", {set(L"q", L"0"), set(L"w", L"0"), press(L"cal")});
    gscal();
    EXPECT_TRUE(alerts().empty());
    const auto* main = dialog(L"gs_caldlg");
    EXPECT_EQ(main->value(L"q_text"), L"  显热冷负荷(kW):  ");
    EXPECT_FALSE(main->tile(L"w_value")->enabled);
    const auto* res = dialog(L"gscalres");
    ASSERT_NE(res, nullptr);
    EXPECT_EQ(res->value(L"Ga"), L"6891.0891");  // 11.6 · 3600 / (1.01 · 6)
    EXPECT_EQ(res->value(L"t_value"), L"16");
    EXPECT_EQ(res->value(L"error"), L"只能求出送风量与送风温度");
    for (const wchar_t* key : {L"d_value", L"i_value", L"rh_value", L"ts_value"})
        EXPECT_EQ(res->value(key), L"") << key;
}

TEST_F(SupplyAirCommand, TheLoadLabelFollowsTheToggleBothWays) {
    queue(L"gs_caldlg", {press(L"q"), press(L"q"), press(L"w"), press(L"w")});
    gscal();
    EXPECT_EQ(dialog(L"gs_caldlg")->value(L"q_text"), L"  总热冷负荷(kW):  ");
    EXPECT_TRUE(dialog(L"gs_caldlg")->tile(L"w_value")->enabled);
    queue(L"gs_caldlg", {press(L"q")});
    gscal();
    EXPECT_EQ(dialog(L"gs_caldlg")->value(L"q_text"), L"  显热冷负荷(kW):  ");
}

TEST_F(SupplyAirCommand, EachInputFaultHasItsAlertAndFocus) {
    struct Case {
        std::vector<host::DialogAction> actions;
        std::wstring alert, focus;
    } cases[] = {
        {{set(L"B", L"abc")}, L"   输入大气压值.  ", L"B"},
        {{set(L"B", L"40")}, L"   大气压要求在50-200之间.  ", L"B"},
        {{set(L"B", L"200.5")}, L"   大气压要求在50-200之间.  ", L"B"},
        {{set(L"tn_value", L"")}, L"   输入室内干球温度值.  ", L"tn_value"},
        {{set(L"tn_value", L"-1")}, L"   干球温度要求在0-100之间.  ", L"tn_value"},
        {{set(L"rhn_value", L"6o")}, L"   输入室内相对湿度值,如果没要求,\n可输入0-100任何值.  ", L"rhn_value"},
        {{set(L"rhn_value", L"101")}, L"   相对湿度要求在0-100之间.  ", L"rhn_value"},
        {{set(L"w", L"0")}, L"    湿负荷项不能关闭。", L"w"},
        {{set(L"q_value", L"x")}, L"   输入热负荷值.  ", L"q_value"},
        {{set(L"q", L"0"), set(L"w", L"0"), set(L"q_value", L"")}, L"   输入热负荷值.  ", L"q_value"},
        {{set(L"w_value", L"five")}, L"   输入湿负荷值.  ", L"w_value"},
        {{set(L"dt_value", L"6K")}, L"   输入送风温差值.  ", L"dt_value"},
        // Two faults: only the first is reported.
        {{set(L"tn_value", L"x"), set(L"B", L"x")}, L"   输入大气压值.  ", L"B"},
    };
    for (auto& c : cases) {
        clearOutput();
        auto actions = c.actions;
        actions.push_back(press(L"cal"));
        queue(L"gs_caldlg", actions);
        gscal();
        EXPECT_EQ(alerts(), (std::vector<std::wstring>{c.alert})) << utf8(c.alert);
        EXPECT_EQ(dialog(L"gs_caldlg")->focus, c.focus) << utf8(c.alert);
    }
    EXPECT_EQ(runs(L"gscalres"), 0);
}

TEST_F(SupplyAirCommand, TheBoundsThemselvesAreAccepted) {
    const std::vector<std::wstring> checkMessages = {
        L"   大气压要求在50-200之间.  ", L"   干球温度要求在0-100之间.  ", L"   相对湿度要求在0-100之间.  "};
    const std::pair<const wchar_t*, const wchar_t*> bounds[] = {
        {L"B", L"50"}, {L"B", L"200"}, {L"tn_value", L"0"}, {L"tn_value", L"100"},
        {L"rhn_value", L"0"}, {L"rhn_value", L"100"}};
    for (auto [key, value] : bounds) {
        clearOutput();
        host::dcl::clearDialogHistory();
        queue(L"gs_caldlg", {set(key, value), press(L"cal")});
        gscal();
        // Past the checks the calculation runs: a result dialog, or the dialog's own message.
        for (const auto& alert : alerts())
            for (const auto& message : checkMessages) EXPECT_NE(alert, message) << utf8(key) << " " << utf8(value);
        EXPECT_TRUE(runs(L"gscalres") == 1 || !dialog(L"gs_caldlg")->value(L"error").empty())
            << utf8(key) << " " << utf8(value);
    }
}

TEST_F(SupplyAirCommand, AnImpossibleCaseIsReportedInTheDialog) {
    // No moisture load: the process line has no point at the supply temperature.
    queue(L"gs_caldlg", {set(L"w_value", L"0"), press(L"cal")});
    gscal();
    EXPECT_TRUE(alerts().empty());
    EXPECT_EQ(dialog(L"gs_caldlg")->value(L"error"), L"无法求得结果,检查输入参数是否合理?");
    EXPECT_EQ(runs(L"gscalres"), 0);
    // The next calculation clears the message.
    queue(L"gs_caldlg", {set(L"w_value", L"0"), press(L"cal"), set(L"w_value", L"5"), press(L"cal")});
    gscal();
    EXPECT_EQ(dialog(L"gs_caldlg")->value(L"error"), L"");
    EXPECT_EQ(runs(L"gscalres"), 1);
}

TEST_F(SupplyAirCommand, TheDialogOpensWithTheStandardInputsEveryTime) {
    queue(L"gs_caldlg", {set(L"tn_value", L"26"), set(L"q", L"0"), set(L"w", L"0"), press(L"cal")});
    gscal();
    gscal();
    const auto* main = dialog(L"gs_caldlg");
    const std::pair<const wchar_t*, const wchar_t*> expected[] = {
        {L"B", L"101.325"}, {L"tn_value", L"22"}, {L"rhn_value", L"60"}, {L"q_value", L"11.6"},
        {L"w_value", L"5"}, {L"dt_value", L"6"}, {L"q", L"1"}, {L"w", L"1"}, {L"q_text", L"  总热冷负荷(kW):  "}};
    for (const auto& [key, text] : expected) EXPECT_EQ(main->value(key), text) << key;
}

TEST_F(SupplyAirCommand, HelpOpensTheExplanation) {
    queue(L"gs_caldlg", {press(L"help")});
    gscal();
    const auto* help = dialog(L"intro_scproofcal");
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->depth, 2);
    EXPECT_TRUE(alerts().empty());
}

// The file as a designer finds it: the title once, then one block per save.
const std::wstring kDefaultBlock =
    L"\n__________________________________________\n\n(B=101.325kPa)"
    L"\n 输入参数:  \n         室内设计状态:      "
    L"\n             干球温度 ℃   :    22.00\n             相对湿度(%)   :    60.00"
    L"\n         全热冷负荷(kW):        11.600\n         湿负荷(kg/h)  :        5.000"
    L"\n         送风温差 ℃   :        6.000"
    L"\n 计算结果:\n         送风量(kg/h)  :        4718.0615\n         送风状态:         "
    L"\n             干球温度 ℃   :    16\n             含湿量(kg/kg) :    8.949"
    L"\n             相对湿度(%)   :    78.217\n             焓值(kJ/kg)   :    38.797"
    L"\n             湿球温度 ℃   :    13.742";

TEST_F(SupplyAirCommand, SavedResultsReadBackByteForByte) {
    queue(L"gs_caldlg", {press(L"cal")});
    queue(L"gscalres", {press(L"saveres")});
    gscal();
    EXPECT_EQ(printed(), L"\n结果已存在文件gscal.txt中.");
    EXPECT_EQ(dialog(L"gscalres")->status, DLGOK) << "saving closes the result dialog";
    const std::wstring title = L"\n         送风量与送风状态计算结果\n";
    EXPECT_EQ(fileBytes("gscal.txt"), utf8(title + kDefaultBlock));

    // A second case in the same dialog run is appended without a second title.
    queue(L"gs_caldlg", {set(L"q", L"0"), set(L"w", L"0"), set(L"B", L"95.5"), press(L"cal")});
    queue(L"gscalres", {press(L"saveres")});
    gscal();
    const std::wstring sensibleOnly =
        L"\n__________________________________________\n\n(B=95.500kPa)"
        L"\n 输入参数:  \n         室内设计状态:      "
        L"\n             干球温度 ℃   :    22.00\n             相对湿度(%)   :    60.00"
        L"\n         显热冷负荷(kW):        11.600\n         送风温差 ℃   :        6.000"
        L"\n 计算结果:\n         送风量(kg/h)  :        6891.0891\n         送风状态:         "
        L"\n             干球温度 ℃   :    16";
    EXPECT_EQ(fileBytes("gscal.txt"), utf8(title + kDefaultBlock + sensibleOnly));
}

TEST_F(SupplyAirCommand, AResultFileThatCannotBeCreatedIsReported) {
    fs::create_directories(dir_ / "gscal.txt");  // a folder in the way
    queue(L"gs_caldlg", {press(L"cal")});
    queue(L"gscalres", {press(L"saveres")});
    gscal();
    EXPECT_EQ(alerts(), (std::vector<std::wstring>{L"不能创建存放结果的文件."}));
    EXPECT_EQ(printed(), L"");
}

TEST_F(SupplyAirCommand, MissingSuiteFolderOrDialogFile) {
    doc().symbols().erase(L"_DRV");
    EXPECT_EQ(gscalStatus(), RTERROR);
    EXPECT_EQ(alerts(), (std::vector<std::wstring>{L"找不到暖通软件目录!"}));

    clearOutput();
    useRoot("empty_root");
    EXPECT_EQ(gscalStatus(), RTERROR);
    EXPECT_EQ(alerts(), (std::vector<std::wstring>{L"不能装载对话框."}));

    clearOutput();
    useRoot("other_root");
    writeFile("other_root/dwglib/gscal.dcl", "other : dialog { ok_only; }\n");
    EXPECT_EQ(gscalStatus(), RTERROR);
    EXPECT_EQ(alerts(), (std::vector<std::wstring>{L"不能初始化对话框."}));
}

TEST_F(SupplyAirCommand, MissingResultAndHelpDialogsAreReported) {
    useRoot("partial_root");
    writeFile("partial_root/dwglib/gscal.dcl",
              "gs_caldlg : dialog {\n"
              "  : edit_box { key = \"B\"; } : edit_box { key = \"tn_value\"; } : edit_box { key = \"rhn_value\"; }\n"
              "  : toggle { key = \"q\"; } : toggle { key = \"w\"; } : text { key = \"q_text\"; }\n"
              "  : edit_box { key = \"q_value\"; } : edit_box { key = \"w_value\"; } : edit_box { key = \"dt_value\"; }\n"
              "  : button { key = \"cal\"; } : button { key = \"help\"; } errtile; ok_cancel;\n"
              "}\n");
    queue(L"gs_caldlg", {press(L"cal"), press(L"help")});
    EXPECT_EQ(gscalStatus(), RTNORM);
    EXPECT_EQ(alerts(), (std::vector<std::wstring>{L"不能初始化对话框.", L"不能显示这对话框."}));
}

}  // namespace
}  // namespace result_file_test
