// String functions of the vl- family. Positions are zero-based, as the editor counts them.
#include "host/lisp/interpreter.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

size_t startArg(const Args& a, size_t i) {
    if (a.size() <= i) return 0;
    long long start = intArg(a[i]);
    return start < 0 ? 0 : static_cast<size_t>(start);
}

ValuePtr position(size_t at) { return at == std::wstring::npos ? nil() : makeInt(static_cast<long long>(at)); }

// Trims the characters of SET from the ends of TEXT the flags name.
ValuePtr trimmed(const Args& a, bool left, bool right) {
    expectCount(a, 2, 2);
    const std::wstring& set = stringArg(a[0]);
    const std::wstring& text = stringArg(a[1]);
    size_t from = left ? text.find_first_not_of(set) : 0;
    if (from == std::wstring::npos) return makeStr(L"");
    size_t to = right ? text.find_last_not_of(set) : text.size() - 1;
    return makeStr(text.substr(from, to - from + 1));
}

}  // namespace

void addVlStringBuiltins(Interpreter& in) {
    in.define(L"VL-STRING-SEARCH", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 3);
        const std::wstring& pattern = stringArg(a[0]);
        const std::wstring& text = stringArg(a[1]);
        size_t start = startArg(a, 2);
        return start > text.size() ? nil() : position(text.find(pattern, start));
    });
    in.define(L"VL-STRING-POSITION", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 4);
        wchar_t c = static_cast<wchar_t>(intArg(a[0]));
        const std::wstring& text = stringArg(a[1]);
        size_t start = startArg(a, 2);
        bool fromEnd = a.size() == 4 && isTrue(a[3]);
        if (start > text.size()) return nil();
        return position(fromEnd ? text.rfind(c) : text.find(c, start));
    });
    in.define(L"VL-STRING-SUBST", [](Interpreter&, const Args& a) {
        expectCount(a, 3, 4);
        const std::wstring& replacement = stringArg(a[0]);
        const std::wstring& pattern = stringArg(a[1]);
        std::wstring text = stringArg(a[2]);
        size_t start = startArg(a, 3);
        size_t at = start > text.size() ? std::wstring::npos : text.find(pattern, start);
        if (at != std::wstring::npos) text.replace(at, pattern.size(), replacement);
        return makeStr(text);
    });
    in.define(L"VL-STRING-TRANSLATE", [](Interpreter&, const Args& a) {
        expectCount(a, 3, 3);
        const std::wstring& from = stringArg(a[0]);
        const std::wstring& to = stringArg(a[1]);
        std::wstring text = stringArg(a[2]);
        for (auto& c : text) {
            size_t k = from.find(c);
            if (k != std::wstring::npos && !to.empty()) c = to[std::min(k, to.size() - 1)];
        }
        return makeStr(text);
    });
    in.define(L"VL-STRING-TRIM", [](Interpreter&, const Args& a) { return trimmed(a, true, true); });
    in.define(L"VL-STRING-LEFT-TRIM", [](Interpreter&, const Args& a) { return trimmed(a, true, false); });
    in.define(L"VL-STRING-RIGHT-TRIM", [](Interpreter&, const Args& a) { return trimmed(a, false, true); });
    in.define(L"VL-STRING->LIST", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        Args codes;
        for (wchar_t c : stringArg(a[0])) codes.push_back(makeInt(static_cast<long long>(c)));
        return makeList(codes);
    });
    in.define(L"VL-LIST->STRING", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        std::wstring text;
        for (auto& code : listItems(a[0])) text += static_cast<wchar_t>(intArg(code));
        return makeStr(text);
    });
    in.define(L"VL-PRINC-TO-STRING", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        return makeStr(printValue(a[0], false));
    });
    in.define(L"VL-PRIN1-TO-STRING", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 1);
        return makeStr(printValue(a[0], true));
    });
}

}  // namespace host::lisp
