// Temporary graphics drawn on the graphics screen: kept so that the console and tests can
// see them, and cleared by a redraw of the whole screen.
#pragma once

#include <functional>
#include <vector>

namespace host {

struct ScreenVector {
    int x1, y1, x2, y2, color;
};

const std::vector<ScreenVector>& screenVectors();
void clearScreenVectors();

// The dialog runtime routes image drawing into an open image tile through this hook; with no
// hook, or when it answers false, ads_vector_image draws on the graphics screen.
using ImageVectorHook = std::function<bool(short x1, short y1, short x2, short y2, short color)>;
void setImageVectorHook(ImageVectorHook hook);

}  // namespace host
