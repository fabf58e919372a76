// The layer and block patterns read by the platform's wildcard matcher.
#include <gtest/gtest.h>

#include "acutads.h"
#include "adscodes.h"
#include "drawing/pipe_layers.h"

namespace {

using namespace vrn2::drawing;

bool matches(const wchar_t* name, const wchar_t* pattern) { return acutWcMatch(name, pattern) == RTNORM; }

TEST(PipeLayers, TracedAndBrokenPipesLieOnDollarLayers) {
    for (const wchar_t* layer : {L"$R01-GS", L"$P12-AB", L"$J00-PS", L"$X99-ZZ", L"$I10-HS"}) {
        EXPECT_TRUE(matches(layer, kTracedPipeLayers)) << layer;
        EXPECT_TRUE(matches(layer, kBreakPolylineLayers)) << layer;
        EXPECT_FALSE(matches(layer, kCollisionLineLayers)) << layer;
    }
    for (const wchar_t* layer : {L"R01-GS", L"$A01-GS", L"$R1-GS", L"$R01-G1", L"$R01GS", L"$R01-GSX", L"$r01-gs"})
        EXPECT_FALSE(matches(layer, kTracedPipeLayers)) << layer << ": names are upper-cased before matching";
}

TEST(PipeLayers, CollisionLinesLieOnPlainLayers) {
    EXPECT_TRUE(matches(L"R02-GS", kCollisionLineLayers));
    EXPECT_TRUE(matches(L"J02-PS", kCollisionLineLayers));
    EXPECT_FALSE(matches(L"B02-PS", kCollisionLineLayers));
}

TEST(PipeLayers, EquipmentAndFittingBlocks) {
    for (const wchar_t* block : {L"F1001-A", L"T12AB-B1", L"D0000-B4", L"GZZZZ-A"})
        EXPECT_TRUE(matches(block, kEquipmentBlocks)) << block;
    for (const wchar_t* block : {L"F1001-B5", L"F1001-C", L"A1001-A", L"F100-A", L"_PLB2"})
        EXPECT_FALSE(matches(block, kEquipmentBlocks)) << block;
    for (const wchar_t* block : {L"_PLBA", L"_PLBE", L"_PLB2"}) EXPECT_TRUE(matches(block, kSmallFittingBlocks)) << block;
    EXPECT_FALSE(matches(L"_PLBF", kSmallFittingBlocks));
}

}  // namespace
