#include "psychro/chart_state.h"

#include "acutads.h"
#include "adscodes.h"
#include "frame/doc_data.h"
#include "psychro/id_chart.h"

namespace vrn2 {

DrawnChart& drawnChart() { return documentState<DrawnChart>(); }

std::vector<AirState>& calculatedStates() {
    static std::vector<AirState> states;
    return states;
}

void keepCalculatedState(const AirState& state) {
    auto& states = calculatedStates();
    if (states.size() >= static_cast<size_t>(kMaxCalculatedStates)) states.erase(states.begin());
    states.push_back(state);
}

ChartRequest& lastChartRequest() {
    static ChartRequest request;
    return request;
}

bool chartIsDrawn() {
    if (idChart().drawn) return true;
    acutPrintf(L"先生成焓湿图.");
    return false;
}

bool chartAirStateAt(const IdChart& chart, double x, double y, AirState& state) {
    state = AirState{};
    state.B = chart.B;
    chartStateAt(chart, x, y, state.i, state.d);
    return StateFromEnthalpyMoisture(state) == RTNORM;
}

}  // namespace vrn2
