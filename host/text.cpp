#include "host/text.h"

namespace host {

std::string toUtf8(std::wstring_view text) {
    std::string out;
    out.reserve(text.size());
    for (wchar_t wc : text) {
        auto c = static_cast<char32_t>(wc);
        if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) c = 0xFFFD;
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

std::wstring fromUtf8(std::string_view text) {
    std::wstring out;
    out.reserve(text.size());
    size_t i = 0;
    while (i < text.size()) {
        auto b = static_cast<unsigned char>(text[i]);
        char32_t c = 0xFFFD;
        size_t len = 1;
        if (b < 0x80) {
            c = b;
        } else if ((b & 0xE0) == 0xC0) {
            len = 2;
            c = b & 0x1F;
        } else if ((b & 0xF0) == 0xE0) {
            len = 3;
            c = b & 0x0F;
        } else if ((b & 0xF8) == 0xF0) {
            len = 4;
            c = b & 0x07;
        } else {
            out += L'\uFFFD';
            ++i;
            continue;
        }
        bool valid = i + len <= text.size();
        for (size_t k = 1; valid && k < len; ++k) {
            auto cb = static_cast<unsigned char>(text[i + k]);
            if ((cb & 0xC0) != 0x80) valid = false;
            else c = (c << 6) | (cb & 0x3F);
        }
        static constexpr char32_t minimum[] = {0, 0, 0x80, 0x800, 0x10000};
        if (!valid || c < minimum[len] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
            out += L'\uFFFD';
            ++i;
            continue;
        }
        out += static_cast<wchar_t>(c);
        i += len;
    }
    return out;
}

std::wstring upperAscii(std::wstring_view text) {
    std::wstring out(text);
    for (auto& c : out)
        if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - L'a' + L'A');
    return out;
}

bool equalsNoCase(std::wstring_view a, std::wstring_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i) {
        wchar_t x = a[i], y = b[i];
        if (x >= L'a' && x <= L'z') x = static_cast<wchar_t>(x - L'a' + L'A');
        if (y >= L'a' && y <= L'z') y = static_cast<wchar_t>(y - L'a' + L'A');
        if (x != y) return false;
    }
    return true;
}

std::string_view trimBlanks(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t')) s.remove_suffix(1);
    return s;
}

}  // namespace host
