# SPDX-License-Identifier: GPL-3.0-or-later
"""Tables are those of the tool, as columns."""
import os
import pickle
import shutil
import signal
import subprocess
import sys
import threading
import time
import warnings

import numpy as np
import pytest

import vantrel

REPORTS = {"header": {}, "parameters": {}, "labels": {}, "events": {}, "strides": {},
           "measures": {}, "summary": {}, "visit": {}, "variability": {}, "norms": {}, "check": {},
           "point": {"all_labels": True}, "analog": {"all_labels": True},
           "normalized": {"all_labels": True}}
FLOATS = {"time", "x", "y", "z", "residual", "value", "start", "opposite_foot_off",
          "opposite_foot_strike", "foot_off", "stop"}
INTEGERS = {"index", "number", "stride", "percent", "frame", "sample", "n", "left_n", "right_n"}
OF_DOUBLES = {"header", "summary", "visit", "variability", "norms", "scores"}


def type_of(report, column):
    """what the documentation says of a column's type"""
    if (report, column) == ("parameters", "value"):
        return "any"
    if (report, column) == ("norms", "percent"):
        return np.float64
    if column in INTEGERS:
        return np.int64
    if report in OF_DOUBLES and column in {"value", "mean", "sd", "score", "asymmetry", "left_mean",
                                           "left_sd", "right_mean", "right_sd"}:
        return np.float64
    return np.float32 if column in FLOATS else "text"


def assert_same(columns, rows, report):
    """the columns hold what the rows of json do, in columns of the types that were promised"""
    if rows:
        assert list(columns) == list(rows[0])
    for name, column in columns.items():
        assert isinstance(column, np.ndarray) and column.shape == (len(rows),)
        expected = [row[name] for row in rows]
        kind = type_of(report, name)
        if kind in ("text", "any"):
            assert column.dtype == object
            for value, wanted in zip(column, expected):
                single = isinstance(value, float)
                assert (np.float32(value) if single else value) == (
                    np.float32(wanted) if single else wanted)
                assert kind == "any" or value is None or isinstance(value, str)
            continue
        assert column.dtype == kind
        numbers = [np.nan if value is None else value for value in expected]
        if report == "header":
            column = column.astype(np.float32)
        np.testing.assert_array_equal(column, np.array(numbers, dtype=column.dtype))


@pytest.mark.parametrize("report", REPORTS)
def test_a_table_is_that_of_the_tool(any_trial, tool, report):
    options = ["--all-labels"] if REPORTS[report] else []
    run = tool(*options, report, any_trial)
    complaints = []
    columns = vantrel.table(report, any_trial, errors=complaints, **REPORTS[report])
    assert_same(columns, run.rows, report)
    assert [message for _, message in complaints] == [
        line.split(": ", 2)[2] for line in run.complaints.splitlines()]


@pytest.mark.parametrize("report", [*REPORTS, "scores"])
@pytest.mark.parametrize("jobs", [0, 1, 3])
def test_a_table_over_files_is_that_of_the_tool_whatever_the_jobs(tool, own_walk, walk_file, tmp_path,
                                                                  report, jobs):
    files = [walk_file, str(own_walk)] * 3
    shutil.copy(walk_file, tmp_path / "other.c3d")
    normal = tmp_path / "normal.csv"
    if report == "scores":
        with open(normal, "wb") as file:
            subprocess.run([os.environ["VANTREL_REPORT"], "--format", "csv", "norms", walk_file],
                           stdout=file, check=True)
    options = {"normal": normal} if report == "scores" else REPORTS[report]
    arguments = ["--normal", str(normal)] if report == "scores" else []
    arguments += ["--all-labels"] if options.get("all_labels") else []
    columns = vantrel.table(report, files, jobs=jobs, **options)
    assert_same(columns, tool(*arguments, report, *files).rows, report)


def test_labels_and_parameters_are_chosen(tool, walk_file):
    rows = tool("--label", "ltoe", "--label", "RTOE", "point", walk_file).rows
    assert_same(vantrel.table("point", walk_file, labels=["ltoe", "RTOE"]), rows, "point")
    assert_same(vantrel.table("point", walk_file, labels="LTOE"), rows[:len(rows) // 2], "point")
    rows = tool("--group", "point", "--param", "rate", "parameters", walk_file).rows
    assert_same(vantrel.table("parameters", walk_file, group="point", parameter="rate"), rows,
                "parameters")


@pytest.mark.parametrize("choose", [tuple, iter, np.array, lambda labels: dict.fromkeys(labels)])
def test_labels_are_chosen_by_whatever_holds_them(walk_file, choose):
    columns = vantrel.table("point", walk_file, labels=choose(["LTOE", "RTOE"]))
    assert list(dict.fromkeys(columns["label"])) == ["LTOE", "RTOE"]


@pytest.mark.parametrize("report, options", [
    ("point", {"labels": b"LTOE"}), ("point", {"labels": [b"LTOE"]}), ("point", {"labels": [None]}),
    ("point", {"labels": ["LTOE", 3]}), ("parameters", {"group": 3}),
    ("parameters", {"group": "POINT", "parameter": b"RATE"}),
])
def test_names_that_are_no_text_are_type_errors(walk_file, report, options):
    with pytest.raises(TypeError, match="^a (label|group|parameter) is a str, not "):
        vantrel.table(report, walk_file, **options)


def test_names_that_no_file_can_hold_are_not_found(walk_file):
    for options in ({"labels": "LTOE\udcff"}, {"labels": "\ud800"}):
        with pytest.raises(vantrel.TableError, match="not found"):
            vantrel.table("point", walk_file, **options)
    with pytest.raises(vantrel.TableError, match="not found"):
        vantrel.table("parameters", walk_file, group="\udcff")


def test_files_that_are_none_are_a_type_error():
    for files in (None, 3, [None]):
        with pytest.raises(TypeError):
            vantrel.table("strides", files)


def test_jobs_are_any_whole_number(walk_file):
    for jobs in (2**40, np.int64(2), True):
        assert len(vantrel.table("strides", [walk_file] * 2, jobs=jobs)["file"]) == 12
    assert len(vantrel.table("strides", [], jobs=2**40)["file"]) == 0
    for jobs in (1.5, "2", None):
        with pytest.raises(TypeError, match="integer"):
            vantrel.table("strides", walk_file, jobs=jobs)


def test_columns_have_their_types_without_rows(walk_file):
    empty = vantrel.table("strides", [])
    assert {name: column.dtype for name, column in empty.items()} == {
        name: column.dtype for name, column in vantrel.table("strides", walk_file).items()}
    assert all(len(column) == 0 for column in empty.values())


def test_missing_values_are_none_and_nan(own_walk):
    data = own_walk.read_bytes()
    own_walk.write_bytes(data.replace(b"LTOE", b"XTOE"))
    columns = vantrel.table("summary", own_walk)
    assert np.isnan(columns["left_mean"][columns["measure"] == "stride_length"]).all()
    assert columns["left_n"][0] == 0
    norms = vantrel.table("norms", own_walk)
    measures = norms["label"] == "stride_time"
    assert norms["component"][measures].tolist() == [None] and np.isnan(norms["percent"][measures])


def test_what_fails_is_raised_as_by_an_open(walk_file, own_walk, tmp_path):
    os.truncate(own_walk, 600)
    wrong = tmp_path / "wrong.c3d"
    wrong.write_bytes(bytes(1024))
    for report in ("summary", "visit"):
        for file, error in ((tmp_path / "none.c3d", FileNotFoundError), (tmp_path, IsADirectoryError),
                            (own_walk, vantrel.DataError), (wrong, vantrel.OpenError)):
            with pytest.raises(error) as caught:
                vantrel.table(report, [walk_file, file, walk_file])
            assert caught.value.filename == str(file)


def test_a_label_that_a_file_lacks_is_a_table_error(walk_file):
    with pytest.raises(vantrel.TableError, match="LTOW") as caught:
        vantrel.table("point", walk_file, labels=["LTOE", "LTOW"])
    error = caught.value
    assert error.filename == walk_file and str(error) == f"{walk_file}: {error.message}"
    assert str(pickle.loads(pickle.dumps(error))) == str(error)


def test_no_file_is_lost_silently(walk_file, own_walk, tmp_path):
    os.truncate(own_walk, 20000)
    files = [walk_file, str(tmp_path / "none.c3d"), str(own_walk), walk_file]
    complaints = []
    columns = vantrel.table("point", files, labels="LTOE", errors=complaints)
    assert list(dict.fromkeys(columns["file"])) == [walk_file] and len(columns["file"]) == 920
    assert [complaint.file for complaint in complaints] == files[1:3]
    with pytest.warns(vantrel.TableWarning) as caught:
        again = vantrel.table("point", files, labels="LTOE", errors="warn")
    assert [str(warning.message) for warning in caught] == [
        f"{file}: {message}" for file, message in complaints]
    assert [warning.filename for warning in caught] == [__file__] * 2
    np.testing.assert_array_equal(again["x"], columns["x"])


def test_an_empty_name_is_that_of_a_file_which_is_not_there(walk_file):
    for report in ("strides", "visit"):
        with pytest.raises(FileNotFoundError):
            vantrel.table(report, "")
        complaints = []
        vantrel.table(report, [walk_file, ""], errors=complaints)
        assert [complaint.file for complaint in complaints] == [""]


def test_normal_values_in_a_file_whose_name_is_no_utf8_are_named(walk_file, tmp_path):
    normal = os.path.join(os.fsencode(tmp_path), b"G\xe4nger.csv")
    with pytest.raises(vantrel.TableError, match="G\ufffdnger.csv"):
        vantrel.table("scores", walk_file, normal=normal)


def test_normal_values_that_are_none_are_named(walk_file, tmp_path):
    with pytest.raises(vantrel.TableError, match="none.csv"):
        vantrel.table("scores", walk_file, normal=tmp_path / "none.csv")


def test_the_checkup_takes_any_file_and_finds_fault_in_its_rows(tmp_path):
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        columns = vantrel.table("check", [tmp_path / "none.c3d"])
    assert columns["code"].tolist() == ["cannot-open"]


@pytest.mark.parametrize("wrong", [
    lambda: vantrel.table("tree", []), lambda: vantrel.table("Summary", []),
    lambda: vantrel.table("point", []), lambda: vantrel.table("scores", []),
    lambda: vantrel.table("strides", [], jobs=-1), lambda: vantrel.table("strides", ["a\0b"]),
    lambda: vantrel.table("strides", [], errors="ignore"),
    lambda: vantrel.table("parameters", [], parameter="RATE"),
])
def test_wrong_requests_are_value_errors(wrong):
    with pytest.raises(ValueError):
        wrong()


@pytest.mark.parametrize("name", [b"G\xe4nger \xff.c3d", "Gänger 歩行.c3d".encode()])
def test_names_of_any_bytes(walk_file, tmp_path, name):
    file = os.path.join(os.fsencode(tmp_path), name)
    shutil.copy(walk_file, file)
    for given in (file, os.fsdecode(file)):
        columns = vantrel.table("strides", [given])
        assert set(columns["file"]) == {file.decode("utf-8", "replace")}
    os.truncate(file, 30)
    complaints = []
    vantrel.table("strides", [file], errors=complaints)
    assert complaints[0].file == os.fsdecode(file)


def test_columns_make_a_data_frame(walk_file):
    pandas = pytest.importorskip("pandas")
    frame = pandas.DataFrame(vantrel.table("strides", [walk_file, walk_file]))
    assert frame.shape == (12, 8) and frame["stop"].dtype == np.float32
    assert frame.groupby("side")["number"].max().to_dict() == {"Left": 3, "Right": 3}


def test_threads_make_tables_at_once(walk_file):
    expected = vantrel.table("measures", [walk_file] * 20, jobs=2)
    made = []

    def make():
        made.append(vantrel.table("measures", [walk_file] * 20, jobs=2))

    threads = [threading.Thread(target=make) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert len(made) == 4
    for columns in made:
        np.testing.assert_array_equal(columns["value"], expected["value"])


LONG = """
import sys, vantrel
print("begins", flush=True)
try:
    vantrel.table("variability", [sys.argv[1]] * 1000000, jobs=2)
except KeyboardInterrupt:
    print("interrupted")
"""


def test_an_interruption_ends_a_long_table_soon(walk_file):
    with subprocess.Popen([sys.executable, "-c", LONG, walk_file], stdout=subprocess.PIPE,
                          text=True) as process:
        assert process.stdout.readline() == "begins\n"
        time.sleep(0.5)
        assert process.poll() is None
        process.send_signal(signal.SIGINT)
        began = time.monotonic()
        assert process.communicate(timeout=30)[0] == "interrupted\n"
        assert time.monotonic() - began < 5
