// Scripted actions for dialogs that run headless: the console queues them per dialog name,
// and the dialog runtime applies them when that dialog starts.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host {

struct DialogAction {
    enum class Kind { Set, Press, Select } kind = Kind::Press;
    std::wstring key;
    std::wstring value;  // Set: the new value; Select: the list index(es), e.g. "2" or "0 3"
};

// Appends one batch for the next start of dialog NAME (names compare exactly). Batches
// queued for the same name are used one per start, in order.
void queueDialogActions(const std::wstring& dialogName, std::vector<DialogAction> actions);
// The next batch for NAME; nullopt when nothing is queued (the dialog is then cancelled).
std::optional<std::vector<DialogAction>> takeDialogActions(const std::wstring& dialogName);
// Names with batches not used yet (the console warns about them at the end of a run).
std::vector<std::wstring> pendingDialogNames();
// Queued actions a dialog could not apply (no such tile, a disabled tile): a run that asked
// for them did not do all it asked.
void noteSkippedDialogAction();
size_t skippedDialogActions();

}  // namespace host
