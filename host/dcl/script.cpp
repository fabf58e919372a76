#include "host/dcl/script.h"

#include "acutads.h"
#include "host/dcl/dialog_script.h"
#include "host/dcl/interaction.h"
#include "host/dcl/runtime.h"

namespace host::dcl {
namespace {

std::wstring describe(const DialogAction& a) {
    switch (a.kind) {
    case DialogAction::Kind::Set: return L"(set \"" + a.key + L"\" \"" + a.value + L"\")";
    case DialogAction::Kind::Press: return L"(press \"" + a.key + L"\")";
    case DialogAction::Kind::Select: return L"(select \"" + a.key + L"\" \"" + a.value + L"\")";
    }
    return L"";
}

std::wstring apply(Dialog& dialog, const DialogAction& action) {
    int index = dialog.find(action.key);
    if (index <= 0) return L"no tile \"" + action.key + L"\"";
    if (!dialog.usable(index)) return L"tile \"" + action.key + L"\" is disabled";
    switch (action.kind) {
    case DialogAction::Kind::Set: return userSet(dialog, index, action.value);
    case DialogAction::Kind::Press: return userPress(dialog, index);
    case DialogAction::Kind::Select: return userSelect(dialog, index, action.value);
    }
    return L"";
}

}  // namespace

void applyScript(Dialog& dialog) {
    auto batch = takeDialogActions(dialog.name());
    if (!batch) return;
    for (const auto& action : *batch) {
        if (dialog.done || Runtime::instance().terminating()) break;
        std::wstring problem = apply(dialog, action);
        if (problem.empty()) continue;
        noteSkippedDialogAction();
        acutPrintf(L"Dialog \"%ls\": %ls; %ls skipped\n", dialog.name().c_str(), problem.c_str(),
                   describe(action).c_str());
    }
}

}  // namespace host::dcl
