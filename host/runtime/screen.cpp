#include "host/runtime/screen.h"

#include "acedads.h"
#include "adsdlg.h"
#include "host/boundary.h"
#include "host/dcl/dcl.h"
#include "host/session.h"

namespace host {
namespace {

struct Screen {
    std::vector<ScreenVector> vectors;
};

std::vector<ScreenVector>& vectors() { return sessionPart<Screen>().vectors; }

}  // namespace

const std::vector<ScreenVector>& screenVectors() { return vectors(); }
void clearScreenVectors() { vectors().clear(); }

}  // namespace host

// Inside an open image tile the vector belongs to the dialog; elsewhere it is temporary
// graphics on the screen.
extern "C" int ads_vector_image(short x1, short y1, short x2, short y2, short color) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (host::dcl::recordImageVector(x1, y1, x2, y2, color)) return RTNORM;
        host::vectors().push_back({x1, y1, x2, y2, color});
        return RTNORM;
    });
}

extern "C" int acedRedraw(const ads_name ent, int) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (!ent) host::clearScreenVectors();
        return RTNORM;
    });
}
