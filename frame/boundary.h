// The module side of the host boundary. Every entry the module exports to the host (the entry
// point and the calls of its functions) runs its body through guarded(): an exception never
// reaches the host. It is shown on the command line as "\nVrn2: internal error in WHERE:
// WHAT" and the entry answers the failure value of its contract.
#pragma once

#include <exception>
#include <string>
#include <type_traits>

#include "acutads.h"

namespace vrn2 {

// Shows the exception being handled as having reached WHERE. Never throws.
inline void reportEscapedException(const ACHAR* where) noexcept {
    try {
        std::wstring what = L"unknown exception";
        try {
            throw;
        } catch (const std::exception& e) {
            const char* text = e.what();
            what.assign(text, text + std::char_traits<char>::length(text));
        } catch (...) {
        }
        acutPrintf(L"\nVrn2: internal error in %ls: %ls\n", where, what.c_str());
    } catch (...) {
        // Nothing is left to show it with; the failure value still goes back.
    }
}

template <class Failure, class Body>
std::invoke_result_t<Body&> guarded(const ACHAR* where, Failure failure, Body&& body) noexcept {
    try {
        return body();
    } catch (...) {
        reportEscapedException(where);
        return static_cast<std::invoke_result_t<Body&>>(failure);
    }
}

}  // namespace vrn2
