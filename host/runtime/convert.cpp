#include "host/runtime/convert.h"

#include <climits>
#include <cmath>

#include "acutads.h"
#include "adscodes.h"
#include "host/db/groupcodes.h"
#include "host/db/resbuf.h"

namespace host {
using namespace lisp;

namespace {

class ChainBuilder {
public:
    ~ChainBuilder() { acutRelRb(head_); }
    bool add(resbuf* rb) {
        if (!rb) {
            ok_ = false;
            return false;
        }
        *tail_ = rb;
        tail_ = &rb->rbnext;
        return true;
    }
    bool ok() const { return ok_; }
    resbuf* release() {
        resbuf* h = ok_ ? head_ : nullptr;
        if (!ok_) acutRelRb(head_);
        head_ = nullptr;
        tail_ = &head_;
        return h;
    }

private:
    resbuf* head_ = nullptr;
    resbuf** tail_ = &head_;
    bool ok_ = true;
};

bool isPointList(const ValuePtr& v) {
    size_t n = 0;
    ValuePtr p = v;
    for (; p && p->kind == Kind::Cons; p = p->cdr, ++n)
        if (!isNumber(p->car)) return false;
    return isNil(p) && (n == 2 || n == 3);
}

// Adds v when it is an atom or a point and answers false; for any other list adds its RTLB and
// answers true, leaving its elements to the caller's walk.
bool addOpening(ChainBuilder& out, const ValuePtr& v) {
    if (isNil(v)) {
        out.add(newRb(RTNIL));
        return false;
    }
    switch (v->kind) {
    case Kind::Int: {
        if (v->integer >= SHRT_MIN && v->integer <= SHRT_MAX) {
            resbuf* rb = newRb(RTSHORT);
            if (rb) rb->resval.rint = static_cast<short>(v->integer);
            out.add(rb);
        } else {
            resbuf* rb = newRb(RTLONG);
            if (rb) rb->resval.rlong = static_cast<long>(v->integer);
            out.add(rb);
        }
        return false;
    }
    case Kind::Real: {
        resbuf* rb = newRb(RTREAL);
        if (rb) rb->resval.rreal = v->real;
        out.add(rb);
        return false;
    }
    case Kind::Str: out.add(newStringRb(RTSTR, v->text)); return false;
    case Kind::Sym:
        if (v->text == L"T") out.add(newRb(RTT));
        else out.add(newStringRb(RTSTR, v->text));
        return false;
    case Kind::Ename:
    case Kind::PickSet: {
        resbuf* rb = newRb(v->kind == Kind::Ename ? RTENAME : RTPICKS);
        if (rb) {
            rb->resval.rlname[0] = v->name[0];
            rb->resval.rlname[1] = v->name[1];
        }
        out.add(rb);
        return false;
    }
    case Kind::Void: out.add(newRb(RTVOID)); return false;
    case Kind::Cons: {
        if (isPointList(v)) {
            auto items = listItems(v);
            resbuf* rb = newRb(items.size() == 2 ? RTPOINT : RT3DPOINT);
            if (rb)
                for (size_t i = 0; i < items.size(); ++i) rb->resval.rpoint[i] = toDouble(items[i]);
            out.add(rb);
            return false;
        }
        out.add(newRb(RTLB));
        return true;
    }
    default: out.add(newRb(RTNIL)); return false;
    }
}

// A list nested a hundred thousand deep is walked with a stack on the heap, not by recursion.
void addValue(ChainBuilder& out, const ValuePtr& v) {
    std::vector<ValuePtr> rests;  // what remains of each open list, innermost last
    if (addOpening(out, v)) rests.push_back(v);
    while (!rests.empty()) {
        ValuePtr p = rests.back();
        if (p && p->kind == Kind::Cons) {
            rests.back() = p->cdr;
            if (addOpening(out, p->car)) rests.push_back(p->car);
            continue;
        }
        if (!isNil(p)) {
            out.add(newRb(RTDOTE));
            addOpening(out, p);  // not a cons: an atom closes the dotted list
        }
        out.add(newRb(RTLE));
        rests.pop_back();
    }
}

ValuePtr groupValue(const resbuf* rb) {
    switch (groupType(rb->restype)) {
    case GroupType::String:
    case GroupType::Handle: return makeStr(rb->resval.rstring ? rb->resval.rstring : L"");
    case GroupType::Real: return makeReal(rb->resval.rreal);
    case GroupType::Short: return makeInt(rb->resval.rint);
    case GroupType::Long: return makeInt(rb->resval.rlong);
    case GroupType::Name: {
        long n[2] = {rb->resval.rlname[0], rb->resval.rlname[1]};
        return rb->restype == RTPICKS ? makePickSet(n) : makeEname(n);
    }
    case GroupType::Point: {
        bool twoD = rb->restype == RTPOINT;
        std::vector<ValuePtr> coords{makeReal(rb->resval.rpoint[0]), makeReal(rb->resval.rpoint[1])};
        if (!twoD) coords.push_back(makeReal(rb->resval.rpoint[2]));
        return makeList(coords);
    }
    case GroupType::Binary: {
        std::wstring hex;
        static const wchar_t digits[] = L"0123456789ABCDEF";
        for (int i = 0; i < rb->resval.rbinary.clen; ++i) {
            auto b = static_cast<unsigned char>(rb->resval.rbinary.buf[i]);
            hex += digits[b >> 4];
            hex += digits[b & 15];
        }
        return makeStr(hex);
    }
    case GroupType::None: break;
    }
    return nil();
}

// Reads one element starting at rb; returns the node after it.
const resbuf* readOne(const resbuf* rb, ValuePtr& out);

// Extended data after a -3 node: one list per application, each headed by its name.
const resbuf* readXdata(const resbuf* rb, ValuePtr& out) {
    std::vector<ValuePtr> apps;
    std::vector<ValuePtr> current;
    ValuePtr name;
    auto flush = [&] {
        if (name) apps.push_back(cons(name, makeList(current)));
        current.clear();
    };
    for (; rb && rb->restype != RTLE; rb = rb->rbnext) {
        if (rb->restype == 1001) {
            flush();
            name = makeStr(rb->resval.rstring ? rb->resval.rstring : L"");
        } else {
            ValuePtr item;
            readOne(rb, item);
            current.push_back(item);
        }
    }
    flush();
    out = cons(makeInt(-3), makeList(apps));
    return rb;
}

// An element that opens no list: a value, a group, or extended data.
const resbuf* readAtom(const resbuf* rb, ValuePtr& out) {
    if (!rb) {
        out = nil();
        return nullptr;
    }
    switch (rb->restype) {
    case RTNIL: out = nil(); return rb->rbnext;
    case RTT: out = t(); return rb->rbnext;
    case RTVOID: out = voidValue(); return rb->rbnext;
    case RTNONE: out = voidValue(); return rb->rbnext;
    default: break;
    }
    if (rb->restype >= 5000) {
        out = groupValue(rb);
        return rb->rbnext;
    }
    if (rb->restype == -3) return readXdata(rb->rbnext, out);
    // (code . value); a point's value is its coordinate list, giving (code x y z).
    out = cons(makeInt(rb->restype), groupValue(rb));
    return rb->rbnext;
}

// A list being read: its elements so far, and its tail after a dot.
struct OpenList {
    std::vector<ValuePtr> items;
    ValuePtr tail = nil();
    bool dotted = false;
    ValuePtr close() const {
        ValuePtr list = tail;
        for (auto it = items.rbegin(); it != items.rend(); ++it) list = cons(*it, list);
        return list;
    }
};

// Lists are read with a stack of open lists on the heap, not by recursion: a module may answer
// a list nested a hundred thousand deep. A list the chain ends inside is closed there.
const resbuf* readOne(const resbuf* rb, ValuePtr& out) {
    std::vector<OpenList> open;  // innermost last
    for (;;) {
        ValuePtr value;
        if (!open.empty() && (!rb || rb->restype == RTLE)) {
            value = open.back().close();
            open.pop_back();
            if (rb) rb = rb->rbnext;
        } else if (!open.empty() && rb->restype == RTDOTE) {
            open.back().dotted = true;
            rb = rb->rbnext;
            continue;
        } else if (rb && rb->restype == RTLB) {
            open.emplace_back();
            rb = rb->rbnext;
            continue;
        } else {
            rb = readAtom(rb, value);
        }
        if (open.empty()) {
            out = value;
            return rb;
        }
        if (open.back().dotted) open.back().tail = value;
        else open.back().items.push_back(value);
    }
}

// An integer group takes a number that is whole and within the group's range; 1e30 or nan in
// (62 . 1e30) is refused, not cast.
bool fitsGroup(const ValuePtr& value, double lowest, double highest) {
    if (!isNumber(value)) return false;
    double v = toDouble(value);
    return v >= lowest && v <= highest && v == std::trunc(v);
}

bool addEntityItem(ChainBuilder& out, const ValuePtr& item) {
    if (!item || item->kind != Kind::Cons || !item->car || item->car->kind != Kind::Int) return false;
    int code = static_cast<int>(item->car->integer);
    if (code == -3) {
        out.add(newRb(-3));
        for (auto& app : listItems(item->cdr)) {
            if (!app || app->kind != Kind::Cons || !app->car || app->car->kind != Kind::Str) return false;
            out.add(newStringRb(1001, app->car->text));
            for (auto& group : listItems(app->cdr))
                if (!addEntityItem(out, group)) return false;
        }
        return out.ok();
    }
    ValuePtr value = item->cdr;
    resbuf* rb = newRb(code);
    if (!rb) return false;
    out.add(rb);
    switch (groupType(code)) {
    case GroupType::String:
    case GroupType::Handle:
        if (!value || value->kind != Kind::Str) return false;
        rb->resval.rstring = copyString(value->text);
        return rb->resval.rstring != nullptr;
    case GroupType::Real:
        if (!isNumber(value)) return false;
        rb->resval.rreal = toDouble(value);
        return true;
    case GroupType::Short:
        if (!fitsGroup(value, SHRT_MIN, SHRT_MAX)) return false;
        rb->resval.rint = static_cast<short>(toDouble(value));
        return true;
    case GroupType::Long:
        if (!fitsGroup(value, INT_MIN, INT_MAX)) return false;
        rb->resval.rlong = static_cast<long>(toDouble(value));
        return true;
    case GroupType::Name:
        if (!value || (value->kind != Kind::Ename && value->kind != Kind::PickSet)) return false;
        rb->resval.rlname[0] = value->name[0];
        rb->resval.rlname[1] = value->name[1];
        return true;
    case GroupType::Point: {
        auto coords = listItems(value);
        if (coords.size() < 2 || coords.size() > 3) return false;
        for (size_t i = 0; i < coords.size(); ++i) {
            if (!isNumber(coords[i])) return false;
            rb->resval.rpoint[i] = toDouble(coords[i]);
        }
        return true;
    }
    case GroupType::Binary:
    case GroupType::None: return code == -3;
    }
    return false;
}

}  // namespace

resbuf* argsToResbuf(const std::vector<ValuePtr>& args) {
    ChainBuilder out;
    for (auto& a : args) addValue(out, a);
    return out.release();
}

resbuf* valueToResbuf(const ValuePtr& value) {
    ChainBuilder out;
    addValue(out, value);
    return out.release();
}

ValuePtr resbufToList(const resbuf* rb) {
    std::vector<ValuePtr> items;
    while (rb) {
        ValuePtr item;
        rb = readOne(rb, item);
        items.push_back(item);
    }
    return makeList(items);
}

ValuePtr resbufToValue(const resbuf* rb) {
    if (!rb) return nil();
    ValuePtr first;
    const resbuf* next = readOne(rb, first);
    if (!next) return first;
    return resbufToList(rb);
}

resbuf* entityListToResbuf(const ValuePtr& list, bool& ok) {
    ChainBuilder out;
    ok = true;
    for (auto& item : listItems(list)) {
        if (!addEntityItem(out, item)) {
            ok = false;
            return nullptr;
        }
    }
    if (!out.ok()) {
        ok = false;
        return nullptr;
    }
    return out.release();
}

}  // namespace host
