// Where the coil commands find their dialogs and their device database, and how the pure code's
// alerts reach the user.
#pragma once

#include "coil/cooler_model.h"

namespace vrn2 {

inline constexpr wchar_t kCoolerDialogFile[] = L"dwglib/sccal.dcl";
inline constexpr wchar_t kCoolerDatabase[] = L"datlib/sc.dat";
inline constexpr wchar_t kCoolerDatabaseTemp[] = L"datlib/@sctemp.acc";
inline constexpr wchar_t kCannotShowDialog[] = L"不能显示对话框.";

// Alerts of the lookup and the contact coefficient as message boxes.
AlertSink alertBox();

}  // namespace vrn2
