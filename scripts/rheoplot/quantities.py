"""The table of quantities, as `export --quantities` prints it: names, units, meanings, formulas.

It lies beside this package where the program is installed, and in the build folder where it was
built from these sources.
"""
import json
import os
import pathlib
import re
from dataclasses import dataclass
from functools import cache

import numpy as np

from .stored import Fault

HERE = pathlib.Path(__file__).resolve().parent
NAME = "quantities.json"
COLUMN = re.compile(r"\$(\d+)")


@dataclass(frozen=True)
class Column:
    """A column of stored data; `record` is "current", or "first" for that of the first record."""

    data: str
    value: int
    record: str


@dataclass(frozen=True)
class Quantity:
    """A number per element, computed from columns of stored data by a formula."""

    name: str
    former_name: str
    unit: str
    meaning: str
    when_dry: str  # "same", "film" of water, or "nothing"
    tracked: bool  # of the whole run, stored once
    columns: dict  # by their numbers, those that the formula names
    formula: str  # $n is column n

    def values(self, numbers):
        """The values, given the numbers in each column. Division by 0 gives infinity or no number,
        as in the program."""
        names = {f"column{n}": array for n, array in numbers.items()}
        with np.errstate(all="ignore"):
            return eval(COLUMN.sub(r"column\1", self.formula),
                        {"__builtins__": {}, "sqrt": np.sqrt}, names)


def place():
    """The file with the table. Raises Fault if there is none."""
    named = os.environ.get("RHEOMARK_QUANTITIES")
    built = HERE.parents[1].glob(f"build/*/share/rheomark/{NAME}")
    known = [pathlib.Path(named)] if named else [HERE / NAME, *sorted(
        built, key=lambda path: path.stat().st_mtime, reverse=True)]
    found = next((path for path in known if path.is_file()), None)
    if found is None:
        raise Fault(f"the table of quantities is missing ({known[0]}): build the program first, "
                    "with make; RHEOMARK_QUANTITIES can name the file")
    return found


@cache
def outputs():
    """From the name of an output on cells to the list of its quantities."""
    table = json.loads(place().read_text())
    return {output["name"]: [_quantity(output, entry) for entry in output["quantities"]]
            for output in table["outputs"] if output["on"] == "CellsAll"}


def _quantity(output, entry):
    columns = {}
    for n in map(int, COLUMN.findall(entry["formula"])):
        column = output["columns"][n]
        columns[n] = Column(column["data"], column["value"], column["record"])
    return Quantity(entry["name"], entry["former_name"], entry["unit"], entry["meaning"],
                    entry["when_dry"], output["tracked"], columns, entry["formula"])
