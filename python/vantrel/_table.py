# SPDX-License-Identifier: GPL-3.0-or-later
"""The tables of the program's reports, over any number of files."""
from __future__ import annotations

import operator
import os
import warnings
from typing import Any, Dict, Iterable, List, NamedTuple, Optional, Union

from numpy.typing import NDArray

from . import _core
from ._errors import Error
from ._names import encoded
from ._trial import FileName, path_of, open as open_trial

__all__ = ["Complaint", "TableError", "TableWarning", "table"]

_REPORTS = {name: (labels, normals) for name, labels, normals in _core.table_reports()}


class Complaint(NamedTuple):
    """What is to be said of a file of a table.

    file     the file; None where it is not of one file
    message  the sentence that vantrel-report prints on standard error
    """

    file: Optional[str]
    message: str


class TableWarning(UserWarning):
    """A table lacks something that was asked for."""


class TableError(Error):
    """A table lacks something that was asked for, in a file that can be opened.

    A label that the file does not hold, frames that it does not reach, an unreadable file of normal
    values. message is the sentence, filename the file, None where it is not of one file.
    """

    def __init__(self, message: str, filename: Optional[str] = None) -> None:
        super().__init__(message, filename)
        self.message = message
        self.filename = filename


def table(report: str, files: Union[FileName, Iterable[FileName]], *, jobs: int = 0,
          labels: Union[str, Iterable[str], None] = None, all_labels: bool = False,
          group: Optional[str] = None, parameter: Optional[str] = None,
          normal: Optional[FileName] = None,
          errors: Union[str, List[Complaint]] = "raise") -> Dict[str, NDArray[Any]]:
    """A table of vantrel-report over files, as a dict of columns: names and numpy arrays.

    pandas.DataFrame(vantrel.table(...)) is a data frame of it.

    report      header, parameters, labels, point, analog, events, strides, measures, normalized,
                summary, check: a table over the rows of each file; visit, variability, norms, scores:
                one over the strides of all files. Columns, units and rows are those of
                `vantrel-report --format csv`.
    files       a file, or any number of them; their rows come in their order
    jobs        how many files are worked on at once; 0: one a processor
    labels      the label or labels of point, analog and normalized, which need them or all_labels;
                of variability and norms, all where none is given
    all_labels  every point or channel by its place, also with an empty or repeated label
    group, parameter
                the group, or the one parameter of it, of parameters
    normal      the file of normal values of scores: a table of norms as csv, or a GCD file
    errors      what to do about a file that cannot be read, a label that it lacks and the like:
                "raise"  the first of them is raised and nothing comes back: what vantrel.open raises
                         for a file that cannot be opened, else a TableError
                "warn"   each is a TableWarning; the rows that could be made come back
                a list   a Complaint for each is added to it; likewise
                `check` finds fault with files by its rows alone.

    A column has the same type whatever its rows hold. Texts (file, label, unit, side ...) are arrays of
    objects, str or None where it is missing. Counts and numbers (n, frame, index, stride ...) are
    int64. Numbers that are stored or worked out in 32 bits are float32: coordinates, samples, times,
    measures, curves. Those of header, summary, visit, variability, norms and scores are float64; in
    norms the percent too. A missing number is NaN. The values of parameters are objects: str, int,
    float or None. A file stands under its name as given; bytes that are no UTF-8 are U+FFFD.

    Ctrl+C ends it soon. ValueError for a report without a table or a missing option; a parameter
    needs its group.
    """
    wanted = [] if labels is None else _as_list(labels)
    _check_request(report, jobs, bool(wanted) or all_labels, normal, errors)
    if parameter is not None and group is None:
        raise ValueError("parameter needs group")
    names = _as_list(files)
    columns, said = _core.table(
        report=report, files=[path_of(name) for name in names],
        jobs=min(operator.index(jobs), len(names)),
        labels=[_encoded("label", label) for label in wanted], all_labels=all_labels,
        group=None if group is None else _encoded("group", group),
        parameter=None if parameter is None else _encoded("parameter", parameter),
        normal=b"" if normal is None else path_of(normal), stops=errors == "raise")
    _tell([Complaint(*complaint) for complaint in said], errors)
    return columns


def _as_list(one_or_more: Any) -> List[Any]:
    """one name, or those that something holds"""
    alone = isinstance(one_or_more, (str, bytes, os.PathLike))
    return [one_or_more] if alone else list(one_or_more)


def _encoded(what: str, name: object) -> bytes:
    if not isinstance(name, str):
        raise TypeError(f"a {what} is a str, not {type(name).__name__}")
    return encoded(name)


def _check_request(report: str, jobs: int, has_labels: bool, normal: Optional[FileName],
                   errors: Union[str, List[Complaint]]) -> None:
    if report not in _REPORTS:
        raise ValueError(f"there is no table {report!r}; there are {', '.join(_REPORTS)}")
    needs_labels, needs_normals = _REPORTS[report]
    if needs_labels and not has_labels:
        raise ValueError(f"{report} needs labels, or all_labels=True")
    if needs_normals and normal is None:
        raise ValueError(f"{report} needs normal, a file of normal values")
    if operator.index(jobs) < 0:
        raise ValueError("jobs is 0 or more")
    if not isinstance(errors, list) and errors not in ("raise", "warn"):
        raise ValueError('errors is "raise", "warn" or a list')


def _tell(complaints: List[Complaint], errors: Union[str, List[Complaint]]) -> None:
    if isinstance(errors, list):
        errors += complaints
    elif errors == "warn":
        for file, message in complaints:
            warnings.warn(message if file is None else f"{file}: {message}", TableWarning,
                          stacklevel=3)
    elif complaints:
        file, message = complaints[0]
        if file is not None:
            open_trial(file).close()
        raise TableError(message, file)
