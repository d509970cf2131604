# SPDX-License-Identifier: GPL-3.0-or-later
"""Points, channels and parameters are mappings."""
import collections.abc
import copy
import pickle

import numpy as np
import pytest

import vantrel


def test_points_are_a_mapping(walk):
    points = walk.points
    assert isinstance(points, collections.abc.Mapping)
    assert list(points) == walk.labels and len(points) == len(walk.labels) == 30
    assert "LTOE" in points and "LTOW" not in points and 5 not in points
    assert [label for label, array in points.items() if array.shape == (460, 3)] == walk.labels
    assert points.get("nothing") is None
    assert repr(points).startswith("<30 points: 'LTOE', 'LHEE'")


def test_labels_are_found_whatever_their_case_and_blanks(walk):
    np.testing.assert_array_equal(walk.points[" ltoe "], walk.points["LTOE"])
    np.testing.assert_array_equal(walk.analogs["fz1"], walk.analogs["Fz1"])
    np.testing.assert_array_equal(walk.normalized("lkneeangles"), walk.normalized("LKneeAngles"))
    assert "ltoe" in walk.points and "fz1" in walk.analogs


@pytest.mark.parametrize("read, near", [
    (lambda trial: trial.points["LTOW"], "LTOE"),
    (lambda trial: trial.points["knee"], "LKneeAngles"),
    (lambda trial: trial.residuals["RTOW"], "RTOE"),
    (lambda trial: trial.analogs["Fz2"], "Fz1"),
    (lambda trial: trial.normalized("LKneeAngle"), "LKneeAngles"),
    (lambda trial: trial.points.unit("LTOW"), "LTOE"),
    (lambda trial: trial.parameters["PIONT"], "POINT"),
    (lambda trial: trial.parameters["POINT"]["RAET"], "RATE"),
])
def test_a_near_miss_is_a_key_error_that_names_what_is_near(walk, read, near):
    with pytest.raises(KeyError, match=f"near names: .*{near}"):
        read(walk)


@pytest.mark.parametrize("label", ["", "\udcff", "zzzzzzzz", "L\0TOE", None, 3, b"LTOE"])
def test_what_is_no_label_is_a_key_error(walk, label):
    for mapping in (walk.points, walk.parameters, walk.parameters["POINT"]):
        assert label not in mapping
        with pytest.raises(KeyError):
            mapping[label]


def test_points_are_found_by_place(walk):
    assert walk.points.place("rtoe") == walk.labels.index("RTOE") == 4
    np.testing.assert_array_equal(walk.points.at(4), walk.points["RTOE"])
    np.testing.assert_array_equal(walk.points.at(-1), walk.points[walk.labels[-1]])
    for place in (30, -31):
        with pytest.raises(IndexError):
            walk.points.at(place)


def test_repeated_and_empty_labels_are_found_by_place(own_walk):
    data = own_walk.read_bytes()
    assert data.count(b"LHEE") == data.count(b"LANK") == 1
    own_walk.write_bytes(data.replace(b"LHEE", b"ltoe").replace(b"LANK", b"    "))
    with vantrel.open(own_walk) as trial:
        assert trial.labels[:4] == ["LTOE", "ltoe", "", "LASI"]
        assert list(trial.points)[:2] == ["LTOE", "LASI"] and len(trial.points) == 28
        np.testing.assert_array_equal(trial.points["ltoe"], trial.points.at(0))
        assert not np.array_equal(trial.points.at(1), trial.points.at(0))
        assert trial.points.at(2).shape == (460, 3)


def test_parameters_are_mappings_of_mappings(walk):
    parameters = walk.parameters
    assert isinstance(parameters, collections.abc.Mapping)
    assert list(parameters)[:3] == ["POINT", "ANALOG", "EVENT"] and len(parameters) == 5
    point = parameters["point"]
    assert isinstance(point, collections.abc.Mapping)
    assert "rate" in point and len(point) == len(list(point)) == len(dict(point.items()))
    assert repr(point).startswith("<parameters of POINT: USED, SCALE, RATE")
    assert repr(parameters).startswith("<groups of parameters: POINT, ANALOG")


def test_parameters_have_their_natural_shape(walk):
    point = walk.parameters["POINT"]
    assert point["RATE"] == 100.0 and isinstance(point["RATE"], float)
    assert point["USED"] == 30 and isinstance(point["USED"], int)
    assert point["UNITS"] == "mm"
    assert point["LABELS"] == walk.labels
    times = walk.parameters["EVENT"]["TIMES"]
    assert times.dtype == np.float32 and times.shape == (2, 17)
    np.testing.assert_array_equal(np.sort(times[1])[:2], np.sort(walk.events["time"])[:2])


def test_mappings_compare_and_hash_by_identity(walk):
    points = walk.points
    assert points == walk.points and points != walk.residuals
    assert len({points, walk.points, walk.residuals}) == 2


@pytest.mark.parametrize("take", [lambda trial: trial, lambda trial: trial.points,
                                  lambda trial: trial.parameters,
                                  lambda trial: trial.parameters["POINT"]])
@pytest.mark.parametrize("carry", [pickle.dumps, copy.copy, copy.deepcopy])
def test_what_stands_on_an_open_file_is_neither_pickled_nor_copied(walk, take, carry):
    with pytest.raises(TypeError, match="open file"):
        carry(take(walk))
