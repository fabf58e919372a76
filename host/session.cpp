#include "host/session.h"

#include <atomic>

namespace host {
namespace {

std::atomic<Session*> g_active{nullptr};

}  // namespace

PartStore::~PartStore() { clear(); }

void PartStore::clear() {
    // Each part goes outside the lock: its destructor may still ask for a part made before it.
    for (;;) {
        std::shared_ptr<void> last;
        {
            std::lock_guard lock(mutex_);
            if (parts_.empty()) break;
            last = std::move(parts_.back().second);
            parts_.pop_back();
        }
    }
}

void* PartStore::find(std::type_index type, std::shared_ptr<void> (*make)()) {
    std::lock_guard lock(mutex_);
    for (auto& [key, object] : parts_)
        if (key == type) return object.get();
    std::shared_ptr<void> object = make();
    void* raw = object.get();
    parts_.emplace_back(type, std::move(object));
    return raw;
}

Session::Session() : previous_(g_active.exchange(this)) {}

// The parts are destroyed while this session is still the active one, then it steps back.
Session::~Session() {
    parts_.clear();
    g_active.store(previous_);
}

Session& Session::active() {
    if (Session* s = g_active.load()) return *s;
    // Never destroyed: threads a module started may still print at exit.
    static Session* processSession = new Session;
    Session* s = g_active.load();
    return s ? *s : *processSession;
}

}  // namespace host
