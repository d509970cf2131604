# SPDX-License-Identifier: GPL-3.0-or-later
"""The parameters of a trial by group and name."""
from __future__ import annotations

from typing import Any, Dict, Iterator, List, Mapping, NoReturn, Optional, Tuple

from . import _core
from ._names import missing, no_pickle, search_key

__all__ = ["ParameterGroup", "Parameters"]

# An int, a float, a str, a list or an array: the file says which.
Value = Any


def _by_key(names: List[str]) -> Dict[bytes, int]:
    """the place of each name; of several equal ones that of the first"""
    places: Dict[bytes, int] = {}
    for place, name in enumerate(names):
        places.setdefault(search_key(name), place)
    return places


class ParameterGroup(Mapping[str, Value]):
    """The parameters of one group by name, each read from the file when it is asked for.

    A parameter that holds one value is that value: an int, a float or a str. Several texts are a
    list of str, or lists within lists. Several numbers are an array of uint8, int16 or float32 whose
    shape is that of the file: POINT:LABELS, 24 texts, is a list of 24; FORCE_PLATFORM:CORNERS, of
    dimensions 3x4x2, is an array of shape (3, 4, 2), so that [:, 2, 0] are X, Y, Z of the third
    corner of the first plate. `numpy.ravel(value, order="F")` has the values in the order of the file
    and of the table of parameters, the first dimension fastest. A length of texts is no dimension.
    Where a list may hold a single entry, as FORCE_PLATFORM:TYPE of one plate,
    `numpy.atleast_1d(value)` makes it an array always. A parameter without values is an empty list
    or array.

    Case and the blanks around a name do not count. A name that is not there is a KeyError that names
    those near to it.
    """

    def __init__(self, trial: _core.Trial, name: str, names: List[str]) -> None:
        self._trial = trial
        self._name = name
        self._names = names

    def __getitem__(self, name: str) -> Value:
        value = self._trial.parameter(self._name, name) if name in self else None
        if value is None:
            raise missing(f"parameter of the group {self._name}", name, self)
        return value

    def __contains__(self, name: object) -> bool:
        return isinstance(name, str) and search_key(name) in _by_key(self._names)

    def __iter__(self) -> Iterator[str]:
        return (self._names[place] for place in _by_key(self._names).values())

    def __len__(self) -> int:
        return len(_by_key(self._names))

    def __repr__(self) -> str:
        return f"<parameters of {self._name}: {', '.join(self)}>"

    # Groups are not compared: that would read all of both.
    __eq__ = object.__eq__
    __hash__ = object.__hash__

    def __reduce__(self) -> NoReturn:
        raise no_pickle("a group of parameters")


class Parameters(Mapping[str, ParameterGroup]):
    """The groups of a trial's parameters by name: `parameters["POINT"]["RATE"]`.

    The names are read from the file when they are asked for, as the values are. Case and the blanks
    around a name do not count; of several groups of one name the first is found. A name that is not
    there is a KeyError that names those near to it. Where the parameter section is damaged, what stands
    before the damage is found, and all else is a DataError.
    """

    def __init__(self, trial: _core.Trial) -> None:
        self._trial = trial

    def __getitem__(self, name: str) -> ParameterGroup:
        group = self._find(name)
        if group is None:
            raise missing("group of parameters", name, self)
        return ParameterGroup(self._trial, *group)

    def __contains__(self, name: object) -> bool:
        return self._find(name) is not None

    def __iter__(self) -> Iterator[str]:
        groups = self._groups(whole=True)
        return (groups[place][0] for place in _by_key([name for name, _ in groups]).values())

    def __len__(self) -> int:
        return len(_by_key([name for name, _ in self._groups(whole=True)]))

    def __repr__(self) -> str:
        return f"<groups of parameters: {', '.join(self)}>"

    # Parameters are not compared: that would read all of both.
    __eq__ = object.__eq__
    __hash__ = object.__hash__

    def __reduce__(self) -> NoReturn:
        raise no_pickle("the mapping of parameters")

    def _groups(self, whole: bool) -> List[Tuple[str, List[str]]]:
        return self._trial.parameter_names(whole)

    def _find(self, name: object) -> Optional[Tuple[str, List[str]]]:
        """the group and its names; None where there is none, which damage does not let one say"""
        if not isinstance(name, str):
            return None
        key = search_key(name)
        for group in self._groups(whole=False):
            if search_key(group[0]) == key:
                return group
        self._groups(whole=True)
        return None
