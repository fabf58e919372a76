// The shared ground of the chart construction: the chart's scale and frame for a request, the
// humid-air relations its curves are drawn from, and the spacing of its lines. Used only by
// the id_chart_* construction files.
#pragma once

#include <functional>
#include <string>

#include "psychro/id_chart_build.h"

namespace vrn2 {

struct ChartGeometry {
    ChartRequest request;
    double P = 101325.0;  // Pa
    IdChart chart;
    ChartFrame frame;
    double rBottom = 0.0, rTop = 0.0;  // i − skew·d at the frame's bottom and top edge
    double textHeight = 1.0;

    ChartPoint at(double i, double d) const { return chartPointOf(chart, i, d); }
};

ChartGeometry chartGeometry(const ChartRequest& request);

// Moisture content, g/kg, of air at t °C with relative humidity fy % (the saturation pressure
// as the state solvers take it). Not a number when that vapour pressure reaches P.
double moistureAtHumidity(double t, double fy, double P);

// Relative humidity, %, of the state (i, d), as the enthalpy-moisture solver finds it.
double humidityOfState(double i, double d, double P);

// The argument in [lo, hi] at which the monotone F crosses TARGET; the end nearer to the
// crossing when F does not cross in the interval.
double crossingOf(const std::function<double(double)>& f, double target, double lo, double hi);

// A round spacing (1, 2 or 5 times a power of ten) giving at most about COUNT steps over SPAN.
double roundStep(double span, double count);

// Multiples of STEP from the first at or above LO to the last at or below HI.
void forEachMultiple(double step, double lo, double hi, const std::function<void(double)>& each);

// True when VALUE is a multiple of STEP, to rounding.
bool isMultipleOf(double value, double step);

// A label value: as few decimals as it needs.
std::wstring chartNumber(double value);

// The families of lines and curves, with their labels.
void addMoistureLines(const ChartGeometry& g, ChartDrawing& out);
void addEnthalpyLines(const ChartGeometry& g, ChartDrawing& out);
void addIsotherms(const ChartGeometry& g, ChartDrawing& out);
void addHumidityCurves(const ChartGeometry& g, ChartDrawing& out);

}  // namespace vrn2
