// Loading a DCL file: the file and the files it includes are parsed, their definitions put in
// one library, every definition resolved and every dialog audited. A file with any problem is
// refused as a whole.
#pragma once

#include <memory>

#include "host/dcl/library.h"
#include "host/dcl/problem.h"
#include "host/dcl/syntax.h"
#include "host/dcl/tile.h"

namespace host::dcl {

struct LoadedDcl {
    std::filesystem::path path;
    std::vector<std::unique_ptr<ParsedFile>> files;  // the file itself first, then its includes
    Library library;
    std::map<std::wstring, Tile> dialogs;  // by dialog name, resolved and audited
};

struct LoadOutcome {
    std::unique_ptr<LoadedDcl> dcl;  // null when refused
    std::vector<Problem> problems;
};

// NAME as an application gives it: "\" separators, no extension, relative to the current
// folder or the search path.
LoadOutcome loadDcl(std::wstring_view name);
// A file already found.
LoadOutcome loadDclFile(const std::filesystem::path& path);

}  // namespace host::dcl
