#include "psychro/supply_air_checks.h"

namespace vrn2 {
namespace {

bool outside(double value, double low, double high) { return value < low || value > high; }

}  // namespace

std::optional<SupplyAirFault> firstSupplyAirFault(const SupplyAirReadings& r) {
    if (!r.B) return SupplyAirFault{L"B", L"   输入大气压值.  "};
    if (outside(*r.B, kMinPressure_kPa, kMaxPressure_kPa))
        return SupplyAirFault{L"B", L"   大气压要求在50-200之间.  "};
    if (!r.tn) return SupplyAirFault{L"tn_value", L"   输入室内干球温度值.  "};
    if (outside(*r.tn, kMinIndoorTemp_C, kMaxIndoorTemp_C))
        return SupplyAirFault{L"tn_value", L"   干球温度要求在0-100之间.  "};
    if (!r.rhn)
        return SupplyAirFault{L"rhn_value", L"   输入室内相对湿度值,如果没要求,\n可输入0-100任何值.  "};
    if (outside(*r.rhn, kMinHumidity, kMaxHumidity))
        return SupplyAirFault{L"rhn_value", L"   相对湿度要求在0-100之间.  "};
    // A total load is split into sensible and latent heat through the moisture load.
    if (r.totalLoad && !r.moistureGiven) return SupplyAirFault{L"w", L"    湿负荷项不能关闭。"};
    if (!r.load) return SupplyAirFault{L"q_value", L"   输入热负荷值.  "};
    if ((r.totalLoad || r.moistureGiven) && !r.w) return SupplyAirFault{L"w_value", L"   输入湿负荷值.  "};
    if (!r.dt) return SupplyAirFault{L"dt_value", L"   输入送风温差值.  "};
    return std::nullopt;
}

SupplyAirInput supplyAirInput(const SupplyAirReadings& r) {
    SupplyAirInput in;
    in.B = r.B.value_or(0.0);
    in.tn = r.tn.value_or(0.0);
    in.rhn = r.rhn.value_or(0.0);
    in.load = r.load.value_or(0.0);
    in.w = r.moistureGiven ? r.w.value_or(0.0) : 0.0;
    in.dt = r.dt.value_or(0.0);
    in.totalLoad = r.totalLoad;
    in.moistureGiven = r.moistureGiven;
    return in;
}

}  // namespace vrn2
