// The three inverse functions: each finds the temperature at which a rising function of
// temperature reaches a target, by a band search and the secant iteration of bands.h. The
// band edges and the iterations' first starting values are evaluated from saturation values
// computed once (BandEdgeSaturationPressures, BandStartSaturations).

#include <cmath>

#include "psychro/airstate/airstate.h"
#include "psychro/airstate/alert.h"
#include "psychro/airstate/bands.h"
#include "psychro/airstate/saturation_terms.h"

using airstate::BandEdgeSaturationPressures;
using airstate::BandStartSaturations;
using airstate::EnthalpyFromSaturation;
using airstate::kFreezingEdge_K;
using airstate::kTemperatureBands;
using airstate::Phase;
using airstate::PsychrometerFromSaturation;
using airstate::StartingPair;

namespace {

// The dew-point search works on ln of the pressure, which the correlations give directly.
double LnSaturationPressure(Phase phase, double T_K) {
    return phase == Phase::Ice ? airstate::LnSaturationPressureIce(T_K)
                               : airstate::LnSaturationPressureWater(T_K);
}

double Psychrometer(Phase phase, double T_K, double P_Pa) {
    return phase == Phase::Ice ? PsychrometerFunctionIce(T_K, P_Pa)
                               : PsychrometerFunctionWater(T_K, P_Pa);
}

struct LnEdges {
    double lower;
    double upper;
};

// ln of the saturation pressure at each band's edges, as the dew-point search compares them.
// The lowest water band starts where the ice bands end, on the ice curve, so that no pressure
// between the two curves at 0 °C falls between bands.
const std::array<LnEdges, kTemperatureBands.size()>& DewPointBandEdges() {
    static const auto edges = [] {
        std::array<LnEdges, kTemperatureBands.size()> ln{};
        for (std::size_t k = 0; k < kTemperatureBands.size(); ++k) {
            const auto& band = kTemperatureBands[k];
            const Phase lowerPhase =
                band.lowerEdge_K == kFreezingEdge_K ? Phase::Ice : band.phase;
            ln[k] = {LnSaturationPressure(lowerPhase, band.lowerEdge_K),
                     LnSaturationPressure(band.phase, band.upperEdge_K)};
        }
        return ln;
    }();
    return edges;
}

}  // namespace

double DewPointFromPressure(double p_Pa) {
    const double target = std::log(p_Pa);
    const auto& edges = DewPointBandEdges();
    for (std::size_t k = 0; k < kTemperatureBands.size(); ++k) {
        if (airstate::BandHolds(edges[k].lower, edges[k].upper, target, k)) {
            const Phase phase = kTemperatureBands[k].phase;
            return airstate::SolveBySecant(
                [phase](double T_K) { return LnSaturationPressure(phase, T_K); }, target,
                airstate::StartOf(kTemperatureBands[k]), BandStartSaturations()[k].ln_Pa);
        }
    }
    airstate::Alert(L"求得温度范围不对.");
    return kTemperatureOutOfRange_C;
}

double WetBulbTemperature(double t_C, double pq_Pa, double P_Pa) {
    const double target = pq_Pa + 0.000667 * P_Pa * t_C;
    const auto& edges = BandEdgeSaturationPressures();
    StartingPair start;
    double f0 = 0.0;
    for (std::size_t k = 0; k < kTemperatureBands.size(); ++k) {
        const auto& band = kTemperatureBands[k];
        const double fLower = PsychrometerFromSaturation(edges[k].lower_Pa, band.lowerEdge_K, P_Pa);
        const double fUpper = PsychrometerFromSaturation(edges[k].upper_Pa, band.upperEdge_K, P_Pa);
        if (airstate::BandHolds(fLower, fUpper, target, k)) {
            start = airstate::StartOf(band);
            f0 = PsychrometerFromSaturation(BandStartSaturations()[k].own_Pa, airstate::FirstStart_K(band), P_Pa);
        }
    }
    const Phase phase = start.phase;
    return airstate::SolveBySecant(
        [phase, P_Pa](double T_K) { return Psychrometer(phase, T_K, P_Pa); }, target, start, f0);
}

double TemperatureFromEnthalpy(double i_kJkg, double P_Pa, double fy_percent) {
    const auto& edges = BandEdgeSaturationPressures();
    StartingPair start;
    double f0 = 0.0;
    for (std::size_t k = 0; k < kTemperatureBands.size(); ++k) {
        const auto& band = kTemperatureBands[k];
        const double fLower =
            EnthalpyFromSaturation(edges[k].lower_Pa, band.lowerEdge_K, P_Pa, fy_percent);
        const double fUpper =
            EnthalpyFromSaturation(edges[k].upper_Pa, band.upperEdge_K, P_Pa, fy_percent);
        if (airstate::BandHolds(fLower, fUpper, i_kJkg, k)) {
            start = airstate::StartOf(band);
            f0 = EnthalpyFromSaturation(BandStartSaturations()[k].water_Pa, airstate::FirstStart_K(band),
                                        P_Pa, fy_percent);
        }
    }
    // The water form is iterated even when an ice band was chosen: the program's rule.
    return airstate::SolveBySecant(
        [P_Pa, fy_percent](double T_K) { return EnthalpyAtHumidityWater(T_K, P_Pa, fy_percent); },
        i_kJkg, start, f0);
}
