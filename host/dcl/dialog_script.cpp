#include "host/dcl/dialog_script.h"

#include <deque>
#include <map>

#include "host/session.h"

namespace host {
namespace {

struct DialogScript {
    std::map<std::wstring, std::deque<std::vector<DialogAction>>> queues;
    size_t skipped = 0;
};

std::map<std::wstring, std::deque<std::vector<DialogAction>>>& queues() {
    return sessionPart<DialogScript>().queues;
}

}  // namespace

void queueDialogActions(const std::wstring& dialogName, std::vector<DialogAction> actions) {
    queues()[dialogName].push_back(std::move(actions));
}

std::optional<std::vector<DialogAction>> takeDialogActions(const std::wstring& dialogName) {
    auto it = queues().find(dialogName);
    if (it == queues().end() || it->second.empty()) return std::nullopt;
    auto batch = std::move(it->second.front());
    it->second.pop_front();
    if (it->second.empty()) queues().erase(it);
    return batch;
}

void noteSkippedDialogAction() { ++sessionPart<DialogScript>().skipped; }
size_t skippedDialogActions() { return sessionPart<DialogScript>().skipped; }

std::vector<std::wstring> pendingDialogNames() {
    std::vector<std::wstring> names;
    for (auto& [name, q] : queues())
        if (!q.empty()) names.push_back(name);
    return names;
}

}  // namespace host
