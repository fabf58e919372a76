// The dialog files of the supply-air calculation and of the result viewers: they load in the
// host without a DCL error, and every dialog and tile key the commands use is there, as a tile
// of the kind the commands treat it as.
#include <filesystem>
#include <string>
#include <vector>

#include "adsdlg.h"
#include "tests/psychro/result_file_session.h"

namespace result_file_test {
namespace {

struct Key {
    const wchar_t* key;
    const wchar_t* kind;
};
struct DialogKeys {
    const wchar_t* dialog;
    std::vector<Key> keys;
};

const DialogKeys kResultList = {L"v_resdlg", {{L"reslist", L"list_box"}, {L"resintr", L"button"}}};
const DialogKeys kExplanation = {L"introduce3", {}};
const DialogKeys kDeleteWarning = {L"delwarming", {{L"ok", L"button"}, {L"cancel", L"button"}}};

const std::vector<DialogKeys> kSupplyAirDialogs = {
    {L"gs_caldlg",
     {{L"B", L"edit_box"}, {L"tn_value", L"edit_box"}, {L"rhn_value", L"edit_box"}, {L"q_value", L"edit_box"},
      {L"w_value", L"edit_box"}, {L"dt_value", L"edit_box"}, {L"q", L"toggle"}, {L"w", L"toggle"},
      {L"q_text", L"text"}, {L"cal", L"button"}, {L"help", L"button"}, {L"error", L"text"},
      {L"cancel", L"button"}}},
    {L"gscalres",
     {{L"Ga", L"text"}, {L"t_value", L"text"}, {L"ts_value", L"text"}, {L"d_value", L"text"},
      {L"i_value", L"text"}, {L"rh_value", L"text"}, {L"error", L"text"}, {L"saveres", L"button"}}},
    {L"intro_scproofcal", {}},
    kResultList,
    kExplanation,
    kDeleteWarning,
};

class DialogFiles : public ResultFileSession {
protected:
    // Loads the file, runs each dialog (cancelled at once, headless) and checks its keys.
    void expectDialogs(const std::wstring& relative, const std::vector<DialogKeys>& dialogs) {
        std::wstring path = testing_support::sourceRoot() + relative;
        int id = -1;
        ASSERT_EQ(ads_load_dialog(path.c_str(), &id), RTNORM) << utf8(printed());
        EXPECT_EQ(printed().find(L"DCL error"), std::wstring::npos) << utf8(printed());
        for (const DialogKeys& d : dialogs) {
            ads_hdlg h = nullptr;
            ASSERT_EQ(ads_new_dialog(d.dialog, id, NULLCB, &h), RTNORM) << utf8(relative) << " " << utf8(d.dialog);
            int status = -5;
            ads_start_dialog(h, &status);
            const auto* record = dialog(d.dialog);
            ASSERT_NE(record, nullptr);
            EXPECT_FALSE(record->title.empty()) << utf8(d.dialog) << " has a title for the user";
            for (const Key& k : d.keys) {
                const auto* tile = record->tile(k.key);
                ASSERT_NE(tile, nullptr) << utf8(d.dialog) << " lacks " << utf8(k.key);
                EXPECT_EQ(tile->kind, k.kind) << utf8(d.dialog) << " " << utf8(k.key);
            }
            // A way to close the dialog: an exit button (is_cancel or the standard accept).
            bool closable = false;
            for (const auto& tile : record->tiles) closable |= tile.key == L"accept" || tile.key == L"cancel";
            EXPECT_TRUE(closable) << utf8(d.dialog);
        }
        ads_unload_dialog(id);
    }
};

TEST_F(DialogFiles, SupplyAirDialogsHaveEveryKeyTheCommandsUse) {
    expectDialogs(L"dwglib/gscal.dcl", kSupplyAirDialogs);
}

TEST_F(DialogFiles, SurfaceCoolerFileHasTheViewingAndDeletingDialogs) {
    expectDialogs(L"dwglib/sccal.dcl", {kResultList, kExplanation, kDeleteWarning});
}

TEST_F(DialogFiles, StatePointFileHasTheViewingDialogs) {
    expectDialogs(L"dwglib\\ci_dt.dcl", {kResultList, {L"introduce2", {}}});
}

TEST_F(DialogFiles, ChartFileHasTheDrawingTableAndHelpDialogs) {
    expectDialogs(L"dwglib\\crti_dt.dcl",
                  {{L"crti_dtdlg",
                    {{L"pressure", L"edit_box"}, {L"t_min", L"edit_box"}, {L"t_max", L"edit_box"},
                     {L"d_min", L"edit_box"}, {L"d_max", L"edit_box"}, {L"width", L"edit_box"},
                     {L"height", L"edit_box"}, {L"accept", L"button"}, {L"help", L"button"},
                     {L"cancel", L"button"}, {L"error", L"text"}}},
                   {L"vi_dtbldlg", {{L"ptlist", L"list_box"}, {L"pressure", L"text"}}},
                   {L"i_dhlpdlg", {}}});
}

TEST_F(DialogFiles, TheResultListIsWideEnoughForAWholeRead) {
    std::wstring path = testing_support::sourceRoot() + L"dwglib/gscal.dcl";
    int id = -1;
    ASSERT_EQ(ads_load_dialog(path.c_str(), &id), RTNORM);
    ads_hdlg h = nullptr;
    ASSERT_EQ(ads_new_dialog(L"v_resdlg", id, NULLCB, &h), RTNORM);
    wchar_t width[32] = {};
    ASSERT_EQ(ads_get_attr(h, L"reslist", const_cast<wchar_t*>(L"width"), width, 31), RTNORM);
    EXPECT_GE(std::stod(width), 99.0);
    int status = 0;
    ads_start_dialog(h, &status);
    ads_unload_dialog(id);
}

}  // namespace
}  // namespace result_file_test
