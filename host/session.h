// One run of the host. Every part of the host keeps its state (documents and modules, queued
// input, dialogs, registry values, the output sink) in a part of the active session, made on
// first use. A new Session starts from nothing: a test that makes one needs no resetting, and
// no state outlives the session it belongs to.
#pragma once

#include <memory>
#include <mutex>
#include <typeindex>
#include <utility>
#include <vector>

namespace host {

// Objects kept by type, each made with its default constructor on first use and destroyed
// in the reverse order of their making. A type whose constructor is private names
// PartStore as a friend.
class PartStore {
public:
    PartStore() = default;
    ~PartStore();
    PartStore(const PartStore&) = delete;
    PartStore& operator=(const PartStore&) = delete;

    template <class P>
    P& get() {
        return *static_cast<P*>(find(typeid(P), [] { return std::shared_ptr<void>(new P()); }));
    }
    // Destroys every part, the last made first.
    void clear();

private:
    void* find(std::type_index type, std::shared_ptr<void> (*make)());

    std::recursive_mutex mutex_;  // a part's constructor may ask for another part
    std::vector<std::pair<std::type_index, std::shared_ptr<void>>> parts_;  // in making order
};

class Session {
public:
    Session();   // becomes the active session
    ~Session();  // the session that was active before becomes active again
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // The innermost session alive, or the process's own one when none was made.
    static Session& active();

    template <class P>
    P& part() {
        return parts_.get<P>();
    }

private:
    Session* previous_ = nullptr;
    PartStore parts_;
};

// The part of type P of the active session.
template <class P>
P& sessionPart() {
    return Session::active().part<P>();
}

}  // namespace host
