#include "psychro/supply_air_report.h"

#include "frame/result_file.h"
#include "frame/text_format.h"

namespace vrn2 {
namespace {

constexpr wchar_t kDryBulb[] = L"干球温度 ℃   :   ";
constexpr wchar_t kHumidity[] = L"相对湿度(%)   :   ";
constexpr wchar_t kDeltaT[] = L"送风温差 ℃   :   ";
constexpr wchar_t kMoistureLoad[] = L"湿负荷(kg/h)  :   ";
constexpr wchar_t kSupplyState[] = L"送风状态:         ";

void putLoadRow(std::wstring& out, const wchar_t* label, double value) {
    appendFormat(out, L"\n         %ls     %.3lf", label, value);
}

void putStateRow(std::wstring& out, const wchar_t* label, const std::wstring& text) {
    appendFormat(out, L"\n             %ls %ls", label, text.c_str());
}

}  // namespace

std::wstring supplyAirReportTitle() { return L"\n         送风量与送风状态计算结果\n"; }

std::wstring supplyAirReportBlock(const SupplyAirInput& in, const SupplyAirShown& shown) {
    std::wstring out;
    appendFormat(out, L"\n__________________________________________\n\n(B=%.3lfkPa)", in.B);
    out += L"\n 输入参数:  ";
    appendFormat(out, L"\n         %ls ", L"室内设计状态:     ");
    appendFormat(out, L"\n             %ls %.2lf", kDryBulb, in.tn);
    appendFormat(out, L"\n             %ls %.2lf", kHumidity, in.rhn);
    if (in.totalLoad) {
        putLoadRow(out, L"全热冷负荷(kW):   ", in.load);
        putLoadRow(out, kMoistureLoad, in.w);
    } else {
        putLoadRow(out, L"显热冷负荷(kW):   ", in.load);
        if (in.moistureGiven) putLoadRow(out, kMoistureLoad, in.w);
    }
    putLoadRow(out, kDeltaT, in.dt);

    out += L"\n 计算结果:";
    appendFormat(out, L"\n         %ls     %ls", L"送风量(kg/h)  :   ", shown.G.c_str());
    appendFormat(out, L"\n         %ls", kSupplyState);
    putStateRow(out, kDryBulb, shown.t);
    if (shown.complete) {
        // The moisture label says kg/kg although the value is in g/kg; it is kept as designers
        // know it from earlier files.
        putStateRow(out, L"含湿量(kg/kg) :   ", shown.d);
        putStateRow(out, kHumidity, shown.fy);
        putStateRow(out, L"焓值(kJ/kg)   :   ", shown.i);
        putStateRow(out, L"湿球温度 ℃   :   ", shown.ts);
    }
    return out;
}

bool appendSupplyAirReport(const wchar_t* fileName, const SupplyAirInput& in, const SupplyAirShown& shown) {
    return appendResultBlock(fileName, supplyAirReportTitle(), supplyAirReportBlock(in, shown));
}

}  // namespace vrn2
