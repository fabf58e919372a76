// Registration of the function table per document, its removal, and the dispatch of calls.
#include <set>

#include "acedads.h"
#include "host/text.h"
#include "host/win/registry.h"
#include "frame/dispatch.h"
#include "tests/support/host_session.h"

namespace {

using testing_support::HostSession;
namespace lisp = host::lisp;

// The 62 names as the suite's AutoLISP code calls them, in code order.
const std::vector<std::wstring> kNames = {
    L"_getdir", L"_getfile", L"_wjlb", L"_act_dir", L"_act_file", L"_mw_free", L"_hf_dir", L"lcsj",
    L"C:zfqpbj", L"C:zfqpsr", L"ads_kl", L"c:gscal", L"c:gsdelres", L"c:gsv_res", L"break_p",
    L"t:hx_hlgzc", L"t:hx_vlgzc", L"c:ci_dt", L"c:crti_dt", L"c:i_dhlp", L"c:crti_dtbl", L"c:vi_dtbl",
    L"c:v_res", L"c:constp", L"c:airmix", L"c:retair", L"c:q_res", L"_kzsj1", L"_getnalt", L"_kzsj2",
    L"_dxwj", L"_ssst_entlst", L"_get_ipt", L"_get_ipt_ln_arc", L"_get_ipt_arc_arc", L"_Xgetsyspath",
    L"t:draw-hz", L"gdsx", L"pzjc", L"c:sccal", L"c:scinfo", L"c:schlp", L"c:scv_res", L"c:scdelres",
    L"c:zljs", L"c:jzdy", L"c:sssj", L"c:bjzfd", L"c:fdcc", L"c:bjfd", L"c:xgfs", L"c:kvres", L"work2",
    L"c:fzzbdy", L"c:fzzbsc", L"XGetVrA", L"XGetVrB", L"_JkDlg", L"_SetDlgFont", L"_FindMC", L"_Xscjx",
    L"c:UnitConv"};

void expectWholeTable(host::Document& doc) {
    auto& functions = doc.functions();
    ASSERT_EQ(functions.size(), 62u);
    for (size_t i = 0; i < kNames.size(); ++i) {
        auto it = functions.find(host::upperAscii(kNames[i]));
        ASSERT_NE(it, functions.end()) << "missing " << host::toUtf8(kNames[i]);
        EXPECT_EQ(it->second.name, kNames[i]) << "registered with another spelling";
        EXPECT_EQ(it->second.code, static_cast<short>(i + 1));
    }
}

class Registration : public HostSession {};

TEST_F(Registration, EveryDocumentGetsTheWholeTableAndLosesItOnUnload) {
    host::Document& first = doc();
    expectWholeTable(first);
    EXPECT_TRUE(host::moduleUnlocked(module_->handle));
    EXPECT_TRUE(host::moduleMDIAware(module_->handle));

    host::Document& second = host().openDocument(L"second.dxf");
    expectWholeTable(second);

    host().closeDocument(second);
    expectWholeTable(first);  // the other document keeps its functions

    host().unloadModule(module_);
    EXPECT_TRUE(first.functions().empty());
}

TEST_F(Registration, AZeroFromTheHostStopsTheLoopWhereItHappened) {
    host().unloadAllModules();
    host().closeAllDocuments();
    // The host answers 0 for the tenth name; nothing after it may be registered.
    host().overrideDefunResult(L"C:zfqpsr", 0);
    host().openDocument(L"");
    std::wstring error;
    module_ = host().loadModule(VRN2_MODULE_PATH, error);
    ASSERT_NE(module_, nullptr);
    auto& functions = doc().functions();
    EXPECT_EQ(functions.size(), 9u);
    EXPECT_TRUE(functions.count(L"C:ZFQPBJ"));
    EXPECT_FALSE(functions.count(L"ADS_KL"));
    EXPECT_FALSE(functions.count(L"C:UNITCONV"));
}

TEST_F(Registration, OtherFailuresOfTheHostDoNotStopTheLoop) {
    host().unloadAllModules();
    host().closeAllDocuments();
    host().overrideDefunResult(L"lcsj", RTERROR);
    host().openDocument(L"");
    std::wstring error;
    module_ = host().loadModule(VRN2_MODULE_PATH, error);
    ASSERT_NE(module_, nullptr);
    EXPECT_EQ(doc().functions().size(), 61u);
    EXPECT_TRUE(doc().functions().count(L"C:UNITCONV"));
}

class Dispatch : public HostSession {};

TEST_F(Dispatch, CodesOutsideTheTableRunNothing) {
    for (short code : {0, 63, 64, -1}) {
        clearOutput();
        auto r = host().runInvocation(code, {}, [] { return vrn2::dispatchInvocation(); });
        EXPECT_EQ(r.entryResult, RTERROR) << code;
        EXPECT_EQ(r.value->kind, lisp::Kind::Void) << "the result is cleared before the code is read";
        EXPECT_TRUE(printed().empty()) << code;
    }
}

TEST_F(Dispatch, OnlyRtnormAnswersResult) {
    host::win::setRegistryValue(host::win::kSuiteKey, L"VrnResult", L"abc");
    // "XGetVrA" succeeds with 1, which the host sees as an error; its value still arrives.
    auto r = host().runInvocation(56, {}, [] { return vrn2::dispatchInvocation(); });
    EXPECT_EQ(r.entryResult, RSERR);
    EXPECT_EQ(lisp::printValue(r.value), L"\"abc\"");

    // "t:draw-hz" answers RTNORM.
    std::vector<lisp::ValuePtr> args = {lisp::makeInt(0), lisp::makeInt(0), lisp::makeReal(1.0),
                                        lisp::makeInt(1), lisp::makeStr(L""), lisp::makeStr(L"a")};
    r = host().runInvocation(37, args, [] { return vrn2::dispatchInvocation(); });
    EXPECT_EQ(r.entryResult, RSRSLT);
    EXPECT_EQ(r.value->kind, lisp::Kind::Void);
}

TEST_F(Dispatch, FunctionsNotInThisVersionSaySoAndFail) {
    auto r = host().runInvocation(46, {}, [] { return vrn2::dispatchInvocation(); });
    EXPECT_EQ(r.entryResult, RSERR);
    EXPECT_EQ(printed(), L"\nc:jzdy is not available in this version.\n");
}

TEST_F(Dispatch, TheEditorCallsByNameWithAnyCase) {
    host::win::setRegistryValue(host::win::kSuiteKey, L"VrnBResult", L"xyz");
    EXPECT_EQ(eval(L"(xgetvrb)"), L"\"xyz\"");
    EXPECT_EQ(eval(L"(no-such-function 1)"), L"; error: no function definition: NO-SUCH-FUNCTION");
}

}  // namespace
