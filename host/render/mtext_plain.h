// The plain lines of an MTEXT's formatted contents: paragraph breaks split lines, inline
// formatting codes (font, height, colour, ...) and grouping braces are dropped.
#pragma once

#include <string>
#include <vector>

namespace host::render {

std::vector<std::wstring> mtextLines(const std::wstring& formatted);

}  // namespace host::render
