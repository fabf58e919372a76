// Angle and polar functions on the host's point classes, exported for the suite's other modules.
#pragma once

#include "frame/geometry.h"
#include "gepnt2d.h"
#include "gepnt3d.h"
#include "rxdefs.h"

ACRX_EXPORT AcGePoint2d arx_polar(AcGePoint2d base, double angle, double distance);
ACRX_EXPORT AcGePoint3d arx_polar(AcGePoint3d base, double angle, double distance);
// Radians in [0, 2π).
ACRX_EXPORT double arx_angle(AcGePoint2d from, AcGePoint2d to);
ACRX_EXPORT double arx_angle(AcGePoint3d from, AcGePoint3d to);
