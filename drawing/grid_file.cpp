#include "drawing/grid_file.h"

#include <vector>

#include "frame/data_file.h"

namespace vrn2::drawing {

std::string asciiText(const std::wstring& text) {
    std::string out;
    for (wchar_t c : text) out += c >= 0 && c < 128 ? static_cast<char>(c) : '?';
    return out;
}

bool readGridFile(GridParameters& parameters) {
    std::vector<std::wstring> lines;
    if (!readDataLines(kGridFileName, Channel::Print, lines)) return false;
    std::string text;
    for (const std::wstring& line : lines) text += asciiText(line) + "\n";
    parameters = parseGridFile(text);
    return true;
}

}  // namespace vrn2::drawing
