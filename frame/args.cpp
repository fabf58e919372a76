#include "frame/args.h"

namespace vrn2 {

bool ArgWalker::nextString(const ACHAR*& value) {
    if (peekType() != RTSTR) return false;
    value = next()->resval.rstring;
    return true;
}

bool ArgWalker::nextShort(int& value) {
    if (peekType() != RTSHORT) return false;
    value = next()->resval.rint;
    return true;
}

bool ArgWalker::nextReal(double& value) {
    if (peekType() != RTREAL) return false;
    value = next()->resval.rreal;
    return true;
}

bool ArgWalker::nextNumber(double& value) {
    if (peekType() == RTSHORT) {
        value = next()->resval.rint;
        return true;
    }
    return nextReal(value);
}

bool ArgWalker::nextName(ads_name value) {
    if (peekType() != RTENAME) return false;
    const resbuf* rb = next();
    value[0] = rb->resval.rlname[0];
    value[1] = rb->resval.rlname[1];
    return true;
}

bool ArgWalker::nextPoint(ads_point value) {
    int type = peekType();
    if (type != RTPOINT && type != RT3DPOINT) return false;
    const resbuf* rb = next();
    value[0] = rb->resval.rpoint[0];
    value[1] = rb->resval.rpoint[1];
    value[2] = type == RT3DPOINT ? rb->resval.rpoint[2] : 0.0;
    return true;
}

}  // namespace vrn2
