// Three-dimensional point of the host's geometry library.
#pragma once

class AcGePoint3d {
public:
    AcGePoint3d() : x(0.0), y(0.0), z(0.0) {}
    AcGePoint3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}
    AcGePoint3d& set(double xx, double yy, double zz) { x = xx; y = yy; z = zz; return *this; }
    bool operator==(const AcGePoint3d& p) const { return x == p.x && y == p.y && z == p.z; }
    bool operator!=(const AcGePoint3d& p) const { return !(*this == p); }
    double operator[](unsigned int i) const { return i == 0 ? x : (i == 1 ? y : z); }
    double& operator[](unsigned int i) { return i == 0 ? x : (i == 1 ? y : z); }
    double x, y, z;
};
