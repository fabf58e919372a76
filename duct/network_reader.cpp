#include "duct/network_reader.h"

#include <cmath>
#include <cwchar>

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "duct/duct_xdata.h"
#include "frame/entity_list.h"

namespace vrn2::duct {
namespace {

// The value of the outlet's "F-LL" attribute; -1 when it has none or it is no number.
double outletFlow(const ads_name insert) {
    ads_name at = {insert[0], insert[1]}, next;
    while (acdbEntNext(at, next) == RTNORM) {
        EntityList attribute(next);
        if (attribute.type() != L"ATTRIB") break;
        if (attribute.text(2).value_or(L"") == L"F-LL") {
            std::wstring text = attribute.text(1).value_or(L"");
            wchar_t* end = nullptr;
            double value = std::wcstod(text.c_str(), &end);
            return end != text.c_str() && std::isfinite(value) ? value : -1.0;
        }
        at[0] = next[0];
        at[1] = next[1];
    }
    return -1.0;
}

void readDuctData(const ads_name line, const EntityList& list, NetworkEntity& e) {
    e.handle = list.handle();
    std::vector<double> size = readXdataNumbers(line, L"K_DUCT_SIZE");
    if (size.size() == 1) {
        e.shape = kShapeCircular;
        e.size1 = static_cast<int>(std::lround(size[0]));
    } else if (size.size() >= 2) {
        e.shape = kShapeRectangular;
        e.size1 = static_cast<int>(std::lround(size[0]));
        e.size2 = static_cast<int>(std::lround(size[1]));
    }
    e.number = static_cast<int>(readXdataNumber(line, L"K_DUCT_NO").value_or(0.0));
    e.storedFlow = readXdataNumber(line, L"K_DUCT_G").value_or(0.0);
    if (auto mark = readXdataText(line, L"is_main")) e.mainMark = *mark == L"1" ? MainMark::One : MainMark::Zero;
    e.storedLoss = readXdataNumber(line, L"K_DUCT_DP");
    e.storedXi = readXdataNumber(line, L"K_DUCT_F");
}

NetworkEntity readEntity(const ads_name entity) {
    NetworkEntity e;
    EntityList list(entity);
    std::wstring type = list.type();
    if (type == L"LINE") {
        e.kind = EntityKind::Line;
        e.first = list.point(10).value_or(Point3{});
        e.second = list.point(11).value_or(Point3{});
        readDuctData(entity, list, e);
    } else if (type == L"INSERT" && acutWcMatch(list.text(2).value_or(L"").c_str(), kOutletPattern) == RTNORM) {
        e.kind = EntityKind::Outlet;
        e.first = list.point(10).value_or(Point3{});
        e.outletFlow = outletFlow(entity);
    }
    return e;
}

}  // namespace

std::vector<NetworkEntity> readNetworkEntities(const SelectionSet& selection) {
    std::vector<NetworkEntity> entities;
    entities.reserve(static_cast<size_t>(selection.length()));
    ads_name entity;
    for (long i = 0; selection.at(i, entity); ++i) entities.push_back(readEntity(entity));
    return entities;
}

}  // namespace vrn2::duct
