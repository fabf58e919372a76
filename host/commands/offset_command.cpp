// OFFSET: a distance (OFFSETDIST keeps it; Through, kept as -1, takes it from a point the copy
// passes through), then objects, each with a point on the side the copy goes to, until Enter
// or Exit. Lines move sideways in the plan; circles and arcs get a larger or smaller radius in
// their own plane, and an inward offset that would reach the centre is refused. Erase deletes
// the source after offsetting (OFFSETERASE), Layer puts copies on the current layer instead of
// the source's. Multiple offsets the same object again and again, each from the last copy;
// Undo takes the last copy back. The command fails when an object could not be offset.
#include <cmath>

#include "acdbads.h"
#include "adscodes.h"
#include "host/commands/edit_support.h"
#include "host/commands/object_selection.h"
#include "host/commands/offset_geometry.h"
#include "host/db/resbuf.h"
#include "host/runtime/host.h"

namespace host::cmd {
namespace {

struct Settings {
    double distance = -1;  // below 0: through a point
    bool erase = false;
    bool currentLayer = false;
};

bool offsettable(const std::wstring& type) { return type == L"LINE" || type == L"CIRCLE" || type == L"ARC"; }

resbuf* group(const EditedObject& o, int code) { return const_cast<resbuf*>(findGroup(o.lists[0].get(), code)); }

// Changes the object's list to its offset towards p; false when it cannot be offset.
bool offsetList(EditedObject& o, double distance, const double p[3]) {
    if (o.type == L"LINE") {
        double* a = group(o, 10)->resval.rpoint;
        double* b = group(o, 11)->resval.rpoint;
        int side;
        if (distance < 0) distance = distanceFromLine(a, b, p, side);
        double na[2], nb[2];
        if (!offsetLine(a, b, distance, p, na, nb)) return false;
        a[0] = na[0], a[1] = na[1], b[0] = nb[0], b[1] = nb[1];
        return true;
    }
    const resbuf* normal = group(o, 210);
    double extrusion[3] = {0, 0, 1}, own[3];
    if (normal)
        for (int i = 0; i < 3; ++i) extrusion[i] = normal->resval.rpoint[i];
    worldToOwn(p, extrusion, own);
    const double* centre = group(o, 10)->resval.rpoint;
    resbuf* radius = group(o, 40);
    bool inside;
    if (distance < 0) distance = distanceFromCircle(centre, radius->resval.rreal, own, inside);
    return offsetRadius(centre, radius->resval.rreal, distance, own, radius->resval.rreal);
}

void toCurrentLayer(EditedObject& o) {
    const SysVarValue* layer = vars().find(L"CLAYER");
    if (resbuf* g = group(o, 8); g && layer) {
        std::free(g->resval.rstring);
        g->resval.rstring = copyString(layer->text);
    }
}

// A yes or no answer; false when the input ended.
bool askYesNo(CommandInput& in, const std::wstring& promptText, bool& yes) {
    while (const CommandToken* t = ask(in, promptText)) {
        int option = optionOf(*t, {{L"Yes", L"Y"}, {L"No", L"N"}});
        if (t->isEnter() || option >= 0) {
            if (option >= 0) yes = option == 0;
            return true;
        }
        say(L"\nInvalid option keyword.");
    }
    return false;
}

// The distance prompt with its Erase and Layer settings; false when the input ended.
bool askDistance(CommandInput& in, Settings& s) {
    const SysVarValue* kept = vars().find(L"OFFSETDIST");
    s.distance = kept ? kept->real : -1;
    while (true) {
        std::wstring fallback = s.distance < 0 ? L"Through" : lengthText(s.distance);
        int option;
        double v;
        Reply r = askNumber(in, L"\nSpecify offset distance or [Through/Erase/Layer] <" + fallback + L">: ", v,
                            nullptr, true, {{L"Through", L"T"}, {L"Erase", L"E"}, {L"Layer", L"L"}}, option);
        if (r == Reply::Cancel) return false;
        if (r == Reply::Value) s.distance = v;
        if (r == Reply::Option && option == 0) s.distance = -1;
        if (r == Reply::Option && option == 1) {
            if (!askYesNo(in, L"\nErase source object after offsetting? [Yes/No] <No>: ", s.erase)) return false;
            vars().setShort(L"OFFSETERASE", s.erase ? 1 : 0);
            continue;
        }
        if (r == Reply::Option && option == 2) {
            bool current = s.currentLayer;
            while (const CommandToken* t = ask(in, L"\nEnter layer option for offset objects [Current/Source] <Source>: ")) {
                int o = optionOf(*t, {{L"Current", L"C"}, {L"Source", L"S"}});
                if (t->isEnter() || o >= 0) {
                    current = o == 0;
                    break;
                }
                say(L"\nInvalid option keyword.");
            }
            s.currentLayer = current;
            continue;
        }
        vars().setReal(L"OFFSETDIST", s.distance);
        return true;
    }
}

enum class Outcome { Next, Done, Cancel };

// The side points for one object: one, or in Multiple mode until Enter, each from the last
// copy. made collects the copies, for Undo.
Outcome offsetObject(CommandInput& in, const Name& source, const Settings& s, std::vector<Name>& made, bool& failed) {
    bool multiple = false;
    Name from = source;
    while (true) {
        std::wstring what = s.distance < 0 ? L"\nSpecify through point" : L"\nSpecify point on side to offset";
        std::wstring promptText = multiple ? what + L" or [Exit/Undo] <next object>: "
                                           : what + L" or [Exit/Multiple/Undo] <Exit>: ";
        double p[3];
        int option;
        Reply r = askPoint(in, promptText, p, {{L"Exit", L"E"}, {L"Multiple", L"M"}, {L"Undo", L"U"}}, option);
        if (r == Reply::Cancel) return Outcome::Cancel;
        if (r == Reply::Enter) return multiple ? Outcome::Next : Outcome::Done;
        if (r == Reply::Option && option == 0) return Outcome::Done;
        if (r == Reply::Option && option == 1) {
            multiple = true;
            continue;
        }
        if (r == Reply::Option) {
            if (!made.empty()) {
                ads_name e = {made.back()[0], made.back()[1]};
                acdbEntDel(e);
                made.pop_back();
            }
            continue;
        }
        EditedObject o;
        if (!readObject(from, o) || !offsetList(o, s.distance, p)) {
            say(L"\nCannot offset that object.");
            failed = true;
            if (!multiple) return Outcome::Next;
            continue;
        }
        if (s.currentLayer) toCurrentLayer(o);
        Name copy;
        if (writeCopy(o, copy) != RTNORM) return Outcome::Cancel;
        made.push_back(copy);
        from = copy;
        if (!multiple) return Outcome::Next;
    }
}

int offsetCommand(CommandInput& in) {
    Settings s;
    const SysVarValue* erase = vars().find(L"OFFSETERASE");
    s.erase = erase && erase->integer == 1;
    inform(std::wstring(L"\nCurrent settings: Erase source=") + (s.erase ? L"Yes" : L"No") +
        L"  Layer=Source  OFFSETGAPTYPE=0");
    if (!askDistance(in, s)) return RTCAN;
    std::vector<Name> made;
    bool failed = false;
    const wchar_t* selectPrompt = L"\nSelect object to offset or [Exit/Undo] <Exit>: ";
    while (true) {
        const CommandToken* next = in.peek();
        if (!next) return RTCAN;
        if (next->isEnter() || isKeyword(*next, {L"EXIT", L"E"}) || isKeyword(*next, {L"UNDO", L"U"})) {
            bool undo = isKeyword(*ask(in, selectPrompt), {L"UNDO", L"U"});
            if (!undo) break;
            if (!made.empty()) {
                ads_name e = {made.back()[0], made.back()[1]};
                acdbEntDel(e);
                made.pop_back();
            }
            continue;
        }
        Name source;
        double pick[3];
        bool picked;
        if (!readOneObject(in, selectPrompt, source, pick, picked)) {
            failed = true;
            continue;
        }
        EditedObject o;
        if (!readObject(source, o) || !offsettable(o.type)) {
            say(L"\nCannot offset that object.");
            failed = true;
            continue;
        }
        size_t before = made.size();
        Outcome outcome = offsetObject(in, source, s, made, failed);
        if (s.erase && made.size() > before) {
            ads_name e = {source[0], source[1]};
            acdbEntDel(e);
        }
        if (outcome == Outcome::Cancel) return RTCAN;
        if (outcome == Outcome::Done) break;
    }
    return failed ? RTERROR : RTNORM;
}

CommandRegistration offset(L"OFFSET", offsetCommand);

}  // namespace
}  // namespace host::cmd
