// Conversions as the window performs them: the value typed, the factor read back from the
// label, the result printed for the other edit.
#include <gtest/gtest.h>

#include <string>

#include "units/unit_conversion.h"

using namespace vrn2::units;

namespace {

// Converts as the window does after the pair was selected: the label shows the pair's factor.
Conversion typed(int category, int item, Direction direction, std::wstring_view value) {
    auto label = factorText(category, item, direction, LabelPath::PairSelected);
    return convert(category, item, direction, value, label);
}

std::wstring result(int category, int item, Direction direction, std::wstring_view value) {
    Conversion c = typed(category, item, direction, value);
    EXPECT_TRUE(c.converted);
    EXPECT_TRUE(c.message.empty());
    return c.text;
}

}  // namespace

TEST(UnitConversion, LengthBothWays) {
    EXPECT_EQ(result(2, 0, Direction::FromFirst, L"1"), L"0.0254");
    EXPECT_EQ(result(2, 0, Direction::FromSecond, L"1"), L"39.3701");
    EXPECT_EQ(result(2, 3, Direction::FromFirst, L"2"), L"3218.688");
}

TEST(UnitConversion, TemperatureFormulas) {
    EXPECT_EQ(result(0, 0, Direction::FromSecond, L"100"), L"212");
    EXPECT_EQ(result(0, 1, Direction::FromSecond, L"0"), L"273");
    EXPECT_EQ(result(0, 0, Direction::FromFirst, L"212"), L"100");
    EXPECT_EQ(result(0, 1, Direction::FromFirst, L"273"), L"0");
    // -40 is the same on both scales.
    EXPECT_EQ(result(0, 0, Direction::FromFirst, L"-40"), L"-40");
    EXPECT_EQ(result(0, 0, Direction::FromSecond, L"-40"), L"-40");
    EXPECT_EQ(result(0, 0, Direction::FromFirst, L"50"), L"10");
}

TEST(UnitConversion, ExponentResultsArePrintedWithTenDigits) {
    // 1 Pa in kgf/cm^2: 1.02e-05.
    EXPECT_EQ(result(7, 0, Direction::FromSecond, L"1"), L"1.02e-05");
    // 1.234567890123 x 1.02 = 1.25925924792546 by hand; ten digits keep 1.259259248.
    EXPECT_EQ(result(7, 0, Direction::FromSecond, L"1.234567890123"), L"1.259259248e-05");
    // Without an exponent fifteen digits stay: 1.23456789012345 x 0.0254 = 0.0313580244091356...
    EXPECT_EQ(result(2, 0, Direction::FromFirst, L"1.23456789012345"), L"0.0313580244091356");
    EXPECT_EQ(formatResult(1.5e20), L"1.5e+20");
    EXPECT_EQ(formatResult(1.2345678912345e17), L"1.234567891e+17");
}

TEST(UnitConversion, EmptySourceGivesTheMessageOfThatEdit) {
    Conversion first = typed(2, 0, Direction::FromFirst, L"");
    EXPECT_FALSE(first.converted);
    EXPECT_EQ(first.message, L"数据1无数据!");
    EXPECT_TRUE(first.text.empty());
    Conversion second = typed(0, 0, Direction::FromSecond, L"");
    EXPECT_FALSE(second.converted);
    EXPECT_EQ(second.message, L"数据2无数据!");
    // A blank is text, not an empty edit: it converts as 0.
    EXPECT_EQ(result(2, 0, Direction::FromFirst, L" "), L"0");
}

TEST(UnitConversion, TextThatIsNoNumberConvertsAsZero) {
    EXPECT_EQ(result(2, 0, Direction::FromFirst, L"abc"), L"0");
    EXPECT_EQ(result(0, 0, Direction::FromSecond, L"abc"), L"32");
    EXPECT_EQ(result(0, 1, Direction::FromFirst, L"x"), L"-273");
    // The number at the start of the text counts, the rest is ignored.
    EXPECT_EQ(result(6, 1, Direction::FromFirst, L"2.5t"), L"2500");
    EXPECT_DOUBLE_EQ(readDecimal(L"  -1.5E2kg"), -150.0);
    EXPECT_DOUBLE_EQ(readDecimal(L""), 0.0);
}

TEST(UnitConversion, FactorIsReadFromTheLabelText) {
    // The transposed inch-of-water factor shown after a direction change is the one used.
    auto turned = factorText(7, 3, Direction::FromFirst, LabelPath::DirectionChanged);
    EXPECT_EQ(convert(7, 3, Direction::FromFirst, L"1", turned).text, L"249.098");
    EXPECT_EQ(result(7, 3, Direction::FromFirst, L"1"), L"249.089");
    // So is the square-inch factor of an opened category.
    auto opened = factorText(3, 0, Direction::FromFirst, LabelPath::CategoryOpened);
    EXPECT_EQ(convert(3, 0, Direction::FromFirst, L"10", opened).text, L"0.006452");
    EXPECT_EQ(result(3, 0, Direction::FromFirst, L"10"), L"0.006425");
}

TEST(UnitConversion, OnlyTheFirstFortyNineCharactersOfTheLabelAreRead) {
    std::wstring label(48, L' ');
    label += L"25";  // the 5 is the fiftieth character
    EXPECT_EQ(convert(5, 0, Direction::FromFirst, L"3", label).text, L"6");
    EXPECT_EQ(convert(5, 0, Direction::FromFirst, L"3", L"text").text, L"0");
}
