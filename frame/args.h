// Walks the arguments of an AutoLISP call element by element, testing each element's type
// before its value is used.
#pragma once

#include "acedads.h"
#include "adsdef.h"

namespace vrn2 {

class ArgWalker {
public:
    ArgWalker() : rb_(acedGetArgs()) {}
    explicit ArgWalker(const resbuf* rb) : rb_(rb) {}

    bool atEnd() const { return rb_ == nullptr; }
    const resbuf* peek() const { return rb_; }
    int peekType() const { return rb_ ? rb_->restype : RTNONE; }
    const resbuf* next() {
        const resbuf* r = rb_;
        if (rb_) rb_ = rb_->rbnext;
        return r;
    }

    // Each takes the next element only when it has the wanted type.
    bool nextString(const ACHAR*& value);
    bool nextShort(int& value);      // RTSHORT
    bool nextReal(double& value);    // RTREAL
    bool nextNumber(double& value);  // RTREAL or RTSHORT
    bool nextName(ads_name value);   // RTENAME
    bool nextPoint(ads_point value); // RTPOINT (z = 0) or RT3DPOINT

private:
    const resbuf* rb_;
};

}  // namespace vrn2
