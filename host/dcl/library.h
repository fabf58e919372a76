// The names a DCL file can use: the host's base definitions, then the files it includes, then
// its own definitions. A later definition of a name replaces an earlier one, so a file may
// redefine the standard subassemblies.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/dcl/syntax.h"

namespace host::dcl {

class Library {
public:
    Library();  // holds the base definitions
    void add(const Definition& def);
    const Definition* find(const std::wstring& name) const;
    // Definitions added from files (not the base ones), in the order added.
    const std::vector<const Definition*>& fileDefinitions() const { return fromFiles_; }

private:
    std::map<std::wstring, const Definition*> byName_;
    std::vector<const Definition*> fromFiles_;
};

}  // namespace host::dcl
