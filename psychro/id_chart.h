// The i-d (enthalpy-moisture) chart as the drawing holds it: whether one has been drawn, and
// the pressure, origin and scales it was drawn with, so that a point picked on it can be turned
// back into the state it stands for.
//
// Geometry. The chart is the usual oblique i-d chart: moisture content d runs along the
// drawing's x axis, and lines of equal enthalpy slope down to the right. A state (i, d) sits at
//     x = originX + moistureScale · d
//     y = originY + enthalpyScale · (i − enthalpySkew · d)
// so that lines of equal d are vertical, lines of equal i fall by enthalpyScale·enthalpySkew
// per g/kg, and with enthalpySkew = 2.5 kJ/kg per g/kg (the latent heat, 2500 kJ/kg, per gram)
// the 0 °C isotherm is horizontal and the other isotherms fan out only slightly, as on the
// printed charts. The origin is the point i = 0, d = 0.
#pragma once

namespace vrn2 {

struct IdChart {
    bool drawn = false;
    double B = 101.325;           // kPa: the pressure the chart's curves were computed for
    double originX = 0.0;         // drawing point of i = 0, d = 0
    double originY = 0.0;
    double moistureScale = 10.0;  // drawing units per g/kg along x
    double enthalpyScale = 2.0;   // drawing units per kJ/kg along y
    double enthalpySkew = 2.5;    // kJ/kg per g/kg: slope of the lines of equal enthalpy
    double markDiameter = 4.0;    // drawing units: the donut that marks a point on the chart
};

// The chart record of the current drawing: empty (not drawn) until a chart command fills it;
// each drawing has its own.
IdChart& idChart();

struct ChartPoint {
    double x = 0.0;
    double y = 0.0;
};

// Where the state (i, d) lies on CHART.
ChartPoint chartPointOf(const IdChart& chart, double i, double d);

// The enthalpy and moisture content of the state at drawing point (x, y) of CHART.
void chartStateAt(const IdChart& chart, double x, double y, double& i, double& d);

}  // namespace vrn2
