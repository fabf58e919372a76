#include "drawing/pipe_entities.h"

#include "frame/entity_list.h"

namespace vrn2::drawing {
namespace {

SpacePoint space(const Point3& p) { return {p.x, p.y, p.z}; }

std::optional<Point3> dataPoint(const ads_name entity, const ACHAR* application) {
    const EntityList list(entity, application);
    // Only this application's data is read, so the first 1010 group is its point.
    return list.valid() ? list.point(1010) : std::nullopt;
}

}  // namespace

std::optional<PipeSegment> linePipe(const ads_name entity) {
    const EntityList list(entity);
    const auto start = list.point(10), end = list.point(11);
    if (!start || !end) return std::nullopt;
    return PipeSegment{space(*start), space(*end)};
}

std::optional<PipeSegment> dataPipe(const ads_name entity) {
    const auto start = dataPoint(entity, L"STARTP"), end = dataPoint(entity, L"ENDP");
    if (!start || !end) return std::nullopt;
    return PipeSegment{space(*start), space(*end)};
}

}  // namespace vrn2::drawing
