// The unit conversion window in a host session: one window at most, brought to the front on
// a repeated command, kept in the window registry until the module is unloaded.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

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

namespace {

// Another thread may look for the window and read its controls while the designer types.
TEST_F(UnitConvWindow, ReadableFromAnotherThreadWhileTyping) {
    call(L"c:UnitConv");
    HWND open = window();
    ASSERT_NE(open, nullptr);
    HWND pairs = host::win::findControl(open, L"pairs");
    HWND source = host::win::findControl(open, L"penc1");
    std::atomic<bool> done{false};
    std::atomic<int> reads{0};
    std::thread reader([&] {
        while (!done) {
            HWND found = FindWindowW(nullptr, kTitle);
            if (found) host::win::controlText(host::win::findControl(found, L"penc2"));
            ++reads;
        }
    });
    while (reads == 0) std::this_thread::yield();
    std::wstring error;
    ASSERT_TRUE(host::win::selectItem(host::win::findControl(open, L"category"), 2, error));
    for (int i = 0; i < 200; ++i) {
        EXPECT_TRUE(host::win::selectItem(pairs, i % 4, error));
        EXPECT_TRUE(host::win::typeText(source, std::to_wstring(i), error));
    }
    done = true;
    reader.join();
    // The last: 199 miles is 199 x 1609.344 = 320259.456 m.
    EXPECT_EQ(host::win::controlText(host::win::findControl(open, L"penc2")), L"320259.456");
}

}  // namespace
