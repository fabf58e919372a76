// The checks of the check dialog's inputs and of the database editor's tiles: which tile gets
// the focus with which message, the bounds that are still accepted, and the record built from
// tiles that pass.
#include <gtest/gtest.h>

#include "coil/coil_check_inputs.h"
#include "coil/database_text.h"
#include "coil/record_inputs.h"

namespace {

using vrn2::CoilCheckReadings;

CoilCheckReadings valid() {
    CoilCheckReadings r;
    r.modelChosen = true;
    r.B = 101.325;
    r.rows = 4;
    r.units = 2;
    r.t1 = 27;
    r.ts1 = 19.5;
    r.G = 20000;
    r.tw1 = 7;
    r.W = 18000;
    r.series = true;
    return r;
}

void expectFault(const CoilCheckReadings& r, const wchar_t* key, const wchar_t* message) {
    const auto fault = vrn2::firstCoilCheckFault(r);
    ASSERT_TRUE(fault.has_value()) << "no fault where " << static_cast<const void*>(key);
    EXPECT_STREQ(fault->key, key);
    EXPECT_STREQ(fault->message, message);
}

TEST(CoilCheckInputs, EachBadValueGetsItsTileAndMessage) {
    EXPECT_FALSE(vrn2::firstCoilCheckFault(valid()).has_value());
    auto r = valid();
    r.modelChosen = false;
    expectFault(r, L"type", L"选择表冷器型号(设备库中没有时用SCINFO增加).");
    r = valid(); r.B.reset();        expectFault(r, L"B", L"输入大气压值.");
    r = valid(); r.B = 49.9;         expectFault(r, L"B", L"大气压要求在50-200之间.");
    r = valid(); r.rows = 2.5;       expectFault(r, L"Nn", L"输入正确的排数.");
    r = valid(); r.rows = 0;         expectFault(r, L"Nn", L"输入正确的排数.");
    r = valid(); r.units.reset();    expectFault(r, L"nu_value", L"输入正确的台数.");
    r = valid(); r.t1.reset();       expectFault(r, L"t1_value", L"输入进风干球温度值.");
    r = valid(); r.ts1.reset();      expectFault(r, L"ts1_value", L"输入进风湿球温度值.");
    r = valid(); r.ts1 = 27.01;      expectFault(r, L"ts1_value", L"湿球温度不能高于干球温度.");
    r = valid(); r.G = 0;            expectFault(r, L"G_value", L"输入大于零的风量值.");
    r = valid(); r.tw1.reset();      expectFault(r, L"tw1_value", L"输入进水温度值.");
    r = valid(); r.tw1 = 19.5;       expectFault(r, L"tw1_value", L"进水温度要求低于进风湿球温度.");
    r = valid(); r.W = -1;           expectFault(r, L"W_value", L"输入大于零的水量值.");
    // The bounds themselves are accepted: 50 and 200 kPa, a saturated inlet.
    for (double B : {50.0, 200.0}) {
        r = valid();
        r.B = B;
        EXPECT_FALSE(vrn2::firstCoilCheckFault(r).has_value());
    }
    r = valid();
    r.ts1 = r.t1;
    EXPECT_FALSE(vrn2::firstCoilCheckFault(r).has_value());
    // The first fault wins: a missing pressure before a missing flow.
    r = valid(); r.B.reset(); r.G.reset();
    expectFault(r, L"B", L"输入大气压值.");

    const vrn2::CoilCheckInput in = vrn2::coilCheckInput(valid());
    EXPECT_EQ(in.rows, 4);
    EXPECT_EQ(in.units, 2);
    EXPECT_TRUE(in.series);
    EXPECT_EQ(in.W, 18000);
}

TEST(ContactEntry, EmptyOrWrongTextsAreRefusedInOrder) {
    vrn2::ContactPair pair{-1, -1};
    auto fault = vrn2::contactEntryFault(L"", L"0.8", 0, pair);
    ASSERT_TRUE(fault);
    EXPECT_STREQ(fault->message, L"输入Vy值.");
    fault = vrn2::contactEntryFault(L"2.0", L"  ", 0, pair);
    ASSERT_TRUE(fault);
    EXPECT_STREQ(fault->message, L"输入E2值.");
    EXPECT_STREQ(fault->key, L"E2_value");
    for (const wchar_t* bad : {L"0", L"-0.1", L"1.0001", L"abc", L"0.5x"}) {
        fault = vrn2::contactEntryFault(L"2.0", bad, 0, pair);
        ASSERT_TRUE(fault) << bad;
        EXPECT_STREQ(fault->message, L"不正确的接触系数.");
    }
    EXPECT_EQ(pair.Vy, -1);  // nothing taken from refused entries
    fault = vrn2::contactEntryFault(L"0", L"0.5", 0, pair);
    ASSERT_TRUE(fault);
    EXPECT_STREQ(fault->key, L"Vy_value");
    EXPECT_TRUE(vrn2::contactEntryFault(L"2", L"0.5", 10, pair));

    EXPECT_FALSE(vrn2::contactEntryFault(L"2.5", L"1", 9, pair));  // E2 = 1 is accepted
    EXPECT_EQ(pair.Vy, 2.5);
    EXPECT_EQ(pair.E2, 1.0);
    vrn2::ContactPair back;
    ASSERT_TRUE(vrn2::parseContactEntry(vrn2::contactListEntry(2.5, 0.7684), back));
    EXPECT_DOUBLE_EQ(back.Vy, 2.5);
    EXPECT_DOUBLE_EQ(back.E2, 0.7684);
}

vrn2::RecordTexts recordTexts() {
    vrn2::RecordTexts t;
    t.type = L"JW20";
    t.rows = L"4";
    t.A = L"39.7";
    t.B = L"332.6";
    t.m = L"0.52";
    t.p = L"1.03";
    t.n = L"0.8";
    t.L1 = L"8350";
    t.L2 = L"16700";
    t.Fd = L"24.05";
    t.Fy = L"1.87";
    t.fw = L"0.00407";
    t.entries = {L"Vy=1.50   E2=0.8410", L"Vy=3.00   E2=0.7400"};
    return t;
}

TEST(RecordInputs, RecordFromTilesAndTheFaultsOfEachTile) {
    vrn2::CoolerModel m;
    ASSERT_FALSE(vrn2::recordFault(recordTexts(), m));
    EXPECT_EQ(m.name, L"JW20");
    EXPECT_EQ(m.rows, 4);
    EXPECT_DOUBLE_EQ(m.fw, 0.00407);
    EXPECT_DOUBLE_EQ(m.E2[1].Vy, 3.0);
    EXPECT_EQ(m.E2[2].Vy, 0.0);

    auto t = recordTexts();
    t.type = L"";
    EXPECT_STREQ(vrn2::recordFault(t, m)->message, L"输入表冷器型号.");
    t.type = L"JW 20";
    EXPECT_STREQ(vrn2::recordFault(t, m)->key, L"type");
    for (const wchar_t* rows : {L"", L"0", L"2.5", L"x"}) {
        t = recordTexts();
        t.rows = rows;
        EXPECT_STREQ(vrn2::recordFault(t, m)->message, L"输入正确的排数.") << rows;
    }
    t = recordTexts();
    t.Fy = L"0";
    EXPECT_STREQ(vrn2::recordFault(t, m)->key, L"Fy_value");
    t = recordTexts();
    t.m = L"";
    EXPECT_STREQ(vrn2::recordFault(t, m)->key, L"m_value");
    t = recordTexts();
    t.entries.clear();
    EXPECT_STREQ(vrn2::recordFault(t, m)->message, L"至少输入一组接触系数.");
    // A deletion needs only the name and rows.
    t = recordTexts();
    t.A = L"";
    std::wstring name;
    int rows = 0;
    EXPECT_FALSE(vrn2::recordKeyFault(t, name, rows));
    EXPECT_EQ(rows, 4);
}

}  // namespace
