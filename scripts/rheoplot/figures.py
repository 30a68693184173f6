"""Sizes, axes and texts that all pictures share. Sizes of figures are in inches."""
from dataclasses import dataclass

import matplotlib
import numpy as np
from matplotlib import figure, ticker

FORMATS = (".png", ".pdf", ".svg")
DPI = 150

LEFT, RIGHT, BOTTOM = 0.95, 0.25, 0.6
LINE = 0.17
DIGIT = 0.075
BAR = 0.16  # thickness of a colour bar
BESIDE, BELOW = 1.0, 0.7  # what a colour bar takes with its texts
UPRIGHT = 2.4  # height of a map beside which a colour bar can stand
SLENDER = 8.0  # a domain that is longer than this times its width is stretched
NARROWEST = 4.6  # leaves room for the title

matplotlib.rcParams.update({"font.size": 9, "axes.titlesize": 10, "axes.linewidth": 0.6,
                            "xtick.major.width": 0.6, "ytick.major.width": 0.6})


class Box:
    """The rectangle in which a domain is drawn: true to shape, or with its short side stretched.

    low, high: corners of the domain [m]
    stretch: of x and of y
    scale: inches per metre that is not stretched
    width, height: in inches
    """

    def __init__(self, nodes, largest, stretch=None):
        self.low = nodes.min(axis=0)
        self.high = nodes.max(axis=0)
        extent = self.high - self.low
        self.stretch = np.ones(2)
        self.stretch[np.argmin(extent)] = stretch or _round_stretch(extent.max() / extent.min())
        self.scale = (largest / (extent * self.stretch)).min()
        self.width, self.height = extent * self.stretch * self.scale

    @property
    def upright(self):
        """Whether the colour bar stands beside the map."""
        return self.height >= UPRIGHT

    @property
    def ticks(self):
        """How many numbers have room along x and along y."""
        digits = len(f"{self.high[0]:.0f}") + 3
        return np.clip([self.width / (DIGIT * digits), self.height / 0.6], 1, 10).astype(int)

    @property
    def turned(self):
        """Whether the numbers along x have to stand."""
        return self.ticks[0] < 2

    @property
    def bottom(self):
        return BOTTOM + (0.45 if self.turned else 0.0) + (0.0 if self.upright else BELOW)

    @property
    def right(self):
        return RIGHT + (BESIDE if self.upright else 0.0)


def _round_stretch(ratio):
    """The smallest round factor that makes a domain of this ratio broad enough to be seen."""
    if ratio <= SLENDER:
        return 1.0
    decade = 10.0 ** np.floor(np.log10(ratio / SLENDER))
    return next(step * decade for step in (1.0, 2.0, 5.0, 10.0)
                if ratio <= SLENDER * step * decade)


@dataclass
class Panel:
    """Axes for a map and axes for its colour bar."""

    axes: object
    bar: object
    box: Box


def map_panels(nodes, stretch=None, count=1, lines=2):
    """A figure and `count` panels, beside each other or, where the domain is long, stacked.

    nodes: x and y per node [m]; stretch: of the short side, by default what the domain needs;
    lines: of the titles.
    """
    box = Box(nodes, (8.0, 6.0) if count == 1 else (5.5, 5.5), stretch)
    stacked = count > 1 and box.width > 1.6 * box.height
    if stacked:
        box = Box(nodes, (8.0, 3.5), stretch)
    size = np.array((max(LEFT + box.width + box.right, NARROWEST),
                     LINE * (1.4 + lines) + box.height + box.bottom))
    tiles = [(0, row) for row in reversed(range(count))] if stacked else [
        (column, 0) for column in range(count)]
    picture = figure.Figure(figsize=size * (np.max(tiles, axis=0) + 1), dpi=DPI)
    return picture, [_panel(picture, box, size * tile) for tile in tiles]


def _panel(picture, box, corner):
    def place(left, bottom, width, height):
        whole = picture.get_size_inches()
        return picture.add_axes([*(corner + (left, bottom)) / whole, *(width, height) / whole])

    axes = place(LEFT, box.bottom, box.width, box.height)
    bar = (place(LEFT + box.width + 0.15, box.bottom, BAR, box.height) if box.upright
           else place(LEFT, 0.45, min(box.width, 4.0), BAR))
    axes.set(xlim=(box.low[0], box.high[0]), ylim=(box.low[1], box.high[1]),
             xlabel=_along("x", box.stretch[0]), ylabel=_along("y", box.stretch[1]),
             aspect=box.stretch[1] / box.stretch[0])
    for axis, count in zip((axes.xaxis, axes.yaxis), box.ticks):
        axis.set_major_locator(ticker.MaxNLocator(max(2, count), steps=[1, 2, 5, 10]))
        axis.set_major_formatter(_plain())
    axes.tick_params(axis="x", labelrotation=90 if box.turned else 0)
    axes.spines[:].set_visible(False)
    return Panel(axes, bar, box)


def _along(name, stretch):
    return f"{name} [m]" if stretch == 1.0 else f"{name} [m], stretched ×{stretch:g}"


def _plain():
    """Numbers in full, also where all of them are far from 0, as coordinates of a country are."""
    formatter = ticker.ScalarFormatter(useOffset=False)
    formatter.set_scientific(False)
    return formatter


def time_text(seconds):
    """A time as users speak of it: "t = 5,400 s (1 h 30 min)", from an hour on without seconds."""
    text = f"t = {seconds:,.10g} s"
    if seconds < 120.0:
        return text
    whole = round(seconds) if seconds < 3600.0 else 60 * round(seconds / 60.0)
    parts = ((whole // 86400, "d"), (whole // 3600 % 24, "h"), (whole // 60 % 60, "min"),
             (whole % 60, "s"))
    return f"{text} ({' '.join(f'{number} {unit}' for number, unit in parts if number)})"


def save(picture, path):
    """Writes a picture in the format that the name of the file tells."""
    picture.savefig(path, facecolor="white")
