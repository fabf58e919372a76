// The host's view of DCL dialogs, for the console and for tests: where DCL files are searched,
// what each dialog showed when it closed, and the hooks other parts of the host use.
//
// Headless running: when a dialog starts, the next batch of scripted actions queued for its
// name (host::queueDialogActions) is applied in order, as a user would operate the dialog:
//   set KEY VALUE   an edit box gets VALUE (cut to its edit_limit) and its action runs with
//                   CBR_LOST_FOCUS, as when the user types and leaves the field; a toggle,
//                   slider, list or popup gets VALUE, a radio cluster selects the button whose
//                   key is VALUE, a radio button set to "1" is clicked; their actions run with
//                   CBR_SELECT.
//   press KEY       a click on a button or image button (the standard exit of "accept",
//                   "cancel" and is_cancel buttons included), a toggle (flips it) or a radio
//                   button; on an edit box it is Enter: CBR_SELECT, then the default button
//                   when the box has allow_accept.
//   select KEY "I J" selects items of a list box or popup list (0-based), CBR_SELECT.
// An action on a missing, disabled or unsuitable tile prints one line
// `Dialog "NAME": PROBLEM; ACTION skipped` and is skipped. When the batch runs out, or when
// nothing is queued, the dialog is cancelled: start_dialog gives DLGCANCEL and no callback runs.
//
// Loading: a file that does not parse or fails the audit (undefined tile, circular definition,
// changed subassembly, active tile without a key, key used twice, radio button outside a radio
// cluster) is refused; each problem is printed as "DCL error in FILE line N: MESSAGE".
// `audit_level = 0` in dcl_settings turns off the audit checks but not undefined or circular
// tiles, without which no dialog can be built.
//
// Choices of this host where the editor's behaviour is not documented: edit_limit cuts what the
// user types, not what the program sets, and is not capped at 256 (edit32_box asks for 2048);
// a LIST_NEW list starts with no selection, and a popup list with items shows item 0; the
// dialog's default callback runs for accept and cancel too, which then still end the dialog
// unless the callback did; done_dialog before start_dialog makes the start end at once
// without using the queued actions.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "adsdlg.h"

namespace host::dcl {

// Image tiles are measured in character cells of this many pixels (ads_dimensions_tile).
constexpr int kCellWidthPixels = 8;
constexpr int kCellHeightPixels = 16;
constexpr int kMaxNestedDialogs = 8;
constexpr int kDefaultEditLimit = 132;

struct ImageOp {
    enum class Kind { Vector, Fill, Slide } kind = Kind::Vector;
    short x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // Fill and Slide: x, y, width, height
    short color = 0;
    std::wstring slide;
};

struct TileRecord {
    std::wstring key;
    std::wstring kind;   // the primitive: "button", "edit_box", "radio_column" is "radio_cluster"
    std::wstring type;   // the name it was made from: "ok_button", "edit12_box", ...
    std::wstring label;  // the declared label
    std::wstring value;  // the value get_tile gave when the dialog closed
    bool enabled = true;
    bool selected = false;     // MODE_SETSEL
    bool highlighted = false;  // flipped an odd number of times (MODE_FLIP)
    std::vector<std::wstring> list;
    std::vector<ImageOp> image;
};

struct DialogRecord {
    std::wstring name;
    std::filesystem::path file;
    std::wstring title;
    int status = DLGCANCEL;         // what start_dialog gave
    bool cancelledByHost = false;   // the scripted actions ran out (or none were queued)
    int depth = 1;                  // 1 for a dialog started outside any other dialog
    std::wstring focus;             // key of the last MODE_SETFOCUS
    std::vector<TileRecord> tiles;  // every tile in layout order, the dialog itself first
    std::vector<std::wstring> lispActions;  // "KEY: EXPR" for DCL action strings not evaluated

    const TileRecord* tile(std::wstring_view key) const;
    std::wstring value(std::wstring_view key) const;  // "" for a missing key
};

// Dialogs that have run in this session (the outcome of each ads_start_dialog), oldest first.
const std::vector<DialogRecord>& dialogHistory();
void clearDialogHistory();
// The most recent record of dialog NAME; null when it never ran.
const DialogRecord* lastDialog(std::wstring_view name);
// Called with each dialog's record as it closes (after the record joins the history), so that
// a console can show it where it happened in the run; an empty function stops the calls.
void onDialogClosed(std::function<void(const DialogRecord&)> listener);

// Names of the dialogs started and still open, outermost first.
std::vector<std::wstring> openDialogNames();
bool dialogActive();

// For functions that the editor refuses while a dialog is open (acedCommand, the get-
// functions, acedEntSel): when a dialog is open, prints "AutoCAD rejected function NAME",
// sets ERRNO to 85, terminates all dialogs and answers true; the caller then returns RTREJ.
bool rejectWhileDialogOpen(std::wstring_view functionName);

// DCL `action` attributes hold AutoLISP. With a hook, the console evaluates them; without one
// they are recorded in the dialog's record. Either way the expression is the tile's action
// and takes precedence over the default callback of new_dialog.
struct LispActionCall {
    ads_hdlg dialog;
    std::wstring key, value, expression;
    void* clientData;
    int reason;
};
using LispActionHook = std::function<void(const LispActionCall&)>;
void setLispActionHook(LispActionHook hook);

// ads_vector_image between start_image and end_image draws into the open image tile: true
// when one is open and the vector was recorded there (else it goes on the graphics screen).
bool recordImageVector(short x1, short y1, short x2, short y2, short color);

// Folders searched for DCL files named without an absolute path (after the current folder for
// ads_load_dialog, after the including file's folder for @include).
void setDclSearchPath(std::vector<std::filesystem::path> folders);

}  // namespace host::dcl
