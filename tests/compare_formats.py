#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails where a table of the tool differs between its two formats.

    compare_formats.py TOOL FILE.c3d...

Every report that has a table is asked for as csv and as json, of each file and of all files at once,
and read back by the language's own readers: names, texts, numbers to the last digit and missing
values must agree.
"""
import csv
import io
import json
import re
import subprocess
import sys


def run(tool, arguments):
    result = subprocess.run([tool, *arguments], capture_output=True, check=False)
    if result.returncode not in (0, 1):
        sys.exit(f"{arguments}: status {result.returncode}: {result.stderr.decode()}")
    return result.stdout.decode("utf-8")


def tables(tool):
    """the names of the reports that have a table, as the tool names them"""
    refusal = subprocess.run([tool, "--format", "csv", "tree", "x"], capture_output=True, check=False)
    names = re.search(r"there are tables of: (.*)", refusal.stderr.decode()).group(1)
    return names.split(", ")


def field(value):
    """what a csv field says of a value of the json"""
    if value is None:
        return ""
    return value if isinstance(value, str) else float(value)


def same(text, value):
    return text == value if isinstance(value, str) else float(text) == value


def compare(tool, report, options, files):
    arguments = [*options, report, *files]
    rows = list(csv.reader(io.StringIO(run(tool, ["--format", "csv", *arguments]), newline="")))
    objects = json.loads(run(tool, ["--format", "json", *arguments]))
    if len(rows) - 1 != len(objects):
        sys.exit(f"{arguments}: {len(rows) - 1} rows of csv, {len(objects)} of json")
    for row, entry in zip(rows[1:], objects):
        if list(entry) != rows[0] or len(row) != len(rows[0]):
            sys.exit(f"{arguments}: the columns differ: {row} {entry}")
        for text, value in zip(row, entry.values()):
            if not same(text, field(value)):
                sys.exit(f"{arguments}: {text!r} as csv, {value!r} as json")
    return len(objects)


def options_of(report):
    if report in ("point", "analog", "normalized"):
        return ["--all-labels"]
    return []


def main():
    tool, files = sys.argv[1], sys.argv[2:]
    compared = 0
    for report in tables(tool):
        if report == "scores":
            continue  # it needs a file of normal values
        for group in [[name] for name in files] + [files]:
            compared += compare(tool, report, options_of(report), group)
    if compared == 0:
        sys.exit("no row was compared")
    print(f"{compared} rows agree")


main()
