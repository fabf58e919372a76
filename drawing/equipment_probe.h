// Finding the pipe diameter at an equipment connection: the break-length file "_brklen.dat",
// the probe point beside the insert and the crossing windows searched for a pipe there.
#pragma once

#include <optional>
#include <string>

#include "drawing/plan_geometry.h"

namespace vrn2::drawing {

inline constexpr char kBreakLengthFile[] = "_brklen.dat";
// Lines of the break-length file are read into a buffer of this size, terminator included.
inline constexpr std::size_t kBreakLengthLineBuffer = 15;
inline constexpr double kDefaultBreakFactor = 4.0;
// Inserts drawn smaller than this x scale are searched for a fitting instead of a polyline.
inline constexpr double kSmallEquipmentScale = 0.05;
inline constexpr double kProbeQuarterTurn = 0.78539815;
inline constexpr double kProbeFiveQuarterTurns = 3.92699075;
inline constexpr double kProbeHalfTurn = 3.1415926;
inline constexpr double kPolylineWindowReach = 1.0;
inline constexpr double kFittingWindowReach = 0.1;
inline constexpr wchar_t kDefaultEquipmentDiameter[] = L"20.0";

// The equipment type key of a block: the name less its last two characters, and less a "-"
// then at its end (both "F1234-A" and "F1234-B2" give "F1234").
std::string breakLengthKey(const std::string& blockName);

// The number of the first line of the file's TEXT whose key equals KEY, reading the lines as a
// 15-byte line reader and "%s%f" would.
std::optional<float> findBreakLength(const std::string& text, const std::string& key);

// The probe factor after a number was scanned: the number lands, as single precision, in the
// low half of the double holding 4.0, so the factor stays 4.0 within a few millionths.
double breakLengthFactor(std::optional<float> scanned);

PlanPoint polarPoint(PlanPoint p, double angle, double distance);

struct CrossingWindow {
    PlanPoint first;
    PlanPoint second;
};

// The window beside an insert at ROTATION in which a polyline pipe is looked for; OPPOSITE
// looks on the other side.
CrossingWindow polylineProbeWindow(PlanPoint insertion, double rotation, double xScale, double factor,
                                   bool opposite);
// The small window around a small insert's insertion point in which a fitting is looked for.
CrossingWindow fittingProbeWindow(PlanPoint insertion);

}  // namespace vrn2::drawing
