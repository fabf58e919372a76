#include "frame/tile_numbers.h"

#include <vector>

#include "acdbads.h"

namespace vrn2 {

namespace {
constexpr int kDecimalUnits = 2;
}

bool readTileNumber(ads_hdlg dialog, const wchar_t* key, int maxChars, double& value) {
    std::vector<wchar_t> text(static_cast<size_t>(maxChars) + 1, L'\0');
    if (ads_get_tile(dialog, key, text.data(), maxChars + 1) != RTNORM) return false;
    double parsed = 0.0;
    if (acdbDisToF(text.data(), kDecimalUnits, &parsed) != RTNORM) return false;
    value = parsed;
    return true;
}

void showTileNumber(ads_hdlg dialog, const wchar_t* key, double value, int decimals) {
    // Decimal units spell out every digit: the largest double needs over 300 characters.
    wchar_t text[512] = {};
    if (acdbRToS(value, kDecimalUnits, decimals, text) != RTNORM) text[0] = L'\0';
    ads_set_tile(dialog, key, text);
}

}  // namespace vrn2
