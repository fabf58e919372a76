// Whitespace-separated tokens of a wide text stream, read one at a time.
#pragma once

#include <cstdio>
#include <string>

namespace vrn2 {

class TokenReader {
public:
    explicit TokenReader(std::FILE* file) : file_(file) {}

    // The next token, or false at the end of the stream.
    bool next(std::wstring& token);

    // The token that next() would give, without taking it.
    bool peek(std::wstring& token);

private:
    std::FILE* file_;
    std::wstring pending_;
    bool hasPending_ = false;
};

}  // namespace vrn2
