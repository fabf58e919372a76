// The entries a result file gives its list: reads of at most 99 characters, cut at the line
// feed and at U+FFFF, and the last line repeated when the file ends in a line feed.
#include <gtest/gtest.h>

#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "psychro/result_files.h"

namespace {

namespace fs = std::filesystem;
using Entries = std::vector<std::wstring>;

class ResultEntries : public ::testing::Test {
protected:
    void SetUp() override {
        std::setlocale(LC_CTYPE, "C.UTF-8");
        path_ = fs::temp_directory_path() / ("result_entries_" + std::to_string(::getpid()) + ".txt");
    }
    void TearDown() override { fs::remove(path_); }

    Entries entriesOf(const std::string& utf8) {
        std::ofstream(path_, std::ios::binary) << utf8;
        FILE* f = std::fopen(path_.c_str(), "r");
        EXPECT_NE(f, nullptr);
        if (!f) return {};
        Entries e = vrn2::readResultEntries(f);
        std::fclose(f);
        return e;
    }
    fs::path path_;
};

TEST_F(ResultEntries, ALastLineEndingInALineFeedIsListedTwice) {
    EXPECT_EQ(entriesOf("one\ntwo\n"), (Entries{L"one", L"two", L"two"}));
    EXPECT_EQ(entriesOf("\n结果\n"), (Entries{L"", L"结果", L"结果"}));
}

TEST_F(ResultEntries, ALastLineWithoutALineFeedIsListedOnce) {
    EXPECT_EQ(entriesOf("one\ntwo"), (Entries{L"one", L"two"}));
    EXPECT_EQ(entriesOf("only"), (Entries{L"only"}));
}

TEST_F(ResultEntries, AnEmptyFileGivesOneEmptyEntry) {
    // The end is only seen by a read that finds nothing; the untouched buffer is empty.
    EXPECT_EQ(entriesOf(""), (Entries{L""}));
}

TEST_F(ResultEntries, LongLinesAreSplitEvery99Characters) {
    std::string digits;
    for (int k = 0; k < 250; ++k) digits += static_cast<char>('0' + k % 10);
    Entries e = entriesOf(digits + "\nend");
    std::wstring wide(digits.begin(), digits.end());
    ASSERT_EQ(e.size(), 4u);
    EXPECT_EQ(e[0], wide.substr(0, 99));
    EXPECT_EQ(e[1], wide.substr(99, 99));
    EXPECT_EQ(e[2], wide.substr(198));  // the remaining 52 characters and the line feed
    EXPECT_EQ(e[3], L"end");
}

TEST_F(ResultEntries, ALineOfExactly99CharactersLeavesItsLineFeedForTheNextRead) {
    std::string line(99, 'x');
    EXPECT_EQ(entriesOf(line + "\nnext"), (Entries{std::wstring(99, L'x'), L"", L"next"}));
}

TEST_F(ResultEntries, CharactersCountAsCharactersNotBytes) {
    // 99 Chinese characters are 297 bytes but one read.
    std::string han;
    for (int k = 0; k < 100; ++k) han += "\xE9\xA3\x8E";  // 风
    Entries e = entriesOf(han);
    ASSERT_EQ(e.size(), 2u);
    EXPECT_EQ(e[0], std::wstring(99, L'风'));
    EXPECT_EQ(e[1], L"风");
}

TEST_F(ResultEntries, AnEntryEndsAtTheCharacterFFFF) {
    // U+FFFF is EF BF BF in UTF-8.
    EXPECT_EQ(entriesOf("ab\xEF\xBF\xBF" "cd\nef"), (Entries{L"ab", L"ef"}));
}

TEST_F(ResultEntries, BytesThatAreNotTextEndTheList) {
    Entries e = entriesOf("good\nbad \xFF\xFE here\nnever\n");
    ASSERT_FALSE(e.empty());
    EXPECT_EQ(e[0], L"good");
    EXPECT_LE(e.size(), 2u);
}

}  // namespace
