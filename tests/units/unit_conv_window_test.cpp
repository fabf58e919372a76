// The unit conversion window in a host session: one window at most, brought to the front on
// a repeated command, kept in the window registry until the module is unloaded.
#include <gtest/gtest.h>

#include "host/win/dialog_windows.h"
#include "host/win/window_registry.h"
#include "tests/support/host_session.h"

namespace {

const wchar_t kTitle[] = L"单位换算";

class UnitConvWindow : public testing_support::HostSession {
protected:
    HWND window() { return FindWindowW(nullptr, kTitle); }
    std::wstring text(const wchar_t* control) {
        return host::win::controlText(host::win::findControl(window(), control));
    }
};

TEST_F(UnitConvWindow, RepeatedCommandBringsTheOneWindowToTheFront) {
    size_t before = host::win::topLevelWindowCount();
    call(L"c:UnitConv");
    HWND first = window();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(host::win::windowVisible(first));
    EXPECT_EQ(host::win::activeWindow(), first);
    EXPECT_EQ(host::win::topLevelWindowCount(), before + 1);

    ShowWindow(first, SW_HIDE);
    SetActiveWindow(nullptr);
    call(L"c:UnitConv");
    EXPECT_EQ(window(), first);
    EXPECT_EQ(host::win::topLevelWindowCount(), before + 1);
    EXPECT_TRUE(host::win::windowVisible(first));
    EXPECT_EQ(host::win::activeWindow(), first);
}

TEST_F(UnitConvWindow, ControlsAreChildWindowsWithTheirTexts) {
    call(L"c:UnitConv");
    ASSERT_NE(window(), nullptr);
    for (const wchar_t* name : {L"category", L"pairs", L"dir1", L"dir2", L"penc1", L"penc2", L"factor"})
        EXPECT_NE(host::win::findControl(window(), name), nullptr) << std::string(name, name + 6);
    EXPECT_EQ(text(L"category"), L"温度");
    EXPECT_EQ(text(L"pairs"), L"[F]     <==>     [℃]");
    EXPECT_EQ(text(L"factor"), L"[(F-32)*5/9]");
    EXPECT_EQ(text(L"unit2"), L"[℃]");
    EXPECT_EQ(text(L"penc1"), L"");
}

TEST_F(UnitConvWindow, UnloadingTheModuleDestroysTheWindow) {
    call(L"c:UnitConv");
    HWND open = window();
    ASSERT_NE(open, nullptr);
    HWND edit = host::win::findControl(open, L"penc1");
    host().unloadModule(module_);
    module_ = nullptr;
    EXPECT_EQ(window(), nullptr);
    EXPECT_FALSE(IsWindow(open));
    EXPECT_FALSE(IsWindow(edit));
    EXPECT_EQ(host::win::activeWindow(), nullptr);
}

TEST_F(UnitConvWindow, ClosedWindowIsCreatedAgain) {
    call(L"c:UnitConv");
    HWND first = window();
    std::wstring error;
    ASSERT_TRUE(host::win::typeText(host::win::findControl(first, L"penc1"), L"7", error));
    ASSERT_TRUE(host::win::click(host::win::findControl(first, L"cancel"), error));
    EXPECT_FALSE(IsWindow(first));
    call(L"c:UnitConv");
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(text(L"penc1"), L"");
}

}  // namespace
