// LAYER: makes, sets and changes layers, option after option until Enter.
//   Make name        make the layer if needed and make it current
//   Set name         make an existing layer current
//   New names        make layers (names separated by commas)
//   Color c names    give layers a colour (names may be patterns; Enter: the current layer)
//   ON / OFF names   show or hide layers (a hidden layer's colour is negative)
//   Ltype lt names, Freeze / Thaw names, LOck / Unlock names
#include <cstdlib>

#include "acutads.h"
#include "adscodes.h"
#include "host/commands/command_support.h"
#include "host/db/database.h"
#include "host/db/tables.h"
#include "host/db/wildcard.h"
#include "host/runtime/host.h"
#include "host/text.h"

namespace host::cmd {
namespace {

using db::Group;
using db::GroupList;

std::vector<std::wstring> splitNames(const std::wstring& list) {
    std::vector<std::wstring> names;
    size_t start = 0;
    for (size_t i = 0; i <= list.size(); ++i)
        if (i == list.size() || list[i] == L',') {
            if (i > start) names.push_back(list.substr(start, i - start));
            start = i + 1;
        }
    return names;
}

std::wstring currentLayerName() {
    const SysVarValue* v = vars().find(L"CLAYER");
    return v ? v->text : L"0";
}

// The layers a name list names: patterns match existing layers, plain names must exist.
std::vector<uint32_t> layersNamed(const std::wstring& list) {
    db::Database& d = database();
    std::vector<uint32_t> out;
    const db::Table* table = d.table("LAYER");
    for (const auto& name : splitNames(list)) {
        bool pattern = name.find_first_of(L"*?#@.~[,`") != std::wstring::npos;
        bool any = false;
        if (table)
            for (uint32_t e : table->entries) {
                if (d.record(e).deleted) continue;
                bool match = pattern ? db::wildcardMatchNoCase(d.recordName(e), name)
                                     : equalsNoCase(d.recordName(e), name);
                if (match) {
                    out.push_back(e);
                    any = true;
                }
            }
        if (!any) say(L"\nCannot find layer \"" + name + L"\".");
    }
    return out;
}

// Runs edit on the layer's own groups.
void editLayer(uint32_t layer, const std::function<void(GroupList&)>& edit) {
    db::editRecord(database(), layer, edit);
}

long long layerColour(const GroupList& g) {
    const Group* c = db::findCode(g, 62);
    return c ? c->integer : 7;
}

long long layerFlags(const GroupList& g) {
    const Group* f = db::findCode(g, 70);
    return f ? f->integer : 0;
}

// The name list that follows an option; Enter means the current layer.
std::wstring readNameList(CommandInput& in, const std::wstring& promptText) {
    const CommandToken* t = ask(in, promptText);
    if (!t || t->isEnter() || t->type != RTSTR) return currentLayerName();
    return t->text;
}

bool makeCurrent(const std::wstring& name) {
    db::Database& d = database();
    uint32_t layer = d.findEntry("LAYER", name);
    if (layer == db::kNone) return false;
    GroupList fields;
    db::decodeGroups(d, d.record(layer).groups, fields, nullptr);
    if (layerFlags(fields) & 1) {
        say(L"\nCannot set current layer to a frozen layer.");
        return true;
    }
    vars().setString(L"CLAYER", d.recordName(layer));
    return true;
}

void colourOption(CommandInput& in) {
    int colour = 0;
    const CommandToken* t = nullptr;
    while ((t = ask(in, L"\nEnter color name or number (1-255)||Truecolor|COlorbook: ")) && !t->isEnter()) {
        if (readColour(*t, colour, false)) break;
        say(L"\nInvalid color value.");
    }
    if (!t || t->isEnter()) return;
    std::wstring names = readNameList(in, L"\nEnter name list of layer(s) for color " + std::to_wstring(colour) +
                                              L" <" + currentLayerName() + L">: ");
    for (uint32_t layer : layersNamed(names))
        editLayer(layer, [&](GroupList& g) {
            bool off = layerColour(g) < 0;
            db::setGroup(g, db::intGroup(62, off ? -colour : colour));
        });
}

void onOffOption(CommandInput& in, bool on) {
    std::wstring names = readNameList(in, on ? L"\nEnter name list of layer(s) to turn On: "
                                             : L"\nEnter name list of layer(s) to turn off or <select objects>: ");
    for (uint32_t layer : layersNamed(names))
        editLayer(layer, [&](GroupList& g) {
            long long c = std::llabs(layerColour(g));
            db::setGroup(g, db::intGroup(62, on ? c : -c));
        });
}

void flagOption(CommandInput& in, const wchar_t* question, int bit, bool set) {
    std::wstring names = readNameList(in, question);
    for (uint32_t layer : layersNamed(names))
        editLayer(layer, [&](GroupList& g) {
            long long flags = layerFlags(g);
            db::setGroup(g, db::intGroup(70, set ? (flags | bit) : (flags & ~bit)));
        });
}

void linetypeOption(CommandInput& in) {
    const CommandToken* t = ask(in, L"\nEnter a loaded linetype name or [?] <Continuous>: ");
    if (!t || t->type != RTSTR) return;
    std::wstring linetype = t->isEnter() ? L"Continuous" : t->text;
    uint32_t entry = database().findEntry("LTYPE", linetype);
    if (entry == db::kNone) {
        say(L"\nLinetype " + linetype + L" not found.  Use LINETYPE command to load it.");
        return;
    }
    std::wstring names = readNameList(in, L"\nEnter name list of layers for linetype \"" + linetype + L"\" <" +
                                              currentLayerName() + L">: ");
    std::wstring stored = database().recordName(entry);
    for (uint32_t layer : layersNamed(names))
        editLayer(layer, [&](GroupList& g) { db::setGroup(g, db::stringGroup(6, stored)); });
}

bool makeLayers(const std::wstring& list) {
    bool ok = true;
    for (const auto& name : splitNames(list))
        if (db::ensureLayer(database(), name) == db::kNone) {
            say(L"\nInvalid layer name: " + name);
            ok = false;
        }
    return ok;
}

int layerCommand(CommandInput& in) {
    const wchar_t* options =
        L"\nEnter an option [?/Make/Set/New/ON/OFF/Color/Ltype/LWeight/MATerial/Plot/Freeze/Thaw/LOck/Unlock/stAte]: ";
    while (const CommandToken* t = ask(in, options)) {
        if (t->isEnter()) break;
        if (isKeyword(*t, {L"MAKE", L"M"})) {
            const CommandToken* n = ask(in, L"\nEnter name for new layer (becomes the current layer) <" +
                                                currentLayerName() + L">: ");
            if (!n || n->type != RTSTR || n->isEnter()) continue;
            if (db::ensureLayer(database(), n->text) == db::kNone) say(L"\nInvalid layer name.");
            else makeCurrent(n->text);
        } else if (isKeyword(*t, {L"SET", L"S"})) {
            const CommandToken* n = ask(in, L"\nEnter layer name to make current or <select object>: ");
            if (!n || n->type != RTSTR || n->isEnter()) continue;
            if (!makeCurrent(n->text)) say(L"\nCannot find layer \"" + n->text + L"\".");
        } else if (isKeyword(*t, {L"NEW", L"N"})) {
            const CommandToken* n = ask(in, L"\nEnter name list for new layer(s): ");
            if (n && n->type == RTSTR && !n->isEnter()) makeLayers(n->text);
        } else if (isKeyword(*t, {L"COLOR", L"C"})) {
            colourOption(in);
        } else if (isKeyword(*t, {L"ON"})) {
            onOffOption(in, true);
        } else if (isKeyword(*t, {L"OFF"})) {
            onOffOption(in, false);
        } else if (isKeyword(*t, {L"LTYPE", L"L"})) {
            linetypeOption(in);
        } else if (isKeyword(*t, {L"FREEZE", L"F"})) {
            flagOption(in, L"\nEnter name list of layer(s) to freeze or <select objects>: ", 1, true);
        } else if (isKeyword(*t, {L"THAW", L"T"})) {
            flagOption(in, L"\nEnter name list of layer(s) to thaw: ", 1, false);
        } else if (isKeyword(*t, {L"LOCK", L"LO"})) {
            flagOption(in, L"\nEnter name list of layer(s) to lock or <select objects>: ", 4, true);
        } else if (isKeyword(*t, {L"UNLOCK", L"U"})) {
            flagOption(in, L"\nEnter name list of layer(s) to unlock or <select objects>: ", 4, false);
        } else if (isKeyword(*t, {L"?"})) {
            ask(in, L"\nEnter layer name(s) to list <*>: ");
        } else {
            say(L"\nInvalid option keyword.");
        }
    }
    return RTNORM;
}

CommandRegistration layer(L"LAYER", layerCommand);
CommandRegistration dashLayer(L"-LAYER", layerCommand);

}  // namespace
}  // namespace host::cmd
