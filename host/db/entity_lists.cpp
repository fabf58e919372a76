#include "host/db/entity_lists.h"

#include "adscodes.h"
#include "host/db/resbuf.h"
#include "host/db/resbuf_groups.h"
#include "host/db/wildcard.h"

namespace host::db {

std::vector<XdataBlock> splitXdata(const GroupList& xdata) {
    std::vector<XdataBlock> blocks;
    for (const auto& g : xdata) {
        if (g.code == 1001) {
            blocks.push_back(XdataBlock{g.text, {}});
        } else if (!blocks.empty()) {
            blocks.back().groups.push_back(g);
        }
    }
    return blocks;
}

void joinXdata(const std::vector<XdataBlock>& blocks, GroupList& xdata) {
    for (const auto& b : blocks) {
        xdata.push_back(stringGroup(1001, b.app));
        xdata.insert(xdata.end(), b.groups.begin(), b.groups.end());
    }
}

resbuf* entityList(const Database& db, uint32_t index, const std::vector<std::wstring>* apps) {
    const Record& r = db.record(index);
    GroupList data, xdata;
    decodeGroups(db, r.groups, data, apps ? &xdata : nullptr);
    toListForm(db.typeName(r), data);
    RbPtr head(newRb(-1));
    if (!head) return nullptr;
    db.nameOf(index, head->resval.rlname);
    resbuf** tail = &head->rbnext;
    resbuf* type = newStringRb(0, db.text(db.typeName(r)));
    if (!type) return nullptr;
    *tail = type;
    tail = &type->rbnext;
    if (!appendGroups(db, data, tail)) return nullptr;
    if (apps) {
        GroupList chosen;
        for (auto& block : splitXdata(xdata)) {
            bool wanted = false;
            for (const auto& pattern : *apps) wanted |= wildcardMatchNoCase(block.app, pattern);
            if (!wanted) continue;
            chosen.push_back(stringGroup(1001, block.app));
            chosen.insert(chosen.end(), block.groups.begin(), block.groups.end());
        }
        if (!chosen.empty()) {
            resbuf* sentinel = newRb(-3);
            if (!sentinel) return nullptr;
            *tail = sentinel;
            tail = &sentinel->rbnext;
            if (!appendGroups(db, chosen, tail)) return nullptr;
        }
    }
    return head.release();
}

const std::vector<uint32_t>& listOf(const Database& db, const Record& r) {
    if (r.block != kNone && r.block < db.blocks().size()) return db.blocks()[r.block].entities;
    return db.entities();
}

uint32_t nextLive(const Database& db, const std::vector<uint32_t>& list, size_t from) {
    for (size_t i = from; i < list.size(); ++i)
        if (!db.record(list[i]).deleted) return list[i];
    return kNone;
}

}  // namespace host::db
