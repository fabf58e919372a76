// Linear interpolation in a coefficient table, extended linearly beyond both ends.
#pragma once

#include <span>

namespace vrn2::duct {

// TABLE holds n ascending abscissae followed by their n ordinates (n >= 2). Inside the table
// the value is linear between the neighbouring knots (on a knot the later interval is used;
// both give the knot's value). Beyond either end the line through the two outermost points is
// extended: nothing is clamped.
double interpolateTable(std::span<const double> table, double x);

}  // namespace vrn2::duct
