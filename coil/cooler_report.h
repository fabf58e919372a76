// The coil-check result file "sccal.txt": one block per saved check, appended in the current
// folder; the title heads the file when it is created.
#pragma once

#include <string>

#include "coil/coil_check.h"

namespace vrn2 {

inline constexpr wchar_t kCoolerResultFile[] = L"sccal.txt";
inline constexpr wchar_t kMsgCannotCreateResultFile[] = L"不能创建存放结果的文件.";

// The labels of the check dialog, which the file repeats before each value.
namespace cooler_labels {
inline constexpr wchar_t kModel[] = L"表冷器型号:";
inline constexpr wchar_t kRows[] = L"排数:";
inline constexpr wchar_t kUnits[] = L"台数:";
inline constexpr wchar_t kConnection[] = L"连接方式:";
inline constexpr wchar_t kInlet[] = L"进风状态:";
inline constexpr wchar_t kAirFlow[] = L"风量 G (kg/h):";
inline constexpr wchar_t kWaterInlet[] = L"进水温度 tw1 (℃):";
inline constexpr wchar_t kWaterFlow[] = L"水量 W (kg/h):";
inline constexpr wchar_t kEnthalpy[] = L"出风焓值 (kJ/kg):";
inline constexpr wchar_t kMoisture[] = L"出风含湿量 (g/kg):";
inline constexpr wchar_t kDryBulb[] = L"出风干球温度 (℃):";
inline constexpr wchar_t kWetBulb[] = L"出风湿球温度 (℃):";
inline constexpr wchar_t kDewPoint[] = L"出风露点温度 (℃):";
inline constexpr wchar_t kHumidity[] = L"出风相对湿度 (%):";
inline constexpr wchar_t kWaterOutlet[] = L"出水温度 tw2 (℃):";
inline constexpr wchar_t kLoad[] = L"冷量 Q (kW):";
}  // namespace cooler_labels

// The results as the dialog shows them, in the order of the result tiles "ih_value",
// "d_value", "t_value", "ts_value", "tl_value", "fy_value", "tw2_value", "Q_value".
struct CoolerShown {
    std::wstring ih, d, t, ts, tl, fy, tw2, Q;
};

std::wstring coolerReportTitle();
std::wstring coolerReportBlock(const CoilCheckInput& in, const std::wstring& model,
                               const CoolerShown& shown);

}  // namespace vrn2
