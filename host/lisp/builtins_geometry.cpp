// Geometry and tables: inters, textbox, tblnext, tblobjname.
#include <cmath>

#include "acdbads.h"
#include "acedads.h"
#include "host/db/resbuf.h"
#include "host/lisp/interpreter.h"
#include "host/runtime/convert.h"
#include "host/runtime/host.h"

namespace host::lisp {
namespace {

using Args = std::vector<ValuePtr>;

// A character of text is taken to be this part of its height wide; textbox is approximate.
constexpr double kCharacterWidthPerHeight = 0.6;

bool threeD(const ValuePtr& v) { return listItems(v).size() == 3; }

// Where the lines P1-P2 and P3-P4 cross; none when they are parallel, or, with ON_SEGMENTS,
// when the crossing lies outside either segment. With 3D points the lines must meet in z too.
ValuePtr intersection(const Args& a) {
    expectCount(a, 4, 5);
    double p[4][3];
    for (int k = 0; k < 4; ++k) pointArg(a[static_cast<size_t>(k)], p[k]);
    bool onSegments = a.size() == 4 || isTrue(a[4]);
    double d1x = p[1][0] - p[0][0], d1y = p[1][1] - p[0][1];
    double d2x = p[3][0] - p[2][0], d2y = p[3][1] - p[2][1];
    double denominator = d1x * d2y - d1y * d2x;
    double scale = std::hypot(d1x, d1y) * std::hypot(d2x, d2y);
    if (scale == 0 || std::fabs(denominator) <= 1e-12 * scale) return nil();
    double ex = p[2][0] - p[0][0], ey = p[2][1] - p[0][1];
    double s = (ex * d2y - ey * d2x) / denominator;
    double u = (ex * d1y - ey * d1x) / denominator;
    const double eps = 1e-10;
    if (onSegments && (s < -eps || s > 1 + eps || u < -eps || u > 1 + eps)) return nil();
    bool all3D = threeD(a[0]) && threeD(a[1]) && threeD(a[2]) && threeD(a[3]);
    double z1 = p[0][2] + s * (p[1][2] - p[0][2]);
    double z2 = p[2][2] + u * (p[3][2] - p[2][2]);
    if (all3D && std::fabs(z1 - z2) > 1e-10 * std::max(1.0, std::fabs(z1))) return nil();
    Args out{makeReal(p[0][0] + s * d1x), makeReal(p[0][1] + s * d1y)};
    if (all3D) out.push_back(makeReal(z1));
    return makeList(out);
}

double textSize() {
    auto& h = Host::instance();
    auto* v = h.hasDocument() ? h.current().sysvars().find(L"TEXTSIZE") : nullptr;
    return v ? v->real : 2.5;
}

// (textbox ENTLIST): the corners of the text's box, from its insertion point.
ValuePtr textBox(const Args& a) {
    expectCount(a, 1, 1);
    std::wstring text;
    double height = 0, widthFactor = 1.0;
    for (auto& group : listItems(a[0])) {
        if (!group || group->kind != Kind::Cons || !group->car || group->car->kind != Kind::Int) continue;
        long long code = group->car->integer;
        if (code == 1 && group->cdr && group->cdr->kind == Kind::Str) text = group->cdr->text;
        else if (code == 40 && isNumber(group->cdr)) height = toDouble(group->cdr);
        else if (code == 41 && isNumber(group->cdr)) widthFactor = toDouble(group->cdr);
    }
    if (height <= 0) height = textSize();
    double width = static_cast<double>(text.size()) * height * widthFactor * kCharacterWidthPerHeight;
    return makeList({makeList({makeReal(0), makeReal(0), makeReal(0)}),
                     makeList({makeReal(width), makeReal(height), makeReal(0)})});
}

}  // namespace

void addGeometryBuiltins(Interpreter& in) {
    in.define(L"INTERS", [](Interpreter&, const Args& a) { return intersection(a); });
    in.define(L"TEXTBOX", [](Interpreter&, const Args& a) { return textBox(a); });
    in.define(L"TBLNEXT", [](Interpreter&, const Args& a) {
        expectCount(a, 1, 2);
        RbPtr entry(acdbTblNext(stringArg(a[0]).c_str(), a.size() == 2 && isTrue(a[1])));
        return entry ? resbufToList(entry.get()) : nil();
    });
    in.define(L"TBLOBJNAME", [](Interpreter&, const Args& a) {
        expectCount(a, 2, 2);
        ads_name name;
        if (acdbTblObjName(stringArg(a[0]).c_str(), stringArg(a[1]).c_str(), name) != RTNORM) return nil();
        return makeEname(name);
    });
}

}  // namespace host::lisp
