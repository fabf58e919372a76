#include "host/render/picture.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>
#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "host/db/extents.h"
#include "host/render/aci.h"
#include "host/render/painter.h"
#include "host/text.h"

namespace host::render {
namespace {

constexpr double kLongSidePx = 1600.0;
constexpr double kShortestSidePx = 200.0;
constexpr double kMarginShare = 0.05;           // of the picture's size, on every side
constexpr double kPixelsPerMm = 96.0 / 25.4;     // a screen of 96 dots per inch
// What an empty drawing shows: the editor's default limits.
constexpr db::Box kEmptyDrawing{0.0, 0.0, 420.0, 297.0};

enum class Kind { Png, Svg, Pdf };

bool kindOf(const std::filesystem::path& file, Kind& kind) {
    std::string ext = file.extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(), [](unsigned char c) { return std::tolower(c); });
    if (ext == ".png") kind = Kind::Png;
    else if (ext == ".svg") kind = Kind::Svg;
    else if (ext == ".pdf") kind = Kind::Pdf;
    else return false;
    return true;
}

// The picture's size and the plan-to-picture mapping that fits BOX inside the margins.
struct View {
    int width = 0, height = 0;
    cairo_matrix_t planToPicture;
};

View fitView(db::Box box) {
    double w = std::max(box.maxX - box.minX, 1e-9), h = std::max(box.maxY - box.minY, 1e-9);
    View v;
    double inner = 1.0 - 2 * kMarginShare;
    double longSide = kLongSidePx;
    v.width = static_cast<int>(w >= h ? longSide : std::max(kShortestSidePx, longSide * w / h));
    v.height = static_cast<int>(h > w ? longSide : std::max(kShortestSidePx, longSide * h / w));
    double scale = std::min(v.width * inner / w, v.height * inner / h);
    double cx = (box.minX + box.maxX) / 2, cy = (box.minY + box.maxY) / 2;
    // x' = scale (x - cx) + W/2,  y' = -scale (y - cy) + H/2: Y up in the plan, down on paper.
    cairo_matrix_init(&v.planToPicture, scale, 0.0, 0.0, -scale, v.width / 2.0 - scale * cx, v.height / 2.0 + scale * cy);
    return v;
}

void paintScreen(cairo_t* cr, const std::vector<ScreenVector>& screen) {
    cairo_identity_matrix(cr);
    cairo_set_line_width(cr, 1.0);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_SQUARE);
    for (const auto& v : screen) {
        Rgb c = aciColour(v.color);
        cairo_set_source_rgb(cr, c.r, c.g, c.b);
        if (v.x1 == v.x2 && v.y1 == v.y2) {  // a point vector fills its pixel
            cairo_rectangle(cr, v.x1, v.y1, 1.0, 1.0);
            cairo_fill(cr);
            continue;
        }
        cairo_move_to(cr, v.x1 + 0.5, v.y1 + 0.5);
        cairo_line_to(cr, v.x2 + 0.5, v.y2 + 0.5);
        cairo_stroke(cr);
    }
}

void paint(cairo_t* cr, const db::Database& db, const std::vector<ScreenVector>& screen, const View& view) {
    cairo_set_source_rgb(cr, 1.0, 1.0, 1.0);
    cairo_paint(cr);
    cairo_set_matrix(cr, &view.planToPicture);
    Painter(cr, db, kPixelsPerMm).paintModelSpace();
    paintScreen(cr, screen);
}

cairo_surface_t* makeSurface(Kind kind, const View& v, const std::string& path) {
    switch (kind) {
        case Kind::Png: return cairo_image_surface_create(CAIRO_FORMAT_RGB24, v.width, v.height);
        case Kind::Svg: return cairo_svg_surface_create(path.c_str(), v.width, v.height);
        case Kind::Pdf: return cairo_pdf_surface_create(path.c_str(), v.width, v.height);
    }
    return nullptr;
}

}  // namespace

bool knownPictureType(const std::filesystem::path& file) {
    Kind kind;
    return kindOf(file, kind);
}

bool renderPicture(const db::Database& db, const std::vector<ScreenVector>& screen,
                   const std::filesystem::path& file, std::wstring& error) {
    Kind kind;
    if (!kindOf(file, kind)) {
        error = L"a picture is a .png, .svg or .pdf file: " + fromUtf8(file.string());
        return false;
    }
    db::Box box = db::modelSpaceExtents(db);
    View view = fitView(box.valid() ? box : kEmptyDrawing);
    std::filesystem::path partial = file;
    partial += ".part";
    std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> surface(makeSurface(kind, view, partial.string()),
                                                                          cairo_surface_destroy);
    cairo_t* cr = cairo_create(surface.get());
    paint(cr, db, screen, view);
    cairo_status_t status = cairo_status(cr);
    cairo_destroy(cr);
    if (status == CAIRO_STATUS_SUCCESS && kind == Kind::Png)
        status = cairo_surface_write_to_png(surface.get(), partial.string().c_str());
    cairo_surface_finish(surface.get());
    if (status == CAIRO_STATUS_SUCCESS) status = cairo_surface_status(surface.get());
    std::error_code ec;
    if (status == CAIRO_STATUS_SUCCESS) std::filesystem::rename(partial, file, ec);
    if (status != CAIRO_STATUS_SUCCESS || ec) {
        std::filesystem::remove(partial, ec);
        error = L"cannot write picture " + fromUtf8(file.string()) + L": " +
                fromUtf8(status != CAIRO_STATUS_SUCCESS ? cairo_status_to_string(status) : "cannot rename");
        return false;
    }
    return true;
}

}  // namespace host::render
