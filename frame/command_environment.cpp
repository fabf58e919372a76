#include "frame/command_environment.h"

#include "acedads.h"

namespace vrn2 {
namespace {
const ACHAR* const kNames[] = {L"CMDECHO", L"BLIPMODE", L"HIGHLIGHT"};
}

CommandEnvironment::CommandEnvironment() {
    for (int i = 0; i < kCount; ++i) {
        resbuf rb;
        if (acedGetVar(kNames[i], &rb) == RTNORM && rb.restype == RTSHORT) {
            saved_[i] = rb.resval.rint;
            valid_[i] = true;
        }
        resbuf zero;
        zero.rbnext = nullptr;
        zero.restype = RTSHORT;
        zero.resval.rint = 0;
        acedSetVar(kNames[i], &zero);
    }
}

CommandEnvironment::~CommandEnvironment() {
    for (int i = 0; i < kCount; ++i) {
        if (!valid_[i]) continue;
        resbuf rb;
        rb.rbnext = nullptr;
        rb.restype = RTSHORT;
        rb.resval.rint = saved_[i];
        acedSetVar(kNames[i], &rb);
    }
}

}  // namespace vrn2
