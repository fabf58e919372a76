// Saturation pressure formulas and the functions built on them, against values worked out
// independently from the correlations.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/airstate/worked.h"

using airstate_test::CloseRel;
using airstate_test::kFormulaRel;

TEST(SaturationPressure, CorrelationsMatchWorkedValues) {
    EXPECT_TRUE(CloseRel(SaturationPressureWater(293.15), 2364.89824041051, kFormulaRel));
    EXPECT_TRUE(CloseRel(SaturationPressureWater(323.15), 12501.83389602089, kFormulaRel));
    EXPECT_TRUE(CloseRel(SaturationPressureWater(473.15), 1583173.2574398254, kFormulaRel));
    EXPECT_TRUE(CloseRel(SaturationPressureWater(273.15), 617.56464096476645, kFormulaRel));
    EXPECT_TRUE(CloseRel(SaturationPressureIce(273.15), 611.15357089076767, kFormulaRel));
    EXPECT_TRUE(CloseRel(SaturationPressureIce(263.15), 259.90286495218054, kFormulaRel));
    EXPECT_TRUE(CloseRel(SaturationPressureIce(213.15), 1.0816731664634568, kFormulaRel));
}

TEST(SaturationPressure, ZeroCelsiusIsFixedAt609Pa) {
    EXPECT_EQ(SaturationPressure(0.0), 609.0);
    EXPECT_EQ(SaturationPressure(-0.0), 609.0);
    EXPECT_EQ(SaturationPressure(0.0001), 609.0);
    EXPECT_EQ(SaturationPressure(-0.0001), 609.0);
    EXPECT_EQ(SaturationPressure(0.00005), 609.0);
    // Just outside the window each correlation applies again (about 617.6 and 611.1 Pa).
    EXPECT_NEAR(SaturationPressure(0.00011), 617.56, 0.01);
    EXPECT_NEAR(SaturationPressure(-0.00011), 611.15, 0.01);
}

TEST(SaturationPressure, PhaseFollowsTheSignOfTheTemperature) {
    EXPECT_TRUE(CloseRel(SaturationPressure(20.0), 2364.89824041051, kFormulaRel));
    EXPECT_TRUE(CloseRel(SaturationPressure(-10.0), 259.90286495218054, kFormulaRel));
}

TEST(SaturationPressure, NaNTemperatureKeepsTheGivenValue) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(SaturationPressure(nan, 777.0), 777.0);
    EXPECT_EQ(SaturationPressure(nan, 0.0), 0.0);
    EXPECT_TRUE(std::isnan(SaturationPressure(nan)));
}

TEST(SaturationPressure, PlainCorrelationsHaveNoZeroRule) {
    EXPECT_NE(SaturationPressureWater(273.15), 609.0);
    EXPECT_NE(SaturationPressureIce(273.15), 609.0);
    // At 0 °C the psychrometer term vanishes, so the functions show the correlations' values.
    EXPECT_TRUE(CloseRel(PsychrometerFunctionWater(273.15, 101325.0), 617.56464096476645,
                         kFormulaRel));
    EXPECT_TRUE(CloseRel(PsychrometerFunctionIce(273.15, 101325.0), 611.15357089076767,
                         kFormulaRel));
}

TEST(PsychrometerFunction, AddsTheWetBulbDepressionTerm) {
    EXPECT_TRUE(CloseRel(PsychrometerFunctionWater(298.15, 101325.0), 4894.7769883246827,
                         kFormulaRel));
    EXPECT_TRUE(
        CloseRel(PsychrometerFunctionIce(268.15, 90000.0), 101.61412247880126, kFormulaRel));
}

TEST(EnthalpyAtHumidity, MatchesWorkedValues) {
    EXPECT_TRUE(CloseRel(EnthalpyAtHumidityWater(303.15, 101325.0, 60.0), 71.776724164309188,
                         kFormulaRel));
    EXPECT_TRUE(CloseRel(EnthalpyAtHumidityIce(263.15, 101325.0, 80.0), -6.9260600263771677,
                         kFormulaRel));
    // Dry air: only the sensible part 1.01·t remains.
    EXPECT_DOUBLE_EQ(EnthalpyAtHumidityWater(313.15, 101325.0, 0.0), 1.01 * 40.0);
}
