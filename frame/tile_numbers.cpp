#include "frame/tile_numbers.h"

#include <vector>

#include "acdbads.h"

namespace vrn2 {

namespace {
constexpr int kDecimalUnits = 2;
}

bool readTileText(ads_hdlg dialog, const wchar_t* key, int maxChars, std::wstring& text) {
    std::vector<wchar_t> buffer(static_cast<size_t>(maxChars) + 1, L'\0');
    if (ads_get_tile(dialog, key, buffer.data(), maxChars + 1) != RTNORM) return false;
    text = buffer.data();
    return true;
}

bool readTileNumber(ads_hdlg dialog, const wchar_t* key, int maxChars, double& value) {
    std::wstring text;
    if (!readTileText(dialog, key, maxChars, text)) return false;
    double parsed = 0.0;
    if (acdbDisToF(text.c_str(), kDecimalUnits, &parsed) != RTNORM) return false;
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
