#include "host/db/resbuf_groups.h"

#include <cstdlib>
#include <cstring>

#include "adscodes.h"
#include "host/db/database.h"
#include "host/db/resbuf.h"

namespace host::db {

resbuf* groupToResbuf(const Database& db, const Group& g) {
    resbuf* rb = nullptr;
    switch (g.type) {
    case GroupType::Real:
        rb = newRb(g.code);
        if (rb) rb->resval.rreal = g.real;
        break;
    case GroupType::Point:
        rb = newRb(g.code);
        if (rb) std::memcpy(rb->resval.rpoint, g.point, sizeof g.point);
        break;
    case GroupType::Short:
        rb = newRb(g.code);
        if (rb) rb->resval.rint = static_cast<short>(g.integer);
        break;
    case GroupType::Long:
        rb = newRb(g.code);
        if (rb) rb->resval.rlong = static_cast<long>(g.integer);
        break;
    case GroupType::Name:
        rb = newRb(g.code);
        if (rb) {
            if (g.ref) db.nameOfHandle(g.ref, rb->resval.rlname);
            else rb->resval.rlname[0] = rb->resval.rlname[1] = 0;
        }
        break;
    case GroupType::Binary:
        rb = newRb(g.code);
        if (rb) {
            rb->resval.rbinary.clen = static_cast<short>(g.binary.size());
            rb->resval.rbinary.buf = nullptr;
            if (!g.binary.empty()) {
                rb->resval.rbinary.buf = static_cast<char*>(std::malloc(g.binary.size()));
                if (!rb->resval.rbinary.buf) {
                    std::free(rb);
                    return nullptr;
                }
                std::memcpy(rb->resval.rbinary.buf, g.binary.data(), g.binary.size());
            }
        }
        break;
    case GroupType::String:
    case GroupType::Handle: rb = newStringRb(g.code, g.text); break;
    case GroupType::None: return nullptr;
    }
    return rb;
}

bool appendGroups(const Database& db, const GroupList& groups, resbuf**& tail) {
    for (const auto& g : groups) {
        if (g.type == GroupType::None) continue;  // codes without a resbuf form stay in the file
        resbuf* rb = groupToResbuf(db, g);
        if (!rb) return false;
        *tail = rb;
        tail = &rb->rbnext;
    }
    return true;
}

bool resbufToGroup(const Database& db, const resbuf* rb, Group& g) {
    g = Group{};
    g.code = rb->restype;
    g.type = groupType(rb->restype);
    if (g.code >= 5000 || g.code < -5) return false;
    switch (g.type) {
    case GroupType::Real: g.real = rb->resval.rreal; return true;
    case GroupType::Point: std::memcpy(g.point, rb->resval.rpoint, sizeof g.point); return true;
    case GroupType::Short: g.integer = rb->resval.rint; return true;
    case GroupType::Long: g.integer = rb->resval.rlong; return true;
    case GroupType::Name: {
        if (rb->resval.rlname[0] == 0 && rb->resval.rlname[1] == 0) {
            g.ref = 0;
            return true;
        }
        return db.handleOfName(rb->resval.rlname, g.ref);
    }
    case GroupType::Binary:
        if (rb->resval.rbinary.clen > 0 && rb->resval.rbinary.buf)
            g.binary.assign(rb->resval.rbinary.buf, static_cast<size_t>(rb->resval.rbinary.clen));
        return true;
    case GroupType::String:
    case GroupType::Handle: g.text = rb->resval.rstring ? rb->resval.rstring : L""; return true;
    case GroupType::None: return false;
    }
    return false;
}

}  // namespace host::db
