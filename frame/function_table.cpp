#include "frame/function_table.h"

#include "coil/coil_handlers.h"
#include "drawing/drawing_handlers.h"
#include "duct/duct_handlers.h"
#include "frame/frame_handlers.h"
#include "frame/not_available.h"
#include "psychro/psychro_handlers.h"
#include "units/units_handlers.h"

namespace vrn2 {

const FunctionEntry kFunctionTable[kFunctionCount + 1] = {
    {L"", nullptr},
    {L"_getdir", notAvailable<1>},  // 1
    {L"_getfile", notAvailable<2>},  // 2
    {L"_wjlb", notAvailable<3>},  // 3
    {L"_act_dir", notAvailable<4>},  // 4
    {L"_act_file", notAvailable<5>},  // 5
    {L"_mw_free", notAvailable<6>},  // 6
    {L"_hf_dir", notAvailable<7>},  // 7
    {L"lcsj", notAvailable<8>},  // 8
    {L"C:zfqpbj", notAvailable<9>},  // 9
    {L"C:zfqpsr", notAvailable<10>},  // 10
    {L"ads_kl", notAvailable<11>},  // 11
    {L"c:gscal", supplyAirCalculation},  // 12
    {L"c:gsdelres", deleteSupplyAirResults},  // 13
    {L"c:gsv_res", viewSupplyAirResults},  // 14
    {L"break_p", breakAlongSpan},  // 15
    {L"t:hx_hlgzc", notAvailable<16>},  // 16
    {L"t:hx_vlgzc", notAvailable<17>},  // 17
    {L"c:ci_dt", statePoint},  // 18
    {L"c:crti_dt", drawIdChart},  // 19
    {L"c:i_dhlp", idChartHelp},  // 20
    {L"c:crti_dtbl", drawStatePointTable},  // 21
    {L"c:vi_dtbl", viewStatePointTable},  // 22
    {L"c:v_res", viewStatePointResults},  // 23
    {L"c:constp", airProcess},  // 24
    {L"c:airmix", airMix},  // 25
    {L"c:retair", returnAirSystem},  // 26
    {L"c:q_res", processResults},  // 27
    {L"_kzsj1", attachXdataFunction},  // 28
    {L"_getnalt", notAvailable<29>},  // 29
    {L"_kzsj2", readXdataFunction},  // 30
    {L"_dxwj", notAvailable<31>},  // 31
    {L"_ssst_entlst", notAvailable<32>},  // 32
    {L"_get_ipt", notAvailable<33>},  // 33
    {L"_get_ipt_ln_arc", notAvailable<34>},  // 34
    {L"_get_ipt_arc_arc", notAvailable<35>},  // 35
    {L"_Xgetsyspath", getSysPath},  // 36
    {L"t:draw-hz", drawHanzi},  // 37
    {L"gdsx", tracePipeRun},  // 38
    {L"pzjc", collisionsAndBreaks},  // 39
    {L"c:sccal", coolerCheck},  // 40
    {L"c:scinfo", coolerDatabaseEditor},  // 41
    {L"c:schlp", coolerHelp},  // 42
    {L"c:scv_res", viewCoolerResults},  // 43
    {L"c:scdelres", deleteCoolerResults},  // 44
    {L"c:zljs", ductHydraulicCalc},  // 45
    {L"c:jzdy", notAvailable<46>},  // 46
    {L"c:sssj", traceDuctNetwork},  // 47
    {L"c:bjzfd", notAvailable<48>},  // 48
    {L"c:fdcc", notAvailable<49>},  // 49
    {L"c:bjfd", notAvailable<50>},  // 50
    {L"c:xgfs", notAvailable<51>},  // 51
    {L"c:kvres", notAvailable<52>},  // 52
    {L"work2", xdataByCode},  // 53
    {L"c:fzzbdy", editGrid},  // 54
    {L"c:fzzbsc", drawGrid},  // 55
    {L"XGetVrA", getVrnResultA},  // 56
    {L"XGetVrB", getVrnResultB},  // 57
    {L"_JkDlg", notAvailable<58>},  // 58
    {L"_SetDlgFont", setDialogFont},  // 59
    {L"_FindMC", notAvailable<60>},  // 60
    {L"_Xscjx", viewCorners},  // 61
    {L"c:UnitConv", unitConversion},  // 62
};

}  // namespace vrn2
