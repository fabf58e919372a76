// Per-document data: one record per open drawing, dropped when the drawing is destroyed.
#pragma once

#include <map>

#include "acdocman.h"

namespace vrn2 {

// No function of the table keeps per-drawing state yet; this is its place.
struct CDocData {};

template <class T>
class AsdkDataManager : public AcApDocManagerReactor {
public:
    AsdkDataManager() { acDocManager->addReactor(this); }
    ~AsdkDataManager() override { acDocManager->removeReactor(this); }
    AsdkDataManager(const AsdkDataManager&) = delete;
    AsdkDataManager& operator=(const AsdkDataManager&) = delete;

    void documentToBeDestroyed(AcApDocument* doc) override { records_.erase(doc); }
    T& docData(AcApDocument* doc) { return records_[doc]; }
    T& docData() { return docData(acDocManager->curDocument()); }
    size_t size() const { return records_.size(); }

private:
    std::map<AcApDocument*, T> records_;
};

// The module's one manager, alive from library start-up to unload.
AsdkDataManager<CDocData>& docDataManager();

}  // namespace vrn2
