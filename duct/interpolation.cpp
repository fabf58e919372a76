#include "duct/interpolation.h"

#include <cstddef>

namespace vrn2::duct {

double interpolateTable(std::span<const double> table, double x) {
    std::size_t n = table.size() / 2;
    std::span<const double> xs = table.first(n);
    std::span<const double> ys = table.subspan(n, n);
    if (n < 2) return n == 1 ? ys[0] : 0.0;
    std::size_t i = 0;  // left knot of the interval used
    if (x >= xs[n - 1]) {
        i = n - 2;
    } else if (x > xs[0]) {
        while (i + 2 < n && xs[i + 1] <= x) ++i;
    }
    return ys[i] + (ys[i + 1] - ys[i]) * (x - xs[i]) / (xs[i + 1] - xs[i]);
}

}  // namespace vrn2::duct
