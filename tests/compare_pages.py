#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails where the values of curve pages differ from the tables of the tool.

    compare_pages.py PAGES TOOL [--gaps] FILE.c3d...

PAGES prints the pages of all files as JSON. Every curve is held against the rows of `normalized`, its
missing instants against the frames of `point`, means and deviations against those curves, marks and
means of measures against `strides` and `visit`, deviations against `variability`, scores against
`scores` with the norms of the files themselves, and labels over time against `point`. Numbers that
the tool writes must be the same to the last digit. With --gaps it also fails where nothing is missing.
"""
import json
import math
import struct
import subprocess
import sys
import tempfile

LABEL = "LTOE"
# Of a stride, between its first and its closing strike.
EVENTS = ("opposite_foot_off", "opposite_foot_strike", "foot_off")


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
        self.missing = 0  # instants
        self.left_out = 0  # curves that enter no mean

    def same(self, what, found, expected):
        self.count += 1
        if found != expected:
            sys.exit(f"{what}: {found!r} on the page, {expected!r} expected")

    def near(self, what, found, expected):
        self.count += 1
        if found is None and expected is None:
            return
        if None in (found, expected) or not math.isclose(found, expected, rel_tol=1e-9, abs_tol=1e-6):
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


class Trial:
    """The frames of one file, in which its points are seen or not, and its strides."""

    def __init__(self, tool, file):
        self.frames = {}
        for row in tables(tool, "point", [file], "--all-labels"):
            self.frames.setdefault(row["label"].upper(), []).append(row)
        times = [single(row["time"]) for row in next(iter(self.frames.values()))]
        self.first, self.last = times[0], times[-1]
        rates = [row["value"] for row in tables(tool, "header", [file])
                 if row["field"] == "PointFrameRate"]
        self.rate = float(rates[0])
        times = [row["value"] for row in tables(tool, "parameters", [file], "--group", "EVENT")
                 if row["parameter"] == "TIMES"]
        half = 0.5 / self.rate
        self.outside = [time for time in times[1::2]
                        if not self.first - half <= time <= self.last + half]

    def place(self, time):
        """In frames from the first one, within the trial."""
        return (min(max(single(time), self.first), self.last) - self.first) * self.rate

    @staticmethod
    def has_numbers(row):
        return all(row[part] is not None for part in "xyz")

    def is_seen(self, label, frame):
        row = self.frames[label][frame]
        return row["residual"] >= 0 and self.has_numbers(row)

    def is_missing(self, label, time):
        """Whether an instant falls on a frame that is not seen, or beside one."""
        if not all(map(self.has_numbers, self.frames[label])):
            return True
        place = self.place(time)
        around = {round(place)}
        if abs(place - round(place)) > 0.001:
            around = {math.floor(place), math.ceil(place)}
        return not all(self.is_seen(label, frame) for frame in around)

    def is_complete(self, stride):
        """No event of it stands at an end of the trial to which one was moved from outside."""
        ends = {self.first if time < self.first else self.last for time in self.outside}
        return not any(abs(single(stride[event]) - end) < 1e-6 for end in ends
                       for event in ("start", *EVENTS, "stop"))

    def is_whole(self, label, stride):
        """Seen from the frame nearest to its first strike to that nearest to its closing one."""
        first, last = (math.floor(self.place(stride[end]) + 0.5) for end in ("start", "stop"))
        return all(self.is_seen(label, frame) for frame in range(first, last + 1))


class Visit:
    """What the tables say of the strides of all files."""

    def __init__(self, tool, files):
        self.trials = {file: Trial(tool, file) for file in files}
        self.curves = normalized(tool, files)
        self.strides = {(row["file"], row["side"], row["number"]): row
                        for row in tables(tool, "strides", files)}

    def complete(self, side):
        return [row for (file, own, _), row in self.strides.items()
                if own == side and self.trials[file].is_complete(row)]

    def enters_means(self, file, side, number, label):
        trial, stride = self.trials[file], self.strides[file, side, number]
        return trial.is_complete(stride) and trial.is_whole(label, stride)


def factor_of(panel):
    return 0.001 if panel["unit"].startswith("N·m") else 1.0


def shown(value, factor):
    return None if value is None else single(single(value) * factor)


def check_curves(compare, panel, visit):
    """Every curve of the panel, and that none is left out; those that enter means by side."""
    sides = {"Left": [], "Right": []}
    expected = []
    for side in sides:
        label = (side[0] + panel["label"]).upper()
        expected += [key for key in visit.curves if key[3] == label and key[1] == side]
    drawn = [(c["file"], c["side"], c["stride"], (c["side"][0] + panel["label"]).upper())
             for c in panel["curves"]]
    compare.same(f"{panel['title']}: curves", drawn, expected)
    for key, curve in zip(drawn, panel["curves"]):
        file, side, _, label = key
        rows = visit.curves[key]
        missing = [visit.trials[file].is_missing(label, row["time"]) for row in rows]
        compare.missing += sum(missing)
        values = [None if gone else shown(row[panel["component"]], factor_of(panel))
                  for gone, row in zip(missing, rows)]
        compare.same(f"{panel['title']}: {key}", [shown(v, 1) for v in curve["values"]], values)
        if visit.enters_means(*key):
            sides[side].append([row[panel["component"]] for row in rows])
        else:
            compare.left_out += 1
    return sides


def mean_and_deviation(values):
    """None where a value is missing, and for the deviation of one."""
    if None in values:
        return None, None
    values = list(map(single, values))
    centre = sum(values) / len(values)
    if len(values) == 1:
        return centre, None
    squares = sum((value - centre) ** 2 for value in values)
    return centre, math.sqrt(squares / (len(values) - 1))


def check_means(compare, panel, sides):
    sides = {side: raw for side, raw in sides.items() if raw}
    compare.same(f"{panel['title']}: means", [m["side"] for m in panel["means"]], list(sides))
    for mean, raw in zip(panel["means"], sides.values()):
        compare.same(f"{panel['title']}: n", mean["n"], len(raw))
        for i, values in enumerate(zip(*raw, strict=True)):
            for name, number in zip(("mean", "sd"), mean_and_deviation(values)):
                expected = None if number is None else number * factor_of(panel)
                compare.near(f"{panel['title']}: {name}", mean[name][i], expected)


def share(row, event):
    """The time of an event as a part of its stride; times in tables are 32-bit numbers."""
    start, time, stop = (single(row[name]) for name in ("start", event, "stop"))
    return (time - start) / (stop - start)


def check_marks(compare, panel, visit):
    expected = []
    for side in ("Left", "Right"):
        own = visit.complete(side)
        if own and any(curve["side"] == side for curve in panel["curves"]):
            expected += [(side, event, own) for event in ("foot_off", *EVENTS[:2])]
    compare.same(f"{panel['title']}: marks", [(m["side"], m["kind"]) for m in panel["marks"]],
                 [(side, event) for side, event, _ in expected])
    for mark, (_, event, own) in zip(panel["marks"], expected):
        shares = [share(row, event) for row in own]
        compare.near(f"{panel['title']}: {event}", mark["percent"], 100 * sum(shares) / len(shares))


def check_curve_page(compare, page, visit):
    for panel in page["panels"]:
        sides = check_curves(compare, panel, visit)
        check_means(compare, panel, sides)
        check_marks(compare, panel, visit)


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
    printer, tool, *files = sys.argv[1:]
    has_gaps = files[0] == "--gaps"
    files = files[has_gaps:]
    compare = Comparison()
    with tempfile.NamedTemporaryFile(suffix=".csv") as norms:
        norms.write(run(tool, "--format", "csv", "norms", *files).encode())
        norms.flush()
        drawn = json.loads(run(printer, "--label", LABEL, "--normal", norms.name, *files))
        scores = tables(tool, "scores", files, "--normal", norms.name)
    compare.same("files", drawn["files"], files)
    pages = {page["name"]: page for page in drawn["pages"]}
    visit = Visit(tool, files)
    for name in ("kinematics", "kinetics", "variability"):
        check_curve_page(compare, pages[name], visit)
    check_deviations(compare, pages["variability"], tables(tool, "variability", files))
    check_measures(compare, pages["measures"], tables(tool, "visit", files))
    compare.same("scores", pages["scores"]["panels"], scores)
    for page in drawn["pages"]:
        if page["name"] == "label":
            check_label(compare, page, tool, files)
    if compare.count < 1000:
        sys.exit(f"only {compare.count} values were compared")
    if has_gaps and not (compare.missing and compare.left_out):
        sys.exit("nothing is missing in these files")
    print(f"{compare.count} values agree, {compare.missing} instants are missing, "
          f"{compare.left_out} curves enter no mean")


main()
