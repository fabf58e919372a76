#include "drawing/trace_records.h"

#include <cwctype>

#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "drawing/equipment_probe.h"
#include "drawing/grid_file.h"
#include "drawing/pipe_entities.h"
#include "drawing/pipe_layers.h"
#include "drawing/pipe_trace.h"
#include "frame/entity_list.h"
#include "frame/file_handle.h"
#include "frame/list_builder.h"
#include "frame/selection_set.h"
#include "frame/text_file.h"

namespace vrn2::drawing {
namespace {

constexpr std::size_t kDiameterChars = 6;
constexpr wchar_t kMsgNoBreakLengthFile[] = L"Can't open file \"_brklen.dat\"!";

std::wstring upper(std::wstring text) {
    for (wchar_t& c : text) c = static_cast<wchar_t>(std::towupper(c));
    return text;
}

bool matches(const std::wstring& name, const wchar_t* pattern) {
    return acutWcMatch(upper(name).c_str(), pattern) == RTNORM;
}

// The first string (group 1000) of the entity's extended data, of whichever application.
std::optional<std::wstring> firstDataString(const ads_name entity, const ACHAR* application) {
    const EntityList list(entity, application);
    const resbuf* rb = list.find(-3);
    for (; rb; rb = rb->rbnext)
        if (rb->restype == 1000) return std::wstring(rb->resval.rstring);
    return std::nullopt;
}

bool pipeEnds(const ads_name entity, const std::wstring& type, PipeSegment& ends) {
    const auto pipe = type == L"LINE" ? linePipe(entity) : dataPipe(entity);
    if (pipe) ends = *pipe;
    return pipe.has_value();
}

std::optional<float> scannedBreakLength(const std::string& key) {
    FileHandle file(L"_brklen.dat", L"r");
    if (!file) {
        acedAlert(kMsgNoBreakLengthFile);
        return std::nullopt;
    }
    std::wstring text;
    if (!readWideText(file.get(), text)) return std::nullopt;
    return findBreakLength(asciiText(text), key);
}

// The first entity of the given kind crossing the window, or none.
std::optional<std::wstring> diameterInWindow(const CrossingWindow& window, const ListBuilder& filter) {
    ads_point first = {window.first.x, window.first.y, 0.0}, second = {window.second.x, window.second.y, 0.0};
    SelectionSet found;
    if (found.select(L"C", first, second, filter.get()) != RTNORM || found.length() == 0) return std::nullopt;
    ads_name entity;
    if (!found.at(0, entity)) return std::nullopt;
    return firstDataString(entity, L"*").value_or(kDefaultEquipmentDiameter);
}

}  // namespace

RecordsStatus readTraceRecords(const ads_name candidates, const std::wstring& layer, PipeClass pipeClass,
                               TraceRecords& records) {
    long count = 0;
    if (acedSSLength(candidates, &count) != RTNORM) return RecordsStatus::Ready;
    for (long i = 0; i < count; ++i) {
        ads_name entity;
        if (acedSSName(candidates, i, entity) != RTNORM) continue;
        const EntityList list(entity);
        if (list.layer() != layer) continue;
        const std::wstring type = list.type();
        const std::wstring block = type == L"INSERT" ? list.text(2).value_or(L"") : L"";
        const bool isPipe = (type == L"POLYLINE" && pipeClass == PipeClass::PolylinesAndFittings) ||
                            (type == L"LINE" && pipeClass == PipeClass::LinesAndFittings) ||
                            (type == L"INSERT" && upper(block) == kFittingBlock);
        if (isPipe) {
            PipeRecord record{{}, firstDataString(entity, L"GUANJ").value_or(L"").substr(0, kDiameterChars),
                              {entity[0], entity[1]}};
            if (!pipeEnds(entity, type, record.ends)) continue;
            if (records.pipes.size() >= kMaxTracePipes) return RecordsStatus::TooManyPipes;
            records.pipes.push_back(record);
        } else if (type == L"INSERT" && matches(block, kEquipmentBlocks)) {
            if (records.equipment.size() >= kMaxTraceEquipment) return RecordsStatus::TooManyEquipment;
            const Point3 at = list.point(10).value_or(Point3{});
            records.equipment.push_back({{at.x, at.y, at.z}, {entity[0], entity[1]}});
        }
    }
    return RecordsStatus::Ready;
}

std::wstring equipmentDiameter(const ads_name equipment) {
    const EntityList list(equipment);
    const std::wstring block = list.text(2).value_or(L"");
    const std::wstring layer = list.layer();
    const double xScale = list.real(41).value_or(1.0), rotation = list.real(50).value_or(0.0);
    const Point3 at = list.point(10).value_or(Point3{});
    const PlanPoint insertion{at.x, at.y};
    ListBuilder filter;
    if (xScale >= kSmallEquipmentScale) {
        const double factor = breakLengthFactor(scannedBreakLength(breakLengthKey(asciiText(block))));
        if (!filter.addString(0, L"POLYLINE") || !filter.addString(8, layer.c_str())) return kDefaultEquipmentDiameter;
        for (bool opposite : {false, true}) {
            const auto window = polylineProbeWindow(insertion, rotation, xScale, factor, opposite);
            if (const auto diameter = diameterInWindow(window, filter)) return *diameter;
        }
        return kDefaultEquipmentDiameter;
    }
    if (!filter.addString(0, L"INSERT") || !filter.addString(2, kSmallFittingBlocks) ||
        !filter.addString(8, layer.c_str()))
        return kDefaultEquipmentDiameter;
    return diameterInWindow(fittingProbeWindow(insertion), filter).value_or(kDefaultEquipmentDiameter);
}

}  // namespace vrn2::drawing
