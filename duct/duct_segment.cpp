#include "duct/duct_segment.h"

namespace vrn2::duct {

std::vector<int> mainPathUpwards(const DuctNetwork& network) {
    std::vector<int> path;
    for (int s = network.mainLeaf; s != kNoSegment; s = network.segments[s].parent) path.push_back(s);
    return path;
}

}  // namespace vrn2::duct
