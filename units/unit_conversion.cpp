#include "units/unit_conversion.h"

#include <cwchar>

namespace vrn2::units {
namespace {

enum TemperatureItem { kFahrenheit = 0, kKelvin = 1 };

// The temperature pairs convert with their formulas, constants as written on the label.
double convertTemperature(int item, Direction direction, double t) {
    if (direction == Direction::FromSecond)
        return item == kFahrenheit ? t * 9 / 5 + 32 : t + 273;
    return item == kFahrenheit ? (t - 32) * 5 / 9 : t - 273;
}

}  // namespace

double readDecimal(std::wstring_view text) {
    std::wstring terminated(text);
    return std::wcstod(terminated.c_str(), nullptr);
}

std::wstring formatResult(double value) {
    wchar_t buffer[64];
    std::swprintf(buffer, std::size(buffer), L"%-.15g", value);
    if (std::wcschr(buffer, L'e')) std::swprintf(buffer, std::size(buffer), L"%-.10g", value);
    return buffer;
}

std::wstring_view emptySourceMessage(Direction direction) {
    return direction == Direction::FromFirst ? L"数据1无数据!" : L"数据2无数据!";
}

Conversion convert(int category, int item, Direction direction, std::wstring_view source,
                   std::wstring_view factorLabel) {
    Conversion out;
    if (source.empty()) {
        out.message = emptySourceMessage(direction);
        return out;
    }
    double value = readDecimal(source);
    double result = 0.0;
    if (category == kTemperatureCategory) {
        result = convertTemperature(item, direction, value);
    } else {
        double factor = readDecimal(factorLabel.substr(0, kFactorLabelChars));
        result = factor * value;
    }
    out.converted = true;
    out.text = formatResult(result);
    return out;
}

}  // namespace vrn2::units
