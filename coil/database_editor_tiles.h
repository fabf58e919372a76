// The tiles of the device database editor: a record shown in them and read back from them.
#pragma once

#include <string>
#include <vector>

#include "adsdlg.h"
#include "coil/cooler_model.h"
#include "coil/record_inputs.h"

namespace vrn2 {

// Shows the coefficients of RECORD in their tiles and answers its contact-coefficient list
// entries.
std::vector<std::wstring> showRecord(ads_hdlg dialog, const CoolerModel& record);

// Replaces the list tile KEY by ENTRIES.
void showList(ads_hdlg dialog, const wchar_t* key, const std::vector<std::wstring>& entries);

// The texts of the record tiles, with the list ENTRIES the editor keeps.
RecordTexts readRecordTexts(ads_hdlg dialog, const std::vector<std::wstring>& entries);

// Draws the slide root + "dwglib/formula" into the image tile "formula".
void showFormula(ads_hdlg dialog);

}  // namespace vrn2
