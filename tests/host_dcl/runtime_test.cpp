// Running dialogs: start_dialog statuses, the priority of actions, standard exits, the
// callback packet, reading tiles and attributes.
#include <functional>
#include <vector>

#include "dcl_fixture.h"
#include "windows.h"

namespace dcltest {
namespace {

class DclRuntime : public DclTest {
protected:
    void SetUp() override {
        DclTest::SetUp();
        id = load("runtime.dcl");
    }
    int id = -1;
};

TEST_F(DclRuntime, NothingQueuedCancelsAtOnce) {
    ads_hdlg h = open(id, L"main_dlg");
    EXPECT_EQ(start(h), DLGCANCEL);
    const auto* r = host::dcl::lastDialog(L"main_dlg");
    ASSERT_NE(r, nullptr);
    EXPECT_TRUE(r->cancelledByHost);
    EXPECT_EQ(r->status, DLGCANCEL);
    EXPECT_EQ(r->title, L"Main");
    EXPECT_EQ(r->depth, 1);
}

TEST_F(DclRuntime, StandardExitsWithoutCallbacks) {
    host::queueDialogActions(L"main_dlg", {press(L"accept")});
    host::queueDialogActions(L"main_dlg", {press(L"cancel")});
    EXPECT_EQ(start(open(id, L"main_dlg")), DLGOK);
    EXPECT_EQ(start(open(id, L"main_dlg")), DLGCANCEL);
    EXPECT_FALSE(host::dcl::lastDialog(L"main_dlg")->cancelledByHost);
}

TEST_F(DclRuntime, DoneDialogStatusIsPassedThrough) {
    ads_hdlg h = open(id, L"main_dlg");
    handler(0) = [](ads_callback_packet* p) { ads_done_dialog(p->dialog, 7); };
    ASSERT_EQ(ads_action_tile(h, L"plain", forward<0>), RTNORM);
    host::queueDialogActions(L"main_dlg", {press(L"plain"), press(L"accept")});
    EXPECT_EQ(start(h), 7);
}

TEST_F(DclRuntime, AcceptWithItsOwnActionStaysOpenUnlessTheActionEndsIt) {
    ads_hdlg h = open(id, L"main_dlg");
    int calls = 0;
    handler(0) = [&](ads_callback_packet*) { ++calls; };
    ads_action_tile(h, L"accept", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"accept")});
    EXPECT_EQ(start(h), DLGCANCEL);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(host::dcl::lastDialog(L"main_dlg")->cancelledByHost);

    h = open(id, L"main_dlg");
    handler(0) = [](ads_callback_packet* p) { ads_done_dialog(p->dialog, DLGOK); };
    ads_action_tile(h, L"accept", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"accept")});
    EXPECT_EQ(start(h), DLGOK);
}

TEST_F(DclRuntime, IsCancelButtonClosesAfterItsAction) {
    ads_hdlg h = open(id, L"main_dlg");
    int calls = 0;
    handler(0) = [&](ads_callback_packet*) { ++calls; };
    ads_action_tile(h, L"close", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"close"), press(L"accept")});
    EXPECT_EQ(start(h), DLGCANCEL);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(host::dcl::lastDialog(L"main_dlg")->cancelledByHost);

    // without an action it closes the same way
    host::queueDialogActions(L"main_dlg", {press(L"close"), press(L"accept")});
    EXPECT_EQ(start(open(id, L"main_dlg")), DLGCANCEL);
    EXPECT_FALSE(host::dcl::lastDialog(L"main_dlg")->cancelledByHost);
}

TEST_F(DclRuntime, TermDialogEndsEveryDialogWithAllDone) {
    ads_hdlg outer = open(id, L"main_dlg");
    int innerStatus = 99;
    handler(0) = [&](ads_callback_packet*) {
        ads_hdlg inner = BAD_DIALOG;
        ads_new_dialog(L"child_dlg", id, NULLCB, &inner);
        ads_action_tile(inner, L"deeper", forward<1>);
        ads_start_dialog(inner, &innerStatus);
    };
    handler(1) = [](ads_callback_packet*) { ads_term_dialog(); };
    ads_action_tile(outer, L"nested", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"nested"), press(L"accept")});
    host::queueDialogActions(L"child_dlg", {press(L"deeper"), press(L"accept")});
    EXPECT_EQ(start(outer), DLGALLDONE);
    EXPECT_EQ(innerStatus, DLGALLDONE);
    EXPECT_FALSE(host::dcl::dialogActive());
}

TEST_F(DclRuntime, ActionPriorityDefaultThenDclActionThenActionTile) {
    std::vector<std::wstring> defaults;
    handler(0) = [&](ads_callback_packet* p) { defaults.push_back(keyOf(p)); };
    ads_hdlg h = open(id, L"main_dlg", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"plain"), press(L"calc"), press(L"inner")});
    start(h);
    // "calc" has a DCL action: the default callback is not used for it
    EXPECT_EQ(defaults, (std::vector<std::wstring>{L"plain", L"inner"}));
    EXPECT_EQ(host::dcl::lastDialog(L"main_dlg")->lispActions,
              std::vector<std::wstring>{L"calc: (princ \"dcl\")"});

    defaults.clear();
    std::vector<std::wstring> own;
    handler(1) = [&](ads_callback_packet* p) { own.push_back(keyOf(p)); };
    h = open(id, L"main_dlg", forward<0>);
    ads_action_tile(h, L"calc", forward<1>);
    host::queueDialogActions(L"main_dlg", {press(L"calc")});
    start(h);
    EXPECT_EQ(own, std::vector<std::wstring>{L"calc"});
    EXPECT_TRUE(defaults.empty());
    EXPECT_TRUE(host::dcl::lastDialog(L"main_dlg")->lispActions.empty());
}

TEST_F(DclRuntime, DefaultCallbackRunsForExitButtonsWhichStillEndTheDialog) {
    std::vector<std::wstring> keys;
    handler(0) = [&](ads_callback_packet* p) { keys.push_back(keyOf(p)); };
    host::queueDialogActions(L"main_dlg", {press(L"accept")});
    EXPECT_EQ(start(open(id, L"main_dlg", forward<0>)), DLGOK);
    host::queueDialogActions(L"main_dlg", {press(L"cancel")});
    EXPECT_EQ(start(open(id, L"main_dlg", forward<0>)), DLGCANCEL);
    EXPECT_EQ(keys, (std::vector<std::wstring>{L"accept", L"cancel"}));
    // a default callback that ends the dialog itself decides the status
    handler(0) = [](ads_callback_packet* p) { ads_done_dialog(p->dialog, 5); };
    host::queueDialogActions(L"main_dlg", {press(L"accept")});
    EXPECT_EQ(start(open(id, L"main_dlg", forward<0>)), 5);
}

TEST_F(DclRuntime, DclActionsGoToTheEvaluatorWhenOneIsInstalled) {
    std::vector<host::dcl::LispActionCall> calls;
    host::dcl::setLispActionHook([&](const host::dcl::LispActionCall& c) { calls.push_back(c); });
    ads_hdlg h = open(id, L"main_dlg");
    host::queueDialogActions(L"main_dlg", {press(L"m2"), press(L"calc")});
    start(h);
    ASSERT_EQ(calls.size(), 2u);
    // a radio button without an action uses its cluster's: $key is the cluster, $value the button
    EXPECT_EQ(calls[0].key, L"mode");
    EXPECT_EQ(calls[0].value, L"m2");
    EXPECT_EQ(calls[0].expression, L"(setq mode $value)");
    EXPECT_EQ(calls[0].reason, CBR_SELECT);
    EXPECT_EQ(calls[1].key, L"calc");
    EXPECT_EQ(calls[1].dialog, h);
}

TEST_F(DclRuntime, CallbackPacketCarriesValueClientDataAndReason) {
    struct Seen {
        std::wstring key, value;
        void* data;
        int reason;
    };
    std::vector<Seen> seen;
    ads_hdlg h = open(id, L"main_dlg");
    handler(0) = [&](ads_callback_packet* p) {
        seen.push_back({keyOf(p), p->value, p->client_data, p->reason});
        EXPECT_EQ(p->dialog, h);
    };
    int marker = 0;
    ads_action_tile(h, L"val", forward<0>);
    ads_action_tile(h, L"tg", forward<0>);
    ads_client_data_tile(h, L"val", &marker);
    host::queueDialogActions(L"main_dlg", {set(L"val", L"12.5"), press(L"val"), press(L"tg"), set(L"tg", L"0")});
    start(h);
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[0].value, L"12.5");
    EXPECT_EQ(seen[0].data, &marker);
    EXPECT_EQ(seen[0].reason, CBR_LOST_FOCUS);  // typed, then left the field
    EXPECT_EQ(seen[1].reason, CBR_SELECT);      // Enter in the field
    EXPECT_EQ(seen[2].key, L"tg");
    EXPECT_EQ(seen[2].value, L"1");             // a click flips the toggle
    EXPECT_EQ(seen[2].data, nullptr);
    EXPECT_EQ(seen[3].value, L"0");
}

TEST_F(DclRuntime, EnterInAnAllowAcceptBoxPressesTheDefaultButton) {
    host::queueDialogActions(L"main_dlg", {set(L"enter", L"x"), press(L"enter")});
    EXPECT_EQ(start(open(id, L"main_dlg")), DLGOK);
    host::queueDialogActions(L"main_dlg", {press(L"val")});  // no allow_accept
    EXPECT_EQ(start(open(id, L"main_dlg")), DLGCANCEL);
}

TEST_F(DclRuntime, GetTileTruncatesToTheBufferSize) {
    ads_hdlg h = open(id, L"main_dlg");
    ASSERT_EQ(ads_set_tile(h, L"val", L"abcdef"), RTNORM);
    ACHAR buf[8] = L"zzzzzzz";
    EXPECT_EQ(ads_get_tile(h, L"val", buf, 4), RTNORM);
    EXPECT_EQ(std::wstring(buf), L"abc");  // maxlen counts the NUL
    EXPECT_EQ(buf[4], L'z');               // nothing written past maxlen
    EXPECT_EQ(ads_get_tile(h, L"val", buf, 1), RTNORM);
    EXPECT_EQ(std::wstring(buf), L"");
    EXPECT_EQ(ads_get_tile(h, L"val", buf, 0), RTERROR);
    EXPECT_EQ(ads_get_tile(h, L"nope", buf, 8), RTERROR);
    EXPECT_EQ(ads_get_tile(h, L"VAL", buf, 8), RTERROR);  // keys are case-sensitive
    start(h);
}

TEST_F(DclRuntime, GetAttrGivesDeclaredValuesAsStrings) {
    ads_hdlg h = open(id, L"main_dlg");
    ads_set_tile(h, L"val", L"changed");
    EXPECT_EQ(attribute(h, L"val", L"edit_limit"), L"15");
    EXPECT_EQ(attribute(h, L"val", L"label"), L"Value:");
    EXPECT_EQ(attribute(h, L"close", L"is_cancel"), L"true");
    EXPECT_EQ(attribute(h, L"val", L"value"), L"<error>");  // not declared
    EXPECT_EQ(attribute(h, L"accept", L"label"), L"OK");
    ACHAR small[4];
    EXPECT_EQ(ads_get_attr(h, L"calc", const_cast<ACHAR*>(L"action"), small, 4), RTNORM);
    EXPECT_EQ(std::wstring(small), L"(pr");
    start(h);
}

TEST_F(DclRuntime, HandleIsInvalidAfterTheDialogEnds) {
    ads_hdlg h = open(id, L"main_dlg");
    start(h);
    EXPECT_EQ(ads_set_tile(h, L"val", L"x"), RTERROR);
    EXPECT_EQ(ads_start_dialog(h, nullptr), RTERROR);
    EXPECT_EQ(ads_done_dialog(h, 1), RTERROR);
}

TEST_F(DclRuntime, ModesAreKeptAndDisabledTilesIgnoreTheScript) {
    ads_hdlg h = open(id, L"main_dlg");
    int calls = 0;
    handler(0) = [&](ads_callback_packet*) { ++calls; };
    ads_action_tile(h, L"plain", forward<0>);
    ads_action_tile(h, L"inner", forward<0>);
    EXPECT_EQ(ads_mode_tile(h, L"plain", MODE_DISABLE), RTNORM);
    EXPECT_EQ(ads_mode_tile(h, L"group", MODE_DISABLE), RTNORM);  // disables what it holds
    EXPECT_EQ(ads_mode_tile(h, L"val", MODE_SETFOCUS), RTNORM);
    EXPECT_EQ(ads_mode_tile(h, L"val", MODE_SETSEL), RTNORM);
    EXPECT_EQ(ads_mode_tile(h, L"tg", MODE_FLIP), RTNORM);
    EXPECT_EQ(ads_mode_tile(h, L"val", 9), RTERROR);
    host::OutputCapture out;
    host::queueDialogActions(L"main_dlg", {press(L"plain"), press(L"inner")});
    start(h);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(out.commandLine(),
              L"Dialog \"main_dlg\": tile \"plain\" is disabled; (press \"plain\") skipped\n"
              L"Dialog \"main_dlg\": tile \"inner\" is disabled; (press \"inner\") skipped\n");
    const auto* r = host::dcl::lastDialog(L"main_dlg");
    EXPECT_FALSE(r->tile(L"plain")->enabled);
    EXPECT_TRUE(r->tile(L"inner")->enabled);
    EXPECT_EQ(r->focus, L"val");
    EXPECT_TRUE(r->tile(L"val")->selected);
    EXPECT_TRUE(r->tile(L"tg")->highlighted);
}

TEST_F(DclRuntime, DonePositionedDialogGivesThePosition) {
    ads_hdlg h = BAD_DIALOG;
    ASSERT_EQ(ads_new_positioned_dialog(L"main_dlg", id, NULLCB, 120, 80, &h), RTNORM);
    int x = 0, y = 0;
    handler(0) = [&](ads_callback_packet* p) { ads_done_positioned_dialog(p->dialog, 4, &x, &y); };
    ads_action_tile(h, L"plain", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"plain")});
    EXPECT_EQ(start(h), 4);
    EXPECT_EQ(x, 120);
    EXPECT_EQ(y, 80);
}

TEST_F(DclRuntime, RejectedFunctionTerminatesTheDialogs) {
    EXPECT_FALSE(host::dcl::rejectWhileDialogOpen(L"acedCommand"));
    bool rejected = false;
    handler(0) = [&](ads_callback_packet*) { rejected = host::dcl::rejectWhileDialogOpen(L"acedCommand"); };
    ads_hdlg h = open(id, L"main_dlg");
    ads_action_tile(h, L"plain", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"plain"), press(L"accept")});
    host::OutputCapture out;
    EXPECT_EQ(start(h), DLGALLDONE);
    EXPECT_TRUE(rejected);
    EXPECT_EQ(out.commandLine(), L"AutoCAD rejected function acedCommand\n");
}

}  // namespace
}  // namespace dcltest

namespace dcltest {
namespace {

class DclLifecycle : public DclTest {
protected:
    void SetUp() override {
        DclTest::SetUp();
        id = load("runtime.dcl");
    }
    int id = -1;
};

TEST_F(DclLifecycle, DoneBeforeStartEndsAtOnceAndLeavesTheScriptQueued) {
    ads_hdlg h = open(id, L"main_dlg");
    EXPECT_EQ(ads_done_dialog(h, 3), RTNORM);
    host::queueDialogActions(L"main_dlg", {press(L"accept")});
    EXPECT_EQ(start(h), 3);
    EXPECT_EQ(host::pendingDialogNames(), std::vector<std::wstring>{L"main_dlg"});
}

TEST_F(DclLifecycle, UnloadingTheFileKeepsAnOpenDialogWorking) {
    ads_hdlg h = open(id, L"main_dlg");
    EXPECT_EQ(ads_unload_dialog(id), RTNORM);
    EXPECT_EQ(ads_set_tile(h, L"val", L"still here"), RTNORM);
    host::queueDialogActions(L"main_dlg", {press(L"accept")});
    EXPECT_EQ(start(h), DLGOK);
    EXPECT_EQ(host::dcl::lastDialog(L"main_dlg")->value(L"val"), L"still here");
}

TEST_F(DclLifecycle, UnknownKeysAndHandlesAreErrors) {
    ads_hdlg h = open(id, L"main_dlg");
    int data = 0;
    EXPECT_EQ(ads_action_tile(h, L"nope", forward<0>), RTERROR);
    EXPECT_EQ(ads_client_data_tile(h, L"nope", &data), RTERROR);
    EXPECT_EQ(ads_set_tile(h, L"nope", L"x"), RTERROR);
    EXPECT_EQ(ads_mode_tile(h, L"nope", MODE_DISABLE), RTERROR);
    EXPECT_EQ(ads_set_tile(nullptr, L"val", L"x"), RTERROR);
    ACHAR buf[8] = L"zz";
    EXPECT_EQ(ads_get_attr_string(nullptr, const_cast<ACHAR*>(L"key"), buf, 8), RTERROR);
    EXPECT_EQ(std::wstring(buf), L"");
    ads_htile kept = nullptr;
    handler(0) = [&](ads_callback_packet* p) { kept = p->tile; };
    ads_action_tile(h, L"plain", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"plain")});
    start(h);
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(ads_get_attr_string(kept, const_cast<ACHAR*>(L"key"), buf, 8), RTERROR);  // its dialog is gone
}

TEST_F(DclLifecycle, TermDialogOutsideADialogDiscardsDialogsNotStarted) {
    ads_hdlg h = open(id, L"child_dlg");
    ASSERT_NE(FindWindowW(nullptr, L"Child"), nullptr);
    EXPECT_EQ(ads_term_dialog(), RTNORM);
    EXPECT_EQ(FindWindowW(nullptr, L"Child"), nullptr);
    EXPECT_EQ(ads_start_dialog(h, nullptr), RTERROR);
    // the next dialog runs normally
    EXPECT_EQ(start(open(id, L"child_dlg")), DLGCANCEL);
}

}  // namespace
}  // namespace dcltest

#include "acedads.h"
#include "host/runtime/host.h"

namespace dcltest {
namespace {

short variable(const wchar_t* name) {
    const host::SysVarValue* v = host::Host::instance().current().sysvars().find(name);
    return v ? v->integer : -1;
}

class DclDocument : public DclLifecycle {
protected:
    void SetUp() override {
        DclLifecycle::SetUp();
        host::Host::instance().openDocument(L"");
    }
    void TearDown() override {
        host::Host::instance().closeAllDocuments();
        DclLifecycle::TearDown();
    }
};

TEST_F(DclDocument, CmdactiveShowsAnOpenDialogAndDiastatTheOutcome) {
    short during = -1;
    handler(0) = [&](ads_callback_packet*) { during = variable(L"CMDACTIVE"); };
    ads_hdlg h = open(id, L"main_dlg");
    ads_action_tile(h, L"plain", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"plain"), press(L"accept")});
    EXPECT_EQ(start(h), DLGOK);
    EXPECT_EQ(during & 8, 8);
    EXPECT_EQ(variable(L"CMDACTIVE") & 8, 0);
    EXPECT_EQ(variable(L"DIASTAT"), 1);
    EXPECT_EQ(start(open(id, L"main_dlg")), DLGCANCEL);
    EXPECT_EQ(variable(L"DIASTAT"), 0);
}

TEST_F(DclDocument, CommandsAndPicksAreRejectedFromAnOpenDialogOnly) {
    const std::pair<const wchar_t*, std::function<int()>> calls[] = {
        {L"acedCommand", [] { return acedCommand(RTSTR, L"ZOOM", RTSTR, L"E", 0); }},
        {L"acedCmd", [] { return acedCmd(nullptr); }},
        {L"acedGetPoint", [] { ads_point p; return acedGetPoint(nullptr, nullptr, p); }},
        {L"acedEntSel", [] { ads_name e; ads_point p; return acedEntSel(L"", e, p); }},
    };
    for (const auto& [name, call] : calls) {
        int status = 0;
        handler(0) = [&](ads_callback_packet*) { status = call(); };
        ads_hdlg h = open(id, L"main_dlg");
        ads_action_tile(h, L"plain", forward<0>);
        host::queueDialogActions(L"main_dlg", {press(L"plain"), press(L"accept")});
        host::OutputCapture out;
        EXPECT_EQ(start(h), DLGALLDONE) << name;
        EXPECT_EQ(status, RTREJ) << name;
        EXPECT_EQ(out.commandLine(), L"AutoCAD rejected function " + std::wstring(name) + L"\n");
    }
    EXPECT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"E", 0), RTNORM) << "with no dialog open the command runs";
}

TEST_F(DclDocument, RejectedFunctionSetsErrno) {
    handler(0) = [](ads_callback_packet*) { host::dcl::rejectWhileDialogOpen(L"acedGetPoint"); };
    ads_hdlg h = open(id, L"main_dlg");
    ads_action_tile(h, L"plain", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"plain")});
    host::OutputCapture quiet;
    EXPECT_EQ(start(h), DLGALLDONE);
    EXPECT_EQ(variable(L"ERRNO"), 85);
}

}  // namespace
}  // namespace dcltest
