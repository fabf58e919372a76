// File names between the interface's wide strings and the file system, by UTF-8. The wide
// conversions of std::filesystem use the C++ "C" locale, which refuses every character past
// ASCII (it throws); these never throw, and invalid bytes read back as U+FFFD.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace host {

std::filesystem::path pathOf(std::wstring_view name);
std::wstring nameOf(const std::filesystem::path& path);

}  // namespace host
