// TEXT: a start point (or Justify and a justification, or Style and a style name first),
// the height unless the current style fixes it, the rotation, then the text; further lines
// follow below the first until Enter.
#include <cmath>
#include <cstdio>

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "host/commands/command_support.h"
#include "host/db/database.h"
#include "host/db/group_values.h"
#include "host/runtime/host.h"

namespace host::cmd {
namespace {

constexpr double kLineSpacing = 1.6667;  // of the height, from one line's base to the next

struct Justification {
    const wchar_t* name;
    const wchar_t* abbreviation;
    int horizontal;  // group 72
    int vertical;    // group 73
};

const Justification kJustifications[] = {
    {L"ALIGN", L"A", 3, 0}, {L"FIT", L"F", 5, 0},   {L"CENTER", L"C", 1, 0}, {L"MIDDLE", L"M", 4, 0},
    {L"RIGHT", L"R", 2, 0}, {L"TL", L"TL", 0, 3},   {L"TC", L"TC", 1, 3},    {L"TR", L"TR", 2, 3},
    {L"ML", L"ML", 0, 2},   {L"MC", L"MC", 1, 2},   {L"MR", L"MR", 2, 2},    {L"BL", L"BL", 0, 1},
    {L"BC", L"BC", 1, 1},   {L"BR", L"BR", 2, 1},
};

const Justification* justificationOf(const CommandToken& t) {
    for (const auto& j : kJustifications)
        if (isKeyword(t, {j.name, j.abbreviation})) return &j;
    return nullptr;
}

struct Style {
    std::wstring name = L"Standard";
    double height = 0.0;  // fixed height; 0 when the text gives it
    double width = 1.0;
    double oblique = 0.0;  // radians
};

Style currentStyle() {
    Style s;
    if (const SysVarValue* v = vars().find(L"TEXTSTYLE")) s.name = v->text;
    db::Database& d = database();
    uint32_t entry = d.findEntry("STYLE", s.name);
    if (entry == db::kNone) return s;
    s.name = d.recordName(entry);
    db::GroupList g;
    db::decodeGroups(d, d.record(entry).groups, g, nullptr);
    if (const db::Group* h = db::findCode(g, 40)) s.height = h->real;
    if (const db::Group* w = db::findCode(g, 41)) s.width = w->real;
    if (const db::Group* o = db::findCode(g, 50)) s.oblique = o->real * 3.14159265358979323846 / 180.0;
    return s;
}

std::wstring format4(double v) {
    wchar_t buf[40];
    std::swprintf(buf, 40, L"%.4f", v);
    return buf;
}

bool textOf(const CommandToken& t, std::wstring& text) {
    if (t.type == RTSTR) {
        text = t.text;
        return true;
    }
    if (t.type == RTREAL || t.type == RTSHORT) {
        wchar_t buf[40];
        std::swprintf(buf, 40, L"%g", t.real);
        text = buf;
        return true;
    }
    return false;
}

// Reads a point, reprompting after answers that are not points; false when input ends.
bool askPoint(CommandInput& in, const wchar_t* promptText, double p[3]) {
    while (const CommandToken* t = ask(in, promptText)) {
        if (readPoint(*t, p)) return true;
        if (t->isEnter()) return false;
        say(L"\nInvalid point.");
    }
    return false;
}

struct Placement {
    const Justification* just = nullptr;
    double first[3] = {0, 0, 0};
    double second[3] = {0, 0, 0};
};

int makeText(const Placement& where, const Style& style, double height, double rotation, const std::wstring& text) {
    bool left = !where.just || (where.just->horizontal == 0 && where.just->vertical == 0);
    RbPtr list(acutBuildList(RTDXF0, L"TEXT", 10, where.first, 40, height, 1, text.c_str(), 50, rotation, 7,
                             style.name.c_str(), 0));
    resbuf* tail = list.get();
    while (tail->rbnext) tail = tail->rbnext;
    if (style.width != 1.0) tail = tail->rbnext = acutBuildList(41, style.width, 0);
    if (style.oblique != 0.0) tail = tail->rbnext = acutBuildList(51, style.oblique, 0);
    if (!left) {
        bool twoPoints = where.just->horizontal == 3 || where.just->horizontal == 5;
        tail->rbnext = acutBuildList(72, where.just->horizontal, 73, where.just->vertical, 11,
                                     twoPoints ? where.second : where.first, 0);
    }
    return makeWithCurrentProperties(list.release());
}

bool twoPoints(const Placement& where) {
    return where.just && (where.just->horizontal == 3 || where.just->horizontal == 5);
}

// Style to use: a name answered at the Style option, when such a style exists.
void chooseStyle(CommandInput& in, Style& style) {
    const CommandToken* n = ask(in, L"\nEnter style name or [?] <" + style.name + L">: ");
    if (!n || n->type != RTSTR || n->isEnter()) return;
    if (database().findEntry("STYLE", n->text) == db::kNone) {
        say(L"\nCannot find text style \"" + n->text + L"\".");
        return;
    }
    vars().setString(L"TEXTSTYLE", n->text);
    style = currentStyle();
}

// The start point, or a justification and its point(s); false when the input ends.
bool readPlacement(CommandInput& in, Style& style, double size, Placement& where) {
    for (;;) {
        const CommandToken* t = ask(in, L"\nCurrent text style:  \"" + style.name + L"\"  Text height:  " +
                                            format4(style.height > 0 ? style.height : size) +
                                            L"\nSpecify start point of text or [Justify/Style]: ");
        if (!t || t->isEnter()) return false;
        if (isKeyword(*t, {L"STYLE", L"S"})) {
            chooseStyle(in, style);
            continue;
        }
        const CommandToken* j = t;
        if (isKeyword(*t, {L"JUSTIFY", L"J"}))
            j = ask(in, L"\nEnter an option [Align/Fit/Center/Middle/Right/TL/TC/TR/ML/MC/MR/BL/BC/BR]: ");
        if (!j) return false;
        if ((where.just = justificationOf(*j))) {
            if (!askPoint(in, twoPoints(where) ? L"\nSpecify first endpoint of text baseline: " : L"\nSpecify point: ",
                          where.first))
                return false;
            return !twoPoints(where) || askPoint(in, L"\nSpecify second endpoint of text baseline: ", where.second);
        }
        if (readPoint(*j, where.first)) return true;
        say(L"\nInvalid option keyword.");
    }
}

// The height answered (TEXTSIZE then follows it); Enter keeps size.
double readHeight(CommandInput& in, double size) {
    while (const CommandToken* t = ask(in, L"\nSpecify height <" + format4(size) + L">: ")) {
        if (t->isEnter()) break;
        double v;
        if (readReal(*t, v) && v > 0) {
            vars().setReal(L"TEXTSIZE", v);
            return v;
        }
        say(L"\nRequires a positive number.");
    }
    return size;
}

// The rotation in radians: an angle in the current units, or a point the baseline aims at.
double readRotation(CommandInput& in, const Placement& where) {
    while (const CommandToken* t = ask(in, L"\nSpecify rotation angle of text <0>: ")) {
        if (t->isEnter()) break;
        double v, p[3];
        if (readReal(*t, v)) return toRadians(v);
        if (readPoint(*t, p)) return std::atan2(p[1] - where.first[1], p[0] - where.first[0]);
        say(L"\nRequires valid numeric angle or second point.");
    }
    return 0.0;
}

int textCommand(CommandInput& in) {
    Style style = currentStyle();
    double size = 2.5;
    if (const SysVarValue* v = vars().find(L"TEXTSIZE")) size = v->real;
    Placement where;
    if (!readPlacement(in, style, size, where)) return RTNORM;
    bool aligned = where.just && where.just->horizontal == 3;  // height follows from the baseline
    double height = style.height > 0 ? style.height : (aligned ? size : readHeight(in, size));
    double rotation = twoPoints(where)
                          ? std::atan2(where.second[1] - where.first[1], where.second[0] - where.first[0])
                          : readRotation(in, where);
    // The first line, then each further line below the one before until Enter.
    const CommandToken* t = ask(in, L"\nEnter text: ");
    std::wstring text;
    while (t && !t->isEnter() && textOf(*t, text)) {
        if (int status = makeText(where, style, height, rotation, text); status != RTNORM) return status;
        double down[2] = {std::sin(rotation) * kLineSpacing * height, -std::cos(rotation) * kLineSpacing * height};
        for (double* p : {where.first, where.second}) {
            p[0] += down[0];
            p[1] += down[1];
        }
        t = ask(in, L"\nEnter text: ");
    }
    return RTNORM;
}

CommandRegistration text(L"TEXT", textCommand);
CommandRegistration dtext(L"DTEXT", textCommand);

}  // namespace
}  // namespace host::cmd
