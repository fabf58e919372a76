// Air-handling processes drawn on the i-d chart of the current drawing: each state a labelled
// mark, each process a line with an arrow at its end state.
#pragma once

#include <string>
#include <vector>

namespace vrn2 {

struct ProcessChartState {
    std::wstring label;  // written beside the mark, e.g. L"N", L"W", L"C", L"L", L"O"
    double i = 0.0;      // kJ/kg dry air
    double d = 0.0;      // g/kg dry air
};

struct ProcessChartLeg {
    int from = 0, to = 0;  // indexes into the states
    bool dashed = false;   // a mixing line, drawn without an arrow
};

// Whether a chart is drawn in the current drawing (nothing is drawn otherwise).
bool processChartAvailable();

// Draws STATES and LEGS on the chart with the host's commands, on the layer "ID_PROCESS".
// Without a chart it draws nothing and answers RTNORM; a state off the chart is drawn where
// the chart's mapping puts it. Answers the status of the first host command that failed.
int drawProcessOnChart(const std::vector<ProcessChartState>& states, const std::vector<ProcessChartLeg>& legs);

}  // namespace vrn2
