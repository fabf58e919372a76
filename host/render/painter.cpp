#include "host/render/painter.h"

#include <algorithm>
#include <cmath>

#include "host/db/database.h"
#include "host/db/entity_lists.h"
#include "host/db/shapes.h"
#include "host/render/aci.h"
#include "host/render/entry_groups.h"

namespace host::render {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kMaxNesting = 8;            // references inside blocks inside blocks ...
constexpr double kThinnestLinePx = 1.0;   // a line of weight 0 still shows
constexpr double kPointPx = 2.0;          // a POINT entity's dot

// The width of a wide polyline in drawing units: its constant width, else the widest of its
// segments' start and end widths (a taper is drawn at that width). 0 for a thin one.
double polylineWidth(const db::Database& db, uint32_t index, const std::string& type, const db::GroupList& g) {
    if (type == "LWPOLYLINE") {
        if (const db::Group* w = db::findCode(g, 43); w && w->real > 0.0) return w->real;
        double widest = 0.0;
        for (const auto& group : g)
            if (group.code == 40 || group.code == 41) widest = std::max(widest, group.real);
        return widest;
    }
    double widest = std::max(realOr(g, 40, 0.0), realOr(g, 41, 0.0));
    const db::Record& head = db.record(index);
    const auto& list = db::listOf(db, head);
    for (size_t i = static_cast<size_t>(head.pos) + 1; i < list.size(); ++i) {
        const db::Record& r = db.record(list[i]);
        if (r.kind != db::RecordKind::SubEntity || r.main != index) break;
        if (db.typeName(r) != "VERTEX") continue;
        db::GroupList vertex;
        db::decodeGroups(db, r.groups, vertex, nullptr);
        widest = std::max({widest, realOr(vertex, 40, 0.0), realOr(vertex, 41, 0.0)});
    }
    return widest;
}

// Strokes the current path with a width in device pixels, whatever the user space's scale.
void strokeInPixels(cairo_t* cr, double pixels) {
    cairo_save(cr);
    cairo_identity_matrix(cr);
    cairo_set_line_width(cr, pixels);
    cairo_stroke(cr);
    cairo_restore(cr);
}

}  // namespace

Painter::Painter(cairo_t* cr, const db::Database& db, double pixelsPerMm)
    : cr_(cr), db_(db), pixelsPerMm_(pixelsPerMm) {}

void Painter::paintModelSpace() {
    for (uint32_t e : db_.entities()) paintEntity(e, std::nullopt, 0);
}

void Painter::usePen(const Pen& pen) {
    Rgb c = aciColour(pen.colour);
    cairo_set_source_rgb(cr_, c.r, c.g, c.b);
}

void Painter::paintEntity(uint32_t index, const std::optional<Pen>& outer, int depth) {
    const db::Record& r = db_.record(index);
    const std::string& type = db_.typeName(r);
    // Attributes follow their block reference; shown unless marked invisible (flag 1).
    bool attribute = type == "ATTRIB";
    if ((r.kind != db::RecordKind::Entity && !attribute) || r.deleted) return;
    db::GroupList g;
    db::decodeGroups(db_, r.groups, g, nullptr);
    if (const db::Group* space = db::findCode(g, 67); space && space->integer == 1) return;
    if (const db::Group* flags = db::findCode(g, 70); attribute && flags && (flags->integer & 1)) return;
    std::optional<Pen> pen = entityPen(db_, g, outer);
    if (!pen) return;
    usePen(*pen);
    if (type == "TEXT" || attribute) lettering_.paintText(cr_, db_, g);
    else if (type == "ATTDEF") paintDefinition(g, depth);
    else if (type == "MTEXT") lettering_.paintMText(cr_, db_, g);
    else if (type == "INSERT") paintInsert(g, *pen, depth);
    else paintShape(index, type, g, *pen);
}

// An attribute definition shows its tag where it stands in model space; inside a block
// reference the attributes show instead.
void Painter::paintDefinition(db::GroupList g, int depth) {
    const db::Group* tag = db::findCode(g, 2);
    db::Group* value = db::findCode(g, 1);
    if (depth > 0 || !tag || !value) return;
    *value = db::stringGroup(1, tag->text);
    lettering_.paintText(cr_, db_, g);
}

void Painter::paintInsert(const db::GroupList& g, const Pen& pen, int depth) {
    const db::Group* name = db::findCode(g, 2);
    uint32_t block = name ? db_.findBlock(name->text) : db::kNone;
    if (block == db::kNone || depth >= kMaxNesting) return;
    db::GroupList begin;
    db::decodeGroups(db_, db_.record(db_.blocks()[block].begin).groups, begin, nullptr);
    const db::Group* base = db::findCode(begin, 10);
    const db::Group* at = db::findCode(g, 10);
    cairo_save(cr_);
    if (at) cairo_translate(cr_, at->point[0], at->point[1]);
    cairo_rotate(cr_, realOr(g, 50, 0.0) * kPi / 180.0);
    double sx = realOr(g, 41, 1.0), sy = realOr(g, 42, 1.0);
    if (sx != 0.0 && sy != 0.0) cairo_scale(cr_, sx, sy);
    if (base) cairo_translate(cr_, -base->point[0], -base->point[1]);
    for (uint32_t e : db_.blocks()[block].entities) paintEntity(e, pen, depth + 1);
    cairo_restore(cr_);
}

void Painter::paintShape(uint32_t index, const std::string& type, const db::GroupList& g, const Pen& pen) {
    db::Shape shape = db::shapeOf(db_, index);
    if (shape.empty()) return;
    cairo_new_path(cr_);
    for (const auto& s : shape.segments) {
        cairo_move_to(cr_, s.a.x, s.a.y);
        cairo_line_to(cr_, s.b.x, s.b.y);
    }
    for (const auto& a : shape.arcs) {
        cairo_new_sub_path(cr_);
        cairo_arc(cr_, a.c.x, a.c.y, a.r, a.start, a.end);
    }
    double width = (type == "LWPOLYLINE" || type == "POLYLINE") ? polylineWidth(db_, index, type, g) : 0.0;
    cairo_set_line_cap(cr_, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(cr_, CAIRO_LINE_JOIN_ROUND);
    double weightPx = std::max(kThinnestLinePx, pen.lineweight / 100.0 * pixelsPerMm_);
    if (width > 0.0) {
        cairo_set_line_width(cr_, width);  // drawing units, scaled with the drawing
        cairo_stroke_preserve(cr_);
    }
    strokeInPixels(cr_, weightPx);
    for (const auto& p : shape.points) {
        double x = p.x, y = p.y;
        cairo_user_to_device(cr_, &x, &y);
        cairo_save(cr_);
        cairo_identity_matrix(cr_);
        cairo_arc(cr_, x, y, kPointPx, 0.0, 2 * kPi);
        cairo_fill(cr_);
        cairo_restore(cr_);
    }
}

}  // namespace host::render
