// Control forms, arithmetic, lists, strings and output.
#include <climits>
#include <cmath>
#include <cstdio>
#include <cwchar>
#include <cwctype>

#include "host/lisp/interpreter.h"
#include "host/lisp/lisp_files.h"
#include "host/lisp/reader.h"
#include "host/output.h"
#include "host/text.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

ValuePtr progn(Interpreter& in, const Args& forms, size_t from = 0) {
    ValuePtr r = nil();
    for (size_t i = from; i < forms.size(); ++i) r = in.eval(forms[i]);
    return r;
}

std::shared_ptr<UserFunction> makeFunction(const ValuePtr& paramList, const Args& forms, size_t bodyFrom) {
    auto fn = std::make_shared<UserFunction>();
    bool locals = false;
    for (auto& p : listItems(paramList)) {
        if (!p || p->kind != Kind::Sym) badArgument(L"symbolp", p);
        if (p->text == L"/") {
            locals = true;
            continue;
        }
        (locals ? fn->locals : fn->params).push_back(p->text);
    }
    std::vector<ValuePtr> body(forms.begin() + static_cast<long>(bodyFrom), forms.end());
    fn->body = makeList(body);
    return fn;
}

ValuePtr lambdaValue(std::shared_ptr<UserFunction> fn, const std::wstring& name) {
    auto v = std::make_shared<Value>();
    v->kind = Kind::Lambda;
    v->lambda = std::move(fn);
    v->text = name;
    return v;
}

void addControl(Interpreter& in) {
    in.define(L"QUOTE", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return a[0]; }, true);
    in.define(L"FUNCTION", [](Interpreter& i, const Args& a) { expectCount(a, 1, 1); return a[0]->kind == Kind::Sym ? a[0] : i.eval(a[0]); }, true);
    in.define(L"SETQ", [](Interpreter& i, const Args& a) {
        if (a.empty() || a.size() % 2) fail(L"too few arguments");
        ValuePtr v = nil();
        for (size_t k = 0; k < a.size(); k += 2) {
            if (!a[k] || a[k]->kind != Kind::Sym || a[k]->text == L"T") badArgument(L"symbolp", a[k]);
            v = i.eval(a[k + 1]);
            i.setSymbol(a[k]->text, v);
        }
        return v;
    }, true);
    in.define(L"DEFUN", [](Interpreter& i, const Args& a) {
        if (a.size() < 3) fail(L"too few arguments");
        if (!a[0] || a[0]->kind != Kind::Sym) badArgument(L"symbolp", a[0]);
        ValuePtr fn = lambdaValue(makeFunction(a[1], a, 2), a[0]->text);
        i.setSymbol(a[0]->text, fn);
        return a[0];
    }, true);
    in.define(L"LAMBDA", [](Interpreter&, const Args& a) {
        if (a.size() < 2) fail(L"too few arguments");
        return lambdaValue(makeFunction(a[0], a, 1), L"LAMBDA");
    }, true);
    in.define(L"IF", [](Interpreter& i, const Args& a) {
        expectCount(a, 2, 3);
        if (isTrue(i.eval(a[0]))) return i.eval(a[1]);
        return a.size() == 3 ? i.eval(a[2]) : nil();
    }, true);
    in.define(L"COND", [](Interpreter& i, const Args& a) {
        for (auto& clause : a) {
            auto parts = listItems(clause);
            if (parts.empty()) continue;
            ValuePtr test = i.eval(parts[0]);
            if (isTrue(test)) return parts.size() == 1 ? test : progn(i, parts, 1);
        }
        return nil();
    }, true);
    in.define(L"PROGN", [](Interpreter& i, const Args& a) { return progn(i, a); }, true);
    in.define(L"WHILE", [](Interpreter& i, const Args& a) {
        if (a.empty()) fail(L"too few arguments");
        ValuePtr r = nil();
        while (isTrue(i.eval(a[0]))) r = progn(i, a, 1);
        return r;
    }, true);
    in.define(L"REPEAT", [](Interpreter& i, const Args& a) {
        if (a.empty()) fail(L"too few arguments");
        long long n = intArg(i.eval(a[0]));
        ValuePtr r = nil();
        for (long long k = 0; k < n; ++k) {
            i.step();
            r = progn(i, a, 1);
        }
        return r;
    }, true);
    in.define(L"FOREACH", [](Interpreter& i, const Args& a) {
        if (a.size() < 2) fail(L"too few arguments");
        if (!a[0] || a[0]->kind != Kind::Sym) badArgument(L"symbolp", a[0]);
        // The loop variable gets its value back on every way out, an error included.
        struct Restore {
            Interpreter& in;
            const std::wstring& name;
            ValuePtr saved;
            ~Restore() { in.setSymbol(name, saved); }
        } restore{i, a[0]->text, i.symbolValue(a[0]->text)};
        ValuePtr r = nil();
        for (auto& item : listItems(i.eval(a[1]))) {
            i.setSymbol(a[0]->text, item);
            r = progn(i, a, 2);
        }
        return r;
    }, true);
    in.define(L"AND", [](Interpreter& i, const Args& a) {
        for (auto& f : a)
            if (!isTrue(i.eval(f))) return nil();
        return t();
    }, true);
    in.define(L"OR", [](Interpreter& i, const Args& a) {
        for (auto& f : a)
            if (isTrue(i.eval(f))) return t();
        return nil();
    }, true);
    in.define(L"EVAL", [](Interpreter& i, const Args& a) { expectCount(a, 1, 1); return i.eval(a[0]); });
    in.define(L"APPLY", [](Interpreter& i, const Args& a) { expectCount(a, 2, 2); return i.apply(a[0], listItems(a[1])); });
    in.define(L"MAPCAR", [](Interpreter& i, const Args& a) {
        if (a.size() < 2) fail(L"too few arguments");
        std::vector<Args> lists;
        size_t n = SIZE_MAX;
        for (size_t k = 1; k < a.size(); ++k) {
            lists.push_back(listItems(a[k]));
            n = std::min(n, lists.back().size());
        }
        Args out;
        for (size_t j = 0; j < n; ++j) {
            Args call;
            for (auto& l : lists) call.push_back(l[j]);
            out.push_back(i.apply(a[0], call));
        }
        return makeList(out);
    });
    in.define(L"SET", [](Interpreter& i, const Args& a) {
        expectCount(a, 2, 2);
        if (!a[0] || a[0]->kind != Kind::Sym) badArgument(L"symbolp", a[0]);
        i.setSymbol(a[0]->text, a[1]);
        return a[1];
    });
    in.define(L"BOUNDP", [](Interpreter& i, const Args& a) {
        expectCount(a, 1, 1);
        if (!a[0] || a[0]->kind != Kind::Sym) return isNil(a[0]) ? nil() : t();
        return isNil(i.symbolValue(a[0]->text)) ? nil() : t();
    });
    in.define(L"READ", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 1);
        if (a.empty()) return nil();
        ReadResult r = readAll(stringArg(a[0]));
        if (r.forms.empty()) {
            if (!r.error.empty()) fail(r.error);
            return nil();
        }
        return r.forms[0];
    });
}

bool fitsInt(double v) { return v >= INT_MIN && v <= INT_MAX; }  // false for nan

ValuePtr number(double v, bool real) { return real ? makeReal(v) : makeInt(static_cast<int>(static_cast<long long>(v))); }

void addArithmetic(Interpreter& in) {
    auto fold = [](const Args& a, int op) -> ValuePtr {
        if (a.empty()) return makeInt(op == 2 ? 1 : 0);
        bool real = false;
        for (auto& v : a) {
            numberArg(v);
            real = real || v->kind == Kind::Real;
        }
        if (!real) {
            long long acc = a[0]->integer;
            if (a.size() == 1 && op == 1) return makeInt(static_cast<int>(-acc));
            for (size_t k = 1; k < a.size(); ++k) {
                long long v = a[k]->integer;
                if (op == 0) acc += v;
                else if (op == 1) acc -= v;
                else if (op == 2) acc *= v;
                else {
                    if (v == 0) fail(L"divide by zero");
                    acc /= v;
                }
                acc = static_cast<int>(acc);  // 32-bit integers wrap as in the editor
            }
            return makeInt(acc);
        }
        double acc = toDouble(a[0]);
        if (a.size() == 1 && op == 1) return makeReal(-acc);
        for (size_t k = 1; k < a.size(); ++k) {
            double v = toDouble(a[k]);
            if (op == 0) acc += v;
            else if (op == 1) acc -= v;
            else if (op == 2) acc *= v;
            else {
                if (v == 0) fail(L"divide by zero");
                acc /= v;
            }
        }
        return makeReal(acc);
    };
    in.define(L"+", [fold](Interpreter&, const Args& a) { return fold(a, 0); });
    in.define(L"-", [fold](Interpreter&, const Args& a) { return fold(a, 1); });
    in.define(L"*", [fold](Interpreter&, const Args& a) { return fold(a, 2); });
    in.define(L"/", [fold](Interpreter&, const Args& a) { return fold(a, 3); });
    in.define(L"1+", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return number(numberArg(a[0]) + 1, a[0]->kind == Kind::Real); });
    in.define(L"1-", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return number(numberArg(a[0]) - 1, a[0]->kind == Kind::Real); });
    in.define(L"ABS", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return number(std::fabs(numberArg(a[0])), a[0]->kind == Kind::Real); });
    in.define(L"FIX", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        // A value beyond the 32-bit integers stays a real, truncated.
        double whole = std::trunc(numberArg(a[0]));
        return fitsInt(whole) ? makeInt(static_cast<long long>(whole)) : makeReal(whole);
    });
    in.define(L"FLOAT", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return makeReal(numberArg(a[0])); });
    in.define(L"REM", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        double x = numberArg(a[0]), y = numberArg(a[1]);
        if (y == 0) fail(L"divide by zero");
        bool real = a[0]->kind == Kind::Real || a[1]->kind == Kind::Real;
        return real ? makeReal(std::fmod(x, y)) : makeInt(a[0]->integer % a[1]->integer);
    });
    auto unary = [&in](const wchar_t* name, double (*f)(double)) {
        in.define(name, [f](Interpreter&, const Args& a) { expectCount(a, 1, 1); return makeReal(f(numberArg(a[0]))); });
    };
    unary(L"SQRT", [](double x) { return std::sqrt(x); });
    unary(L"SIN", [](double x) { return std::sin(x); });
    unary(L"COS", [](double x) { return std::cos(x); });
    unary(L"EXP", [](double x) { return std::exp(x); });
    unary(L"LOG", [](double x) { return std::log(x); });
    in.define(L"ATAN", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 2);
        return makeReal(a.size() == 1 ? std::atan(numberArg(a[0])) : std::atan2(numberArg(a[0]), numberArg(a[1])));
    });
    in.define(L"EXPT", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        double base = numberArg(a[0]), exponent = numberArg(a[1]);
        bool real = a[0]->kind == Kind::Real || a[1]->kind == Kind::Real;
        if (base == 0 && exponent < 0) fail(L"divide by zero");
        double r = std::pow(base, exponent);
        if (real) return makeReal(r);
        // Integers: a negative power truncates as integer division does; a power past the
        // 32-bit integers is given as a real rather than wrapped.
        if (exponent < 0) return makeInt(static_cast<long long>(std::trunc(r)));
        return fitsInt(r) ? makeInt(static_cast<long long>(r)) : makeReal(r);
    });
    // MIN and MAX give a real when any argument is real, as the editor does.
    auto extremum = [&in](const wchar_t* name, bool wantGreater) {
        in.define(name, [wantGreater](Interpreter&, const Args& a) {
            if (a.empty()) return makeInt(0);
            ValuePtr best = a[0];
            bool real = false;
            for (auto& v : a) {
                real = real || v->kind == Kind::Real;
                double x = numberArg(v), b = numberArg(best);
                if (wantGreater ? x > b : x < b) best = v;
            }
            return number(toDouble(best), real);
        });
    };
    extremum(L"MIN", false);
    extremum(L"MAX", true);
    auto compare = [&in](const wchar_t* name, bool (*ok)(int)) {
        in.define(name, [ok](Interpreter&, const Args& a) {
            if (a.empty()) fail(L"too few arguments");
            for (size_t k = 1; k < a.size(); ++k) {
                int c;
                if (isNumber(a[k - 1]) && isNumber(a[k])) {
                    double x = toDouble(a[k - 1]), y = toDouble(a[k]);
                    c = x < y ? -1 : (x > y ? 1 : 0);
                } else if (a[k - 1] && a[k] && a[k - 1]->kind == Kind::Str && a[k]->kind == Kind::Str) {
                    c = a[k - 1]->text.compare(a[k]->text);
                    c = c < 0 ? -1 : (c > 0 ? 1 : 0);
                } else {
                    c = sameValue(a[k - 1], a[k]) ? 0 : 2;
                }
                if (!ok(c)) return nil();
            }
            return t();
        });
    };
    compare(L"=", [](int c) { return c == 0; });
    compare(L"/=", [](int c) { return c != 0; });
    compare(L"<", [](int c) { return c == -1; });
    compare(L">", [](int c) { return c == 1; });
    compare(L"<=", [](int c) { return c == -1 || c == 0; });
    compare(L">=", [](int c) { return c == 1 || c == 0; });
    in.define(L"ZEROP", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return numberArg(a[0]) == 0 ? t() : nil(); });
    in.define(L"MINUSP", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return numberArg(a[0]) < 0 ? t() : nil(); });
    in.define(L"NUMBERP", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return isNumber(a[0]) ? t() : nil(); });
}

ValuePtr carOf(const ValuePtr& v) {
    if (isNil(v)) return nil();
    if (v->kind != Kind::Cons) badArgument(L"consp", v);
    return v->car;
}
ValuePtr cdrOf(const ValuePtr& v) {
    if (isNil(v)) return nil();
    if (v->kind != Kind::Cons) badArgument(L"consp", v);
    return v->cdr;
}

void addLists(Interpreter& in) {
    auto path = [&in](const wchar_t* name, const wchar_t* ops) {
        std::wstring o = ops;
        in.define(name, [o](Interpreter&, const Args& a) {
            expectCount(a, 1, 1);
            ValuePtr v = a[0];
            for (auto it = o.rbegin(); it != o.rend(); ++it) v = *it == L'A' ? carOf(v) : cdrOf(v);
            return v;
        });
    };
    path(L"CAR", L"A");
    path(L"CDR", L"D");
    path(L"CADR", L"AD");
    path(L"CDDR", L"DD");
    path(L"CAAR", L"AA");
    path(L"CDAR", L"DA");
    path(L"CADDR", L"ADD");
    path(L"CADAR", L"ADA");
    path(L"CDDDR", L"DDD");
    in.define(L"CONS", [](Interpreter&, const Args& a) { expectCount(a, 2, 2); return cons(a[0], a[1]); });
    in.define(L"LIST", [](Interpreter&, const Args& a) { return makeList(a); });
    in.define(L"APPEND", [](Interpreter&, const Args& a) {
        Args all;
        for (auto& l : a) {
            if (!isList(l)) badArgument(L"listp", l);
            for (auto& x : listItems(l)) all.push_back(x);
        }
        return makeList(all);
    });
    in.define(L"REVERSE", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        if (!isList(a[0])) badArgument(L"listp", a[0]);
        auto items = listItems(a[0]);
        return makeList(Args(items.rbegin(), items.rend()));
    });
    in.define(L"LENGTH", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        if (!isList(a[0])) badArgument(L"listp", a[0]);
        return makeInt(static_cast<long long>(listItems(a[0]).size()));
    });
    in.define(L"NTH", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        long long n = intArg(a[0]);
        auto items = listItems(a[1]);
        return n >= 0 && static_cast<size_t>(n) < items.size() ? items[static_cast<size_t>(n)] : nil();
    });
    in.define(L"LAST", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        auto items = listItems(a[0]);
        return items.empty() ? nil() : items.back();
    });
    in.define(L"MEMBER", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        for (ValuePtr p = a[1]; p && p->kind == Kind::Cons; p = p->cdr)
            if (equalValues(p->car, a[0])) return p;
        return nil();
    });
    in.define(L"ASSOC", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        for (auto& item : listItems(a[1]))
            if (item && item->kind == Kind::Cons && equalValues(item->car, a[0])) return item;
        return nil();
    });
    in.define(L"SUBST", [](Interpreter&, const Args& a) {
        expectCount(a, 3, 3);
        Args out;
        for (auto& item : listItems(a[2])) out.push_back(equalValues(item, a[1]) ? a[0] : item);
        return makeList(out);
    });
    in.define(L"NULL", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return isNil(a[0]) ? t() : nil(); });
    in.define(L"NOT", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return isNil(a[0]) ? t() : nil(); });
    in.define(L"ATOM", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return a[0] && a[0]->kind == Kind::Cons ? nil() : t(); });
    in.define(L"LISTP", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return isList(a[0]) ? t() : nil(); });
    in.define(L"EQ", [](Interpreter&, const Args& a) { expectCount(a, 2, 2); return sameValue(a[0], a[1]) ? t() : nil(); });
    in.define(L"EQUAL", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 3);
        if (a.size() == 3 && isNumber(a[0]) && isNumber(a[1]))
            return std::fabs(toDouble(a[0]) - toDouble(a[1])) <= numberArg(a[2]) ? t() : nil();
        return equalValues(a[0], a[1]) ? t() : nil();
    });
    in.define(L"TYPE", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        if (isNil(a[0])) return nil();
        switch (a[0]->kind) {
        case Kind::Int: return makeSym(L"INT");
        case Kind::Real: return makeSym(L"REAL");
        case Kind::Str: return makeSym(L"STR");
        case Kind::Sym: return makeSym(L"SYM");
        case Kind::Cons: return makeSym(L"LIST");
        case Kind::Ename: return makeSym(L"ENAME");
        case Kind::PickSet: return makeSym(L"PICKSET");
        case Kind::Subr: return makeSym(L"SUBR");
        case Kind::Lambda: return makeSym(L"USUBR");
        default: return nil();
        }
    });
}

void addStrings(Interpreter& in) {
    in.define(L"STRCAT", [](Interpreter&, const Args& a) {
        std::wstring s;
        for (auto& v : a) s += stringArg(v);
        return makeStr(s);
    });
    in.define(L"STRLEN", [](Interpreter&, const Args& a) {
        size_t n = 0;
        for (auto& v : a) n += stringArg(v).size();
        return makeInt(static_cast<long long>(n));
    });
    in.define(L"SUBSTR", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 3);
        const std::wstring& s = stringArg(a[0]);
        long long start = intArg(a[1]);
        if (start < 1) badArgument(L"positive integer", a[1]);
        size_t from = static_cast<size_t>(start - 1);
        if (from >= s.size()) return makeStr(L"");
        size_t len = a.size() == 3 ? static_cast<size_t>(std::max<long long>(0, intArg(a[2]))) : std::wstring::npos;
        return makeStr(s.substr(from, len));
    });
    in.define(L"STRCASE", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 2);
        std::wstring s = stringArg(a[0]);
        bool lower = a.size() == 2 && isTrue(a[1]);
        for (auto& c : s) c = static_cast<wchar_t>(lower ? std::towlower(c) : std::towupper(c));
        return makeStr(s);
    });
    in.define(L"ITOA", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return makeStr(std::to_wstring(intArg(a[0]))); });
    in.define(L"ATOI", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return makeInt(static_cast<int>(std::wcstol(stringArg(a[0]).c_str(), nullptr, 10))); });
    in.define(L"ATOF", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return makeReal(std::wcstod(stringArg(a[0]).c_str(), nullptr)); });
    in.define(L"CHR", [](Interpreter&, const Args& a) { expectCount(a, 1, 1); return makeStr(std::wstring(1, static_cast<wchar_t>(intArg(a[0])))); });
    in.define(L"ASCII", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        const std::wstring& s = stringArg(a[0]);
        return makeInt(s.empty() ? 0 : static_cast<long long>(s[0]));
    });
}

void addOutput(Interpreter& in) {
    auto writer = [&in](const wchar_t* name, bool readable, bool newlineBefore, bool spaceAfter) {
        in.define(name, [=](Interpreter&, const Args& a) {
            expectCount(a, 0, 2);
            if (a.empty()) return voidValue();
            std::wstring text = (newlineBefore ? L"\n" : L"") + printValue(a[0], readable) + (spaceAfter ? L" " : L"");
            if (a.size() == 2 && !isNil(a[1])) {
                if (!writeToLispFile(a[1], text)) badArgument(L"streamp", a[1]);
            } else {
                emit(OutputKind::CommandLine, text);
            }
            return a[0];
        });
    };
    writer(L"PRINC", false, false, false);
    writer(L"PRIN1", true, false, false);
    writer(L"PRINT", true, true, true);
    in.define(L"TERPRI", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 0);
        emit(OutputKind::CommandLine, L"\n");
        return nil();
    });
    in.define(L"ALERT", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        emit(OutputKind::Alert, stringArg(a[0]));
        return nil();
    });
}

}  // namespace

void addCoreBuiltins(Interpreter& in) {
    addControl(in);
    addArithmetic(in);
    addLists(in);
    addStrings(in);
    addOutput(in);
}

}  // namespace host::lisp
