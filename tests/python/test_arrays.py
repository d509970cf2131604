# SPDX-License-Identifier: GPL-3.0-or-later
"""Arrays are the caller's own."""
import gc

import numpy as np

import vantrel


def test_arrays_outlive_their_trial(walk_file):
    trial = vantrel.open(walk_file)
    taken = [trial.points["LTOE"], trial.residuals["LTOE"], trial.analogs["Fz1"], trial.times,
             trial.analog_times, trial.events, trial.strides, trial.measures(),
             trial.normalized("LKneeAngles"), trial.parameters["POINT"]["ANGLES"]]
    copies = [np.array(array, copy=True) for array in taken]
    trial.close()
    del trial
    gc.collect()
    for array, copy in zip(taken, copies):
        np.testing.assert_array_equal(array, copy)


def test_arrays_own_their_memory_and_may_be_changed(walk):
    for read in (lambda: walk.points["LTOE"], lambda: walk.residuals["LTOE"],
                 lambda: walk.analogs["Fz1"], lambda: walk.times, lambda: walk.analog_times,
                 lambda: walk.normalized("LKneeAngles")):
        array = read()
        before = array.copy()
        assert array.flags.owndata and array.flags.writeable and array.flags.c_contiguous
        array[...] = 7
        np.testing.assert_array_equal(read(), before)


def test_mappings_outlive_the_variable_of_their_trial(walk_file):
    points = vantrel.open(walk_file).points
    gc.collect()
    assert points["LTOE"].shape == (460, 3)


def test_frames_that_are_not_seen_are_nan(own_walk):
    # The fourth word of a point in a frame says whether it is seen: here LTOE in the second frame.
    trial = vantrel.open(own_walk)
    before = trial.points["LTOE"]
    data = bytearray(own_walk.read_bytes())
    start = (int.from_bytes(data[16:18], "little") - 1) * 512
    frame_size = (own_walk.stat().st_size - start) // trial.frames
    word = start + frame_size + 12
    data[word:word + 4] = np.float32(-1).tobytes()
    own_walk.write_bytes(data)
    gap = vantrel.open(own_walk).points["LTOE"]
    assert np.isnan(gap[1]).all()
    np.testing.assert_array_equal(np.delete(gap, 1, axis=0), np.delete(before, 1, axis=0))
    assert vantrel.open(own_walk).residuals["LTOE"][1] == -1
