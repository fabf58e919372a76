// Object ids of the drawing database, and their conversion from and to entity names.
#pragma once

#include "acadstrc.h"
#include "adsdef.h"

class AcDbStub;

class AcDbObjectId {
public:
    AcDbObjectId() = default;
    bool isNull() const { return mId == nullptr; }
    void setNull() { mId = nullptr; }
    bool operator==(const AcDbObjectId& other) const { return mId == other.mId; }
    bool operator!=(const AcDbObjectId& other) const { return mId != other.mId; }
    AcDbStub* stub() const { return mId; }
    void setStub(AcDbStub* stub) { mId = stub; }
    static const AcDbObjectId kNull;

private:
    AcDbStub* mId = nullptr;
};

inline const AcDbObjectId AcDbObjectId::kNull{};

Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& objId, const ads_name objName);
Acad::ErrorStatus acdbGetAdsName(ads_name& objName, AcDbObjectId objId);
