// The drawing editor's indexed colours (ACI) as red, green and blue.
#pragma once

namespace host::render {

struct Rgb {
    double r = 0.0, g = 0.0, b = 0.0;  // 0 to 1
};

// The colour of index 1 to 255; 7 (white on the editor's dark screen) is black here, since
// pictures have a white background. Other indices give black.
Rgb aciColour(int index);

}  // namespace host::render
