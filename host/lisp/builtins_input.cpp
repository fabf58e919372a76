// User input: initget and the get-functions, through the host's acedInitGet and acedGetXxx,
// so that a script asks exactly as the module does. A keyword reply gives the keyword, a bare
// Enter nil, a cancelled request the error "Function cancelled".
#include "acedads.h"
#include "host/lisp/interpreter.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

// The optional prompt at position I; null when absent.
const ACHAR* promptArg(const Args& a, size_t i) { return a.size() > i ? stringArg(a[i]).c_str() : nullptr; }

// An optional base point at position 0 when it is a list; the prompt then follows it.
bool basePoint(const Args& a, ads_point p) {
    if (a.empty() || !isList(a[0]) || isNil(a[0])) return false;
    pointArg(a[0], p);
    return true;
}

ValuePtr keywordValue() {
    ACHAR keyword[132];
    return acedGetInput(keyword) == RTNORM ? makeStr(keyword) : nil();
}

// The value of a request by its status.
ValuePtr answer(int status, const ValuePtr& value) {
    switch (status) {
    case RTNORM: return value;
    case RTKWORD: return keywordValue();
    case RTNONE: return nil();
    case RTCAN: fail(L"Function cancelled");
    default: fail(L"AutoCAD rejected function");
    }
}

ValuePtr pointValue(const ads_point p) { return makeList({makeReal(p[0]), makeReal(p[1]), makeReal(p[2])}); }

// (getdist [pt] [msg]) and (getangle [pt] [msg]): a real shown from an optional base point.
using RealFromBase = int (*)(const ads_point pt, const ACHAR* prompt, ads_real* result);
ValuePtr realFromBase(const Args& a, RealFromBase request) {
    expectCount(a, 0, 2);
    ads_point base;
    bool hasBase = basePoint(a, base);
    ads_real v = 0;
    int status = request(hasBase ? base : nullptr, promptArg(a, hasBase ? 1 : 0), &v);
    return answer(status, makeReal(v));
}

}  // namespace

void addInputBuiltins(Interpreter& in) {
    in.define(L"INITGET", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 2);
        int bits = 0;
        const ACHAR* keywords = nullptr;
        for (const auto& v : a) {
            if (v && v->kind == Kind::Int) bits = static_cast<int>(v->integer);
            else keywords = stringArg(v).c_str();
        }
        acedInitGet(bits, keywords);
        return nil();
    });
    in.define(L"GETREAL", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 1);
        ads_real v = 0;
        int status = acedGetReal(promptArg(a, 0), &v);
        return answer(status, makeReal(v));
    });
    in.define(L"GETINT", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 1);
        int v = 0;
        int status = acedGetInt(promptArg(a, 0), &v);
        return answer(status, makeInt(v));
    });
    in.define(L"GETDIST", [](Interpreter&, const Args& a) { return realFromBase(a, acedGetDist); });
    in.define(L"GETANGLE", [](Interpreter&, const Args& a) { return realFromBase(a, acedGetAngle); });
    in.define(L"GETCORNER", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 2);
        ads_point base, corner;
        pointArg(a[0], base);
        int status = acedGetCorner(base, promptArg(a, 1), corner);
        return answer(status, status == RTNORM ? pointValue(corner) : nil());
    });
    in.define(L"GETKWORD", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 1);
        ACHAR keyword[132] = L"";
        int status = acedGetKword(promptArg(a, 0), keyword);
        return answer(status, makeStr(keyword));
    });
    // (getstring [cr] [msg]): a first argument that is not a string allows spaces.
    in.define(L"GETSTRING", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 2);
        bool spaces = !a.empty() && !(a[0] && a[0]->kind == Kind::Str) && isTrue(a[0]);
        size_t promptAt = !a.empty() && !(a[0] && a[0]->kind == Kind::Str) ? 1 : 0;
        ACHAR text[133] = L"";
        int status = acedGetString(spaces ? 1 : 0, promptArg(a, promptAt), text);
        if (status == RTINPUTTRUNCATED) status = RTNORM;
        return answer(status, makeStr(text));
    });
}

}  // namespace host::lisp
