// The supply-air result file "gscal.txt": one block per saved calculation, appended to the file
// in the current folder, which gets a title line when it is created.
#pragma once

#include <string>

#include "psychro/supply_air.h"

namespace vrn2 {

inline constexpr wchar_t kSupplyAirResultFile[] = L"gscal.txt";

// The results as the result dialog shows them (its tile texts).
struct SupplyAirShown {
    std::wstring G;  // "Ga"
    std::wstring t, d, fy, i, ts;  // "t_value", "d_value", "rh_value", "i_value", "ts_value"
    bool complete = true;  // false: only G and t are known
};

// The title written when the file is created.
std::wstring supplyAirReportTitle();
// One block: the inputs, chosen rows by the toggles, and the results.
std::wstring supplyAirReportBlock(const SupplyAirInput& in, const SupplyAirShown& shown);

// Appends the block to FILENAME (created with the title when missing), written in one piece.
// Answers false, having written nothing, when the file cannot be opened or created.
bool appendSupplyAirReport(const wchar_t* fileName, const SupplyAirInput& in, const SupplyAirShown& shown);

}  // namespace vrn2
