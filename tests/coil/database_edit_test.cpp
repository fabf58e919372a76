// Editing the device database: a saved record reads back through the lookup, a second save
// replaces it, a deletion removes exactly that record, and every other byte of the file stays
// as it was; a failed write leaves the database untouched.
#include <gtest/gtest.h>

#include "coil/database_edit.h"
#include "coil/database_text.h"
#include "coil/model_lookup.h"
#include "tests/coil/coil_test_support.h"

namespace {

using coil_test::Alerts;
using vrn2::EditOutcome;
namespace fs = std::filesystem;

const std::string kFirst =
    "\n{JW10*4}\nA=39.7000 B=332.6000 m=0.5200 p=1.0300 n=0.8000"
    "\nL=5000.00-8350.00 Fd=12.1500 Fy=0.9440 fw=0.004070\nVy=1.50   E2=0.8410\nVy=3.00   E2=0.7400\n";
const std::string kSecond =
    "\n{JW20*4}\nA=39.7000 B=332.6000 m=0.5200 p=1.0300 n=0.8000"
    "\nL=8350.00-16700.00 Fd=24.0500 Fy=1.8700 fw=0.004070\nVy=1.50   E2=0.8410\nVy=3.00   E2=0.7400\n";
// Written by hand, not by the editor: other spacing, a comment line, no line break at the end.
const std::string kThird = "\n{甲型*6}  A=41.5 B=325.6 m=0.52 p=1.02 n=0.8\n\tL=0-0 Fd=1 Fy=2 fw=0.003 Vy=2 E2=0.9";

vrn2::CoolerModel newModel(const std::wstring& name, short rows, double A) {
    vrn2::CoolerModel m = coil_test::jw20FourRows();
    m.name = name;
    m.rows = rows;
    m.A = A;
    m.L1 = 100;
    m.L2 = 200.5;
    return m;
}

const std::vector<std::wstring> kEntries = {vrn2::contactListEntry(2.0, 0.8), vrn2::contactListEntry(2.5, 0.75)};

class DatabaseEdit : public coil_test::TempFolder {
protected:
    std::wstring db() { return path("sc.dat"); }
    std::wstring temp() { return path("@sctemp.acc"); }
};

TEST_F(DatabaseEdit, AddedRecordIsAppendedAndReadsBack) {
    write("sc.dat", kFirst + kSecond);
    ASSERT_EQ(vrn2::saveCoolerRecord(db(), temp(), newModel(L"JW30", 8, 35.5), kEntries), EditOutcome::Added);
    EXPECT_EQ(read("sc.dat"),
              kFirst + kSecond +
                  "\n{JW30*8}\nA=35.5000 B=332.6000 m=0.5200 p=1.0300 n=0.8000"
                  "\nL=100.00-200.50 Fd=24.0500 Fy=1.8700 fw=0.004070\nVy=2.00   E2=0.8000\nVy=2.50   E2=0.7500\n");
    vrn2::CoolerModel back;
    Alerts alerts;
    ASSERT_TRUE(vrn2::lookupCoolerModel(db(), L"JW30", 8, back, alerts.sink()));
    EXPECT_DOUBLE_EQ(back.A, 35.5);
    EXPECT_DOUBLE_EQ(back.L2, 200.5);
    EXPECT_DOUBLE_EQ(back.E2[1].E2, 0.75);
    EXPECT_FALSE(fs::exists(dir_ / "@sctemp.acc"));
    EXPECT_STREQ(vrn2::editMessage(EditOutcome::Added), L"\n增加完毕.");
}

TEST_F(DatabaseEdit, SavingAnExistingRecordReplacesOnlyIt) {
    write("sc.dat", kFirst + kSecond + kThird);
    ASSERT_EQ(vrn2::saveCoolerRecord(db(), temp(), newModel(L"JW20", 4, 50.0), kEntries), EditOutcome::Modified);
    const std::string after = read("sc.dat");
    const std::string replaced =
        "\n{JW20*4}\nA=50.0000 B=332.6000 m=0.5200 p=1.0300 n=0.8000"
        "\nL=100.00-200.50 Fd=24.0500 Fy=1.8700 fw=0.004070\nVy=2.00   E2=0.8000\nVy=2.50   E2=0.7500\n";
    EXPECT_EQ(after, kFirst + replaced + kThird);
    EXPECT_FALSE(fs::exists(dir_ / "@sctemp.acc"));

    // The hand-written last record, at the end of the file, is replaced as well.
    ASSERT_EQ(vrn2::saveCoolerRecord(db(), temp(), newModel(L"甲型", 6, 1.0), kEntries), EditOutcome::Modified);
    EXPECT_EQ(read("sc.dat").substr(0, kFirst.size() + replaced.size()), kFirst + replaced);
    vrn2::CoolerModel back;
    ASSERT_TRUE(vrn2::lookupCoolerModel(db(), L"甲型", 6, back, nullptr));
    EXPECT_DOUBLE_EQ(back.A, 1.0);
}

TEST_F(DatabaseEdit, DeletionRemovesExactlyTheRecord) {
    write("sc.dat", kFirst + kSecond + kThird);
    ASSERT_EQ(vrn2::deleteCoolerRecord(db(), temp(), L"JW20", 4), EditOutcome::Deleted);
    EXPECT_EQ(read("sc.dat"), kFirst + kThird);
    ASSERT_EQ(vrn2::deleteCoolerRecord(db(), temp(), L"甲型", 6), EditOutcome::Deleted);
    EXPECT_EQ(read("sc.dat"), kFirst);
    EXPECT_EQ(vrn2::deleteCoolerRecord(db(), temp(), L"JW10", 6), EditOutcome::NoRecord);
    EXPECT_EQ(read("sc.dat"), kFirst);
    EXPECT_STREQ(vrn2::editMessage(EditOutcome::NoRecord), L"此型号的设备不存在,无法删除.");
    // The first record may start the file without a line break.
    write("sc.dat", kFirst.substr(1) + kSecond);
    ASSERT_EQ(vrn2::deleteCoolerRecord(db(), temp(), L"JW10", 4), EditOutcome::Deleted);
    EXPECT_EQ(read("sc.dat"), kSecond);
}

TEST_F(DatabaseEdit, AddThenDeleteGivesBackTheFile) {
    const std::string bundled = kFirst + kSecond;
    write("sc.dat", bundled);
    ASSERT_EQ(vrn2::saveCoolerRecord(db(), temp(), newModel(L"X", 2, 3.0), kEntries), EditOutcome::Added);
    ASSERT_EQ(vrn2::deleteCoolerRecord(db(), temp(), L"X", 2), EditOutcome::Deleted);
    EXPECT_EQ(read("sc.dat"), bundled);
}

TEST_F(DatabaseEdit, FailedWriteLeavesTheDatabaseAsItWas) {
    const std::string bundled = kFirst + kSecond;
    write("sc.dat", bundled);
    const std::wstring unwritable = path("no-such-folder/@sctemp.acc");
    EXPECT_EQ(vrn2::saveCoolerRecord(db(), unwritable, newModel(L"JW20", 4, 1.0), kEntries),
              EditOutcome::CannotCreateTemp);
    EXPECT_EQ(vrn2::deleteCoolerRecord(db(), unwritable, L"JW20", 4), EditOutcome::CannotDelete);
    EXPECT_EQ(read("sc.dat"), bundled);

    // The database a folder cannot be renamed over: the working copy goes, the folder stays.
    fs::create_directories(dir_ / "dbdir");
    EXPECT_FALSE(vrn2::replaceDatabase(path("dbdir"), temp(), L"text"));
    EXPECT_FALSE(fs::exists(dir_ / "@sctemp.acc"));

    // No database folder: nothing can be appended.
    EXPECT_EQ(vrn2::saveCoolerRecord(path("no-such-folder/sc.dat"), temp(), newModel(L"A", 2, 1.0), kEntries),
              EditOutcome::CannotAppend);
}

TEST_F(DatabaseEdit, BytesThatAreNoTextStopEveryEdit) {
    const std::string broken = kFirst + "\xff\xfe" + kSecond;
    write("sc.dat", broken);
    EXPECT_EQ(vrn2::deleteCoolerRecord(db(), temp(), L"JW20", 4), EditOutcome::CannotDelete);
    EXPECT_EQ(vrn2::saveCoolerRecord(db(), temp(), newModel(L"JW20", 4, 1.0), kEntries), EditOutcome::CannotAppend);
    EXPECT_EQ(read("sc.dat"), broken);
}

}  // namespace
