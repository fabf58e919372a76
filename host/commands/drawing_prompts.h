// Prompts of the drawing commands that read a point, a distance or an angle, or one of the
// prompt's keywords, asking again after an answer that is neither (as the editor's command
// line does). Each answers the token read, or null when the input ended; the caller tells
// Enter (isEnter) and keywords (isKeyword) from a value.
#pragma once

#include <initializer_list>
#include <string_view>

#include "host/commands/command_support.h"

namespace host::cmd {

using Keywords = std::initializer_list<std::initializer_list<const wchar_t*>>;

// Whether the answer is one of the keywords.
bool isOneOf(const CommandToken& t, Keywords keys);

// A point, in world coordinates.
const CommandToken* askPoint(CommandInput& in, std::wstring_view promptText, double p[3], Keywords keys = {});

// A distance: a number, or a point whose distance from base it is (when base is given).
// Positive asks for a value above zero.
const CommandToken* askDistance(CommandInput& in, std::wstring_view promptText, const double* base, double& v,
                                bool positive, Keywords keys = {});

// An angle in radians: a number in degrees, or a point whose direction from base it is (when
// base is given). Absolute angles are measured from ANGBASE in ANGDIR's sense; relative ones
// (included angles) only in ANGDIR's sense.
const CommandToken* askAngle(CommandInput& in, std::wstring_view promptText, const double* base, double& radians,
                             bool absolute, Keywords keys = {});

// A yes or no: Enter keeps the default.
const CommandToken* askYesNo(CommandInput& in, std::wstring_view promptText, bool& yes);

// A number as the prompts show a default: four decimals.
std::wstring format4(double v);

}  // namespace host::cmd
