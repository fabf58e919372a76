// Numbers as the editor writes and reads them in its linear and angular units, and the
// conversion between units of measure. Plain values in and out.
#pragma once

#include <optional>
#include <string>

namespace host::lisp {

// Linear units: 1 scientific, 2 decimal, 3 engineering (feet and decimal inches),
// 4 architectural (feet and fractional inches), 5 fractional. PRECISION is the number of
// decimals, or for 4 and 5 the power of two of the smallest fraction's denominator.
// None for an unknown mode or a value that is not finite.
std::optional<std::wstring> formatDistance(double value, int mode, int precision);
// Reads a distance written in any of the linear units; feet and inches forms give inches.
std::optional<double> parseDistance(const std::wstring& text);

// Angular units: 0 degrees, 1 degrees/minutes/seconds, 2 grads, 3 radians, 4 surveyor's.
// The angle is in radians, counter-clockwise from east, and is written in [0, 360) degrees.
std::optional<std::wstring> formatAngle(double radians, int mode, int precision);

// VALUE in unit FROM expressed in unit TO (names such as "inch", "feet", "mm", "degrees");
// none when a unit is unknown or the two measure different things.
std::optional<double> convertUnits(double value, const std::wstring& from, const std::wstring& to);

}  // namespace host::lisp
