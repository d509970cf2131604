# SPDX-License-Identifier: GPL-3.0-or-later
"""Gait trials from C3D files, as numpy arrays.

    import vantrel

    trial = vantrel.open("walk.c3d")
    trial.rate, trial.frames, trial.first_frame      # Hz, a count, the number of the first frame
    trial.labels, trial.analog_labels                # lists of str
    trial.points["LTOE"]                             # float32, frames x 3, NaN where not seen
    trial.residuals["LTOE"], trial.times             # float32, frames
    trial.analogs["Fz1"], trial.analog_times         # frames x samples a frame
    trial.parameters["POINT"]["RATE"]                # a number, a text, a list or an array
    trial.events, trial.strides                      # structured arrays, times in seconds
    trial.normalized("LKneeAngles")                  # float32, strides x 51 x 3
    trial.measures(), trial.findings()               # what each stride measures; what is unusual

    vantrel.table("summary", ["walk.c3d", "across.c3d"])   # a dict of columns, for pandas

The numbers are those of the program vantrel-report, to the bit: the same code reads and works them
out. Labels and names are found whatever their case. Units are those of the file; times are seconds of
the trial.

Arrays are read from the file when they are asked for. They are the caller's own and outlive the trial.
Any number of threads may read one trial or many; the interpreter's lock is let go meanwhile.

What goes wrong is an exception: FileNotFoundError and its kin for a file that the system does not let
be opened, OpenError for one that is no trial, DataError for one that does not hold what it says,
KeyError, with the near ones, for a label or name that is not there, TableError for a table that lacks
something, and ValueError for a closed trial.
"""
from . import _core
from ._errors import DataError, Error, OpenError
from ._labels import LabelledArrays
from ._parameters import ParameterGroup, Parameters
from ._table import Complaint, TableError, TableWarning, table
from ._trial import Finding, Trial, open

__version__ = _core.version

__all__ = ["Complaint", "DataError", "Error", "Finding", "LabelledArrays", "OpenError",
           "ParameterGroup", "Parameters", "TableError", "TableWarning", "Trial", "open", "table"]

# What users see stands in the package itself, whatever module it is written in.
for _name in __all__:
    globals()[_name].__module__ = __name__
del _name
