// The host-side interface of the dialog runtime (dcl.h).
#include "acutads.h"
#include "host/db/api_support.h"
#include "host/dcl/dcl.h"
#include "host/dcl/paths.h"
#include "host/dcl/runtime.h"

namespace host::dcl {

const TileRecord* DialogRecord::tile(std::wstring_view key) const {
    for (const auto& t : tiles)
        if (!key.empty() && t.key == key) return &t;
    return nullptr;
}

std::wstring DialogRecord::value(std::wstring_view key) const {
    const TileRecord* t = tile(key);
    return t ? t->value : L"";
}

const std::vector<DialogRecord>& dialogHistory() { return Runtime::instance().history(); }
void clearDialogHistory() { Runtime::instance().history().clear(); }
void onDialogClosed(std::function<void(const DialogRecord&)> listener) {
    Runtime::instance().closedListener = std::move(listener);
}

const DialogRecord* lastDialog(std::wstring_view name) {
    const auto& h = Runtime::instance().history();
    for (auto it = h.rbegin(); it != h.rend(); ++it)
        if (it->name == name) return &*it;
    return nullptr;
}

std::vector<std::wstring> openDialogNames() {
    std::vector<std::wstring> names;
    for (const Dialog* d : Runtime::instance().running()) names.push_back(d->name());
    return names;
}

bool dialogActive() { return !Runtime::instance().running().empty(); }

bool rejectWhileDialogOpen(std::wstring_view functionName) {
    if (!dialogActive()) return false;
    acutPrintf(L"AutoCAD rejected function %ls\n", std::wstring(functionName).c_str());
    db::setErrno(85);
    Runtime::instance().terminateAll();
    return true;
}

void setDclSearchPath(std::vector<std::filesystem::path> folders) { setSearchPath(std::move(folders)); }

}  // namespace host::dcl
