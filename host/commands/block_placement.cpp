#include "host/commands/block_placement.h"

#include <cmath>

namespace host::cmd {

void place(const Placement& p, const double in[3], double out[3]) {
    double x = (in[0] - p.base[0]) * p.scale[0];
    double y = (in[1] - p.base[1]) * p.scale[1];
    double z = (in[2] - p.base[2]) * p.scale[2];
    double c = std::cos(p.rotation), s = std::sin(p.rotation);
    out[0] = p.at[0] + x * c - y * s;
    out[1] = p.at[1] + x * s + y * c;
    out[2] = p.at[2] + z;
}

bool uniformInPlan(const Placement& p) {
    return std::fabs(p.scale[0] - p.scale[1]) <= 1e-12 * std::fmax(std::fabs(p.scale[0]), std::fabs(p.scale[1]));
}

}  // namespace host::cmd
