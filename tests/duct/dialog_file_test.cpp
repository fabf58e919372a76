// The duct dialog file loads in the host's DCL reader, and each dialog has the tiles the duct
// commands use, as tiles of the kind they are used as.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "adsdlg.h"
#include "host/dcl/dcl.h"
#include "host/text.h"
#include "tests/support/host_session.h"

namespace {

struct Key {
    const wchar_t* key;
    const wchar_t* kind;
};
struct DialogKeys {
    const wchar_t* dialog;
    std::vector<Key> keys;
};

const std::vector<DialogKeys> kDuctDialogs = {
    {L"mainduct_l", {{L"mduct_l", L"edit_box"}, {L"accept", L"button"}}},
    {L"sljs_dlg",
     {{L"K", L"edit_box"}, {L"B", L"edit_box"}, {L"t", L"edit_box"}, {L"cal", L"button"}, {L"cancel", L"button"},
      {L"error", L"text"}}},
    {L"jzdy_prompt", {{L"cancel", L"button"}}},
    {L"k_sljs_res", {{L"k_sljs_res", L"text"}, {L"duct_size_res", L"list_box"}, {L"cancel", L"button"}}},
};

class DuctDialogFile : public testing_support::HostSession {};

TEST_F(DuctDialogFile, EveryDialogLoadsWithTheTilesTheCommandsUse) {
    std::wstring path = testing_support::sourceRoot() + L"dwglib\\k-sljs.dcl";
    int id = -1;
    ASSERT_EQ(ads_load_dialog(path.c_str(), &id), RTNORM) << host::toUtf8(printed());
    EXPECT_EQ(printed().find(L"DCL error"), std::wstring::npos) << host::toUtf8(printed());
    for (const DialogKeys& d : kDuctDialogs) {
        ads_hdlg h = nullptr;
        ASSERT_EQ(ads_new_dialog(d.dialog, id, NULLCB, &h), RTNORM) << host::toUtf8(d.dialog);
        int status = -5;
        ads_start_dialog(h, &status);
        EXPECT_EQ(status, 0) << "cancelled headless";
        const auto* record = host::dcl::lastDialog(d.dialog);
        ASSERT_NE(record, nullptr);
        EXPECT_FALSE(record->title.empty());
        for (const Key& k : d.keys) {
            const auto* tile = record->tile(k.key);
            ASSERT_NE(tile, nullptr) << host::toUtf8(d.dialog) << " lacks " << host::toUtf8(k.key);
            EXPECT_EQ(tile->kind, k.kind) << host::toUtf8(d.dialog) << " " << host::toUtf8(k.key);
        }
    }
    ads_unload_dialog(id);
}

}  // namespace
