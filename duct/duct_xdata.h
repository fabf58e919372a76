// The duct applications' extended data on a drawing entity, read and written through the
// frame's attach and read operations.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "adsdef.h"

namespace vrn2::duct {

// The numbers an application holds: the reals and integers of its brace group, or, when it
// holds a string, the number that string reads as. Empty when the entity has none.
std::vector<double> readXdataNumbers(const ads_name entity, const wchar_t* application);
std::optional<double> readXdataNumber(const ads_name entity, const wchar_t* application);
std::optional<std::wstring> readXdataText(const ads_name entity, const wchar_t* application);

// Writes TEXT as the application's string; false when the entity refused it.
bool writeXdataText(const ads_name entity, const wchar_t* application, const std::wstring& text);
// Writes VALUE as text "%.7lf", as flows and pressure losses are kept.
bool writeXdataValue(const ads_name entity, const wchar_t* application, double value);

// Removes the application's data from the entity.
bool removeXdata(const ads_name entity, const wchar_t* application);

}  // namespace vrn2::duct
