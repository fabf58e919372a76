// The host side of the module boundary. Every function the host exports to a module runs its
// body through guarded(): an exception never reaches the module. It is reported on the
// command line as "Host error in FUNCTION: WHAT" and the function answers the failure value
// of its contract (RTERROR, null, 0, ...), leaving the host ready for the next call.
//
//     extern "C" int acedGetVar(const ACHAR* sym, struct resbuf* result) {
//         return host::guarded(__func__, RTERROR, [&] { ... });
//     }
#pragma once

#include <string>
#include <type_traits>

namespace host {

// Reports the exception being handled as having reached FUNCTION. Never throws.
void reportEscapedException(const char* function) noexcept;

// Throws when a test armed a fault for FUNCTION (see throwOnNextCall).
void raiseArmedFault(const char* function);

template <class Failure, class Body>
std::invoke_result_t<Body&> guarded(const char* function, Failure failure, Body&& body) noexcept {
    try {
        raiseArmedFault(function);
        return body();
    } catch (...) {
        reportEscapedException(function);
        return static_cast<std::invoke_result_t<Body&>>(failure);
    }
}

// For the functions that answer nothing (acutPolar, acdbFail, Sleep).
template <class Body>
void guarded(const char* function, Body&& body) noexcept {
    try {
        raiseArmedFault(function);
        body();
    } catch (...) {
        reportEscapedException(function);
    }
}

// A seam for tests: the next guarded call of FUNCTION (its exported name) throws
// std::runtime_error before its body runs, as a failing service inside the host would.
void throwOnNextCall(std::string function);

}  // namespace host
