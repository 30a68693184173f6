"""Reads results files: the mesh, the records and their times, the names of the nodestrings.

    with Results("run_results.h5") as results:
        record = results.records([STATE, BED])[-1]
        print(record.time, record.depth.max())
"""
import json
import os
from functools import cached_property

import numpy as np

from .stored import Fault, StoredFile

STATE = "CellsAll/HydState"
BED = "CellsAll/BottomEl"
FLOOD = "CellsAll/FloodVar"
STRINGS = "NodeStrg/StateVar"

# How many numbers an element has, of data that are no single numbers.
COLUMNS = {STATE: 3, FLOOD: 4, STRINGS: 10}

NEEDED = ("RESULTS", "NodesAll/Coordnts", "CellsAll/Topology", "Parameters/MinWaterDepth")


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

    Raises Fault if the file is no results file, or if what is asked for cannot be read.
    """

    def __init__(self, path):
        self.path = path
        self.file = StoredFile(path)
        missing = [item for item in NEEDED if not self.file.has(item)]
        if missing:
            self.__exit__()
            raise Fault(f"{path} is no results file: it has no {missing[0]}; give the file that "
                        "simulation has written, whose name ends in _results.h5")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.file.__exit__()

    @cached_property
    def nodes(self):
        """x and y per node [m], shape (nodes, 2)."""
        nodes = self.file.numbers("NodesAll/Coordnts", 3)[:, :2]
        if not (np.isfinite(nodes).all() and len(nodes) and np.ptp(nodes, axis=0).min() > 0.0):
            raise Fault(f"{self.path} is damaged: its nodes span no area")
        return nodes

    @cached_property
    def cells(self):
        """The three nodes of each triangle, shape (cells, 3)."""
        cells = self.file.numbers("CellsAll/Topology", 3)[:, :3]
        if not (len(cells) and cells.min() >= 0 and cells.max() < len(self.nodes)):
            raise Fault(f"{self.path} is damaged: a cell names a node that it does not hold")
        return cells.astype(int)

    @cached_property
    def minimum_depth(self):
        """The depth up to which a cell counts as dry [m]."""
        return self.file.number("Parameters/MinWaterDepth")

    @cached_property
    def name(self):
        """The name of the study, or of the file where the study has none."""
        stem = os.path.basename(self.path).removesuffix(".h5").removesuffix("_results")
        return str(self._value("model", "SETUP", "DOMAIN", "name") or stem)

    @cached_property
    def start(self):
        """The time at which the last run began, above 0 for a continued one [s]."""
        start = self._value("simulation", "SIMULATION", "TIME", "start")
        return start if isinstance(start, (int, float)) else 0.0

    @cached_property
    def wanted(self):
        """The outputs for which the last run was asked."""
        return self._list("simulation", "SIMULATION", "OUTPUT")

    def _value(self, document, *keys):
        """What an archived document has below the keys; None if that is nothing."""
        texts = self.file.texts(".config/" + document)
        try:
            value = json.loads(texts[0]) if texts else None
        except ValueError as error:
            raise Fault(f".config/{document} in {self.path} is damaged: {error}") from error
        for key in keys:
            value = value.get(key) if isinstance(value, dict) else None
        return value

    def _list(self, document, *keys):
        value = self._value(document, *keys)
        return value if isinstance(value, list) else []

    def string_names(self):
        """The names of the nodestrings, in the order of the rows of their states."""
        if self.file.has("NodeStrg/StrNames"):
            return self.file.texts("NodeStrg/StrNames")
        definitions = self._list("model", "SETUP", "DOMAIN", "RHEOPLANE_2D", "GEOMETRY", "STRINGDEF")
        return [str(one.get("name", "")) for one in definitions if isinstance(one, dict)]

    def changes(self, path):
        """True if the data are stored anew in each record."""
        return self.file.has("RESULTS/" + path)

    def has(self, path):
        return self.changes(path) or self.file.has(path)

    def array(self, path, position):
        """The data of a record, or those that hold for all records, shape (elements, values)."""
        changing = f"RESULTS/{path}/{position:07d}"
        stored = changing if self.changes(path) else path
        rows = len(self.cells) if path.startswith("CellsAll/") else None
        return self.file.numbers(stored, COLUMNS.get(path, 1), rows)

    def records(self, paths=()):
        """The valid records that hold all the data named, in the order of their times.

        A record is valid if the whole state stands in it at one time that is not negative; of two
        at one time it is the later one of the file. docs/results.md says why; export finds the same.
        """
        state = [path for path in (STATE, BED) if self.changes(path)]
        if STATE not in state:
            return []
        count = max(self.file.count("RESULTS/" + path) for path in state)
        times = {path: self.file.times("RESULTS/" + path, count)
                 for path in (*state, *paths) if self.changes(path)}

        def holds(path, position, time):
            return times[path].get(position) == time

        valid = {time: position for position, time in times[STATE].items()
                 if time >= 0.0 and all(holds(path, position, time) for path in state)}
        return [Record(self, position, time) for time, position in sorted(valid.items())
                if all(holds(path, position, time) for path in times)]

    @cached_property
    def first(self):
        """The first valid record of the file."""
        return self.records()[0]

    def tracked(self):
        """The maxima and arrival times that the end of a run has stored, or None."""
        return Record(self, 0, None) if self.changes(FLOOD) else None


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
