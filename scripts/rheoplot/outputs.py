"""What can be drawn: each quantity of the table, and the magnitudes of vectors.

A vector has two quantities, such as flow_velocity_x and flow_velocity_y; its own name,
flow_velocity, stands for its magnitude.
"""
from dataclasses import dataclass
from functools import cache

import numpy as np

from . import quantities
from .results import BED, FLOOD, STATE


@dataclass(frozen=True)
class Style:
    """How the values of an output become colours."""

    colours: str = "viridis"
    limits: str = "data"  # "data", "zero": from 0 up, "centred": alike on both sides of 0
    outliers: bool = False  # has huge values in a few cells, which the colours leave out
    bands: bool = False  # in steps of colour
    zeros: bool = True  # False: a 0 stands for what no step has computed yet


AROUND_ZERO = Style("PuOr_r", "centred")
AROUND_ZERO_AND_FAR = Style("PuOr_r", "centred", outliers=True)
DEPTH = Style("depth", "zero")
FLOW = Style("flow", "zero")
FAST_FLOW = Style("flow", "zero", outliers=True)

STYLES = {
    "water_depth": DEPTH, "bottom_elevation": Style("cividis"),
    "delta_z": Style("RdBu", "centred"), "friction_chezy": Style(zeros=False),
    "spec_discharge": FLOW, "spec_discharge_x": AROUND_ZERO, "spec_discharge_y": AROUND_ZERO,
    "flow_velocity": FAST_FLOW, "flow_velocity_x": AROUND_ZERO_AND_FAR,
    "flow_velocity_y": AROUND_ZERO_AND_FAR, "flow_velocity_abs": FAST_FLOW,
    "flow_curvature": AROUND_ZERO_AND_FAR, "flow_radius": AROUND_ZERO_AND_FAR,
    "flood_arrival_time": Style("arrival", bands=True), "flood_maximum_depth": DEPTH,
    "flood_maximum_velocity": FAST_FLOW, "flood_maximum_spec_discharge": FLOW}


@dataclass(frozen=True)
class Output:
    """A number per cell: a quantity, or the magnitude of the two of a vector."""

    name: str
    title: str
    quantities: tuple

    @property
    def unit(self):
        """As it is printed: m²/s."""
        unit = self.quantities[0].unit
        return "-" if unit == "1" else unit.replace("m2", "m²").replace("m3", "m³")

    @property
    def style(self):
        return STYLES.get(self.name, Style())

    @property
    def vector(self):
        """Whether this is the magnitude of a vector."""
        return len(self.quantities) == 2

    @property
    def tracked(self):
        """Whether it is of the whole run, stored once at its end."""
        return self.quantities[0].tracked

    @property
    def dry(self):
        """Whether it has a meaning on dry cells too."""
        return self.quantities[0].when_dry == "same"

    @property
    def data(self):
        """The paths of the data that it is made of, and of those that tell where there is water."""
        made_of = [column.data for one in self.quantities for column in one.columns.values()]
        return tuple(dict.fromkeys([*([] if self.dry or self.tracked else [STATE, BED]), *made_of]))

    def vectors(self, record):
        """The values of each quantity in a record, shape (cells, quantities)."""
        return np.column_stack([_values(one, record) for one in self.quantities])

    def values(self, record):
        """The value of each cell in a record."""
        values = self.vectors(record)
        values = np.hypot(*values.T) if self.vector else values[:, 0]
        return values if self.style.zeros else np.where(values == 0.0, np.nan, values)


def _values(quantity, record):
    def numbers(column):
        source = record.results.first if column.record == "first" else record
        return source.array(column.data)[:, column.value]

    return quantity.values({n: numbers(column) for n, column in quantity.columns.items()})


@cache
def outputs():
    """All that can be drawn, by name, in the order of the table."""
    known = []
    for name, parts in quantities.outputs().items():
        if len(parts) == 2:
            known.append(Output(name, parts[0].meaning.removesuffix(", x-component"), tuple(parts)))
        known += [Output(part.name, part.meaning, (part,)) for part in parts]
    return {output.name: output for output in known}


def present_name(name):
    """The name that is in use for a former one; any other name as it is."""
    return next((output.name for output in outputs().values()
                 if not output.vector and output.quantities[0].former_name == name), name)


def masked(output, record):
    """The values of an output in a record; cells without water or without a finite value are
    masked. A tracked output is masked where no water has ever been."""
    values = np.ma.masked_invalid(output.values(record))
    if output.dry:
        return values
    wet = (record.array(FLOOD)[:, 1] > record.results.minimum_depth if output.tracked
           else record.wet)
    return np.ma.masked_where(~wet, values)


def available(results):
    """The names of the outputs that the data in the file give."""
    return [name for name, output in outputs().items()
            if all(results.has(path) for path in output.data)
            and (name != "delta_z" or results.changes(BED))]
