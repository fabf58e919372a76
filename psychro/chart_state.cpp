#include "psychro/chart_state.h"

#include "frame/doc_data.h"

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

}  // namespace vrn2
