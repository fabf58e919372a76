// The path of an entity made of straight and arc segments, read from its entity list: a
// line, an arc, a circle (two half circles), a light-weight or an old-style 2D polyline (its
// vertices read after it; meshes have none). Points are in the entity's own coordinates.
#pragma once

#include <string>
#include <vector>

#include "host/commands/break_geometry.h"
#include "host/commands/command_support.h"

namespace host::cmd {

bool pathOf(const Name& name, const std::wstring& type, const resbuf* list, Path& path);

// The VERTEX entities that follow an old-style polyline.
std::vector<Name> polylineVertices(const Name& head);

}  // namespace host::cmd
