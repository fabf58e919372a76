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

bool ListBuilder::addReal(int type, double value) {
    resbuf* rb = add(type);
    if (rb) rb->resval.rreal = value;
    return rb != nullptr;
}

bool ListBuilder::addPoint(int type, const ads_point value) {
    resbuf* rb = add(type);
    if (rb)
        for (int i = 0; i < 3; ++i) rb->resval.rpoint[i] = value[i];
    return rb != nullptr;
}

bool ListBuilder::addShort(int type, int value) {
    resbuf* rb = add(type);
    if (rb) rb->resval.rint = static_cast<short>(value);
    return rb != nullptr;
}

bool ListBuilder::addLong(int type, long value) {
    resbuf* rb = add(type);
    if (rb) rb->resval.rlong = value;
    return rb != nullptr;
}

bool ListBuilder::addName(int type, const ads_name value) {
    resbuf* rb = add(type);
    if (rb) {
        rb->resval.rlname[0] = value[0];
        rb->resval.rlname[1] = value[1];
    }
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
