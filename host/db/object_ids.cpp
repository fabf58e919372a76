// Object ids for the entity names of the current session: an id is an opaque number standing
// for one entity name, handed out on first request and the same for that name afterwards.
#include <array>
#include <cstdint>
#include <vector>

#include "dbid.h"
#include "host/boundary.h"
#include "host/session.h"

namespace {

struct ObjectIdTable {
    std::vector<std::array<long, 2>> names;  // id n stands for names[n - 1]
};

}  // namespace

Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& objId, const ads_name objName) {
    return host::guarded(__func__, Acad::eInvalidInput, [&]() -> Acad::ErrorStatus {
        if (!objName || (objName[0] == 0 && objName[1] == 0)) return Acad::eInvalidInput;
        auto& names = host::sessionPart<ObjectIdTable>().names;
        std::size_t index = 0;
        while (index < names.size() && !(names[index][0] == objName[0] && names[index][1] == objName[1])) ++index;
        if (index == names.size()) names.push_back({objName[0], objName[1]});
        objId.setStub(reinterpret_cast<AcDbStub*>(static_cast<std::uintptr_t>(index + 1)));
        return Acad::eOk;
    });
}

Acad::ErrorStatus acdbGetAdsName(ads_name& objName, AcDbObjectId objId) {
    return host::guarded(__func__, Acad::eInvalidInput, [&]() -> Acad::ErrorStatus {
        const auto index = reinterpret_cast<std::uintptr_t>(objId.stub());
        const auto& names = host::sessionPart<ObjectIdTable>().names;
        if (index == 0 || index > names.size()) return Acad::eInvalidInput;
        objName[0] = names[index - 1][0];
        objName[1] = names[index - 1][1];
        return Acad::eOk;
    });
}
