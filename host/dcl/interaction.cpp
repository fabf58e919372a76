#include "host/dcl/interaction.h"

#include <cwchar>

#include "host/boundary.h"
#include "host/dcl/lisp_actions.h"
#include "host/dcl/runtime.h"
#include "host/dcl/tile_values.h"

namespace host::dcl {
namespace {

bool hasOwnAction(const RuntimeTile& t) { return t.callback || t.source->has(L"action"); }

void call(Dialog& dialog, CLIENTFUNC fn, int index, int reason) {
    const RuntimeTile& t = dialog.tile(index);
    std::wstring value = t.value;  // the callback sees the value at the time of the operation
    ads_callback_packet packet{};
    packet.dialog = dialog.handle();
    packet.tile = dialog.tileHandle(index);
    packet.value = value.data();
    packet.client_data = t.clientData;
    packet.reason = reason;
    // The callback is module code: an exception out of it stops here.
    guarded("CLIENTFUNC", [&] { fn(&packet); });
}

bool ended(const Dialog& dialog) { return dialog.done || Runtime::instance().terminating(); }

std::wstring inQuotes(std::wstring_view text) { return L"\"" + std::wstring(text) + L"\""; }

std::wstring cannot(const RuntimeTile& t, const wchar_t* what) {
    return L"tile " + inQuotes(t.key) + L" (" + std::wstring(kindName(t.kind())) + L") " + what;
}

// Accept and cancel without an action of their own end the dialog with DLGOK and DLGCANCEL;
// an is_cancel button ends it with DLGCANCEL after an action that did not.
void standardExit(Dialog& dialog, int index, bool ownAction) {
    if (ended(dialog)) return;
    const RuntimeTile& t = dialog.tile(index);
    if (t.key == L"accept" && !ownAction)
        Runtime::instance().finish(dialog, DLGOK);
    else if (t.key == L"cancel" && !ownAction)
        Runtime::instance().finish(dialog, DLGCANCEL);
    else if (t.source->flag(L"is_cancel"))
        Runtime::instance().finish(dialog, DLGCANCEL);
}

// Enter in an edit box with allow_accept: the default button is pressed.
void pressDefault(Dialog& dialog) {
    int accept = -1;
    for (int i = 1; i < dialog.tileCount(); ++i) {
        const RuntimeTile& t = dialog.tile(i);
        bool button = t.kind() == TileKind::Button || t.kind() == TileKind::ImageButton;
        if (button && t.source->flag(L"is_default") && dialog.usable(i)) {
            userPress(dialog, i);
            return;
        }
        if (button && t.key == L"accept") accept = i;
    }
    if (accept >= 0 && dialog.usable(accept)) userPress(dialog, accept);
}

}  // namespace

bool runAction(Dialog& dialog, int index, int reason) {
    int owner = index;
    const RuntimeTile& t = dialog.tile(index);
    if (!hasOwnAction(t) && t.kind() == TileKind::RadioButton && t.parent >= 0 &&
        dialog.tile(t.parent).kind() == TileKind::RadioCluster && hasOwnAction(dialog.tile(t.parent)))
        owner = t.parent;
    const RuntimeTile& o = dialog.tile(owner);
    if (o.callback) {
        call(dialog, o.callback, owner, reason);
        return true;
    }
    if (o.source->has(L"action")) {
        runLispAction(dialog, owner, reason);
        return true;
    }
    if (dialog.defaultCallback) call(dialog, dialog.defaultCallback, index, reason);
    return false;
}

std::wstring userPress(Dialog& dialog, int index) {
    RuntimeTile& t = dialog.tile(index);
    switch (t.kind()) {
    case TileKind::Button:
    case TileKind::ImageButton: standardExit(dialog, index, runAction(dialog, index, CBR_SELECT)); return L"";
    case TileKind::Toggle:
        setValue(dialog, index, t.value == L"1" ? L"0" : L"1");
        runAction(dialog, index, CBR_SELECT);
        return L"";
    case TileKind::RadioButton:
        selectRadio(dialog, index);
        runAction(dialog, index, CBR_SELECT);
        return L"";
    case TileKind::EditBox:
        runAction(dialog, index, CBR_SELECT);
        if (!ended(dialog) && t.source->flag(L"allow_accept")) pressDefault(dialog);
        return L"";
    default: return cannot(t, L"cannot be pressed");
    }
}

std::wstring userSet(Dialog& dialog, int index, std::wstring_view value) {
    RuntimeTile& t = dialog.tile(index);
    switch (t.kind()) {
    case TileKind::EditBox:
        setValue(dialog, index, value.substr(0, editLimit(t)));
        runAction(dialog, index, CBR_LOST_FOCUS);
        return L"";
    case TileKind::Toggle:
        if (value != L"0" && value != L"1") return L"a toggle takes \"0\" or \"1\", not " + inQuotes(value);
        setValue(dialog, index, value);
        runAction(dialog, index, CBR_SELECT);
        return L"";
    case TileKind::RadioButton:
        if (value != L"1") return L"a radio button is turned on with \"1\" (turn another one on to turn it off)";
        return userPress(dialog, index);
    case TileKind::RadioCluster:
        for (int child : t.children) {
            const RuntimeTile& c = dialog.tile(child);
            if (c.kind() != TileKind::RadioButton || c.key != value) continue;
            if (!dialog.usable(child)) return L"tile " + inQuotes(c.key) + L" is disabled";
            return userPress(dialog, child);
        }
        return L"radio cluster " + inQuotes(t.key) + L" has no button " + inQuotes(value);
    case TileKind::ListBox:
    case TileKind::PopupList: return userSelect(dialog, index, value);
    case TileKind::Slider: {
        std::wstring text(value);
        wchar_t* end = nullptr;
        std::wcstol(text.c_str(), &end, 10);
        if (text.empty() || (end && *end)) return L"a slider takes an integer, not " + inQuotes(value);
        setValue(dialog, index, value);
        runAction(dialog, index, CBR_SELECT);
        return L"";
    }
    case TileKind::Button:
    case TileKind::ImageButton: return cannot(t, L"has no value; press it instead");
    default: return cannot(t, L"cannot be changed by the user");
    }
}

std::wstring userSelect(Dialog& dialog, int index, std::wstring_view text) {
    RuntimeTile& t = dialog.tile(index);
    if (!isList(t.kind())) return cannot(t, L"is not a list");
    auto indices = parseIndices(text);
    if (!indices) return inQuotes(text) + L" is not a list of item numbers";
    for (int i : *indices)
        if (i >= static_cast<int>(t.list.size()))
            return L"list " + inQuotes(t.key) + L" has no item " + std::to_wstring(i) + L" (it has " +
                   std::to_wstring(t.list.size()) + L")";
    if (t.kind() == TileKind::PopupList && indices->size() != 1) return L"a popup list selects exactly one item";
    if (t.kind() == TileKind::ListBox && indices->size() > 1 && !t.source->flag(L"multiple_select"))
        return L"list " + inQuotes(t.key) + L" does not allow multiple selection";
    setValue(dialog, index, text);
    runAction(dialog, index, CBR_SELECT);
    return L"";
}

}  // namespace host::dcl
