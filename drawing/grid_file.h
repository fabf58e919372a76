// Reading "datlib\t-fzzb.dat" under the installation root for the grid commands.
#pragma once

#include <string>

#include "drawing/grid_parameters.h"

namespace vrn2::drawing {

// The parameters in the file, limits applied. False, after "Failaure in opening file" on the
// command line (or the alert of a missing root), when it cannot be read.
bool readGridFile(GridParameters& parameters);

// The file's texts are plain numbers: wide text to bytes, anything beyond ASCII as "?".
std::string asciiText(const std::wstring& text);

}  // namespace vrn2::drawing
