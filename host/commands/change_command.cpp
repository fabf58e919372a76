// CHANGE: objects selected until Enter, then either Properties and property after property
// until Enter (Color, LAyer, LType, ltScale, LWeight, Thickness, Elev), or a change point,
// which moves the nearer end of lines to it and gives circles the radius that reaches it.
#include <cmath>

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/commands/object_selection.h"
#include "host/db/database.h"
#include "host/db/tables.h"
#include "host/text.h"

namespace host::cmd {
namespace {

// Gives each object the group, or removes it when remove is set (colour BYLAYER).
void applyToAll(const std::vector<Name>& objects, resbuf* group) {
    RbPtr owned(group);
    for (const auto& n : objects) {
        ads_name e = {n[0], n[1]};
        RbPtr list(acutBuildList(-1, e, 0));
        list->rbnext = copyChain(group);
        acdbEntMod(list.get());
    }
}

void changeColour(CommandInput& in, const std::vector<Name>& objects) {
    while (const CommandToken* t = ask(in, L"\nEnter new color [Truecolor/COlorbook] <BYLAYER>: ")) {
        if (t->isEnter()) return;
        int colour;
        if (readColour(*t, colour, true)) {
            applyToAll(objects, acutBuildList(62, colour, 0));
            return;
        }
        say(L"\nInvalid color value.");
    }
}

void changeLayer(CommandInput& in, const std::vector<Name>& objects) {
    const CommandToken* t = ask(in, L"\nEnter new layer name <0>: ");
    if (!t || t->isEnter() || t->type != RTSTR) return;
    uint32_t layer = database().findEntry("LAYER", t->text);
    if (layer == db::kNone) {
        say(L"\nCannot find layer \"" + t->text + L"\".");
        return;
    }
    applyToAll(objects, acutBuildList(8, database().recordName(layer).c_str(), 0));
}

void changeLinetype(CommandInput& in, const std::vector<Name>& objects) {
    const CommandToken* t = ask(in, L"\nEnter new linetype name <ByLayer>: ");
    if (!t || t->isEnter() || t->type != RTSTR) return;
    if (!db::isByName(t->text) && database().findEntry("LTYPE", t->text) == db::kNone) {
        say(L"\nLinetype " + t->text + L" not found.");
        return;
    }
    applyToAll(objects, acutBuildList(6, t->text.c_str(), 0));
}

void changeNumber(CommandInput& in, const std::vector<Name>& objects, const wchar_t* promptText, int code) {
    const CommandToken* t = ask(in, promptText);
    double v;
    if (t && !t->isEnter() && readReal(*t, v)) {
        if (code == 370) {
            // A lineweight is a small whole number (hundredths of a millimetre, or -1..-3).
            if (v >= -3 && v <= 211 && v == std::trunc(v)) applyToAll(objects, acutBuildList(370, static_cast<int>(v), 0));
            else say(L"\nInvalid lineweight.");
        }
        else applyToAll(objects, acutBuildList(code, v, 0));
    }
}

// The elevation: a light-weight polyline's own, the Z of the points of other entities.
void changeElevation(CommandInput& in, const std::vector<Name>& objects) {
    const CommandToken* t = ask(in, L"\nSpecify new elevation <0.0000>: ");
    double z;
    if (!t || t->isEnter() || !readReal(*t, z)) return;
    for (const auto& n : objects) {
        RbPtr list = entityList(n);
        const resbuf* type = findGroup(list.get(), 0);
        if (!type) continue;
        if (std::wstring(type->resval.rstring) == L"LWPOLYLINE") {
            ads_name e = {n[0], n[1]};
            RbPtr change(acutBuildList(-1, e, 38, z, 0));
            acdbEntMod(change.get());
            continue;
        }
        for (resbuf* rb = list.get(); rb; rb = rb->rbnext)
            if (rb->restype == 10 || rb->restype == 11) rb->resval.rpoint[2] = z;
        acdbEntMod(list.get());
    }
}

// Lines: the nearer end goes to the point. Circles: the radius reaches the point.
void changePoint(const std::vector<Name>& objects, const double p[3]) {
    for (const auto& n : objects) {
        RbPtr list = entityList(n);
        const resbuf* type = findGroup(list.get(), 0);
        if (!type) continue;
        std::wstring kind = type->resval.rstring;
        if (kind == L"LINE") {
            resbuf* a = const_cast<resbuf*>(findGroup(list.get(), 10));
            resbuf* b = const_cast<resbuf*>(findGroup(list.get(), 11));
            double da = std::hypot(a->resval.rpoint[0] - p[0], a->resval.rpoint[1] - p[1]);
            double db = std::hypot(b->resval.rpoint[0] - p[0], b->resval.rpoint[1] - p[1]);
            resbuf* end = da <= db ? a : b;
            for (int i = 0; i < 3; ++i) end->resval.rpoint[i] = p[i];
            acdbEntMod(list.get());
        } else if (kind == L"CIRCLE") {
            resbuf* c = const_cast<resbuf*>(findGroup(list.get(), 10));
            resbuf* r = const_cast<resbuf*>(findGroup(list.get(), 40));
            r->resval.rreal = std::hypot(c->resval.rpoint[0] - p[0], c->resval.rpoint[1] - p[1]);
            acdbEntMod(list.get());
        }
    }
}

int changeCommand(CommandInput& in) {
    std::vector<Name> objects;
    if (!readObjects(in, objects)) return RTNORM;
    const CommandToken* t = ask(in, L"\nSpecify change point or [Properties]: ");
    if (!t || t->isEnter()) return RTNORM;
    double p[3];
    if (!isKeyword(*t, {L"PROPERTIES", L"P"})) {
        if (readPoint(*t, p)) changePoint(objects, p);
        else say(L"\nInvalid option keyword.");
        return RTNORM;
    }
    const wchar_t* options =
        L"\nEnter property to change [Color/Elev/LAyer/LType/ltScale/LWeight/Thickness/Material/PLotstyle]: ";
    while ((t = ask(in, options))) {
        if (t->isEnter()) break;
        if (isKeyword(*t, {L"COLOR", L"C"})) changeColour(in, objects);
        else if (isKeyword(*t, {L"LAYER", L"LA"})) changeLayer(in, objects);
        else if (isKeyword(*t, {L"LTYPE", L"LT"})) changeLinetype(in, objects);
        else if (isKeyword(*t, {L"LTSCALE", L"S"})) changeNumber(in, objects, L"\nSpecify new linetype scale <1.0000>: ", 48);
        else if (isKeyword(*t, {L"THICKNESS", L"T"})) changeNumber(in, objects, L"\nSpecify new thickness <0.0000>: ", 39);
        else if (isKeyword(*t, {L"LWEIGHT", L"LW"})) changeNumber(in, objects, L"\nEnter new lineweight <ByLayer>: ", 370);
        else if (isKeyword(*t, {L"ELEV", L"E"})) changeElevation(in, objects);
        else say(L"\nInvalid option keyword.");
    }
    return RTNORM;
}

CommandRegistration change(L"CHANGE", changeCommand);

}  // namespace
}  // namespace host::cmd
