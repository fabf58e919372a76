// Dialogs of the suite: one session loads a DCL file under the installation root, creates a
// dialog of it, binds the actions, runs it and unloads the file on every way out. A dialog
// opened from an action of another (a result or help dialog) is a session over the file the
// outer session loaded. The messages for a file or dialog that cannot be had are the caller's.
//
//     DialogSession session(L"dwglib\\gscal.dcl", {Channel::Alert, L"不能装载对话框."});
//     if (!session.create(L"gs_caldlg", {Channel::Alert, L"不能初始化对话框."})) return RTERROR;
//     session.action(L"cal", onCalculate, &data);
//     int status = session.run();
#pragma once

#include "adsdlg.h"
#include "frame/report.h"

namespace vrn2 {

class DialogSession {
public:
    // Reads the installation root (a missing root shows its own alert and nothing else), then
    // loads root + RELATIVEFILE, used as it stands. On failure reports CANNOTLOAD.
    DialogSession(const wchar_t* relativeFile, const Message& cannotLoad);
    // Over a file that another session has loaded; it never unloads that file.
    explicit DialogSession(int dclId);
    ~DialogSession();
    DialogSession(const DialogSession&) = delete;
    DialogSession& operator=(const DialogSession&) = delete;

    bool loaded() const { return dclId_ >= 0; }
    int dclId() const { return dclId_; }

    // Creates dialog NAME of the file. On failure reports CANNOTCREATE and answers false; a
    // session whose file did not load answers false without a second message. One dialog at a
    // time: create the next one after the last has run.
    bool create(const wchar_t* name, const Message& cannotCreate, CLIENTFUNC defaultAction = NULLCB);
    ads_hdlg dialog() const { return dialog_; }

    // Binds FN to tile KEY of the created dialog, with DATA as the tile's client data.
    void action(const wchar_t* key, CLIENTFUNC fn, void* data = nullptr) const;

    // Runs the created dialog and answers the status it ended with (DLGCANCEL when nothing
    // was created).
    int run();

private:
    int dclId_ = -1;
    bool ownsFile_ = false;
    ads_hdlg dialog_ = nullptr;
};

// Where a faulty input is told.
enum class ErrorPlace {
    ErrorTile,  // the dialog's "error" tile
    Alert,      // a message box over the dialog
};

// Shows MESSAGE where PLACE says and, when FOCUS names a tile, puts the focus on it.
void showInputError(ads_hdlg dialog, const wchar_t* message, const wchar_t* focus = nullptr,
                    ErrorPlace place = ErrorPlace::ErrorTile);
// Empties the "error" tile before the inputs are checked again.
void clearInputError(ads_hdlg dialog);

}  // namespace vrn2
