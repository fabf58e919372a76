// Replacing an entity by the entities it is made of, as EXPLODE does (and INSERT of a
// "*name"). Each says on the command line why it cannot, and then changes nothing.
#pragma once

#include "host/commands/command_support.h"

namespace host::cmd {

// A block reference: the entities of its block placed where it shows them, with their own
// layers and colours; attribute definitions come back, the reference's attributes go.
// References whose X and Y scales differ in size are refused, as are arrays of them; a
// mirrored reference (X = -Y) gives the mirror image of its block.
bool explodeReference(const Name& insert);

// A light-weight or old-style 2D or 3D polyline: a LINE for each straight segment and an
// ARC for each arc segment, with the polyline's layer and properties; widths are lost.
bool explodePolyline(const Name& polyline);

}  // namespace host::cmd
