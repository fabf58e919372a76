// The results file text, line by line, for networks built by hand.
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "duct/main_path_calc.h"
#include "duct/results_text.h"
#include "host/text.h"

namespace vrn2::duct {
namespace {

// The text as UTF-8 lines, as the file holds it.
std::vector<std::string> linesOf(const std::wstring& text) {
    std::vector<std::string> lines;
    std::istringstream in(host::toUtf8(text));
    for (std::string l; std::getline(in, l);) lines.push_back(l);
    return lines;
}

DuctSegment seg(int number, short shape, int a, int b, double flow, double length, int parent = kNoSegment) {
    DuctSegment s;
    s.number = number;
    s.shape = shape;
    s.size1 = a;
    s.size2 = b;
    s.flow = flow;
    s.length = length;
    s.parent = parent;
    return s;
}

// Root (rectangular 400×250) with a circular main branch and a side branch that has its own
// two branches, one without a size.
DuctNetwork handNetwork() {
    DuctNetwork net;
    net.segments = {seg(1, 2, 400, 250, 1800, 6, kNoSegment), seg(2, 1, 250, 0, 1000, 4.5, 0),
                    seg(3, 1, 200, 0, 800, 3, 0), seg(4, 1, 160, 0, 500, 2, 2), seg(5, 2, 0, 0, 300, 1.25, 2)};
    net.segments[0].branches = {1, 2, kNoSegment};
    net.segments[2].branches = {3, 4, kNoSegment};
    net.segments[1].endKind = kEndOpen;
    net.segments[3].endKind = kEndOpen;
    net.segments[4].endKind = kEndOpen;
    net.segments[0].main = net.segments[1].main = 1;
    net.segments[0].pressureLoss = 3.5;
    net.segments[1].pressureLoss = 12.25;
    net.leaves = {1, 3, 4};
    net.mainLeaf = 1;
    return net;
}

TEST(ResultsText, MainLinesRootDownThenTotalThenBranches) {
    std::vector<std::string> lines = linesOf(ductResultsText(handNetwork(), 15.75));
    // v = 1800/3600·10⁶/(400·250) = 5; 1000/3600·10⁶/(π/4·250²) = 5.65884; 800 → 7.07355;
    // 500 over Ø160 → 6.90777.
    std::vector<std::string> expected{
        "",
        "===============风道计算结果==============",
        "",
        "管段编号 流量(m^3/h) 管长(m) 风管尺寸(mm) 流速(m/s) 阻力(Pa)",
        "主风道",
        "   1      1800.000    6.000   400× 250    5.0000    3.500000",
        "   2      1000.000    4.500      250       5.6588   12.250000",
        "",
        "最不利环路阻力为ΔP=15.7500 Pa",
        "",
        "支风道:",
        "   3       800.000    3.000      200       7.0736",
        "   4       500.000    2.000      160       6.9078",
        "   5          300.000     1.250     none      none",
    };
    EXPECT_EQ(lines, expected);
}

TEST(ResultsText, MainSegmentWithoutLossEndsBare) {
    DuctNetwork net = handNetwork();
    net.segments[1].pressureLoss.reset();
    std::vector<std::string> lines = linesOf(ductResultsText(net, 3.5));
    EXPECT_EQ(lines[6], "   2      1000.000    4.500      250       5.6588  ");
}

TEST(ResultsText, OneSegmentPathHasOneMainLineAndNoBranches) {
    DuctNetwork net;
    net.segments = {seg(7, 1, 200, 0, 1000, 10, kNoSegment)};
    net.segments[0].endKind = kEndOpen;
    net.leaves = {0};
    net.mainLeaf = 0;
    net.segments[0].main = 1;
    MainPathResult r = calculateMainPath(net, AirInputs{0.15, 101.325, 20});
    ASSERT_EQ(r.segments.size(), 1u);
    std::vector<std::string> lines = linesOf(ductResultsText(net, r.total));
    ASSERT_EQ(lines.size(), 10u);
    EXPECT_EQ(lines[5].substr(0, 40), "   7      1000.000   10.000      200    ");
    EXPECT_EQ(lines.back(), "支风道:");
}

}  // namespace
}  // namespace vrn2::duct
