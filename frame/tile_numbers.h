// Values in dialog tiles: reading typed text, reading a typed number and showing a computed
// one, numbers in the editor's decimal units, as the calculation dialogs do.
#pragma once

#include <string>

#include "adsdlg.h"

namespace vrn2 {

// Reads at most maxChars characters of tile KEY into TEXT; false (TEXT untouched) when the
// dialog has no such tile.
bool readTileText(ads_hdlg dialog, const wchar_t* key, int maxChars, std::wstring& text);

// Reads at most maxChars characters of tile KEY and converts them as a decimal number.
// Answers false when the tile is missing or its text is not a number; value is then untouched.
bool readTileNumber(ads_hdlg dialog, const wchar_t* key, int maxChars, double& value);

// Shows VALUE in tile KEY in decimal units with the given number of decimals.
void showTileNumber(ads_hdlg dialog, const wchar_t* key, double value, int decimals);

}  // namespace vrn2
