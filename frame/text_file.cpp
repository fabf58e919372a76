#include "frame/text_file.h"

#include <climits>
#include <cwchar>
#include <cwctype>

namespace vrn2 {

bool readWideText(FILE* file, std::wstring& text) {
    text.clear();
    wchar_t chunk[512];
    while (std::fgetws(chunk, sizeof chunk / sizeof chunk[0], file)) text += chunk;
    return !std::ferror(file);
}

std::vector<std::wstring> splitLines(const std::wstring& text) {
    std::vector<std::wstring> lines;
    size_t start = 0;
    while (start < text.size()) {
        size_t end = text.find(L'\n', start);
        size_t next = end == std::wstring::npos ? text.size() : end + 1;
        if (end == std::wstring::npos) end = text.size();
        if (end > start && text[end - 1] == L'\r') --end;
        lines.push_back(text.substr(start, end - start));
        start = next;
    }
    return lines;
}

std::vector<std::wstring> splitTokens(const std::wstring& text) {
    std::vector<std::wstring> tokens;
    size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && std::iswspace(text[i])) ++i;
        size_t start = i;
        while (i < text.size() && !std::iswspace(text[i])) ++i;
        if (i > start) tokens.push_back(text.substr(start, i - start));
    }
    return tokens;
}

bool toLocaleBytes(const std::wstring& text, std::string& bytes) {
    bytes.clear();
    std::mbstate_t state{};
    char buffer[MB_LEN_MAX];
    for (wchar_t c : text) {
        size_t n = std::wcrtomb(buffer, c, &state);
        if (n == static_cast<size_t>(-1)) return false;
        bytes.append(buffer, n);
    }
    return true;
}

bool fromLocaleBytes(const std::string& bytes, std::wstring& text) {
    text.clear();
    std::mbstate_t state{};
    const char* p = bytes.data();
    size_t left = bytes.size();
    while (left > 0) {
        wchar_t c = 0;
        size_t n = std::mbrtowc(&c, p, left, &state);
        if (n == static_cast<size_t>(-1) || n == static_cast<size_t>(-2)) return false;
        if (n == 0) n = 1;  // an embedded NUL byte stands for itself
        text += c;
        p += n;
        left -= n;
    }
    return true;
}

}  // namespace vrn2
