"""Arrows of the flow on a map."""
import numpy as np

from .outputs import outputs

LENGTH = 0.3  # of the fastest water [in]
SPACING = 0.34  # [in]


class Arrows:
    """Arrows of the specific discharge on maps of it, of the velocity on all others.

    They are spread evenly over the panel; lengths stand for magnitudes, `longest` for LENGTH.
    """

    def __init__(self, panel, results, output, longest):
        self.shown = _shown(output)
        self.cells = _spread(results, panel.box)
        x, y = results.nodes[results.cells[self.cells]].mean(axis=1).T
        longest = max(longest, 1e-12)
        self.quiver = panel.axes.quiver(
            x, y, np.zeros_like(x), np.zeros_like(x), angles="xy", units="inches", pivot="mid",
            scale_units="inches", scale=longest / LENGTH, width=0.011, color="0.1", headwidth=4,
            headlength=4.5, headaxislength=4, minlength=0.3)
        # The key stands beside the title or, where that needs all the width, below the colour bar.
        box = panel.box
        right, up = (-0.2, 0.13) if box.width > 4.0 else (0.8, -0.2 - box.height)
        key = _round_down(longest)
        panel.axes.quiverkey(self.quiver, 1.0 + right / box.width, 1.0 + up / box.height, key,
                             f"{key:g} {self.shown.unit}", labelpos="W", labelsep=0.05)

    def show(self, record):
        vectors = self.shown.vectors(record)[self.cells].T
        self.quiver.set_UVC(*np.ma.masked_where(~np.tile(record.wet[self.cells], (2, 1)), vectors))


def _shown(output):
    return outputs()["spec_discharge" if output.name.startswith("spec_discharge")
                     else "flow_velocity"]


def fastest(output, record):
    """The largest magnitude but for a few cells, as at fronts, that would dwarf all others."""
    magnitudes = np.hypot(*_shown(output).vectors(record)[record.wet].T)
    return np.percentile(magnitudes, 98) if magnitudes.size else 0.0


def _round_down(number):
    decade = 10.0 ** np.floor(np.log10(number))
    return max(step for step in (1.0, 2.0, 5.0) if step * decade <= number) * decade


def _spread(results, box):
    """A cell for each square of a grid over the panel: the one nearest to the square's middle."""
    inches = (results.nodes[results.cells].mean(axis=1) - box.low) * box.stretch * box.scale
    squares = np.floor(inches / SPACING).astype(int)
    distance = np.hypot(*(inches / SPACING - squares - 0.5).T)
    order = np.lexsort((distance, squares[:, 1], squares[:, 0]))
    _, first = np.unique(squares[order], axis=0, return_index=True)
    return order[first]
