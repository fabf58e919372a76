// Shared set-up of the DCL tests: a session of its own (a fresh dialog runtime), the test data
// folder, and callbacks that forward to lambdas (the interface takes plain function pointers).
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "adsdlg.h"
#include "host/dcl/dcl.h"
#include "host/dcl/dialog_script.h"
#include "host/output.h"
#include "host/session.h"
#include "host/text.h"

namespace dcltest {

inline std::string dataDir() { return std::string(VRN2_SOURCE_ROOT) + "tests/host_dcl/data/"; }
inline std::wstring dataPath(const std::string& relative) { return host::fromUtf8(dataDir() + relative); }

using Handler = std::function<void(ads_callback_packet*)>;

inline Handler& handler(int slot) {
    static Handler slots[4];
    return slots[slot];
}

// CLIENTFUNC pointers that call handler(SLOT).
template <int Slot>
void forward(ads_callback_packet* packet) {
    if (handler(Slot)) handler(Slot)(packet);
}

// The key of the tile a callback was called for.
inline std::wstring keyOf(const ads_callback_packet* packet) {
    ACHAR buffer[64];
    if (ads_get_attr_string(packet->tile, const_cast<ACHAR*>(L"key"), buffer, 64) != RTNORM) return L"";
    return buffer;
}

inline std::wstring tileValue(ads_hdlg dialog, const wchar_t* key) {
    ACHAR buffer[512];
    if (ads_get_tile(dialog, key, buffer, 512) != RTNORM) return L"<error>";
    return buffer;
}

inline std::wstring attribute(ads_hdlg dialog, const wchar_t* key, const wchar_t* name) {
    ACHAR buffer[256];
    if (ads_get_attr(dialog, key, const_cast<ACHAR*>(name), buffer, 256) != RTNORM) return L"<error>";
    return buffer;
}

inline host::DialogAction set(std::wstring key, std::wstring value) {
    return {host::DialogAction::Kind::Set, std::move(key), std::move(value)};
}
inline host::DialogAction press(std::wstring key) { return {host::DialogAction::Kind::Press, std::move(key), L""}; }
inline host::DialogAction select(std::wstring key, std::wstring items) {
    return {host::DialogAction::Kind::Select, std::move(key), std::move(items)};
}

class DclTest : public ::testing::Test {
protected:
    void SetUp() override { clearHandlers(); }
    void TearDown() override { clearHandlers(); }

    static void clearHandlers() {
        for (int i = 0; i < 4; ++i) handler(i) = nullptr;
    }

    host::Session session_;

    // Loads a file of the data folder; fails the test when it does not load.
    int load(const std::string& relative) {
        int id = -1;
        EXPECT_EQ(ads_load_dialog(dataPath(relative).c_str(), &id), RTNORM) << relative;
        EXPECT_GT(id, 0);
        return id;
    }

    ads_hdlg open(int id, const wchar_t* name, CLIENTFUNC defaultCallback = NULLCB) {
        ads_hdlg h = BAD_DIALOG;
        EXPECT_EQ(ads_new_dialog(name, id, defaultCallback, &h), RTNORM) << host::toUtf8(name);
        EXPECT_TRUE(h != BAD_DIALOG);
        return h;
    }

    static int start(ads_hdlg dialog) {
        int status = -99;
        EXPECT_EQ(ads_start_dialog(dialog, &status), RTNORM);
        return status;
    }
};

}  // namespace dcltest
