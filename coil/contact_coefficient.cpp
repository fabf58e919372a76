#include "coil/contact_coefficient.h"

#include <utility>

namespace vrn2 {
namespace {

// The pairs before the first zero velocity, sorted by ascending velocity. The table has at
// most ten pairs, so a bubble sort is all it needs.
int sortedPairs(const ContactTable& table, ContactTable& sorted) {
    int count = 0;
    while (count < kMaxContactPairs && table[count].Vy != 0.0) {
        sorted[count] = table[count];
        ++count;
    }
    for (int pass = 0; pass + 1 < count; ++pass)
        for (int k = 0; k + 1 < count - pass; ++k)
            if (sorted[k].Vy > sorted[k + 1].Vy) std::swap(sorted[k], sorted[k + 1]);
    return count;
}

double onLine(const ContactPair& a, const ContactPair& b, double Vy) {
    return a.E2 + (b.E2 - a.E2) * (Vy - a.Vy) / (b.Vy - a.Vy);
}

}  // namespace

double contactCoefficient(const ContactTable& table, double Vy, const AlertSink& alert) {
    ContactTable pairs{};
    const int count = sortedPairs(table, pairs);
    if (count == 0) return 0.0;
    if (count == 1) return pairs[0].E2;
    if (Vy < pairs[0].Vy || Vy > pairs[count - 1].Vy) {
        if (alert) alert(kMsgContactOutOfRange);
        return Vy < pairs[0].Vy ? onLine(pairs[0], pairs[1], Vy)
                                : onLine(pairs[count - 2], pairs[count - 1], Vy);
    }
    int k = 0;
    while (k + 2 < count && Vy > pairs[k + 1].Vy) ++k;
    // Exact tabulated velocities give their own E2, also where two pairs share a velocity.
    if (Vy == pairs[k].Vy) return pairs[k].E2;
    if (Vy == pairs[k + 1].Vy) return pairs[k + 1].E2;
    return onLine(pairs[k], pairs[k + 1], Vy);
}

}  // namespace vrn2
