#!/usr/bin/python3
"""Works out the expected values of the humid-air library tests independently of the library.

The relations are written out again here from their definitions and evaluated with mpmath at
40 significant digits; every inverse (dew point, wet bulb, temperature from enthalpy) is found by
plain bisection on the curve the band rules pick, not by the library's secant steps. Run it to
print the figures that airstate tests quote; it is not run by ctest.
"""
import mpmath as mp

mp.mp.dps = 40
K = mp.mpf("273.15")


def ps_ice(T):
    C = [mp.mpf(x) for x in ("-5674.5359", "6.3925247", "-0.009677843", "6.2215701e-7",
                             "2.0747825e-9", "-9.484024e-13", "4.1635019")]
    return mp.e ** (C[0] / T + C[1] + C[2] * T + C[3] * T**2 + C[4] * T**3 + C[5] * T**4
                    + C[6] * mp.log(T))


def ps_water(T):
    C = [mp.mpf(x) for x in ("-5800.2206", "1.3914993", "-0.04860239", "4.1764768e-5",
                             "-1.4452093e-8", "6.5459673")]
    return mp.e ** (C[0] / T + C[1] + C[2] * T + C[3] * T**2 + C[4] * T**3 + C[5] * mp.log(T))


def pb(t):
    t = mp.mpf(t)
    if abs(t) <= mp.mpf("0.0001"):
        return mp.mpf(609)
    return ps_ice(t + K) if t < 0 else ps_water(t + K)


def bisect(f, target, lo, hi):
    lo, hi = mp.mpf(lo), mp.mpf(hi)
    for _ in range(200):
        mid = (lo + hi) / 2
        if f(mid) < target:
            lo = mid
        else:
            hi = mid
    return (lo + hi) / 2 - K


def dew_point(p):
    # Below the ice curve's value at 0 C the ice bands hold; from there on the water bands,
    # whose curve reaches that value a little below 0 C, hence the lower bracket.
    p = mp.mpf(p)
    if p < ps_ice(K):
        return bisect(ps_ice, p, 213.15, 273.15)
    return bisect(ps_water, p, 263.15, 473.15)


def psychrometer(ps, P):
    return lambda T: ps(T) + mp.mpf("0.000667") * P * (T - K)


def wet_bulb(t, pq, P):
    t, pq, P = mp.mpf(t), mp.mpf(pq), mp.mpf(P)
    target = pq + mp.mpf("0.000667") * P * t
    if target < ps_ice(K):
        return bisect(psychrometer(ps_ice, P), target, 213.15, 273.15)
    if target < ps_water(K):
        return mp.mpf(0)  # between the two curves at 0 C: no band holds
    return bisect(psychrometer(ps_water, P), target, 273.15, 473.15)


def enthalpy_at(ps, P, fy):
    def f(T):
        pv = ps(T) * fy / 100
        return (mp.mpf("0.622") * pv / (P - pv)) * (mp.mpf("1.84") * (T - K) + 2500) \
            + mp.mpf("1.01") * (T - K)
    return f


def temp_from_enthalpy(i, P, fy):
    # The water curve is iterated whichever band was chosen.
    return bisect(enthalpy_at(ps_water, mp.mpf(P), mp.mpf(fy)), mp.mpf(i), 213.15, 473.15)


def moisture(pq, P):
    return 622 * pq / (P - pq)


def vapour(d, P):
    return P * d / (622 + d)


def enthalpy(t, d, r=2500):
    return mp.mpf("1.01") * t + mp.mpf("0.001") * d * (mp.mpf("1.84") * t + r)


def volume(T, P, pq):
    return 1 / (mp.mpf("0.003484") * P / T - mp.mpf("0.00134") * pq / T)


def show(title, **values):
    print(title)
    for name, value in values.items():
        print(f"    {name:4} = {mp.nstr(value, 17)}")


def state_from_temp_humidity(t, fy, B):
    t, fy, P = mp.mpf(t), mp.mpf(fy), 1000 * mp.mpf(B)
    b = pb(t)
    pq = b * fy / 100
    d = moisture(pq, P)
    return dict(pb=b, pq=pq, d=d, i=enthalpy(t, d), ts=wet_bulb(t, pq, P),
                v=volume(t + K, P, pq), tl=dew_point(vapour(d, P)))


def main():
    show("saturation pressures (Pa)",
         water_20=ps_water(K + 20), water_0=ps_water(K), ice_0=ps_ice(K),
         ice_m10=ps_ice(K - 10), water_50=ps_water(K + 50), ice_m60=ps_ice(K - 60),
         water_200=ps_water(K + 200))
    show("psychrometer and enthalpy functions",
         psy_water_25=psychrometer(ps_water, 101325)(K + 25),
         psy_ice_m5=psychrometer(ps_ice, 90000)(K - 5),
         h_water_30_60=enthalpy_at(ps_water, 101325, 60)(K + 30),
         h_ice_m10_80=enthalpy_at(ps_ice, 101325, 80)(K - 10))
    show("dew points (C)", p1000=dew_point(1000), p100=dew_point(100),
         p611_18=dew_point("611.18"), p609=dew_point(609), p20000=dew_point(20000))
    show("wet bulbs (C)", w30_1500=wet_bulb(30, 1500, 101325),
         wm10_150=wet_bulb(-10, 150, 101325), w40_2000_85k=wet_bulb(40, 2000, 85000))
    ice_i = enthalpy_at(ps_ice, 101325, 100)(K - 10)
    show("temperature from enthalpy (C)", i50_fy50=temp_from_enthalpy(50, 101325, 50),
         i_ice_m10_sat=ice_i, t_of_ice_i=temp_from_enthalpy(ice_i, 101325, 100),
         i100_sat_90k=temp_from_enthalpy(100, 90000, 100),
         h_sat_ice_0=enthalpy_at(ps_ice, 101325, 100)(K),
         h_sat_water_0=enthalpy_at(ps_water, 101325, 100)(K))
    show("state t=20 fy=50 B=101.325", **state_from_temp_humidity(20, 50, "101.325"))
    show("state t=-10 fy=70 B=90", **state_from_temp_humidity(-10, 70, 90))

    P = mp.mpf(101325)
    pq = pb(20) * mp.mpf("0.4")  # t = 20, d from fy 40 %
    d = moisture(pq, P)
    show("over-saturated t=20 d=30", pq=vapour(30, P), fy=100 * vapour(30, P) / pb(20),
         i=enthalpy(20, 30), ts=wet_bulb(20, vapour(30, P), P),
         tl=dew_point(vapour(30, P)), v=volume(K + 20, P, vapour(30, P)))
    ts = mp.mpf(18)
    pq = pb(ts) - mp.mpf("0.000667") * P * (25 - ts)
    d = moisture(pq, P)
    show("t=25 ts=18", pq=pq, fy=100 * pq / pb(25), d=d, i=enthalpy(25, d),
         v_at_ts=volume(K + ts, P, pq), v_at_t=volume(K + 25, P, pq), tl=dew_point(vapour(d, P)),
         i_2501=enthalpy(25, d, 2501))
    i, d = mp.mpf(60), mp.mpf(12)
    t_2500 = (i - mp.mpf("0.001") * d * 2500) / (mp.mpf("0.001") * d * mp.mpf("1.84") + mp.mpf("1.01"))
    t_2501 = (i - mp.mpf("0.001") * d * 2501) / (mp.mpf("0.001") * d * mp.mpf("1.84") + mp.mpf("1.01"))
    show("i=60 d=12", t_2500=t_2500, t_2501=t_2501, diff=t_2501 - t_2500)
    db, tl = mp.mpf(25), mp.mpf(10)
    pbb = vapour(db, P)
    pw = pb(tl)
    dd = moisture(pw, P)
    fy = 100 * vapour(dd, P) / pbb
    show("db=25 tl=10", pb=pbb, d=dd, fy=fy, t=dew_point(pbb),
         ts=wet_bulb(dew_point(pbb), pbb * fy / 100, P),
         v_at_tl=volume(K + tl, P, pbb * fy / 100))
    show("i=50 fy=50 record d=8", t=temp_from_enthalpy(50, P, 50),
         tl=dew_point(vapour(8, P)))
    d, fy = mp.mpf(10), mp.mpf(60)
    pq = vapour(d, P)
    t = dew_point(100 * pq / fy)
    show("d=10 fy=60", pq=pq, pb=100 * pq / fy, t=t, i=enthalpy(t, d), ts=wet_bulb(t, pq, P),
         v=volume(t + K, P, pq), tl=dew_point(pq))
    db, fy = mp.mpf(20), mp.mpf(40)
    pbb = vapour(db, P)
    pq = pbb * fy / 100
    t = dew_point(pbb)
    d = moisture(pq, P)
    show("db=20 fy=40", pb=pbb, pq=pq, t=t, d=d, ts=wet_bulb(t, pq, P), i=enthalpy(t, d),
         v=volume(t + K, P, pq), tl=dew_point(vapour(d, P)))
    show("ASHRAE example t=40 ts=20", d=moisture(pb(20) - mp.mpf("0.000667") * P * 20, P))
    for t in (-60, -20, -5, 5, 25, 50, 100, 150):
        print(f"    HW at {t:4} C: {mp.nstr(pb(t), 10)} Pa")
    for t in (-50, -20, -5, 5, 25, 50, 85):
        print(f"    saturated d at {t:4} C: {mp.nstr(moisture(pb(t), P), 10)} g/kg")


if __name__ == "__main__":
    main()
