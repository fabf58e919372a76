// c:airmix run as a user runs it: the fixed initial texts, the remembered pressure, the pressure
// bounds, the input messages with their focus, the mixture in the state-point result dialog,
// and the mixing record kept for the chart. The mixture of the initial streams is worked by
// hand: iM = (18000·91.06 + 42000·62.0)/60000 = 70.718, dM = (18000·21.4 + 42000·13.0)/60000
// = 15.52, t = (70.718 − 0.001·15.52·2500)/(0.001·15.52·1.84 + 1.01) = 30.733 °C.
#include <string>

#include "psychro/psychro_handlers.h"
#include "host/dcl/dcl.h"
#include "psychro/air_mix.h"
#include "psychro/id_chart.h"
#include "tests/psychro/result_file_session.h"

namespace {

using host::dcl::lastDialog;

class AirMix : public result_file_test::ResultFileSession {
protected:
    const host::dcl::DialogRecord& runMix() {
        EXPECT_TRUE(call(L"c:airmix").defined);
        const host::dcl::DialogRecord* mix = lastDialog(L"airmixdlg");
        EXPECT_NE(mix, nullptr);
        static const host::dcl::DialogRecord none;
        return mix ? *mix : none;
    }
};

TEST_F(AirMix, TheDialogOpensWithTheFixedTextsAndNoChartButton) {
    const auto& mix = runMix();
    EXPECT_EQ(mix.value(L"press"), L"101.325");
    EXPECT_EQ(mix.value(L"i_value1"), L"91.06");
    EXPECT_EQ(mix.value(L"d_value1"), L"21.4");
    EXPECT_EQ(mix.value(L"g_value1"), L"18000");
    EXPECT_EQ(mix.value(L"i_value2"), L"62.0");
    EXPECT_EQ(mix.value(L"d_value2"), L"13.0");
    EXPECT_EQ(mix.value(L"g_value2"), L"42000");
    ASSERT_NE(mix.tile(L"i_d"), nullptr);
    EXPECT_FALSE(mix.tile(L"i_d")->enabled) << "no mix computed yet";
    EXPECT_EQ(lastDialog(L"i_dresdlg"), nullptr);
}

TEST_F(AirMix, TheInitialStreamsMixToTheWorkedState) {
    queue(L"airmixdlg", LR"((press "procres"))");
    const auto& mix = runMix();
    EXPECT_EQ(mix.value(L"error"), L"");
    EXPECT_TRUE(mix.tile(L"i_d")->enabled) << "enabled once a mix exists";
    const auto* res = lastDialog(L"i_dresdlg");
    ASSERT_NE(res, nullptr);
    EXPECT_EQ(res->depth, 2);
    // Shown with 3 decimals and the editor's trailing-zero suppression.
    EXPECT_EQ(res->value(L"ih_value"), L"70.718");
    EXPECT_EQ(res->value(L"d_value"), L"15.52");
    EXPECT_EQ(res->value(L"t_value"), L"30.733");
    // pq = 101325·15.52/637.52 = 2466.690 Pa; pb(30.733 °C) = 4479.227 Pa; fy = 55.070 %.
    EXPECT_EQ(res->value(L"pq_value"), L"2466.69");
    EXPECT_EQ(res->value(L"pb_value"), L"4479.227");
    EXPECT_EQ(res->value(L"fy_value"), L"55.07");
    EXPECT_EQ(res->value(L"ts_value"), L"23.607");
    EXPECT_EQ(res->value(L"tl_value"), L"20.682");
    EXPECT_EQ(res->value(L"v_value"), L"0.869");
    EXPECT_EQ(res->value(L"error"), L"");

    // The next run opens with the chart button enabled: the record outlives the command.
    const auto& again = runMix();
    EXPECT_TRUE(again.tile(L"i_d")->enabled);
    EXPECT_EQ(again.value(L"i_value1"), L"91.06") << "streams always start from the fixed texts";
}

TEST_F(AirMix, PressureBoundsAreInclusive) {
    struct Case {
        const wchar_t* press;
        const wchar_t* message;
    } cases[] = {
        {L"70", L""},
        {L"180", L""},
        {L"69.9", L"大气压值在70-180kPa之间"},
        {L"180.1", L"大气压值在70-180kPa之间"},
        {L"kPa", L"无效的大气压值."},
    };
    for (const Case& c : cases) {
        host::dcl::clearDialogHistory();
        queue(L"airmixdlg", L"(set \"press\" \"" + std::wstring(c.press) + L"\") (press \"procres\")");
        EXPECT_EQ(runMix().value(L"error"), c.message) << c.press;
        EXPECT_EQ(lastDialog(L"i_dresdlg") != nullptr, *c.message == 0) << c.press;
    }
    // At 70 kPa the mixture's moisture content stays 15.52 but its vapour pressure is
    // 70000·15.52/637.52 = 1704.103 Pa.
    host::dcl::clearDialogHistory();
    queue(L"airmixdlg", LR"((set "press" "70") (press "procres"))");
    runMix();
    ASSERT_NE(lastDialog(L"i_dresdlg"), nullptr);
    EXPECT_EQ(lastDialog(L"i_dresdlg")->value(L"pq_value"), L"1704.103");
}

TEST_F(AirMix, EachStreamInputHasItsMessageAndFocusInReadingOrder) {
    const struct {
        const wchar_t* tile;
        const wchar_t* message;
    } inputs[] = {
        {L"i_value1", L"输入A点焓值."},   {L"d_value1", L"输入A点含湿量."}, {L"g_value1", L"输入A点风量."},
        {L"i_value2", L"输入B点焓值."},   {L"d_value2", L"输入B点含湿量."}, {L"g_value2", L"输入B点风量."},
    };
    for (const auto& bad : inputs) {
        // This input and every later one are not numbers: this one is reported.
        std::wstring actions;
        bool reached = false;
        for (const auto& in : inputs) {
            reached = reached || in.tile == bad.tile;
            if (reached) actions += L"(set \"" + std::wstring(in.tile) + L"\" \"?\") ";
        }
        queue(L"airmixdlg", actions + L"(press \"procres\")");
        const auto& mix = runMix();
        EXPECT_EQ(mix.value(L"error"), bad.message) << bad.tile;
        EXPECT_EQ(mix.focus, bad.tile);
    }
    EXPECT_EQ(lastDialog(L"i_dresdlg"), nullptr);
    // A bad pressure is reported before any stream input.
    queue(L"airmixdlg", LR"((set "press" "200") (set "i_value1" "?") (press "procres"))");
    EXPECT_EQ(runMix().value(L"error"), L"大气压值在70-180kPa之间");
}

TEST_F(AirMix, ThePressureOfTheStatePointDialogBecomesTheDefault) {
    queue(L"ci_dt", LR"((set "pressure" "95.5") (set "tfy" "1") (set "temp" "20") (set "fy" "50") (press "result"))");
    call(L"c:ci_dt");
    // Remembered with 4 decimals, shown without the trailing zeros.
    EXPECT_EQ(runMix().value(L"press"), L"95.5");
    // The state-point dialog opens with it too.
    call(L"c:ci_dt");
    EXPECT_EQ(lastDialog(L"ci_dt")->value(L"pressure"), L"95.5");
    // A pressure refused by the state-point dialog is not remembered.
    queue(L"ci_dt", LR"((set "pressure" "-3") (press "result"))");
    call(L"c:ci_dt");
    EXPECT_EQ(runMix().value(L"press"), L"95.5");
}

TEST_F(AirMix, TheMixIsSavedAsAStateOfKnownEnthalpyAndMoisture) {
    queue(L"airmixdlg", LR"((press "procres"))");
    queue(L"i_dresdlg", LR"((press "saveres"))");
    runMix();
    EXPECT_EQ(fileBytes("wair002.txt"),
              "\n          空气状态与处理过程计算结果 \n"
              "\n________________________________________________\n"
              "\n                 (大气压B=101.325 kPa )\n"
              "\n          已知IH=70.72(kJ/kg),D=15.52(g/kg),求其它参数:\n"
              "                 干球温度T ℃ :   30.733\n"
              "                 湿球温度TS ℃:   23.607\n"
              "                 相对湿度FY(%):   55.070\n");
}

TEST_F(AirMix, WithoutAChartTheDialogOpensAgainWithWhatWasTyped) {
    queue(L"airmixdlg", LR"((set "g_value2" "30000") (press "procres") (press "i_d"))");
    runMix();
    EXPECT_EQ(printed(), L"先生成焓湿图.");
    EXPECT_EQ(runs(L"airmixdlg"), 2);
    EXPECT_EQ(lastDialog(L"airmixdlg")->value(L"g_value2"), L"30000");
    EXPECT_TRUE(lastDialog(L"airmixdlg")->tile(L"i_d")->enabled);
}

// The chart and the mixing record of this test's own copy of the module code.
class AirMixOnChart : public AirMix {
protected:
    void TearDown() override {
        vrn2::idChart() = vrn2::IdChart{};
        vrn2::mixingRecord() = vrn2::MixingRecord{};
        AirMix::TearDown();
    }
    void runOwnCopy() {
        host().runInvocation(25, {}, [] { return vrn2::airMix(); });
    }
};

TEST_F(AirMixOnChart, TheRecordHoldsBothStreamsAndTheMixture) {
    vrn2::MixingRecord& record = vrn2::mixingRecord();
    record.values[2] = record.values[5] = record.values[8] = -7.0;  // not the record's to write
    queue(L"airmixdlg", LR"((press "procres"))");
    runOwnCopy();
    ASSERT_TRUE(record.exists);
    const double expected[9] = {21.4, 91.06, -7.0, 13.0, 62.0, -7.0, 15.52, 70.718, -7.0};
    for (int k = 0; k < 9; ++k) EXPECT_NEAR(record.values[k], expected[k], 1e-12) << k;

    // A refused calculation leaves the last mix in place.
    queue(L"airmixdlg", LR"((set "d_value1" "30") (set "press" "60") (press "procres"))");
    runOwnCopy();
    EXPECT_NEAR(record.values[0], 21.4, 1e-12);
}

TEST_F(AirMixOnChart, TheMixingLineAndItsPointsAreDrawnOnTheChart) {
    vrn2::IdChart& chart = vrn2::idChart();
    chart.drawn = true;
    chart.originX = 0.0;
    chart.originY = 0.0;
    chart.moistureScale = 10.0;
    chart.enthalpyScale = 1.0;
    chart.enthalpySkew = 2.5;
    chart.markDiameter = 2.0;
    queue(L"airmixdlg", LR"((press "procres") (press "i_d"))");
    runOwnCopy();
    EXPECT_EQ(runs(L"airmixdlg"), 1) << "the command ends once the mix is drawn";
    // A (21.4, 91.06) lies at x = 214, y = 91.06 − 53.5 = 37.56; B (13, 62) at (130, 29.5);
    // M (15.52, 70.718) at (155.2, 31.918). The line A-B comes first, then the three marks.
    std::wstring all = eval(LR"((progn (setq e (entnext) out "") (while e (setq out (strcat out (cdr (assoc 0 (entget e))) " ")) (setq e (entnext e))) out))");
    EXPECT_EQ(all, L"\"LINE LWPOLYLINE LWPOLYLINE LWPOLYLINE \"");
    std::wstring line = eval(L"(entget (entnext))");
    EXPECT_NE(line.find(L"(10 214.0 37.56 0.0)"), std::wstring::npos) << line;
    EXPECT_NE(line.find(L"(11 130.0 29.5 0.0)"), std::wstring::npos) << line;
    std::wstring mixture = eval(L"(entget (entlast))");
    // Donut of diameter 2 around (155.2, 31.918): vertices half a unit left and right.
    EXPECT_NE(mixture.find(L"(10 154.7 31.918 0.0)"), std::wstring::npos) << mixture;
    EXPECT_NE(mixture.find(L"(62 . 1)"), std::wstring::npos) << mixture;
}

}  // namespace
