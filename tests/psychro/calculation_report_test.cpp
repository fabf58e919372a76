// The pieces of the calculation report that need no host: the file name a user types, numbers
// in the tables, the marks that keep states of different calculations apart, the ZIP container
// read back with libzip, and a file written in one piece or not at all.
#include <gtest/gtest.h>
#include <zip.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "psychro/calculation_report.h"
#include "psychro/calculation_report_file.h"
#include "psychro/docx/whole_file.h"
#include "psychro/docx/zip_package.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using vrn2::PackagePart;

TEST(ReportFileName, DocxIsAddedAndBlanksDropped) {
    const wchar_t* fault = L"unset";
    EXPECT_EQ(vrn2::reportFileName(L"  计算书  ", fault), L"计算书.docx");
    EXPECT_EQ(fault, nullptr);
    EXPECT_EQ(vrn2::reportFileName(L"办公楼.DOCX", fault), L"办公楼.DOCX");
    EXPECT_EQ(vrn2::reportFileName(L"a.doc", fault), L"a.doc.docx");
    EXPECT_EQ(vrn2::reportFileName(L"一层 空调.docx", fault), L"一层 空调.docx");
}

TEST(ReportFileName, EmptyNamesAndForbiddenCharactersAreRefused) {
    const wchar_t* fault = nullptr;
    EXPECT_EQ(vrn2::reportFileName(L"   ", fault), L"");
    EXPECT_STREQ(fault, L"输入计算书的文件名.");
    for (const wchar_t* bad : {L"a/b", L"..\\x", L"c:x", L"a*", L"a?", L"\"a\"", L"<a>", L"a|b", L"a\tb"}) {
        fault = nullptr;
        EXPECT_EQ(vrn2::reportFileName(bad, fault), L"") << bad;
        EXPECT_STREQ(fault, L"文件名中不能有 \\ / : * ? \" < > | 等字符.") << bad;
    }
}

TEST(ReportNumbers, RoundedToTheirDecimalsWithoutMinusZero) {
    EXPECT_EQ(vrn2::reportNumber(101.325, 3), L"101.325");
    EXPECT_EQ(vrn2::reportNumber(22.0, 2), L"22.00");
    EXPECT_EQ(vrn2::reportNumber(2.0005, 3), L"2.001");  // 2.0005 is stored just above
    EXPECT_EQ(vrn2::reportNumber(-0.0004, 3), L"0.000");
    EXPECT_EQ(vrn2::reportNumber(-1.25, 1), L"-1.2");  // printf rounds half to even here
    EXPECT_EQ(vrn2::reportNumber(7.0, 0), L"7");
    EXPECT_EQ(vrn2::reportNumber(std::nan(""), 3), L"—");
    EXPECT_EQ(vrn2::reportNumber(1.0 / 0.0, 3), L"—");
    EXPECT_EQ(vrn2::reportNumber(1e300, 3).size(), 301u + 4u);
}

TEST(ReportMarks, EachStateCarriesTheNumberOfItsCalculation) {
    EXPECT_EQ(vrn2::reportStateMark(L"N", 2), L"N2");
    EXPECT_EQ(vrn2::reportStateMark(L"1", 3), L"1-3");  // not "13"
    std::vector<vrn2::JournalEntry> entries(2);
    entries[0].states.push_back({L"S", L"所求状态点", {}});
    entries[1].states.push_back({L"N", L"室内状态点", {}});
    entries[1].states.push_back({L"O", L"送风状态点", {}});
    entries[1].states[1].state.i = 40.5;
    entries[1].states[1].state.d = 9.25;
    const auto marks = vrn2::reportChartMarks(entries);
    ASSERT_EQ(marks.size(), 3u);
    EXPECT_EQ(marks[0].label, L"S1");
    EXPECT_EQ(marks[2].label, L"O2");
    EXPECT_EQ(marks[2].i, 40.5);
    EXPECT_EQ(marks[2].d, 9.25);
}

// The entries of ARCHIVE read back with libzip: name and content, in order.
std::vector<PackagePart> readBack(const std::string& archive, std::vector<int>& methods) {
    std::vector<PackagePart> parts;
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(archive.data(), archive.size(), 0, &error);
    zip_t* zip = source ? zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error) : nullptr;
    zip_error_fini(&error);
    if (!zip) {
        if (source) zip_source_free(source);
        return parts;
    }
    for (zip_int64_t k = 0; k < zip_get_num_entries(zip, 0); ++k) {
        zip_stat_t st;
        zip_stat_index(zip, static_cast<zip_uint64_t>(k), 0, &st);
        std::string bytes(st.size, '\0');
        zip_file_t* file = zip_fopen_index(zip, static_cast<zip_uint64_t>(k), 0);
        if (file) {
            zip_fread(file, bytes.data(), bytes.size());
            zip_fclose(file);
        }
        parts.push_back({st.name, bytes});
        methods.push_back(st.comp_method);
    }
    zip_close(zip);
    return parts;
}

TEST(ZipPackage, PartsComeBackInOrderAndCompressed) {
    std::string big(20000, 'x');
    const std::vector<PackagePart> parts = {{"[Content_Types].xml", "<Types/>"},
                                            {"word/document.xml", big},
                                            {"word/media/chart.png", std::string("\x89PNG\r\n\x1a\n\0\0", 10)}};
    std::string archive;
    ASSERT_TRUE(vrn2::zipPackage(parts, 1700000000, archive));
    EXPECT_EQ(archive.substr(0, 4), std::string("PK\x03\x04"));
    EXPECT_LT(archive.size(), big.size() / 10) << "the repeated text is deflated";
    std::vector<int> methods;
    const auto back = readBack(archive, methods);
    ASSERT_EQ(back.size(), parts.size());
    for (std::size_t k = 0; k < parts.size(); ++k) {
        EXPECT_EQ(back[k].name, parts[k].name);
        EXPECT_EQ(back[k].bytes, parts[k].bytes) << parts[k].name;
        EXPECT_EQ(methods[k], ZIP_CM_DEFLATE);
    }
    std::string again;
    ASSERT_TRUE(vrn2::zipPackage(parts, 1700000000, again));
    EXPECT_EQ(again, archive) << "the same parts and time give the same bytes";
}

TEST(ZipPackage, ADuplicatePartIsRefused) {
    std::string archive = "old";
    EXPECT_FALSE(vrn2::zipPackage({{"a.xml", "1"}, {"a.xml", "2"}}, 0, archive));
    EXPECT_TRUE(archive.empty());
}

class WholeFile : public ::testing::Test {
protected:
    void SetUp() override {
        saved_ = fs::current_path();
        fs::current_path(folder_.dir());
    }
    void TearDown() override { fs::current_path(saved_); }
    static std::string read(const fs::path& p) {
        std::ifstream in(p, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    testing_support::TemporaryFolder folder_;
    fs::path saved_;
};

TEST_F(WholeFile, ReplacesAnOldFileAndLeavesNoTemporaryFile) {
    ASSERT_TRUE(vrn2::writeWholeFile(L"计算书.docx", "first"));
    ASSERT_TRUE(vrn2::writeWholeFile(L"计算书.docx", std::string("second\0bytes", 12)));
    EXPECT_EQ(read(folder_.dir() / "计算书.docx"), std::string("second\0bytes", 12));
    std::vector<std::string> names;
    for (const auto& e : fs::directory_iterator(folder_.dir())) names.push_back(e.path().filename().string());
    EXPECT_EQ(names, std::vector<std::string>{"计算书.docx"});
}

TEST_F(WholeFile, AFailedWriteLeavesWhatWasThere) {
    // A folder of that name cannot be replaced by a file; a missing folder cannot hold one.
    fs::create_directory(folder_.dir() / "x.docx");
    fs::path inside = folder_.dir() / "x.docx" / "kept.txt";
    std::ofstream(inside) << "kept";
    EXPECT_FALSE(vrn2::writeWholeFile(L"x.docx", "new"));
    EXPECT_TRUE(fs::is_directory(folder_.dir() / "x.docx"));
    EXPECT_EQ(read(inside), "kept");
    EXPECT_FALSE(fs::exists(folder_.dir() / "x.docx.part"));
    EXPECT_FALSE(vrn2::writeWholeFile(L"no-such-folder/y.docx", "new"));
    EXPECT_FALSE(fs::exists(folder_.dir() / "no-such-folder"));
}

}  // namespace
