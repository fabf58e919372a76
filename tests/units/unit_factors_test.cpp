// The factor table checked against itself (forward times reverse) and against the exact
// definitions of the units, with the texts that deviate asserted as the window shows them.
#include <gtest/gtest.h>

#include <cmath>
#include <cwchar>
#include <string>

#include "units/unit_factors.h"

using namespace vrn2::units;

namespace {

constexpr double kInch = 0.0254;        // m, exact
constexpr double kFoot = 0.3048;        // m, exact
constexpr double kWaterColumn = 9806.65;  // Pa per metre of water, standard gravity

// A factor text as a number, requiring the whole text to be one.
double number(std::wstring_view text) {
    std::wstring s(text);
    wchar_t* end = nullptr;
    double v = std::wcstod(s.c_str(), &end);
    EXPECT_EQ(*end, L'\0') << "not a number: " << std::string(s.begin(), s.end());
    return v;
}

// Half a unit in the last printed digit of a factor text, relative to its value.
double printedPrecision(std::wstring_view text) {
    size_t e = text.find_first_of(L"Ee");
    std::wstring_view mantissa = text.substr(0, e);
    int exponent = e == std::wstring_view::npos ? 0 : std::stoi(std::wstring(text.substr(e + 1)));
    size_t dot = mantissa.find(L'.');
    int decimals = dot == std::wstring_view::npos ? 0 : static_cast<int>(mantissa.size() - dot - 1);
    return 0.5 * std::pow(10.0, exponent - decimals) / number(text);
}

// Forward times reverse is 1 within what the two printed factors can claim.
bool consistent(std::wstring_view forward, std::wstring_view reverse) {
    double product = number(forward) * number(reverse);
    return std::fabs(product - 1.0) <= printedPrecision(forward) + printedPrecision(reverse);
}

// TEXT agrees with the exact value within its printed precision.
bool agrees(std::wstring_view text, double exact) {
    return std::fabs(number(text) - exact) / exact <= printedPrecision(text);
}

}  // namespace

TEST(UnitTable, ElevenCategoriesWithTheirPairs) {
    const size_t counts[kCategoryCount] = {2, 2, 4, 2, 4, 2, 2, 7, 2, 4, 4};
    for (int c = 0; c < kCategoryCount; ++c) EXPECT_EQ(categoryPairs(c).size(), counts[c]) << c;
    EXPECT_TRUE(categoryPairs(-1).empty());
    EXPECT_TRUE(categoryPairs(kCategoryCount).empty());
    EXPECT_TRUE(factorText(2, 4, Direction::FromFirst, LabelPath::PairSelected).empty());
    EXPECT_TRUE(factorText(11, 0, Direction::FromFirst, LabelPath::PairSelected).empty());
    EXPECT_EQ(categoryPairs(2)[0].item, L"[in]英寸  <==> [m]");
    EXPECT_EQ(categoryPairs(6)[1].item, L"[t]吨");
    EXPECT_EQ(categoryPairs(7)[2].item, L"[mmHg](torr)<==> [pa]");
}

TEST(UnitTable, TemperatureLabelsShowTheFormulas) {
    EXPECT_EQ(factorText(0, 0, Direction::FromFirst, LabelPath::PairSelected), L"[(F-32)*5/9]");
    EXPECT_EQ(factorText(0, 0, Direction::FromSecond, LabelPath::PairSelected), L"[t*9/5+32]");
    EXPECT_EQ(factorText(0, 1, Direction::FromFirst, LabelPath::CategoryOpened), L"[K-273]");
    EXPECT_EQ(factorText(0, 1, Direction::FromSecond, LabelPath::DirectionChanged), L"[t+273]");
}

TEST(UnitTable, ForwardTimesReverseIsOneWhereTheTableIsConsistent) {
    for (int c = 1; c < kCategoryCount; ++c) {
        auto pairs = categoryPairs(c);
        for (size_t i = 0; i < pairs.size(); ++i) {
            if (c == 3 && i == 0) continue;  // the square inch: its own test below
            EXPECT_TRUE(consistent(pairs[i].forward, pairs[i].reverse))
                << "category " << c << " item " << i;
        }
    }
}

TEST(UnitTable, SquareInchSelectedShowsTheMistypedFactorThatDisagreesWithItsReverse) {
    auto selected = factorText(3, 0, Direction::FromFirst, LabelPath::PairSelected);
    auto turned = factorText(3, 0, Direction::FromFirst, LabelPath::DirectionChanged);
    auto reverse = factorText(3, 0, Direction::FromSecond, LabelPath::PairSelected);
    EXPECT_EQ(selected, L"6.425E-04");
    EXPECT_EQ(turned, L"6.425E-04");
    EXPECT_EQ(reverse, L"1550.0031");
    EXPECT_FALSE(consistent(selected, reverse));
    EXPECT_FALSE(agrees(selected, kInch * kInch));
}

TEST(UnitTable, SquareInchOnOpeningTheCategoryShowsTheRightFactor) {
    auto opened = factorText(3, 0, Direction::FromFirst, LabelPath::CategoryOpened);
    EXPECT_EQ(opened, L"6.452E-04");
    EXPECT_TRUE(consistent(opened, categoryPairs(3)[0].reverse));
    EXPECT_TRUE(agrees(opened, kInch * kInch));
    // Opening the category the other way round shows the reverse factor unchanged.
    EXPECT_EQ(factorText(3, 0, Direction::FromSecond, LabelPath::CategoryOpened), L"1550.0031");
}

TEST(UnitTable, InchOfWaterSelectedShowsTheRightFactor) {
    auto selected = factorText(7, 3, Direction::FromFirst, LabelPath::PairSelected);
    EXPECT_EQ(selected, L"249.089");
    EXPECT_TRUE(agrees(selected, kInch * kWaterColumn));
}

TEST(UnitTable, InchOfWaterOnADirectionChangeShowsTheTransposedFactor) {
    auto turned = factorText(7, 3, Direction::FromFirst, LabelPath::DirectionChanged);
    EXPECT_EQ(turned, L"249.098");
    EXPECT_FALSE(agrees(turned, kInch * kWaterColumn));
    EXPECT_EQ(factorText(7, 3, Direction::FromSecond, LabelPath::DirectionChanged), L"4.015E-03");
}

TEST(UnitTable, CubicItemsNameOneUnitAndCarryTheOtherFactors) {
    const UnitPair& first = categoryPairs(4)[0];
    const UnitPair& second = categoryPairs(4)[1];
    EXPECT_EQ(first.item, L"[in^3]英尺  <==> [m^3]");
    EXPECT_EQ(second.item, L"[ft^3]英寸  <==> [m^3]");
    // The factors are those of the other unit: a cubic foot on the first, a cubic inch on the second.
    EXPECT_TRUE(agrees(first.forward, kFoot * kFoot * kFoot));
    EXPECT_FALSE(agrees(first.forward, kInch * kInch * kInch));
    EXPECT_TRUE(agrees(second.forward, kInch * kInch * kInch));
    EXPECT_FALSE(agrees(second.forward, kFoot * kFoot * kFoot));
    EXPECT_EQ(first.unitLabel, L"[ft^3]英尺");
    EXPECT_EQ(second.unitLabel, L"[in^3]英寸");
}

TEST(UnitTable, BtuPerPoundFahrenheitCarriesTheKilocalorieFactors) {
    const UnitPair& kcal = categoryPairs(9)[0];
    const UnitPair& btu = categoryPairs(9)[1];
    EXPECT_EQ(btu.item, L"[Btu/(lb*F)]   <==> [J/(kg*C)]");
    EXPECT_EQ(btu.forward, kcal.forward);
    EXPECT_EQ(btu.reverse, kcal.reverse);
    EXPECT_EQ(btu.forward, L"4186.8");
}

TEST(UnitTable, UnitLabelsReadAsTheWindowShowsThem) {
    EXPECT_EQ(categoryPairs(3)[0].unitLabel, L"[in^2]英寸");
    EXPECT_EQ(categoryPairs(9)[0].unitLabel, L"[kcal/(kg*CI)]");
    EXPECT_EQ(categoryPairs(0)[0].siLabel, L"[℃]");
    for (int c = 0; c < kCategoryCount; ++c)
        for (const UnitPair& p : categoryPairs(c)) {
            EXPECT_FALSE(p.unitLabel.empty());
            EXPECT_FALSE(p.siLabel.empty());
        }
}
