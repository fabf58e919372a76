#include "host/commands/edit_support.h"

#include <cmath>
#include <cstdio>
#include <map>

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/db/resbuf.h"
#include "host/runtime/host.h"

namespace host::cmd {
namespace {

std::wstring typeOf(const resbuf* list) {
    const resbuf* g = findGroup(list, 0);
    return g && g->resval.rstring ? g->resval.rstring : L"";
}

bool hasParts(const EditedObject& o) {
    if (o.type == L"POLYLINE") return true;
    const resbuf* follow = o.type == L"INSERT" ? findGroup(o.lists[0].get(), 66) : nullptr;
    return follow && follow->resval.rint == 1;
}

}  // namespace

std::vector<resbuf*> EditedObject::rawLists() const {
    std::vector<resbuf*> out;
    for (const auto& l : lists) out.push_back(l.get());
    return out;
}

bool readObject(const Name& n, EditedObject& out) {
    out = EditedObject{};
    RbPtr list = entityList(n, true);
    if (!list) return false;
    out.type = typeOf(list.get());
    out.names.push_back(n);
    out.lists.push_back(std::move(list));
    if (!hasParts(out)) return true;
    ads_name at = {n[0], n[1]}, next;
    while (acdbEntNext(at, next) == RTNORM) {
        RbPtr part = entityList({next[0], next[1]}, true);
        std::wstring type = part ? typeOf(part.get()) : L"";
        if (type != L"VERTEX" && type != L"ATTRIB" && type != L"SEQEND") break;
        out.names.push_back({next[0], next[1]});
        out.lists.push_back(std::move(part));
        if (type == L"SEQEND") break;
        acdbNameSet(next, at);
    }
    return true;
}

int writeBack(const EditedObject& o) {
    // Parts first: a polyline's head is checked against the vertices it has.
    for (size_t i = o.lists.size(); i-- > 0;) {
        if (typeOf(o.lists[i].get()) == L"SEQEND") continue;
        if (int s = acdbEntMod(o.lists[i].get()); s != RTNORM) return s;
    }
    if (o.lists.size() > 1) {
        ads_name head = {o.names[0][0], o.names[0][1]};
        acdbEntUpd(head);
    }
    return RTNORM;
}

int writeCopy(const EditedObject& o, Name& made) {
    for (const auto& l : o.lists) {
        RbPtr copy = copyForMaking(l.get());
        if (int s = acdbEntMake(copy.get()); s != RTNORM) return s;
    }
    ads_name last;
    if (acdbEntLast(last) != RTNORM) return RTERROR;
    made = {last[0], last[1]};
    return RTNORM;
}

int transformObjects(const std::vector<Name>& objects, const Transform& t, bool copy, std::vector<Name>* made) {
    std::map<std::wstring, int> refused;
    size_t done = 0;
    bool backwards = mirrorText();
    for (const auto& n : objects) {
        EditedObject o;
        if (!readObject(n, o)) continue;
        std::vector<resbuf*> lists = o.rawLists();
        if (!transformEntity(lists, t, backwards)) {
            ++refused[o.type];
            continue;
        }
        Name copied{};
        if (int s = copy ? writeCopy(o, copied) : writeBack(o); s != RTNORM) {
            say(L"\nCould not change " + o.type + L".");
            ++refused[o.type];
            continue;
        }
        if (copy && made) made->push_back(copied);
        ++done;
    }
    for (const auto& [type, count] : refused)
        say(L"\n" + std::to_wstring(count) + (count == 1 ? L" " + type + L" object was" : L" " + type + L" objects were") +
            L" left unchanged: this kind cannot be moved, copied or transformed here.");
    return done > 0 || refused.empty() ? RTNORM : RTERROR;
}

void inform(const std::wstring& text) {
    const SysVarValue* echo = vars().find(L"CMDECHO");
    if (!echo || echo->integer != 0) say(text);
}

bool mirrorText() {
    const SysVarValue* v = vars().find(L"MIRRTEXT");
    return v && v->integer != 0;
}

int optionOf(const CommandToken& t, std::initializer_list<Option> options) {
    int i = 0;
    for (const Option& o : options) {
        if (isKeyword(t, {o.full, o.abbreviation})) return i;
        ++i;
    }
    return -1;
}

Reply askPoint(CommandInput& in, const std::wstring& promptText, double p[3], std::initializer_list<Option> options,
               int& option) {
    while (const CommandToken* t = ask(in, promptText)) {
        if (t->isEnter()) return Reply::Enter;
        if ((option = optionOf(*t, options)) >= 0) return Reply::Option;
        if (readPoint(*t, p)) return Reply::Value;
        say(L"\nInvalid point.");
    }
    return Reply::Cancel;
}

Reply askNumber(CommandInput& in, const std::wstring& promptText, double& v, const double* base, bool positive,
                std::initializer_list<Option> options, int& option) {
    while (const CommandToken* t = ask(in, promptText)) {
        if (t->isEnter()) return Reply::Enter;
        if ((option = optionOf(*t, options)) >= 0) return Reply::Option;
        double p[3];
        bool read = readReal(*t, v);
        if (!read && base && (t->type == RTPOINT || t->type == RT3DPOINT) && readPoint(*t, p)) {
            v = std::hypot(p[0] - base[0], p[1] - base[1], p[2] - base[2]);
            read = true;
        }
        if (read && std::isfinite(v) && (!positive || v > 0)) return Reply::Value;
        say(read ? L"\nValue must be positive and nonzero." : L"\nRequires numeric value.");
    }
    return Reply::Cancel;
}

Reply askAngle(CommandInput& in, const std::wstring& promptText, const double base[3], bool direction,
               double& radians, std::initializer_list<Option> options, int& option) {
    while (const CommandToken* t = ask(in, promptText)) {
        if (t->isEnter()) return Reply::Enter;
        if ((option = optionOf(*t, options)) >= 0) return Reply::Option;
        double degrees, p[3];
        if (readReal(*t, degrees) && std::isfinite(degrees)) {
            radians = toRadians(degrees) - (direction ? 0.0 : toRadians(0.0));
            return Reply::Value;
        }
        if ((t->type == RTPOINT || t->type == RT3DPOINT) && readPoint(*t, p)) {
            radians = std::atan2(p[1] - base[1], p[0] - base[0]);
            return Reply::Value;
        }
        say(L"\nRequires valid numeric angle or second point.");
    }
    return Reply::Cancel;
}

Reply askDisplacement(CommandInput& in, double d[3]) {
    int option;
    Reply r = askPoint(in, L"\nSpecify displacement <0.0000, 0.0000, 0.0000>: ", d, {}, option);
    if (r == Reply::Enter) d[0] = d[1] = d[2] = 0;
    return r == Reply::Enter ? Reply::Value : r;
}

Reply askSecondPoint(CommandInput& in, const std::wstring& promptText, const double base[3], double d[3],
                     std::initializer_list<Option> options, int& option) {
    double p[3];
    Reply r = askPoint(in, promptText, p, options, option);
    for (int i = 0; i < 3; ++i) d[i] = r == Reply::Value ? p[i] - base[i] : base[i];
    return r;
}

Reply askWithCopy(const std::function<Reply(int& option)>& askValue, const wchar_t* copying, bool& copy) {
    while (true) {
        int option = -1;
        Reply r = askValue(option);
        if (r != Reply::Option || option != 0) return r;
        copy = true;
        inform(copying);
    }
}

std::wstring lengthText(double v) {
    wchar_t buf[48];
    std::swprintf(buf, 48, L"%.4f", v);
    return buf;
}

}  // namespace host::cmd
