// "Select objects:" as the host commands read it from their input.
#pragma once

#include <vector>

#include "host/commands/command_support.h"

namespace host::cmd {

// Reads answers until Enter: entity names, selection sets, picks at a point, and the
// keywords Last, All, Previous, Window and Crossing (these two with two corners). The
// entities come once each, in the order selected. False when nothing was selected.
bool readObjects(CommandInput& in, std::vector<Name>& out);

// One object for commands that take a single one: an entity name, the first of a selection
// set, or a pick at a point (which also gives that point, in world coordinates).
bool readOneObject(CommandInput& in, const wchar_t* promptText, Name& out, double pick[3], bool& picked);

}  // namespace host::cmd
