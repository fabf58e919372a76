// System variables, host commands, geometry and number formatting.
#include <cstdlib>
#include <cwchar>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "host/db/resbuf.h"
#include "host/lisp/interpreter.h"
#include "host/runtime/convert.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;


ValuePtr pointValue(const ads_point p, bool threeD) {
    Args coords{makeReal(p[0]), makeReal(p[1])};
    if (threeD) coords.push_back(makeReal(p[2]));
    return makeList(coords);
}

}  // namespace

void addSystemBuiltins(Interpreter& in) {
    in.define(L"GETVAR", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        resbuf rb{};
        if (acedGetVar(stringArg(a[0]).c_str(), &rb) != RTNORM) return nil();
        if (rb.restype == RTSTR) {
            ValuePtr v = makeStr(rb.resval.rstring ? rb.resval.rstring : L"");
            std::free(rb.resval.rstring);
            return v;
        }
        return resbufToValue(&rb);
    });
    in.define(L"SETVAR", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        RbPtr value(valueToResbuf(a[1]));
        if (!value || acedSetVar(stringArg(a[0]).c_str(), value.get()) != RTNORM)
            fail(L"AutoCAD variable setting rejected: " + printValue(a[0]) + L" " + printValue(a[1]));
        return a[1];
    });
    in.define(L"COMMAND", [](Interpreter&, const Args& a) {
        if (a.empty()) return nil();
        RbPtr chain(argsToResbuf(a));
        // A command that fails (an unknown name, a refused input) cancels the calling program.
        if (acedCmd(chain.get()) != RTNORM) fail(L"Function cancelled");
        return nil();
    });
    in.define(L"POLAR", [](Interpreter&, const Args& a) {
        expectCount(a, 3, 3);
        ads_point base, out;
        pointArg(a[0], base);
        acutPolar(base, numberArg(a[1]), numberArg(a[2]), out);
        return pointValue(out, listItems(a[0]).size() == 3);
    });
    in.define(L"ANGLE", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        ads_point p1, p2;
        pointArg(a[0], p1);
        pointArg(a[1], p2);
        return makeReal(acutAngle(p1, p2));
    });
    in.define(L"DISTANCE", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        ads_point p1, p2;
        pointArg(a[0], p1);
        pointArg(a[1], p2);
        if (listItems(a[0]).size() == 2 || listItems(a[1]).size() == 2) p1[2] = p2[2] = 0;
        return makeReal(acutDistance(p1, p2));
    });
    in.define(L"TRANS", [](Interpreter&, const Args& a) {
        expectCount(a, 3, 4);
        ads_point p, out;
        pointArg(a[0], p);
        RbPtr from(valueToResbuf(a[1])), to(valueToResbuf(a[2]));
        if (acedTrans(p, from.get(), to.get(), a.size() == 4 && isTrue(a[3]), out) != RTNORM) return nil();
        return pointValue(out, true);
    });
}

}  // namespace host::lisp
