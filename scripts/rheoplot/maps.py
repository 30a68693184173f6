"""An output over the mesh."""
import numpy as np
from matplotlib import collections

from . import figures
from .arrows import Arrows, fastest
from .outputs import masked
from .scales import scale_of


class Map:
    """A panel with an output over the triangles of a mesh; dry cells are blank.

    covered: marks cells that are drawn in grey, whatever their values.
    """

    def __init__(self, panel, results, output, scale, mesh=False, covered=None):
        self.panel = panel
        self.output = output
        self.arrows = None
        self.covered = np.zeros(len(results.cells), bool) if covered is None else covered
        corners = results.nodes[results.cells]
        # Smoothed edges would leave light seams between the triangles.
        self.field = collections.PolyCollection(
            corners, norm=scale.norm, cmap=scale.colours, antialiased=mesh, rasterized=True,
            edgecolors=(0.3, 0.3, 0.3, 0.6) if mesh else "none", linewidths=0.25)
        grey = collections.PolyCollection(corners[self.covered], facecolors="0.8",
                                          antialiased=False, rasterized=True)
        for collection in (self.field, grey, outline(results)):
            panel.axes.add_collection(collection, autolim=False)
        bar = panel.axes.figure.colorbar(
            self.field, cax=panel.bar, extend=scale.extend, label=scale.label,
            orientation="vertical" if panel.box.upright else "horizontal")
        if not panel.box.upright:
            bar.ax.locator_params(nbins=6)  # room for long numbers beside each other

    def show(self, record, title):
        self.field.set_array(np.ma.masked_where(self.covered, masked(self.output, record)))
        self.panel.axes.set_title(title, loc="left")
        if self.arrows:
            self.arrows.show(record)


def outline(results):
    """The edges that only one triangle has, as lines."""
    edges = np.sort(results.cells[:, [[0, 1], [1, 2], [2, 0]]].reshape(-1, 2), axis=1)
    edges, count = np.unique(edges, axis=0, return_counts=True)
    return collections.LineCollection(results.nodes[edges[count == 1]], colors="0.35",
                                      linewidths=0.7, clip_on=False)


def map_of(results, output, records, options):
    """A figure and a map whose colours and arrows have one scale for all the records."""
    picture, [panel] = figures.map_panels(results.nodes, options.stretch)
    scale = scale_of(output, (masked(output, record) for record in records), options.range)
    drawn = Map(panel, results, output, scale, options.mesh)
    if output.vector if options.arrows is None else options.arrows:
        drawn.arrows = Arrows(panel, results, output,
                              max(fastest(output, record) for record in records))
    return picture, drawn


def title_of(results, output, record):
    """The study, the output and the time, in two lines."""
    if record.time is not None:
        when = figures.time_text(record.time)
    elif results.start > 0.0:
        when = f"from {figures.time_text(results.start)} on"
    else:
        when = "over the whole run"
    return f"{results.name}: {output.title}\n{when}"


def still(results, output, record, options):
    """Draws an output at a record."""
    picture, drawn = map_of(results, output, [record], options)
    drawn.show(record, title_of(results, output, record))
    figures.save(picture, options.unfinished)
