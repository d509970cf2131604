# SPDX-License-Identifier: GPL-3.0-or-later
"""What goes wrong with a trial, as exceptions."""
from __future__ import annotations

from typing import Optional

__all__ = ["Error", "OpenError", "DataError"]


class Error(Exception):
    """Something is wrong with the contents of a file.

    The base of OpenError, DataError and TableError.

    What is wrong with the way to a file is raised as Python does it: FileNotFoundError,
    PermissionError, IsADirectoryError and other kinds of OSError.

    message   what is wrong, in one sentence
    filename  the file that it is about, as it was named; None where that is not known
    """

    message: str
    filename: Optional[str]

    def __init__(self, *arguments: object) -> None:
        # What an exception was made of is what it is made of again when it is pickled.
        super().__init__(*arguments)
        self.message = ""
        self.filename = None

    def __str__(self) -> str:
        return self.message if self.filename is None else f"{self.filename}: {self.message}"


class OpenError(Error):
    """A file was found but is not a trial that can be read.

    code      the result code of the open, 1 to 9:
              1 the file cannot be opened (a pipe or a device), 2 it does not begin like a C3D file,
              3 its numbers are neither Intel's nor DEC's, 4 it holds more than one subject,
              5 its scale factor is damaged, 6 it names no points, 7 it has no frames, 8 its frame
              rate is not set, 9 files that belong to it are missing
    message   the sentence that the programs show for it
    filename  the file
    """

    def __init__(self, code: int, message: str, filename: Optional[str] = None) -> None:
        super().__init__(code, message, filename)
        self.code = code
        self.message = message
        self.filename = filename


class DataError(Error):
    """A trial does not hold what it says: it is cut short, it shrank while it was open, or it is damaged.

    number    the number of the run-time error, as the programs show it: 6 overflow, 9 subscript
              out of range, 11 division by zero, 57 device I/O error, 62 input past end of file,
              63 bad record number
    message   its description
    filename  the file
    """

    def __init__(self, number: int, message: str, filename: Optional[str] = None) -> None:
        super().__init__(number, message, filename)
        self.number = number
        self.message = message
        self.filename = filename
