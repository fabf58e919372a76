#include "psychro/airstate/tool/report.h"

#include <charconv>
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
    unsigned bit;  // the Field bit; 0 for B, which is always known
};

constexpr FieldRow kRows[] = {
    {"B", &AirState::B, "kPa", "atmospheric pressure", 0},
    {"pq", &AirState::pq, "Pa", "water-vapour partial pressure", kPq},
    {"pb", &AirState::pb, "Pa", "saturation pressure at t", kPb},
    {"t", &AirState::t, "°C", "dry-bulb temperature", kT},
    {"ts", &AirState::ts, "°C", "wet-bulb temperature", kTs},
    {"tl", &AirState::tl, "°C", "dew-point temperature", kTl},
    {"d", &AirState::d, "g/kg", "moisture content", kD},
    {"fy", &AirState::fy, "%", "relative humidity", kFy},
    {"i", &AirState::i, "kJ/kg", "specific enthalpy", kI},
    {"v", &AirState::v, "m³/kg", "specific volume", kV},
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

// The shortest text that reads back to the same double.
std::string JsonNumber(double value) {
    if (!std::isfinite(value)) return "null";
    char text[32];
    auto [end, error] = std::to_chars(text, text + sizeof text, value);
    return error == std::errc() ? std::string(text, end) : "null";
}

// Given by the user or written by the solver: a field with a value to show.
bool Known(const FieldRow& row, const Outcome& outcome) {
    return row.bit == 0 || (row.bit & (outcome.givenFields | outcome.solver->computes));
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
        const bool given = row.bit & outcome.givenFields;
        if (!Known(row, outcome)) {
            std::fprintf(out, "%-3s %16s  %s %s (not computed by this solver)\n", row.name, "-",
                         PadRight(row.unit, 6).c_str(), row.meaning);
            continue;
        }
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
        json += ", \"" + std::string(row.name) + "\": " +
                (Known(row, outcome) ? JsonNumber(outcome.state.*row.member) : "null");
    json += ", \"status\": " + std::to_string(outcome.status) + ", \"alerts\": [";
    for (std::size_t k = 0; k < outcome.alerts.size(); ++k)
        json += (k ? ", " : "") + JsonString(Utf8(outcome.alerts[k]));
    json += "]}\n";
    std::fputs(json.c_str(), out);
}

std::string ImpossibleReason(const AirState& s) {
    char text[160];
    if (!(s.fy <= 100.0))
        std::snprintf(text, sizeof text, "relative humidity %g %% is above 100 %%", s.fy);
    else if (s.pb > 1000.0 * s.B)
        std::snprintf(text, sizeof text, "saturation pressure %g Pa at %g °C is above the atmospheric %g Pa",
                      s.pb, s.t, 1000.0 * s.B);
    else if (s.d < 0.0)
        std::snprintf(text, sizeof text, "moisture content %g g/kg is below 0", s.d);
    else
        std::snprintf(text, sizeof text, "the solver refused the state");
    return text;
}

}  // namespace airstate_tool
