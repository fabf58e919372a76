// Slide files (.sld) as the editor writes them, read for image tiles: the vectors of a slide,
// scaled into a rectangle of an image tile.
//
// Format (new-format slides): the 17-byte identifier "AutoCAD Slide" CR LF ^Z NUL, a type byte
// 0x56, a level byte 2, the highest x and y dot (16-bit), the aspect ratio times 10 000 000
// (32-bit, low byte first), the hardware-fill flag (16-bit) and the test number 0x1234 (16-bit,
// in the byte order of the words that follow). Records are 16-bit words: a word below 0x8000
// starts a vector (from x, from y, to x, to y); 0xFBnn an offset vector, its four signed byte
// offsets (nn and three more) taken from the saved point; 0xFC00 the end; 0xFD a solid fill (a
// count, then that many points); 0xFEnn a common-end vector from the saved point to it plus
// the offsets nn and one more byte; 0xFFnn a new colour nn. The saved point is the start of the
// last full or offset vector and the end of the last common-end vector, as netpbm's sldtoppm
// reads them. The slide's origin is its lower-left corner.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace host::dcl {

struct SlideVector {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // slide dots, origin lower left
    short color = 7;
};

struct Slide {
    int highX = 0, highY = 0;
    std::vector<SlideVector> vectors;
};

// Parses the bytes of a slide file; false, with a reason in PROBLEM, when they are not one.
bool parseSlide(const std::string& bytes, Slide& slide, std::wstring& problem);

// The file a slide name stands for: "name" or "name.sld" ("lib(slide)" names of slide
// libraries are not read); "\" separators count as "/".
std::filesystem::path slideFilePath(const std::wstring& name);

// The vectors of SLIDE fitted into the image rectangle (x, y, width, height) with its aspect
// kept, centred, y growing downwards as in image tiles.
std::vector<SlideVector> fitSlide(const Slide& slide, int x, int y, int width, int height);

}  // namespace host::dcl
