#include "host/render/text_paint.h"

#include <cairo-ft.h>
#include <fontconfig/fontconfig.h>

#include <cmath>
#include <string>

#include "host/db/database.h"
#include "host/db/shapes.h"
#include "host/render/entry_groups.h"
#include "host/render/mtext_plain.h"
#include "host/text.h"

namespace host::render {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kMTextLineSpacing = 5.0 / 3.0;  // baseline to baseline, in text heights
// A sans-serif face that has the Chinese characters; Latin letters are in it as well.
constexpr char kFontPattern[] = "sans-serif:lang=zh-cn";

long long integer(const db::GroupList& g, int code) {
    const db::Group* x = db::findCode(g, code);
    return x ? x->integer : 0;
}

db::P2 point(const db::GroupList& g, int code) {
    const db::Group* x = db::findCode(g, code);
    return x ? db::P2{x->point[0], x->point[1]} : db::P2{};
}

cairo_font_face_t* chineseFace() {
    FcPattern* wanted = FcNameParse(reinterpret_cast<const FcChar8*>(kFontPattern));
    if (!wanted) return nullptr;
    FcConfigSubstitute(nullptr, wanted, FcMatchPattern);
    FcDefaultSubstitute(wanted);
    FcResult result = FcResultNoMatch;
    FcPattern* found = FcFontMatch(nullptr, wanted, &result);
    FcPatternDestroy(wanted);
    if (!found) return nullptr;
    cairo_font_face_t* face = cairo_ft_font_face_create_for_pattern(found);
    FcPatternDestroy(found);  // the face holds its own reference
    return face;
}

// Signs that a face may map to an empty glyph (WenQuanYi Micro Hei draws nothing for ℃), and
// their plain spelling.
struct Spelling {
    wchar_t sign;
    const wchar_t* spelt;
};
constexpr Spelling kSpellings[] = {{L'\u2103', L"\u00b0C"}, {L'\u2109', L"\u00b0F"}};

bool drawsInk(cairo_t* cr, wchar_t sign) {
    cairo_text_extents_t e;
    cairo_text_extents(cr, toUtf8(std::wstring(1, sign)).c_str(), &e);
    return e.width > 0.0 && e.height > 0.0;
}

// TEXT in UTF-8 as the current font can draw it: a sign it has no ink for is spelt out.
std::string drawable(cairo_t* cr, std::wstring text) {
    for (const Spelling& s : kSpellings) {
        if (text.find(s.sign) == std::wstring::npos || drawsInk(cr, s.sign)) continue;
        for (size_t at = text.find(s.sign); at != std::wstring::npos; at = text.find(s.sign, at))
            text.replace(at, 1, s.spelt);
    }
    return toUtf8(text);
}

// Width of a line of text at the current font, in user units.
double advance(cairo_t* cr, const std::string& utf8) {
    cairo_text_extents_t e;
    cairo_text_extents(cr, utf8.c_str(), &e);
    return e.x_advance;
}

}  // namespace

struct Lettering::Look {
    double height = 0.0;
    double widthFactor = 1.0;
    double oblique = 0.0;  // radians
};

Lettering::Lettering() {
    face_ = chineseFace();
    if (!face_) face_ = cairo_toy_font_face_create("sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    // The editor's text height is the height of a capital letter: measure it once.
    cairo_surface_t* s = cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1);
    cairo_t* cr = cairo_create(s);
    cairo_set_font_face(cr, face_);
    cairo_set_font_size(cr, 100.0);
    cairo_text_extents_t e;
    cairo_text_extents(cr, "H", &e);
    if (e.height > 0) capRatio_ = e.height / 100.0;
    cairo_destroy(cr);
    cairo_surface_destroy(s);
}

Lettering::~Lettering() { cairo_font_face_destroy(face_); }

Lettering::Look Lettering::styleLook(const db::Database& db, const db::GroupList& g) const {
    Look look;
    std::optional<db::GroupList> entry = namedEntry(db, "STYLE", g, 7, L"STANDARD");
    if (!entry) return look;
    const db::GroupList& style = *entry;
    look.height = realOr(style, 40, 0.0);
    look.widthFactor = realOr(style, 41, 1.0);
    look.oblique = realOr(style, 50, 0.0) * kPi / 180.0;
    return look;
}

void Lettering::useFont(cairo_t* cr, double height, double widthFactor, double oblique) {
    double size = height / capRatio_;
    cairo_matrix_t m;
    // Font space has Y down like the text space set up by the callers; a slant leans the tops
    // of the letters (negative Y) to the right.
    cairo_matrix_init(&m, size * widthFactor, 0.0, -size * std::tan(oblique), size, 0.0, 0.0);
    cairo_set_font_face(cr, face_);
    cairo_set_font_matrix(cr, &m);
}

void Lettering::paintText(cairo_t* cr, const db::Database& db, const db::GroupList& g) {
    const db::Group* content = db::findCode(g, 1);
    if (!content || content->text.empty()) return;
    Look style = styleLook(db, g);
    double height = realOr(g, 40, 0.0);
    if (height <= 0.0) height = style.height > 0.0 ? style.height : 2.5;
    double widthFactor = realOr(g, 41, style.widthFactor);
    double oblique = db::findCode(g, 51) ? realOr(g, 51, 0.0) * kPi / 180.0 : style.oblique;
    double angle = realOr(g, 50, 0.0) * kPi / 180.0;
    long long horizontal = integer(g, 72), vertical = integer(g, 73);
    db::P2 first = point(g, 10), second = point(g, 11);
    bool fitted = horizontal == 3 || horizontal == 5;  // aligned or fit between the two points
    db::P2 at = (horizontal || vertical) && !fitted ? second : first;

    cairo_save(cr);
    cairo_translate(cr, at.x, at.y);
    if (fitted) angle = std::atan2(second.y - first.y, second.x - first.x);
    cairo_rotate(cr, angle);
    cairo_scale(cr, 1.0, -1.0);  // text space: Y down like font space
    useFont(cr, height, widthFactor, oblique);
    const std::string utf8 = drawable(cr, content->text);
    double width = advance(cr, utf8);
    if (fitted && width > 0.0) {
        double ratio = std::hypot(second.x - first.x, second.y - first.y) / width;
        if (horizontal == 3) height *= ratio;  // aligned keeps the letters' proportions
        else widthFactor *= ratio;             // fit keeps the height
        useFont(cr, height, widthFactor, oblique);
        width = advance(cr, utf8);
    }
    double x = 0.0, y = 0.0;
    if (horizontal == 1 || horizontal == 4) x = -width / 2;
    else if (horizontal == 2) x = -width;
    if (horizontal == 4 || vertical == 2) y = height / 2;
    else if (vertical == 3) y = height;
    else if (vertical == 1) {
        cairo_font_extents_t fe;
        cairo_font_extents(cr, &fe);
        y = -fe.descent;
    }
    cairo_move_to(cr, x, y);
    cairo_show_text(cr, utf8.c_str());
    cairo_restore(cr);
}

void Lettering::paintMText(cairo_t* cr, const db::Database& db, const db::GroupList& g) {
    std::wstring formatted;
    for (const auto& group : g)
        if (group.code == 3) formatted += group.text;
    if (const db::Group* last = db::findCode(g, 1)) formatted += last->text;
    std::vector<std::wstring> lines = mtextLines(formatted);
    Look style = styleLook(db, g);
    double height = realOr(g, 40, 0.0);
    if (height <= 0.0) height = style.height > 0.0 ? style.height : 2.5;
    db::P2 at = point(g, 10);
    double angle = realOr(g, 50, 0.0);
    if (!db::findCode(g, 50) && db::findCode(g, 11)) {
        db::P2 direction = point(g, 11);
        angle = std::atan2(direction.y, direction.x);
    }
    long long attachment = integer(g, 71);
    if (attachment < 1 || attachment > 9) attachment = 1;
    int column = static_cast<int>((attachment - 1) % 3), row = static_cast<int>((attachment - 1) / 3);
    double spacing = height * kMTextLineSpacing;
    double total = height + spacing * static_cast<double>(lines.size() - 1);

    cairo_save(cr);
    cairo_translate(cr, at.x, at.y);
    cairo_rotate(cr, angle);
    cairo_scale(cr, 1.0, -1.0);
    useFont(cr, height, style.widthFactor, style.oblique);
    double baseline = height - total * row / 2.0;  // top, middle or bottom of the block
    for (const auto& line : lines) {
        std::string utf8 = drawable(cr, line);
        double width = advance(cr, utf8);
        cairo_move_to(cr, -width * column / 2.0, baseline);
        cairo_show_text(cr, utf8.c_str());
        baseline += spacing;
    }
    cairo_restore(cr);
}

}  // namespace host::render
