// E2 from the record's table: interpolation inside, extrapolation with one alert outside,
// exact edges and a single pair without alert, unsorted tables and the zero that ends a table.
#include <gtest/gtest.h>

#include "coil/contact_coefficient.h"
#include "tests/coil/coil_test_support.h"

namespace {

using coil_test::Alerts;
using vrn2::contactCoefficient;
using vrn2::ContactTable;

ContactTable table(std::initializer_list<vrn2::ContactPair> pairs) {
    ContactTable t{};
    size_t k = 0;
    for (const auto& p : pairs) t[k++] = p;
    return t;
}

TEST(ContactCoefficient, OnePairGivesItsValueAtAnyVelocityWithoutAlert) {
    Alerts alerts;
    const ContactTable one = table({{2.5, 0.768}});
    for (double Vy : {0.1, 2.5, 4.0, 100.0}) EXPECT_EQ(contactCoefficient(one, Vy, alerts.sink()), 0.768);
    EXPECT_TRUE(alerts.seen.empty());
}

TEST(ContactCoefficient, ExactFirstAndLastVelocitiesWithoutAlert) {
    Alerts alerts;
    const ContactTable t = table({{1.5, 0.841}, {2.0, 0.797}, {2.5, 0.768}, {3.0, 0.740}});
    EXPECT_EQ(contactCoefficient(t, 1.5, alerts.sink()), 0.841);
    EXPECT_EQ(contactCoefficient(t, 3.0, alerts.sink()), 0.740);
    EXPECT_EQ(contactCoefficient(t, 2.0, alerts.sink()), 0.797);
    // Inside: 2.25 m/s lies halfway between 0.797 and 0.768.
    EXPECT_NEAR(contactCoefficient(t, 2.25, alerts.sink()), 0.7825, 1e-12);
    EXPECT_TRUE(alerts.seen.empty());
}

TEST(ContactCoefficient, ExtrapolatesBelowAndAboveWithOneAlertEach) {
    const ContactTable t = table({{1.5, 0.841}, {2.0, 0.797}, {2.5, 0.768}, {3.0, 0.740}});
    Alerts below;
    // On the line through (1.5, 0.841) and (2.0, 0.797): slope -0.088 per m/s.
    EXPECT_NEAR(contactCoefficient(t, 1.0, below.sink()), 0.841 + 0.088 * 0.5, 1e-12);
    ASSERT_EQ(below.seen.size(), 1u);
    EXPECT_EQ(below.seen[0], L"求出的接触系数不在设备给出的范围");

    Alerts above;
    // On the line through (2.5, 0.768) and (3.0, 0.740): slope -0.056 per m/s.
    EXPECT_NEAR(contactCoefficient(t, 3.5, above.sink()), 0.740 - 0.056 * 0.5, 1e-12);
    ASSERT_EQ(above.seen.size(), 1u);
    EXPECT_EQ(above.seen[0], L"求出的接触系数不在设备给出的范围");
}

TEST(ContactCoefficient, UnsortedTableIsTakenInVelocityOrder) {
    Alerts alerts;
    const ContactTable shuffled = table({{3.0, 0.740}, {1.5, 0.841}, {2.5, 0.768}, {2.0, 0.797}});
    EXPECT_NEAR(contactCoefficient(shuffled, 1.75, alerts.sink()), (0.841 + 0.797) / 2, 1e-12);
    EXPECT_NEAR(contactCoefficient(shuffled, 2.75, alerts.sink()), (0.768 + 0.740) / 2, 1e-12);
    EXPECT_EQ(contactCoefficient(shuffled, 1.5, alerts.sink()), 0.841);
    EXPECT_EQ(contactCoefficient(shuffled, 3.0, alerts.sink()), 0.740);
    EXPECT_TRUE(alerts.seen.empty());
    // Extrapolation uses the two smallest velocities, wherever they stood.
    EXPECT_NEAR(contactCoefficient(shuffled, 1.0, alerts.sink()), 0.885, 1e-12);
    EXPECT_EQ(alerts.seen.size(), 1u);
}

TEST(ContactCoefficient, TableEndsAtTheFirstZeroVelocity) {
    Alerts alerts;
    // The pair after the zero is not part of the table: 3.0 m/s is beyond the last pair.
    const ContactTable t = table({{1.5, 0.841}, {2.0, 0.797}, {0.0, 0.5}, {3.0, 0.1}});
    EXPECT_NEAR(contactCoefficient(t, 2.5, alerts.sink()), 0.797 - 0.088 * 0.5, 1e-12);
    EXPECT_EQ(alerts.seen.size(), 1u);
    EXPECT_EQ(contactCoefficient(ContactTable{}, 2.0, alerts.sink()), 0.0);
}

}  // namespace
