#include "host/db/extents.h"

#include <cmath>
#include <unordered_map>
#include <unordered_set>

#include "host/db/database.h"
#include "host/db/group_values.h"

namespace host::db {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kMaxNesting = 64;  // inserts inside blocks inside blocks ...

double real(const GroupList& g, int code, double fallback) {
    const Group* x = findCode(g, code);
    return x ? x->real : fallback;
}

P2 point(const GroupList& g, int code) {
    const Group* x = findCode(g, code);
    return x ? P2{x->point[0], x->point[1]} : P2{};
}

void addTurned(Box& box, P2 origin, double angle, double x, double y) {
    double c = std::cos(angle), s = std::sin(angle);
    box.add(P2{origin.x + x * c - y * s, origin.y + x * s + y * c});
}

// A text's box: its characters taken as 0.8 of the height wide each.
Box textExtents(const GroupList& g) {
    Box box;
    P2 at = point(g, 10);
    double height = real(g, 40, 1.0);
    double width = real(g, 41, 1.0);
    double angle = real(g, 50, 0.0) * kPi / 180.0;
    const Group* text = findCode(g, 1);
    double length = (text ? static_cast<double>(text->text.size()) : 0.0) * height * 0.8 * width;
    for (double x : {0.0, length})
        for (double y : {0.0, height}) addTurned(box, at, angle, x, y);
    return box;
}

// One measurement walks each block once: the box of a block is kept for every other insert of
// it (a block inserting another ten times, ten levels deep, is measured ten times, not ten to
// the tenth), and a block met again inside itself is a cycle that adds only its insertion point.
struct BlockWalk {
    std::unordered_map<uint32_t, Box> measured;
    std::unordered_set<uint32_t> open;
};

Box blockExtents(const Database& db, uint32_t block, int depth, BlockWalk& walk);

Box insertExtents(const Database& db, const GroupList& g, int depth, BlockWalk& walk) {
    Box box;
    const Group* name = findCode(g, 2);
    uint32_t block = name ? db.findBlock(name->text) : kNone;
    P2 at = point(g, 10);
    if (block == kNone || depth >= kMaxNesting || walk.open.count(block)) {
        box.add(at);
        return box;
    }
    Box inner = blockExtents(db, block, depth + 1, walk);
    if (!inner.valid()) {
        box.add(at);
        return box;
    }
    GroupList begin;
    decodeGroups(db, db.record(db.blocks()[block].begin).groups, begin, nullptr);
    P2 base = point(begin, 10);
    double sx = real(g, 41, 1.0), sy = real(g, 42, 1.0);
    double angle = real(g, 50, 0.0) * kPi / 180.0;
    for (double x : {inner.minX, inner.maxX})
        for (double y : {inner.minY, inner.maxY}) addTurned(box, at, angle, (x - base.x) * sx, (y - base.y) * sy);
    return box;
}

Box extentsAt(const Database& db, uint32_t index, int depth, BlockWalk& walk) {
    const Record& r = db.record(index);
    const std::string& type = db.typeName(r);
    if (type == "TEXT" || type == "ATTDEF" || type == "INSERT" || type == "MTEXT") {
        GroupList g;
        decodeGroups(db, r.groups, g, nullptr);
        if (type == "INSERT") return insertExtents(db, g, depth, walk);
        if (type == "MTEXT") {
            Box box;
            P2 at = point(g, 10);
            box.add(at);
            box.add(P2{at.x + real(g, 41, 0.0), at.y - real(g, 40, 1.0)});
            return box;
        }
        return textExtents(g);
    }
    return extentsOf(shapeOf(db, index));
}

Box blockExtents(const Database& db, uint32_t block, int depth, BlockWalk& walk) {
    auto known = walk.measured.find(block);
    if (known != walk.measured.end()) return known->second;
    walk.open.insert(block);
    Box box;
    for (uint32_t e : db.blocks()[block].entities) {
        const Record& r = db.record(e);
        if (r.kind == RecordKind::Entity && !r.deleted) box.add(extentsAt(db, e, depth, walk));
    }
    walk.open.erase(block);
    walk.measured.emplace(block, box);
    return box;
}

Box entityExtents(const Database& db, uint32_t index, BlockWalk& walk) { return extentsAt(db, index, 0, walk); }

}  // namespace

Box entityExtents(const Database& db, uint32_t index) {
    BlockWalk walk;
    return entityExtents(db, index, walk);
}

Box modelSpaceExtents(const Database& db) {
    BlockWalk walk;
    Box box;
    for (uint32_t e : db.entities()) {
        const Record& r = db.record(e);
        if (r.kind != RecordKind::Entity || r.deleted) continue;
        GroupList g;
        decodeGroups(db, r.groups, g, nullptr);
        const Group* space = findCode(g, 67);
        if (space && space->integer == 1) continue;
        box.add(entityExtents(db, e, walk));
    }
    return box;
}

}  // namespace host::db
