// Image and image_button tiles: their size in pixels, and the vectors, fills and slides drawn
// into them between start_image and end_image, which are recorded for the dialog's record.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <string>

#include "adsdlg.h"
#include "host/boundary.h"
#include "host/dcl/dcl.h"
#include "host/dcl/runtime.h"
#include "host/dcl/slide_file.h"
#include "host/dcl/tile_values.h"

using host::dcl::ImageOp;
using host::dcl::Runtime;

namespace {

host::dcl::RuntimeTile* openImageTile() {
    Runtime& rt = Runtime::instance();
    if (!rt.image) return nullptr;
    host::dcl::Dialog* dialog = rt.dialog(reinterpret_cast<ads_hdlg>(rt.image->dialog));
    return dialog ? &dialog->tile(rt.image->tile) : nullptr;
}

bool record(ImageOp op) {
    host::dcl::RuntimeTile* t = openImageTile();
    if (!t) return false;
    t->image.push_back(std::move(op));
    return true;
}


// Width and height in pixels: character cells of a fixed size; with only one of them, the
// other follows from aspect_ratio (width / height). Tiles without a width are as wide as
// their label.
void pixelSize(const host::dcl::Tile& tile, long& width, long& height) {
    double w = host::dcl::realAttribute(tile, L"width", -1);
    double h = host::dcl::realAttribute(tile, L"height", -1);
    double aspect = host::dcl::realAttribute(tile, L"aspect_ratio", 0);
    width = w >= 0 ? std::lround(w * host::dcl::kCellWidthPixels) : -1;
    height = h >= 0 ? std::lround(h * host::dcl::kCellHeightPixels) : -1;
    if (aspect > 0 && width >= 0 && height < 0) height = std::lround(width / aspect);
    if (aspect > 0 && height >= 0 && width < 0) width = std::lround(height * aspect);
    if (width < 0) width = static_cast<long>(tile.attr(L"label").size()) * host::dcl::kCellWidthPixels;
    if (height < 0) height = host::dcl::kCellHeightPixels;
}

}  // namespace

bool host::dcl::recordImageVector(short x1, short y1, short x2, short y2, short color) {
    return record(ImageOp{ImageOp::Kind::Vector, x1, y1, x2, y2, color, {}});
}

extern "C" int ads_dimensions_tile(ads_hdlg hdlg, const ACHAR* key, short* cx, short* cy) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Runtime& rt = Runtime::instance();
        host::dcl::Dialog* dialog = rt.dialog(hdlg);
        int tile = rt.findTile(dialog, key);
        if (tile < 0 || !cx || !cy) return RTERROR;
        long width = 0, height = 0;
        pixelSize(*dialog->tile(tile).source, width, height);
        *cx = static_cast<short>(std::clamp(width - 1, 0L, 32767L));
        *cy = static_cast<short>(std::clamp(height - 1, 0L, 32767L));
        return RTNORM;
    });
}

extern "C" int ads_start_image(ads_hdlg hdlg, const ACHAR* key) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Runtime& rt = Runtime::instance();
        host::dcl::Dialog* dialog = rt.dialog(hdlg);
        int tile = rt.findTile(dialog, key);
        if (tile < 0 || !host::dcl::isImage(dialog->tile(tile).kind())) return RTERROR;
        rt.image = host::dcl::ImageSession{dialog->serial(), tile};
        return RTNORM;
    });
}

extern "C" int ads_fill_image(short x1, short y1, short x2, short y2, short color) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        return record(ImageOp{ImageOp::Kind::Fill, x1, y1, x2, y2, color, {}}) ? RTNORM : RTERROR;
    });
}

// The slide is recorded by name and drawn as its vectors, fitted into the rectangle. A slide
// that cannot be read (a missing file, a "lib(slide)" name) draws nothing, as in the editor.
extern "C" int ads_slide_image(short x1, short y1, short x2, short y2, const ACHAR* slnam) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (!slnam) return RTERROR;
        if (!record(ImageOp{ImageOp::Kind::Slide, x1, y1, x2, y2, 0, slnam})) return RTERROR;
        std::ifstream file(host::dcl::slideFilePath(slnam), std::ios::binary);
        const std::string bytes((std::istreambuf_iterator<char>(file)), {});
        host::dcl::Slide slide;
        std::wstring problem;
        if (!file || !host::dcl::parseSlide(bytes, slide, problem)) return RTNORM;
        auto clamp = [](int v) { return static_cast<short>(std::clamp(v, -32768, 32767)); };
        for (const auto& v : host::dcl::fitSlide(slide, x1, y1, x2, y2))
            record(ImageOp{ImageOp::Kind::Vector, clamp(v.x1), clamp(v.y1), clamp(v.x2), clamp(v.y2), v.color, {}});
        return RTNORM;
    });
}

extern "C" int ads_end_image(void) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        bool open = openImageTile() != nullptr;
        Runtime::instance().image.reset();
        return open ? RTNORM : RTERROR;
    });
}
