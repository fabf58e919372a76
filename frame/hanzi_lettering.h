// Lettering of Chinese text on the graphics screen from the 16 by 16 bitmap font file.
#pragma once

#include <string>
#include <vector>

namespace vrn2 {

// Code units of the text as the lettering walks them: characters of one byte stay as they
// are; other characters become their two GB2312 bytes.
std::vector<int> letteringUnits(const std::wstring& text);

// Offset of the glyph of zone q and position p (both from 1) in the font file.
inline long glyphOffset(int zone, int position) { return ((zone - 1L) * 94 + position - 1) * 32; }

}  // namespace vrn2
