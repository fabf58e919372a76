// Tracing a connected pipe run: the flood over the pipe records from a start point, the
// equipment found at the reached pipes' ends, and the entries handed back to AutoLISP.
#pragma once

#include <cstddef>
#include <vector>

#include "drawing/plan_geometry.h"

namespace vrn2::drawing {

inline constexpr std::size_t kMaxTracePipes = 1500;
inline constexpr std::size_t kMaxTraceEquipment = 1000;
// Two points are the same point of the run when every coordinate differs by less than this.
inline constexpr double kTraceEqual = 0.01;

bool sameTracePoint(const SpacePoint& a, const SpacePoint& b);

struct TraceStep {
    std::size_t pipe;  // index into the records
    bool entry;        // false when the pipe only leads back to the previous point
};

// The pipes reached from BASE, in the order the flood reaches them. A record joins when one of
// its ends is the current point; the flood then goes on from its other end. After each branch
// the scan starts again at the second record, not the first: pipes drawn from the base are
// listed first and that is how runs have always been ordered. A pipe whose far end is the
// previous point is reached without an entry.
std::vector<TraceStep> tracePipeRun(const std::vector<PipeSegment>& pipes, const SpacePoint& base);

// For each equipment connection point in order, the first reached pipe (in record order) with
// an end at it, or none. REACHED is indexed like the records.
std::vector<std::ptrdiff_t> equipmentOnRun(const std::vector<SpacePoint>& connections,
                                           const std::vector<PipeSegment>& pipes,
                                           const std::vector<bool>& reached);

// A point of an entry: relative to BASE, divided by SCALE.
SpacePoint entryPoint(const SpacePoint& p, const SpacePoint& base, double scale);
// A pipe entry's length: the distance of its ends divided by SCALE.
double entryLength(const PipeSegment& pipe, double scale);

}  // namespace vrn2::drawing
