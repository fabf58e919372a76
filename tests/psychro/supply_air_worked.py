#!/usr/bin/python3
"""Works out the expected figures of the supply-air tests independently of the module.

The humid-air relations are written out again from their definitions and evaluated with mpmath
at 40 significant digits; the wet bulb and the dew point are found by bisection, not by the
secant steps of the module's library. The supply state follows the room's process line (total
load), or the sensible-heat and moisture balances (sensible load), and is then completed from
its enthalpy and moisture content with the latent heat 2501 as the supply calculation does.
Run it to print the figures that supply_air_test.cpp quotes; ctest does not run it.
"""
import mpmath as mp

mp.mp.dps = 40
K = mp.mpf("273.15")


def ps_ice(T):
    c = [mp.mpf(x) for x in ("-5674.5359", "6.3925247", "-0.009677843", "6.2215701e-7",
                             "2.0747825e-9", "-9.484024e-13", "4.1635019")]
    return mp.e ** (c[0] / T + c[1] + c[2] * T + c[3] * T**2 + c[4] * T**3 + c[5] * T**4 + c[6] * mp.log(T))


def ps_water(T):
    c = [mp.mpf(x) for x in ("-5800.2206", "1.3914993", "-0.04860239", "4.1764768e-5",
                             "-1.4452093e-8", "6.5459673")]
    return mp.e ** (c[0] / T + c[1] + c[2] * T + c[3] * T**2 + c[4] * T**3 + c[5] * mp.log(T))


def pb(t):
    if abs(t) <= mp.mpf("0.0001"):
        return mp.mpf(609)
    return ps_ice(t + K) if t < 0 else ps_water(t + K)


def bisect(f, target, lo, hi):
    lo, hi = mp.mpf(lo), mp.mpf(hi)
    for _ in range(200):
        mid = (lo + hi) / 2
        lo, hi = (mid, hi) if f(mid) < target else (lo, mid)
    return (lo + hi) / 2 - K


def wet_bulb(t, pq, P):
    # The states here are all above 0 C, on the water curve.
    target = pq + mp.mpf("0.000667") * P * t
    return bisect(lambda T: ps_water(T) + mp.mpf("0.000667") * P * (T - K), target, 273.15, 373.15)


def dew_point(p):
    return bisect(ps_water, p, 263.15, 373.15)


def indoor(B, tn, rhn):
    P = 1000 * B
    pq = pb(tn) * rhn / 100
    d = 622 * pq / (P - pq)
    i = mp.mpf("1.01") * tn + mp.mpf("0.001") * d * (mp.mpf("1.84") * tn + 2500)
    return d, i


def complete(B, dO, to):
    """The supply state from (iO, dO): iO with 2500 at to, the rest from t' with 2501."""
    P = 1000 * B
    iO = mp.mpf("1.01") * to + mp.mpf("0.001") * dO * (mp.mpf("1.84") * to + 2500)
    t1 = (iO - mp.mpf("0.001") * dO * 2501) / (mp.mpf("0.001") * dO * mp.mpf("1.84") + mp.mpf("1.01"))
    pq = P * dO / (622 + dO)
    return dict(t=to, d=dO, i=iO, fy=100 * pq / pb(t1), ts=wet_bulb(t1, pq, P), tl=dew_point(pq), t_solved=t1)


def total_load(B, tn, rhn, q, w, dt):
    dN, iN = indoor(B, tn, rhn)
    to = tn - dt
    e = q / (1000 * w / 3600)
    dO = (iN - e * dN - mp.mpf("1.01") * to) / (mp.mpf("0.001") * (mp.mpf("1.84") * to + 2500) - e)
    O = complete(B, dO, to)
    O["G"] = q / (iN - O["i"]) * 3600
    return O


def sensible_load(B, tn, rhn, qx, w, dt):
    dN, _ = indoor(B, tn, rhn)
    G = qx / (mp.mpf("1.01") * dt) * 3600
    O = complete(B, dN - 1000 * w / G, tn - dt)
    O["G"] = G
    return O


def show(name, O):
    print(name)
    for k in ("G", "t", "d", "i", "fy", "ts", "tl", "t_solved"):
        print("   %-8s %s" % (k, mp.nstr(O[k], 17)))


if __name__ == "__main__":
    m = mp.mpf
    show("defaults, total load", total_load(m("101.325"), m(22), m(60), m("11.6"), m(5), m(6)))
    show("defaults, sensible and moisture load", sensible_load(m("101.325"), m(22), m(60), m("11.6"), m(5), m(6)))
    show("B 90, 26 C 55 %, 20 kW, 8 kg/h, 8 K", total_load(m(90), m(26), m(55), m(20), m(8), m(8)))
    show("B 90, 26 C 55 %, sensible 15 kW, 4 kg/h, 8 K", sensible_load(m(90), m(26), m(55), m(15), m(4), m(8)))
