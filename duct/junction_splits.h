// Where network lines must be split: a designer often draws a branch that ends on the middle
// of a main duct, and the trace only joins duct ends. Every point where one line's end touches
// another line's interior becomes a split point of that line.
#pragma once

#include <vector>

#include "duct/duct_segment.h"

namespace vrn2::duct {

struct LineEnds {
    DuctPoint first;
    DuctPoint second;
};

struct LineSplits {
    int line;                      // index into the lines given
    std::vector<DuctPoint> points; // on the line, ordered from its first point to its second
};

// An end E of line M touches the interior of line L (M ≠ L) when E lies within the
// coincidence distance of L (perpendicular to it, inside its extent) and coincides with
// neither end of L. The split point is E's projection onto L, so both pieces stay on L's
// course; split points closer together than the coincidence distance are merged.
std::vector<LineSplits> junctionSplits(const std::vector<LineEnds>& lines);

}  // namespace vrn2::duct
