// The run's surroundings: environment variables, the version, leaving a program, and calls
// whose errors are caught as values (vl-catch-all-apply).
#include <cstdlib>

#include "host/lisp/interpreter.h"
#include "host/text.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

ValuePtr catchAllError(const std::wstring& message) {
    auto v = std::make_shared<Value>();
    v->kind = Kind::CatchAll;
    v->text = message;
    return v;
}

bool isCatchAll(const ValuePtr& v) { return v && v->kind == Kind::CatchAll; }

}  // namespace

void addEnvironmentBuiltins(Interpreter& in) {
    in.define(L"GETENV", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        const char* value = std::getenv(toUtf8(stringArg(a[0])).c_str());
        return value ? makeStr(fromUtf8(value)) : nil();
    });
    in.define(L"VER", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 0);
        return makeStr(L"Visual LISP 2.0 (en)");
    });
    in.define(L"VL-LOAD-COM", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 0);
        return nil();
    });
    auto leave = [](Interpreter&, const Args& a) -> ValuePtr {
        expectCount(a, 0, 0);
        fail(L"quit / exit abort");
    };
    in.define(L"EXIT", leave);
    in.define(L"QUIT", leave);
    in.define(L"VL-CATCH-ALL-APPLY", [](Interpreter& i, const Args& a) {
        expectCount(a, 2, 2);
        if (!isList(a[1])) badArgument(L"listp", a[1]);
        Interpreter::CatchScope scope(i);
        try {
            return i.apply(a[0], listItems(a[1]));
        } catch (const LispError& e) {
            return catchAllError(e.message);
        }
    });
    in.define(L"VL-CATCH-ALL-ERROR-P", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        return isCatchAll(a[0]) ? t() : nil();
    });
    in.define(L"VL-CATCH-ALL-ERROR-MESSAGE", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        if (!isCatchAll(a[0])) badArgument(L"vl-catch-all-apply-error", a[0]);
        return makeStr(a[0]->text);
    });
}

}  // namespace host::lisp
