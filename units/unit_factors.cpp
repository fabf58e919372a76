#include "units/unit_factors.h"

#include <array>

namespace vrn2::units {
namespace {

// The texts stand as the window has always shown them, typos included: the designers compare
// printouts against them.
constexpr UnitPair kTemperature[] = {
    {L"[F]     <==>     [℃]", L"[F]", L"[℃]", L"[(F-32)*5/9]", L"[t*9/5+32]"},
    {L"[K]     <==>     [℃]", L"[K]", L"[℃]", L"[K-273]", L"[t+273]"},
};
constexpr UnitPair kConductivity[] = {
    {L"[kcal/(m*h*C)]<==>[W/(m*C)]", L"[kcal/(m*h*C)]", L"[W/(m*C)]", L"1.163", L"0.8599"},
    {L"[Btu/(ft*h*F)]<==>[W/(m*C)]", L"[Btu/(ft*h*F)]", L"[W/(m*C)]", L"1.7307", L"0.5778"},
};
constexpr UnitPair kLength[] = {
    {L"[in]英寸  <==> [m]", L"[in]英寸", L"[m]", L"0.0254", L"39.3701"},
    {L"[ft]英尺  <==> [m]", L"[ft]英尺", L"[m]", L"0.3048", L"3.2808"},
    {L"[yd]码    <==> [m]", L"[yd]码", L"[m]", L"0.9144", L"1.0936"},
    {L"[mile]英里<==> [m]", L"[mile]英里", L"[m]", L"1609.344", L"6.214E-04"},
};
constexpr UnitPair kArea[] = {
    {L"[in^2]英寸  <==> [m^2]", L"[in^2]英寸", L"[m^2]", L"6.425E-04", L"1550.0031"},
    {L"[ft^2]英尺  <==> [m^2]", L"[ft^2]英尺", L"[m^2]", L"0.0929", L"10.7643"},
};
// The first item names cubic inches and carries the cubic-foot factors, the second the other
// way round; the unit labels follow the factors.
constexpr UnitPair kVolume[] = {
    {L"[in^3]英尺  <==> [m^3]", L"[ft^3]英尺", L"[m^3]", L"0.0283", L"35.3357"},
    {L"[ft^3]英寸  <==> [m^3]", L"[in^3]英寸", L"[m^3]", L"1.639E-05", L"61023.9824"},
    {L"[UKgal]     <==> [m^3]", L"[UKgal]", L"[m^3]", L"4.546E-03", L"219.9688"},
    {L"[USgal]     <==> [m^3]", L"[USgal]", L"[m^3]", L"3.785E-03", L"264.1729"},
};
constexpr UnitPair kVelocity[] = {
    {L"[ft/s]  <==> [m/s]", L"[ft/s]", L"[m/s]", L"0.3048", L"3.2808"},
    {L"[ft/min]<==> [m/s]", L"[ft/min]", L"[m/s]", L"5.100E-03", L"196.0784"},
};
constexpr UnitPair kMass[] = {
    {L"[lb]磅 <==> [kg]", L"[lb]磅", L"[kg]", L"0.4536", L"2.2046"},
    {L"[t]吨", L"[t]吨", L"[kg]", L"1000", L"0.001"},
};
constexpr UnitPair kPressure[] = {
    {L"[kgf/cm^2]  <==> [pa]", L"[kgf/cm^2]", L"[pa]", L"98067", L"1.020E-05"},
    {L"[mmH2O]     <==> [pa]", L"[mmH2O]", L"[pa]", L"9.8067", L"0.102"},
    {L"[mmHg](torr)<==> [pa]", L"[mmHg](torr)", L"[pa]", L"133.332", L"7.500E-03"},
    {L"[inH2O]     <==> [pa]", L"[inH2O]", L"[pa]", L"249.089", L"4.015E-03"},
    {L"[lbf/in^2]   <==> [pa]", L"[lbf/in^2]", L"[pa]", L"6894.76", L"1.450E-04"},
    {L"[bar]       <==> [pa]", L"[bar]", L"[pa]", L"100000", L"1.000E-05"},
    {L"[atm]大气压 <==> [pa]", L"[atm]大气压", L"[pa]", L"101325", L"9.869E-06"},
};
constexpr UnitPair kDensity[] = {
    {L"[lb/in^3]  <==> [kg/m^3]", L"[lb/in^3]", L"[kg/m^3]", L"27679", L"3.613E-05"},
    {L"[lb/ft^3]  <==> [kg/m^3]", L"[lb/ft^3]", L"[kg/m^3]", L"16.0185", L"0.0624"},
};
// Btu/(lb*F) carries the factors of kcal/(kg*C).
constexpr UnitPair kSpecificHeat[] = {
    {L"[kcal/(kg*C)]  <==> [J/(kg*C)]", L"[kcal/(kg*CI)]", L"[J/(kg*C)]", L"4186.8", L"2.388E-04"},
    {L"[Btu/(lb*F)]   <==> [J/(kg*C)]", L"[Btu/(lb*F)]", L"[J/(kg*C)]", L"4186.8", L"2.388E-04"},
    {L"[ft*lbf/(lb*F)]<==> [J/(kg*C)]", L"[ft*lbf/(lb*F)]", L"[J/(kg*C)]", L"5.3803", L"0.1859"},
    {L"[kgf*m/(kg*C)] <==> [J/(kg*C)]", L"[kgf*m/(kg*C)]", L"[J/(kg*C)]", L"9.8067", L"0.102"},
};
constexpr UnitPair kPower[] = {
    {L"[U.S.RT]  <==> [W]", L"[U.S.RT]", L"[W]", L"3516.91", L"2.843E-04"},
    {L"[Btu/h]   <==> [W]", L"[Btu/h]", L"[W]", L"0.2931", L"3.4118"},
    {L"[kcal/h]  <==> [W]", L"[kcal/h]", L"[W]", L"1.163", L"0.8599"},
    {L"[U.K.RT]  <==> [W]", L"[U.K.RT]", L"[W]", L"4175.3653", L"2.395E-04"},
};

constexpr std::array<std::span<const UnitPair>, kCategoryCount> kCategories = {
    kTemperature, kConductivity, kLength,   kArea,         kVolume, kVelocity,
    kMass,        kPressure,     kDensity, kSpecificHeat, kPower,
};

// The second forms: opening the area category shows the square-inch factor as "6.452E-04",
// and a direction change shows the inch-of-water factor as "249.098".
constexpr int kAreaCategory = 3, kSquareInch = 0;
constexpr int kPressureCategory = 7, kInchOfWater = 3;

}  // namespace

std::span<const UnitPair> categoryPairs(int category) {
    if (category < 0 || category >= kCategoryCount) return {};
    return kCategories[static_cast<size_t>(category)];
}

std::wstring_view factorText(int category, int item, Direction direction, LabelPath path) {
    auto pairs = categoryPairs(category);
    if (item < 0 || static_cast<size_t>(item) >= pairs.size()) return {};
    const UnitPair& pair = pairs[static_cast<size_t>(item)];
    if (direction == Direction::FromSecond) return pair.reverse;
    if (path == LabelPath::CategoryOpened && category == kAreaCategory && item == kSquareInch)
        return L"6.452E-04";
    if (path == LabelPath::DirectionChanged && category == kPressureCategory && item == kInchOfWater)
        return L"249.098";
    return pair.forward;
}

}  // namespace vrn2::units
