// The host's system registry with its dynamic linker, and the document manager. Their methods
// are called by modules, so each runs guarded like the interface's C functions.
#include <set>
#include <string>

#include "acdocman.h"
#include "host/boundary.h"
#include "host/runtime/host.h"
#include "host/session.h"
#include "rxregsvc.h"

namespace {

class DynamicLinker : public AcRxDynamicLinker {
public:
    bool unlockApplication(void* appId) const override {
        return host::guarded("AcRxDynamicLinker::unlockApplication", false, [&] { locked_.erase(appId); return true; });
    }
    bool lockApplication(void* appId) const override {
        return host::guarded("AcRxDynamicLinker::lockApplication", false, [&] { locked_.insert(appId); return true; });
    }
    bool isApplicationLocked(const ACHAR*) const override { return false; }
    bool registerAppMDIAware(void* appId) const override {
        return host::guarded("AcRxDynamicLinker::registerAppMDIAware", false,
                             [&] { mdiAware_.insert(appId); return true; });
    }
    bool registerAppNotMDIAware(void* appId) const override {
        return host::guarded("AcRxDynamicLinker::registerAppNotMDIAware", false,
                             [&] { mdiAware_.erase(appId); return true; });
    }
    bool isUnlocked(void* appId) const { return !locked_.count(appId); }
    bool isMDIAware(void* appId) const { return mdiAware_.count(appId) != 0; }

private:
    friend class host::PartStore;
    DynamicLinker() = default;
    mutable std::set<void*> locked_;
    mutable std::set<void*> mdiAware_;
};

// What the modules of this session told the linker.
DynamicLinker& linker() { return host::sessionPart<DynamicLinker>(); }

class SystemRegistry : public AcRxDictionary {
public:
    AcRxObject* at(const ACHAR* key) const override {
        return host::guarded("AcRxDictionary::at", nullptr, [&]() -> AcRxObject* {
            if (key && std::wstring(key) == ACRX_DYNAMIC_LINKER) return &linker();
            return nullptr;
        });
    }
};

class DocManager : public AcApDocManager {
public:
    AcApDocument* curDocument() const override {
        return host::guarded("AcApDocManager::curDocument", nullptr, [&]() -> AcApDocument* {
            auto& h = host::Host::instance();
            return h.hasDocument() ? &h.current() : nullptr;
        });
    }
    int documentCount() const override {
        return host::guarded("AcApDocManager::documentCount", 0,
                             [&] { return static_cast<int>(host::Host::instance().documents().size()); });
    }
    void addReactor(AcApDocManagerReactor* reactor) override {
        host::guarded("AcApDocManager::addReactor", [&] { host::Host::instance().addReactor(reactor); });
    }
    void removeReactor(AcApDocManagerReactor* reactor) override {
        host::guarded("AcApDocManager::removeReactor", [&] { host::Host::instance().removeReactor(reactor); });
    }
};

}  // namespace

AcRxDynamicLinker* AcRxDynamicLinker::cast(const AcRxObject* obj) {
    return dynamic_cast<AcRxDynamicLinker*>(const_cast<AcRxObject*>(obj));
}

// The registry and the document manager hold nothing themselves: they ask the session.
AcRxDictionary* acrxSysRegistry() {
    static SystemRegistry registry;
    return &registry;
}

AcApDocManager* acDocManagerPtr() {
    static DocManager manager;
    return &manager;
}

namespace host {
// Whether a module has made itself unloadable and multi-document aware.
bool moduleUnlocked(void* appId) { return linker().isUnlocked(appId); }
bool moduleMDIAware(void* appId) { return linker().isMDIAware(appId); }
}  // namespace host
