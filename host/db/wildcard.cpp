#include "host/db/wildcard.h"

#include <string>
#include <vector>

#include "acutads.h"
#include "host/boundary.h"
#include "host/text.h"

namespace host::db {
namespace {

// Only the first 500 characters of the text and of the pattern take part.
constexpr size_t kCompared = 500;

enum class Kind { Star, Any, Digit, Letter, Other, Literal, Class };

struct Token {
    Kind kind = Kind::Literal;
    wchar_t ch = 0;
    bool negated = false;
    std::vector<std::pair<wchar_t, wchar_t>> ranges;  // Class: inclusive ranges
};

bool isDigitChar(wchar_t c) { return c >= L'0' && c <= L'9'; }

// Letters: ASCII letters, and characters beyond Latin-1's symbols that are not punctuation
// or spaces (so that the letters of other scripts, Chinese included, count as letters).
bool isLetterChar(wchar_t c) {
    if (c < 0x80) return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
    if (c < 0xC0 || c == 0xD7 || c == 0xF7) return false;
    if (c >= 0x2000 && c <= 0x2BFF) return false;  // punctuation, symbols, arrows, shapes
    if (c >= 0x3000 && c <= 0x303F) return false;  // CJK punctuation
    if (c >= 0xFF00 && c <= 0xFF20) return false;  // full-width punctuation and digits
    if (c >= 0xFF3B && c <= 0xFF40) return false;
    if (c >= 0xFF5B && c <= 0xFF65) return false;
    return true;
}

// Reads the class starting after '[' at i; false when it is not closed (the '[' is literal).
bool readClass(std::wstring_view p, size_t& i, Token& t) {
    size_t j = i;
    t.kind = Kind::Class;
    if (j < p.size() && p[j] == L'~') {
        t.negated = true;
        ++j;
    }
    bool first = true;
    while (j < p.size()) {
        wchar_t c = p[j];
        if (c == L']' && !first) {
            i = j + 1;
            return true;
        }
        if (j + 2 < p.size() && p[j + 1] == L'-' && p[j + 2] != L']') {
            t.ranges.emplace_back(c, p[j + 2]);
            j += 3;
        } else {
            t.ranges.emplace_back(c, c);
            ++j;
        }
        first = false;
    }
    return false;
}

std::vector<Token> tokenize(std::wstring_view p) {
    std::vector<Token> tokens;
    for (size_t i = 0; i < p.size();) {
        Token t;
        wchar_t c = p[i];
        if (c == L'`') {
            t.ch = i + 1 < p.size() ? p[i + 1] : L'`';
            i += i + 1 < p.size() ? 2 : 1;
        } else if (c == L'[') {
            size_t after = i + 1;
            if (readClass(p, after, t)) {
                i = after;
            } else {
                t = Token{};
                t.ch = L'[';
                ++i;
            }
        } else {
            switch (c) {
            case L'*': t.kind = Kind::Star; break;
            case L'?': t.kind = Kind::Any; break;
            case L'#': t.kind = Kind::Digit; break;
            case L'@': t.kind = Kind::Letter; break;
            case L'.': t.kind = Kind::Other; break;
            default: t.ch = c; break;
            }
            ++i;
        }
        tokens.push_back(std::move(t));
    }
    return tokens;
}

bool matchOne(const Token& t, wchar_t c) {
    switch (t.kind) {
    case Kind::Any: return true;
    case Kind::Digit: return isDigitChar(c);
    case Kind::Letter: return isLetterChar(c);
    case Kind::Other: return !isDigitChar(c) && !isLetterChar(c);
    case Kind::Literal: return t.ch == c;
    case Kind::Class: {
        bool in = false;
        for (auto [lo, hi] : t.ranges) in |= c >= lo && c <= hi;
        return in != t.negated;
    }
    case Kind::Star: return false;
    }
    return false;
}

// Glob matching with backtracking to the last star: every other token takes one character.
bool matchTokens(const std::vector<Token>& tokens, std::wstring_view s) {
    size_t ti = 0, si = 0;
    size_t starToken = std::wstring_view::npos, starText = 0;
    while (si < s.size()) {
        if (ti < tokens.size() && tokens[ti].kind == Kind::Star) {
            starToken = ti++;
            starText = si;
        } else if (ti < tokens.size() && matchOne(tokens[ti], s[si])) {
            ++ti;
            ++si;
        } else if (starToken != std::wstring_view::npos) {
            ti = starToken + 1;
            si = ++starText;
        } else {
            return false;
        }
    }
    while (ti < tokens.size() && tokens[ti].kind == Kind::Star) ++ti;
    return ti == tokens.size();
}

// Splits at commas that are neither escaped nor inside a class.
std::vector<std::wstring_view> alternatives(std::wstring_view p) {
    std::vector<std::wstring_view> parts;
    size_t start = 0;
    for (size_t i = 0; i < p.size();) {
        wchar_t c = p[i];
        if (c == L'`') {
            i += 2;
        } else if (c == L'[') {
            size_t after = i + 1;
            Token ignored;
            i = readClass(p, after, ignored) ? after : i + 1;
        } else if (c == L',') {
            parts.push_back(p.substr(start, i - start));
            start = ++i;
        } else {
            ++i;
        }
    }
    parts.push_back(p.substr(start));
    return parts;
}

}  // namespace

bool wildcardMatch(std::wstring_view text, std::wstring_view pattern) {
    text = text.substr(0, kCompared);
    pattern = pattern.substr(0, kCompared);
    for (std::wstring_view alt : alternatives(pattern)) {
        bool negate = !alt.empty() && alt.front() == L'~';
        if (negate) alt.remove_prefix(1);
        if (matchTokens(tokenize(alt), text) != negate) return true;
    }
    return false;
}

bool wildcardMatchNoCase(std::wstring_view text, std::wstring_view pattern) {
    return wildcardMatch(upperAscii(text), upperAscii(pattern));
}

}  // namespace host::db

extern "C" int acutWcMatch(const ACHAR* string, const ACHAR* pattern) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (!string || !pattern) return RTERROR;
        return host::db::wildcardMatch(string, pattern) ? RTNORM : RTERROR;
    });
}
