// The host's system registry and dynamic linker, as far as a module's start-up uses them.
#pragma once

#include "AdAChar.h"

class AcRxObject {
public:
    virtual ~AcRxObject() = default;
};

class AcRxDictionary : public AcRxObject {
public:
    virtual AcRxObject* at(const ACHAR* key) const = 0;
};

class AcRxDynamicLinker : public AcRxObject {
public:
    static AcRxDynamicLinker* cast(const AcRxObject* obj);
    virtual bool unlockApplication(void* appId) const = 0;
    virtual bool lockApplication(void* appId) const = 0;
    virtual bool isApplicationLocked(const ACHAR* name) const = 0;
    virtual bool registerAppMDIAware(void* appId) const = 0;
    virtual bool registerAppNotMDIAware(void* appId) const = 0;
};

#define ACRX_DYNAMIC_LINKER ACRX_T("DynamicLinker")

AcRxDictionary* acrxSysRegistry();

#define acrxDynamicLinker AcRxDynamicLinker::cast(acrxSysRegistry()->at(ACRX_DYNAMIC_LINKER))
