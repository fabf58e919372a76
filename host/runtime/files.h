// Paths as the module forms them (platform separators) turned into paths of this system.
#pragma once

#include <filesystem>
#include <string_view>

namespace host {

// "\" becomes "/"; the text is encoded as UTF-8 for the file system.
std::filesystem::path nativePath(std::wstring_view path);

}  // namespace host
