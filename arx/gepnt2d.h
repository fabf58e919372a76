// Two-dimensional point of the host's geometry library.
#pragma once

class AcGePoint2d {
public:
    AcGePoint2d() : x(0.0), y(0.0) {}
    AcGePoint2d(double xx, double yy) : x(xx), y(yy) {}
    AcGePoint2d& set(double xx, double yy) { x = xx; y = yy; return *this; }
    bool operator==(const AcGePoint2d& p) const { return x == p.x && y == p.y; }
    bool operator!=(const AcGePoint2d& p) const { return !(*this == p); }
    double operator[](unsigned int i) const { return i == 0 ? x : y; }
    double& operator[](unsigned int i) { return i == 0 ? x : y; }
    double x, y;
};
