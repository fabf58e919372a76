#include "host/commands/object_selection.h"

#include <algorithm>

#include "acdbads.h"
#include "acedads.h"
#include "adscodes.h"
#include "host/db/database.h"
#include "host/db/selection.h"

namespace host::cmd {
namespace {

void addUnique(std::vector<Name>& out, const Name& n) {
    if (std::find(out.begin(), out.end(), n) == out.end()) out.push_back(n);
}

void addIndices(std::vector<Name>& out, const std::vector<uint32_t>& indices) {
    for (uint32_t i : indices) {
        ads_name n;
        database().nameOf(i, n);
        addUnique(out, {n[0], n[1]});
    }
}

bool isLiveEntity(const ads_name n) {
    uint32_t i = database().indexOf(n);
    if (i == db::kNone) return false;
    const db::Record& r = database().record(i);
    return r.kind == db::RecordKind::Entity && !r.deleted;
}

std::vector<uint32_t> select(const wchar_t* mode, const void* a, const void* b) {
    db::SelectionFilter none;
    std::vector<uint32_t> members;
    db::selectEntities(database(), mode, a, b, none, members);
    return members;
}

bool ucsPoint(const CommandToken& t, double p[3]) {
    if (t.type != RTPOINT && t.type != RT3DPOINT) return false;
    for (int i = 0; i < 3; ++i) p[i] = t.point[i];
    return true;
}

}  // namespace

bool readObjects(CommandInput& in, std::vector<Name>& out) {
    while (const CommandToken* t = ask(in, L"\nSelect objects: ")) {
        if (t->isEnter()) break;
        double p[3], q[3];
        if (t->type == RTENAME) {
            if (isLiveEntity(t->name)) addUnique(out, {t->name[0], t->name[1]});
            else say(L"\n*Invalid selection*");
        } else if (t->type == RTPICKS) {
            long n = 0;
            ads_name ss = {t->name[0], t->name[1]};
            if (acedSSLength(ss, &n) != RTNORM) say(L"\n*Invalid selection*");
            for (long i = 0; i < n; ++i) {
                ads_name e;
                if (acedSSName(ss, i, e) == RTNORM && isLiveEntity(e)) addUnique(out, {e[0], e[1]});
            }
        } else if (ucsPoint(*t, p)) {
            auto found = select(nullptr, p, nullptr);
            if (found.empty()) say(L"\n*Invalid selection*");
            addIndices(out, found);
        } else if (isKeyword(*t, {L"LAST", L"L"})) {
            addIndices(out, select(L"L", nullptr, nullptr));
        } else if (isKeyword(*t, {L"ALL"})) {
            addIndices(out, select(L"X", nullptr, nullptr));
        } else if (isKeyword(*t, {L"PREVIOUS", L"P"})) {
            addIndices(out, select(L"P", nullptr, nullptr));
        } else if (isKeyword(*t, {L"WINDOW", L"W", L"CROSSING", L"C"})) {
            bool window = isKeyword(*t, {L"WINDOW", L"W"});
            const CommandToken* a = ask(in, L"\nSpecify first corner: ");
            const CommandToken* b = a ? ask(in, L"\nSpecify opposite corner: ") : nullptr;
            if (!a || !b || !ucsPoint(*a, p) || !ucsPoint(*b, q)) {
                say(L"\n*Invalid selection*");
                continue;
            }
            addIndices(out, select(window ? L"W" : L"C", p, q));
        } else {
            say(L"\n*Invalid selection*");
        }
    }
    return !out.empty();
}

bool readOneObject(CommandInput& in, const wchar_t* promptText, Name& out, double pick[3], bool& picked) {
    picked = false;
    while (const CommandToken* t = ask(in, promptText)) {
        double p[3];
        if (t->type == RTENAME && isLiveEntity(t->name)) {
            out = {t->name[0], t->name[1]};
            return true;
        }
        if (t->type == RTPICKS) {
            ads_name ss = {t->name[0], t->name[1]}, e;
            if (acedSSName(ss, 0, e) == RTNORM && isLiveEntity(e)) {
                out = {e[0], e[1]};
                return true;
            }
        } else if (ucsPoint(*t, p)) {
            auto found = select(nullptr, p, nullptr);
            if (!found.empty()) {
                ads_name n;
                database().nameOf(found.front(), n);
                out = {n[0], n[1]};
                picked = readPoint(*t, pick);
                return true;
            }
        } else if (t->isEnter()) {
            return false;
        }
        say(L"\n*Invalid selection*");
        return false;
    }
    return false;
}

}  // namespace host::cmd
