// The auxiliary grid as plain records: the two families of parallel lines, the two centre
// lines and the coordinate labels, computed from the parameters alone.
#pragma once

#include <string>
#include <vector>

#include "drawing/grid_parameters.h"
#include "drawing/plan_geometry.h"

namespace vrn2::drawing {

// π as the grid has always used it, so that drawings keep their coordinates.
inline constexpr double kGridPi = 3.1415927;
inline constexpr int kGridLineColour = 8;
inline constexpr int kGridCentreColour = 9;
inline constexpr int kGridLabelColour = 8;

struct GridLine {
    PlanPoint from;
    PlanPoint to;
};

struct GridLabel {
    PlanPoint at;
    double height = 0.0;
    std::string text;  // the coordinate with one decimal
};

struct GridDrawing {
    std::vector<GridLine> lines;        // first family (k1 + 1), then second (k2 + 1)
    std::vector<GridLine> centreLines;  // two, or none when switched off
    std::vector<GridLabel> labels;      // first family, then second; none when switched off
    PlanPoint origin, cornerB, cornerC, cornerD;
};

// More lines than this in one family are refused: such a grid is a typing slip, and drawing it
// would hang the editor.
inline constexpr double kMaxGridLinesPerFamily = 10000;

// True when both families of PARAMETERS stay within kMaxGridLinesPerFamily.
bool gridIsDrawable(const GridParameters& parameters);

// The grid for PARAMETERS (limits already applied, gridIsDrawable true). Extents are rounded to whole spacings; the
// origin corrections for a falling first family and an obtuse second family each add the other
// family's start value, which is how existing grids are placed.
GridDrawing gridDrawing(const GridParameters& parameters);

struct PreviewVector {
    int x1, y1, x2, y2;
    int colour;
};

// The grid lines and centre lines scaled into a WIDTH × HEIGHT image (y downwards) with a
// margin, for the dialog's preview.
std::vector<PreviewVector> gridPreview(const GridDrawing& drawing, int width, int height);

}  // namespace vrn2::drawing
