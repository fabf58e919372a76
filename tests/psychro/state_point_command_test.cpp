// c:ci_dt run as a user runs it: scripted dialogs, the result dialog's tiles, the messages and
// their focus, and the result file read back byte for byte. Expected values are worked by hand
// from the relations of the humid-air library (Hyland-Wexler saturation pressure over water,
// d = 622·pq/(P − pq), i = 1.01·t + 0.001·d·(1.84·t + 2500)), evaluated independently in Python.
#include <filesystem>
#include <string>

#include "psychro/psychro_handlers.h"
#include "host/dcl/dcl.h"
#include "host/runtime/input.h"
#include "psychro/id_chart.h"
#include "tests/psychro/result_file_session.h"

namespace {

namespace fs = std::filesystem;
using host::dcl::lastDialog;

// A session in a fresh current folder, where the result file is written.
class StatePoint : public result_file_test::ResultFileSession {
protected:
    // Runs c:ci_dt in the loaded module and answers the tiles of the main dialog when it closed.
    const host::dcl::DialogRecord& runStatePoint() {
        result_ = call(L"c:ci_dt");
        EXPECT_TRUE(result_.defined);
        const host::dcl::DialogRecord* main = lastDialog(L"ci_dt");
        EXPECT_NE(main, nullptr);
        static const host::dcl::DialogRecord none;
        return main ? *main : none;
    }
    std::string fileBytes(const char* name = "wair002.txt") const { return ResultFileSession::fileBytes(name); }
    static int countOf(const std::wstring& text, const std::wstring& part) {
        int n = 0;
        for (size_t at = text.find(part); at != std::wstring::npos; at = text.find(part, at + 1)) ++n;
        return n;
    }

    host::CallResult result_;
};

const char kTitle[] = "\n          空气状态与处理过程计算结果 \n";
const char kSeparator[] = "\n________________________________________________\n";

// ---- States computed from each kind of input ---------------------------------------------
// Values are shown with 3 decimals as the editor converts them in decimal units; its zero
// suppression (DIMZIN 8) drops trailing zeros, so 20.000 reads "20".

TEST_F(StatePoint, TemperatureAndHumidityGiveTheWorkedState) {
    // t = 20 °C, fy = 50 %: pb = 2364.898 Pa, pq = 1182.449 Pa, d = 7.344 g/kg, i = 38.831,
    // wet bulb 13.836 °C, dew point 9.278 °C, v = 0.834 m³/kg.
    queue(L"ci_dt", LR"((set "tfy" "1") (set "temp" "20") (set "fy" "50") (press "result"))");
    runStatePoint();
    const auto* res = lastDialog(L"i_dresdlg");
    ASSERT_NE(res, nullptr);
    EXPECT_EQ(res->value(L"t_value"), L"20");
    EXPECT_EQ(res->value(L"ts_value"), L"13.836");
    EXPECT_EQ(res->value(L"tl_value"), L"9.278");
    EXPECT_EQ(res->value(L"d_value"), L"7.344");
    EXPECT_EQ(res->value(L"fy_value"), L"50");
    EXPECT_EQ(res->value(L"ih_value"), L"38.831");
    EXPECT_EQ(res->value(L"pq_value"), L"1182.449");
    EXPECT_EQ(res->value(L"pb_value"), L"2364.898");
    EXPECT_EQ(res->value(L"v_value"), L"0.834");
    EXPECT_EQ(res->value(L"error"), L"");
    EXPECT_EQ(res->depth, 2) << "the result dialog opens over the input dialog";
    EXPECT_EQ(result_.entryResult, 0);
}

TEST_F(StatePoint, EnthalpyAndMoistureAndTemperatureAndMoisture) {
    // i = 50, d = 10: t = (50 − 25)/(1.01 + 0.0184) = 24.310 °C, pq = 101325·10/632 = 1603.244,
    // fy = 52.129 %, wet bulb 17.710 °C.
    queue(L"ci_dt", LR"((set "ihd" "1") (set "ih" "50") (set "d" "10") (press "result"))");
    runStatePoint();
    const auto* res = lastDialog(L"i_dresdlg");
    ASSERT_NE(res, nullptr);
    EXPECT_EQ(res->value(L"t_value"), L"24.31");
    EXPECT_EQ(res->value(L"pq_value"), L"1603.244");
    EXPECT_EQ(res->value(L"fy_value"), L"52.129");
    EXPECT_EQ(res->value(L"ts_value"), L"17.71");
    EXPECT_EQ(res->value(L"tl_value"), L"13.877");

    // t = 25, d = 10: i = 25.25 + 0.01·(46 + 2500) = 50.710, fy = 50.020 %, wet bulb 17.945 °C.
    host::dcl::clearDialogHistory();
    queue(L"ci_dt", LR"((set "td" "1") (set "temp" "25") (set "d" "10") (press "result"))");
    runStatePoint();
    res = lastDialog(L"i_dresdlg");
    ASSERT_NE(res, nullptr);
    EXPECT_EQ(res->value(L"ih_value"), L"50.71");
    EXPECT_EQ(res->value(L"fy_value"), L"50.02");
    EXPECT_EQ(res->value(L"ts_value"), L"17.945");
}

TEST_F(StatePoint, AnImpossibleStateIsShownWithItsMessage) {
    // t = 20, d = 20 g/kg: pq = 3156.542 Pa exceeds pb = 2364.898 Pa, fy = 133.475 %.
    queue(L"ci_dt", LR"((set "td" "1") (set "temp" "20") (set "d" "20") (press "result"))");
    queue(L"i_dresdlg", LR"((press "saveres"))");
    runStatePoint();
    const auto* res = lastDialog(L"i_dresdlg");
    ASSERT_NE(res, nullptr);
    EXPECT_EQ(res->value(L"error"), L"结果不合理.");
    EXPECT_EQ(res->value(L"fy_value"), L"133.475");
    EXPECT_EQ(res->value(L"t_value"), L"20");
    EXPECT_NE(fileBytes().find("相对湿度FY(%):   133.475\n"), std::string::npos) << "the shown state is saved";
}

TEST_F(StatePoint, EnthalpyAloneGivesOnlyTheWetBulbAndOneRow) {
    // Saturated air of i = 50 kJ/kg: 0.622·ps/(P − ps)·(1.84·t + 2500) + 1.01·t = 50 at 17.580 °C.
    queue(L"ci_dt", LR"((set "ihts" "1") (set "ih" "50") (press "result"))");
    queue(L"i_dresdlg", LR"((press "saveres"))");
    runStatePoint();
    const auto* res = lastDialog(L"i_dresdlg");
    ASSERT_NE(res, nullptr);
    EXPECT_EQ(res->value(L"ts_value"), L"17.58");
    EXPECT_EQ(res->value(L"ih_value"), L"50");
    for (const wchar_t* emptied : {L"t_value", L"pq_value", L"pb_value", L"tl_value", L"d_value", L"fy_value", L"v_value"})
        EXPECT_EQ(res->value(emptied), L"") << emptied;
    EXPECT_EQ(res->value(L"error"), L"");
    EXPECT_EQ(fileBytes(), std::string(kTitle) + kSeparator +
                               "\n                  (大气压B=101.325 kPa )\n"
                               "\n           已知IH=50.00(kJ/kg),求TS :\n"
                               "                  湿球温度TS ℃:   17.580\n");
}

// ---- Input checks -------------------------------------------------------------------------

struct InputCase {
    const wchar_t* radio;
    const wchar_t* first;
    const wchar_t* firstMessage;
    bool firstTakesFocus;
    const wchar_t* second;  // null for the single-input choice
    const wchar_t* secondMessage;
};

// Messages of a first and a second input that is not a number, and where the focus goes.
const InputCase kInputCases[] = {
    {L"ihd", L"ih", L"输入焓值.", false, L"d", L"无效的D值输入."},
    {L"tfy", L"temp", L"输入温度值.", true, L"fy", L"无效的FY值输入."},
    {L"tts", L"temp", L"输入温度值.", true, L"ts", L"无效的ts值输入."},
    {L"td", L"temp", L"输入温度值.", true, L"d", L"无效的D值输入."},
    {L"ihts", L"ih", L"输入焓值.", false, nullptr, nullptr},
    {L"ttl", L"temp", L"输入温度值.", true, L"tl", L"无效的TL值输入."},
    {L"fyd", L"fy", L"输入相对湿度值.", false, L"d", L"无效的D值输入."},
    {L"dbfy", L"fy", L"输入相对湿度值.", false, L"db", L"无效的DB值输入."},
    {L"tldb", L"db", L"输入DB值.", false, L"tl", L"无效的TL值输入."},
};

TEST_F(StatePoint, EachInputMessageComesInOrderWithItsFocus) {
    for (const InputCase& c : kInputCases) {
        SCOPED_TRACE(c.radio);
        host::dcl::clearDialogHistory();
        std::wstring pick = L"(set \"" + std::wstring(c.radio) + L"\" \"1\")";
        // Both inputs missing: the first one's message.
        queue(L"ci_dt", pick + L" (set \"" + c.first + L"\" \"abc\") (press \"result\")");
        const auto& firstRun = runStatePoint();
        EXPECT_EQ(firstRun.value(L"error"), c.firstMessage);
        EXPECT_EQ(firstRun.focus, c.firstTakesFocus ? c.first : L"");
        if (c.second) {
            // The first given, the second not a number: the second one's message, with focus.
            queue(L"ci_dt", pick + L" (set \"" + c.first + L"\" \"5\") (set \"" + c.second +
                                L"\" \"1x\") (press \"result\")");
            const auto& secondRun = runStatePoint();
            EXPECT_EQ(secondRun.value(L"error"), c.secondMessage);
            EXPECT_EQ(secondRun.focus, c.second);
        }
        EXPECT_EQ(lastDialog(L"i_dresdlg"), nullptr) << "no result dialog after an input message";
    }
}

TEST_F(StatePoint, PressureMustBeAPositiveNumber) {
    for (const wchar_t* pressure : {L"0", L"-101.3"}) {
        queue(L"ci_dt", L"(set \"pressure\" \"" + std::wstring(pressure) +
                            LR"(") (set "tfy" "1") (set "temp" "20") (set "fy" "50") (press "result"))");
        EXPECT_EQ(runStatePoint().value(L"error"), L"无效的大气压值.") << pressure;
    }
    // Not a number: nothing is computed and the message line stays empty.
    queue(L"ci_dt", LR"((set "pressure" "atm") (set "tfy" "1") (set "temp" "20") (set "fy" "50") (press "result"))");
    EXPECT_EQ(runStatePoint().value(L"error"), L"");
    EXPECT_EQ(lastDialog(L"i_dresdlg"), nullptr);

    // A later valid calculation clears the message of an earlier one.
    queue(L"ci_dt", LR"((set "pressure" "0") (set "tfy" "1") (set "temp" "20") (set "fy" "50") (press "result")
                        (set "pressure" "90") (press "result"))");
    EXPECT_EQ(runStatePoint().value(L"error"), L"");
    ASSERT_NE(lastDialog(L"i_dresdlg"), nullptr);
    // At 90 kPa the same air holds more moisture: d = 622·1182.449/(90000 − 1182.449) = 8.281.
    EXPECT_EQ(lastDialog(L"i_dresdlg")->value(L"d_value"), L"8.281");
}

TEST_F(StatePoint, AWetBulbAboveTheDryBulbIsRefused) {
    queue(L"ci_dt", LR"((set "tts" "1") (set "temp" "20") (set "ts" "25") (press "result"))");
    const auto& main = runStatePoint();
    EXPECT_EQ(main.value(L"error"), L"TS值不能大于T值.");
    EXPECT_EQ(main.focus, L"ts");
    EXPECT_EQ(lastDialog(L"i_dresdlg"), nullptr);

    // Equal temperatures are saturated air.
    queue(L"ci_dt", LR"((set "tts" "1") (set "temp" "20") (set "ts" "20") (press "result"))");
    runStatePoint();
    ASSERT_NE(lastDialog(L"i_dresdlg"), nullptr);
    EXPECT_EQ(lastDialog(L"i_dresdlg")->value(L"fy_value"), L"100");
}

// ---- The chosen pair ----------------------------------------------------------------------

TEST_F(StatePoint, TheChoiceEnablesItsInputsAndIsRemembered) {
    const wchar_t* inputs[] = {L"temp", L"ih", L"d", L"fy", L"ts", L"tl", L"db"};
    for (const InputCase& c : kInputCases) {
        queue(L"ci_dt", L"(set \"" + std::wstring(c.radio) + L"\" \"1\")");
        const auto& main = runStatePoint();
        for (const wchar_t* tile : inputs) {
            bool reads = std::wstring(tile) == c.first || (c.second && std::wstring(tile) == c.second);
            ASSERT_NE(main.tile(tile), nullptr);
            EXPECT_EQ(main.tile(tile)->enabled, reads) << c.radio << " " << tile;
        }
        // The next run, with nothing done, opens on the same choice.
        const auto& next = runStatePoint();
        EXPECT_EQ(next.value(c.radio), L"1") << c.radio;
        ASSERT_NE(next.tile(c.first), nullptr);
        EXPECT_TRUE(next.tile(c.first)->enabled);
    }
    // A disabled input cannot be typed into: with "ihd" chosen, "temp" is skipped.
    queue(L"ci_dt", LR"((set "ihd" "1") (set "temp" "20"))");
    EXPECT_EQ(runStatePoint().value(L"temp"), L"");
}

// ---- The result file ----------------------------------------------------------------------

TEST_F(StatePoint, SavingTwiceAppendsTwoBlocksUnderOneTitle) {
    queue(L"ci_dt", LR"((set "tfy" "1") (set "temp" "20") (set "fy" "50") (press "result"))");
    queue(L"i_dresdlg", LR"((press "saveres"))");
    runStatePoint();
    EXPECT_EQ(printed(), L"\n结果已存在文件WAIR002.TXT中.");
    queue(L"ci_dt", LR"((set "ihd" "1") (set "ih" "50") (set "d" "10") (press "result"))");
    queue(L"i_dresdlg", LR"((press "saveres"))");
    runStatePoint();
    EXPECT_EQ(countOf(printed(), L"结果已存在文件WAIR002.TXT中."), 2);

    // The second block is the one of a state given by i and d: one blank less on the left.
    EXPECT_EQ(fileBytes(), std::string(kTitle) + kSeparator +
                               "\n                  (大气压B=101.325 kPa )\n"
                               "\n           已知T=20.00℃,FY=50.00(%),求其它参数:\n"
                               "                  湿球温度TS ℃:   13.836\n"
                               "                  含湿量D(g/kg):   7.344\n"
                               "                  焓值IH(kJ/kg):   38.831\n" +
                               kSeparator +
                               "\n                 (大气压B=101.325 kPa )\n"
                               "\n          已知IH=50.00(kJ/kg),D=10.00(g/kg),求其它参数:\n"
                               "                 干球温度T ℃ :   24.310\n"
                               "                 湿球温度TS ℃:   17.710\n"
                               "                 相对湿度FY(%):   52.129\n");
}

TEST_F(StatePoint, DewPointAndSaturatedMoistureBlocks) {
    // t = 20, tl = 9.278 (the dew point of 20 °C / 50 %): four rows, ts d fy i.
    queue(L"ci_dt", LR"((set "ttl" "1") (set "temp" "20") (set "tl" "9.2784142") (press "result"))");
    queue(L"i_dresdlg", LR"((press "saveres"))");
    runStatePoint();
    // db = 15 g/kg, tl = 10: all five rows.
    queue(L"ci_dt", LR"((set "tldb" "1") (set "db" "15") (set "tl" "10") (press "result"))");
    queue(L"i_dresdlg", LR"((press "saveres"))");
    runStatePoint();
    std::string file = fileBytes();
    EXPECT_NE(file.find("\n           已知T=20.00℃,TL=9.28℃,求其它参数:\n"
                        "                  湿球温度TS ℃:   13.836\n"
                        "                  含湿量D(g/kg):   7.344\n"
                        "                  相对湿度FY(%):   50.000\n"
                        "                  焓值IH(kJ/kg):   38.831\n"),
              std::string::npos)
        << file;
    size_t known = file.find("\n           已知DB=15.00(g/kg),TL=10.00℃,求其它参数:\n");
    ASSERT_NE(known, std::string::npos) << file;
    std::string rows = file.substr(known);
    for (const char* label : {"干球温度T ℃ :", "湿球温度TS ℃:", "含湿量D(g/kg):", "相对湿度FY(%):", "焓值IH(kJ/kg):"})
        EXPECT_NE(rows.find(label), std::string::npos) << label;
}

TEST_F(StatePoint, AFileThatCannotBeCreatedIsReportedAndNothingIsWritten) {
    fs::create_directory("wair002.txt");  // a folder where the file should be
    queue(L"ci_dt", LR"((set "tfy" "1") (set "temp" "20") (set "fy" "50") (press "result"))");
    queue(L"i_dresdlg", LR"((press "saveres"))");
    runStatePoint();
    ASSERT_EQ(alerts().size(), 1u);
    EXPECT_EQ(alerts()[0], L"不能创建存放结果的文件.");
    EXPECT_EQ(printed().find(L"结果已存在"), std::wstring::npos);
    EXPECT_TRUE(fs::is_directory("wair002.txt"));
}

TEST_F(StatePoint, WithoutItsDialogFileNeitherCommandRuns) {
    useRoot("empty");  // no dwglib here
    EXPECT_EQ(call(L"c:ci_dt").entryResult, 0);
    EXPECT_EQ(call(L"c:airmix").entryResult, 0);
    ASSERT_EQ(failures().size(), 2u);
    EXPECT_EQ(failures()[0], L"Unable to initialize dialog box.");
    EXPECT_EQ(failures()[1], L"Unable to initialize dialog box.");
    EXPECT_TRUE(host::dcl::dialogHistory().empty());

    doc().symbols().erase(L"_DRV");
    call(L"c:ci_dt");
    call(L"c:airmix");
    EXPECT_EQ(alerts(), (std::vector<std::wstring>{L"找不到暖通软件目录!", L"找不到暖通软件目录!"}));
}

// ---- Points picked on the i-d chart -------------------------------------------------------

TEST_F(StatePoint, WithoutAChartTheUserIsToldAndTheDialogOpensAgain) {
    queue(L"ci_dt", LR"((set "tfy" "1") (set "temp" "33") (press "sel_point"))");
    runStatePoint();
    EXPECT_EQ(printed(), L"先生成焓湿图.");
    int opened = 0;
    for (const auto& record : host::dcl::dialogHistory()) opened += record.name == L"ci_dt";
    EXPECT_EQ(opened, 2);
    const auto* again = lastDialog(L"ci_dt");
    EXPECT_TRUE(again->cancelledByHost);
    EXPECT_EQ(again->value(L"temp"), L"33") << "what was typed is kept";
    EXPECT_EQ(again->value(L"tfy"), L"1");
}

class PickedPoint : public StatePoint {
protected:
    // Runs the command from this test's own copy of the module code, whose chart record the
    // test fills as a chart command would after drawing.
    void runWithChart() {
        vrn2::IdChart& chart = vrn2::idChart();
        chart = vrn2::IdChart{};
        chart.drawn = true;
        chart.B = 101.325;
        chart.originX = 100.0;
        chart.originY = 50.0;
        chart.moistureScale = 10.0;
        chart.enthalpyScale = 2.0;
        chart.enthalpySkew = 2.5;
        chart.markDiameter = 4.0;
        host().runInvocation(18, {}, [] { return vrn2::statePoint(); });
        chart = vrn2::IdChart{};
    }
    void pick(double x, double y) {
        ads_point p = {x, y, 0.0};
        host::queuePointPick(p);
    }
};

TEST_F(PickedPoint, APickedPointIsSolvedMarkedAndSavedUnderItsHeading) {
    // (200, 100) on a chart with origin (100, 50), 10 units per g/kg and 2 per kJ/kg with
    // enthalpy lines falling 2.5 kJ/kg per g/kg: d = 100/10 = 10, i = 50/2 + 2.5·10 = 50.
    queue(L"ci_dt", LR"((set "symbol" "1") (press "sel_point"))");
    queue(L"i_dresdlg", LR"((press "saveres"))");
    pick(200.0, 100.0);
    runWithChart();
    EXPECT_NE(printed().find(L"\n选择点: "), std::wstring::npos);
    const auto* res = lastDialog(L"i_dresdlg");
    ASSERT_NE(res, nullptr);
    EXPECT_EQ(res->depth, 1) << "shown after the input dialog closed for the pick";
    EXPECT_EQ(res->value(L"t_value"), L"24.31");
    EXPECT_EQ(res->value(L"d_value"), L"10");
    EXPECT_EQ(res->value(L"ih_value"), L"50");

    std::string file = fileBytes();
    EXPECT_EQ(file, std::string(kTitle) + kSeparator +
                        "\n                  (大气压B=101.325 kPa )\n"
                        "\n           选取点求状态参数.结果如下:\n"
                        "                  干球温度T ℃ :   24.310\n"
                        "                  湿球温度TS ℃:   17.710\n"
                        "                  含湿量D(g/kg):   10.000\n"
                        "                  相对湿度FY(%):   52.129\n"
                        "                  焓值IH(kJ/kg):   50.000\n");

    // The mark: a red filled donut of diameter 4 centred on the pick (a closed polyline of
    // width 2 through (199, 100) and (201, 100)); the colour of new objects is set back.
    std::wstring mark = eval(L"(entget (entlast))");
    EXPECT_NE(mark.find(L"(0 . \"LWPOLYLINE\")"), std::wstring::npos) << mark;
    EXPECT_NE(mark.find(L"(62 . 1)"), std::wstring::npos) << mark;
    EXPECT_NE(mark.find(L"(10 199.0 100.0 0.0)"), std::wstring::npos) << mark;
    EXPECT_NE(mark.find(L"(10 201.0 100.0 0.0)"), std::wstring::npos) << mark;
    EXPECT_EQ(eval(L"(getvar \"CECOLOR\")"), L"\"BYLAYER\"");
    EXPECT_EQ(eval(L"(getvar \"CMDECHO\")"), L"1");
}

TEST_F(PickedPoint, WithoutTheSymbolNothingIsDrawnAndACancelledPickComputesNothing) {
    queue(L"ci_dt", LR"((set "symbol" "0") (press "sel_point"))");
    pick(200.0, 100.0);
    runWithChart();
    EXPECT_EQ(eval(L"(entlast)"), L"nil");
    ASSERT_NE(lastDialog(L"i_dresdlg"), nullptr);

    host::dcl::clearDialogHistory();
    queue(L"ci_dt", LR"((press "sel_point"))");  // no point queued: the pick is cancelled
    runWithChart();
    EXPECT_EQ(lastDialog(L"i_dresdlg"), nullptr);
    int opened = 0;
    for (const auto& record : host::dcl::dialogHistory()) opened += record.name == L"ci_dt";
    EXPECT_EQ(opened, 2) << "the input dialog opens again after a cancelled pick";
}

}  // namespace
