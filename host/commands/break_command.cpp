// BREAK: an object (picked at a point, which is then the first break point, or given by
// name), then the second break point, or First and both points. Points off the object are
// taken to the nearest point on it. Lines, arcs and polylines keep what lies before the first
// point and after the second; a circle becomes the arc from the second point counter-
// clockwise to the first; a closed polyline becomes one open polyline from the second point
// onward through its first vertex to the first point. A closed object cannot be broken at a
// single point. The piece at the object's start keeps its handle (lines, arcs, light-weight
// polylines); other pieces are new entities with the same properties and extended data. An
// old-style polyline is replaced by new polylines. An object given by name without First is
// broken at the second point alone.
#include <cmath>
#include <vector>

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/commands/break_geometry.h"
#include "host/commands/entity_path.h"
#include "host/commands/object_selection.h"

namespace host::cmd {
namespace {

// Puts more right after the type group (group 0) of list.
void insertAfterType(resbuf* list, resbuf* more) {
    if (!more) return;
    resbuf* last = more;
    while (last->rbnext) last = last->rbnext;
    last->rbnext = list->rbnext;
    list->rbnext = more;
}

void setType(resbuf* list, const wchar_t* type) {
    std::free(list->resval.rstring);
    list->resval.rstring = copyString(type);
}

struct Entity {
    Name name;
    RbPtr list;  // with extended data
    std::wstring type;
    bool flipped = false;  // object coordinates with the extrusion (0,0,-1)
};

int integer(const resbuf* list, int code) {
    const resbuf* g = findGroup(list, code);
    return g ? g->resval.rint : 0;
}

double angleAbout(const double c[3], const double p[3]) { return std::atan2(p[1] - c[1], p[0] - c[0]); }

int modify(const Name& n, resbuf* changes) {
    ads_name e = {n[0], n[1]};
    RbPtr list(acutBuildList(-1, e, 0));
    list->rbnext = changes;
    return acdbEntMod(list.get());
}

int make(RbPtr list) { return acdbEntMake(list.get()); }

// The groups of an arc piece: its start and end angles about the centre.
resbuf* arcAngles(const double c[3], const Path& piece) {
    return acutBuildList(50, angleAbout(c, piece.vertices.front().p), 51, angleAbout(c, piece.vertices.back().p), 0);
}

resbuf* lwVertices(const Path& piece, bool widths) {
    resbuf* head = nullptr;
    resbuf** tail = &head;
    for (const auto& v : piece.vertices) {
        double p[3] = {v.p[0], v.p[1], 0.0};
        *tail = widths ? acutBuildList(10, p, 40, v.startWidth, 41, v.endWidth, 42, v.bulge, 0)
                       : acutBuildList(10, p, 42, v.bulge, 0);
        while (*tail) tail = &(*tail)->rbnext;
    }
    return head;
}

int makePolyline(const Entity& e, const Path& piece) {
    int flags = integer(e.list.get(), 70) & ~1;
    RbPtr head = copyForMaking(e.list.get(), {70});
    insertAfterType(head.get(), acutBuildList(70, flags, 0));
    if (int s = make(std::move(head)); s != RTNORM) return s;
    for (const auto& v : piece.vertices) {
        RbPtr vertex(acutBuildList(RTDXF0, L"VERTEX", 10, v.p, 40, v.startWidth, 41, v.endWidth, 42, v.bulge, 70,
                                   (flags & 8) ? 32 : 0, 0));
        if (int s = make(std::move(vertex)); s != RTNORM) return s;
    }
    return make(RbPtr(acutBuildList(RTDXF0, L"SEQEND", 0)));
}

// The new pieces are made before the object is changed or deleted, and taken back when any
// step fails: the drawing is broken whole or left as it was.
int applyPieces(const Entity& e, const std::vector<Path>& pieces) {
    ads_name name = {e.name[0], e.name[1]};
    const resbuf* l = e.list.get();
    if (pieces.empty()) return acdbEntDel(name);
    MadeUntilKept made;
    if (e.type == L"POLYLINE" || e.type == L"CIRCLE") {
        for (const auto& piece : pieces) {
            if (e.type == L"POLYLINE") {
                if (int s = makePolyline(e, piece); s != RTNORM) return s;
                continue;
            }
            RbPtr arc = copyForMaking(l);
            setType(arc.get(), L"ARC");
            insertAfterType(arc.get(), arcAngles(findGroup(l, 10)->resval.rpoint, piece));
            if (int s = make(std::move(arc)); s != RTNORM) return s;
        }
        if (int s = acdbEntDel(name); s != RTNORM) return s;
        made.keep();
        return RTNORM;
    }
    // The first piece is the object itself, changed last.
    resbuf* firstChanges = nullptr;
    for (size_t i = 0; i < pieces.size(); ++i) {
        const Path& piece = pieces[i];
        resbuf* changes = nullptr;
        std::vector<int> replaced;
        if (e.type == L"LINE") {
            changes = acutBuildList(10, piece.vertices.front().p, 11, piece.vertices.back().p, 0);
            replaced = {10, 11};
        } else if (e.type == L"ARC") {
            changes = arcAngles(findGroup(l, 10)->resval.rpoint, piece);
            replaced = {50, 51};
        } else {  // LWPOLYLINE
            bool widths = findGroup(l, 40) != nullptr;
            changes = acutBuildList(70, integer(l, 70) & ~1, 0);
            changes->rbnext = lwVertices(piece, widths);
            replaced = {70, 90, 10, 40, 41, 42, 91};
        }
        if (i == 0) {
            firstChanges = changes;
            continue;
        }
        RbPtr copy = copyForMaking(l, replaced);
        insertAfterType(copy.get(), changes);
        if (int s = make(std::move(copy)); s != RTNORM) {
            acutRelRb(firstChanges);
            return s;
        }
    }
    if (int s = modify(e.name, firstChanges); s != RTNORM) return s;
    made.keep();
    return RTNORM;
}

// World points into the entity's own coordinates.
void toObject(const Entity& e, double p[3]) {
    if (e.flipped) {
        p[0] = -p[0];
        p[2] = -p[2];
    }
}

int breakAt(const Name& n, double first[3], double second[3]) {
    Entity e;
    e.name = n;
    e.list = entityList(n, true);
    const resbuf* type = e.list ? findGroup(e.list.get(), 0) : nullptr;
    if (!type) return RTERROR;
    e.type = type->resval.rstring;
    if (const resbuf* z = findGroup(e.list.get(), 210))
        e.flipped = z->resval.rpoint[2] < 0 && std::fabs(z->resval.rpoint[0]) < 1e-9 && std::fabs(z->resval.rpoint[1]) < 1e-9;
    if (e.type == L"LINE" || (e.type == L"POLYLINE" && (integer(e.list.get(), 70) & 8))) e.flipped = false;
    Path path;
    if (!pathOf(e.name, e.type, e.list.get(), path)) {
        say(L"\nCannot break this object.");
        return RTERROR;
    }
    toObject(e, first);
    toObject(e, second);
    std::vector<Path> pieces;
    if (!breakPath(path, project(path, first), project(path, second), pieces)) {
        say(e.type == L"CIRCLE" ? L"\nArc cannot be full 360 degrees." : L"\nCannot break a closed object at one point.");
        return RTERROR;
    }
    const int status = applyPieces(e, pieces);
    if (status != RTNORM) say(L"\nCannot break this object: its pieces cannot be made; it is left as it was.");
    return status;
}

bool askPoint(CommandInput& in, const wchar_t* promptText, double p[3]) {
    const CommandToken* t = ask(in, promptText);
    return t && readPoint(*t, p);
}

int breakCommand(CommandInput& in) {
    Name object;
    double first[3] = {0, 0, 0}, second[3];
    bool picked = false;
    if (!readOneObject(in, L"\nSelect object: ", object, first, picked)) return RTERROR;
    const CommandToken* t = ask(in, L"\nSpecify second break point or [First point]: ");
    if (!t) return RTCAN;
    if (isKeyword(*t, {L"FIRST", L"F"})) {
        if (!askPoint(in, L"\nSpecify first break point: ", first) ||
            !askPoint(in, L"\nSpecify second break point: ", second))
            return RTCAN;
    } else if (readPoint(*t, second)) {
        if (!picked)
            for (int i = 0; i < 3; ++i) first[i] = second[i];
    } else {
        say(L"\nInvalid point.");
        return RTERROR;
    }
    return breakAt(object, first, second);
}

CommandRegistration breakRegistration(L"BREAK", breakCommand);

}  // namespace
}  // namespace host::cmd
