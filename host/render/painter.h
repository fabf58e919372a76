// Draws the entities of model space into a cairo context whose user space is the drawing's
// plan (X right, Y up): lines, polylines with their widths and arcs, circles, arcs, texts and
// block references with their contents, each in its pen's colour and line weight.
#pragma once

#include <cairo.h>

#include <cstdint>
#include <optional>

#include "host/db/group_values.h"
#include "host/render/pen.h"
#include "host/render/text_paint.h"

namespace host::render {

class Painter {
public:
    // PIXELS_PER_MM turns line weights into device units.
    Painter(cairo_t* cr, const db::Database& db, double pixelsPerMm);
    void paintModelSpace();

private:
    void paintEntity(uint32_t index, const std::optional<Pen>& outer, int depth);
    void paintInsert(const db::GroupList& g, const Pen& pen, int depth);
    void paintDefinition(db::GroupList g, int depth);
    void paintShape(uint32_t index, const std::string& type, const db::GroupList& g, const Pen& pen);
    void usePen(const Pen& pen);

    cairo_t* cr_;
    const db::Database& db_;
    double pixelsPerMm_;
    Lettering lettering_;
};

}  // namespace host::render
