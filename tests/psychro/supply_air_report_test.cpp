// The blocks of the supply-air result file, written out by hand here, and the file itself:
// created with its title, appended to, and read back as UTF-8 bytes.
#include <gtest/gtest.h>

#include <unistd.h>

#include <clocale>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "psychro/supply_air_report.h"

namespace {

namespace fs = std::filesystem;
using vrn2::SupplyAirInput;
using vrn2::SupplyAirShown;

SupplyAirShown fullShown() {
    return {L"4718.0615", L"16", L"8.949", L"78.217", L"38.797", L"13.742", true};
}

const std::wstring kHead =
    L"\n__________________________________________\n\n(B=101.325kPa)"
    L"\n 输入参数:  "
    L"\n         室内设计状态:      "
    L"\n             干球温度 ℃   :    22.00"
    L"\n             相对湿度(%)   :    60.00";

const std::wstring kFullResult =
    L"\n 计算结果:"
    L"\n         送风量(kg/h)  :        4718.0615"
    L"\n         送风状态:         "
    L"\n             干球温度 ℃   :    16"
    L"\n             含湿量(kg/kg) :    8.949"
    L"\n             相对湿度(%)   :    78.217"
    L"\n             焓值(kJ/kg)   :    38.797"
    L"\n             湿球温度 ℃   :    13.742";

TEST(SupplyAirReport, TotalLoadBlock) {
    SupplyAirInput in;  // the dialog's defaults
    EXPECT_EQ(vrn2::supplyAirReportBlock(in, fullShown()),
              kHead +
                  L"\n         全热冷负荷(kW):        11.600"
                  L"\n         湿负荷(kg/h)  :        5.000"
                  L"\n         送风温差 ℃   :        6.000" +
                  kFullResult);
}

TEST(SupplyAirReport, SensibleAndMoistureLoadBlock) {
    SupplyAirInput in;
    in.totalLoad = false;
    in.load = 9.25;
    in.w = 3.5;
    in.dt = 8;
    EXPECT_EQ(vrn2::supplyAirReportBlock(in, fullShown()),
              kHead +
                  L"\n         显热冷负荷(kW):        9.250"
                  L"\n         湿负荷(kg/h)  :        3.500"
                  L"\n         送风温差 ℃   :        8.000" +
                  kFullResult);
}

TEST(SupplyAirReport, SensibleLoadOnlyBlockHasOnlyTheFlowAndTheDryBulb) {
    SupplyAirInput in;
    in.B = 95.5;
    in.tn = 25.5;
    in.rhn = 0;
    in.totalLoad = false;
    in.moistureGiven = false;
    SupplyAirShown shown{L"6891.0891", L"19.5", L"", L"", L"", L"", false};
    EXPECT_EQ(vrn2::supplyAirReportBlock(in, shown),
              L"\n__________________________________________\n\n(B=95.500kPa)"
              L"\n 输入参数:  "
              L"\n         室内设计状态:      "
              L"\n             干球温度 ℃   :    25.50"
              L"\n             相对湿度(%)   :    0.00"
              L"\n         显热冷负荷(kW):        11.600"
              L"\n         送风温差 ℃   :        6.000"
              L"\n 计算结果:"
              L"\n         送风量(kg/h)  :        6891.0891"
              L"\n         送风状态:         "
              L"\n             干球温度 ℃   :    19.5");
}

class SupplyAirReportFile : public ::testing::Test {
protected:
    void SetUp() override {
        std::setlocale(LC_CTYPE, "C.UTF-8");  // wide streams write UTF-8, as in the host
        dir_ = fs::temp_directory_path() / ("supply_air_report_" + std::to_string(::getpid()));
        fs::create_directories(dir_);
        file_ = (dir_ / "gscal.txt").wstring();
    }
    void TearDown() override { fs::remove_all(dir_); }
    std::string bytes() const {
        std::ifstream in(fs::path(file_), std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    fs::path dir_;
    std::wstring file_;
};

TEST_F(SupplyAirReportFile, CreatedWithTheTitleThenAppended) {
    SupplyAirInput in;
    ASSERT_TRUE(vrn2::appendSupplyAirReport(file_.c_str(), in, fullShown()));
    std::string once = bytes();
    // The UTF-8 of the title line, byte by byte: "送风量与送风状态计算结果".
    const std::string title = "\n         \xE9\x80\x81\xE9\xA3\x8E\xE9\x87\x8F\xE4\xB8\x8E\xE9\x80\x81\xE9\xA3\x8E"
                              "\xE7\x8A\xB6\xE6\x80\x81\xE8\xAE\xA1\xE7\xAE\x97\xE7\xBB\x93\xE6\x9E\x9C\n";
    ASSERT_EQ(once.substr(0, title.size()), title);
    // "℃" is E2 84 83 and the "%" of the label is a plain 25.
    EXPECT_NE(once.find("\xE5\xB9\xB2\xE7\x90\x83\xE6\xB8\xA9\xE5\xBA\xA6 \xE2\x84\x83   :    22.00"), std::string::npos);
    EXPECT_NE(once.find("(%)   :    60.00"), std::string::npos);

    ASSERT_TRUE(vrn2::appendSupplyAirReport(file_.c_str(), in, fullShown()));
    std::string twice = bytes();
    EXPECT_EQ(twice, once + once.substr(title.size())) << "the second block follows without a second title";
}

TEST_F(SupplyAirReportFile, AFileThatCannotBeCreatedIsReportedAndNothingIsWritten) {
    std::wstring inMissingFolder = (dir_ / "no-such-folder" / "gscal.txt").wstring();
    EXPECT_FALSE(vrn2::appendSupplyAirReport(inMissingFolder.c_str(), SupplyAirInput{}, fullShown()));
    EXPECT_FALSE(fs::exists(dir_ / "no-such-folder"));
}

}  // namespace
