#include "host/db/group_values.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

#include "host/db/blob.h"
#include "host/db/database.h"
#include "host/text.h"

namespace host::db {
namespace {

double toReal(std::string_view s) {
    s = trimBlanks(s);
    if (!s.empty() && s.front() == '+') s.remove_prefix(1);
    double v = 0.0;
    std::from_chars(s.data(), s.data() + s.size(), v);
    return v;
}

long long toInteger(std::string_view s) {
    s = trimBlanks(s);
    if (!s.empty() && s.front() == '+') s.remove_prefix(1);
    long long v = 0;
    auto r = std::from_chars(s.data(), s.data() + s.size(), v);
    if (r.ec != std::errc() || r.ptr != s.data() + s.size()) v = static_cast<long long>(toReal(s));
    return v;
}

int hexValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

std::string fromHex(std::string_view s) {
    s = trimBlanks(s);
    std::string out;
    out.reserve(s.size() / 2);
    for (size_t i = 0; i + 1 < s.size(); i += 2) {
        int hi = hexValue(s[i]), lo = hexValue(s[i + 1]);
        if (hi < 0 || lo < 0) break;
        out += static_cast<char>(hi * 16 + lo);
    }
    return out;
}

std::string toHex(std::string_view bytes) {
    static const char* digits = "0123456789ABCDEF";
    std::string out;
    out.reserve(bytes.size() * 2);
    for (char c : bytes) {
        auto b = static_cast<unsigned char>(c);
        out += digits[b >> 4];
        out += digits[b & 0xF];
    }
    return out;
}

void readValue(const Database& db, Group& g, std::string_view raw) {
    switch (g.type) {
    case GroupType::Real: g.real = toReal(raw); break;
    case GroupType::Short:
    case GroupType::Long: g.integer = toInteger(raw); break;
    case GroupType::Name: {
        uint64_t h = 0;
        g.ref = parseHandle(raw, h) ? h : 0;
        break;
    }
    case GroupType::Binary: g.binary = fromHex(raw); break;
    case GroupType::Point: g.point[0] = toReal(raw); break;
    default: g.text = db.text(raw); break;
    }
}

}  // namespace

bool isPointCode(int code) {
    return (code >= 10 && code <= 18) || (code >= 110 && code <= 112) || code == 210 ||
           (code >= 1010 && code <= 1013);
}

std::string realText(double v) {
    if (v == 0.0) return "0.0";
    char buf[40];
    auto r = std::to_chars(buf, buf + sizeof buf, v);
    std::string s(buf, r.ptr);
    if (s.find_first_of(".eEn") == std::string::npos) s += ".0";
    return s;
}

bool Group::sameValue(const Group& o) const {
    if (code != o.code || type != o.type) return false;
    switch (type) {
    case GroupType::Real: return real == o.real;
    case GroupType::Point:
        return point[0] == o.point[0] && point[1] == o.point[1] &&
               (point[2] == o.point[2] || (o.dims < 3 && point[2] == 0.0) || (dims < 3 && o.point[2] == 0.0));
    case GroupType::Short:
    case GroupType::Long: return integer == o.integer;
    case GroupType::Name: return ref == o.ref;
    case GroupType::Binary: return binary == o.binary;
    default: return text == o.text;
    }
}

void decodeGroups(const Database& db, std::string_view blob, GroupList& data, GroupList* xdata) {
    BlobCursor cursor(blob);
    RawGroup rg;
    GroupList* out = &data;
    bool pending = false;
    RawGroup next;
    while (pending || cursor.next(rg)) {
        if (pending) {
            rg = next;
            pending = false;
        }
        if (rg.code == 1001 && out == &data) {
            if (!xdata) return;
            out = xdata;
        }
        Group g;
        g.code = rg.code;
        g.type = groupType(rg.code);
        g.raw[0] = rg.value;
        g.hasRaw = true;
        readValue(db, g, rg.value);
        if (g.type == GroupType::Point) {
            // Fold in the Y and Z lines that follow; a point with no Y line keeps one value.
            g.dims = 1;
            if (cursor.next(next)) {
                if (next.code == rg.code + 10) {
                    g.point[1] = toReal(next.value);
                    g.raw[1] = next.value;
                    g.dims = 2;
                    if (cursor.next(next)) {
                        if (next.code == rg.code + 20) {
                            g.point[2] = toReal(next.value);
                            g.raw[2] = next.value;
                            g.dims = 3;
                        } else {
                            pending = true;
                        }
                    }
                } else {
                    pending = true;
                }
            }
        }
        out->push_back(std::move(g));
    }
}

void encodeGroup(const Database& db, const Group& g, std::string& blob) {
    if (g.hasRaw) {
        appendGroup(blob, g.code, g.raw[0]);
        if (g.type == GroupType::Point) {
            if (g.dims >= 2) appendGroup(blob, g.code + 10, g.raw[1]);
            if (g.dims >= 3) appendGroup(blob, g.code + 20, g.raw[2]);
        }
        return;
    }
    switch (g.type) {
    case GroupType::Real: appendGroup(blob, g.code, realText(g.real)); break;
    case GroupType::Point:
        appendGroup(blob, g.code, realText(g.point[0]));
        if (g.dims >= 2) appendGroup(blob, g.code + 10, realText(g.point[1]));
        if (g.dims >= 3) appendGroup(blob, g.code + 20, realText(g.point[2]));
        break;
    case GroupType::Short:
    case GroupType::Long: appendGroup(blob, g.code, std::to_string(g.integer)); break;
    case GroupType::Name: appendGroup(blob, g.code, handleText(g.ref)); break;
    case GroupType::Binary: appendGroup(blob, g.code, toHex(g.binary)); break;
    default: appendGroup(blob, g.code, db.rawText(g.text)); break;
    }
}

void encodeGroups(const Database& db, const GroupList& groups, std::string& blob) {
    for (const auto& g : groups) encodeGroup(db, g, blob);
}

Group stringGroup(int code, std::wstring text) {
    Group g;
    g.code = code;
    g.type = groupType(code);
    if (g.type == GroupType::Name) {
        g.type = GroupType::String;  // a name written as text: kept as text
    }
    g.text = std::move(text);
    return g;
}

Group realGroup(int code, double v) {
    Group g;
    g.code = code;
    g.type = GroupType::Real;
    g.real = v;
    return g;
}

Group intGroup(int code, long long v) {
    Group g;
    g.code = code;
    g.type = groupType(code) == GroupType::Long ? GroupType::Long : GroupType::Short;
    g.integer = v;
    return g;
}

Group pointGroup(int code, const double p[3], int dims) {
    Group g;
    g.code = code;
    g.type = GroupType::Point;
    for (int i = 0; i < 3; ++i) g.point[i] = p[i];
    g.dims = dims;
    return g;
}

Group refGroup(int code, uint64_t handle) {
    Group g;
    g.code = code;
    g.type = GroupType::Name;
    g.ref = handle;
    return g;
}

bool isAngleGroup(std::string_view type, int code) {
    if (code < 50 || code > 53) return false;
    if (type == "ARC" || type == "TEXT" || type == "ATTDEF" || type == "ATTRIB" || type == "SHAPE")
        return code == 50 || code == 51;
    if (type == "INSERT" || type == "POINT" || type == "VERTEX" || type == "STYLE" || type == "VIEW")
        return code == 50;
    if (type == "VPORT") return code == 50 || code == 51;
    if (type == "DIMENSION") return true;
    if (type == "HATCH") return code == 52 || code == 53;
    return false;
}

void toListForm(std::string_view type, GroupList& groups) {
    constexpr double kRadians = 3.14159265358979323846 / 180.0;
    for (auto& g : groups)
        if (g.type == GroupType::Real && isAngleGroup(type, g.code)) g.real *= kRadians;
}

void toFileForm(std::string_view type, GroupList& groups) {
    constexpr double kDegrees = 180.0 / 3.14159265358979323846;
    for (auto& g : groups)
        if (g.type == GroupType::Real && isAngleGroup(type, g.code) && !g.hasRaw) g.real *= kDegrees;
}

const Group* findCode(const GroupList& groups, int code) {
    for (const auto& g : groups)
        if (g.code == code) return &g;
    return nullptr;
}

Group* findCode(GroupList& groups, int code) {
    for (auto& g : groups)
        if (g.code == code) return &g;
    return nullptr;
}

}  // namespace host::db
