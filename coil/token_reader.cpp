#include "coil/token_reader.h"

#include <cwchar>
#include <cwctype>

namespace vrn2 {

bool TokenReader::next(std::wstring& token) {
    if (hasPending_) {
        hasPending_ = false;
        token = std::move(pending_);
        return true;
    }
    token.clear();
    std::wint_t c;
    while ((c = std::fgetwc(file_)) != WEOF && std::iswspace(c)) {
    }
    while (c != WEOF && !std::iswspace(c)) {
        token.push_back(static_cast<wchar_t>(c));
        c = std::fgetwc(file_);
    }
    return !token.empty();
}

bool TokenReader::peek(std::wstring& token) {
    if (!hasPending_) {
        if (!next(pending_)) return false;
        hasPending_ = true;
    }
    token = pending_;
    return true;
}

}  // namespace vrn2
