#include "psychro/chart_marks.h"

#include <cstdlib>
#include <string>

#include "acedads.h"
#include "frame/command_environment.h"

namespace vrn2 {
namespace {

// Keeps the colour of new objects while marks are drawn in the mark colour.
class MarkColour {
public:
    MarkColour() {
        resbuf rb;
        if (acedGetVar(L"CECOLOR", &rb) == RTNORM && rb.restype == RTSTR && rb.resval.rstring) {
            saved_ = rb.resval.rstring;
            std::free(rb.resval.rstring);
        }
        acedCommand(RTSTR, L"COLOR", RTSTR, kChartMarkColour, RTNONE);
    }
    ~MarkColour() {
        if (!saved_.empty()) acedCommand(RTSTR, L"COLOR", RTSTR, saved_.c_str(), RTNONE);
    }
    MarkColour(const MarkColour&) = delete;
    MarkColour& operator=(const MarkColour&) = delete;

private:
    std::wstring saved_;
};

}  // namespace

int markChartPoint(const ads_point pt, double diameter) {
    CommandEnvironment environment;
    MarkColour colour;
    return acedCommand(RTSTR, L"DONUT", RTREAL, 0.0, RTREAL, diameter, RT3DPOINT, pt, RTSTR, L"", RTNONE);
}

int drawChartLine(const ads_point a, const ads_point b) {
    CommandEnvironment environment;
    MarkColour colour;
    return acedCommand(RTSTR, L"LINE", RT3DPOINT, a, RT3DPOINT, b, RTSTR, L"", RTNONE);
}

}  // namespace vrn2
