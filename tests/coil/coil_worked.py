"""The coil check worked independently of the module, for the console tests: the device
database read with Python's own tokenizer, the contact coefficient by interpolation, and the
outlet dry bulb found by bisection on the balance "efficiency the coil gives = efficiency the
outlet stands for", with the humid-air relations written out in plain floating point."""
import math
from pathlib import Path


def ps_water(T):
    """Saturation pressure over water, Pa, at T kelvin (Hyland-Wexler)."""
    return math.exp(-5800.2206 / T + 1.3914993 - 0.04860239 * T + 4.1764768e-5 * T**2
                    - 1.4452093e-8 * T**3 + 6.5459673 * math.log(T))


def read_database(path):
    """{(name, rows): record} of a database file."""
    tokens = Path(path).read_text(encoding="utf-8").split()
    records, k = {}, 0
    while k < len(tokens):
        tok = tokens[k]
        if tok.startswith("{") and tok.endswith("}") and "*" in tok:
            name, rows = tok[1:-1].rsplit("*", 1)
            vals = {}
            for t in tokens[k + 1:k + 10]:
                key, value = t.split("=", 1)
                vals[key] = value
            lo, hi = vals["L"].split("-")
            pairs, j = [], k + 10
            while j + 1 < len(tokens) and "=" in tokens[j] and "{" not in tokens[j]:
                pairs.append((float(tokens[j].split("=", 1)[1]), float(tokens[j + 1].split("=", 1)[1])))
                j += 2
            records[(name, int(rows))] = dict(
                A=float(vals["A"]), B=float(vals["B"]), m=float(vals["m"]), p=float(vals["p"]),
                n=float(vals["n"]), L1=float(lo), L2=float(hi), Fd=float(vals["Fd"]),
                Fy=float(vals["Fy"]), fw=float(vals["fw"]), E2=pairs)
            k = j
        else:
            k += 1
    return records


def contact(pairs, Vy):
    pairs = sorted(pairs)
    if len(pairs) == 1:
        return pairs[0][1]
    k = 0 if Vy <= pairs[1][0] else len(pairs) - 2
    for j in range(len(pairs) - 1):
        if pairs[j][0] <= Vy <= pairs[j + 1][0]:
            k = j
            break
    (v0, e0), (v1, e1) = pairs[k], pairs[k + 1]
    return e0 + (e1 - e0) * (Vy - v0) / (v1 - v0)


def state(B, t, ts):
    """The state at dry bulb t and wet bulb ts, latent heat 2501 in the enthalpy."""
    P = 1000 * B
    pq = ps_water(ts + 273.15) - 0.000667 * P * (t - ts)
    d = 622 * pq / (P - pq)
    lo, hi = 200.0, 400.0  # dew point: the saturation pressure equals pq
    for _ in range(200):
        mid = (lo + hi) / 2
        lo, hi = (mid, hi) if ps_water(mid) < pq else (lo, mid)
    return dict(t=t, ts=ts, d=d, fy=100 * pq / ps_water(t + 273.15),
                i=1.01 * t + 0.001 * d * (1.84 * t + 2501), tl=(lo + hi) / 2 - 273.15)


def check(record, rows, units, series, B, t1, ts1, G, tw1, W):
    share = 1 if series else units
    Vy = G / 3600 / 1.2 / record["Fy"] / share
    w = W / 3600 / 1000 / record["fw"] / share
    E2 = contact(record["E2"], Vy)
    i1 = state(B, t1, ts1)["i"]

    def gap(t2):
        i2 = state(B, t2, t2 - (1 - E2) * (t1 - ts1))["i"]
        air = (i1 - i2) / (t1 - t2) * G / 3600  # kW/K: wet-coil factor times 1.01 times the flow
        xi = air / (1.01 * G / 3600)
        a = record["A"] * Vy ** record["m"] * xi ** record["p"]
        b = record["B"] * w ** record["n"]
        ntu = units * rows * record["Fd"] * a * b / (a + b) / 1000 / air
        ratio = air / (W / 3600 * 4.186)
        x = math.exp(-ntu * (1 - ratio))
        return (1 - x) / (1 - ratio * x) - (t1 - t2) / (t1 - tw1)

    lo, hi = tw1 + 1e-6, t1 - 1e-6
    sign = gap(lo) > 0
    for _ in range(200):
        mid = (lo + hi) / 2
        lo, hi = (mid, hi) if (gap(mid) > 0) == sign else (lo, mid)
    t2 = (lo + hi) / 2
    out = state(B, t2, t2 - (1 - E2) * (t1 - ts1))
    Q = (i1 - out["i"]) * G / 3600
    return dict(out, Vy=Vy, E2=E2, Q=Q, tw2=tw1 + Q / (W / 3600 * 4.186))
