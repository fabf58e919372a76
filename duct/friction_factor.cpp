// The secant iteration starts from x0 = 1, x1 = 10 and runs, without a step limit, until two
// iterates differ by less than 1e-8 (smooth ducts need up to about two million steps). It can
// settle on a point that is no root: for Ø630 mm, 12 000 m³/h, K = 0.9 mm at 40 °C it ends
// near λ = 0.0100 while the root is λ = 0.02204. Its end point is therefore checked against the
// equation, and when the residual is larger than 1e-6 × 10^(−x/2) the same equation is solved
// by bisection to full double precision. f is strictly increasing in x, so the positive root
// is unique whenever K/(3.7·De·1000) < 1.
#include "duct/friction_factor.h"

#include <cmath>

namespace vrn2::duct {
namespace {

bool acceptable(double x, double fx) {
    return std::isfinite(x) && std::isfinite(fx) && std::fabs(fx) <= kRootTolerance * std::pow(10.0, -0.5 * x);
}

// Secant from 1 and 10; stops also when a step is no number, which would never settle.
double secant(double a, double b, long& steps) {
    double x0 = 1.0, x1 = 10.0;
    double f0 = colebrookResidual(x0, a, b), f1 = colebrookResidual(x1, a, b);
    do {
        double x2 = x1 - f1 * (x1 - x0) / (f1 - f0);
        x0 = x1;
        f0 = f1;
        x1 = x2;
        f1 = colebrookResidual(x1, a, b);
        ++steps;
    } while (std::isfinite(x1) && !(std::fabs(x1 - x0) < 1e-8));
    return x1;
}

// Bisection over [0, hi], hi doubled until f(hi) > 0; ends when the interval cannot shrink.
double bisect(double a, double b) {
    double lo = 0.0, hi = 1.0;
    while (colebrookResidual(hi, a, b) <= 0.0) hi *= 2.0;
    for (;;) {
        double mid = lo + 0.5 * (hi - lo);
        if (mid <= lo || mid >= hi) break;
        (colebrookResidual(mid, a, b) < 0.0 ? lo : hi) = mid;
    }
    return std::fabs(colebrookResidual(lo, a, b)) < std::fabs(colebrookResidual(hi, a, b)) ? lo : hi;
}

}  // namespace

double colebrookResidual(double x, double roughnessTerm, double reynoldsTerm) {
    return -std::pow(10.0, -0.5 * x) + roughnessTerm + reynoldsTerm * x;
}

FrictionFactor frictionFactor(double K, double Re, double De) {
    FrictionFactor r;
    double a = K / (3.7 * De * 1000.0);
    double b = 2.51 / Re;
    if (!(Re > 0.0) || !(De > 0.0) || !(a >= 0.0 && a < 1.0) || !std::isfinite(b)) return r;
    r.x = secant(a, b, r.secantSteps);
    if (!acceptable(r.x, colebrookResidual(r.x, a, b))) {
        r.x = bisect(a, b);
        r.bracketed = true;
    }
    r.found = true;
    r.lambda = r.x == 0.0 ? 0.0 : 1.0 / (r.x * r.x);
    return r;
}

}  // namespace vrn2::duct
