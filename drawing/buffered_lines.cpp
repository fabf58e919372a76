#include "drawing/buffered_lines.h"

namespace vrn2::drawing {

std::string nextBufferedLine(const std::string& text, std::size_t& position, std::size_t bufferSize) {
    const std::size_t room = bufferSize > 0 ? bufferSize - 1 : 0;  // one byte for the terminator
    std::size_t end = position;
    while (end < text.size() && end - position < room) {
        if (text[end++] == '\n') break;
    }
    std::string line = text.substr(position, end - position);
    position = end;
    return line;
}

}  // namespace vrn2::drawing
