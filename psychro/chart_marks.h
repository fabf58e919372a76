// Marks on the i-d chart drawn with the host's commands.
#pragma once

#include "adsdef.h"

namespace vrn2 {

// The colour of marks on the chart: red, so that they stand out from the chart's lines.
inline constexpr wchar_t kChartMarkColour[] = L"1";

// Marks PT with a filled donut of DIAMETER drawing units in the mark colour, then sets the
// colour of new objects back. Answers the status of the DONUT command.
int markChartPoint(const ads_point pt, double diameter);

// Draws a line from A to B in the mark colour, then sets the colour back.
int drawChartLine(const ads_point a, const ads_point b);

}  // namespace vrn2
