#include "host/db/entity_schema.h"

#include <algorithm>

#include "host/db/database.h"

namespace host::db {
namespace {

const std::vector<int> kEntityOrder = {67, 410, 8, 6, 62, 420, 430, 440, 370, 48, 60, 347, 390, 284};

const std::vector<int> kTextCodes = {39, 10, 40, 1, 50, 41, 51, 7, 71, 72, 11, 210};

const std::vector<EntitySchema>& schemas() {
    static const std::vector<EntitySchema> all = {
        {"LINE", {{"AcDbLine", {39, 10, 11, 210}}}, {10, 11}},
        {"POINT", {{"AcDbPoint", {10, 39, 210, 50}}}, {10}},
        {"CIRCLE", {{"AcDbCircle", {39, 10, 40, 210}}}, {10, 40}},
        {"ARC", {{"AcDbCircle", {39, 10, 40, 210}}, {"AcDbArc", {50, 51}}}, {10, 40, 50, 51}},
        {"TEXT", {{"AcDbText", kTextCodes}, {"AcDbText", {73}}}, {10, 40, 1}},
        {"ATTDEF", {{"AcDbText", kTextCodes}, {"AcDbAttributeDefinition", {3, 2, 70, 73, 74, 280}}},
         {10, 40, 1, 2, 3}},
        {"ATTRIB", {{"AcDbText", kTextCodes}, {"AcDbAttribute", {2, 70, 73, 74, 280}}}, {10, 40, 1, 2}},
        {"SHAPE", {{"AcDbShape", {39, 10, 40, 2, 50, 41, 51, 210}}}, {10, 40, 2}},
        {"INSERT", {{"AcDbBlockReference", {66, 2, 10, 41, 42, 43, 50, 70, 71, 44, 45, 210}}}, {2, 10}},
        {"POLYLINE",
         {{"AcDb2dPolyline", {66, 10, 39, 70, 40, 41, 71, 72, 73, 74, 75, 210}}}, {}},
        {"VERTEX",
         {{"AcDbVertex", {}}, {"AcDb2dVertex", {10, 40, 41, 42, 70, 50, 71, 72, 73, 74, 91}}}, {10}},
        {"SEQEND", {}, {}},
        {"LWPOLYLINE", {{"AcDbPolyline", {90, 70, 43, 38, 39, 10, 40, 41, 42, 91, 210}}}, {10}, true},
        {"SOLID", {{"AcDbTrace", {10, 11, 12, 13, 39, 210}}}, {10, 11, 12}},
        {"TRACE", {{"AcDbTrace", {10, 11, 12, 13, 39, 210}}}, {10, 11, 12}},
        {"3DFACE", {{"AcDbFace", {10, 11, 12, 13, 70}}}, {10, 11, 12}},
        {"ELLIPSE", {{"AcDbEllipse", {10, 11, 210, 40, 41, 42}}}, {10, 11, 40}},
        {"MTEXT",
         {{"AcDbMText",
           {10, 40, 41, 46, 71, 72, 3, 1, 7, 210, 11, 42, 43, 50, 73, 44, 90, 63, 420, 45}}},
         {10, 1}},
        {"XLINE", {{"AcDbXline", {10, 11}}}, {10, 11}},
        {"RAY", {{"AcDbRay", {10, 11}}}, {10, 11}},
        {"SPLINE",
         {{"AcDbSpline", {210, 70, 71, 72, 73, 74, 42, 43, 44, 12, 13, 40, 41, 10, 11}}}, {}},
        {"BLOCK", {{"AcDbBlockBegin", {2, 70, 10, 3, 1, 4}}}, {2, 70, 10}},
        {"ENDBLK", {{"AcDbBlockEnd", {}}}, {}},
    };
    return all;
}

const char* polylineMarker(int flags) {
    if (flags & 8) return "AcDb3dPolyline";
    if (flags & 16) return "AcDbPolygonMesh";
    if (flags & 64) return "AcDbPolyFaceMesh";
    return "AcDb2dPolyline";
}

const char* vertexMarker(int flags) {
    if (flags & 8) return "AcDb3dPolylineVertex";
    if (flags & 16) return "AcDbPolygonMeshVertex";
    if (flags & 64) return "AcDbPolyFaceMeshVertex";
    return "AcDb2dVertex";
}

const char* markerFor(const EntitySchema& schema, size_t i, int polylineFlags) {
    if (schema.type == "POLYLINE") return polylineMarker(polylineFlags);
    if (schema.type == "VERTEX" && i == 1) return vertexMarker(polylineFlags);
    return schema.subclasses[i].marker;
}

size_t rankIn(const std::vector<int>& codes, int code) {
    auto it = std::find(codes.begin(), codes.end(), code);
    return static_cast<size_t>(it - codes.begin());
}

}  // namespace

const EntitySchema* entitySchema(std::string_view type) {
    for (const auto& s : schemas())
        if (s.type == type) return &s;
    return nullptr;
}

bool isEntityCode(int code) {
    return std::find(kEntityOrder.begin(), kEntityOrder.end(), code) != kEntityOrder.end();
}

const char* subclassOf(const EntitySchema& schema, int code, int polylineFlags) {
    for (size_t i = 0; i < schema.subclasses.size(); ++i) {
        const auto& codes = schema.subclasses[i].codes;
        if (std::find(codes.begin(), codes.end(), code) != codes.end())
            return markerFor(schema, i, polylineFlags);
    }
    return nullptr;
}

GroupList layoutEntity(const Database& db, const EntitySchema& schema, const GroupList& groups,
                       int polylineFlags) {
    bool markers = !db.isR12();
    std::vector<bool> placed(groups.size(), false);
    GroupList out;
    auto take = [&](const std::vector<int>& codes, bool keepOrder) {
        std::vector<size_t> picked;
        for (size_t i = 0; i < groups.size(); ++i)
            if (!placed[i] && rankIn(codes, groups[i].code) < codes.size()) picked.push_back(i);
        if (!keepOrder)
            std::stable_sort(picked.begin(), picked.end(), [&](size_t a, size_t b) {
                return rankIn(codes, groups[a].code) < rankIn(codes, groups[b].code);
            });
        for (size_t i : picked) {
            placed[i] = true;
            out.push_back(groups[i]);
        }
    };
    if (markers) out.push_back(stringGroup(100, L"AcDbEntity"));
    std::vector<int> entityCodes = kEntityOrder;
    if (!markers)  // R12 has no layouts, true colours, lineweights or plot styles
        std::erase_if(entityCodes, [](int c) { return c >= 100; });
    take(entityCodes, false);
    for (int c : kEntityOrder)  // what R12 cannot hold is dropped
        for (size_t i = 0; i < groups.size(); ++i)
            if (groups[i].code == c) placed[i] = true;
    for (size_t s = 0; s < schema.subclasses.size(); ++s) {
        if (markers) {
            const char* marker = markerFor(schema, s, polylineFlags);
            out.push_back(stringGroup(100, std::wstring(marker, marker + std::char_traits<char>::length(marker))));
        }
        take(schema.subclasses[s].codes, schema.keepOrder);
    }
    for (size_t i = 0; i < groups.size(); ++i)
        if (!placed[i]) out.push_back(groups[i]);
    return out;
}

}  // namespace host::db
