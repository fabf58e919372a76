#include "coil/coil_check.h"

#include <cmath>

#include "adscodes.h"
#include "coil/contact_coefficient.h"

namespace vrn2 {
namespace {

constexpr double kAirDensity = 1.2;       // kg/m³, for the face velocity
constexpr double kWaterDensity = 1000.0;  // kg/m³, for the water velocity
constexpr double kAirHeat = 1.01;         // kJ/(kg·K)
constexpr double kWaterHeat = 4.186;      // kJ/(kg·K)

// Air state at (t, ts) by the surface-cooler variant; answers its solver status.
int coolerState(double B, double t, double ts, AirState& state) {
    state = AirState{};
    state.B = B;
    state.t = t;
    state.ts = ts;
    return StateFromTempWetBulbSurfaceCooler(state);
}

// Face velocity and water velocity. In parallel the flows divide among the units; in series
// every unit takes all of them.
void velocities(const CoilCheckInput& in, const CoolerModel& model, CoilCheckResult& out) {
    const double shares = in.series ? 1.0 : static_cast<double>(in.units);
    out.Vy = (in.G / 3600.0) / (shares * model.Fy * kAirDensity);
    out.w = (in.W / 3600.0) / (shares * model.fw * kWaterDensity);
}

struct Pass {
    double ts2 = 0.0, i2 = 0.0;
    double nextT2 = 0.0;
};

// One pass of the iteration from the outlet dry bulb T2.
Pass iterate(const CoilCheckInput& in, const CoolerModel& model, double i1, double t2,
             CoilCheckResult& out) {
    Pass pass;
    pass.ts2 = t2 - (1.0 - out.E2) * (in.t1 - in.ts1);
    AirState outlet;
    coolerState(in.B, t2, pass.ts2, outlet);
    pass.i2 = outlet.i;

    out.xi = (i1 - pass.i2) / ((in.t1 - t2) * kAirHeat);
    out.K = 1.0 / (1.0 / (model.A * std::pow(out.Vy, model.m) * std::pow(out.xi, model.p)) +
                   1.0 / (model.B * std::pow(out.w, model.n)));
    const double beta = in.units * in.rows * out.K * model.Fd /
                        ((out.xi * in.G / 3600.0) * kAirHeat * 1000.0);
    const double gamma = out.xi * in.G * kAirHeat / (in.W * kWaterHeat);
    const double decay = std::exp(-beta * (1.0 - gamma));
    out.Eg = (1.0 - decay) / (1.0 - gamma * decay);
    out.Ec = (in.t1 - t2) / (in.t1 - in.tw1);

    const double range = in.t1 - in.tw1;
    pass.nextT2 = ((in.t1 - range * out.Eg) + (in.t1 - range * out.Ec)) / 2.0;
    return pass;
}

bool finite(const AirState& s) {
    for (double v : {s.t, s.ts, s.tl, s.d, s.fy, s.i})
        if (!std::isfinite(v)) return false;
    return true;
}

}  // namespace

CoilCheckStatus checkCoil(const CoilCheckInput& in, const CoolerModel& model, CoilCheckResult& out,
                          const AlertSink& alert, long maxIterations) {
    out = CoilCheckResult{};
    velocities(in, model, out);
    out.E2 = contactCoefficient(model.E2, out.Vy, alert);
    if (!(out.E2 > kSmallestContactCoefficient)) return CoilCheckStatus::NoContactCoefficient;
    if (coolerState(in.B, in.t1, in.ts1, out.inlet) != RTNORM || !finite(out.inlet))
        return CoilCheckStatus::ImpossibleInlet;

    double t2 = in.tw1 + 5.0;
    Pass pass;
    do {
        ++out.iterations;
        pass = iterate(in, model, out.inlet.i, t2, out);
        // The outlet temperature moves on before the stop is tested: the result keeps the
        // averaged temperature with the wet bulb and enthalpy of the pass that produced it.
        t2 = pass.nextT2;
    } while (!(std::fabs(out.Eg - out.Ec) <= kEfficiencyTolerance) &&
             out.iterations < maxIterations);
    if (out.iterations >= maxIterations) return CoilCheckStatus::NotConverged;

    const int outletStatus = coolerState(in.B, t2, pass.ts2, out.outlet);
    out.Q = (out.inlet.i - pass.i2) * in.G / 3600.0;
    out.tw2 = out.Q / ((in.W / 3600.0) * kWaterHeat) + in.tw1;
    // A balance met outside the range between the water and the air temperature is no state a
    // coil can reach, whatever the relations give there.
    const bool between = t2 > in.tw1 && t2 < in.t1;
    if (outletStatus != RTNORM || !finite(out.outlet) || !std::isfinite(out.Q) || !between)
        return CoilCheckStatus::ImpossibleOutlet;
    return CoilCheckStatus::Done;
}

const wchar_t* coilCheckMessage(CoilCheckStatus status) {
    switch (status) {
        case CoilCheckStatus::Done: return L"";
        case CoilCheckStatus::NoContactCoefficient: return L"此风速下的接触系数不大于零,无法校核.";
        case CoilCheckStatus::ImpossibleInlet: return L"进风状态不存在,请检查干球和湿球温度.";
        case CoilCheckStatus::NotConverged: return L"迭代100000次仍不收敛,校核失败.";
        case CoilCheckStatus::ImpossibleOutlet: return L"求出的出风状态不存在,校核失败.";
    }
    return L"";
}

}  // namespace vrn2
