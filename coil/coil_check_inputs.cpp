#include "coil/coil_check_inputs.h"

#include <cmath>

namespace vrn2 {

bool isCount(const std::optional<double>& value) {
    return value && *value >= 1.0 && *value <= 32767.0 && std::floor(*value) == *value;
}

std::optional<InputFault> firstCoilCheckFault(const CoilCheckReadings& r) {
    if (!r.modelChosen) return InputFault{L"type", L"选择表冷器型号(设备库中没有时用SCINFO增加)."};
    if (!r.B) return InputFault{L"B", L"输入大气压值."};
    if (*r.B < 50.0 || *r.B > 200.0) return InputFault{L"B", L"大气压要求在50-200之间."};
    if (!isCount(r.rows)) return InputFault{L"Nn", kMsgEnterRows};
    if (!isCount(r.units)) return InputFault{L"nu_value", L"输入正确的台数."};
    if (!r.t1) return InputFault{L"t1_value", L"输入进风干球温度值."};
    if (!r.ts1) return InputFault{L"ts1_value", L"输入进风湿球温度值."};
    if (*r.ts1 > *r.t1) return InputFault{L"ts1_value", L"湿球温度不能高于干球温度."};
    if (!r.G || *r.G <= 0.0) return InputFault{L"G_value", L"输入大于零的风量值."};
    if (!r.tw1) return InputFault{L"tw1_value", L"输入进水温度值."};
    // Water at or above the inlet wet bulb cannot dehumidify, and the wet-coil relations of
    // the check do not hold.
    if (*r.tw1 >= *r.ts1) return InputFault{L"tw1_value", L"进水温度要求低于进风湿球温度."};
    if (!r.W || *r.W <= 0.0) return InputFault{L"W_value", L"输入大于零的水量值."};
    return std::nullopt;
}

CoilCheckInput coilCheckInput(const CoilCheckReadings& r) {
    CoilCheckInput in;
    in.B = r.B.value_or(0.0);
    in.rows = static_cast<int>(r.rows.value_or(0.0));
    in.units = static_cast<int>(r.units.value_or(0.0));
    in.t1 = r.t1.value_or(0.0);
    in.ts1 = r.ts1.value_or(0.0);
    in.G = r.G.value_or(0.0);
    in.tw1 = r.tw1.value_or(0.0);
    in.W = r.W.value_or(0.0);
    in.series = r.series;
    return in;
}

}  // namespace vrn2
