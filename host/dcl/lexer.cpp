#include "host/dcl/lexer.h"

namespace host::dcl {
namespace {

bool isLetter(wchar_t c) { return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'); }
bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

class Lexer {
public:
    explicit Lexer(std::wstring_view text) : text_(text) {}

    LexResult run() {
        LexResult result;
        for (;;) {
            if (!skipSpaceAndComments()) return fail(result);
            if (pos_ >= text_.size()) break;
            Token token;
            if (!next(token)) return fail(result);
            result.tokens.push_back(std::move(token));
        }
        result.tokens.push_back(Token{Token::Type::End, L"", line_});
        return result;
    }

private:
    std::wstring_view text_;
    size_t pos_ = 0;
    int line_ = 1;
    SyntaxError error_;

    wchar_t peek(size_t ahead = 0) const {
        return pos_ + ahead < text_.size() ? text_[pos_ + ahead] : L'\0';
    }

    LexResult fail(LexResult& result) {
        result.tokens.clear();
        result.error = error_;
        return std::move(result);
    }

    bool error(int line, std::wstring message) {
        error_ = SyntaxError{line, std::move(message)};
        return false;
    }

    bool skipSpaceAndComments() {
        while (pos_ < text_.size()) {
            wchar_t c = peek();
            if (c == L'\n') {
                ++line_;
                ++pos_;
            } else if (c == L' ' || c == L'\t' || c == L'\r' || c == L'\f' || c == L'\v' || c == 0xFEFF) {
                ++pos_;
            } else if (c == L'/' && peek(1) == L'/') {
                while (pos_ < text_.size() && peek() != L'\n') ++pos_;
            } else if (c == L'/' && peek(1) == L'*') {
                int start = line_;
                pos_ += 2;
                while (pos_ < text_.size() && !(peek() == L'*' && peek(1) == L'/')) {
                    if (peek() == L'\n') ++line_;
                    ++pos_;
                }
                if (pos_ >= text_.size()) return error(start, L"comment not closed");
                pos_ += 2;
            } else {
                return true;
            }
        }
        return true;
    }

    bool next(Token& token) {
        token.line = line_;
        wchar_t c = peek();
        switch (c) {
        case L':': return punct(token, Token::Type::Colon);
        case L'{': return punct(token, Token::Type::LBrace);
        case L'}': return punct(token, Token::Type::RBrace);
        case L'=': return punct(token, Token::Type::Equals);
        case L';': return punct(token, Token::Type::Semicolon);
        case L'"': return string(token);
        case L'@': return directive(token);
        default: break;
        }
        if (isLetter(c)) return name(token);
        if (isDigit(c) || ((c == L'-' || c == L'+') && (isDigit(peek(1)) || peek(1) == L'.')))
            return number(token);
        if (c == L'.' && isDigit(peek(1)))
            return error(line_, L"a real number needs a digit before the decimal point");
        if (c < L' ' || c == 0x7F)  // a control character (NUL) would cut or garble the message
            return error(line_, L"unexpected control character (code " + std::to_wstring(static_cast<int>(c)) + L")");
        return error(line_, std::wstring(L"unexpected character '") + c + L"'");
    }

    bool punct(Token& token, Token::Type type) {
        token.type = type;
        token.text = std::wstring(1, peek());
        ++pos_;
        return true;
    }

    bool name(Token& token) {
        size_t start = pos_;
        while (isLetter(peek()) || isDigit(peek()) || peek() == L'_') ++pos_;
        token.type = Token::Type::Name;
        token.text = std::wstring(text_.substr(start, pos_ - start));
        return true;
    }

    bool directive(Token& token) {
        ++pos_;
        Token word;
        if (!isLetter(peek()) || !name(word) || word.text != L"include")
            return error(line_, L"unknown directive after '@'");
        token.type = Token::Type::Include;
        token.text = L"@include";
        return true;
    }

    bool digits() {
        size_t start = pos_;
        while (isDigit(peek())) ++pos_;
        return pos_ > start;
    }

    bool number(Token& token) {
        size_t start = pos_;
        if (peek() == L'-' || peek() == L'+') ++pos_;
        if (!digits()) return error(line_, L"a real number needs a digit before the decimal point");
        token.type = Token::Type::Integer;
        if (peek() == L'.') {
            ++pos_;
            if (!digits()) return error(line_, L"a digit must follow the decimal point");
            token.type = Token::Type::Real;
        }
        // Exponents are not part of the documented language; they are read leniently.
        if ((peek() == L'e' || peek() == L'E') &&
            (isDigit(peek(1)) || ((peek(1) == L'-' || peek(1) == L'+') && isDigit(peek(2))))) {
            pos_ += 2;
            digits();
            token.type = Token::Type::Real;
        }
        if (isLetter(peek()) || peek() == L'_' || peek() == L'.')
            return error(line_, L"malformed number");
        token.text = std::wstring(text_.substr(start, pos_ - start));
        return true;
    }

    bool string(Token& token) {
        int start = line_;
        ++pos_;
        std::wstring out;
        for (;;) {
            if (pos_ >= text_.size() || peek() == L'\n') return error(start, L"string not closed on its line");
            wchar_t c = text_[pos_++];
            if (c == L'"') break;
            if (c != L'\\') {
                out += c;
                continue;
            }
            wchar_t e = peek();
            if (e == L'\n' || pos_ >= text_.size()) return error(start, L"string not closed on its line");
            ++pos_;
            switch (e) {
            case L'"': out += L'"'; break;
            case L'\\': out += L'\\'; break;
            case L'n': out += L'\n'; break;
            case L't': out += L'\t'; break;
            default: out += L'\\'; out += e; break;  // other pairs are kept as written
            }
        }
        token.type = Token::Type::String;
        token.text = std::move(out);
        return true;
    }
};

}  // namespace

LexResult tokenize(std::wstring_view text) { return Lexer(text).run(); }

std::wstring describe(const Token& token) {
    switch (token.type) {
    case Token::Type::Name: return L"name '" + token.text + L"'";
    case Token::Type::String: return L"string \"" + token.text + L"\"";
    case Token::Type::Integer:
    case Token::Type::Real: return L"number " + token.text;
    case Token::Type::Include: return L"@include";
    case Token::Type::End: return L"end of file";
    default: return L"'" + token.text + L"'";
    }
}

}  // namespace host::dcl
