#include "coil/cooler_report.h"

#include <cwchar>

#include "frame/text_format.h"

namespace vrn2 {

std::wstring coolerReportTitle() { return L"\n         表冷器校核计算结果\n"; }

std::wstring coolerReportBlock(const CoilCheckInput& in, const std::wstring& model,
                               const CoolerShown& shown) {
    namespace label = cooler_labels;
    std::wstring out;
    appendFormat(out, L"\n______________________________________\n\n(B=%.3lfkPa)", in.B);
    out += L"\n 输入参数:  ";
    appendFormat(out, L"\n         %ls %ls", label::kModel, model.c_str());
    appendFormat(out, L"\n         %ls %d", label::kRows, in.rows);
    appendFormat(out, L"\n         %ls %d", label::kUnits, in.units);
    appendFormat(out, in.series ? L"\n         %ls 串联" : L"\n         %ls 并联", label::kConnection);
    appendFormat(out, L"\n         %ls ", label::kInlet);
    appendFormat(out, L"\n           干球温度 ℃:    %.2lf", in.t1);
    appendFormat(out, L"\n           湿球温度 ℃:    %.2lf", in.ts1);
    appendFormat(out, L"\n         %ls %.2lf", label::kAirFlow, in.G);
    appendFormat(out, L"\n         %ls %.2lf", label::kWaterInlet, in.tw1);
    appendFormat(out, L"\n         %ls %.2lf", label::kWaterFlow, in.W);
    out += L"\n 计算结果:";
    const struct {
        const wchar_t* label;
        const std::wstring& text;
    } rows[] = {{label::kEnthalpy, shown.ih}, {label::kMoisture, shown.d},     {label::kDryBulb, shown.t},
                {label::kWetBulb, shown.ts},  {label::kDewPoint, shown.tl},    {label::kHumidity, shown.fy},
                {label::kWaterOutlet, shown.tw2}, {label::kLoad, shown.Q}};
    for (const auto& row : rows) appendFormat(out, L"\n         %ls %ls", row.label, row.text.c_str());
    return out;
}

}  // namespace vrn2
