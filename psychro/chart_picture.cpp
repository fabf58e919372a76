#include "psychro/chart_picture.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

#include <cairo-ft.h>
#include <cairo.h>
#include <fontconfig/fontconfig.h>

#include "psychro/docx/xml_writer.h"

namespace vrn2 {
namespace {

constexpr double kMinTextPx = 7.0;
constexpr double kMarkRadiusPx = 5.0;

struct Colour {
    double r, g, b;
};

struct Pen {
    Colour colour;
    double width;  // pixels
};

// Each family of lines in its own colour, lighter for the dense grids of d and i so that the
// curves of φ, the saturation curve and the marks stand out.
Pen penOf(const wchar_t* layer) {
    struct LayerPen {
        const wchar_t* layer;
        Pen pen;
    };
    static const LayerPen pens[] = {
        {kLayerChartFrame, {{0.0, 0.0, 0.0}, 2.0}},  {kLayerSaturation, {{0.0, 0.2, 0.65}, 2.2}},
        {kLayerHumidity, {{0.1, 0.5, 0.25}, 1.2}},   {kLayerIsotherm, {{0.35, 0.35, 0.35}, 1.0}},
        {kLayerEnthalpy, {{0.55, 0.6, 0.85}, 0.8}},  {kLayerMoisture, {{0.65, 0.65, 0.65}, 0.8}},
    };
    for (const LayerPen& p : pens)
        if (std::wcscmp(p.layer, layer) == 0) return p.pen;
    return {{0.0, 0.0, 0.0}, 1.0};
}

// The part of the drawing that the picture shows: every line and, roughly, every text.
struct Extent {
    double left, bottom, right, top;
    void add(double x, double y) {
        left = std::min(left, x), right = std::max(right, x);
        bottom = std::min(bottom, y), top = std::max(top, y);
    }
};

Extent extentOf(const ChartDrawing& chart) {
    Extent e{chart.frame.left, chart.frame.bottom, chart.frame.right, chart.frame.top};
    for (const ChartPolyline& line : chart.lines)
        for (const ChartPoint& p : line.points) e.add(p.x, p.y);
    for (const ChartText& text : chart.texts) {
        // Chinese characters are about as wide as high; digits and letters about half as wide.
        double width = 0.0;
        for (wchar_t c : text.text) width += (c < 0x2E80 ? 0.6 : 1.0) * text.height;
        const double ux = std::cos(text.angle), uy = std::sin(text.angle);
        const double before = text.align == TextAlign::left ? 0.0 : text.align == TextAlign::centre ? width / 2 : width;
        e.add(text.at.x - ux * before - uy * text.height, text.at.y - uy * before - ux * text.height);
        e.add(text.at.x + ux * (width - before) + uy * text.height, text.at.y + uy * (width - before) + ux * text.height);
    }
    const double margin = 1.5 * chart.textHeight;
    return {e.left - margin, e.bottom - margin, e.right + margin, e.top + margin};
}

// The drawing's extent mapped onto pixels, y down.
struct PixelMap {
    Extent extent;
    double scale = 1.0;
    double x(double drawingX) const { return (drawingX - extent.left) * scale; }
    double y(double drawingY) const { return (extent.top - drawingY) * scale; }
};

// A face that has Chinese characters, found through fontconfig.
cairo_font_face_t* chineseFontFace() {
    FcPattern* wanted = FcNameParse(reinterpret_cast<const FcChar8*>("sans-serif:lang=zh-cn"));
    if (!wanted) return cairo_toy_font_face_create("sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    FcConfigSubstitute(nullptr, wanted, FcMatchPattern);
    FcDefaultSubstitute(wanted);
    FcResult result = FcResultNoMatch;
    FcPattern* match = FcFontMatch(nullptr, wanted, &result);
    FcPatternDestroy(wanted);
    if (!match) return cairo_toy_font_face_create("sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_font_face_t* face = cairo_ft_font_face_create_for_pattern(match);
    FcPatternDestroy(match);
    return face;
}

void paintLines(cairo_t* cr, const PixelMap& map, const std::vector<ChartPolyline>& lines) {
    cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
    for (const ChartPolyline& line : lines) {
        if (line.points.size() < 2) continue;
        const Pen pen = penOf(line.layer);
        cairo_set_source_rgb(cr, pen.colour.r, pen.colour.g, pen.colour.b);
        cairo_set_line_width(cr, pen.width);
        cairo_move_to(cr, map.x(line.points[0].x), map.y(line.points[0].y));
        for (std::size_t k = 1; k < line.points.size(); ++k)
            cairo_line_to(cr, map.x(line.points[k].x), map.y(line.points[k].y));
        if (line.closed) cairo_close_path(cr);
        cairo_stroke(cr);
    }
}

// The Chinese face draws no glyph for "℃" (U+2103); the picture writes it as "°C".
std::string pictureText(std::wstring text) {
    for (std::size_t at = text.find(L'℃'); at != std::wstring::npos; at = text.find(L'℃', at))
        text.replace(at, 1, L"°C");
    return xmlUtf8(text);
}

// TEXT placed as the chart places it: horizontally by its alignment, vertically centred.
void paintText(cairo_t* cr, const PixelMap& map, const ChartText& text) {
    const std::string utf8 = pictureText(text.text);
    cairo_save(cr);
    cairo_set_font_size(cr, std::max(kMinTextPx, text.height * map.scale));
    cairo_translate(cr, map.x(text.at.x), map.y(text.at.y));
    cairo_rotate(cr, -text.angle);
    cairo_text_extents_t te;
    cairo_text_extents(cr, utf8.c_str(), &te);
    const double dx = text.align == TextAlign::left ? 0.0 : text.align == TextAlign::centre ? -te.x_advance / 2 : -te.x_advance;
    cairo_move_to(cr, dx, -(te.y_bearing + te.height / 2));
    cairo_set_source_rgb(cr, 0.0, 0.0, 0.0);
    cairo_show_text(cr, utf8.c_str());
    cairo_restore(cr);
}

// A red dot, and its label up to the right with a white rim so it reads over the grid.
void paintMark(cairo_t* cr, const PixelMap& map, const ChartDrawing& chart, const ChartPictureMark& mark) {
    const ChartPoint at = chartPointOf(chart.chart, mark.i, mark.d);
    if (!std::isfinite(at.x) || !std::isfinite(at.y) || !chart.frame.contains(at)) return;
    const double x = map.x(at.x), y = map.y(at.y);
    cairo_set_source_rgb(cr, 0.85, 0.0, 0.0);
    cairo_arc(cr, x, y, kMarkRadiusPx, 0.0, 2.0 * std::acos(-1.0));
    cairo_fill(cr);
    cairo_set_font_size(cr, std::max(16.0, 1.3 * chart.textHeight * map.scale));
    cairo_move_to(cr, x + 1.6 * kMarkRadiusPx, y - 1.6 * kMarkRadiusPx);
    cairo_text_path(cr, xmlUtf8(mark.label).c_str());
    cairo_set_source_rgb(cr, 1.0, 1.0, 1.0);
    cairo_set_line_width(cr, 3.0);
    cairo_stroke_preserve(cr);
    cairo_set_source_rgb(cr, 0.85, 0.0, 0.0);
    cairo_fill(cr);
}

cairo_status_t appendPng(void* closure, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

PixelMap pixelMapOf(const ChartDrawing& chart, int& width, int& height) {
    PixelMap map;
    map.extent = extentOf(chart);
    const double w = map.extent.right - map.extent.left, h = map.extent.top - map.extent.bottom;
    map.scale = std::min(kChartPictureMaxWidth / w, kChartPictureMaxHeight / h);
    width = std::max(1, static_cast<int>(std::floor(w * map.scale)));
    height = std::max(1, static_cast<int>(std::floor(h * map.scale)));
    return map;
}

}  // namespace

bool paintChartPicture(const ChartDrawing& chart, const std::vector<ChartPictureMark>& marks, WordPicture& picture) {
    picture = {};
    int width = 0, height = 0;
    const PixelMap map = pixelMapOf(chart, width, height);
    if (!(map.scale > 0.0) || !std::isfinite(map.scale)) return false;
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height);
    cairo_t* cr = cairo_create(surface);
    cairo_font_face_t* face = chineseFontFace();
    cairo_set_source_rgb(cr, 1.0, 1.0, 1.0);
    cairo_paint(cr);
    cairo_set_font_face(cr, face);
    paintLines(cr, map, chart.lines);
    for (const ChartText& text : chart.texts) paintText(cr, map, text);
    for (const ChartPictureMark& mark : marks) paintMark(cr, map, chart, mark);
    bool painted = cairo_status(cr) == CAIRO_STATUS_SUCCESS;
    cairo_destroy(cr);
    cairo_font_face_destroy(face);
    cairo_surface_flush(surface);
    painted = painted && cairo_surface_write_to_png_stream(surface, appendPng, &picture.png) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    if (!painted) {
        picture = {};
        return false;
    }
    picture.widthPx = width;
    picture.heightPx = height;
    return true;
}

}  // namespace vrn2
