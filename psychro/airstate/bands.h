// The temperature bands over which the inverse functions search, and the secant iteration
// they share. The table is the one definition of the library's range, -60..200 °C.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>

#include "psychro/airstate/relations.h"

namespace airstate {

enum class Phase { Ice, Water };

struct TemperatureBand {
    double lowerEdge_K;
    double upperEdge_K;
    double firstStart_C;   // starting pair of the iteration, lower first
    double secondStart_C;
    Phase phase;           // which saturation curve the band's edges are evaluated on
};

// In the order in which the bands are tested: the ice bands downwards from 0 °C, then the water
// bands upwards from 0 °C.
inline constexpr std::array<TemperatureBand, 13> kTemperatureBands{{
    {258.15, 273.15, -10.0, -5.0, Phase::Ice},
    {243.15, 258.15, -25.0, -20.0, Phase::Ice},
    {228.15, 243.15, -40.0, -35.0, Phase::Ice},
    {213.15, 228.15, -55.0, -50.0, Phase::Ice},
    {273.15, 288.15, 5.0, 10.0, Phase::Water},
    {288.15, 303.15, 20.0, 25.0, Phase::Water},
    {303.15, 318.15, 35.0, 40.0, Phase::Water},
    {318.15, 333.15, 50.0, 55.0, Phase::Water},
    {333.15, 348.15, 65.0, 70.0, Phase::Water},
    {348.15, 363.15, 80.0, 85.0, Phase::Water},
    {363.15, 378.15, 95.0, 100.0, Phase::Water},
    {378.15, 418.15, 125.0, 135.0, Phase::Water},
    {418.15, 473.15, 160.0, 180.0, Phase::Water},
}};

inline constexpr std::size_t kLastBand = kTemperatureBands.size() - 1;

// The freezing point, where the dew-point search compares against the ice curve.
inline constexpr double kFreezingEdge_K = 273.15;

// A band holds the target when F(lower) <= target < F(upper); the last band also holds a target
// equal to F at its upper edge, the top of the range.
inline bool BandHolds(double fLower, double fUpper, double target, std::size_t band) {
    return fLower <= target && (target < fUpper || (band == kLastBand && target == fUpper));
}

// Where the secant iteration starts. The pair (0, 0) is what is left when no band holds: the
// iteration then takes no step and the result is exactly 0 °C.
struct StartingPair {
    double first_C = 0.0;
    double second_C = 0.0;
    Phase phase = Phase::Water;
};

inline StartingPair StartOf(const TemperatureBand& band) {
    return {band.firstStart_C, band.secondStart_C, band.phase};
}

// Saturation pressures, Pa, at a band's edges on the band's own curve.
struct BandEdgePressures {
    double lower_Pa;
    double upper_Pa;
};

// The edge pressures of every band, in table order. They depend on constants only, so they are
// computed once, with the same functions as any other saturation pressure.
const std::array<BandEdgePressures, kTemperatureBands.size()>& BandEdgeSaturationPressures();

// Saturation values at each band's first starting temperature, where every secant iteration
// in the band begins; like the edges, computed once.
struct BandStartSaturation {
    double ln_Pa;       // ln of the saturation pressure on the band's curve (dew point)
    double own_Pa;      // the saturation pressure on the band's curve (wet bulb)
    double water_Pa;    // on the water curve, whatever the band's (enthalpy)
};
const std::array<BandStartSaturation, kTemperatureBands.size()>& BandStartSaturations();

// The first starting temperature of a band in kelvin, as the iteration computes it.
inline double FirstStart_K(const TemperatureBand& band) { return band.firstStart_C + kCelsiusToKelvin; }

// Secant iteration for f(T) = target from the starting pair, until the last step is at most
// 1e-5 K; f0 is f at the first starting temperature, which callers take from the band's start
// values (it is not used when no band holds). Deliberately without a step limit: every band
// starts within 20 K of its root on a smooth rising curve. Returns the root in °C.
template <class Function>
double SolveBySecant(Function&& f, double target, const StartingPair& start, double f0) {
    double T0 = start.first_C + kCelsiusToKelvin;
    double T1 = start.second_C + kCelsiusToKelvin;
    double step = T1 - T0;
    if (!(std::fabs(step) > 1e-5)) return T1 - kCelsiusToKelvin;
    do {
        const double f1 = f(T1);
        const double T2 = T1 - (f1 - target) * (T1 - T0) / (f1 - f0);
        T0 = T1;
        f0 = f1;  // f at the new T0, carried over rather than evaluated again
        T1 = T2;
        step = T2 - T0;
    } while (std::fabs(step) > 1e-5);
    return T1 - kCelsiusToKelvin;
}

}  // namespace airstate
