// What the return-air dialog refuses, in order, and how a computed system is written to the
// process results file, recorded in the journal and drawn on the chart.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "psychro/return_air_checks.h"
#include "psychro/return_air_report.h"
#include "tests/psychro/return_air_cases.h"

namespace vrn2 {
namespace {

ReturnAirReadings completeReadings() {
    ReturnAirReadings r;
    r.B = 101.325;
    r.tN = 22.0;
    r.fyN = 55.0;
    r.tW = 33.2;
    r.outdoorSecond = 26.4;
    r.Q = 3.314;
    r.loadSecond = 0.9504;
    r.fresh = 15.0;
    r.supplyValue = 8.0;
    r.preheatLimit = 5.0;
    r.secondaryFlow = 0.0;
    return r;
}

void expectFault(const ReturnAirReadings& r, const wchar_t* key, const wchar_t* message, const char* what) {
    auto fault = firstReturnAirFault(r);
    ASSERT_TRUE(fault.has_value()) << what;
    EXPECT_STREQ(fault->key, key) << what;
    EXPECT_STREQ(fault->message, message) << what;
}

TEST(ReturnAirChecks, TheFirstFaultNamesItsTile) {
    EXPECT_FALSE(firstReturnAirFault(completeReadings()).has_value());

    ReturnAirReadings r = completeReadings();
    r.B.reset();
    r.tN.reset();  // the pressure comes first
    expectFault(r, L"B", L"请输入大气压值.", "no pressure");
    r = completeReadings();
    r.B = 40.0;
    expectFault(r, L"B", L"大气压要求在50-200kPa之间.", "low pressure");
    r = completeReadings();
    r.fyN = 101.0;
    expectFault(r, L"rhn_value", L"室内相对湿度要求在0-100%之间.", "room humidity");
    r = completeReadings();
    r.outdoorSecond = 34.0;
    expectFault(r, L"ow_value", L"室外湿球温度不能高于干球温度.", "wet bulb");
    r = completeReadings();
    r.choices.ratioGiven = true;
    r.loadSecond.reset();
    expectFault(r, L"w_value", L"请输入热湿比.", "no ratio");
    r.loadSecond = 0.0;
    expectFault(r, L"w_value", L"热湿比不能为0.", "zero ratio");
    r = completeReadings();
    r.fresh = 0.0;
    expectFault(r, L"m_value", L"新风比要求在0-100%之间.", "no fresh air");
    r = completeReadings();
    r.choices.supply = SupplyRule::airFlow;
    r.supplyValue = -5.0;
    expectFault(r, L"sup_value", L"送风量应大于0.", "negative flow");
}

TEST(ReturnAirChecks, ValuesAChoiceDoesNotUseAreNotAskedFor) {
    ReturnAirReadings r = completeReadings();
    r.choices.supply = SupplyRule::dewPoint;
    r.supplyValue.reset();
    r.preheatLimit.reset();    // winter only
    r.secondaryFlow.reset();   // winter secondary only
    EXPECT_FALSE(firstReturnAirFault(r).has_value());

    r.choices.kind = ReturnAirKind::secondary;
    expectFault(r, L"sup_dew", L"二次回风系统不能机器露点送风,请给出送风温差或送风量.", "secondary at dew point");
    r.choices.supply = SupplyRule::temperatureDifference;
    r.supplyValue = 8.0;
    r.choices.season = Season::winter;
    expectFault(r, L"tp_value", L"请输入新风预热温度.", "winter preheat");
    r.preheatLimit = 5.0;
    expectFault(r, L"g2_value", L"请输入二次回风量.", "winter secondary flow");
}

TEST(ReturnAirReport, TheBlockListsInputsStatesAndLoads) {
    ReturnAirInput in = summerRoom();
    ReturnAirResult r;
    ASSERT_TRUE(computeReturnAir(in, r).empty());
    std::wstring block = returnAirBlock(in, r);
    EXPECT_EQ(block.rfind(L"\n__________________________________________\n\n一次回风系统(夏季)\n(B=101.325kPa)", 0), 0u);
    EXPECT_NE(block.find(L"\n 输入参数:\n         室内干球温度(℃): 22.000"), std::wstring::npos);
    EXPECT_NE(block.find(L"         室外湿球温度(℃): 26.400"), std::wstring::npos);
    EXPECT_NE(block.find(L"         室内余湿量(kg/h): 0.9504"), std::wstring::npos);
    EXPECT_NE(block.find(L"         送风温差(℃): 8.000"), std::wstring::npos);
    EXPECT_NE(block.find(L"         机器露点相对湿度(%): 95"), std::wstring::npos);
    // The worked figures (return_air_worked.py) rounded to 3 decimals.
    EXPECT_NE(block.find(L"\n 计算结果:\n         N  室内状态点: t=22.000℃ d=9.163g/kg φ=55.000% i=45.498kJ/kg"),
              std::wstring::npos);
    EXPECT_NE(block.find(L"         L  机器露点: t=11.935℃ d=8.343g/kg φ=95.000% i=33.096kJ/kg"), std::wstring::npos);
    EXPECT_NE(block.find(L"         送风量(kg/h): 1160.081"), std::wstring::npos);
    EXPECT_NE(block.find(L"         表冷器冷量(kW): 5.786"), std::wstring::npos);
    EXPECT_NE(block.find(L"         再热量(kW): 0.682"), std::wstring::npos);
    EXPECT_EQ(block.find(L"二次回风量"), std::wstring::npos);
}

TEST(ReturnAirReport, WinterAndSecondaryRowsAndAnInfiniteRatio) {
    ReturnAirInput in = summerRoom();
    in.kind = ReturnAirKind::secondary;
    in.loadSecond = 0.0;  // no moisture: ε is infinite
    ReturnAirResult r;
    ASSERT_TRUE(computeReturnAir(in, r).empty());
    std::wstring block = returnAirBlock(in, r);
    EXPECT_NE(block.find(L"二次回风系统(夏季)"), std::wstring::npos);
    EXPECT_NE(block.find(L"热湿比 ε(kJ/kg): ∞"), std::wstring::npos);
    EXPECT_NE(block.find(L"二次回风量(kg/h): "), std::wstring::npos);
    EXPECT_NE(block.find(L"一次回风系统冷量(kW): "), std::wstring::npos);

    JournalEntry e = returnAirJournalEntry(in, r);
    EXPECT_EQ(e.kind, JournalKind::returnAirSystem);
    EXPECT_EQ(e.title, L"二次回风系统(夏季)");
    EXPECT_DOUBLE_EQ(e.B, 101.325);
    ASSERT_EQ(e.states.size(), r.states.size());
    EXPECT_EQ(e.states.front().label, L"N");
    EXPECT_DOUBLE_EQ(e.states.front().state.t, 22.0);
}

std::wstring legText(const std::vector<ProcessChartState>& s, const ProcessChartLeg& leg) {
    return s[leg.from].label + (leg.dashed ? L"--" : L"->") + s[leg.to].label;
}

std::vector<std::wstring> figure(const ReturnAirInput& in) {
    ReturnAirResult r;
    EXPECT_TRUE(computeReturnAir(in, r).empty());
    std::vector<ProcessChartState> states;
    std::vector<ProcessChartLeg> legs;
    returnAirChart(r, states, legs);
    EXPECT_EQ(states.size(), r.states.size());
    for (std::size_t k = 0; k < states.size(); ++k) {
        EXPECT_EQ(states[k].label, r.states[k].label);
        EXPECT_DOUBLE_EQ(states[k].i, r.states[k].state.i);
        EXPECT_DOUBLE_EQ(states[k].d, r.states[k].state.d);
    }
    std::vector<std::wstring> texts;
    for (const ProcessChartLeg& leg : legs) texts.push_back(legText(states, leg));
    return texts;
}

TEST(ReturnAirChart, TheFiguresOfTheTextbook) {
    using V = std::vector<std::wstring>;
    ReturnAirInput in = summerRoom();
    EXPECT_EQ(figure(in), (V{L"W--N", L"C->L", L"L->O", L"O->N"}));
    in.supply = SupplyRule::dewPoint;
    EXPECT_EQ(figure(in), (V{L"W--N", L"C->L", L"L->N"}));
    in = summerRoom();
    in.kind = ReturnAirKind::secondary;
    EXPECT_EQ(figure(in), (V{L"W--N", L"C1->L", L"L--N", L"O->N"}));

    ReturnAirInput winter = winterRoom();
    EXPECT_EQ(figure(winter), (V{L"W->W'", L"W'--N", L"C->D", L"D->L", L"L->O", L"O->N"}));
    winter.kind = ReturnAirKind::secondary;
    winter.secondaryFlow = 500.0;
    EXPECT_EQ(figure(winter), (V{L"W->W'", L"W'--N", L"C1->D", L"D->L", L"L--N", L"C2->O", L"O->N"}));
}

}  // namespace
}  // namespace vrn2
