#include "host/dcl/parser.h"

#include <array>

#include "host/dcl/lexer.h"

namespace host::dcl {
namespace {

using T = Token::Type;

class Parser {
public:
    Parser(std::vector<Token> tokens, const std::filesystem::path& path) : tokens_(std::move(tokens)) {
        result_.file.path = path;
    }

    ParseResult run() {
        while (peek().type != T::End && !failed_) {
            if (peek().type == T::Include)
                include();
            else
                topDefinition();
        }
        return std::move(result_);
    }

private:
    std::vector<Token> tokens_;
    size_t pos_ = 0;
    ParseResult result_;
    bool failed_ = false;
    static constexpr int kMaxNesting = 256;
    int nesting_ = 0;

    const Token& peek(size_t ahead = 0) const {
        size_t i = std::min(pos_ + ahead, tokens_.size() - 1);
        return tokens_[i];
    }
    const Token& take() {
        const Token& t = peek();
        if (pos_ < tokens_.size() - 1) ++pos_;
        return t;
    }

    void fail(int line, std::wstring message) {
        if (failed_) return;
        failed_ = true;
        result_.error = SyntaxError{line, std::move(message)};
    }

    bool expect(T type, const wchar_t* what, const wchar_t* context) {
        if (peek().type == type) {
            take();
            return true;
        }
        fail(peek().line, std::wstring(L"expected ") + what + L" " + context + L", found " + describe(peek()));
        return false;
    }

    void include() {
        int line = take().line;
        if (peek().type != T::String) {
            fail(peek().line, L"expected a file name in quotes after @include, found " + describe(peek()));
            return;
        }
        result_.file.includes.push_back(Include{take().text, line});
        if (peek().type == T::Semicolon) take();
    }

    void topDefinition() {
        if (peek().type == T::Colon) {
            fail(peek().line, L"a tile at the top level needs a name before ':'");
            return;
        }
        if (peek().type != T::Name) {
            fail(peek().line, L"expected a tile definition, found " + describe(peek()));
            return;
        }
        Definition def;
        def.line = peek().line;
        def.name = take().text;
        def.file = result_.file.path;
        if (peek().type != T::Colon) {
            fail(peek().line, L"expected ':' after the tile name '" + def.name + L"', found " + describe(peek()));
            return;
        }
        if (!parents(def.parents) || !body(def.body)) return;
        result_.file.definitions.push_back(std::move(def));
    }

    // ":" NAME { ":" NAME }
    bool parents(std::vector<std::wstring>& names) {
        while (peek().type == T::Colon) {
            take();
            if (peek().type != T::Name) {
                fail(peek().line, L"expected a prototype name after ':', found " + describe(peek()));
                return false;
            }
            names.push_back(take().text);
        }
        return true;
    }

    // "{" { body_item } "}"
    bool body(Body& out) {
        int opening = peek().line;
        if (!expect(T::LBrace, L"'{'", L"to open the tile body")) return false;
        // Bodies nest by recursion: a limit far above any dialog keeps the stack safe.
        if (nesting_ >= kMaxNesting) {
            fail(opening, L"tiles are nested more than " + std::to_wstring(kMaxNesting) + L" levels deep");
            return false;
        }
        ++nesting_;
        bool closed = bodyItems(out);
        --nesting_;
        return closed;
    }

    bool bodyItems(Body& out) {
        while (!failed_ && peek().type != T::RBrace) {
            if (peek().type == T::End) {
                fail(peek().line, L"a tile body is not closed: '}' missing");
                return false;
            }
            bodyItem(out);
        }
        if (failed_) return false;
        take();
        return true;
    }

    void bodyItem(Body& out) {
        const Token& first = peek();
        if (first.type == T::Colon) {
            Item item;
            item.kind = Item::Kind::Instance;
            item.line = first.line;
            if (parents(item.prototypes) && body(item.body)) out.children.push_back(std::move(item));
            return;
        }
        if (first.type != T::Name) {
            fail(first.line, L"expected an attribute or a tile, found " + describe(first));
            return;
        }
        switch (peek(1).type) {
        case T::Equals: attribute(out); return;
        case T::Semicolon: {
            Item item;
            item.line = first.line;
            item.prototypes.push_back(take().text);
            take();
            out.children.push_back(std::move(item));
            return;
        }
        case T::Colon: {  // a named definition inside a body: an instance of its prototypes
            Item item;
            item.kind = Item::Kind::Instance;
            item.line = take().line;
            if (parents(item.prototypes) && body(item.body)) out.children.push_back(std::move(item));
            return;
        }
        default:
            fail(peek(1).line, L"expected '=', ';' or ':' after '" + first.text + L"', found " + describe(peek(1)));
        }
    }

    void attribute(Body& out) {
        Attribute attr;
        attr.line = peek().line;
        attr.name = take().text;
        take();  // '='
        const Token& v = peek();
        switch (v.type) {
        case T::String: attr.value.type = AttrValue::Type::String; break;
        case T::Integer: attr.value.type = AttrValue::Type::Integer; break;
        case T::Real: attr.value.type = AttrValue::Type::Real; break;
        case T::Name:
            if (!isReservedWord(v.text)) {
                fail(v.line, L"'" + v.text + L"' is not a valid value for attribute '" + attr.name + L"'");
                return;
            }
            attr.value.type = AttrValue::Type::Word;
            break;
        default:
            fail(v.line, L"expected a value for attribute '" + attr.name + L"', found " + describe(v));
            return;
        }
        attr.value.text = take().text;
        if (!expect(T::Semicolon, L"';'", (L"after the value of attribute '" + attr.name + L"'").c_str())) return;
        out.attributes.push_back(std::move(attr));
    }
};

}  // namespace

bool isReservedWord(std::wstring_view word) {
    static constexpr std::array<std::wstring_view, 23> words = {
        L"true", L"false", L"left", L"right", L"centered", L"top", L"bottom", L"horizontal",
        L"vertical", L"none", L"dialog_line", L"dialog_foreground", L"dialog_background",
        L"graphics_background", L"graphics_foreground", L"black", L"red", L"yellow", L"green",
        L"cyan", L"blue", L"magenta", L"white"};
    for (auto w : words)
        if (w == word) return true;
    return false;
}

ParseResult parseDcl(std::wstring_view text, const std::filesystem::path& path) {
    LexResult lexed = tokenize(text);
    if (lexed.error) {
        ParseResult r;
        r.file.path = path;
        r.error = lexed.error;
        return r;
    }
    return Parser(std::move(lexed.tokens), path).run();
}

}  // namespace host::dcl
