// Headless running: scripted actions applied in order, skipped with a message when they do not
// fit, the dialog cancelled when they run out; nested dialogs, each a window.
#include <stdexcept>
#include <vector>

#include "dcl_fixture.h"
#include "host/win/window_registry.h"
#include "windows.h"

namespace dcltest {
namespace {

class DclScript : public DclTest {
protected:
    void SetUp() override {
        DclTest::SetUp();
        id = load("runtime.dcl");
    }
    int id = -1;
};

TEST_F(DclScript, ActionsApplyInOrderAndCallbacksSeeEarlierOnes) {
    ads_hdlg h = open(id, L"main_dlg");
    std::vector<std::wstring> log;
    handler(0) = [&](ads_callback_packet* p) { log.push_back(keyOf(p) + L"=" + tileValue(p->dialog, L"val")); };
    ads_action_tile(h, L"val", forward<0>);
    ads_action_tile(h, L"plain", forward<0>);
    host::queueDialogActions(L"main_dlg", {set(L"val", L"1"), set(L"val", L"2"), press(L"plain"), press(L"accept"),
                                           set(L"val", L"never")});
    EXPECT_EQ(start(h), DLGOK);
    EXPECT_EQ(log, (std::vector<std::wstring>{L"val=1", L"val=2", L"plain=2"}));
    EXPECT_EQ(host::dcl::lastDialog(L"main_dlg")->value(L"val"), L"2");  // actions after the exit are not applied
}

TEST_F(DclScript, BatchesAreUsedOnePerStart) {
    host::queueDialogActions(L"main_dlg", {set(L"val", L"first"), press(L"accept")});
    host::queueDialogActions(L"main_dlg", {set(L"val", L"second")});
    EXPECT_EQ(start(open(id, L"main_dlg")), DLGOK);
    EXPECT_EQ(host::dcl::lastDialog(L"main_dlg")->value(L"val"), L"first");
    EXPECT_EQ(start(open(id, L"main_dlg")), DLGCANCEL);  // ran out after the set
    EXPECT_EQ(host::dcl::lastDialog(L"main_dlg")->value(L"val"), L"second");
    EXPECT_TRUE(host::pendingDialogNames().empty());
}

TEST_F(DclScript, EditLimitCutsTypedText) {
    host::queueDialogActions(L"main_dlg", {set(L"val", L"12345678901234567890"), press(L"accept")});
    start(open(id, L"main_dlg"));
    EXPECT_EQ(host::dcl::lastDialog(L"main_dlg")->value(L"val"), L"123456789012345");  // edit_limit 15
    // A program may still set a longer text.
    ads_hdlg h = open(id, L"main_dlg");
    ads_set_tile(h, L"val", L"12345678901234567890");
    EXPECT_EQ(tileValue(h, L"val"), L"12345678901234567890");
    start(h);
}

TEST_F(DclScript, DefaultEditLimitIs132) {
    host::queueDialogActions(L"main_dlg", {set(L"enter", std::wstring(200, L'x'))});
    start(open(id, L"main_dlg"));
    EXPECT_EQ(host::dcl::lastDialog(L"main_dlg")->value(L"enter").size(), 132u);
}

TEST_F(DclScript, UnsuitableActionsAreReportedAndSkipped) {
    ads_hdlg h = open(id, L"main_dlg");
    host::OutputCapture out;
    host::queueDialogActions(L"main_dlg",
                             {press(L"missing"), set(L"calc", L"1"), press(L"mode"), set(L"tg", L"2"),
                              set(L"mode", L"m9"), set(L"m1", L"0"), select(L"val", L"0"), set(L"val", L"ok"),
                              press(L"accept")});
    EXPECT_EQ(start(h), DLGOK);
    EXPECT_EQ(out.commandLine(),
              L"Dialog \"main_dlg\": no tile \"missing\"; (press \"missing\") skipped\n"
              L"Dialog \"main_dlg\": tile \"calc\" (button) has no value; press it instead; (set \"calc\" \"1\") skipped\n"
              L"Dialog \"main_dlg\": tile \"mode\" (radio_cluster) cannot be pressed; (press \"mode\") skipped\n"
              L"Dialog \"main_dlg\": a toggle takes \"0\" or \"1\", not \"2\"; (set \"tg\" \"2\") skipped\n"
              L"Dialog \"main_dlg\": radio cluster \"mode\" has no button \"m9\"; (set \"mode\" \"m9\") skipped\n"
              L"Dialog \"main_dlg\": a radio button is turned on with \"1\" (turn another one on to turn it off); "
              L"(set \"m1\" \"0\") skipped\n"
              L"Dialog \"main_dlg\": tile \"val\" (edit_box) is not a list; (select \"val\" \"0\") skipped\n");
    EXPECT_EQ(host::dcl::lastDialog(L"main_dlg")->value(L"val"), L"ok");
}

TEST_F(DclScript, RadioAndListSelections) {
    int loaded = load("basic.dcl");
    std::vector<std::wstring> log;
    handler(0) = [&](ads_callback_packet* p) { log.push_back(keyOf(p) + L":" + p->value); };
    ads_hdlg h = open(loaded, L"basic", forward<0>);
    host::OutputCapture out;
    host::queueDialogActions(L"basic", {set(L"choice", L"r3"), select(L"items", L"2"), select(L"many", L"0 3"),
                                        select(L"items", L"0 1"), select(L"items", L"7"), select(L"pick", L"1"),
                                        set(L"level", L"12"), press(L"accept")});
    EXPECT_EQ(start(h), DLGOK);
    EXPECT_EQ(log, (std::vector<std::wstring>{L"r3:1", L"items:2", L"many:0 3", L"pick:1", L"level:12", L"accept:"}));
    EXPECT_EQ(out.commandLine(),
              L"Dialog \"basic\": list \"items\" does not allow multiple selection; (select \"items\" \"0 1\") skipped\n"
              L"Dialog \"basic\": list \"items\" has no item 7 (it has 3); (select \"items\" \"7\") skipped\n");
    const auto* r = host::dcl::lastDialog(L"basic");
    EXPECT_EQ(r->value(L"choice"), L"r3");
    EXPECT_EQ(r->value(L"r2"), L"0");
    EXPECT_EQ(r->value(L"items"), L"2");
    EXPECT_EQ(r->value(L"many"), L"0 3");
    EXPECT_EQ(r->value(L"pick"), L"1");
    EXPECT_EQ(r->tile(L"items")->list, (std::vector<std::wstring>{L"alpha", L"beta", L"gamma"}));
}

TEST_F(DclScript, NestedDialogsEachAWindowWithTheirTilesAsChildren) {
    ads_hdlg outer = open(id, L"main_dlg");
    struct Seen {
        HWND mainWindow, childWindow;
        std::vector<std::wstring> childTitles;
        std::wstring childText;
        int status;
        std::vector<std::wstring> open;
    } seen{};
    handler(0) = [&](ads_callback_packet*) {
        ads_hdlg inner = BAD_DIALOG;
        ASSERT_EQ(ads_new_dialog(L"child_dlg", id, NULLCB, &inner), RTNORM);
        ads_set_tile(inner, L"res", L"42.000");
        handler(1) = [&](ads_callback_packet*) {
            seen.mainWindow = FindWindowW(nullptr, L"Main");
            seen.childWindow = FindWindowW(nullptr, L"Child");
            for (HWND w : host::win::childWindows(seen.childWindow)) seen.childTitles.push_back(host::win::windowTitle(w));
            seen.open = host::dcl::openDialogNames();
        };
        ads_action_tile(inner, L"deeper", forward<1>);
        ads_start_dialog(inner, &seen.status);
    };
    ads_action_tile(outer, L"nested", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"nested"), set(L"val", L"after"), press(L"accept")});
    host::queueDialogActions(L"child_dlg", {press(L"deeper"), press(L"accept")});
    size_t windowsBefore = host::win::topLevelWindowCount();
    EXPECT_EQ(start(outer), DLGOK);

    EXPECT_NE(seen.mainWindow, nullptr);
    EXPECT_NE(seen.childWindow, nullptr);
    EXPECT_NE(seen.mainWindow, seen.childWindow);
    // child_dlg: text "res", button "deeper", and ok_only's column and OK button
    EXPECT_EQ(seen.childTitles, (std::vector<std::wstring>{L"42.000", L"Deeper", L"", L"OK"}));
    EXPECT_EQ(seen.open, (std::vector<std::wstring>{L"main_dlg", L"child_dlg"}));
    EXPECT_EQ(seen.status, DLGOK);
    EXPECT_EQ(FindWindowW(nullptr, L"Main"), nullptr);  // closed dialogs have no window
    EXPECT_EQ(FindWindowW(nullptr, L"Child"), nullptr);
    EXPECT_EQ(host::win::topLevelWindowCount(), windowsBefore - 1);  // main_dlg's own window is gone

    const auto& history = host::dcl::dialogHistory();
    ASSERT_EQ(history.size(), 2u);
    EXPECT_EQ(history[0].name, L"child_dlg");  // recorded as each one closes
    EXPECT_EQ(history[0].depth, 2);
    EXPECT_EQ(history[0].value(L"res"), L"42.000");
    EXPECT_EQ(history[1].name, L"main_dlg");
    EXPECT_EQ(history[1].value(L"val"), L"after");
}

TEST_F(DclScript, AtMostEightNestedDialogs) {
    int depth = 0;
    int refusedAt = 0;
    handler(0) = [&](ads_callback_packet*) {
        ads_hdlg inner = BAD_DIALOG;
        if (ads_new_dialog(L"main_dlg", id, NULLCB, &inner) != RTNORM) {
            refusedAt = depth + 2;  // counting the outer dialog
            EXPECT_TRUE(inner == BAD_DIALOG);
            return;
        }
        ++depth;
        ads_action_tile(inner, L"nested", forward<0>);
        host::queueDialogActions(L"main_dlg", {press(L"nested")});
        int status = 0;
        ads_start_dialog(inner, &status);
    };
    ads_hdlg outer = open(id, L"main_dlg");
    ads_action_tile(outer, L"nested", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"nested")});
    host::OutputCapture out;
    start(outer);
    EXPECT_EQ(depth, 7);  // the first is started here, seven more inside it
    EXPECT_EQ(refusedAt, 9);
    EXPECT_EQ(out.commandLine(), L"Dialog \"main_dlg\": more than 8 nested dialogs\n");
}

TEST_F(DclScript, SetTileOnTheTitleAndTextRetitlesWindows) {
    ads_hdlg h = open(id, L"child_dlg");
    HWND w = FindWindowW(nullptr, L"Child");
    ASSERT_NE(w, nullptr);
    ads_set_tile(h, L"res", L"done");
    std::vector<std::wstring> titles;
    for (HWND c : host::win::childWindows(w)) titles.push_back(host::win::windowTitle(c));
    EXPECT_EQ(titles.front(), L"done");
    start(h);
    EXPECT_EQ(IsWindow(w), FALSE);
}

// A callback of the module that throws: it stops at the boundary, the script goes on, and the
// dialog state is the editor's own again once the dialog has ended.
TEST_F(DclScript, ACallbackThatThrowsLeavesTheDialogStateAsItWas) {
    host::OutputCapture capture;
    ads_hdlg h = open(id, L"main_dlg");
    handler(0) = [](ads_callback_packet*) { throw std::runtime_error("callback failed"); };
    ads_action_tile(h, L"plain", forward<0>);
    host::queueDialogActions(L"main_dlg", {press(L"plain"), set(L"val", L"after")});
    EXPECT_EQ(start(h), DLGCANCEL);
    EXPECT_NE(capture.commandLine().find(L"Host error in CLIENTFUNC: callback failed"), std::wstring::npos);
    EXPECT_EQ(host::dcl::lastDialog(L"main_dlg")->value(L"val"), L"after") << "the script went on";
    EXPECT_FALSE(host::dcl::dialogActive());
    EXPECT_TRUE(host::dcl::openDialogNames().empty());

    host::queueDialogActions(L"main_dlg", {press(L"accept")});
    EXPECT_EQ(start(open(id, L"main_dlg")), DLGOK) << "the next dialog runs as usual";
}

}  // namespace
}  // namespace dcltest
