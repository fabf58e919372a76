#include "frame/list_builder.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "acutads.h"

namespace vrn2 {

resbuf* newStringBuffer(int type, const ACHAR* text) {
    if (!text) text = L"";
    size_t bytes = (std::wcslen(text) + 1) * sizeof(ACHAR);
    auto* copy = static_cast<ACHAR*>(std::malloc(bytes));
    resbuf* rb = copy ? acutNewRb(type) : nullptr;
    if (!rb) {
        std::free(copy);
        return nullptr;
    }
    std::memcpy(copy, text, bytes);
    rb->resval.rstring = copy;
    return rb;
}

void ListBuilder::append(resbuf* rb) {
    if (tail_) tail_->rbnext = rb;
    else list_.reset(rb);
    tail_ = rb;
}

resbuf* ListBuilder::add(int type) {
    resbuf* rb = acutNewRb(type);
    if (rb) append(rb);
    return rb;
}

bool ListBuilder::addString(int type, const ACHAR* text) {
    resbuf* rb = newStringBuffer(type, text);
    if (rb) append(rb);
    return rb != nullptr;
}

void ListBuilder::splice(resbuf* list) {
    if (!list) return;
    append(list);
    while (tail_->rbnext) tail_ = tail_->rbnext;
}

resbuf* ListBuilder::release() {
    tail_ = nullptr;
    return list_.release();
}

}  // namespace vrn2
