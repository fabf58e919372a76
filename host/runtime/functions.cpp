// External functions: registration, the arguments of a call and the result it sets.
#include <cstring>

#include "acedads.h"
#include "host/boundary.h"
#include "host/db/groupcodes.h"
#include "host/db/resbuf.h"
#include "host/runtime/convert.h"
#include "host/runtime/host.h"
#include "host/text.h"

using host::Host;
namespace lisp = host::lisp;

namespace {

bool validFunctionName(const ACHAR* name) {
    if (!name || !*name) return false;
    for (const ACHAR* p = name; *p; ++p)
        if (*p == L' ' || *p == L'(' || *p == L')' || *p == L'"' || *p == L'\'' || *p == L';')
            return false;
    return true;
}

int setResult(lisp::ValuePtr value) {
    auto* inv = Host::instance().invocation();
    if (!inv) return RTERROR;
    inv->result = std::move(value);
    return RTNORM;
}

}  // namespace

extern "C" int acedDefun(const ACHAR* sname, short funcno) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Host& h = Host::instance();
        if (auto forced = h.takeDefunOverride(sname ? sname : L"")) return *forced;
        if (!h.hasDocument() || !validFunctionName(sname) || funcno < 0) return RTERROR;
        host::RegisteredFunction fn;
        fn.name = sname;
        fn.code = funcno;
        fn.module = h.activeModule();
        h.current().functions()[host::upperAscii(sname)] = fn;
        return RTNORM;
    });
}

extern "C" int acedUndef(const ACHAR* sname, short funcno) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Host& h = Host::instance();
        if (!h.hasDocument() || !sname) return RTERROR;
        auto& functions = h.current().functions();
        auto it = functions.find(host::upperAscii(sname));
        if (it == functions.end() || it->second.code != funcno) return RTERROR;
        functions.erase(it);
        return RTNORM;
    });
}

extern "C" int acedGetFunCode(void) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        auto* inv = Host::instance().invocation();
        return inv ? inv->code : RTERROR;
    });
}

extern "C" struct resbuf* acedGetArgs(void) {
    return host::guarded(__func__, nullptr, [&]() -> struct resbuf* {
        auto* inv = Host::instance().invocation();
        return inv ? inv->args : nullptr;
    });
}

extern "C" int acedRetInt(int ival) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        return setResult(lisp::makeInt(ival));
    });
}
extern "C" int acedRetReal(ads_real rval) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        return setResult(lisp::makeReal(rval));
    });
}
extern "C" int acedRetPoint(const ads_point pt) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        return setResult(lisp::makeList({lisp::makeReal(pt[0]), lisp::makeReal(pt[1]), lisp::makeReal(pt[2])}));
    });
}
extern "C" int acedRetStr(const ACHAR* s) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        return setResult(lisp::makeStr(s ? s : L""));
    });
}
extern "C" int acedRetName(const ads_name aname, int type) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (type == RTENAME) return setResult(lisp::makeEname(aname));
        if (type == RTPICKS) return setResult(lisp::makePickSet(aname));
        return RTERROR;
    });
}
extern "C" int acedRetVoid(void) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        return setResult(lisp::voidValue());
    });
}
extern "C" int acedRetT(void) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        return setResult(lisp::t());
    });
}
extern "C" int acedRetNil(void) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        return setResult(lisp::nil());
    });
}

extern "C" int acedRetVal(const struct resbuf* rbuf) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (!rbuf || rbuf->restype == RTLONG || rbuf->restype == RTLB || rbuf->restype == RTLE ||
            rbuf->restype == RTDOTE)
            return RTERROR;
        resbuf single = *rbuf;
        single.rbnext = nullptr;
        return setResult(host::resbufToValue(&single));
    });
}

extern "C" int acedRetList(const struct resbuf* rbuf) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (!Host::instance().invocation()) return RTERROR;
        return setResult(host::resbufToList(rbuf));
    });
}

extern "C" int acedGetSym(const ACHAR* sname, struct resbuf** value) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Host& h = Host::instance();
        if (!sname || !value || !h.hasDocument()) return RTERROR;
        *value = nullptr;
        auto& symbols = h.current().symbols();
        auto it = symbols.find(host::upperAscii(sname));
        if (it == symbols.end() || lisp::isNil(it->second)) return RTNORM;
        *value = host::valueToResbuf(it->second);
        return *value ? RTNORM : RTERROR;
    });
}

extern "C" int acedPutSym(const ACHAR* sname, struct resbuf* value) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Host& h = Host::instance();
        if (!sname || !*sname || !h.hasDocument()) return RTERROR;
        h.current().symbols()[host::upperAscii(sname)] = host::resbufToValue(value);
        return RTNORM;
    });
}

extern "C" int acedGetVar(const ACHAR* sym, struct resbuf* result) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Host& h = Host::instance();
        if (!sym || !result || !h.hasDocument()) return RTERROR;
        const host::SysVarValue* var = h.current().sysvars().find(sym);
        if (!var) return RTERROR;
        result->restype = static_cast<short>(var->type);
        switch (var->type) {
        case RTSHORT: result->resval.rint = var->integer; break;
        case RTREAL: result->resval.rreal = var->real; break;
        case RTSTR:
            result->resval.rstring = host::copyString(var->text);
            if (!result->resval.rstring) return RTERROR;
            break;
        default: std::memcpy(result->resval.rpoint, var->point, sizeof(ads_point)); break;
        }
        return RTNORM;
    });
}

extern "C" int acedSetVar(const ACHAR* sym, const struct resbuf* val) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Host& h = Host::instance();
        if (!sym || !val || !h.hasDocument()) return RTERROR;
        return h.current().sysvars().set(sym, *val);
    });
}
