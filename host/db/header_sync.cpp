#include "host/db/header_sync.h"

#include "adscodes.h"
#include "host/db/blob.h"
#include "host/db/group_values.h"
#include "host/db/sysvars.h"
#include "host/text.h"

namespace host::db {
namespace {

constexpr double kDegrees = 180.0 / 3.14159265358979323846;

enum class Kind { Short, Real, Angle, String, Point2, Point3, Color };

struct Mapping {
    const wchar_t* sysvar;
    const char* header;
    int code;
    Kind kind;
};

const Mapping kMappings[] = {
    {L"CLAYER", "$CLAYER", 8, Kind::String},        {L"CECOLOR", "$CECOLOR", 62, Kind::Color},
    {L"CELTYPE", "$CELTYPE", 6, Kind::String},      {L"TEXTSTYLE", "$TEXTSTYLE", 7, Kind::String},
    {L"TEXTSIZE", "$TEXTSIZE", 40, Kind::Real},     {L"LUNITS", "$LUNITS", 70, Kind::Short},
    {L"LUPREC", "$LUPREC", 70, Kind::Short},        {L"AUNITS", "$AUNITS", 70, Kind::Short},
    {L"AUPREC", "$AUPREC", 70, Kind::Short},        {L"ANGBASE", "$ANGBASE", 50, Kind::Angle},
    {L"ANGDIR", "$ANGDIR", 70, Kind::Short},        {L"DIMZIN", "$DIMZIN", 70, Kind::Short},
    {L"UNITMODE", "$UNITMODE", 70, Kind::Short},    {L"INSUNITS", "$INSUNITS", 70, Kind::Short},
    {L"MEASUREMENT", "$MEASUREMENT", 70, Kind::Short}, {L"PDMODE", "$PDMODE", 70, Kind::Short},
    {L"PDSIZE", "$PDSIZE", 40, Kind::Real},         {L"ORTHOMODE", "$ORTHOMODE", 70, Kind::Short},
    {L"OSMODE", "$OSMODE", 70, Kind::Short},        {L"TILEMODE", "$TILEMODE", 70, Kind::Short},
    {L"ELEVATION", "$ELEVATION", 40, Kind::Real},   {L"THICKNESS", "$THICKNESS", 40, Kind::Real},
    {L"LIMMIN", "$LIMMIN", 10, Kind::Point2},       {L"LIMMAX", "$LIMMAX", 10, Kind::Point2},
    {L"EXTMIN", "$EXTMIN", 10, Kind::Point3},       {L"EXTMAX", "$EXTMAX", 10, Kind::Point3},
    {L"MIRRTEXT", "$MIRRTEXT", 70, Kind::Short},
};

std::wstring colourText(long long n) {
    if (n == 256) return L"BYLAYER";
    if (n == 0) return L"BYBLOCK";
    return std::to_wstring(n);
}

long long colourNumber(const std::wstring& text) {
    static const wchar_t* names[] = {L"RED", L"YELLOW", L"GREEN", L"CYAN", L"BLUE", L"MAGENTA", L"WHITE"};
    std::wstring upper = upperAscii(text);
    if (upper == L"BYLAYER") return 256;
    if (upper == L"BYBLOCK") return 0;
    for (int i = 0; i < 7; ++i)
        if (upper == names[i]) return i + 1;
    try {
        return std::stoll(upper);
    } catch (...) {
        return 256;
    }
}

// The first group of a header variable, read.
bool headerGroup(const Database& db, const Mapping& m, Group& out) {
    const HeaderVar* v = db.headerVar(m.header);
    if (!v) return false;
    GroupList groups;
    decodeGroups(db, v->groups, groups, nullptr);
    const Group* g = findCode(groups, m.code);
    if (!g) return false;
    out = *g;
    return true;
}

Group fromSysVar(const Mapping& m, const SysVarValue& v) {
    switch (m.kind) {
    case Kind::Short: return intGroup(m.code, v.integer);
    case Kind::Real: return realGroup(m.code, v.real);
    case Kind::Angle: return realGroup(m.code, v.real * kDegrees);
    case Kind::String: return stringGroup(m.code, v.text);
    case Kind::Color: return intGroup(m.code, colourNumber(v.text));
    case Kind::Point2: return pointGroup(m.code, v.point, 2);
    case Kind::Point3: return pointGroup(m.code, v.point, 3);
    }
    return Group{};
}

void toSysVar(const Mapping& m, const Group& g, SysVars& vars) {
    const SysVarValue* old = vars.find(m.sysvar);
    bool readOnly = old && old->readOnly;
    switch (m.kind) {
    case Kind::Short: vars.setShort(m.sysvar, static_cast<short>(g.integer), readOnly); break;
    case Kind::Real: vars.setReal(m.sysvar, g.real, readOnly); break;
    case Kind::Angle: vars.setReal(m.sysvar, g.real / kDegrees, readOnly); break;
    case Kind::String: vars.setString(m.sysvar, g.text, readOnly); break;
    case Kind::Color: vars.setString(m.sysvar, colourText(g.integer), readOnly); break;
    case Kind::Point2:
    case Kind::Point3: {
        double p[3] = {g.point[0], g.point[1], m.kind == Kind::Point3 ? g.point[2] : 0.0};
        vars.setPoint(m.sysvar, p, m.kind == Kind::Point2, readOnly);
        break;
    }
    }
}

bool sameSetting(const Mapping& m, const Group& a, const Group& b) {
    if (m.kind == Kind::String) return equalsNoCase(a.text, b.text);
    return a.sameValue(b);
}

uint32_t activeViewport(const Database& db) { return db.findEntry("VPORT", L"*ACTIVE"); }

// A group with its new value, keeping the file's text when the value is the same.
void keepOrReplace(Group& old, const Group& now) {
    if (old.sameValue(now)) return;
    int dims = old.dims;
    old = now;
    if (old.type == GroupType::Point) old.dims = dims;
}

// The extended-data-keeping rewrite of the active viewport's centre and height.
bool viewportChanges(const Database& db, const SysVars& vars, uint32_t index, std::string& blob) {
    const SysVarValue* centre = vars.find(L"VIEWCTR");
    const SysVarValue* size = vars.find(L"VIEWSIZE");
    if (!centre || !size) return false;
    GroupList data, xdata;
    decodeGroups(db, db.record(index).groups, data, &xdata);
    Group* c = findCode(data, 12);
    Group* h = findCode(data, 40);
    if (!c || !h) return false;
    Group newCentre = pointGroup(12, centre->point, c->dims);
    Group newHeight = realGroup(40, size->real);
    if (c->point[0] == centre->point[0] && c->point[1] == centre->point[1] && h->real == size->real) return false;
    keepOrReplace(*c, newCentre);
    keepOrReplace(*h, newHeight);
    encodeGroups(db, data, blob);
    encodeGroups(db, xdata, blob);
    return true;
}

}  // namespace

void setViewVariables(SysVars& vars, const double centre[3], double height) {
    double aspect = 4.0 / 3.0;
    if (const SysVarValue* s = vars.find(L"SCREENSIZE"); s && s->point[1] > 0) aspect = s->point[0] / s->point[1];
    double c[3] = {centre[0], centre[1], 0.0};
    vars.setPoint(L"VIEWCTR", c, false, true);
    vars.setReal(L"VIEWSIZE", height, true);
    double half = height * aspect / 2;
    double lo[3] = {c[0] - half, c[1] - height / 2, 0.0}, hi[3] = {c[0] + half, c[1] + height / 2, 0.0};
    vars.setPoint(L"VSMIN", lo, false, true);
    vars.setPoint(L"VSMAX", hi, false, true);
}

void loadSysVars(const Database& db, SysVars& vars) {
    for (const auto& m : kMappings) {
        Group g;
        if (headerGroup(db, m, g)) toSysVar(m, g, vars);
    }
    double centre[3] = {210.0, 148.5, 0.0};
    double height = 297.0;
    if (const SysVarValue* c = vars.find(L"VIEWCTR")) centre[0] = c->point[0], centre[1] = c->point[1];
    if (const SysVarValue* h = vars.find(L"VIEWSIZE")) height = h->real;
    uint32_t vport = activeViewport(db);
    if (vport != kNone) {
        GroupList data;
        decodeGroups(db, db.record(vport).groups, data, nullptr);
        if (const Group* c = findCode(data, 12)) centre[0] = c->point[0], centre[1] = c->point[1];
        if (const Group* h = findCode(data, 40); h && h->real > 0) height = h->real;
    }
    setViewVariables(vars, centre, height);
}

SaveOverrides changesToSave(const Database& db, const SysVars& vars) {
    SaveOverrides out;
    static const SysVars defaults;
    for (const auto& m : kMappings) {
        const SysVarValue* v = vars.find(m.sysvar);
        if (!v) continue;
        Group now = fromSysVar(m, *v);
        Group before;
        if (headerGroup(db, m, before)) {
            if (sameSetting(m, before, now)) continue;
            GroupList groups;
            decodeGroups(db, db.headerVar(m.header)->groups, groups, nullptr);
            for (auto& g : groups)
                if (g.code == m.code) {
                    keepOrReplace(g, now);
                    break;
                }
            std::string blob;
            encodeGroups(db, groups, blob);
            out.header[m.header] = std::move(blob);
        } else if (const SysVarValue* d = defaults.find(m.sysvar)) {
            if (sameSetting(m, fromSysVar(m, *d), now)) continue;
            std::string blob;
            encodeGroup(db, now, blob);
            out.added.emplace_back(m.header, std::move(blob));
        }
    }
    uint32_t vport = activeViewport(db);
    std::string blob;
    if (vport != kNone && viewportChanges(db, vars, vport, blob)) out.records[vport] = std::move(blob);
    return out;
}

}  // namespace host::db
