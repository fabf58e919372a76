// Building a result-buffer list front to back; the list is released on every way out unless
// the builder hands it over. The same builder makes AutoLISP results and entity lists for
// acdbEntMake (a group code as the type, the value of the kind that code holds):
//
//     ListBuilder line;
//     bool ok = line.addString(0, L"LINE") && line.addString(8, layer) &&
//               line.addPoint(10, from) && line.addPoint(11, to) && line.addShort(62, 1);
//     if (ok && acdbEntMake(line.get()) == RTNORM) ...
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
    // Each appends one buffer of TYPE (a result type or a group code) holding VALUE; false
    // when memory runs out.
    bool addReal(int type, double value);
    bool addPoint(int type, const ads_point value);
    bool addShort(int type, int value);
    bool addLong(int type, long value);
    bool addName(int type, const ads_name value);
    // Appends a whole list, which the builder then owns.
    void splice(resbuf* list);
    bool empty() const { return !list_; }
    // The list built so far, still the builder's.
    const resbuf* get() const { return list_.get(); }
    resbuf* release();

private:
    void append(resbuf* rb);

    RbList list_;
    resbuf* tail_ = nullptr;
};

}  // namespace vrn2
