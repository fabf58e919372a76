// "c:scinfo": the editor of the device database "datlib/sc.dat". Choosing a record (from the
// list, or by typing its model and rows) shows its coefficients and contact coefficients;
// "add" saves the tiles as a record (appended when new, replacing the record of the same model
// and rows otherwise); "delete" removes the record after a confirmation. What was done is
// printed on the command line when the dialog closes.
#include <cwchar>
#include <string>
#include <vector>

#include "acedads.h"
#include "acutads.h"
#include "adsdlg.h"
#include "coil/coil_handlers.h"
#include "coil/cooler_dialog_files.h"
#include "coil/database_edit.h"
#include "coil/database_editor_tiles.h"
#include "coil/database_text.h"
#include "coil/model_lookup.h"
#include "frame/dialog_session.h"
#include "frame/messages.h"
#include "frame/paths.h"
#include "frame/tile_numbers.h"

namespace vrn2 {
namespace {

constexpr wchar_t kMainDialog[] = L"scdinfo";
constexpr wchar_t kHelpDialog[] = L"scdhelp";
constexpr wchar_t kConfirmDialog[] = L"warming";
constexpr wchar_t kConfirmUnavailable[] = L"无法显示提示对话框,默认执行.";
constexpr wchar_t kChooseEntry[] = L"选择要去掉的接触系数.";

struct Editor {
    int dclId = -1;
    std::vector<CoolerKey> records;     // the entries of the record list
    std::vector<std::wstring> entries;  // the contact-coefficient list
    std::vector<const wchar_t*> done;   // messages of the finished edits, printed at the end
};

void showRecords(ads_hdlg dialog, Editor& editor) {
    editor.records = listCoolerRecords(suitePath(kCoolerDatabase));
    std::vector<std::wstring> names;
    for (const CoolerKey& key : editor.records) names.push_back(coolerHeader(key.name, key.rows).substr(1));
    for (std::wstring& name : names) name.pop_back();  // "JW20*4", without the braces
    showList(dialog, L"records", names);
}

// Shows the record the model and rows tiles name, when the database has it. A name that is
// not there yet is a record being typed in: the tiles stay as they are.
void showNamedRecord(ads_hdlg dialog, Editor& editor) {
    std::wstring name;
    int rows = 0;
    if (recordKeyFault(readRecordTexts(dialog, {}), name, rows)) return;
    CoolerModel record;
    if (lookupCoolerModel(suitePath(kCoolerDatabase), name, rows, record, nullptr))
        editor.entries = showRecord(dialog, record);
}

void onRecordChosen(ads_callback_packet* packet) {
    auto* editor = static_cast<Editor*>(packet->client_data);
    const long k = std::wcstol(packet->value, nullptr, 10);
    if (k < 0 || static_cast<size_t>(k) >= editor->records.size()) return;
    const CoolerKey& key = editor->records[k];
    ads_set_tile(packet->dialog, L"type", key.name.c_str());
    ads_set_tile(packet->dialog, L"Nn", std::to_wstring(key.rows).c_str());
    showNamedRecord(packet->dialog, *editor);
}

void onKeyTyped(ads_callback_packet* packet) {
    showNamedRecord(packet->dialog, *static_cast<Editor*>(packet->client_data));
}

void onAddEntry(ads_callback_packet* packet) {
    auto* editor = static_cast<Editor*>(packet->client_data);
    ads_hdlg dialog = packet->dialog;
    std::wstring Vy, E2;
    readTileText(dialog, L"Vy_value", 15, Vy);
    readTileText(dialog, L"E2_value", 15, E2);
    ContactPair pair;
    if (auto fault = contactEntryFault(Vy, E2, editor->entries.size(), pair)) {
        showInputError(dialog, fault->message, fault->key, ErrorPlace::Alert);
        return;
    }
    editor->entries.push_back(contactListEntry(pair.Vy, pair.E2));
    showList(dialog, L"E2_list", editor->entries);
    ads_set_tile(dialog, L"Vy_value", L"");
    ads_set_tile(dialog, L"E2_value", L"");
}

void onDeleteEntry(ads_callback_packet* packet) {
    auto* editor = static_cast<Editor*>(packet->client_data);
    std::wstring index;
    readTileText(packet->dialog, L"E2_list", 15, index);
    wchar_t* end = nullptr;
    const long k = std::wcstol(index.c_str(), &end, 10);
    if (index.empty() || *end || k < 0 || static_cast<size_t>(k) >= editor->entries.size()) {
        showInputError(packet->dialog, kChooseEntry, L"E2_list", ErrorPlace::Alert);
        return;
    }
    editor->entries.erase(editor->entries.begin() + k);
    showList(packet->dialog, L"E2_list", editor->entries);
}

// Tells the outcome of an edit: a failure at once, a success in the dialog and at the end.
void tell(ads_hdlg dialog, Editor& editor, EditOutcome outcome) {
    const wchar_t* message = editMessage(outcome);
    if (outcome == EditOutcome::Added || outcome == EditOutcome::Modified || outcome == EditOutcome::Deleted) {
        editor.done.push_back(message);
        showInputError(dialog, message + 1);  // without its leading line break
        showRecords(dialog, editor);
    } else {
        acedAlert(message);
    }
}

void onSave(ads_callback_packet* packet) {
    auto* editor = static_cast<Editor*>(packet->client_data);
    ads_hdlg dialog = packet->dialog;
    clearInputError(dialog);
    CoolerModel record;
    if (auto fault = recordFault(readRecordTexts(dialog, editor->entries), record)) {
        showInputError(dialog, fault->message, fault->key, ErrorPlace::Alert);
        return;
    }
    tell(dialog, *editor,
         saveCoolerRecord(suitePath(kCoolerDatabase), suitePath(kCoolerDatabaseTemp), record, editor->entries));
}

void onConfirm(ads_callback_packet* packet) { ads_done_dialog(packet->dialog, DLGOK); }

// Asks whether to delete; a confirmation that cannot be shown counts as given.
bool deletionConfirmed(int dclId) {
    DialogSession confirm(dclId);
    if (!confirm.create(kConfirmDialog, {})) {
        acedAlert(kConfirmUnavailable);
        return true;
    }
    confirm.action(L"ok", onConfirm);
    return confirm.run() == DLGOK;
}

void onDelete(ads_callback_packet* packet) {
    auto* editor = static_cast<Editor*>(packet->client_data);
    ads_hdlg dialog = packet->dialog;
    clearInputError(dialog);
    std::wstring name;
    int rows = 0;
    if (auto fault = recordKeyFault(readRecordTexts(dialog, {}), name, rows)) {
        showInputError(dialog, fault->message, fault->key, ErrorPlace::Alert);
        return;
    }
    if (!deletionConfirmed(editor->dclId)) return;
    tell(dialog, *editor,
         deleteCoolerRecord(suitePath(kCoolerDatabase), suitePath(kCoolerDatabaseTemp), name, rows));
}

void onHelp(ads_callback_packet* packet) {
    const auto* editor = static_cast<const Editor*>(packet->client_data);
    DialogSession help(editor->dclId);
    if (help.create(kHelpDialog, {Channel::Alert, kCannotShowDialog})) help.run();
}

void connectActions(const DialogSession& dialogs, Editor& editor) {
    dialogs.action(L"records", onRecordChosen, &editor);
    dialogs.action(L"type", onKeyTyped, &editor);
    dialogs.action(L"Nn", onKeyTyped, &editor);
    dialogs.action(L"addE2list", onAddEntry, &editor);
    dialogs.action(L"deleteE2list", onDeleteEntry, &editor);
    dialogs.action(L"add", onSave, &editor);
    dialogs.action(L"delete", onDelete, &editor);
    dialogs.action(L"help", onHelp, &editor);
}

}  // namespace

int coolerDatabaseEditor() {
    DialogSession dialogs(kCoolerDialogFile, {Channel::Alert, kMsgCannotLoadDialog});
    if (!dialogs.loaded()) return RTERROR;
    if (!dialogs.create(kMainDialog, {Channel::Alert, kCannotShowDialog})) return RTERROR;
    Editor editor;
    editor.dclId = dialogs.dclId();
    showRecords(dialogs.dialog(), editor);
    showFormula(dialogs.dialog());
    connectActions(dialogs, editor);
    dialogs.run();
    for (const wchar_t* message : editor.done) acutPrintf(L"%ls", message);
    return RTNORM;
}

}  // namespace vrn2
