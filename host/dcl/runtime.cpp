#include "host/dcl/runtime.h"

#include "acutads.h"
#include "host/db/api_support.h"
#include "host/db/sysvars.h"
#include "host/dcl/script.h"
#include "host/session.h"

namespace host::dcl {
namespace {

constexpr short kDialogActiveBit = 8;  // CMDACTIVE while a dialog is open

SysVars* documentVariables() { return db::currentVariables(); }

short shortVariable(SysVars& vars, const wchar_t* name) {
    const SysVarValue* v = vars.find(name);
    return v ? v->integer : 0;
}

}  // namespace

Runtime& Runtime::instance() { return sessionPart<Runtime>(); }

int Runtime::addFile(std::unique_ptr<LoadedDcl> dcl) {
    int id = nextFile_++;
    files_[id] = std::move(dcl);
    return id;
}

bool Runtime::removeFile(int id) { return files_.erase(id) > 0; }

const LoadedDcl* Runtime::file(int id) const {
    auto it = files_.find(id);
    return it == files_.end() ? nullptr : it->second.get();
}

Dialog* Runtime::create(const std::wstring& name, const LoadedDcl& dcl, CLIENTFUNC defaultCallback, int x, int y) {
    auto it = dcl.dialogs.find(name);
    if (it == dcl.dialogs.end()) return nullptr;
    if (running_.size() >= static_cast<size_t>(kMaxNestedDialogs)) {
        acutPrintf(L"Dialog \"%ls\": more than %d nested dialogs\n", name.c_str(), kMaxNestedDialogs);
        return nullptr;
    }
    std::uintptr_t serial = nextDialog_++;
    const auto& tile = it->second;
    auto dialog = std::make_unique<Dialog>(serial, name, tile.file, tile, defaultCallback, x, y);
    Dialog* raw = dialog.get();
    dialogs_[serial] = std::move(dialog);
    return raw;
}

Dialog* Runtime::dialog(ads_hdlg handle) {
    auto it = dialogs_.find(reinterpret_cast<std::uintptr_t>(handle));
    return it == dialogs_.end() ? nullptr : it->second.get();
}

TileRef Runtime::tile(ads_htile handle) {
    auto bits = reinterpret_cast<std::uintptr_t>(handle);
    auto it = dialogs_.find(bits >> kTileIndexBits);
    int index = static_cast<int>(bits & ((std::uintptr_t{1} << kTileIndexBits) - 1)) - 1;
    if (it == dialogs_.end() || index < 0 || index >= it->second->tileCount()) return {};
    return {it->second.get(), index};
}

int Runtime::findTile(Dialog* dialog, const ACHAR* key) {
    if (!dialog || !key) return -1;
    return dialog->find(key);
}

// A started dialog on the stack of running dialogs. On every path it leaves the stack and is
// discarded; the last one to leave ends the dialog state of the editor (CMDACTIVE).
class Runtime::RunningDialog {
public:
    RunningDialog(Runtime& runtime, Dialog& dialog) : runtime_(runtime), dialog_(dialog) {
        runtime_.running_.push_back(&dialog_);
        runtime_.markActive(true);
    }
    ~RunningDialog() {
        runtime_.running_.pop_back();
        runtime_.discard(dialog_);
        if (runtime_.running_.empty()) {
            runtime_.terminating_ = false;
            runtime_.markActive(false);
        }
    }
    RunningDialog(const RunningDialog&) = delete;
    RunningDialog& operator=(const RunningDialog&) = delete;

private:
    Runtime& runtime_;
    Dialog& dialog_;
};

int Runtime::run(Dialog& d) {
    d.started = true;
    d.depth = static_cast<int>(running_.size()) + 1;
    int status = DLGCANCEL;
    {
        RunningDialog running(*this, d);
        if (!d.done && !terminating_) applyScript(d);
        if (!d.done && !terminating_) {  // the script ran out: the dialog is closed unanswered
            d.done = true;
            d.status = DLGCANCEL;
            d.cancelledByHost = true;
        }
        if (terminating_) d.status = DLGALLDONE;
        status = d.status;
        history_.push_back(d.record());
        if (closedListener) closedListener(history_.back());
    }
    if (SysVars* vars = documentVariables()) vars->setShort(L"DIASTAT", static_cast<short>(status < 0 ? 0 : status), true);
    return status;
}

void Runtime::finish(Dialog& d, int status) {
    d.done = true;
    d.status = status;
}

void Runtime::terminateAll() {
    std::vector<Dialog*> idle;
    for (auto& [serial, d] : dialogs_)
        if (!d->started) idle.push_back(d.get());
    for (Dialog* d : idle) discard(*d);
    for (Dialog* d : running_) finish(*d, DLGALLDONE);
    if (!running_.empty()) terminating_ = true;
}

void Runtime::discard(Dialog& d) {
    std::uintptr_t serial = d.serial();
    if (list && list->dialog == serial) list.reset();
    if (image && image->dialog == serial) image.reset();
    dialogs_.erase(serial);
}

void Runtime::markActive(bool active) {
    SysVars* vars = documentVariables();
    if (!vars) return;
    short v = shortVariable(*vars, L"CMDACTIVE");
    vars->setShort(L"CMDACTIVE", static_cast<short>(active ? (v | kDialogActiveBit) : (v & ~kDialogActiveBit)), true);
}

}  // namespace host::dcl
