// Resource identifiers of the unit conversion window.
#pragma once

#define IDD_UNITCONV 102
#define IDC_CATEGORY 1001
#define IDC_PAIRS 1002
#define IDC_DIR1 1003
#define IDC_DIR2 1004
#define IDC_PENC1 1005
#define IDC_PENC2 1006
#define IDC_UNIT1 1007
#define IDC_UNIT2 1008
#define IDC_FACTOR 1009

namespace vrn2::units {
// The category names of the window's category list, in category order.
extern const wchar_t* const kCategoryNames[11];
}  // namespace vrn2::units
