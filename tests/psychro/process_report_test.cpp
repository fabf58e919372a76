// The process dialog's checks (order, and only the tiles the kind reads), the qres.txt block
// and what a process puts on the chart.
#include <gtest/gtest.h>

#include <string>

#include "psychro/process_checks.h"
#include "psychro/process_report.h"

namespace {

using vrn2::ProcessKind;
using vrn2::ProcessReadings;
using vrn2::ProcessTile;

ProcessReadings complete(ProcessKind kind) {
    ProcessReadings r;
    r.kind = kind;
    const double values[vrn2::kProcessTileCount] = {99.86, 30, 60, 16, 95, 10, 12, 8000, 26, 55, 2000, 5000};
    for (int t = 0; t < vrn2::kProcessTileCount; ++t) r.values[t] = values[t];
    return r;
}

TEST(ProcessChecks, InputsAreCheckedInDialogOrderAndOnlyThoseTheKindReads) {
    ProcessReadings r = complete(ProcessKind::heating);
    EXPECT_FALSE(vrn2::firstProcessInputFault(r));
    // The second stream's tiles mean nothing to a heating.
    r[ProcessTile::t3].reset();
    r[ProcessTile::eps].reset();
    EXPECT_FALSE(vrn2::firstProcessInputFault(r));
    r[ProcessTile::G].reset();
    r[ProcessTile::t2] = 101.0;
    auto fault = vrn2::firstProcessInputFault(r);
    ASSERT_TRUE(fault);
    EXPECT_STREQ(fault->key, L"t2") << "the parameters come before the flow";
    r[ProcessTile::B].reset();
    fault = vrn2::firstProcessInputFault(r);
    ASSERT_TRUE(fault);
    EXPECT_STREQ(fault->key, L"B");
    EXPECT_EQ(fault->message, L"输入大气压力.");

    r = complete(ProcessKind::mixing);
    r[ProcessTile::g3] = 0.0;
    fault = vrn2::firstProcessInputFault(r);
    ASSERT_TRUE(fault);
    EXPECT_STREQ(fault->key, L"g3");

    // The toggle picks d2 instead of fy2 (or of t2 for a ratio line).
    r = complete(ProcessKind::ratio);
    r.byD = true;
    r[ProcessTile::t2].reset();
    EXPECT_FALSE(vrn2::firstProcessInputFault(r));
    const vrn2::ProcessInput in = vrn2::processInput(r);
    EXPECT_EQ(in.given, vrn2::EndGiven::moisture);
    EXPECT_DOUBLE_EQ(in.start.B, 99.86);
    EXPECT_DOUBLE_EQ(in.start.t, 30.0);
    EXPECT_GT(in.start.d, 15.0);  // a solved start, not just t and φ
    r.byD = false;
    EXPECT_STREQ(vrn2::firstProcessInputFault(r)->key, L"t2");
    // A heating never reads d2 whatever the toggle says.
    r = complete(ProcessKind::heating);
    r.byD = true;
    EXPECT_EQ(vrn2::processInput(r).given, vrn2::EndGiven::humidity);
}

vrn2::ProcessResult solved(const vrn2::ProcessInput& in) {
    const vrn2::ProcessResult r = vrn2::computeProcess(in);
    EXPECT_TRUE(r.ok());
    return r;
}

TEST(ProcessReport, TheBlockHasThePressureInputsAndResultsToThreeDecimals) {
    // From 30 °C and 60 % (d ≈ 16.8 g/kg) along ε = 3000 kJ/kg to d = 15 g/kg.
    ProcessReadings readings = complete(ProcessKind::ratio);
    readings.byD = true;
    readings[ProcessTile::eps] = 3000.0;
    readings[ProcessTile::d2] = 15.0;
    const vrn2::ProcessInput in = vrn2::processInput(readings);
    const vrn2::ProcessResult r = solved(in);
    const std::wstring block = vrn2::processResultBlock(in, r, {L"N", L"O", L""});
    EXPECT_EQ(block.find(L"\n__________________________________________\n\n(B=99.860kPa)"), 0u);
    EXPECT_NE(block.find(L"空气处理过程: 按热湿比变化 (N→O)"), std::wstring::npos);
    const size_t inputs = block.find(L"\n 输入参数:"), results = block.find(L"\n 计算结果:");
    ASSERT_NE(inputs, std::wstring::npos);
    ASSERT_LT(inputs, results);
    EXPECT_NE(block.find(L"热湿比ε(kJ/kg)", inputs), std::wstring::npos);
    EXPECT_NE(block.find(L":   3000.000"), std::wstring::npos);
    EXPECT_NE(block.find(L"终点含湿量(g/kg)"), std::wstring::npos);
    EXPECT_LT(block.find(L"终点含湿量(g/kg)"), results);
    EXPECT_EQ(block.find(L"终点干球温度(℃)"), block.find(L"终点干球温度(℃)", results))
        << "the end temperature is a result, not an input, when d is given";
    EXPECT_NE(block.find(L":   15.000", results), std::wstring::npos) << "the end's d";
    EXPECT_NE(block.find(L"空气流量(kg/h)"), std::wstring::npos);

    const vrn2::JournalEntry entry = vrn2::processJournalEntry(in, r, {L"N", L"O", L""});
    EXPECT_EQ(entry.title, L"按热湿比变化");
    EXPECT_DOUBLE_EQ(entry.B, 99.86);
    EXPECT_EQ(entry.results.back().name, L"热湿比ε");
    EXPECT_NEAR(entry.results.back().value, 3000.0, 1e-6);
}

TEST(ProcessDrawing, ArrowedProcessesDashedMixingAndTheDewPointBeyondTheEnd) {
    const vrn2::ProcessLabels labels{L"W", L"L", L"A"};
    vrn2::ProcessInput heating = vrn2::processInput(complete(ProcessKind::heating));
    heating.endT = 40.0;
    auto drawing = vrn2::processDrawing(heating, solved(heating), labels);
    ASSERT_EQ(drawing.states.size(), 2u);
    ASSERT_EQ(drawing.legs.size(), 1u);
    EXPECT_FALSE(drawing.legs[0].dashed);
    EXPECT_EQ(drawing.states[1].label, L"L");

    const vrn2::ProcessInput coil = vrn2::processInput(complete(ProcessKind::dewPoint));
    const vrn2::ProcessResult r = solved(coil);
    drawing = vrn2::processDrawing(coil, r, labels);
    ASSERT_EQ(drawing.states.size(), 3u);
    EXPECT_EQ(drawing.states[2].label, L"A");
    EXPECT_DOUBLE_EQ(drawing.states[2].d, r.dewPoint.d);
    ASSERT_EQ(drawing.legs.size(), 2u);
    EXPECT_FALSE(drawing.legs[0].dashed);
    EXPECT_TRUE(drawing.legs[1].dashed);
    EXPECT_EQ(drawing.legs[1].from, 1);
    EXPECT_EQ(drawing.legs[1].to, 2);

    const vrn2::ProcessInput mix = vrn2::processInput(complete(ProcessKind::mixing));
    drawing = vrn2::processDrawing(mix, solved(mix), labels);
    ASSERT_EQ(drawing.states.size(), 3u);
    ASSERT_EQ(drawing.legs.size(), 1u);
    EXPECT_TRUE(drawing.legs[0].dashed);
    EXPECT_EQ(drawing.legs[0].to, 2);
    EXPECT_DOUBLE_EQ(drawing.states[2].i, mix.second.i);
}

}  // namespace
