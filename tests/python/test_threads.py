# SPDX-License-Identifier: GPL-3.0-or-later
"""Threads read one trial and many."""
import concurrent.futures
import subprocess
import sys
import threading
import time

import numpy as np
import pytest

import vantrel

LABELS = ["LTOE", "RTOE", "LKneeAngles", "RKneeAngles"]
ROUNDS = 40


def in_threads(work, count=8):
    """what the work answers in so many threads at once; an exception of one is raised here"""
    gate = threading.Barrier(count)

    def run(number):
        gate.wait()
        return work(number)

    with concurrent.futures.ThreadPoolExecutor(count) as pool:
        return list(pool.map(run, range(count)))


def test_threads_that_read_one_trial_read_what_one_thread_does(walk):
    expected = {label: walk.points[label] for label in LABELS}
    channel = walk.analogs["Fz1"]
    curves = walk.normalized("LKneeAngles")

    def read(number):
        label = LABELS[number % len(LABELS)]
        for _ in range(ROUNDS):
            np.testing.assert_array_equal(walk.points[label], expected[label])
            np.testing.assert_array_equal(walk.analogs["Fz1"], channel)
            np.testing.assert_array_equal(walk.normalized("LKneeAngles"), curves)
            assert walk.parameters["POINT"]["RATE"] == 100

    in_threads(read)


def test_threads_that_read_many_trials(walk_file, walk):
    expected = walk.points["LTOE"]

    def read(_):
        for _ in range(ROUNDS):
            with vantrel.open(walk_file) as trial:
                np.testing.assert_array_equal(trial.points["LTOE"], expected)

    in_threads(read)


def test_a_trial_closed_by_another_thread_is_read_whole_or_refused(walk_file):
    expected = vantrel.open(walk_file).points["LTOE"]
    for _ in range(20):
        trial = vantrel.open(walk_file)

        def read(number, trial=trial):
            if number == 0:
                trial.close()
                return
            try:
                for _ in range(ROUNDS):
                    np.testing.assert_array_equal(trial.points["LTOE"], expected)
            except ValueError as error:
                assert "closed" in str(error)

        in_threads(read, 4)


@pytest.fixture
def no_forced_switches():
    """threads that change only where one lets the interpreter go"""
    before = sys.getswitchinterval()
    sys.setswitchinterval(60)
    yield
    sys.setswitchinterval(before)


@pytest.mark.parametrize("read", [lambda trial: trial.points["LTOE"],
                                  lambda trial: trial.analogs["Fz1"],
                                  lambda trial: trial.normalized("LKneeAngles"),
                                  lambda trial: list(trial.parameters),
                                  lambda trial: vantrel.open(trial.filename)])
def test_other_threads_run_while_a_trial_is_read(walk, no_forced_switches, read):
    done = threading.Event()
    turns = []

    def take_turns():
        while not done.is_set():
            turns.append(None)
            time.sleep(0)

    other = threading.Thread(target=take_turns)
    other.start()
    try:
        before = len(turns)
        end = time.monotonic() + 10
        while len(turns) == before and time.monotonic() < end:
            read(walk)
        assert len(turns) > before
    finally:
        done.set()
        other.join()


LEFT_BEHIND = """
import sys, threading, time, vantrel
trial = vantrel.open(sys.argv[1])

def work():
    while True:
        {work}

for _ in range(3):
    threading.Thread(target=work, daemon=True).start()
time.sleep(0.2)
"""


@pytest.mark.parametrize("work", ["trial.points['LTOE']", "trial.normalized('LKneeAngles')",
                                  "trial.parameters['POINT']", "trial.findings()",
                                  "vantrel.open(sys.argv[1])",
                                  "vantrel.table('variability', [sys.argv[1]] * 50, jobs=2)"])
def test_a_program_ends_while_its_threads_still_read(walk_file, work):
    for _ in range(3):
        done = subprocess.run([sys.executable, "-c", LEFT_BEHIND.format(work=work), walk_file],
                              capture_output=True, text=True, timeout=60, check=False)
        assert (done.returncode, done.stderr) == (0, "")
