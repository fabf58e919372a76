#include "duct/duct_segment.h"

#include <cmath>

namespace vrn2::duct {

bool coincide(const DuctPoint& a, const DuctPoint& b) {
    return std::fabs(a.x - b.x) < kCoincidence && std::fabs(a.y - b.y) < kCoincidence &&
           std::fabs(a.z - b.z) < kCoincidence;
}

double distance(const DuctPoint& a, const DuctPoint& b) {
    return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y) + (a.z - b.z) * (a.z - b.z));
}

std::vector<int> mainPathUpwards(const DuctNetwork& network) {
    std::vector<int> path;
    for (int s = network.mainLeaf; s != kNoSegment; s = network.segments[s].parent) path.push_back(s);
    return path;
}

}  // namespace vrn2::duct
