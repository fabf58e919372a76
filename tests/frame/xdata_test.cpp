// Extended data attached and read by "_kzsj1", "_kzsj2" and "work2", as a script uses them.
#include <string>

#include "acdbads.h"
#include "adscodes.h"
#include "frame/dispatch.h"
#include "frame/rblist.h"
#include "frame/xdata_groups.h"
#include "tests/support/host_session.h"

namespace {

using testing_support::HostSession;
namespace lisp = host::lisp;

class Xdata : public HostSession {
protected:
    void SetUp() override {
        HostSession::SetUp();
        eval(L"(entmake '((0 . \"LINE\") (8 . \"0\") (10 0.0 0.0 0.0) (11 10.0 0.0 0.0)))"
             L"(setq e (entlast))"
             L"(entmake '((0 . \"CIRCLE\") (8 . \"0\") (10 5.0 5.0 0.0) (40 . 2.0)))"
             L"(setq c (entlast))");
        clearOutput();
    }
    // The entity's extended data as AutoLISP prints it.
    std::wstring xdata(const std::wstring& entity = L"e") {
        return eval(L"(cdr (assoc -3 (entget " + entity + L" '(\"*\"))))");
    }
    // Calls a function of the table by its code and answers what dispatch tells the host.
    int dispatchStatus(short code, const std::vector<lisp::ValuePtr>& args) {
        return host().runInvocation(code, args, [] { return vrn2::dispatchInvocation(); }).entryResult;
    }
    // Gives the line extended data as a script would, with (entmod).
    void giveXdata(const std::wstring& blocks) {
        eval(L"(entmod (append (entget e) '((-3 " + blocks + L"))))");
        clearOutput();
    }
};

TEST_F(Xdata, AStringGoesBehindAnotherApplicationsGroupsWhichStayAsTheyWere) {
    eval(L"(regapp \"OTHER\")");
    giveXdata(L"(\"OTHER\" (1000 . \"kept\") (1070 . 7) (1040 . 2.5))");
    eval(L"(_kzsj1 e \"VRN_DUCT\" \"main branch\")");
    EXPECT_EQ(printed(), L"");
    EXPECT_EQ(xdata(), L"((\"OTHER\" (1000 . \"kept\") (1070 . 7) (1040 . 2.5)) "
                       L"(\"VRN_DUCT\" (1000 . \"main branch\")))");
    EXPECT_NE(eval(L"(tblsearch \"APPID\" \"VRN_DUCT\")"), L"nil") << "the application is registered";
}

TEST_F(Xdata, AStringOverwritesTheApplicationsStringWhateverItsLength) {
    eval(L"(_kzsj1 e \"VRN_DUCT\" \"a rather long description of the branch\")");
    eval(L"(_kzsj1 e \"vrn_duct\" \"short\")");
    EXPECT_EQ(xdata(), L"((\"VRN_DUCT\" (1000 . \"short\")))") << "names compare without regard to case";
    eval(L"(_kzsj1 e \"VRN_DUCT\" \"now longer than the string it replaces\")");
    EXPECT_EQ(eval(L"(_kzsj2 e \"VRN_DUCT\" 0)"), L"\"now longer than the string it replaces\"");
}

TEST_F(Xdata, AStringJoinsABlockThatHasOnlyAListBeforeTheNextApplication) {
    eval(L"(regapp \"A\") (regapp \"B\")");
    giveXdata(L"(\"A\" (1002 . \"{\") (1070 . 1) (1002 . \"}\")) (\"B\" (1000 . \"b\"))");
    eval(L"(_kzsj1 e \"A\" \"text\")");
    EXPECT_EQ(xdata(), L"((\"A\" (1002 . \"{\") (1070 . 1) (1002 . \"}\") (1000 . \"text\")) (\"B\" (1000 . \"b\")))");
}

TEST_F(Xdata, EveryListElementBecomesItsGroupAndReadsBack) {
    eval(L"(_kzsj1 e \"VRN_NODE\" (list \"s\" 3 2.5 '(1.0 2.0) '(1.0 2.0 3.0) '(4 (5 \"x\")) c))");
    std::wstring handle = eval(L"(cdr (assoc 5 (entget c)))");
    EXPECT_EQ(xdata(), L"((\"VRN_NODE\" (1002 . \"{\") (1000 . \"s\") (1070 . 3) (1040 . 2.5) "
                       L"(1010 1.0 2.0 0.0) (1010 1.0 2.0 3.0) (1002 . \"{\") (1070 . 4) (1002 . \"{\") "
                       L"(1070 . 5) (1000 . \"x\") (1002 . \"}\") (1002 . \"}\") (1005 . " + handle +
                       L") (1002 . \"}\")))");
    EXPECT_EQ(eval(L"(_kzsj2 e \"VRN_NODE\" 1)"),
              L"(\"s\" 3 2.5 (1.0 2.0 0.0) (1.0 2.0 3.0) (4 (5 \"x\")) " + eval(L"c") + L")")
        << "a 1010 comes back as a 3D point";
}

TEST_F(Xdata, APointMessageIsStoredAsTheListOfItsReals) {
    eval(L"(_kzsj1 e \"P2\" '(1.5 -2.0)) (_kzsj1 e \"P3\" '(1.0 2.0 3.0))");
    EXPECT_EQ(xdata(), L"((\"P2\" (1002 . \"{\") (1040 . 1.5) (1040 . -2.0) (1002 . \"}\")) "
                       L"(\"P3\" (1002 . \"{\") (1040 . 1.0) (1040 . 2.0) (1040 . 3.0) (1002 . \"}\")))");
    EXPECT_EQ(eval(L"(_kzsj2 e \"P2\" 1)"), L"(1.5 -2.0)");
}

TEST_F(Xdata, ANewListReplacesTheOldBraceGroupInPlace) {
    eval(L"(regapp \"A\")");
    giveXdata(L"(\"A\" (1000 . \"head\") (1002 . \"{\") (1070 . 1) (1002 . \"{\") (1070 . 2) (1002 . \"}\") "
              L"(1002 . \"}\") (1040 . 9.5))");
    eval(L"(_kzsj1 e \"A\" '(\"new\"))");
    EXPECT_EQ(xdata(), L"((\"A\" (1000 . \"head\") (1002 . \"{\") (1000 . \"new\") (1002 . \"}\") (1040 . 9.5)))");
}

TEST_F(Xdata, AFirstListForABlockGoesToTheVeryEndBehindLaterApplications) {
    eval(L"(_kzsj1 e \"A\" \"a\") (_kzsj1 e \"B\" \"b\") (_kzsj1 e \"A\" '(1))");
    EXPECT_EQ(xdata(), L"((\"A\" (1000 . \"a\")) (\"B\" (1000 . \"b\") (1002 . \"{\") (1070 . 1) (1002 . \"}\")))");
    // Where the list landed it belongs to B, so A still has no list and B has one.
    EXPECT_EQ(eval(L"(_kzsj2 e \"A\" 1)"), L"nil");
    EXPECT_EQ(eval(L"(_kzsj2 e \"B\" 1)"), L"(1)");
}

TEST_F(Xdata, ArgumentsAreCheckedInOrderWithTheirMessages) {
    struct Case {
        const wchar_t* call;
        const wchar_t* message;
    };
    const Case cases[] = {
        {L"(_kzsj1)", L"\nToo Few Parameter"},
        {L"(_kzsj1 \"e\" \"A\" \"m\")", L"\nFirst of Argument should be entity name."},
        {L"(_kzsj1 e)", L"\nToo Few Parameter"},
        {L"(_kzsj1 e 12 \"m\")", L"\nSecond of Argument should be Registered application name."},
        {L"(_kzsj1 e \"A2345678901234567890123456789012\")", L"\nApplication Name should less than 31"},
        {L"(_kzsj1 e \"A\")", L"\nToo Few Parameter"},
        {L"(_kzsj1 e \"A\" (strcat (substr (repeat-256) 1 256)))", L"\n Length of Message should less than 255"},
        {L"(_kzsj1 e \"A\" 5)", L"\nThird of Argument should be Message list or string."},
        {L"(_kzsj1 e \"A\" nil)", L"\nThird of Argument should be Message list or string."},
        {L"(_kzsj2 e \"A\" 2)", L"\nMessage type should be 0 or 1"},
        {L"(_kzsj2 e \"A\")", L"\nToo Few Parameter"},
        {L"(_kzsj2 e \"A2345678901234567890123456789012\" 0)", L"\nApplication Name should less than 31"},
    };
    eval(L"(defun repeat-256 (/ s) (setq s \"\") (repeat 256 (setq s (strcat s \"x\"))) s)");
    for (const Case& c : cases) {
        clearOutput();
        eval(c.call);
        EXPECT_EQ(printed(), c.message) << c.call;
    }
    EXPECT_EQ(xdata(), L"nil") << "no refused call changed the entity";
}

TEST_F(Xdata, NamesOfThirtyOneCharactersAndStringsOf255AreAccepted) {
    eval(L"(setq s \"\") (repeat 255 (setq s (strcat s \"y\")))");
    eval(L"(_kzsj1 e \"A234567890123456789012345678901\" s)");
    EXPECT_EQ(printed(), L"");
    EXPECT_EQ(eval(L"(= (_kzsj2 e \"A234567890123456789012345678901\" 0) s)"), L"T");
}

TEST_F(Xdata, WhatCannotBeReadIsReportedAndChangesNothing) {
    eval(L"(entdel c)");
    clearOutput();
    int status = dispatchStatus(28, {evalValue(L"c"), lisp::makeStr(L"A"), lisp::makeStr(L"m")});
    EXPECT_EQ(printed(), L"\nThe Entity is not in the Current Database");
    EXPECT_EQ(status, RSRSLT) << "a reported failure that changes nothing is not an error";
    clearOutput();
    EXPECT_EQ(eval(L"(_kzsj2 c \"A\" 0)"), L"nil");
    EXPECT_EQ(printed(), L"\nThe Entity is not in the Current Database");
    clearOutput();
    EXPECT_EQ(eval(L"(_kzsj2 e \"NOBODY\" 0)"), L"nil");
    EXPECT_EQ(eval(L"(_kzsj2 e \"NOBODY\" 1)"), L"nil");
    EXPECT_EQ(printed(), L"");
}

TEST_F(Xdata, AReferenceWithoutAHandleIsStoredAsMinusOneAndReadsBackAsNil) {
    eval(L"(entdel c)");
    eval(L"(_kzsj1 e \"A\" (list 1 c))");
    EXPECT_EQ(xdata(), L"((\"A\" (1002 . \"{\") (1070 . 1) (1005 . \"-1\") (1002 . \"}\")))");
    EXPECT_EQ(eval(L"(_kzsj2 e \"A\" 1)"), L"(1 nil)");
}

TEST_F(Xdata, AChangeTheEditorRefusesReportsTheRoomLeftAndKeepsTheEntity) {
    // A dotted pair closes one brace more than it opens; the editor refuses unbalanced braces.
    eval(L"(_kzsj1 e \"A\" \"before\")");
    std::wstring before = xdata();
    long room = 0;
    ASSERT_EQ(acdbXdRoom(evalValue(L"e")->name, &room), RTNORM);
    EXPECT_EQ(room, 16383 - (3 + 1 + 2 + 6)) << "one application with one six-character string";
    clearOutput();
    int status = dispatchStatus(28, {evalValue(L"e"), lisp::makeStr(L"A"), evalValue(L"'((\"k\" . 1))")});
    EXPECT_EQ(printed(), L"\n" + std::to_wstring(room) + L" xdata is exist.");
    EXPECT_EQ(status, RSERR);
    EXPECT_EQ(xdata(), before);

    // Filling the room: strings of 250 characters take 253 bytes each.
    eval(L"(setq s \"\") (repeat 250 (setq s (strcat s \"z\")))");
    clearOutput();
    int app = 0;
    while (printed().empty() && app < 100) eval(L"(_kzsj1 e \"F" + std::to_wstring(app++) + L"\" s)");
    EXPECT_EQ(app, (16383 - 12) / (3 + 1 + 2 + 250) + 1) << "the first string that no longer fits is refused";
    EXPECT_NE(printed().find(L" xdata is exist."), std::wstring::npos);
}

TEST_F(Xdata, ListsConvertWithTheStatedTypesAndADottedPairDoesNotEndTheList) {
    // ("k" . 1) inside a list: the pair's dot writes a closing brace, and the list goes on.
    vrn2::RbList list(acutBuildList(RTLB, RTANG, 0.5, RTLONG, 70000L, RTLB, RTSTR, L"k", RTDOTE, RTSHORT, 1, RTLE,
                              RTREAL, 2.0, RTLE, RTSTR, L"after the list", 0));
    vrn2::RbList groups;
    ASSERT_EQ(vrn2::listToXdata(list.get(), groups.out()), RTNORM);
    std::wstring seen;
    for (const resbuf* g = groups.get(); g; g = g->rbnext) {
        seen += std::to_wstring(g->restype);
        if (g->restype == 1002 || g->restype == 1000) seen += std::wstring(L":") + g->resval.rstring;
        seen += L" ";
    }
    EXPECT_EQ(seen, L"1002:{ 1040 1071 1002:{ 1000:k 1002:} 1070 1002:} 1040 1002:} ");
}

TEST_F(Xdata, GroupsConvertBackWithTheStatedPairings) {
    ads_point p = {7.9, 1.0, 2.0};
    vrn2::RbList groups(acutBuildList(1002, L"{", 1071, 70000L, 1011, p, 1041, 1.25, 1070, 3, 1002, L"}", 1000, L"x", 0));
    vrn2::RbList back;
    ASSERT_EQ(vrn2::xdataToList(groups.get(), back.out()), RTNORM);
    const resbuf* rb = back.get();
    ASSERT_EQ(rb->restype, RTLB);
    rb = rb->rbnext;
    EXPECT_EQ(rb->restype, RTREAL);
    EXPECT_EQ(rb->resval.rreal, 70000.0);
    rb = rb->rbnext;
    EXPECT_EQ(rb->restype, RTSHORT) << "a 1011 point comes back as a short";
    EXPECT_EQ(rb->resval.rint, 7);
    rb = rb->rbnext;
    EXPECT_EQ(rb->restype, RTREAL);
    EXPECT_EQ(rb->resval.rreal, 1.25);
    rb = rb->rbnext;
    EXPECT_EQ(rb->restype, RTSHORT);
    rb = rb->rbnext;
    EXPECT_EQ(rb->restype, RTLE);
    EXPECT_EQ(rb->rbnext, nullptr) << "the conversion stops where the level returns to 0";

    vrn2::RbList odd(acutBuildList(1002, L"{", 1003, L"layer", 1002, L"}", 0));
    clearOutput();
    EXPECT_EQ(vrn2::xdataToList(odd.get(), back.out()), RTERROR);
    EXPECT_EQ(printed(), L"\ninvalid input list");
    EXPECT_EQ(back.get(), nullptr);
}

TEST_F(Xdata, Work2ReadsValuesByApplicationAndCode) {
    eval(L"(_kzsj1 e \"A\" '(1 (2 \"two\" 3) 4.5)) (_kzsj1 e \"B\" \"bee\")");
    clearOutput();
    EXPECT_EQ(eval(L"(work2 e \"A\" 1070 \"B\" 1000 \"A\" 1040)"), L"((1 2 3) (\"bee\") (4.5))");
    EXPECT_EQ(printed(), L"");
    EXPECT_EQ(eval(L"(work2 e \"B\" 1070 \"NEW_APP\" 1000)"), L"(nil nil)");
    EXPECT_EQ(printed(), L"warning:no XDATA for NEW_APP.");
    EXPECT_NE(eval(L"(tblsearch \"APPID\" \"NEW_APP\")"), L"nil") << "reading registers the application";

    const std::pair<const wchar_t*, const wchar_t*> refusals[] = {
        {L"(work2)", L"First arg should be a entity name!\n"},
        {L"(work2 \"e\" \"A\" 1000)", L"First arg should be a entity name!\n"},
        {L"(work2 e 1000 \"A\")", L"Args should be a string!\n"},
        {L"(work2 e \"A\" 1000 \"B\")", L"Args should be a DXF code!\n"},
        {L"(work2 e \"A\" 1000.0)", L"Args should be a DXF code!\n"},
    };
    for (const auto& [call, message] : refusals) {
        clearOutput();
        EXPECT_EQ(eval(call), L"nil") << call;
        EXPECT_EQ(printed(), message) << call;
    }
}

}  // namespace
