// List functions of the vl- family: search, removal, sorting and the predicate walkers.
#include "host/lisp/interpreter.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

Args listArg(const ValuePtr& v) {
    if (!isList(v)) badArgument(L"listp", v);
    return listItems(v);
}

bool holds(Interpreter& in, const ValuePtr& predicate, const ValuePtr& item) {
    return isTrue(in.apply(predicate, {item}));
}

// Merge sort: stable, and safe with a comparison that is not a strict order (such as '<=).
void mergeSort(Interpreter& in, const ValuePtr& before, Args& items) {
    if (items.size() < 2) return;
    Args left(items.begin(), items.begin() + static_cast<long>(items.size() / 2));
    Args right(items.begin() + static_cast<long>(items.size() / 2), items.end());
    mergeSort(in, before, left);
    mergeSort(in, before, right);
    size_t l = 0, r = 0, k = 0;
    while (l < left.size() && r < right.size())
        items[k++] = isTrue(in.apply(before, {right[r], left[l]})) ? right[r++] : left[l++];
    while (l < left.size()) items[k++] = left[l++];
    while (r < right.size()) items[k++] = right[r++];
}

// (vl-every pred list ...) and (vl-some pred list ...): the predicate over parallel items.
ValuePtr walk(Interpreter& in, const Args& a, bool every) {
    if (a.size() < 2) fail(L"too few arguments");
    std::vector<Args> lists;
    size_t n = SIZE_MAX;
    for (size_t k = 1; k < a.size(); ++k) {
        lists.push_back(listArg(a[k]));
        n = std::min(n, lists.back().size());
    }
    for (size_t j = 0; j < n; ++j) {
        Args call;
        for (auto& l : lists) call.push_back(l[j]);
        ValuePtr r = in.apply(a[0], call);
        if (every && !isTrue(r)) return nil();
        if (!every && isTrue(r)) return r;
    }
    return every ? t() : nil();
}

ValuePtr keepIf(Interpreter& in, const Args& a, bool keepWhenTrue) {
    expectCount(a, 2, 2);
    Args kept;
    for (auto& item : listArg(a[1]))
        if (holds(in, a[0], item) == keepWhenTrue) kept.push_back(item);
    return makeList(kept);
}

}  // namespace

void addVlListBuiltins(Interpreter& in) {
    in.define(L"VL-CONSP", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        return a[0] && a[0]->kind == Kind::Cons ? t() : nil();
    });
    in.define(L"VL-POSITION", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        Args items = listArg(a[1]);
        for (size_t k = 0; k < items.size(); ++k)
            if (equalValues(items[k], a[0])) return makeInt(static_cast<long long>(k));
        return nil();
    });
    in.define(L"VL-REMOVE", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        Args kept;
        for (auto& item : listArg(a[1]))
            if (!equalValues(item, a[0])) kept.push_back(item);
        return makeList(kept);
    });
    // Equal neighbours that are the same atom are kept once, as the editor's sort does.
    in.define(L"VL-SORT", [](Interpreter& i, const Args& a) {
        expectCount(a, 2, 2);
        Args items = listArg(a[0]);
        mergeSort(i, a[1], items);
        Args out;
        for (auto& item : items)
            if (out.empty() || item->kind == Kind::Cons || item->kind == Kind::Str || !sameValue(out.back(), item))
                out.push_back(item);
        return makeList(out);
    });
    in.define(L"VL-EVERY", [](Interpreter& i, const Args& a) { return walk(i, a, true); });
    in.define(L"VL-SOME", [](Interpreter& i, const Args& a) { return walk(i, a, false); });
    in.define(L"VL-REMOVE-IF", [](Interpreter& i, const Args& a) { return keepIf(i, a, false); });
    in.define(L"VL-REMOVE-IF-NOT", [](Interpreter& i, const Args& a) { return keepIf(i, a, true); });
    in.define(L"VL-MEMBER-IF", [](Interpreter& i, const Args& a) {
        expectCount(a, 2, 2);
        if (!isList(a[1])) badArgument(L"listp", a[1]);
        for (ValuePtr p = a[1]; p && p->kind == Kind::Cons; p = p->cdr)
            if (holds(i, a[0], p->car)) return p;
        return nil();
    });
    in.define(L"VL-MEMBER-IF-NOT", [](Interpreter& i, const Args& a) {
        expectCount(a, 2, 2);
        if (!isList(a[1])) badArgument(L"listp", a[1]);
        for (ValuePtr p = a[1]; p && p->kind == Kind::Cons; p = p->cdr)
            if (!holds(i, a[0], p->car)) return p;
        return nil();
    });
}

}  // namespace host::lisp
