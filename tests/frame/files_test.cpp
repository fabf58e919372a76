// The file helpers: settings files of numbered lines, result blocks appended under a title
// written once, and data files under the installation root read as lines or tokens.
#include <clocale>
#include <filesystem>
#include <string>
#include <vector>

#include "frame/data_file.h"
#include "frame/result_file.h"
#include "frame/settings_file.h"
#include "frame/text_file.h"
#include "host/text.h"
#include "tests/support/host_session.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

using testing_support::TemporaryFolder;

class SettingsFile : public ::testing::Test {
protected:
    void SetUp() override { std::setlocale(LC_CTYPE, "C.UTF-8"); }
    TemporaryFolder folder_;
};

TEST(SettingsLines, LinesAreCountedFromOneAndReadWithoutTheirLineEnds) {
    const std::string bytes = "0.15\r\n\n101.325\nlast";
    EXPECT_EQ(vrn2::settingsLine(bytes, 1), "0.15");
    EXPECT_EQ(vrn2::settingsLine(bytes, 2), "");
    EXPECT_EQ(vrn2::settingsLine(bytes, 3), "101.325");
    EXPECT_EQ(vrn2::settingsLine(bytes, 4), "last");
    EXPECT_EQ(vrn2::settingsLine(bytes, 5), std::nullopt);
    EXPECT_EQ(vrn2::settingsLine(bytes, 0), std::nullopt);
    EXPECT_EQ(vrn2::settingsLine("", 1), std::nullopt);
}

TEST(SettingsLines, ReplacingALineKeepsItsLineEndAndEveryOtherByte) {
    EXPECT_EQ(vrn2::withSettingsLine("a\r\nb\r\nc", 2, "XY"), "a\r\nXY\r\nc");
    EXPECT_EQ(vrn2::withSettingsLine("a\r\nb\r\nc", 3, "z"), "a\r\nb\r\nz") << "no line end added to the last";
    EXPECT_EQ(vrn2::withSettingsLine("a\nb\n", 1, ""), "\nb\n");
    // Extending: the unterminated last line gets its line end, the gap empty lines.
    EXPECT_EQ(vrn2::withSettingsLine("a", 4, "x"), "a\n\n\nx\n");
    EXPECT_EQ(vrn2::withSettingsLine("a\r\n", 2, "x"), "a\r\nx\n");
    EXPECT_EQ(vrn2::withSettingsLine("", 3, "x"), "\n\nx\n");
}

TEST_F(SettingsFile, WritingLinesKeepsTheOthersByteForByte) {
    // Line 1 is not UTF-8 (a GBK word), line 2 ends the Windows way, line 5 has trailing
    // blanks: none of that may change when lines 3 and 4 are written.
    const std::string before = "\xB7\xE7\xB5\xC0\n0.15\r\nold\nold 2\n5  \n";
    folder_.write("k-sljs.sr", before);
    std::wstring path = folder_.path("k-sljs.sr");
    ASSERT_TRUE(vrn2::writeSettingsLines(path.c_str(), {{3, L"101.325"}, {4, L"温度"}}));
    EXPECT_EQ(folder_.bytes("k-sljs.sr"),
              "\xB7\xE7\xB5\xC0\n0.15\r\n101.325\n\xE6\xB8\xA9\xE5\xBA\xA6\n5  \n");
    std::wstring text;
    ASSERT_TRUE(vrn2::readSettingsLine(path.c_str(), 4, text));
    EXPECT_EQ(text, L"温度");
    ASSERT_TRUE(vrn2::readSettingsLine(path.c_str(), 2, text));
    EXPECT_EQ(text, L"0.15") << "the carriage return is part of the line end";
    EXPECT_FALSE(fs::exists(folder_.dir() / "k-sljs.sr.tmp")) << "nothing is left beside the file";
}

TEST_F(SettingsFile, AShortOrMissingFileIsExtendedWithEmptyLines) {
    std::wstring path = folder_.path("k-sljs.sr");
    std::wstring text;
    EXPECT_FALSE(vrn2::readSettingsLine(path.c_str(), 1, text));
    // The duct calculation's three inputs on lines 8 to 10 of a file that does not exist yet.
    ASSERT_TRUE(vrn2::writeSettingsLines(path.c_str(), {{8, L"0.1500"}, {9, L"101.325"}, {10, L"20.00"}}));
    EXPECT_EQ(folder_.bytes("k-sljs.sr"), "\n\n\n\n\n\n\n0.1500\n101.325\n20.00\n");
    ASSERT_TRUE(vrn2::writeSettingsLine(path.c_str(), 12, L"x"));
    EXPECT_EQ(folder_.bytes("k-sljs.sr"), "\n\n\n\n\n\n\n0.1500\n101.325\n20.00\n\nx\n");
    EXPECT_FALSE(vrn2::readSettingsLine(path.c_str(), 13, text));
}

TEST_F(SettingsFile, AFailedWriteLeavesTheOldFile) {
    const std::string before = "1\n2\n3\n";
    folder_.write("k-sljs.sr", before);
    std::wstring path = folder_.path("k-sljs.sr");
    // The temporary file cannot be made: a folder stands where it would go.
    fs::create_directories(folder_.dir() / "k-sljs.sr.tmp");
    EXPECT_FALSE(vrn2::writeSettingsLine(path.c_str(), 2, L"changed"));
    EXPECT_EQ(folder_.bytes("k-sljs.sr"), before);
    fs::remove(folder_.dir() / "k-sljs.sr.tmp");
    // A value with a line end of its own, or a line 0, is refused before anything is written;
    // so is the whole batch it belongs to.
    EXPECT_FALSE(vrn2::writeSettingsLines(path.c_str(), {{1, L"fine"}, {2, L"two\nlines"}}));
    EXPECT_FALSE(vrn2::writeSettingsLine(path.c_str(), 0, L"x"));
    EXPECT_EQ(folder_.bytes("k-sljs.sr"), before);
    // A folder that does not exist: nothing to replace, nothing made.
    std::wstring nowhere = folder_.path("missing/k-sljs.sr");
    EXPECT_FALSE(vrn2::writeSettingsLine(nowhere.c_str(), 1, L"x"));
    EXPECT_FALSE(fs::exists(folder_.dir() / "missing"));
}

TEST(TextSplits, LinesAndTokens) {
    EXPECT_EQ(vrn2::splitLines(L"a\r\n\nb\nc"), (std::vector<std::wstring>{L"a", L"", L"b", L"c"}));
    EXPECT_EQ(vrn2::splitLines(L"a\n"), (std::vector<std::wstring>{L"a"}));
    EXPECT_TRUE(vrn2::splitLines(L"").empty());
    EXPECT_EQ(vrn2::splitTokens(L"  {FP-6*4}\nA=1.0\t B=2\r\n\n  "),
              (std::vector<std::wstring>{L"{FP-6*4}", L"A=1.0", L"B=2"}));
    EXPECT_TRUE(vrn2::splitTokens(L" \t\n").empty());
}

// ---- Files that need the host: result blocks reported on a channel, data files under _DRV ----

class HostFiles : public testing_support::HostSession {
protected:
    void SetUp() override {
        HostSession::SetUp();
        doc().symbols()[L"_DRV"] = host::lisp::makeStr(host::fromUtf8(folder_.dir().string() + "/"));
    }
    TemporaryFolder folder_;
};

TEST_F(HostFiles, AResultFileGetsItsTitleOnceAndEachBlockAsItIs) {
    std::wstring path = folder_.path("result.txt");
    const vrn2::Message failure{vrn2::Channel::Alert, L"不能创建存放结果的文件."};
    ASSERT_TRUE(vrn2::appendResultBlock(path.c_str(), L"\n  结果\n", L"\n(B=101.325kPa) 50%", failure));
    ASSERT_TRUE(vrn2::appendResultBlock(path.c_str(), L"\n  结果\n", L"\nsecond", failure));
    // "结果" is E7 BB 93 E6 9E 9C; the "%" is written as it stands.
    EXPECT_EQ(folder_.bytes("result.txt"),
              "\n  \xE7\xBB\x93\xE6\x9E\x9C\n\n(B=101.325kPa) 50%\nsecond");
    EXPECT_TRUE(alerts().empty());

    // A file that exists without the title is appended to as it is.
    folder_.write("old.txt", "kept");
    std::wstring old = folder_.path("old.txt");
    ASSERT_TRUE(vrn2::appendResultBlock(old.c_str(), L"TITLE", L"+block", failure));
    EXPECT_EQ(folder_.bytes("old.txt"), "kept+block");
}

TEST_F(HostFiles, AResultFileThatCannotBeCreatedIsReportedAsTheCallerSays) {
    std::wstring path = folder_.path("no-such-folder/result.txt");
    EXPECT_FALSE(vrn2::appendResultBlock(path.c_str(), L"T", L"B", {vrn2::Channel::Alert, L"不能创建存放结果的文件."}));
    EXPECT_EQ(alerts(), std::vector<std::wstring>{L"不能创建存放结果的文件."});
    EXPECT_FALSE(vrn2::appendResultBlock(path.c_str(), L"T", L"B"));
    EXPECT_EQ(alerts().size(), 1u) << "without a message the caller reports";
    EXPECT_TRUE(printed().empty());
    EXPECT_FALSE(fs::exists(folder_.dir() / "no-such-folder"));
}

TEST_F(HostFiles, ADataFileReadsAsTokensAcrossLinesOrAsLines) {
    folder_.write("datlib/sc.dat", "\n{JW10-4*4}\nA=41.5  B=325.6\tm=0.52\r\n\nVy=2.0 E2=0.5\n");
    std::vector<std::wstring> tokens;
    ASSERT_TRUE(vrn2::readDataTokens(L"datlib\\sc.dat", vrn2::Channel::Alert, tokens));
    EXPECT_EQ(tokens, (std::vector<std::wstring>{L"{JW10-4*4}", L"A=41.5", L"B=325.6", L"m=0.52", L"Vy=2.0",
                                                 L"E2=0.5"}));
    std::vector<std::wstring> lines;
    ASSERT_TRUE(vrn2::readDataLines(L"datlib/sc.dat", vrn2::Channel::Print, lines));
    EXPECT_EQ(lines, (std::vector<std::wstring>{L"", L"{JW10-4*4}", L"A=41.5  B=325.6\tm=0.52", L"", L"Vy=2.0 E2=0.5"}));
    EXPECT_TRUE(printed().empty());
    EXPECT_TRUE(alerts().empty());
}

TEST_F(HostFiles, AMissingDataFileIsReportedOnTheChannelAsked) {
    std::vector<std::wstring> lines = {L"untouched"};
    EXPECT_FALSE(vrn2::readDataLines(L"datlib\\t-fzzb.dat", vrn2::Channel::Print, lines));
    EXPECT_EQ(printed(), L"Failaure in opening file");
    EXPECT_EQ(lines, std::vector<std::wstring>{L"untouched"});
    std::vector<std::wstring> tokens;
    EXPECT_FALSE(vrn2::readDataTokens(L"datlib\\t-fzzb.dat", vrn2::Channel::Alert, tokens));
    EXPECT_EQ(alerts(), std::vector<std::wstring>{L"Failaure in opening file"});
    // Without the installation root only its own alert is shown.
    doc().symbols().erase(L"_DRV");
    clearOutput();
    EXPECT_FALSE(vrn2::readDataLines(L"datlib\\t-fzzb.dat", vrn2::Channel::Print, lines));
    EXPECT_EQ(alerts(), std::vector<std::wstring>{L"找不到暖通软件目录!"});
    EXPECT_TRUE(printed().empty());
}

}  // namespace
