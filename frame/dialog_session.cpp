#include "frame/dialog_session.h"

#include <string>

#include "acedads.h"
#include "frame/paths.h"

namespace vrn2 {

DialogSession::DialogSession(const wchar_t* relativeFile, const Message& cannotLoad) {
    if (!loadInstallRoot()) return;
    std::wstring path = suitePath(relativeFile);
    int id = -1;
    if (ads_load_dialog(path.c_str(), &id) != RTNORM || id < 0) {
        report(cannotLoad);
        return;
    }
    dclId_ = id;
    ownsFile_ = true;
}

DialogSession::DialogSession(int dclId) : dclId_(dclId) {}

DialogSession::~DialogSession() {
    if (ownsFile_) ads_unload_dialog(dclId_);
}

bool DialogSession::create(const wchar_t* name, const Message& cannotCreate, CLIENTFUNC defaultAction) {
    dialog_ = nullptr;
    if (!loaded()) return false;  // the load failure has been reported
    ads_hdlg created = nullptr;
    if (ads_new_dialog(name, dclId_, defaultAction, &created) != RTNORM || created == BAD_DIALOG) {
        report(cannotCreate);
        return false;
    }
    dialog_ = created;
    return true;
}

void DialogSession::action(const wchar_t* key, CLIENTFUNC fn, void* data) const {
    if (data) ads_client_data_tile(dialog_, key, data);
    ads_action_tile(dialog_, key, fn);
}

int DialogSession::run() {
    int status = DLGCANCEL;
    if (dialog_) ads_start_dialog(dialog_, &status);
    // The host frees a dialog once it has run.
    dialog_ = nullptr;
    return status;
}

void showInputError(ads_hdlg dialog, const wchar_t* message, const wchar_t* focus, ErrorPlace place) {
    if (place == ErrorPlace::Alert) acedAlert(message);
    else ads_set_tile(dialog, L"error", message);
    if (focus) ads_mode_tile(dialog, focus, MODE_SETFOCUS);
}

void clearInputError(ads_hdlg dialog) { ads_set_tile(dialog, L"error", L""); }

}  // namespace vrn2
