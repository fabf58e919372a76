#include "host/render/mtext_plain.h"

#include <string_view>

namespace host::render {
namespace {

// Codes followed by a value that runs to a semicolon.
constexpr std::wstring_view kValueCodes = L"fFHWQTACcp";
// Codes that stand alone (underline, overline, strike-through on and off).
constexpr std::wstring_view kSwitchCodes = L"LlOoKk";

}  // namespace

std::vector<std::wstring> mtextLines(const std::wstring& formatted) {
    std::vector<std::wstring> lines(1);
    for (size_t i = 0; i < formatted.size(); ++i) {
        wchar_t c = formatted[i];
        if (c == L'{' || c == L'}') continue;
        if (c != L'\\' || i + 1 == formatted.size()) {
            lines.back() += c;
            continue;
        }
        wchar_t code = formatted[++i];
        if (code == L'P') {
            lines.emplace_back();
        } else if (code == L'~') {
            lines.back() += L' ';
        } else if (code == L'S') {  // stacked fraction "a^b;" shown as a/b
            size_t end = formatted.find(L';', i);
            std::wstring stack = formatted.substr(i + 1, end == std::wstring::npos ? std::wstring::npos : end - i - 1);
            for (wchar_t& s : stack)
                if (s == L'^' || s == L'#') s = L'/';
            lines.back() += stack;
            i = end == std::wstring::npos ? formatted.size() : end;
        } else if (kValueCodes.find(code) != std::wstring_view::npos) {
            size_t end = formatted.find(L';', i);
            i = end == std::wstring::npos ? formatted.size() : end;
        } else if (kSwitchCodes.find(code) == std::wstring_view::npos) {
            lines.back() += code;  // an escaped character: \\ \{ \}
        }
    }
    return lines;
}

}  // namespace host::render
