#include "host/runtime/lisp_value.h"

#include <cmath>
#include <cstdio>
#include <cwchar>
#include <utility>

#include "host/text.h"

namespace host::lisp {
namespace {

ValuePtr make(Kind kind) {
    auto v = std::make_shared<Value>();
    v->kind = kind;
    return v;
}

std::wstring formatReal(double r) {
    if (std::isnan(r)) return L"1.#QNAN";
    if (std::isinf(r)) return r > 0 ? L"1.#INF" : L"-1.#INF";
    wchar_t buf[64];
    std::swprintf(buf, 64, L"%.6g", r);
    std::wstring s = buf;
    if (s.find_first_of(L".e") == std::wstring::npos) s += L".0";
    return s;
}

std::wstring quoteString(const std::wstring& s) {
    std::wstring out = L"\"";
    for (wchar_t c : s) {
        switch (c) {
        case L'"': out += L"\\\""; break;
        case L'\\': out += L"\\\\"; break;
        case L'\n': out += L"\\n"; break;
        case L'\r': out += L"\\r"; break;
        case L'\t': out += L"\\t"; break;
        case L'\x1b': out += L"\\e"; break;
        default: out += c;
        }
    }
    return out + L"\"";
}

}  // namespace

Value::~Value() {
    std::vector<ValuePtr> unshared;
    auto take = [&unshared](ValuePtr& p) {
        if (p && p.use_count() == 1) unshared.push_back(std::move(p));
    };
    take(car);
    take(cdr);
    while (!unshared.empty()) {
        ValuePtr cell = std::move(unshared.back());
        unshared.pop_back();
        // The cell is ours alone: emptying it before it goes makes its destructor shallow.
        auto& owned = const_cast<Value&>(*cell);
        take(owned.car);
        take(owned.cdr);
    }
}

ValuePtr nil() {
    static const ValuePtr v = make(Kind::Nil);
    return v;
}
ValuePtr voidValue() {
    static const ValuePtr v = make(Kind::Void);
    return v;
}
ValuePtr t() {
    static const ValuePtr v = [] {
        auto s = std::make_shared<Value>();
        s->kind = Kind::Sym;
        s->text = L"T";
        return s;
    }();
    return v;
}
ValuePtr makeInt(long long value) {
    auto v = std::make_shared<Value>();
    v->kind = Kind::Int;
    v->integer = value;
    return v;
}
ValuePtr makeReal(double value) {
    auto v = std::make_shared<Value>();
    v->kind = Kind::Real;
    v->real = value;
    return v;
}
ValuePtr makeStr(std::wstring s) {
    auto v = std::make_shared<Value>();
    v->kind = Kind::Str;
    v->text = std::move(s);
    return v;
}
ValuePtr makeSym(std::wstring_view name) {
    std::wstring upper = upperAscii(name);
    if (upper == L"NIL") return nil();
    if (upper == L"T") return t();
    auto v = std::make_shared<Value>();
    v->kind = Kind::Sym;
    v->text = std::move(upper);
    return v;
}
ValuePtr cons(ValuePtr car, ValuePtr cdr) {
    auto v = std::make_shared<Value>();
    v->kind = Kind::Cons;
    v->car = std::move(car);
    v->cdr = std::move(cdr);
    return v;
}
ValuePtr makeEname(const long name[2]) {
    auto v = std::make_shared<Value>();
    v->kind = Kind::Ename;
    v->name[0] = name[0];
    v->name[1] = name[1];
    return v;
}
ValuePtr makePickSet(const long name[2]) {
    auto v = makeEname(name);
    std::const_pointer_cast<Value>(v)->kind = Kind::PickSet;
    return v;
}
ValuePtr makeList(const std::vector<ValuePtr>& items) {
    ValuePtr list = nil();
    for (auto it = items.rbegin(); it != items.rend(); ++it) list = cons(*it, list);
    return list;
}

bool isNil(const ValuePtr& v) { return !v || v->kind == Kind::Nil; }
bool isTrue(const ValuePtr& v) { return !isNil(v) && v->kind != Kind::Void; }
bool isNumber(const ValuePtr& v) { return v && (v->kind == Kind::Int || v->kind == Kind::Real); }
bool isList(const ValuePtr& v) { return isNil(v) || v->kind == Kind::Cons; }
bool isSym(const ValuePtr& v, std::wstring_view upperName) {
    return v && v->kind == Kind::Sym && v->text == upperName;
}
double toDouble(const ValuePtr& v) {
    return v->kind == Kind::Int ? static_cast<double>(v->integer) : v->real;
}

std::vector<ValuePtr> listItems(const ValuePtr& v) {
    std::vector<ValuePtr> items;
    for (ValuePtr p = v; p && p->kind == Kind::Cons; p = p->cdr) items.push_back(p->car);
    return items;
}

bool sameValue(const ValuePtr& a, const ValuePtr& b) {
    if (a == b) return true;
    if (!a || !b || a->kind != b->kind) return isNil(a) && isNil(b);
    switch (a->kind) {
    case Kind::Nil: return true;
    case Kind::Sym: return a->text == b->text;
    case Kind::Int: return a->integer == b->integer;
    case Kind::Ename:
    case Kind::PickSet: return a->name[0] == b->name[0] && a->name[1] == b->name[1];
    default: return false;
    }
}

bool equalValues(const ValuePtr& a, const ValuePtr& b) {
    // Pairs still to compare: a loop, not recursion, so deep or long lists compare too.
    std::vector<std::pair<ValuePtr, ValuePtr>> pending{{a, b}};
    while (!pending.empty()) {
        auto [x, y] = std::move(pending.back());
        pending.pop_back();
        if (sameValue(x, y)) continue;
        if (isNumber(x) && isNumber(y)) {
            if (toDouble(x) != toDouble(y)) return false;
            continue;
        }
        if (!x || !y || x->kind != y->kind) return false;
        if (x->kind == Kind::Str && x->text == y->text) continue;
        if (x->kind == Kind::Real && x->real == y->real) continue;
        if (x->kind != Kind::Cons) return false;
        pending.emplace_back(x->cdr, y->cdr);
        pending.emplace_back(x->car, y->car);
    }
    return true;
}

namespace {

std::wstring printAtom(const ValuePtr& v, bool readable) {
    if (isNil(v)) return L"nil";
    switch (v->kind) {
    case Kind::Nil: return L"nil";
    case Kind::Void: return L"";
    case Kind::Int: return std::to_wstring(v->integer);
    case Kind::Real: return formatReal(v->real);
    case Kind::Str: return readable ? quoteString(v->text) : v->text;
    case Kind::Sym: return v->text;
    case Kind::Ename: {
        wchar_t buf[64];
        std::swprintf(buf, 64, L"<Entity name: %lx>", static_cast<unsigned long>(v->name[1]));
        return buf;
    }
    case Kind::PickSet: {
        wchar_t buf[64];
        std::swprintf(buf, 64, L"<Selection set: %lx>", static_cast<unsigned long>(v->name[1]));
        return buf;
    }
    case Kind::Subr: return L"<Subr: #" + v->text + L">";
    case Kind::Lambda: return L"<USUBR: " + v->text + L">";
    case Kind::File: return L"#<file " + quoteString(v->text) + L">";
    case Kind::CatchAll: return L"#<%catch-all-apply-error%>";
    case Kind::Cons: break;
    }
    return L"";
}

}  // namespace

std::wstring printValue(const ValuePtr& v, bool readable) {
    // The rest of each list being printed, innermost last: nesting costs heap, not stack.
    struct Open {
        ValuePtr rest;
        bool first = true;
    };
    std::vector<Open> open;
    std::wstring out;
    auto start = [&](const ValuePtr& x) {
        if (isNil(x) || x->kind != Kind::Cons) {
            out += printAtom(x, readable);
            return;
        }
        out += L'(';
        open.push_back({x});
    };
    start(v);
    while (!open.empty()) {
        Open& list = open.back();
        ValuePtr p = list.rest;
        if (p && p->kind == Kind::Cons) {
            if (!list.first) out += L' ';
            list.first = false;
            list.rest = p->cdr;
            start(p->car);  // may grow `open`: `list` is not used after this
            continue;
        }
        if (!isNil(p)) out += L" . " + printAtom(p, readable);
        out += L')';
        open.pop_back();
    }
    return out;
}

}  // namespace host::lisp
