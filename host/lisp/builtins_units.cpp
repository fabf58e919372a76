// Numbers as text in the drawing's units and back (rtos, distof, angtos), and cvunit.
#include <cstdlib>

#include "acdbads.h"
#include "host/lisp/interpreter.h"
#include "host/lisp/units.h"
#include "host/runtime/host.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

int sysvarShort(const wchar_t* name, int fallback) {
    auto& h = Host::instance();
    if (!h.hasDocument()) return fallback;
    auto* v = h.current().sysvars().find(name);
    return v ? v->integer : fallback;
}

// The optional integer at position I, or the system variable's value when absent or -1.
int modeArg(const Args& a, size_t i, const wchar_t* sysvar, int fallback) {
    int v = a.size() > i && !isNil(a[i]) ? static_cast<int>(intArg(a[i])) : -1;
    return v == -1 ? sysvarShort(sysvar, fallback) : v;
}

}  // namespace

void addUnitBuiltins(Interpreter& in) {
    // Scientific and decimal go through acdbRToS, which applies DIMZIN as the module sees it.
    in.define(L"RTOS", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 3);
        double value = numberArg(a[0]);
        int mode = modeArg(a, 1, L"LUNITS", 2);
        int precision = modeArg(a, 2, L"LUPREC", 4);
        if (mode < 1 || mode > 5) fail(L"bad argument value: " + printValue(a[1]));
        if (precision < 0 || precision > 8) fail(L"bad argument value: " + printValue(a[2]));
        if (mode <= 2) {
            wchar_t buf[128];
            return acdbRToS(value, mode, precision, buf) == RTNORM ? makeStr(buf) : nil();
        }
        auto text = formatDistance(value, mode, precision);
        return text ? makeStr(*text) : nil();
    });
    in.define(L"DISTOF", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 2);
        int mode = modeArg(a, 1, L"LUNITS", 2);
        if (mode < 1 || mode > 5) fail(L"bad argument value: " + printValue(a[1]));
        if (mode <= 2) {
            double v;
            return acdbDisToF(stringArg(a[0]).c_str(), mode, &v) == RTNORM ? makeReal(v) : nil();
        }
        auto v = parseDistance(stringArg(a[0]));
        return v ? makeReal(*v) : nil();
    });
    in.define(L"ANGTOS", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 3);
        double angle = numberArg(a[0]);
        int mode = modeArg(a, 1, L"AUNITS", 0);
        int precision = modeArg(a, 2, L"AUPREC", 0);
        if (mode < 0 || mode > 4) fail(L"bad argument value: " + printValue(a[1]));
        if (precision < 0 || precision > 8) fail(L"bad argument value: " + printValue(a[2]));
        auto text = formatAngle(angle, mode, precision);
        return text ? makeStr(*text) : nil();
    });
    // (cvunit VALUE FROM TO): VALUE a number or a list of numbers (a point).
    in.define(L"CVUNIT", [](Interpreter&, const Args& a) {
        expectCount(a, 3, 3);
        const std::wstring& from = stringArg(a[1]);
        const std::wstring& to = stringArg(a[2]);
        if (isNumber(a[0])) {
            auto v = convertUnits(toDouble(a[0]), from, to);
            return v ? makeReal(*v) : nil();
        }
        Args out;
        for (auto& item : listItems(a[0])) {
            auto v = convertUnits(numberArg(item), from, to);
            if (!v) return nil();
            out.push_back(makeReal(*v));
        }
        return out.empty() ? nil() : makeList(out);
    });
}

}  // namespace host::lisp
