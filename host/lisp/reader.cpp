#include "host/lisp/reader.h"

#include <cerrno>
#include <climits>
#include <cwchar>
#include <cwctype>

namespace host::lisp {
namespace {

class Reader {
public:
    explicit Reader(std::wstring_view text) : s_(text) {}

    bool atEnd() {
        skipBlank();
        return pos_ >= s_.size();
    }
    int line() const { return line_; }

    // Throws the editor's message on malformed input.
    ValuePtr read() {
        Nesting nested(depth_);
        skipBlank();
        if (pos_ >= s_.size()) throw std::wstring(L"malformed list on input");
        wchar_t c = s_[pos_];
        if (c == L'(') {
            ++pos_;
            return readList();
        }
        if (c == L')') {
            ++pos_;
            throw std::wstring(L"extra right paren on input");
        }
        if (c == L'\'') {
            ++pos_;
            return makeList({makeSym(L"QUOTE"), read()});
        }
        if (c == L'"') {
            ++pos_;
            return readString();
        }
        return readAtom();
    }

private:
    // Lists and quotes nest by recursion; past this depth the text is refused as the evaluator
    // refuses a program nested too deep, long before the reader's own stack runs out (a level
    // takes about 2 KB in a build with AddressSanitizer).
    static constexpr int kMaxNesting = 1000;
    struct Nesting {
        int& depth;
        explicit Nesting(int& d) : depth(d) {
            if (depth >= kMaxNesting) throw std::wstring(L"stack overflow");
            ++depth;
        }
        ~Nesting() { --depth; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;
    };

    void skipBlank() {
        while (pos_ < s_.size()) {
            wchar_t c = s_[pos_];
            if (c == L'\n') {
                ++line_;
                ++pos_;
            } else if (std::iswspace(c)) {
                ++pos_;
            } else if (c == L';') {
                if (pos_ + 1 < s_.size() && s_[pos_ + 1] == L'|') {
                    size_t end = s_.find(L"|;", pos_ + 2);
                    size_t stop = end == std::wstring_view::npos ? s_.size() : end + 2;
                    for (size_t i = pos_; i < stop; ++i)
                        if (s_[i] == L'\n') ++line_;
                    pos_ = stop;
                } else {
                    while (pos_ < s_.size() && s_[pos_] != L'\n') ++pos_;
                }
            } else {
                break;
            }
        }
    }

    ValuePtr readList() {
        std::vector<ValuePtr> items;
        ValuePtr tail = nil();
        for (;;) {
            skipBlank();
            if (pos_ >= s_.size()) throw std::wstring(L"malformed list on input");
            if (s_[pos_] == L')') {
                ++pos_;
                break;
            }
            if (s_[pos_] == L'.' && pos_ + 1 < s_.size() && isDelimiter(s_[pos_ + 1]) && !items.empty()) {
                ++pos_;
                tail = read();
                skipBlank();
                if (pos_ >= s_.size() || s_[pos_] != L')') throw std::wstring(L"invalid dotted pair");
                ++pos_;
                break;
            }
            items.push_back(read());
        }
        ValuePtr list = tail;
        for (auto it = items.rbegin(); it != items.rend(); ++it) list = cons(*it, list);
        return list;
    }

    ValuePtr readString() {
        std::wstring out;
        while (pos_ < s_.size() && s_[pos_] != L'"') {
            wchar_t c = s_[pos_++];
            if (c == L'\n') ++line_;
            if (c != L'\\' || pos_ >= s_.size()) {
                out += c;
                continue;
            }
            wchar_t e = s_[pos_++];
            switch (e) {
            case L'n': out += L'\n'; break;
            case L'r': out += L'\r'; break;
            case L't': out += L'\t'; break;
            case L'e': out += L'\x1b'; break;
            case L'\\': out += L'\\'; break;
            case L'"': out += L'"'; break;
            default:
                if (e >= L'0' && e <= L'7') {
                    int v = e - L'0';
                    for (int k = 0; k < 2 && pos_ < s_.size() && s_[pos_] >= L'0' && s_[pos_] <= L'7'; ++k)
                        v = v * 8 + (s_[pos_++] - L'0');
                    out += static_cast<wchar_t>(v);
                } else {
                    out += e;
                }
            }
        }
        if (pos_ >= s_.size()) throw std::wstring(L"malformed string on input");
        ++pos_;
        return makeStr(out);
    }

    static bool isDelimiter(wchar_t c) {
        return std::iswspace(c) || c == L'(' || c == L')' || c == L'\'' || c == L'"' || c == L';';
    }

    ValuePtr readAtom() {
        size_t start = pos_;
        while (pos_ < s_.size() && !isDelimiter(s_[pos_])) ++pos_;
        std::wstring token(s_.substr(start, pos_ - start));
        wchar_t* end = nullptr;
        errno = 0;
        long long i = std::wcstoll(token.c_str(), &end, 10);
        if (!token.empty() && *end == L'\0' && (std::iswdigit(token.back()))) {
            // An integer beyond 32 bits is read as a real, as the editor reads it.
            if (errno != ERANGE && i >= INT_MIN && i <= INT_MAX) return makeInt(i);
            return makeReal(std::wcstod(token.c_str(), nullptr));
        }
        double d = std::wcstod(token.c_str(), &end);
        if (!token.empty() && *end == L'\0' && token.find_first_of(L"0123456789") != std::wstring::npos &&
            token.find_first_of(L"xXnN") == std::wstring::npos)
            return makeReal(d);
        return makeSym(token);
    }

    std::wstring_view s_;
    size_t pos_ = 0;
    int line_ = 1;
    int depth_ = 0;
};

}  // namespace

ReadResult readAll(std::wstring_view text) {
    ReadResult result;
    Reader reader(text);
    try {
        while (!reader.atEnd()) {
            result.lines.push_back(reader.line());
            result.forms.push_back(reader.read());
        }
    } catch (const std::wstring& message) {
        result.error = message;
        // An unfinished form is reported where it starts.
        result.errorLine = result.lines.size() > result.forms.size() ? result.lines.back() : reader.line();
    }
    return result;
}

}  // namespace host::lisp
