// The five result-file commands: which file, which dialog file and which explanation each uses.
#include "psychro/psychro_handlers.h"
#include "psychro/result_files.h"
#include "psychro/supply_air_report.h"

namespace vrn2 {
namespace {

// The dialog file names are used as they stand, separators included.
constexpr ResultFileCommand kStatePointResults{L"wair002.txt", L"dwglib\\ci_dt.dcl", L"introduce2",
                                               L"\n不能显示VIEW_TBLDLG对话框."};
constexpr ResultFileCommand kSupplyAirResults{kSupplyAirResultFile, L"dwglib/gscal.dcl", L"introduce3",
                                              L"\n不能显示V_RESDLG对话框."};
constexpr ResultFileCommand kCoolerResults{L"sccal.txt", L"dwglib/sccal.dcl", L"introduce3",
                                           L"\n不能显示VIEW_TBLDLG对话框."};

}  // namespace

int viewStatePointResults() { return viewResultFile(kStatePointResults); }
int viewSupplyAirResults() { return viewResultFile(kSupplyAirResults); }
int viewCoolerResults() { return viewResultFile(kCoolerResults); }
int deleteSupplyAirResults() { return deleteResultFile(kSupplyAirResults); }
int deleteCoolerResults() { return deleteResultFile(kCoolerResults); }

}  // namespace vrn2
