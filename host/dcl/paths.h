// Finding DCL files: names written with the platform's separators and drive letters, the
// implied ".dcl" extension, and the host's search path.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace host::dcl {

// "\" becomes "/" and a drive prefix ("C:") is dropped: the host has one file tree.
std::filesystem::path fromPlatformPath(std::wstring_view name);

// The path of an existing regular file, matching each component without regard to ASCII case
// when the exact spelling does not exist (names written for a case-blind file system).
std::optional<std::filesystem::path> existingFile(const std::filesystem::path& path);

// Finds the DCL file NAME: a name without extension gets ".dcl"; an absolute name is used as
// it is; a relative one is tried in each of FOLDERS, then in each folder of the search path.
std::optional<std::filesystem::path> findDclFile(std::wstring_view name,
                                                 const std::vector<std::filesystem::path>& folders);

// The host's search path for DCL files (empty by default).
void setSearchPath(std::vector<std::filesystem::path> folders);
const std::vector<std::filesystem::path>& searchPath();

}  // namespace host::dcl
