// The chart commands' dialog file, and the messages of the chart dialog's input checks.
#pragma once

namespace vrn2 {

inline constexpr wchar_t kChartDialogFile[] = L"dwglib\\crti_dt.dcl";

inline constexpr wchar_t kMsgChartPressureText[] = L"输入大气压值.";
inline constexpr wchar_t kMsgChartPressureRange[] = L"大气压值在50-200kPa之间.";
inline constexpr wchar_t kMsgChartTempMinText[] = L"输入最低干球温度.";
inline constexpr wchar_t kMsgChartTempMaxText[] = L"输入最高干球温度.";
inline constexpr wchar_t kMsgChartTempRange[] = L"干球温度在-40~80℃之间,且下限小于上限.";
inline constexpr wchar_t kMsgChartMoistureMinText[] = L"输入最小含湿量.";
inline constexpr wchar_t kMsgChartMoistureMaxText[] = L"输入最大含湿量.";
inline constexpr wchar_t kMsgChartMoistureRange[] = L"含湿量在0~100g/kg之间,且下限小于上限.";
inline constexpr wchar_t kMsgChartWidthText[] = L"输入图宽.";
inline constexpr wchar_t kMsgChartHeightText[] = L"输入图高.";
inline constexpr wchar_t kMsgChartSizeRange[] = L"图宽和图高在50-5000之间.";

}  // namespace vrn2
