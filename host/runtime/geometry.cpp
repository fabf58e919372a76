// Geometric utilities and coordinate-system transforms.
#include <cmath>

#include "acedads.h"
#include "acutads.h"
#include "host/boundary.h"
#include "host/runtime/host.h"

namespace {

constexpr double kTwoPi = 6.283185307179586;

// The user coordinate system and the view, as the current document's variables give them.
struct Frame {
    double origin[3];
    double x[3], y[3], z[3];
};

void cross(const double a[3], const double b[3], double out[3]) {
    out[0] = a[1] * b[2] - a[2] * b[1];
    out[1] = a[2] * b[0] - a[0] * b[2];
    out[2] = a[0] * b[1] - a[1] * b[0];
}

void normalise(double v[3]) {
    double len = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    if (len > 0)
        for (int i = 0; i < 3; ++i) v[i] /= len;
}

Frame worldFrame() {
    return Frame{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
}

Frame ucsFrame() {
    Frame f = worldFrame();
    auto& vars = host::Host::instance().current().sysvars();
    if (auto* o = vars.find(L"UCSORG"))
        for (int i = 0; i < 3; ++i) f.origin[i] = o->point[i];
    if (auto* x = vars.find(L"UCSXDIR"))
        for (int i = 0; i < 3; ++i) f.x[i] = x->point[i];
    if (auto* y = vars.find(L"UCSYDIR"))
        for (int i = 0; i < 3; ++i) f.y[i] = y->point[i];
    normalise(f.x);
    normalise(f.y);
    cross(f.x, f.y, f.z);
    return f;
}

// The display system of the current viewport: its Z along VIEWDIR, rotated by VIEWTWIST.
Frame displayFrame() {
    Frame f = worldFrame();
    auto& vars = host::Host::instance().current().sysvars();
    double dir[3] = {0, 0, 1};
    if (auto* d = vars.find(L"VIEWDIR"))
        for (int i = 0; i < 3; ++i) dir[i] = d->point[i];
    // VIEWDIR is given in user coordinates; bring it to the world.
    Frame ucs = ucsFrame();
    double zw[3];
    for (int i = 0; i < 3; ++i) zw[i] = dir[0] * ucs.x[i] + dir[1] * ucs.y[i] + dir[2] * ucs.z[i];
    normalise(zw);
    // Arbitrary-axis rule for the X axis of a plane with normal zw.
    double ax[3];
    const double wy[3] = {0, 1, 0}, wz[3] = {0, 0, 1};
    if (std::fabs(zw[0]) < 1.0 / 64 && std::fabs(zw[1]) < 1.0 / 64) cross(wy, zw, ax);
    else cross(wz, zw, ax);
    normalise(ax);
    double ay[3];
    cross(zw, ax, ay);
    double twist = 0;
    if (auto* t = vars.find(L"VIEWTWIST")) twist = t->real;
    double c = std::cos(twist), s = std::sin(twist);
    for (int i = 0; i < 3; ++i) {
        f.x[i] = c * ax[i] + s * ay[i];
        f.y[i] = -s * ax[i] + c * ay[i];
        f.z[i] = zw[i];
    }
    return f;
}

bool frameOf(const resbuf* rb, Frame& f) {
    if (!rb) return false;
    if (rb->restype == RTSHORT) {
        switch (rb->resval.rint) {
        case 0: f = worldFrame(); return true;
        case 1: f = ucsFrame(); return true;
        case 2: f = displayFrame(); return true;
        default: return false;
        }
    }
    if (rb->restype == RT3DPOINT) {
        f = worldFrame();
        for (int i = 0; i < 3; ++i) f.z[i] = rb->resval.rpoint[i];
        normalise(f.z);
        const double wy[3] = {0, 1, 0}, wz[3] = {0, 0, 1};
        if (std::fabs(f.z[0]) < 1.0 / 64 && std::fabs(f.z[1]) < 1.0 / 64) cross(wy, f.z, f.x);
        else cross(wz, f.z, f.x);
        normalise(f.x);
        cross(f.z, f.x, f.y);
        return true;
    }
    return false;
}

}  // namespace

extern "C" ads_real acutAngle(const ads_point pt1, const ads_point pt2) {
    return host::guarded(__func__, 0.0, [&]() -> ads_real {
        double a = std::atan2(pt2[1] - pt1[1], pt2[0] - pt1[0]);
        if (a < 0) a += kTwoPi;
        if (a >= kTwoPi) a -= kTwoPi;
        return a;
    });
}

extern "C" ads_real acutDistance(const ads_point pt1, const ads_point pt2) {
    return host::guarded(__func__, 0.0, [&]() -> ads_real {
        double dx = pt2[0] - pt1[0], dy = pt2[1] - pt1[1], dz = pt2[2] - pt1[2];
        return std::sqrt(dx * dx + dy * dy + dz * dz);
    });
}

extern "C" void acutPolar(const ads_point pt, ads_real angle, ads_real dist, ads_point ptres) {
    host::guarded(__func__, [&] {
        double x = pt[0] + dist * std::cos(angle);
        double y = pt[1] + dist * std::sin(angle);
        double z = pt[2];
        ptres[0] = x;
        ptres[1] = y;
        ptres[2] = z;
    });
}

extern "C" int acedTrans(const ads_point pt, const struct resbuf* from, const struct resbuf* to,
                         int disp, ads_point result) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (!host::Host::instance().hasDocument()) return RTERROR;
        Frame a, b;
        if (!frameOf(from, a) || !frameOf(to, b)) return RTERROR;
        double world[3];
        for (int i = 0; i < 3; ++i)
            world[i] = pt[0] * a.x[i] + pt[1] * a.y[i] + pt[2] * a.z[i] + (disp ? 0.0 : a.origin[i]);
        double rel[3];
        for (int i = 0; i < 3; ++i) rel[i] = world[i] - (disp ? 0.0 : b.origin[i]);
        double out[3];
        out[0] = rel[0] * b.x[0] + rel[1] * b.x[1] + rel[2] * b.x[2];
        out[1] = rel[0] * b.y[0] + rel[1] * b.y[1] + rel[2] * b.y[2];
        out[2] = rel[0] * b.z[0] + rel[1] * b.z[1] + rel[2] * b.z[2];
        for (int i = 0; i < 3; ++i) result[i] = out[i];
        return RTNORM;
    });
}
