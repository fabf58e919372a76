// Entities and selection sets, through the host's database functions.
#include <cwctype>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "host/db/resbuf.h"
#include "host/lisp/interpreter.h"
#include "host/runtime/convert.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

const long* enameArg(const ValuePtr& v) {
    if (!v || v->kind != Kind::Ename) badArgument(L"lentityp", v);
    return v->name;
}

const long* pickSetArg(const ValuePtr& v) {
    if (!v || v->kind != Kind::PickSet) badArgument(L"lselsetp", v);
    return v->name;
}

resbuf* entityList(const ValuePtr& list) {
    bool ok = true;
    resbuf* rb = entityListToResbuf(list, ok);
    if (!ok) badArgument(L"lentityp", list);
    return rb;
}

ValuePtr enameResult(int status, const ads_name name) { return status == RTNORM ? makeEname(name) : nil(); }


// (ssget [mode] [pt1 [pt2]] [filter]) as the editor reads it.
ValuePtr ssget(const Args& a) {
    size_t i = 0;
    std::wstring mode;
    bool hasMode = i < a.size() && a[i] && a[i]->kind == Kind::Str;
    if (hasMode) mode = a[i++]->text;
    std::wstring m;
    for (wchar_t c : mode)
        if (c != L'_') m += static_cast<wchar_t>(std::towupper(c));
    ads_point p1{}, p2{};
    RbPtr pointList;
    const void* pt1 = nullptr;
    const void* pt2 = nullptr;
    if (m == L"F" || m == L"CP" || m == L"WP") {
        if (i >= a.size()) fail(L"too few arguments");
        pointList.reset(argsToResbuf(listItems(a[i++])));
        pt1 = pointList.get();
    } else if (m == L"W" || m == L"C") {
        if (i + 1 >= a.size()) fail(L"too few arguments");
        pointArg(a[i++], p1);
        pointArg(a[i++], p2);
        pt1 = p1;
        pt2 = p2;
    } else if (!hasMode && i < a.size() && listItems(a[i]).size() >= 2 && isNumber(listItems(a[i])[0])) {
        pointArg(a[i++], p1);
        pt1 = p1;
    }
    RbPtr filter;
    if (i < a.size()) filter.reset(entityList(a[i++]));
    if (i < a.size()) fail(L"too many arguments");
    ads_name ss;
    if (acedSSGet(hasMode ? mode.c_str() : nullptr, pt1, pt2, filter.get(), ss) != RTNORM) return nil();
    return makePickSet(ss);
}

}  // namespace

void addDrawingBuiltins(Interpreter& in) {
    in.define(L"ENTLAST", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 0);
        ads_name e;
        return enameResult(acdbEntLast(e), e);
    });
    in.define(L"ENTNEXT", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 1);
        ads_name e;
        if (a.empty() || isNil(a[0])) return enameResult(acdbEntNext(nullptr, e), e);
        return enameResult(acdbEntNext(enameArg(a[0]), e), e);
    });
    in.define(L"ENTGET", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 2);
        RbPtr apps;
        if (a.size() == 2) apps.reset(argsToResbuf(listItems(a[1])));
        RbPtr list(a.size() == 2 ? acdbEntGetX(enameArg(a[0]), apps.get()) : acdbEntGet(enameArg(a[0])));
        return list ? resbufToList(list.get()) : nil();
    });
    in.define(L"ENTMAKE", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 1);
        RbPtr list(a.empty() ? nullptr : entityList(a[0]));
        return acdbEntMake(list.get()) == RTNORM ? (a.empty() ? nil() : a[0]) : nil();
    });
    in.define(L"ENTMOD", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        RbPtr list(entityList(a[0]));
        return acdbEntMod(list.get()) == RTNORM ? a[0] : nil();
    });
    in.define(L"ENTDEL", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        return acdbEntDel(enameArg(a[0])) == RTNORM ? a[0] : nil();
    });
    in.define(L"HANDENT", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        ads_name e;
        return enameResult(acdbHandEnt(stringArg(a[0]).c_str(), e), e);
    });
    in.define(L"REGAPP", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        std::wstring name = stringArg(a[0]);
        return acdbRegApp(name.c_str()) == RTNORM ? makeStr(name) : nil();
    });
    in.define(L"TBLSEARCH", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 3);
        RbPtr entry(acdbTblSearch(stringArg(a[0]).c_str(), stringArg(a[1]).c_str(), a.size() == 3 && !isNil(a[2])));
        return entry ? resbufToList(entry.get()) : nil();
    });
    in.define(L"XDROOM", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        long room = 0;
        return acdbXdRoom(enameArg(a[0]), &room) == RTNORM ? makeInt(room) : nil();
    });
    in.define(L"SSGET", [](Interpreter&, const Args& a) { return ssget(a); });
    in.define(L"SSLENGTH", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        long n = 0;
        if (acedSSLength(pickSetArg(a[0]), &n) != RTNORM) return nil();
        return makeInt(n);
    });
    in.define(L"SSNAME", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        ads_name e;
        return enameResult(acedSSName(pickSetArg(a[0]), static_cast<long>(intArg(a[1])), e), e);
    });
    in.define(L"SSADD", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 2);
        ads_name result;
        const long* ent = a.size() > 0 ? enameArg(a[0]) : nullptr;
        const long* set = a.size() > 1 ? pickSetArg(a[1]) : nullptr;
        if (acedSSAdd(ent, set, result) != RTNORM) return nil();
        return makePickSet(result);
    });
    in.define(L"SSDEL", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        return acedSSDel(enameArg(a[0]), pickSetArg(a[1])) == RTNORM ? a[1] : nil();
    });
    in.define(L"SSMEMB", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        return acedSSMemb(enameArg(a[0]), pickSetArg(a[1])) == RTNORM ? a[0] : nil();
    });
    in.define(L"WCMATCH", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        return acutWcMatch(stringArg(a[0]).c_str(), stringArg(a[1]).c_str()) == RTNORM ? t() : nil();
    });
}

}  // namespace host::lisp
