// gdsx: traces the pipe run connected to a start point on the layer of a picked pipe. What the
// run reaches moves from the candidate set to the reached set and is highlighted; mode 0 also
// answers the run's pipes and the equipment on it, relative to the start and scaled.
#include <cwctype>
#include <string>
#include <vector>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "drawing/drawing_handlers.h"
#include "drawing/pipe_command_support.h"
#include "drawing/pipe_layers.h"
#include "drawing/pipe_trace.h"
#include "drawing/trace_records.h"
#include "frame/args.h"
#include "frame/entity_list.h"
#include "frame/list_builder.h"

namespace vrn2 {
namespace {

using drawing::SpacePoint;

constexpr wchar_t kMsgArgumentsNeeded[] = L"Arguments Needed !!";
constexpr wchar_t kMsgMoreArguments[] = L"More arguments Needed !!";
constexpr wchar_t kMsgIllegalArgument[] = L"Illegal Argument !!";
constexpr wchar_t kMsgModeZeroOrOne[] = L"Funtion code should be integer 0 or 1.";
constexpr wchar_t kMsgTooManyPipes[] = L"Too Many GD!!";
constexpr wchar_t kMsgTooManyEquipment[] = L"Too Many Equipments!!";
constexpr wchar_t kMsgNoMemory[] = L"Not have enough memory!!";
constexpr int kHighlight = 3;

struct TraceArguments {
    int mode = 0;
    ads_point base = {0, 0, 0};
    ads_name pipe = {0, 0};
    ads_name inset = {0, 0};
    ads_name outset = {0, 0};
    double scale = 1.0;
};

// Each argument after the mode: missing or of another type fails with its message.
bool nextOfType(ArgWalker& args, int type, const resbuf*& value) {
    if (args.atEnd()) return failWith(kMsgMoreArguments), false;
    const bool point = type == RT3DPOINT && args.peekType() == RTPOINT;
    if (args.peekType() != type && !point) return failWith(kMsgIllegalArgument), false;
    value = args.next();
    return true;
}

bool readArguments(TraceArguments& a) {
    ArgWalker args;
    if (args.atEnd()) return failWith(kMsgArgumentsNeeded), false;
    if (!args.nextShort(a.mode)) return failWith(kMsgIllegalArgument), false;
    if (a.mode != 0 && a.mode != 1) return failWith(kMsgModeZeroOrOne), false;
    const resbuf* v = nullptr;
    if (!nextOfType(args, RT3DPOINT, v)) return false;
    a.base[0] = v->resval.rpoint[0], a.base[1] = v->resval.rpoint[1];
    a.base[2] = v->restype == RT3DPOINT ? v->resval.rpoint[2] : 0.0;
    if (!nextOfType(args, RTENAME, v)) return false;
    acdbNameSet(v->resval.rlname, a.pipe);
    if (!nextOfType(args, RTPICKS, v)) return false;
    acdbNameSet(v->resval.rlname, a.inset);
    if (!nextOfType(args, RTPICKS, v)) return false;
    acdbNameSet(v->resval.rlname, a.outset);
    if (!nextOfType(args, RTREAL, v)) return false;
    a.scale = v->resval.rreal;
    return true;
}

std::wstring upper(std::wstring text) {
    for (wchar_t& c : text) c = static_cast<wchar_t>(std::towupper(c));
    return text;
}

void moveToReached(const TraceArguments& a, const drawing::EntityName& n) {
    ads_name entity = {n[0], n[1]}, result;
    acedSSAdd(entity, a.outset, result);
    acedSSDel(entity, a.inset);
    acedRedraw(entity, kHighlight);
}

bool addPoint(ListBuilder& list, const SpacePoint& p) {
    ads_point value = {p.x, p.y, p.z};
    return list.addPoint(RT3DPOINT, value);
}

bool addPipeEntry(ListBuilder& list, const TraceArguments& a, const drawing::PipeRecord& pipe) {
    const SpacePoint base{a.base[0], a.base[1], a.base[2]};
    return list.add(RTLB) && addPoint(list, drawing::entryPoint(pipe.ends.start, base, a.scale)) &&
           addPoint(list, drawing::entryPoint(pipe.ends.end, base, a.scale)) &&
           list.addReal(RTREAL, drawing::entryLength(pipe.ends, a.scale)) &&
           list.addString(RTSTR, pipe.diameter.c_str()) && list.add(RTLE);
}

bool addEquipmentEntry(ListBuilder& list, const TraceArguments& a, const drawing::EntityName& n) {
    ads_name entity = {n[0], n[1]};
    const EntityList groups(entity);
    const EntityList mark(entity, L"BMARK"), connection(entity, L"INSP");
    const Point3 insp = connection.point(1010).value_or(Point3{});
    const std::wstring markText = mark.find(-3) ? mark.text(1000).value_or(L"") : L"";
    const SpacePoint base{a.base[0], a.base[1], a.base[2]};
    return list.add(RTLB) && list.addString(RTSTR, markText.c_str()) &&
           list.addString(RTSTR, groups.text(2).value_or(L"").c_str()) &&
           addPoint(list, drawing::entryPoint({insp.x, insp.y, insp.z}, base, a.scale)) &&
           list.addReal(RTREAL, groups.real(50).value_or(0.0)) && list.addReal(RTREAL, groups.real(41).value_or(1.0)) &&
           list.addReal(RTREAL, groups.real(42).value_or(1.0)) && list.addReal(RTREAL, groups.real(43).value_or(1.0)) &&
           list.addString(RTSTR, drawing::equipmentDiameter(entity).c_str()) && list.add(RTLE);
}

// The result: both sets, then each entry list; an empty one as a list holding only nil.
int answer(const TraceArguments& a, ListBuilder& pipes, ListBuilder& equipment) {
    ListBuilder result;
    bool ok = result.addName(RTPICKS, a.inset) && result.addName(RTPICKS, a.outset);
    for (ListBuilder* entries : {&pipes, &equipment}) {
        ok = ok && result.add(RTLB);
        if (entries->empty()) ok = ok && result.add(RTNIL);
        else result.splice(entries->release());
        ok = ok && result.add(RTLE);
    }
    if (!ok) return failWith(kMsgNoMemory);
    acedRetList(result.get());
    return RTNORM;
}

}  // namespace

int tracePipeRun() {
    TraceArguments a;
    if (!readArguments(a)) return RTERROR;
    const EntityList picked(a.pipe);
    const std::wstring layer = picked.layer();
    acedRedraw(a.pipe, kHighlight);
    ListBuilder pipeEntries, equipmentEntries;
    if (a.mode == 0 && acutWcMatch(upper(layer).c_str(), drawing::kTracedPipeLayers) != RTNORM)
        return answer(a, pipeEntries, equipmentEntries);

    const auto pipeClass = a.mode == 1 && picked.type() != L"POLYLINE" ? drawing::PipeClass::LinesAndFittings
                                                                        : drawing::PipeClass::PolylinesAndFittings;
    drawing::TraceRecords records;
    switch (drawing::readTraceRecords(a.inset, layer, pipeClass, records)) {
    case drawing::RecordsStatus::TooManyPipes: return failWith(kMsgTooManyPipes);
    case drawing::RecordsStatus::TooManyEquipment: return failWith(kMsgTooManyEquipment);
    case drawing::RecordsStatus::Ready: break;
    }

    std::vector<drawing::PipeSegment> segments;
    for (const auto& record : records.pipes) segments.push_back(record.ends);
    std::vector<bool> reached(segments.size(), false);
    for (const drawing::TraceStep& step : drawing::tracePipeRun(segments, {a.base[0], a.base[1], a.base[2]})) {
        const auto& record = records.pipes[step.pipe];
        reached[step.pipe] = true;
        if (a.mode == 0 && step.entry && !addPipeEntry(pipeEntries, a, record))
            return failWith(kMsgNoMemory);
        moveToReached(a, record.name);
    }

    std::vector<SpacePoint> connections;
    for (const auto& e : records.equipment) connections.push_back(e.insertion);
    const auto found = drawing::equipmentOnRun(connections, segments, reached);
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (found[i] < 0) continue;
        moveToReached(a, records.equipment[i].name);
        if (a.mode == 0 && !addEquipmentEntry(equipmentEntries, a, records.equipment[i].name))
            return failWith(kMsgNoMemory);
    }
    return answer(a, pipeEntries, equipmentEntries);
}

}  // namespace vrn2
