# SPDX-License-Identifier: GPL-3.0-or-later
"""The data of a trial by label."""
from __future__ import annotations

import functools
from typing import Callable, Dict, Iterator, List, Mapping, NoReturn, Tuple

import numpy as np
from numpy.typing import NDArray

from ._names import missing, no_pickle, search_key

__all__ = ["LabelledArrays"]


class LabelledArrays(Mapping[str, NDArray[np.float32]]):
    """The arrays of a trial by label: its points, residuals or analog channels.

    A read-only mapping. An array is read from the file each time that it is asked for, so keep it in
    a variable; it is the caller's own, may be changed, and outlives the trial. Case and the blanks
    around a label do not count. Of several equal labels the first is found by name, and an empty
    label is not found; `at` gives every one by its place. A label that is not there is a KeyError
    that names those near to it.
    """

    def __init__(self, what: str, labels: Callable[[], List[str]],
                 read: Callable[[int], NDArray[np.float32]],
                 notes: Callable[[], Tuple[List[str], List[str]]]) -> None:
        self._what = what
        self._read_labels = labels
        self._read = read
        self._notes = notes

    # Found when they are first asked for: an open costs nothing for them.
    @functools.cached_property
    def _labels(self) -> List[str]:
        return self._read_labels()

    @functools.cached_property
    def _places(self) -> Dict[bytes, int]:
        places: Dict[bytes, int] = {}
        for place, label in enumerate(self._labels):
            key = search_key(label)
            if key:
                places.setdefault(key, place)
        return places

    def __getitem__(self, label: str) -> NDArray[np.float32]:
        return self._read(self.place(label))

    def at(self, place: int) -> NDArray[np.float32]:
        """The array of the label at a place of the trial's list of labels, from 0.

        Finds also what has an empty label, or the label of an earlier one. IndexError where there is
        no such place.
        """
        return self._read(range(len(self._labels))[place])

    def place(self, label: str) -> int:
        """The place of a label in the trial's list of labels, from 0; KeyError where there is none."""
        if label not in self:
            raise missing(self._what, label, self)
        return self._places[search_key(label)]

    def unit(self, label: str) -> str:
        """The unit of a label's values, as the file spells it ("mm", "deg", "Nmm", "V").

        A point has that of the kind (angles, forces, moments, powers, scalars) in whose list it
        stands, else that of the markers. Empty where the file names none.
        """
        return self._notes()[1][self.place(label)]

    def description(self, label: str) -> str:
        """What the file says of a label; empty where it says nothing."""
        return self._notes()[0][self.place(label)]

    def __contains__(self, label: object) -> bool:
        return isinstance(label, str) and search_key(label) in self._places

    def __iter__(self) -> Iterator[str]:
        return (self._labels[place] for place in self._places.values())

    def __len__(self) -> int:
        return len(self._places)

    def __repr__(self) -> str:
        shown = ", ".join(map(repr, list(self)[:6]))
        more = ", ..." if len(self) > 6 else ""
        return f"<{len(self)} {self._what}s: {shown}{more}>"

    # The arrays of two mappings are not compared: that would read both files whole.
    __eq__ = object.__eq__
    __hash__ = object.__hash__

    def __reduce__(self) -> NoReturn:
        raise no_pickle(f"the mapping of {self._what}s")
