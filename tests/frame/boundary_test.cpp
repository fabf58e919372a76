// The module's side of the boundary: an exception out of a handler stops at the dispatcher,
// is shown on the command line, and the call answers RSERR; the next call runs as usual.
#include <gtest/gtest.h>

#include <stdexcept>

#include "adscodes.h"
#include "frame/dispatch.h"
#include "host/win/registry.h"
#include "tests/support/host_session.h"

namespace {

class ModuleBoundary : public testing_support::HostSession {};

int failingHandler() { throw std::runtime_error("no room left"); }
int unknownFailure() { throw 42; }
int succeedingHandler() { return RTNORM; }

TEST_F(ModuleBoundary, AHandlerThatThrowsAnswersRserrAndSaysWhy) {
    auto r = host().runInvocation(1, {}, [] { return vrn2::runHandler(L"probe", failingHandler); });
    EXPECT_EQ(r.entryResult, RSERR);
    EXPECT_EQ(printed(), L"\nVrn2: internal error in probe: no room left\n");

    clearOutput();
    r = host().runInvocation(1, {}, [] { return vrn2::runHandler(L"other", unknownFailure); });
    EXPECT_EQ(r.entryResult, RSERR);
    EXPECT_EQ(printed(), L"\nVrn2: internal error in other: unknown exception\n");
    EXPECT_EQ(host().invocation(), nullptr);
}

TEST_F(ModuleBoundary, TheNextCallRunsAsUsual) {
    host().runInvocation(1, {}, [] { return vrn2::runHandler(L"probe", failingHandler); });
    auto r = host().runInvocation(1, {}, [] { return vrn2::runHandler(L"probe", succeedingHandler); });
    EXPECT_EQ(r.entryResult, RSRSLT);

    host::win::setRegistryValue(host::win::kSuiteKey, L"VrnResult", L"abc");
    host::CallResult loaded = call(L"XGetVrA");  // through the loaded module's own dispatcher
    EXPECT_EQ(host::lisp::printValue(loaded.value), L"\"abc\"");
}

}  // namespace
