// The registry values, the dialog font, the screen lettering and the view corners.
#include <chrono>
#include <cmath>
#include <thread>

#include "acedads.h"
#include "frame/hanzi_lettering.h"
#include "frame/frame_handlers.h"
#include "host/runtime/screen.h"
#include "host/win/registry.h"
#include "host/win/window_registry.h"
#include "tests/support/host_session.h"

namespace {

using testing_support::HostSession;
namespace lisp = host::lisp;

class RegistryValues : public HostSession {};

TEST_F(RegistryValues, NoKeyAtAll) {
    for (const wchar_t* name : {L"_Xgetsyspath", L"XGetVrA", L"XGetVrB"}) {
        clearOutput();
        auto r = call(name);
        EXPECT_EQ(printed(), L"\n注册表内无Vorn系统路径指示!\n请运行“安装程序”!");
        EXPECT_EQ(r.value->kind, lisp::Kind::Void) << "no result is set";
    }
}

TEST_F(RegistryValues, KeyWithoutTheValue) {
    host::win::setRegistryValue(host::win::kSuiteKey, L"Other", L"x");
    auto r = call(L"_Xgetsyspath");
    EXPECT_EQ(printed(), L"\n注册表内Vorn系统路径未设置!\n请运行“安装程序”!");
    EXPECT_EQ(r.value->kind, lisp::Kind::Void);
    clearOutput();
    EXPECT_EQ(lisp::printValue(call(L"XGetVrA").value), L"\"\"");
    EXPECT_EQ(lisp::printValue(call(L"XGetVrB").value), L"\"\"");
    EXPECT_TRUE(printed().empty());
}

TEST_F(RegistryValues, PresentValuesAndTheBufferLimit) {
    host::win::setRegistryValue(host::win::kSuiteKey, L"SysPath", L"D:\\Vornex 6\\");
    host::win::setRegistryValue(host::win::kSuiteKey, L"VrnResult", std::wstring(259, L'a'));
    host::win::setRegistryValue(host::win::kSuiteKey, L"VrnBResult", std::wstring(260, L'b'));
    EXPECT_EQ(lisp::printValue(call(L"_Xgetsyspath").value), L"\"D:\\\\Vornex 6\\\\\"");
    EXPECT_EQ(call(L"XGetVrA").value->text, std::wstring(259, L'a'));
    // 260 characters and the terminator do not fit 260 wide characters: treated as missing.
    EXPECT_EQ(lisp::printValue(call(L"XGetVrB").value), L"\"\"");
}

class DialogFont : public HostSession {};

TEST_F(DialogFont, ABadTitleIsRefusedWithThree) {
    for (auto args : {std::vector<lisp::ValuePtr>{}, {lisp::makeInt(5)}, {lisp::makeStr(L"")}}) {
        clearOutput();
        int handlerResult = 0;
        host().runInvocation(59, args, [&] { return handlerResult = vrn2::setDialogFont(); });
        EXPECT_EQ(handlerResult, 3);
        EXPECT_EQ(printed(), L"\n输入对话框名有误！");
    }
    EXPECT_EQ(host::win::runningThreadCount(), 0u);
}

template <class Pred>
bool waitFor(Pred pred) {
    for (int i = 0; i < 500; ++i) {
        if (pred()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return pred();
}

TEST_F(DialogFont, ChildControlsOfTheDialogGetTheFixedFont) {
    size_t fontsBefore = host::win::liveFontCount();
    call(L"_SetDlgFont", {lisp::makeStr(L"送风计算")});
    ASSERT_EQ(host::win::runningThreadCount(), 1u);

    // The dialog shows up after the call, as it does in the editor.
    HWND other = host::win::createWindow(L"另一个");
    HWND dialog = host::win::createWindow(L"送风计算");
    HWND edit = host::win::createWindow(L"", dialog, L"Edit");
    HWND group = host::win::createWindow(L"", dialog, L"Button");
    HWND nested = host::win::createWindow(L"", group, L"Static");

    ASSERT_TRUE(waitFor([&] { return host::win::windowFont(nested) != nullptr; }));
    for (HWND child : {edit, group, nested}) {
        host::win::FontInfo f;
        ASSERT_TRUE(host::win::fontInfo(host::win::windowFont(child), f));
        EXPECT_EQ(f.face, L"8514fix");
        EXPECT_EQ(f.height, 16);
        EXPECT_EQ(f.width, 8);
        EXPECT_EQ(f.weight, 400);
        EXPECT_EQ(f.charSet, 134u);
        EXPECT_EQ(f.outPrecision, 1u);
        EXPECT_EQ(f.clipPrecision, 2u);
        EXPECT_EQ(f.quality, 2u);
        EXPECT_EQ(f.pitchAndFamily, 49u);
    }
    EXPECT_EQ(host::win::windowFont(other), nullptr);
    EXPECT_EQ(host::win::windowFont(dialog), nullptr) << "only the children get the font";
    EXPECT_EQ(host::win::liveFontCount(), fontsBefore + 1);

    DestroyWindow(dialog);
    EXPECT_TRUE(waitFor([] { return host::win::runningThreadCount() == 0; })) << "the thread ends with the window";
    EXPECT_EQ(host::win::liveFontCount(), fontsBefore) << "and deletes its font";
    DestroyWindow(other);
}

class Lettering : public HostSession {
protected:
    std::vector<host::ScreenVector> draw(int x, int y, double scale, const std::wstring& text) {
        host::clearScreenVectors();
        auto r = call(L"t:draw-hz", {lisp::makeInt(x), lisp::makeInt(y), lisp::makeReal(scale), lisp::makeInt(3),
                                     lisp::makeStr(L"skipped"), lisp::makeStr(text)});
        EXPECT_TRUE(r.defined);
        return host::screenVectors();
    }
};

TEST_F(Lettering, TheGlyphOfYiIsOneHorizontalStroke) {
    auto v = draw(100, 50, 1.0, L"一");
    ASSERT_GT(v.size(), 8u);
    int minX = 1 << 20, maxX = -1;
    for (auto& p : v) {
        EXPECT_EQ(p.x1, p.x2);
        EXPECT_EQ(p.y1, p.y2) << "points, drawn as vectors of zero length";
        EXPECT_EQ(p.color, 3);
        EXPECT_GE(p.y1, 50 + 5);
        EXPECT_LE(p.y1, 50 + 8) << "a stroke across the middle of the cell";
        minX = std::min(minX, p.x1);
        maxX = std::max(maxX, p.x1);
    }
    EXPECT_GE(minX, 100);
    EXPECT_LE(maxX, 115);
    EXPECT_GE(maxX - minX, 10) << "the stroke spans most of the 16-pixel cell";
}

TEST_F(Lettering, ScaleTwoDoublesEveryOffsetAndTheAdvance) {
    auto one = draw(0, 0, 1.0, L"中中");
    auto two = draw(0, 0, 2.0, L"中中");
    ASSERT_EQ(one.size(), two.size());
    ASSERT_FALSE(one.empty());
    size_t half = one.size() / 2;
    for (size_t i = 0; i < one.size(); ++i) {
        EXPECT_EQ(two[i].x1, one[i].x1 * 2);
        EXPECT_EQ(two[i].y1, one[i].y1 * 2);
    }
    // The second character starts 16 pixels (32 at scale 2) to the right of the first.
    for (size_t i = 0; i < half; ++i) EXPECT_EQ(one[half + i].x1, one[i].x1 + 16);
    // The vertical stroke of 中 runs down the middle columns over the full height.
    int middle = 0;
    for (size_t i = 0; i < half; ++i)
        if (one[i].x1 == 7 || one[i].x1 == 8) ++middle;
    EXPECT_GE(middle, 16);
}

TEST_F(Lettering, SingleByteLettersLeaveEightPixelsAndDrawNothing) {
    auto plain = draw(0, 0, 1.0, L"中");
    auto shifted = draw(0, 0, 1.0, L"ab中");
    EXPECT_TRUE(draw(0, 0, 1.0, L"abc").empty());
    ASSERT_EQ(plain.size(), shifted.size());
    for (size_t i = 0; i < plain.size(); ++i) EXPECT_EQ(shifted[i].x1, plain[i].x1 + 16);
}

TEST_F(Lettering, GbBytesGivenAsUnitsDrawTheSameGlyph) {
    auto wide = draw(10, 10, 1.0, L"中");
    auto bytes = draw(10, 10, 1.0, std::wstring{wchar_t(0xD6), wchar_t(0xD0)});
    auto signExtended = draw(10, 10, 1.0, std::wstring{wchar_t(0xFFD6), wchar_t(0xFFD0)});
    EXPECT_EQ(wide.size(), bytes.size());
    EXPECT_EQ(wide.size(), signExtended.size());
    EXPECT_EQ(vrn2::letteringUnits(L"中a"), (std::vector<int>{0xD6, 0xD0, 'a'}));
    EXPECT_EQ(vrn2::glyphOffset(54, 48), ((54 - 1) * 94 + 47) * 32);
}

TEST_F(Lettering, BadArgumentsFailWithAMessage) {
    auto r = call(L"t:draw-hz", {lisp::makeStr(L"x")});
    EXPECT_NE(printed().find(L"t:draw-hz"), std::wstring::npos);
    EXPECT_TRUE(host::screenVectors().empty());
    EXPECT_TRUE(r.defined);
}

TEST_F(Lettering, AScaleBeyondTheScreenIsRefusedAndDrawsNothing) {
    for (double scale : {1e308, -1e308, 2048.0, std::nan("")}) {
        clearOutput();
        EXPECT_TRUE(draw(0, 0, scale, L"中文").empty()) << scale;
        EXPECT_NE(printed().find(L"t:draw-hz: the scale must be a number from -2047 to 2047"), std::wstring::npos);
    }
    clearOutput();
    draw(0, 0, 2047.0, L"中");
    EXPECT_EQ(printed().find(L"the scale must be"), std::wstring::npos);
}

class ViewCorners : public HostSession {};

TEST_F(ViewCorners, CornersOfAKnownView) {
    auto& vars = doc().sysvars();
    const double centre[3] = {100.0, 50.0, 0.0};
    const double screen[3] = {800.0, 400.0, 0.0};
    vars.setPoint(L"VIEWCTR", centre, false, true);
    vars.setReal(L"VIEWSIZE", 40.0, true);
    vars.setPoint(L"SCREENSIZE", screen, true, true);
    // Half height 20, half width 20 / 400 * 800 = 40.
    EXPECT_EQ(lisp::printValue(call(L"_Xscjx").value), L"((60.0 30.0 0.0) (140.0 70.0 0.0))");
}

}  // namespace
