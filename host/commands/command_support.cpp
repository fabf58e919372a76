#include "host/commands/command_support.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <cwctype>
#include <cstdio>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/runtime/host.h"
#include "host/text.h"

namespace host::cmd {
namespace {

constexpr double kPi = 3.14159265358979323846;

bool echoOn() {
    const SysVarValue* v = vars().find(L"CMDECHO");
    return !v || v->integer != 0;
}

std::wstring trim(std::wstring_view s) {
    while (!s.empty() && std::iswspace(s.front())) s.remove_prefix(1);
    while (!s.empty() && std::iswspace(s.back())) s.remove_suffix(1);
    return std::wstring(s);
}

// A number of the whole text, or false.
bool number(std::wstring_view text, double& v) {
    std::wstring s = trim(text);
    if (s.empty()) return false;
    wchar_t* end = nullptr;
    v = std::wcstod(s.c_str(), &end);
    return end && *end == L'\0';
}

void lastPoint(double p[3]) {
    const SysVarValue* v = vars().find(L"LASTPOINT");
    for (int i = 0; i < 3; ++i) p[i] = v ? v->point[i] : 0.0;
}

void ucsToWorld(const double ucs[3], double world[3]) {
    resbuf from{}, to{};
    from.restype = to.restype = RTSHORT;
    from.resval.rint = 1;
    to.resval.rint = 0;
    ads_point in = {ucs[0], ucs[1], ucs[2]};
    if (acedTrans(in, &from, &to, 0, world) != RTNORM)
        for (int i = 0; i < 3; ++i) world[i] = ucs[i];
}

// "x,y[,z]", "@dx,dy[,dz]" or "@dist<angle" in user coordinates.
bool pointText(std::wstring_view text, double ucs[3]) {
    std::wstring s = trim(text);
    bool relative = !s.empty() && s.front() == L'@';
    if (relative) s.erase(s.begin());
    double base[3] = {0, 0, 0};
    if (relative) lastPoint(base);
    if (relative && s.empty()) {
        for (int i = 0; i < 3; ++i) ucs[i] = base[i];
        return true;
    }
    if (auto lt = s.find(L'<'); relative && lt != std::wstring::npos) {
        double dist, angle;
        if (!number(s.substr(0, lt), dist) || !number(s.substr(lt + 1), angle)) return false;
        double a = toRadians(angle);
        ucs[0] = base[0] + dist * std::cos(a);
        ucs[1] = base[1] + dist * std::sin(a);
        ucs[2] = base[2];
        return true;
    }
    double c[3] = {0, 0, 0};
    size_t start = 0;
    int n = 0;
    for (size_t i = 0; i <= s.size(); ++i) {
        if (i < s.size() && s[i] != L',') continue;
        if (n == 3 || !number(s.substr(start, i - start), c[n])) return false;
        ++n;
        start = i + 1;
    }
    if (n < 2) return false;
    for (int i = 0; i < 3; ++i) ucs[i] = base[i] + c[i];
    return true;
}

// An answer as the command line shows it.
std::wstring echoOf(const CommandToken& t) {
    wchar_t buf[96];
    switch (t.type) {
    case RTSTR: return t.text;
    case RTREAL:
    case RTSHORT: std::swprintf(buf, 96, L"%g", t.real); return buf;
    case RTPOINT: std::swprintf(buf, 96, L"%g,%g", t.point[0], t.point[1]); return buf;
    case RT3DPOINT: std::swprintf(buf, 96, L"%g,%g,%g", t.point[0], t.point[1], t.point[2]); return buf;
    default: return L"";
    }
}

}  // namespace

SysVars& vars() { return Host::instance().current().sysvars(); }
db::Database& database() { return Host::instance().current().database(); }

const CommandToken* ask(CommandInput& in, std::wstring_view promptText) {
    if (echoOn()) acutPrintf(L"%ls", std::wstring(promptText).c_str());
    const CommandToken* t = in.next();
    if (echoOn() && t) acutPrintf(L"%ls\n", echoOf(*t).c_str());
    return t;
}

void say(std::wstring_view text) { acutPrintf(L"%ls", std::wstring(text).c_str()); }

std::wstring keyword(const CommandToken& t) {
    if (t.type != RTSTR) return {};
    std::wstring k = upperAscii(trim(t.text));
    while (!k.empty() && k.front() == L'_') k.erase(k.begin());
    return k;
}

bool isKeyword(const CommandToken& t, std::initializer_list<const wchar_t*> forms) {
    std::wstring k = keyword(t);
    if (k.empty()) return false;
    for (const wchar_t* f : forms)
        if (k == upperAscii(f)) return true;
    return false;
}

bool readPoint(const CommandToken& t, double world[3]) {
    double ucs[3];
    if (t.type == RTPOINT || t.type == RT3DPOINT) {
        for (int i = 0; i < 3; ++i) ucs[i] = t.point[i];
    } else if (t.type != RTSTR || !pointText(t.text, ucs)) {
        return false;
    }
    vars().setPoint(L"LASTPOINT", ucs, false);
    ucsToWorld(ucs, world);
    return true;
}

bool readReal(const CommandToken& t, double& v) {
    switch (t.type) {
    case RTREAL:
    case RTSHORT: v = t.real; return true;
    case RTSTR: return number(t.text, v);
    default: return false;
    }
}

bool readColour(const CommandToken& t, int& colour, bool byAllowed) {
    static const wchar_t* names[] = {L"RED", L"YELLOW", L"GREEN", L"CYAN", L"BLUE", L"MAGENTA", L"WHITE"};
    double v;
    if (t.type == RTSHORT || t.type == RTREAL || (t.type == RTSTR && number(t.text, v))) {
        if (t.type != RTSTR) v = t.real;
        if (!(v >= 0 && v <= 256)) return false;  // also nan: cast only what an int holds
        colour = static_cast<int>(v);
        if (colour == v && colour >= 1 && colour <= 255) return true;
        return byAllowed && colour == v && (colour == 0 || colour == 256);
    }
    std::wstring k = keyword(t);
    for (int i = 0; i < 7; ++i)
        if (k == names[i]) {
            colour = i + 1;
            return true;
        }
    if (byAllowed && k == L"BYLAYER") colour = 256;
    else if (byAllowed && k == L"BYBLOCK") colour = 0;
    else return false;
    return true;
}

std::wstring colourText(int colour) {
    if (colour == 256) return L"BYLAYER";
    if (colour == 0) return L"BYBLOCK";
    return std::to_wstring(colour);
}

int currentColour() {
    const SysVarValue* v = vars().find(L"CECOLOR");
    if (!v) return 256;
    CommandToken t;
    t.type = RTSTR;
    t.text = v->text;
    int colour = 256;
    return readColour(t, colour, true) ? colour : 256;
}

double toRadians(double degrees) {
    const SysVarValue* base = vars().find(L"ANGBASE");
    const SysVarValue* dir = vars().find(L"ANGDIR");
    double a = degrees * kPi / 180.0;
    if (dir && dir->integer == 1) a = -a;
    return (base ? base->real : 0.0) + a;
}

int makeWithCurrentProperties(resbuf* list) {
    RbPtr owned(list);
    resbuf* tail = list;
    bool layer = false, colour = false, linetype = false, thickness = false;
    for (resbuf* rb = list; rb; rb = rb->rbnext) {
        layer |= rb->restype == 8;
        colour |= rb->restype == 62;
        linetype |= rb->restype == 6;
        thickness |= rb->restype == 39;
        tail = rb;
    }
    auto append = [&](resbuf* rb) {
        if (!rb) return;
        tail->rbnext = rb;
        while (tail->rbnext) tail = tail->rbnext;
    };
    if (!layer) {
        const SysVarValue* v = vars().find(L"CLAYER");
        append(acutBuildList(8, v && !v->text.empty() ? v->text.c_str() : L"0", 0));
    }
    int c = currentColour();
    if (!colour && c != 256) append(acutBuildList(62, c, 0));
    const SysVarValue* lt = vars().find(L"CELTYPE");
    if (!linetype && lt && !equalsNoCase(lt->text, L"BYLAYER")) append(acutBuildList(6, lt->text.c_str(), 0));
    const SysVarValue* th = vars().find(L"THICKNESS");
    if (!thickness && th && th->real != 0.0) append(acutBuildList(39, th->real, 0));
    return acdbEntMake(list);
}

RbPtr entityList(const Name& e, bool withXdata) {
    ads_name n = {e[0], e[1]};
    if (!withXdata) return RbPtr(acdbEntGet(n));
    RbPtr all(acutBuildList(RTSTR, L"*", 0));
    return RbPtr(acdbEntGetX(n, all.get()));
}

RbPtr copyForMaking(const resbuf* list, const std::vector<int>& alsoDropped) {
    resbuf* head = nullptr;
    resbuf** tail = &head;
    bool xdata = false;
    for (const resbuf* rb = list; rb; rb = rb->rbnext) {
        const int c = rb->restype;
        xdata |= c == -3;
        const bool dropped = c == -1 || c == 5 || c == 100 || c == 102 || c == 330 || c == 360 ||
                             std::find(alsoDropped.begin(), alsoDropped.end(), c) != alsoDropped.end();
        if (!xdata && dropped) continue;
        *tail = copyNode(rb);
        tail = &(*tail)->rbnext;
    }
    return RbPtr(head);
}

namespace {

// Deletes the entities that follow AFTER (all of the drawing's when it is null).
void deleteEntitiesAfter(const long* after) {
    std::vector<Name> made;
    ads_name next;
    for (int s = acdbEntNext(after, next); s == RTNORM;) {
        made.push_back({next[0], next[1]});
        ads_name current = {next[0], next[1]};
        s = acdbEntNext(current, next);
    }
    for (const Name& n : made) {
        ads_name name = {n[0], n[1]};
        acdbEntDel(name);  // a part goes with its head: deleting it again does nothing
    }
}

}  // namespace

MadeUntilKept::MadeUntilKept() {
    ads_name last;
    hadEntities_ = acdbEntLast(last) == RTNORM;
    if (hadEntities_) last_ = {last[0], last[1]};
}

MadeUntilKept::~MadeUntilKept() {
    if (!kept_) deleteEntitiesAfter(hadEntities_ ? last_.data() : nullptr);
}

int makeAllOrNone(const std::vector<RbPtr>& lists) {
    MadeUntilKept made;
    for (const RbPtr& list : lists)
        if (const int status = acdbEntMake(list.get()); status != RTNORM) return status;
    made.keep();
    return RTNORM;
}

const resbuf* findGroup(const resbuf* list, int code, int occurrence) {
    for (; list; list = list->rbnext) {
        if (list->restype == -3) return nullptr;
        if (list->restype == code && occurrence-- == 0) return list;
    }
    return nullptr;
}

}  // namespace host::cmd
