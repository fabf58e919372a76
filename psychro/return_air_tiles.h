// The tiles of the return-air dialog "retairdlg": what they hold while the module is loaded,
// how they are filled and read, and how the labels follow the choices.
#pragma once

#include <map>
#include <string>

#include "adsdlg.h"
#include "psychro/return_air_checks.h"

namespace vrn2 {

// Every tile's text (inputs and radio buttons), remembered between runs of the command.
using ReturnAirTexts = std::map<std::wstring, std::wstring>;
ReturnAirTexts& rememberedReturnAirTexts();

void fillReturnAirTiles(ads_hdlg dialog, const ReturnAirTexts& texts);
void keepReturnAirTiles(ads_hdlg dialog, ReturnAirTexts& texts);
ReturnAirReadings readReturnAirTiles(ads_hdlg dialog);
// Labels and enabled tiles for the chosen season, system and "given" values.
void showReturnAirChoices(ads_hdlg dialog);
// Binds showReturnAirChoices to every radio button.
void bindReturnAirChoices(ads_hdlg dialog);

}  // namespace vrn2
