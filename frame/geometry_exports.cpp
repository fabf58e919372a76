#include "frame/geometry_exports.h"

#include "acutads.h"

AcGePoint2d arx_polar(AcGePoint2d base, double angle, double distance) {
    ads_point from = {base.x, base.y, 0.0}, to;
    acutPolar(from, angle, distance, to);
    return AcGePoint2d(to[0], to[1]);
}

AcGePoint3d arx_polar(AcGePoint3d base, double angle, double distance) {
    ads_point from = {base.x, base.y, base.z}, to;
    acutPolar(from, angle, distance, to);
    return AcGePoint3d(to[0], to[1], to[2]);
}

double arx_angle(AcGePoint2d from, AcGePoint2d to) {
    ads_point a = {from.x, from.y, 0.0}, b = {to.x, to.y, 0.0};
    return vrn2::normaliseAngle(acutAngle(a, b));
}

double arx_angle(AcGePoint3d from, AcGePoint3d to) {
    ads_point a = {from.x, from.y, from.z}, b = {to.x, to.y, to.z};
    return vrn2::normaliseAngle(acutAngle(a, b));
}
