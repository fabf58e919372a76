// Temporary graphics drawn on the graphics screen: kept so that the console and tests can
// see them, and cleared by a redraw of the whole screen.
#pragma once

#include <vector>

namespace host {

struct ScreenVector {
    int x1, y1, x2, y2, color;
};

const std::vector<ScreenVector>& screenVectors();
void clearScreenVectors();

}  // namespace host
