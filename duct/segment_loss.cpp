#include "duct/segment_loss.h"

#include <array>

#include "duct/duct_segment.h"
#include "duct/interpolation.h"

namespace vrn2::duct {
namespace {

constexpr std::array<double, 20> kViscosityTable{
    -10, 0, 10, 20, 30, 40, 50, 60, 70, 80,
    1.243e-5, 1.328e-5, 1.416e-5, 1.506e-5, 1.6e-5, 1.696e-5, 1.795e-5, 1.897e-5, 2.002e-5, 2.109e-5};

// The contraction rule compares the segment's area with its single downstream duct's. The
// downstream area is taken as circular when that duct is circular, else by the rectangular
// formula only when this segment is rectangular; a rectangular duct below a circular one
// counts as area 0. The downstream velocity is its flow over this segment's own area.
double contractionLoss(const SegmentLossInput& in, const SegmentLoss& r, double density, double localLoss) {
    if (in.hasSecondBranch || in.endKind == kEndOpen || !in.firstBranch) return localLoss;
    const DuctSection& d = *in.firstBranch;
    double downstreamArea = 0.0;
    if (d.shape == kShapeCircular) {
        downstreamArea = d.size1 * kQuarterPi * d.size1 / 1000000.0;
    } else if (in.section.shape == kShapeRectangular) {
        downstreamArea = static_cast<double>(d.size1) * d.size2 / 1000000.0;
    }
    double downstreamVelocity = (d.flow / 3600.0) / r.area;
    if (r.area - downstreamArea > 1e-6) return in.xi * 0.5 * density * downstreamVelocity * downstreamVelocity;
    return localLoss;
}

}  // namespace

double airDensity(double B, double t) { return 0.00348 * B * 1000.0 / (t + 273.15); }

double airViscosity(double t) { return interpolateTable(kViscosityTable, t); }

bool hasSize(const DuctSection& s) {
    if (s.shape == kShapeCircular) return s.size1 > 0;
    return s.shape == kShapeRectangular && s.size1 > 0 && s.size2 > 0;
}

SegmentLoss segmentLoss(const SegmentLossInput& in, const AirInputs& air) {
    SegmentLoss r;
    const DuctSection& s = in.section;
    if (!hasSize(s) || !(s.flow > 0.0)) return r;
    r.density = airDensity(air.B, air.t);
    if (s.shape == kShapeCircular) {
        r.De = s.size1 / 1000.0;
        r.area = kQuarterPi * r.De * r.De;
    } else {
        int sum = s.size1 + s.size2;
        r.De = (2.0 * s.size1 * s.size2 / sum) / 1000.0;
        r.area = static_cast<double>(s.size1) * s.size2 / 1000000.0;
    }
    r.velocity = (s.flow / 3600.0) / r.area;
    r.viscosity = airViscosity(air.t);
    r.Re = r.velocity * r.De / r.viscosity;
    r.friction = frictionFactor(air.K, r.Re, r.De);
    if (!r.friction.found) return r;
    double hydraulicRadius = r.De / 4.0;
    double dynamic = r.density * r.velocity * r.velocity;
    r.frictionLoss = in.length * r.friction.lambda * dynamic / (8.0 * hydraulicRadius);
    r.localLoss = contractionLoss(in, r, r.density, in.xi * 0.5 * dynamic);
    r.total = r.frictionLoss + r.localLoss;
    r.computed = true;
    return r;
}

}  // namespace vrn2::duct
