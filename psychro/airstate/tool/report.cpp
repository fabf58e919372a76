#include "psychro/airstate/tool/report.h"

#include <climits>
#include <cmath>
#include <cwchar>

#include "adscodes.h"

namespace airstate_tool {
namespace {

// The alert texts are wide; the terminal and JSON take the C library's multibyte form, which
// main sets to UTF-8. A character it cannot write becomes U+FFFD.
std::string Utf8(std::wstring_view text) {
    std::string out;
    std::mbstate_t state{};
    char bytes[MB_LEN_MAX];
    for (wchar_t c : text) {
        size_t n = std::wcrtomb(bytes, c, &state);
        if (n == static_cast<size_t>(-1)) {
            out += "\xEF\xBF\xBD";
            state = {};
        } else {
            out.append(bytes, n);
        }
    }
    return out;
}

struct FieldRow {
    const char* name;
    double AirState::*member;
    const char* unit;
    const char* meaning;
    unsigned givenBit;  // the Field bit when it can be given, else 0
};

constexpr FieldRow kRows[] = {
    {"B", &AirState::B, "kPa", "atmospheric pressure", 0},
    {"pq", &AirState::pq, "Pa", "water-vapour partial pressure", 0},
    {"pb", &AirState::pb, "Pa", "saturation pressure at t", 0},
    {"t", &AirState::t, "°C", "dry-bulb temperature", kT},
    {"ts", &AirState::ts, "°C", "wet-bulb temperature", kTs},
    {"tl", &AirState::tl, "°C", "dew-point temperature", kTl},
    {"d", &AirState::d, "g/kg", "moisture content", kD},
    {"fy", &AirState::fy, "%", "relative humidity", kFy},
    {"i", &AirState::i, "kJ/kg", "specific enthalpy", kI},
    {"v", &AirState::v, "m³/kg", "specific volume", 0},
    {"db", &AirState::db, "g/kg", "saturated moisture content at t", kDb},
};

// Pads UTF-8 text to a width in characters (the units hold "°" and "³").
std::string PadRight(std::string_view utf8, std::size_t width) {
    std::size_t chars = 0;
    for (const char c : utf8)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++chars;
    return std::string(utf8) + std::string(chars < width ? width - chars : 0, ' ');
}

const char* StatusName(int status) { return status == RTNORM ? "RTNORM" : "RTERROR"; }

std::string JsonNumber(double value) {
    if (!std::isfinite(value)) return "null";
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

std::string JsonString(std::string_view utf8) {
    std::string out = "\"";
    for (const char c : utf8) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
            out += escaped;
        } else {
            out += c;
        }
    }
    return out + "\"";
}

}  // namespace

void WriteTable(std::FILE* out, const Outcome& outcome) {
    std::fprintf(out, "solver  %s\n", outcome.solver->name);
    for (const FieldRow& row : kRows) {
        const bool given = row.givenBit & outcome.givenFields;
        std::fprintf(out, "%-3s %16.6f  %s %s%s\n", row.name, outcome.state.*row.member,
                     PadRight(row.unit, 6).c_str(), row.meaning, given ? " (given)" : "");
    }
    std::fprintf(out, "status  %s (%d)\n", StatusName(outcome.status), outcome.status);
    for (const std::wstring& alert : outcome.alerts)
        std::fprintf(out, "alert   %s\n", Utf8(alert).c_str());
}

void WriteJson(std::FILE* out, const Outcome& outcome) {
    std::string json = "{\"solver\": " + JsonString(outcome.solver->name);
    for (const FieldRow& row : kRows)
        json += ", \"" + std::string(row.name) + "\": " + JsonNumber(outcome.state.*row.member);
    json += ", \"status\": " + std::to_string(outcome.status) + ", \"alerts\": [";
    for (std::size_t k = 0; k < outcome.alerts.size(); ++k)
        json += (k ? ", " : "") + JsonString(Utf8(outcome.alerts[k]));
    json += "]}\n";
    std::fputs(json.c_str(), out);
}

}  // namespace airstate_tool
