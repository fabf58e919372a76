// Integer bit operations and the greatest common divisor. Integers are 32-bit, as in the
// editor: results wrap.
#include <cstdint>
#include <numeric>

#include "host/lisp/interpreter.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

ValuePtr int32(uint32_t bits) { return makeInt(static_cast<int32_t>(bits)); }
uint32_t bitsArg(const ValuePtr& v) { return static_cast<uint32_t>(intArg(v)); }

// (boole op i1 i2 ...): each bit of OP gives the result bit for one pair of input bits:
// 1 for (1,1), 2 for (1,0), 4 for (0,1), 8 for (0,0).
uint32_t boole(uint32_t op, uint32_t x, uint32_t y) {
    uint32_t r = 0;
    if (op & 1) r |= x & y;
    if (op & 2) r |= x & ~y;
    if (op & 4) r |= ~x & y;
    if (op & 8) r |= ~x & ~y;
    return r;
}

}  // namespace

void addMathBuiltins(Interpreter& in) {
    in.define(L"LOGAND", [](Interpreter&, const Args& a) {
        uint32_t r = 0xFFFFFFFFu;
        for (auto& v : a) r &= bitsArg(v);
        return a.empty() ? makeInt(0) : int32(r);
    });
    in.define(L"LOGIOR", [](Interpreter&, const Args& a) {
        uint32_t r = 0;
        for (auto& v : a) r |= bitsArg(v);
        return int32(r);
    });
    in.define(L"~", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        return int32(~bitsArg(a[0]));
    });
    in.define(L"LSH", [](Interpreter&, const Args& a) {
        expectCount(a, 0, 2);
        if (a.empty()) return makeInt(0);
        uint32_t x = bitsArg(a[0]);
        long long n = a.size() == 2 ? intArg(a[1]) : 0;
        if (n >= 32 || n <= -32) return makeInt(0);
        return int32(n >= 0 ? x << n : x >> -n);
    });
    in.define(L"BOOLE", [](Interpreter&, const Args& a) {
        if (a.size() < 2) fail(L"too few arguments");
        uint32_t op = bitsArg(a[0]);
        uint32_t r = bitsArg(a[1]);
        for (size_t k = 2; k < a.size(); ++k) r = boole(op, r, bitsArg(a[k]));
        return int32(r);
    });
    in.define(L"GCD", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        long long x = intArg(a[0]), y = intArg(a[1]);
        if (x <= 0) badArgument(L"positive integer", a[0]);
        if (y <= 0) badArgument(L"positive integer", a[1]);
        return makeInt(std::gcd(x, y));
    });
}

}  // namespace host::lisp
