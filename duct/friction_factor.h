// The Darcy friction factor of a duct by the Colebrook–White equation, written in
// x = 1/√λ:  f(x) = −10^(−x/2) + K/(3.7·De·1000) + 2.51·x/Re = 0.
#pragma once

namespace vrn2::duct {

struct FrictionFactor {
    bool found = false;         // false when the equation has no positive root (K >= 3.7·De)
    double lambda = 0.0;
    double x = 0.0;             // 1/√λ
    long secantSteps = 0;
    bool bracketed = false;     // the secant's end point was not a root; bisection gave x
};

// The secant's end point is accepted when |f(x)| <= this share of the term 10^(−x/2) that
// sets λ.
inline constexpr double kRootTolerance = 1e-6;

double colebrookResidual(double x, double roughnessTerm, double reynoldsTerm);

// K wall roughness in mm, Re > 0, De hydraulic diameter in m.
FrictionFactor frictionFactor(double K, double Re, double De);

}  // namespace vrn2::duct
