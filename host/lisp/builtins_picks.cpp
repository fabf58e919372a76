// Picks: getpoint, entsel and nentsel, answered by the host's acedGetPoint and acedEntSel,
// which take the console's queued picks. A cancelled pick is the error "Function cancelled".
#include "acedads.h"
#include "host/lisp/interpreter.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

ValuePtr point3(const ads_point p) { return makeList({makeReal(p[0]), makeReal(p[1]), makeReal(p[2])}); }

// (entsel [msg]) and (nentsel [msg]): (ENAME POINT). Entities of the headless drawing are
// not nested in blocks when picked, so nentsel answers as entsel does.
ValuePtr entityPick(const Args& a) {
    expectCount(a, 0, 1);
    const ACHAR* prompt = a.empty() ? nullptr : stringArg(a[0]).c_str();
    ads_name ent;
    ads_point pt;
    int status = acedEntSel(prompt, ent, pt);
    if (status == RTCAN) fail(L"Function cancelled");
    if (status != RTNORM) return nil();
    return makeList({makeEname(ent), point3(pt)});
}

}  // namespace

void addPickBuiltins(Interpreter& in) {
    // (getpoint [pt] [msg])
    in.define(L"GETPOINT", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 2);
        ads_point base{0, 0, 0}, result;
        bool hasBase = !a.empty() && isList(a[0]) && !isNil(a[0]);
        if (hasBase) pointArg(a[0], base);
        size_t promptAt = hasBase || (!a.empty() && isNil(a[0])) ? 1 : 0;
        const ACHAR* prompt = a.size() > promptAt ? stringArg(a[promptAt]).c_str() : nullptr;
        int status = acedGetPoint(hasBase ? base : nullptr, prompt, result);
        if (status == RTCAN) fail(L"Function cancelled");
        return status == RTNORM ? point3(result) : nil();
    });
    in.define(L"ENTSEL", [](Interpreter&, const Args& a) { return entityPick(a); });
    in.define(L"NENTSEL", [](Interpreter&, const Args& a) { return entityPick(a); });
}

}  // namespace host::lisp
