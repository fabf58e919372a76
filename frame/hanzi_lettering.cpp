// "t:draw-hz": x, y, scale, colour, a skipped string, the text. Each two-byte character is
// drawn as temporary point vectors from the glyph bitmap; single-byte letters only advance.
#include "frame/hanzi_lettering.h"

#include <cmath>
#include <cstdio>
#include <cstring>

#include "acedads.h"
#include "acutads.h"
#include "adsdlg.h"
#include "frame/args.h"
#include "frame/file_handle.h"
#include "frame/frame_handlers.h"
#include "frame/paths.h"
#include "frame/report.h"
#include "windows.h"

namespace vrn2 {
namespace {

constexpr int kLetterGap = 0;
constexpr wchar_t kMsgBadArguments[] = L"\nt:draw-hz: x, y, scale, colour, a string and the text are expected\n";
// A glyph is 16 pixels wide on a screen of 16-bit coordinates: a larger scale draws nothing
// that fits, and 1e308 would overflow the rounding.
constexpr double kMaxScale = 32767.0 / 16.0;
constexpr wchar_t kMsgBadScale[] = L"\nt:draw-hz: the scale must be a number from -2047 to 2047\n";

long roundHalfAway(double v) { return std::lround(v); }

// Reads the 32 bytes of one glyph; a glyph that cannot be read draws nothing.
void readGlyph(int zone, int position, unsigned char glyph[32]) {
    std::memset(glyph, 0, 32);
    FileHandle font(suitePath(L"system\\cclib").c_str(), L"rb");
    if (!font) return;
    long offset = glyphOffset(zone, position);
    if (offset >= 0 && std::fseek(font.get(), offset, SEEK_SET) == 0) {
        if (std::fread(glyph, 1, 32, font.get()) != 32) std::memset(glyph, 0, 32);
    }
}

void drawGlyph(long x, long y, double scale, int colour, int zone, int position) {
    unsigned char glyph[32];
    readGlyph(zone, position, glyph);
    for (int r = 0; r < 16; ++r)
        for (int b = 0; b < 2; ++b)
            for (int k = 0; k < 8; ++k) {
                if (!(glyph[r * 2 + b] & (128 >> k))) continue;
                auto px = static_cast<short>(x + roundHalfAway((k + 8 * b) * scale));
                auto py = static_cast<short>(y + roundHalfAway(r * scale));
                ads_vector_image(px, py, px, py, static_cast<short>(colour));
            }
}

}  // namespace

std::vector<int> letteringUnits(const std::wstring& text) {
    std::vector<int> units;
    for (wchar_t c : text) {
        auto u = static_cast<unsigned long>(c);
        // Bytes, also when they arrive sign-extended from a narrow string, are taken as they are.
        if (u <= 0xFF || (u >= 0xFF80 && u <= 0xFFFF)) {
            int unit = static_cast<int>(static_cast<short>(u & 0xFFFF));
            if (unit < 0) unit += 256;
            units.push_back(unit);
            continue;
        }
        char bytes[8];
        int n = WideCharToMultiByte(CP_ACP, 0, &c, 1, bytes, sizeof bytes, nullptr, nullptr);
        if (n <= 0) {
            units.push_back('?');
            continue;
        }
        for (int i = 0; i < n; ++i) units.push_back(static_cast<unsigned char>(bytes[i]));
    }
    return units;
}

int drawHanzi() {
    ArgWalker args;
    int x = 0, y = 0, colour = 0;
    double scale = 1.0;
    const ACHAR* text = nullptr;
    const ACHAR* skipped = nullptr;
    if (!args.nextShort(x) || !args.nextShort(y) || !args.nextNumber(scale) || !args.nextShort(colour))
        return printFailure(kMsgBadArguments);
    if (!(std::fabs(scale) <= kMaxScale)) return printFailure(kMsgBadScale);  // nan too
    args.nextString(skipped);
    if (!args.nextString(text)) return printFailure(kMsgBadArguments);
    if (!loadInstallRoot()) return RTERROR;
    std::vector<int> units = letteringUnits(text);
    long cx = x;
    for (size_t i = 0; i < units.size(); ++i) {
        int unit = units[i];
        if (unit > 160) {
            int next = i + 1 < units.size() ? units[++i] : 0;
            drawGlyph(cx, y, scale, colour, unit - 160, next - 160);
        }
        cx += (unit >= 160 ? roundHalfAway(scale * 16) : roundHalfAway(scale * 8)) + kLetterGap;
    }
    return RTNORM;
}

}  // namespace vrn2
