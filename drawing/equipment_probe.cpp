#include "drawing/equipment_probe.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "drawing/buffered_lines.h"

namespace vrn2::drawing {

std::string breakLengthKey(const std::string& blockName) {
    std::string key = blockName.size() >= 2 ? blockName.substr(0, blockName.size() - 2) : std::string();
    if (!key.empty() && key.back() == '-') key.pop_back();
    return key;
}

std::optional<float> findBreakLength(const std::string& text, const std::string& key) {
    std::size_t position = 0;
    while (position < text.size()) {
        const std::string line = nextBufferedLine(text, position, kBreakLengthLineBuffer);
        char word[kBreakLengthLineBuffer] = {};
        float number = 0.0f;
        const int fields = std::sscanf(line.c_str(), "%14s%f", word, &number);
        if (fields >= 1 && key == word) return fields == 2 ? std::optional<float>(number) : std::optional<float>(0.0f);
    }
    return std::nullopt;
}

double breakLengthFactor(std::optional<float> scanned) {
    double factor = kDefaultBreakFactor;
    if (!scanned) return factor;
    // The low 32 bits of a little-endian double are its least significant mantissa bits.
    std::uint64_t bits;
    std::memcpy(&bits, &factor, sizeof bits);
    std::uint32_t low;
    std::memcpy(&low, &*scanned, sizeof low);
    bits = (bits & 0xFFFFFFFF00000000ull) | low;
    std::memcpy(&factor, &bits, sizeof factor);
    return factor;
}

PlanPoint polarPoint(PlanPoint p, double angle, double distance) {
    return {p.x + distance * std::cos(angle), p.y + distance * std::sin(angle)};
}

CrossingWindow polylineProbeWindow(PlanPoint insertion, double rotation, double xScale, double factor,
                                   bool opposite) {
    const double direction = opposite ? rotation + kProbeHalfTurn : rotation;
    const PlanPoint probe = polarPoint(insertion, direction, factor * xScale * 0.5);
    return {polarPoint(probe, kProbeQuarterTurn, kPolylineWindowReach),
            polarPoint(probe, kProbeFiveQuarterTurns, kPolylineWindowReach)};
}

CrossingWindow fittingProbeWindow(PlanPoint insertion) {
    return {polarPoint(insertion, kProbeQuarterTurn, kFittingWindowReach),
            polarPoint(insertion, kProbeFiveQuarterTurns, kFittingWindowReach)};
}

}  // namespace vrn2::drawing
