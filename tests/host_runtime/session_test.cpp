// A session holds every part of the host's state: a new one starts from nothing and the one
// before it comes back untouched; a document's own data goes with the document.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "acedads.h"
#include "acutads.h"
#include "host/dcl/dialog_script.h"
#include "host/output.h"
#include "host/runtime/host.h"
#include "host/runtime/input.h"
#include "host/session.h"
#include "host/win/registry.h"

namespace {

using host::win::kSuiteKey;

TEST(Session, ANewSessionStartsCleanAndTheOuterOneComesBackAsItWas) {
    host::Session outer;
    host::win::setRegistryValue(kSuiteKey, L"Where", L"outer");
    host::queueDialogActions(L"outer_dialog", {});
    host::Host::instance().openDocument(L"");
    {
        host::Session inner;
        EXPECT_FALSE(host::win::registryValue(kSuiteKey, L"Where"));
        EXPECT_TRUE(host::pendingDialogNames().empty());
        EXPECT_FALSE(host::Host::instance().hasDocument());
        host::win::setRegistryValue(kSuiteKey, L"Where", L"inner");
        host::TypedReply reply;
        host::queueTypedReply(reply);
        EXPECT_EQ(host::pendingTypedReplies(), 1u);
    }
    EXPECT_EQ(host::win::registryValue(kSuiteKey, L"Where").value_or(L""), L"outer");
    EXPECT_EQ(host::pendingDialogNames(), std::vector<std::wstring>{L"outer_dialog"});
    EXPECT_EQ(host::pendingTypedReplies(), 0u);
    EXPECT_TRUE(host::Host::instance().hasDocument());
    host::Host::instance().closeAllDocuments();
}

TEST(Session, OutputGoesToTheSinkOfTheActiveSession) {
    host::Session outer;
    host::OutputCapture outerCapture;
    {
        host::Session inner;
        host::OutputCapture innerCapture;
        acutPrintf(L"inner %d", 1);
        EXPECT_EQ(innerCapture.commandLine(), L"inner 1");
    }
    acutPrintf(L"outer");
    EXPECT_EQ(outerCapture.commandLine(), L"outer");
}

// Records the order in which parts are made and destroyed.
std::vector<std::string>& events() {
    static std::vector<std::string> log;
    return log;
}

struct Lower {
    Lower() { events().push_back("make lower"); }
    ~Lower() { events().push_back("drop lower"); }
};

struct Upper {
    Upper() {
        host::sessionPart<Lower>();  // a part made while another one is being made
        events().push_back("make upper");
    }
    ~Upper() { events().push_back("drop upper"); }
};

TEST(Session, PartsAreMadeOnFirstUseAndDroppedLastMadeFirst) {
    events().clear();
    {
        host::Session session;
        Upper& upper = host::sessionPart<Upper>();
        EXPECT_EQ(&upper, &host::sessionPart<Upper>());
    }
    EXPECT_EQ(events(), (std::vector<std::string>{"make lower", "make upper", "drop upper", "drop lower"}));
}

double viewSize() {
    resbuf rb{};
    EXPECT_EQ(acedGetVar(L"VIEWSIZE", &rb), RTNORM);
    return rb.resval.rreal;
}

TEST(Session, TheViewsZoomGoesBackToBelongToTheirDrawing) {
    host::Session session;
    host::OutputCapture capture;
    host::Host& h = host::Host::instance();
    host::Document& first = h.openDocument(L"first.dxf");
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"2X", 0), RTNORM);
    EXPECT_DOUBLE_EQ(viewSize(), 297.0 / 2);

    h.openDocument(L"second.dxf");
    capture.clear();
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"P", 0), RTNORM);
    EXPECT_NE(capture.commandLine().find(L"No previous view saved."), std::wstring::npos) << "nothing to go back to";

    h.makeCurrent(first);
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"P", 0), RTNORM);
    EXPECT_DOUBLE_EQ(viewSize(), 297.0);
    h.closeAllDocuments();
}

}  // namespace
