"""The colours of an output and the values at their ends."""
from dataclasses import dataclass

import matplotlib
import numpy as np
from matplotlib import colors, ticker

SAMPLE = 10000  # values of a record that tell what is common


def _part(name, low, high):
    """A colour map without its ends, which are lost on white or hide arrows."""
    return colors.LinearSegmentedColormap.from_list(
        f"{name}_part", matplotlib.colormaps[name](np.linspace(low, high, 256)))


# These and those of matplotlib that outputs name can be read with all kinds of colour blindness.
COLOURS = {"depth": _part("Blues", 0.22, 1.0), "flow": _part("YlOrRd", 0.06, 0.95),
           "arrival": _part("plasma", 0.0, 0.95)}


@dataclass
class Scale:
    """From values to colours, alike for all records of a picture."""

    norm: object
    colours: object
    extend: str  # at which ends of the colour bar there are values beyond
    label: str


def scale_of(output, fields, limits=None):
    """The scale for an output whose values in all records are given one by one, as masked arrays.

    limits: the values at the ends, (low, high), if not those of the fields.
    """
    least, most, sample = np.inf, -np.inf, []
    for field in fields:
        values = field.compressed()
        least, most = min(least, values.min(initial=np.inf)), max(most, values.max(initial=-np.inf))
        sample.append(values[::1 + values.size // SAMPLE])
    if least > most:
        least = most = 0.0
    low, high = limits or _ends(output, least, most, np.concatenate(sample))
    below, above = bool(least < low), bool(most > high)
    label = f"{output.title} [{output.unit}]" + (f", from {least:.3g}" if below else "")
    label += f", up to {most:.3g}" if above else ""
    extend = {(False, False): "neither", (True, False): "min", (False, True): "max",
              (True, True): "both"}[below, above]
    colours = COLOURS.get(output.style.colours) or matplotlib.colormaps[output.style.colours]
    return Scale(_norm(output, low, high, colours, extend), colours, extend, label)


def _ends(output, least, most, sample):
    low, high = _common(least, most, sample) if output.style.outliers else (least, most)
    if output.style.limits == "centred":
        high = max(-low, high)
        low = -high
    elif output.style.limits == "zero":
        low = min(0.0, low)
    if high - low > 1e-9 * max(1.0, abs(high)):
        return low, high
    # Where nothing varies but rounding, colours would show the rounding.
    room = 10.0 ** np.floor(np.log10(max(abs(high), 1e-2)))
    return (low, low + room) if output.style.limits == "zero" else (low - 0.5 * room, high + 0.5 * room)


def _common(least, most, sample):
    """The ends without those few values that would leave no colours to the others, such as
    velocities in the thin water of a front."""
    low, high = np.percentile(sample, (0.5, 99.5)) if sample.size else (least, most)
    return (low if least < 1.5 * low else least), (high if most > 1.5 * high else most)


def _norm(output, low, high, colours, extend):
    if not output.style.bands:
        return colors.Normalize(low, high)
    bands = ticker.MaxNLocator(12, steps=[1, 2, 5, 10]).tick_values(low, high)
    return colors.BoundaryNorm(bands, colours.N, extend=extend)
