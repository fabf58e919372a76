// A picture of the i-d chart for the calculation report: the chart's lines and labels as the
// chart construction gives them, with marked states, painted with cairo into a PNG in memory.
#pragma once

#include <string>
#include <vector>

#include "psychro/docx/word_document.h"
#include "psychro/id_chart_drawing.h"

namespace vrn2 {

struct ChartPictureMark {
    std::wstring label;  // written beside the mark
    double i = 0.0;      // kJ/kg dry air
    double d = 0.0;      // g/kg dry air
};

// The largest picture: the chart is scaled to fit this box with its aspect kept.
inline constexpr int kChartPictureMaxWidth = 1600;
inline constexpr int kChartPictureMaxHeight = 2000;

// Paints CHART on white with MARKS as red dots and their labels; a mark outside the chart's
// frame is left out. Answers false (PICTURE empty) when cairo cannot paint or encode.
bool paintChartPicture(const ChartDrawing& chart, const std::vector<ChartPictureMark>& marks, WordPicture& picture);

}  // namespace vrn2
