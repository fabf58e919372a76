#include "drawing/grid_parameters.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "drawing/buffered_lines.h"

namespace vrn2::drawing {
namespace {

constexpr int kSpacingFields[] = {2, 6};
constexpr double kSmallestSpacing = 0.5;
// Lengths travel on the slider in tenths, within the slider's 16-bit range.
constexpr double kLengthSliderFactor = 10.0;
constexpr int kSliderLow = -32768;
constexpr int kSliderHigh = 32767;

}  // namespace

bool isGridLength(int field) { return field != 3 && field != 7; }

double limitGridValue(int field, double value) {
    if (std::find(std::begin(kSpacingFields), std::end(kSpacingFields), field) != std::end(kSpacingFields))
        return value < kSmallestSpacing ? kSmallestSpacing : value;
    if (field == 3) return std::clamp(value, -90.0, 90.0);
    if (field == 7) return std::clamp(value, 0.0, 180.0);
    return value;
}

GridParameters parseGridFile(const std::string& text) {
    GridParameters parameters;
    std::size_t position = 0;
    for (int field = 0; field < kGridFieldCount; ++field)
        parameters.values[field] = limitGridValue(field, std::atof(nextBufferedLine(text, position, kGridLineBuffer).c_str()));
    parameters.centreLines = static_cast<short>(std::atoi(nextBufferedLine(text, position, kGridLineBuffer).c_str()));
    parameters.labels = static_cast<short>(std::atoi(nextBufferedLine(text, position, kGridLineBuffer).c_str()));
    return parameters;
}

std::string gridFileText(const std::array<std::string, kGridFieldCount>& editTexts, int centreLines, int labels) {
    std::string text;
    for (const std::string& edit : editTexts) text += edit + "\n";
    char switches[32];
    std::snprintf(switches, sizeof switches, "%2d\n%2d", centreLines, labels);
    return text + switches;
}

std::string gridEditText(double value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.2f", value);
    return buffer;
}

int gridSliderMinimum(int field) {
    if (field == 3) return -90;
    if (field == 7) return 0;
    if (field == 2 || field == 6) return static_cast<int>(kSmallestSpacing * kLengthSliderFactor);
    return kSliderLow;
}

int gridSliderMaximum(int field) {
    if (field == 3) return 90;
    if (field == 7) return 180;
    return kSliderHigh;
}

int gridSliderValue(int field, double value) {
    const double scaled = isGridLength(field) ? value * kLengthSliderFactor : value;
    if (!std::isfinite(scaled)) return gridSliderMinimum(field);
    const double low = gridSliderMinimum(field), high = gridSliderMaximum(field);
    return static_cast<int>(std::lround(std::clamp(scaled, low, high)));
}

double gridValueFromSlider(int field, int sliderValue) {
    return isGridLength(field) ? sliderValue / kLengthSliderFactor : static_cast<double>(sliderValue);
}

}  // namespace vrn2::drawing
