// Numbers in dialog tiles: reading a typed value and showing a computed one, both in the
// editor's decimal units, as the calculation dialogs do.
#pragma once

#include "adsdlg.h"

namespace vrn2 {

// Reads at most maxChars characters of tile KEY and converts them as a decimal number.
// Answers false when the tile is missing or its text is not a number; value is then untouched.
bool readTileNumber(ads_hdlg dialog, const wchar_t* key, int maxChars, double& value);

// Shows VALUE in tile KEY in decimal units with the given number of decimals.
void showTileNumber(ads_hdlg dialog, const wchar_t* key, double value, int decimals);

}  // namespace vrn2
