#include "duct/main_path_calc.h"

namespace vrn2::duct {
namespace {

DuctSection sectionOf(const DuctSegment& s) { return {s.shape, s.size1, s.size2, s.flow}; }

}  // namespace

SegmentLossInput lossInputOf(const DuctNetwork& network, int segment) {
    const DuctSegment& s = network.segments[segment];
    SegmentLossInput in;
    in.section = sectionOf(s);
    in.length = s.length;
    in.xi = s.xi;
    in.hasSecondBranch = s.branches[1] != kNoSegment;
    in.endKind = s.endKind;
    if (s.branches[0] != kNoSegment) in.firstBranch = sectionOf(network.segments[s.branches[0]]);
    return in;
}

MainPathResult calculateMainPath(DuctNetwork& network, const AirInputs& air) {
    MainPathResult result;
    for (int s : mainPathUpwards(network)) {
        SegmentLoss loss = segmentLoss(lossInputOf(network, s), air);
        if (loss.computed) {
            network.segments[s].pressureLoss = loss.total;
            result.total += loss.total;
        } else {
            result.complete = false;
        }
        result.segments.push_back({s, loss});
    }
    return result;
}

}  // namespace vrn2::duct
