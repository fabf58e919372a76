// Tokens of the DCL language: names, strings, numbers, punctuation and @include.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/dcl/syntax.h"

namespace host::dcl {

struct Token {
    enum class Type { Name, String, Integer, Real, Colon, LBrace, RBrace, Equals, Semicolon, Include, End };
    Type type = Type::End;
    std::wstring text;  // Name and numbers: the spelling; String: the unescaped contents
    int line = 0;
};

// Splits a whole file into tokens, the last one End. Comments (// and /* */) are skipped.
// On the first lexical error the tokens read so far are discarded and the error is returned.
struct LexResult {
    std::vector<Token> tokens;
    std::optional<SyntaxError> error;
};
LexResult tokenize(std::wstring_view text);

// How a token is named in messages: "';'", "name 'foo'", "end of file".
std::wstring describe(const Token& token);

}  // namespace host::dcl
