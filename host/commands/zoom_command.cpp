// ZOOM: changes the view of model space (VIEWCTR, VIEWSIZE and the virtual screen VSMIN,
// VSMAX). Extents fits the drawing's extents (and sets EXTMIN and EXTMAX), All the extents
// and the limits, Window or a corner fits a window, Center takes a centre and a height or
// magnification, Previous goes back, Object fits the objects selected; a scale nX or nXP
// scales the view, a bare n scales the view of the limits.
#include <algorithm>
#include <cmath>
#include <vector>

#include "adscodes.h"
#include "host/commands/object_selection.h"
#include "host/db/database.h"
#include "host/db/extents.h"
#include "host/db/header_sync.h"
#include "host/runtime/host.h"
#include "host/text.h"

namespace host::cmd {
namespace {

struct View {
    double centre[3];
    double height;
};

// Views to go back to: they belong to the drawing.
struct ViewHistory {
    std::vector<View> views;
};

std::vector<View>& history() { return Host::instance().current().data<ViewHistory>().views; }

double aspect() {
    const SysVarValue* s = vars().find(L"SCREENSIZE");
    return s && s->point[1] > 0 ? s->point[0] / s->point[1] : 4.0 / 3.0;
}

View currentView() {
    View v{{210.0, 148.5, 0.0}, 297.0};
    if (const SysVarValue* c = vars().find(L"VIEWCTR"))
        for (int i = 0; i < 3; ++i) v.centre[i] = c->point[i];
    if (const SysVarValue* h = vars().find(L"VIEWSIZE")) v.height = h->real;
    return v;
}

void setView(const View& v) {
    history().push_back(currentView());
    db::setViewVariables(vars(), v.centre, v.height);
}

db::Box limits() {
    db::Box box;
    const SysVarValue* lo = vars().find(L"LIMMIN");
    const SysVarValue* hi = vars().find(L"LIMMAX");
    box.add(db::P2{lo ? lo->point[0] : 0.0, lo ? lo->point[1] : 0.0});
    box.add(db::P2{hi ? hi->point[0] : 420.0, hi ? hi->point[1] : 297.0});
    return box;
}

void fit(const db::Box& box) {
    View v = currentView();
    v.centre[0] = (box.minX + box.maxX) / 2;
    v.centre[1] = (box.minY + box.maxY) / 2;
    double height = std::max(box.maxY - box.minY, (box.maxX - box.minX) / aspect());
    if (height > 0) v.height = height;
    setView(v);
}

void setExtents(const db::Box& box) {
    double lo[3] = {box.minX, box.minY, 0.0}, hi[3] = {box.maxX, box.maxY, 0.0};
    vars().setPoint(L"EXTMIN", lo, false, true);
    vars().setPoint(L"EXTMAX", hi, false, true);
}

db::Box extents() {
    db::Box box = db::modelSpaceExtents(database());
    if (box.valid()) setExtents(box);
    return box;
}

// "2X", "0.9x", "2XP" scale the current view; a bare number the view of the limits.
bool scale(const CommandToken& t) {
    double factor;
    if (readReal(t, factor)) {
        if (factor <= 0) return false;
        db::Box l = limits();
        View v = currentView();
        v.centre[0] = (l.minX + l.maxX) / 2;
        v.centre[1] = (l.minY + l.maxY) / 2;
        v.height = std::max(l.maxY - l.minY, (l.maxX - l.minX) / aspect()) / factor;
        setView(v);
        return true;
    }
    if (t.type != RTSTR) return false;
    std::wstring k = upperAscii(t.text);
    size_t cut = k.size() >= 2 && k.substr(k.size() - 2) == L"XP" ? 2 : (!k.empty() && k.back() == L'X' ? 1 : 0);
    CommandToken number;
    number.type = RTSTR;
    number.text = k.substr(0, k.size() - cut);
    if (!cut || !readReal(number, factor) || factor <= 0) return false;
    View v = currentView();
    v.height /= factor;
    setView(v);
    return true;
}

bool askPoint(CommandInput& in, const std::wstring& promptText, double p[3]) {
    const CommandToken* t = ask(in, promptText);
    return t && readPoint(*t, p);
}

void window(CommandInput& in, const double first[3]) {
    double second[3];
    if (!askPoint(in, L"\nSpecify opposite corner: ", second)) return;
    db::Box box;
    box.add(db::P2{first[0], first[1]});
    box.add(db::P2{second[0], second[1]});
    fit(box);
}

void centre(CommandInput& in) {
    View v = currentView();
    const CommandToken* t = ask(in, L"\nSpecify center point: ");
    if (!t) return;
    if (!t->isEnter() && !readPoint(*t, v.centre)) return;
    t = ask(in, L"\nEnter magnification or height <" + std::to_wstring(v.height) + L">: ");
    double h;
    if (t && !t->isEnter()) {
        if (readReal(*t, h) && h > 0) {
            v.height = h;
        } else if (t->type == RTSTR) {
            std::wstring k = upperAscii(t->text);
            CommandToken number;
            number.type = RTSTR;
            number.text = k.substr(0, k.find(L'X'));
            if (k.find(L'X') != std::wstring::npos && readReal(number, h) && h > 0) v.height /= h;
        }
    }
    setView(v);
}

int zoomCommand(CommandInput& in) {
    const CommandToken* t = ask(in, L"\nSpecify corner of window, enter a scale factor (nX or nXP), or\n"
                                    L"[All/Center/Dynamic/Extents/Previous/Scale/Window/Object] <real time>: ");
    if (!t || t->isEnter()) return RTNORM;
    double p[3];
    if (isKeyword(*t, {L"EXTENTS", L"E"})) {
        db::Box box = extents();
        fit(box.valid() ? box : limits());
    } else if (isKeyword(*t, {L"ALL", L"A"})) {
        db::Box box = limits();
        box.add(extents());
        fit(box);
    } else if (isKeyword(*t, {L"WINDOW", L"W"})) {
        if (askPoint(in, L"\nSpecify first corner: ", p)) window(in, p);
    } else if (isKeyword(*t, {L"CENTER", L"C"})) {
        centre(in);
    } else if (isKeyword(*t, {L"PREVIOUS", L"P"})) {
        auto& views = history();
        if (views.empty()) {
            say(L"\nNo previous view saved.");
        } else {
            View back = views.back();
            views.pop_back();
            db::setViewVariables(vars(), back.centre, back.height);
        }
    } else if (isKeyword(*t, {L"SCALE", L"S"})) {
        const CommandToken* s = ask(in, L"\nEnter a scale factor (nX or nXP): ");
        if (s && !scale(*s)) say(L"\nRequires a distance, numberX, or option keyword.");
    } else if (isKeyword(*t, {L"OBJECT", L"O"})) {
        std::vector<Name> objects;
        if (readObjects(in, objects)) {
            db::Box box;
            for (const auto& n : objects) {
                ads_name e = {n[0], n[1]};
                box.add(db::entityExtents(database(), database().indexOf(e)));
            }
            if (box.valid()) fit(box);
        }
    } else if (isKeyword(*t, {L"DYNAMIC", L"D"})) {
        // Nothing to show headless: the view stays.
    } else if (readPoint(*t, p)) {
        window(in, p);
    } else if (!scale(*t)) {
        say(L"\nRequires a distance, numberX, or option keyword.");
    }
    return RTNORM;
}

CommandRegistration zoom(L"ZOOM", zoomCommand);

}  // namespace
}  // namespace host::cmd
