#include "host/file_names.h"

#include "host/text.h"

namespace host {

std::filesystem::path pathOf(std::wstring_view name) { return std::filesystem::path(toUtf8(name)); }

std::wstring nameOf(const std::filesystem::path& path) { return fromUtf8(path.native()); }

}  // namespace host
