// The tiles every DCL file can use without including anything: the built-in primitives and
// the standard prototypes and subassemblies (exit buttons, error tile, spacers, ...).
#pragma once

#include <optional>
#include <vector>

#include "host/dcl/syntax.h"
#include "host/dcl/tile.h"

namespace host::dcl {

// All of them, primitives first. Their `file` is empty.
const std::vector<Definition>& baseDefinitions();

// The kind a host primitive stands for; nullopt for any other definition (a user's file may
// define a tile named "text", which is then an ordinary prototype).
std::optional<TileKind> primitiveKind(const Definition& def);

}  // namespace host::dcl
