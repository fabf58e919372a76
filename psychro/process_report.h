// An air-handling process as the designer keeps it: the block of the process results file,
// the entry of the calculation journal, and the states and lines drawn on the i-d chart.
#pragma once

#include <string>
#include <vector>

#include "psychro/air_process.h"
#include "psychro/calculation_journal.h"
#include "psychro/process_chart.h"

namespace vrn2 {

// The designer's labels of the states on the chart and in the report.
struct ProcessLabels {
    std::wstring start = L"1";
    std::wstring end = L"2";
    std::wstring third = L"3";  // the second stream of a mixing, the apparatus dew point
};

// The given values of the process besides the start state (end temperature, φ, ε, flows ...).
std::vector<JournalQuantity> processInputQuantities(const ProcessInput& in);
// The end state and the exchanged heat and moisture (ε shown as "∞" when d does not change).
std::vector<JournalQuantity> processResultQuantities(const ProcessInput& in, const ProcessResult& r);

// The block appended to qres.txt: separator, pressure, inputs, results.
std::wstring processResultBlock(const ProcessInput& in, const ProcessResult& r, const ProcessLabels& labels);

JournalEntry processJournalEntry(const ProcessInput& in, const ProcessResult& r, const ProcessLabels& labels);

// The states and lines of the process on the chart: start and end with an arrow from the start;
// a mixing is a dashed line between the two streams with the mixture on it; a cooling to an
// apparatus dew point goes on dashed from its end to the dew point.
struct ProcessDrawing {
    std::vector<ProcessChartState> states;
    std::vector<ProcessChartLeg> legs;
};
ProcessDrawing processDrawing(const ProcessInput& in, const ProcessResult& r, const ProcessLabels& labels);

}  // namespace vrn2
