"""Reads results files: the mesh, the records and their times, the names of the nodestrings.

    with Results("run_results.h5") as results:
        record = results.records([STATE, BED])[-1]
        print(record.time, record.depth.max())
"""
import json
import os
from contextlib import contextmanager
from functools import cached_property

import h5py
import numpy as np

STATE = "CellsAll/HydState"
BED = "CellsAll/BottomEl"
CHEZY = "CellsAll/ChezyCoe"
CURVATURE = "CellsAll/FlowCurv"
FLOOD = "CellsAll/FloodVar"
STRINGS = "NodeStrg/StateVar"

NEEDED = ("RESULTS", "NodesAll/Coordnts", "CellsAll/Topology", "Parameters/MinWaterDepth")

# A record that a continued run has not yet written again has the time -1.
NO_LONGER_VALID = -1.0


class Fault(Exception):
    """What the user has to be told; the text says what is wrong and what would be right."""


class Record:
    """All cells or strings at one time.

    Arrays have a row per element and a column per component. They are read when asked for and not
    kept, so that a long run needs no more memory than a short one.
    """

    def __init__(self, results, position, time):
        self.results = results
        self.position = position
        self.time = time  # [s]

    def array(self, path):
        return self.results.array(path, self.position)

    @property
    def state(self):
        """Water surface [m] and specific discharge along x and y [m2/s] per cell."""
        return self.array(STATE)

    @property
    def bed(self):
        """Bed elevation per cell [m]."""
        return self.array(BED)[:, 0]

    @property
    def depth(self):
        """Water depth per cell [m]."""
        return self.state[:, 0] - self.bed

    @property
    def wet(self):
        """True for the cells whose depth is above the minimum water depth."""
        return self.depth > self.results.minimum_depth


class Results:
    """A results file, opened for reading.

    Raises Fault if the file is no results file.
    """

    def __init__(self, path):
        self.path = path
        if not os.path.exists(path):
            raise Fault(f"there is no file {path}")
        with _reading(f"{path} cannot be read as an HDF5 file"):
            self.file = h5py.File(path, "r")
        missing = [item for item in NEEDED if item not in self.file]
        if missing:
            self.file.close()
            raise Fault(f"{path} is no results file: it has no {missing[0]}; give the file that "
                        "simulation has written, whose name ends in _results.h5")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.file.close()

    @cached_property
    def nodes(self):
        """x and y per node [m], shape (nodes, 2)."""
        return np.reshape(self.file["NodesAll/Coordnts"], (-1, 3))[:, :2]

    @cached_property
    def cells(self):
        """The three nodes of each triangle, shape (cells, 3)."""
        return np.reshape(self.file["CellsAll/Topology"], (-1, 3))

    @cached_property
    def minimum_depth(self):
        """The depth up to which a cell counts as dry [m]."""
        return float(np.ravel(self.file["Parameters/MinWaterDepth"])[0])

    @cached_property
    def name(self):
        """The name of the study, or of the file where the study has none."""
        stem = os.path.basename(self.path).removesuffix(".h5").removesuffix("_results")
        return self._study.get("name", stem)

    @cached_property
    def start(self):
        """The time at which the last run began, above 0 for a continued one [s]."""
        return self._simulation.get("TIME", {}).get("start", 0.0)

    @cached_property
    def wanted(self):
        """The outputs for which the last run was asked."""
        return self._simulation.get("OUTPUT", [])

    @property
    def _study(self):
        return self._document("model").get("SETUP", {}).get("DOMAIN", {})

    @property
    def _simulation(self):
        return self._document("simulation").get("SIMULATION", {})

    def _document(self, name):
        path = ".config/" + name
        return json.loads(self.file[path][0]) if path in self.file else {}

    def string_names(self):
        """The names of the nodestrings, in the order of the rows of their states."""
        if "NodeStrg/StrNames" in self.file:
            return [name.decode() for name in self.file["NodeStrg/StrNames"]]
        definitions = self._study.get("RHEOPLANE_2D", {}).get("GEOMETRY", {}).get("STRINGDEF", [])
        return [definition.get("name", "") for definition in definitions]

    def changes(self, path):
        """True if the data are stored anew in each record."""
        return "RESULTS/" + path in self.file

    def has(self, path):
        return self.changes(path) or path in self.file

    def array(self, path, position):
        """The data of a record, or those that hold for all records, shape (elements, values)."""
        changing = f"RESULTS/{path}/{position:07d}"
        with _reading(f"record {position} of {path} in {self.path} cannot be read"):
            stored = self.file[changing if changing in self.file else path]
            return np.reshape(stored, (len(stored), -1))

    def records(self, paths):
        """The valid records that hold all the data named, in the order of their times."""
        changing = [path for path in paths if self.changes(path)]
        times = [self._times(path) for path in dict.fromkeys([*changing, STATE])
                 if self.changes(path)]
        if not times:
            return []
        common = [(time, position) for position, time in times[0].items()
                  if time != NO_LONGER_VALID
                  and all(other.get(position) == time for other in times[1:])]
        return [Record(self, position, time) for time, position in sorted(common)]

    def tracked(self):
        """The maxima and arrival times that the end of a run has stored, or None."""
        return Record(self, 0, None) if self.changes(FLOOD) else None

    def _times(self, path):
        """From position to time [s]. A record that has no time is just being written; at that
        moment a name can also be there before what it names."""
        with _reading(f"the records of {path} in {self.path} cannot be read"):
            return {int(name): float(np.ravel(record.attrs["t"])[0])
                    for name, record in self.file["RESULTS/" + path].items()
                    if record is not None and "t" in record.attrs}


def at_time(records, wanted):
    """The record at a time, which is "first", "last" or seconds.

    Times are met to seven digits, as they are printed. Raises Fault with the times that are there.
    """
    if wanted in ("first", "last"):
        return records[0 if wanted == "first" else -1]
    record = min(records, key=lambda one: abs(one.time - wanted))
    if abs(record.time - wanted) > 1e-6 * max(1.0, abs(record.time)):
        raise Fault(f"there is no record at {wanted:.10g} s, the nearest is at "
                    f"{record.time:.10g} s; valid times [s]: {listed(records)}")
    return record


def listed(records):
    """The times of the records, the middle left out where they are many."""
    times = [f"{record.time:.10g}" for record in records]
    if len(times) > 40:
        times[20:-20] = ["..."]
    return ", ".join(times)


@contextmanager
def _reading(failure):
    """Turns what h5py raises within into a Fault with the reason that HDF5 gives in brackets."""
    try:
        yield
    except (OSError, KeyError, RuntimeError) as error:
        text = str(error)
        reason = text[text.find("(") + 1:text.rfind(")")] if "(" in text else text
        raise Fault(f"{failure}: {reason}; if a run is writing it right now, try again") from error
