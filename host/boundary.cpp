#include "host/boundary.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <set>
#include <stdexcept>

#include "host/output.h"
#include "host/session.h"
#include "host/text.h"

namespace host {
namespace {

// How many faults are armed in all sessions. Calls leave the session alone while it is zero:
// threads a module started (polling FindWindowW) must not reach into a session that may be
// ending on the main thread.
std::atomic<long> g_armedAnywhere{0};

struct ArmedFaults {
    std::mutex mutex;
    std::multiset<std::string> functions;
    ~ArmedFaults() { g_armedAnywhere -= static_cast<long>(functions.size()); }
};

std::string describe(std::exception_ptr error) {
    try {
        std::rethrow_exception(error);
    } catch (const std::exception& e) {
        return e.what();
    } catch (...) {
        return "unknown exception";
    }
}

}  // namespace

void reportEscapedException(const char* function) noexcept {
    try {
        std::string what = describe(std::current_exception());
        emit(OutputKind::CommandLine,
             L"\nHost error in " + fromUtf8(function) + L": " + fromUtf8(what) + L"\n");
    } catch (...) {
        // Nothing is left to report with; the failure value still goes back.
    }
}

void raiseArmedFault(const char* function) {
    if (g_armedAnywhere.load() == 0) return;
    ArmedFaults& armed = sessionPart<ArmedFaults>();
    std::lock_guard lock(armed.mutex);
    if (armed.functions.empty()) return;
    auto it = armed.functions.find(function);
    if (it == armed.functions.end()) return;
    armed.functions.erase(it);
    --g_armedAnywhere;
    throw std::runtime_error("fault armed by a test");
}

void throwOnNextCall(std::string function) {
    ArmedFaults& armed = sessionPart<ArmedFaults>();
    std::lock_guard lock(armed.mutex);
    armed.functions.insert(std::move(function));
    ++g_armedAnywhere;
}

}  // namespace host
