// A block definition as the commands that insert and explode blocks read it: its name as
// the table spells it, its base point and the entity lists of its entities in order (the
// vertices, attributes and SEQEND of complex entities included).
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "host/commands/command_support.h"

namespace host::cmd {

struct BlockDefinition {
    std::wstring name;
    double base[3] = {0, 0, 0};
    std::vector<RbPtr> entities;
};

// False when the drawing has no block of that name (layouts are no blocks here).
bool readBlock(const std::wstring& name, BlockDefinition& out);

// Whether a group code is one of the codes.
bool isAnyOf(int code, std::initializer_list<int> codes);

// The type (group 0) of an entity list; empty for none.
std::wstring typeOf(const resbuf* list);

}  // namespace host::cmd
