# SPDX-License-Identifier: GPL-3.0-or-later
"""Every field of a trial is what the tool says of it."""
import numpy as np
import pytest

import vantrel


@pytest.fixture(name="opened")
def fixture_opened(any_trial, tool):
    """the trial and its file; a file that the tool refuses is refused with the same words"""
    refusal = tool("header", any_trial)
    if refusal.rows:
        with vantrel.open(any_trial) as trial:
            yield trial, any_trial
        return
    with pytest.raises(vantrel.Error) as caught:
        vantrel.open(any_trial)
    assert caught.value.message in refusal.complaints
    yield None, any_trial


def by(rows, *names):
    """the rows in groups of the same values of those columns, in the order of their first rows"""
    groups = {}
    for row in rows:
        groups.setdefault(tuple(row[name] for name in names), []).append(row)
    return groups


def singles(rows, *names):
    """the values of those columns as floats; what the tool has no number for is NaN"""
    values = [[np.nan if row[name] is None else row[name] for name in names] for row in rows]
    return np.array(values, dtype=np.float32).reshape(len(rows), len(names))


def chunks(rows, size):
    return [rows[start:start + size] for start in range(0, len(rows), size)]


def finite_or_nan(array):
    """as tables have it: a number that is not finite is missing"""
    return np.where(np.isfinite(array), array, np.nan)


def assert_same_or_fails(run, blocks, read):
    """read(i) is what the i-th of the tool's whole blocks says, and fails where the tool failed"""
    for place, (expected, check) in enumerate(blocks):
        if expected:
            check(read(place))
            continue
        assert run.status == 1
        with pytest.raises(vantrel.DataError) as caught:
            read(place)
        assert caught.value.message in run.complaints
        return


def test_header(opened, tool):
    trial, file = opened
    if trial is None:
        return
    header = {row["field"]: row["value"] for row in tool("header", file).rows}
    assert np.float32(trial.rate) == np.float32(header["PointFrameRate"])
    assert trial.frames == header["PointFrameCount"]
    assert trial.first_frame == header["FirstPointFrameNumber"]
    if trial.analog_labels:
        assert trial.samples_per_frame == header["AnalogSamplesPerChannel"]
        assert trial.analog_rate == pytest.approx(trial.rate * trial.samples_per_frame)


def test_labels(opened, tool):
    trial, file = opened
    if trial is None:
        return
    rows = by(tool("labels", file).rows, "kind")
    for kind, labels, arrays in (("point", trial.labels, trial.points),
                                 ("analog", trial.analog_labels, trial.analogs)):
        expected = rows.get((kind,), [])
        assert labels == [row["label"] for row in expected]
        first = {}
        for row in expected:
            first.setdefault(row["label"].strip().upper(), row)
        for label in arrays:
            row = first[label.strip().upper()]
            assert arrays.unit(label) == (row["unit"] or "")
            assert arrays.description(label) == row["description"]


def test_points_and_residuals(opened, tool):
    trial, file = opened
    if trial is None:
        return
    run = tool("--all-labels", "point", file)
    blocks = chunks(run.rows, trial.frames)
    blocks += [[]] * (len(trial.labels) - len(blocks))

    def check_of(rows):
        def check(arrays):
            points, residuals, times = arrays
            assert points.dtype == residuals.dtype == times.dtype == np.float32
            expected = singles(rows, "x", "y", "z", "residual")
            unseen = np.isnan(expected[:, :3]).any(axis=1) | (expected[:, 3] == -1)
            expected[unseen, :3] = np.nan
            np.testing.assert_array_equal(finite_or_nan(points), expected[:, :3])
            np.testing.assert_array_equal(residuals, expected[:, 3])
            np.testing.assert_array_equal(times, singles(rows, "time")[:, 0])
            frames = trial.first_frame + np.arange(trial.frames)
            assert [row["frame"] for row in rows] == frames.tolist()
        return check

    whole = [(len(rows) == trial.frames, check_of(rows)) for rows in blocks]
    assert_same_or_fails(run, whole, lambda place: (
        trial.points.at(place), trial.residuals.at(place), trial.times))


def test_analogs(opened, tool):
    trial, file = opened
    if trial is None:
        return
    run = tool("--all-labels", "analog", file)
    count = trial.frames * trial.samples_per_frame
    blocks = chunks(run.rows, count) if count else []
    blocks += [[]] * (len(trial.analog_labels) - len(blocks))

    def check_of(rows):
        def check(arrays):
            samples, times = arrays
            assert samples.dtype == np.float32 and samples.shape == times.shape
            np.testing.assert_array_equal(finite_or_nan(samples), singles(rows, "value")[:, 0])
            firsts = times[::trial.samples_per_frame].astype(np.float32)
            np.testing.assert_array_equal(
                firsts, singles(rows, "time")[::trial.samples_per_frame, 0])
            assert (np.diff(times) > 0).all()
        return check

    whole = [(len(rows) == count, check_of(rows)) for rows in blocks]
    assert_same_or_fails(run, whole, lambda place: (trial.analogs.at(place), trial.analog_times))


def test_events_and_strides(opened, tool):
    trial, file = opened
    if trial is None:
        return
    for array, report in ((trial.events, "events"), (trial.strides, "strides")):
        rows = tool(report, file).rows
        assert len(array) == len(rows)
        for row, expected in zip(array, rows):
            assert ("file", *array.dtype.names) == tuple(expected)
            for name in array.dtype.names:
                value = expected[name]
                assert row[name] == (np.float32(value) if isinstance(value, float) else value)


def test_normalized(opened, tool):
    trial, file = opened
    if trial is None or len(trial.strides) == 0:
        return
    run = tool("--all-labels", "normalized", file)
    per_label = 51 * len(trial.strides)
    for label, rows in zip(trial.labels, chunks(run.rows, per_label)):
        if len(rows) < per_label or trial.labels.count(label) > 1 or label not in trial.points:
            continue
        side = {"L": "Left", "R": "Right"}.get(label.strip()[:1].upper())
        rows = [row for row in rows if side in (None, row["side"])]
        curves = trial.normalized(label)
        strides = trial.strides if side is None else trial.strides[trial.strides["side"] == side]
        assert curves.dtype == np.float32 and curves.shape == (len(strides), 51, 3)
        expected = singles(rows, "x", "y", "z").reshape(-1, 51, 3)
        np.testing.assert_array_equal(finite_or_nan(curves), expected)


def test_measures(opened, tool):
    trial, file = opened
    if trial is None:
        return
    run = tool("measures", file)
    if run.status == 1:
        with pytest.raises(vantrel.DataError):
            trial.measures()
        return
    rows = by(run.rows, "side", "stride")
    measures = trial.measures()
    units = trial.measure_units()
    assert [(row["side"], row["number"]) for row in measures] == list(rows)
    for row, expected in zip(measures, rows.values()):
        assert row.dtype.names[2:] == tuple(value["measure"] for value in expected)
        for value in expected:
            assert row[value["measure"]] == np.float32(value["value"])
            assert units[value["measure"]] == (value["unit"] or "")


def flat(value):
    """the values of a parameter in the order of the file"""
    if isinstance(value, np.ndarray):
        return value.ravel(order="F").tolist(), value.shape
    if not isinstance(value, list):
        return [value], ()
    texts = np.array(value, dtype=object)
    return texts.ravel(order="F").tolist(), texts.shape


def test_parameters(opened, tool):
    trial, file = opened
    if trial is None:
        return
    run = tool("parameters", file)
    compared = set()
    for (group, name, dimensions, kind), rows in by(
            run.rows, "group", "parameter", "dimensions", "type").items():
        if (group.upper(), name.upper()) in compared or len({row["index"] for row in rows}) < len(rows):
            continue  # of parameters of one name the first is found
        compared.add((group.upper(), name.upper()))
        values, shape = flat(trial.parameters[group][name])
        if len(rows) > 1:
            assert "x".join(map(str, shape)) == dimensions
        number = np.float32 if kind == "float" else lambda value: value
        for value, row in zip(values, rows, strict=True):
            if row["value"] is None:
                assert not np.isfinite(value)
            else:
                assert value == number(row["value"])
    assert compared


def test_findings(opened, tool):
    trial, file = opened
    if trial is None:
        return
    expected = [(row["severity"], row["code"], row["place"] or "", row["message"])
                for row in tool("check", file).rows]
    assert trial.findings() == expected
