#include "psychro/supply_air.h"

#include <cmath>

#include "adscodes.h"

namespace vrn2 {
namespace {

constexpr double kSecondsPerHour = 3600.0;
constexpr double kDryAirHeat_kJkgK = 1.01;

bool finite(const AirState& s) {
    const double fields[] = {s.B, s.pq, s.pb, s.t, s.ts, s.tl, s.d, s.fy, s.i, s.v};
    for (double f : fields)
        if (!std::isfinite(f)) return false;
    return true;
}

// Mass flow that carries the sensible load qx_kW with a temperature rise of dt_K.
double flowFromSensibleLoad(double qx_kW, double dt_K) {
    return qx_kW / (kDryAirHeat_kJkgK * dt_K) * kSecondsPerHour;
}

// Fills O from its moisture content at the supply temperature: the enthalpy of the point,
// then the rest of the state, whose dry bulb is then pinned to the supply temperature. A
// moisture content that is no number (a zero moisture load or flow) fails before the solver,
// whose dew-point search would only add an alert about the temperature range.
int completeSupplyState(double dO, double to, AirState& supply) {
    if (!std::isfinite(dO)) return RTERROR;
    supply.d = dO;
    supply.i = EnthalpyFromTempMoisture(to, dO);
    int status = StateFromEnthalpyMoistureSupplyAir(supply);
    supply.t = to;
    return status;
}

}  // namespace

double moistureOnProcessLine(double iN_kJkg, double dN_gkg, double e_kJg, double to_C) {
    return (iN_kJkg - e_kJg * dN_gkg - kDryAirHeat_kJkgK * to_C) /
           (0.001 * (1.84 * to_C + kLatentHeat_kJkg) - e_kJg);
}

int computeSupplyAir(const SupplyAirInput& in, SupplyAirResult& out) {
    out = SupplyAirResult{};
    out.indoor.B = in.B;
    out.indoor.t = in.tn;
    out.indoor.fy = in.rhn;
    StateFromTempHumidity(out.indoor);  // an odd indoor state still gives figures to judge

    const AirState& N = out.indoor;
    const double to = in.tn - in.dt;
    out.supply.B = in.B;
    out.supply.t = to;

    if (in.totalLoad && !in.moistureGiven) return RTERROR;

    int status = RTNORM;
    if (in.totalLoad) {
        const double e = in.load / (1000.0 * in.w / kSecondsPerHour);  // kJ per g of moisture
        status = completeSupplyState(moistureOnProcessLine(N.i, N.d, e, to), to, out.supply);
        out.G = in.load / (N.i - out.supply.i) * kSecondsPerHour;
        out.complete = true;
    } else if (in.moistureGiven) {
        out.G = flowFromSensibleLoad(in.load, in.dt);
        status = completeSupplyState(N.d - 1000.0 * in.w / out.G, to, out.supply);
        out.complete = true;
    } else {
        out.G = flowFromSensibleLoad(in.load, in.dt);
    }

    if (!std::isfinite(out.G) || out.G <= 0.0) return RTERROR;
    if (out.complete && (status != RTNORM || !finite(out.supply))) return RTERROR;
    if (!std::isfinite(out.supply.t)) return RTERROR;
    return RTNORM;
}

}  // namespace vrn2
