// The state of the dialog runtime: loaded DCL files by id, dialogs by handle, the stack of
// started dialogs, the open list or image, and the record of finished dialogs.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "host/dcl/dialog.h"
#include "host/dcl/loader.h"
#include "host/session.h"

namespace host::dcl {

struct ListSession {
    std::uintptr_t dialog = 0;
    int tile = -1;
    short operation = LIST_NEW;
    int index = 0;
};

struct ImageSession {
    std::uintptr_t dialog = 0;
    int tile = -1;
};

class Runtime {
public:
    static Runtime& instance();

    // Files: ids are positive and never reused.
    int addFile(std::unique_ptr<LoadedDcl> dcl);
    bool removeFile(int id);
    const LoadedDcl* file(int id) const;

    // Dialogs made by ads_new_dialog.
    Dialog* create(const std::wstring& name, const LoadedDcl& dcl, CLIENTFUNC defaultCallback, int x, int y);
    Dialog* dialog(ads_hdlg handle);
    TileRef tile(ads_htile handle);
    // The dialog with TILE's key: tile index, or -1 (no dialog or no such key).
    int findTile(Dialog* dialog, const ACHAR* key);

    // The modal loop of ads_start_dialog, run headless; returns the status.
    int run(Dialog& dialog);
    // Ends DIALOG with STATUS (ads_done_dialog).
    void finish(Dialog& dialog, int status);
    // Ends every dialog with DLGALLDONE (ads_term_dialog).
    void terminateAll();
    bool terminating() const { return terminating_; }

    const std::vector<Dialog*>& running() const { return running_; }
    std::vector<DialogRecord>& history() { return history_; }

    std::optional<ListSession> list;
    std::optional<ImageSession> image;
    std::function<void(const DialogRecord&)> closedListener;

private:
    friend class host::PartStore;
    class RunningDialog;
    Runtime() = default;
    void discard(Dialog& dialog);
    void markActive(bool active);

    std::map<int, std::unique_ptr<LoadedDcl>> files_;
    int nextFile_ = 1;
    std::map<std::uintptr_t, std::unique_ptr<Dialog>> dialogs_;
    std::uintptr_t nextDialog_ = 1;
    std::vector<Dialog*> running_;
    bool terminating_ = false;
    std::vector<DialogRecord> history_;
};

}  // namespace host::dcl
