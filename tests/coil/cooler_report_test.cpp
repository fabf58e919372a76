// The block a saved check appends to sccal.txt, line by line, for units in parallel and in
// series.
#include <gtest/gtest.h>

#include "coil/cooler_report.h"

namespace {

vrn2::CoilCheckInput input(bool series) {
    vrn2::CoilCheckInput in;
    in.B = 101.325;
    in.t1 = 27.0;
    in.ts1 = 19.5;
    in.G = 20000.0;
    in.tw1 = 7.0;
    in.W = 18000.0;
    in.rows = 4;
    in.units = 2;
    in.series = series;
    return in;
}

TEST(CoolerReport, BlockListsInputsAndResultsUnderTheDialogsLabels) {
    const vrn2::CoolerShown shown = {L"40.526", L"9.9", L"16.064", L"14.332",
                                     L"13.7", L"83.115", L"11.063", L"85.036"};

    EXPECT_EQ(vrn2::coolerReportTitle(), L"\n         表冷器校核计算结果\n");
    EXPECT_EQ(vrn2::coolerReportBlock(input(false), L"JW20", shown),
              L"\n______________________________________\n\n(B=101.325kPa)"
              L"\n 输入参数:  "
              L"\n         表冷器型号: JW20"
              L"\n         排数: 4"
              L"\n         台数: 2"
              L"\n         连接方式: 并联"
              L"\n         进风状态: "
              L"\n           干球温度 ℃:    27.00"
              L"\n           湿球温度 ℃:    19.50"
              L"\n         风量 G (kg/h): 20000.00"
              L"\n         进水温度 tw1 (℃): 7.00"
              L"\n         水量 W (kg/h): 18000.00"
              L"\n 计算结果:"
              L"\n         出风焓值 (kJ/kg): 40.526"
              L"\n         出风含湿量 (g/kg): 9.9"
              L"\n         出风干球温度 (℃): 16.064"
              L"\n         出风湿球温度 (℃): 14.332"
              L"\n         出风露点温度 (℃): 13.7"
              L"\n         出风相对湿度 (%): 83.115"
              L"\n         出水温度 tw2 (℃): 11.063"
              L"\n         冷量 Q (kW): 85.036");
    const std::wstring series = vrn2::coolerReportBlock(input(true), L"JW20", shown);
    EXPECT_NE(series.find(L"\n         连接方式: 串联\n"), std::wstring::npos);
    EXPECT_EQ(series.find(L"并联"), std::wstring::npos);
}

}  // namespace
