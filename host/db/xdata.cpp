#include "host/db/xdata.h"

#include "acdbads.h"
#include "adscodes.h"
#include "host/boundary.h"
#include "host/db/api_support.h"
#include "host/db/resbuf_groups.h"
#include "host/db/tables.h"
#include "host/text.h"

namespace host::db {
namespace {

bool allowedCode(int code) {
    return (code >= 1000 && code <= 1005) || (code >= 1010 && code <= 1013) ||
           (code >= 1040 && code <= 1042) || code == 1070 || code == 1071;
}

short checkGroups(const GroupList& groups) {
    int depth = 0;
    for (const auto& g : groups) {
        if (!allowedCode(g.code) || g.code == 1001) return g.code == 1001 ? kErrBadAppId : kErrBadXdataType;
        if (g.code == 1002) {
            if (g.text == L"{") ++depth;
            else if (g.text == L"}") --depth;
            else return kErrBadXdataNesting;
            if (depth < 0) return kErrBadXdataNesting;
        }
        if ((g.code == 1000 || g.code == 1003) && g.text.size() > kXdataStringMax) return kErrBadXdataType;
        if (g.code == 1004 && g.binary.size() > kXdataBinaryMax) return kErrBadXdataType;
    }
    return depth == 0 ? 0 : kErrBadXdataNesting;
}

}  // namespace

short checkXdata(const Database& db, std::vector<XdataBlock>& blocks) {
    for (size_t i = 0; i < blocks.size(); ++i) {
        uint32_t entry = db.findEntry("APPID", blocks[i].app);
        if (entry == kNone) return kErrBadAppId;
        blocks[i].app = db.recordName(entry);
        for (size_t j = 0; j < i; ++j)
            if (equalsNoCase(blocks[j].app, blocks[i].app)) return kErrBadAppId;
        if (short err = checkGroups(blocks[i].groups)) return err;
    }
    return 0;
}

short checkXdataBlock(const Database& db, const XdataBlock& block, bool registered) {
    if (!registered && db.findEntry("APPID", block.app) == kNone) return kErrBadAppId;
    return checkGroups(block.groups);
}

long xdataSize(const std::vector<XdataBlock>& blocks) {
    long size = 0;
    for (const auto& b : blocks) {
        size += 3;
        for (const auto& g : b.groups) {
            size += 1;
            switch (g.code) {
            case 1000:
            case 1003: size += 2 + static_cast<long>(g.text.size()); break;
            case 1002: size += 1; break;
            case 1004: size += 1 + static_cast<long>(g.binary.size()); break;
            case 1005: size += 8; break;
            case 1070: size += 2; break;
            case 1071: size += 4; break;
            default: size += g.type == GroupType::Point ? 24 : 8; break;
            }
        }
    }
    return size;
}

}  // namespace host::db

using namespace host::db;

extern "C" int acdbXdRoom(const ads_name ent, long* result) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db = currentDb();
        if (!db || !ent || !result) {
            setErrno(kErrNullPointer);
            return RTERROR;
        }
        uint32_t index = db->indexOf(ent);
        if (index == kNone) {
            setErrno(kErrBadName);
            return RTERROR;
        }
        GroupList data, xdata;
        decodeGroups(*db, db->record(index).groups, data, &xdata);
        *result = kXdataRoom - xdataSize(splitXdata(xdata));
        return RTNORM;
    });
}

extern "C" int acdbXdSize(const struct resbuf* rb, long* result) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Database* db = currentDb();
        if (!db || !rb || !result) {
            setErrno(kErrNullPointer);
            return RTERROR;
        }
        if (rb->restype == -3) rb = rb->rbnext;
        GroupList groups;
        for (; rb; rb = rb->rbnext) {
            Group g;
            if (!resbufToGroup(*db, rb, g)) {
                setErrno(kErrBadXdataType);
                return RTERROR;
            }
            groups.push_back(std::move(g));
        }
        if (groups.empty() || groups.front().code != 1001) {
            setErrno(kErrBadAppId);
            return RTERROR;
        }
        auto blocks = splitXdata(groups);
        if (short err = checkXdata(*db, blocks)) {
            setErrno(err);
            return RTERROR;
        }
        *result = xdataSize(blocks);
        return RTNORM;
    });
}
