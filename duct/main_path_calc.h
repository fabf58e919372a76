// The hydraulic calculation of a traced network: every segment of the main path, from its
// leaf up to the root. Branches off the main path are not calculated.
#pragma once

#include <vector>

#include "duct/duct_segment.h"
#include "duct/segment_loss.h"

namespace vrn2::duct {

struct SegmentOutcome {
    int segment;
    SegmentLoss loss;
};

struct MainPathResult {
    std::vector<SegmentOutcome> segments;  // leaf first
    double total = 0.0;                    // Pa, over the calculated segments
    bool complete = true;                  // false when a segment could not be calculated
};

SegmentLossInput lossInputOf(const DuctNetwork& network, int segment);

// Calculates the main path and stores each calculated loss in its segment.
MainPathResult calculateMainPath(DuctNetwork& network, const AirInputs& air);

}  // namespace vrn2::duct
