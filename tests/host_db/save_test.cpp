// Saving drawings: a save that fails half way leaves the previous file as it was and no
// temporary file behind; paths with the platform's backslashes work.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <unistd.h>

#include "host/db/database.h"
#include "host/db/save_fault.h"
#include "host/text.h"
#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

namespace fs = std::filesystem;

std::string readFile(const fs::path& p) {
    std::ifstream in(p, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

class Saving : public DrawingTest {
protected:
    void SetUp() override {
        DrawingTest::SetUp();
        dir_ = fs::temp_directory_path() / ("host_db_save_" + std::to_string(::getpid()));
        fs::remove_all(dir_);
        fs::create_directories(dir_);
    }
    void TearDown() override {
        host::db::setSaveFault({});
        fs::remove_all(dir_);
        DrawingTest::TearDown();
    }
    size_t filesIn(const fs::path& d) {
        return static_cast<size_t>(std::distance(fs::directory_iterator(d), fs::directory_iterator()));
    }
    fs::path dir_;
};

TEST_F(Saving, AFailedSaveKeepsThePreviousFile) {
    fs::path file = dir_ / "plan.dxf";
    std::wstring error;
    ASSERT_TRUE(db().save(file, error)) << host::toUtf8(error);
    std::string before = readFile(file);
    ASSERT_GT(before.size(), 1000u);

    const double a[3] = {0, 0, 0}, b[3] = {5, 5, 0};
    for (int i = 0; i < 2000; ++i) makeLine(a, b);  // more than one write chunk
    host::db::setSaveFault([](size_t bytes) { return bytes > 100000; });
    EXPECT_FALSE(db().save(file, error));
    EXPECT_NE(error.find(L"plan.dxf"), std::wstring::npos) << host::toUtf8(error);
    EXPECT_NE(error.find(L"unchanged"), std::wstring::npos) << host::toUtf8(error);
    EXPECT_EQ(readFile(file), before);
    EXPECT_EQ(filesIn(dir_), 1u) << "the temporary file is removed";

    host::db::setSaveFault({});
    ASSERT_TRUE(db().save(file, error)) << host::toUtf8(error);
    std::wstring readError;
    auto reread = host::db::Database::load(file, readError);
    ASSERT_NE(reread, nullptr) << host::toUtf8(readError);
    EXPECT_EQ(reread->entities().size(), 2000u);
    EXPECT_EQ(filesIn(dir_), 1u);
}

TEST_F(Saving, MissingFoldersAndFilesAreReported) {
    std::wstring error;
    EXPECT_FALSE(db().save(dir_ / "no" / "such" / "x.dxf", error));
    EXPECT_NE(error.find(L"cannot save"), std::wstring::npos);
    EXPECT_EQ(host::db::Database::load(dir_ / "absent.dxf", error), nullptr);
    EXPECT_NE(error.find(L"absent.dxf"), std::wstring::npos);
    EXPECT_EQ(host::db::Database::load(dir_, error), nullptr);
}

TEST_F(Saving, BackslashPathsWork) {
    fs::create_directories(dir_ / "sub");
    std::string windowsStyle = dir_.string() + "\\sub\\b.dxf";
    std::wstring error;
    ASSERT_TRUE(db().save(windowsStyle, error)) << host::toUtf8(error);
    EXPECT_TRUE(fs::exists(dir_ / "sub" / "b.dxf"));
    EXPECT_NE(host::db::Database::load(windowsStyle, error), nullptr);
}

}  // namespace
}  // namespace dbtest
