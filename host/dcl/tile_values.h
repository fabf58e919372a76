// What a tile's value is and how it changes: toggles and radio buttons hold "0" or "1", a
// radio cluster the key of its selected button, lists the indices of their selected items, a
// slider an integer within its range, text and edit boxes their text.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "host/dcl/dialog.h"

namespace host::dcl {

// Values from the declared `value`, `label` and `list` attributes, when the dialog is made.
void applyInitialValues(Dialog& dialog);

// A value given by the program (ads_set_tile), made valid for the tile.
void setValue(Dialog& dialog, int index, std::wstring_view value);

// Turns the radio button on and the other buttons of its cluster off.
void selectRadio(Dialog& dialog, int button);

// "0 3 5" as indices; nullopt when a part is not a non-negative integer.
std::optional<std::vector<int>> parseIndices(std::wstring_view text);
// The selection of a list tile kept within its items (after the items change).
void fitListValue(RuntimeTile& tile);

// The longest text the user can type into an edit box.
size_t editLimit(const RuntimeTile& tile);

// A declared integer attribute, FALLBACK when missing or not a number.
long intAttribute(const Tile& tile, std::wstring_view name, long fallback);
// A declared numeric attribute (integer or real), FALLBACK when missing.
double realAttribute(const Tile& tile, std::wstring_view name, double fallback);

}  // namespace host::dcl
