// The DCL grammar: top-level definitions and @include directives; bodies of attributes,
// references and instances.
#pragma once

#include <optional>
#include <string_view>

#include "host/dcl/syntax.h"

namespace host::dcl {

struct ParseResult {
    ParsedFile file;
    std::optional<SyntaxError> error;  // the first syntax error; the file is then unusable
};

// Parses the text of one file. PATH is recorded in every definition for messages.
ParseResult parseDcl(std::wstring_view text, const std::filesystem::path& path);

// The reserved words allowed as attribute values.
bool isReservedWord(std::wstring_view word);

}  // namespace host::dcl
