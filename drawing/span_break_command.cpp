// break_p: removes what lies of the polyline pipes on a layer within the span p1–p2. A pipe
// wholly inside is erased; one that reaches past an end of the span is cut with BreakLine of
// the suite's helper module, so that only its part inside the span goes.
#include <array>
#include <vector>

#include "MvxArxFun17.h"
#include "acdbads.h"
#include "acedads.h"
#include "adscodes.h"
#include "drawing/drawing_handlers.h"
#include "drawing/span_classes.h"
#include "frame/entity_list.h"
#include "frame/host_commands.h"
#include "frame/list_builder.h"
#include "frame/selection_set.h"

namespace vrn2 {
namespace {

using drawing::SpacePoint;

constexpr wchar_t kMsgFirstNotPoint[] = L"第1个参数不是三维点!";
constexpr wchar_t kMsgSecondNotPoint[] = L"第2个参数不是三维点!";
constexpr wchar_t kMsgThirdNotString[] = L"第3个参数不是string!";

bool nextPoint(const resbuf*& rb, SpacePoint& p, const wchar_t* message) {
    if (!rb || rb->restype != RT3DPOINT) return acedAlert(message), false;
    p = {rb->resval.rpoint[0], rb->resval.rpoint[1], rb->resval.rpoint[2]};
    rb = rb->rbnext;
    return true;
}

// The first two vertices of an old-style polyline.
bool firstSegment(const ads_name pipe, SpacePoint& c, SpacePoint& d) {
    ads_name at = {pipe[0], pipe[1]}, next;
    SpacePoint* wanted[2] = {&c, &d};
    for (int found = 0; found < 2;) {
        if (acdbEntNext(at, next) != RTNORM) return false;
        const EntityList vertex(next);
        if (vertex.type() != L"VERTEX") return false;
        const Point3 p = vertex.point(10).value_or(Point3{});
        *wanted[found++] = {p.x, p.y, p.z};
        acdbNameSet(next, at);
    }
    return true;
}

bool selectAlongSpan(SelectionSet& pipes, const SpacePoint& p1, const SpacePoint& p2, const ACHAR* layer) {
    ListBuilder fence, filter;
    for (const drawing::PlanPoint& corner : drawing::spanFence(p1.plan(), p2.plan())) {
        ads_point p = {corner.x, corner.y, p1.z};
        if (!fence.addPoint(RT3DPOINT, p)) return false;
    }
    if (!filter.addString(0, L"POLYLINE") || !filter.addString(8, layer)) return false;
    return pipes.select(L"F", fence.get(), nullptr, filter.get()) == RTNORM;
}

void cutPipe(const ads_name pipe, const drawing::CutPoints& cut) {
    AcDbObjectId id, first, second;
    if (acdbGetObjectId(id, pipe) != Acad::eOk) return;
    BreakLine(id, AcGePoint3d(cut.first.x, cut.first.y, cut.first.z),
              AcGePoint3d(cut.second.x, cut.second.y, cut.second.z), first, second);
}

}  // namespace

int breakAlongSpan() {
    const resbuf* rb = acedGetArgs();
    SpacePoint p1, p2;
    if (!nextPoint(rb, p1, kMsgFirstNotPoint) || !nextPoint(rb, p2, kMsgSecondNotPoint)) return RTERROR;
    if (!rb || rb->restype != RTSTR) {
        acedAlert(kMsgThirdNotString);
        return RTERROR;
    }
    const ACHAR* layer = rb->resval.rstring;
    SelectionSet pipes;
    if (!selectAlongSpan(pipes, p1, p2, layer)) return RTNORM;
    // The set is read whole before anything changes: cutting replaces the pipes.
    std::vector<std::array<long, 2>> names;
    ads_name entity;
    for (long i = 0; pipes.at(i, entity); ++i) names.push_back({entity[0], entity[1]});
    HostCommands commands;
    for (const auto& n : names) {
        ads_name pipe = {n[0], n[1]};
        SpacePoint c, d;
        if (!firstSegment(pipe, c, d)) continue;
        switch (drawing::classifyAgainstSpan(p1, p2, c, d)) {
        case drawing::SpanClass::Inside: commands.run(RTSTR, L"ERASE", RTENAME, pipe, RTSTR, L""); break;
        case drawing::SpanClass::SecondEnd:
        case drawing::SpanClass::FirstEnd: cutPipe(pipe, drawing::spanCutPoints(p1, p2, c, d)); break;
        case drawing::SpanClass::Untouched: break;
        }
    }
    return RTNORM;
}

}  // namespace vrn2
