"""Maximum depth and arrival time."""
import numpy as np

from . import figures
from .maps import Map, title_of
from .outputs import masked, outputs
from .results import BED, STATE
from .scales import scale_of
from .stored import Fault


class Summary:
    """Stands for the tracked record where there is none: the same quantities, by records."""

    time = None

    def __init__(self, results, records):
        self.results = results
        arrival = np.full(len(results.cells), np.nan)
        deepest = np.zeros(len(results.cells))
        for record in records:
            arrival[record.wet & np.isnan(arrival)] = record.time
            deepest = np.where(record.wet, np.fmax(deepest, record.depth), deepest)
        self.values = np.column_stack((arrival, deepest))

    def array(self, _path):
        return self.values


def flood(results, options):
    """Draws the maximum depth and the arrival time of the last run; returns how they were found.

    Cells that are wet at the start have no arrival; they are grey.
    """
    records = [record for record in results.records((STATE, BED)) if record.time >= results.start]
    record = results.tracked()
    source = "tracked in every step"
    if record is None:
        if not records:
            raise Fault(f"{results.path} has no valid record of {STATE}")
        record = Summary(results, records)
        source = f"found from {len(records)} records"
    picture, panels = figures.map_panels(results.nodes, options.stretch, count=2, lines=3)
    depth, arrival = (outputs()[name] for name in ("flood_maximum_depth", "flood_arrival_time"))
    _draw(panels[0], record, depth, options.mesh, source)
    _draw(panels[1], record, arrival, options.mesh, source, records[0].wet if records else None)
    figures.save(picture, options.unfinished)
    return source


def _draw(panel, record, output, mesh, source, covered=None):
    values = masked(output, record)
    scale = scale_of(output, [values if covered is None else values[~covered]])
    title = f"{title_of(record.results, output, record)}, {source}\n"
    drawn = Map(panel, record.results, output, scale, mesh, covered)
    drawn.show(record, title + ("" if covered is None else "grey: wet at the start"))
