#include "host/lisp/interpreter.h"

#include <pthread.h>

#include <cstdint>

#include "host/lisp/reader.h"
#include "host/runtime/host.h"

namespace host::lisp {
namespace {

// The lowest address of this thread's stack; 0 when the system does not say.
uintptr_t stackFloor() {
    pthread_attr_t attr;
    if (pthread_getattr_np(pthread_self(), &attr) != 0) return 0;
    void* low = nullptr;
    size_t size = 0;
    int got = pthread_attr_getstack(&attr, &low, &size);
    pthread_attr_destroy(&attr);
    return got == 0 ? reinterpret_cast<uintptr_t>(low) : 0;
}

// Built-ins that call back into the evaluator (mapcar, apply, vl-sort ...) put more frames
// on each level of nesting than a plain call, and a sanitizer's frames are larger still: the
// depth alone does not keep the stack from running out. Evaluation stops while this much of
// it is left for the built-in at work and for unwinding.
constexpr uintptr_t kStackReserve = 1 << 20;

bool stackNearlyFull() {
    static thread_local const uintptr_t floor = stackFloor();
    char here = 0;
    auto at = reinterpret_cast<uintptr_t>(&here);
    return floor != 0 && at > floor && at - floor < kStackReserve;
}

}  // namespace

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
    addVlStringBuiltins(*this);
    addVlListBuiltins(*this);
    addMathBuiltins(*this);
    addFileBuiltins(*this);
    addEnvironmentBuiltins(*this);
    addUnitBuiltins(*this);
    addGeometryBuiltins(*this);
    addPickBuiltins(*this);
}

ValuePtr Interpreter::builtin(const std::wstring& upperName) const {
    auto b = builtins_.find(upperName);
    return b == builtins_.end() ? nil() : b->second;
}

void Interpreter::offerToErrorHandler(LispError& e) {
    // An error inside the handler is not offered to it again: that would call it for ever.
    if (e.handled || catching_ > 0 || inErrorHandler_) return;
    e.handled = true;
    ValuePtr handler = symbolValue(L"*ERROR*");
    if (!handler || (handler->kind != Kind::Lambda && handler->kind != Kind::Subr)) return;
    struct Running {
        bool& flag;
        explicit Running(bool& f) : flag(f) { flag = true; }
        ~Running() { flag = false; }
    } running(inErrorHandler_);
    try {
        apply(handler, {makeStr(e.message)});
    } catch (const LispError&) {
        // An error inside the handler ends it; the original error still ends the evaluation.
    }
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

ValuePtr Interpreter::evalText(std::wstring_view text, const std::wstring& source) {
    ReadResult read = readAll(text);
    struct SourceScope {
        std::wstring& current;
        std::wstring saved;
        ~SourceScope() { current = saved; }
    } scope{source_, source_};
    if (!source.empty()) source_ = source;
    ValuePtr last = nil();
    for (size_t k = 0; k < read.forms.size(); ++k) {
        try {
            last = eval(read.forms[k]);
        } catch (LispError& e) {
            if (e.line == 0 && !source.empty()) {
                e.source = source;
                e.line = read.lines[k];
            }
            throw;
        }
    }
    if (!read.error.empty()) {
        LispError e{read.error};
        if (!source.empty()) {
            e.source = source;
            e.line = read.errorLine;
        }
        throw e;
    }
    return last;
}

ValuePtr Interpreter::eval(const ValuePtr& form) {
    step();
    if (isNil(form)) return nil();
    switch (form->kind) {
    case Kind::Sym: {
        if (form->text == L"T") return form;
        ValuePtr v = symbolValue(form->text);
        if (!isNil(v)) return v;
        if (form->text == L"PI") return makeReal(3.141592653589793);  // bound from the start
        return builtin(form->text);  // a built-in's name evaluates to it
    }
    case Kind::Cons: {
        struct Depth {
            int& d;
            explicit Depth(int& x) : d(x) {
                if (++d > 2000 || stackNearlyFull()) {
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
        if (!fn->special) return (*fn->builtin)(*this, args);
        // A special form applied to values ((apply 'and l)) sees each value quoted.
        std::vector<ValuePtr> quoted;
        for (auto& a : args) quoted.push_back(makeList({makeSym(L"QUOTE"), a}));
        return (*fn->builtin)(*this, quoted);
    }
    if (fn && fn->kind == Kind::Lambda) return callLambda(*fn->lambda, args);
    // A quoted lambda list is a function: (mapcar '(lambda (x) ...) l).
    if (fn && fn->kind == Kind::Cons && isSym(fn->car, L"LAMBDA")) return apply(eval(fn), args);
    if (fn && fn->kind == Kind::Sym) {
        ValuePtr bound = symbolValue(fn->text);
        if (bound && (bound->kind == Kind::Lambda || bound->kind == Kind::Subr)) return apply(bound, args);
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
    try {
        for (auto& form : listItems(fn.body)) result = eval(form);
    } catch (LispError& e) {
        offerToErrorHandler(e);  // before the locals above are restored
        throw;
    }
    return result;
}

}  // namespace host::lisp
