// What the module prints: command-line text, alert boxes and application error messages, all
// through the session's output sink.
#include <cstdarg>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "host/output.h"

extern "C" int acutPrintf(const ACHAR* format, ...) {
    if (!format) return RTERROR;
    va_list args;
    va_start(args, format);
    std::wstring text = host::formatWide(format, args);
    va_end(args);
    host::emit(host::OutputKind::CommandLine, text);
    return RTNORM;
}

extern "C" int acedAlert(const ACHAR* str) {
    host::emit(host::OutputKind::Alert, str ? str : L"");
    return RTNORM;
}

extern "C" void acdbFail(const ACHAR* str) { host::emit(host::OutputKind::Failure, str ? str : L""); }
