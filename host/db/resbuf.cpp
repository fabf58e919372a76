#include "host/db/resbuf.h"

#include <cstdarg>
#include <cstdlib>
#include <cstring>

#include "acutads.h"
#include "host/boundary.h"
#include "host/db/groupcodes.h"

namespace host {

void RbDeleter::operator()(resbuf* rb) const { acutRelRb(rb); }

ACHAR* copyString(std::wstring_view text) {
    auto* s = static_cast<ACHAR*>(std::malloc((text.size() + 1) * sizeof(ACHAR)));
    if (!s) return nullptr;
    std::wmemcpy(s, text.data(), text.size());
    s[text.size()] = L'\0';
    return s;
}

resbuf* newRb(int type) {
    auto* rb = static_cast<resbuf*>(std::calloc(1, sizeof(resbuf)));
    if (rb) rb->restype = static_cast<short>(type);
    return rb;
}

resbuf* newStringRb(int type, std::wstring_view text) {
    resbuf* rb = newRb(type);
    if (!rb) return nullptr;
    rb->resval.rstring = copyString(text);
    if (!rb->resval.rstring) {
        std::free(rb);
        return nullptr;
    }
    return rb;
}

resbuf* copyNode(const resbuf* src) {
    resbuf* rb = newRb(src->restype);
    if (!rb) return nullptr;
    rb->resval = src->resval;
    switch (groupType(src->restype)) {
    case GroupType::String:
    case GroupType::Handle:
        rb->resval.rstring = src->resval.rstring ? copyString(src->resval.rstring) : nullptr;
        break;
    case GroupType::Binary:
        if (src->resval.rbinary.buf && src->resval.rbinary.clen > 0) {
            rb->resval.rbinary.buf = static_cast<char*>(std::malloc(src->resval.rbinary.clen));
            if (rb->resval.rbinary.buf)
                std::memcpy(rb->resval.rbinary.buf, src->resval.rbinary.buf, src->resval.rbinary.clen);
        } else {
            rb->resval.rbinary.buf = nullptr;
        }
        break;
    default: break;
    }
    return rb;
}

resbuf* copyChain(const resbuf* rb) {
    resbuf* head = nullptr;
    resbuf** tail = &head;
    for (; rb; rb = rb->rbnext) {
        resbuf* node = copyNode(rb);
        if (!node) {
            acutRelRb(head);
            return nullptr;
        }
        *tail = node;
        tail = &node->rbnext;
    }
    return head;
}

}  // namespace host

using host::GroupType;

extern "C" struct resbuf* acutNewRb(int v) {
    return host::guarded(__func__, nullptr, [&]() -> struct resbuf* {
        return host::newRb(v);
    });
}

extern "C" int acutRelRb(struct resbuf* rb) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        while (rb) {
            resbuf* next = rb->rbnext;
            switch (host::groupType(rb->restype)) {
            case GroupType::String:
            case GroupType::Handle: std::free(rb->resval.rstring); break;
            case GroupType::Binary: std::free(rb->resval.rbinary.buf); break;
            default: break;
            }
            std::free(rb);
            rb = next;
        }
        return RTNORM;
    });
}

extern "C" struct resbuf* acutBuildList(int rtype, ...) {
    va_list args;
    va_start(args, rtype);
    struct resbuf* result = host::guarded(__func__, nullptr, [&]() -> struct resbuf* {
        resbuf* head = nullptr;
        resbuf** tail = &head;
        bool failed = false;
        for (int type = rtype; type != 0 && type != RTNONE; type = va_arg(args, int)) {
            int code = type == RTDXF0 ? 0 : type;
            resbuf* rb = host::newRb(code);
            if (!rb) {
                failed = true;
                break;
            }
            *tail = rb;
            tail = &rb->rbnext;
            if (type == RTLB || type == RTLE || type == RTDOTE || type == RTNIL || type == RTT ||
                type == RTVOID || type == -3)
                continue;
            switch (host::groupType(code)) {
            case GroupType::Real: rb->resval.rreal = va_arg(args, double); break;
            case GroupType::Point: {
                const double* p = va_arg(args, const double*);
                std::memcpy(rb->resval.rpoint, p, sizeof(ads_point));
                break;
            }
            case GroupType::Short: rb->resval.rint = static_cast<short>(va_arg(args, int)); break;
            case GroupType::Long: rb->resval.rlong = va_arg(args, long); break;
            case GroupType::String:
            case GroupType::Handle: {
                const ACHAR* s = va_arg(args, const ACHAR*);
                rb->resval.rstring = host::copyString(s ? s : L"");
                if (!rb->resval.rstring) failed = true;
                break;
            }
            case GroupType::Name: {
                const long* n = va_arg(args, const long*);
                rb->resval.rlname[0] = n[0];
                rb->resval.rlname[1] = n[1];
                break;
            }
            case GroupType::Binary:
            case GroupType::None: failed = true; break;
            }
            if (failed) break;
        }
        if (failed) {
            acutRelRb(head);
            return nullptr;
        }
        return head;
    });
    va_end(args);
    return result;
}
