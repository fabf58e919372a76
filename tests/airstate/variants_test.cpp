// The two solvers with the latent-heat constant 2501 against their 2500 forms. The differences
// follow from the formulas:
//   supply air: t = (i − 0.001·d·L)/(0.001·d·1.84 + 1.01), so raising L by 1 lowers t by
//               0.001·d/(0.001·d·1.84 + 1.01);
//   surface cooler: i = 1.01·t + 0.001·d·(1.84·t + L), so raising L by 1 raises i by 0.001·d,
//               with every other field unchanged.

#include <gtest/gtest.h>

#include "adscodes.h"
#include "tests/airstate/worked.h"

using airstate_test::kRootAbs_C;
using airstate_test::Record;

TEST(SupplyAirVariant, TemperatureLowerByTheLatentHeatStep) {
    AirState standard = Record(101.325);
    standard.i = 60.0;
    standard.d = 12.0;
    AirState supply = standard;
    ASSERT_EQ(StateFromEnthalpyMoisture(standard), RTNORM);
    ASSERT_EQ(StateFromEnthalpyMoistureSupplyAir(supply), RTNORM);

    const double expectedStep = 0.001 * 12.0 / (0.001 * 12.0 * 1.84 + 1.01);  // 0.011627 K
    EXPECT_NEAR(standard.t - supply.t, expectedStep, 1e-13);
    EXPECT_NEAR(standard.t, 29.067514146190218, 1e-12);
    EXPECT_NEAR(supply.t, 29.055887140531742, 1e-12);
    // What depends only on d is the same; what follows t is the cooler state's.
    EXPECT_EQ(supply.pq, standard.pq);
    EXPECT_EQ(supply.tl, standard.tl);
    EXPECT_LT(supply.pb, standard.pb);
    EXPECT_GT(supply.fy, standard.fy);
    EXPECT_LT(supply.ts, standard.ts);
    EXPECT_EQ(supply.i, 60.0);
    EXPECT_EQ(supply.d, 12.0);
}

TEST(SurfaceCoolerVariant, EnthalpyHigherByOneThousandthOfTheMoisture) {
    AirState standard = Record(101.325);
    standard.t = 25.0;
    standard.ts = 18.0;
    AirState cooler = standard;
    ASSERT_EQ(StateFromTempWetBulb(standard), RTNORM);
    ASSERT_EQ(StateFromTempWetBulbSurfaceCooler(cooler), RTNORM);

    EXPECT_NEAR(cooler.i - standard.i, 0.001 * standard.d, 1e-13);  // 0.0100687 kJ/kg
    EXPECT_NEAR(cooler.i, 50.894921799454936, 1e-10);
    for (double AirState::*field : {&AirState::pq, &AirState::pb, &AirState::t, &AirState::ts,
                                    &AirState::tl, &AirState::d, &AirState::fy, &AirState::v})
        EXPECT_EQ(cooler.*field, standard.*field);
}

TEST(SurfaceCoolerVariant, StillTakesTheVolumeAtTheWetBulb) {
    AirState cooler = Record(101.325);
    cooler.t = 25.0;
    cooler.ts = 18.0;
    ASSERT_EQ(StateFromTempWetBulbSurfaceCooler(cooler), RTNORM);
    EXPECT_NEAR(cooler.v, 0.82983369016461489, 1e-12);
    EXPECT_NEAR(cooler.tl, 13.980365008416255, kRootAbs_C);
}

TEST(SupplyAirVariant, FailsLikeItsStandardForm) {
    AirState supply = Record(101.325);
    supply.i = 40.0;
    supply.d = 40.0;  // about 100 % more moisture than air of that enthalpy can hold
    EXPECT_EQ(StateFromEnthalpyMoistureSupplyAir(supply), RTERROR);
    EXPECT_GT(supply.fy, 100.0);
}
