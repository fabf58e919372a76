// No exception crosses the host's boundary: a failing service inside the host answers its
// failure value and says so on the command line, and everything the host swaps while a call
// is under way (current document, active module, invocation stack) is back afterwards.
#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "host/boundary.h"
#include "host/db/api_support.h"
#include "host/db/resbuf.h"
#include "host/text.h"
#include "host/win/registry.h"
#include "tests/support/host_session.h"
#include "windows.h"

namespace {

using testing_support::HostSession;
namespace lisp = host::lisp;

class Boundary : public HostSession {
protected:
    bool reported(const char* function) const {
        std::wstring line = L"Host error in " + host::fromUtf8(function) + L": fault armed by a test";
        return printed().find(line) != std::wstring::npos;
    }
};

TEST_F(Boundary, AFailingServiceAnswersItsFailureValueAndTheNextCallWorks) {
    resbuf rb{};
    host::throwOnNextCall("acedGetVar");
    EXPECT_EQ(acedGetVar(L"CLAYER", &rb), RTERROR);
    EXPECT_TRUE(reported("acedGetVar")) << host::toUtf8(printed());
    ASSERT_EQ(acedGetVar(L"CLAYER", &rb), RTNORM);
    EXPECT_STREQ(rb.resval.rstring, L"0");
    std::free(rb.resval.rstring);

    ads_name last;
    ASSERT_EQ(acdbEntLast(last), RTERROR) << "an empty drawing";
    double a[3] = {0, 0, 0}, b[3] = {1, 1, 0};
    host::RbPtr line(acutBuildList(RTDXF0, L"LINE", 10, a, 11, b, 0));
    ASSERT_EQ(acdbEntMake(line.get()), RTNORM);
    ASSERT_EQ(acdbEntLast(last), RTNORM);
    host::throwOnNextCall("acdbEntGet");
    EXPECT_EQ(acdbEntGet(last), nullptr);
    EXPECT_TRUE(reported("acdbEntGet"));
    host::RbPtr entity(acdbEntGet(last));
    EXPECT_NE(entity, nullptr);
}

TEST_F(Boundary, EveryKindOfExportAnswersTheFailureOfItsContract) {
    HKEY key = nullptr;
    host::win::setRegistryValue(host::win::kSuiteKey, L"SysPath", L"x");
    host::throwOnNextCall("RegOpenKeyExW");
    EXPECT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, host::win::kSuiteKey, 0, KEY_READ, &key), ERROR_OUTOFMEMORY);
    ASSERT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, host::win::kSuiteKey, 0, KEY_READ, &key), ERROR_SUCCESS);
    RegCloseKey(key);

    host::throwOnNextCall("acutPrintf");
    EXPECT_EQ(acutPrintf(L"%ls", L"lost"), RTERROR);
    EXPECT_EQ(printed().find(L"lost"), std::wstring::npos);
    EXPECT_EQ(acutPrintf(L"%ls", L"kept"), RTNORM);
    EXPECT_NE(printed().find(L"kept"), std::wstring::npos);

    host::throwOnNextCall("acutBuildList");
    EXPECT_EQ(acutBuildList(RTSTR, L"a", 0), nullptr);
    host::throwOnNextCall("FindWindowW");
    EXPECT_EQ(FindWindowW(nullptr, L"nothing"), nullptr);
    ads_point from = {0, 0, 0}, to = {9, 9, 9};
    host::throwOnNextCall("acutPolar");
    acutPolar(from, 0.0, 1.0, to);
    EXPECT_TRUE(reported("acutPolar"));
    acutPolar(from, 0.0, 1.0, to);
    EXPECT_DOUBLE_EQ(to[0], 1.0);
}

TEST_F(Boundary, AnInvocationEndsOnEveryPath) {
    EXPECT_THROW(host().runInvocation(7, {lisp::makeInt(1)}, []() -> int { throw std::runtime_error("handler failed"); }),
                 std::runtime_error);
    EXPECT_EQ(host().invocation(), nullptr);
    EXPECT_EQ(acedGetFunCode(), RTERROR) << "no invocation is under way";

    auto r = host().runInvocation(9, {lisp::makeStr(L"x")}, [] {
        resbuf* args = acedGetArgs();
        return acedGetFunCode() == 9 && args && args->restype == RTSTR && !args->rbnext ? RTNORM : RTERROR;
    });
    EXPECT_EQ(r.entryResult, RTNORM) << "the next invocation sees only its own code and arguments";
}

TEST_F(Boundary, AModuleThatFailsIsStoppedAtTheBoundaryAndTheHostCarriesOn) {
    host::win::setRegistryValue(host::win::kSuiteKey, L"VrnResult", L"abc");
    host::throwOnNextCall("acrxEntryPoint");
    host::CallResult failed = call(L"XGetVrA");
    EXPECT_TRUE(failed.defined);
    EXPECT_EQ(failed.entryResult, AcRx::kRetError);
    EXPECT_TRUE(reported("acrxEntryPoint"));
    EXPECT_EQ(host().activeModule(), nullptr);
    EXPECT_EQ(host().invocation(), nullptr);

    host::CallResult next = call(L"XGetVrA");
    EXPECT_EQ(lisp::printValue(next.value), L"\"abc\"");
}

// A document reactor of a module that throws while a document closes.
struct ThrowingReactor : AcApDocManagerReactor {
    void documentToBeDestroyed(AcApDocument*) override { throw std::runtime_error("reactor failed"); }
};

TEST_F(Boundary, AFailingReactorLeavesTheDocumentsAsTheyShouldBe) {
    host::Document& first = doc();
    host::Document& second = host().openDocument(L"second.dxf");
    host().makeCurrent(first);
    ThrowingReactor reactor;
    host().addReactor(&reactor);
    host().closeDocument(second);
    host().removeReactor(&reactor);
    EXPECT_NE(printed().find(L"Host error in AcApDocManagerReactor::documentToBeDestroyed: reactor failed"),
              std::wstring::npos);
    EXPECT_EQ(host().documents().size(), 1u);
    EXPECT_EQ(&host().current(), &first) << "the document current before the close is current again";
    EXPECT_EQ(host::db::currentDb(), &first.database()) << "the database layer follows the current document";
}

}  // namespace
