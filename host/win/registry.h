// The registry store of the session: string values under keys, given on the console's command
// line or in a file.
#pragma once

#include <map>
#include <optional>
#include <string>

namespace host::win {

// The key the suite's programs read under HKEY_LOCAL_MACHINE.
inline constexpr wchar_t kSuiteKey[] = L"SOFTWARE\\Morvell\\Vornex\\6.0";

// A key exists once any value under it (or under a key below it) has been given.
void setRegistryValue(std::wstring_view key, std::wstring_view name, std::wstring value);
std::optional<std::wstring> registryValue(std::wstring_view key, std::wstring_view name);

}  // namespace host::win
