#include "frame/geometry_exports.h"

#include "acutads.h"
#include "frame/boundary.h"

// Exported to other modules of the suite: nothing thrown inside reaches the caller. A failure
// answers the base point for a polar and 0 for an angle.

AcGePoint2d arx_polar(AcGePoint2d base, double angle, double distance) {
    return vrn2::guarded(L"arx_polar", base, [&] {
        ads_point from = {base.x, base.y, 0.0}, to;
        acutPolar(from, angle, distance, to);
        return AcGePoint2d(to[0], to[1]);
    });
}

AcGePoint3d arx_polar(AcGePoint3d base, double angle, double distance) {
    return vrn2::guarded(L"arx_polar", base, [&] {
        ads_point from = {base.x, base.y, base.z}, to;
        acutPolar(from, angle, distance, to);
        return AcGePoint3d(to[0], to[1], to[2]);
    });
}

double arx_angle(AcGePoint2d from, AcGePoint2d to) {
    return vrn2::guarded(L"arx_angle", 0.0, [&] {
        ads_point a = {from.x, from.y, 0.0}, b = {to.x, to.y, 0.0};
        return vrn2::normaliseAngle(acutAngle(a, b));
    });
}

double arx_angle(AcGePoint3d from, AcGePoint3d to) {
    return vrn2::guarded(L"arx_angle", 0.0, [&] {
        ads_point a = {from.x, from.y, from.z}, b = {to.x, to.y, to.z};
        return vrn2::normaliseAngle(acutAngle(a, b));
    });
}
