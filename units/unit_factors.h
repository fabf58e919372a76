// The unit pairs of the conversion window: eleven categories, each pair an engineering unit and
// its SI unit. Factors are kept as the texts the window shows, because the conversion reads the
// factor back from the text on the label: what the designer sees is the number used.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace vrn2::units {

inline constexpr int kCategoryCount = 11;
inline constexpr int kTemperatureCategory = 0;

struct UnitPair {
    std::wstring_view item;       // text of the item in the pair list
    std::wstring_view unitLabel;  // label beside the first edit (the engineering unit)
    std::wstring_view siLabel;    // label beside the second edit (the SI unit)
    std::wstring_view forward;    // SI value of one unit; for temperature the formula
    std::wstring_view reverse;    // unit value of one SI unit; for temperature the formula
};

// The pairs of one category, in list order; empty outside 0..10.
std::span<const UnitPair> categoryPairs(int category);

// Which way the window converts: from the first edit (unit to SI) or from the second.
enum class Direction { FromFirst = 1, FromSecond = 2 };

// The path on which the window sets its factor label. Two pairs show a different text on one
// path than on the others, and the window keeps both.
enum class LabelPath { CategoryOpened, PairSelected, DirectionChanged };

// The text of the factor label for a pair, a direction and the path that sets it. Empty for a
// category or item that does not exist.
std::wstring_view factorText(int category, int item, Direction direction, LabelPath path);

}  // namespace vrn2::units
