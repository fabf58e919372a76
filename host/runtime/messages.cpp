// What the module prints: command-line text, alert boxes and application error messages, all
// through the session's output sink.
#include <cstdarg>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "host/boundary.h"
#include "host/output.h"

extern "C" int acutPrintf(const ACHAR* format, ...) {
    va_list args;
    va_start(args, format);
    int result = host::guarded(__func__, RTERROR, [&]() -> int {
        if (!format) return RTERROR;
        std::wstring text = host::formatWide(format, args);
        host::emit(host::OutputKind::CommandLine, text);
        return RTNORM;
    });
    va_end(args);
    return result;
}

extern "C" int acedAlert(const ACHAR* str) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        host::emit(host::OutputKind::Alert, str ? str : L"");
        return RTNORM;
    });
}

extern "C" void acdbFail(const ACHAR* str) {
    host::guarded(__func__, [&] {
        host::emit(host::OutputKind::Failure, str ? str : L"");
    });
}
