#include "host/lisp/interpreter.h"

#include "host/lisp/reader.h"
#include "host/runtime/host.h"

namespace host::lisp {

void fail(std::wstring message) { throw LispError{std::move(message)}; }

void badArgument(const wchar_t* predicate, const ValuePtr& value) {
    fail(std::wstring(L"bad argument type: ") + predicate + L": " + printValue(value));
}

void expectCount(const std::vector<ValuePtr>& args, size_t min, size_t max) {
    if (args.size() < min) fail(L"too few arguments");
    if (args.size() > max) fail(L"too many arguments");
}

const std::wstring& stringArg(const ValuePtr& v) {
    if (!v || v->kind != Kind::Str) badArgument(L"stringp", v);
    return v->text;
}

long long intArg(const ValuePtr& v) {
    if (!v || v->kind != Kind::Int) badArgument(L"fixnump", v);
    return v->integer;
}

double numberArg(const ValuePtr& v) {
    if (!isNumber(v)) badArgument(L"numberp", v);
    return toDouble(v);
}

void pointArg(const ValuePtr& v, double point[3]) {
    auto items = listItems(v);
    if (items.size() < 2 || items.size() > 3) badArgument(L"2D/3D point", v);
    for (size_t i = 0; i < 3; ++i) point[i] = i < items.size() ? numberArg(items[i]) : 0.0;
}

Interpreter::Interpreter() {
    addCoreBuiltins(*this);
    addSystemBuiltins(*this);
    addDrawingBuiltins(*this);
    addHeadlessBuiltins(*this);
    addWindowBuiltins(*this);
    addInputBuiltins(*this);
}

void Interpreter::define(const std::wstring& name, Builtin fn, bool special) {
    auto v = std::make_shared<Value>();
    v->kind = Kind::Subr;
    v->text = name;
    v->builtin = std::make_shared<Builtin>(std::move(fn));
    v->special = special;
    builtins_[name] = v;
}

ValuePtr Interpreter::symbolValue(const std::wstring& upperName) {
    auto& h = Host::instance();
    auto& symbols = h.hasDocument() ? h.current().symbols() : detachedSymbols_;
    auto it = symbols.find(upperName);
    return it == symbols.end() ? nil() : it->second;
}

void Interpreter::setSymbol(const std::wstring& upperName, ValuePtr value) {
    auto& h = Host::instance();
    auto& symbols = h.hasDocument() ? h.current().symbols() : detachedSymbols_;
    if (isNil(value)) symbols.erase(upperName);
    else symbols[upperName] = std::move(value);
}

ValuePtr Interpreter::evalText(std::wstring_view text) {
    ReadResult read = readAll(text);
    ValuePtr last = nil();
    for (auto& form : read.forms) last = eval(form);
    if (!read.error.empty()) fail(read.error);
    return last;
}

ValuePtr Interpreter::eval(const ValuePtr& form) {
    if (isNil(form)) return nil();
    switch (form->kind) {
    case Kind::Sym:
        if (form->text == L"T") return form;
        return symbolValue(form->text);
    case Kind::Cons: {
        struct Depth {
            int& d;
            explicit Depth(int& x) : d(x) {
                if (++d > 2000) {
                    --d;
                    fail(L"stack overflow");
                }
            }
            ~Depth() { --d; }
        } guard(depth_);
        return callNamed(form->car, form->cdr);
    }
    default: return form;
    }
}

ValuePtr Interpreter::callNamed(const ValuePtr& head, const ValuePtr& argForms) {
    ValuePtr fn;
    std::wstring name;
    if (head && head->kind == Kind::Sym) {
        name = head->text;
        fn = symbolValue(name);
        if (isNil(fn)) {
            auto b = builtins_.find(name);
            if (b != builtins_.end()) fn = b->second;
        }
    } else if (head && head->kind == Kind::Cons) {
        fn = eval(head);
    } else {
        fail(L"bad function: " + printValue(head));
    }
    if (fn && fn->kind == Kind::Subr && fn->special) return (*fn->builtin)(*this, listItems(argForms));
    std::vector<ValuePtr> args;
    for (auto& a : listItems(argForms)) args.push_back(eval(a));
    if (isNil(fn) && !name.empty()) {
        CallResult r = Host::instance().invoke(name, args);
        if (!r.defined) fail(L"no function definition: " + name);
        return r.value ? r.value : nil();
    }
    return apply(fn, args);
}

ValuePtr Interpreter::apply(const ValuePtr& fn, const std::vector<ValuePtr>& args) {
    if (fn && fn->kind == Kind::Subr) {
        if (fn->special) fail(L"bad function: " + printValue(fn));
        return (*fn->builtin)(*this, args);
    }
    if (fn && fn->kind == Kind::Lambda) return callLambda(*fn->lambda, args);
    if (fn && fn->kind == Kind::Sym) {
        auto b = builtins_.find(fn->text);
        if (b != builtins_.end()) return apply(b->second, args);
        CallResult r = Host::instance().invoke(fn->text, args);
        if (r.defined) return r.value ? r.value : nil();
        fail(L"no function definition: " + fn->text);
    }
    fail(L"bad function: " + printValue(fn));
}

ValuePtr Interpreter::callLambda(const UserFunction& fn, const std::vector<ValuePtr>& args) {
    if (args.size() < fn.params.size()) fail(L"too few arguments");
    if (args.size() > fn.params.size()) fail(L"too many arguments");
    // AutoLISP binds parameters and locals dynamically: save, bind, and restore on every way out.
    std::vector<std::pair<std::wstring, ValuePtr>> saved;
    for (auto& p : fn.params) saved.emplace_back(p, symbolValue(p));
    for (auto& l : fn.locals) saved.emplace_back(l, symbolValue(l));
    for (size_t i = 0; i < fn.params.size(); ++i) setSymbol(fn.params[i], args[i]);
    for (auto& l : fn.locals) setSymbol(l, nil());
    struct Restore {
        Interpreter& in;
        std::vector<std::pair<std::wstring, ValuePtr>>& saved;
        ~Restore() {
            for (auto it = saved.rbegin(); it != saved.rend(); ++it) in.setSymbol(it->first, it->second);
        }
    } restore{*this, saved};
    ValuePtr result = nil();
    for (auto& form : listItems(fn.body)) result = eval(form);
    return result;
}

}  // namespace host::lisp
