"""What can be shown, and how it is computed from the stored data.

The names are those of SIMULATION/OUTPUT. An output of several values has a name for each of them
behind a dot: flow_velocity.x; the bare name of a vector stands for its magnitude.
"""
from dataclasses import dataclass
from typing import Callable

import numpy as np

from .results import BED, CHEZY, CURVATURE, FLOOD, STATE


@dataclass(frozen=True)
class Output:
    """A number per cell: a title, a unit, the data it needs and its values in a record."""

    name: str
    title: str
    unit: str
    data: tuple
    values: Callable  # from a Record to an array of a value per cell
    colours: str
    limits: str = "data"  # "data", "zero": from 0 up, "centred": alike on both sides of 0
    outliers: bool = False  # has huge values in a few cells, which the colours leave out
    bands: bool = False  # in steps of colour
    dry: bool = False  # has a meaning on dry cells too
    vector: bool = False  # the magnitude of a vector


def discharge(record):
    """Specific discharge along x and y per cell, shape (cells, 2) [m2/s]."""
    return record.state[:, 1:3]


def velocity(record):
    """Flow velocity along x and y per cell, shape (cells, 2) [m/s]; 0 where the depth is below the
    minimum."""
    depth = np.column_stack((record.depth, record.depth))
    return np.divide(discharge(record), depth, out=np.zeros_like(depth),
                     where=~(record.results.minimum_depth > depth))


def _chezy(record):
    """Before the first step there is no coefficient: the stored values are 0."""
    stored = record.array(CHEZY)[:, 0]
    return np.where(stored == 0.0, np.nan, stored)


def _bed_change(record):
    return record.bed - record.results.array(BED, 0)[:, 0]


def _radius(record):
    with np.errstate(divide="ignore"):
        return 1.0 / record.array(CURVATURE)[:, 0]


def _tracked(column):
    return lambda record: record.array(FLOOD)[:, column]


_ALL = (
    Output("water_surface", "water surface", "m", (STATE, BED), lambda r: r.state[:, 0], "viridis"),
    Output("water_depth", "water depth", "m", (STATE, BED), lambda r: r.depth, "depth", "zero"),
    Output("bottom_elevation", "bed elevation", "m", (BED,), lambda r: r.bed, "cividis", dry=True),
    Output("delta_z", "bed change, erosion below 0", "m", (STATE, BED), _bed_change, "RdBu",
           "centred", dry=True),
    Output("friction_chezy", "squared Chezy coefficient", "-", (STATE, BED, CHEZY),
           _chezy, "viridis"),
    Output("spec_discharge", "specific discharge", "m²/s", (STATE, BED),
           lambda r: np.hypot(*discharge(r).T), "flow", "zero", vector=True),
    Output("spec_discharge.x", "specific discharge along x", "m²/s", (STATE, BED),
           lambda r: discharge(r)[:, 0], "PuOr_r", "centred"),
    Output("spec_discharge.y", "specific discharge along y", "m²/s", (STATE, BED),
           lambda r: discharge(r)[:, 1], "PuOr_r", "centred"),
    Output("flow_velocity", "flow velocity", "m/s", (STATE, BED),
           lambda r: np.hypot(*velocity(r).T), "flow", "zero", True, vector=True),
    Output("flow_velocity.x", "flow velocity along x", "m/s", (STATE, BED),
           lambda r: velocity(r)[:, 0], "PuOr_r", "centred", True),
    Output("flow_velocity.y", "flow velocity along y", "m/s", (STATE, BED),
           lambda r: velocity(r)[:, 1], "PuOr_r", "centred", True),
    Output("flow_velocity_abs", "flow velocity", "m/s", (STATE, BED),
           lambda r: np.hypot(*velocity(r).T), "flow", "zero", True),
    Output("flow_curvature", "flow curvature", "1/m", (STATE, BED, CURVATURE),
           lambda r: r.array(CURVATURE)[:, 0], "PuOr_r", "centred", True),
    Output("flow_radius", "flow radius", "m", (STATE, BED, CURVATURE), _radius, "PuOr_r",
           "centred", True),
    Output("flood_tracking.arrival_time", "arrival time", "s", (FLOOD,), _tracked(0), "arrival",
           bands=True),
    Output("flood_tracking.max_depth", "maximum water depth", "m", (FLOOD,), _tracked(1), "depth",
           "zero"),
    Output("flood_tracking.max_velocity", "maximum flow velocity", "m/s", (FLOOD,), _tracked(2),
           "flow", "zero", True),
    Output("flood_tracking.max_discharge", "maximum specific discharge", "m²/s", (FLOOD,),
           _tracked(3), "flow", "zero"),
)

OUTPUTS = {output.name: output for output in _ALL}


def is_tracked(output):
    """True for what is stored once, at the end of a run."""
    return FLOOD in output.data


def masked(output, record):
    """The values of an output in a record; cells without water or without a finite value are
    masked. A tracked output is masked where no water has ever been."""
    values = np.ma.masked_invalid(output.values(record))
    if output.dry:
        return values
    wet = (record.array(FLOOD)[:, 1] > record.results.minimum_depth if is_tracked(output)
           else record.wet)
    return np.ma.masked_where(~wet, values)


def available(results):
    """The names of the outputs that the data in the file give."""
    return [name for name, output in OUTPUTS.items()
            if all(results.has(path) for path in output.data)
            and (name != "delta_z" or results.changes(BED))]
