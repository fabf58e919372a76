#include "frame/paths.h"

#include "acedads.h"
#include "frame/messages.h"
#include "frame/rblist.h"

namespace vrn2 {
namespace {
std::wstring g_root;
}

bool loadInstallRoot() {
    RbList value;
    int status = acedGetSym(L"_DRV", value.out());
    const resbuf* rb = value.get();
    if (status != RTNORM || !rb || rb->restype != RTSTR || !rb->resval.rstring || !*rb->resval.rstring) {
        acedAlert(kMsgNoInstallRoot);
        return false;
    }
    g_root = rb->resval.rstring;
    return true;
}

const std::wstring& installRoot() { return g_root; }

std::wstring suitePath(const wchar_t* relative) { return g_root + relative; }

}  // namespace vrn2
