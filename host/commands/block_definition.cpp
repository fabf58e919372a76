#include "host/commands/block_definition.h"

#include "acdbads.h"
#include "adscodes.h"

namespace host::cmd {

bool isAnyOf(int code, std::initializer_list<int> codes) {
    for (int c : codes)
        if (c == code) return true;
    return false;
}

std::wstring typeOf(const resbuf* list) {
    const resbuf* t = findGroup(list, 0);
    return t && t->resval.rstring ? t->resval.rstring : L"";
}

bool readBlock(const std::wstring& name, BlockDefinition& out) {
    RbPtr entry(acdbTblSearch(L"BLOCK", name.c_str(), 0));
    if (!entry) return false;
    const resbuf* n = findGroup(entry.get(), 2);
    out.name = n && n->resval.rstring ? n->resval.rstring : name;
    if (const resbuf* base = findGroup(entry.get(), 10))
        for (int i = 0; i < 3; ++i) out.base[i] = base->resval.rpoint[i];
    out.entities.clear();
    const resbuf* first = findGroup(entry.get(), -2);
    if (!first) return true;
    ads_name at, next;
    acdbNameSet(first->resval.rlname, at);
    for (;;) {
        RbPtr list(acdbEntGet(at));
        if (list) out.entities.push_back(std::move(list));
        if (acdbEntNext(at, next) != RTNORM) break;
        acdbNameSet(next, at);
    }
    return true;
}

}  // namespace host::cmd
