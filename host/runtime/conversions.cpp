// Real-to-string and string-to-real conversions in decimal and scientific units.
#include <cmath>
#include <cstdio>
#include <cwchar>
#include <cwctype>
#include <string>

#include "acdbads.h"
#include "host/boundary.h"
#include "host/runtime/host.h"

namespace {

short sysvarShort(const wchar_t* name, short fallback) {
    auto& h = host::Host::instance();
    if (!h.hasDocument()) return fallback;
    auto* v = h.current().sysvars().find(name);
    return v ? v->integer : fallback;
}

// Removes zeros as DIMZIN asks: 4 leading, 8 trailing (with the point when nothing follows).
std::wstring suppressZeros(std::wstring s, int dimzin) {
    if ((dimzin & 8) && s.find(L'.') != std::wstring::npos) {
        size_t end = s.find_first_of(L"Ee");
        std::wstring exponent = end == std::wstring::npos ? L"" : s.substr(end);
        std::wstring mantissa = s.substr(0, end);
        while (!mantissa.empty() && mantissa.back() == L'0') mantissa.pop_back();
        if (!mantissa.empty() && mantissa.back() == L'.') mantissa.pop_back();
        s = mantissa + exponent;
    }
    if (dimzin & 4) {
        if (s.rfind(L"0.", 0) == 0 && s.size() > 2) s.erase(0, 1);
        else if (s.rfind(L"-0.", 0) == 0 && s.size() > 3) s.erase(1, 1);
    }
    return s;
}

}  // namespace

namespace {
constexpr double kLargestDecimal = 1e15;
}

extern "C" int acdbRToS(ads_real val, int unit, int prec, ACHAR* str) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (!str) return RTERROR;
        if (unit == -1) unit = sysvarShort(L"LUNITS", 2);
        if (prec == -1) prec = sysvarShort(L"LUPREC", 4);
        if (prec < 0 || prec > 8 || !std::isfinite(val)) return RTERROR;
        wchar_t buf[128];
        // Decimal units print a value too large for its digits to mean anything (and too long
        // for the caller's buffer) in the scientific form.
        if (unit == 2 && std::fabs(val) >= kLargestDecimal) unit = 1;
        if (unit == 2) {
            // Round half away from zero at the requested decimals.
            double scale = std::pow(10.0, prec);
            double rounded = std::round(val * scale) / scale;
            std::swprintf(buf, 128, L"%.*f", prec, rounded);
            if (std::wcscmp(buf, L"-0") == 0 || (buf[0] == L'-' && rounded == 0.0)) std::swprintf(buf, 128, L"%.*f", prec, 0.0);
        } else if (unit == 1) {
            std::swprintf(buf, 128, L"%.*E", prec, val);
        } else {
            return RTERROR;  // architectural, engineering and fractional units are not provided
        }
        std::wstring s = suppressZeros(buf, sysvarShort(L"DIMZIN", 0));
        std::wcscpy(str, s.c_str());
        return RTNORM;
    });
}

extern "C" int acdbDisToF(const ACHAR* str, int unit, ads_real* v) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (!str || !v) return RTERROR;
        if (unit == -1) unit = sysvarShort(L"LUNITS", 2);
        if (unit != 1 && unit != 2) return RTERROR;
        const wchar_t* p = str;
        while (std::iswspace(*p)) ++p;
        if (!*p) return RTERROR;
        wchar_t* end = nullptr;
        double value = std::wcstod(p, &end);
        if (end == p) return RTERROR;
        // wcstod accepts forms the editor does not: hexadecimal, infinities and NaN.
        for (const wchar_t* q = p; q < end; ++q)
            if (!(std::iswdigit(*q) || *q == L'.' || *q == L'+' || *q == L'-' || *q == L'e' || *q == L'E'))
                return RTERROR;
        while (std::iswspace(*end)) ++end;
        if (*end) return RTERROR;
        *v = value;
        return RTNORM;
    });
}
