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

namespace {

// Appends a buffer of TYPE and lets SET fill its value; false when memory runs out.
template <class Set>
bool addValue(ListBuilder& builder, int type, Set set) {
    resbuf* rb = builder.add(type);
    if (rb) set(rb->resval);
    return rb != nullptr;
}

}  // namespace

bool ListBuilder::addReal(int type, double value) {
    return addValue(*this, type, [&](ads_u_val& v) { v.rreal = value; });
}

bool ListBuilder::addPoint(int type, const ads_point value) {
    return addValue(*this, type, [&](ads_u_val& v) {
        for (int i = 0; i < 3; ++i) v.rpoint[i] = value[i];
    });
}

bool ListBuilder::addShort(int type, int value) {
    return addValue(*this, type, [&](ads_u_val& v) { v.rint = static_cast<short>(value); });
}

bool ListBuilder::addLong(int type, long value) {
    return addValue(*this, type, [&](ads_u_val& v) { v.rlong = value; });
}

bool ListBuilder::addName(int type, const ads_name value) {
    return addValue(*this, type, [&](ads_u_val& v) {
        v.rlname[0] = value[0];
        v.rlname[1] = value[1];
    });
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
