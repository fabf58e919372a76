// Construction of the i-d (enthalpy-moisture) chart for one atmospheric pressure: frame, lines
// of equal moisture content, enthalpy and dry-bulb temperature, the saturation curve, the
// curves of 10 % to 90 % relative humidity, and their labels, all as plain drawing records.
// Every curve comes from the humid-air library at the chart's pressure, so a point read back
// through the chart record gives the state it was drawn for.
#pragma once

#include "psychro/id_chart_drawing.h"

namespace vrn2 {

struct ChartRequest {
    double B = 101.325;   // kPa
    double tMin = -10.0;  // °C: the lowest and highest isotherm
    double tMax = 50.0;
    double dMin = 0.0;  // g/kg: the left and right edge of the frame
    double dMax = 30.0;
    double width = 300.0;  // drawing units: the plotting area
    double height = 400.0;
    ChartPoint corner;  // lower-left corner of the plotting area
};

// Limits of a chart the construction accepts.
inline constexpr double kChartPressureMin = 50.0, kChartPressureMax = 200.0;
inline constexpr double kChartTempMin = -40.0, kChartTempMax = 80.0;
inline constexpr double kChartMoistureMax = 100.0;
inline constexpr double kChartSizeMin = 50.0, kChartSizeMax = 5000.0;

// The message for the first value of REQUEST out of its limits, or nullptr when all are good.
const wchar_t* chartRequestFault(const ChartRequest& request);

// The chart for an accepted REQUEST.
ChartDrawing buildIdChart(const ChartRequest& request);

}  // namespace vrn2
