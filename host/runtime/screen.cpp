#include "host/runtime/screen.h"

#include "acedads.h"
#include "adsdlg.h"

namespace host {
namespace {

std::vector<ScreenVector>& vectors() {
    static std::vector<ScreenVector> v;
    return v;
}

ImageVectorHook& hook() {
    static ImageVectorHook h;
    return h;
}

}  // namespace

const std::vector<ScreenVector>& screenVectors() { return vectors(); }
void clearScreenVectors() { vectors().clear(); }
void setImageVectorHook(ImageVectorHook h) { hook() = std::move(h); }

}  // namespace host

extern "C" int ads_vector_image(short x1, short y1, short x2, short y2, short color) {
    if (host::hook() && host::hook()(x1, y1, x2, y2, color)) return RTNORM;
    host::vectors().push_back({x1, y1, x2, y2, color});
    return RTNORM;
}

extern "C" int acedRedraw(const ads_name ent, int) {
    if (!ent) host::clearScreenVectors();
    return RTNORM;
}
