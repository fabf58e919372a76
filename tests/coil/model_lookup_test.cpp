// Finding a record in the device database: every value read back, the alert of each malformed
// record with the file already closed, and records told apart by their row count.
#include <gtest/gtest.h>

#include <dirent.h>

#include "coil/model_lookup.h"
#include "tests/coil/coil_test_support.h"

namespace {

using coil_test::Alerts;
using vrn2::CoolerModel;
using vrn2::lookupCoolerModel;

const std::string kTwoRecords =
    "\n{JW20*4}\nA=39.7000 B=332.6000 m=0.5200 p=1.0300 n=0.8000"
    "\nL=8350.00-16700.00 Fd=24.0500 Fy=1.8700 fw=0.004070\n"
    "Vy=1.50   E2=0.8410\nVy=2.00   E2=0.7970\nVy=2.50   E2=0.7680\n"
    "\n{JW20*6}\nA=41.5000 B=325.6000 m=0.5200 p=1.0200 n=0.8000"
    "\nL=8350.00-16700.00 Fd=24.0500 Fy=1.8700 fw=0.004070\n"
    "Vy=2.00   E2=0.9110\n";

int openDescriptors() {
    int count = 0;
    if (DIR* d = opendir("/proc/self/fd")) {
        while (readdir(d)) ++count;
        closedir(d);
    }
    return count;
}

class Lookup : public coil_test::TempFolder {
protected:
    // Looks NAME*ROWS up in a database holding TEXT; records how many files were open when the
    // alert came, against the count before the call.
    bool find(const std::string& text, const std::wstring& name, int rows, CoolerModel& out) {
        const std::wstring db = write("sc.dat", text);
        const int before = openDescriptors();
        return lookupCoolerModel(db, name, rows, out, [&](const wchar_t* message) {
            alerts.seen.emplace_back(message);
            openAtAlert = openDescriptors();
            descriptorsBefore = before;
        });
    }
    void expectOneAlert(const wchar_t* message) {
        ASSERT_EQ(alerts.seen.size(), 1u);
        EXPECT_EQ(alerts.seen[0], message);
        EXPECT_EQ(openAtAlert, descriptorsBefore) << "the database is still open at the alert";
    }
    Alerts alerts;
    int openAtAlert = -1, descriptorsBefore = -2;
};

TEST_F(Lookup, ReadsEveryValueOfTheRecord) {
    CoolerModel m;
    ASSERT_TRUE(find(kTwoRecords, L"JW20", 4, m));
    EXPECT_TRUE(alerts.seen.empty());
    EXPECT_EQ(m.name, L"JW20");
    EXPECT_EQ(m.rows, 4);
    EXPECT_DOUBLE_EQ(m.A, 39.7);
    EXPECT_DOUBLE_EQ(m.B, 332.6);
    EXPECT_DOUBLE_EQ(m.m, 0.52);
    EXPECT_DOUBLE_EQ(m.p, 1.03);
    EXPECT_DOUBLE_EQ(m.n, 0.8);
    EXPECT_DOUBLE_EQ(m.L1, 8350.0);
    EXPECT_DOUBLE_EQ(m.L2, 16700.0);
    EXPECT_DOUBLE_EQ(m.Fd, 24.05);
    EXPECT_DOUBLE_EQ(m.Fy, 1.87);
    EXPECT_DOUBLE_EQ(m.fw, 0.00407);
    EXPECT_DOUBLE_EQ(m.E2[0].Vy, 1.5);
    EXPECT_DOUBLE_EQ(m.E2[0].E2, 0.841);
    EXPECT_DOUBLE_EQ(m.E2[2].Vy, 2.5);
    EXPECT_DOUBLE_EQ(m.E2[2].E2, 0.768);
    EXPECT_EQ(m.E2[3].Vy, 0.0);  // the pairs end at the next record's header
    EXPECT_EQ(m.E2[9].E2, 0.0);
}

TEST_F(Lookup, SameNameWithOtherRowsIsAnotherRecord) {
    CoolerModel six;
    ASSERT_TRUE(find(kTwoRecords, L"JW20", 6, six));
    EXPECT_DOUBLE_EQ(six.A, 41.5);
    EXPECT_DOUBLE_EQ(six.p, 1.02);
    EXPECT_DOUBLE_EQ(six.E2[0].E2, 0.911);
    EXPECT_EQ(six.E2[1].Vy, 0.0);  // the last record's pairs end at the end of the file
}

TEST_F(Lookup, MissingModelOrRowCountIsReported) {
    CoolerModel m;
    m.A = 123.0;
    EXPECT_FALSE(find(kTwoRecords, L"JW30", 4, m));
    expectOneAlert(L"数据文件SC.DAT没有存在此型号或此排数\n的表冷器,请增加他到此文件");
    alerts.seen.clear();
    EXPECT_FALSE(find(kTwoRecords, L"JW20", 8, m));
    expectOneAlert(L"数据文件SC.DAT没有存在此型号或此排数\n的表冷器,请增加他到此文件");
    EXPECT_EQ(m.A, 123.0);  // a failed lookup leaves the record alone
}

TEST_F(Lookup, MissingFileIsReported) {
    CoolerModel m;
    EXPECT_FALSE(lookupCoolerModel(path("no-such.dat"), L"JW20", 4, m, alerts.sink()));
    ASSERT_EQ(alerts.seen.size(), 1u);
    EXPECT_EQ(alerts.seen[0], L"没找到存储设备的文件SC.DAT");
}

TEST_F(Lookup, TokenWithoutItsKeyIsABadStructure) {
    const char* broken[] = {
        // "n=" missing from the fifth token
        "{X*2} A=1 B=2 m=3 p=4 0.8 L=1-2 Fd=1 Fy=1 fw=0.1 Vy=2 E2=0.5",
        // tokens in another order: Fy where Fd belongs
        "{X*2} A=1 B=2 m=3 p=4 n=5 L=1-2 Fy=1 Fd=1 fw=0.1 Vy=2 E2=0.5",
        // the file ends inside the coefficients
        "{X*2} A=1 B=2 m=3",
    };
    for (const char* text : broken) {
        alerts.seen.clear();
        CoolerModel m;
        EXPECT_FALSE(find(text, L"X", 2, m)) << text;
        expectOneAlert(L"此型号给出的参数结构不对,\n请选择修改功能");
    }
}

TEST_F(Lookup, FewerThanTwoContactTokensAreRefused) {
    const char* missing[] = {
        "{X*2} A=1 B=2 m=3 p=4 n=5 L=1-2 Fd=1 Fy=1 fw=0.1",                      // none at all
        "{X*2} A=1 B=2 m=3 p=4 n=5 L=1-2 Fd=1 Fy=1 fw=0.1 Vy=2",                 // one token
        "{X*2} A=1 B=2 m=3 p=4 n=5 L=1-2 Fd=1 Fy=1 fw=0.1 Vy=2\n{Y*2} A=1",      // one, then a record
        "{X*2} A=1 B=2 m=3 p=4 n=5 L=1-2 Fd=1 Fy=1 fw=0.1 comment Vy=2 E2=0.5",  // ended by a token without "="
    };
    for (const char* text : missing) {
        alerts.seen.clear();
        CoolerModel m;
        EXPECT_FALSE(find(text, L"X", 2, m)) << text;
        expectOneAlert(L"表冷器的结触系数没给出");
    }
}

TEST_F(Lookup, PairsStopAtATokenWithoutEqualsAndAtTen) {
    CoolerModel m;
    ASSERT_TRUE(find("{X*2} A=1 B=2 m=3 p=4 n=5 L=1-2 Fd=1 Fy=1 fw=0.1 Vy=2 E2=0.5 Vy=3 end Vy=4 E2=0.1",
                     L"X", 2, m));
    EXPECT_DOUBLE_EQ(m.E2[0].E2, 0.5);
    EXPECT_EQ(m.E2[1].Vy, 0.0);  // three tokens make one pair

    std::string many = "{X*2} A=1 B=2 m=3 p=4 n=5 L=1-2 Fd=1 Fy=1 fw=0.1";
    for (int k = 1; k <= 12; ++k) many += " Vy=" + std::to_string(k) + " E2=0.5";
    ASSERT_TRUE(find(many, L"X", 2, m));
    EXPECT_DOUBLE_EQ(m.E2[9].Vy, 10.0);
}

TEST_F(Lookup, ListsRecordsAndModelNames) {
    write("sc.dat", kTwoRecords + "\n{JW10*2}\nA=1 B=2 m=3 p=4 n=5\nL=1-2 Fd=1 Fy=1 fw=0.1\nVy=2 E2=0.5\n");
    const auto records = vrn2::listCoolerRecords(path("sc.dat"));
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[1].name, L"JW20");
    EXPECT_EQ(records[1].rows, 6);
    EXPECT_EQ(vrn2::coolerModelNames(records), (std::vector<std::wstring>{L"JW20", L"JW10"}));
}

}  // namespace
