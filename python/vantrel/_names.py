# SPDX-License-Identifier: GPL-3.0-or-later
"""How labels and names are compared, and which are near to one that is not there."""
from __future__ import annotations

import difflib
from typing import Iterable, List

from . import _core


def encoded(name: str) -> bytes:
    """a name as the core takes it; what is no Unicode is in no file, and is not found"""
    return name.encode("utf-8", "surrogatepass")


def search_key(name: str) -> bytes:
    """the form in which two names are compared: without the blanks around them and in one case"""
    return _core.search_key(encoded(name))


def near_names(name: str, names: Iterable[str]) -> List[str]:
    """the names most like one, or else those of which it is a part; five at most"""
    by_key = {other.casefold(): other for other in names}
    wanted = name.strip().casefold()
    near = difflib.get_close_matches(wanted, by_key, 5)
    near += [key for key in by_key if wanted and wanted in key and key not in near]
    return [by_key[key] for key in near[:5]]


def missing(what: str, name: object, names: Iterable[str]) -> KeyError:
    """the error for a name that is not there, with those that are near to it"""
    near = near_names(name, names) if isinstance(name, str) else []
    hint = f"; near names: {', '.join(near)}" if near else ""
    return KeyError(f"no {what} {name!r}{hint}")


def no_pickle(what: str) -> TypeError:
    """the error for an attempt to pickle or copy something that stands on an open file"""
    return TypeError(f"{what} stands on an open file and cannot be pickled or copied: "
                     "pass the name of the file on, and open it there")
