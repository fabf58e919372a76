// Return-air systems against figures worked independently (tests/psychro/return_air_worked.py:
// the relations written out again, every curve point by bisection in plain doubles), against
// the textbook's supply-air example at the precision of its chart readings, and against the
// balances every result must close: mixtures on the line of their streams at the flow ratio,
// the supply removing the room's heat and moisture, flows adding up, loads equal to G·Δi.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "psychro/return_air.h"
#include "tests/psychro/return_air_cases.h"

namespace vrn2 {
namespace {

// The worked figures are printed with 6 decimals; the module's dew points stop their secant
// steps at 1e-5 K and its line search bisects to below 1e-9, so 2e-3 in t, d, i covers both.
constexpr double kWorked = 2e-3;

const AirState& state(const ReturnAirResult& r, const wchar_t* label) {
    const NamedAirState* s = r.find(label);
    static const AirState none{};
    EXPECT_NE(s, nullptr) << "no state " << std::string(label, label + std::wcslen(label));
    return s ? s->state : none;
}

void expectState(const ReturnAirResult& r, const wchar_t* label, double t, double d, double i) {
    const AirState& s = state(r, label);
    EXPECT_NEAR(s.t, t, kWorked) << "t";
    EXPECT_NEAR(s.d, d, kWorked) << "d";
    EXPECT_NEAR(s.i, i, kWorked) << "i";
}

ReturnAirResult computed(const ReturnAirInput& in) {
    ReturnAirResult r;
    EXPECT_EQ(computeReturnAir(in, r), std::wstring());
    return r;
}

// M mixes GA of A with GB of B: on the straight line A–B, dividing it in the ratio GB : GA.
void expectMixture(const AirState& m, const AirState& a, double GA, const AirState& b, double GB) {
    EXPECT_NEAR(m.i * (GA + GB), a.i * GA + b.i * GB, 1e-6 * (GA + GB));
    EXPECT_NEAR(m.d * (GA + GB), a.d * GA + b.d * GB, 1e-6 * (GA + GB));
}

// The supply carries off the room's heat and moisture.
void expectRoomLoadsRemoved(const ReturnAirInput& in, const ReturnAirResult& r) {
    const AirState& N = state(r, L"N");
    const AirState& O = r.find(L"O") ? state(r, L"O") : state(r, L"L");
    EXPECT_NEAR(r.G * (N.i - O.i) / 3600.0, in.Q, 1e-6);
    EXPECT_NEAR(r.G * (N.d - O.d) / 1000.0, in.loadSecond, 1e-6);
}

TEST(ReturnAirSummer, PrimaryReturnMatchesTheWorkedSystem) {
    ReturnAirResult r = computed(summerRoom());
    EXPECT_NEAR(r.epsilon, 12553.030303, 1e-3);
    EXPECT_NEAR(r.G, 1160.080649, 0.01);
    expectState(r, L"N", 22.0, 9.162714, 45.497691);
    expectState(r, L"W", 33.2, 19.129428, 82.524149);
    expectState(r, L"C", 23.705435, 10.657721, 51.051660);
    expectState(r, L"L", 11.935235, 8.343460, 33.096468);
    expectState(r, L"O", 14.0, 8.343460, 35.213579);
    EXPECT_NEAR(state(r, L"L").fy, 95.0, 1e-3);
    EXPECT_NEAR(r.coolingLoad, 5.785964, 1e-3);
    EXPECT_NEAR(r.reheat, 0.682227, 1e-3);
    EXPECT_NEAR(r.condensate, 2.684729, 1e-3);

    expectRoomLoadsRemoved(summerRoom(), r);
    expectMixture(state(r, L"C"), state(r, L"N"), r.G - r.freshFlow, state(r, L"W"), r.freshFlow);
    EXPECT_NEAR(r.freshFlow, 0.15 * r.G, 1e-9);
    EXPECT_NEAR(r.coolingLoad, r.G * (state(r, L"C").i - state(r, L"L").i) / 3600.0, 1e-9);
    EXPECT_NEAR(r.reheat, r.G * (state(r, L"O").i - state(r, L"L").i) / 3600.0, 1e-9);
}

// 赵荣义 等,《空气调节》第4版(中国建筑工业出版社),送风状态与送风量一节的例题 (its number
// and page were not at hand to check; the figures are the book's as recalled): ΣQ = 3314 W,
// ΣW = 0.264 g/s, tN = 22 °C, φN = 55 %, Δt0 = 8 K: ε ≈ 12550 kJ/kg, t0 = 14 °C,
// G ≈ 0.33 kg/s. The book reads the enthalpies off the chart to 1 kJ/kg on a difference of
// 10 kJ/kg, so G is good to the two figures it gives (and the library's saturation pressure,
// about 1 % high, moves G by far less): 0.32 … 0.34 kg/s.
TEST(ReturnAirSummer, SupplyOfTheTextbookRoom) {
    ReturnAirResult r = computed(summerRoom());
    EXPECT_NEAR(r.epsilon, 12550.0, 50.0);
    EXPECT_DOUBLE_EQ(state(r, L"O").t, 14.0);
    EXPECT_NEAR(r.G / 3600.0, 0.33, 0.01);
}

TEST(ReturnAirSummer, SecondaryReturnMatchesTheWorkedSystemAndNeedsNoReheat) {
    ReturnAirInput in = summerRoom();
    in.kind = ReturnAirKind::secondary;
    ReturnAirResult r = computed(in);
    expectState(r, L"C1", 24.243043, 11.130657, 52.808624);
    expectState(r, L"L", 11.464349, 8.084295, 31.960263);
    expectState(r, L"O", 14.0, 8.343460, 35.213579);
    EXPECT_NEAR(r.coilFlow, 881.289963, 0.01);
    EXPECT_NEAR(r.secondaryReturn, 278.790686, 0.01);
    EXPECT_NEAR(r.primaryReturn, 707.277866, 0.01);
    EXPECT_NEAR(r.coolingLoad, 5.103737, 1e-3);
    EXPECT_NEAR(r.condensate, 2.684729, 1e-3);
    EXPECT_EQ(r.reheat, 0.0);

    // The flows add up; both mixtures lie on their lines; the coil load is over its own flow.
    EXPECT_NEAR(r.primaryReturn + r.freshFlow + r.secondaryReturn, r.G, 1e-9);
    expectMixture(state(r, L"C1"), state(r, L"N"), r.primaryReturn, state(r, L"W"), r.freshFlow);
    expectMixture(state(r, L"O"), state(r, L"L"), r.coilFlow, state(r, L"N"), r.secondaryReturn);
    EXPECT_NEAR(r.coolingLoad, r.coilFlow * (state(r, L"C1").i - state(r, L"L").i) / 3600.0, 1e-9);
    expectRoomLoadsRemoved(in, r);
    // The same room with primary return needs the coil load and the reheat of the worked system.
    EXPECT_NEAR(r.primaryCoolingLoad, 5.785964, 1e-3);
    EXPECT_NEAR(r.primaryReheat, 0.682227, 1e-3);
    EXPECT_LT(r.coolingLoad, r.primaryCoolingLoad);
}

TEST(ReturnAirSummer, SupplyAtTheDewPointIsWhereTheRoomLineMeetsTheCurve) {
    ReturnAirInput in = summerRoom();
    in.supply = SupplyRule::dewPoint;
    in.fyL = 90.0;
    ReturnAirResult r = computed(in);
    expectState(r, L"L", 12.473058, 8.187365, 33.254103);
    EXPECT_NEAR(r.G, 974.420238, 0.02);
    EXPECT_EQ(r.find(L"O"), nullptr);
    EXPECT_NEAR(r.reheat, 0.0, 1e-12);
    expectRoomLoadsRemoved(in, r);
    // L is on the room's process line: its slope from N is ε.
    const AirState& N = state(r, L"N");
    const AirState& L = state(r, L"L");
    EXPECT_NEAR((N.i - L.i) / (N.d - L.d) * 1000.0, r.epsilon, 1e-3);
}

TEST(ReturnAirSummer, FreshAirAsAFlowIsTheSameSystem) {
    ReturnAirInput byRatio = summerRoom();
    ReturnAirResult a = computed(byRatio);
    ReturnAirInput byFlow = byRatio;
    byFlow.freshFlowGiven = true;
    byFlow.fresh = 0.15 * a.G;
    ReturnAirResult b = computed(byFlow);
    EXPECT_NEAR(b.freshRatio, 15.0, 1e-9);
    EXPECT_NEAR(b.coolingLoad, a.coolingLoad, 1e-9);
}

TEST(ReturnAirWinter, PrimaryWithAdiabaticSprayMatchesTheWorkedSystem) {
    ReturnAirInput in = winterRoom();
    ReturnAirResult r = computed(in);
    expectState(r, L"W", -12.0, 0.600911, -10.630990);
    expectState(r, L"W'", 2.0, 0.600911, 3.524490);
    expectState(r, L"C", 14.074095, 5.737993, 28.708411);
    expectState(r, L"L", 11.983990, 8.370714, 33.215193);
    expectState(r, L"O", 28.350738, 8.370714, 49.997691);
    EXPECT_NEAR(r.freshPreheat, 1.887397, 1e-3);
    EXPECT_NEAR(r.mixHeating, 1.502261, 1e-3);
    EXPECT_NEAR(r.humidification, 3.159265, 1e-3);
    EXPECT_NEAR(r.reheat, 5.594166, 1e-3);
    // D is the mix heated to the enthalpy of L.
    EXPECT_NEAR(state(r, L"D").i, state(r, L"L").i, 1e-9);
    EXPECT_NEAR(state(r, L"D").d, state(r, L"C").d, 1e-9);

    expectRoomLoadsRemoved(in, r);
    expectMixture(state(r, L"C"), state(r, L"N"), r.G - r.freshFlow, state(r, L"W'"), r.freshFlow);
    // The heat put in (the spray water's own enthalpy neglected, as on the chart) takes the
    // air entering the system to the supply state.
    const double in_ = (r.G - r.freshFlow) * state(r, L"N").i + r.freshFlow * state(r, L"W").i;
    EXPECT_NEAR(r.G * state(r, L"O").i - in_, 3600.0 * (r.freshPreheat + r.mixHeating + r.reheat), 1e-6);
}

TEST(ReturnAirWinter, MixAboveTheEnthalpyOfTheDewPointIsSprayedWithoutHeating) {
    ReturnAirInput in = winterRoom();
    in.fresh = 15.0;
    in.tW = -10.0;
    in.preheatLimit = 5.0;
    ReturnAirResult r = computed(in);
    expectState(r, L"C", 19.482870, 7.896124, 39.701074);
    expectState(r, L"L", 18.309197, 8.370714, 39.701074);
    EXPECT_EQ(r.find(L"D"), nullptr);
    EXPECT_NEAR(r.freshPreheat, 0.758492, 1e-3);
    EXPECT_EQ(r.mixHeating, 0.0);
    EXPECT_NEAR(r.reheat, 3.432206, 1e-3);
}

TEST(ReturnAirWinter, SteamHumidifiesAtTheSupplyTemperature) {
    ReturnAirInput in = winterRoom();
    in.humidifier = Humidifier::steam;
    ReturnAirResult r = computed(in);
    EXPECT_NEAR(r.mixHeating, 4.856714, 1e-3);
    EXPECT_NEAR(r.humidification, 3.159265, 1e-3);
    EXPECT_NEAR(r.reheat, 0.0, 1e-6);
    EXPECT_NEAR(state(r, L"D").t, state(r, L"O").t, 1e-9);
}

TEST(ReturnAirWinter, SecondaryReturnMatchesTheWorkedSystem) {
    ReturnAirInput in = winterRoom();
    in.kind = ReturnAirKind::secondary;
    in.secondaryFlow = 500.0;
    ReturnAirResult r = computed(in);
    expectState(r, L"C1", 8.352543, 3.291763, 16.716067);
    expectState(r, L"L", 10.941520, 7.805000, 30.720568);
    expectState(r, L"C2", 15.555769, 8.370714, 36.877702);
    EXPECT_NEAR(r.mixHeating, 2.723097, 1e-3);
    EXPECT_NEAR(r.humidification, 3.159265, 1e-3);
    EXPECT_NEAR(r.reheat, 4.373330, 1e-3);

    EXPECT_NEAR(r.primaryReturn + r.freshFlow + r.secondaryReturn, r.G, 1e-9);
    expectMixture(state(r, L"C2"), state(r, L"L"), r.coilFlow, state(r, L"N"), r.secondaryReturn);
    expectMixture(state(r, L"C1"), state(r, L"N"), r.primaryReturn, state(r, L"W'"), r.freshFlow);
    EXPECT_NEAR(state(r, L"C2").d, state(r, L"O").d, 1e-9);
    expectRoomLoadsRemoved(in, r);
}

struct Impossible {
    const char* what;
    ReturnAirInput in;
    const wchar_t* message;
};

ReturnAirInput with(ReturnAirInput in, void (*change)(ReturnAirInput&)) {
    change(in);
    return in;
}

TEST(ReturnAirFaults, ImpossibleSystemsAreToldWhy) {
    const Impossible cases[] = {
        {"wet bulb above dry bulb", with(summerRoom(), [](ReturnAirInput& in) { in.outdoorSecond = 34.0; }),
         L"室外湿球温度不能高于干球温度."},
        {"outdoor air beyond saturation",
         with(summerRoom(), [](ReturnAirInput& in) { in.outdoorWetBulb = false; in.outdoorSecond = 120.0; }),
         L"室外状态超出饱和线或不合理,请检查室外参数."},
        {"room line never saturates",
         with(summerRoom(), [](ReturnAirInput& in) { in.supply = SupplyRule::dewPoint; in.ratioGiven = true; in.loadSecond = 1000.0; }),
         L"室内热湿比线与机器露点线无交点,不能机器露点送风."},
        {"supply colder than the dew point", with(summerRoom(), [](ReturnAirInput& in) { in.supplyValue = 10.8; }),
         L"送风温度低于机器露点温度(再热量为负),请减小送风温差或增大送风量."},
        {"supply beyond saturation", with(summerRoom(), [](ReturnAirInput& in) { in.supplyValue = 14.0; }),
         L"送风状态超出饱和线或不合理,请检查负荷、送风温差或送风量."},
        {"dry outdoor air below the dew point",
         with(summerRoom(), [](ReturnAirInput& in) { in.outdoorWetBulb = false; in.outdoorSecond = 20.0; in.fresh = 100.0; }),
         L"混合状态含湿量低于机器露点含湿量,表冷器不能把空气处理到机器露点."},
        {"more fresh air than the coil takes",
         with(summerRoom(), [](ReturnAirInput& in) { in.kind = ReturnAirKind::secondary; in.fresh = 80.0; }),
         L"新风量大于经过表冷器的风量,二次回风系统不成立,请减小新风比."},
        {"fresh flow above the supply", with(summerRoom(), [](ReturnAirInput& in) { in.freshFlowGiven = true; in.fresh = 2000.0; }),
         L"新风量不能大于送风量."},
        {"winter heat gain with a warm supply",
         with(winterRoom(), [](ReturnAirInput& in) { in.Q = 1.5; in.supply = SupplyRule::temperatureDifference; in.supplyValue = 6.0; }),
         L"求得的送风量不为正,室内负荷与季节不符(冬季房间失热时余热量为负值)."},
        {"winter mix already moist",
         with(winterRoom(), [](ReturnAirInput& in) { in.tW = 10.0; in.outdoorSecond = 95.0; in.fresh = 10.0; }),
         L"冬季混合状态含湿量已不低于加湿后要求的含湿量,不需加湿,请调整新风比."},
        {"winter secondary flow as large as the supply",
         with(winterRoom(), [](ReturnAirInput& in) { in.kind = ReturnAirKind::secondary; in.secondaryFlow = 1200.0; }),
         L"二次回风量应大于0且小于送风量."},
        {"winter dew-point supply", with(winterRoom(), [](ReturnAirInput& in) { in.supply = SupplyRule::dewPoint; }),
         L"冬季不能机器露点送风,请给出送风温差或送风量."},
    };
    for (const Impossible& c : cases) {
        ReturnAirResult r;
        EXPECT_EQ(computeReturnAir(c.in, r), c.message) << c.what;
    }
}

TEST(ReturnAirFaults, ARoomWithoutMoistureHasAVerticalProcessLine) {
    ReturnAirInput in = summerRoom();
    in.loadSecond = 0.0;
    ReturnAirResult r = computed(in);
    EXPECT_TRUE(std::isinf(r.epsilon));
    EXPECT_NEAR(state(r, L"O").d, state(r, L"N").d, 1e-9);
    expectRoomLoadsRemoved(in, r);
}

}  // namespace
}  // namespace vrn2
