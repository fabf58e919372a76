#!/usr/bin/python3
"""Works out the return-air systems of return_air_test.cpp independently of the module.

The humid-air relations are written out from their definitions (water saturation curve, d from
the vapour pressure, i = 1.01 t + d (2500 + 1.84 t) / 1000); every point on a curve is found by
bisection in plain double arithmetic, not by the module's secant steps or line scan. The system
follows the textbook construction step by step. Run it to print the figures that the test
quotes; ctest does not run it.
"""
import math

B = 101.325
P = 1000 * B


def ps(t):
    T = t + 273.15
    if t < 0:  # over ice, as the module's library below 0 C
        return math.exp(-5674.5359 / T + 6.3925247 - 0.009677843 * T + 6.2215701e-7 * T**2
                        + 2.0747825e-9 * T**3 - 9.484024e-13 * T**4 + 4.1635019 * math.log(T))
    return math.exp(-5800.2206 / T + 1.3914993 - 0.04860239 * T + 4.1764768e-5 * T**2
                    - 1.4452093e-8 * T**3 + 6.5459673 * math.log(T))


def d_of(pq):
    return 622 * pq / (P - pq)


def i_of(t, d):
    return 1.01 * t + 0.001 * d * (1.84 * t + 2500)


def t_of(i, d):
    return (i - 2.5 * d) / (1.01 + 0.00184 * d)


def fy_of(i, d):
    pq = P * d / (622 + d)
    return 100 * pq / ps(t_of(i, d))


def state_t_fy(t, fy):
    d = d_of(ps(t) * fy / 100)
    return dict(t=t, d=d, i=i_of(t, d), fy=fy)


def state_t_ts(t, ts):
    pq = ps(ts) - 0.000667 * P * (t - ts)
    d = d_of(pq)
    return dict(t=t, d=d, i=i_of(t, d), fy=100 * pq / ps(t))


def state_i_d(i, d):
    return dict(t=t_of(i, d), d=d, i=i, fy=fy_of(i, d))


def state_d_fy(d, fy):
    pq = P * d / (622 + d)
    lo, hi = -40.0, 100.0  # ps(t) * fy / 100 = pq
    for _ in range(200):
        mid = (lo + hi) / 2
        lo, hi = (mid, hi) if ps(mid) * fy / 100 < pq else (lo, mid)
    t = (lo + hi) / 2
    return dict(t=t, d=d, i=i_of(t, d), fy=fy)


def mix(a, ga, b, gb):
    return state_i_d((ga * a["i"] + gb * b["i"]) / (ga + gb), (ga * a["d"] + gb * b["d"]) / (ga + gb))


def on_line_at_fy(n, di, dd, fy, s_lo, s_hi):
    """The point n + s (di, dd) with relative humidity fy, s by bisection."""
    for _ in range(200):
        s = (s_lo + s_hi) / 2
        p = (n["i"] + s * di, n["d"] + s * dd)
        s_lo, s_hi = (s, s_hi) if fy_of(*p) < fy else (s_lo, s)
    s = (s_lo + s_hi) / 2
    return state_i_d(n["i"] + s * di, n["d"] + s * dd), s


def supply_on_eps(n, eps, t0):
    # i = iN + eps (d - dN) / 1000 and i = i_of(t0, d): linear in d.
    a = 0.001 * (1.84 * t0 + 2500)
    d = (n["i"] - eps * n["d"] / 1000 - 1.01 * t0) / (a - eps / 1000)
    return state_i_d(i_of(t0, d), d)


def show(name, s):
    print("  %-3s t=%.6f d=%.6f i=%.6f fy=%.6f" % (name, s["t"], s["d"], s["i"], s["fy"]))


def summer(Q, W, m, dt0, fyL, secondary):
    n = state_t_fy(22, 55)
    w = state_t_ts(33.2, 26.4)
    eps = Q * 3600 / W
    o = supply_on_eps(n, eps, 22 - dt0)
    G = Q * 3600 / (n["i"] - o["i"])
    print("eps=%.6f G=%.6f (moisture check %.6f)" % (eps, G, W * 1000 / (n["d"] - o["d"])))
    for k, s in (("N", n), ("W", w), ("O", o)):
        show(k, s)
    Gw = G * m / 100
    if not secondary:
        L = state_d_fy(o["d"], fyL)
        c = mix(n, G - Gw, w, Gw)
        show("C", c), show("L", L)
        print("Qc=%.6f Qr=%.6f cond=%.6f" % (G * (c["i"] - L["i"]) / 3600, G * (o["i"] - L["i"]) / 3600,
                                              G * (c["d"] - L["d"]) / 1000))
        return
    L, s = on_line_at_fy(n, o["i"] - n["i"], o["d"] - n["d"], fyL, 1.0, 20.0)
    GL = G / s
    c1 = mix(n, GL - Gw, w, Gw)
    show("C1", c1), show("L", L)
    print("GL=%.6f G2=%.6f G1=%.6f Qc=%.6f cond=%.6f" % (GL, G - GL, GL - Gw, GL * (c1["i"] - L["i"]) / 3600,
                                                        GL * (c1["d"] - L["d"]) / 1000))


def dew_point_supply(Q, W, fyL):
    n = state_t_fy(22, 55)
    eps = Q * 3600 / W
    L, _ = on_line_at_fy(n, -eps / 1000, -1.0, fyL, 0.0, 15.0)
    show("L", L)
    print("G=%.6f" % (Q * 3600 / (n["i"] - L["i"])))


def winter(Q, W, G, m, tW, fyW, tp, fyL, G2=None, steam=False):
    n = state_t_fy(22, 55)
    w = state_t_fy(tW, fyW)
    o = state_i_d(n["i"] - Q * 3600 / G, n["d"] - W * 1000 / G)
    show("N", n), show("W", w), show("O", o)
    Gw = G * m / 100
    w1 = w
    if w["t"] < tp:
        w1 = state_i_d(i_of(tp, w["d"]), w["d"])
        print("preheat=%.6f" % (Gw * (w1["i"] - w["i"]) / 3600))
        show("W'", w1)
    flow = G if G2 is None else G - G2
    dL = o["d"] if G2 is None else (G * o["d"] - G2 * n["d"]) / flow
    c = mix(n, flow - Gw, w1, Gw)
    show("C", c)
    if steam:
        tD = o["t"]
        print("heat=%.6f hum=%.6f reheat=%.6f" % (flow * (i_of(tD, c["d"]) - c["i"]) / 3600,
                                                  flow * (dL - c["d"]) / 1000,
                                                  G * (o["i"] - i_of(tD, dL)) / 3600))
        return
    # Heated to the enthalpy of L on the curve when below it; sprayed along constant enthalpy
    # only as far as the moisture needed when above it.
    on_curve = state_d_fy(dL, fyL)
    L = state_i_d(max(on_curve["i"], c["i"]), dL)
    show("L", L)
    heat = flow * (L["i"] - c["i"]) / 3600
    after = L if G2 is None else mix(L, flow, n, G2)
    if G2 is not None:
        show("C2", after)
    print("heat=%.6f hum=%.6f reheat=%.6f" % (heat, flow * (dL - c["d"]) / 1000, G * (o["i"] - after["i"]) / 3600))


print("summer primary, Q=3.314 kW, W=0.9504 kg/h, m=15 %, dt0=8, phiL=95")
summer(3.314, 0.9504, 15, 8, 95, False)
print("summer secondary, same room, m=15 %, dt0=8, phiL=95")
summer(3.314, 0.9504, 15, 8, 95, True)
print("dew point supply, phiL=90")
dew_point_supply(3.314, 0.9504, 90)
print("winter primary, Q=-1.5 kW, W=0.9504, G=1200 kg/h, m=15 %, W=-10 C 45 %, preheat 5 C, phiL=95")
winter(-1.5, 0.9504, 1200, 15, -10, 45, 5, 95)
print("winter primary, m=40 %, W=-12 C 45 %, preheat 2 C, phiL=95")
winter(-1.5, 0.9504, 1200, 40, -12, 45, 2, 95)
print("winter primary, steam, as before")
winter(-1.5, 0.9504, 1200, 40, -12, 45, 2, 95, steam=True)
print("winter secondary, G2=500 kg/h, as before")
winter(-1.5, 0.9504, 1200, 40, -12, 45, 2, 95, G2=500)
