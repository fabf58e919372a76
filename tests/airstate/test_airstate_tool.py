#!/usr/bin/python3
"""The airstate tool run as a user runs it: tables, JSON that reads back exactly, alerts,
failing states and command-line errors. The tool's path comes from the environment (AIRSTATE)."""
import json
import math
import os
import subprocess
import unittest

TOOL = os.environ.get("AIRSTATE", "airstate")
FIELDS = ["B", "pq", "pb", "t", "ts", "tl", "d", "fy", "i", "v", "db"]
OUT_OF_RANGE = "求得温度范围不对."


def run(*args):
    return subprocess.run([TOOL, *args], capture_output=True, text=True, encoding="utf-8",
                          timeout=30)


def strict_json(text):
    """Parses JSON and refuses the non-standard NaN and Infinity tokens."""
    def refuse(token):
        raise ValueError("non-standard JSON token " + token)
    return json.loads(text, parse_constant=refuse)


def solve(*args, expect_exit=0):
    result = run(*args, "--json")
    assert result.returncode == expect_exit, (args, result.returncode, result.stderr)
    return strict_json(result.stdout)


class JsonOutput(unittest.TestCase):
    def test_keys_status_and_alerts(self):
        state = solve("--t", "20", "--fy", "50")
        self.assertEqual(set(state), set(FIELDS) | {"solver", "status", "alerts"})
        self.assertEqual(state["solver"], "StateFromTempHumidity")
        self.assertEqual(state["status"], 5100)
        self.assertEqual(state["alerts"], [])
        self.assertEqual(state["B"], 101.325)  # the default pressure

    def test_matches_worked_state(self):
        # t = 20 °C, fy = 50 %, B = 101.325 kPa (tests/airstate/worked_values.py).
        state = solve("--t", "20", "--fy", "50")
        self.assertAlmostEqual(state["pb"], 2364.89824041051, delta=1e-9)
        self.assertAlmostEqual(state["d"], 7.3443640720766116, delta=1e-12)
        self.assertAlmostEqual(state["i"], 38.831182778043948, delta=1e-12)
        self.assertAlmostEqual(state["ts"], 13.836179019878047, delta=1e-8)
        self.assertAlmostEqual(state["tl"], 9.2784142246707392, delta=1e-8)

    def test_numbers_read_back_to_the_exact_doubles(self):
        # The closed-form relations, redone in Python's doubles with the printed inputs, give
        # the printed outputs bit for bit only if every number was printed exactly.
        state = solve("--B", "93.7", "--t", "27.3", "--d", "11.25")
        P, t, d = 1000 * state["B"], state["t"], state["d"]
        self.assertEqual(state["pq"], P * d / (622 + d))
        self.assertEqual(state["i"], 1.01 * t + 0.001 * d * (1.84 * t + 2500))
        self.assertEqual(state["fy"], 100 * state["pq"] / state["pb"])
        T = t + 273.15
        self.assertEqual(state["v"], 1 / (0.003484 * P / T - 0.00134 * state["pq"] / T))
        result = run("--B", "93.7", "--t", "27.3", "--d", "11.25", "--json")
        for token in result.stdout.replace(",", " ").replace("}", " ").split():
            if token[0].isdigit() or token[0] == "-":
                self.assertEqual(float(token), float("%.17g" % float(token)))

    def test_round_trip_through_other_pairs(self):
        ref = solve("--t", "31.5", "--fy", "42")
        pairs = {"i+d": ("--i", ref["i"], "--d", ref["d"]),
                 "t+ts": ("--t", ref["t"], "--ts", ref["ts"]),
                 "t+tl": ("--t", ref["t"], "--tl", ref["tl"]),
                 "d+fy": ("--d", ref["d"], "--fy", ref["fy"])}
        for name, (o1, v1, o2, v2) in pairs.items():
            with self.subTest(name):
                state = solve(o1, repr(v1), o2, repr(v2))
                self.assertAlmostEqual(state["t"], 31.5, delta=1e-7)
                self.assertAlmostEqual(state["fy"], 42, delta=1e-7)

    def test_out_of_range_alerts_in_order(self):
        state = solve("--d", "0.0001", "--fy", "50")
        self.assertEqual(state["alerts"], [OUT_OF_RANGE, OUT_OF_RANGE])
        self.assertEqual(state["t"], -1000)
        self.assertEqual(state["tl"], -1000)

    def test_infinite_values_are_null(self):
        state = solve("--d", "10", "--fy", "0", expect_exit=1)
        self.assertIsNone(state["pb"])
        self.assertEqual(state["status"], -5001)
        self.assertEqual(state["alerts"], [OUT_OF_RANGE])

    def test_enthalpy_humidity_keeps_the_given_moisture(self):
        state = solve("--i", "50", "--fy", "50", "--d", "8")
        self.assertEqual(state["solver"], "StateFromEnthalpyHumidity")
        self.assertEqual((state["d"], state["i"]), (8, 50))
        self.assertAlmostEqual(state["t"], 24.726691239477684, delta=1e-8)
        self.assertAlmostEqual(state["tl"], 10.537494371195536, delta=1e-8)

    def test_saturation_from_enthalpy_writes_only_the_wet_bulb(self):
        state = solve("--B", "90", "--i", "100")
        self.assertAlmostEqual(state["ts"], 28.235265288441298, delta=1e-8)
        self.assertEqual([state[k] for k in ("pq", "pb", "t", "tl", "d", "fy", "v", "db")], [None] * 8)
        self.assertEqual(state["i"], 100)

    def test_fields_the_solver_does_not_write_are_null(self):
        self.assertIsNone(solve("--t", "20", "--fy", "50")["db"])
        self.assertEqual(solve("--db", "10", "--fy", "50")["db"], 10)
        state = solve("--i", "50", "--fy", "50")
        self.assertIsNone(state["d"])
        self.assertEqual(state["i"], 50)
        self.assertEqual(solve("--i", "50", "--fy", "50", "--d", "8")["d"], 8)  # given: shown
        table = run("--i", "50").stdout
        self.assertIn("not computed by this solver", [l for l in table.splitlines() if l.startswith("t ")][0])

    def test_numbers_are_in_their_shortest_exact_form(self):
        result = run("--t", "20", "--fy", "50", "--json")
        self.assertIn('"t": 20,', result.stdout)
        self.assertIn('"B": 101.325,', result.stdout)
        for token in result.stdout.replace(",", " ").replace("}", " ").split():
            if token[0].isdigit() or token[0] == "-":
                # Python's repr is the shortest text that reads back to the same double.
                self.assertEqual(token, repr(float(token)).removesuffix(".0"))

    def test_an_impossible_state_says_why_in_one_line(self):
        cases = {("--t", "20", "--fy", "120"): "relative humidity 120 % is above 100 %",
                 ("--B", "2", "--t", "30", "--d", "0"): "saturation pressure",
                 ("--t", "20", "--d", "-1"): "moisture content -1 g/kg is below 0"}
        for args, reason in cases.items():
            with self.subTest(args):
                result = run(*args)
                self.assertEqual(result.returncode, 1)
                lines = result.stderr.splitlines()
                self.assertEqual(len(lines), 1, result.stderr)
                self.assertTrue(lines[0].startswith("airstate: impossible state: " + reason), lines[0])
                self.assertIn("status  RTERROR", result.stdout)  # the values are still printed


class Variants(unittest.TestCase):
    def test_supply_air_lowers_the_temperature(self):
        standard = solve("--i", "60", "--d", "12")
        supply = solve("--i", "60", "--d", "12", "--variant", "supply")
        self.assertEqual(supply["solver"], "StateFromEnthalpyMoistureSupplyAir")
        step = 0.001 * 12 / (0.001 * 12 * 1.84 + 1.01)
        self.assertAlmostEqual(standard["t"] - supply["t"], step, delta=1e-12)

    def test_cooler_raises_the_enthalpy(self):
        standard = solve("--t", "25", "--ts", "18")
        cooler = solve("--t", "25", "--ts", "18", "--variant", "cooler")
        self.assertEqual(cooler["solver"], "StateFromTempWetBulbSurfaceCooler")
        self.assertAlmostEqual(cooler["i"] - standard["i"], 0.001 * standard["d"], delta=1e-12)
        self.assertEqual(cooler["v"], standard["v"])


class TableOutput(unittest.TestCase):
    def test_lists_every_field_with_units_and_status(self):
        result = run("--t", "20", "--fy", "50")
        self.assertEqual(result.returncode, 0)
        lines = result.stdout.splitlines()
        names = [line.split()[0] for line in lines[1:12]]
        self.assertEqual(names, FIELDS)
        for unit in ("kPa", "Pa", "°C", "g/kg", "%", "kJ/kg", "m³/kg"):
            self.assertIn(unit, result.stdout)
        self.assertIn("RTNORM (5100)", result.stdout)
        pb_line = next(line for line in lines if line.startswith("pb "))
        self.assertAlmostEqual(float(pb_line.split()[1]), 2364.898240, delta=1e-6)

    def test_impossible_state_prints_values_and_fails(self):
        result = run("--t", "20", "--d", "30")
        self.assertEqual(result.returncode, 1)
        self.assertIn("RTERROR (-5001)", result.stdout)
        fy_line = next(line for line in result.stdout.splitlines() if line.startswith("fy "))
        self.assertAlmostEqual(float(fy_line.split()[1]), 197.141390, delta=1e-6)

    def test_alert_shown(self):
        result = run("--t", "-50", "--fy", "10")
        self.assertEqual(result.returncode, 0)
        self.assertEqual(result.stdout.count(OUT_OF_RANGE), 1)

    def test_help(self):
        result = run("--help")
        self.assertEqual(result.returncode, 0)
        for word in ("--B", "--t", "--ts", "--tl", "--d", "--fy", "--i", "--db", "--variant",
                     "--json", "null", "101.325", "db+tl"):
            self.assertIn(word, result.stdout)


class CommandLineErrors(unittest.TestCase):
    def expect_usage_error(self, args, problem):
        result = run(*args)
        self.assertEqual(result.returncode, 2, args)
        self.assertEqual(result.stdout, "")
        lines = result.stderr.splitlines()
        self.assertEqual(len(lines), 1, result.stderr)
        self.assertIn(problem, lines[0])
        self.assertIn("i+d, t+fy, t+ts, t+d, i, t+tl, d+fy, db+fy, db+tl, i+fy", lines[0])

    def test_pair_without_solver(self):
        self.expect_usage_error(["--t", "20", "--i", "30"], "no solver for the fields t+i")
        self.expect_usage_error(["--t", "20"], "no solver for the fields t")
        self.expect_usage_error(["--t", "1", "--fy", "2", "--d", "3"], "t+d+fy")
        self.expect_usage_error(["--json"], "no known field given")

    def test_values_that_are_not_numbers(self):
        self.expect_usage_error(["--t", "abc", "--fy", "50"], "--t value 'abc' is not a number")
        self.expect_usage_error(["--t", "20", "--fy", "50%"], "--fy value '50%' is not a number")
        self.expect_usage_error(["--t", "nan", "--fy", "50"], "is not a number")
        self.expect_usage_error(["--B", "", "--t", "1", "--fy", "2"], "is not a number")

    def test_missing_value(self):
        self.expect_usage_error(["--fy", "50", "--t"], "--t needs a value")

    def test_unknown_option_and_stray_argument(self):
        self.expect_usage_error(["--x", "1"], "unknown option '--x'")
        self.expect_usage_error(["20", "--t", "1"], "unexpected argument '20'")

    def test_variant_must_fit_the_pair(self):
        self.expect_usage_error(["--t", "20", "--fy", "50", "--variant", "supply"],
                                "--variant supply applies only to i+d")
        self.expect_usage_error(["--i", "50", "--d", "10", "--variant", "cooler"],
                                "--variant cooler applies only to t+ts")
        self.expect_usage_error(["--i", "50", "--d", "10", "--variant", "heater"],
                                "--variant must be supply or cooler")

    def test_repeated_field_and_bad_pressure(self):
        self.expect_usage_error(["--t", "20", "--t", "21", "--fy", "5"], "--t given twice")
        self.expect_usage_error(["--B", "0", "--t", "20", "--fy", "5"], "--B must be a positive pressure")

    def test_version(self):
        result = run("--version")
        self.assertEqual(result.returncode, 0)
        self.assertRegex(result.stdout, r"^airstate \d+\.\d+\.\d+\n$")

    def test_equals_form_is_accepted(self):
        state = solve("--t=20", "--fy=50", "--B=101.325")
        self.assertEqual(state["status"], 5100)


if __name__ == "__main__":
    unittest.main(verbosity=2)
