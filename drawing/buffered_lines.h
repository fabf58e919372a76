// Reading a text as the C line reader does with a fixed buffer: a line longer than the buffer
// comes back in pieces, each taken as a line of its own. The data files of the drawing tools
// have always been read so, and long lines must split the same way.
#pragma once

#include <cstddef>
#include <string>

namespace vrn2::drawing {

// The next line of TEXT from POSITION (line break included, if it fits), as fgets with a
// buffer of BUFFER_SIZE bytes would return it; POSITION moves past it. Empty at the end.
std::string nextBufferedLine(const std::string& text, std::size_t& position, std::size_t bufferSize);

}  // namespace vrn2::drawing
