// Air-handling processes against worked examples (ASHRAE Handbook, Fundamentals 2017 (SI),
// chapter 1, Examples 2 to 5; Hundy, Trott and Welch, Refrigeration and Air-Conditioning,
// 4th ed. 2008, Examples 21.8, 21.10 and 22.1; Cengel and Boles, Thermodynamics, 8th ed.,
// Problem 14-91), against what each kind of process keeps constant, against the heat and
// moisture balances, and the messages of the processes that cannot happen.
//
// Tolerances against the book: the library's saturation pressure reads 1.0–1.3 % high between
// 0 and 30 °C (tests/airstate/published_values_test.cpp), so moisture contents near saturation
// read up to 1.5 % high; its enthalpy uses cp = 1.01 and r = 2500 where the book uses 1.006 and
// 2501. The book's coil load includes the enthalpy of the condensate (about 0.7 % of it),
// which a designer's Q = G·Δi leaves out.
#include <gtest/gtest.h>

#include <cmath>
#include <cwchar>
#include <string>
#include <vector>

#include "adscodes.h"
#include "psychro/air_process.h"
#include "psychro/process_checks.h"

namespace {

using vrn2::computeProcess;
using vrn2::EndGiven;
using vrn2::ProcessFault;
using vrn2::ProcessInput;
using vrn2::ProcessKind;
using vrn2::ProcessResult;

constexpr double kB = 101.325;

AirState tempHumidity(double t, double fy, double B = kB) {
    AirState s;
    s.B = B;
    s.t = t;
    s.fy = fy;
    EXPECT_EQ(StateFromTempHumidity(s), RTNORM);
    return s;
}

AirState tempWetBulb(double t, double ts) {
    AirState s;
    s.B = kB;
    s.t = t;
    s.ts = ts;
    EXPECT_EQ(StateFromTempWetBulb(s), RTNORM);
    return s;
}

ProcessInput from(ProcessKind kind, const AirState& start, double G) {
    ProcessInput in;
    in.kind = kind;
    in.start = start;
    in.G = G;
    return in;
}

bool contains(const std::wstring& text, const wchar_t* part) { return text.find(part) != std::wstring::npos; }

// Q = G·Δi/3600 kW, W = G·Δd/1000 kg/h and ε = Δi/Δd·1000 kJ/kg, checked with the result's
// own end state: the balances close to rounding.
void expectBalances(const ProcessInput& in, const ProcessResult& r) {
    ASSERT_TRUE(r.ok()) << "the process was refused";
    const double di = r.end.i - r.start.i, dd = r.end.d - r.start.d;
    EXPECT_NEAR(r.Q, in.G * di / 3600.0, 1e-9 * (1.0 + std::fabs(r.Q)));
    EXPECT_NEAR(r.W, in.G * dd / 1000.0, 1e-9 * (1.0 + std::fabs(r.W)));
    if (std::fabs(dd) < 1e-9) {
        EXPECT_TRUE(r.epsilonInfinite);
    } else {
        ASSERT_FALSE(r.epsilonInfinite);
        EXPECT_NEAR(r.epsilon, di / dd * 1000.0, 1e-6 * (1.0 + std::fabs(r.epsilon)));
    }
    // The end is a complete state of the library at the start's pressure.
    AirState again = r.end;
    EXPECT_EQ(StateFromEnthalpyMoisture(again), RTNORM);
    EXPECT_NEAR(again.t, r.end.t, 1e-6);
    EXPECT_NEAR(again.fy, r.end.fy, 1e-6);
}

TEST(WorkedExample, SensibleHeatingOfSaturatedAirFrom2To40C) {
    // Example 2: saturated air at 2 °C, 10 m³/s (12.74 kg/s of dry air at v = 0.785 m³/kg),
    // heated to 40 °C: 492 kW.
    ProcessInput in = from(ProcessKind::heating, tempHumidity(2.0, 100.0), 12.74 * 3600.0);
    in.endT = 40.0;
    const ProcessResult r = computeProcess(in);
    expectBalances(in, r);
    EXPECT_NEAR(r.Q, 492.0, 0.01 * 492.0);
    EXPECT_EQ(r.W, 0.0);
    EXPECT_TRUE(r.epsilonInfinite);
    EXPECT_EQ(r.end.d, r.start.d);
    EXPECT_DOUBLE_EQ(r.end.t, 40.0);
    EXPECT_LT(r.end.fy, 10.0);  // about 9 %: heated air dries out relatively
}

TEST(WorkedExample, CoolingAndDehumidifyingFrom30C50PercentToSaturationAt10C) {
    // Example 3: 30 °C and 50 %, 5 m³/s (5.70 kg/s of dry air), cooled to saturation at 10 °C:
    // W from 0.0133 to 0.00766 kg/kg (32.1 g/s of condensate), 197 kW of refrigeration.
    ProcessInput in = from(ProcessKind::dehumidifying, tempHumidity(30.0, 50.0), 5.70 * 3600.0);
    in.endT = 10.0;
    in.given = EndGiven::humidity;
    in.endFy = 100.0;
    const ProcessResult r = computeProcess(in);
    expectBalances(in, r);
    EXPECT_NEAR(r.Q, -197.0, 0.02 * 197.0);
    EXPECT_NEAR(r.W, -0.0321 * 3600.0, 0.03 * 0.0321 * 3600.0);
    EXPECT_NEAR(r.end.d, 7.66, 0.015 * 7.66);
    EXPECT_NEAR(r.start.d, 13.3, 0.015 * 13.3);
    // The same coil computed as a cooling to an apparatus dew point of 10 °C that the air
    // reaches (φ = 100 %): the same end, all the way along the line.
    ProcessInput adp = in;
    adp.kind = ProcessKind::dewPoint;
    adp.dewPointT = 10.0;
    const ProcessResult a = computeProcess(adp);
    expectBalances(adp, a);
    EXPECT_NEAR(a.end.d, r.end.d, 1e-6);
    EXPECT_NEAR(a.Q, r.Q, 1e-6);
    EXPECT_DOUBLE_EQ(a.contactFactor, 1.0);
}

TEST(WorkedExample, MixingOutdoorAndRecirculatedAir) {
    // Example 4: 2 m³/s of outdoor air at 4 °C dry bulb and 2 °C wet bulb (2.535 kg/s) mixed
    // with 6.25 m³/s of room air at 25 °C and 50 % (7.284 kg/s): 19.5 °C, wet bulb 14.6 °C.
    const AirState outdoor = tempWetBulb(4.0, 2.0);
    ProcessInput in = from(ProcessKind::mixing, tempHumidity(25.0, 50.0), 7.284 * 3600.0);
    in.second = outdoor;
    in.G2 = 2.535 * 3600.0;
    const ProcessResult r = computeProcess(in);
    ASSERT_TRUE(r.ok());
    // The book works with enthalpies and humidity ratios rounded to three figures; the
    // flow-weighted dry bulb alone is 19.58 °C, so 0.15 K covers its rounding.
    EXPECT_NEAR(r.end.t, 19.5, 0.15);
    EXPECT_NEAR(r.end.ts, 14.6, 0.15);
    // The mixture lies on the straight line between the streams, at the share of the second
    // stream's flow from the start; a mixing exchanges neither heat nor moisture.
    const double share = in.G2 / (in.G + in.G2);
    EXPECT_NEAR(r.end.d, in.start.d + share * (outdoor.d - in.start.d), 1e-9);
    EXPECT_NEAR(r.end.i, in.start.i + share * (outdoor.i - in.start.i), 1e-9);
    EXPECT_DOUBLE_EQ(r.G, in.G + in.G2);
    EXPECT_EQ(r.Q, 0.0);
    EXPECT_EQ(r.W, 0.0);
    EXPECT_NEAR(r.epsilon, (outdoor.i - in.start.i) / (outdoor.d - in.start.d) * 1000.0, 1e-6);
}

AirState tempMoisture(double t, double d, double B = kB) {
    AirState s;
    s.B = B;
    s.t = t;
    s.d = d;
    EXPECT_EQ(StateFromTempMoisture(s), RTNORM);
    return s;
}

// British books give "percentage saturation": d as a share of the saturated d at the same t.
AirState tempSaturationShare(double t, double percent) {
    return tempMoisture(t, percent / 100.0 * tempHumidity(t, 100.0).d);
}

TEST(WorkedExample, EvaporativeCoolerSaturatesAtTheWetBulbAndPartWayAlongIt) {
    // Hundy, Trott and Welch, Example 22.1: air at 37 °C and 24 % saturation would end
    // saturated at 21.5 °C; at a saturation efficiency of 75 % it leaves at 25.4 °C. Both
    // figures are read to 0.1 K; the library's saturation pressure, about 1 % high, moves the
    // wet bulb by less than 0.1 K.
    const AirState start = tempSaturationShare(37.0, 24.0);
    ProcessInput in = from(ProcessKind::adiabatic, start, 3600.0);
    in.endFy = 100.0;
    const ProcessResult saturated = computeProcess(in);
    expectBalances(in, saturated);
    EXPECT_NEAR(saturated.end.t, 21.5, 0.2);
    EXPECT_NEAR(saturated.end.i, start.i, 1e-6) << "an evaporative cooler keeps the enthalpy";
    EXPECT_NEAR(saturated.Q, 0.0, 1e-6);
    // Three quarters of the way: along the isenthalp d grows in step with the fall of t
    // (to within 0.05 K over this range), so three quarters of the moisture is taken up.
    in.given = EndGiven::moisture;
    in.endD = start.d + 0.75 * (saturated.end.d - start.d);
    const ProcessResult part = computeProcess(in);
    expectBalances(in, part);
    EXPECT_NEAR(part.end.t, 25.4, 0.2);
    EXPECT_NEAR(part.end.i, start.i, 1e-6);
}

TEST(WorkedExample, EvaporativeCoolerAtAnAltitudesPressure) {
    // Cengel and Boles, Problem 14-91: air at 95 kPa, 40 °C and 25 % leaves an evaporative
    // cooler saturated at 23.1 °C.
    ProcessInput in = from(ProcessKind::adiabatic, tempHumidity(40.0, 25.0, 95.0), 1000.0);
    in.endFy = 100.0;
    const ProcessResult r = computeProcess(in);
    expectBalances(in, r);
    EXPECT_DOUBLE_EQ(r.end.B, 95.0);
    EXPECT_NEAR(r.end.t, 23.1, 0.2);
}

TEST(WorkedExample, SteamInjectionFollowsTheSteamEnthalpyAndIsNearlyIsothermal) {
    // ASHRAE Example 5: 2 kg/s of air at 20 °C dry bulb and 8 °C wet bulb is brought to a dew
    // point of 13 °C with saturated steam at 110 °C (2691 kJ/kg): 21 °C, 0.015 kg/s of steam.
    // The state moves along the heat-moisture ratio of the steam's enthalpy.
    const AirState start = tempWetBulb(20.0, 8.0);
    const double dEnd = tempHumidity(13.0, 100.0).d;
    ProcessInput in = from(ProcessKind::ratio, start, 2.0 * 3600.0);
    in.epsilon = 2691.0;
    in.given = EndGiven::moisture;
    in.endD = dEnd;
    const ProcessResult r = computeProcess(in);
    expectBalances(in, r);
    EXPECT_NEAR(r.end.t, 21.0, 0.3);  // read off the chart with the protractor
    EXPECT_NEAR(r.end.tl, 13.0, 1e-3);
    // The library's saturated d at 13 °C reads 1.1 % high and its d at 20 °C / 8 °C wet bulb
    // 0.1 g/kg low; on a difference of 7.5 g/kg that is 3 % more steam than the book's.
    EXPECT_NEAR(r.W / 3600.0, 0.015, 0.015 * 0.04);
    EXPECT_NEAR(r.Q, r.W / 3600.0 * 2691.0, 1e-6) << "the heat brought in is the steam's enthalpy";
    // The designer's isothermal steam humidifier to the same moisture: the same steam, the
    // temperature kept, the heat one degree of air short of the steam's.
    ProcessInput iso = from(ProcessKind::steam, start, in.G);
    iso.given = EndGiven::moisture;
    iso.endD = dEnd;
    const ProcessResult s = computeProcess(iso);
    expectBalances(iso, s);
    EXPECT_NEAR(s.W, r.W, 1e-9);
    EXPECT_DOUBLE_EQ(s.end.t, 20.0);
    EXPECT_NEAR(r.Q - s.Q, 2.0 * 1.01 * (r.end.t - 20.0), 0.02 * r.Q);
}

TEST(WorkedExample, CoilWithAContactFactorLeavesPartWayToItsSurfaceTemperature) {
    // Hundy, Trott and Welch, Example 21.8: air at 24 °C and 45 % saturation over a coil at
    // 7 °C with a contact factor of 0.78 leaves at 10.7 °C and 85 % saturation (by the chart;
    // 10.74 °C and 27.81 kJ/kg by calculation from the book's enthalpies 45.85 and 22.72).
    ProcessInput in = from(ProcessKind::dewPoint, tempSaturationShare(24.0, 45.0), 3600.0);
    in.dewPointT = 7.0;
    in.endFy = tempSaturationShare(10.7, 85.0).fy;
    const ProcessResult r = computeProcess(in);
    expectBalances(in, r);
    // The 85 % is read off the chart to about 1 %; near saturation φ changes slowly along
    // the coil line, and 1 % of it there is 0.3 K and 0.02 of contact factor.
    EXPECT_NEAR(r.end.t, 10.7, 0.35);
    EXPECT_NEAR(r.contactFactor, 0.78, 0.025);
    // Between the entering air and saturated air at the coil's surface: the book's tables.
    EXPECT_NEAR(r.start.i - r.dewPoint.i, 45.85 - 22.72, 0.3);
    EXPECT_NEAR(r.dewPoint.t, 7.0, 1e-9);
}

TEST(WorkedExample, RoomRatioLineMeetsSaturationAtTheApparatusDewPoint) {
    // Hundy, Trott and Welch, Example 21.10: a room at 23 °C and 40 % saturation loses 36 kW
    // of sensible and 14 kW of latent heat to the coil; the ratio line meets the saturation
    // curve at -1 °C, the apparatus dew point, and air cooled to 5 °C on it has met a coil
    // contact factor of 75 %. The latent part of a change is the enthalpy it gains at the
    // room's temperature, Δd·(2500 + 1.84·23) kJ/kg: the heat-moisture ratio is 50 kW over
    // 14 kW / 2542.3 kJ/kg.
    const AirState room = tempSaturationShare(23.0, 40.0);
    const double epsilon = 50.0 / (14.0 / (2500.0 + 1.84 * 23.0));
    auto along = [&](double t) {
        ProcessInput in = from(ProcessKind::ratio, room, 3600.0);
        in.epsilon = epsilon;
        in.endT = t;
        return computeProcess(in);
    };
    // Where the line reaches φ = 100 %, by halving between 10 °C (unsaturated) and -5 °C.
    double warm = 10.0, cold = -5.0;
    ASSERT_LT(along(warm).end.fy, 100.0);
    for (int k = 0; k < 60; ++k) {
        const double mid = 0.5 * (warm + cold);
        const ProcessResult r = along(mid);
        (r.ok() && r.end.fy < 100.0 ? warm : cold) = mid;
    }
    const double adp = 0.5 * (warm + cold);
    EXPECT_NEAR(adp, -1.0, 0.5);
    // The same coil as a cooling towards that dew point, stopped at the state the line has
    // at 5 °C: three quarters of the way in i and d.
    const ProcessResult at5 = along(5.0);
    ASSERT_TRUE(at5.ok());
    ProcessInput coil = from(ProcessKind::dewPoint, room, 3600.0);
    coil.dewPointT = adp;
    coil.endFy = at5.end.fy;
    const ProcessResult c = computeProcess(coil);
    expectBalances(coil, c);
    EXPECT_NEAR(c.end.t, 5.0, 0.05);
    EXPECT_NEAR(c.contactFactor, 0.75, 0.02);
    EXPECT_NEAR(c.epsilon, epsilon, 0.01 * epsilon);
}

TEST(ProcessGeometry, EachKindKeepsWhatItKeepsConstantAndClosesItsBalances) {
    const AirState summer = tempHumidity(30.0, 60.0);
    const AirState winter = tempHumidity(10.0, 30.0);
    {  // Isenthalpic humidification (a spray washer on recirculated water) to 90 %.
        ProcessInput in = from(ProcessKind::adiabatic, winter, 3000.0);
        in.endFy = 90.0;
        const ProcessResult r = computeProcess(in);
        expectBalances(in, r);
        EXPECT_NEAR(r.end.i, winter.i, 1e-6);
        EXPECT_NEAR(r.end.fy, 90.0, 1e-9);
        EXPECT_LT(r.end.t, winter.t);
        EXPECT_NEAR(r.Q, 0.0, 1e-6);
        EXPECT_GT(r.W, 0.0);
        EXPECT_NEAR(r.epsilon, 0.0, 1e-3);
        // The same end given by its moisture content.
        ProcessInput byD = in;
        byD.given = EndGiven::moisture;
        byD.endD = r.end.d;
        const ProcessResult again = computeProcess(byD);
        expectBalances(byD, again);
        EXPECT_NEAR(again.end.t, r.end.t, 1e-6);
        EXPECT_DOUBLE_EQ(again.end.i, winter.i);
    }
    {  // Steam humidification: isothermal, ε = Δi/Δd·1000 ≈ r + 1.84·t ≈ 2518 kJ/kg.
        ProcessInput in = from(ProcessKind::steam, winter, 3000.0);
        in.endFy = 70.0;
        const ProcessResult r = computeProcess(in);
        expectBalances(in, r);
        EXPECT_DOUBLE_EQ(r.end.t, winter.t);
        EXPECT_NEAR(r.end.fy, 70.0, 1e-9);
        EXPECT_NEAR(r.epsilon, 2500.0 + 1.84 * 10.0, 1e-6);
        ProcessInput byD = in;
        byD.given = EndGiven::moisture;
        byD.endD = 6.0;
        const ProcessResult d = computeProcess(byD);
        expectBalances(byD, d);
        EXPECT_DOUBLE_EQ(d.end.t, winter.t);
        EXPECT_DOUBLE_EQ(d.end.d, 6.0);
        EXPECT_NEAR(d.W, 3000.0 * (6.0 - winter.d) / 1000.0, 1e-9);
    }
    {  // Sensible cooling stays at d and may end at the dew point, no lower.
        ProcessInput in = from(ProcessKind::cooling, summer, 4000.0);
        in.endT = summer.tl + 0.01;
        const ProcessResult r = computeProcess(in);
        expectBalances(in, r);
        EXPECT_EQ(r.end.d, summer.d);
        EXPECT_GT(r.end.fy, 99.0);
        EXPECT_LT(r.Q, 0.0);
        EXPECT_TRUE(r.epsilonInfinite);
    }
    {  // Along ε = 8000 kJ/kg (a room's supply line) to 20 °C, and to the d found.
        ProcessInput in = from(ProcessKind::ratio, summer, 4000.0);
        in.epsilon = 8000.0;
        in.given = EndGiven::temperature;
        in.endT = 20.0;
        const ProcessResult r = computeProcess(in);
        expectBalances(in, r);
        EXPECT_NEAR(r.epsilon, 8000.0, 1e-6);
        EXPECT_NEAR(r.end.t, 20.0, 1e-9);
        ProcessInput byD = in;
        byD.given = EndGiven::moisture;
        byD.endD = r.end.d;
        const ProcessResult again = computeProcess(byD);
        expectBalances(byD, again);
        EXPECT_NEAR(again.end.t, 20.0, 1e-6);
        EXPECT_NEAR(again.epsilon, 8000.0, 1e-6);
    }
    {  // To an apparatus dew point of 12 °C, leaving at 95 %: on the line from the start to
       // the dew point, the contact factor being the share of the way.
        ProcessInput in = from(ProcessKind::dewPoint, summer, 4000.0);
        in.dewPointT = 12.0;
        in.endFy = 95.0;
        const ProcessResult r = computeProcess(in);
        expectBalances(in, r);
        EXPECT_NEAR(r.end.fy, 95.0, 1e-6);
        EXPECT_NEAR(r.dewPoint.fy, 100.0, 1e-6);
        EXPECT_DOUBLE_EQ(r.dewPoint.t, 12.0);
        const AirState& a = r.dewPoint;
        const double cross = (r.end.i - summer.i) * (a.d - summer.d) - (r.end.d - summer.d) * (a.i - summer.i);
        EXPECT_NEAR(cross, 0.0, 1e-6);
        EXPECT_NEAR(r.contactFactor, (summer.i - r.end.i) / (summer.i - a.i), 1e-9);
        EXPECT_GT(r.contactFactor, 0.8);
        EXPECT_LT(r.contactFactor, 1.0);
        EXPECT_GT(r.end.t, 12.0);
    }
}

struct Impossible {
    const char* what;
    ProcessInput in;
    ProcessFault fault;
    const wchar_t* message;
};

TEST(ImpossibleProcess, EachHasItsOwnMessageAndNamesTheInputAtFault) {
    const AirState summer = tempHumidity(30.0, 60.0);  // dew point about 21.4 °C
    const AirState winter = tempHumidity(10.0, 30.0);
    auto with = [](ProcessInput in, auto change) {
        change(in);
        return in;
    };
    const std::vector<Impossible> cases = {
        {"heating to a lower temperature", with(from(ProcessKind::heating, winter, 1000), [](auto& in) { in.endT = 5; }),
         ProcessFault::endT, L"加热过程的终点温度应高于初始温度."},
        {"cooling that ends warmer", with(from(ProcessKind::cooling, summer, 1000), [](auto& in) { in.endT = 35; }),
         ProcessFault::endT, L"冷却过程的终点温度应低于初始温度."},
        {"sensible cooling below the dew point",
         with(from(ProcessKind::cooling, summer, 1000), [](auto& in) { in.endT = 15; }), ProcessFault::endT,
         L"终点温度低于初始状态的露点温度"},
        {"dehumidifying to a moister end",
         with(from(ProcessKind::dehumidifying, summer, 1000), [](auto& in) { in.endT = 25, in.endFy = 95; }),
         ProcessFault::endFy, L"冷却减湿过程的终点含湿量应低于初始含湿量."},
        {"dehumidifying past saturation",
         with(from(ProcessKind::dehumidifying, summer, 1000),
              [](auto& in) { in.endT = 10, in.given = EndGiven::moisture, in.endD = 12; }),
         ProcessFault::endD, L"终点超过饱和状态"},
        {"apparatus dew point above the start's dew point",
         with(from(ProcessKind::dewPoint, summer, 1000), [](auto& in) { in.dewPointT = 23, in.endFy = 95; }),
         ProcessFault::dewPointT, L"机器露点温度应低于初始状态的露点温度"},
        {"dew-point end humidity below the start's",
         with(from(ProcessKind::dewPoint, summer, 1000), [](auto& in) { in.dewPointT = 12, in.endFy = 50; }),
         ProcessFault::endFy, L"终点相对湿度应高于初始相对湿度"},
        {"isenthalpic humidification past saturation",
         with(from(ProcessKind::adiabatic, winter, 1000), [](auto& in) { in.endFy = 101; }), ProcessFault::endFy,
         L"终点超过饱和状态"},
        {"isenthalpic humidification to more moisture than saturation holds",
         with(from(ProcessKind::adiabatic, winter, 1000), [](auto& in) { in.given = EndGiven::moisture, in.endD = 9; }),
         ProcessFault::endD, L"终点超过饱和状态"},
        {"humidifying to a drier end",
         with(from(ProcessKind::adiabatic, winter, 1000), [](auto& in) { in.endFy = 20; }), ProcessFault::endFy,
         L"加湿过程的终点相对湿度应高于初始相对湿度."},
        {"steam past saturation",
         with(from(ProcessKind::steam, winter, 1000), [](auto& in) { in.given = EndGiven::moisture, in.endD = 9; }),
         ProcessFault::endD, L"终点超过饱和状态"},
        {"steam to less moisture",
         with(from(ProcessKind::steam, winter, 1000), [](auto& in) { in.given = EndGiven::moisture, in.endD = 1; }),
         ProcessFault::endD, L"加湿过程的终点含湿量应高于初始含湿量."},
        {"ratio line ending at negative moisture",
         with(from(ProcessKind::ratio, tempHumidity(20, 50), 1000),
              [](auto& in) { in.epsilon = 1000, in.given = EndGiven::temperature, in.endT = 40; }),
         ProcessFault::endT, L"终点含湿量为负值,过程不能实现."},
        {"ratio along the isotherm given by temperature",
         with(from(ProcessKind::ratio, winter, 1000),
              [](auto& in) { in.epsilon = 2500 + 1.84 * 20, in.given = EndGiven::temperature, in.endT = 20; }),
         ProcessFault::epsilon, L"此热湿比线接近等温线"},
        {"mixing that fogs",
         with(from(ProcessKind::mixing, tempHumidity(35, 100), 1000),
              [](auto& in) { in.second = tempHumidity(-10, 100), in.G2 = 1000; }),
         ProcessFault::second, L"混合点在饱和线以外"},
        {"mixing with no second flow",
         with(from(ProcessKind::mixing, summer, 1000), [&](auto& in) { in.second = winter, in.G2 = 0; }),
         ProcessFault::flow, L"第二股空气的流量应大于0."},
        {"mixing with the same air", with(from(ProcessKind::mixing, summer, 1000), [&](auto& in) { in.second = summer, in.G2 = 500; }),
         ProcessFault::start, L"终点与初始状态相同,没有处理过程."},
        {"no air", with(from(ProcessKind::heating, winter, 0), [](auto& in) { in.endT = 20; }), ProcessFault::flow,
         L"空气流量应大于0."},
    };
    for (const Impossible& c : cases) {
        const ProcessResult r = computeProcess(c.in);
        EXPECT_FALSE(r.ok()) << c.what;
        EXPECT_EQ(r.fault, c.fault) << c.what;
        EXPECT_TRUE(contains(r.message, c.message)) << c.what;
        EXPECT_EQ(r.Q, 0.0) << c.what;
    }
    // The dew point in the message is the start's, to two decimals.
    ProcessInput below = from(ProcessKind::cooling, summer, 1000);
    below.endT = 15;
    wchar_t dew[32];
    std::swprintf(dew, 32, L"(%.2f℃)", summer.tl);
    EXPECT_TRUE(contains(computeProcess(below).message, dew));
}

}  // namespace
