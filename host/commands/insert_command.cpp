// INSERT: a block of the drawing, then the insertion point, the X scale (or a Corner whose
// offset gives X and Y, or XYZ for three scales), the Y scale (Enter: the X scale) and the
// rotation. With ATTREQ 1 each attribute that is neither constant nor preset is asked for by
// its prompt, Enter taking its default; the ATTRIB entities follow the INSERT, placed as
// the block places its definitions, and a SEQEND ends them. A name starting with "*"
// inserts the block's entities themselves (the reference is exploded).
#include <cstdio>
#include <vector>

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/commands/block_definition.h"
#include "host/commands/block_explode.h"
#include "host/commands/block_placement.h"
#include "host/commands/drawing_prompts.h"
#include "host/runtime/host.h"

namespace host::cmd {
namespace {

constexpr int kConstant = 2, kPreset = 8;

struct Reference {
    BlockDefinition block;
    Placement placement;
    bool exploded = false;
};

bool readName(CommandInput& in, Reference& r) {
    const SysVarValue* last = vars().find(L"INSNAME");
    std::wstring fallback = last ? last->text : L"";
    std::wstring p = L"\nEnter block name or [?]" + (fallback.empty() ? L"" : L" <" + fallback + L">") + L": ";
    const CommandToken* t = ask(in, p);
    if (!t) return false;
    std::wstring name = t->isEnter() ? fallback : t->type == RTSTR ? t->text : L"";
    r.exploded = !name.empty() && name.front() == L'*';
    if (r.exploded) name.erase(name.begin());
    if (name.empty() || !readBlock(name, r.block)) {
        say(L"\nBlock \"" + name + L"\" not found.");
        return false;
    }
    return true;
}

// A scale factor other than 0; Enter keeps the default.
const CommandToken* askScale(CommandInput& in, const std::wstring& promptText, double& v, Keywords keys = {}) {
    const CommandToken* t;
    double read = v;
    while ((t = askDistance(in, promptText, nullptr, read, false, keys)) && !t->isEnter() && !isOneOf(*t, keys) &&
           read == 0)
        say(L"\nValue must be nonzero.");
    if (t && !t->isEnter() && !isOneOf(*t, keys)) v = read;
    return t;
}

// The X scale: a number, a corner point (X and Y from its offset), Corner or XYZ; false when
// the input ended.
bool readFirstScale(CommandInput& in, Placement& p, bool& done) {
    double* s = p.scale;
    double corner[3];
    const CommandToken* t;
    while ((t = ask(in, L"\nEnter X scale factor, specify opposite corner, or [Corner/XYZ] <1>: "))) {
        double v;
        if (t->isEnter()) return true;
        if (isKeyword(*t, {L"XYZ"})) {
            done = true;
            if (!askScale(in, L"\nSpecify X scale factor <1>: ", s[0])) return false;
            s[1] = s[2] = s[0];
            return askScale(in, L"\nSpecify Y scale factor <use X scale factor>: ", s[1]) &&
                   askScale(in, L"\nSpecify Z scale factor <use X scale factor>: ", s[2]);
        }
        bool byCorner = isKeyword(*t, {L"CORNER", L"C"});
        if (byCorner && (!(t = askPoint(in, L"\nSpecify opposite corner: ", corner)) || t->isEnter())) return false;
        if (!byCorner && readReal(*t, v)) {
            if (v != 0) {
                s[0] = s[1] = s[2] = v;
                return true;
            }
            say(L"\nValue must be nonzero.");
        } else if (byCorner || readPoint(*t, corner)) {
            s[0] = corner[0] - p.at[0];
            s[1] = corner[1] - p.at[1];
            s[2] = s[0];
            done = true;
            if (s[0] != 0 && s[1] != 0) return true;
            say(L"\nValue must be nonzero.");
            return false;
        } else {
            say(L"\nRequires numeric value, point or option keyword.");
        }
    }
    return false;
}

// The scales: X, then Y (Enter: the X scale) unless the X answer gave both.
bool readScales(CommandInput& in, Placement& p) {
    bool done = false;
    if (!readFirstScale(in, p, done)) return false;
    if (done) return true;
    p.scale[1] = p.scale[2] = p.scale[0];
    return askScale(in, L"\nEnter Y scale factor <use X scale factor>: ", p.scale[1]) != nullptr;
}

int flagsOf(const resbuf* list) {
    const resbuf* f = findGroup(list, 70);
    return f ? f->resval.rint : 0;
}

std::wstring textOf(const resbuf* list, int code) {
    const resbuf* g = findGroup(list, code);
    return g && g->resval.rstring ? g->resval.rstring : L"";
}

std::wstring answerText(const CommandToken& t) {
    if (t.type == RTSTR) return t.text;
    wchar_t buf[40];
    std::swprintf(buf, 40, L"%g", t.real);
    return buf;
}

// The values of the attributes that are asked for, in the order of their definitions.
bool askValues(CommandInput& in, const BlockDefinition& block, std::vector<std::wstring>& values) {
    const SysVarValue* req = vars().find(L"ATTREQ");
    bool asking = !req || req->integer != 0;
    bool told = false;
    for (const auto& e : block.entities) {
        if (typeOf(e.get()) != L"ATTDEF" || (flagsOf(e.get()) & kConstant)) continue;
        std::wstring value = textOf(e.get(), 1);
        if (asking && !(flagsOf(e.get()) & kPreset)) {
            if (!told) say(L"\nEnter attribute values");
            told = true;
            std::wstring promptText = textOf(e.get(), 3);
            if (promptText.empty()) promptText = textOf(e.get(), 2);
            const CommandToken* t =
                ask(in, L"\n" + promptText + (value.empty() ? L"" : L" <" + value + L">") + L": ");
            if (!t) return false;
            if (!t->isEnter()) value = answerText(*t);
        }
        values.push_back(value);
    }
    return true;
}

std::wstring currentLayer() {
    const SysVarValue* v = vars().find(L"CLAYER");
    return v && !v->text.empty() ? v->text : L"0";
}

// An ATTRIB of the definition with the value, where the reference places it.
RbPtr attributeOf(const resbuf* definition, const std::wstring& value, const Placement& p) {
    resbuf* head = nullptr;
    resbuf** tail = &head;
    for (const resbuf* rb = definition; rb && rb->restype != -3; rb = rb->rbnext) {
        if (rb->restype < 0 || isAnyOf(rb->restype, {3, 5, 100, 102, 330, 360})) continue;
        if (rb->restype == 0) *tail = acutBuildList(RTDXF0, L"ATTRIB", 0);
        else if (rb->restype == 1) *tail = acutBuildList(1, value.c_str(), 0);
        else if (rb->restype == 8 && textOf(definition, 8) == L"0")  // takes the reference's layer
            *tail = acutBuildList(8, currentLayer().c_str(), 0);
        else *tail = copyNode(rb);
        while (*tail) tail = &(*tail)->rbnext;
    }
    RbPtr list(head);
    std::vector<resbuf*> lists{list.get()};
    transformEntity(lists, placingTransform(p), true);
    return list;
}

int makeReference(const Reference& r, const std::vector<std::wstring>& values) {
    const Placement& p = r.placement;
    bool attributes = !values.empty();
    RbPtr insert(acutBuildList(RTDXF0, L"INSERT", 2, r.block.name.c_str(), 10, p.at, 41, p.scale[0], 42, p.scale[1],
                               43, p.scale[2], 50, p.rotation, 0));
    if (attributes) {
        resbuf* follows = acutBuildList(66, 1, 0);
        follows->rbnext = insert->rbnext;
        insert->rbnext = follows;
    }
    if (int s = makeWithCurrentProperties(insert.release()); s != RTNORM) return s;
    if (!attributes) return RTNORM;  // none defined, or the reference is to be exploded
    size_t i = 0;
    for (const auto& e : r.block.entities) {
        if (typeOf(e.get()) != L"ATTDEF" || (flagsOf(e.get()) & kConstant)) continue;
        RbPtr attribute = attributeOf(e.get(), i < values.size() ? values[i++] : L"", p);
        if (int s = acdbEntMake(attribute.get()); s != RTNORM) return s;
    }
    RbPtr end(acutBuildList(RTDXF0, L"SEQEND", 0));
    return acdbEntMake(end.get());
}

int insertCommand(CommandInput& in) {
    Reference r;
    if (!readName(in, r)) return RTERROR;
    for (int i = 0; i < 3; ++i) r.placement.base[i] = r.block.base[i];
    const CommandToken* t = askPoint(in, L"\nSpecify insertion point: ", r.placement.at);
    if (!t || t->isEnter() || !readScales(in, r.placement)) return RTCAN;
    double rotation = 0;
    t = askAngle(in, L"\nSpecify rotation angle <0>: ", r.placement.at, rotation, true);
    if (!t) return RTCAN;
    r.placement.rotation = t->isEnter() ? 0.0 : rotation;
    std::vector<std::wstring> values;
    if (!r.exploded && !askValues(in, r.block, values)) return RTCAN;
    if (int s = makeReference(r, values); s != RTNORM) return s;
    vars().setString(L"INSNAME", r.block.name);
    if (!r.exploded) return RTNORM;
    ads_name made;
    acdbEntLast(made);
    return explodeReference({made[0], made[1]}) ? RTNORM : RTERROR;
}

CommandRegistration insert(L"INSERT", insertCommand);
CommandRegistration dashInsert(L"-INSERT", insertCommand);

}  // namespace
}  // namespace host::cmd
