# SPDX-License-Identifier: GPL-3.0-or-later
"""What the tests of the package share.

VANTREL_REPORT is the tool that they compare with, VANTREL_TRIALS the trials: files and folders of
files, with a colon between them. The first is the sample walk.
"""
import json
import os
import pathlib
import shutil
import subprocess

import pytest

import vantrel

TOOL = os.environ["VANTREL_REPORT"]
SAMPLE = os.environ["VANTREL_TRIALS"].split(":")[0]


def trials():
    """all trials that were named, in their order"""
    files = []
    for name in os.environ["VANTREL_TRIALS"].split(":"):
        path = pathlib.Path(name)
        folder = sorted(path.iterdir()) if path.is_dir() else [path]
        files += [str(file) for file in folder if file.suffix.lower() == ".c3d"]
    return files


def pytest_generate_tests(metafunc):
    if "any_trial" in metafunc.fixturenames:
        metafunc.parametrize("any_trial", trials(), ids=os.path.basename)


class ToolRun:
    """What the tool printed as json, its complaints and its exit status."""

    def __init__(self, *arguments):
        result = subprocess.run([TOOL, "--format", "json", *arguments], capture_output=True,
                                check=False)
        self.rows = json.loads(result.stdout.decode("utf-8"))
        self.complaints = result.stderr.decode("utf-8")
        self.status = result.returncode


@pytest.fixture
def tool():
    return ToolRun


@pytest.fixture
def walk_file():
    return SAMPLE


@pytest.fixture
def own_walk(tmp_path):
    """a copy of the sample walk that the test may damage"""
    return pathlib.Path(shutil.copy(SAMPLE, tmp_path / "walk.c3d"))


@pytest.fixture
def walk():
    with vantrel.open(SAMPLE) as trial:
        yield trial
