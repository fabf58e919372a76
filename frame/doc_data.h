// Per-document data: one record per open drawing, dropped when the drawing is destroyed.
//
// Where the module's values live:
// - Per drawing (here, through documentState<T>()): what describes one drawing's content and
//   means nothing in another: the i-d chart drawn in it (origin, scales, pressure), the last
//   air mix kept to be shown on that chart, and the traced duct network with its main path.
// - Per module (plain module-wide values, alive while the module is loaded): what the user
//   typed or chose, carried from one command to the next whatever drawing is current: the
//   remembered pressure and state-point choice, the streams of the mixing dialog, the duct
//   calculation inputs; and the module's own objects: the unit-conversion window, the title
//   the dialog-font thread looks for, the installation root as last read from _DRV.
#pragma once

#include <map>
#include <memory>
#include <typeindex>
#include <typeinfo>

#include "acdocman.h"

namespace vrn2 {

// One drawing's record: a value of each type the module keeps per drawing, made on first use.
// The frame knows none of the types; each subsystem names its own.
class CDocData {
public:
    template <class T>
    T& state() {
        auto& slot = slots_[std::type_index(typeid(T))];
        if (!slot) slot = Slot(new T(), Destroy{[](void* p) { delete static_cast<T*>(p); }});
        return *static_cast<T*>(slot.get());
    }
    size_t stateCount() const { return slots_.size(); }

private:
    struct Destroy {
        void (*destroy)(void*) = nullptr;
        void operator()(void* p) const { destroy(p); }
    };
    using Slot = std::unique_ptr<void, Destroy>;
    std::map<std::type_index, Slot> slots_;
};

template <class T>
class AsdkDataManager : public AcApDocManagerReactor {
public:
    AsdkDataManager() = default;
    ~AsdkDataManager() override { stopWatching(); }
    AsdkDataManager(const AsdkDataManager&) = delete;
    AsdkDataManager& operator=(const AsdkDataManager&) = delete;

    void documentToBeDestroyed(AcApDocument* doc) override {
        records_.erase(doc);
        if (records_.empty()) stopWatching();
    }
    // The record of DOC, made on first use. Without a document (none is open) the record is
    // one that belongs to no drawing.
    T& docData(AcApDocument* doc) {
        if (!doc) return detached_;
        // The manager listens to the document manager only while it holds records, so that a
        // manager that outlives the host's document manager leaves nothing registered there.
        if (!watching_) {
            acDocManager->addReactor(this);
            watching_ = true;
        }
        return records_[doc];
    }
    T& docData() { return docData(acDocManager->curDocument()); }
    size_t size() const { return records_.size(); }

private:
    void stopWatching() {
        if (watching_) acDocManager->removeReactor(this);
        watching_ = false;
    }

    std::map<AcApDocument*, T> records_;
    T detached_;
    bool watching_ = false;
};

// The module's one manager, alive from library start-up to unload.
AsdkDataManager<CDocData>& docDataManager();

// The value of type T that belongs to the current drawing, made on first use and dropped with
// the drawing.
template <class T>
T& documentState() {
    return docDataManager().docData().template state<T>();
}

}  // namespace vrn2
