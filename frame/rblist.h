// An owning result-buffer list: released with acutRelRb on every way out.
#pragma once

#include "acutads.h"

namespace vrn2 {

class RbList {
public:
    explicit RbList(resbuf* head = nullptr) : head_(head) {}
    ~RbList() { acutRelRb(head_); }
    RbList(const RbList&) = delete;
    RbList& operator=(const RbList&) = delete;
    RbList(RbList&& other) noexcept : head_(other.release()) {}
    RbList& operator=(RbList&& other) noexcept {
        reset(other.release());
        return *this;
    }

    resbuf* get() const { return head_; }
    resbuf** out() {
        reset();
        return &head_;
    }
    resbuf* release() {
        resbuf* h = head_;
        head_ = nullptr;
        return h;
    }
    void reset(resbuf* head = nullptr) {
        if (head_ != head) acutRelRb(head_);
        head_ = head;
    }
    explicit operator bool() const { return head_ != nullptr; }

private:
    resbuf* head_;
};

}  // namespace vrn2
