// Air-handling processes on the i-d chart: from a start state and the air mass flow, the end
// state of a heating, cooling, humidifying or mixing process, and what the apparatus
// exchanges with the air. Pure numeric code over the humid-air library's states; the dialog,
// the result file and the chart live elsewhere.
#pragma once

#include <string>

#include "psychro/airstate/airstate.h"

namespace vrn2 {

enum class ProcessKind {
    heating,        // 等湿加热: constant d to a higher end temperature
    cooling,        // 等湿冷却: constant d to a lower end temperature, not below the dew point
    dehumidifying,  // 冷却减湿: to a given leaving state (t with φ or d)
    dewPoint,       // 冷却减湿到机器露点: towards the apparatus dew point, ending at a given φ
    adiabatic,      // 等焓加湿 (spray washer): constant i to an end φ or d
    steam,          // 等温加湿 (steam): constant t to an end φ or d
    ratio,          // along a heat-moisture ratio ε to an end t or d
    mixing,         // adiabatic mixing with a second stream
};
inline constexpr int kProcessKindCount = 8;

// Which quantity fixes the end state besides what the kind keeps constant.
enum class EndGiven { humidity, moisture, temperature };

struct ProcessInput {
    ProcessKind kind = ProcessKind::heating;
    AirState start;          // complete, at its pressure B
    double G = 0.0;          // air mass flow through the apparatus, kg/h
    double endT = 0.0;       // °C: heating, cooling, dehumidifying; ratio when given by temperature
    EndGiven given = EndGiven::humidity;
    double endFy = 0.0;      // %: dehumidifying, adiabatic, steam; dewPoint (the end's φ)
    double endD = 0.0;       // g/kg: dehumidifying, adiabatic, steam, ratio when given by moisture
    double dewPointT = 0.0;  // °C: the apparatus dew point (dewPoint)
    double epsilon = 0.0;    // kJ/kg: the heat-moisture ratio (ratio)
    AirState second;         // complete: the second stream (mixing)
    double G2 = 0.0;         // kg/h: the second stream's flow (mixing)
};

// The input whose value makes the process impossible, so that a dialog can point at it.
enum class ProcessFault { none, start, endT, endFy, endD, dewPointT, epsilon, second, flow };

struct ProcessResult {
    AirState start, end;
    double G = 0.0;      // kg/h leaving the process (mixing: both streams)
    double Q = 0.0;      // kW given to the air: + heating, − cooling
    double W = 0.0;      // kg/h of moisture given to the air: + humidifying, − dehumidifying
    double epsilon = 0.0;       // kJ/kg, when !epsilonInfinite
    bool epsilonInfinite = false;  // Δd = 0: the ratio is shown as ∞
    double contactFactor = 0.0;    // dewPoint: the share of the way from the start to the dew point
    AirState dewPoint;             // dewPoint: the apparatus dew point on the saturation curve
    ProcessFault fault = ProcessFault::none;
    std::wstring message;  // why the process cannot be made; empty when it can
    bool ok() const { return fault == ProcessFault::none; }
};

// Computes the process. A process that cannot happen (an end beyond saturation, a cooling that
// ends warmer than it starts, negative moisture ...) answers a result whose fault names the
// input at fault and whose message says why, in the designer's words.
ProcessResult computeProcess(const ProcessInput& in);

// The heat-moisture ratio of the change from A to B, kJ/kg; false (∞) when d does not change.
bool heatMoistureRatio(const AirState& a, const AirState& b, double& epsilon);

// The state of air at T °C and FY % under B kPa, as the library solves it.
AirState airStateAt(double B, double t, double fy);

// The designer's name of the kind, e.g. L"等湿加热".
const wchar_t* processKindName(ProcessKind kind);

}  // namespace vrn2
