# SPDX-License-Identifier: GPL-3.0-or-later
"""A trial: one open file."""
from __future__ import annotations

import errno
import os
import stat
from types import TracebackType
from typing import Any, Dict, List, NamedTuple, NoReturn, Optional, Type, Union

import numpy as np
from numpy.typing import NDArray

from . import _core
from ._errors import OpenError
from ._labels import LabelledArrays
from ._names import no_pickle
from ._parameters import Parameters

__all__ = ["Finding", "Trial", "open"]

FileName = Union[str, bytes, "os.PathLike[str]", "os.PathLike[bytes]"]

_FILE_NOT_OPENED = 1

_EVENT = np.dtype([("number", "i4"), ("side", "U5"), ("type", "U11"), ("time", "f4")])
_STRIDE = np.dtype([("side", "U5"), ("number", "i4"), ("start", "f4"), ("opposite_foot_off", "f4"),
                    ("opposite_foot_strike", "f4"), ("foot_off", "f4"), ("stop", "f4")])
_MEASURE_NAMES = _core.measure_names()
_MEASURES = np.dtype([("side", "U5"), ("number", "i4"), *((name, "f4") for name in _MEASURE_NAMES)])


class Finding(NamedTuple):
    """Something unusual in a trial, as the checkup says it.

    severity  "error", "warning" or "note"
    code      the kind of finding, always the same for the same kind: "point-gaps"
    place     group and parameter, label, event, stride or byte; may be empty
    message   one sentence with the figures, and what it does to the numbers
    """

    severity: str
    code: str
    place: str
    message: str


class Trial:
    """An open C3D file. `vantrel.open(file)` makes it.

    What the opening found is known from then on: rate, frames, labels, times, events, strides. All
    else is read from the file each time that it is asked for, and is a ValueError once the trial is
    closed and a DataError where the file does not hold it, be it that it was cut short meanwhile.

    Arrays are the caller's own: they may be changed, and outlive the trial. Any number of threads may
    use one trial, and other threads run while it reads. A trial cannot be pickled, since its file is
    open: pass the name on.

        with vantrel.open("walk.c3d") as trial:
            toe = trial.points["LTOE"]
    """

    def __init__(self, file: FileName) -> None:
        self._core = _open(file)
        self._path = os.path.abspath(os.fsencode(file))
        core = self._core
        self._points = LabelledArrays("point", lambda: core.labels, core.points, core.point_notes)
        self._residuals = LabelledArrays("point", lambda: core.labels, core.residuals,
                                         core.point_notes)
        self._analogs = LabelledArrays("channel", lambda: core.analog_labels, core.analogs,
                                       core.analog_notes)

    @property
    def filename(self) -> str:
        """The file as it was named; bytes that are no UTF-8 are surrogates, as in os.fsdecode."""
        return self._core.file

    @property
    def rate(self) -> float:
        """Frames a second."""
        return self._core.rate

    @property
    def frames(self) -> int:
        """How many frames the trial has."""
        return self._core.frames

    @property
    def first_frame(self) -> int:
        """The number of the first frame, as the file has it, mostly 1.

        Row i of an array is frame first_frame + i, as in the tables.
        """
        return self._core.first_frame

    @property
    def samples_per_frame(self) -> int:
        """How many samples each analog channel has in a frame; 0 without channels."""
        return self._core.samples_per_frame

    @property
    def analog_rate(self) -> float:
        """Samples a second of an analog channel: rate times samples_per_frame."""
        return self.rate * self.samples_per_frame

    @property
    def labels(self) -> List[str]:
        """The labels of all points in the order of the file, empty and repeated ones too."""
        return self._core.labels

    @property
    def analog_labels(self) -> List[str]:
        """The labels of all analog channels, likewise."""
        return self._core.analog_labels

    @property
    def times(self) -> NDArray[np.float32]:
        """The time of every frame, in seconds of the trial: float32, (frames,)."""
        return self._core.times()

    @property
    def analog_times(self) -> NDArray[np.float64]:
        """The time of every analog sample, in seconds: float64, (frames * samples_per_frame,).

        The samples of a frame are spread evenly from its time up to the next frame.
        """
        return self._core.analog_times()

    @property
    def points(self) -> LabelledArrays:
        """Positions, angles, forces ... by label: float32, (frames, 3), X, Y, Z in the file's unit.

        `points.unit(label)` names the unit. A frame in which the point is not seen is NaN in all
        three: its residual is negative, or that or a coordinate is not a number. Every other value
        is that of the table `point`, to the bit.
        """
        return self._points

    @property
    def residuals(self) -> LabelledArrays:
        """The residual of a point by label: float32, (frames,), in the unit of the points.

        -1 where the file says that the point is not seen, as in the table `point`.
        """
        return self._residuals

    @property
    def analogs(self) -> LabelledArrays:
        """The samples of an analog channel by label: float32, (frames * samples_per_frame,).

        As stored, without scale and offset, like the table `analog`. `analog_times` has their times.
        """
        return self._analogs

    @property
    def parameters(self) -> Parameters:
        """The parameters by group and name: `parameters["POINT"]["RATE"]`.

        See ParameterGroup for the shapes of their values.
        """
        return Parameters(self._core)

    @property
    def events(self) -> NDArray[Any]:
        """The gait events: a structured array of number, side, type and time (s).

        side is "Left", "Right" or "None", type "Foot Strike", "Foot Off" or "Other". Sided strikes and
        offs come first, then other sided events, then those without a side, each by time.
        """
        return np.array(self._core.events(), dtype=_EVENT)

    @property
    def strides(self) -> NDArray[Any]:
        """The valid strides: a structured array, one row a stride, times in seconds of the trial.

        side ("Left", "Right"), number (1, 2 ... of that side), start, opposite_foot_off,
        opposite_foot_strike, foot_off, stop.
        """
        return np.array(self._core.strides(), dtype=_STRIDE)

    def normalized(self, label: str) -> NDArray[np.float32]:
        """A point over its strides: float32, (strides, 51, 3), X, Y, Z at 0, 2 ... 100 % of each.

        A label that begins with L or R has the strides of that side, in the order of `strides`; any
        other label has all. Values are those of the table `normalized`, from splines through all
        frames: what stands in the file for a frame in which the point is not seen goes into them.
        `findings` names such gaps. KeyError for a label that is not there.
        """
        return self._core.curves(self._points.place(label))

    def measures(self) -> NDArray[Any]:
        """The measures of every valid stride: a structured array, one row a stride.

        side, number, then, as float32 and named as in the table `measures`: StrideTime, Cadence,
        StepTimePct, OppositeFootOffPct, OppositeFootStrikePct, SameFootOffPct, SingleSupportPct,
        DoubleSupportPct, StrideLength, StepLength, Speed, VideoRate, ProgressionAxis.
        `measure_units` has their units. Lengths, speed and axis are 0 without the markers LTOE and
        RTOE. The conventional measures of a trial, by side, are `vantrel.table("summary", file)`.
        """
        strides = self.strides
        rows = np.zeros(len(strides), dtype=_MEASURES)
        for name in ("side", "number"):
            rows[name] = strides[name]
        for name, values in zip(_MEASURE_NAMES, self._core.measures().T):
            rows[name] = values
        return rows

    def measure_units(self) -> Dict[str, str]:
        """The unit of each of the measures: "s", "1/s", "%", "Hz", lengths as in POINT:UNITS."""
        return dict(zip(_MEASURE_NAMES, self._core.measure_units()))

    def findings(self) -> List[Finding]:
        """What is unusual in the trial and what it does to the numbers, the gravest kinds first.

        The file is read anew, by its name. A file that cannot be opened as a trial has findings too:
        `vantrel.table("check", file)`.
        """
        if self.closed:
            raise ValueError(f"the trial is closed: {self.filename}")
        return [Finding(*row) for row in _core.findings(self._path)]

    @property
    def closed(self) -> bool:
        """Whether the trial was closed."""
        return self._core.closed

    def close(self) -> None:
        """Closes the file; waits for what another thread is reading. Once more does nothing."""
        self._core.close()

    def __enter__(self) -> Trial:
        return self

    def __exit__(self, kind: Optional[Type[BaseException]], error: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        self.close()

    def __repr__(self) -> str:
        state = "closed, " if self.closed else ""
        return (f"<vantrel.Trial {self.filename!r}: {state}{self.frames} frames at {self.rate:g} Hz, "
                f"{len(self.labels)} points, {len(self.analog_labels)} channels>")

    def __reduce__(self) -> NoReturn:
        raise no_pickle("a trial")


def open(file: FileName) -> Trial:
    """Opens a C3D file and reads its header, labels, events and strides; see Trial.

    file  its name: a str, bytes or a path object; bytes that are no UTF-8 are passed on unchanged

    FileNotFoundError, PermissionError, IsADirectoryError or another OSError where the system does not
    let the file be opened; OpenError (code, message) for a file that is no trial which can be read;
    DataError (number, message) for one that is damaged or cut short.
    """
    return Trial(file)


def path_of(file: FileName) -> bytes:
    """the name of a file as the system takes it"""
    path = os.fsencode(file)
    if b"\0" in path:
        raise ValueError("embedded null byte")
    return path


def _open(file: FileName) -> _core.Trial:
    try:
        return _core.Trial(path_of(file))
    except OpenError as error:
        if error.code == _FILE_NOT_OPENED:
            _raise_what_the_system_says(file)
        raise


def _raise_what_the_system_says(file: FileName) -> None:
    """the OSError that keeps the file from being opened; nothing where there is none"""
    mode = os.stat(file).st_mode
    if stat.S_ISDIR(mode):
        raise IsADirectoryError(errno.EISDIR, os.strerror(errno.EISDIR), os.fspath(file))
    if stat.S_ISREG(mode):
        os.close(os.open(file, os.O_RDONLY))
