// What a typed reply says to the request that takes it: a number, an integer, a point, or the
// text the user would have typed.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "host/runtime/input.h"

namespace host {

std::wstring_view trimmed(std::wstring_view s);

// A number reply, or a text that is a decimal number as typed (sign, digits with one point,
// an exponent; nothing else).
std::optional<double> numberOf(const TypedReply& r);
// An integer reply, or a text of digits with an optional sign.
std::optional<long long> integerOf(const TypedReply& r);
// A point reply, or a text "X,Y" or "X,Y,Z" (a 2D point lies at z = 0).
std::optional<std::array<double, 3>> pointOf(const TypedReply& r);
// The reply as the user would have typed it: numbers in their shortest exact form, a point as
// "X,Y,Z", a bare Enter as "".
std::wstring textOf(const TypedReply& r);

}  // namespace host
