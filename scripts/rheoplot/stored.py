"""HDF5 files whose contents nobody vouches for: what is missing, damaged or of another kind than
expected ends with a message.

    with StoredFile("run_results.h5") as file:
        cells = file.numbers("CellsAll/Topology", columns=3)
"""
import os
from contextlib import contextmanager

import h5py
import numpy as np


# What h5py and numpy raise over a file that is not as it should be.
DAMAGE = (AttributeError, IndexError, KeyError, MemoryError, OSError, RuntimeError, TypeError,
          ValueError)


class Fault(Exception):
    """What the user has to be told; the text says what is wrong and what would be right."""


class StoredFile:
    """An HDF5 file, opened for reading. Raises Fault if it is none."""

    def __init__(self, path):
        self.path = path
        if not os.path.exists(path):
            raise Fault(f"there is no file {path}")
        with reading(f"{path} cannot be read as an HDF5 file"):
            self.file = h5py.File(path, "r")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.file.close()

    def has(self, path):
        """Whether there is something of this name. What cannot be reached is not there."""
        try:
            return path in self.file
        except DAMAGE:
            return False

    def numbers(self, path, columns, rows=None):
        """The numbers of a dataset, shape (rows, columns); one that has more columns keeps them.

        Raises Fault if it holds no numbers, or has fewer columns or other rows than asked for.
        """
        with self._of(path):
            stored = self.file[path]
            if not isinstance(stored, h5py.Dataset) or stored.dtype.kind not in "iuf":
                raise ValueError("(it holds no numbers)")
            there = stored.shape[0] if stored.ndim else 1
            wide = stored.size // there if there else 0
            if wide < columns or (rows is not None and there != rows):
                wanted = "" if rows is None else f"{rows} rows of "
                raise ValueError(f"(it has {there} rows of {wide} numbers instead of {wanted}"
                                 f"{columns})")
            return np.reshape(stored[()], (there, wide)).astype(float)

    def number(self, path):
        """A single number, whatever the shape it is stored in."""
        with self._of(path):
            return float(np.ravel(self.file[path][()])[0])

    def texts(self, path):
        """The rows of a dataset of texts; none if there is no such dataset."""
        if not self.has(path):
            return []
        with self._of(path):
            return [row.decode() for row in np.ravel(self.file[path][()])]

    def count(self, path):
        """How many things stand in a group."""
        with self._of(path):
            return len(self.file[path])

    def times(self, path, count):
        """From position to time [s] of the first `count` records in a group. What cannot be read
        has not been written to its end."""
        times = {}
        for position in range(count):
            try:
                record = self.file[f"{path}/{position:07d}"]
                if isinstance(record, h5py.Dataset):
                    times[position] = float(np.ravel(record.attrs["t"])[0])
            except DAMAGE:
                continue
        return times

    def _of(self, path):
        return reading(f"{path} in {self.path} cannot be read")


@contextmanager
def reading(failure):
    """Turns what h5py raises within into a Fault with the reason that HDF5 gives in brackets."""
    try:
        yield
    except DAMAGE as error:
        text = str(error)
        reason = text[text.find("(") + 1:text.rfind(")")] if "(" in text else text
        raise Fault(f"{failure}: {reason}; if a run is writing it right now, try again") from error
