// How a return-air system is told: the rows of its inputs and results (for the result dialog,
// the process results file and the calculation journal), its block in qres.txt, and its
// figure on the i-d chart.
#pragma once

#include <string>
#include <vector>

#include "psychro/calculation_journal.h"
#include "psychro/process_chart.h"
#include "psychro/return_air.h"

namespace vrn2 {

// E.g. L"一次回风系统(夏季)".
std::wstring returnAirTitle(const ReturnAirInput& in);

std::vector<JournalQuantity> returnAirInputRows(const ReturnAirInput& in);
std::vector<JournalQuantity> returnAirResultRows(const ReturnAirInput& in, const ReturnAirResult& r);

// One state as a line of the result list and the file: label, name, t, d, φ, i.
std::wstring returnAirStateLine(const NamedAirState& s);
// One row as "name(unit): value".
std::wstring returnAirRowLine(const JournalQuantity& q);

// The block appended to qres.txt: separator, pressure, inputs, states and results.
std::wstring returnAirBlock(const ReturnAirInput& in, const ReturnAirResult& r);
// The journal entry of an accepted calculation.
JournalEntry returnAirJournalEntry(const ReturnAirInput& in, const ReturnAirResult& r);

// The system as the textbook figure draws it: every state a labelled mark, the air's path as
// arrowed lines, the mixing lines dashed (the mixture lies on them), and the room's process
// from the supply state to N.
void returnAirChart(const ReturnAirResult& r, std::vector<ProcessChartState>& states,
                    std::vector<ProcessChartLeg>& legs);

}  // namespace vrn2
