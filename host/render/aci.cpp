#include "host/render/aci.h"

#include <cmath>

namespace host::render {
namespace {

Rgb bytes(int r, int g, int b) { return {r / 255.0, g / 255.0, b / 255.0}; }

// Indices 10 to 249 run round the hue circle in steps of 15 degrees, ten shades each: even
// shades full colour, odd ones the same colour half washed out, at brightness 1, 0.8, 0.6,
// 0.5 and 0.3. Components are truncated to whole bytes, as the editor's table has them.
Rgb wheelColour(int index) {
    static const double kBrightness[] = {1.0, 0.8, 0.6, 0.5, 0.3};
    double hue = (index / 10 - 1) * 15.0;
    int shade = index % 10;
    double top = 255.0 * kBrightness[shade / 2];
    double bottom = (shade % 2) ? top * 0.5 : 0.0;
    double sector = hue / 60.0;
    int s = static_cast<int>(sector);
    double f = sector - s;
    double rising = bottom + (top - bottom) * f, falling = top - (top - bottom) * f;
    double r = 0, g = 0, b = 0;
    switch (s) {
        case 0: r = top, g = rising, b = bottom; break;
        case 1: r = falling, g = top, b = bottom; break;
        case 2: r = bottom, g = top, b = rising; break;
        case 3: r = bottom, g = falling, b = top; break;
        case 4: r = rising, g = bottom, b = top; break;
        default: r = top, g = bottom, b = falling; break;
    }
    return bytes(static_cast<int>(r), static_cast<int>(g), static_cast<int>(b));
}

}  // namespace

Rgb aciColour(int index) {
    switch (index) {
        case 1: return bytes(255, 0, 0);
        case 2: return bytes(255, 255, 0);
        case 3: return bytes(0, 255, 0);
        case 4: return bytes(0, 255, 255);
        case 5: return bytes(0, 0, 255);
        case 6: return bytes(255, 0, 255);
        case 8: return bytes(128, 128, 128);
        case 9: return bytes(192, 192, 192);
        case 250: return bytes(51, 51, 51);
        case 251: return bytes(91, 91, 91);
        case 252: return bytes(132, 132, 132);
        case 253: return bytes(173, 173, 173);
        case 254: return bytes(214, 214, 214);
        case 255: return bytes(255, 255, 255);
        default: break;
    }
    if (index >= 10 && index <= 249) return wheelColour(index);
    return bytes(0, 0, 0);
}

}  // namespace host::render
