// pzjc: mode 0 marks every collision of two line pipes with a donut on layer "_TBRE"; mode 1
// cuts the lower of every two crossing polyline pipes (crossing_break_command.cpp).
#include <vector>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "drawing/collision_marks.h"
#include "drawing/drawing_handlers.h"
#include "drawing/pipe_command_support.h"
#include "drawing/pipe_entities.h"
#include "drawing/pipe_layers.h"
#include "frame/args.h"
#include "frame/host_commands.h"
#include "frame/selection_set.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMsgArgumentNeeded[] = L"Argument Needed !!";
constexpr wchar_t kMsgIllegalArgument[] = L"Illegal Argument !!";
constexpr wchar_t kMsgModeZeroOrOne[] = L"Argument should be integer 0 or 1.";
constexpr wchar_t kMsgTooManyLines[] = L"Too Many Lines( > %d) !!\n";
// Kept beside the entity limit, which always comes first.
constexpr int kMaxLines = 5000;
constexpr wchar_t kMarkLayer[] = L"_TBRE";
constexpr double kMarkInside = 50.0;
constexpr double kMarkOutside = 150.0;

bool makeMarkLayer(HostCommands& commands) {
    return commands.run(RTSTR, L"LAYER", RTSTR, L"M", RTSTR, kMarkLayer, RTSTR, L"C", RTSHORT, 1, RTSTR, kMarkLayer,
                        RTSTR, L"") &&
           commands.run(RTSTR, L"LAYER", RTSTR, L"S", RTSTR, kMarkLayer, RTSTR, L"");
}

int markCollisions(double tolerance) {
    HostCommands commands;
    SelectionSet lines;
    if (!selectPipes(lines, L"LINE", drawing::kCollisionLineLayers)) return RTERROR;
    if (!makeMarkLayer(commands)) return RTERROR;
    std::vector<drawing::PipeSegment> pipes;
    ads_name entity;
    for (long i = 0; lines.at(i, entity); ++i) {
        if (i >= kMaxLines) {
            acutPrintf(kMsgTooManyLines, kMaxLines);
            return RTERROR;
        }
        if (const auto pipe = drawing::linePipe(entity)) pipes.push_back(*pipe);
    }
    for (const drawing::PlanPoint& mark : drawing::collisionMarks(pipes, tolerance)) {
        ads_point at = {mark.x, mark.y, 0.0};
        if (!commands.run(RTSTR, L"DONUT", RTREAL, kMarkInside, RTREAL, kMarkOutside, RT3DPOINT, at, RTSTR, L""))
            return RTERROR;
    }
    return RTNORM;
}

}  // namespace

int collisionsAndBreaks() {
    ArgWalker args;
    int mode = 0;
    double value = 0.0;
    if (args.atEnd()) return failWith(kMsgArgumentNeeded);
    if (!args.nextShort(mode)) return failWith(kMsgIllegalArgument);
    if (mode != 0 && mode != 1) return failWith(kMsgModeZeroOrOne);
    if (args.atEnd()) return failWith(kMsgArgumentNeeded);
    if (!args.nextReal(value)) return failWith(kMsgIllegalArgument);
    return mode == 0 ? markCollisions(value) : breakCrossings(value);
}

}  // namespace vrn2
