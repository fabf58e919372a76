// The result dialog "i_dresdlg" of the state-point file: all quantities of one computed state,
// and "saveres" to append it to the result file. The state-point and mixing commands share it.
#pragma once

#include "psychro/airstate/airstate.h"
#include "psychro/calculation_journal.h"
#include "psychro/state_point_choices.h"

namespace vrn2 {

inline constexpr wchar_t kResultDialogName[] = L"i_dresdlg";
inline constexpr wchar_t kStatePointDialogFile[] = L"dwglib\\ci_dt.dcl";
inline constexpr int kResultDecimals = 3;

struct ShownState {
    AirState state;
    StatePointOutcome outcome = kOutcomeNone;
    int choice = kChoicePickedPoint;  // the heading its block is saved under
    JournalEntry journal;  // recorded for the calculation report when the state is saved
};

// The value tiles in the order of the fields they show.
inline constexpr const wchar_t* kResultValueTiles[] = {L"t_value",  L"pq_value", L"pb_value",
                                                       L"ts_value", L"tl_value", L"d_value",
                                                       L"fy_value", L"v_value",  L"ih_value"};

// Creates "i_dresdlg" from the loaded file DCLID, shows SHOWN and runs it. When the dialog
// cannot be created, reports "Unable displsy the dialog box." and answers false.
bool runStateResultDialog(int dclId, const ShownState& shown);

}  // namespace vrn2
