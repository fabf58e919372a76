#include "host/commands/block_explode.h"

#include <cmath>
#include <vector>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/commands/arc_geometry.h"
#include "host/commands/block_definition.h"
#include "host/commands/block_placement.h"
#include "host/commands/entity_path.h"

namespace host::cmd {
namespace {

double realOr(const resbuf* list, int code, double fallback) {
    const resbuf* g = findGroup(list, code);
    return g ? g->resval.rreal : fallback;
}

bool placementOf(const resbuf* insert, const BlockDefinition& block, Placement& p) {
    const resbuf* at = findGroup(insert, 10);
    if (!at) return false;
    for (int i = 0; i < 3; ++i) {
        p.base[i] = block.base[i];
        p.at[i] = at->resval.rpoint[i];
        p.scale[i] = realOr(insert, 41 + i, 1.0);
    }
    p.rotation = realOr(insert, 50, 0.0);
    return true;
}

// The entities that belong to the complex entity before them.
bool isPartType(const std::wstring& type) { return type == L"VERTEX" || type == L"ATTRIB" || type == L"SEQEND"; }

int countOf(const resbuf* list, int code) {
    const resbuf* g = findGroup(list, code);
    return g ? g->resval.rint : 1;
}

// The properties a polyline gives the lines and arcs of its segments.
RbPtr propertiesOf(const resbuf* polyline) {
    resbuf* head = nullptr;
    resbuf** tail = &head;
    for (const resbuf* rb = polyline; rb && rb->restype != -3; rb = rb->rbnext)
        if (isAnyOf(rb->restype, {67, 410, 8, 6, 62, 370, 48, 39, 420, 440, 60})) {
            *tail = copyNode(rb);
            tail = &(*tail)->rbnext;
        }
    return RbPtr(head);
}

// SHAPE with the polyline's PROPERTIES appended.
RbPtr withProperties(resbuf* shape, const resbuf* properties) {
    RbPtr list(shape);
    resbuf* tail = list.get();
    while (tail->rbnext) tail = tail->rbnext;
    for (const resbuf* rb = properties; rb; rb = rb->rbnext) {
        tail->rbnext = copyNode(rb);
        tail = tail->rbnext;
    }
    return list;
}

// A point of the polyline's plane in world coordinates.
void toWorld(const double* normal, const double p[3], double out[3]) {
    for (int i = 0; i < 3; ++i) out[i] = p[i];
    if (!normal) return;
    resbuf from{}, to{};
    from.restype = RT3DPOINT;
    for (int i = 0; i < 3; ++i) from.resval.rpoint[i] = normal[i];
    to.restype = RTSHORT;
    to.resval.rint = 0;
    acedTrans(p, &from, &to, 0, out);
}

// The LINE or ARC of the segment from A to B.
RbPtr segmentList(const PathVertex& a, const PathVertex& b, const double* normal, const resbuf* properties) {
    Arc2 arc;
    if (std::fabs(a.bulge) > 1e-12 && bulgeArc(a.p, b.p, a.bulge, arc)) {
        double centre[3] = {arc.centre[0], arc.centre[1], a.p[2]};
        resbuf* shape =
            normal ? acutBuildList(RTDXF0, L"ARC", 10, centre, 40, arc.radius, 50, arc.start, 51, arc.end, 210, normal, 0)
                   : acutBuildList(RTDXF0, L"ARC", 10, centre, 40, arc.radius, 50, arc.start, 51, arc.end, 0);
        return withProperties(shape, properties);
    }
    double from[3], to[3];
    toWorld(normal, a.p, from);
    toWorld(normal, b.p, to);
    return withProperties(acutBuildList(RTDXF0, L"LINE", 10, from, 11, to, 0), properties);
}

}  // namespace

bool explodeReference(const Name& insert) {
    RbPtr list = entityList(insert);
    const resbuf* name = list ? findGroup(list.get(), 2) : nullptr;
    BlockDefinition block;
    Placement p;
    if (!name || !readBlock(name->resval.rstring, block) || !placementOf(list.get(), block, p)) {
        say(L"\nThe block of this reference is missing.");
        return false;
    }
    if (countOf(list.get(), 70) > 1 || countOf(list.get(), 71) > 1) {
        say(L"\nCannot explode an array of block references.");
        return false;
    }
    const Transform placing = placingTransform(p);
    if (!placing.similarInPlan()) {
        say(L"\nCannot explode a block reference with unequal X and Y scales.");
        return false;
    }
    std::vector<RbPtr> made;
    bool paper = findGroup(list.get(), 67) && findGroup(list.get(), 67)->resval.rint == 1;
    for (const auto& e : block.entities) {
        RbPtr copy = copyForMaking(e.get());
        if (paper && !findGroup(copy.get(), 67))  // the parts stay in the reference's space
            if (resbuf* space = acutBuildList(67, 1, 0)) {
                space->rbnext = copy->rbnext;
                copy->rbnext = space;
            }
        made.push_back(std::move(copy));
    }
    // A complex entity is placed with its parts: a polyline's vertices, a reference's
    // attributes, up to their SEQEND. The block's geometry, texts included, is mirrored
    // with a mirrored reference.
    for (size_t first = 0; first < made.size();) {
        size_t end = first + 1;
        while (end < made.size() && isPartType(typeOf(made[end].get()))) ++end;
        std::vector<resbuf*> lists;
        for (size_t i = first; i < end; ++i) lists.push_back(made[i].get());
        if (!transformEntity(lists, placing, true)) {
            say(L"\nCannot explode block " + block.name + L": it holds a " + typeOf(lists[0]) +
                L" this cannot place.");
            return false;
        }
        first = end;
    }
    if (makeAllOrNone(made) != RTNORM) {
        say(L"\nCannot explode block " + block.name + L": one of its entities cannot be made here.");
        return false;
    }
    ads_name e = {insert[0], insert[1]};
    return acdbEntDel(e) == RTNORM;
}

bool explodePolyline(const Name& polyline) {
    RbPtr list = entityList(polyline, true);
    Path path;
    if (!list || !pathOf(polyline, typeOf(list.get()), list.get(), path)) {
        say(L"\nCannot explode this polyline.");
        return false;
    }
    const resbuf* z = findGroup(list.get(), 210);
    bool threeD = typeOf(list.get()) == L"POLYLINE" && (findGroup(list.get(), 70)->resval.rint & 8);
    const double* normal = z && !threeD && !(z->resval.rpoint[0] == 0 && z->resval.rpoint[1] == 0 &&
                                             z->resval.rpoint[2] > 0)
                               ? z->resval.rpoint
                               : nullptr;
    RbPtr properties = propertiesOf(list.get());
    size_t n = path.vertices.size();
    std::vector<RbPtr> segments;
    for (size_t i = 0; i < path.segments(); ++i) {
        const PathVertex& a = path.vertices[i];
        const PathVertex& b = path.vertices[(i + 1) % n];
        if (a.p[0] == b.p[0] && a.p[1] == b.p[1] && a.p[2] == b.p[2]) continue;
        segments.push_back(segmentList(a, b, normal, properties.get()));
    }
    if (makeAllOrNone(segments) != RTNORM) {
        say(L"\nCannot explode this polyline: one of its segments cannot be made.");
        return false;
    }
    ads_name e = {polyline[0], polyline[1]};
    return acdbEntDel(e) == RTNORM;
}

}  // namespace host::cmd
