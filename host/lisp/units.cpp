#include "host/lisp/units.h"

#include <cmath>
#include <cwchar>
#include <cwctype>
#include <numeric>
#include <vector>

namespace host::lisp {
namespace {

constexpr double kPi = 3.14159265358979323846;

std::wstring printf1(const wchar_t* format, int precision, double v) {
    wchar_t buf[512];
    std::swprintf(buf, 512, format, precision, v);
    return buf;
}

// Decimal text rounded half away from zero, without a negative zero.
std::wstring decimal(double v, int precision) {
    double scale = std::pow(10.0, precision);
    double rounded = std::round(v * scale) / scale;
    if (rounded == 0.0) rounded = 0.0;
    return printf1(L"%.*f", precision, rounded);
}

// " N/D" reduced, or "" for no fraction; NUMERATOR counts 1/DENOMINATOR parts.
std::wstring fraction(long long numerator, long long denominator) {
    if (numerator == 0) return L"";
    long long g = std::gcd(numerator, denominator);
    return std::to_wstring(numerator / g) + L"/" + std::to_wstring(denominator / g);
}

std::wstring wholeAndFraction(long long whole, long long numerator, long long denominator) {
    std::wstring f = fraction(numerator, denominator);
    if (f.empty()) return std::to_wstring(whole);
    return std::to_wstring(whole) + L" " + f;
}

std::wstring engineering(double inchesTotal, int precision) {
    double feet = std::floor(inchesTotal / 12.0);
    double scale = std::pow(10.0, precision);
    double inches = std::round((inchesTotal - feet * 12.0) * scale) / scale;
    if (inches >= 12.0) {
        feet += 1;
        inches = 0;
    }
    return printf1(L"%.*f", 0, feet) + L"'-" + printf1(L"%.*f", precision, inches) + L"\"";
}

std::wstring architectural(double inchesTotal, int precision) {
    long long denominator = 1LL << precision;
    long long parts = std::llround(inchesTotal * static_cast<double>(denominator));
    long long perFoot = 12 * denominator;
    long long feet = parts / perFoot, rest = parts % perFoot;
    return std::to_wstring(feet) + L"'-" + wholeAndFraction(rest / denominator, rest % denominator, denominator) + L"\"";
}

std::wstring fractional(double v, int precision) {
    long long denominator = 1LL << precision;
    long long parts = std::llround(v * static_cast<double>(denominator));
    long long whole = parts / denominator, rest = parts % denominator;
    if (whole == 0 && rest != 0) return fraction(rest, denominator);
    return wholeAndFraction(whole, rest, denominator);
}

std::wstring trim(const std::wstring& s) {
    size_t from = 0, to = s.size();
    while (from < to && std::iswspace(s[from])) ++from;
    while (to > from && std::iswspace(s[to - 1])) --to;
    return s.substr(from, to - from);
}

std::optional<double> plainNumber(const std::wstring& s) {
    if (s.empty()) return std::nullopt;
    for (wchar_t c : s)
        if (!(std::iswdigit(c) || c == L'.' || c == L'+' || c == L'-' || c == L'e' || c == L'E')) return std::nullopt;
    wchar_t* end = nullptr;
    double v = std::wcstod(s.c_str(), &end);
    if (*end || !std::isfinite(v)) return std::nullopt;
    return v;
}

// "A", "A B/C", "A-B/C" or "B/C", unsigned.
std::optional<double> numberWithFraction(const std::wstring& text) {
    std::wstring s = trim(text);
    size_t slash = s.find(L'/');
    if (slash == std::wstring::npos) return plainNumber(s);
    size_t split = s.find_last_of(L" -", slash);
    double whole = 0;
    if (split != std::wstring::npos) {
        auto w = plainNumber(trim(s.substr(0, split)));
        if (!w) return std::nullopt;
        whole = *w;
    }
    std::wstring f = s.substr(split == std::wstring::npos ? 0 : split + 1);
    slash = f.find(L'/');
    auto num = plainNumber(trim(f.substr(0, slash)));
    auto den = plainNumber(trim(f.substr(slash + 1)));
    if (!num || !den || *den == 0 || *num < 0) return std::nullopt;
    return whole + *num / *den;
}

struct Unit {
    const wchar_t* names;  // space-separated, lower-case
    int dimension;         // 0 length, 1 angle, 2 mass, 3 time
    double inBase;         // metres, radians, kilograms, seconds
};

const std::vector<Unit>& unitTable() {
    static const std::vector<Unit> table = {
        {L"inch inches in", 0, 0.0254},
        {L"foot feet ft", 0, 0.3048},
        {L"yard yards yd", 0, 0.9144},
        {L"mile miles mi", 0, 1609.344},
        {L"millimeter millimeters millimetre millimetres mm", 0, 0.001},
        {L"centimeter centimeters centimetre centimetres cm", 0, 0.01},
        {L"meter meters metre metres m", 0, 1.0},
        {L"kilometer kilometers kilometre kilometres km", 0, 1000.0},
        {L"radian radians rad", 1, 1.0},
        {L"degree degrees deg", 1, kPi / 180.0},
        {L"grad grads gradian gradians", 1, kPi / 200.0},
        {L"kilogram kilograms kg", 2, 1.0},
        {L"gram grams g", 2, 0.001},
        {L"pound pounds lb lbs", 2, 0.45359237},
        {L"second seconds sec s", 3, 1.0},
        {L"minute minutes min", 3, 60.0},
        {L"hour hours hr", 3, 3600.0},
        {L"day days", 3, 86400.0},
    };
    return table;
}

const Unit* unitNamed(const std::wstring& name) {
    std::wstring wanted;
    for (wchar_t c : trim(name)) wanted += static_cast<wchar_t>(std::towlower(c));
    for (const auto& unit : unitTable()) {
        std::wstring names = unit.names;
        size_t start = 0;
        while (start < names.size()) {
            size_t end = names.find(L' ', start);
            if (end == std::wstring::npos) end = names.size();
            if (names.compare(start, end - start, wanted) == 0) return &unit;
            start = end + 1;
        }
    }
    return nullptr;
}

// Degrees, minutes and seconds of DEGREES rounded to the precision: "45d", "45d30'",
// "45d30'15\"" or with decimals of seconds.
std::wstring dms(double degrees, int precision) {
    int secondDecimals = precision > 4 ? precision - 4 : 0;
    double perDegree = precision == 0 ? 1.0 : precision <= 2 ? 60.0 : 3600.0 * std::pow(10.0, secondDecimals);
    long long units = std::llround(degrees * perDegree);
    if (precision == 0) return std::to_wstring(units) + L"d";
    if (precision <= 2) return std::to_wstring(units / 60) + L"d" + std::to_wstring(units % 60) + L"'";
    auto scale = static_cast<long long>(std::pow(10.0, secondDecimals));
    long long seconds = units / scale, tenths = units % scale;
    std::wstring text = std::to_wstring(seconds / 3600) + L"d" + std::to_wstring(seconds / 60 % 60) + L"'" +
                        std::to_wstring(seconds % 60);
    if (secondDecimals > 0) {
        std::wstring digits = std::to_wstring(tenths);
        text += L"." + std::wstring(static_cast<size_t>(secondDecimals) - digits.size(), L'0') + digits;
    }
    return text + L"\"";
}

// "N 45d0'0\" E": the bearing from north or south toward east or west.
std::wstring surveyor(double degrees, int precision) {
    bool north = degrees <= 180.0;
    double fromAxis;
    bool east;
    if (degrees <= 90.0) fromAxis = 90.0 - degrees, east = true;
    else if (degrees <= 180.0) fromAxis = degrees - 90.0, east = false;
    else if (degrees <= 270.0) fromAxis = 270.0 - degrees, east = false;
    else fromAxis = degrees - 270.0, east = true;
    std::wstring text = dms(fromAxis, precision);
    if (dms(0.0, precision) == text) return north ? L"N" : L"S";
    if (dms(90.0, precision) == text) return east ? L"E" : L"W";
    return std::wstring(north ? L"N " : L"S ") + text + (east ? L" E" : L" W");
}

}  // namespace

std::optional<std::wstring> formatDistance(double value, int mode, int precision) {
    if (!std::isfinite(value) || precision < 0 || precision > 8) return std::nullopt;
    std::wstring sign = value < 0 ? L"-" : L"";
    double magnitude = std::fabs(value);
    std::wstring body;
    switch (mode) {
    case 1: return printf1(L"%.*E", precision, value);
    case 2: return decimal(value, precision);
    case 3: body = engineering(magnitude, precision); break;
    case 4: body = architectural(magnitude, precision); break;
    case 5: body = fractional(magnitude, precision); break;
    default: return std::nullopt;
    }
    // A value that rounds to zero is written without a sign.
    double steps = mode == 3 ? std::pow(10.0, precision) : static_cast<double>(1LL << precision);
    return std::llround(magnitude * steps) == 0 ? body : sign + body;
}

std::optional<double> parseDistance(const std::wstring& text) {
    std::wstring s = trim(text);
    double sign = 1.0;
    if (!s.empty() && (s[0] == L'-' || s[0] == L'+')) {
        sign = s[0] == L'-' ? -1.0 : 1.0;
        s = trim(s.substr(1));
    }
    if (s.empty() || s[0] == L'-' || s[0] == L'+') return std::nullopt;
    double feet = 0;
    size_t tick = s.find(L'\'');
    if (tick != std::wstring::npos) {
        auto f = numberWithFraction(s.substr(0, tick));
        if (!f) return std::nullopt;
        feet = *f;
        s = trim(s.substr(tick + 1));
        if (!s.empty() && s[0] == L'-') s = trim(s.substr(1));
        if (s.empty()) return sign * feet * 12.0;
    }
    if (!s.empty() && s.back() == L'"') s = trim(s.substr(0, s.size() - 1));
    auto inches = numberWithFraction(s);
    if (!inches || (tick != std::wstring::npos && *inches < 0)) return std::nullopt;
    return sign * (feet * 12.0 + *inches);
}

std::optional<std::wstring> formatAngle(double radians, int mode, int precision) {
    if (!std::isfinite(radians) || precision < 0 || precision > 8) return std::nullopt;
    double degrees = std::fmod(radians * 180.0 / kPi, 360.0);
    if (degrees < 0) degrees += 360.0;
    std::wstring text;
    switch (mode) {
    case 0: text = decimal(degrees, precision); break;
    case 1: text = dms(degrees, precision); break;
    case 2: text = decimal(degrees * 400.0 / 360.0, precision) + L"g"; break;
    case 3: text = decimal(degrees * kPi / 180.0, precision) + L"r"; break;
    case 4: return surveyor(degrees, precision);
    default: return std::nullopt;
    }
    // A value that rounds up to the full circle is the zero angle.
    std::optional<std::wstring> full = mode == 1 ? dms(360.0, precision)
                                     : mode == 0 ? decimal(360.0, precision)
                                     : mode == 2 ? decimal(400.0, precision) + L"g"
                                                 : decimal(2 * kPi, precision) + L"r";
    return text == *full ? *formatAngle(0.0, mode, precision) : text;
}

std::optional<double> convertUnits(double value, const std::wstring& from, const std::wstring& to) {
    const Unit* a = unitNamed(from);
    const Unit* b = unitNamed(to);
    if (!a || !b || a->dimension != b->dimension) return std::nullopt;
    return value * a->inBase / b->inBase;
}

}  // namespace host::lisp
