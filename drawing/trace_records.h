// The records gdsx traces over, read from the candidate set: pipes (polylines or lines, and
// "_PLB2" fittings) and equipment, each only when on the trace layer; and the diameter of the
// pipe found beside an equipment insert.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "adsdef.h"
#include "drawing/plan_geometry.h"

namespace vrn2::drawing {

using EntityName = std::array<long, 2>;

struct PipeRecord {
    PipeSegment ends;
    std::wstring diameter;  // "GUANJ", at most 6 characters
    EntityName name;
};

struct EquipmentRecord {
    SpacePoint insertion;
    EntityName name;
};

enum class PipeClass { PolylinesAndFittings, LinesAndFittings };

struct TraceRecords {
    std::vector<PipeRecord> pipes;
    std::vector<EquipmentRecord> equipment;
};

enum class RecordsStatus { Ready, TooManyPipes, TooManyEquipment };

// Walks CANDIDATES and keeps what lies on LAYER exactly.
RecordsStatus readTraceRecords(const ads_name candidates, const std::wstring& layer, PipeClass pipes,
                               TraceRecords& records);

// The diameter of the pipe beside the equipment insert EQUIPMENT: a polyline pipe probed on
// either side of a normal insert, a small fitting under a small one, "20.0" when none is found.
std::wstring equipmentDiameter(const ads_name equipment);

}  // namespace vrn2::drawing
