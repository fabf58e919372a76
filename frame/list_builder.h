// Building a result-buffer list front to back; the list is released on every way out unless
// the builder hands it over.
#pragma once

#include "adsdef.h"
#include "frame/rblist.h"

namespace vrn2 {

// A new buffer of TYPE holding a copy of TEXT (null counts as empty); null without memory.
resbuf* newStringBuffer(int type, const ACHAR* text);

class ListBuilder {
public:
    // Appends a buffer of TYPE and answers it, or null when memory runs out.
    resbuf* add(int type);
    // Appends a buffer of TYPE holding a copy of TEXT; false when memory runs out.
    bool addString(int type, const ACHAR* text);
    // Appends a whole list, which the builder then owns.
    void splice(resbuf* list);
    bool empty() const { return !list_; }
    resbuf* release();

private:
    void append(resbuf* rb);

    RbList list_;
    resbuf* tail_ = nullptr;
};

}  // namespace vrn2
