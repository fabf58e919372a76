#include <cwchar>

#include "psychro/result_files.h"

namespace vrn2 {

std::vector<std::wstring> readResultEntries(FILE* file) {
    std::vector<std::wstring> entries;
    wchar_t line[kResultReadChars + 1] = {};
    while (!std::feof(file)) {
        std::fgetws(line, kResultReadChars + 1, file);
        if (std::ferror(file)) break;  // a stream in error never reaches its end
        for (wchar_t* c = line; *c; ++c) {
            if (*c == L'\n' || *c == static_cast<wchar_t>(0xFFFF)) {
                *c = L'\0';
                break;
            }
        }
        entries.emplace_back(line);
    }
    return entries;
}

}  // namespace vrn2
