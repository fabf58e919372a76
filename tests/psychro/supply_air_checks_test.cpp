// The order of the supply-air input checks, their messages and focus tiles, and the bounds,
// which include their end values.
#include <gtest/gtest.h>

#include <string>

#include "psychro/supply_air_checks.h"

namespace {

using vrn2::firstSupplyAirFault;
using vrn2::SupplyAirReadings;

SupplyAirReadings complete() {
    SupplyAirReadings r;
    r.B = 101.325, r.tn = 22.0, r.rhn = 60.0, r.load = 11.6, r.w = 5.0, r.dt = 6.0;
    return r;
}

std::wstring faultOf(const SupplyAirReadings& r) {
    auto fault = firstSupplyAirFault(r);
    return fault ? std::wstring(fault->key) + L"|" + fault->message : L"none";
}

TEST(SupplyAirChecks, CompleteReadingsPass) {
    EXPECT_EQ(faultOf(complete()), L"none");
    SupplyAirReadings sensibleOnly = complete();
    sensibleOnly.totalLoad = false, sensibleOnly.moistureGiven = false, sensibleOnly.w.reset();
    EXPECT_EQ(faultOf(sensibleOnly), L"none") << "the moisture load is not read when neither toggle needs it";
}

TEST(SupplyAirChecks, EachFaultInTurnWithItsTile) {
    // All inputs missing; fixing them one by one reveals the faults in the order of the dialog.
    SupplyAirReadings r;
    EXPECT_EQ(faultOf(r), L"B|   输入大气压值.  ");
    r.B = 101.325;
    EXPECT_EQ(faultOf(r), L"tn_value|   输入室内干球温度值.  ");
    r.tn = 22;
    EXPECT_EQ(faultOf(r), L"rhn_value|   输入室内相对湿度值,如果没要求,\n可输入0-100任何值.  ");
    r.rhn = 60;
    r.moistureGiven = false;
    EXPECT_EQ(faultOf(r), L"w|    湿负荷项不能关闭。") << "checked before the load itself";
    r.moistureGiven = true;
    EXPECT_EQ(faultOf(r), L"q_value|   输入热负荷值.  ");
    r.load = 11.6;
    EXPECT_EQ(faultOf(r), L"w_value|   输入湿负荷值.  ");
    r.w = 5;
    EXPECT_EQ(faultOf(r), L"dt_value|   输入送风温差值.  ");
    r.dt = 6;
    EXPECT_EQ(faultOf(r), L"none");
}

TEST(SupplyAirChecks, RangeFaults) {
    const std::wstring pressure = L"B|   大气压要求在50-200之间.  ";
    const std::wstring temperature = L"tn_value|   干球温度要求在0-100之间.  ";
    const std::wstring humidity = L"rhn_value|   相对湿度要求在0-100之间.  ";
    struct Case {
        double B, tn, rhn;
        std::wstring fault;
    } cases[] = {
        {40, 22, 60, pressure},     {49.999, 22, 60, pressure}, {50, 22, 60, L"none"},
        {200, 22, 60, L"none"},     {200.001, 22, 60, pressure}, {101.325, -0.001, 60, temperature},
        {101.325, 0, 60, L"none"},  {101.325, 100, 60, L"none"}, {101.325, 100.5, 60, temperature},
        {101.325, 22, -1, humidity}, {101.325, 22, 0, L"none"},  {101.325, 22, 100, L"none"},
        {101.325, 22, 100.01, humidity}, {20, 120, 120, pressure},  // the first fault only
    };
    for (const Case& c : cases) {
        SupplyAirReadings r = complete();
        r.B = c.B, r.tn = c.tn, r.rhn = c.rhn;
        EXPECT_EQ(faultOf(r), c.fault) << c.B << " kPa, " << c.tn << " °C, " << c.rhn << " %";
    }
}

}  // namespace
