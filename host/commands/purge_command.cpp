// PURGE: removes layers and blocks nothing refers to. The type (Blocks, LAyers or All), the
// names (a wildcard pattern, Enter: all), and whether to confirm each name. A layer stays
// while an entity lies on it anywhere (in a block too), and so do layer 0, the current
// layer and DEFPOINTS; a block stays while any reference inserts it, even inside another
// block, and layouts and anonymous and external blocks are never purged. All purges the
// blocks first, so that layers only they used go too.
#include <cstdint>
#include <vector>

#include "adscodes.h"
#include "host/commands/drawing_prompts.h"
#include "host/commands/drawing_references.h"
#include "host/db/database.h"
#include "host/db/group_values.h"
#include "host/db/wildcard.h"
#include "host/runtime/host.h"
#include "host/text.h"

namespace host::cmd {
namespace {

struct Choice {
    std::wstring names = L"*";
    bool verify = true;
};

std::wstring currentLayer() {
    const SysVarValue* v = vars().find(L"CLAYER");
    return v ? upperAscii(v->text) : L"0";
}

long long flagsOf(const db::Database& d, uint32_t record) {
    db::GroupList g;
    db::decodeGroups(d, d.record(record).groups, g, nullptr);
    const db::Group* f = db::findCode(g, 70);
    return f ? f->integer : 0;
}

// Whether to purge the name: when verifying, its own question, No by default.
bool confirmed(CommandInput& in, const Choice& c, const wchar_t* kind, const std::wstring& name, bool& ended) {
    if (!c.verify) return true;
    bool yes = false;
    const CommandToken* t = askYesNo(in, std::wstring(L"\nPurge ") + kind + L" \"" + name + L"\"? <N>: ", yes);
    ended = !t;
    return t && yes;
}

void report(size_t n, const wchar_t* one, const wchar_t* many) {
    if (n == 0) say(std::wstring(L"\nNo unreferenced ") + many + L" found.");
    else say(L"\n" + std::to_wstring(n) + L" " + (n == 1 ? one : many) + L" deleted.");
}

bool purgeLayers(CommandInput& in, const Choice& c) {
    db::Database& d = database();
    References refs = referencesOf(d);
    const db::Table* table = d.table("LAYER");
    std::vector<uint32_t> entries = table ? table->entries : std::vector<uint32_t>{};
    size_t purged = 0;
    bool ended = false;
    for (uint32_t e : entries) {
        if (d.record(e).deleted) continue;
        std::wstring name = d.recordName(e);
        std::wstring upper = upperAscii(name);
        if (upper == L"0" || upper == L"DEFPOINTS" || upper == currentLayer() || refs.layers.count(upper) ||
            (flagsOf(d, e) & 16) || !db::wildcardMatchNoCase(name, c.names))
            continue;
        if (!confirmed(in, c, L"layer", name, ended)) {
            if (ended) return false;
            continue;
        }
        say(L"\nDeleting layer \"" + name + L"\".");
        d.record(e).deleted = true;
        ++purged;
    }
    report(purged, L"layer", L"layers");
    return true;
}

void deleteBlock(db::Database& d, uint32_t b, const std::wstring& name) {
    const db::BlockDef& def = d.blocks()[b];
    d.record(def.begin).deleted = true;
    if (def.end != db::kNone) d.record(def.end).deleted = true;
    for (uint32_t e : def.entities) d.record(e).deleted = true;
    uint32_t entry = d.findEntry("BLOCK_RECORD", name);
    if (entry != db::kNone) d.record(entry).deleted = true;
}

bool purgeBlocks(CommandInput& in, const Choice& c) {
    db::Database& d = database();
    References refs = referencesOf(d);
    size_t purged = 0;
    bool ended = false;
    for (uint32_t b = 0; b < d.blocks().size(); ++b) {
        uint32_t begin = d.blocks()[b].begin;
        if (begin == db::kNone || d.record(begin).deleted) continue;
        std::wstring name = d.recordName(begin);
        // Layouts ($ in R12) and anonymous blocks start with * or $; 4, 16 and 32 mark
        // external references and what depends on them.
        if (name.empty() || name[0] == L'*' || name[0] == L'$' || (flagsOf(d, begin) & (4 | 16 | 32)) ||
            refs.blocks.count(upperAscii(name)) || !db::wildcardMatchNoCase(name, c.names))
            continue;
        if (!confirmed(in, c, L"block", name, ended)) {
            if (ended) return false;
            continue;
        }
        say(L"\nDeleting block \"" + name + L"\".");
        deleteBlock(d, b, name);
        ++purged;
    }
    report(purged, L"block", L"blocks");
    return true;
}

int purgeCommand(CommandInput& in) {
    const CommandToken* t;
    while ((t = ask(in, L"\nEnter type of unused objects to purge [Blocks/LAyers/All]: ")) &&
           !isOneOf(*t, {{L"BLOCKS", L"B"}, {L"LAYERS", L"LA"}, {L"ALL", L"A"}})) {
        if (t->isEnter()) return RTNORM;
        say(L"\nInvalid option keyword.");
    }
    if (!t) return RTCAN;
    bool blocks = !isKeyword(*t, {L"LAYERS", L"LA"}), layers = !isKeyword(*t, {L"BLOCKS", L"B"});
    Choice c;
    const CommandToken* names = ask(in, L"\nEnter name(s) to purge <*>: ");
    if (!names) return RTCAN;
    if (names->type == RTSTR && !names->isEnter()) c.names = names->text;
    if (!askYesNo(in, L"\nVerify each name to be purged? [Yes/No] <Y>: ", c.verify)) return RTCAN;
    if (blocks && !purgeBlocks(in, c)) return RTCAN;
    if (layers && !purgeLayers(in, c)) return RTCAN;
    return RTNORM;
}

CommandRegistration purge(L"PURGE", purgeCommand);
CommandRegistration dashPurge(L"-PURGE", purgeCommand);

}  // namespace
}  // namespace host::cmd
