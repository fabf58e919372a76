// TEXT and MTEXT drawn with an outline font that has the Chinese characters (found through
// fontconfig), at the entity's height, angle, width factor and slant and those of its style.
#pragma once

#include <cairo.h>

#include <cstdint>

#include "host/db/group_values.h"

namespace host::render {

class Lettering {
public:
    Lettering();
    ~Lettering();
    Lettering(const Lettering&) = delete;
    Lettering& operator=(const Lettering&) = delete;

    // Draws the text entity with groups G in the current colour, in the user space of CR
    // (drawing units, Y up).
    void paintText(cairo_t* cr, const db::Database& db, const db::GroupList& g);
    void paintMText(cairo_t* cr, const db::Database& db, const db::GroupList& g);

private:
    struct Look;
    Look styleLook(const db::Database& db, const db::GroupList& g) const;
    void useFont(cairo_t* cr, double height, double widthFactor, double oblique);

    cairo_font_face_t* face_ = nullptr;
    double capRatio_ = 0.7;  // cap height of the face per unit of font size
};

}  // namespace host::render
