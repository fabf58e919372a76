// The calculations of this module session, oldest first, kept for the calculation report:
// each command that computes air states records what it was given and what it found, in the
// form a report table shows (name, value, unit), plus the states it found, for the chart.
#pragma once

#include <string>
#include <vector>

#include "psychro/airstate/airstate.h"

namespace vrn2 {

// One row of an input or result table: a quantity shown with its unit and a fixed number of
// decimals (a text value, such as a season or a process kind, has an empty unit and no number).
struct JournalQuantity {
    std::wstring name;   // Chinese, as the dialog labels it, e.g. L"干球温度"
    std::wstring unit;   // e.g. L"℃", L"g/kg", L"kJ/kg", L"kW", L"kg/h", L"%", or empty
    double value = 0.0;
    int decimals = 3;
    std::wstring text;   // shown instead of the number when not empty
};

// One named state of a calculation (the room state N, the outdoor state W, a mixture C, ...).
struct JournalState {
    std::wstring label;  // e.g. L"N", L"W", L"C", L"L", L"O", L"1", L"2"
    std::wstring name;   // e.g. L"室内状态点"
    AirState state;
};

enum class JournalKind { statePoint, supplyAir, mixing, process, returnAirSystem };

struct JournalEntry {
    JournalKind kind = JournalKind::statePoint;
    std::wstring title;  // e.g. L"一次回风系统(夏季)", L"等湿加热"
    double B = 0.0;      // kPa
    std::vector<JournalQuantity> inputs;
    std::vector<JournalQuantity> results;
    std::vector<JournalState> states;
};

// The entries kept while the module is loaded, at most kMaxJournalEntries: the oldest goes
// when it is full.
inline constexpr std::size_t kMaxJournalEntries = 200;
const std::vector<JournalEntry>& calculationJournal();
void recordCalculation(JournalEntry entry);
void clearCalculationJournal();

}  // namespace vrn2
