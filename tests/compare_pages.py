#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails where the values of curve pages differ from the tables of the tool.

    compare_pages.py PAGES TOOL FILE.c3d...

PAGES prints the pages of all files as JSON. Every curve is held against the rows of `normalized`,
means and deviations against those curves, marks and means of measures against `strides` and `visit`,
deviations against `variability`, scores against `scores` with the norms of the files themselves, and
labels over time against `point`. Numbers that the tool writes must be the same to the last digit.
"""
import json
import math
import struct
import subprocess
import sys
import tempfile

LABEL = "LTOE"


def run(*arguments):
    result = subprocess.run(arguments, capture_output=True, check=False)
    if result.returncode not in (0, 1):
        sys.exit(f"{arguments}: status {result.returncode}: {result.stderr.decode()}")
    return result.stdout.decode("utf-8")


def single(number):
    return struct.unpack("f", struct.pack("f", number))[0]


class Comparison:
    def __init__(self):
        self.count = 0

    def same(self, what, found, expected):
        self.count += 1
        if found != expected:
            sys.exit(f"{what}: {found!r} on the page, {expected!r} expected")

    def near(self, what, found, expected):
        self.count += 1
        if found is None or not math.isclose(found, expected, rel_tol=1e-9, abs_tol=1e-6):
            sys.exit(f"{what}: {found!r} on the page, {expected!r} expected")


def tables(tool, report, files, *options):
    return json.loads(run(tool, "--format", "json", *options, report, *files))


def normalized(tool, files):
    """The values by file, side, stride and label, each 51 rows."""
    curves = {}
    for row in tables(tool, "normalized", files, "--all-labels"):
        key = (row["file"], row["side"], row["stride"], row["label"].upper())
        curves.setdefault(key, []).append(row)
    return curves


def factor_of(panel):
    return 0.001 if panel["unit"].startswith("N·m") else 1.0


def check_curves(compare, panel, curves):
    """Every curve of the panel, and that none is left out; the curves' own values by side."""
    sides = {"Left": [], "Right": []}
    expected = []
    for side in sides:
        label = (side[0] + panel["label"]).upper()
        expected += [key for key in curves if key[3] == label and key[1] == side]
    drawn = [(c["file"], c["side"], c["stride"], (c["side"][0] + panel["label"]).upper())
             for c in panel["curves"]]
    compare.same(f"{panel['title']}: curves", drawn, expected)
    for key, curve in zip(drawn, panel["curves"]):
        raw = [single(row[panel["component"]]) for row in curves[key]]
        shown = [single(value * factor_of(panel)) for value in raw]
        compare.same(f"{panel['title']}: {key}", list(map(single, curve["values"])), shown)
        sides[key[1]].append(raw)
    return sides


def check_means(compare, panel, sides):
    for side, raw in sides.items():
        if not raw:
            continue
        mean = next(entry for entry in panel["means"] if entry["side"] == side)
        compare.same(f"{panel['title']}: n", mean["n"], len(raw))
        for i, values in enumerate(zip(*raw)):
            centre = sum(values) / len(values)
            compare.near(panel["title"], mean["mean"][i], centre * factor_of(panel))
            if len(values) == 1:
                compare.same(panel["title"], mean["sd"][i], None)
                continue
            squares = sum((value - centre) ** 2 for value in values)
            spread = math.sqrt(squares / (len(values) - 1))
            compare.near(panel["title"], mean["sd"][i], spread * factor_of(panel))


def share(row, event):
    """The time of an event as a part of its stride; times in tables are 32-bit numbers."""
    start, time, stop = (single(row[name]) for name in ("start", event, "stop"))
    return (time - start) / (stop - start)


def check_marks(compare, panel, strides):
    for side in {mark["side"] for mark in panel["marks"]}:
        own = [row for row in strides if row["side"] == side]
        for name, event in (("foot_off", "foot_off"), ("opposite_foot_off", "opposite_foot_off"),
                            ("opposite_foot_strike", "opposite_foot_strike")):
            shares = [share(row, event) for row in own]
            found = [mark["percent"] for mark in panel["marks"]
                     if mark["side"] == side and mark["kind"] == name]
            compare.same(f"{panel['title']}: {name}", len(found), 1)
            compare.near(f"{panel['title']}: {name}", found[0], 100 * sum(shares) / len(shares))


def check_curve_page(compare, page, curves, strides):
    for panel in page["panels"]:
        sides = check_curves(compare, panel, curves)
        check_means(compare, panel, sides)
        check_marks(compare, panel, strides)


def check_deviations(compare, page, rows):
    for panel in page["panels"]:
        expected = [{"side": row["side"], "sd": row["sd"]} for row in rows
                    if row["component"] == panel["component"]
                    and row["label"].upper() == (row["side"][0] + panel["label"]).upper()]
        compare.same(f"{panel['title']}: deviations", panel.get("deviations", []), expected)


def check_measures(compare, page, rows):
    compare.same("measures", len(page["panels"]), len(rows))
    for panel, row in zip(page["panels"], rows):
        compare.same(row["measure"], {name: panel[name] for name in row}, row)


def check_label(compare, page, tool, files):
    rows = tables(tool, "point", [page["file"]], "--label", LABEL)
    compare.same("label over time", page["time"], [row["time"] for row in rows])
    for part in "xyz":
        expected = [row[part] if row["residual"] >= 0 else None for row in rows]
        compare.same(f"{LABEL} {part}", page[part], expected)
    events = [{name: row[name] for name in ("side", "type", "time")}
              for row in tables(tool, "events", [page["file"]])]
    compare.same("events", page["events"], events)
    compare.same("file", page["file"] in files, True)


def main():
    printer, tool, files = sys.argv[1], sys.argv[2], sys.argv[3:]
    compare = Comparison()
    with tempfile.NamedTemporaryFile(suffix=".csv") as norms:
        norms.write(run(tool, "--format", "csv", "norms", *files).encode())
        norms.flush()
        drawn = json.loads(run(printer, "--label", LABEL, "--normal", norms.name, *files))
        scores = tables(tool, "scores", files, "--normal", norms.name)
    compare.same("files", drawn["files"], files)
    pages = {page["name"]: page for page in drawn["pages"]}
    curves = normalized(tool, files)
    strides = tables(tool, "strides", files)
    for name in ("kinematics", "kinetics", "variability"):
        check_curve_page(compare, pages[name], curves, strides)
    check_deviations(compare, pages["variability"], tables(tool, "variability", files))
    check_measures(compare, pages["measures"], tables(tool, "visit", files))
    compare.same("scores", pages["scores"]["panels"], scores)
    for page in drawn["pages"]:
        if page["name"] == "label":
            check_label(compare, page, tool, files)
    if compare.count < 1000:
        sys.exit(f"only {compare.count} values were compared")
    print(f"{compare.count} values agree")


main()
