// The figure of a return-air system on the i-d chart, as the textbook draws it.
#include <string>

#include "psychro/return_air_report.h"

namespace vrn2 {
namespace {

class Figure {
public:
    Figure(const ReturnAirResult& r, std::vector<ProcessChartState>& states, std::vector<ProcessChartLeg>& legs)
        : r_(r), states_(states), legs_(legs) {
        states_.clear();
        legs_.clear();
        for (const NamedAirState& s : r.states) states_.push_back({s.label, s.state.i, s.state.d});
    }
    // The index of the state LABEL, or -1 when the system has no such state.
    int at(const wchar_t* label) const {
        for (std::size_t k = 0; k < r_.states.size(); ++k)
            if (r_.states[k].label == label) return static_cast<int>(k);
        return -1;
    }
    void leg(int from, int to, bool dashed) {
        if (from >= 0 && to >= 0 && from != to) legs_.push_back({from, to, dashed});
    }
    // Arrowed lines through the states of LABELS that the system has, in that order; answers
    // the last one.
    int path(std::initializer_list<const wchar_t*> labels, int from = -1) {
        for (const wchar_t* label : labels) {
            int k = at(label);
            if (k < 0) continue;
            leg(from, k, false);
            from = k;
        }
        return from;
    }

private:
    const ReturnAirResult& r_;
    std::vector<ProcessChartState>& states_;
    std::vector<ProcessChartLeg>& legs_;
};

}  // namespace

void returnAirChart(const ReturnAirResult& r, std::vector<ProcessChartState>& states,
                    std::vector<ProcessChartLeg>& legs) {
    Figure f(r, states, legs);
    const int N = f.at(L"N");
    // Fresh air, preheated when it is cold, mixed with return air along a dashed line.
    int fresh = f.path({L"W", L"W'"});
    f.leg(fresh, N, true);
    int last;
    if (f.at(L"C2") >= 0 || (f.at(L"C1") >= 0 && f.at(L"O") >= 0)) {
        // Secondary return: the air leaving the coil is mixed with room air along L–N.
        int L = f.path({L"C1", L"D", L"L"});
        f.leg(L, N, true);
        last = f.path({L"C2", L"O"});
    } else {
        last = f.path({L"C", L"D", L"L", L"O"});
    }
    // The supply air takes up the room's loads along the ε line.
    f.leg(last, N, false);
}

}  // namespace vrn2
