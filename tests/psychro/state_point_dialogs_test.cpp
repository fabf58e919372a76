// The dialog files of the state-point and mixing commands: they load through the host's DCL
// parser and audit, and every tile the commands use is there, of the kind they use it as.
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "adsdlg.h"
#include "host/dcl/dcl.h"
#include "psychro/state_point_choices.h"
#include "psychro/state_result_dialog.h"
#include "tests/support/host_session.h"

namespace {

namespace fs = std::filesystem;
using host::dcl::lastDialog;
using testing_support::HostSession;
using testing_support::sourceRoot;

class StatePointDialogs : public HostSession {
protected:
    void SetUp() override {
        HostSession::SetUp();
        host::dcl::clearDialogHistory();
    }
    // Loads FILE (relative to the source tree), runs each dialog once (cancelled at once)
    // and answers whether all of them could be created.
    bool runAll(const std::wstring& file, const std::vector<std::wstring>& dialogs) {
        int id = -1;
        if (ads_load_dialog((sourceRoot() + file).c_str(), &id) != RTNORM) return false;
        bool ok = true;
        for (const auto& name : dialogs) {
            ads_hdlg dialog = nullptr;
            if (ads_new_dialog(name.c_str(), id, NULLCB, &dialog) != RTNORM) {
                ok = false;
                continue;
            }
            int status = -5;
            ads_start_dialog(dialog, &status);
        }
        ads_unload_dialog(id);
        return ok;
    }
    static void expectTile(const wchar_t* dialog, const std::wstring& key, const wchar_t* kind) {
        const auto* record = lastDialog(dialog);
        ASSERT_NE(record, nullptr) << dialog;
        const auto* tile = record->tile(key);
        ASSERT_NE(tile, nullptr) << dialog << ": " << key;
        EXPECT_EQ(tile->kind, kind) << dialog << ": " << key;
    }
};

TEST_F(StatePointDialogs, BothFilesPassTheAuditAndEveryDialogOpens) {
    EXPECT_TRUE(runAll(L"dwglib/ci_dt.dcl", {L"ci_dt", L"i_dresdlg", L"v_resdlg", L"introduce2"}));
    EXPECT_TRUE(runAll(L"dwglib/procdlg.dcl", {L"airmixdlg"}));
    EXPECT_EQ(printed().find(L"DCL error"), std::wstring::npos) << printed();
    EXPECT_TRUE(failures().empty());
    EXPECT_EQ(host::dcl::dialogHistory().size(), 5u);
}

TEST_F(StatePointDialogs, TheAuditWouldRefuseAFaultyCopy) {
    // The same radio buttons outside their cluster: the host names the line.
    fs::path dir = fs::temp_directory_path() / ("vrn2-dcl-" + std::to_string(::getpid()));
    fs::create_directories(dir);
    fs::path faulty = dir / "faulty.dcl";
    std::ofstream(faulty) << "ci_dt : dialog {\n  label = \"x\";\n  : radio_button { key = \"ihd\"; }\n  ok_only;\n}\n";
    int id = -1;
    EXPECT_NE(ads_load_dialog(faulty.wstring().c_str(), &id), RTNORM);
    EXPECT_NE(printed().find(L"line 3"), std::wstring::npos) << printed();
    fs::remove_all(dir);
}

TEST_F(StatePointDialogs, TheStatePointDialogHasEveryTileTheCommandUses) {
    ASSERT_TRUE(runAll(L"dwglib/ci_dt.dcl", {L"ci_dt"}));
    const auto* record = lastDialog(L"ci_dt");
    // The nine radio buttons, in the order of the choices they stand for.
    std::vector<std::wstring> radios;
    for (const auto& tile : record->tiles)
        if (tile.kind == L"radio_button") radios.push_back(tile.key);
    std::vector<std::wstring> expected;
    for (int c = 1; c <= vrn2::kChoiceCount; ++c) expected.push_back(vrn2::statePointChoice(c)->radioKey);
    EXPECT_EQ(radios, expected);
    EXPECT_EQ(radios.front(), L"ihd");
    EXPECT_EQ(radios.back(), L"tldb");

    expectTile(L"ci_dt", L"pressure", L"edit_box");
    for (const wchar_t* input : vrn2::kInputTiles) expectTile(L"ci_dt", input, L"edit_box");
    for (int c = 1; c <= vrn2::kChoiceCount; ++c)
        for (int k = 0; k < vrn2::statePointChoice(c)->inputCount; ++k)
            expectTile(L"ci_dt", vrn2::statePointChoice(c)->inputs[k].tile, L"edit_box");
    expectTile(L"ci_dt", L"result", L"button");
    expectTile(L"ci_dt", L"sel_point", L"button");
    expectTile(L"ci_dt", L"symbol", L"toggle");
    expectTile(L"ci_dt", L"error", L"text");
    expectTile(L"ci_dt", L"cancel", L"button");
    EXPECT_EQ(record->value(L"pressure"), L"101.325");
}

TEST_F(StatePointDialogs, ResultViewerAndMixingDialogsHaveTheirTiles) {
    ASSERT_TRUE(runAll(L"dwglib/ci_dt.dcl", {L"i_dresdlg", L"v_resdlg", L"introduce2"}));
    for (const wchar_t* value : vrn2::kResultValueTiles) expectTile(L"i_dresdlg", value, L"text");
    expectTile(L"i_dresdlg", L"saveres", L"button");
    expectTile(L"i_dresdlg", L"error", L"text");
    expectTile(L"i_dresdlg", L"cancel", L"button");
    expectTile(L"v_resdlg", L"reslist", L"list_box");
    expectTile(L"v_resdlg", L"resintr", L"button");
    expectTile(L"v_resdlg", L"accept", L"button");
    expectTile(L"introduce2", L"accept", L"button");

    ASSERT_TRUE(runAll(L"dwglib/procdlg.dcl", {L"airmixdlg"}));
    for (const wchar_t* key : {L"press", L"i_value1", L"d_value1", L"g_value1", L"i_value2", L"d_value2", L"g_value2"})
        expectTile(L"airmixdlg", key, L"edit_box");
    expectTile(L"airmixdlg", L"procres", L"button");
    expectTile(L"airmixdlg", L"i_d", L"button");
    expectTile(L"airmixdlg", L"error", L"text");
    EXPECT_FALSE(lastDialog(L"airmixdlg")->tile(L"i_d")->enabled) << "disabled until a mix exists";
}

TEST_F(StatePointDialogs, InputsTakeAtMostFifteenCharacters) {
    int id = -1;
    ASSERT_EQ(ads_load_dialog((sourceRoot() + L"dwglib/ci_dt.dcl").c_str(), &id), RTNORM);
    ASSERT_EQ(eval(LR"((host-dialog "ci_dt" '((set "tfy" "1") (set "temp" "12345678901234567890"))))"), L"T");
    ads_hdlg dialog = nullptr;
    ASSERT_EQ(ads_new_dialog(L"ci_dt", id, NULLCB, &dialog), RTNORM);
    int status = -5;
    ads_start_dialog(dialog, &status);
    ads_unload_dialog(id);
    EXPECT_EQ(lastDialog(L"ci_dt")->value(L"temp"), L"123456789012345");
}

}  // namespace
