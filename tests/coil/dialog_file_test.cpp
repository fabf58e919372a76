// The coil dialogs in dwglib/sccal.dcl: the file loads in the host without a DCL error, every
// dialog and key the commands use is there as the kind of tile they treat it as, and the
// labels the result file repeats are the labels the check dialog shows.
#include <string>
#include <vector>

#include "adsdlg.h"
#include "coil/cooler_report.h"
#include "tests/psychro/result_file_session.h"

namespace {

using result_file_test::ResultFileSession;
using result_file_test::utf8;

struct Key {
    const wchar_t* key;
    const wchar_t* kind;
};
struct DialogKeys {
    const wchar_t* dialog;
    std::vector<Key> keys;
};

const std::vector<DialogKeys> kCoilDialogs = {
    {L"sccaldlg",
     {{L"B", L"edit_box"}, {L"type", L"popup_list"}, {L"Nn", L"edit_box"}, {L"nu_value", L"edit_box"},
      {L"conn", L"radio_cluster"}, {L"parallel", L"radio_button"}, {L"series", L"radio_button"},
      {L"t1_value", L"edit_box"}, {L"ts1_value", L"edit_box"}, {L"G_value", L"edit_box"},
      {L"tw1_value", L"edit_box"}, {L"W_value", L"edit_box"}, {L"cal", L"button"},
      {L"saveres", L"button"}, {L"help", L"button"}, {L"error", L"text"},
      {L"ih_value", L"text"}, {L"d_value", L"text"}, {L"t_value", L"text"}, {L"ts_value", L"text"},
      {L"tl_value", L"text"}, {L"fy_value", L"text"}, {L"tw2_value", L"text"}, {L"Q_value", L"text"}}},
    {L"intro_scproofcal", {}},
    {L"scdinfo",
     {{L"records", L"list_box"}, {L"type", L"edit_box"}, {L"Nn", L"edit_box"}, {L"A_value", L"edit_box"},
      {L"B_value", L"edit_box"}, {L"m_value", L"edit_box"}, {L"p_value", L"edit_box"},
      {L"n_value", L"edit_box"}, {L"L1_value", L"edit_box"}, {L"L2_value", L"edit_box"},
      {L"Fd_value", L"edit_box"}, {L"Fy_value", L"edit_box"}, {L"fw_value", L"edit_box"},
      {L"E2_list", L"list_box"}, {L"Vy_value", L"edit_box"}, {L"E2_value", L"edit_box"},
      {L"addE2list", L"button"}, {L"deleteE2list", L"button"}, {L"add", L"button"},
      {L"delete", L"button"}, {L"help", L"button"}, {L"formula", L"image"}, {L"error", L"text"}}},
    {L"warming", {{L"ok", L"button"}, {L"cancel", L"button"}}},
    {L"scdhelp", {}},
    {L"zat_help", {}},
};

class CoilDialogFile : public ResultFileSession {
protected:
    // Loads sccal.dcl and runs each dialog (cancelled at once, headless); answers the records.
    std::vector<host::dcl::DialogRecord> runAll() {
        std::vector<host::dcl::DialogRecord> records;
        const std::wstring path = testing_support::sourceRoot() + L"dwglib/sccal.dcl";
        int id = -1;
        EXPECT_EQ(ads_load_dialog(path.c_str(), &id), RTNORM) << utf8(printed());
        EXPECT_EQ(printed().find(L"DCL error"), std::wstring::npos) << utf8(printed());
        for (const DialogKeys& d : kCoilDialogs) {
            ads_hdlg h = nullptr;
            EXPECT_EQ(ads_new_dialog(d.dialog, id, NULLCB, &h), RTNORM) << utf8(d.dialog);
            if (!h) continue;
            int status = -5;
            ads_start_dialog(h, &status);
            if (const auto* record = host::dcl::lastDialog(d.dialog)) records.push_back(*record);
        }
        ads_unload_dialog(id);
        return records;
    }
};

TEST_F(CoilDialogFile, EveryDialogHasTheKeysTheCommandsUse) {
    const auto records = runAll();
    ASSERT_EQ(records.size(), kCoilDialogs.size());
    for (size_t k = 0; k < records.size(); ++k) {
        const auto& record = records[k];
        EXPECT_FALSE(record.title.empty()) << utf8(record.name);
        for (const Key& key : kCoilDialogs[k].keys) {
            const auto* tile = record.tile(key.key);
            ASSERT_NE(tile, nullptr) << utf8(record.name) << " lacks " << utf8(key.key);
            EXPECT_EQ(tile->kind, key.kind) << utf8(record.name) << " " << utf8(key.key);
        }
        bool closable = false;
        for (const auto& tile : record.tiles) closable |= tile.key == L"accept" || tile.key == L"cancel";
        EXPECT_TRUE(closable) << utf8(record.name);
    }
}

TEST_F(CoilDialogFile, ResultFileLabelsAreTheCheckDialogsLabels) {
    const auto records = runAll();
    ASSERT_FALSE(records.empty());
    namespace label = vrn2::cooler_labels;
    for (const wchar_t* text :
         {label::kModel, label::kRows, label::kUnits, label::kConnection, label::kInlet, label::kAirFlow,
          label::kWaterInlet, label::kWaterFlow, label::kEnthalpy, label::kMoisture, label::kDryBulb,
          label::kWetBulb, label::kDewPoint, label::kHumidity, label::kWaterOutlet, label::kLoad}) {
        bool shown = false;
        for (const auto& tile : records[0].tiles) shown |= tile.label == text;
        EXPECT_TRUE(shown) << utf8(text) << " is not a label of sccaldlg";
    }
}

}  // namespace
