"""Discharges through nodestrings over time."""
import numpy as np
from matplotlib import figure

from . import figures
from .results import STRINGS
from .stored import Fault

WATER, SEDIMENT = 1, 8  # columns of the states of a nodestring

# Okabe and Ito (2008): eight colours that can be told apart with colour blindness.
COLOURS = ("#0072B2", "#D55E00", "#009E73", "#CC79A7", "#E69F00", "#56B4E9", "#000000")
LINES = ("-", "--", ":")


def states(results, records):
    """The states of all nodestrings, shape (records, strings, 10); NaN where a record was written
    before the first step of a run had computed them.

    A computed state is never all zeros: on a dry string the mean level is the mark for missing.
    """
    arrays = [record.array(STRINGS) for record in records]
    if len({array.shape for array in arrays}) > 1:
        raise Fault(f"{results.path} is damaged: its records differ in the number of nodestrings")
    values = np.array(arrays)
    values[(values == 0.0).all(axis=2)] = np.nan
    return values


def hydrographs(results, names, path):
    """Draws discharges over time, of all nodestrings or of those named."""
    if not results.changes(STRINGS):
        raise Fault(f"{results.path} has no states of nodestrings: ask for \"ns_hyd_discharge\" in "
                    "SIMULATION/OUTPUT of the command file")
    records = results.records([STRINGS])
    if len(records) < 2:
        raise Fault(f"{results.path} has {len(records)} valid record with states of nodestrings; "
                    "a hydrograph takes two or more")
    values = states(results, records)
    known = _names(results, values.shape[1])
    chosen = [_index(known, name) for name in names] if names else range(len(known))
    panels = [("discharge [m³/s]", WATER)]
    if "ns_mor_discharge" in results.wanted or np.nansum(np.abs(values[:, :, SEDIMENT])) > 0.0:
        panels.append(("sediment discharge [m³/s]", SEDIMENT))
    unit, seconds = _unit_of_time(records[-1].time - records[0].time)
    times = np.array([record.time for record in records]) / seconds

    picture = figure.Figure(figsize=(8.0, 1.0 + 3.2 * len(panels)), dpi=figures.DPI,
                            layout="constrained")
    axes = picture.subplots(len(panels), sharex=True, squeeze=False)[:, 0]
    for axis, (label, column) in zip(axes, panels):
        for order, k in enumerate(chosen):
            axis.plot(times, values[:, k, column], label=known[k], linewidth=1.5,
                      color=COLOURS[order % len(COLOURS)],
                      linestyle=LINES[order // len(COLOURS) % len(LINES)])
        axis.set_ylabel(label)
        axis.grid(color="0.88", linewidth=0.6)
        axis.axhline(0.0, color="0.6", linewidth=0.8, zorder=1)
        axis.set_xlim(times[0], times[-1])
        axis.spines[["top", "right"]].set_visible(False)
    axes[0].set_title(f"{results.name}: discharge through nodestrings", loc="left")
    axes[-1].set_xlabel(f"time [{unit}]")
    axes[0].legend(loc="upper left", bbox_to_anchor=(1.0, 1.0), frameon=False)
    figures.save(picture, path)


def _names(results, count):
    """The names as export writes them: numbers for strings that the study does not name."""
    names = results.string_names()[:count]
    return names + [f"nodestring {k + 1}" for k in range(len(names), count)]


def _index(known, name):
    if name not in known:
        raise Fault(f"there is no nodestring \"{name}\"; there are: {', '.join(known)}")
    return known.index(name)


def _unit_of_time(span):
    """A unit that gives numbers of one to three digits, and its length [s]."""
    for unit, seconds in (("s", 1.0), ("min", 60.0), ("h", 3600.0)):
        if span <= 300.0 * seconds:
            return unit, seconds
    return "d", 86400.0
