// "_Xscjx": the lower-left and upper-right corners of the current view, in user coordinates.
#include "acedads.h"
#include "acutads.h"
#include "frame/frame_handlers.h"
#include "frame/rblist.h"

namespace vrn2 {

int viewCorners() {
    resbuf centre, size, screen;
    if (acedGetVar(L"VIEWCTR", &centre) != RTNORM || acedGetVar(L"VIEWSIZE", &size) != RTNORM ||
        acedGetVar(L"SCREENSIZE", &screen) != RTNORM)
        return 1;
    double h = size.resval.rreal / 2.0;
    double w = h / screen.resval.rpoint[1] * screen.resval.rpoint[0];

    resbuf ucs{}, dcs{};
    ucs.restype = RTSHORT;
    ucs.resval.rint = 1;
    dcs.restype = RTSHORT;
    dcs.resval.rint = 2;
    ads_point c;
    acedTrans(centre.resval.rpoint, &ucs, &dcs, 0, c);
    ads_point lowDcs = {c[0] - w, c[1] - h, c[2]};
    ads_point highDcs = {c[0] + w, c[1] + h, c[2]};
    ads_point low, high;
    acedTrans(lowDcs, &dcs, &ucs, 0, low);
    acedTrans(highDcs, &dcs, &ucs, 0, high);

    RbList corners(acutBuildList(RT3DPOINT, low, RT3DPOINT, high, 0));
    if (corners) acedRetList(corners.get());
    return 1;
}

}  // namespace vrn2
