#include "host/dcl/audit.h"

#include <set>

namespace host::dcl {
namespace {

struct Auditor {
    const Tile& dialog;
    std::vector<Problem>& problems;
    std::set<std::wstring> keys;

    void report(const Tile& tile, std::wstring message) {
        const Tile& at = tile.file.empty() ? dialog : tile;  // host tiles: point at the dialog
        problems.push_back(Problem{at.file, at.line, std::move(message)});
    }

    void visit(const Tile& tile, const Tile* parent) {
        std::wstring key = tile.key();
        if (isActive(tile.kind) && key.empty()) {
            std::wstring kind(kindName(tile.kind));
            std::wstring what = tile.type == kind ? L"'" + kind + L"'" : L"'" + tile.type + L"' (" + kind + L")";
            report(tile, L"active tile " + what + L" has no key");
        }
        if (!key.empty() && !keys.insert(key).second)
            report(tile, L"key \"" + key + L"\" is used more than once in dialog '" + dialog.type + L"'");
        if (tile.kind == TileKind::RadioButton && (!parent || parent->kind != TileKind::RadioCluster))
            report(tile, L"radio_button \"" + key + L"\" is not inside a radio_row or radio_column");
        for (const auto& child : tile.children) visit(child, &tile);
    }
};

}  // namespace

void auditDialog(const Tile& dialog, std::vector<Problem>& problems) {
    Auditor auditor{dialog, problems, {}};
    auditor.visit(dialog, nullptr);
}

}  // namespace host::dcl
