#include "psychro/chart_marks.h"

#include <string>

#include "acedads.h"
#include "frame/host_commands.h"
#include "frame/system_variables.h"

namespace vrn2 {
namespace {

// Keeps the colour of new objects while marks are drawn in the mark colour.
class MarkColour {
public:
    explicit MarkColour(HostCommands& commands) : commands_(commands) {
        saved_ = textVariable(L"CECOLOR");
        commands_.run(RTSTR, L"COLOR", RTSTR, kChartMarkColour);
    }
    ~MarkColour() {
        if (!saved_.empty()) commands_.run(RTSTR, L"COLOR", RTSTR, saved_.c_str());
    }
    MarkColour(const MarkColour&) = delete;
    MarkColour& operator=(const MarkColour&) = delete;

private:
    HostCommands& commands_;
    std::wstring saved_;
};

}  // namespace

int markChartPoint(const ads_point pt, double diameter) {
    HostCommands commands;
    MarkColour colour(commands);
    commands.run(RTSTR, L"DONUT", RTREAL, 0.0, RTREAL, diameter, RT3DPOINT, pt, RTSTR, L"");
    return commands.lastStatus();
}

int drawChartLine(const ads_point a, const ads_point b) {
    HostCommands commands;
    MarkColour colour(commands);
    commands.run(RTSTR, L"LINE", RT3DPOINT, a, RT3DPOINT, b, RTSTR, L"");
    return commands.lastStatus();
}

}  // namespace vrn2
