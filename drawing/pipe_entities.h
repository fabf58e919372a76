// Reading pipes from the drawing: the ends of a line pipe from its own groups, those of a
// polyline pipe or a fitting from its "STARTP" and "ENDP" data, never from its vertices.
#pragma once

#include <optional>

#include "adsdef.h"
#include "drawing/plan_geometry.h"

namespace vrn2::drawing {

std::optional<PipeSegment> linePipe(const ads_name entity);
std::optional<PipeSegment> dataPipe(const ads_name entity);

}  // namespace vrn2::drawing
