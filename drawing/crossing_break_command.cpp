// pzjc mode 1: every gap is worked out before the first cut, then each is cut with BREAK on
// the pipe itself (by name, both points through First), so that the lower pipe is cut and not
// whatever a pick at the crossing would find. Breaking an old-style polyline replaces it by
// new pieces, so each pipe's current pieces are followed and a later gap goes to the piece
// that lies under it.
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "drawing/crossing_breaks.h"
#include "drawing/pipe_command_support.h"
#include "drawing/pipe_entities.h"
#include "drawing/pipe_layers.h"
#include "frame/entity_list.h"
#include "frame/host_commands.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMsgTooManyPlines[] = L"Too Many Plines( > %d) !!\n";
constexpr wchar_t kMsgTooManyBreaks[] = L"Too Many Break Points( > %d) !!\n";
// Kept beside the entity limit, which always comes first.
constexpr int kMaxPlines = 5000;

using Name = std::array<long, 2>;

std::wstring typeOf(const Name& n) {
    ads_name e = {n[0], n[1]};
    return EntityList(e).type();
}

// The plan distance from P to the polyline N's vertex path.
double distanceToPolyline(const Name& n, drawing::PlanPoint p) {
    ads_name at = {n[0], n[1]}, next;
    std::vector<drawing::PlanPoint> vertices;
    while (acdbEntNext(at, next) == RTNORM) {
        const EntityList vertex(next);
        if (vertex.type() != L"VERTEX") break;
        if (const auto v = vertex.point(10)) vertices.push_back({v->x, v->y});
        acdbNameSet(next, at);
    }
    double best = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i + 1 < vertices.size(); ++i) {
        const auto a = vertices[i], b = vertices[i + 1];
        const double dx = b.x - a.x, dy = b.y - a.y, length2 = dx * dx + dy * dy;
        const double t = length2 > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length2, 0.0, 1.0) : 0.0;
        best = std::min(best, std::hypot(a.x + t * dx - p.x, a.y + t * dy - p.y));
    }
    return best;
}

std::size_t pieceUnder(const std::vector<Name>& pieces, drawing::PlanPoint p) {
    std::size_t best = 0;
    double nearest = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const double d = pieces.size() == 1 ? 0.0 : distanceToPolyline(pieces[i], p);
        if (d < nearest) nearest = d, best = i;
    }
    return best;
}

// The polylines made after LAST (the drawing's last entity before a command).
std::vector<Name> polylinesAfter(const ads_name last) {
    std::vector<Name> made;
    ads_name at = {last[0], last[1]}, next;
    while (acdbEntNext(at, next) == RTNORM) {
        if (typeOf({next[0], next[1]}) == L"POLYLINE") made.push_back({next[0], next[1]});
        acdbNameSet(next, at);
    }
    return made;
}

void cutGap(HostCommands& commands, std::vector<Name>& pieces, const drawing::Gap& gap) {
    if (pieces.empty()) return;
    const drawing::PlanPoint middle{(gap.first.x + gap.second.x) / 2, (gap.first.y + gap.second.y) / 2};
    const std::size_t index = pieceUnder(pieces, middle);
    ads_name piece = {pieces[index][0], pieces[index][1]}, last = {0, 0};
    acdbEntLast(last);
    ads_point first = {gap.first.x, gap.first.y, gap.first.z};
    ads_point second = {gap.second.x, gap.second.y, gap.second.z};
    if (!commands.run(RTSTR, L"BREAK", RTENAME, piece, RTSTR, L"F", RT3DPOINT, first, RT3DPOINT, second)) {
        acedCommand(RTNONE);  // cancels what the failed BREAK still waits for
        return;
    }
    pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(index));
    for (const Name& made : polylinesAfter(last)) pieces.push_back(made);
    // A piece broken in place (a light-weight polyline keeps its name) is still there.
    if (typeOf({piece[0], piece[1]}) == L"POLYLINE" || typeOf({piece[0], piece[1]}) == L"LWPOLYLINE")
        pieces.push_back({piece[0], piece[1]});
}

}  // namespace

int breakCrossings(double radius) {
    HostCommands commands;
    SelectionSet polylines;
    if (!selectPipes(polylines, L"POLYLINE", drawing::kBreakPolylineLayers)) return RTERROR;
    std::vector<drawing::PipeSegment> pipes;
    std::vector<Name> names;
    ads_name entity;
    for (long i = 0; polylines.at(i, entity); ++i) {
        if (i >= kMaxPlines) {
            acutPrintf(kMsgTooManyPlines, kMaxPlines);
            return RTERROR;
        }
        if (const auto pipe = drawing::dataPipe(entity)) {
            pipes.push_back(*pipe);
            names.push_back({entity[0], entity[1]});
        }
    }
    const drawing::BreakPlan plan = drawing::planCrossingBreaks(pipes, radius);
    if (plan.status == drawing::BreakPlanStatus::TooManyBreaks) {
        acutPrintf(kMsgTooManyBreaks, static_cast<int>(drawing::kMaxBreakPairs));
        return RTERROR;
    }
    std::vector<std::vector<Name>> pieces;
    for (const Name& n : names) pieces.push_back({n});
    for (const drawing::PipeBreak& cut : plan.breaks) cutGap(commands, pieces[cut.pipe], cut.gap);
    return RTNORM;
}

}  // namespace vrn2
