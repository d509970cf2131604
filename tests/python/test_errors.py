# SPDX-License-Identifier: GPL-3.0-or-later
"""What goes wrong is an exception, and never a crash."""
import concurrent.futures
import os
import pathlib
import pickle
import shutil
import tempfile

import numpy as np
import pytest

import vantrel

READS = {
    "points": lambda trial: trial.points["LTOE"],
    "residuals": lambda trial: trial.residuals["LTOE"],
    "analogs": lambda trial: trial.analogs["Fz1"],
    "analog_times": lambda trial: trial.analog_times,
    "normalized": lambda trial: trial.normalized("LKneeAngles"),
    "measures": lambda trial: trial.measures(),
}
OTHER_READS = {
    "units": lambda trial: trial.points.unit("LTOE"),
    "measure_units": lambda trial: trial.measure_units(),
    "parameters": lambda trial: list(trial.parameters),
    "group": lambda trial: trial.parameters["POINT"],
    "findings": lambda trial: trial.findings(),
}


def test_a_missing_file_is_a_file_not_found_error(tmp_path):
    for name in (tmp_path / "none.c3d", str(tmp_path / "none" / "walk.c3d"), b"/none.c3d"):
        with pytest.raises(FileNotFoundError) as caught:
            vantrel.open(name)
        assert caught.value.filename == (name if isinstance(name, bytes) else str(name))


def test_a_folder_is_an_is_a_directory_error(tmp_path):
    for name in (tmp_path, str(tmp_path), os.fsencode(tmp_path)):
        with pytest.raises(IsADirectoryError) as caught:
            vantrel.open(name)
        assert caught.value.filename == (name if isinstance(name, bytes) else str(name))


def test_a_file_that_may_not_be_read_is_a_permission_error(walk_file):
    with tempfile.TemporaryDirectory() as name:
        os.chmod(name, 0o755)
        file = shutil.copy(walk_file, os.path.join(name, "walk.c3d"))
        os.chmod(file, 0)
        user = os.geteuid()
        if user == 0:
            os.seteuid(65534)  # who rules the system may read everything
        try:
            with pytest.raises(PermissionError):
                vantrel.open(file)
        finally:
            os.seteuid(user)


def test_a_pipe_and_a_device_are_refused_without_waiting(tmp_path):
    os.mkfifo(tmp_path / "pipe.c3d")
    for name in (tmp_path / "pipe.c3d", "/dev/null"):
        with pytest.raises(vantrel.OpenError) as caught:
            vantrel.open(name)
        assert caught.value.code == 1


def test_what_is_no_name_of_a_file_is_refused(walk_file):
    with pytest.raises(ValueError, match="null byte"):
        vantrel.open(walk_file + "\0.c3d")
    for name in (None, 3, ["walk.c3d"]):
        with pytest.raises(TypeError):
            vantrel.open(name)


def test_a_file_that_is_no_trial_is_an_open_error(own_walk):
    data = bytearray(own_walk.read_bytes())
    data[1] = 81
    own_walk.write_bytes(data)
    with pytest.raises(vantrel.OpenError) as caught:
        vantrel.open(own_walk)
    error = caught.value
    assert (error.code, error.filename) == (2, str(own_walk))
    assert error.message == "Not a valid C3D file.  The file key value was not found."
    assert str(error) == f"{own_walk}: {error.message}"


@pytest.mark.parametrize("size, number", [(0, 62), (100, 62), (600, 62)])
def test_a_file_that_ends_in_its_head_is_a_data_error(own_walk, size, number):
    os.truncate(own_walk, size)
    with pytest.raises(vantrel.DataError) as caught:
        vantrel.open(own_walk)
    assert (caught.value.number, caught.value.filename) == (number, str(own_walk))
    assert caught.value.message == "Input past end of file"


@pytest.mark.parametrize("name", READS)
@pytest.mark.parametrize("left", [0, 512, 20000])
def test_a_file_that_shrinks_while_it_is_open_is_a_data_error(own_walk, name, left):
    trial = vantrel.open(own_walk)
    READS[name](trial)
    os.truncate(own_walk, left)
    with pytest.raises(vantrel.DataError) as caught:
        READS[name](trial)
    assert (caught.value.number, caught.value.filename) == (62, str(own_walk))


def test_parameters_of_a_file_that_shrank_are_a_data_error(own_walk):
    trial = vantrel.open(own_walk)
    group = trial.parameters["POINT"]
    os.truncate(own_walk, 512)
    for read in (lambda: list(trial.parameters), lambda: "POINT" in trial.parameters,
                 lambda: trial.parameters["POINT"], lambda: group["RATE"]):
        with pytest.raises(vantrel.DataError):
            read()


def test_parameters_in_front_of_where_a_file_ends_are_found(own_walk):
    trial = vantrel.open(own_walk)
    group = trial.parameters["POINT"]
    os.truncate(own_walk, own_walk.read_bytes().index(b"CAMERA_RATE"))
    assert trial.parameters["POINT"]["RATE"] == group["RATE"] == 100
    assert "POINT" in trial.parameters
    for read in (lambda: list(trial.parameters), lambda: len(trial.parameters),
                 lambda: "NOTHING" in trial.parameters, lambda: trial.parameters["NOTHING"]):
        with pytest.raises(vantrel.DataError):
            read()


def test_a_closed_trial_is_a_value_error(walk_file):
    trial = vantrel.open(walk_file)
    group = trial.parameters["POINT"]
    assert not trial.closed
    trial.close()
    trial.close()
    assert trial.closed and "closed" in repr(trial)
    for read in (*READS.values(), *OTHER_READS.values(), lambda _: group["RATE"]):
        with pytest.raises(ValueError, match="closed"):
            read(trial)
    assert trial.rate == 100 and trial.labels[0] == "LTOE" and len(trial.strides) == 6


def test_a_with_statement_closes_its_trial(walk_file):
    with pytest.raises(ZeroDivisionError):
        with vantrel.open(walk_file) as trial:
            assert trial.points["LTOE"].shape == (460, 3)
            raise ZeroDivisionError
    assert trial.closed


@pytest.mark.parametrize("convert", [os.fsencode, os.fsdecode,
                                     lambda name: pathlib.Path(os.fsdecode(name))])
@pytest.mark.parametrize("name", [b"G\xe4nger \xff.c3d", "Gänger 歩行.c3d".encode()])
def test_names_of_any_bytes_are_opened(walk_file, tmp_path, name, convert):
    file = os.path.join(os.fsencode(tmp_path), name)
    shutil.copy(walk_file, file)
    with vantrel.open(convert(file)) as trial:
        assert trial.filename == os.fsdecode(file)
        assert trial.points["LTOE"].shape == (460, 3)
        assert isinstance(trial.findings(), list)
    os.truncate(file, 30)
    with pytest.raises(vantrel.DataError) as caught:
        vantrel.open(convert(file))
    assert caught.value.filename == os.fsdecode(file)


@pytest.mark.parametrize("error", [vantrel.OpenError(2, "no trial", "walk.c3d"),
                                   vantrel.DataError(62, "cut short"),
                                   vantrel.TableError("label not found", "walk.c3d")])
def test_errors_travel_between_processes(error):
    again = pickle.loads(pickle.dumps(error))
    assert type(again) is type(error) and again.args == error.args and str(again) == str(error)
    assert vars(again) == vars(error)


def test_findings_are_of_the_file_that_was_opened(own_walk, monkeypatch):
    monkeypatch.chdir(own_walk.parent)
    trial = vantrel.open("walk.c3d")
    monkeypatch.chdir("/")
    assert all(finding.code != "cannot-open" for finding in trial.findings())


def _frames(file):
    with vantrel.open(file) as trial:
        return trial.frames, np.isfinite(trial.points["LTOE"]).all()


def test_other_processes_open_trials_of_their_own(walk_file):
    with concurrent.futures.ProcessPoolExecutor(2) as pool:
        assert list(pool.map(_frames, [walk_file] * 4)) == [(460, True)] * 4
