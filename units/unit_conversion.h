// The conversion the window performs when a value is typed: from the source edit through the
// factor on the label (or, for temperature, the formula of the pair) into the other edit.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "units/unit_factors.h"

namespace vrn2::units {

// The window reads its factor label into a buffer of 50 characters.
inline constexpr size_t kFactorLabelChars = 49;

struct Conversion {
    bool converted = false;
    std::wstring text;     // the result for the other edit, when converted
    std::wstring message;  // the message box text, when not
};

// Converts SOURCE, the text of the source edit of DIRECTION, for pair ITEM of CATEGORY. Linear
// categories multiply by the number on FACTOR_LABEL; temperature uses the pair's formula. An
// empty source gives the message of that edit and no result.
Conversion convert(int category, int item, Direction direction, std::wstring_view source,
                   std::wstring_view factorLabel);

// The number at the start of TEXT as the platform's decimal reader takes it; 0 when none.
double readDecimal(std::wstring_view text);

// "%-.15g", or "%-.10g" when that prints an exponent.
std::wstring formatResult(double value);

// "数据1无数据!" for the first edit, "数据2无数据!" for the second.
std::wstring_view emptySourceMessage(Direction direction);

}  // namespace vrn2::units
