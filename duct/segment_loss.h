// Pressure loss of one duct segment: friction by Colebrook–White and local loss by the sum of
// its local-loss coefficients, with the contraction rule for a single downstream duct.
#pragma once

#include <optional>

#include "duct/friction_factor.h"

namespace vrn2::duct {

struct AirInputs {
    double K = 0.15;    // wall roughness, mm
    double B = 101.325; // atmospheric pressure, kPa
    double t = 20.0;    // air temperature, °C
};

// The shape, size and flow of a duct.
struct DuctSection {
    short shape = 0;  // 1 circular, 2 rectangular
    int size1 = 0;    // diameter or width, mm
    int size2 = 0;    // height, mm
    double flow = 0.0;// m³/h
};

struct SegmentLossInput {
    DuctSection section;
    double length = 0.0;  // m
    double xi = 0.0;
    bool hasSecondBranch = false;
    short endKind = 0;
    std::optional<DuctSection> firstBranch;
};

struct SegmentLoss {
    bool computed = false;  // false for a duct without a size or a flow
    double density = 0.0;   // kg/m³
    double De = 0.0;        // m
    double area = 0.0;      // m²
    double velocity = 0.0;  // m/s
    double viscosity = 0.0; // m²/s
    double Re = 0.0;
    FrictionFactor friction;
    double frictionLoss = 0.0;  // ΔPl, Pa
    double localLoss = 0.0;     // ΔPj, Pa
    double total = 0.0;         // Pa
};

inline constexpr double kQuarterPi = 0.7853981633974483;

double airDensity(double B, double t);
// Kinematic viscosity of air at t °C from the table −10…80 °C.
double airViscosity(double t);

// True when the section has the dimensions its shape needs.
bool hasSize(const DuctSection& section);

SegmentLoss segmentLoss(const SegmentLossInput& in, const AirInputs& air);

}  // namespace vrn2::duct
